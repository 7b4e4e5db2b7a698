"""Watches a process over a long life: its memory, its handles and the processor's time, from translation to
translation."""

import os
import pathlib
import statistics

root = pathlib.Path(__file__).resolve().parents[2]
samples = root / "samples"
golden = root / "tests/golden"
table = samples / "voorbeeld.nst"
release = root / "build/release"
# Outputs are flushed to the disk, a hundred thousand times; in memory that takes no time. Some 1.5 GB at the end.
memory = "/dev/shm" if os.path.isdir("/dev/shm") else None


class Life:
    """What a process was seen to use, after so many translations each time."""

    def __init__(self):
        self.moments = []

    def note(self, translations, kilobytes, seconds, handles):
        """Memory, the processor's time that it has taken so far, and how many of each kind of handles it holds."""
        self.moments.append((translations, kilobytes, seconds, handles))

    def look(self, process, translations):
        """Notes what Linux tells of a process, by its number; nothing once it has ended."""
        folder = pathlib.Path("/proc/%d" % process)
        try:
            pages = int((folder / "statm").read_text().split()[1])
            fields = (folder / "stat").read_text().rpartition(")")[2].split()
            files = len(os.listdir(folder / "fd"))
        except (FileNotFoundError, ProcessLookupError, IndexError):
            return
        kilobytes = pages * os.sysconf("SC_PAGE_SIZE") // 1024
        seconds = (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")
        self.note(translations, kilobytes, seconds, {"files": files})

    def tenth(self, number):
        """The moments in one of ten equal parts of its life."""
        last = self.moments[-1][0]
        return [moment for moment in self.moments if (number - 1) / 10 <= moment[0] / last <= number / 10]


def middle(moments, value):
    return statistics.median(value(moment) for moment in moments)


def milliseconds_of_one(moments):
    first, last = moments[0], moments[-1]
    return 1000 * (last[2] - first[2]) / (last[0] - first[0])


def expect_no_growth(test, life, translations, name):
    """Fails when a process was seen to use more and more, from the second tenth of its life to the last: a leak of some
    fifty bytes a translation would be seen, a handle in a thousand of them, and work that grows with what was done."""
    test.assertGreaterEqual(life.moments[-1][0], 0.95 * translations, "it was not watched to its end")
    early, late = life.tenth(2), life.tenth(10)
    test.assertGreater(min(len(early), len(late)), 4, "it was not looked at often enough")
    memory = middle(late, lambda moment: moment[1]) - middle(early, lambda moment: moment[1])
    slower = milliseconds_of_one(late) / milliseconds_of_one(early)
    handles = {
        kind: middle(late, lambda moment: moment[3][kind]) - middle(early, lambda moment: moment[3][kind])
        for kind in early[0][3]
    }
    print(
        "%s: %d translations, %.2f ms each; from the second tenth to the last %+.0f KB, %s, %.2f times the time"
        % (
            name,
            translations,
            milliseconds_of_one(life.moments),
            memory,
            ", ".join("%+.0f %s" % (more, kind) for kind, more in handles.items()),
            slower,
        ),
        flush=True,
    )
    test.assertLess(memory, max(translations * 0.05, 512), "kilobytes more")
    for kind, more in handles.items():
        test.assertLess(more, max(translations / 1000, 5), kind)
    test.assertLess(slower, 1.5, "times as long")
