"""The library from Python: KORVANDE_LIBRARY is its file, KORVANDE_CLI the console program's."""

import itertools
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import textwrap
import threading
import unittest

import korvande
from korvande import CANCEL, DONE, FAILED, NO, WITH_ERRORS, WRONG_USE, YES

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


class ResultsTest(LibraryTest):
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

    def test_every_option_gives_the_bytes_and_the_status_of_the_console_program(self):
        for mode, control, source, target, options, words in self.cases:
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
            mode, control, source, target, options, _ = self.cases[number]
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


class FailuresTest(LibraryTest):
    def test_a_control_table_that_cannot_be_read_is_told_in_words(self):
        with korvande.Handle(library, "weg/é ö €.nst") as handle:
            self.assertEqual(handle.status, FAILED)
            self.assertIn("weg/é ö €.nst", handle.error)
            self.assertIn("Bestand niet gevonden", handle.error.replace("Pad", "Bestand"))
            self.assertEqual(handle.translate("idex-nen1878", samples / "straat.idx", "uit.sfn"), WRONG_USE)
            self.assertEqual(handle.check(samples / "straat.idx"), WRONG_USE)
        pathlib.Path("vreemd.nst").write_text("geen tabel\n")
        with korvande.Handle(library, "vreemd.nst") as handle:
            self.assertEqual(handle.status, FAILED)
            self.assertIn("vreemd.nst", handle.error)
        self.assertEqual(self.listing(), ["vreemd.nst"])

    def test_a_control_table_that_is_cut_off_is_used_and_told(self):
        whole = table.read_bytes()
        pathlib.Path("half.nst").write_bytes(whole[: whole.rindex(b"[End]")])
        with korvande.Handle(library, "half.nst") as handle:
            self.assertEqual(handle.status, WITH_ERRORS)
            self.assertIn("half.nst", handle.error)
            self.assertEqual(handle.translate("idex-nen1878", samples / "straat.idx", "uit.sfn"), DONE)

    def test_an_input_that_is_not_there_leaves_an_earlier_output(self):
        pathlib.Path("uit.sfn").write_text("van gisteren")
        with korvande.Handle(library, table) as handle:
            self.assertEqual(handle.translate("idex-nen1878", "één.idx", "uit.sfn"), FAILED)
            self.assertIn("één.idx is niet vertaald", handle.error)
            self.assertEqual(json.loads(handle.result)["afloop"], "invoer onleesbaar")
            self.assertEqual(handle.check("één.idx"), FAILED)
            self.assertIn("'één.idx'", handle.error)
            self.assertEqual(json.loads(handle.result)["invoer"], "één.idx")
        self.assertEqual(pathlib.Path("uit.sfn").read_text(), "van gisteren")
        self.assertEqual(self.listing(), ["uit.LOG", "uit.sfn"])

    def test_broken_inputs_end_as_they_do_on_the_console(self):
        street = (samples / "straat.idx").read_bytes()
        for number, source in enumerate((b"", b"\0" * 5000, street[:7000], street[::-1], b"HEADER\n" * 999)):
            with self.subTest(number=number):
                for file in self.folder.iterdir():
                    file.unlink()
                broken = self.folder.parent / f"{self.folder.name}.idx"
                broken.write_bytes(source)
                self.addCleanup(broken.unlink, missing_ok=True)
                status, files = self.console("vertaal", "--modus", "idex-nen1878", "--project", table, broken, "uit.sfn")
                self.assertIn(status, (WITH_ERRORS, FAILED))
                with korvande.Handle(library, table) as handle:
                    self.assertEqual(handle.translate("idex-nen1878", broken, "uit.sfn"), status)
                    self.assertNotEqual(handle.error, "")
                self.assertEqual(self.files(), files)

    def test_an_output_that_cannot_be_written_fails(self):
        with korvande.Handle(library, table) as handle:
            self.assertEqual(handle.translate("idex-nen1878", samples / "straat.idx", "weg/uit.sfn", "uit.log"), FAILED)
            self.assertEqual(handle.translate("idex-nen1878", samples / "straat.idx", "uit.sfn", "weg/uit.log"), FAILED)
            self.assertIn("weg/uit.log", handle.error)
        self.assertEqual(self.listing(), ["uit.log"])

    def test_a_name_that_is_no_utf8_comes_back_as_text_that_is(self):
        with korvande.Handle(library) as handle:
            self.assertEqual(handle.check(b"weg\xff.idx"), FAILED)
            self.assertIn("weg\ufffd.idx", handle.error)
            self.assertEqual(json.loads(handle.result)["invoer"], "weg\ufffd.idx")

    def test_values_of_options_that_are_none_are_a_wrong_use(self):
        refused = (
            {"character_set": 3},
            {"character_set": -1},
            {"unknown_objects": 3},
            {"source_kind": 6},
            {"without_zeroes": 2},
            {"from_instrument": -1},
            {"three_point_arcs": 7},
            {"without_log_book": 2},
            {"has_selection": 2},
            {"has_selection": 1, "min_x": 1},
            {"has_selection": 1, "max_y": float("nan")},
            {"has_selection": 1, "max_x": float("inf")},
        )
        with korvande.Handle(library, table) as handle:
            for options in refused:
                with self.subTest(options=options):
                    self.assertEqual(handle.check(samples / "straat.idx", options=options), WRONG_USE)
                    self.assertGreater(len(handle.error), 10)
            options = {"without_log_book": 1}
            self.assertEqual(
                handle.translate("idex-nen1878", samples / "straat.idx", "uit.sfn", "uit.log", options), WRONG_USE
            )
        self.assertEqual(self.listing(), [])


