#!/usr/bin/env python3
"""Plants faults in tiny objects and sees that check_objects finds each of them, and nothing in clean ones."""

import argparse
import os
import subprocess
import tempfile
import unittest

ENVIRONMENT = None  # the command line: checker, compiler

# What a clean object may hold: every kind of global symbol, inside the namespace. On i386 the variable makes the compiler
# read the program counter through a routine that the objects share.
CLEAN = """
namespace orbs::{variant} {{
extern int variable;
template <class T> struct Holder {{ static T value; }};
template <class T> T Holder<T>::value = 1;
template <class T> __attribute__((noinline)) T Twice(T x) {{ return 2 * x; }}
inline int& Counter() {{ static int counter = 0; return counter; }}
struct Shape {{
  virtual int Sides() const;
  __attribute__((noinline)) int Corners() const {{ return Sides(); }}
}};
int Shape::Sides() const {{ return 4; }}
namespace {{ __attribute__((noinline)) int Hidden(int x) {{ return x + 1; }} }}
int Planted(const Shape& s) {{ return Twice(variable) + Holder<int>::value + Counter()++ + s.Corners() + Hidden(7); }}
void Instructions() {{ {instructions} }}
}}
"""

# Symbols: variant, the source that is added to the clean one, what the report must say.
SYMBOLS = [
    # The linker could hand this copy of the template to px.
    ("h9", "namespace standard { template <class T> __attribute__((noinline)) T Larger(T a, T b) { return a < b ? b : a; } }"
           "namespace orbs::h9 { int Use(int a, int b) { return standard::Larger(a, b); } }",
     "int standard::Larger<int>(int, int): weak symbol outside orbs::h9"),
    ("h9", "namespace standard { template <class T> __attribute__((noinline)) T Same(T x) { return x; } }"
           "namespace orbs::h9 { struct Own { int x[9]; }; Own Use(Own o) { return standard::Same(o); } }",
     "orbs::h9::Own standard::Same<orbs::h9::Own>(orbs::h9::Own): weak symbol outside orbs::h9"),
    ("w7", "inline int& Shared() { static int shared = 0; return shared; }"
           "namespace orbs::w7 { int& Use() { return Shared(); } }",
     "Shared()::shared"),
    ("px", "int Stray(int x) { return x + 1; }", "Stray(int): strong symbol outside orbs::px"),
    ("px", "namespace orbs { int stray = 1; }", "orbs::stray: strong symbol outside orbs::px"),
    ("px", 'namespace orbs::px { extern "C" int Stray(int x) { return x + 1; } }', "Stray: strong symbol outside orbs::px"),
    ("h9", "namespace orbs::g9 { int Other() { return 9; } }", "orbs::g9::Other(): strong symbol outside orbs::h9"),
    ("h9", "int Outside(); namespace orbs::h9 { extern int atLoad; int atLoad = Outside(); }",
     "would run on every processor that loads the library"),
]

