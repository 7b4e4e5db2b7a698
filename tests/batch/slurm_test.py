"""The job array of docs/batch.md, as it stands there, on a cluster of this machine alone."""

import csv
import os
import unittest

import farm


class Slurm(unittest.TestCase):
    """Over 200 drawings, four of which are broken."""

    def start(self, place, reach):
        (place / "korvande.sbatch").write_text(farm.documented("slurm: korvande.sbatch"), encoding="utf-8")
        farm.run("bash", "-ec", farm.documented("slurm: start"), cwd=place, env=reach)

    def test_an_array_of_jobs_makes_the_bytes_of_one_program_and_goes_on_where_it_was(self):
        with farm.archive(200) as place, farm.cluster(place) as reach:
            self.start(place, reach)
            made = farm.outputs(place / "idex")
            self.assertTrue(farm.same(made, farm.translated_one_by_one(place)))
            self.assertEqual(len(made), 196)
            rows = []
            for task in range(8):
                with open(place / f"verslag-{task}.csv", newline="", encoding="utf-8-sig") as report:
                    rows += list(csv.DictReader(report, delimiter=";"))
            self.assertEqual(len(rows), 200)
            self.assertEqual([row["status"] for row in rows].count("3"), 4)

            # As after an interruption: some outputs are not there.
            lost = sorted(made)[::10]
            times = {name: os.stat(place / "idex" / name).st_mtime_ns for name in made}
            for name in lost:
                os.remove(place / "idex" / name)
            self.start(place, reach)
            self.assertTrue(farm.same(farm.outputs(place / "idex"), made))
            again = [name for name in made if os.stat(place / "idex" / name).st_mtime_ns != times[name]]
            self.assertEqual(sorted(again), lost)


if __name__ == "__main__":
    unittest.main()
