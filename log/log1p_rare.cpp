// The slow paths of log1p and log1pf: the logarithm of 1 + x where that is large, not positive, or a NaN.
#include "log/log_rare.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dlog1p_cout_rare, const double* x, double* result) {
    const double z = *x + 1.0;
    int status;
    if (no_logarithm(z, result, &status)) return status;
    *result = ln_rare(significand(z), double(biased_exponent(z) - 1023));
    return ordinary;
}

ORVANE_SLOW_PATH(__orvane_slog1p_cout_rare, const float* x, float* result) {
    using c = ln_constants<float>;
    const float z = *x + 1.0f;
    int status;
    if (no_logarithm(z, result, &status)) return status;
    const float K = float(biased_exponent(z) - 127), M = significand(z);
    const auto [R, hi, lo] = c::entries[entry_of(M)];

    const float a = K * c::ln2_hi, b = a + hi;
    const float g = ((K * c::ln2_lo) + lo) + (hi - (b - a));
    const float Mh = (M + c::cut) - c::cut;
    const float u = (M - Mh) * R, t = Mh * R + -1.0f;
    const float A = t + b, v = t + u, G = g + u, S = A + G;
    const float P = horner(v, c::p);
    *result = S + (((P * v) * v + (u - (G - g))) + (G - (S - A)));
    return ordinary;
}

} // namespace orvane
