"""Writes the mutants of the rooms into a folder that a build takes its sources from, and drops those it cannot take."""

import hashlib
import json
import pathlib
import re
import shlex

import points
import written

root = pathlib.Path(__file__).resolve().parents[2]
rooms = ("project", "translation", "idex", "nensuf")
folder = root / "build/mutate"
sources = folder / "sources"
commands = folder / "compile_commands.json"
complaint = re.compile(r"^(?:\S*/)?sources/(\S+?):(\d+):(\d+): (?:error: |  required from here)", re.M)


def files():
    """The sources and headers of the rooms, by their names from the root."""
    found = (path for room in rooms for path in (root / room).iterdir() if path.suffix in (".cpp", ".h"))
    return sorted(str(path.relative_to(root)) for path in found)


def arguments():
    """How a compiler finds what the rooms include, as CMake tells it."""
    entries = json.loads(commands.read_text())
    words = shlex.split(next(entry["command"] for entry in entries if "/nensuf/" in entry["file"]))
    kept = [word for word in words if re.match(r"-(I|std|D)", word) and str(sources) not in word]
    return kept + [word for at, word in enumerate(words) if at and words[at - 1] == "-isystem"]


def read_points():
    """The points of all files; those of a file that has not changed, nor the search for points, are remembered."""
    search = (root / "tests/mutate/points.py").read_bytes()
    kept = folder / "points.json"
    remembered = json.loads(kept.read_text()) if kept.exists() else {}
    names = files()
    hashes = {name: hashlib.sha256(search + (root / name).read_bytes()).hexdigest() for name in names}
    known = {name: remembered[name] for name in names if remembered.get(name, {}).get("hash") == hashes[name]}
    # A header is found in any source that includes it.
    for name in sorted(names, key=lambda name: name.endswith(".h")):
        if name in known:
            continue
        wanted = {str(root / other): other for other in names if other not in known}
        language = ["-x", "c++"] if name.endswith(".h") else []
        found = points.points_of_unit(root / name, arguments() + language, set(wanted))
        for path, its in found.items():
            known[wanted[path]] = {"hash": hashes[wanted[path]], "points": [vars(point) for point in its]}
        known.setdefault(name, {"hash": hashes[name], "points": []})
    kept.write_text(json.dumps(known))
    return {name: [points.Point(**point) for point in known[name]["points"]] for name in names}


class Mutants:
    """All mutants of the rooms, and the written sources."""

    def __init__(self):
        self.by_file = {}
        self.points = read_points()
        for at, (name, its) in enumerate(self.points.items()):
            source = (root / name).read_bytes()
            first = at * written.most_in_file + 1
            self.by_file[name] = written.mutants_of(name, source, its, first)
        self.size = len(self.points) * written.most_in_file + 1
        self.dropped_file = folder / "dropped.json"
        dropped = json.loads(self.dropped_file.read_text()) if self.dropped_file.exists() else []
        dropped = {tuple(key) for key in dropped}
        self.dropped = {mutant.number for mutant in self.every() if mutant.key in dropped}

    def every(self):
        return [mutant for lists in self.by_file.values() for its in lists for mutant in its]

    def compiled(self):
        """Those that are in the programs."""
        return [mutant for mutant in self.every() if mutant.number not in self.dropped]

    def text(self, name):
        source = (root / name).read_bytes()
        return written.Writer(source, self.points[name], self.by_file[name], self.dropped).text()

    def write(self):
        """Writes what has changed, and removes what is of no file any more."""
        self.put(sources / "on.h", (root / "tests/mutate/on.h").read_bytes())
        for name in self.points:
            self.put(sources / name, written.compiled(name, self.text(name)))
        for path in sources.glob("*/*"):
            if str(path.relative_to(sources)) not in self.points:
                path.unlink()
        dropped = [mutant.key for mutant in self.every() if mutant.number in self.dropped]
        self.dropped_file.write_text(json.dumps(dropped))

    @staticmethod
    def put(path, content):
        if not path.exists() or path.read_bytes() != content:
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(content)

    def drop(self, log):
        """Drops the mutants that a compiler complained of; how many those are."""
        numbers = set()
        for name, line, column in set(complaint.findall(log)):
            numbers |= set(written.mutants_at(self.text(name), int(line), int(column)))
        new = numbers - self.dropped
        self.dropped |= new
        return len(new)
