// The slow paths of pown, rootn and their float members: x^y with y = n or y near 1/n.
#include "pow/pow_rare.h"

namespace orvane {

namespace {

// The parity is that of n itself: a float of n may have lost its last bit.
parity parity_of_integer(int n) { return n & 1 ? odd : even; }

template <class T> int rootn_rare(T x, int n, T* result) {
    auto settled = [=](T value) {
        *result = value;
        return ordinary;
    };
    const bool is_even = !(n & 1);
    const T ax = magnitude(x), sgn = is_negative(x) ? T(-1) : T(1);
    if (is_nan(x)) return settled(n == 0 || (is_even && is_negative(x)) ? no_number<T> : ax + ax);
    if (n == 0) return settled(invalid_operation<T>());
    if (is_even && x == 0) return settled(n < 0 ? T(__builtin_inf()) : T(0));
    if (!is_even && (x == 0 || is_infinite(x))) return settled(n > 0 ? x : T(1) / x);
    if (is_negative(x) && is_even) return settled(invalid_operation<T>());
    if (ax == 1) return settled(sgn);
    const T nf = T(n), rn = T(1) / nf;
    if (is_infinite(x)) return settled(rn < 0 ? T(0) : rn * (x * x));
    // 1/n as yh + yl: e = 1 - n yh is exact, and 1/n = yh / (1 - e).
    const T yh = split(rn).hi, e = T(1) - nf * yh, yl = ((T(1) + e) * e) * yh;
    return settled(power<leading_head, parted_finish>(ax, exponent_parts<T>{rn, yh, yl}, T(1)).value * sgn);
}

} // namespace

ORVANE_SLOW_PATH(__orvane_dpown_cout_rare, const double* x, const int* n, double* result) {
    const double y = *n;
    return power_by_cases(*x, y, parity_of_integer(*n), result,
                          [=](double sgn) { return power<leading_head, joined_finish>(*x, parts_of(y), sgn).value; });
}
ORVANE_SLOW_PATH(__orvane_spown_cout_rare, const float* x, const int* n, float* result) {
    if (is_nan(*x) && *n) return *result = *x + *x, ordinary; // the conversion of n would raise inexact
    const float y = (float)*n;
    return power_by_cases(*x, y, parity_of_integer(*n), result, [=](float sgn) {
        // n = y + rest; the conversion of 2^31 back to an integer gives -2^31, and the difference wraps.
        const int rest = int(unsigned(*n) - (y == 0x1p31f ? 0x80000000u : unsigned(int(y))));
        const float yh = split(y).hi, yl = float(rest) + (y - yh);
        return power<leading_head, joined_finish>(*x, exponent_parts<float>{y, yh, yl}, sgn).value;
    });
}
ORVANE_SLOW_PATH(__orvane_drootn_cout_rare, const double* x, const int* n, double* result) {
    return rootn_rare(*x, *n, result);
}
ORVANE_SLOW_PATH(__orvane_srootn_cout_rare, const float* x, const int* n, float* result) {
    return rootn_rare(*x, *n, result);
}

} // namespace orvane
