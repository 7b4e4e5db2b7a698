#!/usr/bin/env python3
"""Measures the console program and writes the figures into docs/performance.md; scripts/bench calls it."""
import argparse
import json
import os
import platform
import statistics
import subprocess
import sys

sys.dont_write_bytecode = True
from batches import of_small_files, over_copies, two_at_a_time  # noqa: E402
from runs import (MICRO, MODES, ROOT, Drawing, floor_translation, instructions, medians,  # noqa: E402
                  peak_memory, remove_outputs, run, run_on_terminal, translation)
from window import over_console  # noqa: E402

SMALL, MIDDLE, LARGE, FEW = 20_000, 200_000, 1_000_000, 20
BEGIN, END = "<!-- figures: begin -->", "<!-- figures: end -->"


def table(head, rows):
    """A Markdown table; numbers stand on the right."""
    lines = ["| " + " | ".join(head) + " |", "|---" + "|--:" * (len(head) - 1) + "|"]
    lines += ["| " + " | ".join(row) + " |" for row in rows]
    return "\n".join(lines) + "\n"


def count(number):
    return format(number, ",")


class Figures:
    def __init__(self, runs, quick):
        self.runs, self.quick = runs, quick
        self.sizes = [SMALL, MIDDLE] if quick else [SMALL, MIDDLE, LARGE]
        self.few = Drawing(FEW)
        self.drawings = {size: Drawing(size) for size in self.sizes}
        self.ours, self.floors, self.memory, self.start = {}, {}, {}, {}

    def say(self, text):
        print("   " + text, file=sys.stderr, flush=True)

    def runs_of(self, size):
        return min(self.runs, 3) if size == LARGE else self.runs

    def measure_modes(self):
        for mode in MODES:
            self.start[mode], = medians(3 * self.runs, translation(self.few, mode))
            self.memory[mode, FEW] = peak_memory(translation(self.few, mode))
            for size, drawing in self.drawings.items():
                self.say("%s, %s objects" % (mode.name, count(size)))
                ours, floor = translation(drawing, mode), floor_translation(drawing, mode)
                self.ours[mode, size], self.floors[mode, size] = medians(self.runs_of(size), ours, floor)
                self.memory[mode, size] = peak_memory(ours)

    def per_object(self, mode, size, kind="cpu"):
        """Seconds of the processor for one object, start-up taken off."""
        return (getattr(self.ours[mode, size], kind) - getattr(self.start[mode], kind)) / size

    def growth(self, mode):
        """How much longer an object takes in the largest drawing than in the smallest, by all of the processor's time
        and by the program's own: the median of rounds, for the machine is faster in some than in others."""
        self.say("growth, " + mode.name)
        largest, rounds = self.sizes[-1], []
        for _ in range(self.runs):
            small, = medians(7, translation(self.drawings[SMALL], mode))
            large = run(translation(self.drawings[largest], mode))
            start = self.start[mode]
            rounds.append([(getattr(large, kind) - getattr(start, kind)) / largest
                           / ((getattr(small, kind) - getattr(start, kind)) / SMALL) for kind in ("cpu", "own")])
        return tuple(map(statistics.median, zip(*rounds)))

    def over_floor(self, mode, size):
        ours, floor = self.ours[mode, size], self.floors[mode, size]
        return ours.cpu / floor.cpu, ours.wall / floor.wall

    def bytes_per_object(self, mode, size):
        if self.memory[mode, size] is None:
            return None
        return (self.memory[mode, size] - self.memory[mode, FEW]) / size

    def modes_table(self):
        rows = []
        for mode in MODES:
            for size, drawing in self.drawings.items():
                ours, memory = self.ours[mode, size], self.bytes_per_object(mode, size)
                rows.append([mode.name, count(size), "%.1f" % drawing.megabytes(mode), "%.3f" % ours.cpu,
                             "%.3f" % (ours.cpu - ours.own), "%.3f" % ours.wall,
                             "%.0f" % (drawing.megabytes(mode) / ours.cpu),
                             "%.2f" % (self.per_object(mode, size) * 1e6), "%.3f" % self.floors[mode, size].cpu,
                             "%.2f" % self.over_floor(mode, size)[0], "–" if memory is None else count(round(memory))])
        return table(["mode", "objects", "input, MB", "processor, s", "system's, s", "wall, s", "MB/s", "µs an object",
                      "floor, s", "over floor", "bytes an object"], rows)

    def goals_table(self):
        """The goals, each with what was measured on the drawing of 200,000 objects or the one named."""
        rows = []

        def goal(what, most, stretch, measured):
            rows.append([what, most, stretch, measured])

        for mode in MODES:
            goals = ("≤ 0.8", "0.65") if mode.source == "idx" else ("≤ 1.2", "1.0")
            goal(mode.name + ", time over the floor's", *goals,
                 "%.2f (wall %.2f)" % self.over_floor(mode, MIDDLE))
        largest = self.sizes[-1]
        for mode in MODES:
            goal("%s, time per object at %s over %s" % (mode.name, count(largest), count(SMALL)), "≤ 1.1", "1.05",
                 "%.2f (without the system's %.2f)" % self.growth(mode))
        memory = [self.bytes_per_object(mode, largest) for mode in MODES]
        if None not in memory:
            goal("peak memory above start, bytes per object at %s" % count(largest), "≤ 350", "280",
                 "%s to %s" % (count(round(min(memory))), count(round(max(memory)))))
        slowest = max(self.start.values(), key=lambda times: times.wall)
        goal("whole process on %d objects, slowest mode" % FEW, "≤ 10 ms", "5 ms",
             "%.1f ms (processor %.1f ms)" % (slowest.wall * 1000, slowest.cpu * 1000))
        self.say("many small files")
        for row in [*of_small_files(self.few), two_at_a_time(self.runs), *self.large_tables()]:
            goal(*row)
        for mode in (MODES[0], MODES[2]):
            self.say("progress on a terminal, " + mode.name)
            job = translation(self.drawings[MIDDLE], mode)
            without, shown = medians(2 * self.runs, job, job, start=(run, run_on_terminal))
            goal(mode.name + ", progress on a terminal over none", "≤ 1.02", "",
                 "%.3f (wall %.3f)" % (shown.cpu / without.cpu, shown.wall / without.wall))
        self.say("the window")
        for row in over_console(self.drawings[MIDDLE], self.runs):
            goal(*row)
        return table(["", "goal", "stretch", "measured"], rows)

    def other_floor_table(self, floor):
        """The program beside any other floor, which takes the same words as ours."""
        rows = []
        for mode in MODES:
            self.say("beside %s, %s" % (floor, mode.name))
            drawing = self.drawings[MIDDLE]
            ours, other = medians(self.runs, translation(drawing, mode), floor_translation(drawing, mode, floor))
            rows.append([mode.name, "%.3f" % ours.cpu, "%.3f" % other.cpu, "%.2f" % (ours.cpu / other.cpu),
                         "%.2f" % (ours.wall / other.wall)])
        return table(["mode", "processor, s", "that floor, s", "over it", "wall over it"], rows)

    def large_tables(self):
        """20,000 rows instead of 300: the same drawing, and one that uses them all."""
        middle, many = self.drawings[MIDDLE], Drawing(MIDDLE, 20_000)
        for mode in MODES:
            self.say("control table of 20,000 rows, " + mode.name)
            small, large, used = medians(self.runs, translation(middle, mode),
                                         translation(middle, mode, many.table), translation(many, mode))
            yield (mode.name + ", a control table of 20,000 rows over 300", "≤ 1.2", "1.05",
                   "%.2f (all in use: %.2f)" % (large.cpu / small.cpu, used.cpu / small.cpu))

    def copies_table(self):
        self.say("copies of the same bytes")
        return table(["mode", "wall, s", "`cp`, s", "over it"], list(over_copies(self.drawings[MIDDLE], self.runs)))

    def instructions_table(self):
        drawing = self.drawings[SMALL]
        rows = []
        for mode in MODES:
            self.say("instructions, " + mode.name)
            ours = instructions(translation(drawing, mode))
            floor = instructions(floor_translation(drawing, mode))
            if ours is None or floor is None:
                return "Not counted: there is no valgrind here.\n"
            rows.append([mode.name, "%.1f" % (ours / 1e6), "%.1f" % (floor / 1e6), "%.2f" % (ours / floor),
                         count(round(ours / drawing.objects))])
        return table(["mode", "millions", "floor, millions", "over floor", "an object"], rows)

    def micro_table(self):
        self.say("primitives")
        command = [MICRO, "--benchmark_filter=^Primitive", "--benchmark_format=json", "--benchmark_repetitions=5",
                   "--benchmark_report_aggregates_only=true", "--benchmark_min_time=0.1"]
        result = subprocess.run(command, check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        rows = [[figure["label"], "%.1f" % figure["cpu_time"]] for figure in json.loads(result.stdout)["benchmarks"]
                if figure["aggregate_name"] == "median"]
        return table(["primitive", "ns"], rows)

    def report(self):
        self.measure_modes()
        parts = ["Measured on %s, %d processors, a load of %.1f in the last quarter of an hour; medians of %d runs, of a million "
                 "objects %d."
                 % (processor(), os.cpu_count(), os.getloadavg()[2], self.runs,
                    self.runs_of(LARGE)),
                 "\n### Goals, on %s objects\n" % count(MIDDLE), self.goals_table(),
                 "### All modes and sizes\n", self.modes_table(),
                 "### Beside `cp` of as many bytes, on %s objects\n" % count(MIDDLE), self.copies_table()]
        if not self.quick:
            parts += ["### Instructions on %s objects\n" % count(SMALL), self.instructions_table()]
        parts += ["### Primitives, nanoseconds of the processor a call\n", self.micro_table()]
        return "\n".join(parts)


def processor():
    try:
        with open("/proc/cpuinfo") as file:
            return next(line.split(":")[1].strip() for line in file if line.startswith("model name"))
    except (OSError, StopIteration):
        return platform.processor() or platform.machine()


def write_document(report):
    path = ROOT / "docs" / "performance.md"
    text = path.read_text(encoding="utf-8")
    before, rest = text.split(BEGIN)
    after = rest.split(END)[1]
    path.write_text(before + BEGIN + "\n" + report + END + after, encoding="utf-8")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--quick", action="store_true")
    parser.add_argument("--runs", type=int)
    parser.add_argument("--floor")
    options = parser.parse_args()
    remove_outputs()
    try:
        os.nice(-10)
    except PermissionError:
        pass  # others on this machine disturb the figures the more
    figures = Figures(options.runs or (3 if options.quick else 7), options.quick)
    report = figures.report()
    print(report)
    if options.floor:
        print("### Beside %s, on %s objects\n" % (options.floor, count(MIDDLE)))
        print(figures.other_floor_table(options.floor))
    if not options.quick:
        write_document(report)


if __name__ == "__main__":
    main()
