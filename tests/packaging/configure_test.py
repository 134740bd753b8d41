#!/usr/bin/env python3
"""Configures the project afresh and looks at what the build makes of its options.

usage: configure_test.py CMAKE SOURCE_DIR C_COMPILER CXX_COMPILER
"""
import json
import os
import re
import shlex
import subprocess
import sys
import tempfile
import unittest

CMAKE, SOURCE, C_COMPILER, CXX_COMPILER = sys.argv[1:5]


class Configure(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.build = os.path.join(folder.name, 'build')
        self.trace = os.path.join(folder.name, 'trace')

    def configure(self, *options):
        return subprocess.run(
            [CMAKE, '-G', 'Ninja', '-S', SOURCE, '-B', self.build, f'-DCMAKE_C_COMPILER={C_COMPILER}',
             f'-DCMAKE_CXX_COMPILER={CXX_COMPILER}', '-DORBS_BUILD_TESTS=OFF', '-DORBS_VARIANTS=px',
             '--trace-expand', '--trace-format=json-v1', f'--trace-redirect={self.trace}', *options],
            capture_output=True, text=True)

    def compile_commands(self):
        with open(os.path.join(self.build, 'compile_commands.json'), encoding='utf-8') as file:
            return [shlex.split(entry['command']) for entry in json.load(file)]

    def expected_vendors(self):
        """What the compiler is given, wherever it is given any."""
        option = '-DORBS_EXPECTED_VENDOR_ID='
        return {word[len(option):] for words in self.compile_commands() for word in words if word.startswith(option)}

    def asks_of_the_machine(self):
        """The project's own commands that could learn something about the building machine."""
        with open(self.trace, encoding='utf-8') as file:
            calls = [json.loads(line) for line in file if '"cmd"' in line]
        own = [call for call in calls if call['file'].startswith(SOURCE + '/')]
        self.assertGreater(len(own), 20)
        return [f'{call["file"]}:{call["line"]}: {call["cmd"]} {call["args"]}' for call in own
                if call['cmd'] in ('cmake_host_system_information', 'execute_process', 'try_run')
                or any(argument.startswith(('/proc/', '/sys/')) for argument in call['args'])]

    def test_the_default_vendor_is_fixed_and_not_that_of_the_machine(self):
        for option in (), ('-DORBS_EXPECTED_VENDOR_ID=',):
            result = self.configure(*option)
            self.assertEqual(result.returncode, 0, result.stderr)
            self.assertEqual(self.expected_vendors(), {'"GenuineIntel"'})
            self.assertEqual(self.asks_of_the_machine(), [])

    def test_the_vendor_can_be_set(self):
        result = self.configure('-DORBS_EXPECTED_VENDOR_ID=Any 12 chars')
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(self.expected_vendors(), {'"Any 12 chars"'})

    def test_a_vendor_of_another_length_is_refused(self):
        result = self.configure('-DORBS_EXPECTED_VENDOR_ID=Eleven chrs')
        self.assertNotEqual(result.returncode, 0)
        self.assertIn('must have 12 characters', result.stderr)

    def test_warnings_are_errors_on_request_alone(self):
        for options, is_error in ((), False), (('-DORBS_WERROR=ON',), True):
            result = self.configure(*options)
            self.assertEqual(result.returncode, 0, result.stderr)
            with_warnings = [words for words in self.compile_commands() if '-Wall' in words]
            self.assertEqual({'-Werror' in words for words in with_warnings}, {is_error})

    def test_without_the_tests_the_first_program_is_one(self):
        self.configure()
        listed = subprocess.run([os.path.join(os.path.dirname(CMAKE), 'ctest'), '--test-dir', self.build, '-N'],
                                capture_output=True, text=True, check=True).stdout
        self.assertIn('readme.first_program', listed)
        with open(os.path.join(self.build, 'build.ninja'), encoding='utf-8') as file:
            self.assertRegex(file.read(), r'(?m)^build test:')

    def test_the_last_version_of_the_changelog_is_that_of_the_project(self):
        self.configure()
        with open(os.path.join(self.build, 'CMakeCache.txt'), encoding='utf-8') as file:
            version = re.search(r'^CMAKE_PROJECT_VERSION:STATIC=(.*)', file.read(), re.MULTILINE)[1]
        with open(os.path.join(SOURCE, 'CHANGELOG.md'), encoding='utf-8') as file:
            self.assertEqual(re.findall(r'^## \[(\d.*)\] - ', file.read(), re.MULTILINE)[0], version)


if __name__ == '__main__':
    unittest.main(argv=sys.argv[:1])
