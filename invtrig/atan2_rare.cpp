// The slow paths of atan2 and atan2pi: zeros, infinities, NaN, and an evaluation in two doubles for what is left, on
// double and float alike. Every operation rounds by itself, in the order written.
#include "invtrig/atan2_tables.h"
#include "invtrig/atan_rare.h"

namespace orvane {

namespace {

double high_part(double v) { return split(v).hi; }

// base + factor * B as hi + lo, the high part short.
hi_lo<double> add_multiple(double base, double factor, hi_lo<double> B) {
    const double m = B.hi * factor, n = factor * B.lo;
    const double sum = m + n;
    const auto [s, error] = add(base, sum);
    const double h = high_part(s);
    return {h, (((m - sum) + n) + error) + (s - h)};
}

// 1 / D: a short estimate R of it, and R (e + e^2) of its error e.
hi_lo<double> reciprocal(hi_lo<double> D) {
    const double R = high_part(1.0 / D.hi);
    const double e = (1.0 - D.hi * R) - D.lo * R;
    return {R, ((1.0 + e) * e) * R};
}
struct quotient {
    double value;
    hi_lo<double> parts; // the high one short
};
quotient product(hi_lo<double> N, hi_lo<double> R) {
    const auto [h, l] = multiply(N, R);
    const double z = h + l, zh = high_part(z);
    return {z, {zh, ((h - z) + l) + (z - zh)}};
}

// atan z for small z = N / D, w = z^2: z + z Q(w) in two parts.
hi_lo<double> atan_polynomial(hi_lo<double> z, double w) {
    const auto& p = __datan2_g_CoutTab->at_p;
    const auto [Qh, Ql] = split(horner_up(w, p) * w);
    const auto [G, error] = add(z.hi * Qh, z.hi);
    return {G, (z.lo + error) + (Ql * z.hi + (Qh * z.lo + z.lo * Ql))};
}

// The angle of (x, |y|), 0 to pi: |y| / |x| is neither tiny nor huge.
hi_lo<double> angle(double y, double x) {
    const auto& table = *__datan2_g_CoutTab;
    // Scaled so that |y| is between 1 and 2, as far as one power of two can do it.
    const int Ey = biased_exponent(y);
    const double f = Ey == 0 ? table.huge : Ey == 2046 ? table.tiny : power_of_two(2046 - Ey);
    const double t = magnitude(y) / magnitude(x), A = magnitude(y) * f, B = magnitude(x) * f;

    double H, L;
    if (t >= table.eighth) {
        // atan t = atan c + atan((A - c B) / (B + c A)), c the centre of the half of [1, 2) 2^k that t lies in.
        int i = (int32_t(bits(t) >> 32) - 0x3FC00000) >> 19;
        if (i > 113) i = 113;
        const double c = f64((bits(t) & 0x7FF8000000000000) | 0x0004000000000000);
        const auto N = add_multiple(A, -c, split(B)), D = add_multiple(B, c, split(A));
        const auto [z, parts] = product(N, reciprocal(D));
        const auto [G, low] = atan_polynomial(parts, z * z);
        const auto [hi, lo] = table.atan_pairs[i];
        const auto [sum, error] = add(G, hi);
        H = magnitude(sum);
        L = (low + error) + lo;
    } else {
        const auto [z, parts] = product(split(A), reciprocal(split(B)));
        const auto [G, low] = atan_polynomial(parts, t * t);
        H = magnitude(G);
        L = low;
    }
    if (!is_negative(x)) return {H, L}; // adding 0 changes nothing
    const auto [S, error] = add(-H, table.pi.hi);
    return {S, table.pi.lo + (-L + error)};
}

// atan q for a q so small that it rounds as q itself: a term in q^2 is added, so that the result is inexact as it
// should be. T is the type of the result, in which q may be subnormal.
template <class T> double barely(double q) {
    const T r = (T)q;
    const T least = sizeof(T) == 8 ? T(0x1p-1022) : T(0x1p-126);
    return r < least ? q + double(r * r) : q * (1.0 + q);
}

// The magnitude of the result, which has the sign of y. First infinities, zeros and exponents far apart.
template <class T> double atan2_magnitude(double y, double x) {
    const auto& table = *__datan2_g_CoutTab;
    const bool y_infinite = __builtin_isinf(y), x_infinite = __builtin_isinf(x);
    if (y_infinite && x_infinite) return is_negative(x) ? table.three_quarter_pi.hi : table.quarter_pi.hi;
    if (y_infinite) return table.half_pi.hi;
    if (y == 0 || x_infinite) return is_negative(x) ? table.pi.hi : 0.0;
    if (x == 0) return table.half_pi.hi;
    const int d = biased_exponent(y) - biased_exponent(x);
    if (d < -53) return is_negative(x) ? table.pi.hi : barely<T>(magnitude(y) / magnitude(x));
    if (d > 73) return table.half_pi.hi;
    if (d >= 54) return magnitude((table.half_pi.lo - x / magnitude(y)) + table.half_pi.hi);
    const auto [S, lo] = angle(y, x);
    return magnitude(lo + S);
}

// y / (pi x) for a quotient below 2^-53: y, and later the quotient, are scaled by 2^82 where low parts would
// underflow.
double small_quotient_over_pi(double y, double x) {
    const auto& table = *__datan2pi_g_CoutTab;
    hi_lo<double> ip = {table.ip_hi, table.ip_lo};
    if (biased_exponent(y) <= 53) {
        y = y * table.up;
        ip = {ip.hi * table.down, ip.lo * table.down};
    }
    const auto A = split(y);
    auto R = reciprocal(split(x));
    auto [q, parts] = product(A, R);
    const bool low = biased_exponent(q * ip.hi) < 61;
    if (low) {
        R = {R.hi * table.up, R.lo * table.up};
        parts = product(A, R).parts;
    }
    const auto [h, l] = multiply(parts, ip);
    const double r = h + l;
    return low ? r * table.down : r;
}

double atan2pi_magnitude(double y, double x) {
    if (__builtin_isinf(y)) return __builtin_isinf(x) ? (is_negative(x) ? 0.75 : 0.25) : 0.5;
    if (y == 0 || __builtin_isinf(x)) return is_negative(x) ? 1.0 : 0.0;
    if (x == 0) return 0.5;
    const auto& table = *__datan2pi_g_CoutTab;
    const int Ey = biased_exponent(y), Ex = biased_exponent(x), M = Ey > Ex ? Ey : Ex;
    const double scale = M >= 1920 ? table.far_down : M <= 126 ? 0x1p128 : 1.0;
    y = magnitude(y) * scale;
    x = x * scale;
    const int d = biased_exponent(y) - biased_exponent(x);
    if (d < -53) return is_negative(x) ? 1.0 : small_quotient_over_pi(y, x);
    if (d > 73) return 0.5;
    if (d >= 54) {
        // 1/2 - x / (pi y): what the short high part of 1 / pi takes from pi/2 / pi is in the constants.
        const double t = table.common.half_pi.lo - x / y;
        return magnitude((t * table.ip_hi + (table.ip_lo * t + f64(0xBE2BCB4A23E73336))) + f64(0x3FE0000001BCB4A2));
    }
    const auto [S, lo] = angle(y, x);
    const double Sh = high_part(S);
    const auto [h, l] = multiply({Sh, lo + (S - Sh)}, {table.ip_hi, table.ip_lo});
    return magnitude(h + l);
}

} // namespace

ORVANE_SLOW_PATH(__orvane_datan2_cout_rare, const double* y, const double* x, double* result) {
    if (__builtin_isunordered(*y, *x)) *result = nan_of(*x, *y);
    else *result = with_sign_of(*y, atan2_magnitude<double>(*y, *x));
    return ordinary;
}
ORVANE_SLOW_PATH(__orvane_satan2_cout_rare, const float* y, const float* x, float* result) {
    if (__builtin_isunordered(*y, *x)) *result = nan_of(*x, *y);
    else *result = with_sign_of(*y, (float)atan2_magnitude<float>(*y, *x));
    return ordinary;
}
ORVANE_SLOW_PATH(__orvane_datan2pi_cout_rare, const double* y, const double* x, double* result) {
    if (__builtin_isunordered(*y, *x)) return *result = nan_of(*x, *y), ordinary;
    *result = with_sign_of(*y, atan2pi_magnitude(*y, *x));
    return *y == 0 && *x == 0 ? domain_error : ordinary;
}
ORVANE_SLOW_PATH(__orvane_satan2pi_cout_rare, const float* y, const float* x, float* result) {
    if (__builtin_isunordered(*y, *x)) return *result = nan_of(*x, *y), ordinary;
    *result = with_sign_of(*y, float(atan2_magnitude<float>(*y, *x) * __satan2pi_g_CoutTab->inv_pi));
    return *y == 0 && *x == 0 ? domain_error : ordinary;
}

} // namespace orvane
