/* See registers.h. */

    .hidden orbsTestArrived
    .hidden orbsTestArrivals
    .bss
    .p2align 4
    .globl orbsTestArrived
orbsTestArrived:
    .zero 256
    .globl orbsTestArrivals
orbsTestArrivals:
    .zero 4

    .text
    .globl orbsTestCall, orbsTestRecorder
    .type orbsTestCall, @function
    .type orbsTestRecorder, @function

#ifdef __x86_64__

orbsTestCall:
    pushq %rbp
    movq %rsp, %rbp
    pushq %rbx
    pushq %r12
    pushq %r13
    subq $40, %rsp
    movq %rdi, %r11
    movq %rsi, %r10
    .irp i, 0, 8, 16, 24
    movq \i(%r10), %rax
    movq %rax, \i(%rsp)
    .endr
    movq 32(%r10), %rbx
    movq 40(%r10), %r12
    movq 48(%r10), %r13
    leaq -8(%rsp), %rax
    movq %rax, 56(%r10)
    movq 64(%r10), %rdi
    movq 72(%r10), %rsi
    movq 80(%r10), %rdx
    movq 88(%r10), %rcx
    movq 96(%r10), %r8
    movq 104(%r10), %r9
    .irp i, 0, 1, 2, 3, 4, 5, 6, 7
    movups 112 + 16 * \i(%r10), %xmm\i
    .endr
    call *%r11
    addq $40, %rsp
    popq %r13
    popq %r12
    popq %rbx
    popq %rbp
    ret

orbsTestRecorder:
    leaq orbsTestArrived(%rip), %rax
    .irp i, 0, 8, 16, 24
    movq 8 + \i(%rsp), %r11
    movq %r11, \i(%rax)
    .endr
    movq %rbx, 32(%rax)
    movq %r12, 40(%rax)
    movq %r13, 48(%rax)
    movq %rsp, 56(%rax)
    movq %rdi, 64(%rax)
    movq %rsi, 72(%rax)
    movq %rdx, 80(%rax)
    movq %rcx, 88(%rax)
    movq %r8, 96(%rax)
    movq %r9, 104(%rax)
    .irp i, 0, 1, 2, 3, 4, 5, 6, 7
    movups %xmm\i, 112 + 16 * \i(%rax)
    .endr
    incl orbsTestArrivals(%rip)
    movl $0x600DBEEF, %eax
    ret

#else

orbsTestCall:
    pushl %ebp
    movl %esp, %ebp
    pushl %ebx
    pushl %esi
    pushl %edi
    subl $28, %esp
    movl 8(%ebp), %eax
    movl 12(%ebp), %ecx
    .irp i, 0, 4, 8, 12
    movl \i(%ecx), %edx
    movl %edx, \i(%esp)
    .endr
    movl 16(%ecx), %ebx
    movl 20(%ecx), %esi
    movl 24(%ecx), %edi
    leal -4(%esp), %edx
    movl %edx, 28(%ecx)
    call *%eax
    addl $28, %esp
    popl %edi
    popl %esi
    popl %ebx
    popl %ebp
    ret

orbsTestRecorder:
    call 1f
1:  popl %eax
    addl $_GLOBAL_OFFSET_TABLE_ + (. - 1b), %eax
    incl orbsTestArrivals@GOTOFF(%eax)
    leal orbsTestArrived@GOTOFF(%eax), %eax
    .irp i, 0, 4, 8, 12
    movl 4 + \i(%esp), %ecx
    movl %ecx, \i(%eax)
    .endr
    movl %ebx, 16(%eax)
    movl %esi, 20(%eax)
    movl %edi, 24(%eax)
    movl %esp, 28(%eax)
    movl $0x600DBEEF, %eax
    ret

#endif

    .section .note.GNU-stack, "", @progbits
