"""Tells which branches the tests take, from what gcovr has counted, and holds it against the reasons and the figures that
are written down. A row of reasons.tsv: file, source line, how many branches there no test takes, and why."""

import collections
import json
import pathlib
import sys

root = pathlib.Path(__file__).resolve().parents[2]
rooms = ("idex", "nensuf", "project", "translation", "run")
counted = root / "build/coverage/branches.json"
reasons_file = root / "tests/coverage/reasons.tsv"
page = root / "docs/reliability.md"

Line = collections.namedtuple("Line", "file number source branches taken")


def of_source(branches):
    """The counts of the branches that the source has: not those of a call that may throw, which comes back or does
    not. The compiler puts the way of an exception behind the usual one."""
    behind = [*branches[1:], {"throw": False}]
    return [branch["count"] for branch, other in zip(branches, behind) if not branch["throw"] and not other["throw"]]


def lines_of(told, read):
    """The lines with branches; read gives the source lines of a file."""
    for file in told["files"]:
        sources = read(file["file"])
        for line in file["lines"]:
            counts = of_source(line["branches"])
            number = line["line_number"]
            if counts:
                taken = sum(count > 0 for count in counts)
                yield Line(file["file"], number, sources[number - 1].strip(), len(counts), taken)


def read_reasons(text):
    """How many untaken branches the reasons are for, by file and source line."""
    allowed = {}
    for row in text.splitlines():
        if not row.startswith("#"):
            file, source, untaken, reason = row.split("\t")
            if not reason.strip() or (file, source) in allowed:
                raise ValueError("twice, or without a reason: " + row)
            allowed[file, source] = int(untaken)
    return allowed


def complaints(lines, allowed):
    """What was not taken without a reason, and reasons for what was."""
    untaken = collections.Counter()
    numbers = {}
    for line in lines:
        key = line.file, line.source
        untaken[key] += line.branches - line.taken
        if line.branches > line.taken:
            numbers.setdefault(key, line.number)
    for key in sorted(untaken.keys() | allowed.keys(), key=lambda key: (key[0], numbers.get(key, 0), key)):
        file, source = key
        if untaken[key] > allowed.get(key, 0):
            yield "%s:%d: %d not taken, %d with a reason: %s" % (
                file, numbers[key], untaken[key], allowed.get(key, 0), source)  # fmt: skip
        elif untaken[key] < allowed.get(key, 0):
            yield "%s: a reason for %d, and %d not taken: %s" % (file, allowed[key], untaken[key], source)


def table(lines, allowed):
    """The figures, as a page has them."""
    branches, taken, explained = collections.Counter(), collections.Counter(), collections.Counter()
    for line in lines:
        room = line.file.split("/")[0]
        branches[room] += line.branches
        taken[room] += line.taken
    for (file, _), untaken in allowed.items():
        explained[file.split("/")[0]] += untaken
    rows = ["| room | branches | taken | with a reason |", "|---|--:|--:|--:|"]
    rows += ["| `%s/` | %d | %d | %d |" % (room, branches[room], taken[room], explained[room]) for room in rooms]
    return "\n".join(rows) + "\n"


def main():
    lines = list(lines_of(json.loads(counted.read_text()), lambda name: (root / name).read_text("utf-8").splitlines()))
    allowed = read_reasons(reasons_file.read_text("utf-8"))
    found = list(complaints(lines, allowed))
    if "--list" not in sys.argv:
        figures = table(lines, allowed)
        print(figures)
        if figures not in page.read_text("utf-8"):
            found.append("docs/reliability.md has other figures")
    for complaint in found:
        print(complaint)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
