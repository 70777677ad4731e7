#!/usr/bin/env python3
"""Packs what a user of Windows gets: the programs, the examples, a README and the guide, in one folder of a zip.

usage: make_dist.py TREE BUILD LABEL TRIPLET FORMAT FOLDER

TREE is the source tree, BUILD a Windows build of it, LABEL the end of the zip's name (win64), TRIPLET the prefix of its binutils, FORMAT
objdump's word for the target; the zip goes to FOLDER. The programs are packed without their symbols. The same sources and compiler give
the same bytes. A missing program or one that needs more than the system's DLLs stops it: exit code 1, and no zip."""

import os
import re
import subprocess
import sys
import tempfile
import zipfile

import guide_html

PROGRAMS = ("ADXEditor.dll", "Corvex.exe", "corvex-cli.exe", "corvex-sim.exe")
# The earliest time that a zip can tell.
TIME = (1980, 1, 1, 0, 0, 0)
EPOCH = "315532800"


def read(path):
    with open(path, "rb") as f:
        return f.read()


def version_of(build):
    found = re.search(r'CORVEX_VERSION "([^"]+)"', read(os.path.join(build, "generated", "CorvexVersion.h")).decode())
    if not found:
        sys.exit("dist: the build doesn't tell its version")
    return found[1]


def stripped(strip, program):
    """The program without symbols; the linker's time in it becomes a fixed one."""
    with tempfile.TemporaryDirectory() as folder:
        out = os.path.join(folder, "out")
        subprocess.run([strip, "-o", out, program], check=True, env=dict(os.environ, SOURCE_DATE_EPOCH=EPOCH))
        return read(out)


def contents(tree, bin_folder, strip, version):
    """Name and bytes of each file."""
    files = {name: stripped(strip, os.path.join(bin_folder, name)) for name in PROGRAMS}
    examples = os.path.join(tree, "examples")
    for name in os.listdir(examples):
        if name.endswith((".adx", ".ads", ".xdl")):
            files["examples/" + name] = read(os.path.join(examples, name))
    text = read(os.path.join(tree, "docs", "dist-readme.txt")).replace(b"@VERSION@", version.encode())
    guide = guide_html.page(read(os.path.join(tree, "docs", "guide.md")).decode())
    files["guide.html"] = guide.encode()
    for picture in guide_html.pictures(guide):
        files[picture] = read(os.path.join(tree, "docs", picture))
    files["README.txt"] = text.replace(b"\r\n", b"\n").replace(b"\n", b"\r\n")
    return files


def pack(path, top, files):
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as out:
        for name in sorted(files):
            entry = zipfile.ZipInfo(top + "/" + name, TIME)
            entry.compress_type, entry.create_system, entry.external_attr = zipfile.ZIP_DEFLATED, 0, 0x20
            out.writestr(entry, files[name], compresslevel=9)


def main():
    tree, build, label, triplet, kind, folder = sys.argv[1:]
    bin_folder, version = os.path.join(build, "bin"), version_of(build)
    top = "corvex-%s-%s" % (version, label)
    path = os.path.join(folder, top + ".zip")
    if os.path.exists(path):
        os.remove(path)  # whoever finds a zip has the one of this run
    missing = [name for name in PROGRAMS if not os.path.isfile(os.path.join(bin_folder, name))]
    if missing:
        sys.exit("dist: %s has no %s: nothing packed for %s" % (bin_folder, ", ".join(missing), label))
    programs = [os.path.join(bin_folder, name) for name in PROGRAMS]
    checks = [["check_imports.py", triplet + "-objdump", kind] + programs,
              ["check_manifest.py"] + [program for program in programs if program.endswith(".exe")]]
    for checker, *arguments in checks:
        if subprocess.run([sys.executable, os.path.join(tree, "tools", checker)] + arguments).returncode:
            sys.exit("dist: nothing packed for " + label)
    os.makedirs(folder, exist_ok=True)
    pack(path + ".new", top, contents(tree, bin_folder, triplet + "-strip", version))
    os.replace(path + ".new", path)
    print("%s: %d bytes" % (path, os.path.getsize(path)))
    return 0


if __name__ == "__main__":
    sys.exit(main())
