"""Builds a machine with the network interface card1 (10.77.1.1/24), to which fake cameras are connected.

The program that imports this module must run in a network namespace of its own.
"""

import os
import subprocess
import sys
import time

CAMERA_PROGRAM = os.path.join(os.path.dirname(os.path.abspath(__file__)), "fake_camera.py")
DIE_WITH_PARENT = ("setpriv", "--pdeathsig", "KILL")


def run(*command):
    subprocess.run(command, check=True)


def has_virtual_interfaces():
    made = subprocess.run(("ip", "link", "add", "probe", "type", "veth"), stderr=subprocess.DEVNULL, check=False)
    return made.returncode == 0 and subprocess.run(("ip", "link", "delete", "probe"), check=False).returncode == 0


class CameraNetwork:
    """One cable from card1 to another machine, on which one camera runs at a time."""

    def __init__(self):
        self.machine = subprocess.Popen((*DIE_WITH_PARENT, "unshare", "--net", "sh", "-c", "echo; exec sleep infinity"),
                                        stdout=subprocess.PIPE)
        self.machine.stdout.readline()
        self.camera = None
        run("ip", "link", "add", "card1", "type", "veth", "peer", "name", "wire", "netns", str(self.machine.pid))
        run("ip", "address", "add", "10.77.1.1/24", "broadcast", "+", "dev", "card1")
        for interface in ("all", "card1"):  # A strict filter would drop the answers of cameras in other subnets.
            with open(f"/proc/sys/net/ipv4/conf/{interface}/rp_filter", "w", encoding="ascii") as file:
                file.write("0")
        run("ip", "link", "set", "card1", "up")
        self.inside("ip", "link", "set", "lo", "up")

    def inside(self, *command):
        """Runs a command on the other machine."""
        run(*self.enter(), *command)

    def enter(self):
        return ("nsenter", "--target", str(self.machine.pid), "--net")

    def start_camera(self, address, *options, mac="02:00:00:00:00:11"):
        self.stop_camera()
        self.camera = subprocess.Popen((*DIE_WITH_PARENT, *self.enter(), sys.executable, "-B", CAMERA_PROGRAM, "wire", mac,
                                        address, *options))
        self.await_port()

    def await_port(self):
        """Waits until the camera can receive commands. Port 3956 is 0F74."""
        end = time.monotonic() + 60
        while time.monotonic() < end and self.camera.poll() is None:
            table = subprocess.run((*self.enter(), "cat", "/proc/net/udp"), stdout=subprocess.PIPE, check=True).stdout
            if b":0F74 " in table:
                return
            time.sleep(0.02)
        raise RuntimeError("The fake camera does not start.")

    def stop_camera(self):
        if self.camera:
            self.camera.kill()
            self.camera.wait()
        self.camera = None

    def close(self):
        self.stop_camera()
        self.machine.kill()
        self.machine.wait()
