#!/usr/bin/env python3
"""Plants faults in made-up sources and sees that check_layers finds each of them, and nothing in clean ones."""

import os
import tempfile
import unittest

import check_layers

CLEAN = {
    'src/boundary/init.cpp': '#include "core/variants.h"\n#include <cpuid.h>\n#include "boundary/processor/cache.h"\n',
    'src/core/memory.cpp': '#include "core/memory.h"\n#include "orbs90lgc/types.h"\n#include <cstdlib>\n',
    'src/simd/blocks.h': '#include "core/variant.h"\n#include "simd/simd.h"\n',
    'src/toolkit/fill.cpp': '#include "boundary/processor/cache.h"\n#include "simd/blocks.h"\n',
    'src/transform/engine/real.cpp': '#include "transform/fft.h"\n#include "toolkit/toolkit.h"\n',
    'src/fir/float/filter_exports.cpp': '#define ORBS_SLICE "boundary/exports/fir.def"\n'
                                        '#include "boundary/declare_exports.h"\n'
                                        '#include "fir/ring.h"\n#include "transform/fft.h"\n',
}

# Path, what it holds, what the report says of it.
PLANTED = [
    ('src/core/scaling.h', '#include "simd/simd.h"\n', 'core must not include simd/simd.h'),
    ('src/core/scaling.h', '  #  include <simd/simd.h>\n', 'core must not include simd/simd.h'),
    ('src/simd/simd.h', '#include "toolkit/toolkit.h"\n', 'simd must not include toolkit/toolkit.h'),
    ('src/toolkit/fill.cpp', '#include "boundary/dispatch.h"\n', 'toolkit must not include boundary/dispatch.h'),
    ('src/toolkit/fill.cpp', '#include "fir/ring.h"\n', 'toolkit must not include fir/ring.h'),
    ('src/boundary/init.cpp', '#include "gen/generate.h"\n', 'boundary must not include gen/generate.h'),
    ('src/gen/tone/tone.h', '#include "boundary/processor/cache.h"\n',
     'gen must not include boundary/processor/cache.h'),
    ('src/gen/tone/tone.h', '#include "transform/fft.h"\n', 'gen must not include transform/fft.h'),
    ('src/fir/float/block.h', '#include "transform/engine/plan.h"\n', 'fir must not include transform/engine/plan.h'),
    ('src/iir/run.h', '#include "fir/ring.h"\n', 'iir must not include fir/ring.h'),
    ('src/iir/run.h', '#include "tests/support/variants.h"\n', 'iir must not include tests/support/variants.h'),
    ('src/iir/run.h', '#include "state.h"\n', 'iir must not include state.h'),
    ('src/iir/init.cpp', '#define ORBS_SLICE "boundary/exports/gen.def"\n', 'iir must not declare the exports of gen'),
    ('src/video/scale.h', '', 'video is no layer; tools/check_layers.py lists them'),
    ('src/core/long.h', '\n' * 501, '501 lines, of at most 500 a file'),
    ('tests/core/long_test.cpp', '\n' * 501, '501 lines, of at most 500 a file'),
]


class CheckLayers(unittest.TestCase):
    def faults(self, *sources):
        with tempfile.TemporaryDirectory() as root:
            for path, text in sources:
                path = os.path.join(root, path)
                os.makedirs(os.path.dirname(path), exist_ok=True)
                with open(path, 'w', encoding='utf-8') as file:
                    file.write(text)
            return check_layers.check(root)

    def test_clean_sources(self):
        self.assertEqual(self.faults(*CLEAN.items()), [])
        self.assertEqual(self.faults(*CLEAN.items(), ('src/core/long.h', '\n' * 500)), [])

    def test_planted_faults(self):
        for path, text, fault in PLANTED:
            with self.subTest(path=path, fault=fault):
                self.assertEqual(self.faults(*{**CLEAN, path: text}.items()), [f'{path}: {fault}'])

    def test_folders(self):
        files = [(f'src/core/part{i}.h', '') for i in range(15)]
        self.assertEqual(self.faults(*files), [])
        self.assertEqual(self.faults(*files, ('src/core/one_more.h', '')),
                         ['src/core: 16 files, of at most 15 a folder'])

    def test_nothing_to_check_is_a_fault(self):
        self.assertEqual(len(self.faults(('tests/a.cpp', ''))), 1)


if __name__ == '__main__':
    unittest.main()
