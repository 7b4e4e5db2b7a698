"""Runs the tests of the rooms, with one mutant on or watched for the mutants they come by."""

import concurrent.futures
import json
import math
import os
import re
import resource
import signal
import subprocess
import tempfile

import build

programs = {
    "project": ["project"],
    "translation": ["translation"],
    "idex": ["idex"],
    "nensuf": ["nensuf", "nensuf_import"],
}
# Whole translations, for what the tests of its own room leave alive.
whole = {"cli": "Golden/*:Inputs/ProblemKinds*", "run": "*-BadInput*:Damage*:Threads*:Samples/*"}
# Quick tests, by the seconds of a processor, are tried first: most mutants never meet the others.
quick = 0, 0.1
slow = 0.1, float("inf")
any_time = 0, float("inf")

most_memory = 4 << 30  # bytes of addresses
most_in_file = 256 << 20
least_work = 2  # seconds of a processor that any process may take, however long a busy machine makes them
most_time = 600  # seconds
memory_folder = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None


def program(name):
    folder = {"nensuf_import": "nensuf"}.get(name, name)
    return build.folder / "tests" / folder / f"test_{name}"


def limit(seconds):
    resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds + 1))
    resource.setrlimit(resource.RLIMIT_AS, (most_memory, most_memory))
    resource.setrlimit(resource.RLIMIT_FSIZE, (most_in_file, most_in_file))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def work():
    """The seconds of a processor that ended processes took. Of tests that are watched at the same time, each is given
    the work of those that end meanwhile: no test is taken for a quick one that is none."""
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    return used.ru_utime + used.ru_stime


def run(name, tests, seconds, **variables):
    """Runs tests of a program until one fails: what it printed, and how it ended; None when it took more than these
    seconds of a processor, or never ended."""
    seconds = math.ceil(max(least_work, seconds))
    with tempfile.TemporaryDirectory(dir=memory_folder) as place:
        environment = os.environ | {
            "GTEST_FAIL_FAST": "1", "GTEST_BRIEF": "1", "GTEST_COLOR": "no", "LC_ALL": "C", "TMPDIR": place,
            "GTEST_FILTER": tests if isinstance(tests, str) else ":".join(tests), **variables,
        }  # fmt: skip
        with tempfile.TemporaryFile(dir=place) as printed:
            process = subprocess.Popen(
                [program(name)], env=environment, cwd=place, stdin=subprocess.DEVNULL, stdout=printed,
                stderr=subprocess.STDOUT, start_new_session=True, preexec_fn=lambda: limit(seconds),
            )  # fmt: skip
            try:
                status = process.wait(most_time)
                if status == -signal.SIGXCPU:
                    status = None
            except subprocess.TimeoutExpired:
                status = None
            # What it started ends with it.
            try:
                os.killpg(process.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
            process.wait()
            printed.seek(0)
            return printed.read().decode(errors="replace"), status


def names_of(name):
    """The tests of a program that a mutant is tried on."""
    told = subprocess.run(
        [program(name), "--gtest_list_tests", f"--gtest_filter={whole.get(name, '*')}"],
        capture_output=True, text=True, check=True,
    ).stdout  # fmt: skip
    names, suite = [], ""
    for line in told.splitlines():
        if line.startswith("  "):
            names.append(suite + line.split()[0])
        elif re.match(r"\S+\.(\s|$)", line):
            suite = line.split()[0]
    return [test for test in names if "DISABLED_" not in test]


class Tests:
    """The tests of the programs: how long each takes, and which mutants it comes by."""

    def __init__(self, size, jobs):
        self.size = size
        self.jobs = jobs
        self.seconds = {}  # of a processor, by program and test
        self.reaching = {}  # by program: the tests of each mutant

    def watch(self, name):
        """Runs every test of a program once, unmutated; remembered until the program is built anew."""
        if name in self.reaching:
            return
        kept = build.folder / f"reached-{name}.json"
        stamp = program(name).stat().st_mtime_ns
        told = json.loads(kept.read_text()) if kept.exists() else {}
        if told.get("stamp") != stamp:
            print(f"Watching the tests of {name}", flush=True)
            with concurrent.futures.ThreadPoolExecutor(self.jobs) as pool:
                names = names_of(name)
                watched = dict(zip(names, pool.map(lambda test: self.watch_test(name, test), names)))
            told = {"stamp": stamp, "tests": watched}
            kept.write_text(json.dumps(told))
        self.reaching[name] = {}
        for test, (seconds, numbers) in told["tests"].items():
            self.seconds[name, test] = seconds
            for number in numbers:
                self.reaching[name].setdefault(number, []).append(test)

    def watch_test(self, name, test):
        with tempfile.NamedTemporaryFile(dir=memory_folder) as reached:
            reached.truncate(self.size)
            before = work()
            printed, status = run(name, test, 120, KORVANDE_REACHED=reached.name)
            seconds = work() - before
            if status != 0:
                raise SystemExit(f"{test} of {name} fails without a mutant:\n{printed}")
            return seconds, [found.start() for found in re.finditer(b"\x01", reached.read())]

    def reaches(self, mutant):
        return any(mutant.number in reached for reached in self.reaching.values())

    def try_mutant(self, mutant, names, takes):
        """Runs what reaches a mutant and takes so long at least, and less than that: what became of it, and by which
        test; the first program that kills it ends it. None when it is alive."""
        for name in names:
            tests = self.reaching[name].get(mutant.number, [])
            tests = [test for test in tests if takes[0] <= self.seconds[name, test] < takes[1]]
            if not tests:
                continue
            seconds = 10 * sum(self.seconds[name, test] for test in tests)
            printed, status = run(name, tests, seconds, KORVANDE_MUTANT=str(mutant.number))
            if status is None:
                return "timeout", name
            if status != 0:
                failed = re.search(r"^\[  FAILED  \] ([^\s,]+)", printed, re.M)
                return "killed", f"{name}.{failed[1]}" if failed else f"{name}: status {status}"
        return None
