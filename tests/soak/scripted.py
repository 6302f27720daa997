"""Installs copies of the test producer that follow a script; see tests/sdk/producer/TestProducer.cpp."""

import os
import shutil


class ScriptedProducer:
    def __init__(self, stage, name, library):
        self.file, self.script = f"{stage}/cti/{name}.cti", f"{stage}/cti/{name}.script"
        self.library = library

    def put_in_place(self):
        shutil.copy(self.library, self.file)

    def follow(self, *lines):
        with open(self.script + ".new", "w", encoding="utf-8") as file:
            file.write("".join(line + "\n" for line in lines))
        os.replace(self.script + ".new", self.script)


class SlowProducer(ScriptedProducer):
    """A producer that searches slowly and reports two cameras."""

    ROWS = [("Palvento", "Latent 1", "SLOW0001"), ("Palvento", "Latent 2", "SLOW0002")]

    def search_for(self, milliseconds):
        self.follow("interface SLOW|Slow grabber|CXP", *(f"device SLOW|{serial}|{vendor}|{model}|{serial}|{model}|CXP"
                                                         for vendor, model, serial in self.ROWS),
                    f"fault IFUpdateDeviceList slow {milliseconds}")


class CrashingProducer(ScriptedProducer):
    """A producer that ends its host at every start before it reports a camera."""

    CALLS = ["load", "GCInitLib", "TLOpen", "TLUpdateInterfaceList", "TLOpenInterface", "IFUpdateDeviceList"]

    def crash(self, random):
        self.follow("interface CRASH|Crashing grabber|CL", "device CRASH|CRASH-1|Palvento|Hidden|CRASH0001|Hidden|CL",
                    f"fault {random.choice(self.CALLS)} {random.choice(['crash', 'abort', 'exit 3'])}")
