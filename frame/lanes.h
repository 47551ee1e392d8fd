// Lane vectors: the values that kernels compute with, and every operation on them.
//
// lanes<T, W> is W lanes of T in one vector register. A register that W lanes do not fill (T = float at W = 1, 2;
// double at W = 1; a 32-bit type beside a 64-bit one at W = 1, 2) holds copies of its low lanes above them, and a
// 3-wide vector its spare lane, so that every operation runs on whole 128-bit or 256-bit registers and no width
// needs scalar code. A kernel is written once with W as a parameter; only table lookups (lookups.h), which take one
// load per live lane, look at W.
//
// Every function here is one operation of the processor or a fixed few of them, and rounds where the name says so.
// Operations are found through their operands (hidden friends), so that a constant slot may stand for any of them.
#pragma once

#include "scheduling.h"

#include <bit>
#include <cstdint>
#include <immintrin.h>
#include <type_traits>
#include <utility>

namespace orvane {

template <class T> inline constexpr bool is_floating = std::is_floating_point_v<T>;

// The signed and unsigned integers of T's size: comparison results and bit patterns.
template <int Bytes> struct sized;
template <> struct sized<4> {
    using i = int32_t;
    using u = uint32_t;
};
template <> struct sized<8> {
    using i = int64_t;
    using u = uint64_t;
};
template <class T> using int_of = typename sized<sizeof(T)>::i;
template <class T> using uint_of = typename sized<sizeof(T)>::u;

// The vector registers: GCC's vector types, which have the arithmetic, bit and compare operators built in.
template <class T, int Bytes> struct register_of;
#define ORVANE_REGISTER(T, bytes)                                                                                    \
    template <> struct register_of<T, bytes> { typedef T type __attribute__((vector_size(bytes), may_alias)); };
ORVANE_REGISTER(float, 16)
ORVANE_REGISTER(float, 32)
ORVANE_REGISTER(double, 16)
ORVANE_REGISTER(double, 32)
ORVANE_REGISTER(int32_t, 16)
ORVANE_REGISTER(int32_t, 32)
ORVANE_REGISTER(uint32_t, 16)
ORVANE_REGISTER(uint32_t, 32)
ORVANE_REGISTER(int64_t, 16)
ORVANE_REGISTER(int64_t, 32)
ORVANE_REGISTER(uint64_t, 16)
ORVANE_REGISTER(uint64_t, 32)
#undef ORVANE_REGISTER

// Calls f(0), f(1), ... f(N - 1), the index being a compile-time constant.
template <int N, class F> ORVANE_INLINE constexpr void each(F&& f) {
    [&]<int... I>(std::integer_sequence<int, I...>) ORVANE_LAMBDA { (f(std::integral_constant<int, I>{}), ...); }
    (std::make_integer_sequence<int, N>{});
}

enum rounding : int { to_nearest = 0, downward = 1, upward = 2, toward_zero = 3, by_mode = 4, by_mode_quietly = 12 };

enum comparison : int { LT = 17, LE = 18, NLT = 21, NLE = 22, EQ = 0, NEQ = 4, ORD = 7, UNORD = 3 };

// -a as an operand: a fused product takes the sign into the instruction, which leaves a NaN as it is; anywhere else
// the sign bit is turned.
template <class V> struct negated {
    V value;
    ORVANE_INLINE operator V() const { return -value.v; }
};

template <class T, int W> struct lanes {
    static_assert(W == 1 || W == 2 || W == 3 || W == 4 || W == 8);
    static_assert(sizeof(T) * W <= 32, "a lane vector is one register: use by_halves");

    using element = T;
    static constexpr int width = W;
    static constexpr int bytes = sizeof(T) * W > 16 ? 32 : 16;
    static constexpr int capacity = bytes / sizeof(T);
    static constexpr bool is_wide = bytes == 32;
    using raw = typename register_of<T, bytes>::type;
    using mask = lanes<int_of<T>, W>;

    raw v;

    lanes() = default;
    // Copies go by the register and not by the object, which the compiler would at times leave in memory.
    ORVANE_INLINE lanes(const lanes& o) : v(o.v) {}
    ORVANE_INLINE lanes& operator=(const lanes& o) {
        v = o.v;
        return *this;
    }
    ORVANE_INLINE lanes(raw r) : v(r) {}
    ORVANE_INLINE lanes(T x) : v(repeat(x, std::make_integer_sequence<int, capacity>{})) {}

    template <int... I> static ORVANE_INLINE raw repeat(T x, std::integer_sequence<int, I...>) {
        return raw{((void)I, x)...};
    }

    // The register under the types that the intrinsics name.
    using integer_register = std::conditional_t<is_wide, __m256i, __m128i>;
    static ORVANE_INLINE lanes from(integer_register r) { return (raw)r; }

    friend ORVANE_INLINE lanes operator+(lanes a, lanes b) { return a.v + b.v; }
    friend ORVANE_INLINE lanes operator-(lanes a, lanes b) { return a.v - b.v; }
    friend ORVANE_INLINE lanes operator*(lanes a, lanes b) { return a.v * b.v; }
    friend ORVANE_INLINE lanes operator/(lanes a, lanes b) requires is_floating<T> { return a.v / b.v; }
    friend ORVANE_INLINE negated<lanes> operator-(lanes a) { return {a}; }

    // Bit operations; on floating lanes they act on the patterns.
    friend ORVANE_INLINE lanes operator&(lanes a, lanes b) {
        if constexpr (std::is_same_v<T, float> && is_wide) return _mm256_and_ps(a.v, b.v);
        else if constexpr (std::is_same_v<T, float>) return _mm_and_ps(a.v, b.v);
        else if constexpr (std::is_same_v<T, double> && is_wide) return _mm256_and_pd(a.v, b.v);
        else if constexpr (std::is_same_v<T, double>) return _mm_and_pd(a.v, b.v);
        else return a.v & b.v;
    }
    friend ORVANE_INLINE lanes operator|(lanes a, lanes b) {
        if constexpr (std::is_same_v<T, float> && is_wide) return _mm256_or_ps(a.v, b.v);
        else if constexpr (std::is_same_v<T, float>) return _mm_or_ps(a.v, b.v);
        else if constexpr (std::is_same_v<T, double> && is_wide) return _mm256_or_pd(a.v, b.v);
        else if constexpr (std::is_same_v<T, double>) return _mm_or_pd(a.v, b.v);
        else return a.v | b.v;
    }
    friend ORVANE_INLINE lanes operator^(lanes a, lanes b) {
        if constexpr (std::is_same_v<T, float> && is_wide) return _mm256_xor_ps(a.v, b.v);
        else if constexpr (std::is_same_v<T, float>) return _mm_xor_ps(a.v, b.v);
        else if constexpr (std::is_same_v<T, double> && is_wide) return _mm256_xor_pd(a.v, b.v);
        else if constexpr (std::is_same_v<T, double>) return _mm_xor_pd(a.v, b.v);
        else return a.v ^ b.v;
    }
    // b with the bits of a taken out: NOT a AND b.
    friend ORVANE_INLINE lanes andnot(lanes a, lanes b) {
        if constexpr (std::is_same_v<T, float> && is_wide) return _mm256_andnot_ps(a.v, b.v);
        else if constexpr (std::is_same_v<T, float>) return _mm_andnot_ps(a.v, b.v);
        else if constexpr (std::is_same_v<T, double> && is_wide) return _mm256_andnot_pd(a.v, b.v);
        else if constexpr (std::is_same_v<T, double>) return _mm_andnot_pd(a.v, b.v);
        else return ~a.v & b.v;
    }
    friend ORVANE_INLINE lanes operator~(lanes a) requires(!is_floating<T>) { return ~a.v; }

    // Shifts: logical on unsigned lanes, arithmetic on signed ones; by one count for all lanes, or by one per lane.
    friend ORVANE_INLINE lanes operator<<(lanes a, int n) requires(!is_floating<T>) { return a.v << (T)n; }
    friend ORVANE_INLINE lanes operator>>(lanes a, int n) requires(!is_floating<T>) { return a.v >> (T)n; }
    // A count at or above the lane's width gives 0 (the processor's rule), where a built-in shift is undefined.
    friend ORVANE_INLINE lanes shift_left(lanes a, lanes n) requires(!is_floating<T>) {
        if constexpr (sizeof(T) == 4 && is_wide) return from(_mm256_sllv_epi32((__m256i)a.v, (__m256i)n.v));
        else if constexpr (sizeof(T) == 4) return from(_mm_sllv_epi32((__m128i)a.v, (__m128i)n.v));
        else if constexpr (is_wide) return from(_mm256_sllv_epi64((__m256i)a.v, (__m256i)n.v));
        else return from(_mm_sllv_epi64((__m128i)a.v, (__m128i)n.v));
    }

    // Comparisons give a lane of ones or of zeros. Those of integers are hidden from the compiler, which would turn
    // an OR with one into a blend.
    template <comparison P> static ORVANE_INLINE mask compare(lanes a, lanes b) requires is_floating<T> {
        if constexpr (std::is_same_v<T, float> && is_wide) return (typename mask::raw)_mm256_cmp_ps(a.v, b.v, P);
        else if constexpr (std::is_same_v<T, float>) return (typename mask::raw)_mm_cmp_ps(a.v, b.v, P);
        else if constexpr (is_wide) return (typename mask::raw)_mm256_cmp_pd(a.v, b.v, P);
        else return (typename mask::raw)_mm_cmp_pd(a.v, b.v, P);
    }
    friend ORVANE_INLINE mask operator<(lanes a, lanes b) {
        if constexpr (is_floating<T>) return compare<LT>(a, b);
        else return mask(detail::in_register((typename mask::raw)(a.v < b.v)));
    }
    friend ORVANE_INLINE mask operator<=(lanes a, lanes b) {
        if constexpr (is_floating<T>) return compare<LE>(a, b);
        else return mask(detail::in_register((typename mask::raw)(a.v <= b.v)));
    }
    friend ORVANE_INLINE mask operator>(lanes a, lanes b) { return b < a; }
    friend ORVANE_INLINE mask operator>=(lanes a, lanes b) { return b <= a; }
    friend ORVANE_INLINE mask operator==(lanes a, lanes b) {
        if constexpr (is_floating<T>) return compare<EQ>(a, b);
        else return mask(detail::in_register((typename mask::raw)(a.v == b.v)));
    }
    // For floating lanes also true of an unordered pair.
    friend ORVANE_INLINE mask operator!=(lanes a, lanes b) {
        if constexpr (is_floating<T>) return compare<NEQ>(a, b);
        else return mask((typename mask::raw)(a.v != b.v));
    }
    // The negated comparisons, true of a NaN.
    friend ORVANE_INLINE mask not_less(lanes a, lanes b) requires is_floating<T> { return compare<NLT>(a, b); }
    friend ORVANE_INLINE mask not_less_equal(lanes a, lanes b) requires is_floating<T> { return compare<NLE>(a, b); }
    friend ORVANE_INLINE mask ordered(lanes a, lanes b) requires is_floating<T> { return compare<ORD>(a, b); }
    friend ORVANE_INLINE mask is_nan(lanes a) requires is_floating<T> { return compare<UNORD>(a, a); }

    // a where the sign bit of m is set, else b. The instruction itself: from two selections by one mask the compiler
    // would make a comparison of the mask with 0 first.
    friend ORVANE_INLINE lanes select(mask m, lanes a, lanes b) {
        raw chosen;
        if constexpr (sizeof(T) == 4) asm("vblendvps %3, %2, %1, %0" : "=x"(chosen) : "x"(b.v), "xm"(a.v), "x"(m.v));
        else asm("vblendvpd %3, %2, %1, %0" : "=x"(chosen) : "x"(b.v), "xm"(a.v), "x"(m.v));
        return chosen;
    }
    // a where m is all ones, else +0: an AND.
    friend ORVANE_INLINE lanes keep(mask m, lanes a) { return lanes((raw)m.v) & a; }

    // a * b + c with one rounding.
    friend ORVANE_INLINE lanes fma(lanes a, lanes b, lanes c) requires is_floating<T> {
        if constexpr (std::is_same_v<T, float> && is_wide) return _mm256_fmadd_ps(a.v, b.v, c.v);
        else if constexpr (std::is_same_v<T, float>) return _mm_fmadd_ps(a.v, b.v, c.v);
        else if constexpr (is_wide) return _mm256_fmadd_pd(a.v, b.v, c.v);
        else return _mm_fmadd_pd(a.v, b.v, c.v);
    }

    // -a * b + c with one rounding. Written out, since the compiler turns the sign of an a that serves twice in an
    // instruction of its own.
    friend ORVANE_INLINE lanes fma(negated<lanes> a, lanes b, lanes c) requires is_floating<T> {
        if constexpr (std::is_same_v<T, float>)
            asm("vfnmadd231ps %2, %1, %0" : "+x"(c.v) : "x"(a.value.v), "xm"(b.v));
        else asm("vfnmadd231pd %2, %1, %0" : "+x"(c.v) : "x"(a.value.v), "xm"(b.v));
        return c;
    }

    // fma with its operands held in order: of several NaN the first is the answer, where the compiler may exchange
    // the factors of the other form from one width to the next.
    friend ORVANE_INLINE lanes fma_in_order(lanes a, lanes b, lanes c) requires is_floating<T> {
        if constexpr (std::is_same_v<T, float>) asm("vfmadd231ps %2, %1, %0" : "+x"(c.v) : "x"(a.v), "xm"(b.v));
        else asm("vfmadd231pd %2, %1, %0" : "+x"(c.v) : "x"(a.v), "xm"(b.v));
        return c;
    }

    friend ORVANE_INLINE lanes sqrt(lanes a) requires is_floating<T> {
        if constexpr (std::is_same_v<T, float> && is_wide) return _mm256_sqrt_ps(a.v);
        else if constexpr (std::is_same_v<T, float>) return _mm_sqrt_ps(a.v);
        else if constexpr (is_wide) return _mm256_sqrt_pd(a.v);
        else return _mm_sqrt_pd(a.v);
    }
    // The processor's 12-bit estimates of 1 / a and 1 / sqrt(a); their low bits differ between processors.
    friend ORVANE_INLINE lanes reciprocal_estimate(lanes a) requires std::is_same_v<T, float> {
        if constexpr (is_wide) return _mm256_rcp_ps(a.v);
        else return _mm_rcp_ps(a.v);
    }
    friend ORVANE_INLINE lanes rsqrt_estimate(lanes a) requires std::is_same_v<T, float> {
        if constexpr (is_wide) return _mm256_rsqrt_ps(a.v);
        else return _mm_rsqrt_ps(a.v);
    }

    // Floating lanes: a if a < b (a > b), else b, so that b is the answer on a tie and on a NaN.
    friend ORVANE_INLINE lanes min(lanes a, lanes b) {
        if constexpr (std::is_same_v<T, float> && is_wide) return _mm256_min_ps(a.v, b.v);
        else if constexpr (std::is_same_v<T, float>) return _mm_min_ps(a.v, b.v);
        else if constexpr (std::is_same_v<T, double> && is_wide) return _mm256_min_pd(a.v, b.v);
        else if constexpr (std::is_same_v<T, double>) return _mm_min_pd(a.v, b.v);
        else return a.v < b.v ? a.v : b.v;
    }
    friend ORVANE_INLINE lanes max(lanes a, lanes b) {
        if constexpr (std::is_same_v<T, float> && is_wide) return _mm256_max_ps(a.v, b.v);
        else if constexpr (std::is_same_v<T, float>) return _mm_max_ps(a.v, b.v);
        else if constexpr (std::is_same_v<T, double> && is_wide) return _mm256_max_pd(a.v, b.v);
        else if constexpr (std::is_same_v<T, double>) return _mm_max_pd(a.v, b.v);
        else return a.v > b.v ? a.v : b.v;
    }

    // Even lanes of one and odd lanes of the other.
    friend ORVANE_INLINE lanes alternate(lanes even, lanes odd) requires(sizeof(T) == 4) {
        if constexpr (is_wide) return from(_mm256_blend_epi32((__m256i)even.v, (__m256i)odd.v, 0xAA));
        else return from(_mm_blend_epi32((__m128i)even.v, (__m128i)odd.v, 0xA));
    }

    // The product of the low 32 bits of each 64-bit lane, exact in 64 bits.
    friend ORVANE_INLINE lanes multiply_low_words(lanes a, lanes b) requires(sizeof(T) == 8 && !is_floating<T>) {
        if constexpr (std::is_signed_v<T> && is_wide) return from(_mm256_mul_epi32((__m256i)a.v, (__m256i)b.v));
        else if constexpr (std::is_signed_v<T>) return from(_mm_mul_epi32((__m128i)a.v, (__m128i)b.v));
        else if constexpr (is_wide) return from(_mm256_mul_epu32((__m256i)a.v, (__m256i)b.v));
        else return from(_mm_mul_epu32((__m128i)a.v, (__m128i)b.v));
    }

    // The product of 32-bit lanes below 2^15: one operation, where the whole product takes two.
    friend ORVANE_INLINE lanes multiply_short(lanes a, lanes b) requires(sizeof(T) == 4 && !is_floating<T>) {
        if constexpr (is_wide) return from(_mm256_madd_epi16((__m256i)a.v, (__m256i)b.v));
        else return from(_mm_madd_epi16((__m128i)a.v, (__m128i)b.v));
    }

    // Bit i is the sign of lane i, of all lanes of the register: above W are the copies or the spare lane.
    ORVANE_INLINE unsigned signs() const {
        if constexpr (sizeof(T) == 4 && is_wide) return (unsigned)_mm256_movemask_ps((__m256)v);
        else if constexpr (sizeof(T) == 4) return (unsigned)_mm_movemask_ps((__m128)v);
        else if constexpr (is_wide) return (unsigned)_mm256_movemask_pd((__m256d)v);
        else return (unsigned)_mm_movemask_pd((__m128d)v);
    }
    // All ones in lane i where bit i is set, else 0.
    static ORVANE_INLINE lanes of_bits(unsigned m) requires(!is_floating<T>) {
        const lanes bit = shift_left(lanes(T(1)), counting(std::make_integer_sequence<int, capacity>{}));
        return lanes((raw)((lanes(T(m)) & bit) == bit).v);
    }
    template <int... I> static ORVANE_INLINE lanes counting(std::integer_sequence<int, I...>) { return raw{T(I)...}; }
};

// Special lanes as bits in an integer register from here on: for kernels that are short of vector registers and have
// no further step that wants them as lanes.
template <int W> struct lane_bits {
    unsigned v;
    lane_bits() = default;
    template <class T> ORVANE_INLINE lane_bits(lanes<T, W> m) : v(m.signs()) { asm("" : "+r"(v)); }
    // The lanes outside of a mask.
    template <class T> static ORVANE_INLINE lane_bits not_in(lanes<T, W> m) {
        lane_bits b = m;
        b.v ^= (1u << lanes<T, W>::capacity) - 1;
        return b;
    }
    friend ORVANE_INLINE lane_bits operator|(lane_bits a, lane_bits b) {
        a.v |= b.v;
        return a;
    }
    ORVANE_INLINE unsigned signs() const { return v; }
};

// The rounding instruction with its mode in the immediate.
template <rounding R, class T, int W> ORVANE_INLINE lanes<T, W> round_to(lanes<T, W> a) {
    constexpr bool wide = lanes<T, W>::is_wide;
    if constexpr (std::is_same_v<T, float> && wide) return _mm256_round_ps(a.v, R);
    else if constexpr (std::is_same_v<T, float>) return _mm_round_ps(a.v, R);
    else if constexpr (wide) return _mm256_round_pd(a.v, R);
    else return _mm_round_pd(a.v, R);
}

// The same bits under another type of the same size.
template <class U, class T, int W> ORVANE_INLINE lanes<U, W> as(lanes<T, W> a) {
    static_assert(sizeof(U) == sizeof(T));
    return (typename lanes<U, W>::raw)a.v;
}
template <class T, int W> ORVANE_INLINE lanes<uint_of<T>, W> bits(lanes<T, W> a) { return as<uint_of<T>>(a); }
template <class T, int W> ORVANE_INLINE lanes<int_of<T>, W> signed_bits(lanes<T, W> a) { return as<int_of<T>>(a); }

// y under the sign of x, by an OR: -0 for x = -0. The mask is read here, where one that a kernel reads for other
// steps too would stay in a register in between.
template <class T, int W> ORVANE_INLINE lanes<T, W> with_sign_of(lanes<T, W> y, lanes<T, W> x) {
    return y | (x & lanes<T, W>(T(-0.0)));
}

// |a| as an unsigned integer, which holds that of the most negative value too.
template <int W> ORVANE_INLINE lanes<uint32_t, W> magnitude(lanes<int32_t, W> a) {
    if constexpr (lanes<int32_t, W>::is_wide) return lanes<uint32_t, W>::from(_mm256_abs_epi32((__m256i)a.v));
    else return lanes<uint32_t, W>::from(_mm_abs_epi32((__m128i)a.v));
}
template <int W> ORVANE_INLINE lanes<uint64_t, W> magnitude(lanes<int64_t, W> a) {
    return bits(select(a, lanes<int64_t, W>(0) - a, a));
}

// Halves of a full 256-bit register, and back.
template <class T, int W> ORVANE_INLINE lanes<T, W / 2> low_half(lanes<T, W> a) {
    static_assert(W == lanes<T, W>::capacity && lanes<T, W>::is_wide);
    return (typename lanes<T, W / 2>::raw) _mm256_castsi256_si128((__m256i)a.v);
}
template <class T, int W> ORVANE_INLINE lanes<T, W / 2> high_half(lanes<T, W> a) {
    static_assert(W == lanes<T, W>::capacity && lanes<T, W>::is_wide);
    return (typename lanes<T, W / 2>::raw) _mm256_extracti128_si256((__m256i)a.v, 1);
}
template <class T, int W> ORVANE_INLINE lanes<T, 2 * W> join(lanes<T, W> low, lanes<T, W> high) {
    static_assert(W == lanes<T, W>::capacity && !lanes<T, W>::is_wide);
    return (typename lanes<T, 2 * W>::raw) _mm256_set_m128i((__m128i)high.v, (__m128i)low.v);
}

// Conversions of values. To an integer: convert rounds by the caller's mode, truncate toward zero; NaN and values out
// of range give the integer indefinite value (only the sign bit set). From 64-bit to 32-bit integers: the low words.
namespace detail {
template <class U, bool Truncating, class T, int W> ORVANE_INLINE lanes<U, W> convert(lanes<T, W> a) {
    using to = typename lanes<U, W>::raw;
    constexpr bool wide = lanes<T, W>::is_wide || lanes<U, W>::is_wide;
    constexpr bool from_i32 = std::is_same_v<T, int32_t>, from_u32 = std::is_same_v<T, uint32_t>;
    constexpr bool from_f32 = std::is_same_v<T, float>, from_f64 = std::is_same_v<T, double>;
    constexpr bool to_i32 = std::is_same_v<U, int32_t>;
    if constexpr (from_i32 && std::is_same_v<U, float>) {
        if constexpr (wide) return _mm256_cvtepi32_ps((__m256i)a.v);
        else return _mm_cvtepi32_ps((__m128i)a.v);
    } else if constexpr (from_i32 && std::is_same_v<U, double>) {
        if constexpr (wide) return _mm256_cvtepi32_pd((__m128i)a.v);
        else return _mm_cvtepi32_pd((__m128i)a.v);
    } else if constexpr (from_f32 && std::is_same_v<U, double>) {
        if constexpr (wide) return _mm256_cvtps_pd(a.v);
        else return _mm_cvtps_pd(a.v);
    } else if constexpr (from_f64 && std::is_same_v<U, float>) {
        if constexpr (wide) return _mm256_cvtpd_ps(a.v);
        else return _mm_cvtpd_ps(a.v);
    } else if constexpr (from_f32 && to_i32) {
        if constexpr (wide) return (to)(Truncating ? _mm256_cvttps_epi32(a.v) : _mm256_cvtps_epi32(a.v));
        else return (to)(Truncating ? _mm_cvttps_epi32(a.v) : _mm_cvtps_epi32(a.v));
    } else if constexpr (from_f64 && to_i32) {
        if constexpr (wide) return (to)(Truncating ? _mm256_cvttpd_epi32(a.v) : _mm256_cvtpd_epi32(a.v));
        else return (to)(Truncating ? _mm_cvttpd_epi32(a.v) : _mm_cvtpd_epi32(a.v));
    } else if constexpr ((from_i32 || from_u32) && sizeof(U) == 8 && !is_floating<U>) {
        if constexpr (from_i32 && wide) return (to)_mm256_cvtepi32_epi64((__m128i)a.v);
        else if constexpr (from_i32) return (to)_mm_cvtepi32_epi64((__m128i)a.v);
        else if constexpr (wide) return (to)_mm256_cvtepu32_epi64((__m128i)a.v);
        else return (to)_mm_cvtepu32_epi64((__m128i)a.v);
    } else {
        static_assert(sizeof(T) == 8 && sizeof(U) == 4 && !is_floating<T> && !is_floating<U>, "no such conversion");
        if constexpr (wide)
            return (to)_mm_shuffle_ps((__m128)_mm256_castsi256_si128((__m256i)a.v),
                                      (__m128)_mm256_extracti128_si256((__m256i)a.v, 1), 0x88);
        else return (to)_mm_shuffle_epi32((__m128i)a.v, 0x88);
    }
}
} // namespace detail
template <class U, class T, int W> ORVANE_INLINE lanes<U, W> convert(lanes<T, W> a) {
    return detail::convert<U, false>(a);
}
template <class U, class T, int W> ORVANE_INLINE lanes<U, W> truncate(lanes<T, W> a) {
    return detail::convert<U, true>(a);
}

// The 12-bit estimate of 1 / a for double lanes, made in float: 0 or infinite beyond the range of that.
template <int W> ORVANE_INLINE lanes<double, W> reciprocal_estimate(lanes<double, W> a) {
    return convert<double>(reciprocal_estimate(convert<float>(a)));
}

// The 32-bit words of 64-bit lanes.
template <class T, int W> ORVANE_INLINE lanes<uint32_t, W> low_words(lanes<T, W> a) {
    return convert<uint32_t>(bits(a));
}
template <class T, int W> ORVANE_INLINE lanes<uint32_t, W> high_words(lanes<T, W> a) {
    static_assert(sizeof(T) == 8);
    using to = typename lanes<uint32_t, W>::raw;
    if constexpr (lanes<T, W>::is_wide)
        return (to)_mm_shuffle_ps((__m128)_mm256_castsi256_si128((__m256i)a.v),
                                  (__m128)_mm256_extracti128_si256((__m256i)a.v, 1), 0xDD);
    else return (to)_mm_shuffle_epi32((__m128i)a.v, 0xDD);
}
// Eight 64-bit lanes in two registers, for steps that end in 32-bit lanes: these fill one.
template <class T, int W> struct two_registers {
    static_assert(sizeof(T) == 8 && W == 8);
    lanes<T, W / 2> low, high;
};
namespace detail {
// The even or the odd words of two registers, put in order: the shuffle works on halves of registers.
template <int Which, class T, int W> ORVANE_INLINE lanes<uint32_t, W> words_of(two_registers<T, W> a) {
    const __m256 halves = _mm256_shuffle_ps((__m256)a.low.v, (__m256)a.high.v, Which);
    return lanes<uint32_t, W>::from(_mm256_permute4x64_epi64((__m256i)halves, 0xD8));
}
} // namespace detail
template <class T, int W> ORVANE_INLINE lanes<uint32_t, W> low_words(two_registers<T, W> a) {
    return detail::words_of<0x88>(a);
}
template <class T, int W> ORVANE_INLINE lanes<uint32_t, W> high_words(two_registers<T, W> a) {
    return detail::words_of<0xDD>(a);
}

// 64-bit lanes seen as twice as many 32-bit ones, words in memory order, for operations that work on words in place.
template <class U, class T, int W> ORVANE_INLINE auto words_in_place(lanes<T, W> a) {
    static_assert(sizeof(T) == 8 && sizeof(U) == 4);
    constexpr int words = W == 3 ? 8 : 2 * W;
    return lanes<U, words>((typename lanes<U, words>::raw)a.v);
}

// 32-bit lanes two by two seen as 64-bit ones.
template <class U, class T, int W> ORVANE_INLINE auto pairs_in_place(lanes<T, W> a) {
    static_assert(sizeof(T) == 4 && sizeof(U) == 8);
    return lanes<U, W / 2>((typename lanes<U, W / 2>::raw) a.v);
}

// Whether the high word of x under `mask` is greater than `limit`, as signed integers; the comparison runs on all
// words in place, and only the sign of each lane of the result counts, which is all that a special mask and a select
// look at.
template <int W, class M, class L>
ORVANE_INLINE lanes<int64_t, W> high_word_exceeds(lanes<double, W> x, const M& mask, const L& limit) {
    const auto words = (words_in_place<int32_t>(x) & mask) > limit;
    return (typename lanes<int64_t, W>::raw)words.v;
}

// What tests on the fields of floating lanes look at, 32-bit words in their places: a double is its high word, and
// what its low word gives does not count, since the sign of a lane is what marks it.
template <class T, int W> ORVANE_INLINE auto words(lanes<T, W> x) {
    if constexpr (sizeof(T) == 8) return words_in_place<int32_t>(x);
    else return signed_bits(x);
}
// A comparison of such words as lanes of T.
template <class T, int W, class M> ORVANE_INLINE lanes<int_of<T>, W> marked(M m) {
    return (typename lanes<int_of<T>, W>::raw)m.v;
}

// ((highest * x + next) * x + ...) + lowest, every step fused.
template <class T, int W, class A, class... B>
ORVANE_INLINE lanes<T, W> horner(lanes<T, W> x, const A& highest, const B&... lower) {
    lanes<T, W> p = highest;
    ((p = fma(p, x, lower)), ...);
    return p;
}

// f on operands whose 32-bit lanes must be widened to 64 bits: at W = 8 f runs on each half and the results are
// joined; at the lower widths it runs once.
template <class F, class A, int W, class... B> ORVANE_INLINE auto by_halves(F f, lanes<A, W> a, lanes<B, W>... b) {
    if constexpr (W == 8) {
        auto low = finished(f(low_half(a), low_half(b)...));
        return join(low, f(high_half(a), high_half(b)...));
    } else return f(a, b...);
}

// The same where the 64-bit lanes are wanted as they are: at W = 8 in two registers.
template <class F, class A, int W, class... B> ORVANE_INLINE auto widened(F f, lanes<A, W> a, lanes<B, W>... b) {
    if constexpr (W == 8) {
        auto low = finished(f(low_half(a), low_half(b)...));
        return two_registers<typename decltype(low)::element, 8>{low, f(high_half(a), high_half(b)...)};
    } else return f(a, b...);
}

} // namespace orvane
