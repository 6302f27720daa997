"""Runs the launcher for minutes while cameras appear and disappear and producers fail; compares its use of resources.

usage: soak_test.py MINUTES SEED STAGE PLUGINS PRODUCER
"""

import os
import random
import re
import sys
import time

import footprint
from configurations import RandomConfigurations
from launcher import Launcher, keep_to_this_machine, wait_for, xdotool
from scripted import CrashingProducer, SlowProducer
from session import Session, named, press
from simulator import SimulatorConfiguration

REST = 60  # seconds; in this time, Qt releases its cached pictures
MAX_GROWTH = 1.05
MIN_GROWTH = 128  # KiB; a heap grows in steps of this size, and the heap of a host is only a few times larger
MAX_IDLE_USE = 0.005  # of one processor
EXPECTED_LINES = re.compile(
    r"Camera simulator: \S+\.json is not used: .*"
    r"|libCvxCPP: \S+/cti/Crashing\.cti: (was ended by SIG(SEGV|ABRT) .*|exited with code 3)")


def measure(session, content):
    """Shows a configuration and waits. Returns the footprints of the processes and their share of one processor."""
    session.slow.search_for(1500)
    session.show(content)
    xdotool("mousemove", 2, 2)
    session.assert_unchanged(5)
    launcher = session.launcher.process.pid

    started, used = time.monotonic(), footprint.seconds_used(launcher)
    time.sleep(REST)  # The CPU use during this pause is measured.
    use = (footprint.seconds_used(launcher) - used) / (time.monotonic() - started)

    wait_for("the crashing producer is down, the slow one runs, and no child is a zombie", lambda:
             "Slow.cti" in footprint.hosts(launcher) and "Crashing.cti" not in footprint.hosts(launcher) and
             (launcher, "Z") not in ((footprint.parent(child), footprint.state(child)) for child in footprint.processes()))
    return footprint.footprints({"launcher": launcher, **footprint.hosts(launcher)}), use


def growth(first, last):
    """Compares two measurements. Returns the lines of the summary and the problems."""
    lines, problems = [], []
    if {name: before.process for name, before in first.items()} != {name: after.process for name, after in last.items()}:
        return lines, [f"the processes have changed from {sorted(first)} to {sorted(last)}, or one was restarted"]
    for name, before in first.items():
        for kind, then, now in (
                ("KiB", before.memory["own"], last[name].memory["own"]),
                ("descriptors", before.descriptors, last[name].descriptors),
                ("threads", before.threads, last[name].threads)):
            lines.append(f"{name}: {then} to {now} {kind}")
            if now > (max(MAX_GROWTH * then, then + MIN_GROWTH) if kind == "KiB" else then):
                problems.append(f"more {lines[-1]}")
    return lines, problems


def close(session):
    """Closes the launcher with its button. Returns the problems with its exit and its standard error."""
    hosts = footprint.hosts(session.launcher.process.pid).values()
    press(named(session.window(), "pushButton_2"))
    status = session.launcher.process.wait(timeout=60)
    unexpected = [line for line in session.launcher.printed().splitlines() if not EXPECTED_LINES.fullmatch(line)]
    return [problem for is_wrong, problem in (
        (status, f"exit status {status}"),
        (any(footprint.state(host) for host in hosts), "a host is left"),
        (unexpected, f"{len(unexpected)} unexpected lines on standard error: {unexpected[:20]}"),
        (session.reports() != session.broken, f"{session.reports()} reports of {session.broken} broken configurations"),
    ) if is_wrong]


def run(session, minutes):
    """Runs all steps and both measurements. Returns the lines of the summary and the problems."""
    end = session.launcher.started + 60 * minutes
    session.wait_for_table("the first list is shown")
    content = session.simulator.read()
    # Each kind of step runs once before the first measurement, because some data is loaded at its first use and kept.
    session.show(session.configurations.largest())
    for step in (session.start_tool, session.hover, session.break_configuration, session.remove_file, session.refresh):
        step()
    while time.monotonic() < session.launcher.started + 60:
        session.step()
    first, _ = measure(session, content)
    while time.monotonic() < end - REST - 15:
        session.step()
    last, use = measure(session, content)
    lines, problems = growth(first, last)
    lines.append(f"{len(session.history)} steps; {use:.2%} of one processor when idle")
    if use > MAX_IDLE_USE:
        problems.append("the launcher and its hosts are not idle")
    session.wait_for_table("the table still shows the cameras")
    return lines, problems + close(session)


def main():
    minutes, seed = float(sys.argv[1]), int(sys.argv[2])
    stage, plugins, producer = (os.path.abspath(path) for path in sys.argv[3:])
    print(f"soak for {minutes:g} minutes, seed {seed}", flush=True)
    keep_to_this_machine(stage)
    chance = random.Random(seed)
    slow, crashing = SlowProducer(stage, "Slow", producer), CrashingProducer(stage, "Crashing", producer)
    slow.search_for(1500)
    crashing.crash(chance)
    slow.put_in_place()
    crashing.put_in_place()
    os.environ["DBUS_SESSION_BUS_ADDRESS"] = "disabled:"  # Otherwise, Qt would start a session bus in every tool.
    with SimulatorConfiguration(stage) as simulator, Launcher(stage, plugins) as launcher:
        session = Session(launcher, simulator, RandomConfigurations(chance, simulator.read()), slow, crashing, chance)
        try:
            lines, problems = run(session, minutes)
        except Exception as failure:  # Every failure is reported with its seed.
            lines, problems = [], [f"{type(failure).__name__}: {failure}", "last steps: " + "; ".join(session.history[-10:]),
                                   f"standard error: {launcher.printed()[-3000:]}"]
    print("\n".join(lines))
    sys.exit("\n".join([f"FAILED with seed {seed}:", *problems]) if problems else 0)


main()
