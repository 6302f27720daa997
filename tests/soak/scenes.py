"""Scenes that the simulator shows in turn: cameras and interfaces come, go and change, and some scenes are broken."""

import copy
import json

INTERFACES = [f"Soak{number}" for number in range(8)]
TECHNOLOGIES = ["GEV", "U3V", "CL", "CLHS", "CXP", "IIDC", "UVC", "Ethernet", "PCI", "Custom"]
VENDORS = ["Orvelle", "Orvelle GmbH", "KORDANE", "Kordane AG", "Lintaro", "Palvento", "Öhler & Söhne",
           "<b>Makers</b> \"of\" all"]
OTHER_MODELS = ["Camera Simulator", "BenchCam 2", "Line <i>8k</i> & more", "相機 12"]
SUFFIXES = ["", "", "", " 5MP-C", "40M", " 16k"]
MOST_CAMERAS = 40

# What the simulator shows when there is no file.
DEFAULT_ROWS = [("Orvelle", "Camera Simulator", "SIM0001"), ("Orvelle", "Camera Simulator", "SIM0002")]


def rows_of(content):
    """What the table has to show for a scene, in any order."""
    return sorted(tuple(device.get(key, "") for key in ("vendor", "model", "serial"))
                  for interface in content["interfaces"] for device in interface["devices"])


class RandomScenes:
    """One scene after the other; the random numbers alone decide which."""

    def __init__(self, random, models, first):
        self.random = random
        self.models = models + OTHER_MODELS
        self.content = first
        self.unplugged = []
        self.made = 0

    def next(self):
        """The kind of the change ("cameras", "interfaces", "details"), which shows in the table, and its scene."""
        before = rows_of(self.content)
        while True:
            content = copy.deepcopy(self.content)
            change = self.random.choices(
                [self.plug, self.unplug, self.exchange, self.add_interface, self.remove_interface, self.replace_all],
                [6, 5, 3, 2, 2, 1])[0]
            change(content["interfaces"])
            if MOST_CAMERAS >= len(rows_of(content)) and rows_of(content) != before:
                break
        had = {interface["id"] for interface in self.content["interfaces"]}
        has_new = any(interface["id"] not in had for interface in content["interfaces"])
        self.content = content
        if change == self.exchange:
            return "details", content
        return "interfaces" if has_new else "cameras", content

    def largest(self):
        """As many cameras as there ever are, with every picture that the program has."""
        self.content = {"interfaces": [self.interface(name, MOST_CAMERAS // len(INTERFACES)) for name in INTERFACES]}
        devices = [device for interface in self.content["interfaces"] for device in interface["devices"]]
        for device, model in zip(devices, self.models):
            device.update(vendor="Palvento", model=model)
        return self.content

    def broken(self):
        """Text that is no scene."""
        text = json.dumps(self.content)
        wrong = [
            {"interfaces": 7}, {"interface": []}, [], {"interfaces": ["Soak0"]}, {"interfaces": [{"id": ""}]},
            {"interfaces": [{"id": "Soak0", "devices": {}}]}, {"interfaces": [{"id": "Soak0", "devices": [{}]}]},
            {"interfaces": [{"id": "Soak0", "devices": [{"id": "A", "model": 200}]}]},
            {"interfaces": [{"id": "Soak0"}, {"id": "Soak0"}]},
            {"interfaces": [{"id": "Soak0", "devices": [{"id": "A"}, {"id": "A"}]}]},
        ]
        return self.random.choice([
            "", "no scene at all", "\udcff\udcfe", text[:self.random.randrange(1, len(text))], text + "}",
            json.dumps(self.random.choice(wrong))])

    def camera(self):
        self.made += 1
        camera = {"id": f"SIM-{self.made}", "vendor": self.random.choice(VENDORS),
                  "model": self.random.choice(self.models) + self.random.choice(SUFFIXES),
                  "serial": f"S{self.made:06}"}
        if self.random.random() < 0.1:
            del camera[self.random.choice(["vendor", "model", "serial"])]
        return camera

    def interface(self, name, cameras):
        return {"id": name, "name": f"Interface {name}", "tlType": self.random.choice(TECHNOLOGIES),
                "devices": [self.camera() for _ in range(cameras)]}

    def plug(self, interfaces):
        for _ in range(self.random.randint(1, 3) if interfaces else 0):
            known = self.unplugged and self.random.random() < 0.5
            camera = self.unplugged.pop(self.random.randrange(len(self.unplugged))) if known else self.camera()
            self.random.choice(interfaces)["devices"].append(camera)

    def unplug(self, interfaces):
        for _ in range(self.random.randint(1, 3)):
            devices = self.random.choice(interfaces)["devices"] if interfaces else []
            if devices:
                self.unplugged.append(devices.pop(self.random.randrange(len(devices))))
        del self.unplugged[:-20]

    def exchange(self, interfaces):
        """A camera's texts change under its ID."""
        devices = [device for interface in interfaces for device in interface["devices"]]
        if devices:
            device = self.random.choice(devices)
            name = device["id"]
            device.clear()
            device.update(self.camera(), id=name)

    def add_interface(self, interfaces):
        used = {interface["id"] for interface in interfaces}
        free = [name for name in INTERFACES if name not in used]
        if free:
            place = self.random.randint(0, len(interfaces))
            interfaces.insert(place, self.interface(self.random.choice(free), self.random.randint(1, 4)))

    def remove_interface(self, interfaces):
        if interfaces:
            interfaces.pop(self.random.randrange(len(interfaces)))

    def replace_all(self, interfaces):
        names = self.random.sample(INTERFACES, self.random.randint(0, len(INTERFACES)))
        interfaces[:] = [self.interface(name, self.random.randint(0, 5)) for name in names]
