// Calls of every export of liborvane_l9.so from C++, those too that C cannot declare: results in several registers,
// pairs, wide vectors. Header only; C++17, x86-64 with AVX, GCC or Clang.
//
//     void* f = dlsym(library, "__orvane_l9_exp16_native");
//     orvane::vec<double, 16> y = orvane::call<double>(f, x);                    // x is a vec<double, 16>
//     auto [s, c] = orvane::call_pair<double>(sincosreg4, x);                    // two results
//     orvane::vec<int32_t, 8> q; auto r = orvane::call_out<float>(remquof8, q, x, y);   // an out-lane
//
// The types name the calling form: lanes of 32 or 64 bits, one of the six widths, arguments in order. A 3-wide vec
// has room for its spare lane, which the export fills on its own; an integer lane at width 1 travels as emitted code
// passes it. The address must be that of an export with this signature; exports.json says which it is.
#pragma once

#if __cplusplus < 201703L
#error "orvane/call.hpp: compile as C++17 or newer"
#endif

#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

namespace orvane {

template <class T, int W> struct vec {
    static_assert(sizeof(T) == 4 || sizeof(T) == 8);
    static_assert(W == 1 || W == 2 || W == 3 || W == 4 || W == 8 || W == 16);
    static constexpr int stored = W == 3 ? 4 : W;
    T lane[stored];
    T& operator[](int i) { return lane[i]; }
    const T& operator[](int i) const { return lane[i]; }
};

namespace detail {

// Vector registers 0 to 3 and the integer registers in which arguments travel.
struct register_file {
    alignas(32) unsigned char vector[4][32];
    uint64_t rdi, rsi, rax;
};

// Slow paths use the x87 unit. Where one runs, the upper state is cleared: 512-bit code keeps nothing in registers 8
// to 15, of which 256 bits come back.
#define ORVANE_X87 "st", "st(1)", "st(2)", "st(3)", "st(4)", "st(5)", "st(6)", "st(7)"
#define ORVANE_XMM_8_TO_15 "xmm8", "xmm9", "xmm10", "xmm11", "xmm12", "xmm13", "xmm14", "xmm15"
#ifdef __AVX512F__
#define ORVANE_512_ONLY ORVANE_XMM_8_TO_15,
#else
#define ORVANE_512_ONLY
#endif

// The red zone is left alone and the stack aligned. What the call may change is said, and no more: vector registers 8
// to 15 stay the compiler's own.
inline void call_in_registers(const void* f, register_file& r) {
    uint64_t rdi = r.rdi, rsi = r.rsi, rax;
    asm volatile("vmovaps 0(%[r]), %%ymm0\n\t"
                 "vmovaps 32(%[r]), %%ymm1\n\t"
                 "vmovaps 64(%[r]), %%ymm2\n\t"
                 "vmovaps 96(%[r]), %%ymm3\n\t"
                 "mov %%rsp, %%r12\n\t"
                 "lea -128(%%rsp), %%rsp\n\t"
                 "and $-16, %%rsp\n\t"
                 "call *%[f]\n\t"
                 "mov %%r12, %%rsp\n\t"
                 "vmovaps %%ymm0, 0(%[r])\n\t"
                 "vmovaps %%ymm1, 32(%[r])\n\t"
                 "vmovaps %%ymm2, 64(%[r])\n\t"
                 "vmovaps %%ymm3, 96(%[r])"
                 : "+D"(rdi), "+S"(rsi), "=&a"(rax)
                 : [f] "b"(f), [r] "r"(&r)
                 : "rcx", "rdx", "r8", "r9", "r10", "r11", "r12", "xmm0", "xmm1", "xmm2", "xmm3", "xmm4", "xmm5",
                   "xmm6", "xmm7", ORVANE_512_ONLY ORVANE_X87, "memory", "cc");
    r.rax = rax;
}

// Arguments on the stack, the result object behind rdi, an out-object behind rsi.
inline void call_in_memory(const void* f, void* result, void* out, const void* arguments, uint64_t bytes) {
    asm volatile("mov %%rsp, %%r12\n\t"
                 "lea -128(%%rsp), %%rsp\n\t"
                 "sub %%rcx, %%rsp\n\t"
                 "and $-16, %%rsp\n\t"
                 "mov %%rdi, %%r13\n\t"
                 "mov %%rsp, %%rdi\n\t"
                 "cld\n\t"
                 "rep movsb\n\t"
                 "mov %%r13, %%rdi\n\t"
                 "mov %%rdx, %%rsi\n\t"
                 "call *%[f]\n\t"
                 "mov %%r12, %%rsp"
                 : "+D"(result), "+S"(arguments), "+c"(bytes), "+d"(out)
                 : [f] "b"(f)
                 : "rax", "r8", "r9", "r10", "r11", "r12", "r13", "xmm0", "xmm1", "xmm2", "xmm3", "xmm4", "xmm5",
                   "xmm6", "xmm7", ORVANE_XMM_8_TO_15, ORVANE_X87, "memory", "cc");
}
#undef ORVANE_X87
#undef ORVANE_XMM_8_TO_15
#undef ORVANE_512_ONLY

template <class V> inline constexpr int registers_of = (sizeof(V) + 31) / 32;
template <class T, int W> inline constexpr bool in_integer_register = W == 1 && std::is_integral_v<T>;

template <class... R> struct results_of {
    template <int W, class... A>
    static void call(const void* f, void* out, vec<R, W>&... results, const vec<A, W>&... arguments) {
        constexpr bool in_memory = (registers_of<vec<A, W>> + ...) > 4 || (registers_of<vec<R, W>> + ...) > 4;
        if constexpr (in_memory) {
            unsigned char stack[(sizeof(vec<A, W>) + ...)], object[(sizeof(vec<R, W>) + ...)];
            size_t at = 0;
            ((std::memcpy(stack + at, &arguments, sizeof arguments), at += sizeof arguments), ...);
            call_in_memory(f, object, out, stack, sizeof stack);
            at = 0;
            ((std::memcpy(&results, object + at, sizeof results), at += sizeof results), ...);
        } else {
            register_file r{};
            uint64_t* integer = out ? &r.rsi : &r.rdi;
            if (out) r.rdi = (uint64_t)out;
            int vector = 0;
            auto pass = [&]<class T>(const vec<T, W>& a) {
                if constexpr (in_integer_register<T, W>) std::memcpy(integer++, &a, sizeof a);
                else {
                    std::memcpy(r.vector[vector], &a, sizeof a);
                    vector += registers_of<vec<T, W>>;
                }
            };
            (pass(arguments), ...);
            call_in_registers(f, r);
            vector = 0;
            int byte = 0;
            auto take = [&]<class T>(vec<T, W>& y) {
                if constexpr (in_integer_register<T, W>) {
                    std::memcpy(&y, (const char*)&r.rax + byte, sizeof y);
                    byte += sizeof y;
                } else {
                    std::memcpy(&y, r.vector[vector], sizeof y);
                    vector += registers_of<vec<T, W>>;
                }
            };
            (take(results), ...);
        }
    }
};

} // namespace detail

// One result of lane type R.
template <class R, int W, class... A> vec<R, W> call(const void* f, const vec<A, W>&... arguments) {
    vec<R, W> y;
    detail::results_of<R>::template call<W, A...>(f, nullptr, y, arguments...);
    return y;
}
// Two results: sincosreg, idivrem, udivrem.
template <class R, int W, class... A>
std::pair<vec<R, W>, vec<R, W>> call_pair(const void* f, const vec<A, W>&... arguments) {
    std::pair<vec<R, W>, vec<R, W>> y;
    detail::results_of<R, R>::template call<W, A...>(f, nullptr, y.first, y.second, arguments...);
    return y;
}
// One result, and an out-lane: fract, frexp, lgammar, modf, remquo, sincos.
template <class R, int W, class P, class... A>
vec<R, W> call_out(const void* f, vec<P, W>& out, const vec<A, W>&... arguments) {
    vec<R, W> y;
    detail::results_of<R>::template call<W, A...>(f, &out, y, arguments...);
    return y;
}

} // namespace orvane
