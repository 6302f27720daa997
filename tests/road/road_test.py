"""From the start of the installed program to its end: list, select, launch, plug, unplug, close."""

import os
import signal
import sys
import time

from launcher import Launcher, click, keep_to_this_machine, output_of, point_at, wait_for, xdotool
from scene import Scene

STAGE, PLUGINS = sys.argv[1:]


def rows_of(content):
    """What the table has to show for a scene, in any order."""
    return sorted((device["vendor"], device["model"], device["serial"])
                  for interface in content["interfaces"] for device in interface["devices"])


def shows(launcher, content):
    return lambda: sorted(launcher.rows()) == rows_of(content)


def select(launcher, vendor):
    click(launcher.cell(vendor))


def lists_the_simulated_cameras(launcher, scene):
    wait_for("the table shows the scene", shows(launcher, scene.read()))
    print(f"first list on screen {time.monotonic() - launcher.started:.2f} s after the start")
    assert len(launcher.rows()) == 8, launcher.rows()
    assert launcher.enabled_tools() == set(), "a tool is enabled although no camera is selected"
    assert len(launcher.tiles()) in (7, 8)  # One tool exists on x86-64 only.


def selecting_enables_the_group_s_tools(launcher):
    select(launcher, "Lintaro")
    wait_for("the hint names the group", lambda: launcher.find("toolsDescriptionLabel")["text"]
             == "Recommended for Line Scan Cameras. Non-recommended tools are disabled.")
    assert "Image Viewer" in launcher.enabled_tools()
    assert "Pixel Repair" not in launcher.enabled_tools()


def a_press_starts_the_tool_in_its_own_directory(launcher):
    """Returns the tool's process id; the tool is the caller's to end."""
    point_at(launcher.tiles()["Image Viewer"])
    xdotool("mousedown", "1")
    try:
        tools = wait_for("the tool runs before the button is released", lambda: [
            int(process) for process in os.listdir("/proc") if process.isdigit()
            and command_of(process) == os.path.realpath(f"{STAGE}/bin") + "/ImageViewer"])
    finally:
        xdotool("mouseup", "1")
    assert len(tools) == 1, tools
    assert os.readlink(f"/proc/{tools[0]}/cwd") == os.path.realpath(f"{STAGE}/bin")
    sockets = [link for link in links_of(tools[0]) if link in links_of(launcher.process.pid)
               and link.startswith(("socket:", "pipe:"))]
    assert sockets == [], f"inherited by the tool: {sockets}"
    assert environment_of(tools[0]) == environment_of(launcher.process.pid), "the tool has another environment"
    return tools[0]


def command_of(process):
    try:
        with open(f"/proc/{process}/cmdline", encoding="utf-8", errors="replace") as file:
            return file.read().split("\0")[0]
    except OSError:
        return ""


def environment_of(process):
    """What the process was started with."""
    with open(f"/proc/{process}/environ", "rb") as file:
        return sorted(file.read().split(b"\0"))


def links_of(process):
    directory = f"/proc/{process}/fd"
    return {os.readlink(f"{directory}/{number}") for number in os.listdir(directory)
            if int(number) > 2 and os.path.lexists(f"{directory}/{number}")}


def it_gets_by_without_opengl(launcher):
    """Which takes as long to load as all else of a start."""
    with open(f"/proc/{launcher.process.pid}/maps", encoding="utf-8") as file:
        drivers = {line.split()[-1] for line in file if "_dri.so" in line or "libGLX_" in line}
    assert not drivers, drivers


def a_plugged_camera_appears_and_an_unplugged_one_goes(launcher, scene):
    before, after = scene.read(), scene.with_camera("Kx200 Road", "ROAD0001")
    for content, promise in ((after, "the new camera appears"), (before, "the camera goes")):
        written = time.monotonic()
        scene.write(content)
        wait_for(promise, shows(launcher, content), bound=6)
        print(f"{promise}: {time.monotonic() - written:.2f} s")
    assert launcher.enabled_tools() == set(), "the selection was carried over a refresh"


def closing_ends_everything(launcher):
    hosts = output_of("pgrep", "--parent", str(launcher.process.pid)).split()
    assert hosts, "no producer host ran at all"
    click(launcher.find("pushButton_2"))
    assert launcher.process.wait(timeout=10) == 0, launcher.printed()
    assert not [host for host in hosts if os.path.exists(f"/proc/{host}")], "a producer host is left"
    assert launcher.printed() == "", launcher.printed()


def main():
    keep_to_this_machine(STAGE)
    tool = None
    try:
        with Scene(STAGE) as scene, Launcher(STAGE, PLUGINS) as launcher:
            lists_the_simulated_cameras(launcher, scene)
            selecting_enables_the_group_s_tools(launcher)
            it_gets_by_without_opengl(launcher)
            tool = a_press_starts_the_tool_in_its_own_directory(launcher)
            a_plugged_camera_appears_and_an_unplugged_one_goes(launcher, scene)
            closing_ends_everything(launcher)
            assert os.path.exists(f"/proc/{tool}"), "the tool did not outlive the launcher"
    finally:
        if tool is not None:
            os.kill(tool, signal.SIGTERM)


main()
