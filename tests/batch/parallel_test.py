"""The lines of docs/batch.md for GNU Parallel, as they stand there, with two workers on this machine."""

import csv
import os
import unittest

import farm


def jobs_in(place):
    """The rows of the log of jobs."""
    with open(place / "taken.log", newline="", encoding="utf-8") as log:
        return list(csv.DictReader(log, delimiter="\t"))


class Parallel(unittest.TestCase):
    """Over 200 drawings, four of which are broken."""

    def translate(self, place, mark, workers):
        """Runs the documented lines with these workers; the rows of the log of jobs."""
        (place / "werkers.txt").write_text("".join(f"{worker}\n" for worker in workers), encoding="utf-8")
        lines = farm.documented(mark)
        # The status tells how many jobs ended otherwise than with 0.
        result = farm.run("bash", "-ec", lines, cwd=place, env=farm.environment(place), expected=range(0, 102))
        self.assertNotIn("parallel: Error", result.stderr)
        return jobs_in(place)

    def test_two_local_workers_make_the_bytes_of_one_program(self):
        with farm.archive(200) as place:
            jobs = self.translate(place, "parallel: shared", ["2/:"])
            self.assertEqual(len(jobs), 8)
            self.assertEqual([job["Exitval"] for job in jobs].count("1"), 4)
            self.assertTrue(farm.same(farm.outputs(place / "idex"), farm.translated_one_by_one(place)))
            self.assertEqual(len(farm.outputs(place / "idex")), 196)

    def test_the_lines_again_do_nothing_again_but_what_is_left(self):
        with farm.archive(100) as place:
            self.translate(place, "parallel: shared", ["2/:"])
            before = farm.outputs(place / "idex")
            for name in before:
                os.utime(place / "idex" / name, (0, 0))
            # As after an interruption: one job is not in the log.
            log = (place / "taken.log").read_text(encoding="utf-8").splitlines(keepends=True)
            left_out = next(line for line in log if line.startswith("2\t"))
            (place / "taken.log").write_text("".join(line for line in log if line != left_out), encoding="utf-8")
            jobs = self.translate(place, "parallel: shared", ["2/:"])
            self.assertEqual(sorted(job["Seq"] for job in jobs), ["1", "2", "3", "4"])
            again = [name for name in before if (place / "idex" / name).stat().st_mtime > 0]
            self.assertEqual(len(again), 24 if left_out.split("\t")[6] == "1" else 25)
            self.assertTrue(farm.same(farm.outputs(place / "idex"), before))

    def test_two_workers_over_ssh_send_back_outputs_and_log_books(self):
        with farm.archive(8) as place, farm.ssh_workers(place) as ssh:
            jobs = self.translate(place, "parallel: copied", [f"1/{ssh} werker1", f"1/{ssh} werker2"])
            self.assertEqual(len(jobs), 8)
            self.assertEqual({job["Host"].split()[-1] for job in jobs}, {"werker1", "werker2"})
            self.assertEqual([job["Exitval"] for job in jobs].count("3"), 1)
            self.assertTrue(farm.same(farm.outputs(place / "archief"), farm.translated_one_by_one(place)))
            self.assertGreaterEqual(len(list((place / "archief").glob("*.LOG"))), 7)


if __name__ == "__main__":
    unittest.main()
