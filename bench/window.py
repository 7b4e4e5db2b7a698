"""What the window costs beside the console program: bench/measure.py calls. By itself: what it takes to open a control
table and to walk over a drawing, on the largest drawing that was measured."""
import os
import re
import shutil
import statistics
import subprocess

from runs import BUILD, FOLDER, MODES, OUTPUTS, Drawing, Times, environment, remove_outputs, run, translation

SPEED = BUILD / "tests" / "gui" / "window_speed"


def of_window(test, drawing):
    """What the program that drives the window prints of one of its tests; None where there is none or no display."""
    if not SPEED.exists() or shutil.which("xvfb-run") is None:
        return None
    remove_outputs()
    surroundings = {**environment(), "LANGUAGE": "C", "GSETTINGS_BACKEND": "memory", "TMPDIR": str(OUTPUTS),
                    "KORVANDE_SPEED_DRAWING": str(drawing.file("idx")), "KORVANDE_SPEED_TABLE": str(drawing.table)}
    result = subprocess.run(["xvfb-run", "-a", "-s", "-screen 0 1280x1024x24", SPEED, "--gtest_filter=WindowSpeed." + test],
                            env=surroundings, stdin=subprocess.DEVNULL, capture_output=True, text=True)
    if result.returncode != 0:
        raise SystemExit("bench: the window ended with status %d\n%s%s" % (result.returncode, result.stdout, result.stderr))
    return result.stdout


def over_console(drawing, runs):
    """A row of the goals: a translation with the window's progress, in turn with the console program's."""
    job, shown, console, repaints = translation(drawing, MODES[0]), [], [], []
    for _ in range(runs):
        printed = of_window("ATranslation", drawing)
        if printed is None:
            return
        seconds, own, each = map(float, re.search(
            r"translation ([\d.]+) s, of the processor ([\d.]+) s, ([\d.]+) repaints", printed).groups())
        shown.append(Times(own, own, seconds))
        repaints.append(each)
        console.append(run(job))
    cpu, wall = (statistics.median(getattr(times, kind) for times in shown)
                 / statistics.median(getattr(times, kind) for times in console) for kind in ("cpu", "wall"))
    yield ("%s, in the window over the console program" % MODES[0].name, "≤ 1.05", "1.02",
           "%.2f (wall %.2f; %.0f repaints a second)" % (cpu, wall, statistics.median(repaints)))


if __name__ == "__main__":
    largest = max(int(folder.name.split("-")[0]) for folder in FOLDER.glob("*-300"))
    print(of_window("OpeningAControlTable:WindowSpeed.AWalkOverAPreview", Drawing(largest)) or "no window here")
