"""Counts the instructions of four functions, and compares them with bench/baseline.json or updates that file.

usage: counts.py --check | --update PROGRAM
"""

import json
import os
import re
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
BASELINE = f"{HERE}/baseline.json"
MAX_GROWTH = 0.05
PATHS = "list_parsing", "group_matching", "configuration_load", "tooltip_building"
SKIPPED = 77

# This environment removes differences between machines and between runs. It disables newer processor instructions,
# which the C library and Qt select at run time, and lazy binding of symbols. It fixes the order of Qt's hashes and the
# language.
DISABLED = ("AVX", "AVX2", "AVX512BW", "AVX512F", "AVX512VL", "AVX_Fast_Unaligned_Load", "BMI1", "BMI2", "ERMS", "FSRM",
            "LZCNT", "MOVBE", "POPCNT", "RTM", "SSE3", "SSE4_1", "SSE4_2", "SSSE3", "XSAVE", "XSAVEC")
ENVIRONMENT = {
    "PATH": os.environ["PATH"],
    "LC_ALL": "C.UTF-8",
    "LD_BIND_NOW": "1",
    "GLIBC_TUNABLES": "glibc.cpu.hwcaps=" + ",".join(f"-{name}" for name in DISABLED),
    "QT_NO_CPU_FEATURE": "sse3 ssse3 sse4.1 sse4.2 avx avx2 avx512f",
    "QT_HASH_SEED": "0",
}


def first_line(*command):
    printed = subprocess.run(command, stdout=subprocess.PIPE, check=True, text=True, timeout=30).stdout
    return printed.splitlines()[0] if printed else ""


def toolchain():
    """Returns the versions that affect a count. Counts of different toolchains cannot be compared."""
    return {
        "machine": os.uname().machine,
        "compiler": first_line("c++", "-dumpfullversion"),
        "C library": first_line("getconf", "GNU_LIBC_VERSION"),
        "Qt": first_line("pkg-config", "--modversion", "Qt5Core"),
    }


def count(program, path):
    """Returns the number of instructions in the function count_PATH, including the functions that it calls."""
    with tempfile.NamedTemporaryFile("r", encoding="utf-8") as result:
        run = subprocess.run(
            ["valgrind", "--tool=callgrind", f"--callgrind-out-file={result.name}", "--collect-atstart=no",
             f"--toggle-collect=count_{path}", program],
            env=ENVIRONMENT, cwd="/", stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False,
            timeout=300)
        assert run.returncode == 0, f"{program} failed:\n{run.stdout}"
        return int(re.search(r"^totals: (\d+)$", result.read(), re.MULTILINE)[1])


def check(counts):
    """Prints the growth of each count, and returns the exit status."""
    with open(BASELINE, encoding="utf-8") as file:
        baseline = json.load(file)
    if baseline["toolchain"] != toolchain():
        print(f"SKIPPED: bench/baseline.json was made with {baseline['toolchain']}, this is {toolchain()}.")
        return SKIPPED
    status = 0
    for path, now in counts.items():
        before = baseline["instructions"][path]
        growth = now / before - 1
        grown = growth > MAX_GROWTH or not now  # A count of 0 means a wrong function name.
        print(f"{path:20} {before:>10} -> {now:>10}  {growth:+7.2%}{'  more than 5 %' if grown else ''}")
        status = status or int(grown)
    if status:
        print("To accept the growth, run script/bench --update and give the reason in the commit.")
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
