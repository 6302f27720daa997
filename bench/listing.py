"""Measures the time from the start of the SDK to the list of cameras. The start of the hosts is included."""

import glob
import json
import math
import os
import shutil
import statistics
import subprocess

from frames import BOUND
from pairs import Figure, at_most, at_most_times, in_pairs
from scripted import ScriptedProducer

DELAY = 500.0  # A slow producer searches for this many milliseconds.
SIZES = 10, 30, 100, 300, 1000
MAX_EXTRA, MAX_EXTRA_EACH = 60, 15  # Allowed milliseconds above the floor, and for each of several producers.


class Installation:
    """An installation with other producers, and with only the files that the enumeration of cameras needs."""

    def __init__(self, bench, name):
        self.root, self.bench = f"{bench.place}/{name}", bench
        os.makedirs(f"{self.root}/bin")
        os.mkdir(f"{self.root}/cti")
        for file in (*glob.glob("libCvxCPP.so*", root_dir=f"{bench.stage}/bin"), "CvxProducerHost", "CvxC.xml"):
            shutil.copy(f"{bench.stage}/bin/{file}", f"{self.root}/bin", follow_symlinks=False)
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
        """Returns three lists with the milliseconds of each pair: until the SDK's list is complete, until the
        launcher's records are complete, and for the direct enumeration in C."""
        ours, floor = in_pairs(lambda: listed(cameras, f"{self.root}/bin/bench_list_cameras"),
                               lambda: listed(cameras_of_first, self.bench.program("list_directly"), self.producers[0]),
                               self.bench.pairs)
        lists, records = map(list, zip(*ours))
        return lists, records, [milliseconds for milliseconds, in floor]


def listed(expected, *command):
    """Runs a program that prints the number of cameras and milliseconds, and returns the milliseconds."""
    environment = {name: value for name, value in os.environ.items() if name != "GENICAM_GENTL64_PATH"}
    printed = subprocess.run(command, env=environment, stdout=subprocess.PIPE, check=True, text=True, timeout=BOUND).stdout
    count, *milliseconds = printed.split()
    assert int(count) == expected, f"{command} lists {count} cameras and not {expected}"
    return tuple(map(float, milliseconds))


def exponent(times):
    """Returns the exponent with which the times grow with the size: the slope of a line through the logarithms."""
    points = [(math.log(size), math.log(statistics.median(values))) for size, values in times.items()]
    return statistics.linear_regression(*zip(*points)).slope


def slow_figure(bench, what, producers, cameras, max_extra):
    installation = Installation(bench, f"slow-{what}")
    installation.add_slow(producers, cameras)
    _, records, floor = installation.measure(producers * cameras, cameras)
    return Figure(f"list, {DELAY:.0f} ms to answer, {what}", "ms", records, floor, f"≤ floor + {max_extra} ms",
                  lambda figure: figure.median() <= statistics.median(figure.floor) + max_extra)


def slow_figures(bench):
    for cameras in 1, 8, 64:
        yield slow_figure(bench, f"cameras on it: {cameras}", 1, cameras, MAX_EXTRA)
    for producers in 1, 4, 16:
        yield slow_figure(bench, f"such producers: {producers}", producers, 1, MAX_EXTRA + MAX_EXTRA_EACH * producers)


def large_figures(bench):
    lists, records, floor = {}, {}, {}
    for size in SIZES:
        installation = Installation(bench, f"large-{size}")
        installation.add_simulator(size)
        lists[size], records[size], floor[size] = installation.measure(size, size)
    bench.curves.update({"list as records": records, "list of the SDK": lists, "list in C": floor})
    smallest, largest = min(SIZES), max(SIZES)
    for what, ours in ("of the SDK", lists), ("as the launcher's records", records):
        yield Figure(f"list, {largest:,} cameras on one interface, {what}", "ms", ours[largest], floor[largest], *at_most_times(3))
        yield Figure(f"its growth, {smallest} to {largest:,} cameras, as an exponent", "", [exponent(ours)], [], *at_most(1.1, ""))


def figures(bench):
    yield from slow_figures(bench)
    yield from large_figures(bench)
