// The slow path of expf.
#include "exp/exp_rare.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_sexp_cout_rare, const float* x, float* result) {
    const float v = *x;
    if (exp_of_not_finite(v, result)) return ordinary;
    if (v > f32(0x42B17217)) { // 88.72283
        *result = __builtin_inff();
        return overflow;
    }
    if (v < f32(0xC2CFF1B4)) { // -103.97208
        *result = 0.0f;
        return underflow;
    }
    if (v >= f32(0xC2AEAC4F)) { // -87.33654
        *result = expf_normal(v);
        return ordinary;
    }
    const auto [r, hi, lo, e] = reduce(v, base_e);
    *result = (float)scaled_to_subnormal(hi, (expm1_polynomial(r) + lo) * hi, e);
    return underflow;
}

} // namespace orvane
