// The slow paths of fract and modf: zeros (of fract alone), infinities and NaN.
#include "frame/rare.h"

namespace orvane {

namespace {

// A NaN is returned as it came, a signalling one too: its bits are copied and no operation touches them.
template <class T> int fract_rare(const T* x, T* result, T* out) {
    const bool infinite = is_infinite(*x);
    __builtin_memcpy(out, x, sizeof(T));
    __builtin_memcpy(result, x, sizeof(T));
    if (infinite) *result = with_sign_of(*x, T(0));
    return ordinary;
}

template <class T> int modf_rare(const T* x, T* result, T* out) {
    const T v = *x;
    *result = is_infinite(v) ? with_sign_of(v, T(0)) : v + v;
    *out = v + v; // an infinity stays, a NaN is quieted
    return ordinary;
}

} // namespace

ORVANE_SLOW_PATH(__orvane_dfract_cout_rare, const double* x, double* result, double* out) {
    return fract_rare(x, result, out);
}
ORVANE_SLOW_PATH(__orvane_sfract_cout_rare, const float* x, float* result, float* out) {
    return fract_rare(x, result, out);
}
ORVANE_SLOW_PATH(__orvane_dmodf_cout_rare, const double* x, double* result, double* out) {
    return modf_rare(x, result, out);
}
ORVANE_SLOW_PATH(__orvane_smodf_cout_rare, const float* x, float* result, float* out) {
    return modf_rare(x, result, out);
}

} // namespace orvane
