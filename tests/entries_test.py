#!/usr/bin/env python3
"""Every case of the GoogleTest programs is run by exactly one entry of ctest; and how tests are selected by name.

usage: entries_test.py TOOLS_DIR BUILD_DIR VARIANT...
"""

import collections
import sys
import unittest

TOOLS, BUILD, *VARIANTS = sys.argv[1:]
sys.path.insert(0, TOOLS)
import run_tests  # noqa: E402

ALL_VARIANTS = ['px', 'w7', 'v8', 's8', 'p8', 'g9', 'h9']


def misplaced(entries, all_cases, left_out):
    """The cases that are not in exactly one entry; those of variants that the build leaves out need not be in any."""
    places = collections.defaultdict(list)
    for entry in entries:
        for case in entry.cases or ():
            places[entry.program, case].append(entry.name)
    faults = []
    for program in {entry.program for entry in entries if entry.cases is not None}:
        for case in all_cases(program):
            found = places[program, case]
            if len(found) > 1 or (not found and not case.endswith(left_out)):
                faults.append((program[-1], case, found))
    return faults


def entry(name, *cases, program=('p',)):
    return run_tests.Entry(name, program, {}, cases or None)


class Entries(unittest.TestCase):
    def test_every_case_is_in_exactly_one_entry(self):
        left_out = tuple(f'/{variant}' for variant in ALL_VARIANTS if variant not in VARIANTS)
        entries = list(run_tests.entries(['--test-dir', BUILD]))
        self.assertGreater(sum(len(entry.cases or ()) for entry in entries), 100)
        self.assertEqual(misplaced(entries, run_tests.cases_of_program, left_out), [])

    def test_planted_faults_are_found(self):
        entries = [entry('a.px', 'A/T.x/px'), entry('a.h9', 'A/T.x/h9')]
        all_cases = ('A/T.x/px', 'A/T.x/h9', 'A/T.x/w7')
        self.assertEqual(misplaced(entries, lambda _: all_cases, ('/w7',)), [])
        self.assertEqual(misplaced(entries, lambda _: all_cases + ('T.y',), ('/w7',)), [('p', 'T.y', [])])
        self.assertEqual(misplaced(entries + [entry('b.h9', 'A/T.x/h9')], lambda _: all_cases, ('/w7',)),
                         [('p', 'A/T.x/h9', ['a.h9', 'b.h9'])])
        empty = run_tests.Entry('a.px', ('p',), {}, ())
        self.assertEqual(misplaced([empty], lambda _: all_cases[:1], ('/w7',)), [('p', 'A/T.x/px', [])])


class Selection(unittest.TestCase):
    ENTRIES = [entry('modem.px', 'A/GoertzelTest.Tone/px', 'A/FmTest.Tone/px'),
               entry('modem.h9', 'A/GoertzelTest.Tone/h9', 'A/FmTest.Tone/h9'),
               entry('core', 'Offset.Leads', 'A/ScalingTest.Rounds/h9'),
               entry('packaging.install')]

    def selected(self, expression, variant=None):
        whole, parts = run_tests.select(self.ENTRIES, expression, variant)
        return whole, [(entry.name, cases) for entry, cases in parts]

    def test_names_of_entries_and_of_cases(self):
        self.assertEqual(self.selected('modem.h9'), (['modem.h9'], []))
        self.assertEqual(self.selected('goertzel', 'h9'), ([], [('modem.h9', ['A/GoertzelTest.Tone/h9'])]))
        self.assertEqual(self.selected('INSTALL'), (['packaging.install'], []))
        self.assertEqual(self.selected('', 'h9'), (['modem.h9'], [('core', ['A/ScalingTest.Rounds/h9'])]))
        self.assertEqual(self.selected('Tone', 'w7'), ([], []))

    def test_the_listing_of_a_program(self):
        listing = 'Running main() from x\nA/FmTest.\n  Tone/h9  # GetParam() = <06-00>\nOffset.\n  Leads\n'
        self.assertEqual(run_tests.parse_listing(listing), ('A/FmTest.Tone/h9', 'Offset.Leads'))


if __name__ == '__main__':
    unittest.main(argv=['entries_test'])
