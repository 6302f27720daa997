"""Producers in an installation that do what a script says, see tests/sdk/producer/TestProducer.cpp."""

import os
import shutil


class ScriptedProducer:
    def __init__(self, stage, name, library):
        self.file = f"{stage}/cti/{name}.cti"
        self.script = f"{stage}/cti/{name}.script"
        self.log = f"{stage}/cti/{name}.log"
        self.library = library

    def put_in_place(self):
        shutil.copy(self.library, self.file)
        open(self.log, "w", encoding="utf-8").close()

    def follow(self, *lines):
        """Does from now on what these lines say; in one go."""
        with open(self.script + ".new", "w", encoding="utf-8") as file:
            file.write("".join(line + "\n" for line in lines))
        os.replace(self.script + ".new", self.script)


class SlowProducer(ScriptedProducer):
    """Has cameras, and takes its time to find them."""

    ROWS = [("Palvento", "Latent 1", "SLOW0001"), ("Palvento", "Latent 2", "SLOW0002")]

    def __init__(self, stage, library):
        super().__init__(stage, "Slow", library)

    def take(self, milliseconds):
        self.follow("interface SLOW|Slow grabber|CXP",
                    *(f"device SLOW|{serial}|{vendor}|{model}|{serial}|{model}|CXP"
                      for vendor, model, serial in self.ROWS),
                    f"fault IFUpdateDeviceList slow {milliseconds}")


class CrashingProducer(ScriptedProducer):
    """Ends its host at every start, before it has told of any camera."""

    CALLS = ["load", "GCInitLib", "TLOpen", "TLUpdateInterfaceList", "TLOpenInterface", "IFUpdateDeviceList"]
    ENDS = ["crash", "abort", "exit 3"]

    def __init__(self, stage, library):
        super().__init__(stage, "Crashing", library)

    def crash_in(self, call, end):
        self.follow("interface CRASH|Crashing grabber|CL",
                    "device CRASH|CRASH-1|Palvento|Never seen|CRASH0001|Never seen|CL", f"fault {call} {end}")

    def starts(self):
        """How often it was started so far."""
        with open(self.log, encoding="utf-8") as file:
            return sum(line.rstrip().endswith(" load") for line in file)
