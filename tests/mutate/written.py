"""Writes sources that hold all their mutants at once, and finds the mutant that a compiler complains of."""

import bisect
import collections
import dataclasses
import hashlib
import re

most_in_file = 10_000
mark = re.compile(rb"/\*(<|>)mutant (\d+)\*/")


@dataclasses.dataclass(frozen=True)
class Mutant:
    """One change of one place. Its number is for one run; what it is known by is the rest."""

    number: int
    file: str
    hash: str  # of the file
    line: int
    column: int
    source: str  # the line, with as many before it as make it the only one of its file
    change: str  # with a number, when the line has more of the same

    @property
    def room(self):
        return self.file.split("/")[0]

    @property
    def key(self):
        return self.file, self.hash, str(self.line), str(self.column), self.change

    @property
    def place(self):
        return f"{self.file}:{self.line}:{self.column}"


def told_apart(lines, line):
    """A line by its text, told apart from others of the same text by what stands before them."""
    for before in range(line):
        text = lines[line - 1 - before : line]
        if sum(lines[at : at + len(text)] == text for at in range(len(lines))) == 1:
            break
    return " / ".join(text)


def mutants_of(file, source, points, first):
    """The mutants of a file's points, numbered from the first on: a list for each point."""
    digest = hashlib.sha256(source).hexdigest()[:12]
    lines = [line.strip() for line in source.decode().split("\n")]
    starts = [0] + [found.end() for found in re.finditer(b"\n", source)]
    met = collections.Counter()
    numbered = []
    for point in points:
        line = bisect.bisect_right(starts, point.start)
        column = point.start - starts[line - 1] + 1
        numbered.append([])
        for change, _ in point.alternatives:
            met[line, change] += 1
            if met[line, change] > 1:
                change += f" #{met[line, change]}"
            numbered[-1].append(Mutant(first, file, digest, line, column, told_apart(lines, line), change))
            first += 1
    return numbered


class Writer:
    """Puts the mutants that compile into a source."""

    def __init__(self, source, points, mutants, dropped):
        self.source = source
        self.points = points
        self.mutants = mutants
        self.dropped = dropped
        self.at = 0

    def text(self):
        """The source, with a mark on each side of what a point became."""
        return self.between(0, len(self.source))

    def between(self, start, end):
        """A piece of the source with the points in it, which lie one after the other or inside each other."""
        pieces = []
        while self.at < len(self.points) and self.points[self.at].start < end:
            point, mutants = self.points[self.at], self.mutants[self.at]
            assert start <= point.start and point.end <= end, f"{mutants[0].place}: overlaps another one"
            self.at += 1
            pieces += [self.source[start : point.start], self.point(point, mutants)]
            start = point.end
        return b"".join([*pieces, self.source[start:end]])

    def point(self, point, mutants):
        inner = self.between(point.start, point.end)
        kept = [
            (mutant, text) for mutant, (_, text) in zip(mutants, point.alternatives)
            if mutant.number not in self.dropped
        ]  # fmt: skip
        if not kept:
            return inner
        on = b"mutants::OnAtRunTime" if point.is_constexpr else b"mutants::On"
        if point.is_statement:
            number = b"%d" % kept[0][0].number
            return b"/*<mutant %s*/{ if (!::%s(%s)) %s }/*>mutant %s*/" % (number, on, number, inner, number)
        written = b"static_cast<bool>(%s)" % inner if point.is_bool else b"(%s)" % inner
        for mutant, text in reversed(kept):
            number = b"%d" % mutant.number
            written = b"/*<mutant %s*/(::%s(%s) ? (%s)/*>mutant %s*/ : %s)" % (
                number, on, number, text.encode(), number, written,
            )  # fmt: skip
        return written


def compiled(name, text):
    """What of a written source a compiler sees. Its lines are counted from behind the first ones; of headers, which the
    tests include too, no warnings are told."""
    quiet = b"#pragma GCC system_header\n" if name.endswith(".h") else b""
    return quiet + b'#include "on.h"\n#line 1\n' + mark.sub(b"", text)


def mutants_at(text, line, column):
    """The mutant that a compiler means with a place: the innermost around it, else all on that line."""
    lines = mark.sub(b"", text).split(b"\n")
    begin = sum(len(before) + 1 for before in lines[: line - 1])
    place = begin + column - 1
    removed, around, on_line = 0, [], []
    for found in mark.finditer(text):
        at = found.start() - removed
        removed += len(found[0])
        number = int(found[2])
        if begin <= at <= begin + len(lines[line - 1]):
            on_line.append(number)
        if at <= place:
            if found[1] == b"<":
                around.append(number)
            else:
                around.remove(number)
    return around[-1:] or sorted(set(on_line))
