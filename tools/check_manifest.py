#!/usr/bin/env python3
"""Looks whether Windows programs carry the manifest that the system is to read, and whether it says what it is meant to.

usage: check_manifest.py PROGRAM...

Prints one line per finding; exit code 1 when there is any."""

import struct
import sys
import xml.etree.ElementTree as ElementTree

MANIFEST = 24  # RT_MANIFEST; its number 1 is the one of a program
SYSTEMS = {  # Windows 7, 8, 8.1, and 10 with 11
    "{35138b9a-5d96-4fbd-8e2d-a2440225f93a}", "{4a2f28e3-53b9-4441-ba9c-d69d4a4a6e38}", "{1f676c76-80e1-4239-95bb-83d0f6d0da78}",
    "{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}"}


def resources(image):
    """Offset in the file and address in memory of the resources, of either width of program."""
    header = struct.unpack_from("<I", image, 0x3C)[0] + 4
    count, size = struct.unpack_from("<H", image, header + 2)[0], struct.unpack_from("<H", image, header + 16)[0]
    for i in range(count):
        name, _, address, _, offset = struct.unpack_from("<8s4I", image, header + 20 + size + 40 * i)
        if name.rstrip(b"\0") == b".rsrc":
            return offset, address
    raise ValueError("has no resources")


def entry(image, base, directory, wanted):
    """Where the entry with this number leads, or the first one for None."""
    named, numbered = struct.unpack_from("<2H", image, base + directory + 12)
    for i in range(named + numbered):
        number, to = struct.unpack_from("<2I", image, base + directory + 16 + 8 * i)
        if wanted is None or number == wanted:
            return to & 0x7FFFFFFF
    raise ValueError("has no manifest")


def manifest(image):
    base, address = resources(image)
    data = entry(image, base, entry(image, base, entry(image, base, 0, MANIFEST), 1), None)
    place, size = struct.unpack_from("<2I", image, base + data)
    return image[base + place - address:base + place - address + size]


def findings(program):
    try:
        with open(program, "rb") as file:
            root = ElementTree.fromstring(manifest(file.read()))
    except (OSError, ValueError, struct.error, ElementTree.ParseError) as error:
        yield str(error)
        return
    found = [(element.tag.rpartition("}")[2], element) for element in root.iter()]
    if [element.get("level") for tag, element in found if tag == "requestedExecutionLevel"] != ["asInvoker"]:
        yield "does not run as whoever starts it"
    if {element.get("Id") for tag, element in found if tag == "supportedOS"} != SYSTEMS:
        yield "names other systems"
    if [element.text for tag, element in found if tag == "longPathAware"] != ["true"]:
        yield "takes no long paths"
    for tag in ("dependency", "dpiAware", "dpiAwareness"):
        if tag in dict(found):
            yield "has a %s, by which its windows look otherwise" % tag


def main():
    found = ["%s: %s" % (program, text) for program in sys.argv[1:] for text in findings(program)]
    if found:
        print("\n".join(found), file=sys.stderr)
    return 1 if found or len(sys.argv) < 2 else 0


if __name__ == "__main__":
    sys.exit(main())
