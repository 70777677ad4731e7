#!/usr/bin/env python3
"""check_threads.py NM PROGRAM...: names the programs that can start a thread, though they are not said to."""

import re
import subprocess
import sys

STARTS = re.compile(r"\bpthread_create\b|_M_start_thread")


def main():
    found = 0
    for program in sys.argv[2:]:
        symbols = subprocess.run([sys.argv[1], "--undefined-only", program], check=True, capture_output=True, text=True)
        if STARTS.search(symbols.stdout):
            found += 1
            print(f"{program}: starts threads, so its corvex_test wants the word THREADS")
    print(f"{len(sys.argv) - 2} programs, {found} wrong")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