# Instructions: architecture, variant, those of its level, and those above it with the extension to be reported.
LEVELS = [
    ("x86-64", "px",
     ["cmove %ecx,%eax", "nopl (%rax)", "rep bsf %ecx,%eax", "fcomi %st(1),%st", "sqrtps %xmm1,%xmm0",
      "pextrw $1,%xmm0,%eax", "pause", "ud2", "endbr64"],
     {"vaddps %xmm0,%xmm1,%xmm2": "AVX", "fisttpll (%rax)": "SSE3X87", "haddps %xmm1,%xmm0": "SSE3", "cpuid": "CPUID",
      "paddb %mm1,%mm0": "MMX", "cvtpi2ps (%rax),%xmm0": "MMX", "sahf": "LAHF", "popcnt %ecx,%eax": "POPCNT",
      "hlt": "system code", "in $1,%al": "system code", "lretq": "system code",
      ".byte 0x0f,0x04": "no known instruction"}),
    ("x86-64", "common", ["cpuid", "xgetbv", "movups %xmm0,(%rsp)"], {"pshufb %xmm1,%xmm0": "SSSE3"}),
    ("x86-64", "w7", ["pmuludq %xmm1,%xmm0"], {"movddup %xmm1,%xmm0": "SSE3"}),
    ("x86-64", "v8", ["pshufb %xmm1,%xmm0", "addsubps %xmm1,%xmm0"],
     {"movbe (%rax),%ecx": "MOVBE", "pmovsxwd %xmm1,%xmm0": "SSE4", "pextrw $1,%xmm0,(%rax)": "SSE4"}),
    ("x86-64", "s8", ["movbe (%rax),%ecx"], {"pminsd %xmm1,%xmm0": "SSE4"}),
    ("x86-64", "p8", ["pmulld %xmm1,%xmm0", "ptest %xmm1,%xmm0"],
     {"pcmpgtq %xmm1,%xmm0": "SSE42", "crc32b %cl,%eax": "SSE42", "popcnt %ecx,%eax": "POPCNT",
      "movbe (%rax),%ecx": "MOVBE"}),
    ("x86-64", "g9",
     ["vaddps %ymm0,%ymm1,%ymm2", "vpaddd %xmm0,%xmm1,%xmm2", "vpcmpgtq %xmm0,%xmm1,%xmm2", "vptest %ymm0,%ymm1",
      "vcmpneq_oqpd %ymm0,%ymm1,%ymm2", "vmovdqu (%rax),%ymm0", "vpermilps $1,%ymm0,%ymm1", "vbroadcastss (%rax),%ymm0",
      "vzeroupper"],
     {"vpaddd %ymm0,%ymm1,%ymm2": "AVX2", "vfmadd231ps %ymm0,%ymm1,%ymm2": "FMA", "vcvtph2ps %xmm0,%ymm1": "F16C",
      "vbroadcastss %xmm0,%ymm1": "AVX2", "vpbroadcastb %xmm0,%xmm1": "AVX2", "vinserti128 $1,%xmm0,%ymm1,%ymm2": "AVX2",
      "vpsllvd %xmm0,%xmm1,%xmm2": "AVX2", "vmovntdqa (%rax),%ymm0": "AVX2", "andn %eax,%ecx,%edx": "BMI1",
      "shlx %eax,%ecx,%edx": "BMI2", "popcnt %ecx,%eax": "POPCNT", "crc32b %cl,%eax": "SSE42"}),
    ("x86-64", "h9",
     ["vpaddd %ymm0,%ymm1,%ymm2", "vfmaddsub132pd %ymm0,%ymm1,%ymm2", "andn %eax,%ecx,%edx", "shlx %eax,%ecx,%edx",
      "vpgatherdd %ymm0,(%rax,%ymm1),%ymm2", "vzeroupper"],
     {"vaddps %zmm0,%zmm1,%zmm2": "AVX512F_512", "vaddps %ymm0,%ymm1,%ymm20": "AVX512F_256",
      "kmovw %eax,%k1": "AVX512F_KOP",
      "vpsrld $3,(%rax),%ymm0": "AVX512F_256", "vcvtph2ps %xmm0,%ymm1": "F16C", "lzcnt %ecx,%eax": "LZCNT",
      "movbe (%rax),%ecx": "MOVBE", "adcx %ecx,%eax": "ADOX_ADCX", "vpclmulqdq $1,%xmm0,%xmm1,%xmm2": "PCLMULQDQ"}),
    ("i386", "px", ["fucompp", "fnstsw %ax", "sahf", "bswap %eax", "xchg %ax,%ax", "rep bsf %ecx,%eax"],
     {"movss %xmm0,(%eax)": "SSE", "cvttsd2si %xmm0,%eax": "SSE2", "cmovne %ecx,%eax": "CMOV", "nopl (%eax)": "FAT_NOP",
      "fcomi %st(1),%st": "PPRO", "fcmove %st(1),%st": "FCMOV", "emms": "PENTIUMMMX", "cmpxchg8b (%eax)": "PENTIUMREAL",
      "prefetchnta (%eax)": "SSE_PREFETCH", "bound %eax,(%ecx)": "system code"}),
    ("i386", "common", ["cpuid", "xgetbv"], {"movups %xmm0,(%esp)": "SSE"}),
    ("i386", "w7", ["cmovne %ecx,%eax", "addsd %xmm1,%xmm0"], {"pabsd %xmm1,%xmm0": "SSSE3"}),
    ("i386", "h9", ["vpermq $1,%ymm0,%ymm1", "vzeroupper"], {"vaddps %zmm0,%zmm1,%zmm2": "AVX512F_512"}),
]

