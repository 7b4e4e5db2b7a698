"""Tells which branches the tests take, from what gcovr has counted, and holds it against the reasons and the figures that
are written down. A reason is a line of reasons.tsv: file, source line, why no test takes its branches both ways."""

import collections
import json
import pathlib
import re
import sys

root = pathlib.Path(__file__).resolve().parents[2]
rooms = ("idex", "nensuf", "project", "translation", "run")
reasons_file = root / "tests/coverage/reasons.tsv"
page = root / "docs/reliability.md"


def read_reasons():
    reasons = {}
    for line in reasons_file.read_text(encoding="utf-8").splitlines():
        if line and not line.startswith("#"):
            file, source, reason = line.split("\t")
            reasons[file, source] = reason
    return reasons


def untaken_lines():
    """The counts of each room, and the lines with branches that were not taken: file, number, text, how many."""
    counts = collections.defaultdict(lambda: [0, 0])  # all, taken
    lines = []
    for file in json.loads((root / "build/coverage/branches.json").read_text())["files"]:
        room = file["file"].split("/")[0]
        source = (root / file["file"]).read_text(encoding="utf-8").splitlines()
        for line in file["lines"]:
            branches = line["branches"]
            missed = sum(branch["count"] == 0 for branch in branches)
            counts[room][0] += len(branches)
            counts[room][1] += len(branches) - missed
            if missed:
                number = line["line_number"]
                lines.append((file["file"], number, source[number - 1].strip(), missed))
    return counts, lines


def table(counts, lines, reasons):
    """The figures as a page has them."""
    rows = ["| room | branches | taken | with a reason |", "|---|--:|--:|--:|"]
    for room in rooms:
        of_all, taken = counts[room]
        with_reason = sum(missed for file, _, text, missed in lines if file.split("/")[0] == room and (file, text) in reasons)
        rows.append("| `%s/` | %d | %d | %d |" % (room, of_all, taken, with_reason))
    return "\n".join(rows)


def main():
    counts, lines = untaken_lines()
    reasons = read_reasons()
    without = [line for line in lines if line[:1] + line[2:3] not in reasons]
    for file, number, text, missed in without:
        print("%s:%d: %d not taken: %s" % (file, number, missed, text))
    if "--list" in sys.argv:
        return 0
    unused = set(reasons) - {(file, text) for file, _, text, _ in lines}
    for file, text in sorted(unused):
        print("%s: a reason for what is taken: %s" % (file, text))
    figures = table(counts, lines, reasons)
    print("\n" + figures)
    written = re.search(r"\| room \| branches .*?(?=\n\n)", page.read_text(encoding="utf-8"), re.DOTALL)
    is_written = written is not None and written.group() == figures
    if not is_written:
        print("docs/reliability.md has other figures")
    return 0 if not without and not unused and is_written else 1


sys.exit(main())
