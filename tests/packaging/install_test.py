#!/usr/bin/env python3
"""Installs a build into scratch folders and uses what is there.

usage: install_test.py BUILD_DIR
"""
import glob
import os
import sys
import tempfile
import unittest

from installation import LAST_LINE, Build, word_size

BUILD = Build(sys.argv[1])


class Install(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.prefix = os.path.join(folder.name, 'prefix')
        self.scratch = os.path.join(folder.name, 'scratch')
        os.mkdir(self.scratch)

    def install(self, *arguments):
        result = BUILD.install(*arguments)
        self.assertEqual(result.returncode, 0, result.stderr)

    def plant(self, prefix, elf_class):
        """The start of a library of that class, in the place of ours."""
        path = f'{BUILD.library(prefix)}.{BUILD.version}'
        os.makedirs(os.path.dirname(path))
        with open(path, 'wb') as file:
            file.write(b'\x7fELF' + bytes([elf_class, 1, 1]))
        return path

    def test_the_first_program_builds_and_runs(self):
        self.install(self.prefix)
        self.assertIn(LAST_LINE, BUILD.first_program_with_pkg_config(self.prefix, self.scratch))
        self.assertIn(LAST_LINE, BUILD.first_program_with_cmake(self.prefix, self.scratch))

    def test_a_library_of_the_other_word_size_is_not_replaced(self):
        for staging, prefix in ('', self.prefix), (self.scratch, '/usr'):
            planted = self.plant(staging + prefix, elf_class=2 if BUILD.word_size == 32 else 1)
            result = BUILD.install(prefix, staging)
            self.assertNotEqual(result.returncode, 0)
            self.assertIn(planted, result.stderr)
            files = [path for path in glob.glob(staging + prefix + '/**', recursive=True) if os.path.isfile(path)]
            self.assertEqual(files, [planted])
            self.assertEqual(os.path.getsize(planted), 7)

    def test_a_library_of_the_same_word_size_is_replaced(self):
        self.plant(self.prefix, elf_class=1 if BUILD.word_size == 32 else 2)
        for _ in range(2):
            self.install(self.prefix)
            self.assertEqual(word_size(BUILD.library(self.prefix)), BUILD.word_size)
            self.assertGreater(os.path.getsize(BUILD.library(self.prefix)), 7)

    def test_pkg_config_leaves_system_folders_out(self):
        self.install('/usr', self.scratch)
        self.assertEqual(BUILD.pkg_config(self.scratch + '/usr'), ['-lorbs90lgc'])


if __name__ == '__main__':
    unittest.main(argv=sys.argv[:1])