class CallbacksTest(LibraryTest):
    def test_cancelling_leaves_no_output_and_an_earlier_one_alone(self):
        pathlib.Path("uit.sfn").write_text("van gisteren")
        with korvande.Handle(library, table) as handle:
            status = handle.translate(
                "idex-nen1878", samples / "straat.idx", "uit.sfn", should_cancel=lambda: 1
            )
            self.assertEqual(status, FAILED)
            self.assertIn("is niet vertaald: afgebroken", handle.error)
            self.assertEqual(json.loads(handle.result)["afloop"], "geannuleerd")
            self.assertEqual(handle.check(samples / "straat.idx", should_cancel=lambda: 1), FAILED)
            self.assertEqual(handle.error, "Afgebroken.")
            self.assertEqual(pathlib.Path("uit.sfn").read_text(), "van gisteren")
            # And not at all the next time.
            self.assertEqual(handle.translate("idex-nen1878", samples / "straat.idx", "uit.sfn"), DONE)
        self.assertEqual(self.listing(), ["uit.LOG", "uit.sfn"])

    def test_cancelling_half_way_stops_there(self):
        for patience in range(1, 5):
            with self.subTest(patience=patience), korvande.Handle(library, table) as handle:
                left = [patience]

                def later(left=left):
                    left[0] -= 1
                    return left[0] < 0

                status = handle.translate("idex-nen1878", samples / "straat.idx", "uit.sfn", should_cancel=later)
                self.assertEqual((status, left), (FAILED, [-1]))
                self.assertEqual(self.listing(), ["uit.LOG"])

    def test_questions_get_the_answer_of_the_callback_or_the_proposed_one(self):
        for answer, word, case in (
            (YES, "ja", "old_format_yes"),
            (NO, "nee", "old_format_no"),
            (CANCEL, "annuleren", "old_format_cancel"),
            (0, "annuleren", "old_format_cancel"),
            (None, "ja", "old_format_yes"),
        ):
            with self.subTest(answer=answer, case=case):
                for file in self.folder.iterdir():
                    file.unlink()
                asked = []

                def ask(question, proposed, asked=asked, answer=answer):
                    asked.append((question, proposed))
                    return answer

                source = golden / "oud.sfn"
                words = ["--project", golden / "klein.nst", "--antwoord", word, source, "uit.idx"]
                status, files = self.console("vertaal", "--modus", "nen1878-idex", *words)
                with korvande.Handle(library, golden / "klein.nst") as handle:
                    callbacks = {} if answer is None else {"ask": ask}
                    self.assertEqual(handle.translate("nen1878-idex", source, "uit.idx", **callbacks), status)
                self.assertEqual(self.files(), files)
                self.assertEqual("uit.idx" in files, word != "annuleren")
                self.assertEqual([proposed for _, proposed in asked], [] if answer is None else [YES])
                for question, _ in asked:
                    self.assertIn("?", question)

    def test_a_check_asks_nothing_and_tells_the_question(self):
        asked = []
        with korvande.Handle(library, golden / "klein.nst") as handle:
            status = handle.check(golden / "oud_vier.sfn", ask=lambda *words: asked.append(words) or NO)
            self.assertEqual(status, WITH_ERRORS)
            kinds = [problem["soort"] for problem in json.loads(handle.result)["problemen"]]
        self.assertEqual(asked, [])
        self.assertIn("Question", kinds)

    def test_progress_of_a_check_grows_and_ends(self):
        told = []
        with korvande.Handle(library, table) as handle:
            handle.check(samples / "kruispunt.sfn", progress=lambda *words: told.append(words))
        begins = [number for number, (_, done, _) in enumerate(told) if done == 0]
        self.assertGreater(len(begins), 2)
        for begin, end in zip(begins, begins[1:] + [len(told)]):
            step = [done for _, done, _ in told[begin:end]]
            self.assertEqual(step, sorted(step))
            self.assertEqual(told[end - 1][1], told[end - 1][2])
            self.assertEqual(len({total for _, _, total in told[begin:end]}), 1)


class ThreadsTest(LibraryTest):
    def test_four_threads_with_handles_of_their_own_give_the_bytes_of_the_console(self):
        cases = ResultsTest.cases
        expected = []
        for mode, control, source, target, _, words in cases:
            project = ["--project", control] if control else []
            expected.append(self.console("vertaal", "--modus", mode, *project, *words, source, target))
        wrong = []

        def work(thread):
            for run in range(20):
                number = (thread * 3 + run * 5) % len(cases)
                mode, control, source, target, options, _ = cases[number]
                folder = self.folder / f"{thread}-{run}"
                folder.mkdir()
                with korvande.Handle(library, control) as handle:
                    status = handle.translate(mode, source, folder / target, options=options)
                files = {file.name: file.read_bytes() for file in folder.iterdir()}
                # Only the name of the output differs.
                names = {name: bytes_.replace(os.fsencode(str(folder) + "/"), b"") for name, bytes_ in files.items()}
                if (status, names) != expected[number]:
                    wrong.append((thread, run, mode, status))

        threads = [threading.Thread(target=work, args=(thread,)) for thread in range(4)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        self.assertEqual(wrong, [])
        self.assertEqual(len(self.listing()), 80)


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


if __name__ == "__main__":
    unittest.main()
