"""GDAL sees in a GeoPackage what the program says that is in it."""

import re
import subprocess
import unittest

import gis


class Gdal(unittest.TestCase):
    def test_the_samples_have_the_counts_that_the_program_tells(self):
        with gis.folder() as place:
            for sample in ("straat.sfn", "kruispunt.sfn"):
                counts = gis.make_geopackage(sample, place / f"{sample}.gpkg")
                for layer in gis.layers:
                    with self.subTest(sample=sample, layer=layer):
                        self.assertEqual(gis.summary(place / f"{sample}.gpkg", layer)[0], counts[layer])

    def test_the_samples_cover_what_their_geometries_cover(self):
        with gis.folder() as place:
            for sample in ("straat.sfn", "kruispunt.sfn"):
                gis.make_geopackage(sample, place / "uit.gpkg", "--overschrijf")
                for layer in gis.layers:
                    _, told = gis.summary(place / "uit.gpkg", layer)
                    measured = gis.values(
                        place / "uit.gpkg",
                        f"SELECT min(ST_MinX(geom)), min(ST_MinY(geom)), max(ST_MaxX(geom)), max(ST_MaxY(geom)) FROM {layer}",
                    )[0]
                    for side, other in zip(told, measured):
                        self.assertAlmostEqual(side, float(other), delta=0.001, msg=f"{sample} {layer}")

    def test_the_lines_cover_what_a_check_of_the_street_tells(self):
        with gis.folder() as place:
            gis.make_geopackage("straat.idx", place / "uit.gpkg")
            _, extent = gis.summary(place / "uit.gpkg", "lijnen")
            words = [gis.program, "controleer", "--project", gis.samples / "voorbeeld.nst", gis.samples / "straat.idx"]
            told = subprocess.run([str(word) for word in words], capture_output=True, text=True, check=False).stdout
            least_x, most_x, least_y, most_y = re.search(
                r"Omvang: X ([\d.]+) tot ([\d.]+), Y ([\d.]+) tot ([\d.]+)", told
            ).groups()
            self.assertEqual(extent, [float(least_x), float(least_y), float(most_x), float(most_y)])

    def test_the_validation_of_gdal_finds_nothing(self):
        with gis.folder() as place:
            for sample in ("straat.idx", "straat.sfn", "straat.sf2", "kruispunt.sfn"):
                for options in ((), ("--rechte-lijnen",), ("--lokaal",)):
                    with self.subTest(sample=sample, options=options):
                        gis.make_geopackage(sample, place / "uit.gpkg", "--overschrijf", *options)
                        gis.run("/usr/bin/python3", "-m", "osgeo_utils.samples.validate_gpkg", "--extra", place / "uit.gpkg")

    def test_it_changes_a_layer_and_the_index_follows(self):
        with gis.folder() as place:
            counts = gis.make_geopackage("kruispunt.sfn", place / "uit.gpkg")
            gis.run("ogrinfo", place / "uit.gpkg", "-sql", "DELETE FROM teksten WHERE fid = 1")
            rows = gis.values(place / "uit.gpkg", "SELECT count(*) FROM teksten")
            self.assertEqual(int(rows[0][0]), counts["teksten"] - 1)
            gis.run("/usr/bin/python3", "-m", "osgeo_utils.samples.validate_gpkg", "--extra", place / "uit.gpkg")


if __name__ == "__main__":
    unittest.main()
