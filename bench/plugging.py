"""Measures the time from a change of the simulator configuration until the screen shows the new row."""

import time

from frames import running
from pairs import Figure
from places import vendor
from simulator import SimulatorConfiguration

ROUNDS = 30
POLL_INTERVAL = 2.0  # seconds
MAX_DELAY = 2.5  # seconds


def figures(bench):
    times = []
    with SimulatorConfiguration(bench.stage) as simulator, running(bench.launcher):
        interface, *_ = simulator.read()["interfaces"]
        one, two = ({"interfaces": [{**interface, "devices": interface["devices"][:count]}]} for count in (1, 2))
        bench.screen.await_window()
        bench.screen.await_text([vendor(1)])
        for index in range(bench.rounds(ROUNDS)):
            simulator.write(one)
            bench.screen.await_text([vendor(1)], wanted=False)
            bench.screen.await_text([vendor(0)])
            time.sleep(POLL_INTERVAL * (index * 0.618 % 1))  # Spreads the changes over the poll interval.
            written = time.monotonic()
            simulator.write(two)
            times.append(bench.screen.await_text([vendor(1)]) - written)
    yield Figure(f"plugged in to row on the screen, worst of {len(times)}", "s", [max(times)], [POLL_INTERVAL], f"≤ {MAX_DELAY} s",
                 lambda figure: figure.median() <= MAX_DELAY)
    yield Figure("the same, all of them", "s", times, [POLL_INTERVAL], f"≤ {MAX_DELAY} s", lambda figure: max(figure.ours) <= MAX_DELAY)
