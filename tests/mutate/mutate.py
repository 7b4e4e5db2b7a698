"""Builds all mutants of the rooms into one build, tries them on the tests, and tells which survive."""

import argparse
import collections
import concurrent.futures
import hashlib
import subprocess
import sys

import book
import build
import runs

targets = ["korvande-cli", *(f"test_{name}" for names in runs.programs.values() for name in names),
           *(f"test_{name}" for name in runs.whole)]  # fmt: skip


def call(*words):
    """Runs a program: what it printed, and whether it succeeded."""
    result = subprocess.run(words, cwd=build.root, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                            check=False)  # fmt: skip
    return result.stdout, result.returncode == 0


def built(jobs):
    """The mutants, all in the programs but those that do not compile."""
    configure = ["cmake", "--preset", "mutate"]
    make = ["cmake", "--build", "--preset", "mutate", "--parallel", str(jobs), "--target", *targets, "--", "-k", "0"]
    log, success = call(*configure)
    if not success:
        raise SystemExit(log)
    mutants = build.Mutants()
    while True:
        mutants.write()
        log, success = call(*configure)
        if success:
            log, success = call(*make)
        if success:
            return mutants
        dropped = mutants.drop(log)
        if dropped == 0:
            raise SystemExit(log)
        print(f"{dropped} mutants do not compile", flush=True)


def sampled(mutants, count):
    """So many of each room, chosen by what they are: the same ones as long as their lines stay."""
    def draw(mutant):
        return hashlib.sha256("\t".join([mutant.file, mutant.source, mutant.change]).encode()).digest()

    chosen = []
    for room in build.rooms:
        its = sorted((mutant for mutant in mutants if mutant.room == room), key=draw)
        chosen += its[: count // len(build.rooms)]
    return chosen


def stages(room):
    """What a mutant of a room is tried on, one after the other: programs, and how long the tests take."""
    return [(runs.programs[room], runs.quick), (runs.programs[room], runs.slow), (runs.whole, runs.any_time)]


def tried(mutants, notes, tests, jobs, anew=False):
    """Tries mutants, and writes down what became of each."""
    left = mutants
    for stage in range(3):
        for name in sorted({name for mutant in left for name in stages(mutant.room)[stage][0]}):
            tests.watch(name)
        passed = [] if anew else [mutant for mutant in left if notes.stages(mutant) > stage]
        trying = left if anew else [mutant for mutant in left if notes.stages(mutant) <= stage]
        alive = []
        with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
            outcomes = pool.map(lambda mutant: tests.try_mutant(mutant, *stages(mutant.room)[stage]), trying)
            for mutant, outcome in zip(trying, outcomes):
                notes.write(mutant, *(outcome or (book.passed, str(stage + 1))))
                if outcome is None:
                    alive.append(mutant)
        left = passed + alive
    for mutant in left:
        notes.write(mutant, "survived" if tests.reaches(mutant) else "unreached", "")


def count(mutants, notes, equal):
    """Prints what became of the mutants of each room."""
    columns = ("mutants", "killed", "by whole runs", "time over", "equivalent", "survived", "unreached", "to be tried")
    print(f"{'room':<12}" + "".join(f"{column:>15}" for column in columns))
    for room in build.rooms:
        found = collections.Counter()
        for mutant in mutants:
            if mutant.room == room:
                outcome, by = notes.outcome(mutant) or ("to be tried", "")
                if outcome in book.alive and equal.reason(mutant):
                    outcome = "equivalent"
                elif outcome == "killed" and by.split(".")[0].split(":")[0] in runs.whole:
                    outcome = "by whole runs"
                found["mutants"] += 1
                found[{"timeout": "time over"}.get(outcome, outcome)] += 1
        if found:
            print(f"{room:<12}" + "".join(f"{found[column]:>15}" for column in columns))


def survivors(mutants, notes, equal):
    return [
        mutant for mutant in mutants if (notes.outcome(mutant) or [""])[0] in book.alive and not equal.reason(mutant)
    ]


def tell(mutants, notes):
    for mutant in mutants:
        print(f"{mutant.place}: {notes.outcome(mutant)[0]}\n    {mutant.source}\n    {mutant.change}")


def main():
    parser = argparse.ArgumentParser(prog="scripts/mutate")
    parser.add_argument("--list", action="store_true")
    parser.add_argument("--sample", type=int)
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("rooms", nargs="*", default=build.rooms)
    options = parser.parse_args()
    if set(options.rooms) - set(build.rooms):
        parser.error(f"the rooms are {', '.join(build.rooms)}")

    equal = book.Equivalents()
    if options.list:
        mutants = build.Mutants()
        of_rooms = [mutant for mutant in mutants.compiled() if mutant.room in options.rooms]
        notes = book.Book()
        tell(survivors(of_rooms, notes, equal), notes)
        count(of_rooms, notes, equal)
        return

    mutants = built(options.jobs)
    of_rooms = [mutant for mutant in mutants.compiled() if mutant.room in options.rooms]
    notes = book.Book()
    tests = runs.Tests(mutants.size, options.jobs)
    if options.sample:
        of_rooms = sampled(of_rooms, options.sample)
        tried(of_rooms, notes, tests, options.jobs, anew=True)
    else:
        tried([mutant for mutant in of_rooms if notes.outcome(mutant) is None], notes, tests, options.jobs)
    alive = survivors(of_rooms, notes, equal)
    tell(alive, notes)
    count(of_rooms, notes, equal)
    stale = equal.without_mutant(mutants.compiled())
    for row in stale:
        print("no mutant for this row of equivalents: " + "\t".join(row))
    if alive or stale:
        sys.exit(1)


if __name__ == "__main__":
    main()
