// How lanes reach and leave an instance: signatures, the register form and the memory form.
//
// In the register form vector arguments lie in consecutive vector registers from 0, results likewise; integer
// arguments and results at W = 1 and out-pointers travel in integer registers. The memory form serves the exports
// whose arguments together, or results together, need more than four 256-bit vectors: arguments lie on the stack
// without gaps, results go to an object that the first integer register points to.
#pragma once

#include "lanes.h"

#include <cstddef>
#include <tuple>

namespace orvane {

template <class... T> struct types {
    static constexpr int count = sizeof...(T);
    template <int I> using at = std::tuple_element_t<I, std::tuple<T...>>;
};
struct no_type {};

// Arguments, results in registers (or in the result object), and what is stored through an out-pointer.
template <class Arguments, class Results, class Out = no_type> struct signature {
    using arguments = Arguments;
    using results = Results;
    using out = Out;
    static constexpr bool has_out = !std::is_same_v<Out, no_type>;
};

template <class T> using one_argument = signature<types<T>, types<T>>;
template <class T> using two_arguments = signature<types<T, T>, types<T>>;
template <class T> using three_arguments = signature<types<T, T, T>, types<T>>;
template <class T> using with_integer = signature<types<T, int32_t>, types<T>>;
template <class T> using to_integer = signature<types<T>, types<int32_t>>;
template <class T, class P = T> using pointer_out = signature<types<T>, types<T>, P>;
template <class T> using two_pointer_out = signature<types<T, T>, types<T>, int32_t>;
template <class T> using pair_result = signature<types<T>, types<T, T>>;
template <class I> using integer = signature<types<I, I>, types<I>>;
template <class I> using integer_pair = signature<types<I, I>, types<I, I>>;
template <class T> using bits_to_nan = signature<types<uint_of<T>>, types<T>>;
template <class From, class To> using conversion = signature<types<From>, types<To>>;
// From a 64-bit type to a 32-bit one, where the formula takes the lanes of two registers at a time from W = 8 on.
template <class From, class To> struct narrowing : conversion<From, To> { static constexpr int lanes_at_once = 8; };

// Lanes stored for a W-wide vector: a 3-wide one is stored whole.
constexpr int stored(int W) { return W == 3 ? 4 : W; }
template <class T> constexpr int registers_of(int W) { return sizeof(T) * stored(W) > 32 ? sizeof(T) * W / 32 : 1; }

template <class List> struct totals;
template <class... T> struct totals<types<T...>> {
    static constexpr int widest = ((sizeof(T) == 8) || ...) ? 8 : 4;
    static constexpr int bytes(int W) { return (int(sizeof(T) * stored(W)) + ... + 0); }
    static constexpr int registers(int W) { return (registers_of<T>(W) + ... + 0); }
};

// What an instance of signature S at width W looks like from outside, and the lanes of its chunks inside: the formula
// runs on one register of the widest lane type at a time.
template <class S, int W> struct layout {
    using arguments = typename S::arguments;
    using results = typename S::results;
    using out = typename S::out;

    static constexpr bool in_memory = totals<arguments>::registers(W) > 4 || totals<results>::registers(W) > 4;
    static constexpr int widest = [] {
        bool long_out = false;
        if constexpr (S::has_out) long_out = sizeof(out) == 8;
        return long_out || totals<arguments>::widest == 8 || totals<results>::widest == 8 ? 8 : 4;
    }();
    static constexpr int at_once = [] {
        if constexpr (requires { S::lanes_at_once; }) return S::lanes_at_once;
        else return 32 / widest;
    }();
    static constexpr int chunk = W < at_once ? W : at_once; // lanes of one chunk
    static constexpr int chunks = W / chunk;

    template <class T> static constexpr bool in_integer_register = W == 1 && !is_floating<T>;
    static constexpr bool integer_result = in_integer_register<typename results::template at<0>>;
};

// Lane 3 of a 3-wide vector set to `spare`, low lanes copied up where they do not fill the register.
template <int W, class T> ORVANE_INLINE lanes<T, W> admit(lanes<T, W> x, T spare) {
    using V = lanes<T, W>;
    if constexpr (W == 3) {
        if constexpr (sizeof(T) == 4) return (typename V::raw)_mm_blend_ps((__m128)x.v, (__m128)V(spare).v, 8);
        else return (typename V::raw)_mm256_blend_pd((__m256d)x.v, (__m256d)V(spare).v, 8);
    } else if constexpr (W == 1 && sizeof(T) == 4) return (typename V::raw)_mm_broadcastss_ps((__m128)x.v);
    else if constexpr (W * sizeof(T) == 8) return (typename V::raw)_mm_movedup_pd((__m128d)x.v);
    else return x;
}
template <int W, class T> ORVANE_INLINE two_registers<T, W> admit(two_registers<T, W> x, T) { return x; }

// The low or high part of a 256-bit register, or all of it, as `lanes<T, W>`.
template <class T, int W> ORVANE_INLINE lanes<T, W> part(__m256 reg, [[maybe_unused]] int half) {
    using V = lanes<T, W>;
    if constexpr (V::is_wide) return (typename V::raw)reg;
    else if (half) return (typename V::raw)_mm256_extractf128_ps(reg, 1);
    else return (typename V::raw)_mm256_castps256_ps128(reg);
}

// Exactly the lanes of one chunk, from or to memory of any alignment.
template <class T, int W> ORVANE_INLINE lanes<T, W> load_lanes(const void* at) {
    using raw = typename lanes<T, W>::raw;
    constexpr int bytes = sizeof(T) * stored(W);
    if constexpr (bytes == 32) return (raw)_mm256_loadu_si256((const __m256i_u*)at);
    else if constexpr (bytes == 16) return (raw)_mm_loadu_si128((const __m128i_u*)at);
    else if constexpr (bytes == 8) return (raw)_mm_loadu_si64(at);
    else return (raw)_mm_loadu_si32(at);
}
template <class T, int W> ORVANE_INLINE void store_lanes(void* at, lanes<T, W> x) {
    constexpr int bytes = sizeof(T) * stored(W);
    if constexpr (bytes == 32) _mm256_storeu_si256((__m256i_u*)at, (__m256i)x.v);
    else if constexpr (bytes == 16) _mm_storeu_si128((__m128i_u*)at, (__m128i)x.v);
    // The part stores are written out: taken as an element, the value would be moved, or kept in memory.
    else if constexpr (bytes == 8) {
        typedef uint64_t word [[gnu::may_alias, gnu::aligned(1)]];
        asm("vmovq %1, %0" : "=m"(*(word*)at) : "x"(x.v));
    } else {
        typedef uint32_t word [[gnu::may_alias, gnu::aligned(1)]];
        asm("vmovd %1, %0" : "=m"(*(word*)at) : "x"(x.v));
    }
}

// The first parameter of the memory form beside its pointers: all arguments, by value, on the stack.
template <int Bytes> struct stack_arguments { alignas(8) unsigned char bytes[Bytes]; };

// Every register-form export has the same C parameters: two integer registers and vector registers 0 to 3, whatever
// part of them its signature fills.
template <class S, int W> using first_vector =
    std::conditional_t<layout<S, W>::in_memory, stack_arguments<totals<typename S::arguments>::bytes(W)>, __m256>;
template <class S, int W> using entry_result =
    std::conditional_t<layout<S, W>::in_memory, void*,
                       std::conditional_t<layout<S, W>::integer_result, uint64_t, __m256>>;

// What came in: argument J's lanes of chunk I, by form.
template <class S, int W> struct incoming {
    using L = layout<S, W>;
    using arguments = typename S::arguments;
    uint64_t integer[2];
    const unsigned char* stack;
    __m256 vector[4];

    template <int J, int I> ORVANE_INLINE auto chunk() const {
        using T = typename arguments::template at<J>;
        constexpr int C = L::chunk;
        constexpr auto before = []<int... K>(std::integer_sequence<int, K...>) {
            return std::pair{(registers_of<typename arguments::template at<K>>(W) + ... + 0),
                             (int(sizeof(typename arguments::template at<K>) * stored(W)) + ... + 0)};
        }
        (std::make_integer_sequence<int, J>{});
        if constexpr (L::in_memory) return load_lanes<T, C>(stack + before.second + sizeof(T) * C * I);
        else if constexpr (L::template in_integer_register<T>) {
            // Integer registers count by themselves: with a floating first argument n is in the first of them.
            constexpr int n = is_floating<typename arguments::template at<0>> ? J - 1 : J;
            return lanes<T, C>((typename lanes<T, C>::raw)_mm_cvtsi64_si128((long long)integer[n]));
        } else if constexpr (sizeof(T) * C > 32) {
            constexpr int n = before.first + 2 * I;
            return two_registers<T, C>{part<T, C / 2>(vector[n], 0), part<T, C / 2>(vector[n + 1], 0)};
        } else {
            constexpr int byte = sizeof(T) * C * I;
            return part<T, C>(vector[before.first + byte / 32], byte % 32 / 16);
        }
    }
};

// Results in vector registers 0 to 3. A C function returns one register; the others are variables pinned to theirs
// and named by an empty asm. This leans on two things that hold in GCC and are not promised by the language: a local
// register variable is in its register where an asm names it as an operand, and nothing moves between this asm, which
// is the last statement before the return, and the return itself, which only puts r[0] into register 0. The test of
// calling forms looks at every export's registers.
template <int N> ORVANE_INLINE __m256 leave_in_registers(const __m256 (&r)[4]) {
    if constexpr (N == 2) {
        register __m256 r1 asm("ymm1") = r[1];
        asm volatile("" : : "x"(r1));
    } else if constexpr (N > 2) {
        register __m256 r1 asm("ymm1") = r[1];
        register __m256 r2 asm("ymm2") = r[2];
        register __m256 r3 asm("ymm3") = r[3];
        asm volatile("" : : "x"(r1), "x"(r2), "x"(r3));
    }
    return r[0];
}

// Writing an xmm register clears the upper half of its ymm register; 8 to 15 are not touched.
ORVANE_INLINE void clear_upper_halves_0_to_7() {
    asm volatile("vxorps %%xmm0, %%xmm0, %%xmm0\n\t"
                 "vxorps %%xmm1, %%xmm1, %%xmm1\n\t"
                 "vxorps %%xmm2, %%xmm2, %%xmm2\n\t"
                 "vxorps %%xmm3, %%xmm3, %%xmm3\n\t"
                 "vxorps %%xmm4, %%xmm4, %%xmm4\n\t"
                 "vxorps %%xmm5, %%xmm5, %%xmm5\n\t"
                 "vxorps %%xmm6, %%xmm6, %%xmm6\n\t"
                 "vxorps %%xmm7, %%xmm7, %%xmm7"
                 :
                 :
                 : "xmm0", "xmm1", "xmm2", "xmm3", "xmm4", "xmm5", "xmm6", "xmm7");
}
ORVANE_INLINE void clear_upper_state() {
    asm volatile("vzeroupper" : : : "xmm0", "xmm1", "xmm2", "xmm3", "xmm4", "xmm5", "xmm6", "xmm7", "memory");
}

// Hands results over. R is one tuple per chunk: the results, then the out-lanes where the signature has them.
template <class S, int W, class R, size_t N>
ORVANE_INLINE entry_result<S, W> hand_over(const R (&r)[N], void* result_object, void* out) {
    using L = layout<S, W>;
    using results = typename S::results;
    constexpr int C = L::chunk;
    if constexpr (S::has_out) {
        using P = typename S::out;
        // One store per 256 bits: chunks that fill only half a register are joined first.
        if constexpr (L::chunks > 1 && sizeof(P) * C == 16)
            each<L::chunks / 2>([&](auto i) ORVANE_LAMBDA {
                store_lanes((P*)out + 2 * C * i,
                            join(std::get<results::count>(r[2 * i]), std::get<results::count>(r[2 * i + 1])));
            });
        else
            each<L::chunks>(
                [&](auto i) ORVANE_LAMBDA { store_lanes<P, C>((P*)out + C * i, std::get<results::count>(r[i])); });
    }
    if constexpr (L::in_memory) {
        each<results::count>([&](auto j) ORVANE_LAMBDA {
            using T = typename results::template at<j>;
            each<L::chunks>([&](auto i) ORVANE_LAMBDA {
                store_lanes<T, C>((T*)((char*)result_object + j * sizeof(T) * W) + C * i, std::get<j>(r[i]));
            });
        });
        clear_upper_state();
        return result_object;
    } else if constexpr (L::integer_result) {
        using T = typename results::template at<0>;
        uint64_t value = (uint_of<T>)std::get<0>(r[0]).v[0];
        if constexpr (results::count == 2) value |= uint64_t((uint32_t)std::get<1>(r[0]).v[0]) << 32;
        asm("" : "+r"(value)); // out of the vector registers before they are cleared
        // These have no vector result and integer arguments alone: the one case where the register form clears.
        if constexpr (!is_floating<typename S::arguments::template at<0>>) clear_upper_halves_0_to_7();
        return value;
    } else {
        __m256 registers[4];
        int n = 0;
        each<results::count>([&](auto j) ORVANE_LAMBDA {
            using T = typename results::template at<j>;
            using V = lanes<T, C>;
            if constexpr (V::is_wide)
                each<L::chunks>([&](auto i) ORVANE_LAMBDA { registers[n++] = (__m256)std::get<j>(r[i]).v; });
            else if constexpr (L::chunks == 1) registers[n++] = _mm256_castps128_ps256((__m128)std::get<j>(r[0]).v);
            else
                each<L::chunks / 2>([&](auto i) ORVANE_LAMBDA {
                    registers[n++] = (__m256)join(std::get<j>(r[2 * i]), std::get<j>(r[2 * i + 1])).v;
                });
        });
        return leave_in_registers<totals<results>::registers(W)>(registers);
    }
}

} // namespace orvane
