"""What this machine's Debian packages know: which of them a file is part of, their versions and their licences."""

import functools
import os
import re
import subprocess
from pathlib import Path

# Debian's short names of licences that SPDX has under another name or the same.
SPDX_NAMES = {
    "Apache-2.0": "Apache-2.0",
    "BSD-2-clause": "BSD-2-Clause",
    "BSD-3-clause": "BSD-3-Clause",
    "Expat": "MIT",
    "GPL-2+": "GPL-2.0-or-later",
    "GPL-3+": "GPL-3.0-or-later",
    "LGPL-2+": "LGPL-2.0-or-later",
    "LGPL-2.1": "LGPL-2.1-only",
    "LGPL-2.1+": "LGPL-2.1-or-later",
    "LGPL-3+": "LGPL-3.0-or-later",
    "MIT": "MIT",
    "ZPL-2.1": "ZPL-2.1",
    "Zlib": "Zlib",
    "wxWindows": "LGPL-2.0-or-later WITH WxWindows-exception-3.1",
}
# Those whose copyright file is not in the form that a program can read, but says this of what is linked.
RUNTIME_LIBRARIES = "GPL-3.0-or-later WITH GCC-exception-3.1"
KNOWN_LICENCES = {
    "gcc-12": RUNTIME_LIBRARIES,
    "gcc-mingw-w64": RUNTIME_LIBRARIES,
    "glibc": "LGPL-2.1-or-later",
}


class Unknown(Exception):
    """A file that no installed package has."""


class Package:
    """An installed package: the source that it was made of is what counts as a part."""

    def __init__(self, name: str):
        form = "${Package}\\n${Version}\\n${source:Package}\\n${source:Version}\\n${Architecture}\\n"
        facts = subprocess.run(["dpkg-query", "-W", f"-f={form}", name], check=True, capture_output=True, text=True)
        self.name, self.version, self.source, self.source_version, self.architecture = facts.stdout.split()[:5]
        self.copyright_file = Path("/usr/share/doc") / self.name / "copyright"

    def licence(self) -> tuple[str, str]:
        """The licence in SPDX's words, or NOASSERTION, and what Debian calls it."""
        text = self.copyright_file.read_text(encoding="utf-8", errors="replace")
        whole = re.search(r"^Files: *\*\n(?:.+\n)*?License: *(\S.*)$", text, re.MULTILINE)
        debian = whole.group(1).strip() if whole else ""
        return KNOWN_LICENCES.get(self.source) or SPDX_NAMES.get(debian, "NOASSERTION"), debian


@functools.cache
def package(name: str) -> Package:
    return Package(name)


@functools.cache
def _owners() -> dict[str, str]:
    """The package of every file, of all that are installed: asked for one by one they take minutes."""
    found = {}
    for listed in Path("/var/lib/dpkg/info").glob("*.list"):
        name = listed.stem.split(":")[0]
        found.update(dict.fromkeys(listed.read_text(errors="replace").split("\n"), name))
    return found


def owner(path: str) -> Package:
    """The package that a file of this machine is part of."""
    plain, real = os.path.normpath(path), os.path.realpath(path)
    # Debian's libraries moved below /usr, but not yet in the books of each package.
    for known in (plain, real, real.removeprefix("/usr")):
        if known in _owners():
            return package(_owners()[known])
    raise Unknown(path)
