// void orvane_raw_call(const void* function, const machine_state* in, machine_state* out, const void* stack,
//                      size_t stack_bytes, size_t residue)
//
// machine_state: vector registers at 0 (16 * 32), integer registers at 512 (16 * 8), flags at 640, mxcsr at 648, x87
// control word at 652, tag word at 654, stack pointer of the call at 656.

        .set    ARGUMENTS, 512          // room for stack arguments; the largest memory form has 384 bytes of them

        .section .tbss, "awT", @nobits
        .balign 8
frame_of_call:  .zero 8                 // this function's frame, whatever registers come back
function_of_call: .zero 8
found_rax:      .zero 8
found_rsp:      .zero 8

        .text
        .globl  orvane_raw_call
        .hidden orvane_raw_call
        .type   orvane_raw_call, @function
        .balign 16
orvane_raw_call:
        .cfi_startproc
        push    %rbp
        .cfi_def_cfa_offset 16
        .cfi_offset %rbp, -16
        mov     %rsp, %rbp
        .cfi_def_cfa_register %rbp
        push    %rbx
        push    %r12
        push    %r13
        push    %r14
        push    %r15
        .cfi_offset %rbx, -24
        .cfi_offset %r12, -32
        .cfi_offset %r13, -40
        .cfi_offset %r14, -48
        .cfi_offset %r15, -56
        sub     $88, %rsp
        mov     %rdx, -48(%rbp)         // out
        stmxcsr -56(%rbp)
        fnstcw  -52(%rbp)

        mov     %rbp, %fs:frame_of_call@tpoff
        mov     %rdi, %fs:function_of_call@tpoff

        // The stack of the call: a multiple of 64 plus the residue, the arguments, and above them this frame's address,
        // by which an unwinder finds its way through.
        sub     $(ARGUMENTS + 64), %rsp
        and     $-64, %rsp
        sub     $64, %rsp
        add     %r9, %rsp
        mov     %rbp, ARGUMENTS(%rsp)
        mov     %rsp, 656(%rdx)
        mov     %rsi, %r10              // in
        mov     %rcx, %rsi
        mov     %rsp, %rdi
        mov     %r8, %rcx
        cld
        rep movsb
        // Garbage below: nothing may count on what lies there.
        mov     $0xA5A5A5A5A5A5A5A5, %rax
        mov     $64, %ecx
1:      mov     %rax, -520(%rsp, %rcx, 8)
        dec     %ecx
        jnz     1b

        .irp    r, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15
        vmovups (32 * \r)(%r10), %ymm\r
        .endr
        ldmxcsr 648(%r10)
        fldcw   652(%r10)
        mov     (512 + 8 * 0)(%r10), %rax
        mov     (512 + 8 * 1)(%r10), %rcx
        mov     (512 + 8 * 2)(%r10), %rdx
        mov     (512 + 8 * 3)(%r10), %rbx
        mov     (512 + 8 * 5)(%r10), %rbp
        mov     (512 + 8 * 6)(%r10), %rsi
        mov     (512 + 8 * 7)(%r10), %rdi
        mov     (512 + 8 * 8)(%r10), %r8
        mov     (512 + 8 * 9)(%r10), %r9
        mov     (512 + 8 * 11)(%r10), %r11
        mov     (512 + 8 * 12)(%r10), %r12
        mov     (512 + 8 * 13)(%r10), %r13
        mov     (512 + 8 * 14)(%r10), %r14
        mov     (512 + 8 * 15)(%r10), %r15
        mov     (512 + 8 * 10)(%r10), %r10
        // CFA = *(rsp + ARGUMENTS) + 16
        .cfi_escape 0x0f, 6, 0x77, 0x80, 0x04, 0x06, 0x23, 16
        call    *%fs:function_of_call@tpoff

        mov     %rax, %fs:found_rax@tpoff
        mov     %rsp, %fs:found_rsp@tpoff
        mov     %fs:frame_of_call@tpoff, %rax
        lea     -128(%rax), %rsp
        mov     -48(%rax), %rax
        .irp    r, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15
        vmovups %ymm\r, (32 * \r)(%rax)
        .endr
        mov     %rcx, (512 + 8 * 1)(%rax)
        mov     %rdx, (512 + 8 * 2)(%rax)
        mov     %rbx, (512 + 8 * 3)(%rax)
        mov     %rbp, (512 + 8 * 5)(%rax)
        mov     %rsi, (512 + 8 * 6)(%rax)
        mov     %rdi, (512 + 8 * 7)(%rax)
        mov     %r8, (512 + 8 * 8)(%rax)
        mov     %r9, (512 + 8 * 9)(%rax)
        mov     %r10, (512 + 8 * 10)(%rax)
        mov     %r11, (512 + 8 * 11)(%rax)
        mov     %r12, (512 + 8 * 12)(%rax)
        mov     %r13, (512 + 8 * 13)(%rax)
        mov     %r14, (512 + 8 * 14)(%rax)
        mov     %r15, (512 + 8 * 15)(%rax)
        pushfq
        pop     640(%rax)
        stmxcsr 648(%rax)
        fnstcw  652(%rax)
        sub     $32, %rsp
        fnstenv (%rsp)
        mov     8(%rsp), %cx
        mov     %cx, 654(%rax)
        add     $32, %rsp
        mov     %fs:found_rax@tpoff, %rcx
        mov     %rcx, 512(%rax)
        mov     %fs:found_rsp@tpoff, %rcx
        mov     %rcx, (512 + 8 * 4)(%rax)

        mov     %fs:frame_of_call@tpoff, %rbp
        .cfi_def_cfa %rbp, 16
        cld
        vzeroupper
        ldmxcsr -56(%rbp)
        fninit
        fldcw   -52(%rbp)
        lea     -40(%rbp), %rsp
        pop     %r15
        pop     %r14
        pop     %r13
        pop     %r12
        pop     %rbx
        pop     %rbp
        .cfi_def_cfa %rsp, 8
        ret
        .cfi_endproc
        .size   orvane_raw_call, . - orvane_raw_call
        .section .note.GNU-stack, "", @progbits
