#!/usr/bin/env python3
"""Renders the drawings of this folder into rendered/, which is kept in the tree so that a build needs no renderer.

usage: render.py [--check | --preview FOLDER]

--check writes nothing; exit code 1 when a rendered file isn't what the drawings give.
--preview also writes enlarged PNGs into FOLDER, for the eye.
Needs rsvg-convert (Debian: librsvg2-bin); the rest is the standard library."""

import os
import struct
import subprocess
import sys
import zlib

HERE = os.path.dirname(os.path.abspath(__file__))
IMAGES = 45
MASK = (255, 0, 255)
# The face of a toolbar. Edge pixels are blended with it here, because an image list knows a pixel only as drawn or not drawn.
FACE = (240, 240, 240)
# Below this a pixel is left out: such a faint edge would show as a speck on any other colour.
FAINTEST = 40


def rgba(svg, width, height):
    """The drawing at that size, as rows of (r, g, b, a)."""
    png = subprocess.run(["rsvg-convert", "-w", str(width), "-h", str(height), svg], check=True, capture_output=True).stdout
    at, data = 8, b""
    while at < len(png):
        length, kind = struct.unpack(">I4s", png[at:at + 8])
        body = png[at + 8:at + 8 + length]
        if kind == b"IHDR":
            # The renderer leaves the alpha out where a drawing covers all.
            step = {(8, 2, 0): 3, (8, 6, 0): 4}.get((body[8], body[9], body[12]), 0)
            if not step or struct.unpack(">II", body[:8]) != (width, height):
                sys.exit(svg + ": the renderer gave another kind of PNG than asked for")
        if kind == b"IDAT":
            data += body
        at += length + 12
    data, stride, prior, rows = zlib.decompress(data), width * step, bytearray(width * step), []
    for y in range(height):
        line = data[y * (stride + 1):(y + 1) * (stride + 1)]
        prior = unfilter(line[0], bytearray(line[1:]), prior, step)
        rows.append([tuple(prior[x:x + step]) + (255,) * (4 - step) for x in range(0, stride, step)])
    return rows


def unfilter(kind, row, prior, step):
    for i in range(len(row)):
        left, up, corner = (row[i - step], prior[i], prior[i - step]) if i >= step else (0, prior[i], 0)
        nearest = min((abs(up - corner), 0, left), (abs(left - corner), 1, up), (abs(left + up - 2 * corner), 2, corner))[2]
        row[i] = (row[i] + (0, left, up, (left + up) // 2, nearest)[kind]) & 255
    return row


def over(pixel, below):
    alpha = pixel[3]
    return tuple((c * alpha + b * (255 - alpha) + 127) // 255 for c, b in zip(pixel, below))


def bmp(rows):
    """An uncompressed 24 bit bitmap of rows of (r, g, b)."""
    body = b""
    for row in reversed(rows):
        line = b"".join(bytes((b, g, r)) for r, g, b in row)
        body += line + bytes(-len(line) % 4)
    header = struct.pack("<IiiHHIIiiII", 40, len(rows[0]), len(rows), 1, 24, 0, len(body), 2835, 2835, 0, 0)
    return struct.pack("<2sIHHI", b"BM", 14 + len(header) + len(body), 0, 0, 14 + len(header)) + header + body


def png(rows):
    def chunk(kind, body):
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))
    plain = b"".join(b"\0" + b"".join(map(bytes, row)) for row in rows)
    head = struct.pack(">IIBBBBB", len(rows[0]), len(rows), 8, 2 if len(rows[0][0]) == 3 else 6, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", zlib.compress(plain, 9)) + chunk(b"IEND", b"")


def ico_entry(rows):
    """One image of an icon: a PNG from 256 pixels on, else a 32 bit bitmap with its mask of the wholly transparent pixels."""
    size = len(rows)
    if size >= 256:
        return png(rows)
    colour, mask = b"", b""
    for row in reversed(rows):
        colour += b"".join(bytes((b, g, r, a)) for r, g, b, a in row)
        bits = int("".join("0" if a else "1" for _, _, _, a in row), 2) << (-size % 32)
        mask += bits.to_bytes((size + 31) // 32 * 4, "big")
    return struct.pack("<IiiHHIIiiII", 40, size, 2 * size, 1, 32, 0, len(colour) + len(mask), 0, 0, 0, 0) + colour + mask


def ico(sources):
    """sources: pairs of size and drawing."""
    entries = [(size, ico_entry(rgba(svg, size, size))) for size, svg in sources]
    head, at = struct.pack("<HHH", 0, 1, len(entries)), 6 + 16 * len(entries)
    for size, entry in entries:
        head += struct.pack("<BBBBHHII", size & 255, size & 255, 0, 0, 1, 32, len(entry), at)
        at += len(entry)
    return head + b"".join(entry for _, entry in entries)


def toolbar():
    """The strip: the images side by side in the order of the numbers that begin their names."""
    names = sorted(n for n in os.listdir(os.path.join(HERE, "toolbar")) if n.endswith(".svg"))
    if [n[:2] for n in names] != ["%02d" % i for i in range(IMAGES)]:
        sys.exit("toolbar/ must hold one drawing for each number from 00 to %02d" % (IMAGES - 1))
    strip = [[] for _ in range(16)]
    for name in names:
        for line, row in zip(strip, rgba(os.path.join(HERE, "toolbar", name), 16, 16)):
            line += [over(p, FACE) if p[3] >= FAINTEST else MASK for p in row]
    return strip


def enlarged(rows, times, per_line):
    """The images of a strip on the toolbar's face, in lines of per_line."""
    out = []
    for first in range(0, len(rows[0]) // 16, per_line):
        for row in rows:
            line = []
            for p in row[first * 16:(first + per_line) * 16]:
                line += [FACE if p == MASK else p] * times
            line += [FACE] * (per_line * 16 * times - len(line))
            out += [line] * times
    return out


def main():
    def source(name):
        return os.path.join(HERE, name)
    large, small = source("corvex.svg"), source("corvex-small.svg")
    strip = toolbar()
    files = {
        "toolbar.bmp": bmp(strip),
        "splash.bmp": bmp([[over(p, FACE) for p in row] for row in rgba(source("splash.svg"), 440, 180)]),
        "corvex.ico": ico([(16, small), (24, small), (32, large), (48, large), (256, large)]),
        "corvex-small.ico": ico([(16, small), (24, small), (32, small)]),
    }
    different = []
    for name, data in files.items():
        path = source(os.path.join("rendered", name))
        if "--check" in sys.argv:
            with open(path, "rb") as f:
                different += [name] if f.read() != data else []
        else:
            os.makedirs(os.path.dirname(path), exist_ok=True)
            with open(path, "wb") as f:
                f.write(data)
    if "--preview" in sys.argv:
        folder = sys.argv[sys.argv.index("--preview") + 1]
        for name, rows in (("toolbar-8x", enlarged(strip, 8, 9)), ("toolbar-1x", enlarged(strip, 1, 45)),
                           ("splash", [[over(p, FACE) for p in row] for row in rgba(source("splash.svg"), 440, 180)])):
            with open(os.path.join(folder, name + ".png"), "wb") as f:
                f.write(png(rows))
    for name in different:
        print(name + ": not what the drawings give")
    return 1 if different else 0


if __name__ == "__main__":
    sys.exit(main())
