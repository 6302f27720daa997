"""Which changes are made to which code, and which are not."""

import sys
import unittest

from mutants import mutants_of

BODY = 'int f(int a, bool b)\n{{\n    {}\n    return 0;\n}}\n'


def changed(statement):
    """The statement after each change that is made to it; the rest of the function stays."""
    text = BODY.format(statement)
    made = {mutant.apply(text) for mutant in mutants_of('f.cpp', text)}
    start, end = text.index(statement), len(text) - text.index(statement) - len(statement)
    return {new[start:len(new) - end] for new in made if new.endswith(text[-end:])} - {statement}


class Mutants(unittest.TestCase):
    def test_conditions_are_negated_and_their_operators_swapped(self):
        self.assertEqual(changed('if (a < b) g();'),
                         {'if (!(a < b)) g();', 'if (a <= b) g();', 'if (a < b) ;'})
        self.assertEqual(changed('const int c = b ? a : a;'), {'const int c = !(b) ? a : a;'})
        self.assertEqual(changed('while (b && g()) h();'),
                         {'while (!(b && g())) h();', 'while (b || g()) h();', 'while (b && g()) ;'})
        self.assertEqual(changed('for (; a != 5; ++a) { }'),
                         {'for (; !(a != 5); ++a) { }', 'for (; a == 5; ++a) { }', 'for (; a != 6; ++a) { }',
                          'for (; a != 5; --a) { }'})

    def test_statements_are_dropped_but_declarations_kept(self):
        self.assertEqual(changed('g(a);'), {';'})
        self.assertEqual(changed('m.x = [a] { return a; };'), {';', 'm.x = [a] { return {}; };'})
        for declaration in ('int c;', 'const auto c = a;', 'std::vector<int> c(a);', 'Kind *c{};'):
            self.assertEqual(changed(declaration), set(), declaration)

    def test_returned_values_are_changed(self):
        self.assertEqual(changed('return a;'), {'return {};'})
        self.assertEqual(changed('if (b) return true;'),
                         {'if (!(b)) return true;', 'if (b) return false;', 'if (b) ;'})

    def test_constants_are_swapped(self):
        self.assertEqual(changed('const auto c = "x";'), {'const auto c = "x~";'})
        self.assertEqual(changed('const auto c = 20ms;'), {'const auto c = 200ms;'})
        self.assertEqual(changed('const auto c = {State::On, State::Off};'),
                         {'const auto c = {State::Off, State::Off};', 'const auto c = {State::On, State::On};'})

    def test_comments_texts_and_templates_hold_no_code(self):
        self.assertEqual(changed('const Map<int> c{}; // a < b && "c"'), set())
        self.assertEqual(changed('const auto c = ") { a == b; }";'), {'const auto c = ") { a == b; }~";'})

    def test_an_id_outlives_changes_elsewhere(self):
        ids = [[mutant.id for mutant in mutants_of('f.cpp', before + BODY.format('g(a);'))]
               for before in ('', '// A line more.\n')]
        self.assertEqual(*ids)


if __name__ == '__main__':
    sys.exit(unittest.main())
