// The slow path of exp.
#include "exp/exp_rare.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dexp_cout_rare, const double* x, double* result) {
    const double v = *x;
    if (exp_of_not_finite(v, result)) return ordinary;
    if (v > 709.782712893384) {
        *result = __builtin_inf();
        return overflow;
    }
    if (v < -745.1332191019411) {
        *result = 0.0;
        return underflow;
    }
    if (v >= f64(0xC086232BDD7ABCD2)) { // -708.3964185322641
        *result = exp_normal(v);
        return ordinary;
    }
    const auto [r, hi, lo, e] = reduce(v, base_e);
    *result = scaled_to_subnormal(hi, (expm1_polynomial(r) + lo) * hi, e);
    return underflow;
}

} // namespace orvane
