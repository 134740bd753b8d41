#!/usr/bin/env python3
"""Checks who includes whom below src/, and that folders and files stay small enough to be read.

usage: check_layers.py [ROOT]
"""

import os
import re
import sys

# What the files of a folder below src/ may include besides their own folder and the public headers: whole folders, or
# single files of others. A folder that is not listed has no place yet.
LAYERS = {
    'boundary': ['core/'],
    'core': [],
    'simd': ['core/'],
    'toolkit': ['core/', 'simd/', 'boundary/processor/cache.h'],
}
FAMILY = ['core/', 'simd/', 'toolkit/', 'boundary/declare_exports.h']
FAMILIES = {
    'arith': FAMILY,
    'corr': FAMILY + ['transform/fft.h'],
    'fir': FAMILY + ['transform/fft.h'],
    'gen': FAMILY,
    'iir': FAMILY,
    'modem': FAMILY,
    'transform': FAMILY,
    'wavelet': FAMILY,
}
LAYERS.update(FAMILIES)

MOST_FILES = 15
MOST_LINES = 500
MEASURED = ['src', 'tests', 'bench', 'tools', 'cmake']
# The folders and files that may be larger, and by how much.
LARGER = {
    'tools/check_objects': 16,  # one program, a file for each of its ideas
}

# System headers stand in angle brackets; there the library's own ones count as well.
INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"|<(?=(?:' + '|'.join(LAYERS) + r')/))([^">]+)[">]', re.MULTILINE)
# The slice of the list of exports that a family's file declares, see boundary/declare_exports.h.
SLICE = re.compile(r'^\s*#\s*define\s+ORBS_SLICE\s+"boundary/exports/(\w+)\.def"', re.MULTILINE)


def read(path):
    with open(path, encoding='utf-8') as file:
        return file.read()


def may_include(layer, name):
    own = [f'{layer}/', 'orbs90lgc/', 'orbs90lgc.h']
    return any(name.startswith(allowed) if allowed.endswith('/') else name == allowed
               for allowed in own + LAYERS[layer])


def layer_faults(root, path):
    """`path` is relative to src/."""
    layer = path.split('/')[0]
    if layer not in LAYERS:
        return [f'src/{path}: {layer} is no layer; tools/check_layers.py lists them']
    text = read(os.path.join(root, 'src', path))
    faults = [f'src/{path}: {layer} must not include {name}' for name in INCLUDE.findall(text)
              if not may_include(layer, name)]
    if layer in FAMILIES:
        faults += [f'src/{path}: {layer} must not declare the exports of {family}'
                   for family in SLICE.findall(text) if family != layer]
    return faults


def size_faults(root, folder, names):
    faults = []
    if len(names) > LARGER.get(folder, MOST_FILES):
        faults.append(f'{folder}: {len(names)} files, of at most {LARGER.get(folder, MOST_FILES)} a folder')
    for name in names:
        path = f'{folder}/{name}'
        lines = read(os.path.join(root, path)).count('\n')
        if lines > LARGER.get(path, MOST_LINES):
            faults.append(f'{path}: {lines} lines, of at most {LARGER.get(path, MOST_LINES)} a file')
    return faults


def check(root):
    faults, sources = [], 0
    for measured in MEASURED:
        for folder, folders, names in os.walk(os.path.join(root, measured)):
            folders[:] = sorted(name for name in folders if name != '__pycache__')
            folder = os.path.relpath(folder, root)
            faults += size_faults(root, folder, sorted(names))
            if measured == 'src':
                for name in sorted(names):
                    faults += layer_faults(root, os.path.relpath(f'{folder}/{name}', 'src'))
                    sources += 1
    return faults if sources else [f'no sources below {os.path.join(root, "src")}']


def main():
    faults = check(sys.argv[1] if len(sys.argv) > 1 else os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
    for fault in faults:
        print(fault)
    sys.exit(bool(faults))


if __name__ == '__main__':
    main()
