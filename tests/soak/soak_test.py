"""Hours with the launcher: plugs and unplugs at random beside bad producers, and looks what it costs in the end.

usage: soak_test.py MINUTES SEED STAGE PLUGINS PRODUCER DOCUMENTS
"""

import os
import random
import re
import sys
import time
from collections import Counter

import footprint
from launcher import Launcher, keep_to_this_machine, wait_for, xdotool
from recommendation import Recommendation
from simulator import SimulatorConfiguration
from scenes import RandomScenes
from scripted import CrashingProducer, SlowProducer
from session import Session, named, press

LONG = 5  # minutes; a shorter run has less time for its preparations
MOST_GROWTH = 0.05
SMALLEST_GROWTH = 128  # KiB, the step in which a heap grows; that of a host is only a few times as large
FIRST_GROWTH = 2048  # KiB; so much a launcher may still grow in its second minute, until all that it keeps is there
MOST_IDLE = 0.005  # of one core
EXPECTED_LINES = re.compile(
    r"Camera simulator: \S+\.json is not used: .*"
    r"|libCvxCPP: \S+/cti/Crashing\.cti: (was ended by SIG(SEGV|ABRT) .*|exited with code 3)")


def measure(session, content, rest):
    """What everything takes after a rest of so many seconds, and what the rest has cost.

    Both times the same scene is shown. In a rest of a minute Qt also drops the pictures that it keeps for a while.
    """
    session.slow.take(1500)
    session.show("interfaces", content)
    xdotool("mousemove", "2", "2")
    session.stays(5)
    parent = session.launcher.process.pid
    cost = idle_use(parent, rest)
    hosts = wait_for("only the good hosts run", lambda: good_hosts(parent))
    wait_for("no child is left as a zombie", lambda: not footprint.zombies(parent), 5)
    return footprint.footprints({"launcher": parent, **hosts}), cost


def good_hosts(launcher):
    """All hosts, when that of the crashing producer is down; else none."""
    hosts = footprint.hosts(launcher)
    well = {"CorvixCameraSimulator.cti", "Slow.cti"} <= set(hosts) and "Crashing.cti" not in hosts
    return hosts if well else None


def idle_use(launcher, seconds):
    """The shares of one core that the launcher and all of its hosts use."""
    def used():
        own, ended = footprint.seconds_used(launcher)
        hosts = footprint.hosts(launcher).values()
        return own, ended + sum(footprint.seconds_used(host)[0] for host in hosts)

    started, before = time.monotonic(), used()
    time.sleep(seconds)  # Nothing is waited for: the time itself is measured.
    taken, after = time.monotonic() - started, used()
    return tuple((late - early) / taken for early, late in zip(before, after))


def growth(before, after, kind):
    return after.memory[kind] / before.memory[kind] - 1


def compare(first, last, is_long):
    """The lines of the summary on memory, descriptors and threads, and what is wrong with them."""
    lines, problems = [], []
    if set(first) != set(last):
        problems.append(f"there were {sorted(first)} and are {sorted(last)}")
    for name in sorted(set(first) & set(last), reverse=True):
        before, after = first[name], last[name]
        memory = ", ".join(f"{kind} {before.memory[kind]} to {after.memory[kind]} ({growth(before, after, kind):+.1%})"
                           for kind in before.memory)
        lines.append(f"{name}: KiB {memory}; descriptors {len(before.descriptors)} to {len(after.descriptors)}; "
                     f"threads {len(before.threads)} to {len(after.threads)}")
        if after.process != before.process:
            problems.append(f"{name} was started anew")
        # PSS and RSS are told, not judged: they change with what other programs use of the same libraries, and with
        # which pages of files the system keeps.
        least = SMALLEST_GROWTH if name != "launcher" else 0 if is_long else FIRST_GROWTH
        if growth(before, after, "own") >= MOST_GROWTH and after.memory["own"] - before.memory["own"] > least:
            problems.append(f"{name} takes more memory")
        for what in ("descriptors", "threads"):
            now, then = getattr(after, what), getattr(before, what)
            if len(now) > len(then):
                problems.append(f"{name} has more {what}; new are {list((Counter(now) - Counter(then)).elements())}")
    return lines, problems


