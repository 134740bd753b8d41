/* The exported entry points. A stub is one load of CpuIndex and one indirect jump through the export's table; arguments and
 * return address stay as the caller left them, and the variant returns straight to the caller. Entry -1 of each table is
 * the export's lazy stub, which selects the variant first.
 */

#ifdef __x86_64__
#define POINTER_SIZE 8
#else
#define POINTER_SIZE 4
#endif

/* Tables stand in the order of the list, eight pointers each; a table's address is that of its entry 0, behind the lazy one. */
#define TABLE_OFFSET orbsTableIndex * 8 * POINTER_SIZE + POINTER_SIZE

#define FUNCTION_BEGIN(symbol) \
    .p2align 4; .type symbol, @function; symbol: .cfi_startproc
#define FUNCTION_END(symbol) \
    .cfi_endproc; .size symbol, . - symbol; .set orbsTableIndex, orbsTableIndex + 1

    .hidden CpuIndex
    .hidden DispatchTable

    .text

#ifdef __x86_64__

#define STUB(name)                              \
    .globl legacy90orbs##name;                  \
    FUNCTION_BEGIN(legacy90orbs##name);         \
    movslq CpuIndex(%rip), %rax;                \
    leaq DispatchTable + TABLE_OFFSET(%rip), %r11;                     \
    jmp *(%r11, %rax, 8);                       \
    FUNCTION_END(legacy90orbs##name)

#define LAZY_STUB(name)                         \
    .globl orbsLazy##name;                      \
    .hidden orbsLazy##name;                     \
    FUNCTION_BEGIN(orbsLazy##name);             \
    leaq DispatchTable + TABLE_OFFSET(%rip), %r11;                     \
    jmp orbsSelectAndJump;                      \
    FUNCTION_END(orbsLazy##name)

/* r11: the export's table. Every register that can hold an argument is kept across the selection; the stack is aligned to
 * 16 bytes at the call. */
    .set orbsTableIndex, 0
    FUNCTION_BEGIN(orbsSelectAndJump)
    subq $200, %rsp
    .cfi_adjust_cfa_offset 200
    movq %r11, 0(%rsp)
    movq %rdi, 8(%rsp)
    movq %rsi, 16(%rsp)
    movq %rdx, 24(%rsp)
    movq %rcx, 32(%rsp)
    movq %r8, 40(%rsp)
    movq %r9, 48(%rsp)
    movups %xmm0, 64(%rsp)
    movups %xmm1, 80(%rsp)
    movups %xmm2, 96(%rsp)
    movups %xmm3, 112(%rsp)
    movups %xmm4, 128(%rsp)
    movups %xmm5, 144(%rsp)
    movups %xmm6, 160(%rsp)
    movups %xmm7, 176(%rsp)
    call orbsSelectVariant
    movq 0(%rsp), %r11
    movq 8(%rsp), %rdi
    movq 16(%rsp), %rsi
    movq 24(%rsp), %rdx
    movq 32(%rsp), %rcx
    movq 40(%rsp), %r8
    movq 48(%rsp), %r9
    movups 64(%rsp), %xmm0
    movups 80(%rsp), %xmm1
    movups 96(%rsp), %xmm2
    movups 112(%rsp), %xmm3
    movups 128(%rsp), %xmm4
    movups 144(%rsp), %xmm5
    movups 160(%rsp), %xmm6
    movups 176(%rsp), %xmm7
    addq $200, %rsp
    .cfi_adjust_cfa_offset -200
    movslq CpuIndex(%rip), %rax
    jmp *(%r11, %rax, 8)
    FUNCTION_END(orbsSelectAndJump)

#else /* i386: all arguments are on the stack; eax, ecx and edx are free */

#define STUB(name)                              \
    .globl legacy90orbs##name;                  \
    FUNCTION_BEGIN(legacy90orbs##name);         \
    call orbsReturnAddress;                     \
    addl $_GLOBAL_OFFSET_TABLE_, %ecx;          \
    movl CpuIndex@GOTOFF(%ecx), %eax;           \
    jmp *DispatchTable@GOTOFF + TABLE_OFFSET(%ecx, %eax, 4);           \
    FUNCTION_END(legacy90orbs##name)

#define LAZY_STUB(name)                         \
    .globl orbsLazy##name;                      \
    .hidden orbsLazy##name;                     \
    FUNCTION_BEGIN(orbsLazy##name);             \
    call orbsReturnAddress;                     \
    addl $_GLOBAL_OFFSET_TABLE_, %ecx;          \
    leal DispatchTable@GOTOFF + TABLE_OFFSET(%ecx), %edx;              \
    jmp orbsSelectAndJump;                      \
    FUNCTION_END(orbsLazy##name)

/* ecx = the address behind the call. A called routine keeps the processor's return predictor paired; call and pop do not. */
    .set orbsTableIndex, 0
    FUNCTION_BEGIN(orbsReturnAddress)
    movl (%esp), %ecx
    ret
    FUNCTION_END(orbsReturnAddress)

/* edx: the export's table; ecx: the global offset table, which ebx must hold for a call that may go through the PLT. The
 * stack is aligned to 16 bytes at the call. */
    FUNCTION_BEGIN(orbsSelectAndJump)
    pushl %ebx
    .cfi_adjust_cfa_offset 4
    .cfi_rel_offset ebx, 0
    subl $8, %esp
    .cfi_adjust_cfa_offset 8
    movl %edx, (%esp)
    movl %ecx, %ebx
    call orbsSelectVariant
    movl (%esp), %edx
    movl CpuIndex@GOTOFF(%ebx), %eax
    addl $8, %esp
    .cfi_adjust_cfa_offset -8
    popl %ebx
    .cfi_adjust_cfa_offset -4
    .cfi_restore ebx
    jmp *(%edx, %eax, 4)
    FUNCTION_END(orbsSelectAndJump)

#endif

    .set orbsTableIndex, 0
#define ORBS_EXPORT(family, result, name, ...) STUB(name);
#include "boundary/exports.def"

    .set orbsTableIndex, 0
#define ORBS_EXPORT(family, result, name, ...) LAZY_STUB(name);
#include "boundary/exports.def"

    .section .note.GNU-stack, "", @progbits
