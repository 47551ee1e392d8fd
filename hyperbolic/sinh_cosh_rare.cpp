// The slow paths of sinh and cosh: near the end of the range both are e^abs(x) / 2.
#include "exp/exp_rare.h"
#include "hyperbolic/hyperbolic_tables.h"

namespace orvane {

namespace {

// From here on e^x / 2 is no finite double, or no finite float.
template <class T> constexpr double overflow_limit = sizeof(T) == 8 ? f64(0x408633CE8FB9F87E)
                                                                    : f64(0x40565A9FA0000000);

double half_exp(double ax) {
    const auto [r, n] = split_by_step(ax, base_e);
    const auto [hi, lo] = __dsinh_g_CoutTab[n & 63];
    const double v = (expm1_polynomial(r) * hi + lo) + hi;
    return scaled(v, (n >> 6) - 1);
}

template <class T> int sinh_rare(T x, T* result) {
    const T ax = magnitude(x);
    if (biased_exponent(x) == top_exponent<T>) {
        *result = x + x;
        return ordinary;
    }
    const bool over = ax >= overflow_limit<T>;
    *result = with_sign_of(x, over ? T(__builtin_inf()) : T(half_exp(ax)));
    return over ? overflow : ordinary;
}
template <class T> int cosh_rare(T x, T* result) {
    const T ax = magnitude(x);
    if (biased_exponent(x) == top_exponent<T>) {
        *result = x * x;
        return ordinary;
    }
    const bool over = ax >= overflow_limit<T>;
    *result = over ? T(__builtin_inf()) : T(half_exp(ax));
    return over ? overflow : ordinary;
}

} // namespace

ORVANE_SLOW_PATH(__orvane_dsinh_cout_rare, const double* x, double* result) { return sinh_rare(*x, result); }
ORVANE_SLOW_PATH(__orvane_ssinh_cout_rare, const float* x, float* result) { return sinh_rare(*x, result); }
ORVANE_SLOW_PATH(__orvane_dcosh_cout_rare, const double* x, double* result) { return cosh_rare(*x, result); }
ORVANE_SLOW_PATH(__orvane_scosh_cout_rare, const float* x, float* result) { return cosh_rare(*x, result); }

} // namespace orvane
