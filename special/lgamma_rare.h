// What the two slow paths of log|gamma| share: their exits, the sign of gamma, and the shapes of their root tables.
#pragma once

#include "special/x87.h"

#include <cmath>
#include <limits>

namespace orvane {

constexpr extended lg_half_log2pi = 0xEB3F8E4325F5A535p-64L;

// Lower bound, centre and upper bound of a window around a zero of log|gamma| on the negative axis.
struct root_window {
    double lower, centre, upper;
};
template <class T> bool inside(const root_window& w, T x) { return w.lower < x && x < w.upper; }

template <class T> constexpr T whole_numbers = sizeof(T) == 8 ? T(0x1p52) : T(0x1p23); // all are from here on
template <class T> bool is_integer(T x) { return x <= -whole_numbers<T> || x == T(int64_t(x)); }

// The sign of gamma(x): of its pole at a zero, -1 where the integer above a negative x is even, else +1.
template <class T> int sign_of_gamma(T x) {
    if (x == 0) return std::signbit(x) ? -1 : 1;
    return __builtin_isless(x, T(0)) && !is_integer(x) && int64_t(x) % 2 == 0 ? -1
                                                                              : 1; // the conversion is toward zero
}

// Handles the arguments that need no formula: NaN and infinities, zeros and negative integers (the poles), and x
// above `above`, where the result overflows. Returns true with result and status set; false for all others.
template <class T> bool no_log_gamma(T x, T above, T* result, int* status) {
    if (!__builtin_islessequal(std::fabs(x), std::numeric_limits<T>::max())) *result = x * x, *status = ordinary;
    else if (x > above) *result = std::numeric_limits<T>::max() * std::numeric_limits<T>::max(), *status = overflow;
    else if (x == 0 || (x < 0 && is_integer(x))) *result = 1 / T(0), *status = pole;
    else return false;
    return true;
}

// The distance from A to the nearest integer, up to its sign, by that to an integer R next to A, which is the nearest
// one in the default rounding mode.
inline extended to_nearest_integer(extended A, extended R) {
    const extended r = A - R;
    return r > 0.5L ? r - 1 : r < -0.5L ? r + 1 : r;
}

// log|gamma(x)| for x < 0 by gamma(x) = gamma(y) / (x (x + 1) ... (y - 1)), y the first of x, x + 1 ... that is not
// below 1.
template <class LogGamma, class Log> extended shifted_up(extended x, LogGamma log_gamma, Log log_of) {
    extended y = x, p = 1;
    do {
        p = p * y;
        y = y + 1;
    } while (y < 1);
    return log_gamma(y) - log_of(p < 0 ? -p : p);
}

} // namespace orvane
