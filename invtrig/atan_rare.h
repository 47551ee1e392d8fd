// What the slow paths of the arc tangents share: sums and products in two doubles, without fused operations.
#pragma once

#include "frame/rare.h"

namespace orvane {

// a + b as a rounded sum and, exactly, what the rounding took off, whichever of them is larger.
inline hi_lo<double> add(double a, double b) {
    const double s = a + b, t = a - s;
    return {s, (b + t) + (a - (s + t))};
}

// A product of two numbers in two parts, the high ones short: their product is exact.
inline hi_lo<double> multiply(hi_lo<double> a, hi_lo<double> b) {
    return {a.hi * b.hi, a.lo * b.hi + (a.hi * b.lo + a.lo * b.lo)};
}

inline constexpr double half_pi = f64(0x3FF921FB54442D18);
inline constexpr double inv_pi = f64(0x3FD45F306DC9C883);
inline constexpr hi_lo<double> inv_pi_parts = {f64(0x3FD45F3070000000), f64(0xBE21B1BBEAD603D9)};

} // namespace orvane
