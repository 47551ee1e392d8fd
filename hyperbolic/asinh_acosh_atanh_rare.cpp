// The slow paths of asinh, acosh and atanh: infinities, poles, arguments outside of the domain, and NaN.
#include "frame/rare.h"

namespace orvane {

namespace {

// The NaN of a domain error: in float the processor's default NaN, which is negative.
template <class T> constexpr T no_result = sizeof(T) == 8 ? T(f64(0x7FF8000000000000)) : T(f32(0xFFC00000));

template <class T> int asinh_rare(T x, T* result) {
    *result = x != x ? x * x : x;
    return ordinary;
}
template <class T> int acosh_rare(T x, T* result) {
    if (__builtin_isless(x, T(1))) { // a NaN raises no flag
        *result = no_result<T>;
        return domain_error;
    }
    *result = x == 1 ? T(0) : x * x; // +Inf, or the NaN quieted
    return ordinary;
}
template <class T> int atanh_rare(T x, T* result) {
    if (x != x) {
        *result = x * x;
        return ordinary;
    }
    if (x == 1 || x == -1) {
        *result = x * T(__builtin_inf());
        return pole;
    }
    *result = no_result<T>;
    return domain_error;
}

} // namespace

ORVANE_SLOW_PATH(__orvane_dasinh_cout_rare, const double* x, double* result) { return asinh_rare(*x, result); }
ORVANE_SLOW_PATH(__orvane_sasinh_cout_rare, const float* x, float* result) { return asinh_rare(*x, result); }
ORVANE_SLOW_PATH(__orvane_dacosh_cout_rare, const double* x, double* result) { return acosh_rare(*x, result); }
ORVANE_SLOW_PATH(__orvane_sacosh_cout_rare, const float* x, float* result) { return acosh_rare(*x, result); }
ORVANE_SLOW_PATH(__orvane_datanh_cout_rare, const double* x, double* result) { return atanh_rare(*x, result); }
ORVANE_SLOW_PATH(__orvane_satanh_cout_rare, const float* x, float* result) { return atanh_rare(*x, result); }

} // namespace orvane
