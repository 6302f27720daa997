"""Creates simulator configurations for a soak run, in which cameras and interfaces appear, disappear and change."""

import copy
import json

from simulator import rows_of

INTERFACES = [f"Soak{number}" for number in range(8)]
TYPES = ["GEV", "U3V", "CL", "CLHS", "CXP", "IIDC", "UVC", "Ethernet", "PCI", "Custom"]
# The vendors, each with the group of its cameras.
GROUPS = {"Kordane AG": "High Resolution Cameras", "Lintaro": "Line Scan Cameras", "Palvento": "Other",
          "Öhler & Söhne": "Other", "<b>Vendors</b> \"of\" all": "Other"}
MODELS = ["BenchCam 2", "Line <i>8k</i> & more", "相機 12", "Latent"]
MAX_CAMERAS = 40

# The simulator reports these cameras if there is no configuration file.
DEFAULT_ROWS = [("Orvelle", "Camera Simulator", "SIM0001"), ("Orvelle", "Camera Simulator", "SIM0002")]


class RandomConfigurations:
    """Creates simulator configurations that depend only on the first configuration and the random numbers."""

    def __init__(self, random, first):
        self.random = random
        self.content = first
        self.made = 0

    def next(self):
        """Returns a configuration with other cameras than the previous one."""
        previous = self.content
        while rows_of(self.content) == rows_of(previous) or len(rows_of(self.content)) > MAX_CAMERAS:
            self.content = copy.deepcopy(previous)
            self.random.choice([self.plug, self.unplug, self.replace_interfaces])(self.content["interfaces"])
        return self.content

    def largest(self):
        self.content = {"interfaces": [self.interface(name, MAX_CAMERAS // len(INTERFACES)) for name in INTERFACES]}
        return self.content

    def broken(self):
        """Returns a text that is not a valid configuration."""
        text = json.dumps(self.content)
        return self.random.choice([
            "", "no JSON", "\udcff\udcfe", "[]", text[:self.random.randrange(1, len(text))], text + "}",
            '{"interfaces": [{"id": "A"}, {"id": "A"}]}', '{"interfaces": [{"id": "A", "devices": [{}]}]}'])

    def camera(self):
        self.made += 1
        return {"id": f"SIM-{self.made}", "vendor": self.random.choice(list(GROUPS)),
                "model": self.random.choice(MODELS), "serial": f"S{self.made:06}"}

    def interface(self, name, cameras):
        return {"id": name, "name": f"Interface {name}", "tlType": self.random.choice(TYPES),
                "devices": [self.camera() for _ in range(cameras)]}

    def plug(self, interfaces):
        for _ in range(self.random.randint(1, 3) if interfaces else 0):
            self.random.choice(interfaces)["devices"].append(self.camera())

    def unplug(self, interfaces):
        for _ in range(self.random.randint(1, 3)):
            devices = self.random.choice(interfaces)["devices"] if interfaces else []
            if devices:
                devices.pop(self.random.randrange(len(devices)))

    def replace_interfaces(self, interfaces):
        names = self.random.sample(INTERFACES, self.random.randint(1, len(INTERFACES)))
        interfaces[:] = [self.interface(name, self.random.randint(0, 5)) for name in names]
