"""Which mutants a run makes: a share for every folder, in proportion to its lines; the same ones each time."""

import pathlib
import tomllib

from mutants import mutants_of

# Each folder with the folders of tests that could notice a change in it, from the nearest to the farthest.
# The soak takes too long to be among them; the folders that are missing look at no behaviour of the program.
WHOLE_PROGRAM = ['tests/road', 'tests/language', 'tests/desktop']
FOLDERS = {
    'config': ['tests/config', 'tests/ui', 'tests/app', 'tests/resources', 'tests/fuzz', *WHOLE_PROGRAM],
    'ui': ['tests/ui', 'tests/app', 'tests/fuzz', *WHOLE_PROGRAM],
    'camera': ['tests/camera', 'tests/app', *WHOLE_PROGRAM],
    'app': ['tests/app', *WHOLE_PROGRAM],
    'sdk/cvxcpp': ['tests/sdk', 'tests/fuzz', 'tests/hostile', *WHOLE_PROGRAM],
    'sdk/producerhost': ['tests/sdk', 'tests/hostile', *WHOLE_PROGRAM],
    'sdk/producer': ['tests/producer', 'tests/aravis', 'tests/sdk', *WHOLE_PROGRAM],
    'sdk/simulator': ['tests/producer', 'tests/sdk', 'tests/resources', 'tests/fuzz', *WHOLE_PROGRAM],
    'sdk/aravis': ['tests/aravis', *WHOLE_PROGRAM],
}


class Selection:
    """The mutants of one run. Mutants that do not compile are replaced by the next of their folder."""

    def __init__(self, root, files, count, seed):
        self.mutants = {}  # By id.
        self._waiting = {}  # Of each folder: ranked, the next one last.
        lines = {}
        for folder in {folder_of(file) for file in files}:
            texts = {file: (root / file).read_text() for file in files if folder_of(file) == folder}
            lines[folder] = sum(text.count('\n') for text in texts.values())
            found = [mutant for file, text in texts.items() for mutant in mutants_of(file, text)]
            self.mutants.update((mutant.id, mutant) for mutant in found)
            self._waiting[folder] = _one_a_line(sorted(found, key=lambda mutant: mutant.rank(seed)))
        self.shares = _shares(lines, count)

    def chosen(self):
        return [mutant for folder, share in self.shares.items()
                for mutant in (self.next_of(folder) for _ in range(share)) if mutant]

    def next_of(self, folder):
        return self._waiting[folder].pop() if self._waiting[folder] else None


def folder_of(file):
    """The folder of FOLDERS that a file is in, or None."""
    return next((folder for folder in FOLDERS if file.startswith(folder + '/')), None)


def _one_a_line(ranked):
    """The ranked ones, last first; of each line only the first, so that a run sees more of the code."""
    lines = {}
    for mutant in ranked:
        lines.setdefault((mutant.file, mutant.line_number), mutant)
    return list(lines.values())[::-1]


def _shares(lines, count):
    """As many as count in all, in proportion to the lines, by largest remainder."""
    exact = {folder: count * number / sum(lines.values()) for folder, number in lines.items()}
    shares = {folder: int(share) for folder, share in exact.items()}
    by_remainder = sorted(exact, key=lambda folder: (shares[folder] - exact[folder], folder))
    for folder in by_remainder[:count - sum(shares.values())]:
        shares[folder] += 1
    return {folder: shares[folder] for folder in FOLDERS if folder in shares}


def known_equivalents():
    """The reasons why nobody can notice a mutant, by its key."""
    path = pathlib.Path(__file__).with_name('equivalent.toml')
    entries = tomllib.loads(path.read_text())['mutant']
    return {(entry['file'], entry['line'], entry['change'], entry.get('occurrence', 0)): entry['reason']
            for entry in entries}
