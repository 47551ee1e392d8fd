// The scalar sine and cosine of slow paths: one text behind sin, cos, sincos and sincosreg.
#pragma once

#include "frame/rare.h"
#include "trig/reduction_tables.h"

namespace orvane {

// Row j is the angle 2 pi j/64; cos_head is a power of two, sin_lo a float. The constants of the routine stand behind
// the rows.
struct scalar_angle_row {
    double cos_tail, sin_hi, sin_lo, cos_head;
};
struct scalar_angle_table {
    scalar_angle_row row[64];
    double m32_pi, m_shift;                                // 32 / pi, 1.5 * 2^52
    double p32_a, p32_b, p32_c;                            // pi/32 in three parts
    double t_s1, t_s2, t_s3, t_s4, t_c1, t_c2, t_c3, t_c4; // Taylor coefficients of sine and cosine
    double unread[3];
    double two55, two_m55;
};
ORVANE_TABLE(scalar_angle_table, __dsin_g_CoutTab, 1);

// An argument less a multiple of pi/2, in two pieces, and the signed number of quarter turns, of which two bits
// count.
struct scalar_remainder {
    double r, r_lo;
    int32_t q;
};
scalar_remainder reduce_scalar(uint64_t ax, int s); // |x| >= 2^17 as bits, and the sign of x

// x = 2 pi j/64 + rr + m.
struct angle_and_rest {
    uint32_t j;
    double rr, m;
};
angle_and_rest scalar_angle(double x); // not tiny, finite

// sin(2 pi j/64 + rr + m), j modulo 64; the cosine a quarter turn, 16 rows, on.
double scalar_sine(uint32_t j, double rr, double m);

// |x| below 2^-252: the sine and the cosine, rounded rightly under every rounding mode.
inline bool is_tiny(double x) { return biased_exponent(x) < 771; }
inline double tiny_sine(double x) {
    const auto& c = __dsin_g_CoutTab[0];
    return x == 0 ? x : (c.two55 * x - x) * c.two_m55;
}
inline double tiny_cosine(double x) { return 1.0 - __builtin_fabs(x); }

// Infinities and NaN, for which all circular functions return NaN; false for finite x. A quiet NaN does not raise the
// invalid flag.
template <class T> bool circular_of_not_finite(T x, T* result, int* code) {
    if (biased_exponent(x) != top_exponent<T>) return false;
    if (is_nan(x)) *result = x * x, *code = ordinary;
    else *result = x * T(0), *code = domain_error;
    return true;
}

} // namespace orvane
