"""Measures the search for GigE Vision cameras. Each machine with its cameras is in network namespaces (networks.py)."""

import concurrent.futures
import os
import shutil
import sys
import time

import footprint
from listing import Installation
from networks import Machine, end, further_interfaces, start_first, two_interfaces
from pairs import Figure, at_most, in_pairs
from watching import MODEL, Watcher

FURTHER_INTERFACES = 30
SHORT_SEARCH = 200  # Milliseconds. The first search asks a producer to answer within this time.
LATER_LISTS = 30  # Seconds of lists at random times.
SETTLED = 10.0  # Every camera is found, and the work of the start is done, after this many seconds.
IDLE = 60  # Seconds over which an idle host of ours is measured.
POLL_INTERVAL = 2.0  # seconds
INTERFACE_FORGOTTEN = 12.0  # A network interface that was removed this many seconds ago has been reported as gone.
CHANGES, REMADE = 30, 10  # How often a camera, or a network interface, disappears and appears again.
STEADY = 20  # Seconds without a change for each pair, so that 15 pairs take five minutes.
DISTURBANCES = {"2 % of the answers lost": ("--loss", 2), "10 % of the answers lost": ("--loss", 10),
                "answers after 0 to 1,000 ms": ("--delay", "0-1000")}


class Products:
    """The installations that are measured, and the machines that they are measured on."""

    def __init__(self, bench):
        self.bench = bench
        ours, vendors = "fallback/UniversalGEV.cti", f"{bench.build}/tests/gige/producer/WholeTimeoutGEV.cti"
        simulator = "CorvixCameraSimulator.cti", "CorvixCameraSimulator.json"
        self.shipped = self.installation("shipped", ours, "fallback/UniversalU3V.cti", *simulator)
        self.ours = self.installation("ours", ours)
        self.whole_timeout = self.installation("whole-timeout", vendors)
        self.both = self.installation("both", ours, vendors)

    def installation(self, name, *files):
        """Returns the watching program of an installation with these producers. A file with a relative path is part of
        the shipped installation."""
        root = Installation(self.bench, f"discovering-{name}").root
        os.mkdir(f"{root}/cti/fallback")
        for file in files:
            if os.path.isabs(file):
                shutil.copy(file, f"{root}/cti")
            else:
                shutil.copy(f"{self.bench.place}/shipped/cti/{file}", f"{root}/cti/{file}")
        return shutil.copy(self.bench.program("watch_cameras"), f"{root}/bin")

    def machine(self):
        return Machine(f"{self.bench.build}/tests/gige/camera/fake_gige_cameras")


class Lists:
    """Makes lists, and counts those that lack a camera."""

    def __init__(self, machine, program, cameras):
        self.machine, self.program, self.cameras = machine, program, cameras
        self.made, self.incomplete = 0, 0

    def read(self, printed):
        """Returns the milliseconds of each list that the watching program has printed."""
        lists = [line.split() for line in printed.splitlines()]
        self.made += len(lists)
        self.incomplete += sum(int(count) != self.cameras for count, _ in lists)
        return [float(milliseconds) for _, milliseconds in lists]

    def first(self):
        milliseconds, = self.read(self.machine.output(self.program, "first", MODEL))
        return milliseconds

    def later(self):
        return self.read(self.machine.output(self.program, "later", MODEL, str(LATER_LISTS), bound=3 * LATER_LISTS))

    def figure(self, name, ours, floor, target, limit):
        """Returns a figure that meets its target only if every list is complete."""
        return Figure(f"{name}; incomplete: {self.incomplete} of {self.made}", "ms", ours, floor, target,
                      lambda figure: not self.incomplete and limit(figure))


def tool_list(machine):
    started = time.monotonic()
    machine.output("arv-tool-0.8")
    return (time.monotonic() - started) * 1e3


