#!/usr/bin/env python3
"""Looks whether Windows programs run on a machine that has nothing but the system: each imports only its DLLs.

usage: check_imports.py OBJDUMP FORMAT PROGRAM...

FORMAT is objdump's word for the target, pei-x86-64 or pei-i386. Prints one line per finding; exit code 1 when there is any."""

import re
import subprocess
import sys

# Part of every Windows. The compiler's runtime must never turn up: it's linked statically. Nor does ADXEditor.dll: Corvex.exe loads it.
SYSTEM = {name + ".dll" for name in (
    "advapi32", "comctl32", "comdlg32", "gdi32", "kernel32", "msimg32", "msvcrt", "ole32", "oleaut32", "shell32", "shlwapi", "user32",
    "uxtheme", "version", "winmm")}


def findings(objdump, kind, program):
    run = subprocess.run([objdump, "-p", program], capture_output=True, text=True, errors="replace")
    if run.returncode != 0:
        yield "is missing or isn't a program: " + (run.stderr.strip() or "objdump failed")
        return
    found = re.search(r"file format (\S+)", run.stdout)
    if not found or found[1] != kind:
        yield "is %s, not %s" % (found[1] if found else "of no known format", kind)
    names = re.findall(r"DLL Name: (\S+)", run.stdout)
    if not names:
        yield "imports nothing, which no program of ours does"
    for name in names:
        if name.lower() not in SYSTEM:
            yield "needs " + name + ", which isn't part of the system"


def main():
    objdump, kind, programs = sys.argv[1], sys.argv[2], sys.argv[3:]
    found = ["%s: %s" % (program, text) for program in programs for text in findings(objdump, kind, program)]
    if found:
        print("\n".join(found), file=sys.stderr)
    return 1 if found or not programs else 0


if __name__ == "__main__":
    sys.exit(main())
