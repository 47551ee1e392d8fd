// The slow paths of div and inv: the exact quotient.
#include "frame/rare.h"

namespace orvane {

namespace {

template <class T> int quotient(T x, T y, T* result) {
    *result = x / y;
    return y == 0 ? pole : ordinary;
}

} // namespace

ORVANE_SLOW_PATH(__orvane_ddiv_cout_rare, const double* x, const double* y, double* result) {
    return quotient(*x, *y, result);
}
ORVANE_SLOW_PATH(__orvane_sdiv_cout_rare, const float* x, const float* y, float* result) {
    return quotient(*x, *y, result);
}
ORVANE_SLOW_PATH(__orvane_sinv_cout_rare, const float* x, float* result) { return quotient(1.0f, *x, result); }

} // namespace orvane
