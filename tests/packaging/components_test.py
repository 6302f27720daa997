"""Each component installs its own files in the layout that the programs expect, and no file belongs to two components.

usage: components_test.py BUILD STAGE SOURCES   STAGE receives a complete installation, which other tests use.
"""

import json
import os
import re
import shutil
import subprocess
import sys

BUILD, STAGE, SOURCES = sys.argv[1:]


def tools_of_this_platform():
    """Returns the files that the tiles of the launcher start."""
    with open(f"{SOURCES}/resources/config/launcher_config.json", encoding="utf-8") as file:
        groups = json.load(file)["hardwareGroups"]
    return {tool["executable"] for group in groups for tool in group["tools"]
            if any(platform.startswith("linux_") for platform in tool.get("platforms", ["linux_x86_64"]))}


# For each component, the patterns of the required files, followed by the patterns of the optional files.
COMPONENTS = {
    "launcher": (
        [r"bin/CorvixLauncher", r"bin/cvxctl", r"bin/CvxProducerHost", r"bin/CvxCameraHost",
         *tools_of_this_platform(),
         r"bin/libCvxCPP\.so[.\d]*", r"bin/CvxC\.xml",
         r"doc/index\.html", r"doc/LICENSE", r"doc/THIRD-PARTY\.md", r"doc/CHANGELOG\.md",
         r"lib/udev/rules\.d/60-corvix-usb3-vision\.rules", r"share/applications/[^/]*\.desktop",
         r"share/man/man1/cvxctl\.1", r"share/bash-completion/completions/cvxctl",
         r"share/metainfo/[^/]*\.metainfo\.xml", r"share/icons/hicolor/scalable/apps/[^/]*\.svg"],
        [r"cti/fallback/Universal(GEV|U3V)\.cti", r"doc/.*", r"share/man/man1/cvxctl-[a-z]+\.1",
         r"share/icons/hicolor/[^/]*/apps/[^/]*"]),
    "simulator": ([r"cti/CorvixCameraSimulator\.cti", r"cti/CorvixCameraSimulator\.json"], []),
    "sdk-dev": (
        [r"api/include/CvxCPP/CvxCPP\.h", r"api/examples/(list-cameras|save-image)/(main\.cpp|CMakeLists\.txt)",
         r"api/lib/cmake/CvxCPP/CvxCPPConfig\.cmake", r"api/lib/cmake/CvxCPP/CvxCPPTargets\.cmake"],
        [r"api/include/CvxCPP/[^/]*\.h", r"api/lib/cmake/CvxCPP/[^/]*\.cmake", r"bin/libCvxCPP\.so"]),
}


def install(directory, *options):
    """Installs into an empty directory, and returns the paths of the files. Fails if somebody may not read a file."""
    shutil.rmtree(directory, ignore_errors=True)
    subprocess.run(["cmake", "--install", BUILD, "--prefix", directory, *options], check=True, stdout=subprocess.DEVNULL)
    files = {os.path.relpath(os.path.join(parent, name), directory)
             for parent, _, names in os.walk(directory) for name in names}
    for path in files:
        assert os.lstat(f"{directory}/{path}").st_mode & 0o044 == 0o044, f"not everybody may read {path}"
    return files


os.umask(0o077)  # Users must be able to read the files even if the administrator's umask is strict.
of_components = []
for component, (required, allowed) in COMPONENTS.items():
    installed = install(f"{STAGE}.{component}", "--component", component)
    shutil.rmtree(f"{STAGE}.{component}")
    for pattern in required:
        assert any(re.fullmatch(pattern, path) for path in installed), f"{component} lacks {pattern}"
    others = [path for path in installed if not any(re.fullmatch(pattern, path) for pattern in required + allowed)]
    assert not others, f"{component} contains {others}"
    of_components += installed
assert sorted(install(STAGE)) == sorted(of_components), "a file belongs to no component, or to two"
