#!/usr/bin/env python3
"""Runs those of a build's tests that a regular expression and a variant name.

Matched, in upper or lower case, is the name of an entry of ctest, with each case of it where it is a GoogleTest program:

  modem.h9 AllVariants/GoertzelTest.Tone/h9

An entry all of whose cases match is run by ctest as it stands; of the others the program runs what matches.
"""

import argparse
import fnmatch
import functools
import json
import os
import re
import subprocess
import sys
from dataclasses import dataclass


@functools.lru_cache(maxsize=None)
def cases_of_program(command):
    """All cases of a GoogleTest program; the command is a tuple, since an emulator may stand in front."""
    listing = subprocess.run([*command, '--gtest_list_tests'], stdout=subprocess.PIPE, text=True, check=True).stdout
    return parse_listing(listing)


def parse_listing(listing):
    cases, suite = [], None
    for line in listing.splitlines():
        name = line.split('#')[0].strip()  # behind it: the value of the parameter
        if line.startswith('  '):
            cases.append(suite + name)
        elif name.endswith('.'):
            suite = name
    return tuple(cases)


@dataclass
class Entry:
    """An entry of ctest; without cases, None, if it is no GoogleTest program."""
    name: str
    program: tuple
    environment: dict
    cases: tuple

    def names(self):
        return [self.name] if self.cases is None else [f'{self.name} {case}' for case in self.cases]


def entries(ctest_arguments):
    result = subprocess.run(['ctest', *ctest_arguments, '--show-only=json-v1'],
                            stdout=subprocess.PIPE, text=True, check=True)
    for test in json.loads(result.stdout)['tests']:
        command = test.get('command', [])
        program = tuple(word for word in command if not word.startswith('--gtest_'))
        environment = next((item['value'] for item in test['properties'] if item['name'] == 'ENVIRONMENT'), [])
        cases = None
        if len(program) < len(command):
            patterns = [word.split('=', 1)[1] for word in command if word.startswith('--gtest_filter=')] or ['*']
            cases = tuple(case for case in cases_of_program(program) if fnmatch.fnmatchcase(case, patterns[0]))
        yield Entry(test['name'], program, dict(item.split('=', 1) for item in environment), cases)


def select(all_entries, expression, variant):
    """The names of the entries to run as they are, and (entry, cases) of those to run in part."""
    pattern = re.compile(expression, re.IGNORECASE)
    of_variant = re.compile(f'[./]{variant}$' if variant else '')
    whole, parts = [], []
    for entry in all_entries:
        fits = [pattern.search(name) is not None and of_variant.search(name) is not None for name in entry.names()]
        if fits and all(fits):
            whole.append(entry.name)
        elif any(fits):
            parts.append((entry, [case for case, fit in zip(entry.cases, fits) if fit]))
    return whole, parts


def run_part(entry, cases):
    print(f'==> {entry.name}: {len(cases)} of {len(entry.cases)} cases', flush=True)
    # A part of the cases need not call every export.
    environment = {name: value for name, value in entry.environment.items() if name != 'ORBS_EXPECT_CALLS'}
    command = [*entry.program, '--gtest_filter=' + ':'.join(cases), '--gtest_brief=1']
    return subprocess.run(command, env={**os.environ, **environment}).returncode == 0


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('--filter', default='', metavar='EXPRESSION')
    parser.add_argument('--variant')
    parser.add_argument('ctest_arguments', nargs='+', help='where ctest finds the build: --preset P or --test-dir D')
    options = parser.parse_args()
    try:
        whole, parts = select(entries(options.ctest_arguments), options.filter, options.variant)
    except re.error as error:
        sys.exit(f"run_tests: '{options.filter}' is no regular expression: {error}")
    if not whole and not parts:
        where = f' of variant {options.variant}' if options.variant else ''
        sys.exit(f"run_tests: no test{where} matches '{options.filter}'")
    passed = [run_part(*part) for part in parts]
    if whole:
        names = '|'.join(map(re.escape, whole))
        ctest = ['ctest', *options.ctest_arguments, '-j2', '--output-on-failure', '-R', f'^({names})$']
        passed.append(subprocess.run(ctest).returncode == 0)
    sys.exit(not all(passed))


if __name__ == '__main__':
    main()
