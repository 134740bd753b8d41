"""Which extension an instruction belongs to, and which extensions each variant may use.

The names are those of objdump's Intel syntax, which carries no operand-size suffixes. An instruction that no table here
knows is a fault: a mnemonic passes because somebody has looked up its level, never because nobody has.
"""

import re

UNKNOWN = "an extension unknown to instruction_levels.py"

# Conditions as the disassembler spells them.
_CONDITIONS = "a ae b be e g ge l le ne no np ns o p s".split()


def _Spread(prefixes, suffixes):
    return [prefix + suffix for prefix in prefixes.split() for suffix in suffixes]


# General and x87 instructions, by the first processor that has them. Instructions of system code and those that no
# compiler emits are left out on purpose.
_GENERAL = {
    "i486": """
        adc add and bsf bsr bswap bt btc btr bts call cbw cdq clc cld cmc cmp cmps cmpxchg cwd cwde dec div enter idiv
        imul inc int3 jcxz jecxz jmp jrcxz lea leave lods loop loope loopne mov movs movsx movzx mul neg nop not or pop
        popf push pushf rcl rcr ret rol ror sar sbb scas shl shld shr shrd stc std stos sub test xadd xchg xlat xor
        f2xm1 fabs fadd faddp fchs fclex fcom fcomp fcompp fcos fdecstp fdiv fdivp fdivr fdivrp ffree fiadd ficom ficomp
        fidiv fidivr fild fimul fincstp finit fist fistp fisub fisubr fld fld1 fldcw fldenv fldl2e fldl2t fldlg2
        fldln2 fldpi fldz fmul fmulp fnclex fninit fnop fnsave fnstcw fnstenv fnstsw fpatan fprem fprem1 fptan frndint
        frstor fscale fsin fsincos fsqrt fst fstcw fstenv fstp fstsw fsub fsubp fsubr fsubrp ftst fucom fucomp fucompp
        fwait fxam fxch fxtract fyl2x fyl2xp1
    """.split() + _Spread("j set", _CONDITIONS)
    # ud2 came with the i686 but exists to fault, which an i486 does with it too. pause is a nop with a prefix that
    # older processors ignore.
    + ["ud2", "pause"]
    # tzcnt is bsf with a prefix that processors without BMI1 ignore. Compilers write it on every level ("rep bsf")
    # since it is the faster one where it exists; the two differ for zero alone, where the built-in that compiles to it
    # has no defined result. lzcnt, made from bsr in the same way, gives another result for every argument.
    + ["tzcnt"],
    "i586": "cmpxchg8b rdtsc".split(),
    # endbr is a multi-byte nop to processors that do not know it.
    "i686": "endbr32 endbr64 fcomi fcomip fucomi fucomip".split()
    + _Spread("cmov", _CONDITIONS)
    + _Spread("fcmov", "b be e nb nbe ne nu u".split()),
    "x86-64": "cdqe cqo movabs movsxd".split(),
    # The first 64-bit processors dropped these two and the next brought them back.
    "LAHF": "lahf sahf".split(),
    "CX16": ["cmpxchg16b"],
    "CPUID": "cpuid xgetbv".split(),
    "MMX": ["emms"],
    "3DNow": "femms prefetch prefetchw".split(),
    "SSE": "ldmxcsr prefetchnta prefetcht0 prefetcht1 prefetcht2 sfence stmxcsr".split(),
    "SSE2": "lfence mfence movnti".split(),
    "SSE3": ["fisttp"],
    "MOVBE": ["movbe"],
    "SSE4.2": ["crc32"],
    "POPCNT": ["popcnt"],
    "LZCNT": ["lzcnt"],
    "BMI1": "andn bextr blsi blsmsk blsr".split(),
    "BMI2": "bzhi mulx pdep pext rorx sarx shlx shrx".split(),
    "ADX": "adcx adox".split(),
}

