"""The small changes that can be made to a source file, one at a time."""

import dataclasses
import hashlib
import re

from source_text import SourceText


@dataclasses.dataclass(frozen=True)
class Mutant:
    """One change. Its id outlives edits elsewhere in the file: it holds the line's text, not its number."""

    file: str
    start: int
    end: int
    replacement: str
    line_number: int
    line: str
    change: str
    occurrence: int  # Among equal changes of equal lines.

    @property
    def key(self):
        return self.file, self.line, self.change, self.occurrence

    @property
    def id(self):
        return hashlib.sha256('\0'.join(map(str, self.key)).encode()).hexdigest()[:10]

    def rank(self, seed):
        return hashlib.sha256(f'{seed} {self.id}'.encode()).digest()

    def apply(self, text):
        return text[:self.start] + self.replacement + text[self.end:]

    def __str__(self):
        return f'{self.file}:{self.line_number}: {self.change}   [{self.id}]\n    {self.line}'


def mutants_of(file, text):
    """All mutants of a file, in its order."""
    source = SourceText(text)
    edits = set()
    for find in (_negated_conditions, _dropped_negations, _dropped_statements, _swapped_operators,
                 _changed_numbers, _swapped_words, _swapped_names, _changed_texts, _changed_results):
        edits.update(find(source))
    seen = {}
    for start, end, replacement, change in sorted(edits):
        line = source.line(start)
        occurrence = seen[line, change] = seen.get((line, change), -1) + 1
        yield Mutant(file, start, end, replacement, source.line_number(start), line, change, occurrence)


def _negate(source, start, end):
    start += len(source.code[start:end]) - len(source.code[start:end].lstrip())
    condition = source.text[start:end]
    shown = ' '.join(condition.split())
    return start, end, f'!({condition})', f'negated condition: {shown}'


def _negated_conditions(source):
    for match in re.finditer(r'\b(if|while|for) (?:constexpr )?(\()', source.code):
        start, end = match.start(2) + 1, source.closing[match.start(2)]
        parts = source.code[start:end].split(';')
        if match.group(1) == 'for':
            if len(parts) == 3 and parts[1].strip():
                start += len(parts[0]) + 1
                yield _negate(source, start, start + len(parts[1]))
        elif ' = ' not in parts[-1]:
            yield _negate(source, end - len(parts[-1]), end)
    for match in re.finditer(r'\s\?\s', source.code):
        yield _negate(source, source.expression_start(match.start()), match.start())


def _dropped_negations(source):
    """Not of whole conditions: that is what negating them does as well."""
    for match in re.finditer(r'(?<![\w!])!(?=[\w(*])', source.code):
        if not re.search(r'\b(?:if|while) \($', source.code[:match.start()]):
            yield match.start(), match.end(), '', 'dropped !'


def _dropped_statements(source):
    for start, end, guarded in source.statements():
        statement = source.text[start:end]
        if guarded or not re.match(r'return\s', statement):
            shown = ' '.join(statement.split())
            yield start, end, ';', f'dropped statement: {shown[:60]}'


_OPERATORS = {
    '==': '!=', '!=': '==', '<': '<=', '<=': '<', '>': '>=', '>=': '>', '&&': '||', '||': '&&',
    '+': '-', '-': '+', '*': '/', '/': '*', '|': '&', '&': '|', '+=': '-=', '-=': '+=', '*=': '/=', '|=': '&='}


def _swapped_operators(source):
    for match in re.finditer(r'(?<=\s)[=!<>+*/|&-]{1,2}(?=\s)', source.code):
        if replacement := _OPERATORS.get(match.group()):
            yield *match.span(), replacement, f'{match.group()} became {replacement}'
    for match in re.finditer(r'(?<![+-])(\+\+|--)(?=[\w(])', source.code):
        replacement = '--' if match.group() == '++' else '++'
        yield *match.span(), replacement, f'{match.group()} became {replacement}'


def _changed_numbers(source):
    for match in re.finditer(r'(?<![\w.])(\d+)(ms|s|min|u|U|L|UL)?(?![\w.\'])', source.code):
        if re.search(r'\)[\w ]* = $', source.code[:match.start()]):
            continue  # A pure virtual function.
        is_time = match.group(2) in ('ms', 's', 'min')  # One more of these makes no difference to anybody.
        number = int(match.group(1))
        replacement = str(number * 10 if is_time and number else number + 1)
        yield *match.span(1), replacement, f'{match.group(1)} became {replacement}'


def _swapped_words(source):
    for match in re.finditer(r'\b(true|false)\b', source.code):
        replacement = 'false' if match.group() == 'true' else 'true'
        yield *match.span(), replacement, f'{match.group()} became {replacement}'


def _swapped_names(source):
    """An enumerator or code becomes the next one of its kind that the file uses."""
    names = r'\b(\w+::)([A-Z]\w+)\b(?![(<:{]|\s[\w&*])|\b([A-Z]+_[A-Z]+_)([A-Z_]+)\b'
    matches = list(re.finditer(names, source.code))
    families = {}
    for match in matches:
        members = families.setdefault(match.group(1) or match.group(3), [])
        member = match.group(2) or match.group(4)
        if member not in members:
            members.append(member)
    for match in matches:
        members = families[match.group(1) or match.group(3)]
        member = match.group(2) or match.group(4)
        other = members[(members.index(member) + 1) % len(members)]
        if other != member:
            yield *match.span(2 if match.group(2) else 4), other, f'{member} became {other}'


def _changed_texts(source):
    for start, end in source.strings:
        if end - start > 2 and not re.search(r'(?:extern|static_assert\([^;]*)\s*$', source.code[:start]):
            replacement = source.text[start:end - 1] + '~"'
            yield start, end, replacement, f'{source.text[start:end]} became {replacement}'


def _changed_results(source):
    empty = re.compile(r'return\s+(?:\{\}|true|false|-?\d+|nullptr|std::nullopt|\w+\(\)|""'
                       r'|(?:\w+::)*\w+(?:SUCCESS|Success))\s*;$')
    for start, end, _ in source.statements():
        statement = source.text[start:end]
        if re.match(r'return\s', statement) and not empty.match(statement):
            yield start, end, 'return {};', 'returned value became {}'
