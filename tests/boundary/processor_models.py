#!/usr/bin/env python3
"""Runs show_variant on emulated processors, one row of the table each, and compares what the library selects.

usage: processor_models.py PROGRAM QEMU EXPECTED_VENDOR VARIANT...

The emulator refuses instructions that the model lacks, so a kernel above its level ends in a signal. Exit status 77: skipped.
"""
import os
import shutil
import subprocess
import sys

NAMES = {
    'px': 'orbSP PX (px)', 'w7': 'orbSP SSE2 (w7)', 'v8': 'orbSP SSSE3 (v8)', 's8': 'orbSP Wren (s8)',
    'p8': 'orbSP SSE4.1/4.2 (p8)', 'p8+': 'orbSP SSE4.1/4.2 (p8)+', 'g9': 'orbSP AVX (g9)', 'h9': 'orbSP AVX2 (h9)',
}

# Model, variant (with "+" where SSE4.2 is named), whether it can run 64-bit code.
MODELS = [
    ('pentium2', 'px', False),               # no SSE at all, so that every vector instruction is refused
    ('pentium3', 'px', False),               # the emulator does not tell SSE from SSE2 here
    ('coreduo', 'w7', False),
    ('coreduo,+movbe', 'w7', False),         # MOVBE without SSSE3
    ('qemu64', 'w7', True),
    ('core2duo', 'v8', True),
    ('n270', 's8', False),
    ('core2duo,+movbe', 's8', True),
    ('Penryn', 'p8', True),                  # SSE4.1 without SSE4.2
    ('Nehalem', 'p8+', True),
    ('SandyBridge,-xsave', 'p8+', True),     # AVX that the system has not enabled
    ('SandyBridge', 'g9', True),
    ('Haswell,-bmi2', 'g9', True),
    ('Haswell', 'h9', True),
]
STATUS_OK, STATUS_NO_CPU_SUPPORT = 0, 20
SKIPPED = 77


def run(program, qemu, model, vendor):
    result = subprocess.run([qemu, '-cpu', f'{model},vendor={vendor}', program], capture_output=True, text=True)
    # Warnings about features that the emulator leaves out end up in stderr too.
    return result.stdout.strip() or f'exit status {result.returncode}: {result.stderr.strip()[-300:]}'


def main():
    program, qemu, vendor, *variants = sys.argv[1:]
    if shutil.which(qemu) is None:
        print(f'skipped: {qemu} is not installed (Debian package qemu-user)')
        return SKIPPED
    is64 = os.path.basename(qemu) == 'qemu-x86_64'
    # The C library refuses to start on a vendor that it does not know, so the foreign one is a known one.
    foreign = 'GenuineIntel' if vendor == 'AuthenticAMD' else 'AuthenticAMD'
    failures = checked = 0
    for model, variant, can64 in MODELS:
        code = variant.rstrip('+')
        if (is64 and not can64) or code not in variants:
            continue
        for maker, status in ((vendor, STATUS_OK), (foreign, STATUS_NO_CPU_SUPPORT)):
            expected = f'{status} {code} {NAMES[variant]}'
            found = run(program, qemu, model, maker)
            good = found == expected
            print(f'{"ok  " if good else "FAIL"} {model}, {maker}: {found}' + ('' if good else f'; expected {expected}'))
            failures += not good
            checked += 1
    if checked == 0:
        print('skipped: none of the variants that this emulator can reach is built')
        return SKIPPED
    return 1 if failures else 0


if __name__ == '__main__':
    sys.exit(main())
