"""Checks that the installed example builds with find_package(CvxCPP) and prints the simulated cameras.

usage: example_test.py INSTALLATION WORK
"""

import json
import os
import shutil
import subprocess
import sys

INSTALLATION, WORK = sys.argv[1:]


def run(*command, **options):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True, **options).stdout


if "CORVIX_OWN_NETWORK" not in os.environ:  # This producer would search the networks of this machine.
    os.remove(f"{INSTALLATION}/cti/fallback/UniversalGEV.cti")
shutil.rmtree(WORK, ignore_errors=True)
shutil.copytree(f"{INSTALLATION}/api/examples/list-cameras", f"{WORK}/source")
run("cmake", "-S", f"{WORK}/source", "-B", f"{WORK}/build", f"-DCMAKE_PREFIX_PATH={INSTALLATION}/api",
    "-DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF")
run("cmake", "--build", f"{WORK}/build")

environment = {name: value for name, value in os.environ.items() if name != "GENICAM_GENTL64_PATH"}
listed = run(f"{WORK}/build/list-cameras", env=environment, cwd="/", timeout=120)
with open(f"{INSTALLATION}/cti/CorvixCameraSimulator.json", encoding="utf-8") as file:
    simulated = sorted((device["model"], device["serial"], device["id"])
                       for interface in json.load(file)["interfaces"] for device in interface["devices"])
assert sorted(tuple(line.split("\t")) for line in listed.splitlines()) == simulated, listed
