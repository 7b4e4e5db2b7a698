"""How calls of the library fail, ask and stop, and how they run on threads."""

import json
import os
import pathlib
import threading

import korvande
from case import LibraryTest, cases, golden, library, samples, table
from korvande import CANCEL, DONE, FAILED, NO, WITH_ERRORS, WRONG_USE, YES


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