def shipped_lists(products, machine, cameras, name, target, limit):
    """Compares first lists of the shipped installation with another program that lists cameras."""
    lists = Lists(machine, products.shipped, cameras)
    measured = in_pairs(lists.first, lambda: tool_list(machine), products.bench.pairs)
    return lists.figure(f"first list, shipped installation, {name}", *measured, target, limit)


def whole_timeout_lists(products, machine, name, limit):
    lists = Lists(machine, products.whole_timeout, 3)
    times = [lists.first() for _ in range(products.bench.pairs)]
    return lists.figure(f"first list, producer that uses its whole timeout, {name}", times, [SHORT_SEARCH],
                        *at_most(limit, "ms"))


def two_interface_figures(products):
    with products.machine() as machine:
        two_interfaces(machine)
        yield shipped_lists(products, machine, 3, "3 cameras on 2 interfaces", "≤ 300 ms, ≤ ⅓ ×",
                            lambda figure: figure.median() <= 300 and figure.ratio() <= 1 / 3)
        yield whole_timeout_lists(products, machine, "2 interfaces", 260)
        lists = Lists(machine, products.shipped, 3)
        later = lists.later()
        yield lists.figure(f"later lists, worst of {len(later)}", [max(later)], [], *at_most(70, "ms"))
        yield lists.figure("the same, all of them", later, [], "≤ 70 ms", lambda figure: max(figure.ours) <= 70)


def many_interface_figures(products):
    with products.machine() as machine:
        two_interfaces(machine)
        further_interfaces(machine, FURTHER_INTERFACES)
        name = f"{FURTHER_INTERFACES} further interfaces"
        yield shipped_lists(products, machine, 3, name, *at_most(350, "ms"))
        yield whole_timeout_lists(products, machine, name, 1000)
        with Watcher(machine, products.whole_timeout) as watcher:
            busy, _ = idle_use(watcher, "WholeTimeoutGEV.cti", 20)
        yield Figure(f"processor use of that producer's host, idle, {name}", "%", [busy], [0], *at_most(5, "% of a core"))


def many_camera_figures(products):
    with products.machine() as machine:
        machine.add_interface("card1", "10.77.1")
        machine.start_cameras("card1", 20)
        yield shipped_lists(products, machine, 20, "20 cameras on one interface", *at_most(320, "ms"))


def idle_use(watcher, producer, seconds, interfaces=()):
    """Returns the processor use of a producer's host in percent, and for each network interface the number of packets
    that it has sent to cameras."""
    time.sleep(SETTLED)
    host = footprint.hosts(watcher.process.pid)[producer]

    def state():
        # The times of the process include those of threads that have ended; a search starts threads.
        ticks = sum(map(int, footprint.stat_fields(host)[11:13]))
        return ticks / os.sysconf("SC_CLK_TCK"), [watcher.machine.received_datagrams(name) for name in interfaces]
    busy, packets = state()
    time.sleep(seconds)
    busy_after, packets_after = state()
    return 100 * (busy_after - busy) / seconds, [after - before for before, after in zip(packets, packets_after)]


