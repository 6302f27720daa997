"""Measures the release build and prints one table. script/bench prepares everything that this program needs.

usage: bench.py BUILD PLACE RESULT PAIRS [GROUP…]
"""

import datetime
import json
import os
import platform
import subprocess
import sys
import time

import chart
import clicking
import converting
import discovering
import idling
import listing
import pairs
import plugging
import querying
import setup
import size
import starting
import streaming
import viewing
from frames import BOUND, Screen

GROUPS = {"starting": starting, "listing": listing, "clicking": clicking, "querying": querying, "plugging": plugging,
          "discovering": discovering, "streaming": streaming, "converting": converting, "viewing": viewing, "setup": setup,
          "idling": idling, "size": size}


class Bench:
    """The data that all measurements share."""

    def __init__(self, build, place, count, screen):
        self.build, self.place, self.pairs, self.screen = build, place, count, screen
        self.stage = f"{place}/stage"
        self.launcher = f"{self.stage}/bin/CorvixLauncher"
        self.test_producer = f"{build}/tests/sdk/sdk_test_producer.cti"
        self.curves = {}  # Measured values by size, for each curve of the chart.

    def program(self, name):
        return f"{self.build}/bench/bench_{name}"

    def rounds(self, full):
        """Returns the number of rounds of a measurement without pairs. For few pairs, it is less than `full`."""
        return min(full, 2 * self.pairs)


def machine():
    with open("/proc/cpuinfo", encoding="utf-8") as file:
        model = next((line.split(":")[1].strip() for line in file if line.startswith("model name")), platform.machine())
    with open("/etc/os-release", encoding="utf-8") as file:
        system = dict(line.strip().split("=", 1) for line in file if "=" in line)["PRETTY_NAME"].strip('"')
    commit = subprocess.run(["git", "rev-parse", "--short", "HEAD"], cwd=os.path.dirname(os.path.abspath(__file__)),
                            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False, timeout=BOUND).stdout.strip()
    return {"date": datetime.date.today().isoformat(), "commit": commit, "processor": model, "cores": os.cpu_count(),
            "system": system, "kernel": platform.release(), "load before": round(os.getloadavg()[0], 2)}


def main():
    build, place, result, count, *groups = sys.argv[1:]
    started, facts, figures = time.monotonic(), machine(), []
    with Screen() as screen:
        bench = Bench(build, place, int(count), screen)
        for name in groups or GROUPS:
            for figure in GROUPS[name].figures(bench):
                figures.append(figure)
                print(f"{time.monotonic() - started:5.0f} s  " + "  ".join(figure.cells()), file=sys.stderr, flush=True)
    facts["seconds"] = round(time.monotonic() - started)
    with open(f"{result}/bench.json", "w", encoding="utf-8") as file:
        json.dump({"machine": facts, "pairs": bench.pairs, "figures": [figure.record() for figure in figures]}, file,
                  indent=1)
    if bench.curves:
        with open(f"{result}/cost.svg", "w", encoding="utf-8") as file:
            file.write(chart.draw(bench.curves))
    print(", ".join(f"{name} {value}" for name, value in facts.items()) + f", {bench.pairs} pairs\n")
    print(pairs.table(figures))


if __name__ == "__main__":
    main()