# Instructions on xmm registers in the encoding of SSE.
_COMPARISONS = "eq lt le unord neq nlt nle ord".split()
_SSE = {
    "SSE": """
        addps addss andnps andps cmpps cmpss comiss cvtsi2ss cvtss2si cvttss2si divps divss maxps maxss minps minss
        movaps movhlps movhps movlhps movlps movmskps movntps movss movups mulps mulss orps rcpps rcpss rsqrtps rsqrtss
        shufps sqrtps sqrtss subps subss ucomiss unpckhps unpcklps xorps
    """.split()
    + _Spread("cmp", _Spread(" ".join(_COMPARISONS), ["ps", "ss"])),
    "SSE2": """
        addpd addsd andnpd andpd cmppd cmpsd comisd cvtdq2pd cvtdq2ps cvtpd2dq cvtpd2ps cvtps2dq cvtps2pd cvtsd2si
        cvtsd2ss cvtsi2sd cvtss2sd cvttpd2dq cvttps2dq cvttsd2si divpd divsd maskmovdqu maxpd maxsd minpd minsd movapd
        movd movdqa movdqu movhpd movlpd movmskpd movntdq movntpd movq movsd movupd mulpd mulsd orpd shufpd sqrtpd
        sqrtsd subpd subsd ucomisd unpckhpd unpcklpd xorpd
        packssdw packsswb packuswb paddb paddd paddq paddsb paddsw paddusb paddusw paddw pand pandn pavgb pavgw pcmpeqb
        pcmpeqd pcmpeqw pcmpgtb pcmpgtd pcmpgtw pextrw pinsrw pmaddwd pmaxsw pmaxub pminsw pminub pmovmskb pmulhuw
        pmulhw pmullw pmuludq por psadbw pshufd pshufhw pshuflw pslld pslldq psllq psllw psrad psraw psrld psrldq psrlq
        psrlw psubb psubd psubq psubsb psubsw psubusb psubusw psubw punpckhbw punpckhdq punpckhqdq punpckhwd punpcklbw
        punpckldq punpcklqdq punpcklwd pxor
    """.split()
    + _Spread("cmp", _Spread(" ".join(_COMPARISONS), ["pd", "sd"])),
    "SSE3": "addsubpd addsubps haddpd haddps hsubpd hsubps lddqu movddup movshdup movsldup".split(),
    "SSSE3": """
        pabsb pabsd pabsw palignr phaddd phaddsw phaddw phsubd phsubsw phsubw pmaddubsw pmulhrsw pshufb psignb psignd
        psignw
    """.split(),
    "SSE4.1": """
        blendpd blendps blendvpd blendvps dppd dpps extractps insertps movntdqa mpsadbw packusdw pblendvb pblendw
        pcmpeqq pextrb pextrd pextrq phminposuw pinsrb pinsrd pinsrq pmaxsb pmaxsd pmaxud pmaxuw pminsb pminsd pminud
        pminuw pmuldq pmulld ptest roundpd roundps roundsd roundss
    """.split()
    + _Spread("pmovsx pmovzx", "bd bq bw dq wd wq".split()),
    "SSE4.2": "pcmpestri pcmpestrm pcmpgtq pcmpistri pcmpistrm".split(),
}

# VEX instructions that no SSE instruction with a v before it explains.
_VEX_ONLY = {
    "AVX": """
        vbroadcastf128 vbroadcastsd vbroadcastss vextractf128 vinsertf128 vldmxcsr vmaskmovpd vmaskmovps vperm2f128
        vpermilpd vpermilps vstmxcsr vtestpd vtestps vzeroall vzeroupper
    """.split(),
    "AVX2": """
        vbroadcasti128 vextracti128 vgatherdpd vgatherdps vgatherqpd vgatherqps vinserti128 vpblendd vpbroadcastb
        vpbroadcastd vpbroadcastq vpbroadcastw vperm2i128 vpermd vpermpd vpermps vpermq vpgatherdd vpgatherdq vpgatherqd
        vpgatherqq vpmaskmovd vpmaskmovq vpsllvd vpsllvq vpsravd vpsrlvd vpsrlvq
    """.split(),
    "F16C": "vcvtph2ps vcvtps2ph".split(),
    "FMA": _Spread("v", _Spread("fmadd fmsub fnmadd fnmsub", _Spread("132 213 231", "pd ps sd ss".split())))
    + _Spread("v", _Spread("fmaddsub fmsubadd", _Spread("132 213 231", ["pd", "ps"]))),
}

