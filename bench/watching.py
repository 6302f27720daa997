"""Runs a program that uses the SDK as the launcher does (WatchCameras.cpp), and reads what it prints."""

import subprocess
import threading
import time

from frames import BOUND

MODEL = "Latent GigE"  # The model of the simulated cameras of networks.py.


class Watcher:
    """Watches the camera list of an installation. Use this class in a with statement."""

    def __init__(self, machine, program):
        self.machine, self.program = machine, program
        self.events, self.changed = [], threading.Condition()  # Each event is a time, a word and the IDs of cameras.

    def __enter__(self):
        self.process = self.machine.start(self.program, "watch", MODEL, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                          text=True)
        self.reader = threading.Thread(target=self.read)
        self.reader.start()
        return self

    def __exit__(self, *_):
        self.process.stdin.close()
        try:
            self.process.wait(BOUND)
        finally:
            self.process.kill()
            self.reader.join()

    def read(self):
        for line in self.process.stdout:
            moment, what, *ids = line.split()
            with self.changed:
                self.events.append((float(moment), what, ids))
                self.changed.notify_all()

    def count(self, what, since):
        with self.changed:
            return sum(moment >= since and word == what for moment, word, _ in self.events)

    def listed(self):
        """Returns the number of cameras in the latest list."""
        with self.changed:
            return next((len(ids) for _, word, ids in reversed(self.events) if word == "list"), 0)

    def await_list(self, cameras, since):
        """Returns the time of the first list after `since` that has this number of cameras. If there is none for
        BOUND seconds, returns the time of the end."""
        def moments():
            return [moment for moment, word, ids in self.events
                    if moment >= since and word == "list" and len(ids) == cameras]
        with self.changed:
            self.changed.wait_for(moments, BOUND)
            return min(moments(), default=time.monotonic())
