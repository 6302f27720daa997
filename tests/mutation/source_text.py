"""Reads C++ as far as mutants need it: what is code, which bracket closes which, where a statement begins.

The sources are formatted by clang-format, and much here leans on that: binary operators have space on both sides,
brackets of templates and references do not.
"""

import re

_SKIPPED = re.compile(
    r'//[^\n]*|/\*.*?\*/'
    r'|R"([^()\s]*)\(.*?\)\1"'
    r'|"(?:\\.|[^"\\\n])*"'
    r"|(?<![0-9a-fA-F])'(?:\\.|[^'\\\n])+'"
    r'|^[ \t]*#(?:[^\n]*\\\n)*[^\n]*',
    re.DOTALL | re.MULTILINE)
_OPENS_BODY = re.compile(
    r'(?:\)(?:\s*(?:const|noexcept|override|final|mutable))*(?:\s*->[^;{}()]*)?'
    r'|\belse|\bdo|\btry|\])\s*$')
_DECLARATION_WORDS = re.compile(
    r'(?:const|static|constexpr|auto|using|typedef|struct|class|enum|template|extern|friend|thread_local|mutable'
    r'|virtual|explicit|inline|public|private|protected|namespace|static_assert|signals|Q_\w+)\b')
_DECLARATION = re.compile(
    r'(?!return\b|delete\b|emit\b|throw\b|goto\b|else\b)'
    r'[\w:]+(?:<[^;]*?>)?(?:::\w+)*(?:\s+|\s*[&*]+\s*)[A-Za-z_]\w*\s*(?:[=({\[,;]|$)')
_HEADER = re.compile(
    r'\s*(?:(?:if|for|while|switch)\s*(?:constexpr\s*)?(\()|else\b|(?:case\b[^;?]*?|default)(?<!:):(?!:))')


class SourceText:
    """One file: its text, and the same with comments, literals and preprocessor lines blanked out in place."""

    def __init__(self, text):
        self.text = text
        self.code = _SKIPPED.sub(_blank, text)
        self.strings = [match.span() for match in _SKIPPED.finditer(text) if match.group().startswith('"')]
        self.closing = {}  # Of each opening bracket.
        self._bodies = set()  # The opening braces of functions and blocks; the others are of types and lists.
        self._enclosing = {}  # Of each semicolon: the innermost open bracket.
        self._match_brackets()
        self._opening = {end: start for start, end in self.closing.items()}

    def line_number(self, position):
        return self.text.count('\n', 0, position) + 1

    def line(self, position):
        start = self.text.rfind('\n', 0, position) + 1
        return self.text[start:(self.text + '\n').index('\n', position)].strip()

    def _match_brackets(self):
        stack = []
        for position, character in enumerate(self.code):
            if character in '([{':
                if character == '{' and self._is_body(position, stack):
                    self._bodies.add(position)
                stack.append(position)
            elif character in ')]}' and stack:
                self.closing[stack.pop()] = position
            elif character == ';' and stack:
                self._enclosing[position] = stack[-1]

    def _is_body(self, position, stack):
        before = self.code[max(0, position - 300):position].rstrip()
        if _OPENS_BODY.search(before):
            return True
        return bool(stack) and stack[-1] in self._bodies and before[-1:] in (';', '{', '}', ':')

    def statements(self):
        """The statements of function bodies that are no declarations: (start, end, whether something decides if
        they are reached), the end being that of the semicolon."""
        for end, bracket in self._enclosing.items():
            if bracket not in self._bodies:
                continue
            start, guarded = self._skip_headers(self._statement_start(end, bracket), end)
            start += len(self.code[start:end]) - len(self.code[start:end].lstrip())
            words = self.code[start:end]
            if words and not _DECLARATION_WORDS.match(words) and not _DECLARATION.match(words + ';'):
                yield start, end + 1, guarded

    def _statement_start(self, end, bracket):
        position = end - 1
        if self.code[position] == '}':
            position = self._opening[position] - 1  # Of a lambda or a list: no block ends with a semicolon.
        while position > bracket:
            character = self.code[position]
            if character == ';' or (character == '}' and self._opening.get(position) in self._bodies):
                return position + 1
            position = self._opening.get(position, position) - 1
        return bracket + 1

    def _skip_headers(self, start, end):
        guarded = False
        while header := _HEADER.match(self.code, start, end):
            start = self.closing[header.start(1)] + 1 if header.group(1) else header.end()
            guarded = True
        return start, guarded

    def expression_start(self, position):
        """Where the expression that ends before the position begins, if it is of low precedence (a condition)."""
        position -= 1
        while position > 0:
            character = self.code[position]
            if character in '([{,;?:' and self.code[position - 1:position + 1] != '::' \
                    and self.code[position:position + 2] != '::':
                break
            if re.match(r'[^=!<>]=\s', self.code[position - 1:position + 2]) \
                    or self.code.startswith('return', position):
                return position + (6 if character == 'r' else 1)
            position = self._opening.get(position, position) - 1
        return position + 1


def _blank(match):
    literal = match.group()
    if literal[0] in '"R\'':
        return literal[0] + '"' * (len(literal) - 2) + literal[-1]
    return re.sub(r'[^\n]', ' ', literal)
