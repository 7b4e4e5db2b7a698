"""What many small files cost, and how far a translation is from a copy of its bytes: bench/measure.py calls."""
import os
import shutil
import statistics
import subprocess
import time

from runs import CLI, FOLDER, MODES, OUTPUTS, Drawing, environment, medians, remove_outputs, run, translation

FILES = 10_000  # in one folder
SAMPLE = 300  # of them, each translated by a process of its own
BATCH = 400  # files in one batch
AT_A_TIME = 200  # files of so many objects, translated one and two at a time
OBJECTS = 5_000


def folder_of_files(drawing, name="files", files=FILES):
    """A folder with so many copies of a drawing, which are made once."""
    folder = FOLDER / name
    if not (folder / "made").exists():
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir(parents=True)
        for number in range(files):
            shutil.copyfile(drawing.file("idx"), folder / ("f%d.idx" % number))
        (folder / "made").touch()
    return folder


def processor_time(command):
    """Seconds of the processor that a command takes, which must end with status 0."""
    process = subprocess.Popen([str(word) for word in command], env=environment(), stdin=subprocess.DEVNULL,
                               stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        raise SystemExit("bench: %s\nended with status %d" % (" ".join(map(str, command)), process.returncode))
    return usage.ru_utime + usage.ru_stime


def process_for_each(drawing):
    """Milliseconds of a file, translated into the folder of ten thousand by a process of its own."""
    folder, taken = folder_of_files(drawing), []
    for number in range(SAMPLE):
        name = folder / ("f%d" % number)
        command = [CLI, "vertaal", "--modus", MODES[0].option, "--project", drawing.table, "--stil",
                   name.with_suffix(".idx"), name.with_suffix(".sfn")]
        taken.append(processor_time(command))
    for made in list(folder.glob("*.sfn")) + list(folder.glob("*.[lL][oO][gG]")):
        made.unlink()
    return 1000 * statistics.mean(taken)


def file_of_batch(drawing, table):
    """Milliseconds of a file in a batch with this control table, reading the table taken off."""
    folder = folder_of_files(drawing)

    def batch(files):
        names = [folder / ("f%d.idx" % number) for number in range(files)]
        times = []
        for _ in range(5):
            remove_outputs()
            times.append(processor_time([CLI, "vertaal", "--modus", MODES[0].option, "--project", table, "--stil",
                                         "--taken", "1", "--uitvoermap", OUTPUTS] + names))
        return statistics.median(times)

    return 1000 * (batch(BATCH) - batch(1)) / (BATCH - 1)


def with_more_rows(table, rows):
    """The control table with so many rows more in each of its three tables, of codes that no drawing has."""
    more = "\r\n".join("X%05d = %s" % (number, "Q%02d X%02d, DUMMY, MEER, 0, 0, 0" % (number % 89, number % 97))
                       for number in range(rows)).encode()
    lines = table.read_bytes().split(b"\r\n")
    sections = [number for number, line in enumerate(lines) if line in (b"[Points]", b"[Lines]", b"[Texts]")]
    for number in reversed(sections):
        lines.insert(number + 2, more)  # behind the row of unknown codes
    large = FOLDER / "large.nst"
    large.write_bytes(b"\r\n".join(lines))
    return large


def of_small_files(few):
    """Rows of the goals."""
    yield ("%d objects, %s files in one folder, a process each: processor time a file" % (few.objects, format(FILES, ",")),
           "≤ 6 ms", "4 ms", "%.1f ms" % process_for_each(few))
    large = with_more_rows(few.table, 20_000)
    yield ("%d objects, batch of %d files, a control table of 3 × 20,000 rows: processor time a file"
           % (few.objects, BATCH), "≤ 1 ms", "0.6 ms",
           "%.2f ms (of 300 rows: %.2f ms)" % (file_of_batch(few, large), file_of_batch(few, few.table)))


def two_at_a_time(runs):
    """A row of the goals: how many times as fast a batch is with two workers as with one."""
    drawing = Drawing(OBJECTS)
    folder = folder_of_files(drawing, "batch", AT_A_TIME)
    times = {workers: [] for workers in (1, 2)}
    for _ in range(runs + 1):
        for workers, taken in times.items():
            remove_outputs()
            start = time.perf_counter()
            cpu = processor_time([CLI, "vertaal", "--modus", MODES[0].option, "--project", drawing.table, "--stil",
                                  "--taken", workers, "--uitvoermap", OUTPUTS, folder])
            taken.append((time.perf_counter() - start, cpu))
    wall, cpu = ({workers: statistics.median(time[kind] for time in taken[1:]) for workers, taken in times.items()}
                 for kind in (0, 1))
    return ("%d files of %s objects, two at a time over one at a time: times as fast"
            % (AT_A_TIME, format(OBJECTS, ",")), "≥ 1.8", "",
            "%.2f (processor %.2f; processors in use %.2f and %.2f)"
            % (wall[1] / wall[2], cpu[1] / cpu[2], cpu[2] / wall[2], cpu[1] / wall[1]))


def copy_of(path):
    """Wall time of a copy, into a folder that is empty."""
    remove_outputs()
    start = time.perf_counter()
    subprocess.run(["cp", path, OUTPUTS / "copy"], check=True)
    return time.perf_counter() - start


def over_copies(drawing, runs):
    """Rows of wall time beside that of reading and writing as many bytes: half of copying input and output both."""
    for mode in MODES:
        ours, = medians(runs, translation(drawing, mode), start=run)
        copies = [(copy_of(drawing.file(mode.source)) + copy_of(drawing.file(mode.target))) / 2 for _ in range(runs)]
        copy = statistics.median(copies)
        yield [mode.name, "%.3f" % ours.wall, "%.3f" % copy, "%.1f" % (ours.wall / copy)]
