"""A hundred thousand calls of the library in one process, on one control table."""

import os
import pathlib
import sys
import tempfile
import unittest

from life import Life, expect_no_growth, golden, memory, release, root, table

sys.path.insert(0, str(root / "tests/library"))
import korvande  # noqa: E402

TRANSLATIONS = 100_000
LOOKS = 200


class LibraryTest(unittest.TestCase):
    def test_a_hundred_thousand_translations_of_one_handle_use_no_more_and_more(self):
        library = korvande.load(str(release / "library/libkorvande.so.1"))
        inputs = [
            ("idex-nen1878", golden / "fouten.idx"),
            ("idex-suf2", golden / "lijnen.idx"),
            ("nen1878-idex", golden / "groepen.sfn"),
            ("suf2-idex", golden / "groepen.sf2"),
            ("nen1878-idex", golden / "afgebroken.sfn"),
            ("nen1878-idex", golden / "lijnen.idx"),  # of another format: refused
            ("suf2-idex", golden / "weg.sf2"),  # missing
        ]
        with tempfile.TemporaryDirectory(dir=memory) as folder, korvande.Handle(library, str(table)) as handle:
            output = pathlib.Path(folder) / "uit"
            life = Life()
            statuses = set()
            for number in range(TRANSLATIONS):
                mode, source = inputs[number % len(inputs)]
                statuses.add(handle.translate(mode, source, output))
                if number % (TRANSLATIONS // LOOKS) == 0:
                    life.look(os.getpid(), number)
            life.look(os.getpid(), TRANSLATIONS)
        self.assertEqual(statuses, {korvande.DONE, korvande.WITH_ERRORS, korvande.FAILED})
        expect_no_growth(self, life, TRANSLATIONS, "the library")


if __name__ == "__main__":
    unittest.main()
