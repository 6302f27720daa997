"""Measures the time from the start of a process to its first frame, and to the first list of cameras."""

from frames import WITHOUT_OPENGL, running
from pairs import WITHOUT_TARGET, Figure, at_most_times, in_pairs
from places import LISTED


def milliseconds(command, screen, is_drawn, environment=None):
    with running(*command, environment=environment) as (_, started):
        return (is_drawn(screen) - started) * 1e3


def first_frame(screen):
    return screen.await_window()


def first_list(screen):
    screen.await_window()
    return screen.await_text(LISTED)


def figures(bench):
    launcher, empty = [bench.launcher], [bench.program("empty_window")]
    listing = [*empty, f"{bench.stage}/cti/CorvixCameraSimulator.cti"]
    for name, is_drawn, floor, limit in (("start to first frame", first_frame, empty, 1.35),
                                        ("start to first complete list, 8 cameras", first_list, listing, 1.5)):
        for suffix, environment, target in (("", None, at_most_times(limit)),
                                           (", floor without OpenGL", WITHOUT_OPENGL, WITHOUT_TARGET)):
            measured = in_pairs(
                lambda: milliseconds(launcher, bench.screen, is_drawn),  # pylint: disable=W0640
                lambda: milliseconds(floor, bench.screen, first_frame, environment), bench.pairs)  # pylint: disable=W0640
            yield Figure(name + suffix, "ms", *measured, *target)
