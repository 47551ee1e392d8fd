// The error limits that OpenCL C sets for its built-ins.
#pragma once

#include "signature.h"

#include <optional>

namespace orvane {

// One limit: a number of units in the last place of the true value, 0.5 standing for "correctly rounded", or an
// absolute error; `where` restricts the arguments, or says how the limit grows.
struct error_limit {
    double ulp;      // 0 where the limit is absolute
    double absolute; // 0 where the limit is in ulp
    std::string_view where;
    std::string text() const; // "4 ulp", "2^-11 absolute on [-pi, pi]"
};

// What OpenCL C asks of the built-in that a pair serves: in its full profile; 8192 ulp of half_ functions; under
// -cl-fast-relaxed-math, for `float`, of the rm tiers. None where it sets no limit (native_ functions, lgamma,
// functions that it does not have) and where results are exact by their meaning.
std::optional<error_limit> limit_of(const kernel_row& row);

} // namespace orvane
