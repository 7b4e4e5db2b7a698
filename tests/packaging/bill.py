"""What is wrong with the software bill of materials of a package: bill.py FOLDER BILL BUILD [FILE...]

FOLDER holds what the package holds, BILL is the bill's place in it, in BUILD it was built; the files named are made
when the package is installed. It looks into the programs itself, without what made the bill."""

import hashlib
import json
import re
import subprocess
import sys
from pathlib import Path

PACKAGE_FIELDS = {"SPDXID", "name", "versionInfo", "downloadLocation", "filesAnalyzed", "licenseConcluded",
                  "licenseDeclared", "copyrightText"}
RELATIONS = {"DESCRIBES", "CONTAINS", "DYNAMIC_LINK", "STATIC_LINK", "RUNTIME_DEPENDENCY_OF", "BUILD_DEPENDENCY_OF"}


def tool(*command: str) -> str:
    environment = {"PATH": "/usr/bin:/bin", "LC_ALL": "C"}
    return subprocess.run(command, check=True, capture_output=True, text=True, env=environment).stdout


def form(bill: dict) -> list[str]:
    """What SPDX 2.3 asks of every document."""
    wrong = []
    for name, pattern in {"spdxVersion": r"SPDX-2\.3", "dataLicense": r"CC0-1\.0", "SPDXID": "SPDXRef-DOCUMENT",
                          "name": ".+",
                          "documentNamespace": r"urn:uuid:[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}"}.items():
        if not re.fullmatch(pattern, bill.get(name, "")):
            wrong.append(f"{name} is {bill.get(name)!r}")
    info = bill.get("creationInfo", {})
    if not re.fullmatch(r"\d{4}(-\d\d){2}T\d\d(:\d\d){2}Z", info.get("created", "")):
        wrong.append(f"created is {info.get('created')!r}")
    if not info.get("creators") or not all(re.fullmatch(r"Tool: \S+", one) for one in info["creators"]):
        wrong.append(f"creators are {info.get('creators')}")
    for package in bill["packages"]:
        missing = PACKAGE_FIELDS - package.keys() - ({"versionInfo"} if package["name"] == "Windows" else set())
        if missing or not all(package[field] != "" for field in PACKAGE_FIELDS & package.keys()):
            wrong.append(f"package {package.get('name')} lacks {sorted(missing)}")
    for file in bill["files"]:
        if {"SPDXID", "fileName", "checksums", "licenseConcluded", "copyrightText"} - file.keys():
            wrong.append(f"file {file.get('fileName')} lacks fields")
    return wrong


def relations(bill: dict) -> list[str]:
    wrong = []
    elements = [bill["SPDXID"], *(one["SPDXID"] for one in bill["packages"] + bill["files"])]
    for name in elements:
        if elements.count(name) > 1:
            wrong.append(f"{name} is more than one element")
        if not re.fullmatch(r"SPDXRef-[A-Za-z0-9.-]+", name):
            wrong.append(f"{name} is no identifier")
    related = set()
    for relation in bill["relationships"]:
        ends = {relation["spdxElementId"], relation["relatedSpdxElement"]}
        related |= ends
        wrong += [f"nothing is called {end}" for end in sorted(ends - set(elements))]
        if relation["relationshipType"] not in RELATIONS:
            wrong.append(f"{relation['relationshipType']} is no relation")
    wrong += [f"{name} is related to nothing" for name in elements if name not in related]
    return wrong


def files(bill: dict, folder: Path, own: str, made: list[str]) -> list[str]:
    wrong = []
    there = {f"./{file.relative_to(folder)}" for file in folder.rglob("*") if file.is_file() and not file.is_symlink()}
    told = {file["fileName"]: file for file in bill["files"]}
    for name in sorted(there ^ {*told, f"./{own}", *(f"./{name}" for name in made)}):
        wrong.append(f"{name} is only {'in the package' if name in there else 'in the bill'}")
    for name in sorted(there & told.keys()):
        for checksum in told[name]["checksums"]:
            actual = hashlib.new(checksum["algorithm"].lower(), (folder / name).read_bytes()).hexdigest()
            if actual != checksum["checksumValue"]:
                wrong.append(f"{name} has another {checksum['algorithm']}")
        if {one["algorithm"] for one in told[name]["checksums"]} != {"SHA1", "SHA256"}:
            wrong.append(f"{name} has other kinds of checksums")
    described = [one for one in bill["packages"] if one["filesAnalyzed"]]
    if len(described) != 1:
        return wrong + [f"{len(described)} packages are described"]
    sums = sorted(one["checksumValue"] for file in told.values() for one in file["checksums"]
                  if one["algorithm"] == "SHA1")
    code = described[0]["packageVerificationCode"]
    if code["packageVerificationCodeValue"] != hashlib.sha1("".join(sums).encode()).hexdigest():
        wrong.append("the verification code is another")
    if code["packageVerificationCodeExcludedFiles"] != [f"./{own}"]:
        wrong.append("the verification code leaves out other files")
    return wrong


