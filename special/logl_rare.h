// The logarithm in extended precision, on which the slow paths of lgamma and lgammar build.
#pragma once

#include "log/log_tables.h"
#include "special/x87.h"

namespace orvane {

namespace {

// (hi, lo): -ln of the reciprocals 1 / (1 + (i + 1/2) / 256), hi with at most 40 significant bits.
constexpr hi_lo<double> __libm_logl_table_256[256] = {
#include "special/tables/logl_256.inc"
};

// An extended value by its fields.
struct extended_fields {
    uint64_t significand; // with its leading one
    uint16_t exponent;
};
extended_fields fields(extended y) {
    extended_fields f;
    __builtin_memcpy(&f, &y, 10);
    return f;
}
extended with_exponent_0(extended_fields f) {
    extended y = 0;
    f.exponent = 16383;
    __builtin_memcpy(&y, &f, 10);
    return y;
}

// ln y for a positive y.
[[gnu::noinline]] extended own_logl(extended y) {
    const extended_fields f = fields(y);
    const uint32_t w = uint32_t(f.exponent) << 16 | uint32_t(f.significand >> 48);
    if (w >= 0x3FFEFFFF && w <= 0x3FFF8000) { // 1 and what is within 2^-15 of it
        // Fit on |d| <= 2^-15, z = d^2: d + z*(ll_n2*z - 1/2) + d*z*(ll_n0*z + ll_n1) = log(1 + d)
        // to 2^-76.5 relative
        constexpr extended ll_n0 = 0xCCCACCD25F7EF9AAp-66L, ll_n1 = 0xAAAAAAAAAAAC1552p-65L,
                           ll_n2 = -0xFFFFFFFFC004AE8Ap-66L;
        if (y == 1) return 0;
        const extended d = y + -1;
        const extended z = d * d;
        const extended s = ((ll_n0 * z + ll_n1) * z) * d;
        const extended t = (ll_n2 * z + -0.5L) * z;
        return (s + t) + d;
    }
    if (w >= 0x3FFEF800 && w <= 0x3FFF8800) {
        // d - d^2 / 2 + d^3 / 3 with d = a + b, a short enough for an exact square, the head of 1/3 short too
        // Fit on -1/32 <= d <= 1/16, z = d^2: d + d*(z*(ll_third + horner(z, ll_p)) + d*(horner(z, ll_q) - 1/2)) =
        // log(1 + d) to 2^-80.3 relative
        constexpr float ll_split = 0x1.8p52f, ll_third = 0x1.554p-2f;
        constexpr extended ll_p[] = {0xDA3EB73F2509BDB7p-68L, 0x9D86222D7A648AC4p-67L, 0xBA2E9A1CE811D305p-67L,
                                     0xE38E38DDBC1754F0p-67L, 0x9249249249A4A0C4p-66L, 0xCCCCCCCCCCCCC236p-66L,
                                     0xAAAAAAAAAAAAADC6p-77L};
        constexpr extended ll_q[] = {-0x9033450A5189D630p-67L, -0xAAAC2BCE12338B18p-67L, -0xCCCCCC8103D7E06Ep-67L,
                                     -0xFFFFFFFFFF0A3715p-67L, -0xAAAAAAAAAAAB8F55p-66L, -0xFFFFFFFFFFFFFFEAp-66L,
                                     -0x9F28EA2D2DF7E646p-138L};
        const extended d = y + -1;
        const extended a = (d + d * ll_split) - d * ll_split;
        const extended b = d - a;
        const extended mm = d * b + a * b;
        const extended aa = a * a;
        const extended z = aa + mm;
        const extended P = horner(z, ll_p);
        const extended Q = horner(z, ll_q);
        const extended R0 = d * Q + z * P;
        const extended va = aa * ll_third + a * -0.5L;
        const extended R1 = (R0 + mm * ll_third) + b * -0.5L;
        extended W = (va + R1) * b + R1 * a;
        W = W + b;
        const extended e = va * a;
        const extended h = a + e;
        const extended l = (a - h) + e;
        W = W + l;
        return h + W;
    }
    // y = 2^e m: ln m = ln(1 + r) - ln c, r = m c - 1 in two parts, the first exact.
    constexpr float ll_round = 0x1.8p32f;
    constexpr double ll_ln2_hi = f64(0x3FE62E42FF000000), ll_ln2_lo = f64(0xBDC718432A1B0E26);
    // Fit on |r| <= 2^-8.8, z = r^2: r + z*((ll_b0*z + ll_b1)*z + ll_b2) + r*z*((ll_a0*z + ll_a1)*z + ll_a2) =
    // log(1 + r) to 2^-69.3 relative
    constexpr extended ll_a0 = 0x92497ECBBF12A224p-66L, ll_a1 = 0xCCCCCCCCB4796149p-66L,
                       ll_a2 = 0xAAAAAAAAAAAAABEAp-65L;
    constexpr extended ll_b0 = -0xAAAAFBDE6BC3DEDDp-66L, ll_b1 = -0xFFFFFFFFEFE6E52Ep-66L,
                       ll_b2 = -0x8000000000000041p-64L;
    const extended e = f.exponent - 16383;
    const extended m = with_exponent_0(f);
    const int i = f.significand >> 55 & 0xFF;
    const extended mh = (m + ll_round) - ll_round;
    const extended ml = m - mh;
    const extended c = __dlog2_g___libm_rcp_table_256[i];
    const extended r0 = mh * c + -1;
    const extended r1 = ml * c;
    const extended r = r1 + r0;
    const extended z = r * r;
    const extended A1 = ((ll_a0 * z + ll_a1) * z + ll_a2) * z;
    const extended B1 = (ll_b0 * z + ll_b1) * z + ll_b2;
    extended T = r1 + (z * B1 + r * A1);
    T = T + (e * ll_ln2_lo + __libm_logl_table_256[i].lo);
    return ((e * ll_ln2_hi + __libm_logl_table_256[i].hi) + r0) + T;
}

} // namespace

} // namespace orvane
