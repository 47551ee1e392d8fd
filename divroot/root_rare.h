// What the slow paths of the roots share; every operation rounds by itself, in the order written.
#pragma once

#include "divroot/root_tables.h"

namespace orvane {

// The leading bits of v, as many as the factor leaves, so that products with them are exact: with 2^n + 1 nearest,
// with 2^n all but the last n bits, near v + 2^n v.
inline double leading(double v, double factor) {
    const double a = v * factor;
    return a - (a - v);
}

// sqrt(m) and half its reciprocal from a seed of the latter: three coupled steps of Goldschmidt's iteration.
struct root_and_half_reciprocal {
    double g, h;
};
inline root_and_half_reciprocal goldschmidt(double m, double seed) {
    double g = m * seed, h = seed * 0.5;
    for (int step = 0; step < 3; step++) {
        const double a = 0.5 - g * h;
        g = a * g + g;
        h = a * h + h;
    }
    return {g, h};
}
// The seed for a significand by its top eight fraction bits and the exponent's parity.
inline double root_seed(double significand, int odd) {
    return _orvdSqrtHATab[256 * odd + (bits(significand) >> 44 & 255)];
}

// m - g^2.
inline double residual(double m, double g) {
    const auto [gh, gl] = split(g);
    return ((gh * -2.0) * gl + (m - gh * gh)) - gl * gl;
}

} // namespace orvane
