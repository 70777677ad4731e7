#!/usr/bin/env python3
"""Looks for what the compiler lets pass: includes that point up, sources that don't begin with their own header, system names
in the portable core, switched-off tests, files that have grown too long. Prints one line per finding; exit code 1 when there is any."""

import os
import re
import sys

# Longest prefix wins. A file may include from lower floors, and on its own floor from its own folder alone.
FLOORS = {
    "platform": 0, "files/xml": 0, "session/base": 0,
    "definition": 1,
    "acquisition": 2, "logging": 2, "files/adx": 2, "files/ads": 2,
    "controls": 3, "export/text": 3,
    "session": 4, "export": 4,
    "session/diagnosis": 5, "checking": 5,
    "views": 6,
    "session/window": 7,
    "apps": 8,
}
# Folders of one floor that stand on one another by design.
SIBLINGS = {
    ("session/base", "platform"),   # the stopwatch reads the clock
    ("files/xml", "platform"),      # its files are opened with the sharing told
    ("logging", "acquisition"),     # the log's callback extends the engine's
    ("files/ads", "files/adx"),
}
SOURCES = ("platform", "files", "definition", "acquisition", "logging", "controls", "export", "session", "checking",
           "views", "apps", "bench", "tests", "tools")
# The desktop may name the system, but for the models of its controls and pages, which build everywhere.
DESKTOP = ("controls/", "views/", "session/window/", "apps/desktop/", "apps/editor/", "tests/platform/",
           "tests/controls/", "tests/views/", "tests/session/window/", "tests/apps/desktop/", "tests/apps/editor/",
           "tests/program/", "tools/", "bench/desktop/", "bench/gauges/")
ANY_INCLUDE = re.compile(r'^\s*#\s*include\s*["<]([^">]+)[">]', re.M)
INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"', re.M)
SYSTEM = re.compile(r"<windows\.h>|\b_WIN32\b|\b__linux__\b|\bHWND\b|\bHDC\b")
ASLEEP = re.compile(r"\bDISABLED_|GTEST_SKIP|#\s*if 0\b|sleep_for\(|\busleep\(|[^\w]Sleep\(\d{2,}")
LINE_LIMIT = 1000


def folder_of(path):
    parts = os.path.dirname(path).split("/")
    for n in range(len(parts), 0, -1):
        name = "/".join(parts[:n])
        if name in FLOORS:
            return name
    return None


def wrong_include(path, target):
    home, other = folder_of(path), folder_of(target)
    if home is None or other is None or home == other:
        return False
    return FLOORS[other] > FLOORS[home] or (FLOORS[other] == FLOORS[home] and (home, other) not in SIBLINGS)


def findings(root):
    for top in SOURCES:
        for base, _, names in os.walk(os.path.join(root, top)):
            for name in sorted(names):
                if not name.endswith((".h", ".cpp")):
                    continue
                full = os.path.join(base, name)
                path = os.path.relpath(full, root)
                with open(full, encoding="utf-8") as source:
                    text = source.read()
                own_header = name.endswith(".cpp") and name[:-4] + ".h" in names
                yield from check_file(path, text, own_header)


def check_file(path, text, own_header):
    """own_header: whether a header of the same name lies beside the source."""
    for target in INCLUDE.findall(text):
        if wrong_include(path, target):
            yield f"{path}: includes {target}, which is not below it"
    # So the source shows that its header stands alone: the build checks only those that have none.
    if own_header and ANY_INCLUDE.findall(text)[:1] != [path[:-4] + ".h"]:
        yield f"{path}: does not begin with its own header"
    seam = path.startswith("platform/") and ("_win32." in path or path == "platform/WindowsApi.h" or "_posix." in path)
    desktop = path.startswith(DESKTOP) and not re.search(r"Model(Test)?\.(h|cpp)$", path)
    if not seam and not desktop:
        for found in SYSTEM.findall(text):
            yield f"{path}: names the system outside the seam: {found}"
    if path.endswith(".h") and "#pragma once" not in text:
        yield f"{path}: no #pragma once"
    if path.startswith("tests/"):
        for found in ASLEEP.findall(text):
            yield f"{path}: a test that is switched off or sleeps: {found}"
    if text.count("\n") > LINE_LIMIT:
        yield f"{path}: more than {LINE_LIMIT} lines"


def main():
    found = list(findings(sys.argv[1] if len(sys.argv) > 1 else "."))
    for line in found:
        print(line)
    print(f"{len(found)} findings")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
