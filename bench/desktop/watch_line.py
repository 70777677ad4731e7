#!/usr/bin/env python3
"""watch_line.py LINK COMMAND...: runs COMMAND and returns its status. Meanwhile LINK, a COM port of Wine for instance,
is a serial line that never answers. What its far end sees goes to the file that COMMAND finds named in
$CORVEX_LINE_LOG: the Unix time in nanoseconds and "open", "bytes" or "close", a line each."""

import os
import pty
import select
import subprocess
import sys
import tempfile
import threading
import time

LOOK = 0.0005  # s between two looks at a line that nobody has open


def watch(master, log, ended):
    """Nobody holds the near end but the program, so that its going shows as a hang-up."""
    opened = False
    poll = select.poll()
    poll.register(master, select.POLLIN)
    while not ended.is_set():
        events = poll.poll(50)
        now = time.time_ns()
        hung_up = bool(events) and bool(events[0][1] & select.POLLHUP)
        if opened == hung_up:
            opened = not hung_up
            log.write(f"{now} {'open' if opened else 'close'}\n")
        if events and events[0][1] & select.POLLIN:
            os.read(master, 4096)
            log.write(f"{now} bytes\n")
        log.flush()
        if hung_up:
            time.sleep(LOOK)


def main():
    link, command = sys.argv[1], sys.argv[2:]
    master, slave = pty.openpty()
    os.makedirs(os.path.dirname(link), exist_ok=True)
    if os.path.islink(link):
        os.remove(link)
    os.symlink(os.ttyname(slave), link)
    os.close(slave)
    with tempfile.NamedTemporaryFile("w", suffix=".line") as log:
        ended = threading.Event()
        watcher = threading.Thread(target=watch, args=(master, log, ended))
        watcher.start()
        try:
            return subprocess.call(command, env=dict(os.environ, CORVEX_LINE_LOG=log.name))
        finally:
            ended.set()
            watcher.join()
            os.remove(link)


if __name__ == "__main__":
    sys.exit(main())