# The code that a compiler moves out of a function, which still belongs to it.
COLD = ".section .text.unlikely; .type {name}.cold,@function; {name}.cold: CODE; .text"


def WithCold(code, cold):
    return f"{code}; {COLD.replace('CODE', cold)}"


# The stack on i386: functions that may stand, and functions with the alignment that they take for granted.
ALIGNED_STACK = [
    "push %ebp; mov %esp,%ebp; and $-16,%esp; sub $32,%esp; movaps %xmm0,(%esp); paddd -24(%ebp),%xmm0; leave; ret",
    "and $-32,%esp; vmovdqa %ymm0,(%esp); vmovdqa %xmm0,32(%esp); ret",
    "movups %xmm0,-16(%esp); lddqu -16(%esp),%xmm1; ret",
    "movss %xmm0,-4(%esp); movq %xmm0,-8(%esp); cvtps2pd -8(%esp),%xmm0; ret",
    "vmovups %xmm0,-16(%esp); vaddps -16(%esp),%xmm0,%xmm0; vpaddd -16(%esp),%xmm0,%xmm0; ret",
    "movaps (%eax),%xmm0; lea -16(%esp),%ecx; ret",
    "mov %eax,%ebp; movaps (%ebp),%xmm0; ret",  # a register like any other
    WithCold("and $-16,%esp; test %eax,%eax; je {name}.cold; ret", "movaps %xmm0,(%esp); ret"),
]
MISALIGNED_STACK = [
    ("movaps %xmm0,-16(%esp); ret", 16),
    ("addps 16(%esp),%xmm0; ret", 16),
    ("pand 16(%esp),%xmm0; ret", 16),
    ("mov %esp,%ebp; movdqa %xmm0,-24(%ebp); ret", 16),
    ("vmovaps %xmm2,(%esp); ret", 16),
    ("vmovntps %xmm2,(%esp); ret", 16),
    ("and $-8,%esp; movaps %xmm0,(%esp); ret", 16),
    ("and $-16,%esp; vmovdqa %ymm0,(%esp); ret", 32),
    (WithCold("test %eax,%eax; je {name}.cold; ret", "movaps %xmm0,(%esp); ret"), 16),
]

# Upper halves, on both targets: functions that may stand, and functions with the instruction that leaves them in use.
CLEAR_HALVES = [
    "vaddps %ymm0,%ymm1,%ymm2; vzeroupper; ret",
    "vaddps %ymm0,%ymm1,%ymm2; vzeroall; jmp Other@PLT",
    "vaddps %xmm0,%xmm1,%xmm2; vmovups %ymm0,(%eax); ret",
    "vmovups (%eax),%ymm0; vzeroupper; call Other@PLT; ret",
    "1: vmovups (%eax),%ymm0; dec %eax; jne 1b; vzeroupper; ret",
    "test %eax,%eax; je 1f; vmovups (%eax),%ymm0; vzeroupper; 1: ret",
    "jmp 2f; 1: ret; 2: vmovups (%eax),%ymm0; vzeroupper; jmp 1b",
    "test %eax,%eax; je 1f; vmovups (%eax),%ymm0; ud2; 1: ret",
    # Jump tables, the cases with padding in front.
    "vmovups (%eax),%ymm0; jmp *%{a}; .p2align 4; vzeroupper; ret; .p2align 4; vzeroupper; ret",
    "jmp *%{a}; .p2align 4; vmovups (%eax),%ymm0; vzeroupper; ret; .p2align 4; ret",
    WithCold("vmovups (%eax),%ymm0; test %eax,%eax; je {name}.cold; vzeroupper; ret", "vzeroupper; ret"),
]
HALVES_IN_USE = [
    ("vaddps %ymm0,%ymm1,%ymm2; ret", "ret"),
    ("vzeroupper; vpermilps $1,%ymm0,%ymm1; ret", "ret"),
    ("vmovups (%eax),%ymm0; test %eax,%eax; je 1f; vzeroupper; 1: ret", "ret"),
    ("vmovups (%eax),%ymm0; test %eax,%eax; je 1f; ret; 1: vzeroupper; ret", "ret"),
    ("1: dec %eax; je 2f; vmovups (%eax),%ymm0; jmp 1b; 2: ret", "ret"),
    ("jmp 2f; 1: ret; 2: vmovups (%eax),%ymm0; dec %eax; je 1b; jmp 2b", "ret"),
    ("vmovups (%eax),%ymm0; call Other@PLT; ret", "call"),
    ("vmovups (%eax),%ymm0; call *(%{a}); ret", "call"),
    ("vmovups (%eax),%ymm0; jmp Other@PLT", "jmp"),
    ("vmovups (%eax),%ymm0; jne Other; vzeroupper; ret", "jnz"),
    ("vmovups (%eax),%ymm0; jmp *%{a}; .p2align 4", "jmp"),
    ("vmovups (%eax),%ymm0; jmp *%{a}; .p2align 4; vzeroupper; ret; .p2align 4; ret", "ret"),
    ("jmp *%{a}; .p2align 4; vzeroupper; ret; .p2align 4; vmovups (%eax),%ymm0; ret", "ret"),
    (WithCold("vmovups (%eax),%ymm0; test %eax,%eax; je {name}.cold; vzeroupper; ret", "ret"), "ret"),
]

