// Slow paths of sin, cos, sincos and sincosreg, and of sinf and cosf, which have only Inf and NaN there.
#include "trig/sin_rare.h"

namespace orvane {

namespace {

constexpr const scalar_reduction_table& T = __dsin_g_ReductionTab[0];

// |x| below 2^30: |x| - k pi/4, where k is the number of octants rounded up to an even one, and pi/4 has several
// parts whose products with k are exact.
scalar_remainder reduce_medium(double ax, int s) {
    const double y = T.four_over_pi * ax;
    // The integer part of y from its bits, the leading one put back on top.
    const uint32_t v = ((uint32_t)bits(y) >> 21) + ((uint32_t)(bits(y) >> 21) & 0x7FFFF800) + 0x80000000;
    const uint32_t n = v >> ((1054 - int(bits(y) >> 52)) & 31);
    const double k = (double)(n + (n & 1));

    const bool is_lower = bits(ax) >> 52 < 1046;
    double a, b;
    if (is_lower) {
        const double d = ax + (-T.pm[0]) * k, p = T.pm[1] * k;
        a = d - p;
        b = (d - a) - p;
    } else {
        const double d = ax + (-T.pu[0]) * k, p0 = T.pu[1] * k, p1 = T.pu[2] * k;
        const double g = d - p0, w = g - p1;
        const double t = ((g - w) - p1) + ((d - g) - p0);
        a = w + t;
        b = (w - a) + t;
    }
    const double c1 = is_lower ? T.pm[2] : T.pu[3], c2 = is_lower ? T.pm[3] : T.pu[4];
    const double z = c1 * k;
    const double A = a - z;
    const double B = ((a - A) - z) + b - c2 * k;

    const double Ap = A * T.sign[s], Bp = B * T.sign[s];
    const double r = Bp + Ap;
    return {r, (Ap - r) + Bp, int32_t((n + 1) >> 1) * (1 - 2 * s)};
}

// |x| from 2^30 on: times 4 / pi in pieces of 25 bits, of which those that count whole periods are left out; x is
// split so that products with a piece are exact.
scalar_remainder reduce_large(uint64_t ax, int s) {
    const int E = int(ax >> 52);
    const double xs = f64(ax - 0x0C80000000000000); // |x| 2^-200
    const double xh = f64((bits(xs) & 0xFFFFFFFF00000000) | (ax & 0xF8000000)), xl = xs - xh;
    const uint32_t i = (83886u * uint32_t(E) - 88248072u) >> 21; // floor((E - 1053) / 25)
    const double* P = &T.zero_piece + i;

    double a = P[0] * xl, b = P[1] * xh;
    double s1 = a + b;
    const double e1 = (a - s1) + b;
    const uint64_t whole = ~uint64_t(0) << ((25 * i - uint32_t(E) + 66) & 63);
    s1 = s1 - f64(whole & bits(s1 + e1));
    const double c = P[1] * xl, s2 = s1 + c;
    const double d = P[2] * xh, s3 = s2 + d;
    const double e3 = ((s2 - s3) + d) + (((s1 - s2) + c) + e1);

    const uint64_t Y = bits(((s3 + e3) + xl * P[2]) + P[3] * xh);
    const int sh = int(51 - (Y >> 52)) & 63;
    const uint64_t iv = (Y | uint64_t(1) << 52) >> sh;
    const double Yf = f64((Y >> sh) << sh);
    const double t = s3 - Yf;
    // An odd octant gives a fraction in [-1, 0): the remainder from the next even one.
    double acc = T.parity[iv & 1] + (t + e3), err = (t - (t + e3)) + e3;
    const double terms[] = {xl * P[2],
                            P[3] * xh,
                            P[3] * xl,
                            P[4] * xh,
                            P[4] * xl,
                            P[5] * xh,
                            P[5] * xl + P[6] * xh,
                            P[6] * xl + P[7] * xh};
    for (double term : terms) {
        const double next = acc + term;
        err = ((acc - next) + term) + err;
        acc = next;
    }
    const double m = xl * P[7] + xh * P[8], sum = acc + m, sp = sum * T.splitter;
    const double g = (sum + sp) - sp; // 26 bits of the sum
    err = ((acc - g) + m) + err;

    const double tt = err * T.pio4_a + (g + err) * T.pio4_b, hh = T.pio4_a * g;
    const double rh = hh + tt, rl = (hh - rh) + tt;
    return {rh * T.sign[s], rl * T.sign[s], int32_t(((uint32_t)iv + 1) >> 1) * (1 - 2 * s)};
}

} // namespace

scalar_remainder reduce_scalar(uint64_t ax, int s) {
    return ax >> 52 <= 1052 ? reduce_medium(f64(ax), s) : reduce_large(ax, s);
}

angle_and_rest scalar_angle(double x) {
    const auto& c = __dsin_g_CoutTab[0];
    scalar_remainder reduced = {x, 0, 0};
    if (__builtin_fabs(x) >= 0x1p17) reduced = reduce_scalar(bits(x) & 0x7FFFFFFFFFFFFFFF, int(bits(x) >> 63));
    const double t = c.m32_pi * reduced.r + c.m_shift, n = t - c.m_shift;
    const double A = (-c.p32_a) * n + reduced.r, B = c.p32_b * n;
    const double rr = A - B, m = (((A - rr) - B) + (-c.p32_c) * n) + reduced.r_lo;
    return {(uint32_t)bits(t) + ((uint32_t(reduced.q) << 4) & 48), rr, m};
}

double scalar_sine(uint32_t j, double rr, double m) {
    const auto& k = __dsin_g_CoutTab[0];
    const auto& [ct, sh, sl, ch] = k.row[j & 63];
    const double r2 = rr * rr, c = ct + ch;
    const double St = ((((k.t_s4 * r2 + k.t_s3) * r2 + k.t_s2) * r2 + k.t_s1) * r2 * rr) * c;
    const double Ct = ((((k.t_c4 * r2 + k.t_c3) * r2 + k.t_c2) * r2 + k.t_c1) * r2) * sh;
    const double p1 = ch * rr, p0 = ct * rr, h1 = sh + p1, h2 = p0 + h1;
    const double w = (c - rr * sh) * m + sl;
    const double z = ((sh - h1) + p1) + w;
    return ((((h1 - h2) + p0) + z) + St + Ct) + h2;
}

namespace {

int sine_and_cosine(const double* x, double* sine, double* cosine) {
    int code = ordinary;
    if (circular_of_not_finite(*x, sine, &code)) *cosine = *sine;
    else if (is_tiny(*x)) *sine = tiny_sine(*x), *cosine = tiny_cosine(*x);
    else {
        const auto [j, rr, m] = scalar_angle(*x);
        *sine = scalar_sine(j, rr, m);
        *cosine = scalar_sine(j + 16, rr, m);
    }
    return code;
}

} // namespace

ORVANE_SLOW_PATH(__orvane_dsin_cout_rare, const double* x, double* result) {
    int code = ordinary;
    if (circular_of_not_finite(*x, result, &code)) return code;
    if (is_tiny(*x)) *result = tiny_sine(*x);
    else {
        const auto [j, rr, m] = scalar_angle(*x);
        *result = scalar_sine(j, rr, m);
    }
    return ordinary;
}
ORVANE_SLOW_PATH(__orvane_dcos_cout_rare, const double* x, double* result) {
    int code = ordinary;
    if (circular_of_not_finite(*x, result, &code)) return code;
    if (is_tiny(*x)) *result = tiny_cosine(*x);
    else {
        const auto [j, rr, m] = scalar_angle(*x);
        *result = scalar_sine(j + 16, rr, m);
    }
    return ordinary;
}
ORVANE_SLOW_PATH(__orvane_dsincos_cout_rare, const double* x, double* sine, double* cosine) {
    return sine_and_cosine(x, sine, cosine);
}
ORVANE_SLOW_PATH_TWIN(__orvane_dsincosreg_cout_rare, __orvane_dsincos_cout_rare)

} // namespace orvane
