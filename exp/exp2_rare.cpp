// The slow paths of exp2 and exp2f: x itself is taken apart, with no product.
#include "exp/exp_rare.h"

namespace orvane {

namespace {

struct significand_and_exponent {
    double v; // 2^(x - e)
    uint32_t e;
};
significand_and_exponent exp2_parts(double x) {
    const double w = 105553116266496.0 + x; // 1.5 * 2^46: the last place is 1/64
    const uint32_t bits_of_n = (uint32_t)bits(w), j = bits_of_n & 63;
    const double r = x - (-105553116266496.0 + w);
    const auto [hi, lo] = _orvdExpHATab[j];
    // Fit on |r| <= 1/128: c1*r + c2*r^2 + c3*r^3 + c4*r^4 + c5*r^5 = exp2(r) - 1 to 2^-50.4 relative
    constexpr double c1 = 0.6931471805599453, c2 = 0.24022650695884967, c3 = 0.05550410866607508,
                     c4 = 0.009618142269653759, c5 = 0.0013333417185814622;
    const double v = ((((c5 * r + c4) * r + c3) * r + c2) * r + c1) * r;
    return {(v + lo) * hi + hi, bits_of_n >> 6};
}

} // namespace

ORVANE_SLOW_PATH(__orvane_dexp2_cout_rare, const double* x, double* result) {
    const double d = *x;
    if (exp_of_not_finite(d, result)) return ordinary;
    if (!(d < 1024.0)) {
        *result = __builtin_inf();
        return overflow;
    }
    if (!(d > -1075.0)) {
        *result = 0.0;
        return underflow;
    }
    const auto [v, e] = exp2_parts(d);
    if (d < -1022.0) {                                                    // rounds twice, in v and here
        *result = (v * power_of_two(e + 1123)) * f64(0x39B0000000000000); // 2^-100
        return underflow;
    }
    *result = scaled(v, e);
    return ordinary;
}

ORVANE_SLOW_PATH(__orvane_sexp2_cout_rare, const float* x, float* result) {
    const float d = *x;
    if (exp_of_not_finite(d, result)) return ordinary;
    if (!(d < 128.0f)) {
        *result = __builtin_inff();
        return overflow;
    }
    if (!(d > -150.0f)) {
        *result = 0.0f;
        return underflow;
    }
    const auto [v, e] = exp2_parts(d);
    *result = (float)(power_of_two(e + 1023) * v);
    return d < -126.0f ? underflow : ordinary;
}

} // namespace orvane
