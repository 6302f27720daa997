"""Measures opened cameras and their streams, against a loop over the C functions of GenTL in one process. Both sides use
the same producer and the same node map."""

import json
import os
import shutil
import subprocess
import tempfile

from frames import BOUND
from listing import Installation
from networks import Machine
from pairs import WITHOUT_TARGET, Figure, at_least_times, at_most, at_most_beyond, in_pairs

LARGE, SMALL = "SIM-LARGE", "SIM-SMALL"
CAMERAS = [{"id": LARGE, "model": "Large", "serial": "1", "sensorWidth": 2560, "sensorHeight": 1954},
           {"id": SMALL, "model": "Small", "serial": "2", "sensorWidth": 64, "sensorHeight": 64}]
SECONDS = 3  # Of each stream.
RECORDING_SECONDS = 10
ACCESSES, LATENCIES = 2000, 500
NETWORK_SECONDS = 60
FRAME_PERIOD = "0x138"  # Register of the fake camera with the time between two images in microseconds.
MEBIBYTE = 1 << 20


def installation(bench, name, producer):
    """Returns the directory of an installation with the programs of an opened camera and one producer."""
    root = Installation(bench, name).root
    for file in "CvxCameraHost", "cvxctl":
        shutil.copy(f"{bench.place}/shipped/bin/{file}", f"{root}/bin")
    os.makedirs(os.path.dirname(f"{root}/cti/{producer}"), exist_ok=True)
    shutil.copy(f"{bench.place}/shipped/cti/{producer}", f"{root}/cti/{producer}")
    return root


class Cameras:
    """An installation whose simulator has a large and a small camera that stream as fast as they can."""

    def __init__(self, bench):
        self.bench = bench
        self.root = installation(bench, "streaming", "CorvixCameraSimulator.cti")
        self.producer = f"{self.root}/cti/CorvixCameraSimulator.cti"
        with open(f"{self.root}/cti/CorvixCameraSimulator.json", "w", encoding="utf-8") as file:
            json.dump({"interfaces": [{"id": "Sim", "tlType": "GEV", "devices": CAMERAS}]}, file)
        self.program = shutil.copy(bench.program("stream"), f"{self.root}/bin")
        self.environment = {**os.environ, "XDG_RUNTIME_DIR": self.root}

    def run(self, *command):
        printed = subprocess.run(command, stdout=subprocess.PIPE, check=True, text=True, timeout=5 * BOUND,
                                 env=self.environment).stdout
        return [float(line) for line in printed.splitlines()]

    def ours(self, camera, *arguments):
        return self.run(self.program, camera, *map(str, arguments))

    def bare(self, camera, *arguments):
        return self.run(self.bench.program("bare_stream"), self.producer, camera, *map(str, arguments))

    def compare(self, camera, count, *arguments):
        """Returns, for each number that the two programs print, the values of ours and those of the floor."""
        ours, floor = in_pairs(lambda: self.ours(camera, *arguments), lambda: self.bare(camera, *arguments), count)
        return list(zip(zip(*ours), zip(*floor)))


def simulated(bench, cameras):
    count = bench.rounds(10) // 2
    (rates, floor_rates), (times, floor_times) = cameras.compare(LARGE, count, "stream", SECONDS)
    yield Figure("images of 5 MP, Mono8", "/s", list(rates), list(floor_rates), *at_least_times(0.95))
    yield Figure("processor time of such an image, all processes", "µs", list(times), list(floor_times),
                 *at_most_beyond(30, "µs"))
    (rates, floor_rates), (times, floor_times) = cameras.compare(SMALL, count, "stream", SECONDS)
    yield Figure("images of 64 × 64 pixels", "/s", list(rates), list(floor_rates), "≥ 20000/s or ≥ 0.5 ×",
                 lambda figure: figure.median() >= 20000 or figure.ratio() >= 0.5)
    yield Figure("processor time of such an image, all processes", "µs", list(times), list(floor_times),
                 *at_most_beyond(30, "µs"))
    # The camera of 5 MP is measured too, but there the rendering of the next image competes for the processors.
    latencies = [cameras.ours(SMALL, "latency", LATENCIES)[0] for _ in range(count)]
    yield Figure("event in the host to image in the program", "µs", latencies, [], *at_most(80, "µs"))
    latencies = [cameras.ours(LARGE, "latency", LATENCIES)[0] for _ in range(count)]
    yield Figure("the same, 5 MP", "µs", latencies, [], *WITHOUT_TARGET)
    [(first, floor_first)] = cameras.compare(LARGE, count, "first")
    yield Figure("opening to first image", "ms", list(first), list(floor_first), *at_most_beyond(100, "ms"))
    (reads, floor_reads), (writes, floor_writes) = cameras.compare(LARGE, count, "access", ACCESSES)
    yield Figure("reading a feature", "µs", list(reads), list(floor_reads), *at_most_beyond(150, "µs"))
    yield Figure("writing a feature", "µs", list(writes), list(floor_writes), *at_most_beyond(150, "µs"))
    [(memory, floor_memory)] = cameras.compare(LARGE, count, "memory")
    yield Figure("memory of program and host, without the buffers", "MiB", [value / MEBIBYTE for value in memory],
                 [value / MEBIBYTE for value in floor_memory], *at_most(25, "MiB"))


def recorded(cameras):
    """Records images of 5 MP at 60 images/s to a file system in memory."""
    for name in "recording.tif", "recording.raw":
        with tempfile.TemporaryDirectory(dir="/dev/shm") as folder:
            printed = subprocess.run(
                [f"{cameras.root}/bin/cvxctl", "record", LARGE, f"{folder}/{name}", "--seconds", str(RECORDING_SECONDS),
                 "--set", "AcquisitionFrameRateEnable=true", "--set", "AcquisitionFrameRate=60", "--json"],
                stdout=subprocess.PIPE, check=False, text=True, timeout=5 * BOUND, env=cameras.environment).stdout
        counters = json.loads(printed)
        missing = sum(counters[kind] for kind in ("lost", "incomplete", "underruns", "unwritten"))
        rate = counters["images"] / counters["seconds"]
        yield Figure(f"images of 5 MP, Mono8, lost of {counters['images']} recorded to {name[-3:]} at {rate:.1f}/s", "",
                     [missing], [], "0 at 60/s", lambda figure, rate=rate: figure.median() == 0 and rate >= 59)


def on_network(bench):
    """Streams from a GigE Vision camera at its full rate over the loopback interface."""
    root = installation(bench, "streaming-gige", "fallback/UniversalGEV.cti")
    with Machine("") as machine:
        machine.start("arv-fake-gv-camera-0.8", "-i", "127.0.0.1", "-s", "BENCH")
        machine.output("arv-tool-0.8", "control", f"R[{FRAME_PERIOD}]=100")  # The full rate.
        printed = machine.output(f"{root}/bin/cvxctl", "watch", "BENCH", "--buffers", "16", "--seconds",
                                 str(NETWORK_SECONDS), "--json", bound=NETWORK_SECONDS + 5 * BOUND)
    counters = json.loads(printed.splitlines()[-1])
    missing = counters["lost"] + counters["incomplete"] + counters["underruns"]
    yield Figure(f"images lost of {counters['images']} from a simulated GigE Vision camera in {NETWORK_SECONDS} s", "",
                 [missing], [], *at_most(0, ""))


def figures(bench):
    cameras = Cameras(bench)
    yield from simulated(bench, cameras)
    yield from recorded(cameras)
    yield from on_network(bench)
