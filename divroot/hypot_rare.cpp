// The slow paths of hypot: both arguments scaled by one power of two, their squares summed as hi + lo, and a root of
// that.
#include "divroot/root_rare.h"

namespace orvane {

namespace {

double scaled_hypot(double x, double y) {
    const double ax = __builtin_fabs(x), ay = __builtin_fabs(y);
    double M = ax > ay ? ax : ay, n = ax > ay ? ay : ax;
    // The larger one is scaled to about 4, or as close as one power of two can bring a tiny one.
    const int EM = biased_exponent(M), k = (EM < 25 ? -23 - EM : -EM) & 0x7FF;
    n *= power_of_two(k);
    M *= power_of_two(k);

    // hi + lo = M^2 + n^2; an n far below M is short enough as it stands.
    const double Mh = split(M).hi;
    const double nh = biased_exponent(M) - biased_exponent(n) < 7 ? split(n).hi : 0.0, nl = n - nh;
    const double t = n * nl + (M - Mh) * (M + Mh);
    const double hi = Mh * Mh + nh * nh, lo = nh * nl + t;

    const double S = hi + lo;
    const int exponent = biased_exponent(S) - 1023, odd = exponent & 1;
    const auto [g, h] = goldschmidt(significand(S) * (odd ? 2.0 : 1.0), root_seed(S, odd));
    const double F = power_of_two(1023 - (exponent & 0x7FE)); // 4^-floor(exponent / 2)
    const double c = lo * F + residual(hi * F, g);
    return ((c * h + g) * power_of_two((exponent >> 1) + 1023)) * power_of_two(2046 - k);
}

template <class T> int hypot_rare(T x, T y, T* result) {
    // An infinity wins over a NaN, the first NaN over the second.
    if (is_infinite(x) || is_infinite(y)) *result = T(__builtin_inf());
    else if (is_nan(x) || is_nan(y)) *result = nan_of(x, y);
    else if (x == 0 && y == 0) *result = 0;
    else *result = T(scaled_hypot(x, y));
    return ordinary;
}

} // namespace

ORVANE_SLOW_PATH(__orvane_dhypot_cout_rare, const double* x, const double* y, double* result) {
    return hypot_rare(*x, *y, result);
}
ORVANE_SLOW_PATH(__orvane_shypot_cout_rare, const float* x, const float* y, float* result) {
    return hypot_rare(*x, *y, result);
}

} // namespace orvane
