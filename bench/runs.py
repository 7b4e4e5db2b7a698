"""The drawings to measure with, and runs of programs on them: scripts/bench calls."""
import hashlib
import os
import pty
import re
import shutil
import statistics
import subprocess
import sys
import threading
import time
from dataclasses import dataclass, fields
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
BUILD = ROOT / "build" / "release"
FOLDER = ROOT / "build" / "bench"
OUTPUTS = FOLDER / "out"
CLI = BUILD / "cli" / "korvande-cli"
FLOOR = BUILD / "bench" / "korvande-floor"
GENERATE = BUILD / "bench" / "korvande-generate"
MICRO = BUILD / "bench" / "korvande-benchmarks"


@dataclass(frozen=True)
class Mode:
    name: str
    option: str
    source: str  # the extensions of the two files
    target: str
    floor: str  # the floor program's word for the direction


MODES = [Mode("IDEX → NEN1878", "idex-nen1878", "idx", "sfn", "i2n"),
         Mode("IDEX → SUF2", "idex-suf2", "idx", "sf2", "i2n"),
         Mode("NEN1878 → IDEX", "nen1878-idex", "sfn", "idx", "n2i"),
         Mode("SUF2 → IDEX", "suf2-idex", "sf2", "idx", "n2i")]


class Drawing:
    """One generated drawing in its three formats, with the control table that knows its codes."""

    def __init__(self, objects, rows=300):
        self.objects, self.rows = objects, rows
        self.folder = FOLDER / ("%d-%d" % (objects, rows))
        self.table = self.folder / "p.nst"
        self._make()

    def file(self, extension):
        return self.folder / ("in." + extension)

    def megabytes(self, mode):
        return self.file(mode.source).stat().st_size / 1e6

    def _make(self):
        """Generates it, unless the same generator has done so before."""
        made = self.folder / "made"
        generator = hashlib.sha256()
        for source in sorted((ROOT / "bench").glob("generate*")) + [ROOT / "bench" / "Output.h"]:
            generator.update(source.read_bytes())
        if not made.exists() or made.read_text().splitlines()[0] != generator.hexdigest():
            shutil.rmtree(self.folder, ignore_errors=True)
            self.folder.mkdir(parents=True)
            counts = subprocess.run(
                [GENERATE, str(self.objects), self.file("idx"), "--nen", self.file("sfn"), "--suf", self.file("sf2"),
                 "--rows", str(self.rows), "--table", self.table], check=True, capture_output=True, text=True).stdout
            made.write_text(generator.hexdigest() + "\n" + counts)
        numbers = re.search(r"(\d+) points, (\d+) line strings, (\d+) edges, (\d+) texts", made.read_text())
        self.points, self.lines, self.edges, self.texts = map(int, numbers.groups())

    def expected(self, mode):
        """The counts that the console program must report: a text read brings a line, its edge and a second point."""
        more = self.texts if mode.target == "idx" else 0
        return "%d punten, %d lijnstrings, %d lijnsegmenten, %d teksten, 0 onbekende objecten, 0 fouten" % (
            self.points + more, self.lines + more, self.edges + more, self.texts)


def environment():
    return {name: value for name, value in os.environ.items() if name != "KORVANDE_DRIVE_D"}


def translation(drawing, mode, table=None):
    """The console program's command, and what it must print."""
    output = OUTPUTS / ("out." + mode.target)
    command = [CLI, "vertaal", "--modus", mode.option, "--project", table or drawing.table, drawing.file(mode.source),
               output]
    return command, "%s: %s\n" % (output, drawing.expected(mode))


def floor_translation(drawing, mode, floor=FLOOR):
    return [floor, mode.floor, drawing.file(mode.source), OUTPUTS / ("floor." + mode.target)], ""


@dataclass
class Times:
    cpu: float  # seconds of the processor, the program's and the system's on its behalf
    own: float  # of those, the program's
    wall: float


def remove_outputs():
    """A run that replaces a file may wait for the disk: file systems bring the old one to safety first."""
    shutil.rmtree(OUTPUTS, ignore_errors=True)
    OUTPUTS.mkdir(parents=True)


def run(job, terminal=None):
    """Runs a command to its end, checks what it printed and tells what it took."""
    command, expected = job
    remove_outputs()
    start = time.perf_counter()
    process = subprocess.Popen([str(word) for word in command], env=environment(), stdin=subprocess.DEVNULL,
                               stdout=subprocess.PIPE, stderr=subprocess.DEVNULL if terminal is None else terminal)
    printed = process.stdout.read().decode()
    process.stdout.close()
    _, status, usage = os.wait4(process.pid, 0)
    wall = time.perf_counter() - start
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0 or printed != expected:
        sys.exit("bench: %s\nended with status %d and printed\n%sinstead of\n%s" % (
            " ".join(map(str, command)), process.returncode, printed, expected))
    return Times(usage.ru_utime + usage.ru_stime, usage.ru_utime, wall)


def run_on_terminal(job):
    """The same with a terminal for the progress, which somebody reads."""
    reader, terminal = pty.openpty()

    def read_all():
        try:
            while os.read(reader, 65536):
                pass
        except OSError:
            pass  # the other end is closed

    watcher = threading.Thread(target=read_all)
    watcher.start()
    times = run(job, terminal)
    os.close(terminal)
    watcher.join()
    os.close(reader)
    return times


def medians(runs, *jobs, start=run):
    """Runs the jobs in turn, so many times, each second time in the other order; the median times of each.

    A round before is not counted: a virtual machine has its host give it memory that was not in use of late, which may
    take several times as long as using it.
    """
    starts = start if isinstance(start, tuple) else (start,) * len(jobs)
    taken = [[] for _ in jobs]
    for i in range(-1, runs):
        order = range(len(jobs)) if i % 2 == 0 else reversed(range(len(jobs)))
        for j in order:
            times = starts[j](jobs[j])
            if i >= 0:
                taken[j].append(times)
    return [Times(*(statistics.median(getattr(t, field.name) for t in times) for field in fields(Times)))
            for times in taken]


def peak_memory(job):
    """The most memory that the command ever had, in bytes; None without GNU time."""
    if shutil.which("time") is None:
        return None
    result = subprocess.run(["time", "-f", "%M"] + [str(word) for word in job[0]], env=environment(), check=True,
                            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
    return int(result.stderr.split()[-1]) * 1024


def instructions(job):
    """How many instructions the command takes; None without valgrind."""
    if shutil.which("valgrind") is None:
        return None
    result = subprocess.run(["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null"]
                            + [str(word) for word in job[0]], env=environment(), check=True, stdin=subprocess.DEVNULL,
                            stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
    return int(re.search(r"Collected : (\d+)", result.stderr).group(1))
