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

killed = ("killed", "timeout")


def call(*words):
    """Runs a program: what it printed, and whether it succeeded."""
    result = subprocess.run(words, cwd=build.root, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                            check=False)  # fmt: skip
    return result.stdout, result.returncode == 0


def make(mutants, programs, jobs):
    """Builds test programs, with all mutants but those that do not compile."""
    configure = ["cmake", "--preset", "mutate"]
    targets = [f"test_{name}" for name in programs]
    words = ["cmake", "--build", "--preset", "mutate", "--parallel", str(jobs), "--target", *targets, "--", "-k", "0"]
    while True:
        mutants.write()
        log, success = call(*configure)
        if success:
            log, success = call(*words)
        if success:
            return
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


def tried(left, mutants, notes, equal, jobs, anew=False):
    """Tries those that are left, and writes down what became of each. Equivalents meet the tests of their room, none of
    which may notice them."""
    tests = runs.Tests(mutants.size, jobs)
    for stage in range(3):
        if stage == 2:
            left = [mutant for mutant in left if not equal.reason(mutant)]
        if not left:
            return
        programs = sorted({name for mutant in left for name in stages(mutant.room)[stage][0]})
        if stage != 1:
            make(mutants, programs, jobs)
        for name in programs:
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
                if outcome not in killed and equal.reason(mutant):
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
        if not book.results.exists():
            raise SystemExit("scripts/mutate has tried none yet")
        mutants = build.Mutants()
        of_rooms = [mutant for mutant in mutants.compiled() if mutant.room in options.rooms]
        notes = book.Book()
        tell(survivors(of_rooms, notes, equal), notes)
        count(of_rooms, notes, equal)
        return

    if not build.commands.exists():
        log, success = call("cmake", "--preset", "mutate")
        if not success:
            raise SystemExit(log)
    mutants = build.Mutants()
    of_rooms = [mutant for mutant in mutants.compiled() if mutant.room in options.rooms]
    notes = book.Book()
    if options.sample:
        of_rooms = sampled(of_rooms, options.sample)
        tried(of_rooms, mutants, notes, equal, options.jobs, anew=True)
    else:
        left = [mutant for mutant in of_rooms if notes.outcome(mutant) is None]
        tried(left, mutants, notes, equal, options.jobs)
    alive = survivors(of_rooms, notes, equal)
    tell(alive, notes)
    count(of_rooms, notes, equal)
    wrong = ["\t".join(["no mutant for this row of equivalents", *row])
             for row in equal.without_mutant(mutants.compiled())]  # fmt: skip
    for mutant in of_rooms:
        outcome, by = notes.outcome(mutant) or ("", "")
        if outcome in killed and equal.reason(mutant):
            wrong.append(f"{mutant.place}: no equivalent, as {by} tells: {mutant.change}")
    for line in wrong:
        print(line)
    if alive or wrong:
        sys.exit(1)


if __name__ == "__main__":
    main()
