/* SPDX-License-Identifier: MIT */
/*
 * Calls a function with everything around it watched.
 *
 *   int32_t lumiInvoke(PackedCall* call);
 *
 * The members of PackedCall, in words: function 0, stackWords 1, misalignment 2, broken 3, upperHalves 4,
 * integers 5 to 10, none 11; then vectors and stack.
 */
#define MAGIC(n) (0x5A5A0000 + n)

/* The upper halves of the vector registers, joined in xmm0. The processor's own record of what is in use may
   say so of halves that are clean. */
.macro join_upper_halves last
	vextractf128 $1, %ymm0, %xmm0
	.set n, 1
	.rept \last
	join_upper_half %n
	.set n, n + 1
	.endr
.endm
.altmacro
.macro join_upper_half n
	vextractf128 $1, %ymm\n, %xmm\n
	vorps %xmm\n, %xmm0, %xmm0
.endm

.text
.globl lumiInvoke
.type lumiInvoke, @function

#ifdef __i386__
#define STACK 112
lumiInvoke:
	pushl %ebp
	pushl %ebx
	pushl %esi
	pushl %edi
	movl 20(%esp), %eax          /* the record */
	movl %esp, %edx
	subl $512, %esp
	andl $-64, %esp
	subl 8(%eax), %esp           /* misalignment */
	movl %eax, 256(%esp)         /* kept out of the reach of the arguments */
	movl %edx, 260(%esp)
	movl %esp, 264(%esp)
	movl 4(%eax), %ecx
	leal STACK(%eax), %esi
	movl %esp, %edi
	cld
	rep movsl
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
	cld
1:	movl 256(%esp), %ebx
	movl %edx, 12(%ebx)
	join_upper_halves 7
	vptest %xmm0, %xmm0
	jz 1f
	movl $1, 16(%ebx)
	vzeroupper
1:	movl 260(%esp), %esp
	popl %edi
	popl %esi
	popl %ebx
	popl %ebp
	ret
#else
#define INTEGERS 40
#define VECTORS 96
#define STACK 160
lumiInvoke:
	pushq %rbp
	pushq %rbx
	pushq %r12
	pushq %r13
	pushq %r14
	pushq %r15
	movq %rsp, %rdx
	subq $1024, %rsp
	andq $-64, %rsp
	movq %rdi, 512(%rsp)         /* kept out of the reach of the arguments */
	movq %rdx, 520(%rsp)
	movq %rsp, 528(%rsp)
	movq %rdi, %rax
	movq 8(%rax), %rcx
	leaq STACK(%rax), %rsi
	movq %rsp, %rdi
	cld
	rep movsq
	vzeroupper
	vmovsd VECTORS(%rax), %xmm0
	vmovsd VECTORS+8(%rax), %xmm1
	vmovsd VECTORS+16(%rax), %xmm2
	vmovsd VECTORS+24(%rax), %xmm3
	vmovsd VECTORS+32(%rax), %xmm4
	vmovsd VECTORS+40(%rax), %xmm5
	vmovsd VECTORS+48(%rax), %xmm6
	vmovsd VECTORS+56(%rax), %xmm7
	movq INTEGERS(%rax), %rdi
	movq INTEGERS+8(%rax), %rsi
	movq INTEGERS+16(%rax), %rdx
	movq INTEGERS+24(%rax), %rcx
	movq INTEGERS+32(%rax), %r8
	movq INTEGERS+40(%rax), %r9
	movq (%rax), %rax
	movq $MAGIC(1), %rbx
	movq $MAGIC(2), %r12
	movq $MAGIC(3), %r13
	movq $MAGIC(4), %rbp
	movq $MAGIC(5), %r14
	movq $MAGIC(6), %r15
	call *%rax
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
	testq $0x400, (%rsp)         /* direction flag */
	leaq 8(%rsp), %rsp
	jz 1f
	orl $32, %edx
	cld
1:	cmpq $MAGIC(5), %r14
	je 1f
	orl $64, %edx
1:	cmpq $MAGIC(6), %r15
	je 1f
	orl $128, %edx
1:	movq 512(%rsp), %rbx
	movq %rdx, 24(%rbx)
	join_upper_halves 15
	vptest %xmm0, %xmm0
	jz 1f
	movq $1, 32(%rbx)
	vzeroupper
1:	movq 520(%rsp), %rsp
	popq %r15
	popq %r14
	popq %r13
	popq %r12
	popq %rbx
	popq %rbp
	ret
#endif
.size lumiInvoke, .-lumiInvoke
.section .note.GNU-stack,"",@progbits
