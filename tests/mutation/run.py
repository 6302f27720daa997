"""Shares the mutants out among the copies and tells the report what became of each."""

import collections
import itertools
import threading

from selection import FOLDERS, WHOLE_PROGRAM, folder_of


class Run:
    """First every mutant meets the tests of the folders near it; what they let pass then meets the whole program."""

    def __init__(self, copies, selection, report, keeps_known):
        self._copies = copies
        self._selection = selection
        self._report = report
        self._keeps_known = keeps_known
        self._tests = {}  # By folder.
        self._catches = collections.Counter()  # By file and test: what has caught a neighbour is tried first.
        self._lock = threading.Lock()
        self._queue = collections.deque()
        self._made = []

    def measure(self):
        """Runs all tests on the unchanged sources. One that does not pass there says nothing about mutants."""
        folders = dict.fromkeys(itertools.chain(*(FOLDERS[folder] for folder in self._selection.shares)))
        for folder in folders:
            if self._copies[0].tests(folder):
                self._tests[folder] = self._copies[0].tests(folder)
        queue = collections.deque(
            (folder, index) for folder, tests in self._tests.items() for index in range(len(tests)))
        unfit = set()

        def work(copy):
            for folder, index in _popped(queue):
                own = copy.tests(folder)[index]
                if copy.measure(own):
                    self._tests[folder][index].seconds = own.seconds
                else:
                    unfit.add((folder, index))
                    print(f'left out, it fails on the unchanged sources: {own.name}', flush=True)

        self._in_all_copies(work)
        for folder, tests in self._tests.items():
            self._tests[folder] = [test for index, test in enumerate(tests) if (folder, index) not in unfit]

    def make(self, mutants):
        """Makes them, or others for those that do not compile; returns the ones that count."""
        self._made = []
        for mutant in mutants:
            self._accept(mutant)
        self._work_through(lambda folder: folder not in WHOLE_PROGRAM)
        survivors = [mutant for mutant in self._made if self._report.verdict(mutant) == 'survived near']
        self._queue.extend(survivors)
        self._work_through(lambda folder: folder in WHOLE_PROGRAM)
        return self._made

    def _accept(self, mutant):
        """Into the queue, unless its fate is known; without one for which there is no other."""
        while mutant and self._report.verdict(mutant) == 'broken':
            mutant = self._selection.next_of(folder_of(mutant.file))
        if not mutant:
            return
        self._made.append(mutant)
        is_known = self._keeps_known and self._report.verdict(mutant) == 'noticed'
        if not self._report.is_equivalent(mutant) and not is_known:
            self._queue.append(mutant)

    def _work_through(self, wants):
        ordered = sorted(self._queue, key=lambda mutant: (mutant.file, mutant.start))
        self._queue = collections.deque(ordered)
        print(f'{len(ordered)} mutants to make', flush=True)
        self._in_all_copies(lambda copy: self._work(copy, wants))

    def _in_all_copies(self, work):
        threads = [threading.Thread(target=work, args=(copy,), daemon=True) for copy in self._copies]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()

    def _work(self, copy, wants):
        changed = {}
        for mutant in _popped(self._queue):
            for file, text in changed.items():
                if file != mutant.file:  # The same one is written over below.
                    copy.write(file, text)
            original = changed.get(mutant.file) or (copy.source / mutant.file).read_text()
            changed = {mutant.file: original}
            copy.write(mutant.file, mutant.apply(original))
            verdict, by = self._try(copy, mutant, wants)
            with self._lock:
                self._report.record(mutant, verdict, by, len(self._queue))
                if verdict == 'broken':
                    self._made.remove(mutant)
                    self._accept(self._selection.next_of(folder_of(mutant.file)))
                if verdict == 'noticed':
                    self._catches[mutant.file, by] += 1
        for file, text in changed.items():
            copy.write(file, text)

    def _try(self, copy, mutant, wants):
        is_near = not wants(WHOLE_PROGRAM[0])
        for folder in FOLDERS[folder_of(mutant.file)]:
            if not wants(folder) or folder not in self._tests:
                continue
            if not copy.builds(folder):
                return 'broken', ''
            for test in self._ordered(copy, folder, mutant):
                passed = copy.passes(test)
                # Twice, or it may have been the machine. A wait without end is not repeated.
                if passed is None or (not passed and not copy.passes(test)):
                    return 'noticed', test.name
        return ('survived near' if is_near else 'survived'), ''

    def _ordered(self, copy, folder, mutant):
        known = {test.name: test for test in self._tests[folder]}
        tests = [test for test in copy.tests(folder) if test.name in known]
        for test in tests:
            test.seconds = known[test.name].seconds
        return sorted(tests, key=lambda test: (
            not test.prepares, -self._catches[mutant.file, test.name], test.seconds))


def _popped(queue):
    while True:
        try:
            yield queue.popleft()
        except IndexError:
            return
