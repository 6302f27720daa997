"""A GigE Vision camera on the network, with no software of its maker: it comes, goes, comes back, and its driver hangs."""

import os
import signal
import subprocess
import sys
import time

from launcher import Launcher, click, output_of, wait_for
from scene import Scene

STAGE, PLUGINS = sys.argv[1:]
CAMERA = ("Aravis", "Fake", "ROAD1")
SIMULATED = 8
PICTURE = os.environ.get("CORVIX_PICTURE")  # Where to save what the window shows with the camera selected.


class FakeCamera:
    """A camera made of software, on the loopback device; to be used in a with statement."""

    def __enter__(self):
        self.process = subprocess.Popen(
            ["setpriv", "--pdeathsig", "KILL", "arv-fake-gv-camera-0.8", "--interface", "127.0.0.1", "--serial", CAMERA[2]],
            stdout=subprocess.DEVNULL)
        return self

    def __exit__(self, *_):
        self.process.kill()
        self.process.wait()


def shown(launcher):
    return CAMERA in launcher.rows()


def timed(promise, condition, bound):
    begin = time.monotonic()
    wait_for(promise, condition, bound)
    print(f"{promise}: {time.monotonic() - begin:.2f} s")


def is_listed_beside_the_simulated_ones(launcher):
    wait_for("the camera is listed", lambda: shown(launcher) and len(launcher.rows()) == SIMULATED + 1)
    print(f"first list on screen {time.monotonic() - launcher.started:.2f} s after the start")
    tool_tip = launcher.tool_tip(CAMERA[0])
    assert ">GigE<" in tool_tip and ">UniversalGEV.cti<" in tool_tip, tool_tip


def belongs_to_the_other_cameras(launcher):
    click(launcher.scroll_to(CAMERA[0]))
    wait_for("the hint names the group", lambda: launcher.find("toolsDescriptionLabel")["text"]
             == "Recommended for Other. Non-recommended tools are disabled.")
    assert "Image Viewer" in launcher.enabled_tools()
    if PICTURE:
        subprocess.run(["import", "-window", "root", PICTURE], check=True)


def gige_host(launcher):
    """The process that runs the producer; none while it is not there."""
    hosts = output_of("pgrep", "--parent", str(launcher.process.pid), "--full", "UniversalGEV.cti").split()
    return int(hosts[0]) if hosts else None


def a_hung_producer_costs_its_own_cameras_only(launcher, scene):
    hung = gige_host(launcher)
    os.kill(hung, signal.SIGSTOP)
    scene.write(scene.with_camera("Kx200 Road", "ROAD0001"))
    timed("with the producer hung, another's new camera is listed",
          lambda: ("Orvelle", "Kx200 Road", "ROAD0001") in launcher.rows(), 8)
    timed("the hung producer's camera goes",
          lambda: not shown(launcher) and len(launcher.rows()) == SIMULATED + 1, 20)
    assert not os.path.exists(f"/proc/{hung}"), "the hung host is left"
    timed("it comes back with a new host", lambda: shown(launcher), 10)
    line, = launcher.printed().splitlines()
    assert line.endswith("fallback/UniversalGEV.cti: did not answer within 10.0 s and was killed"), line


def main():
    assert os.path.exists(f"{STAGE}/lib/udev/rules.d/60-corvix-usb3-vision.rules")
    with Scene(STAGE) as scene, Launcher(STAGE, PLUGINS) as launcher:
        with FakeCamera():
            is_listed_beside_the_simulated_ones(launcher)
            belongs_to_the_other_cameras(launcher)
        timed("the camera goes", lambda: not shown(launcher) and len(launcher.rows()) == SIMULATED, 5)
        with FakeCamera():
            timed("the camera comes back", lambda: shown(launcher), 5)
            assert launcher.printed() == "", launcher.printed()
            a_hung_producer_costs_its_own_cameras_only(launcher, scene)


main()
