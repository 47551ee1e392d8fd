// The raw-register caller: a call in which every register has the value that the caller of this function gives, and
// everything that the called code leaves in registers is stored. It is written in assembly (raw_call.S), since no
// calling convention of a compiler allows that.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace orvane {

// Integer registers by their number in the instruction set, without rsp (4), which the call sets.
enum gpr { rax, rcx, rdx, rbx, rsp, rbp, rsi, rdi, r8, r9, r10, r11, r12, r13, r14, r15 };

struct alignas(32) machine_state {
    unsigned char vector[16][32]; // vector registers, all 256 bits
    uint64_t integer[16];         // integer registers; [rsp]: at entry of the called code, after it: at return
    uint64_t flags;               // only stored
    uint32_t mxcsr;
    uint16_t x87_control, x87_tag; // the tag word is only stored: 0xFFFF is an empty register stack
    uint64_t called_at;            // only stored: the stack pointer at the call instruction
};
// raw_call.S reads and writes it by these numbers.
static_assert(offsetof(machine_state, vector) == 0 && sizeof machine_state::vector == 16 * 32);
static_assert(offsetof(machine_state, integer) == 512 && sizeof machine_state::integer == 16 * 8);
static_assert(offsetof(machine_state, flags) == 640 && offsetof(machine_state, mxcsr) == 648);
static_assert(offsetof(machine_state, x87_control) == 652 && offsetof(machine_state, x87_tag) == 654);
static_assert(offsetof(machine_state, called_at) == 656 && alignof(machine_state) == 32);
static_assert(rax == 0 && rsp == 4 && r8 == 8 && r15 == 15);

// Calls `function` with the registers of `in` and a copy of `stack_bytes` bytes of arguments at its stack pointer +
// 8, and stores what it finds at the return in `out`. The stack pointer at the call instruction is a multiple of 64
// plus `residue` (0, 16, 32 or 48). Below the stack pointer 512 bytes are filled with a pattern of their own
// beforehand.
extern "C" void orvane_raw_call(const void* function, const machine_state* in, machine_state* out, const void* stack,
                                size_t stack_bytes, size_t residue);

} // namespace orvane
