"""Checks in the ELF headers that every installed program and library is built with the usual protections.

usage: hardening_test.py STAGE fortified|plain
"""

import os
import pathlib
import re
import subprocess
import sys

STAGE, KIND = pathlib.Path(sys.argv[1]), sys.argv[2]
TOOLS = {"CameraSetup", "FlatField", "FocusAssistant", "ImageViewer", "LineScanTuner", "PixelRepair", "TapBalance",
         "ThermalMonitor"}
PROGRAMS = {"CorvixLauncher", "cvxctl", "CvxCameraHost", "CvxProducerHost", *TOOLS}
FORTIFIED = {"CvxProducerHost", "libCvxCPP.so", "CorvixCameraSimulator.cti"}  # These files use fortified functions.
WITH_RUNPATH = {"CorvixLauncher", "cvxctl", "libCvxCPP.so", *TOOLS}  # These files load a library from their own directory.


def readelf(option, path):
    return subprocess.run(["readelf", "--wide", option, path], check=True, stdout=subprocess.PIPE, text=True,
                          env=dict(os.environ, LC_ALL="C")).stdout


def faults(path):
    dynamic, segments, symbols = (readelf(option, path) for option in ("--dynamic", "--segments", "--dyn-syms"))
    flags = "".join(re.findall(r"\(FLAGS_1\).*", dynamic))
    name = path.name.partition(".so")[0] + ".so" if ".so" in path.name else path.name
    stack = re.search(r"GNU_STACK\s+(?:0x\w+\s+){5}([RWE ]+)", segments)
    runpath = re.findall(r"\((?:RUNPATH|RPATH)\)\s+Library (\w+): \[(.*)\]", dynamic)
    return [fault for is_wrong, fault in (
        (name in PROGRAMS and "PIE" not in flags, "not position-independent"),
        ("GNU_RELRO" not in segments or "NOW" not in flags, "no full RELRO"),
        (not stack or "E" in stack[1], "executable stack"),
        (re.search(r"LOAD\s+(?:0x\w+\s+){5}RWE", segments), "a segment is writable and executable"),
        ("TEXTREL" in dynamic, "text relocations"),
        (runpath != ([("runpath", "$ORIGIN")] if name in WITH_RUNPATH else []), f"run path {runpath}"),
        ("__stack_chk_fail" not in symbols, "no stack protector"),
        (KIND == "fortified" and name in FORTIFIED and not re.search(r" UND __\w+_chk", symbols), "not fortified"),
    ) if is_wrong]


files = [path for path in STAGE.rglob("*")
         if path.is_file() and not path.is_symlink() and path.read_bytes()[:4] == b"\x7fELF"]
assert {path.name for path in files} >= PROGRAMS, files
found = {path.name: faults(path) for path in files if faults(path)}
assert not found, found
