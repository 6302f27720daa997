"""Checks that the installed examples build with find_package(CvxCPP), print the simulated cameras, and save an image.

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
os.makedirs(WORK)
for example in ("list-cameras", "save-image"):
    shutil.copytree(f"{INSTALLATION}/api/examples/{example}", f"{WORK}/{example}")
    build = f"{WORK}/{example}/build"
    run("cmake", "-S", f"{WORK}/{example}", "-B", build, f"-DCMAKE_PREFIX_PATH={INSTALLATION}/api",
        "-DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF")
    run("cmake", "--build", build)

environment = {name: value for name, value in os.environ.items() if name != "GENICAM_GENTL64_PATH"}
environment["XDG_RUNTIME_DIR"] = WORK
listed = run(f"{WORK}/list-cameras/build/list-cameras", env=environment, cwd="/", timeout=120)
with open(f"{INSTALLATION}/cti/CorvixCameraSimulator.json", encoding="utf-8") as file:
    simulated = sorted((device["model"], device["serial"], device["id"])
                       for interface in json.load(file)["interfaces"] for device in interface["devices"])
assert sorted(tuple(line.split("\t")) for line in listed.splitlines()) == simulated, listed

run(f"{WORK}/save-image/build/save-image", env=environment, cwd=WORK, timeout=120)
with open(f"{WORK}/image.pgm", "rb") as file:
    kind, size, depth, pixels = file.read().split(b"\n", 3)
width, height = map(int, size.split())
assert (kind, depth, len(pixels)) == (b"P5", b"255", width * height), (kind, size, depth, len(pixels))
assert max(pixels) - min(pixels) > 50, "the image shows nothing"
