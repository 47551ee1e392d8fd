// The slow paths of sqrtf's half tier and of rsqrt.
#include "divroot/root_rare.h"

namespace orvane {

namespace {

// The terms of (1 - e)^(-1/2) from e^2 on.
// Fit on |e| <= 2^-5.9: 1 + e/2 + e^2*horner_up(e, inverse_sqrt) = 1/sqrt(1 - e) to 2^-58.9 relative
constexpr double inverse_sqrt[] = {f64(0x3FD8000000000001), f64(0x3FD400000000138B), f64(0x3FD17FFFFFFE2A26),
                                   f64(0x3FCF7FFFEC1426E4), f64(0x3FCCE000C07A3B3E), f64(0x3FCAD28A9E3226DF),
                                   f64(0x3FC91A80BFBF8B2A)};

// 1 / sqrt(v) for positive, normal v, times 2^(field - 1023): with a seed t from a table, 1 - w t^2 exactly but for
// one rounding, and a series in it.
double reciprocal_root(double v, int field) {
    const int e = biased_exponent(v) - 1023, odd = e & 1;
    const double M = significand(v), w = odd ? M + M : M;
    const int i = bits(M + f64(0x42E0000000000020)) & 63; // M to a multiple of 1/32, in the last places
    const double t = __dinvsqrt_g__orvdInvSqrtHATab[32 * odd + i];

    const double wh = leading(w, 0x1p27), wl = w - wh;
    const double t2 = t * t, b = t2 * wl, a = 1.0 - wh * t2, ee = a - b;
    const double ah = leading(a, 0x1p27), al = a - ah;
    const double g1 = (0.5 * t) * ah;
    const double p = horner_up(ee, inverse_sqrt);
    const double r1 = ((b - al) * -0.5 + (p * ee) * ee) * t;
    const double h1 = t + g1, c1 = (t - h1) + g1;
    return power_of_two(field - (e >> 1)) * ((r1 + c1) + h1);
}

template <class T> int rsqrt_rare(T x, T* result) {
    constexpr T inf = __builtin_inf();
    if (biased_exponent(x) == top_exponent<T>) {
        *result = x == inf ? T(0.0) / x : x / x; // of -Inf a NaN with the sign that the processor gives it
        return x == -inf ? domain_error : ordinary;
    }
    if (x < 0) {
        *result = invalid<T>;
        return domain_error;
    }
    if (x == 0) {
        *result = T(1.0) / x;
        return pole;
    }
    // Subnormals of double are scaled; those of float are normal in double.
    const bool subnormal = sizeof(T) == 8 && biased_exponent(x) == 0;
    *result = T(reciprocal_root(subnormal ? 0x1p60 * x : double(x), subnormal ? 1053 : 1023));
    return ordinary;
}

} // namespace

ORVANE_SLOW_PATH(__orvane_dinvsqrt_cout_rare, const double* x, double* result) { return rsqrt_rare(*x, result); }
ORVANE_SLOW_PATH(__orvane_sinvsqrt_cout_rare, const float* x, float* result) { return rsqrt_rare(*x, result); }

ORVANE_SLOW_PATH(__orvane_ssqrt_cout_rare, const float* x, float* result) {
    const float v = *x;
    const bool is_nan = v != v;
    if (is_nan || v == 0 || v == __builtin_inff()) {
        *result = is_nan ? v + v : v;
        return ordinary;
    }
    if (v < 0) {
        *result = invalid<float>;
        return domain_error;
    }
    const bool subnormal = biased_exponent(v) == 0;
    const double d = subnormal ? double(v) * 0x1p200 : double(v);
    const int e = biased_exponent(d) - 1023, odd = e & 1;
    const double m = significand(d) * (odd ? 2.0 : 1.0);
    const auto [g, h] = goldschmidt(m, root_seed(d, odd));
    *result = float((residual(m, g) * h + g) * power_of_two((e >> 1) + (subnormal ? 923 : 1023)));
    return ordinary;
}

} // namespace orvane
