"""What became of each mutant: kept in a file as it happens, told at the end."""

import collections
import json

from selection import folder_of


class Report:
    """Verdicts: "noticed", "survived", "survived near" (the rest is to come), "broken" (does not compile)."""

    def __init__(self, path, equivalents, keeps_known):
        self._path = path
        self._equivalents = equivalents
        self._results = json.loads(path.read_text()) if keeps_known and path.exists() else {}

    def verdict(self, mutant):
        return self._results.get(mutant.id, {}).get('verdict')

    def is_equivalent(self, mutant):
        return self._reason(mutant) is not None

    def _reason(self, mutant):
        return self._equivalents.get(mutant.key)

    def record(self, mutant, verdict, by, left):
        self._results[mutant.id] = {'verdict': verdict, 'by': by, 'mutant': str(mutant)}
        self._path.write_text(json.dumps(self._results, indent=1))
        if verdict != 'broken':
            print(f'{verdict}{" by " + by if by else ""} ({left} left): {mutant}', flush=True)

    def summarise(self, mutants):
        """Prints the figures and returns the score in percent."""
        equivalents = [mutant for mutant in mutants if self.is_equivalent(mutant)]
        counted = [mutant for mutant in mutants if not self.is_equivalent(mutant)]
        survivors = [mutant for mutant in counted if self.verdict(mutant) != 'noticed']
        if equivalents:
            print('\nEquivalent, not counted:')
            for mutant in equivalents:
                print(f'{mutant}\n    because: {self._reason(mutant)}')
        if survivors:
            print('\nNoticed by no test:', *survivors, sep='\n')
        self._print_folders(counted, survivors)
        score = 100 * (len(counted) - len(survivors)) / max(1, len(counted))
        print(f'\n{len(counted)} mutants, {len(counted) - len(survivors)} noticed, {len(survivors)} not; '
              f'{len(equivalents)} more are equivalent. Score: {score:.1f} %')
        return score

    @staticmethod
    def _print_folders(counted, survivors):
        made = collections.Counter(folder_of(mutant.file) for mutant in counted)
        left = collections.Counter(folder_of(mutant.file) for mutant in survivors)
        print('\nFolder               mutants  noticed')
        for folder, number in sorted(made.items()):
            print(f'{folder:<20} {number:>7}  {number - left[folder]:>7}')
