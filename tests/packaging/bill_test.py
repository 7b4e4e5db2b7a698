import json
import os
import subprocess
import tempfile
import unittest
from pathlib import Path

import bill

BUILD = Path(os.environ["KORVANDE_BUILD"]).resolve()
# What is in each package, and beside it where it runs, whatever a linker says of it.
INSIDE = {
    "korvande": {"cli11", "gcc-12", "glibc", "nlohmann-json3"},
    "libkorvande1": {"gcc-12", "glibc", "nlohmann-json3"},
    "libkorvande-dev": {"gcc-12"},
}
BESIDE = {
    "korvande": {"cairo", "gcc-12", "glibc", "gtk+3.0", "sqlite3", "wxwidgets3.2"},
    "libkorvande1": {"gcc-12", "glibc"},
    "libkorvande-dev": {"cairo", "sqlite3"},
}


class BillTest(unittest.TestCase):
    def unpack(self, name):
        folder = Path(self.enterContext(tempfile.TemporaryDirectory()))
        packages = list((BUILD / "packages").glob(f"{name}_*.deb"))
        self.assertEqual(len(packages), 1, name)
        subprocess.run(["dpkg-deb", "-x", packages[0], folder], check=True)
        return folder, f"usr/share/doc/{name}/{name}.spdx.json"

    def complaints(self, folder, own):
        return bill.complaints(folder, own, BUILD, [])

    def test_each_package_has_a_sound_bill(self):
        """Each package has a bill of its files and parts, and the terms of those."""
        for name in INSIDE:
            with self.subTest(package=name):
                self.assertEqual(self.complaints(*self.unpack(name)), [])

    def test_the_parts_that_we_know_of_are_told(self):
        """The parts that the sources themselves name are in the bill, inside or beside the package."""
        for name in INSIDE:
            with self.subTest(package=name):
                folder, own = self.unpack(name)
                told = json.loads((folder / own).read_text())
                names = {one["SPDXID"]: one["name"] for one in told["packages"]}
                related = [(one["relationshipType"], names.get(one["spdxElementId"]),
                            names.get(one["relatedSpdxElement"])) for one in told["relationships"]]
                self.assertEqual({other for relation, _, other in related if relation == "STATIC_LINK"}, INSIDE[name])
                beside = {other for relation, _, other in related if relation == "DYNAMIC_LINK"}
                beside |= {one for relation, one, _ in related if relation == "RUNTIME_DEPENDENCY_OF"}
                self.assertLessEqual(BESIDE[name], beside)

    def test_the_product_itself_is_given_no_licence(self):
        """No licence, copyright or person is made up for the product itself."""
        for name in INSIDE:
            folder, own = self.unpack(name)
            product = next(one for one in json.loads((folder / own).read_text())["packages"] if one["filesAnalyzed"])
            self.assertEqual({product[field] for field in ("licenseDeclared", "licenseConcluded", "copyrightText")},
                             {"NOASSERTION"})
            self.assertNotIn("supplier", product)
            text = (folder / own).with_name("copyright").read_text()
            self.assertTrue(text.startswith("Format: "))
            self.assertIn("Files: *\nCopyright: not stated\nLicense: not-stated\n", text)

    def test_what_is_wrong_with_a_bill_is_seen(self):
        """A bill that lacks something, or says what is not so, is complained of."""
        folder, own = self.unpack("korvande")
        whole = (folder / own).read_text()

        def taken(relation, name):
            def change(told):
                part = f"SPDXRef-Part-{name}"
                told["relationships"] = [one for one in told["relationships"] if not (
                    one["relationshipType"] == relation and part in one.values())]
            return change

        damages = {
            "nothing is called SPDXRef-Part-cli11":
                lambda told: told["packages"].remove(next(one for one in told["packages"] if one["name"] == "cli11")),
            "has another SHA256": lambda told: told["files"][0]["checksums"][1].update(checksumValue="0" * 64),
            "is only in the package": lambda told: told["files"].pop(),
            "documentNamespace": lambda told: told.update(documentNamespace="korvande"),
            "lacks ['versionInfo']": lambda told: told["packages"][1].pop("versionInfo"),
            "korvande: DYNAMIC_LINK does not tell of libwx": taken("DYNAMIC_LINK", "wxwidgets3.2"),
            "SPDXRef-Part-nlohmann-json3 is related to nothing": lambda told: (
                taken("STATIC_LINK", "nlohmann-json3")(told), taken("BUILD_DEPENDENCY_OF", "nlohmann-json3")(told)),
            "libgtk-3.so.0 is not told":
                lambda told: [one.update(comment="As: x") for one in told["packages"] if one["name"] == "gtk+3.0"],
            "the bill tells of 'Person:'": lambda told: told["creationInfo"].update(creators=["Person: A. Nybody"]),
        }
        for expected, damage in damages.items():
            with self.subTest(expected=expected):
                told = json.loads(whole)
                damage(told)
                (folder / own).write_text(json.dumps(told))
                found = self.complaints(folder, own)
                self.assertTrue(any(expected in one for one in found), found)

    def test_terms_that_are_missing_are_seen(self):
        """A part whose terms are not in the package is complained of."""
        folder, own = self.unpack("libkorvande1")
        (folder / own).with_name("parts").joinpath("nlohmann-json3").unlink()
        self.assertIn("nlohmann-json3 has no terms in the package", self.complaints(folder, own))


if __name__ == "__main__":
    unittest.main()
