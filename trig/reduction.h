// The reduction of large arguments: x = 2 pi (k + j / 2^B) + rh + rl from the fraction of a turn, of which 64 bits
// (float) or 128 bits (double) are formed in integers. Straight-line code over all lanes; Inf and NaN run through and
// give what they give.
#pragma once

#include "frame/_orvane_template.h"
#include "trig/reduction_tables.h"

namespace orvane {

// The lowest B bits of S (8 in float, 9 in double) are j; abs(rh) <= 2 pi 2^-(B + 1).
template <class T, int W> struct reduced_angle {
    lanes<uint_of<T>, W> S;
    lanes<T, W> rh, rl;
};

template <class T> struct reduction_constants;
template <> struct reduction_constants<float> {
    static constexpr float frac_shift = 0x1.8p15f; // rounds a number near 1 to 1/256
    static constexpr uint32_t sign = 0x80000000, one_bits = 0x3F800000, mid_bits = 0x34000000, low_bits = 0x28800000;
    static constexpr float two_pi_hi = f32(0x40C90FDB), two_pi_lo = f32(0xB43BBD2E); // 2 pi in two parts
};
template <> struct reduction_constants<double> {
    static constexpr double frac_shift = 0x1.8p43; // rounds a number near 1 to 1/512
    static constexpr uint64_t sign = 0x8000000000000000, one_bits = 0x3FF0000000000000, mid_bits = 0x3CB0000000000000,
                              low_bits = 0x3970000000000000;
    static constexpr double two_pi_hi = f64(0x401921FB54442D18), two_pi_lo = f64(0x3CB1A62633145C07);
};

// The angle from the fraction of a turn, given as fields of bits of decreasing weight, and the sign.
template <class T, int W, class U = lanes<uint_of<T>, W>>
ORVANE_INLINE reduced_angle<T, W> angle_of_fraction(U sg, U top, U mid, U low) {
    using V = lanes<T, W>;
    using c = reduction_constants<T>;
    // Each field under an exponent of its own, whose implicit leading one goes away again, exactly.
    auto A = as<T>(sg | U(c::one_bits) | top);
    auto u2 = as<T>(sg | U(c::mid_bits) | mid) - as<T>(sg | U(c::mid_bits));
    auto u3 = as<T>(sg | U(c::low_bits) | low) - as<T>(sg | U(c::low_bits));

    auto S = A + V(c::frac_shift);
    A = A - (S + V(-c::frac_shift));
    auto h = A + u2;
    auto t = u2 + (A - h);
    auto l = u3 + t;

    auto rh = V(c::two_pi_hi) * h;
    auto rl = fma(V(c::two_pi_hi), h, -rh);
    rl = fma(V(c::two_pi_lo), h, rl);
    rl = fma(V(c::two_pi_hi), l, rl);
    return {bits(S), rh, rl};
}

// The fraction from the bits of x and its row, in columns of 16 bits: the product of a word's half with a part of the
// significand fits its lane. What lies below the last column is dropped.
template <int W> ORVANE_INLINE reduced_angle<float, W> reduce_large_f32(lanes<float, W> x) {
    using U = lanes<uint32_t, W>;
    const U low16(0xFFFFu);
    auto X = bits(x);
    auto e = (X >> 23) & U(0xFFu);
    const row_addresses<W> row(__orvane_stan_reduction_data, ((e << 1) + e) << 2);
    auto [w0, w1] = row.template pair<uint32_t>(0);
    auto w2 = row.template entry<uint32_t>(2);
    auto mh = ((X >> 16) & U(0x7Fu)) | U(0x80u);
    auto ml = X & low16;

    auto c1 = w2 >> 16, c0 = w2 & low16;
    auto b0ml = (w1 & low16) * ml;
    auto s32 = (b0ml & low16) + c1 * mh + ((c1 * ml) >> 16) + ((c0 * mh) >> 16);
    auto b1 = w1 >> 16;
    auto b1ml = b1 * ml;
    auto s48 = (s32 >> 16) + (b0ml >> 16) + (w1 & low16) * mh + (b1ml & low16);
    auto a0ml = (w0 & low16) * ml;
    auto s64 = (s48 >> 16) + (a0ml & low16) + b1 * mh + (b1ml >> 16);
    auto top = w0 * mh + (w0 >> 16) * ml;
    auto hi = s64 + andnot(low16, a0ml + (top << 16));
    auto lo = (s48 << 16) | (s32 & low16);

    return angle_of_fraction<float, W>(X & U(reduction_constants<float>::sign), hi >> 9,
                                       ((hi & U(0x1FFu)) << 14) | (lo >> 18), (lo << 5) & U(0x007FFFE0u));
}

// The same in columns of 32 bits.
template <int W> ORVANE_INLINE reduced_angle<double, W> reduce_large_f64(lanes<double, W> x) {
    using U = lanes<uint64_t, W>;
    const U low32(uint64_t(0xFFFFFFFF));
    auto product = [](U a, U b) ORVANE_LAMBDA { return multiply_low_words(a, b); };
    auto X = bits(x);
    auto e = (X >> 52) & U(uint64_t(0x7FF));
    const row_addresses<W> row(__orvane_dtan_reduction_data, ((e << 1) + e) << 3);
    auto [w0, w1] = row.template pair<uint64_t>(0);
    auto w2 = row.template entry<uint64_t>(2);
    auto mh = ((X >> 32) & U(uint64_t(0xFFFFF))) | U(uint64_t(0x100000));
    auto ml = X; // a product reads low words alone

    auto c1 = w2 >> 32;
    auto b0ml = product(w1, ml);
    auto s64 = product(c1, mh) + (b0ml & low32) + (product(c1, ml) >> 32) + (product(w2, mh) >> 32);
    auto b1 = w1 >> 32;
    auto b1ml = product(b1, ml);
    auto s96 = (s64 >> 32) + (b0ml >> 32) + product(w1, mh) + (b1ml & low32);
    auto a0ml = product(w0, ml);
    auto s128 = (s96 >> 32) + (a0ml & low32) + product(b1, mh) + (b1ml >> 32);
    auto top = product(w0 >> 32, ml) + product(w0, mh);
    auto hi = s128 + andnot(low32, a0ml + (top << 32));
    auto lo = (s96 << 32) | (s64 & U(uint64_t(0xFF000000)));

    return angle_of_fraction<double, W>(X & U(reduction_constants<double>::sign), hi >> 12,
                                        ((hi & U(uint64_t(0xFFF))) << 40) | (lo >> 24),
                                        (s64 << 28) & U(uint64_t(0x000FFFFFF0000000)));
}

} // namespace orvane
