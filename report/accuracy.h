// The error of a kernel over its arguments, and what its results are: the measured part of a pair's section.
#pragma once

#include "tools/subject.h"

#include <nlohmann/json.hpp>

namespace orvane::report {

using json = nlohmann::ordered_json;

struct effort {
    int samples = 1024; // in a bin of arguments; MPFR alone tells the error of an eighth of them, where there is no
                        // quicker reference
    int decided = 12;   // arguments per path that MPFR decides
    bool every = false; // every float, of families with one
    bool operator==(const effort&) const = default;
};

// Bins of magnitudes, by powers of two: from 2^edge to 2^(next edge), the first of a floating type being its
// subnormal numbers. Finer around 1; a plane has wider ones.
std::vector<int> edges_of(lane_type t, bool of_plane);

// What was measured of one kernel:
//
//     measure    "ulp", "relative" or "absolute": of all errors that follow
//     exponents  for one argument, rows [bin, path, largest, median, bits]: the bin by its number among the edges,
//     and
//                - 1 - number where the argument is negative; the path 0 (formula), 1 (large), 2 (slow); the argument
//                of the largest error as hexadecimal digits. A bin all whose errors are 0 has no row
//     linear     the same over equal parts of the ordinary range, and `range`, the range
//     plane      for two arguments, rows [bin of x, bin of y, largest, median, bits, bits], magnitudes of either sign
//     lanes      how many arguments were tried
//     largest    by path: `error`, `measure`, `arguments`, decided by MPFR
//     known      the rows of data/worst_cases.txt, each with `here`, its error measured again
//     digest     of all results over arguments that never change
//     estimates  whether the kernel holds one of the processor's 12-bit estimates
//
// `stopped` is asked from time to time; once it says true the value is null.
json accuracy_of(const kernel_row& kernel, const library& in, const std::vector<worst_case>& cases, const effort& e,
                 const std::function<bool()>& stopped);

} // namespace orvane::report
