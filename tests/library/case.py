"""What the tests of the library from Python share: KORVANDE_LIBRARY is its file, KORVANDE_CLI the console program's."""

import os
import pathlib
import subprocess
import tempfile
import unittest

import korvande

root = pathlib.Path(__file__).resolve().parents[2]
samples, golden = root / "samples", root / "tests/golden"
table = samples / "voorbeeld.nst"
program = os.environ["KORVANDE_CLI"]
# The dates in headers and log books.
os.environ.update(SOURCE_DATE_EPOCH="1717198200", LC_ALL="C")
library = korvande.load(os.environ["KORVANDE_LIBRARY"])

# Translations: mode, control table, input, output, options of the library, and the same for the console program.
cases = (
    ("idex-nen1878", table, samples / "straat.idx", "uit.sfn", {}, []),
    ("idex-suf2", table, samples / "straat.idx", "uit.sf2", {"three_point_arcs": 1}, ["--driepuntsbogen"]),
    ("nen1878-idex", table, samples / "straat.sfn", "uit.idx", {}, []),
    ("suf2-idex", table, samples / "straat.sf2", "uit.idx", {"unknown_objects": 2}, ["--onbekend", "nee"]),
    ("nen1878-idex", None, samples / "kruispunt.sfn", "uit.idx", {}, []),
    (
        "nen1878-idex",
        table,
        samples / "kruispunt.sfn",
        "uit.idx",
        {"has_selection": 1, "min_x": 121000.125, "min_y": 487000, "max_x": 121200.75, "max_y": 487500.5},
        ["--selectie", "121000.125,487000,121200.75,487500.5"],
    ),
    (
        "idex-nen1878",
        golden / "klein.nst",
        golden / "lijnen.idx",
        "uit.sfn",
        {"source_kind": 3, "unknown_objects": 1},
        ["--bronvermelding", "3", "--onbekend", "ja"],
    ),
    (
        "idex-nen1878",
        table,
        samples / "straat.idx",
        "uit.sfn",
        {"without_log_book": 1, "without_zeroes": 1, "character_set": 2},
        ["--geen-logboek", "--zonder-nullen", "--tekenset", "cp850"],
    ),
    ("idex-nen1878", table, golden / "geen_layers.idx", "uit.sfn", {"from_instrument": 1}, ["--instrument"]),
    ("idex-nen1878", table, golden / "geen_layers.idx", "uit.sfn", {}, []),
    ("idex-nen1878", golden / "klein.nst", golden / "fouten.idx", "uit.sfn", {}, []),
    ("nen1878-idex", golden / "klein.nst", golden / "oud.sfn", "uit.idx", {}, []),
)


class LibraryTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.before = os.getcwd()
        os.chdir(self.folder)
        self.addCleanup(os.chdir, self.before)

    def listing(self):
        return sorted(file.name for file in self.folder.iterdir())

    def console(self, *words):
        """What the console program leaves in a folder of its own, and its status."""
        with tempfile.TemporaryDirectory() as folder:
            done = subprocess.run([program, *map(str, words)], cwd=folder, capture_output=True, check=False)
            files = {file.name: file.read_bytes() for file in pathlib.Path(folder).iterdir()}
        return done.returncode, files

    def files(self):
        return {file.name: file.read_bytes() for file in self.folder.iterdir()}
