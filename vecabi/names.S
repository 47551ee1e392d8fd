// The names of the x86 vector function ABI on the exports: _ZGV, a letter for the registers, N and the lanes, a letter
// for each parameter, _, the name of the C function.
//
//     b   128-bit registers, called from SSE code        c   256-bit for floating lanes, 128-bit for integers
//     d   256-bit registers                              e   512-bit registers
//
// Where the lanes of a form lie as the export has them the name is an alias; the rest are the adapters here. The ABI
// lets a function change every vector register, rdi and rsi; a register-form export keeps vector registers 8 to 15, rdi
// and rsi, and adapters build on that.
//
// names.inc, written from the list of exports, is lines of the macros below. FORMS_512 picks the e forms, which have an
// object of their own. With FAMILY only its names are made, and an alias is a jump, since in an archive a name cannot
// stand for what another member defines; the shared library has its aliases from aliases.ld.

#ifdef FORMS_512
#define FORMS_512_WANTED 1
#else
#define FORMS_512_WANTED 0
#endif

        .text

        .macro  family name
#ifdef FAMILY
        .set    .Lwanted, 0
        .ifc    \name, FAMILY
        .set    .Lwanted, 1
        .endif
#else
        .set    .Lwanted, 1
#endif
        .set    .Lwanted_256, .Lwanted & !FORMS_512_WANTED
        .set    .Lwanted_512, .Lwanted & FORMS_512_WANTED
        .endm

        .macro  begin name
        .globl  \name
        .type   \name, @function
        .p2align 5
\name:
.L\name:
        .cfi_startproc
        .endm
        .macro  end name
        .cfi_endproc
        .size   \name, . - \name
        .endm

        // Room on the stack that leaves it aligned for a call.
        .macro  room bytes=0
        sub     $8 + \bytes, %rsp
        .cfi_adjust_cfa_offset 8 + \bytes
        .endm
        .macro  return bytes=0
        add     $8 + \bytes, %rsp
        .cfi_adjust_cfa_offset -8 - \bytes
        ret
        .endm

        // A name whose lanes lie as the export's.
        .macro  alias name, export
#ifdef FAMILY
        .if     .Lwanted_256
        begin   \name
        jmp     \export
        end     \name
        .endif
