"""The shipped example builds with find_package(CvxCPP) against an installation, and lists what is connected."""

import json
import os
import shutil
import subprocess
import sys

CMAKE, COMPILER, STAGE, WORK, VERSION, *FLAGS = sys.argv[1:]


def run(*command, **options):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True, **options).stdout


def build():
    """Builds the installed copy, as a user would, and with nothing of our build tree."""
    shutil.rmtree(WORK, ignore_errors=True)
    shutil.copytree(f"{STAGE}/api/examples/list-cameras", f"{WORK}/source")
    run(CMAKE, "-S", f"{WORK}/source", "-B", f"{WORK}/build", f"-DCMAKE_PREFIX_PATH={STAGE}/api",
        f"-DCMAKE_CXX_COMPILER={COMPILER}", f"-DCMAKE_CXX_FLAGS={' '.join(FLAGS)}",
        "-DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF")
    cache = run(CMAKE, "-L", "-N", f"{WORK}/build")
    assert f"CvxCPP_DIR:PATH={STAGE}/api/lib/cmake/CvxCPP" in cache, cache
    run(CMAKE, "--build", f"{WORK}/build")


def simulated_cameras():
    with open(f"{STAGE}/cti/CorvixCameraSimulator.json", encoding="utf-8") as file:
        interfaces = json.load(file)["interfaces"]
    return sorted((device["model"], device["serial"], device["id"])
                  for interface in interfaces for device in interface["devices"])


def lists_the_simulated_cameras():
    environment = {name: value for name, value in os.environ.items() if name != "GENICAM_GENTL64_PATH"}
    listed = run(f"{WORK}/build/list-cameras", env=environment, cwd="/")
    assert sorted(tuple(line.split("\t")) for line in listed.splitlines()) == simulated_cameras(), listed


def another_major_version_is_refused():
    """A program that was written for version 2 must not be built against version 1."""
    major = int(VERSION.split(".", maxsplit=1)[0])
    with open(f"{WORK}/source/CMakeLists.txt", encoding="utf-8") as file:
        text = file.read()
    assert f"find_package(CvxCPP {major} REQUIRED)" in text, text
    with open(f"{WORK}/source/CMakeLists.txt", "w", encoding="utf-8") as file:
        file.write(text.replace(f"CvxCPP {major}", f"CvxCPP {major + 1}"))
    refused = subprocess.run(
        [CMAKE, "-S", f"{WORK}/source", "-B", f"{WORK}/other", f"-DCMAKE_PREFIX_PATH={STAGE}/api"],
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
    assert refused.returncode != 0 and f"version: {VERSION}" in refused.stdout, refused.stdout


if "CORVIX_OWN_NETWORK" not in os.environ:  # Its searches must not reach real networks.
    os.remove(f"{STAGE}/cti/fallback/UniversalGEV.cti")
build()
lists_the_simulated_cameras()
another_major_version_is_refused()
