// What a report says about pairs without measuring: what they compute, how they are called, what special arguments
// give.
#pragma once

#include "accuracy.h"

namespace orvane::report {

// The kernel that a pair runs, and the name by which a report calls it: "exp/default".
const kernel_row& kernel_of(const kernel_row& row);
std::string name_of(const kernel_row& kernel);

// Of pairs, in their order:
//
//     pairs     `family`, `tier`, `kernel`, `type` (of x, and of the result where that is another), `builtin` and
//               `relaxed` (at 8 lanes; absent where none), `error` with `measure` (the largest known), `limit`
//               (OpenCL C's, in words) with `limit_value` (in the measure of the error, where it is a plain number),
//               `form`
//     families  by name: `meaning`, `formula`, `domain`, `special` (`types`, the arguments `x`, `y`, `z`, or lists of
//               triples; by tier what the kernel returns for each, by row), all lanes as hexadecimal digits
//     forms     calling forms, by number: for each of the six widths `memory`, `in` and `out`, in words
json facts_of(const std::vector<const kernel_row*>& pairs, const library& in, const std::vector<worst_case>& cases);

} // namespace orvane::report
