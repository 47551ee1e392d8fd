// The slow paths of the families whose kernels take every finite lane: infinities and NaN alone.
#include "trig/sin_rare.h"

namespace orvane {

namespace {

template <class T> int not_finite_alone(T x, T* result) {
    int code = ordinary;
    circular_of_not_finite(x, result, &code);
    return code;
}

} // namespace

ORVANE_SLOW_PATH(__orvane_dtan_cout_rare, const double* x, double* result) { return not_finite_alone(*x, result); }
ORVANE_SLOW_PATH_TWIN(__orvane_dtanpi_cout_rare, __orvane_dtan_cout_rare)

ORVANE_SLOW_PATH(__orvane_ssin_cout_rare, const float* x, float* result) { return not_finite_alone(*x, result); }
ORVANE_SLOW_PATH_TWIN(__orvane_scos_cout_rare, __orvane_ssin_cout_rare)
ORVANE_SLOW_PATH_TWIN(__orvane_stan_cout_rare, __orvane_ssin_cout_rare)
ORVANE_SLOW_PATH_TWIN(__orvane_stanpi_cout_rare, __orvane_ssin_cout_rare)

} // namespace orvane
