"""What became of each mutant, kept from run to run; and the mutants that change nothing, with the reason."""

import hashlib

import build
import runs

results = build.folder / "results"
equivalents = build.root / "tests/mutate/equivalent.tsv"
alive = ("survived", "unreached")
passed = "passed"  # so many stages of the tests, and is not done


def fingerprint(room):
    """Of the tests that a room's mutants are tried on: what survived others may not survive these."""
    folders = [room, *runs.whole, "golden", "problems", "support"]
    digest = hashlib.sha256()
    for folder in folders:
        for path in sorted((build.root / "tests" / folder).rglob("*")):
            if path.is_file():
                digest.update(path.read_bytes())
    return digest.hexdigest()[:12]


class Book:
    """A line for each mutant that was tried: its file, the hash of it, line, column, change, outcome, who killed it and
    the tests. It counts as long as its file stays as it is, and what survived as long as the tests do."""

    def __init__(self):
        self.tests = {room: fingerprint(room) for room in build.rooms}
        self.outcomes = {}
        if results.exists():
            with open(results, encoding="utf-8") as file:
                for line in file:
                    *key, outcome, by, tests = line.rstrip("\n").split("\t")
                    self.outcomes[tuple(key)] = outcome, by, tests

    def outcome(self, mutant):
        """What became of a mutant, and by whom; None when it is to be tried."""
        outcome, by, tests = self.outcomes.get(mutant.key, (passed, "", ""))
        if outcome == passed or (outcome in alive and tests != self.tests[mutant.room]):
            return None
        return outcome, by

    def stages(self, mutant):
        """How many stages of these tests a mutant that is not done has passed."""
        outcome, by, tests = self.outcomes.get(mutant.key, ("", "", ""))
        return int(by) if outcome == passed and tests == self.tests[mutant.room] else 0

    def write(self, mutant, outcome, by):
        self.outcomes[mutant.key] = outcome, by, self.tests[mutant.room]
        with open(results, "a", encoding="utf-8") as file:
            file.write("\t".join([*mutant.key, *self.outcomes[mutant.key]]) + "\n")


class Equivalents:
    """Rows of file, line of source (with those before it that tell it from others), change and reason."""

    def __init__(self):
        rows = [line.split("\t") for line in equivalents.read_text(encoding="utf-8").splitlines() if line[:1] != "#"]
        wrong = ["\t".join(row) for row in rows if len(row) != 4 or not row[3].strip()]
        if wrong:
            raise SystemExit("\n".join([f"{equivalents}: four columns are needed, the last a reason:", *wrong]))
        self.rows = {tuple(row[:3]): row[3] for row in rows}

    def reason(self, mutant):
        return self.rows.get((mutant.file, mutant.source, mutant.change))

    def without_mutant(self, mutants):
        """The rows that no mutant fits any more."""
        fitting = {(mutant.file, mutant.source, mutant.change) for mutant in mutants}
        return [row for row in self.rows if row not in fitting]
