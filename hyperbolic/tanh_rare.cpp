// The slow path of tanh: lanes so large that the result is +-1, and NaN.
#include "hyperbolic/hyperbolic_tables.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dtanh_cout_rare, const double* x, double* result) {
    *result = *x != *x ? *x + *x : __dtanh_g__orwdTanhTab[bits(*x) >> 63];
    return ordinary;
}

} // namespace orvane
