"""What is told of branches that were counted."""

import unittest

import report

source = ["int Sign(int number) {", "    if (number < 0) return Minus();", "    return number > 0 ? 1 : 0;", "}"]


def way(count, throw=False):
    return {"count": count, "fallthrough": False, "throw": throw}


def told(*lines):
    """As gcovr tells of lines: their numbers and branches."""
    lines = [{"line_number": number, "branches": branches} for number, branches in lines]
    return {"files": [{"file": "idex/Sign.cpp", "lines": lines}]}


def lines_of(*lines):
    return list(report.lines_of(told(*lines), lambda name: source))


class Branches(unittest.TestCase):
    """What counts as a branch."""

    def test_a_call_that_may_throw_is_none(self):
        branches = [way(3), way(2), way(3), way(0, throw=True), way(1), way(2)]
        self.assertEqual(report.of_source(branches), [3, 2, 1, 2])

    def test_a_line_with_calls_only_has_none(self):
        self.assertEqual(lines_of((2, [way(3), way(0, throw=True)])), [])

    def test_a_line_is_known_by_its_source(self):
        line = lines_of((2, [way(3), way(0)]))[0]
        self.assertEqual(line, ("idex/Sign.cpp", 2, "if (number < 0) return Minus();", 2, 1))


class Complaints(unittest.TestCase):
    """What makes a run fail."""

    def complaints(self, branches, reasons):
        return list(report.complaints(lines_of((2, branches)), report.read_reasons(reasons)))

    def row(self, untaken):
        return "idex/Sign.cpp\tif (number < 0) return Minus();\t%d\tno number is less\n" % untaken

    def test_branches_that_are_all_taken_need_no_reason(self):
        self.assertEqual(self.complaints([way(3), way(1)], ""), [])

    def test_a_branch_that_is_not_taken_needs_a_reason(self):
        said = self.complaints([way(3), way(0)], "# nothing\n")
        self.assertEqual(said, ["idex/Sign.cpp:2: 1 not taken, 0 with a reason: if (number < 0) return Minus();"])
        self.assertEqual(self.complaints([way(3), way(0)], self.row(1)), [])

    def test_a_reason_for_one_branch_is_none_for_the_next_on_its_line(self):
        self.assertEqual(len(self.complaints([way(3), way(0), way(0), way(3)], self.row(1))), 1)

    def test_a_reason_for_what_is_taken_is_an_error(self):
        said = self.complaints([way(3), way(1)], self.row(1))
        self.assertEqual(said, ["idex/Sign.cpp: a reason for 1, and 0 not taken: if (number < 0) return Minus();"])

    def test_a_reason_for_a_line_that_is_gone_is_an_error(self):
        self.assertEqual(len(self.complaints([way(3), way(1)], "idex/Gone.cpp\tif (a)\t1\tit is gone\n")), 1)

    def test_a_row_without_words_or_a_second_one_is_refused(self):
        for rows in ("idex/Sign.cpp\tif (number < 0) return Minus();\t1\t \n", 2 * self.row(1)):
            with self.assertRaises(ValueError):
                report.read_reasons(rows)


class Figures(unittest.TestCase):
    """The table of the page."""

    def test_each_room_has_a_row(self):
        lines = lines_of((2, [way(3), way(0)]), (3, [way(1), way(1)]))
        allowed = {("idex/Sign.cpp", source[1].strip()): 1}
        rows = report.table(lines, allowed).splitlines()
        self.assertEqual(rows[2], "| `idex/` | 4 | 3 | 1 |")
        self.assertEqual(rows[3:], ["| `%s/` | 0 | 0 | 0 |" % room for room in report.rooms[1:]])


if __name__ == "__main__":
    unittest.main()
