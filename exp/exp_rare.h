// The scalar exponential of the slow paths, in double: b^x = 2^(n/64) b^r with n = round(x 64 log2 b), a table of 64
// entries and a polynomial. Every operation rounds by itself, in the order written.
#pragma once

#include "exp/exp_tables.h"

namespace orvane {

// What differs from one base to the next: 64 log2 b, and its reciprocal with the sign turned, in a high part with
// trailing zeros, so that n * high is exact, and a low part.
struct exp_base {
    double scale, neg_step_hi, neg_step_lo;
};
inline constexpr exp_base base_e = {f64(0x40571547652B82FE), f64(0xBF862E42FEFA0000), f64(0xBD1CF79ABC9E3B3A)};
inline constexpr exp_base base_10 = {212.60339807279118, -0.004703593682222618, -2.7088530630863833e-14};

// x = n step + r; only the low 32 bits of n are kept.
struct steps_and_rest {
    double r;
    uint32_t n;
};
inline steps_and_rest split_by_step(double x, const exp_base& b) {
    const double w = x * b.scale + f64(0x4338000000000000); // 1.5 * 2^52
    const double n = w + f64(0xC338000000000000);
    return {(n * b.neg_step_hi + x) + n * b.neg_step_lo, (uint32_t)bits(w)};
}
// x taken apart: the entry of 2^(j/64), the exponent of 2^e (large for x < 0: its low bits count) and the remainder.
struct reduced_exponent {
    double r, hi, lo;
    uint32_t e;
};
inline reduced_exponent reduce(double x, const exp_base& b) {
    const auto [r, n] = split_by_step(x, b);
    const auto& entry = _orvdExpHATab[n & 63];
    return {r, entry.hi, entry.lo, n >> 6};
}

// b^r - 1.
inline double expm1_polynomial(double r) {
    // Fit on |r| <= ln2/128: r + k2*r^2 + k3*r^3 + k4*r^4 + k5*r^5 + k6*r^6 = exp(r) - 1 to 2^-61.7 relative
    constexpr double k2 = 0.5, k3 = f64(0x3FC55555555548F8), k4 = f64(0x3FA5555555558FCC),
                     k5 = f64(0x3F8111123AAF20D3), k6 = f64(0x3F56C16A1C2A3FFD);
    return (((((k6 * r + k5) * r + k4) * r + k3) * r + k2) * r) * r + r;
}
inline double exp10m1_polynomial(double r) {
    // Fit on |r| <= ln2/log(10)/128: t1*r + t2*r^2 + t3*r^3 + t4*r^4 + t5*r^5 = 10^r - 1 to 2^-50.3 relative
    constexpr double t1 = 2.3025850929940455, t2 = 2.6509490552364285, t3 = 2.0346785924261965,
                     t4 = 1.1712567517670747, t5 = 0.5393660213379269;
    return ((((t5 * r + t4) * r + t3) * r + t2) * r + t1) * r;
}

// v * 2^e where the result is normal; at the top 2^e itself is no double.
inline double scaled(double v, uint32_t e) {
    if ((e & 0x7FF) == 1024) {
        const double half = v * power_of_two(2046); // 2^1023
        return half + half;
    }
    return v * power_of_two(e + 1023);
}

// (hi + y) * 2^e where the result may be subnormal in its type: the sum is cut at the last bit that the result keeps;
// what is cut off is added last, together with the sum's own error, so that the result is rounded once.
inline double scaled_to_subnormal(double hi, double y, uint32_t e) {
    constexpr double back = f64(0x3C30000000000000); // 2^-60
    const uint32_t field = (e + 1083) & 0x7FF;       // of 2^(e + 60)
    const double scale = power_of_two(field);
    const double a = hi * scale, c = y * scale, s = a + c;
    if (field <= 50) return s * back;
    const double shifter = s * f64(0x41F8000000000000); // 1.5 * 2^32
    const double h = (s + shifter) - shifter;
    return h * back + back * ((c + (a - s)) + (s - h));
}

// e^x for finite x without overflow or underflow, rounded to double once: shared with expm1, whose lanes here are
// large.
inline double exp_normal(double x) {
    const auto [r, hi, lo, e] = reduce(x, base_e);
    return scaled(hi + (expm1_polynomial(r) + lo) * hi, e);
}
// The same as a float: e is far from the ends of the double range.
inline float expf_normal(float x) {
    const auto [r, hi, lo, e] = reduce(x, base_e);
    return (float)((hi + (expm1_polynomial(r) + lo) * hi) * power_of_two(e + 1023));
}

// -Inf gives +0, +Inf itself, NaN is quieted.
template <class T> bool exp_of_not_finite(T x, T* result) {
    if (biased_exponent(x) != top_exponent<T>) return false;
    *result = x == -__builtin_inf() ? T(0) : x * x;
    return true;
}

} // namespace orvane
