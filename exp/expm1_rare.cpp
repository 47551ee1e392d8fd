// The slow paths of expm1 and expm1f: the lanes are so large that -1 or e^x is the result.
#include "exp/exp_rare.h"

namespace orvane {

namespace {

template <class T, class Exp> int expm1_rare(T v, T* result, T largest, Exp exp_of) {
    if (__builtin_isless(v, T(0))) { // a NaN raises no flag
        *result = T(-1);
        return ordinary;
    }
    if (exp_of_not_finite(v, result)) return ordinary;
    if (v > largest) {
        *result = T(__builtin_inf());
        return overflow;
    }
    *result = exp_of(v);
    return ordinary;
}

} // namespace

ORVANE_SLOW_PATH(__orvane_dexpm1_cout_rare, const double* x, double* result) {
    return expm1_rare(*x, result, 709.782712893384, exp_normal);
}
ORVANE_SLOW_PATH(__orvane_sexpm1_cout_rare, const float* x, float* result) {
    return expm1_rare(*x, result, f32(0x42B17217), expf_normal);
}

} // namespace orvane
