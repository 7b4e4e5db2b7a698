"""Adds to what is about to be packed what it is made of: a software bill of materials, and the licences of all parts of
others that are in it. CPack runs it (DescribeParts.cmake) for every package, before that is made."""

import argparse
import os
import re
from pathlib import Path

import debian
from contents import Build, Contents, look_into
from spdx import Document

COMMON_LICENCES = Path("/usr/share/common-licenses")
BINARY = re.compile(r"\.(exe|dll|a)$|\.so(\.\d+)*$")
DUTCH_HEAD = """Onderdelen van anderen in {name} {version}

Van {name} zelf staat hier geen licentie. In de programma's zijn onderdelen van anderen opgenomen, elk onder
voorwaarden van de makers ervan; de volledige teksten staan in de map licenties.

"""


def is_binary(file: Path) -> bool:
    """A program or a library: what was linked or compiled."""
    with file.open("rb") as opened:
        start = opened.read(8)
    return start.startswith((b"\x7fELF", b"!<arch>\n")) or (start.startswith(b"MZ") and BINARY.search(file.name))


def inside(contents: dict[str, Contents]) -> dict[str, tuple[debian.Package, set[str]]]:
    """The parts that are in files of the package, with those files."""
    found: dict[str, tuple[debian.Package, set[str]]] = {}
    for path, one in contents.items():
        for part in (*one.archives.values(), *one.headers_only().values()):
            found.setdefault(part.source, (part, set()))[1].add(path)
    return dict(sorted(found.items()))


def write(file: Path, text: str, line_end: str = "\n") -> None:
    file.parent.mkdir(mode=0o755, parents=True, exist_ok=True)
    file.write_bytes(text.replace("\n", line_end).encode())
    file.chmod(0o644)


def licence_name(part: debian.Package) -> str:
    spdx, debian_name = part.licence()
    return spdx if spdx != "NOASSERTION" else debian_name or part.source


def copyright_text(part: debian.Package) -> str:
    return part.copyright_file.read_text(encoding="utf-8", errors="replace")


def write_debian_licences(folder: Path, name: str, parts: dict[str, tuple[debian.Package, set[str]]]) -> None:
    """The copyright file of a Debian package, and beside it those of what is in it."""
    stanzas = [f"Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/\nUpstream-Name: {name}\n",
               "Files: *\nCopyright: not stated\nLicense: not-stated\n"
               f" No licence of {name} itself has been stated.\n"]
    for path in sorted({path for _, paths in parts.values() for path in paths}):
        within = [part for part, paths in parts.values() if path in paths]
        names = sorted({licence_name(part) for part in within})
        listed = "".join(f"\n {part.source} {part.source_version}: parts/{part.source}" for part in within)
        stanzas.append(f"Files: {path}\nCopyright: not stated, and those of its parts\n"
                       f"License: {' and '.join(['not-stated', *names])}\n"
                       f"Comment: In this file are parts of others, whose terms stand beside this one:{listed}\n")
    for licence in sorted({licence_name(part) for part, _ in parts.values()}):
        where = [f"parts/{part.source}" for part, _ in parts.values() if licence_name(part) == licence]
        stanzas.append(f"License: {licence}\n Its text, and who holds the rights: {', '.join(where)}\n")
    write(folder / "copyright", "\n".join(stanzas))
    for part, _ in parts.values():
        write(folder / "parts" / part.source, copyright_text(part))


def write_windows_licences(folder: Path, name: str, version: str,
                           parts: dict[str, tuple[debian.Package, set[str]]]) -> None:
    """Texts for Windows, where no licences are on the machine that others could refer to."""
    text = DUTCH_HEAD.format(name=name, version=version)
    referred: set[str] = set()
    for part, paths in parts.values():
        text += f"{part.source} {part.source_version}\n  licentie: {licence_name(part)}\n"
        text += f"  in: {', '.join(sorted(paths))}\n  tekst: licenties\\{part.source}.txt\n\n"
        own = copyright_text(part)
        referred |= set(re.findall(rf"{COMMON_LICENCES}/([A-Za-z0-9.-]*\w)", own))
        write(folder / "licenties" / f"{part.source}.txt", own, "\r\n")
    text += "Waar die teksten naar een licentie in /usr/share/common-licenses verwijzen, is dat een van deze:\n\n"
    for licence in sorted(referred):
        text += f"  licenties\\{licence}.txt\n"
        write(folder / "licenties" / f"{licence}.txt", (COMMON_LICENCES / licence).read_text(), "\r\n")
    write(folder / "licenties.txt", text, "\r\n")


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", type=Path, required=True, help="where the programs were built")
    parser.add_argument("--name", required=True, help="of the package")
    parser.add_argument("--version", required=True)
    parser.add_argument("--folder", default="", help="where the descriptions go, below the staged folder")
    parser.add_argument("--around", help="the Debian package of the program that is put around all of it")
    parser.add_argument("staged", type=Path, help="the folder with what will be packed")
    arguments = parser.parse_args()

    build = Build(arguments.build)
    staged: Path = arguments.staged
    files = sorted(file for file in staged.rglob("*") if file.is_file() and not file.is_symlink())
    contents = {str(file.relative_to(staged)): look_into(file, build) for file in files if is_binary(file)}
    parts = inside(contents)
    document = Document(arguments.name, arguments.version)
    if arguments.around:
        around = debian.package(arguments.around)
        parts[around.source] = (around, {f"{arguments.name}-{arguments.version}-setup.exe"})
        document.add_contained(around)
    folder = staged / arguments.folder
    if arguments.folder:
        write_debian_licences(folder, "KORVANDE", parts)
    else:
        write_windows_licences(folder, arguments.name, arguments.version, parts)

    bill = folder / f"{arguments.name}.spdx.json"
    bill.unlink(missing_ok=True)
    for file in sorted(file for file in staged.rglob("*") if file.is_file() and not file.is_symlink()):
        document.add_file(str(file.relative_to(staged)), file.read_bytes())
    for path, one in contents.items():
        document.add_contents(path, one)
    moment = int(os.environ["SOURCE_DATE_EPOCH"])
    write(bill, document.text(str(bill.relative_to(staged)), moment))
    for path in (*staged.rglob("*"), staged):
        os.utime(path, (moment, moment), follow_symlinks=False)


if __name__ == "__main__":
    main()
