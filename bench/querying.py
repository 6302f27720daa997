"""Measures queries of the configuration with the shipped data."""

import subprocess

from frames import BOUND
from pairs import Figure, at_most


def figures(bench):
    printed = subprocess.run([bench.program("queries"), str(bench.pairs)], stdout=subprocess.PIPE, check=True,
                             text=True, timeout=10 * BOUND).stdout
    for line in printed.splitlines():
        name, allocations, *times = line.split()
        yield Figure(f"`{name}`, {float(allocations):.1f} allocations a call", "µs", [float(time) for time in times],
                     [], *at_most(20, "µs"))
