// The page: one file that holds its data, its program, its style and the plotting library.
#pragma once

#include "accuracy.h"

namespace orvane::report {

std::string page_of(const json& data);

// What a page shows of an earlier run beside its own figures: `processor`, `measured`, `estimates`, and by kernel
// `digest` and `largest`, and `speed` as it was.
json as_baseline(const json& data);

} // namespace orvane::report
