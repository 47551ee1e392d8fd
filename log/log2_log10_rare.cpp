// The slow paths of log2, log10 and their float members.
#include "log/log_rare.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dlog10_cout_rare, const double* x, double* result) {
    int status;
    if (no_logarithm(*x, result, &status)) return status;
    const double scaled = *x * 0x1p60; // of a subnormal
    const double K = biased_exponent(scaled) - 1083, M = significand(scaled);
    const auto [R, hi, lo] = __dlog10_g_CoutTab[entry_of(M)];
    const double Mh = (M + 8388608.0) + -8388608.0, Ml = M - Mh;
    const double t = Mh * R + -0.43359375, u = Ml * R;
    const double A = f64(0x3FD34413509F8000) * K + hi, Bl = f64(0xBD380433B83B532A) * K + lo;
    const double v = t + u;
    // Fit on |v| <= 2^-7.6: v + v*horner(v, p) = log(1 + v/0.43359375)/log(10) to 2^-58.6 relative
    static constexpr double p[] = {-43.39945393331915,  21.537397485614264,   -10.89268808217976,
                                   5.667600559012126,   -3.0717952611199135,  1.7758816353485936,
                                   -1.1550167667401798, 0.0016161024074997103};
    const double P = horner(v, p);
    *result = P * t + ((P * u + Bl) + u) + (A + t);
    return ordinary;
}

namespace {

// log10f and log2f of a subnormal: R is cut as well as M, and the table's reciprocals carry a constant K0 near
// 256 / ln of the base, so that the leading term of the polynomial is 1.
template <int Scaling, class Part> float scaled_log(float x, const rare_log_entry<float> (&entries)[65], float k0,
                                                    const float (&p)[8], Part exponent_part) {
    const float scaled = x * float(uint64_t(1) << Scaling);
    const float K = float(biased_exponent(scaled) - (127 + Scaling)), M = significand(scaled);
    const auto [R, hi, lo] = entries[entry_of(M)];
    const float Rh = f32(bits(R) & 0xFFFFE000);
    const float Mh = (M + 8192.0f) + -8192.0f;
    const float A0 = Rh * Mh + -k0, B0 = (R - Rh) * Mh + (M - Mh) * R;
    const float v = A0 + B0;
    const auto [high, low] = exponent_part(K, hi, lo);
    const float A = high + A0;
    const float P = horner(v, p);
    return (P * A0 + ((P * B0 + low) + B0)) + A;
}

} // namespace

ORVANE_SLOW_PATH(__orvane_slog10_cout_rare, const float* x, float* result) {
    int status;
    if (no_logarithm(*x, result, &status)) return status;
    // Fit on |v| <= 1.3: v + v*horner(v, p) = log(1 + v/111.1796875)/log(10) to 2^-18.5 relative
    static constexpr float p[] = {f32(0xA22B5DAE), f32(0x25AA5BFD), f32(0xA92C998B), f32(0x2CB3E701),
                                  f32(0xB04353B9), f32(0x33E23666), f32(0xB7935D5A), f32(0xBF7F0000)};
    *result = scaled_log<40>(*x, __slog10_g_CoutTab, 111.1796875f, p, [](float K, float hi, float lo) {
        return hi_lo<float>{0.30078125f * K + hi, K * f32(0x39826A14) + lo};
    });
    return ordinary;
}

ORVANE_SLOW_PATH(__orvane_slog2_cout_rare, const float* x, float* result) {
    int status;
    if (no_logarithm(*x, result, &status)) return status;
    // Fit on |v| <= 3: v + v*horner(v, p) = log2(1 + v/369.330078125) to 2^-21.2 relative
    static constexpr float p[] = {f32(0x9C1D865E), f32(0x2081CD9D), f32(0xA4DA74DC), f32(0x293D1988),
                                  f32(0xADAA8223), f32(0x3223FE93), f32(0xB6B1720F), f32(0xBF7F0000)};
    *result = scaled_log<27>(*x, __slog2_g_CoutTab, 369.330078125f, p, [](float K, float hi, float lo) {
        return hi_lo<float>{K + hi, lo};
    });
    return ordinary;
}

ORVANE_SLOW_PATH(__orvane_dlog2_cout_rare, const double* x, double* result) {
    const double v0 = *x;
    if (bits(v0) >> 52 >= 0x7FF) { // NaN, an infinity or negative
        if (v0 == 0) {
            *result = -__builtin_inf();
            return pole;
        }
        if (__builtin_isless(v0, 0.0)) { // a NaN raises no flag
            *result = invalid<double>;
            return domain_error;
        }
        *result = v0 - 0.0; // quiets a NaN
        return ordinary;
    }
    if (v0 == 0) {
        *result = -__builtin_inf();
        return pole;
    }
    const double d = v0 * 36028797018963968.0; // 2^55, of a subnormal
    const double k = biased_exponent(d) - 1078;
    const int i = int(bits(d) >> 44) & 255;
    const double rc = __dlog2_g___libm_rcp_table_256[i];
    const double M = significand(d), Mh = f64(bits(M) & 0xFFFFFFFF00000000), Ml = M - Mh;
    const double t = Mh * rc + -1.0, u = Ml * rc, v = t + u, vsq = v * v;
    // Fit on |v| <= 2^-8.8: (q0 + q1)*v + q2*v^2 + q3*v^3 + q4*v^4 + q5*v^5 + q6*v^6 = log2(1 + v)
    // to 2^-59.9 relative
    constexpr double q0 = 1.4426946640014648, q1 = 3.7688749856434016e-07, q2 = -0.7213475204444817,
                     q3 = 0.48089834696027206, q4 = -0.36067376021722414, q5 = 0.2885405044652136,
                     q6 = -0.24045091916380087;
    const double W = ((q6 * vsq + q4) * vsq + q2) * vsq + ((q5 * vsq + q3) * vsq + q1) * v;
    double a = u * q0 + W;
    const double b = t * q0, bh = (b + 4294967296.0) + -4294967296.0;
    a = (b - bh) + a;
    const auto [lo, hi] = __dlog2_g___libm_log2_table_256[i];
    a = a + lo;
    *result = ((k + hi) + bh) + a;
    return ordinary;
}

} // namespace orvane
