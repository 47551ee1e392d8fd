// What the driver and the hooks in PoCL know of each other.
#pragma once

#include <cstdlib>
#include <cstring>
#include <link.h>

namespace orvane::pocl {

// ORVANE_LOG=1: lines on stderr about what became of a driver and of each kernel's built-ins.
inline bool log_wanted() {
    const char* v = getenv("ORVANE_LOG");
    return v && *v && strcmp(v, "0") != 0;
}

// Sets the hooks in PoCL's library: null, or why that was not done, with everything as it was.
using set_hooks_fn = const char* (*)(link_map* pocl);

} // namespace orvane::pocl
