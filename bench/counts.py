"""Counts the instructions of the four pure paths, or compares them with bench/baseline.json.

usage: counts.py [--check | --update] PROGRAM
"""

import json
import os
import re
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
BASELINE = f"{HERE}/baseline.json"
MOST_GROWTH = 0.05
PATHS = "list_parsing", "group_matching", "configuration_load", "tooltip_building"
SKIPPED = 77

# What differs between machines, and between runs, is kept out: the processor's newer instructions, which the C library
# and Qt choose at run time, the order of Qt's hashes, symbols that are looked up at their first call, the language, and
# all else that an environment may hold.
WITHOUT = ("AVX", "AVX2", "AVX512BW", "AVX512F", "AVX512VL", "AVX_Fast_Unaligned_Load", "BMI1", "BMI2", "ERMS", "FSRM",
           "LZCNT", "MOVBE", "POPCNT", "RTM", "SSE3", "SSE4_1", "SSE4_2", "SSSE3", "XSAVE", "XSAVEC")
ENVIRONMENT = {
    "PATH": os.environ["PATH"],
    "LC_ALL": "C.UTF-8",
    "LD_BIND_NOW": "1",
    "GLIBC_TUNABLES": "glibc.cpu.hwcaps=" + ",".join(f"-{name}" for name in WITHOUT),
    "QT_NO_CPU_FEATURE": "sse3 ssse3 sse4.1 sse4.2 avx avx2 avx512f",
    "QT_HASH_SEED": "0",
}


def first_line(*command):
    printed = subprocess.run(command, stdout=subprocess.PIPE, check=True, text=True).stdout
    return printed.splitlines()[0] if printed else ""


def toolchain():
    """What a count depends on beside the sources: it says nothing about another one."""
    return {
        "machine": os.uname().machine,
        "compiler": first_line("c++", "-dumpfullversion"),
        "C library": first_line("getconf", "GNU_LIBC_VERSION"),
        "Qt": first_line("pkg-config", "--modversion", "Qt5Core"),
    }


def count(program, path):
    """Instructions of the path's function and of all that it calls."""
    with tempfile.NamedTemporaryFile("r", encoding="utf-8") as result:
        run = subprocess.run(
            ["valgrind", "--tool=callgrind", f"--callgrind-out-file={result.name}", "--collect-atstart=no",
             f"--toggle-collect=count_{path}", program],
            env=ENVIRONMENT, cwd="/", stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
        assert run.returncode == 0, f"{program} failed:\n{run.stdout}"
        return int(re.search(r"^totals: (\d+)$", result.read(), re.MULTILINE)[1])


def check(counts):
    """Prints what each path takes, and gives the exit status."""
    with open(BASELINE, encoding="utf-8") as file:
        baseline = json.load(file)
    if baseline["toolchain"] != toolchain():
        print(f"SKIPPED: bench/baseline.json is of {baseline['toolchain']}, and this is {toolchain()}.")
        return SKIPPED
    status = 0
    for path, now in counts.items():
        then = baseline["instructions"][path]
        growth = now / then - 1
        grown = growth > MOST_GROWTH or not now  # None at all: the function has another name.
        print(f"{path:20} {then:>10} -> {now:>10}  {growth:+7.2%}{'  more than 5 %' if grown else ''}")
        status = status or int(grown)
    if status:
        print("Where it is wanted: script/bench --update, and a word on it in the commit.")
    return status


def main():
    mode, program = sys.argv[1], os.path.abspath(sys.argv[-1])
    counts = {path: count(program, path) for path in PATHS}
    if mode == "--check":
        sys.exit(check(counts))
    with open(BASELINE, "w", encoding="utf-8") as file:
        json.dump({"toolchain": toolchain(), "instructions": counts}, file, indent=4)
        file.write("\n")


if __name__ == "__main__":
    main()
