"""Runs "cvxctl doctor" with a fake camera on another machine, which is a network namespace.

usage: doctor_test.py BUILD
"""

import json
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../address"))
import camera_network  # noqa: E402

BUILD = sys.argv.pop()
LIMIT = 120  # Seconds; only a hang takes so long.
MAC = "02:00:00:00:00:11"


class DoctorTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.network = camera_network.CameraNetwork()
        cls.addClassCleanup(cls.network.close)
        cls.root = tempfile.mkdtemp()
        cls.addClassCleanup(shutil.rmtree, cls.root)
        os.makedirs(f"{cls.root}/cti")
        shutil.copytree(f"{BUILD}/bin", f"{cls.root}/bin", symlinks=True,
                        ignore=lambda _, names: [name for name in names if not name.startswith(("cvxctl", "Cvx", "libCvx"))])
        shutil.copy(f"{BUILD}/cti/CorvixCameraSimulator.cti", f"{cls.root}/cti")
        camera = {"id": "SIM-1", "vendor": "Orvelle", "model": "Kx200", "serial": "1001", "sensorWidth": 320,
                  "sensorHeight": 240}
        with open(f"{cls.root}/cti/CorvixCameraSimulator.json", "w", encoding="utf-8") as file:
            json.dump({"interfaces": [{"id": "Sim", "tlType": "GEV", "devices": [camera]}]}, file)
        cls.environment = {**os.environ, "XDG_RUNTIME_DIR": cls.root, "LC_ALL": "C.UTF-8"}
        cls.environment.pop("GENICAM_GENTL64_PATH", None)

    def run_doctor(self, *arguments):
        """Returns the findings, after checking that the exit status agrees with them."""
        result = subprocess.run((f"{self.root}/bin/cvxctl", "doctor", "--json", *arguments), env=self.environment,
                                capture_output=True, text=True, timeout=LIMIT, check=False)
        findings = json.loads(result.stdout)
        has_problem = any(finding["severity"] in ("warning", "error") for finding in findings)
        self.assertEqual(result.returncode, 10 if has_problem else 0, result.stdout)
        return findings

    def findings_of(self, subject, *arguments):
        return [finding for finding in self.run_doctor(*arguments) if finding["subject"] == subject]

    def test_camera_in_another_subnet(self):
        self.network.start_camera("192.168.99.5/24")
        finding, = self.findings_of(MAC)
        self.assertEqual((finding["severity"], finding["command"]), ("error", f"cvxctl address {MAC} --lasting 10.77.1.2/24"))
        self.assertIn("192.168.99.5/24 is not in the subnet of card1 (10.77.1.1/24)", finding["what"])
        lines = subprocess.run((f"{self.root}/bin/cvxctl", "doctor"), env=self.environment, capture_output=True, text=True,
                               timeout=LIMIT, check=False).stdout.splitlines()
        self.assertEqual(sum(line.startswith("error ") and finding["command"] in line for line in lines), 1, lines)

    def test_camera_in_use_and_camera_with_a_shared_address(self):
        self.network.start_camera("10.77.1.5/24", "controlled")
        self.network.inside("ip", "link", "set", "wire", "address", "02:00:00:00:00:99")
        in_use, conflict = self.findings_of(MAC)
        self.assertEqual((in_use["severity"], conflict["severity"]), ("notice", "error"))
        self.assertIn("Another program uses", in_use["what"])
        self.assertIn("another device (02:00:00:00:00:99)", conflict["what"])

    def test_strict_reverse_path_filter(self):
        path = "/proc/sys/net/ipv4/conf/card1/rp_filter"
        for value, severity in (("1", "warning"), ("0", None)):
            with open(path, "w", encoding="ascii") as file:
                file.write(value)
            findings = [finding["severity"] for finding in self.findings_of("card1") if "rp_filter" in finding["command"]]
            self.assertEqual(findings, [severity] if severity else [])

    def test_damaged_producer_and_trial_stream(self):
        self.network.stop_camera()
        path = f"{self.root}/cti/damaged.cti"
        with open(path, "w", encoding="ascii") as file:
            file.write("text")
        self.addCleanup(os.remove, path)
        findings = self.run_doctor("--stream", "1")
        damaged, = [finding for finding in findings if finding["subject"] == "damaged.cti"]
        self.assertEqual((damaged["severity"], damaged["command"]), ("error", f"ldd {path}"))
        stream = findings[-1]
        self.assertEqual((stream["severity"], stream["subject"]), ("ok", "SIM-1"))
        self.assertRegex(stream["what"], r"^[1-9][0-9]* images \(.* images/s\), 0 lost")


if not camera_network.has_virtual_interfaces():
    print("SKIPPED: this system offers no virtual network interfaces.", file=sys.stderr)
    sys.exit(77)
unittest.main()
