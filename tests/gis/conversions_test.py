"""Every line of docs/gis.md that takes a GeoPackage into another format does so as it stands there."""

import re
import subprocess
import unittest

import gis


def documented_lines():
    """The command lines of the page, each with its continuations."""
    text = (gis.root / "docs/gis.md").read_text(encoding="utf-8").replace("\\\n", " ")
    return [line.strip() for line in text.splitlines() if line.strip().startswith("ogr2ogr ")]


class Conversions(unittest.TestCase):
    """The lines read archief.gpkg, in the folder where they run."""

    def convert(self, place, driver, env=None):
        """Runs the documented lines with this driver, of which there is one at least."""
        lines = [line for line in documented_lines() if re.search(rf'-f "?{re.escape(driver)}"?', line)]
        self.assertTrue(lines, driver)
        for line in lines:
            result = subprocess.run(
                ["bash", "-c", line], cwd=place, env=env, capture_output=True, text=True, check=False
            )
            self.assertEqual(result.returncode, 0, f"{line}\n{result.stderr}")
            self.assertNotRegex(result.stderr, "ERROR|couldn't be converted|truncated", line)

    def test_every_documented_line_is_tried_here(self):
        drivers = {re.search(r'-f (?:"([^"]+)"|(\S+))', line).group(1, 2) for line in documented_lines()}
        self.assertEqual({one or other for one, other in drivers}, {"DXF", "GeoJSON", "ESRI Shapefile", "PostgreSQL"})

    def test_a_dxf_has_all_objects_on_layers_of_their_codes_and_texts_as_texts(self):
        with gis.folder() as place:
            counts = gis.make_geopackage("straat.sfn", place / "archief.gpkg")
            self.convert(place, "DXF")
            total, extent = gis.summary(place / "archief.dxf", "entities")
            self.assertEqual(total, sum(counts.values()))
            self.assertEqual(extent, gis.summary(place / "archief.gpkg", "lijnen")[1])
            texts = gis.values(place / "archief.dxf", "SELECT count(*) FROM entities WHERE Text IS NOT NULL")
            self.assertEqual(int(texts[0][0]), counts["teksten"])
            codes = gis.values(place / "archief.gpkg", "SELECT DISTINCT code FROM lijnen ORDER BY code")
            drawn = gis.values(
                place / "archief.dxf",
                "SELECT DISTINCT Layer FROM entities WHERE SubClasses NOT LIKE '%Point' AND Text IS NULL ORDER BY Layer",
            )
            self.assertEqual(drawn, codes)
            told = gis.run("ogrinfo", "-ro", "-al", place / "archief.dxf", "-where", "Text = '2'")
            angle = float(re.search(r"a:([-\d.]+)", told)[1])
            row = gis.values(place / "archief.gpkg", "SELECT richting FROM teksten WHERE tekst = '2'")
            self.assertAlmostEqual(angle, 90 - float(row[0][0]), places=1)

    def test_geojson_has_the_objects_in_rd_and_in_degrees(self):
        with gis.folder() as place:
            counts = gis.make_geopackage("straat.sfn", place / "archief.gpkg")
            self.convert(place, "GeoJSON")
            count, extent = gis.summary(place / "lijnen.geojson", "lijnen")
            self.assertEqual(count, counts["lijnen"])
            self.assertEqual(extent, gis.summary(place / "archief.gpkg", "lijnen")[1])
            count, (west, south, east, north) = gis.summary(place / "punten.geojson", "punten")
            self.assertEqual(count, counts["punten"])
            # The place by the definition of RD, to some metres.
            self.assertTrue(4.888 < west < east < 4.891 and 52.369 < south < north < 52.371, (west, south, east, north))

    def test_shapefiles_have_the_objects_and_their_letters(self):
        with gis.folder() as place:
            counts = gis.make_geopackage("kruispunt.sfn", place / "archief.gpkg")
            self.convert(place, "ESRI Shapefile")
            for layer in gis.layers:
                count, extent = gis.summary(place / f"shp/{layer}.shp", layer)
                self.assertEqual(count, counts[layer])
                original = gis.summary(place / "archief.gpkg", layer)[1]
                for side, other in zip(extent, original):
                    self.assertAlmostEqual(side, other, delta=0.001)
            texts = gis.values(place / "shp/teksten.shp", "SELECT tekst FROM teksten WHERE tekst LIKE 'Co%'")
            self.assertIn(["Coöperatieweg"], texts)

    def test_postgis_has_the_objects_with_their_arcs_and_heights(self):
        with gis.folder() as place, gis.database_server() as reach:
            counts = gis.make_geopackage("straat.idx", place / "archief.gpkg")
            self.convert(place, "PostgreSQL", env=reach)

            def query(sql):
                return gis.run("psql", "-At", "-d", "archief", "-c", sql, env=reach).strip()

            for layer in gis.layers:
                self.assertEqual(query(f"SELECT count(*) FROM {layer}"), str(counts[layer]))
                self.assertEqual(query(f"SELECT DISTINCT ST_SRID(geom) FROM {layer}"), "28992")
            box = query("SELECT ST_XMin(e), ST_YMin(e), ST_XMax(e), ST_YMax(e) FROM (SELECT ST_3DExtent(geom) e FROM lijnen) x")
            extent = gis.summary(place / "archief.gpkg", "lijnen")[1]
            self.assertEqual([round(float(side), 6) for side in box.split("|")], extent)
            arcs = gis.run("ogrinfo", "-ro", "-al", place / "archief.gpkg", "lijnen").count("CIRCULARSTRING")
            self.assertGreater(arcs, 0)
            found = query("SELECT string_agg(ST_AsText(geom), ' ') FROM lijnen").count("CIRCULARSTRING")
            self.assertEqual(found, arcs)
            self.assertEqual(query("SELECT count(*) FROM punten WHERE abs(ST_Z(geom) - hoogte) > 0.0005"), "0")


if __name__ == "__main__":
    unittest.main()
