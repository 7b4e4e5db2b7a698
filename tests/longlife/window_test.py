"""Ten thousand translations in one window, here and under Wine."""

import os
import subprocess
import unittest

from life import Life, expect_no_growth, memory, release, root

TRANSLATIONS = 10_000
DISPLAY = ["xvfb-run", "-a", "-s", "-screen 0 1280x1024x24"]


class WindowTest(unittest.TestCase):
    def lines_of(self, command, environment):
        """What a command says, line by line, while it runs; it must end well."""
        said = []
        with subprocess.Popen(
            DISPLAY + command, env={**os.environ, **environment}, stdout=subprocess.PIPE, text=True, bufsize=1
        ) as running:
            for line in running.stdout:
                said.append(line)
                yield line.split()
        self.assertEqual(running.returncode, 0, "".join(said[-20:]))

    def test_ten_thousand_translations_in_one_window_use_no_more_and_more(self):
        environment = {"KORVANDE_TRANSLATIONS": str(TRANSLATIONS), "LANGUAGE": "C", "GSETTINGS_BACKEND": "memory"}
        if memory:
            environment["TMPDIR"] = memory
        life = Life()
        for words in self.lines_of([str(release / "tests/gui/long_life"), "--gtest_brief=1"], environment):
            if words[:1] == ["process"]:
                process = int(words[1])
            elif words[:1] == ["translations"]:
                life.look(process, int(words[1]))
        expect_no_growth(self, life, TRANSLATIONS, "the window")

    def test_ten_thousand_translations_in_one_window_of_windows_use_no_more_and_more(self):
        life = Life()
        command = [str(root / "tests/windows/long-life"), str(root / "build/windows"), str(TRANSLATIONS)]
        for words in self.lines_of(command, {}):
            if len(words) == 5 and words[0].isdigit():
                times, kilobytes, handles, objects = map(int, words[:4])
                life.note(times, kilobytes, float(words[4]), {"handles": handles, "GDI objects": objects})
        expect_no_growth(self, life, TRANSLATIONS, "the window of Windows")


if __name__ == "__main__":
    unittest.main()