def idle_figures(products):
    seconds = products.bench.rounds(IDLE // 10) * 10
    with products.machine() as machine:
        two_interfaces(machine)
        with Watcher(machine, products.shipped) as watcher:
            busy, packets = idle_use(watcher, "UniversalGEV.cti", seconds, ["card1", "card2"])
    yield Figure("processor use of UniversalGEV's host, idle, 2 interfaces", "%", [busy], [0],
                 *at_most(0.1, "% of a core"))
    polls = seconds / POLL_INTERVAL
    # The time may contain one search more than it contains whole poll intervals.
    yield Figure("packets sent, idle, each interface and 2 s", "", [max(packets) / polls], [], "≤ 2",
                 lambda _: max(packets) <= 2 * (polls + 1))


def settled(watcher, cameras, since, spread):
    """Waits until a list has this number of cameras and for some seconds more. Returns the seconds until that list, and
    the number of all lists."""
    seconds = watcher.await_list(cameras, since) - since
    time.sleep(POLL_INTERVAL * (1 + spread % 1))  # Spreads the changes over the poll interval.
    return seconds, watcher.count("list", since)


def changed_cameras(products):
    """Ends and starts a camera again and again. Returns two lists with the results of settled()."""
    gone, back = [], []
    with products.machine() as machine:
        camera, _ = two_interfaces(machine)
        with Watcher(machine, products.shipped) as watcher:
            settled(watcher, 3, 0, 0)
            for index in range(products.bench.rounds(CHANGES)):
                ended = time.monotonic()
                end(camera)
                gone.append(settled(watcher, 2, ended, index * 0.618))
                started = time.monotonic()
                camera = start_first(machine)
                back.append(settled(watcher, 3, started, index * 0.382))
    return gone, back


def changed_interfaces(products):
    """Removes a network interface and makes it anew, again and again. Returns the results of settled() for the list
    with its camera."""
    back = []
    with products.machine() as machine:
        camera, _ = two_interfaces(machine)
        with Watcher(machine, products.shipped) as watcher:
            settled(watcher, 3, 0, 0)
            for index in range(products.bench.rounds(REMADE)):
                removed = time.monotonic()
                machine.remove_interface("card1")
                end(camera)
                settled(watcher, 2, removed, index * 0.618)
                time.sleep(INTERFACE_FORGOTTEN)
                machine.plug_in("card1")
                camera = start_first(machine)
                made = time.monotonic()
                machine.set_up("card1")
                back.append(settled(watcher, 3, made, index * 0.382))
    return back


def announcements(products, program, options):
    """Returns the number of calls of the observer after the first seconds, and the number of cameras at the end."""
    with products.machine() as machine:
        two_interfaces(machine, options)
        with Watcher(machine, program) as watcher:
            time.sleep(SETTLED)
            since = time.monotonic()
            time.sleep(STEADY * products.bench.pairs)
            return watcher.count("added", since) + watcher.count("removed", since), watcher.listed()


def change_figures(gone, back, remade):
    for name, measured, limit in (("camera ended to row gone", gone, 4.5), ("camera started to row there", back, 3.2),
                                  ("interface made anew to row there", remade, 2.5)):
        times = [seconds for seconds, _ in measured]
        yield Figure(f"{name}, worst of {len(times)}", "s", [max(times)], [POLL_INTERVAL], *at_most(limit, "s"))
        yield Figure("the same, all of them", "s", times, [POLL_INTERVAL], f"≤ {limit} s",
                     lambda figure, limit=limit: max(figure.ours) <= limit)
    lists = [count for _, count in gone + back]
    yield Figure(f"lists after a camera ended or started, most of {len(lists)}", "", [max(lists)], [], *at_most(1, ""))


def slow_figures(products):
    """Yields the figures that take minutes. They are measured at the same time, because the machine is nearly idle."""
    with concurrent.futures.ThreadPoolExecutor(2 + 2 * len(DISTURBANCES)) as pool:
        cameras, interfaces = (pool.submit(measure, products) for measure in (changed_cameras, changed_interfaces))
        steady = [(f"{disturbance}, {which}", pool.submit(announcements, products, program, options))
                  for which, program in (("our producer", products.ours), ("beside another producer", products.both))
                  for disturbance, options in DISTURBANCES.items()]
        yield from change_figures(*cameras.result(), interfaces.result())
        for name, measured in steady:
            count, listed = measured.result()
            yield Figure(f"announcements in {STEADY * products.bench.pairs} s, {name}", "", [count], [], "0",
                         lambda _, count=count, listed=listed: count == 0 and listed == 3)


def figures(bench):
    if os.geteuid() != 0:
        print("The group \"discovering\" is skipped: only root may create its networks.", file=sys.stderr)
        return
    products = Products(bench)
    for measure in two_interface_figures, many_interface_figures, many_camera_figures, idle_figures, slow_figures:
        yield from measure(products)