def asked_for(file: Path) -> tuple[set[str], set[str]]:
    """The libraries that a program asks for, and all that come along with them."""
    facts = tool("objdump", "-p", str(file))
    if "DLL Name:" in facts:
        return set(re.findall(r"DLL Name: (\S+)", facts)), set()
    everything = {Path(line.split()[0]).name for line in tool("ldd", str(file)).split("\n") if "/" in line}
    return set(re.findall(r"^\s*NEEDED\s+(\S+)", facts, re.MULTILINE)), everything


def linked_in(build: Path, name: str) -> set[str]:
    """Archives of others that a linker took something of, by its own account."""
    (account,) = build.glob(f"*/{name}.map")
    listed = account.read_text(errors="replace").split("Memory Configuration")[0]
    archives = set(re.findall(r"^(\S+\.a)\(", listed, re.MULTILINE))
    return {Path(one).name for one in archives if one.startswith("/") and "/libkorvande_" not in one}


def libraries(bill: dict, folder: Path, build: Path) -> list[str]:
    wrong = []
    names = {one["SPDXID"]: set(one.get("comment", "").removeprefix("As: ").split(", ")) for one in bill["packages"]}
    for told in bill["files"]:
        file = folder / told["fileName"]
        if not file.is_file() or file.read_bytes()[:4] not in (b"\x7fELF", b"MZ\x90\0"):
            continue
        asked, everything = asked_for(file)
        taken = linked_in(build, file.name)
        if not asked:
            wrong.append(f"{file.name} asks for no library")
        for relation, expected in (("DYNAMIC_LINK", asked), ("STATIC_LINK", taken)):
            ends = {one["relatedSpdxElement"] for one in bill["relationships"]
                    if one["spdxElementId"] == told["SPDXID"] and one["relationshipType"] == relation}
            known = set().union(*(names[end] for end in ends if end in names))
            wrong += [f"{file.name}: {relation} does not tell of {name}" for name in sorted(expected - known)]
        known = set().union(*names.values())
        wrong += [f"{file.name}: {name} is not told" for name in sorted(everything - known)]
    return wrong


def licences(bill: dict, folder: Path, own: str) -> list[str]:
    """Whatever is in a file, or around the package, has its terms in the package too."""
    wrong = []
    inside = {one["relatedSpdxElement"] for one in bill["relationships"]
              if one["relationshipType"] in ("STATIC_LINK", "CONTAINS")}
    for package in bill["packages"]:
        if package["SPDXID"] not in inside or package["filesAnalyzed"]:
            continue
        beside = (folder / own).parent
        places = (beside / "parts" / package["name"], beside / "licenties" / f"{package['name']}.txt")
        text = next((one for one in places if one.is_file()), None)
        overview = beside / ("copyright" if (beside / "copyright").is_file() else "licenties.txt")
        if text is None or len(text.read_bytes()) < 500 or b"opyright" not in text.read_bytes():
            wrong.append(f"{package['name']} has no terms in the package")
        elif f"{package['name']} {package['versionInfo']}" not in overview.read_text(encoding="utf-8"):
            wrong.append(f"{package['name']} stands not in {overview.name}")
        # On Windows nothing is there that a text could refer to.
        if text is not None and text.suffix == ".txt":
            for name in set(re.findall(rb"/usr/share/common-licenses/([A-Za-z0-9.-]*\w)", text.read_bytes())):
                if not (beside / "licenties" / f"{name.decode()}.txt").is_file():
                    wrong.append(f"{package['name']} refers to {name.decode()}, which is not in the package")
    return wrong


def private(text: str, build: Path) -> list[str]:
    """No person, no address, no place on the network or on this machine."""
    patterns = (r"https?:", r"\w@[A-Za-z]+\.[A-Za-z]", r"Person:", r"Organization:", "/home/", "/tmp/", "/root/",
                re.escape(str(build)))
    return [f"the bill tells of {found.group()!r}" for found in (re.search(one, text) for one in patterns) if found]


def complaints(folder: Path, own: str, build: Path, made: list[str]) -> list[str]:
    text = (folder / own).read_text(encoding="utf-8")
    bill = json.loads(text)
    return (form(bill) + relations(bill) + files(bill, folder, own, made) + libraries(bill, folder, build) +
            licences(bill, folder, own) + private(text, build))


if __name__ == "__main__":
    found = complaints(Path(sys.argv[1]), sys.argv[2], Path(sys.argv[3]).resolve(), sys.argv[4:])
    for line in found:
        print(f"FAILED: {line}", file=sys.stderr)
    sys.exit(1 if found else 0)
