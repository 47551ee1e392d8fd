// The slow paths of erfc: NaN and arguments whose result rounds to zero.
#include "frame/rare.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_derfc_cout_rare, const double* x, double* result) {
    const double v = *x;
    if (v != v) return *result = v * v, ordinary;
    *result = 0.0;
    return v == __builtin_inf() ? ordinary : underflow;
}

// erfc of the least float that comes here is 1.00001 * 2^-150, which rounds up; all above it round to zero.
ORVANE_SLOW_PATH(__orvane_serfc_cout_rare, const float* x, float* result) {
    const float v = *x;
    if (v != v) return *result = v * v, ordinary;
    if (v < 10.054194928818097) return *result = f32(0x00000001), ordinary;
    *result = 0.0f;
    return v == __builtin_inff() ? ordinary : underflow;
}

} // namespace orvane
