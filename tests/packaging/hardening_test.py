"""Every installed program and library is built to make an attacker's work hard, as its ELF headers tell."""

import os
import re
import subprocess
import sys

STAGE, KIND = sys.argv[1:]
PROGRAMS = {"CorvixLauncher", "CvxProducerHost", "CvxToolStandIn"}
# Where a fixed-size buffer is filled by a function that has a checked form. The others fill none.
FORTIFIED = {"CvxProducerHost", "libCvxCPP.so", "CorvixCameraSimulator.cti"}
# Who finds one of our libraries beside itself.
WITH_RUNPATH = {"CorvixLauncher", "libCvxCPP.so"}


def elf_files():
    for parent, _, names in os.walk(STAGE):
        for name in names:
            path = os.path.join(parent, name)
            if not os.path.islink(path) and open(path, "rb").read(4) == b"\x7fELF":
                yield path


def name_of(path):
    """Returns the file name, of a library without its version."""
    return re.sub(r"\.so[.\d]+$", ".so", os.path.basename(path))


def readelf(option, path):
    return subprocess.run(["readelf", "--wide", option, path], check=True, stdout=subprocess.PIPE, text=True,
                          env=dict(os.environ, LC_ALL="C")).stdout


def imports(path):
    rows = [line.split() for line in readelf("--dyn-syms", path).splitlines()]
    return {row[7].split("@")[0] for row in rows if len(row) > 7 and row[6] == "UND"}


def faults(path):
    """What is wrong with a file."""
    name = name_of(path)
    dynamic, segments = readelf("--dynamic", path), readelf("--segments", path)
    imported = imports(path)
    flags = re.search(r"\(FLAGS_1\).*", dynamic)
    runpath = re.findall(r"\((?:RUNPATH|RPATH)\)\s+Library (\w+): \[(.*)\]", dynamic)
    stack = re.search(r"GNU_STACK\s+(?:0x\w+\s+){5}([RWE ]+)", segments)
    if name in PROGRAMS and not (flags and "PIE" in flags[0]):
        yield "no position-independent executable"
    if "GNU_RELRO" not in segments or not (flags and "NOW" in flags[0]):
        yield "its tables stay writable (no full RELRO)"
    if not stack or "E" in stack[1]:
        yield "its stack may be executed"
    if re.search(r"LOAD\s+(?:0x\w+\s+){5}RWE", segments):
        yield "a segment may be written and executed"
    if "TEXTREL" in dynamic:
        yield "its code is written to when it is loaded"
    if runpath != ([("runpath", "$ORIGIN")] if name in WITH_RUNPATH else []):
        yield f"searches libraries in {runpath}"
    if "__stack_chk_fail" not in imported:
        yield "no stack protector"
    if KIND == "fortified" and name in FORTIFIED and not any(
            re.fullmatch(r"__\w+_chk", symbol) for symbol in imported):
        yield "none of its calls is checked (_FORTIFY_SOURCE)"


def main():
    files = sorted(elf_files())
    names = {name_of(path) for path in files}
    assert PROGRAMS | FORTIFIED | WITH_RUNPATH <= names, f"only {names} are there"
    found = [f"{os.path.basename(path)}: {fault}" for path in files for fault in faults(path)]
    assert found == [], "\n".join(found)
    print(f"{len(files)} files, {KIND}: {', '.join(sorted(names))}")


main()