_VEX_COMPARISON = re.compile(
    r"vcmp(eq|lt|le|unord|neq|nlt|nle|ord|nge|ngt|false|ge|gt|true)(_(o|u)?(q|s))?(p|s)(d|s)$"
)


def _ByMnemonic(table):
    return {mnemonic: extension for extension, mnemonics in table.items() for mnemonic in mnemonics}


_GENERAL = _ByMnemonic(_GENERAL)
_SSE = _ByMnemonic(_SSE)
_VEX_ONLY = _ByMnemonic(_VEX_ONLY)

_MMX_OPERAND = re.compile(r"\bmm[0-7]\b")
_MASK_OPERAND = re.compile(r"\bk[0-7]\b")
# The first byte behind segment and address-size prefixes, which is EVEX's alone since BOUND is not in the tables. The text
# would not tell: vpsrad from memory by a constant reads like AVX2 and is AVX-512.
_EVEX_CODE = re.compile(r"((26|2e|36|3e|64|65|67) )*62 ")


def Classify(mnemonic, operands, code):
    """The extension that an instruction needs; its operands in objdump's Intel syntax and its bytes in hexadecimal."""
    extension = _GENERAL.get(mnemonic)
    if extension is not None:
        # The nop with an operand (0F 1F) is younger than the single byte.
        return "i686" if mnemonic == "nop" and operands else extension

    operands = operands.partition("#")[0].partition("<")[0]
    if _MMX_OPERAND.search(operands):
        return "MMX"
    if _EVEX_CODE.match(code) or _MASK_OPERAND.search(operands):
        return "AVX-512"
    if mnemonic in _SSE:
        # SSE4.1 gave pextrw a memory operand.
        return "SSE4.1" if mnemonic == "pextrw" and "PTR" in operands else _SSE[mnemonic]
    if mnemonic in _VEX_ONLY:
        # AVX broadcasts from memory, and from a register only with AVX2.
        if mnemonic in ("vbroadcastss", "vbroadcastsd") and "PTR" not in operands:
            return "AVX2"
        return _VEX_ONLY[mnemonic]
    if _VEX_COMPARISON.match(mnemonic):
        return "AVX"
    if mnemonic[:1] == "v" and mnemonic[1:] in _SSE:
        # AVX widened floating point to 256 bits, AVX2 the integers.
        integer = mnemonic.startswith("vp") and mnemonic != "vptest" or mnemonic in ("vmovntdqa", "vmpsadbw")
        return "AVX2" if integer and "ymm" in operands else "AVX"
    return UNKNOWN


# What every processor of an architecture has: the level of px. MMX is left out for all: it shares its registers with x87,
# which px computes in.
_BASE = {
    "i386": {"i486", "LAHF"},
    "x86-64": {"i486", "i586", "i686", "x86-64", "SSE", "SSE2"},
}

# Each vector level, by what the selection of variants has asked the processor for. A variant's compiler flags may imply
# more than that: -mavx lets the compiler use POPCNT and SSE4.2, which nobody has tested for.
_W7 = {"i586", "i686", "SSE", "SSE2"}
_V8 = _W7 | {"SSE3", "SSSE3"}
_P8 = _V8 | {"SSE4.1"}
_G9 = _P8 | {"AVX"}
_ADDED = {
    "common": {"CPUID"},
    "px": set(),
    "w7": _W7,
    "v8": _V8,
    "s8": _V8 | {"MOVBE"},
    "p8": _P8,
    "g9": _G9,
    "h9": _G9 | {"AVX2", "FMA", "BMI1", "BMI2"},
}

ARCHITECTURES = tuple(_BASE)
PARTS = tuple(_ADDED)


def Base(architecture):
    return frozenset(_BASE[architecture])


def Allowed(architecture, part):
    return frozenset(_BASE[architecture] | _ADDED[part])
