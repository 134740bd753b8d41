/* See checked_calls.h. Tests are linked so that their calls of an export arrive at its __wrap_ entry here. */

#include "tests/support/checked_calls/checked_calls.h"

    .hidden orbsAfterCall
    .hidden orbsHasAvx

    .text

#define FUNCTION_BEGIN(symbol) \
    .p2align 4; .type symbol, @function; symbol: .cfi_startproc
#define FUNCTION_END(symbol) \
    .cfi_endproc; .size symbol, . - symbol

#define COPIED_WORDS 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15

#ifdef __x86_64__

/* r11: the export, r10d: its place in the list; all else as the caller left it. Below the saved registers lie the copied
 * arguments (16 words), then the export's result, five registers and the flags as they were found, and both control words as
 * they were before. */
    FUNCTION_BEGIN(orbsCheckedCall)
    pushq %rbp
    .cfi_def_cfa_offset 16
    .cfi_offset rbp, -16
    movq %rsp, %rbp
    .cfi_def_cfa_register rbp
    pushq %rbx
    pushq %r12
    pushq %r13
    pushq %r14
    pushq %r15
    pushq %r10
    subq $192, %rsp
    .irp i, COPIED_WORDS
    movq 16 + 8 * \i(%rbp), %rax
    movq %rax, 8 * \i(%rsp)
    .endr
    cmpb $0, orbsHasAvx(%rip)
    je 1f
    vzeroupper
1:  movl $ORBS_KEPT_REGISTER, %ebx
    leaq 1(%rbx), %r12
    leaq 2(%rbx), %r13
    leaq 3(%rbx), %r14
    leaq 4(%rbx), %r15
    stmxcsr 184(%rsp)
    fnstcw 188(%rsp)
    call *%r11
    movq %rax, 128(%rsp)
    movq %rbx, 136(%rsp)
    movq %r12, 144(%rsp)
    movq %r13, 152(%rsp)
    movq %r14, 160(%rsp)
    movq %r15, 168(%rsp)
    pushfq
    popq 176(%rsp)
    cld
    movl -48(%rbp), %edi
    leaq 136(%rsp), %rsi
    call orbsAfterCall
    movq 128(%rsp), %rax
    addq $200, %rsp
    popq %r15
    popq %r14
    popq %r13
    popq %r12
    popq %rbx
    popq %rbp
    .cfi_def_cfa rsp, 8
    ret
    FUNCTION_END(orbsCheckedCall)

#define ORBS_EXPORT(family, result, name, ...)                   \
    .globl __wrap_legacy90orbs##name;                            \
    FUNCTION_BEGIN(__wrap_legacy90orbs##name);                   \
    movq __real_legacy90orbs##name@GOTPCREL(%rip), %r11;         \
    movl $orbsExport, %r10d;                                     \
    .set orbsExport, orbsExport + 1;                             \
    jmp orbsCheckedCall;                                         \
    FUNCTION_END(__wrap_legacy90orbs##name);

#else

/* eax: the export, edx: its place in the list, ecx: the global offset table. The export finds its arguments 4 bytes off an
 * alignment of 16. Behind the copied arguments (16 words) lie three registers and the flags as they were found, both control
 * words as they were before, the result and the place in the list. */
    FUNCTION_BEGIN(orbsCheckedCall)
    pushl %ebp
    .cfi_def_cfa_offset 8
    .cfi_offset ebp, -8
    movl %esp, %ebp
    .cfi_def_cfa_register ebp
    pushl %ebx
    pushl %esi
    pushl %edi
    subl $96, %esp
    andl $-16, %esp
    subl $12, %esp
    movl %edx, 92(%esp)
    cmpb $0, orbsHasAvx@GOTOFF(%ecx)
    je 1f
    vzeroupper
1:
    .irp i, COPIED_WORDS
    movl 8 + 4 * \i(%ebp), %ecx
    movl %ecx, 4 * \i(%esp)
    .endr
    movl $ORBS_KEPT_REGISTER, %ebx
    leal 1(%ebx), %esi
    leal 2(%ebx), %edi
    stmxcsr 80(%esp)
    fnstcw 84(%esp)
    call *%eax
    movl %eax, 88(%esp)
    movl %ebx, 64(%esp)
    movl %esi, 68(%esp)
    movl %edi, 72(%esp)
    pushfl
    popl 76(%esp)
    cld
    leal 64(%esp), %ecx
    movl 92(%esp), %edx
    subl $12, %esp
    pushl %ecx
    pushl %edx
    call orbsAfterCall
    movl 108(%esp), %eax
    leal -12(%ebp), %esp
    popl %edi
    popl %esi
    popl %ebx
    popl %ebp
    .cfi_def_cfa esp, 4
    ret
    FUNCTION_END(orbsCheckedCall)

    FUNCTION_BEGIN(orbsTestReturnAddress)
    movl (%esp), %ecx
    ret
    FUNCTION_END(orbsTestReturnAddress)

#define ORBS_EXPORT(family, result, name, ...)                   \
    .globl __wrap_legacy90orbs##name;                            \
    FUNCTION_BEGIN(__wrap_legacy90orbs##name);                   \
    call orbsTestReturnAddress;                                  \
    addl $_GLOBAL_OFFSET_TABLE_, %ecx;                           \
    movl __real_legacy90orbs##name@GOT(%ecx), %eax;              \
    movl $orbsExport, %edx;                                      \
    .set orbsExport, orbsExport + 1;                             \
    jmp orbsCheckedCall;                                         \
    FUNCTION_END(__wrap_legacy90orbs##name);

#endif

    .globl orbsUpperHalvesHoldData
    .hidden orbsUpperHalvesHoldData
    FUNCTION_BEGIN(orbsUpperHalvesHoldData)
    .irp i, 0, 1, 2, 3, 4, 5, 6, 7
    vextractf128 $1, %ymm\i, %xmm\i
    .endr
    .irp i, 1, 2, 3, 4, 5, 6, 7
    vorps %xmm\i, %xmm0, %xmm0
    .endr
    xorl %eax, %eax
    vptest %xmm0, %xmm0
    setne %al
    ret
    FUNCTION_END(orbsUpperHalvesHoldData)

    .set orbsExport, 0
#include "boundary/exports.def"

    .section .note.GNU-stack, "", @progbits
