"""The mutants of tiny.cpp, which are all known, and what a build and its tests make of them."""

import os
import pathlib
import subprocess
import tempfile
import unittest

import build
import points
import written

folder = pathlib.Path(__file__).resolve().parent
tiny = folder / "tiny.cpp"


def tiny_mutants():
    """The source, its points and their mutants."""
    source = tiny.read_bytes()
    found = points.points_of_unit(tiny, ["-std=c++20"], {str(tiny)})[str(tiny)]
    return source, found, written.mutants_of("tiny.cpp", source, found, 1)


def changes_on(text):
    """What is changed on the line that holds a text."""
    _, _, mutants = tiny_mutants()
    return [mutant.change for its in mutants for mutant in its if text in mutant.source]


class Points(unittest.TestCase):
    """Where a source is broken."""

    def test_what_the_compiler_evaluates_stays(self):
        for text in ("limit = 3", "static_assert", "template"):
            self.assertEqual(changes_on(text), [])

    def test_a_return_of_bool_is_inverted_and_its_operators_are_exchanged(self):
        self.assertEqual(
            changes_on("bool IsShort"),
            [
                'text != "a" && text.size() <= limit -> !(text != "a" && text.size() <= limit)',
                'text != "a" && text.size() <= limit -> (text != "a") || (text.size() <= limit)',
                'text != "a" -> text == "a"',
                '"a" -> "x"',
                "text.size() <= limit -> text.size() < limit",
            ],
        )

    def test_a_loop_ends_at_once_runs_once_more_or_backwards(self):
        self.assertEqual(
            changes_on("for (int at"),
            ["0 -> 0 + 1", "at < 2 -> false", "at < 2 -> at <= 2", "2 -> 2 + 1", "2 -> 2 - 1", "++at -> --at"],
        )

    def test_a_condition_behind_a_variable_is_always_true_or_never(self):
        self.assertEqual(
            changes_on("if (const int first"),
            ["7 -> 7 + 1", "7 -> 7 - 1", "!number -> true", "!number -> false", "!number -> static_cast<bool>(number)"],
        )

    def test_statements_are_left_out_in_blocks_and_without_one(self):
        self.assertIn('std::printf("some"); -> nothing', changes_on('std::printf("some")'))
        self.assertIn("continue; -> nothing", changes_on("continue"))
        self.assertIn("number = at; -> nothing", changes_on("number = at"))


class Programs(unittest.TestCase):
    """The mutants of the source, built into one program."""

    def setUp(self):
        place = tempfile.TemporaryDirectory()
        self.addCleanup(place.cleanup)
        self.place = pathlib.Path(place.name)
        self.source, self.points, lists = tiny_mutants()
        self.lists = lists
        self.mutants = [mutant for its in lists for mutant in its]

    def compile(self, dropped):
        """Builds the program; what the compiler says, and the written source."""
        text = written.Writer(self.source, self.points, self.lists, dropped).text()
        target = self.place / "sources/room/tiny.cpp"
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(written.compiled("tiny.cpp", text))
        told = subprocess.run(
            ["g++", "-std=c++20", "-w", "-fdiagnostics-column-unit=byte", f"-I{folder}", target, "-o",
             self.place / "tiny"], capture_output=True, text=True, check=False,
        )  # fmt: skip
        return told.stderr, text

    def run_tiny(self, **variables):
        """What the program prints, and its status; nothing when it goes on and on."""
        try:
            result = subprocess.run([self.place / "tiny"], env=os.environ | variables, capture_output=True, timeout=1,
                                    check=False)  # fmt: skip
        except subprocess.TimeoutExpired:
            return None
        return result.stdout, result.returncode

    def built(self):
        """Builds the program without what does not compile, which is named."""
        complaints, text = self.compile(set())
        dropped = {
            number for _, line, column in build.complaint.findall(complaints)
            for number in written.mutants_at(text, int(line), int(column))
        }  # fmt: skip
        complaints, _ = self.compile(dropped)
        self.assertEqual(complaints, "")
        return dropped

    def test_only_what_does_not_compile_is_dropped(self):
        dropped = self.built()
        self.assertEqual([mutant.change for mutant in self.mutants if mutant.number in dropped], ['"n" -> "x"'])

    def test_each_mutant_changes_what_the_program_does_and_none_without_its_number(self):
        dropped = self.built()
        right = self.run_tiny()
        self.assertEqual(right, (b"6 5 010\nnone yn 0\n", 0))
        same = []
        for mutant in self.mutants:
            if mutant.number not in dropped and self.run_tiny(KORVANDE_MUTANT=str(mutant.number)) == right:
                same.append(mutant.change)
        # What its main function does not come by, or cannot tell.
        self.assertEqual(
            same,
            [
                "isLarge -> true",
                "-Size -> Size",
                "!number -> true",
                "first == 7 -> true",
                "'n' -> decltype('n')('n' + 1)",
                'std::printf("some"); -> nothing',
                '"some" -> "somx"',
                "2 -> 2 - 1",
                "5 -> 5 + 1",
                "5 -> 5 - 1",
                '"abc" -> "abx"',
                '"abcd" -> "abcx"',
                'IsShort("a") -> false',
                "1 -> 1 + 1",
                "1 -> 1 - 1",
            ],
        )

    def test_what_a_run_comes_by_is_set_in_its_file(self):
        self.built()
        reached = self.place / "reached"
        reached.write_bytes(bytes(len(self.mutants) + 1))
        self.run_tiny(KORVANDE_REACHED=str(reached))
        marks = reached.read_bytes()
        missed = [mutant.change for mutant in self.mutants if not marks[mutant.number]]
        self.assertEqual(
            missed,
            [
                "-Size -> Size",
                '"n" -> "x"',
                "'n' -> decltype('n')('n' + 1)",
                'std::printf("some"); -> nothing',
                '"some" -> "somx"',
                "1 -> 1 + 1",
                "1 -> 1 - 1",
            ],
        )


if __name__ == "__main__":
    unittest.main()
