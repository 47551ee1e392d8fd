// The error limits that OpenCL C sets for its built-ins.
#pragma once

#include "signature.h"

#include <optional>

namespace orvane {

// Whether a limit holds for all arguments, or how it depends on them.
enum class limit_condition {
    none,
    normal_reciprocal, // for divisors from 2^-126 to 2^126
    grows,             // by floor(|2 x|) ulp
    outside_half_to_2, // in [0.5, 2] it is 2^-21 absolute
    half_circle        // on [-pi, pi] alone
};

// One limit: a number of units in the last place of the true value, 0.5 standing for "correctly rounded", or an
// absolute error.
struct error_limit {
    double ulp;      // 0 where the limit is absolute
    double absolute; // 0 where the limit is in ulp
    limit_condition condition = limit_condition::none;

    // Whether it allows errors, in ulp and absolute, at x (of a quotient: at the divisor).
    bool allows(double x, double ulps, double absolutely) const;
    std::string_view where() const; // the condition in words: "on [-pi, pi]"; empty where there is none
    std::string text() const;       // "4 ulp", "2^-11 absolute on [-pi, pi]"
};

// What OpenCL C asks of the built-in that a pair serves: its full profile for the default tier, 8192 ulp for half_
// functions, and for the rm tiers of `float` what it grants under -cl-fast-relaxed-math. None where it sets no limit
// (native_ functions, lgamma, functions that it does not have) and where results are exact by their meaning.
std::optional<error_limit> limit_of(const kernel_row& row);

} // namespace orvane
