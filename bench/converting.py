"""Measures conversions of pixel formats against copying their output, and against libswscale where it knows the format."""

import subprocess

from frames import BOUND
from pairs import Figure, WITHOUT_TARGET, at_least_times

BYTES_OF_CORRECTED = {"BayerRG8 to RGB, corrected": 3 * 2448 * 2048, "Mono12p to 8 bits, corrected": 2448 * 2048}
COPY_TARGETS = {"BayerRG12p to RGB, bilinear": 0.2, "Mono12p to 16 bits": 0.3, "Mono8 to 1200 × 800": 0.2}


def figures(bench):
    # A first round fills the caches and is left out.
    output = subprocess.run([bench.program("pixel_formats"), str(bench.pairs + 1)], stdout=subprocess.PIPE, text=True,
                            check=True, timeout=10 * BOUND).stdout
    rounds = {}
    for line in output.splitlines():
        name, *speeds = line.split("\t")
        rounds.setdefault(name, []).append([float(speed) for speed in speeds])
    for name, values in rounds.items():
        ours, copy, theirs = ([value[place] for value in values[1:]] for place in range(3))
        if name in BYTES_OF_CORRECTED:
            rates = [[speed * 1e9 / BYTES_OF_CORRECTED[name] for speed in speeds] for speeds in (ours, theirs)]
            yield Figure(f"{name}: defects, offset and gain, 5 MP on one core; floor without correction", "/s", *rates,
                         "≥ 60/s", lambda figure: figure.median() >= 60)
            continue
        target = at_least_times(COPY_TARGETS[name]) if name in COPY_TARGETS else WITHOUT_TARGET
        yield Figure(f"{name}, floor memcpy", "GB/s", ours, copy, *target)
        if theirs[0]:
            yield Figure(f"{name}, floor libswscale", "GB/s", ours, theirs, *at_least_times(1))
