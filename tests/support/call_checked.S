/* SPDX-License-Identifier: MIT */
/*
 * Calls a function with everything around it watched.
 *
 *   int32_t lumiCallChecked(CheckedCall* call);
 *
 * struct CheckedCall (offsets in words, then doubles; see call_checked.hpp): function, count of words,
 * words, misalignment of the stack in bytes, doubles; the result of each check comes back in `broken`.
 */
#define MAGIC(n) (0x5A5A0000 + n)

.text
.globl lumiCallChecked
.type lumiCallChecked, @function

#ifdef __i386__
lumiCallChecked:
	pushl %ebp
	pushl %ebx
	pushl %esi
	pushl %edi
	movl 20(%esp), %eax          /* the record */
	movl %esp, %ecx
	subl $512, %esp
	andl $-64, %esp
	subl 12(%eax), %esp          /* misalignment */
	movl %eax, 256(%esp)         /* kept out of the reach of the arguments */
	movl %ecx, 260(%esp)
	movl 4(%eax), %ecx           /* words */
	movl 8(%eax), %esi
	movl %esp, %edi
	cld
	rep movsl
	movl %esp, 264(%esp)
	movl (%eax), %eax
	vzeroupper
	movl $MAGIC(1), %ebx
	movl $MAGIC(2), %esi
	movl $MAGIC(3), %edi
	movl $MAGIC(4), %ebp
	call *%eax
	xorl %edx, %edx
	cmpl $MAGIC(1), %ebx
	je 1f
	orl $1, %edx
1:	cmpl $MAGIC(2), %esi
	je 1f
	orl $2, %edx
1:	cmpl $MAGIC(3), %edi
	je 1f
	orl $4, %edx
1:	cmpl $MAGIC(4), %ebp
	je 1f
	orl $8, %edx
1:	cmpl 264(%esp), %esp
	je 1f
	orl $16, %edx
1:	pushf
	testl $0x400, (%esp)         /* direction flag */
	leal 4(%esp), %esp
	jz 1f
	orl $32, %edx
1:	movl 256(%esp), %ecx
	movl %edx, 16(%ecx)
	movl %eax, %esi
	movl $1, %ecx                /* which register states are in use; bit 2: upper vector halves */
	xgetbv
	movl 256(%esp), %ecx
	movl %eax, 20(%ecx)
	movl %esi, %eax
	movl 260(%esp), %esp
	popl %edi
	popl %esi
	popl %ebx
	popl %ebp
	ret
#else
lumiCallChecked:
	pushq %rbp
	pushq %rbx
	pushq %r12
	pushq %r13
	pushq %r14
	pushq %r15
	movq %rsp, %rax
	subq $1024, %rsp
	andq $-64, %rsp
	movq %rdi, 512(%rsp)
	movq %rax, 520(%rsp)
	movq %rdi, %rax
	movq 8(%rax), %rcx           /* words beyond six go to the stack */
	movq 16(%rax), %r10
	subq $6, %rcx
	jle 2f
	leaq 48(%r10), %rsi
	movq %rsp, %rdi
	cld
	rep movsq
2:	movq 48(%rax), %r11          /* doubles */
	vmovsd (%r11), %xmm0
	vmovsd 8(%r11), %xmm1
	vmovsd 16(%r11), %xmm2
	vmovsd 24(%r11), %xmm3
	movq (%rax), %r11
	movq (%r10), %rdi
	movq 8(%r10), %rsi
	movq 16(%r10), %rdx
	movq 24(%r10), %rcx
	movq 32(%r10), %r8
	movq 40(%r10), %r9
	movq %rsp, 528(%rsp)
	movq $MAGIC(1), %rbx
	movq $MAGIC(2), %r12
	movq $MAGIC(3), %r13
	movq $MAGIC(4), %rbp
	movq $MAGIC(5), %r14
	movq $MAGIC(6), %r15
	call *%r11
	xorl %edx, %edx
	cmpq $MAGIC(1), %rbx
	je 1f
	orl $1, %edx
1:	cmpq $MAGIC(2), %r12
	je 1f
	orl $2, %edx
1:	cmpq $MAGIC(3), %r13
	je 1f
	orl $4, %edx
1:	cmpq $MAGIC(4), %rbp
	je 1f
	orl $8, %edx
1:	cmpq 528(%rsp), %rsp
	je 1f
	orl $16, %edx
1:	pushfq
	testq $0x400, (%rsp)
	leaq 8(%rsp), %rsp
	jz 1f
	orl $32, %edx
1:	cmpq $MAGIC(5), %r14
	je 1f
	orl $64, %edx
1:	cmpq $MAGIC(6), %r15
	je 1f
	orl $128, %edx
1:	movq 512(%rsp), %rcx
	movl %edx, 32(%rcx)
	movl %eax, %esi
	movl $1, %ecx
	xgetbv
	movq 512(%rsp), %rcx
	movl %eax, 40(%rcx)
	movl %esi, %eax
	movq 520(%rsp), %rsp
	popq %r15
	popq %r14
	popq %r13
	popq %r12
	popq %rbx
	popq %rbp
	ret
#endif
.size lumiCallChecked, .-lumiCallChecked
.section .note.GNU-stack,"",@progbits
