#!/usr/bin/env python3
"""Looks whether the rendered art that the resource script takes is what Windows and the code expect: sizes, colour depth, the
mask colour, one image for each drawing. Prints one line per finding; exit code 1 when there is any."""

import os
import struct
import sys

IMAGES, SIDE = 45, 16
MASK = (255, 0, 255)
ICONS = {"corvex.ico": (16, 24, 32, 48, 256), "corvex-small.ico": (16, 24, 32)}


class Wrong(Exception):
    pass


def bitmap(path, width, height):
    """Rows of (r, g, b), top first."""
    with open(path, "rb") as f:
        data = f.read()
    if len(data) < 54 or data[:2] != b"BM":
        raise Wrong("is no bitmap")
    start, head, w, h, planes, depth, packed = struct.unpack("<IIiiHHI", data[10:34])
    if (w, h) != (width, height):
        raise Wrong("is %d by %d, not %d by %d" % (w, h, width, height))
    if (head, planes, depth, packed) != (40, 1, 24, 0):
        raise Wrong("isn't a plain 24 bit bitmap")
    stride = (width * 3 + 3) // 4 * 4
    if len(data) != start + stride * height:
        raise Wrong("has %d bytes" % len(data))
    rows = []
    for y in reversed(range(height)):
        line = data[start + y * stride:start + y * stride + width * 3]
        rows.append([(line[x + 2], line[x + 1], line[x]) for x in range(0, width * 3, 3)])
    return rows


def fringe(pixel):
    """True for what an edge blended with the mask colour looks like: red and blue both well above green."""
    r, g, b = pixel
    return pixel != MASK and min(r, b) - g > 40


def check_toolbar(path):
    rows = bitmap(path, IMAGES * SIDE, SIDE)
    seen = {}
    for n in range(IMAGES):
        image = [row[n * SIDE:(n + 1) * SIDE] for row in rows]
        pixels = [p for row in image for p in row]
        drawn = sum(p != MASK for p in pixels)
        if drawn < 40:
            yield "image %d is as good as empty: %d pixels" % (n, drawn)
        if drawn > SIDE * SIDE - 20:
            yield "image %d has no background: %d pixels drawn" % (n, drawn)
        if any(map(fringe, pixels)):
            yield "image %d has pixels blended with the mask colour" % n
        twin = seen.setdefault(str(image), n)
        if twin != n:
            yield "images %d and %d are the same" % (twin, n)


def check_splash(path):
    """The program writes its build into the place at 260, 111, in black."""
    rows = bitmap(path, 440, 180)
    place = {p for row in rows[111:130] for p in row[260:430]}
    if len(place) > 40 or min(min(p) for p in place) < 200:
        yield "has no plain light place for the build line"
    if len({p for row in rows for p in row}) < 50:
        yield "is as good as empty"


def check_icon(path, sizes):
    with open(path, "rb") as f:
        data = f.read()
    if len(data) < 6 + 16 * len(sizes) or struct.unpack("<HHH", data[:6]) != (0, 1, len(sizes)):
        raise Wrong("isn't an icon with %d images" % len(sizes))
    end = 6 + 16 * len(sizes)
    for n, size in enumerate(sizes):
        w, h, _, _, planes, depth, length, at = struct.unpack("<BBBBHHII", data[6 + 16 * n:22 + 16 * n])
        entry = data[at:at + length]
        if (w, h, planes, depth, at, len(entry)) != (size & 255, size & 255, 1, 32, end, length):
            yield "entry %d isn't an image of %d pixels in 32 bit" % (n, size)
            continue
        end += length
        if size >= 256:
            if entry[:8] != b"\x89PNG\r\n\x1a\n" or struct.unpack(">II", entry[16:24]) != (size, size):
                yield "entry %d isn't a PNG of %d pixels" % (n, size)
        elif struct.unpack("<IiiHHI", entry[:20]) != (40, size, 2 * size, 1, 32, 0):
            yield "entry %d has the wrong bitmap header" % n
        elif length != 40 + size * size * 4 + (size + 31) // 32 * 4 * size:
            yield "entry %d has %d bytes" % (n, length)
        elif len(set(entry[43:40 + size * size * 4:4])) < 2:
            yield "entry %d has no transparent corner" % n
    if end != len(data):
        yield "ends with bytes of no image"


def check_drawings(art):
    """One drawing for each image, and a line in the table for each."""
    names = sorted(n for n in os.listdir(os.path.join(art, "toolbar")))
    if [n[:3] for n in names] != ["%02d-" % n for n in range(IMAGES)]:
        yield "doesn't hold one drawing for each number from 00 to %d" % (IMAGES - 1)
    with open(os.path.join(art, "README.md"), encoding="utf-8") as f:
        table = f.read()
    for name in names:
        if "| %d | `%s` |" % (int(name[:2]), name) not in table:
            yield name + " isn't in the table of README.md"


def main():
    art = os.path.join(sys.argv[1], "art")
    rendered = os.path.join(art, "rendered")
    checks = [("toolbar.bmp", check_toolbar, ()), ("splash.bmp", check_splash, ())]
    checks += [(name, check_icon, (sizes,)) for name, sizes in sorted(ICONS.items())]
    found = ["art/toolbar: " + text for text in check_drawings(art)]
    for name, check, more in checks:
        try:
            found += ["%s: %s" % (name, text) for text in check(os.path.join(rendered, name), *more)]
        except (Wrong, OSError) as error:
            found.append("%s: %s" % (name, error))
    print("\n".join(found) if found else "The art is whole.")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
