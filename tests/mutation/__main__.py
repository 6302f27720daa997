"""Makes one small change at a time and asks the tests whether they notice; see script/mutate --help."""

import argparse
import pathlib
import subprocess
import sys

from report import Report
from run import Run
from selection import Selection, folder_of, known_equivalents
from work_copy import WorkCopy

REQUIRED_SCORE = 95  # Percent.


def read_arguments():
    parser = argparse.ArgumentParser(
        prog='script/mutate', description='Makes small changes, one at a time, in the product of the last commit and '
        'reports those that no test notices. Works in build/mutate and leaves the working tree alone.')
    parser.add_argument('--count', type=int, default=220, help='how many changes to make (%(default)s)')
    parser.add_argument('--seed', type=int, default=1, help='draws the changes (%(default)s)')
    parser.add_argument('--only', metavar='FOLDER', default='', help='change only files below this folder')
    parser.add_argument('--continue', dest='known', action='store_true',
                        help='take what earlier runs saw noticed as noticed: after an interruption, or to try the '
                             'survivors again')
    parser.add_argument('--jobs', type=int, default=2, help='copies that are built and tested at once (%(default)s)')
    parser.add_argument('ids', nargs='*', metavar='ID', help='make just these changes')
    return parser.parse_args()


def product_files(root, commit, only):
    listed = subprocess.run(['git', 'ls-tree', '-r', '--name-only', commit], cwd=root, text=True,
                            stdout=subprocess.PIPE, check=True).stdout.splitlines()
    return [file for file in listed
            if file.endswith(('.cpp', '.h')) and folder_of(file) and file.startswith(only)]


def main():
    arguments = read_arguments()
    root = pathlib.Path(__file__).resolve().parents[2]
    folder = root / 'build' / 'mutate'
    commit = subprocess.run(['git', 'rev-parse', 'HEAD'], cwd=root, text=True, stdout=subprocess.PIPE,
                            check=True).stdout.strip()
    copies = [WorkCopy(folder / str(number + 1), folder / 'ccache') for number in range(arguments.jobs)]
    for copy in copies:
        print(f'Building {commit[:10]} in {copy.build.relative_to(root)}', flush=True)
        copy.prepare(root, commit)

    files = product_files(root, commit, arguments.only)
    selection = Selection(copies[0].source, files, arguments.count, arguments.seed)
    equivalents = known_equivalents()
    outdated = equivalents.keys() - {mutant.key for mutant in selection.mutants.values()}
    if outdated and not arguments.only:
        print('In equivalent.toml, but no mutant any more:', *sorted(outdated), sep='\n')
    keeps_known = arguments.known or bool(arguments.ids)
    report = Report(folder / 'results.json', equivalents, keeps_known)
    run = Run(copies, selection, report, keeps_known)
    run.measure()
    chosen = [selection.mutants[name] for name in arguments.ids] or selection.chosen()
    made = run.make(chosen)
    return 0 if report.summarise(made) >= REQUIRED_SCORE else 1


if __name__ == '__main__':
    sys.exit(main())
