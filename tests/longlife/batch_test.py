"""A hundred thousand drawings in one batch of the console program."""

import os
import pathlib
import shutil
import subprocess
import tempfile
import time
import unittest

from life import Life, expect_no_growth, golden, memory, release, samples, table

TRANSLATIONS = 100_000
FOLDER_SIZE = 1_000  # drawings


def make_inputs(folder):
    """So many drawings, small and larger, whole, cut off and of no format, as links to one of each."""
    sources = [golden / "groepen.sfn", golden / "leeg.sfn", golden / "afgebroken.sfn", golden / "geen_01.sfn"] * 8
    sources.append(samples / "kruispunt.sfn")
    copies = []
    for number, source in enumerate(sources):
        copies.append(folder / ("bron%d" % number))
        shutil.copyfile(source, copies[-1])
    number = 0
    for part in range(TRANSLATIONS // FOLDER_SIZE):
        below = folder / "in" / ("%03d" % part)
        below.mkdir(parents=True)
        for _ in range(FOLDER_SIZE):
            os.link(copies[number % len(copies)], below / ("%06d.sfn" % number))
            number += 1
    return folder / "in"


def done_so_far(outputs):
    """Drawings are taken in their order, folder by folder."""
    parts = sorted(os.listdir(outputs))
    if not parts:
        return 0
    logs = sum(name.endswith(".LOG") for name in os.listdir(outputs / parts[-1]))
    return (len(parts) - 1) * FOLDER_SIZE + logs


class BatchTest(unittest.TestCase):
    def test_a_hundred_thousand_drawings_in_one_batch_use_no_more_and_more(self):
        with tempfile.TemporaryDirectory(dir=memory) as name:
            folder = pathlib.Path(name)
            inputs, outputs = make_inputs(folder), folder / "uit"
            outputs.mkdir()
            with open(folder / "gezegd", "wb") as said:
                batch = subprocess.Popen(
                    [release / "cli/korvande-cli", "vertaal", "--stil", "--modus", "nen1878-idex", "--project", table]
                    + ["--recursief", "--uitvoermap", outputs, inputs],
                    stdin=subprocess.DEVNULL,
                    stdout=said,
                    stderr=said,
                )
                life = Life()
                while batch.poll() is None:
                    life.look(batch.pid, done_so_far(outputs))
                    time.sleep(0.1)
            self.assertEqual(batch.returncode, 1, "some of them are broken")
            expect_no_growth(self, life, TRANSLATIONS, "a batch")


if __name__ == "__main__":
    unittest.main()