# A vector that is passed by value has to arrive, so that compilers clear nothing on its way.
VECTORS_BY_VALUE = """
namespace orbs::g9 {
typedef float Vector __attribute__((vector_size(32), aligned(4)));
__attribute__((noinline)) Vector Twice(Vector x) { return x + x; }
void Caller(const Vector* x, Vector* result) { *result = Twice(*x); }
void Clean(const Vector* x, Vector* result) { *result = *x + *x; }
}
"""


def Assembly(architecture, functions):
    """A source with these bodies as the functions orbs::h9::Case0() and so on."""
    text = [".text"]
    for i, body in enumerate(functions):
        name = f"_ZN4orbs2h9{len(f'Case{i}')}Case{i}Ev"
        body = body.format(name=name, a={"i386": "eax", "x86-64": "rax"}[architecture])
        text += [f".p2align 4; .globl {name}; .type {name},@function", f"{name}: {body}"]
    return "\n".join(text) + "\n"


class CheckObjectsTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.object = os.path.join(folder.name, "planted.o")

    def Compile(self, architecture, source, language="c++", options=()):
        bits = {"i386": ["-m32", "-march=i486"], "x86-64": ["-m64"]}[architecture]
        if language == "c++":
            options = ["-std=c++17", "-O2", "-fPIC", "-fno-exceptions", "-fno-rtti", "-fno-threadsafe-statics",
                       *options]
        command = [ENVIRONMENT.compiler, *bits, *options, "-x", language, "-c", "-", "-o", self.object]
        subprocess.run(command, input=source, text=True, check=True)

    def Check(self, architecture, part):
        command = [ENVIRONMENT.checker, "--arch", architecture, f"{part}={self.object}"]
        result = subprocess.run(command, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        return result.returncode, result.stdout

    def CheckSource(self, architecture, part, source, **options):
        self.Compile(architecture, source, **options)
        return self.Check(architecture, part)

    def AssertClean(self, outcome):
        code, report = outcome
        self.assertEqual((code, len(report.splitlines())), (0, 1), report)

    def AssertFaults(self, outcome, faults):
        """That the report has a line for each of these regular expressions, in this order, and no other."""
        code, report = outcome
        lines = report.splitlines()
        self.assertEqual((code, len(lines)), (1, 1 + len(faults)), report)
        for line, fault in zip(lines[1:], faults):
            self.assertRegex(line, fault)

    def testSymbols(self):
        for part, planted, message in SYMBOLS:
            with self.subTest(planted=planted):
                code, report = self.CheckSource("x86-64", part, CLEAN.format(variant=part, instructions="") + planted)
                self.assertEqual(code, 1, report)
                self.assertIn(message, report)

    def testLevels(self):
        for architecture, part, allowed, planted in LEVELS:
            source = CLEAN.format(variant=part, instructions=" ".join(f'asm("{text}");' for text in allowed))
            with self.subTest(architecture=architecture, part=part):
                self.AssertClean(self.CheckSource(architecture, part, source))
                clear = "; vzeroupper" if part in ("g9", "h9") else ""  # so that the level is the only fault
                functions = [f'void Planted{i}() {{ asm("{text}{clear}"); }}' for i, text in enumerate(planted)]
                source = f"namespace orbs::{part} {{ {' '.join(functions)} }}"
                where = f"^{part}: {self.object}: orbs::{part}::"
                self.AssertFaults(
                    self.CheckSource(architecture, part, source),
                    [rf"{where}Planted{i}\(\): '.*' at 0x\w+ is above the level: {extension}$"
                     for i, extension in enumerate(planted.values())])

    def testStackAlignment(self):
        self.AssertClean(self.CheckSource("i386", "h9", Assembly("i386", ALIGNED_STACK), language="assembler"))
        bodies = [body for body, _ in MISALIGNED_STACK]
        self.AssertFaults(
            self.CheckSource("i386", "h9", Assembly("i386", bodies), language="assembler"),
            [rf"Case{i}\(\): '.*' at 0x\w+ on a stack that nobody aligns to {alignment} bytes$"
             for i, (_, alignment) in enumerate(MISALIGNED_STACK)])
        # The 64-bit calling convention is kept.
        self.AssertClean(self.CheckSource("x86-64", "h9", "_ZN4orbs2h94CaseEv: movaps %xmm0,-24(%rsp); ret\n"
                                          ".globl _ZN4orbs2h94CaseEv\n", language="assembler"))

    def testUpperHalves(self):
        for architecture in "x86-64", "i386":
            with self.subTest(architecture=architecture):
                self.AssertClean(
                    self.CheckSource(architecture, "h9", Assembly(architecture, CLEAR_HALVES), language="assembler"))
                bodies = [body for body, _ in HALVES_IN_USE]
                self.AssertFaults(
                    self.CheckSource(architecture, "h9", Assembly(architecture, bodies), language="assembler"),
                    [rf"Case{i}\(\): '{instruction}.*' at 0x\w+ leaves the function with 256-bit vectors in use$"
                     for i, (_, instruction) in enumerate(HALVES_IN_USE)])
                self.AssertFaults(
                    self.CheckSource(architecture, "g9", VECTORS_BY_VALUE, options=["-mavx", "-Wno-psabi"]),
                    [r"Twice\(.*'ret'", r"Caller\(.*'call "])

    def testPcThunks(self):
        name = "__x86.get_pc_thunk.ax"
        thunk = (f'asm(".section .text.{name}, \\"axG\\", @progbits, {name}, comdat\\n'
                 f'.globl {name}\\n{name}: cmove %ecx, %eax\\nret\\n.text");')
        # The linker merges them, so they must suit every processor.
        self.AssertFaults(self.CheckSource("i386", "w7", thunk + "namespace orbs::w7 { void Planted() {} }"),
                          [r"__x86\.get_pc_thunk\.ax: 'cmovz .*' at 0x0 is above the level: CMOV"])
        # And they leave vectors alone.
        body = f"vmovups (%ecx),%ymm0; call {name}; vzeroupper; ret"
        self.AssertClean(self.CheckSource("i386", "h9", Assembly("i386", [body]), language="assembler"))

    def testWhatCannotBeCheckedIsAFault(self):
        for architecture, source, message in [
            ("x86-64", "namespace orbs::w7 { extern const int table; const int table = 1; }", "nothing to check"),
            ("i386", "namespace orbs::w7 { void Planted() {} }", "is for another target: i386"),
        ]:
            with self.subTest(message=message):
                self.Compile(architecture, source)
                code, report = self.Check("x86-64", "w7")
                self.assertEqual(code, 1, report)
                self.assertIn(message, report)
        self.Compile("x86-64", "namespace orbs::w7 { void Planted() {} }")
        with open(self.object, "r+b") as file:
            file.truncate(os.path.getsize(self.object) - 1)
        self.assertEqual(self.Check("x86-64", "w7"), (2, f"check_objects: {self.object} is cut short\n"))
        os.remove(self.object)
        self.assertEqual(self.Check("x86-64", "w7"), (2, f"check_objects: {self.object} cannot be read\n"))

    def testReportIsShort(self):
        planted = " ".join(f"int Stray{i}() {{ return {i}; }}" for i in range(30))
        _, report = self.CheckSource("x86-64", "w7", planted)
        lines = report.splitlines()
        self.assertEqual(len(lines), 20)
        self.assertEqual(lines[-1], "w7: and 12 more")
        self.assertIn("30 faults", lines[0])


if __name__ == "__main__":
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--checker", required=True)
    parser.add_argument("--compiler", default="c++")
    ENVIRONMENT, rest = parser.parse_known_args()
    unittest.main(argv=["check_objects_test"] + rest)