def close(session):
    """Ends the launcher as its user does; gives what is wrong with the end and with what it has printed."""
    launcher = session.launcher
    hosts = footprint.hosts(launcher.process.pid).values()
    press(named(session.window(), "pushButton_2"))
    problems = []
    if launcher.process.wait(timeout=10) != 0:
        problems.append(f"exit status {launcher.process.returncode}")
    if any(footprint.state(host) for host in hosts):
        problems.append("a host is left")
    lines = launcher.printed().splitlines()
    unexpected = [line for line in lines if not EXPECTED_LINES.fullmatch(line)]
    if unexpected:
        problems.append(f"{len(unexpected)} unexpected lines on standard error: {unexpected[:20]}")
    if session.reports() != session.counts.get("broken scenes", 0):
        problems.append(f"{session.reports()} reports of broken scenes")
    starts = session.crashing.starts()
    return [f"{len(lines)} lines on standard error; {starts} starts of the crashing producer"], problems


def warm_up(session, until):
    """Everything once, and the largest scene: what is loaded when needed and then kept is there, as are pictures."""
    session.show_largest()
    for act in (session.start_tool, session.hover, session.break_scene, session.remove_file, session.refresh):
        act()
    while time.monotonic() < until:
        session.step()


def run(session, minutes):
    """Gives the lines of the summary and the list of what is wrong."""
    end = session.launcher.started + 60 * minutes
    is_long = minutes >= LONG
    quiet = 60 if is_long else 20
    session.launcher.window()
    session.await_table("the first list is shown")
    content = session.scene.read()
    warm_up(session, session.launcher.started + (60 if is_long else 30))
    # Without a rest, the short form starts from a larger footprint and so sees larger leaks only.
    first, _ = measure(session, content, quiet if is_long else 0)
    while time.monotonic() < end - quiet - 15:
        session.step()
    last, (own, of_hosts) = measure(session, content, quiet)
    lines, problems = compare(first, last, is_long)
    lines.append(f"idle for {quiet} s: launcher {own:.2%}, its hosts {of_hosts:.2%} of one core")
    if own + of_hosts >= MOST_IDLE:
        problems.append("not idle when idle")
    session.await_table("the table still shows the scene")
    more_lines, more_problems = close(session)
    return lines + more_lines, problems + more_problems


def summary(session, lines):
    changes = ", ".join(f"{number} {kind}" for kind, number in sorted(session.counts.items()))
    worst = ", ".join(f"{kind} {seconds:.1f} s" for kind, seconds in sorted(session.worst.items()))
    return [f"steps: {changes}", f"longest from scene to screen: {worst}", *lines]


def main():
    minutes, seed = float(sys.argv[1]), int(sys.argv[2])
    stage, plugins, producer, documents = (os.path.abspath(path) for path in sys.argv[3:])
    print(f"soak for {minutes:g} minutes, seed {seed}", flush=True)
    keep_to_this_machine(stage)
    chance = random.Random(seed)
    recommendation = Recommendation(documents)
    slow, crashing = SlowProducer(stage, producer), CrashingProducer(stage, producer)
    slow.take(1500)
    crashing.crash_in("IFUpdateDeviceList", "crash")
    for bad in (slow, crashing):
        bad.put_in_place()
    # Without a session bus: Qt would look for one, and start one, in every tool.
    environment = {"DBUS_SESSION_BUS_ADDRESS": "disabled:"}
    with SimulatorConfiguration(stage) as scene, Launcher(stage, plugins, environment) as launcher:
        scenes = RandomScenes(chance, recommendation.models(), scene.read())
        session = Session(launcher, scene, scenes, recommendation, slow, crashing, chance)
        try:
            lines, problems = run(session, minutes)
        except Exception as failure:  # Whatever it is, the summary has to say with which seed it came.
            lines, problems = [], [f"{type(failure).__name__}: {failure}", "before: " + "; ".join(session.history),
                                   f"standard error: {launcher.printed()[-3000:]}"]
        print("\n".join(summary(session, lines)))
        if problems:
            print(f"FAILED with seed {seed}:\n" + "\n".join(problems))
            sys.exit(1)
        print("passed")


main()
