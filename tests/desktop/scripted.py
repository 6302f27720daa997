"""An unchanged launcher on the scripted SDK, for what the real one has no reason to do."""

import os

from desktop import DesktopTest
from launcher import wait_for

LIBRARY = os.environ["CORVIX_SCRIPTED_LIBRARY"]


class ScriptedTest(DesktopTest):
    def setUp(self):
        super().setUp()
        name = f"bin/{os.path.basename(LIBRARY)}"  # The SONAME, which the launcher loads.
        self.installation.remove(name)
        os.link(LIBRARY, self.installation.path(name))
        self.record = self.installation.path("record")
        self.gate = self.installation.path("gate")

    def scripted(self, refuses="", cameras=0, storm=False, gate=False):
        """The environment that makes the SDK do so."""
        environment = {"CORVIX_SCRIPTED_RECORD": self.record, "CORVIX_SCRIPTED_CAMERAS": str(cameras),
                       "CORVIX_SCRIPTED_REFUSES": refuses}
        if storm:
            environment["CORVIX_SCRIPTED_STORM"] = "1"
        if gate:
            os.mkfifo(self.gate)
            environment["CORVIX_SCRIPTED_GATE"] = self.gate
        return environment

    def recorded(self, word):
        """How often that happened in the SDK."""
        if not os.path.exists(self.record):
            return 0
        with open(self.record, encoding="utf-8") as file:
            return file.read().splitlines().count(word)

    def wait_for_scan(self):
        wait_for("a scan is under way", lambda: self.recorded("Scan"))

    def open_gate(self):
        """Lets the waiting scan and all others pass."""
        os.close(wait_for("a scan waits at the gate", self.stand_at_gate))
        os.remove(self.gate)

    def stand_at_gate(self):
        try:
            return os.open(self.gate, os.O_WRONLY | os.O_NONBLOCK)
        except OSError:
            return None  # Nobody waits yet.
