// What families compute, by the C library: in extended precision, two thousand times finer than a double's last
// place, to pick arguments among millions that MPFR then decides; and in double for what has to be quicker and is for
// floats.
#pragma once

#include "signature.h"

namespace orvane {

struct extended_reference {
    // The first result, and the second of sincos, for the arguments as numbers; y is not looked at by families of
    // one.
    long double (*value)(long double x, long double y);
    long double (*second)(long double x, long double y) = nullptr;
    // The same in double, for families of one argument.
    double (*quick)(double x) = nullptr;
    double (*quick_second)(double x) = nullptr;
};

// The reference of a family by its base name (exp, not expf); null for families that are exact by their meaning.
const extended_reference* extended_reference_of(const kernel_row& row);

} // namespace orvane
