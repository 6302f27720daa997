"""Measures the size of the installed launcher."""

import os
import subprocess

from frames import BOUND
from pairs import Figure, at_most


def figures(bench):
    root = f"{bench.place}/component"
    subprocess.run(["cmake", "--install", bench.build, "--component", "launcher", "--strip", "--prefix", root],
                   stdout=subprocess.DEVNULL, check=True, timeout=BOUND)
    size = sum(os.lstat(f"{directory}/{file}").st_size for directory, _, files in os.walk(root) for file in files)
    yield Figure("size of the installed launcher component", "MB", [size / 1e6], [], *at_most(3, "MB"))
