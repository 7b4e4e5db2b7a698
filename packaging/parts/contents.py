"""Of what a program, a shared library or a static one is made: told by the file itself, by the map that was made when
it was linked, and by the headers that its objects were compiled with."""

import re
import subprocess
from dataclasses import dataclass, field
from pathlib import Path

import debian

# Their headers tell what the system looks like and hold no code to speak of.
DECLARATIONS = {"glibc", "linux"}
ARCHIVE_MEMBER = re.compile(r"^(/\S+?)\(\S+\)$", re.MULTILINE)
OWN_MEMBER = re.compile(r"^(\w+)/lib(\w+)\.a\((\S+)\)$", re.MULTILINE)
OWN_OBJECT = re.compile(r"^LOAD ([^/\s]\S*\.o(?:bj)?)$", re.MULTILINE)
# But for what link-time optimisation makes of our own objects, in the folder for temporary files.
LOADED_OBJECT = re.compile(r"^LOAD (/\S+(?<!\.ltrans)\.o)$", re.MULTILINE)


def _output(*command: str, cwd: Path | None = None) -> str:
    environment = {"PATH": "/usr/bin:/bin", "LC_ALL": "C"}
    return subprocess.run(command, check=True, capture_output=True, text=True, cwd=cwd, env=environment).stdout


@dataclass
class Contents:
    """Names of libraries, archives and headers, each with the package that it comes from."""

    linked: dict[str, debian.Package] = field(default_factory=dict)  # asked for by the file
    loaded: dict[str, debian.Package] = field(default_factory=dict)  # when they are needed
    behind: dict[str, debian.Package] = field(default_factory=dict)  # asked for by those
    system: set[str] = field(default_factory=set)  # libraries of Windows
    archives: dict[str, debian.Package] = field(default_factory=dict)  # linked in
    headers: dict[str, debian.Package] = field(default_factory=dict)  # compiled in

    def elsewhere(self) -> set[str]:
        """The sources of what is not in the file but beside it, on the user's machine."""
        return {part.source for group in (self.linked, self.loaded, self.behind) for part in group.values()}

    def headers_only(self) -> dict[str, debian.Package]:
        """What is in the file by its headers alone."""
        known = self.elsewhere() | {part.source for part in self.archives.values()} | DECLARATIONS
        return {header: part for header, part in self.headers.items() if part.source not in known}


class Build:
    """A folder that was built in, by Ninja."""

    def __init__(self, folder: Path):
        self.folder = folder.resolve()
        cache = dict(re.findall(r"^([^:#/]+):\w+=(.*)$", (folder / "CMakeCache.txt").read_text(), re.MULTILINE))
        self.source = Path(cache["CMAKE_HOME_DIRECTORY"])
        # Libraries that were built for Windows here, of the source that these packages were made of.
        self.built = {}
        if cache.get("KORVANDE_SQLITE"):
            self.built[cache["KORVANDE_SQLITE"]] = debian.package("libsqlite3-dev")
        if cache.get("wxWidgets_CONFIG_EXECUTABLE", "").startswith("/") and cache.get("KORVANDE_SQLITE"):
            self.built[str(Path(cache["wxWidgets_CONFIG_EXECUTABLE"]).parent.parent)] = debian.package("wx3.2-i18n")

    def part(self, path: str) -> debian.Package | None:
        """The package that a file comes from; none when it is our own."""
        headers = f"{self.folder}/headers/"
        if path.startswith(headers):
            return debian.owner(f"/usr/include/{path.removeprefix(headers)}")
        for folder, part in self.built.items():
            if path.startswith(f"{folder}/"):
                # Nothing else was built into it: such a library would have a name of its own.
                if path.endswith(".a") and not re.fullmatch(r"libwx_(base|msw).*|libsqlite3\.a", Path(path).name):
                    raise debian.Unknown(path)
                return part
        return None if Path(path).is_relative_to(self.source) else debian.owner(path)

    def find(self, name: str) -> Path | None:
        """What was built under this name."""
        return next(iter(sorted(self.folder.glob(f"*/{name}"))), None)

    def objects(self, target: Path) -> set[str]:
        """Our own objects that were taken into a file."""
        if target.suffix == ".a":
            asked = _output("ninja", "-t", "query", str(target.relative_to(self.folder)), cwd=self.folder)
            return set(re.findall(r"^    (\S+\.o(?:bj)?)$", asked, re.MULTILINE))
        listed = self.linked(target)
        members = {f"{room}/CMakeFiles/{name}.dir/{member}" for room, name, member in OWN_MEMBER.findall(listed)}
        return members | set(OWN_OBJECT.findall(listed))

    def headers(self, target: Path) -> dict[str, debian.Package]:
        objects = sorted(self.objects(target))
        if not objects:
            raise debian.Unknown(f"the objects of {target}")
        listed = _output("ninja", "-t", "deps", *objects, cwd=self.folder)
        paths = {str((self.folder / line.strip()).resolve()) for line in listed.split("\n") if line.startswith(" ")}
        return _parts(self, paths)

    def linked(self, target: Path) -> str:
        """What the linker told of its work."""
        return target.with_name(f"{target.name}.map").read_text(errors="replace")

    def archives(self, target: Path) -> dict[str, debian.Package]:
        listed = self.linked(target)
        return _parts(self, set(ARCHIVE_MEMBER.findall(listed) + LOADED_OBJECT.findall(listed)))


def _parts(build: Build, paths: set[str]) -> dict[str, debian.Package]:
    found = {}
    for path in sorted(paths):
        part = build.part(path)
        if part:
            found[path] = part
    return found


def _look_into_elf(file: Path, contents: Contents) -> None:
    asked = set(re.findall(r"\(NEEDED\).*\[(.*)\]", _output("readelf", "--wide", "--dynamic", str(file))))
    places = dict(re.findall(r"^\s*(?:(\S+) => )?(/\S+) \(", _output("ldd", str(file)), re.MULTILINE))
    for name, place in sorted(places.items()):
        name = name or Path(place).name
        (contents.linked if name in asked else contents.behind)[name] = debian.owner(place)


def _look_for_loaded(file: Path, contents: Contents) -> None:
    known = {line.split()[0]: line.split()[-1] for line in _output("/sbin/ldconfig", "-p").split("\n") if "=>" in line}
    for name in sorted(set(re.findall(rb"\b(lib[a-z0-9+-]+\.so\.\d+)\0", file.read_bytes()))):
        name = name.decode()
        if name not in contents.linked and name in known:
            contents.loaded[name] = debian.owner(known[name])


def look_into(file: Path, build: Build) -> Contents:
    """Of what a file that was built is made; of a static library what its objects were compiled with."""
    contents = Contents()
    target = build.find(file.name)
    if target is None:
        raise debian.Unknown(str(file))
    contents.headers = build.headers(target)
    if file.suffix in (".exe", ".dll"):
        contents.system = set(re.findall(r"^\s*DLL Name: (\S+)", _output("objdump", "-p", str(file)), re.MULTILINE))
        contents.archives = build.archives(target)
        return contents
    if file.suffix != ".a":
        _look_into_elf(file, contents)
        contents.archives = build.archives(target)
    _look_for_loaded(file, contents)
    return contents
