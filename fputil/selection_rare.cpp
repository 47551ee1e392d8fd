// The NaN rule of the selections: a NaN gives the other argument, quieted if it is one too. An infinity without a NaN
// keeps the vector path's result, which is in place already.
#include "frame/rare.h"

namespace orvane {

namespace {

template <class T> int selection_rare(const T* x, const T* y, T* result) {
    if (is_nan(*y)) *result = *x * T(1.0);
    if (is_nan(*x)) *result = *y * T(1.0);
    return ordinary;
}

// fdim: a NaN in either argument is the result, quieted; the second one's where both are NaN.
template <class T> int difference_rare(const T* x, const T* y, T* result) {
    if (is_nan(*x)) *result = *x * T(1.0);
    if (is_nan(*y)) *result = *y * T(1.0);
    return ordinary;
}

} // namespace

ORVANE_SLOW_PATH(__orvane_dfmin_cout_rare, const double* x, const double* y, double* result) {
    return selection_rare(x, y, result);
}
ORVANE_SLOW_PATH(__orvane_sfmin_cout_rare, const float* x, const float* y, float* result) {
    return selection_rare(x, y, result);
}
ORVANE_SLOW_PATH_TWIN(__orvane_dfmax_cout_rare, __orvane_dfmin_cout_rare)
ORVANE_SLOW_PATH_TWIN(__orvane_dminmag_cout_rare, __orvane_dfmin_cout_rare)
ORVANE_SLOW_PATH_TWIN(__orvane_dmaxmag_cout_rare, __orvane_dfmin_cout_rare)
ORVANE_SLOW_PATH_TWIN(__orvane_sfmax_cout_rare, __orvane_sfmin_cout_rare)
ORVANE_SLOW_PATH_TWIN(__orvane_sminmag_cout_rare, __orvane_sfmin_cout_rare)
ORVANE_SLOW_PATH_TWIN(__orvane_smaxmag_cout_rare, __orvane_sfmin_cout_rare)

ORVANE_SLOW_PATH(__orvane_dfdim_cout_rare, const double* x, const double* y, double* result) {
    return difference_rare(x, y, result);
}
ORVANE_SLOW_PATH(__orvane_sfdim_cout_rare, const float* x, const float* y, float* result) {
    return difference_rare(x, y, result);
}

} // namespace orvane
