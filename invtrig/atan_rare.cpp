// The slow paths of atan, for infinities alone, and of atanpi, for magnitudes outside the kernels' range, which is
// wider than 2^-53 to 2^54: there x / pi or 1/2 is the result.
#include "invtrig/atan_rare.h"

namespace orvane {

namespace {

// x / pi for |x| < 2^-53: scaled by 2^82, so that the low parts of the product do not underflow. A subnormal
// result is rounded there a second time.
double atanpi_small(double ax) {
    const auto [h, l] = multiply(split((ax * (1.0 + ax)) * 0x1p82), inv_pi_parts);
    return (h + l) * 0x1p-82;
}

} // namespace

ORVANE_SLOW_PATH(__orvane_datan_cout_rare, const double* x, double* result) {
    *result = with_sign_of(*x, half_pi);
    return ordinary;
}
ORVANE_SLOW_PATH(__orvane_satan_cout_rare, const float* x, float* result) {
    *result = with_sign_of(*x, (float)half_pi);
    return ordinary;
}

ORVANE_SLOW_PATH(__orvane_datanpi_cout_rare, const double* x, double* result) {
    const double ax = __builtin_fabs(*x);
    if (*x != *x) *result = *x + *x;
    else *result = with_sign_of(*x, ax >= 0x1p54 ? 0.5 : atanpi_small(ax));
    return ordinary;
}
ORVANE_SLOW_PATH(__orvane_satanpi_cout_rare, const float* x, float* result) {
    const float ax = __builtin_fabsf(*x);
    if (*x != *x) return *result = *x + *x, ordinary;
    double v = half_pi;
    if (ax < 0x1p-126f) v = double(ax) + double(ax * ax);
    else if (ax < 0x1p-53f) v = double(ax) * (1.0 + double(ax));
    *result = with_sign_of(*x, float(v * inv_pi));
    return ordinary;
}

} // namespace orvane
