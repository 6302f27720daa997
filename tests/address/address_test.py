"""Runs "cvxctl address" with a fake camera on another machine, which is a network namespace.

usage: address_test.py BUILD
"""

import json
import os
import pty
import shutil
import subprocess
import sys
import tempfile
import unittest

import camera_network

BUILD = sys.argv.pop()
LIMIT = 120  # Seconds; only a hang takes so long.
MAC = "02:00:00:00:00:11"


class AddressTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.network = camera_network.CameraNetwork()
        cls.addClassCleanup(cls.network.close)
        # An installation whose only producer reports one USB camera.
        cls.root = tempfile.mkdtemp()
        cls.addClassCleanup(shutil.rmtree, cls.root)
        os.makedirs(f"{cls.root}/cti")
        shutil.copytree(f"{BUILD}/bin", f"{cls.root}/bin", symlinks=True,
                        ignore=lambda _, names: [name for name in names if not name.startswith(("cvxctl", "Cvx", "libCvx"))])
        shutil.copy(f"{BUILD}/cti/CorvixCameraSimulator.cti", f"{cls.root}/cti")
        camera = {"id": "SIM-1", "vendor": "Orvelle", "model": "Uv50", "serial": "1001"}
        with open(f"{cls.root}/cti/CorvixCameraSimulator.json", "w", encoding="utf-8") as file:
            json.dump({"interfaces": [{"id": "Usb", "tlType": "U3V", "devices": [camera]}]}, file)
        cls.environment = {**os.environ, "XDG_RUNTIME_DIR": cls.root, "LC_ALL": "C.UTF-8"}
        cls.environment.pop("GENICAM_GENTL64_PATH", None)

    def run_address(self, *arguments, status=0, camera=MAC):
        """Returns the output and the messages of a command that has to end with this status."""
        result = subprocess.run((f"{self.root}/bin/cvxctl", "address", camera, *arguments), env=self.environment,
                                stdin=subprocess.DEVNULL, capture_output=True, text=True, timeout=LIMIT, check=False)
        self.assertEqual(result.returncode, status, result.stdout + result.stderr)
        return result.stdout, result.stderr

    def read(self):
        return json.loads(self.run_address("--json")[0])

    def test_camera_in_the_subnet(self):
        self.network.start_camera("10.77.1.5/24", "methods=2")
        for name in ("0200-0000-0011", "24990001", "kx200"):
            self.assertIn("10.77.1.5/24", self.run_address(camera=name)[0])
        shown = self.read()
        self.assertEqual([shown[key] for key in ("mac", "address", "origin", "enabled", "networkInterface", "reachable",
                                                 "inUse")],
                         [MAC, "10.77.1.5/24", "DHCP server, or temporary", "DHCP", "card1", True, "no"])

    def test_camera_in_another_subnet_gets_a_temporary_address(self):
        self.network.start_camera("192.168.99.5/24")
        self.assertFalse(self.read()["reachable"])
        output, _ = self.run_address("--temporary", "10.77.1.20", "--yes")
        self.assertIn("from 192.168.99.5/24 to 10.77.1.20/24", output)
        self.assertIn("The camera answers at 10.77.1.20.", output)
        shown = self.read()
        self.assertEqual((shown["address"], shown["reachable"], shown["enabled"]),
                         ("10.77.1.20/24", True, "DHCP, link-local"))

    def test_lasting_address_is_stored_until_it_is_automatic_again(self):
        self.network.start_camera("192.168.99.5/24")
        self.run_address("--lasting", "10.77.1.30", "--gateway", "10.77.1.1", "--yes")
        shown = self.read()
        self.assertEqual([shown[key] for key in ("address", "gateway", "stored", "origin", "enabled", "inUse")],
                         ["10.77.1.30/24", "10.77.1.1", "10.77.1.30/24", "persistent", "persistent, DHCP, link-local",
                          "no"])
        self.assertIn("answers at 169.254.77.17", self.run_address("--automatic", "--yes")[0])
        shown = self.read()
        self.assertEqual((shown["enabled"], shown["origin"]), ("DHCP, link-local", "link-local"))

    def test_nothing_changes_without_permission(self):
        self.network.start_camera("10.77.1.5/24")
        self.assertIn("--yes", self.run_address("--temporary", "10.77.1.20", status=2)[1])
        leader, terminal = pty.openpty()
        process = subprocess.Popen((f"{self.root}/bin/cvxctl", "address", MAC, "--temporary", "10.77.1.20"),
                                   env=self.environment, stdin=terminal, stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        os.write(leader, b"n\n")
        messages = process.communicate(timeout=LIMIT)[1]
        os.close(leader)
        os.close(terminal)
        self.assertEqual(process.returncode, 1)
        self.assertIn(b"nothing was changed", messages)
        self.assertEqual(self.read()["address"], "10.77.1.5/24")

    def test_address_of_another_device_is_refused_and_not_proposed(self):
        self.network.start_camera("192.168.99.5/24")
        for address in ("10.77.1.2", "10.77.1.3"):
            self.network.inside("ip", "address", "add", f"{address}/32", "dev", "lo")
            self.addCleanup(self.network.inside, "ip", "address", "delete", f"{address}/32", "dev", "lo")
        # The device has the MAC address of another camera than the one that is asked for.
        self.network.inside("ip", "link", "set", "wire", "address", "02:00:00:00:00:99")
        self.assertIn("10.77.1.2 is in use by another device (02:00:00:00:00:99)",
                      self.run_address("--temporary", "10.77.1.2", "--yes", status=1)[1])
        self.assertEqual(self.run_address("--propose")[0], "10.77.1.4/24\n")

    def test_failures_have_a_status_and_a_reason(self):
        new = ("--temporary", "10.77.1.20", "--yes")
        for options, arguments, status, reason in (
                (("refuse",), new, 5, "another program controls"), (("controlled",), new, 5, "Another program controls"),
                (("deaf",), new, 6, "within 5 s"), ((), ("--temporary", "10.78.1.20", "--yes"), 1, "not in the subnet"),
                (("forgetful",), ("--lasting", "10.77.1.20", "--yes"), 1, "has not stored")):
            self.network.start_camera("10.77.1.5/24", *options)
            self.assertIn(reason, self.run_address(*arguments, status=status)[1])

    def test_cameras_that_are_not_found(self):
        self.network.stop_camera()
        self.assertIn("not a GigE camera", self.run_address(camera="SIM-1", status=1)[1])
        self.run_address(camera="nothing", status=3)
        for arguments in (("--temporary", "10.77.1"), ("--temporary", "10.77.1.5", "--propose"), ("--gateway", "10.77.1.1")):
            self.run_address(*arguments, status=2)


if not camera_network.has_virtual_interfaces():
    print("SKIPPED: this system offers no virtual network interfaces.", file=sys.stderr)
    sys.exit(77)
unittest.main()
