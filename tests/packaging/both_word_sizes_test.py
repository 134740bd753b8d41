#!/usr/bin/env python3
"""Installs both word sizes into one prefix, each after the other, and builds programs of both on it.

usage: both_word_sizes_test.py BUILD_DIR BUILD_DIR
"""
import os
import sys
import tempfile
import unittest

from installation import LAST_LINE, Build, word_size

BUILDS = [Build(folder) for folder in sys.argv[1:3]]


class BothWordSizes(unittest.TestCase):
    def setUp(self):
        self.assertEqual({build.word_size for build in BUILDS}, {32, 64})
        self.prefix = self.new_folder()

    def new_folder(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        return folder.name

    def install(self, *builds):
        for build in builds:
            result = build.install(self.prefix)
            self.assertEqual(result.returncode, 0, result.stderr)

    def test_each_program_gets_its_own(self):
        self.install(BUILDS[0], BUILDS[1], BUILDS[0])
        for build in BUILDS:
            self.assertEqual(word_size(build.library(self.prefix)), build.word_size)
            for first_program in build.first_program_with_pkg_config, build.first_program_with_cmake:
                folder = self.new_folder()
                self.assertIn(LAST_LINE, first_program(self.prefix, folder))
                program = 'first' if os.path.exists(folder + '/first') else 'out/first'
                self.assertEqual(word_size(f'{folder}/{program}'), build.word_size)

    def test_cmake_does_not_take_the_other(self):
        for build, other in BUILDS, reversed(BUILDS):
            self.prefix = self.new_folder()
            self.install(other)
            result = build.configure_with_cmake(self.prefix, self.new_folder())
            self.assertNotEqual(result.returncode, 0)
            self.assertIn('orbs90lgc', result.stderr)


if __name__ == '__main__':
    unittest.main(argv=sys.argv[:1])
