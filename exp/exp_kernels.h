// Steps that kernels of the exponentials share.
#pragma once

#include "exp/exp_tables.h"
#include "frame/_orvane_template.h"

namespace orvane {

// Lanes above the overflow limit are +Inf and lanes below the underflow limit +0 without a slow path; left to it are
// NaN and the margins where the result overflows or is subnormal only after rounding.
template <class Block, class T, int W, class A>
ORVANE_INLINE A settle_exp_limits(const Block& c, lanes<T, W> x, A a) {
    const auto over = x > c.overflow_limit, under = x < c.underflow_limit;
    a.first = select(over, lanes<T, W>(T(__builtin_inf())), a.first);
    a.first = select(under, lanes<T, W>(T(0)), a.first);
    a.special = andnot(over | under, a.special);
    return a;
}

// Whether |x| is above the ordinary limit, infinite or a NaN: one comparison of patterns, in double of the high words
// alone.
template <class Block, int W> ORVANE_INLINE auto beyond_limit(const Block& c, lanes<double, W> x) {
    return high_word_exceeds(x, c.abs_high_mask, c.ordinary_high_limit);
}
template <class Block, int W> ORVANE_INLINE auto beyond_limit(const Block& c, lanes<float, W> x) {
    return (signed_bits(x) & c.abs_mask) > c.ordinary_limit;
}

// y * 2^k with k in the exponent field of `exponent`: an integer addition to the pattern.
template <class T, int W> ORVANE_INLINE lanes<T, W> add_exponent(lanes<T, W> y, lanes<uint_of<T>, W> exponent) {
    return as<T>(bits(y) + exponent);
}

// The number of the pair (hi, lo): the low bits of t.
template <class Block, int W> ORVANE_INLINE auto pair_index(const Block& c, lanes<double, W> t) {
    return low_words(t) & c.index_mask;
}
template <class Block, int W> ORVANE_INLINE auto pair_index(const Block& c, lanes<float, W> t) {
    return bits(t) & c.index_mask;
}

// (b^r - 1) / r, of degree 4 in double and 1 in float.
template <class V> ORVANE_INLINE V table_polynomial(const auto& c, V r) {
    if constexpr (requires { c.c5; }) return horner(r, c.c5, c.c4, c.c3, c.c2, c.c1);
    else return horner(r, c.c2, c.c1);
}
// 2^v for |v| <= 1/2, of degree 6 in double and 3 in float.
template <class V> ORVANE_INLINE V power_polynomial(const auto& c, V v) {
    if constexpr (requires { c.a6; }) return horner(v, c.a6, c.a5, c.a4, c.a3, c.a2, c.a1, c.a0);
    else return horner(v, c.a3, c.a2, c.a1, c.a0);
}
// 2^v with the integer in the low bits of t added to the exponent.
template <class T, int W> ORVANE_INLINE lanes<T, W> with_low_bits_as_exponent(lanes<T, W> p, lanes<T, W> t) {
    return add_exponent(p, bits(t) << (sizeof(T) == 8 ? 52 : 23));
}

} // namespace orvane