#endif
        .endm

        // A further name of an adapter.
        .macro  same name, adapter
        .if     .Lwanted_256
        further \name, \adapter
        .endif
        .endm
        .macro  same_512 name, adapter
        .if     .Lwanted_512
        further \name, \adapter
        .endif
        .endm
        .macro  further name, adapter
        .globl  \name
        .type   \name, @function
        .set    \name, \adapter
        .endm

        // For SSE code: kernels of 128-bit lanes use 256-bit registers inside, and slow paths leave some in use.
        .macro  for_sse name, export
        .if     .Lwanted_256
        begin   \name
        room
        call    \export
        vzeroupper
        return
        end     \name
        .endif
        .endm

        // ---- integer lanes ----

        // (float8 x, int8 n) in the c form: n in two 128-bit registers.
        .macro  joined_integers name, export
        .if     .Lwanted_256
        begin   \name
        vinsertf128 $1, %xmm2, %ymm1, %ymm1
        jmp     \export
        end     \name
        .endif
        .endm
        // int4 of double4 for SSE code: x in two registers.
        .macro  joined_argument_for_sse name, export
        .if     .Lwanted_256
        begin   \name
        room
        vinsertf128 $1, %xmm1, %ymm0, %ymm0
        call    \export
        vzeroupper
        return
        end     \name
        .endif
        .endm
        // int8 in the c form: by way of memory that rdi points to.
        .macro  integers_in_memory name, export
        .if     .Lwanted_256
        begin   \name
        room
        call    \export
        vmovups %ymm0, (%rdi)
        mov     %rdi, %rax
        return
        end     \name
        .endif
        .endm
        // One of the two results of frexp.
        .macro  fraction_of_frexp name, export, clear=
        .if     .Lwanted_256
        begin   \name
        room    32
        mov     %rsp, %rdi
        call    \export
        \clear
        return  32
        end     \name
        .endif
        .endm
        .macro  exponent_of_frexp name, export, bytes, clear=
        .if     .Lwanted_256
        begin   \name
        room    32
        mov     %rsp, %rdi
        call    \export
        .if     \bytes == 32
        vmovups (%rsp), %ymm0
        .else
        vmovups (%rsp), %xmm0
        .endif
        \clear
        return  32
        end     \name
        .endif
        .endm
        .macro  exponents_in_memory name, export
        .if     .Lwanted_256
        begin   \name
        room
        call    \export
        mov     %rdi, %rax
        return
        end     \name
        .endif
        .endm

        // ---- two results through pointers ----

        // Linear pointers: results to rdi and rsi, as vectors.
        .macro  two_vectors_out name, export, register, clear=
        .if     .Lwanted_256
        begin   \name
        room
        call    \export
        vmovups %\register\()0, (%rdi)
        vmovups %\register\()1, (%rsi)
        \clear
        return
        end     \name
        .endif
        .endm
        .macro  two_calls_out name, first, second, register, clear=
        .if     .Lwanted_256
        begin   \name
        room
        vmovaps %\register\()0, %\register\()8
        call    \first
        vmovups %\register\()0, (%rdi)
        vmovaps %\register\()8, %\register\()0
        call    \second
        vmovups %\register\()0, (%rsi)
        \clear
        return
        end     \name
        .endif
        .endm

        // Vectors of pointers: a lane at a time from results on the stack. Pointers lie in the registers behind x, in
        // 16, 32 or 64 bytes each; the last of the c form of eight lanes is on the stack.
        .macro  store_from register, to, bytes
        .if     \bytes == 16
        vmovups %xmm\register, \to(%rsp)
        .elseif \bytes == 32
        vmovups %ymm\register, \to(%rsp)
        .else
        vmovups %zmm\register, \to(%rsp)
        .endif
        .endm
        .macro  spill_pointers bytes, pointer_bytes, frame
        .set    .Lat, 0
        .irp    register, 1, 2, 3, 4, 5, 6, 7
        .if     .Lat < \bytes
        store_from \register, .Lat, \pointer_bytes
        .set    .Lat, .Lat + \pointer_bytes
        .endif
        .endr
        .if     .Lat < \bytes
        vmovups 16 + \frame(%rsp), %xmm8
        vmovups %xmm8, .Lat(%rsp)
        .endif
        .endm
        // A lane through its pointer: 4 or 8 bytes.
        .macro  store_lanes lanes, lane_bytes, pointers, results
        .set    .Llane, 0
        .rept   \lanes
        mov     \pointers + 8 * .Llane(%rsp), %rax
        .if     \lane_bytes == 4
        mov     \results + 4 * .Llane(%rsp), %ecx
        mov     %ecx, (%rax)
        .else
        mov     \results + 8 * .Llane(%rsp), %rcx
        mov     %rcx, (%rax)
        .endif
        .set    .Llane, .Llane + 1
        .endr
        .endm
        .macro  scatter_body name, export, lanes, lane_bytes, pointer_bytes, clear
        begin   \name
        .set    .Lpointers, 8 * \lanes
        .set    .Lvector, \lanes * \lane_bytes
        .set    .Lsines, 2 * .Lpointers
        .set    .Lcosines, .Lsines + .Lvector
        .set    .Lframe, .Lcosines + .Lvector
        room    .Lframe
        spill_pointers 2*.Lpointers, \pointer_bytes, .Lframe
        .if     .Lvector == 64
        vextractf64x4 $1, %zmm0, %ymm1
        .endif
        call    \export
        .if     .Lvector == 64
        store_from 0, .Lsines, 32
        store_from 1, .Lsines+32, 32
        store_from 2, .Lcosines, 32
        store_from 3, .Lcosines+32, 32
        .else
        store_from 0, .Lsines, .Lvector
        store_from 1, .Lcosines, .Lvector
        .endif
        store_lanes \lanes, \lane_bytes, 0, .Lsines
        store_lanes \lanes, \lane_bytes, .Lpointers, .Lcosines
        \clear
        return  .Lframe
        end     \name
        .endm
        .macro  scatter name, export, lanes, lane_bytes, pointer_bytes, clear=
        .if     .Lwanted_256
        scatter_body \name, \export, \lanes, \lane_bytes, \pointer_bytes, \clear
        .endif
        .endm

        // ---- 512-bit registers ----
        //
        // The two halves go to an export that takes them as two 256-bit registers each, where there is one of register
        // form. Masked forms compute every lane and store those of the mask, which is the last integer argument.

        // Zmm register `from` as two halves.
        .macro  halves_of from, low, high
        vextractf64x4 $1, %zmm\from, %ymm\high
        .if     \low != \from
        vmovaps %ymm\from, %ymm\low
        .endif
        .endm
        .macro  join_result
        vinsertf64x4 $1, %ymm1, %zmm0, %zmm0
        .endm

        .macro  e_one name, export
        .if     .Lwanted_512
        begin   \name
        room
        halves_of 0, 0, 1
        call    \export
        join_result
        return
        end     \name
        .endif
        .endm
        .macro  e_two name, export
        .if     .Lwanted_512
        begin   \name
        room
        halves_of 1, 2, 3
        halves_of 0, 0, 1
        call    \export
        join_result
        return
        end     \name
        .endif
        .endm
        // Three arguments: the export of both halves would take them in memory.
        .macro  e_three name, export
        .if     .Lwanted_512
        begin   \name
        room
        halves_of 0, 0, 8
        halves_of 1, 1, 9
        halves_of 2, 2, 10
        call    \export
        vmovaps %ymm0, %ymm11
        vmovaps %ymm8, %ymm0
        vmovaps %ymm9, %ymm1
        vmovaps %ymm10, %ymm2
        call    \export
        vinsertf64x4 $1, %ymm0, %zmm11, %zmm0
        return
        end     \name
        .endif
        .endm
        // (double8 x, int8 n)
        .macro  e_integer name, export
        .if     .Lwanted_512
        begin   \name
        room
        vmovaps %ymm1, %ymm2
        halves_of 0, 0, 1
        call    \export
        join_result
        return
        end     \name
        .endif
        .endm
        // int8 of double8, and int16 of double16 in two registers.
        .macro  e_narrow name, export
        .if     .Lwanted_512
        begin   \name
        halves_of 0, 0, 1
        jmp     \export
        end     \name
        .endif
        .endm
        .macro  e_narrow_two name, export
        .if     .Lwanted_512
        begin   \name
        room
        halves_of 1, 2, 3
        halves_of 0, 0, 1
        call    \export
        join_result
        return
        end     \name
        .endif
        .endm
        .macro  e_fraction_of_frexp name, export
        .if     .Lwanted_512
        begin   \name
        room    64
        mov     %rsp, %rdi
        halves_of 0, 0, 1
        call    \export
        join_result
        return  64
        end     \name
        .endif
        .endm
        .macro  e_exponent_of_frexp name, export, bytes
        .if     .Lwanted_512
        begin   \name
        room    64
        mov     %rsp, %rdi
        halves_of 0, 0, 1
        call    \export
        .if     \bytes == 64
        vmovups (%rsp), %zmm0
        .else
        vmovups (%rsp), %ymm0
        .endif
        return  64
        end     \name
        .endif
        .endm

        .macro  e_two_vectors_out name, export
        .if     .Lwanted_512
        begin   \name
        room
        halves_of 0, 0, 1
        call    \export
        vmovups %ymm0, (%rdi)
        vmovups %ymm1, 32(%rdi)
        vmovups %ymm2, (%rsi)
        vmovups %ymm3, 32(%rsi)
        return
        end     \name
        .endif
        .endm
        .macro  e_two_calls_out name, first, second
        .if     .Lwanted_512
        begin   \name
        room
        halves_of 0, 8, 9
        vmovaps %ymm9, %ymm1
        call    \first
        vmovups %ymm0, (%rdi)
        vmovups %ymm1, 32(%rdi)
        vmovaps %ymm8, %ymm0
        vmovaps %ymm9, %ymm1
        call    \second
        vmovups %ymm0, (%rsi)
        vmovups %ymm1, 32(%rsi)
        return
        end     \name
        .endif
        .endm

        // Masked stores of what the form without a mask gives; `lane` is pd or ps.
        .macro  e_masked_one_out name, unmasked, lane
        .if     .Lwanted_512
        begin   \name
        push    %rbx
        .cfi_adjust_cfa_offset 8
        .cfi_rel_offset %rbx, 0
        push    %r12
        .cfi_adjust_cfa_offset 8
        .cfi_rel_offset %r12, 0
        room    64
        mov     %rdi, %rbx
        mov     %esi, %r12d
        mov     %rsp, %rdi
        call    .L\unmasked
        kmovw   %r12d, %k1
        vmovups (%rsp), %zmm1
        vmovu\lane %zmm1, (%rbx){%k1}
        add     $72, %rsp
        .cfi_adjust_cfa_offset -72
        pop     %r12
        .cfi_adjust_cfa_offset -8
        .cfi_restore %r12
        pop     %rbx
        .cfi_adjust_cfa_offset -8
        .cfi_restore %rbx
        ret
        end     \name
        .endif
        .endm
        .macro  e_masked_two_out name, unmasked, lane
        .if     .Lwanted_512
        begin   \name
        push    %rbx
        .cfi_adjust_cfa_offset 8
        .cfi_rel_offset %rbx, 0
        push    %r12
        .cfi_adjust_cfa_offset 8
        .cfi_rel_offset %r12, 0
        push    %r13
        .cfi_adjust_cfa_offset 8
        .cfi_rel_offset %r13, 0
        sub     $128, %rsp
        .cfi_adjust_cfa_offset 128
        mov     %rdi, %rbx
        mov     %rsi, %r12
        mov     %edx, %r13d
        mov     %rsp, %rdi
        lea     64(%rsp), %rsi
        call    .L\unmasked
        kmovw   %r13d, %k1
        vmovups (%rsp), %zmm0
        vmovups 64(%rsp), %zmm1
        vmovu\lane %zmm0, (%rbx){%k1}
        vmovu\lane %zmm1, (%r12){%k1}
        add     $128, %rsp
        .cfi_adjust_cfa_offset -128
        pop     %r13
        .cfi_adjust_cfa_offset -8
        .cfi_restore %r13
        pop     %r12
        .cfi_adjust_cfa_offset -8
        .cfi_restore %r12
        pop     %rbx
        .cfi_adjust_cfa_offset -8
        .cfi_restore %rbx
        ret
        end     \name
        .endif
        .endm
        .macro  e_scatter name, export, lanes, lane_bytes
        .if     .Lwanted_512
        scatter_body \name, \export, \lanes, \lane_bytes, 64
        .endif
        .endm

#include "names.inc"

        .section .note.GNU-stack, "", @progbits
