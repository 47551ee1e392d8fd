// The slow paths of log and logf.
#include "log/log_rare.h"

namespace orvane {

namespace {

template <class T> int log_rare(T x, T* result) {
    int status;
    if (no_logarithm(x, result, &status)) return status;
    constexpr int scaling = sizeof(T) == 8 ? 60 : 27; // of a subnormal
    const T scaled = x * T(uint64_t(1) << scaling);
    *result = ln_rare(significand(scaled), T(biased_exponent(scaled) - (exponent_bias<T> + scaling)));
    return ordinary;
}

} // namespace

ORVANE_SLOW_PATH(__orvane_dln_cout_rare, const double* x, double* result) { return log_rare(*x, result); }
ORVANE_SLOW_PATH(__orvane_sln_cout_rare, const float* x, float* result) { return log_rare(*x, result); }

} // namespace orvane
