"""The man pages and the completion of bash know all sub-commands, options and exit statuses that cvxctl has.

usage: command_line_test.py STAGE
"""

import glob
import os
import re
import subprocess
import sys
import tempfile
import unittest

STAGE = sys.argv.pop()
LIMIT = 120  # Seconds; only a hang takes so long.
PAGES = sorted(glob.glob(f"{STAGE}/share/man/man1/*.1"))
OPTION = r"(?<![\w-])--[a-z][a-z-]*"


def output(*command, **options):
    return subprocess.run(command, stdout=subprocess.PIPE, check=True, text=True, timeout=LIMIT, **options).stdout


def cvxctl_help(*subcommand):
    return output(f"{STAGE}/bin/cvxctl", *subcommand, "--help")


def subcommands():
    return re.findall(r"^  (\w+)", cvxctl_help().split("Subcommands:")[1].split("Exit status:")[0], re.MULTILINE)


def page_text(page):
    return output("groff", "-man", "-Tascii", "-P-cbou", page)


class ManPagesTest(unittest.TestCase):
    def test_pages_have_no_mistakes(self):
        for page in PAGES:
            result = subprocess.run(["groff", "-man", "-ww", "-z", "-Tutf8", page], stderr=subprocess.PIPE, check=True,
                                    text=True, timeout=LIMIT)
            self.assertEqual(result.stderr, "", page)

    def test_pages_describe_every_subcommand_and_option(self):
        for page in PAGES:
            text = page_text(page)
            described = re.findall(r"^ +cvxctl +(\w+)", text.split("SYNOPSIS")[1].split("DESCRIPTION")[0], re.MULTILINE)
            if described == ["SUBCOMMAND"]:
                continue
            options = {option for name in described for option in re.findall(OPTION, cvxctl_help(name))}
            for name in described:
                self.assertRegex(text, rf"(?m)^   {name}$", page)
            self.assertEqual(set(re.findall(OPTION, text)), options, page)

    def test_every_subcommand_is_in_one_page(self):
        described = []
        for page in PAGES:
            with open(page, encoding="utf-8") as file:
                described += re.findall(r"^\.B cvxctl (\w+)", file.read(), re.MULTILINE)
        self.assertEqual(sorted(described), sorted(subcommands()))

    def test_exit_statuses_are_complete(self):
        statuses = r"(?m)^ +(\d+)(?=\s)"
        page = page_text(f"{STAGE}/share/man/man1/cvxctl.1").split("EXIT STATUS")[1].split("ENVIRONMENT")[0]
        self.assertEqual(re.findall(statuses, page), re.findall(statuses, cvxctl_help().split("Exit status:")[1]))


class CompletionTest(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.environment = {**os.environ, "XDG_RUNTIME_DIR": directory.name}

    def completions(self, *words):
        script = (f"source {STAGE}/share/bash-completion/completions/cvxctl\n"
                  'COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1))\n'
                  '_cvxctl "$1" "${@: -1}"\nprintf "%s\\n" "${COMPREPLY[@]}"')
        return output("bash", "-c", script, "bash", f"{STAGE}/bin/cvxctl", *words, env=self.environment).split()

    def test_subcommands(self):
        self.assertEqual(sorted(word for word in self.completions("") if word[0] != "-"), sorted(subcommands()))
        self.assertEqual(self.completions("snap"), ["snapshot"])

    def test_options(self):
        self.assertEqual(self.completions("watch", "--s"), ["--seconds"])
        self.assertEqual(self.completions("--ver"), ["--version"])

    def test_names_of_cameras_are_not_run(self):
        program = tempfile.mkdtemp(dir=self.environment["XDG_RUNTIME_DIR"])
        with open(f"{program}/cvxctl", "w", encoding="utf-8") as file:
            file.write("#!/bin/sh\necho '\"serial\": \"$(touch ran)\",'\n")
        os.chmod(f"{program}/cvxctl", 0o755)
        script = (f"source {STAGE}/share/bash-completion/completions/cvxctl; cd {program}\n"
                  f'COMP_WORDS=(cvxctl info ""); COMP_CWORD=2; _cvxctl {program}/cvxctl ""; echo "${{COMPREPLY[0]}}"')
        self.assertIn("touch", output("bash", "-c", script))
        self.assertEqual(os.listdir(program), ["cvxctl"])

    def test_cameras_and_features(self):
        self.assertEqual(self.completions("info", "2403"), ["24030117"])
        self.assertEqual(self.completions("get", "24030117", "ExposureT"), ["ExposureTime"])
        self.assertEqual(self.completions("watch", "24030117", "x"), [])


if __name__ == "__main__":
    unittest.main()
