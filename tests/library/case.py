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
