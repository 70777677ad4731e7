#!/usr/bin/env python3
"""with-engines.py SIMULATOR COMMAND...: runs COMMAND, a Windows program in the prefix of $WINEPREFIX, and returns its
status. Meanwhile the program may have engines simulated behind its COM ports, which it asks for on the loopback port
named in $CORVEX_ENGINES, one line of fields with tabs between them per connection:

    start PORT OPTION...   ok, once the port can be opened; a definition is among the options
    stop PORT              the simulator's counts as JSON
    unplug PORT            ok; the device has vanished, whoever has it open
    picture FILE W H X Y   ok; FILE is a PNG of that part of the screen, once what has just changed there is painted
    processor TEXT         seconds that processes with TEXT in their command lines have spent on processors

Anything else, and whatever fails, is answered by "error" and a sentence."""

import os
import signal
import socket
import subprocess
import sys
import threading
import time


class Engines:
    def __init__(self, simulator, folder):
        self.simulator, self.folder = simulator, folder
        self.running = {}

    def link(self, port):
        return os.path.join(self.folder, port.lower())

    def start(self, port, *options):
        if port in self.running:
            self.stop(port)
        link = self.link(port)
        os.makedirs(self.folder, exist_ok=True)
        if os.path.islink(link):
            os.remove(link)
        engine = subprocess.Popen([self.simulator, "--json", "--link", link, *options], stdin=subprocess.DEVNULL,
                                  stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        if not engine.stdout.readline():
            return "error the simulator did not start: " + engine.communicate()[1].decode()
        self.running[port] = engine
        return "ok"

    def stop(self, port):
        engine = self.running.pop(port)
        engine.send_signal(signal.SIGINT)
        return engine.communicate(timeout=20)[1].decode().strip()

    def unplug(self, port):
        engine = self.running.pop(port)
        engine.kill()
        engine.communicate()
        os.remove(self.link(port))
        return "ok"

    def picture(self, file, width, height, x, y):
        time.sleep(0.3)
        subprocess.run(["import", "-window", "root", "-crop", f"{width}x{height}+{x}+{y}", "+repage", file], check=True)
        return "ok"

    def processor(self, text):
        ticks = 0
        for process in filter(str.isdigit, os.listdir("/proc")):
            try:
                with open(f"/proc/{process}/cmdline", "rb") as line, open(f"/proc/{process}/stat") as stat:
                    if text.encode() in line.read():
                        ticks += sum(map(int, stat.read().rpartition(")")[2].split()[11:13]))
            except OSError:  # ended meanwhile
                pass
        return str(ticks / os.sysconf("SC_CLK_TCK"))

    def end(self):
        for port in list(self.running):
            self.stop(port)


def answer(engines, line):
    name, *fields = line.rstrip("\n").split("\t")
    try:
        if name not in ("start", "stop", "unplug", "picture", "processor"):
            return "error no such request"
        return getattr(engines, name)(*fields)
    except Exception as error:  # told to the program, which fails its test with it
        return f"error {type(error).__name__} {error}"


def serve(listener, engines):
    while True:
        try:
            connection, _ = listener.accept()
        except OSError:
            return
        with connection, connection.makefile("rw", encoding="utf-8", newline="\n") as stream:
            stream.write(answer(engines, stream.readline()) + "\n")
            stream.flush()


def main():
    engines = Engines(sys.argv[1], os.path.join(os.environ["WINEPREFIX"], "tty"))
    with socket.create_server(("127.0.0.1", 0)) as listener:
        threading.Thread(target=serve, args=(listener, engines), daemon=True).start()
        environment = dict(os.environ, CORVEX_ENGINES=str(listener.getsockname()[1]))
        try:
            return subprocess.call(sys.argv[2:], env=environment)
        finally:
            engines.end()


if __name__ == "__main__":
    sys.exit(main())
