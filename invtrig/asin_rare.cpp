// The slow paths of asin, acos, asinpi and acospi: what lies outside [-1, 1], and exact values at +-1 of the pi
// forms, whose kernels stop short of them.
#include "frame/rare.h"

namespace orvane {

namespace {

template <class T> struct at_one { T plus, minus; };

// A NaN gives itself, quieted; arguments outside the domain give the positive NaN.
template <class T> int outside(T x, T* result, const at_one<T>* exact = nullptr) {
    if (x != x) return *result = x + x, ordinary;
    if (exact && (x == 1 || x == -1)) return *result = x == 1 ? exact->plus : exact->minus, ordinary;
    return *result = invalid<T>, domain_error;
}

template <class T> constexpr at_one<T> asinpi_at = {T(0.5), T(-0.5)};
template <class T> constexpr at_one<T> acospi_at = {T(0), T(1)};

} // namespace

ORVANE_SLOW_PATH(__orvane_dasin_cout_rare, const double* x, double* result) { return outside(*x, result); }
ORVANE_SLOW_PATH(__orvane_sasin_cout_rare, const float* x, float* result) { return outside(*x, result); }
ORVANE_SLOW_PATH_TWIN(__orvane_dacos_cout_rare, __orvane_dasin_cout_rare)
ORVANE_SLOW_PATH_TWIN(__orvane_sacos_cout_rare, __orvane_sasin_cout_rare)
ORVANE_SLOW_PATH(__orvane_dasinpi_cout_rare, const double* x, double* result) {
    return outside(*x, result, &asinpi_at<double>);
}
ORVANE_SLOW_PATH(__orvane_sasinpi_cout_rare, const float* x, float* result) {
    return outside(*x, result, &asinpi_at<float>);
}
ORVANE_SLOW_PATH(__orvane_dacospi_cout_rare, const double* x, double* result) {
    return outside(*x, result, &acospi_at<double>);
}
ORVANE_SLOW_PATH(__orvane_sacospi_cout_rare, const float* x, float* result) {
    return outside(*x, result, &acospi_at<float>);
}

} // namespace orvane
