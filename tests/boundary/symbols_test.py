#!/usr/bin/env python3
"""Holds the built library against the list of exports and against what a loader expects of a clean shared library.

usage: symbols_test.py LIBRARY EXPORTS_DIR INCLUDE_DIR [--sanitized]
"""
import glob
import os
import re
import subprocess
import sys
import unittest

LIBRARY, LISTS, INCLUDE = sys.argv[1:4]
SANITIZED = '--sanitized' in sys.argv
VERSION_NODE = 'ORBS90LGC_9.0'


def output(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout


def text_of(path):
    with open(path, encoding='utf-8') as file:
        return file.read()


def listed(kinds):
    return {'legacy90orbs' + name
            for slice_ in glob.glob(os.path.join(LISTS, '*.def'))
            for name in re.findall(rf'^ORBS_(?:{kinds})\(\w+, [^,]+, (\w+), \(', text_of(slice_), re.MULTILINE)}


def code_symbols():
    """Name, first address and end of every function, local ones included."""
    for line in output('nm', '-S', '--defined-only', LIBRARY).splitlines():
        fields = line.split()
        if len(fields) == 4 and fields[2] in 'tT':
            yield fields[3], int(fields[0], 16), int(fields[0], 16) + int(fields[1], 16)


class Symbols(unittest.TestCase):
    def setUp(self):
        self.exports = listed('PLAIN|EXPORT')
        self.assertGreater(len(self.exports), 4)

    def test_exactly_the_list_is_exported(self):
        found = {}
        for line in output('nm', '-D', '--defined-only', LIBRARY).splitlines():
            kind, name = line.split()[-2:]
            if name != VERSION_NODE:
                found[name] = kind
        self.assertEqual(set(found), {f'{name}@@{VERSION_NODE}' for name in self.exports})
        self.assertEqual(set(found.values()), {'T'})

    def test_the_headers_declare_exactly_the_list(self):
        declared = set()
        for header in glob.glob(os.path.join(INCLUDE, '**', '*.h'), recursive=True):
            code = re.sub(r'/\*.*?\*/|//[^\n]*', '', text_of(header), flags=re.DOTALL)
            declared.update(re.findall(r'\b(legacy90orbs\w+)\s*\(', code))
        self.assertEqual(declared, self.exports)

    def test_the_file_is_clean(self):
        dynamic = output('readelf', '-dW', LIBRARY)
        segments = output('readelf', '-lW', LIBRARY)
        self.assertEqual(re.findall(r'\(SONAME\).*\[(.*)\]', dynamic), ['liborbs90lgc.so.9'])
        self.assertNotIn('TEXTREL', dynamic)
        self.assertIn('BIND_NOW', dynamic)
        self.assertNotIn('RPATH', dynamic)
        self.assertIn('GNU_RELRO', segments)
        self.assertRegex(segments, r'GNU_STACK( +0x[0-9a-f]+){5} RW ')
        self.assertNotRegex(segments, r'LOAD( +0x[0-9a-f]+){5} RWE')
        if not SANITIZED:
            needed = set(re.findall(r'\(NEEDED\).*\[(.*)\]', dynamic))
            self.assertLessEqual(needed, {'libc.so.6', 'libm.so.6'})

    def test_every_stub_can_be_unwound(self):
        ranges = [(int(first, 16), int(end, 16)) for first, end in re.findall(
            r'FDE .*pc=([0-9a-f]+)\.\.([0-9a-f]+)', output('readelf', '--debug-dump=frames', LIBRARY))]
        names = set()
        for name, first, end in code_symbols():
            if not re.match(r'legacy90orbs|orbsLazy|orbsSelectAndJump', name):
                continue
            names.add(name)
            self.assertLess(first, end, name)
            self.assertTrue(any(low <= first and end <= high for low, high in ranges), name)
        lazy = {name.replace('legacy90orbs', 'orbsLazy') for name in listed('EXPORT')}
        self.assertEqual(names, self.exports | lazy | {'orbsSelectAndJump'})


if __name__ == '__main__':
    unittest.main(argv=sys.argv[:1])
