#!/usr/bin/env python3
"""How the examples answer a request for help and a number of arguments that they do not take.

usage: usage_test.py PROGRAM...
"""
import os
import re
import subprocess
import sys
import tempfile
import unittest

PROGRAMS = sys.argv[1:]


class Usage(unittest.TestCase):
    def run_program(self, program, *arguments):
        with tempfile.TemporaryDirectory() as folder:
            result = subprocess.run([program, *arguments], cwd=folder, capture_output=True, text=True, check=False)
            self.assertEqual(os.listdir(folder), [])
        return result

    def synopsis(self, program):
        return re.search(r'usage: (.*)', self.run_program(program, '--help').stdout)[1]

    def test_a_request_for_help_is_answered(self):
        for program in PROGRAMS:
            for arguments in ('--help',), ('-h',), ('recording.wav', '--help'):
                result = self.run_program(program, *arguments)
                self.assertEqual((result.returncode, result.stderr), (0, ''), program)
                self.assertRegex(result.stdout, rf'^usage: {os.path.basename(program)} RECORDING.*\n\n(.+\n)+$')

    def test_arguments_may_end_where_the_synopsis_says(self):
        for program in PROGRAMS:
            words = self.synopsis(program).split()[1:]
            allowed = {i for i in range(1, len(words)) if words[i].startswith('[')} | {len(words)}
            for count in range(len(words) + 2):
                # The recording is not there, so that an allowed number ends with another message.
                result = self.run_program(program, *['1'] * count)
                self.assertEqual(result.returncode, 1, program)
                self.assertEqual(result.stdout, '')
                self.assertEqual('error: usage: ' in result.stderr, count not in allowed, (program, count))


if __name__ == '__main__':
    unittest.main(argv=sys.argv[:1])
