// Reductions of an angle: by multiples of pi, and for large arguments to x = 2 pi (k + j / 2^B) + rh + rl from the
// fraction of a turn, of which 64 bits (float) or 128 bits (double) are formed in integers. Straight-line code over
// all lanes; Inf and NaN run through and give what they give.
#pragma once

#include "frame/_orvane_template.h"
#include "trig/reduction_tables.h"

#include <limits>

namespace orvane {

// The short reduction: v - n p with p, pi or half of it, in two pieces, in the more accurate tiers three.
template <class V> ORVANE_INLINE V less_multiples_of_pi(const auto& c, V n, V v) {
    v = fma(-n, c.pi_1, v);
    v = fma(-n, c.pi_2, v);
    if constexpr (requires { c.pi_3; }) v = fma(-n, c.pi_3, v);
    return v;
}

// Whether |x| is too large for the short path, or NaN. (A large path compares once more, which costs less than
// turning the bits of the first comparison back into lanes.)
template <class T, int W> ORVANE_INLINE auto is_large(const auto& c, lanes<T, W> ax) {
    return not_less_equal(ax, lanes<T, W>(c.large_limit));
}

// The lanes that the large reduction leaves to a slow path: infinities and NaN.
template <class T, int W> ORVANE_INLINE auto not_finite(const auto& c, lanes<T, W> x) {
    lanes<uint_of<T>, W> exponent;
    if constexpr (requires { c.exp_mask; }) exponent = c.exp_mask;
    else exponent = bits(lanes<T, W>(std::numeric_limits<T>::infinity()));
    return (bits(x) & exponent) == exponent;
}

// The lowest B bits of S (8 in float, 9 in double) are j; abs(rh) <= 2 pi 2^-(B + 1).
template <class T, int W> struct reduced_angle {
    lanes<uint_of<T>, W> S;
    lanes<T, W> rh, rl;
};

// The constants of the reduction, beside its table of rows.
template <class T> struct reduction_constants;
template <> struct reduction_constants<float> {
    SLOT(uint32_t, 0, sign_mask, 0x80000000)
    SLOT(uint32_t, 1, one_bits, 0x3F800000) // exponents of the three fields of the fraction: 0,
    SLOT(uint32_t, 2, mid_bits, 0x34000000) // -23,
    SLOT(uint32_t, 3, low_bits, 0x28800000) // -46
    SLOT(float, 4, frac_shift, 0x47400000)  // 1.5 * 2^15: rounds a number near 1 to 1/256
    SLOT(float, 5, two_pi_hi, 0x40C90FDB)   // 2 pi in two parts
    SLOT(float, 6, two_pi_lo, 0xB43BBD2E)
    SLOT(uint32_t, 7, exponent_field, 0x000000FF)
    SLOT(uint32_t, 8, fraction_field, 0x007FFFFF)
    SLOT(uint32_t, 9, leading_one, 0x00800000)
    SLOT(uint32_t, 10, mid_of_hi, 0x000001FF) // the bits of each word that its neighbour's field takes
    SLOT(uint32_t, 11, low_of_lo, 0x007FFFE0)
};
template <> struct reduction_constants<double> {
    SLOT(uint64_t, 0, sign_mask, 0x8000000000000000)
    SLOT(uint64_t, 1, one_bits, 0x3FF0000000000000) // 0,
    SLOT(uint64_t, 2, mid_bits, 0x3CB0000000000000) // -52,
    SLOT(uint64_t, 3, low_bits, 0x3970000000000000) // -104
    SLOT(double, 4, frac_shift, 0x42A8000000000000) // 1.5 * 2^43: rounds a number near 1 to 1/512
    SLOT(double, 5, two_pi_hi, 0x401921FB54442D18)
    SLOT(double, 6, two_pi_lo, 0x3CB1A62633145C07)
    SLOT(uint64_t, 7, exponent_field, 0x7FF)
    SLOT(uint64_t, 8, fraction_high, 0xFFFFF) // of the significand's high word, below its leading one
    SLOT(uint64_t, 9, leading_one, 0x100000)
    SLOT(uint64_t, 10, half, 0xFFFFFFFF)
    SLOT(uint64_t, 11, mid_of_hi, 0xFFF)
    SLOT(uint64_t, 12, low_of_lo, 0x000FFFFFF0000000)
    SLOT(uint64_t, 13, kept_of_column, 0xFF000000)
};
template <class T> inline constexpr reduction_constants<T> reduction_block{};
template <class T> ORVANE_INLINE const reduction_constants<T>& reduction_constants_anew() {
    const auto* block = &reduction_block<T>;
    return anew(block);
}

// Whether an argument's sign travels through the reduction, or is known to be clear.
enum sign_of_argument { of_any_sign, not_negative };

// The angle from the fraction of a turn, given as fields of bits of decreasing weight, and the bits of x.
template <sign_of_argument Sign, class T, int W, class U = lanes<uint_of<T>, W>>
ORVANE_INLINE reduced_angle<T, W> angle_of_fraction(const reduction_constants<T>& c, U X, U top, U mid, U low) {
    using V = lanes<T, W>;
    // Each field under an exponent of its own, whose implicit leading one goes away again, exactly.
    U one = c.one_bits, mid_exponent = c.mid_bits, low_exponent = c.low_bits;
    if constexpr (Sign == of_any_sign) {
        auto sign = X & c.sign_mask;
        one = sign | one, mid_exponent = sign | mid_exponent, low_exponent = sign | low_exponent;
    }
    auto A = as<T>(one | top);
    auto u2 = as<T>(mid_exponent | mid) - as<T>(mid_exponent);
    auto u3 = as<T>(low_exponent | low) - as<T>(low_exponent);

    auto S = A + c.frac_shift;
    A = A - (S - V(c.frac_shift));
    auto h = A + u2;
    auto t = u2 + (A - h);
    auto l = u3 + t;

    auto rh = c.two_pi_hi * h;
    auto rl = fma(V(c.two_pi_hi), h, -rh);
    rl = fma(V(c.two_pi_lo), h, rl);
    rl = fma(V(c.two_pi_hi), l, rl);
    return {bits(S), rh, rl};
}

// The fraction from the bits of x and its row, in 64-bit lanes: M w0 2^32 + M w1 + M w2 2^-32, where the product with
// each half of the last word is cut below 2^0 for itself, and the lower half meets the upper part of M alone.
template <sign_of_argument Sign, int W> ORVANE_INLINE reduced_angle<float, W> reduce_large_f32(lanes<float, W> x) {
    const auto& c = reduction_constants_anew<float>();
    auto X = bits(x);
    auto e = X >> 23;
    if constexpr (Sign == of_any_sign) e = e & c.exponent_field;
    auto fraction = widened(
        []<int N>(lanes<uint32_t, N> significand, lanes<uint32_t, N> row) ORVANE_LAMBDA {
            using U = lanes<uint64_t, N>;
            const auto* w = __orvane_stan_reduction_data->w;
            auto M = convert<uint64_t>(significand);
            auto w0 = lookup_bytes<uint64_t>(w, row), w1 = lookup_bytes<uint64_t>(w + 1, row); // in low words
            auto w2 = w1 >> 32;
            auto last = (multiply_low_words(w2 >> 16, M) >> 16) +
                        (multiply_low_words(w2 & U(uint64_t(0xFFFF)), M >> 16) >> 16);
            return (multiply_low_words(w0, M) << 32) + (multiply_low_words(w1, M) + last);
        },
        (X & c.fraction_field) | c.leading_one, ((e << 1) + e) << 2);
    auto hi = high_words(fraction), lo = low_words(fraction);
    return angle_of_fraction<Sign, float, W>(c, X, hi >> 9, ((hi & c.mid_of_hi) << 14) | (lo >> 18),
                                             (lo << 5) & c.low_of_lo);
}

// The fraction as sums of 32-bit columns; a multiplication reads only the low word of each lane. The sums are
// bracketed so that the carry has a short way from the lowest column to the highest.
template <sign_of_argument Sign, int W> ORVANE_INLINE reduced_angle<double, W> reduce_large_f64(lanes<double, W> x) {
    const auto& c = reduction_constants_anew<double>();
    using U = lanes<uint64_t, W>;
    auto product = [](U a, U b) ORVANE_LAMBDA { return multiply_low_words(a, b); };
    auto X = bits(x);
    auto e = X >> 52;
    if constexpr (Sign == of_any_sign) e = e & c.exponent_field;
    const row_addresses<W, 8> row(__orvane_dtan_reduction_data, (e << 1) + e);
    auto [w0, w1] = row.template pair<uint64_t>(0);
    auto w2 = row.template entry<uint64_t>(2);
    auto mh = ((X >> 32) & c.fraction_high) | c.leading_one;
    auto ml = X;

    auto c1 = w2 >> 32, b1 = w1 >> 32, a1 = w0 >> 32;
    auto b0ml = product(w1, ml), b1ml = product(b1, ml), a0ml = product(w0, ml);
    auto s64 = ((b0ml & c.half) + product(c1, mh)) + ((product(c1, ml) >> 32) + (product(w2, mh) >> 32));
    auto s96 = (s64 >> 32) + (((b0ml >> 32) + product(w1, mh)) + (b1ml & c.half));
    auto s128 = ((a0ml & c.half) + product(b1, mh)) + (b1ml >> 32);
    auto top = product(a1, ml) + product(w0, mh);
    // The carry last: s96 takes longest.
    auto hi = (s96 >> 32) + (s128 + andnot(U(c.half), a0ml + (top << 32)));
    auto lo = (s96 << 32) | (s64 & c.kept_of_column);

    return angle_of_fraction<Sign, double, W>(c, X, hi >> 12, ((hi & c.mid_of_hi) << 40) | (lo >> 24),
                                              (s64 << 28) & c.low_of_lo);
}

} // namespace orvane
