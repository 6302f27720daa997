"""Lists of the SDK, as records of the launcher, from its start on: hosts are started, and load their producers."""

import json
import math
import os
import shutil
import statistics
import subprocess

from pairs import Figure, at_most, at_most_times, in_pairs
from scripted import ScriptedProducer

DELAY = 500.0  # ms, that a slow producer takes.
SIZES = 10, 30, 100, 300, 1000
MOST_LATE, MOST_LATE_EACH = 60, 15  # ms, and more for each where there are several producers.


class Installation:
    """What a list needs of an installation, with producers of its own."""

    def __init__(self, bench, name):
        self.root, self.bench = f"{bench.place}/{name}", bench
        os.makedirs(f"{self.root}/bin")
        os.mkdir(f"{self.root}/cti")
        for file in ("libCvxCPP.so", "CvxProducerHost", "CvxC.xml"):
            os.link(f"{bench.stage}/bin/{file}", f"{self.root}/bin/{file}")
        shutil.copy(bench.program("list_cameras"), f"{self.root}/bin")
        self.producers = []

    def add_slow(self, count, cameras):
        for index in range(count):
            producer = ScriptedProducer(self.root, f"Slow{index}", self.bench.test_producer)
            producer.put_in_place()
            producer.follow("interface net|Network|GEV",
                            *(f"device net|{index}-{camera}|Palvento|Latent|{index:03}{camera:03}|Latent {camera}|GEV"
                              for camera in range(cameras)),
                            f"fault IFUpdateDeviceList slow {DELAY:.0f}")
            self.producers.append(producer.file)

    def add_simulator(self, cameras):
        shutil.copy(f"{self.bench.stage}/cti/CorvixCameraSimulator.cti", f"{self.root}/cti")
        devices = [{"id": f"SIM-{index:04}", "vendor": "Orvelle", "model": "Kx200 Pro 5MP-C", "serial": f"{index:08}",
                    "displayName": f"Orvelle Kx200 Pro 5MP-C ({index:08})"} for index in range(cameras)]
        with open(f"{self.root}/cti/CorvixCameraSimulator.json", "w", encoding="utf-8") as file:
            json.dump({"interfaces": [{"id": "Sim", "name": "Network", "tlType": "GEV", "devices": devices}]}, file)
        self.producers.append(f"{self.root}/cti/CorvixCameraSimulator.cti")

    def measure(self, cameras, cameras_of_first):
        """Milliseconds, pair by pair: to the SDK's list, to the launcher's records of it, and directly in C."""
        ours, floor = in_pairs(lambda: listed(cameras, f"{self.root}/bin/bench_list_cameras"),
                               lambda: listed(cameras_of_first, self.bench.program("list_directly"), self.producers[0]),
                               self.bench.pairs)
        lists, records = map(list, zip(*ours))
        return lists, records, [milliseconds for milliseconds, in floor]


def listed(expected, *command):
    """The milliseconds that the program prints, after the number of cameras."""
    environment = {name: value for name, value in os.environ.items() if name != "GENICAM_GENTL64_PATH"}
    printed = subprocess.run(command, env=environment, stdout=subprocess.PIPE, check=True, text=True).stdout
    count, *milliseconds = printed.split()
    assert int(count) == expected, f"{command} lists {count} cameras and not {expected}"
    return tuple(map(float, milliseconds))


def exponent(times):
    """Of the power that times grow with, by size: the slope of the line through their logarithms."""
    points = [(math.log(size), math.log(statistics.median(values))) for size, values in times.items()]
    return statistics.linear_regression(*zip(*points)).slope


def slow_figure(bench, what, producers, cameras, most_late):
    installation = Installation(bench, f"slow-{what}")
    installation.add_slow(producers, cameras)
    _, records, floor = installation.measure(producers * cameras, cameras)
    return Figure(f"list, {DELAY:.0f} ms to answer, {what}", "ms", records, floor, f"≤ floor + {most_late} ms",
                  lambda figure: figure.median() <= statistics.median(figure.floor) + most_late)


def slow_figures(bench):
    for cameras in 1, 8, 64:
        yield slow_figure(bench, f"cameras on it: {cameras}", 1, cameras, MOST_LATE)
    for producers in 1, 4, 16:
        yield slow_figure(bench, f"such producers: {producers}", producers, 1, MOST_LATE + MOST_LATE_EACH * producers)


def large_figures(bench):
    lists, records, floor = {}, {}, {}
    for size in SIZES:
        installation = Installation(bench, f"large-{size}")
        installation.add_simulator(size)
        lists[size], records[size], floor[size] = installation.measure(size, size)
    bench.curves.update({"list as records": records, "list of the SDK": lists, "list in C": floor})
    least, most = min(SIZES), max(SIZES)
    for what, ours in ("of the SDK", lists), ("as the launcher's records", records):
        yield Figure(f"list, {most:,} cameras on one interface, {what}", "ms", ours[most], floor[most], *at_most_times(3))
        yield Figure(f"its growth, {least} to {most:,} cameras, as an exponent", "", [exponent(ours)], [], *at_most(1.1, ""))


def figures(bench):
    yield from slow_figures(bench)
    yield from large_figures(bench)
