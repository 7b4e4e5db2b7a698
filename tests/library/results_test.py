"""What calls of the library give: bytes, statuses, results as JSON."""

import itertools
import json
import os
import pathlib
import subprocess
import sys
import textwrap
import unittest

import korvande
from case import LibraryTest, cases, golden, library, program, root, samples, table
from korvande import DONE, WITH_ERRORS, WRONG_USE


class ResultsTest(LibraryTest):
    def test_every_option_gives_the_bytes_and_the_status_of_the_console_program(self):
        for mode, control, source, target, options, words in cases:
            with self.subTest(mode=mode, source=source.name, options=options):
                project = ["--project", control] if control else []
                status, files = self.console("vertaal", "--modus", mode, *project, *words, source, target)
                for file in self.folder.iterdir():
                    file.unlink()
                with korvande.Handle(library, control) as handle:
                    self.assertEqual(handle.status, DONE)
                    self.assertEqual(handle.translate(mode, source, target, options=options), status, handle.error)
                    self.assertEqual(handle.error == "", status == DONE)
                self.assertEqual(self.listing(), sorted(files))
                self.assertEqual(self.files(), files)

    def test_options_change_what_comes_out(self):
        def made(number):
            mode, control, source, target, options, _ = cases[number]
            with korvande.Handle(library, control) as handle:
                handle.translate(mode, source, target, options=options)
                changed = pathlib.Path(target).read_bytes()
                handle.translate(mode, source, target)
            return changed, pathlib.Path(target).read_bytes()

        for number in (1, 3, 5, 6, 7):
            with self.subTest(number=number):
                self.assertNotEqual(*made(number))

    def test_a_handle_gives_the_same_bytes_again_and_again(self):
        with korvande.Handle(library, table) as handle:
            for _ in range(3):
                handle.translate("nen1878-idex", samples / "kruispunt.sfn", "uit.idx")
                handle.translate("idex-nen1878", samples / "straat.idx", "uit.sfn", "uit.log")
                self.assertEqual(
                    pathlib.Path("uit.sfn").read_bytes(),
                    (golden / "sample_idex_to_nen1878/verwacht/straat.sfn").read_bytes(),
                )

    def test_names_that_are_left_out_follow_from_the_input(self):
        pathlib.Path("straat.idx").write_bytes((samples / "straat.idx").read_bytes())
        with korvande.Handle(library, table) as handle:
            self.assertEqual(handle.translate("idex-nen1878", "straat.idx"), DONE)
        self.assertEqual(self.listing(), ["straat.LOG", "straat.SFN", "straat.idx"])

    def test_a_check_gives_the_status_of_the_console_program(self):
        for source in ("samples/straat.idx", "samples/kruispunt.sfn", "golden/lijnen.idx", "golden/geen_02.sfn"):
            with self.subTest(source=source):
                name = root / source if source.startswith("samples") else root / "tests" / source
                status, _ = self.console("controleer", "--project", table, name)
                with korvande.Handle(library, table) as handle:
                    self.assertEqual(handle.check(name), status)
                    self.assertEqual(handle.error == "", status == DONE)
                    self.assertEqual(json.loads(handle.result)["status"], status)
        self.assertEqual(self.listing(), [])

    def test_the_result_tells_the_account_and_every_error_with_its_line(self):
        with korvande.Handle(library, golden / "klein.nst") as handle:
            self.assertIsNone(handle.result)
            self.assertEqual(handle.translate("idex-nen1878", golden / "fouten.idx", "uit.sfn"), WITH_ERRORS)
            result = json.loads(handle.result)
            self.assertEqual(handle.translate("onbekend", golden / "fouten.idx", "uit.sfn"), WRONG_USE)
            self.assertIsNone(handle.result)
        self.assertEqual((result["status"], result["uitvoer"], result["modus"]), (1, "uit.sfn", "idex-nen1878"))
        log_book = pathlib.Path("uit.LOG").read_text(encoding="windows-1252")
        told = [line[len("FOUT:  ") :] for line in log_book.splitlines() if line.startswith("FOUT:  ")]
        self.assertGreater(len(told), 0)
        self.assertEqual([error["tekst"] for error in result["fouten"]], told)
        self.assertEqual(result["gelezen"], sum(kind["gelezen"] for kind in result["balans"]))


    def test_results_have_the_members_of_the_schema(self):
        forms = json.loads((root / "docs/schema/resultaat-1.schema.json").read_text(encoding="utf-8"))["$defs"]
        with korvande.Handle(library, table) as handle:
            for form, call in (
                ("vertaling", lambda: handle.translate("idex-nen1878", samples / "straat.idx", "uit.sfn")),
                ("vertaling", lambda: handle.translate("idex-nen1878", "weg.idx", "uit.sfn")),
                ("controle", lambda: handle.check(samples / "straat.idx")),
                ("nietGecontroleerd", lambda: handle.check("weg.idx")),
            ):
                with self.subTest(form=form):
                    status = call()
                    result = json.loads(handle.result)
                    self.assertEqual(sorted(result), sorted(forms[form]["required"]))
                    self.assertEqual(result["status"], status)


class DocumentTest(LibraryTest):
    def test_the_program_on_the_page_of_the_library_translates(self):
        page = (root / "docs/library.md").read_text(encoding="utf-8")
        behind = page[page.index("## From Python") :].splitlines()[2:]
        lines = itertools.takewhile(lambda line: not line or line.startswith("    "), behind)
        for name in ("voorbeeld.nst", "straat.idx"):
            pathlib.Path(name).write_bytes((samples / name).read_bytes())
        folder = os.path.dirname(os.environ["KORVANDE_LIBRARY"])
        done = subprocess.run(
            [sys.executable, "-c", textwrap.dedent("\n".join(lines))],
            env={**os.environ, "LD_LIBRARY_PATH": folder},
            capture_output=True,
            text=True,
            check=False,
        )
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""))
        expected = golden / "sample_idex_to_nen1878/verwacht/straat.sfn"
        self.assertEqual(pathlib.Path("straat.sfn").read_bytes(), expected.read_bytes())


class VersionTest(unittest.TestCase):
    def test_the_version_is_that_of_the_console_program(self):
        told = subprocess.run([program, "--version"], capture_output=True, text=True, check=True).stdout.strip()
        self.assertEqual("KORVANDE " + library.korvande_version().decode(), told)
        self.assertGreaterEqual(library.korvande_interface(), 1)
