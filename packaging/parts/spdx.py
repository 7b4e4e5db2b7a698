"""A software bill of materials in the form SPDX 2.3, as JSON: the same for the same package."""

import hashlib
import json
import re
import uuid
from datetime import datetime, timezone
from pathlib import Path

import debian
from contents import Contents

UNKNOWN = "NOASSERTION"


def _identifier(kind: str, name: str) -> str:
    return f"SPDXRef-{kind}-{re.sub(r'[^A-Za-z0-9.-]', '-', name)}"


def _system() -> str:
    facts = dict(re.findall(r'^(\w+)="?([^"\n]*)"?$', Path("/etc/os-release").read_text(), re.MULTILINE))
    return facts.get("ID", "debian")


def _part(part: debian.Package, names: set[str]) -> dict:
    licence, debian_name = part.licence()
    version = part.source_version.replace("+", "%2B")
    described = {
        "SPDXID": _identifier("Part", part.source),
        "name": part.source,
        "versionInfo": part.source_version,
        "downloadLocation": UNKNOWN,
        "filesAnalyzed": False,
        "licenseConcluded": UNKNOWN,
        "licenseDeclared": licence,
        "copyrightText": UNKNOWN,
        "comment": f"As: {', '.join(sorted(names))}",
        "externalRefs": [{
            "referenceCategory": "PACKAGE-MANAGER",
            "referenceType": "purl",
            "referenceLocator": f"pkg:deb/{_system()}/{part.source}@{version}?arch=source",
        }],
    }
    if debian_name:
        described["licenseComments"] = f"Called {debian_name} in the package's copyright file."
    return described


class Document:
    """What a package holds, file by file, and of what those files are made."""

    def __init__(self, name: str, version: str):
        self.name = name
        self.version = version
        self.files: list[dict] = []
        self.parts: dict[str, debian.Package] = {}
        self.names: dict[str, set[str]] = {}
        self.windows: set[str] = set()
        self.relations: set[tuple[str, str, str]] = set()
        self.root = _identifier("Package", name)

    def add_file(self, path: str, contents: bytes) -> None:
        identifier = f"SPDXRef-File-{hashlib.sha256(path.encode()).hexdigest()[:16]}"
        sums = [{"algorithm": kind.upper(), "checksumValue": hashlib.new(kind, contents).hexdigest()}
                for kind in ("sha1", "sha256")]
        self.files.append({"SPDXID": identifier, "fileName": f"./{path}", "checksums": sums,
                           "licenseConcluded": UNKNOWN, "copyrightText": UNKNOWN})
        self.relations.add((self.root, "CONTAINS", identifier))

    def add_contents(self, path: str, contents: Contents) -> None:
        file = next(entry["SPDXID"] for entry in self.files if entry["fileName"] == f"./{path}")
        for group, relation in ((contents.linked, "DYNAMIC_LINK"), (contents.archives, "STATIC_LINK"),
                                (contents.headers_only(), "STATIC_LINK")):
            for found, part in group.items():
                self.relations.add((file, relation, self.add_part(part, _shown(found, part))))
        for group, relation in ((contents.loaded, "RUNTIME_DEPENDENCY_OF"), (contents.behind, "RUNTIME_DEPENDENCY_OF"),
                                (contents.headers, "BUILD_DEPENDENCY_OF")):
            for found, part in group.items():
                self.relations.add((self.add_part(part, _shown(found, part)), relation, self.root))
        if contents.system:
            self.windows |= contents.system
            self.relations.add((file, "DYNAMIC_LINK", "SPDXRef-Part-Windows"))

    def add_part(self, part: debian.Package, name: str) -> str:
        self.parts[part.source] = part
        self.names.setdefault(part.source, set()).add(name)
        return _identifier("Part", part.source)

    def add_contained(self, part: debian.Package) -> None:
        self.relations.add((self.root, "CONTAINS", self.add_part(part, part.name)))

    def text(self, own_path: str, moment: int) -> str:
        files = sorted(self.files, key=lambda entry: entry["fileName"])
        sums = sorted(entry["checksums"][0]["checksumValue"] for entry in files)
        package = {
            "SPDXID": self.root,
            "name": self.name,
            "versionInfo": self.version,
            "downloadLocation": UNKNOWN,
            "filesAnalyzed": True,
            "packageVerificationCode": {
                "packageVerificationCodeValue": hashlib.sha1("".join(sums).encode()).hexdigest(),
                "packageVerificationCodeExcludedFiles": [f"./{own_path}"],
            },
            "licenseConcluded": UNKNOWN,
            "licenseDeclared": UNKNOWN,
            "copyrightText": UNKNOWN,
        }
        packages = [package] + [_part(part, self.names[source]) for source, part in sorted(self.parts.items())]
        if self.windows:
            packages.append({"SPDXID": "SPDXRef-Part-Windows", "name": "Windows", "downloadLocation": UNKNOWN,
                             "filesAnalyzed": False, "licenseConcluded": UNKNOWN, "licenseDeclared": UNKNOWN,
                             "copyrightText": UNKNOWN, "comment": f"As: {', '.join(sorted(self.windows))}"})
        document = {
            "spdxVersion": "SPDX-2.3",
            "dataLicense": "CC0-1.0",
            "SPDXID": "SPDXRef-DOCUMENT",
            "name": f"{self.name}-{self.version}",
            "creationInfo": {
                "created": datetime.fromtimestamp(moment, timezone.utc).strftime("%Y-%m-%dT%H:%M:%SZ"),
                "creators": ["Tool: packaging/parts/describe.py"],
            },
            "packages": packages,
            "files": files,
            "relationships": [{"spdxElementId": one, "relationshipType": relation, "relatedSpdxElement": other}
                              for one, relation, other in
                              [("SPDXRef-DOCUMENT", "DESCRIBES", self.root), *sorted(self.relations)]],
        }
        # A name of its own for every contents, which is no place where anything could be fetched.
        contents = json.dumps(document, sort_keys=True).encode()
        document["documentNamespace"] = uuid.uuid5(uuid.NAMESPACE_OID, hashlib.sha256(contents).hexdigest()).urn
        return json.dumps(document, indent=1, ensure_ascii=False) + "\n"


def _shown(found: str, part: debian.Package) -> str:
    """A library or an archive by its name, headers by that of their package."""
    return Path(found).name if re.search(r"\.(a|o|so)\b", Path(found).name) else part.name
