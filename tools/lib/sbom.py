#!/usr/bin/env python3
"""sbom.py --root FOLDER --output FILE [--name NAME] [--files LIST]: tells what a package consists of, in SPDX 2.3.

Lists the files below FOLDER, or those named in LIST (one a line, as cmake --install writes them), with their checksums, and
what else is needed: the libraries that the shared objects among them load, and the data. The same files give the same
list: its date is SOURCE_DATE_EPOCH, or that of the change log.
"""

import argparse
import datetime
import hashlib
import json
import os
import re
import shutil
import subprocess
import uuid
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
CC0_FILES = {"penguins.csv"}


def version():
    return re.search(r"^project\(VecMat VERSION ([0-9.]+)", (ROOT / "CMakeLists.txt").read_text(encoding="utf-8"), re.M)[1]


def created():
    """When the package was made, so that two builds of one commit agree."""
    if "SOURCE_DATE_EPOCH" in os.environ:
        moment = datetime.datetime.fromtimestamp(int(os.environ["SOURCE_DATE_EPOCH"]), datetime.timezone.utc)
    else:
        day = re.search(r"^## \[\d.*\] - (\S+)$", (ROOT / "CHANGELOG.md").read_text(encoding="utf-8"), re.M)[1]
        moment = datetime.datetime.fromisoformat(day)
    return moment.strftime("%Y-%m-%dT%H:%M:%SZ")


def needed_libraries(paths):
    """The names of the libraries that ELF files among these load, without those that are among them."""
    if not shutil.which("readelf"):
        return []
    needed, own = set(), {path.name for path in paths}
    for path in paths:
        with open(path, "rb") as file:
            if file.read(4) != b"\x7fELF":
                continue
        dynamic = subprocess.run(["readelf", "-d", path], check=True, capture_output=True, text=True).stdout
        needed |= set(re.findall(r"\(NEEDED\).*\[(.+)\]", dynamic))
        own |= set(re.findall(r"\(SONAME\).*\[(.+)\]", dynamic))
    return sorted(needed - own)


def digest(algorithm, data):
    return {"algorithm": algorithm, "checksumValue": hashlib.new(algorithm.lower(), data).hexdigest()}


def describe_file(number, name, data):
    license_id = "CC0-1.0" if Path(name).name in CC0_FILES else "MIT"
    return {"SPDXID": f"SPDXRef-File-{number}", "fileName": f"./{name}",
            "checksums": [digest("SHA1", data), digest("SHA256", data)], "licenseConcluded": license_id,
            "copyrightText": "NOASSERTION"}


def describe(name, root, paths):
    files = [describe_file(number, path.relative_to(root).as_posix(), path.read_bytes())
             for number, path in enumerate(paths, start=1)]
    sha1s = "".join(sorted(file["checksums"][0]["checksumValue"] for file in files))
    code = hashlib.sha1(sha1s.encode("ascii")).hexdigest()
    package = {"SPDXID": "SPDXRef-Package", "name": name, "versionInfo": version(), "downloadLocation": "NOASSERTION",
               "filesAnalyzed": True, "packageVerificationCode": {"packageVerificationCodeValue": code},
               "licenseConcluded": "NOASSERTION", "licenseDeclared": "MIT", "copyrightText": "2026 the VecMat authors",
               "supplier": "Organization: the VecMat authors"}
    libraries = [{"SPDXID": f"SPDXRef-Library-{re.sub('[^A-Za-z0-9.-]', '-', library)}", "name": library,
                  "downloadLocation": "NOASSERTION", "filesAnalyzed": False}
                 for library in needed_libraries(paths)]
    relations = [("SPDXRef-DOCUMENT", "DESCRIBES", "SPDXRef-Package")]
    relations += [("SPDXRef-Package", "CONTAINS", file["SPDXID"]) for file in files]
    relations += [("SPDXRef-Package", "DYNAMIC_LINK", library["SPDXID"]) for library in libraries]
    return {"spdxVersion": "SPDX-2.3", "dataLicense": "CC0-1.0", "SPDXID": "SPDXRef-DOCUMENT", "name": f"{name}-{version()}",
            "documentNamespace": f"urn:uuid:{uuid.uuid5(uuid.NAMESPACE_OID, name + version() + code)}",
            "creationInfo": {"created": created(), "creators": ["Tool: VecMat tools/lib/sbom.py"]},
            "packages": [package, *libraries], "files": files,
            "relationships": [{"spdxElementId": a, "relationshipType": kind, "relatedSpdxElement": b}
                              for a, kind, b in relations]}


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--root", type=Path, required=True, help="the folder to which the files' names are relative")
    parser.add_argument("--output", type=Path, required=True)
    parser.add_argument("--name", default="vecmat")
    parser.add_argument("--files", help="the files, separated by semicolons or in lines; - reads them")
    arguments = parser.parse_args()

    root = arguments.root.resolve()
    if arguments.files is None:
        candidates = root.rglob("*")
    else:
        candidates = (Path(line) for line in re.split(r"[;\n]", Path(arguments.files).read_text(encoding="utf-8")) if line)
    output = arguments.output.absolute()
    paths = sorted(path for path in candidates if path.is_file() and not path.is_symlink() and path.absolute() != output
                   and "DEBIAN" not in path.parts)
    if not paths:
        parser.error(f"no files below {root}")
    output.parent.mkdir(parents=True, exist_ok=True)
    output.write_text(json.dumps(describe(arguments.name, root, paths), indent=1) + "\n", encoding="utf-8")


if __name__ == "__main__":
    main()
