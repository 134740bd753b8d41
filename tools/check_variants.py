#!/usr/bin/env python3
"""Checks two properties of the library's objects that keep a variant's code off processors that cannot run it.

  check_variants.py --arch x86-64 px=@px.txt h9=first.o,second.o common=@common.txt

Each argument names a variant, or `common` for the code outside the variants, and its objects: paths with commas between
them, or @FILE with one path a line.

(a) A variant defines no global symbol outside its namespace. The linker keeps one of several weak definitions of the same
    name; were it the one compiled for AVX, px would run it too.
(b) Its code holds no instruction above its level (instruction_levels.py).
"""

import argparse
import os
import re
import subprocess
import sys

import instruction_levels

MAX_LINES = 20  # of the report, for each variant

# What the disassembler prints before a mnemonic.
PREFIXES = frozenset(
    "addr16 addr32 data16 lock notrack rep repnz repz cs ds es fs gs ss rex rex.B rex.R rex.W rex.WB rex.WR rex.WRB "
    "rex.WRX rex.WRXB rex.WX rex.WXB rex.RB rex.RX rex.RXB rex.X rex.XB".split()
)

# In position-independent i386 code the compiler reads the program counter with these. Every object brings its own and the
# linker keeps one, so their code must suit every processor.
MERGED_BY_DESIGN = re.compile(r"__x86\.get_pc_thunk\.")

# A constructor of static objects.
RUNS_AT_LOAD = re.compile(r"_GLOBAL__sub_I")

FORMATS = {"i386": "elf32-i386", "x86-64": "elf64-x86-64"}


class Part:
    """One variant, or the common code: its objects, what was counted in them and the faults that were found."""

    def __init__(self, name, objects):
        self.name = name
        self.objects = objects
        self.symbols = 0
        self.instructions = 0
        self.faults = []  # (object, symbol, what is wrong); object and symbol may be empty
        self.codeFaults = {}  # (object, symbol, mnemonic, extension): [first instruction, count]


def InNamespace(symbol, variant):
    """Whether a mangled name belongs to orbs::VARIANT. The demangled one would not tell: for a template it begins with the
    result type."""
    entity = r"_Z(G[VR]|T[VTISHW]|T[hv]n?\d+_(n?\d+_)?)?Z*N[rVK]*[RO]?"
    return re.match(f"{entity}4orbs{len(variant)}{variant}", symbol) is not None


def CheckSymbols(part, nm):
    lines = Run([nm, "-A", "-P", "-g", "--defined-only", *part.objects]).splitlines()
    for line in lines:
        path, _, rest = line.rpartition(": ")
        symbol, kind = rest.split()[:2]
        part.symbols += 1
        if part.name == "common" or InNamespace(symbol, part.name) or MERGED_BY_DESIGN.match(symbol):
            continue
        binding = {"W": "weak", "V": "weak", "u": "unique"}.get(kind, "strong")
        part.faults.append((path, symbol, f"{binding} symbol outside orbs::{part.name}"))


def CheckCode(part, architecture, objdump):
    base = instruction_levels.Base(architecture)
    allowed = instruction_levels.Allowed(architecture, part.name)
    path, symbol, held = "", "", allowed
    command = [objdump, "-d", "-w", "-M", "intel", *part.objects]
    with subprocess.Popen(command, stdout=subprocess.PIPE, text=True) as process:
        for line in process.stdout:
            fields = line.split("\t")  # address, bytes, instruction
            if len(fields) >= 3:
                text = fields[2].strip()
                mnemonic, _, operands = text.partition(" ")
                while mnemonic in PREFIXES:
                    mnemonic, _, operands = operands.strip().partition(" ")
                part.instructions += 1
                # A prefix by itself is one that the next instruction has no room for.
                extension = instruction_levels.Classify(mnemonic, operands.strip(), fields[1]) if mnemonic else "i486"
                if extension not in held:
                    fault = part.codeFaults.setdefault((path, symbol, mnemonic, extension), [text, 0])
                    fault[1] += 1
            elif line.endswith(">:\n"):
                symbol = line[line.index("<") + 1 : -3]
                held = base if MERGED_BY_DESIGN.match(symbol) else allowed
                if RUNS_AT_LOAD.match(symbol) and not allowed <= base and part.name != "common":
                    part.faults.append((path, symbol, "would run on every processor when the library is loaded"))
            elif "file format " in line:
                path, _, found = line.strip().partition(":     file format ")
                symbol, held = "", allowed
                if found != FORMATS[architecture]:
                    part.faults.append((path, "", f"is {found}, not {FORMATS[architecture]}"))
    if process.returncode != 0:
        sys.exit(f"{objdump} failed on the objects of {part.name}")


def Run(command, **options):
    result = subprocess.run(command, stdout=subprocess.PIPE, text=True, **options)
    if result.returncode != 0:
        sys.exit(f"{command[0]} failed")
    return result.stdout


def Demangle(symbols):
    try:
        return Run(["c++filt"], input="".join(f"{symbol}\n" for symbol in symbols)).splitlines()
    except FileNotFoundError:  # it only makes the report easier to read
        return symbols


def Faults(part):
    """The lines of the report, without a limit."""
    faults = list(part.faults)
    if part.instructions == 0 or (part.symbols == 0 and part.name != "common"):
        faults.append(("", "", "nothing to check: no instructions or no symbols"))
    for (path, symbol, _, extension), (instruction, count) in part.codeFaults.items():
        times = f", {count} times" if count > 1 else ""
        faults.append((path, symbol, f"'{instruction}' needs {extension}{times}"))
    names = Demangle([symbol for _, symbol, _ in faults])
    return [": ".join(filter(None, (path, name, text))) for (path, _, text), name in zip(faults, names)]


def Check(part, architecture, nm, objdump):
    """Checks one part and prints its report: one line if all is well."""
    if not part.objects:
        print(f"{part.name}: FAULT: no objects")
        return False
    CheckSymbols(part, nm)
    CheckCode(part, architecture, objdump)
    counts = f"{len(part.objects)} objects, {part.symbols} symbols, {part.instructions} instructions"
    faults = Faults(part)
    if not faults:
        print(f"{part.name}: ok: {counts}")
        return True
    lines = [f"{part.name}: FAULT: {counts}, {len(faults)} faults"] + [f"{part.name}: {fault}" for fault in faults]
    if len(lines) > MAX_LINES:
        left = len(lines) - MAX_LINES + 1
        lines[MAX_LINES - 1 :] = [f"{part.name}: and {left} more"]
    print("\n".join(lines))
    return False


def ParsePart(argument):
    name, isPair, objects = argument.partition("=")
    if not isPair or name not in instruction_levels.PARTS:
        raise argparse.ArgumentTypeError(f"'{argument}' does not begin with one of {instruction_levels.PARTS} and =")
    if objects.startswith("@"):
        with open(objects[1:], encoding="utf-8") as file:
            return Part(name, [line.strip() for line in file if line.strip()])
    return Part(name, [path for path in objects.split(",") if path])


def Main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--arch", required=True, choices=instruction_levels.ARCHITECTURES)
    parser.add_argument("--nm", default="nm")
    parser.add_argument("--objdump", default="objdump")
    parser.add_argument("parts", nargs="+", type=ParsePart, metavar="NAME=OBJECTS")
    arguments = parser.parse_args()
    os.environ["LC_ALL"] = "C"  # the tools' words are read here
    results = [Check(part, arguments.arch, arguments.nm, arguments.objdump) for part in arguments.parts]
    return 0 if all(results) else 1


if __name__ == "__main__":
    sys.exit(Main())
