// Steps that kernels of the logarithms share.
//
// A significand m is brought near 1 by an integer c: the processor's reciprocal estimate of m (times a constant K
// near 1 / ln of the base, in some), rounded to an integer. r = c m - K is small, and c itself is the index of a
// table of logarithms: exponent and top bits of a number between two powers of two count linearly, so that its
// pattern, shifted right, is a byte offset.
#pragma once

#include "frame/_orvane_template.h"
#include "log/log_tables.h"

namespace orvane {

// Slots of log and log1p in double.
// Fit on |r| <= 2^-9.5: r + p2*r^2 + p3*r^3 + p4*r^4 + p5*r^5 = log(1 + r) to 2^-52.2 relative
// Of the fast tiers. Fit on |r| <= 2^-9.5: r + p2*r^2 + p3*r^3 = log(1 + r) to 2^-30.5 relative
#define ORVANE_LN_POLYNOMIAL                                                                                         \
    SLOT(double, 194, p5, 0x3FC9999CACDB4D0A) /* 0.2000003665949424 */                                               \
    SLOT(double, 195, p4, 0xBFD0000148058EE1) /* -0.2500003054940248 */                                              \
    SLOT(double, 196, p3, 0x3FD55555555543C5) /* 0.33333333333308374 */                                              \
    SLOT(double, 197, p2, 0xBFDFFFFFFFFFF81F) /* -0.49999999999988803 */

// Whether x is anything but a positive, normal, finite number.
template <class V> ORVANE_INLINE auto not_positive_normal(const auto& c, V x) {
    return not_less_equal(x, V(c.max_finite)) | (x < V(c.min_normal));
}

// The significand of x under the given exponent, and the biased exponent as a number.
template <class V, class S> ORVANE_INLINE V significand(const auto& c, V x, const S& exponent) {
    return (x & c.mantissa_mask) | exponent;
}
template <int W> ORVANE_INLINE lanes<double, W> biased_exponent(lanes<double, W> x) {
    return convert<double>(as<int32_t>(high_words(x) >> 20));
}
template <int W> ORVANE_INLINE lanes<float, W> biased_exponent(lanes<float, W> x) {
    return convert<float>(as<int32_t>(bits(x) >> 23));
}

// The table entry that stands `bias` bytes below where the shifted bits of c point; the block begins with its table
// of pairs, so that one base serves.
template <int Shift, int Bias, class T, int W>
ORVANE_INLINE lane_pair<T, W> pair_of_bits(const auto& block, lanes<T, W> c) {
    return lookup_pair_bytes<T>((const char*)&block - Bias, bits(c) >> Shift);
}
template <int Shift, int Bias, int W>
ORVANE_INLINE lanes<double, W> single_of_bits(const auto& block, lanes<double, W> c) {
    return lookup_bytes<double>((const char*)&block - Bias, bits(c) >> Shift);
}

// a + b as a rounded sum and its error, |b| being the larger or 0 (or a exact beside it).
template <class V> struct sum_and_error { V sum, error; };
template <class V> ORVANE_INLINE sum_and_error<V> add_exactly(V a, V b) {
    auto s = a + b;
    auto t = s - b;
    return {s, a - t};
}

// First stage of a double kernel: the integer near 1 / m that picks the row, and r = integer m - 1.
template <int W> ORVANE_INLINE auto rest_and_row(const auto& c, lanes<double, W> x) {
    auto m = significand(c, x, c.m_exponent);
    auto integer = round_to<to_nearest>(reciprocal_estimate(m)); // 512 to 1024
    return results{fma(integer, m, -lanes<double, W>(c.one)), integer};
}
// The fast double kernels have a single table value U, near 0 together with h around x = 1.
template <int W>
ORVANE_INLINE lanes<double, W> unbiased(const auto& c, lanes<double, W> integer, lanes<double, W> E) {
    // 1023 above c_split, else 1022: the patterns differ in one bit.
    auto bias = keep(integer > lanes<double, W>(c.c_split), lanes<double, W>(c.bias_small_m)) | c.bias_large_m;
    return E - bias;
}

// x = m 2^k with m in [2/3, 4/3), by integer arithmetic on the pattern b: v = m - 1 and k as a number.
template <int W> struct float_cut {
    lanes<float, W> v, K;
    lanes<int32_t, W> d; // b less the pattern of 2/3
};
template <int W> ORVANE_INLINE float_cut<W> cut_at_two_thirds(const auto& c, const auto& mask, lanes<int32_t, W> b) {
    auto d = b - c.two_thirds_bits;
    auto k = d >> 23;
    auto m = as<float>((d & mask) + c.two_thirds_bits);
    return {m - c.one, convert<float>(k), d};
}

} // namespace orvane
