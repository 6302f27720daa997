"""Operates the installed program once: selects a camera, launches a tool, adds and removes a camera, and closes."""

import os
import signal
import sys

from launcher import Launcher, click, keep_to_this_machine, output_of, wait_for, xdotool
from simulator import SimulatorConfiguration, rows_of

STAGE, PLUGINS = sys.argv[1:]


def shows(launcher, content):
    return lambda: sorted(launcher.rows()) == rows_of(content)


def table_shows_the_simulated_cameras(launcher, simulator):
    wait_for("the table shows the simulator configuration", shows(launcher, simulator.read()))
    assert len(launcher.rows()) == 8, launcher.rows()
    assert launcher.enabled_tools() == set(), "a tool is enabled although no camera is selected"


def selection_enables_the_tools_of_the_group(launcher):
    click(launcher.cell("Lintaro"))
    wait_for("the hint names the group", lambda: launcher.hint()
             == "Recommended for Line Scan Cameras. Non-recommended tools are disabled.")
    assert "Image Viewer" in launcher.enabled_tools()
    assert "Pixel Repair" not in launcher.enabled_tools()


def opengl_is_not_loaded(launcher):
    """Loading OpenGL would take as long as the rest of the start."""
    with open(f"/proc/{launcher.process.pid}/maps", encoding="utf-8") as file:
        libraries = {line.split()[-1] for line in file if "_dri.so" in line or "libGLX_" in line}
    assert not libraries, libraries


def click_starts_the_tool_in_its_own_directory(launcher):
    """Returns the process ID of the tool. The caller has to end the tool."""
    click(launcher.tiles()["Image Viewer"])
    directory = os.path.realpath(f"{STAGE}/bin")
    tool = wait_for("the tool runs", lambda: output_of("pgrep", "--oldest", "-fx", f"{directory}/ImageViewer").strip())
    assert os.readlink(f"/proc/{tool}/cwd") == directory
    inherited = connections_of(tool) & connections_of(launcher.process.pid)
    assert not inherited, f"the tool has inherited {inherited}"
    window = wait_for("the tool opens the selected camera", lambda: output_of(
        "xdotool", "search", "--onlyvisible", "--name", r"^Lintaro Qz40 TDI 16k \(L70881\) – Image Viewer$")).strip()
    xdotool("windowminimize", "--sync", window)  # It would cover the launcher.
    return int(tool)


def connections_of(process):
    """Returns the sockets and pipes that a process has open, except for its standard streams."""
    directory = f"/proc/{process}/fd"
    links = (os.readlink(f"{directory}/{number}") for number in os.listdir(directory)
             if int(number) > 2 and os.path.lexists(f"{directory}/{number}"))
    return {link for link in links if link.startswith(("socket:", "pipe:"))}


def plugged_camera_appears_and_unplugged_camera_disappears(launcher, simulator):
    before, after = simulator.read(), simulator.read()
    after["interfaces"][0]["devices"].append(
        {"id": "E2E0001", "vendor": "Orvelle", "model": "Kx200 Plugged", "serial": "E2E0001"})
    for content in after, before:
        simulator.write(content)
        wait_for("the table follows the simulator configuration", shows(launcher, content))
    assert launcher.enabled_tools() == set(), "the selection survived a refresh"


def closing_ends_everything_but_the_tool(launcher, tool):
    hosts = launcher.hosts()
    assert hosts, "no producer host ran"
    click(launcher.find("pushButton_2"))
    assert launcher.process.wait(timeout=60) == 0, launcher.printed()
    assert not [host for host in hosts if os.path.exists(f"/proc/{host}")], "a producer host is left"
    assert launcher.printed() == "", launcher.printed()
    assert os.path.exists(f"/proc/{tool}"), "the tool ended with the launcher"


def main():
    keep_to_this_machine(STAGE)
    tool = None
    try:
        with SimulatorConfiguration(STAGE) as simulator, Launcher(STAGE, PLUGINS) as launcher:
            table_shows_the_simulated_cameras(launcher, simulator)
            selection_enables_the_tools_of_the_group(launcher)
            opengl_is_not_loaded(launcher)
            tool = click_starts_the_tool_in_its_own_directory(launcher)
            plugged_camera_appears_and_unplugged_camera_disappears(launcher, simulator)
            closing_ends_everything_but_the_tool(launcher, tool)
    finally:
        if tool is not None:
            os.kill(tool, signal.SIGTERM)


main()
