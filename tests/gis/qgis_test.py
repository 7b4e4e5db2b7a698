"""QGIS opens a GeoPackage with the styles that are in it."""

import json
import math
import os
import pathlib
import subprocess
import unittest

import gis

red = "#d00000"


class Qgis(unittest.TestCase):
    """The pictures stay in build/gis, to be looked at."""

    @classmethod
    def setUpClass(cls):
        cls.pictures = gis.root / "build/gis"
        cls.pictures.mkdir(parents=True, exist_ok=True)
        with gis.folder() as place:
            cls.counts = gis.make_geopackage("straat.sfn", place / "straat.gpkg")
            cls.told = cls.render(place / "straat.gpkg", cls.pictures / "straat.png")
            cls.texts = gis.values(place / "straat.gpkg", "SELECT tekst, richting FROM teksten")
            cls.codes = {
                layer: {row[0] for row in gis.values(place / "straat.gpkg", f"SELECT code FROM {layer} WHERE bekend")}
                for layer in ("punten", "lijnen")
            }

    @staticmethod
    def render(geopackage, picture):
        """What QGIS tells of the file that it draws."""
        script = pathlib.Path(__file__).with_name("render.py")
        result = subprocess.run(
            ["/usr/bin/python3", "-B", script, geopackage, picture],
            env={**os.environ, "QT_QPA_PLATFORM": "offscreen", "XDG_RUNTIME_DIR": str(geopackage.parent)},
            capture_output=True,
            text=True,
            check=False,
        )
        if result.returncode != 0:
            raise AssertionError(result.stdout + result.stderr)
        return json.loads(result.stdout.splitlines()[-1])

    def test_every_layer_opens_in_rd_with_all_its_objects(self):
        for layer in gis.layers:
            self.assertEqual(self.told[layer]["count"], self.counts[layer])
            self.assertEqual(self.told[layer]["system"], "EPSG:28992")
        self.assertEqual(self.told["errors"], [])

    def test_points_and_lines_are_coloured_by_code_and_red_is_what_is_unknown(self):
        for layer in ("punten", "lijnen"):
            legend = self.told[layer]["legend"]
            self.assertEqual(self.told[layer]["renderer"], "categorizedSymbol")
            self.assertEqual(legend[""], red)
            self.assertLessEqual(self.codes[layer], set(legend))
            self.assertNotIn(red, [colour for code, colour in legend.items() if code])
            self.assertGreater(len(set(legend.values())), 5)

    def test_every_text_is_a_label_in_its_direction(self):
        self.assertTrue(self.told["teksten"]["labels"])
        drawn = sorted((label["text"], label["rotation"]) for label in self.told["drawn"])
        # Labels turn anticlockwise from east, in radians.
        expected = sorted((text, math.radians(90 - float(direction))) for text, direction in self.texts)
        self.assertEqual([text for text, _ in drawn], [text for text, _ in expected])
        for (text, rotation), (_, direction) in zip(drawn, expected):
            self.assertAlmostEqual(math.cos(rotation - direction), 1, places=6, msg=text)

    def test_the_picture_shows_the_colours_of_the_legend(self):
        dots = self.told["dots"]
        self.assertGreater(dots.get(red, 0), 200)
        # Of texts; no code is as dark.
        dark = sum(count for colour, count in dots.items() if all(int(colour[i : i + 2], 16) < 0x40 for i in (1, 3, 5)))
        self.assertGreater(dark, 500)
        legend = set(self.told["lijnen"]["legend"].values()) | set(self.told["punten"]["legend"].values())
        self.assertGreater(sum(1 for colour in legend if dots.get(colour, 0) > 100), 5)


if __name__ == "__main__":
    unittest.main()
