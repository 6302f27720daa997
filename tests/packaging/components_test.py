"""Each component installs its own files, under the layout that the programs look for, and no other's."""

import json
import os
import re
import shutil
import subprocess
import sys

BUILD, SOURCE, STAGE = sys.argv[1:]

# What each component may hold; what stands first in a row has to be there.
LAUNCHER = (
    [r"bin/CorvixLauncher", r"bin/CvxProducerHost", r"bin/libCvxCPP\.so", r"bin/libCvxCPP\.so\.\d+",
     r"bin/libCvxCPP\.so(\.\d+){3}", r"bin/CvxC\.xml", r"doc/index\.html", r"doc/LICENSE",
     r"doc/THIRD-PARTY\.md", r"doc/CHANGELOG\.md", r"lib/udev/rules\.d/60-corvix-usb3-vision\.rules",
     r"share/applications/[^/]*\.desktop", r"share/metainfo/[^/]*\.metainfo\.xml",
     r"share/icons/hicolor/scalable/apps/[^/]*\.svg"],
    [r"cti/fallback/Universal(GEV|U3V)\.cti", r"doc/.*", r"share/icons/hicolor/[^/]*/apps/[^/]*"])
SIMULATOR = ([r"cti/CorvixCameraSimulator\.cti", r"cti/CorvixCameraSimulator\.json"], [])
SDK_DEV = (
    [r"api/include/CvxCPP/CvxCPP\.h", r"api/examples/list-cameras/(main\.cpp|CMakeLists\.txt)",
     r"api/lib/cmake/CvxCPP/CvxCPPConfig\.cmake", r"api/lib/cmake/CvxCPP/CvxCPPConfigVersion\.cmake",
     r"api/lib/cmake/CvxCPP/CvxCPPTargets\.cmake", r"api/lib/cmake/CvxCPP/CvxCPPTargets-[a-z]*\.cmake"], [])


def install(component):
    """Installs a component into a directory of its own; returns the paths of its files."""
    directory = f"{STAGE}.{component}"
    shutil.rmtree(directory, ignore_errors=True)
    subprocess.run(["cmake", "--install", BUILD, "--prefix", directory, "--component", component],
                   check=True, stdout=subprocess.DEVNULL)
    files = files_below(directory)
    # The umask of whoever installs must not matter: what the administrator installs, users run.
    for path in files:
        assert os.lstat(f"{directory}/{path}").st_mode & 0o044 == 0o044, f"not everybody may read {path}"
    shutil.rmtree(directory)
    return files


def files_below(directory):
    return {os.path.relpath(os.path.join(parent, name), directory)
            for parent, _, names in os.walk(directory) for name in names}


def tools():
    """The stand-ins: the executables that exist on some Linux."""
    with open(f"{SOURCE}/resources/config/launcher_config.json", encoding="utf-8") as file:
        groups = json.load(file)["hardwareGroups"]
    return [re.escape(tool["executable"]) for group in groups for tool in group["tools"]
            if any(platform.startswith("linux_") for platform in tool.get("platforms", ["linux_"]))]


def holds_its_files(component, files, required, allowed=()):
    for pattern in required:
        assert any(re.fullmatch(pattern, path) for path in files), f"{component} lacks {pattern}"
    others = {path for path in files
              if not any(re.fullmatch(pattern, path) for pattern in [*required, *allowed])}
    assert others == set(), f"{component} has, unexpectedly, {others}"


def main():
    os.umask(0o077)
    expected = {"launcher": LAUNCHER, "simulator": SIMULATOR, "sdk-dev": SDK_DEV,
                "demo": ([r"bin/CvxToolStandIn", *tools()], [])}
    installed = {component: install(component) for component in expected}
    for component, files in installed.items():
        holds_its_files(component, files, *expected[component])

    shutil.rmtree(STAGE, ignore_errors=True)
    subprocess.run(["cmake", "--install", BUILD, "--prefix", STAGE], check=True, stdout=subprocess.DEVNULL)
    everything = files_below(STAGE)
    assert everything == set().union(*installed.values()), "a file belongs to no component"
    assert len(everything) == sum(map(len, installed.values())), "a file belongs to two components"
    print(f"{len(everything)} files:", {component: len(files) for component, files in installed.items()})


main()
