// The slow paths of exp10 and exp10f.
#include "exp/exp_rare.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dexp10_cout_rare, const double* x, double* result) {
    const double v = *x;
    if (exp_of_not_finite(v, result)) return ordinary;
    if (v > f64(0x40734413509F79FE)) { // 308.2547155599167
        *result = __builtin_inf();
        return overflow;
    }
    if (v < f64(0xC07439B746E36B52)) { // -323.60724533877976
        *result = 0.0;
        return underflow;
    }
    const auto [r, hi, lo, e] = reduce(v, base_10);
    const double y = (exp10m1_polynomial(r) + lo) * hi;
    if (v >= -307.6526555685887) {
        *result = scaled(hi + y, e);
        return ordinary;
    }
    *result = scaled_to_subnormal(hi, y, e);
    return underflow;
}

ORVANE_SLOW_PATH(__orvane_sexp10_cout_rare, const float* x, float* result) {
    const float v = *x;
    if (exp_of_not_finite(v, result)) return ordinary;
    if (v > f32(0x421A209B)) { // 38.53184
        *result = __builtin_inff();
        return overflow;
    }
    if (v < f32(0xC2349E35)) { // -45.1545
        *result = 0.0f;
        return underflow;
    }
    const auto [r, hi, lo, e] = reduce(v, base_10);
    *result = (float)(power_of_two(e + 1023) * ((exp10m1_polynomial(r) + lo) * hi + hi));
    return v <= f32(0xC217B819) ? underflow : ordinary; // -37.92978
}

} // namespace orvane
