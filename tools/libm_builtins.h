// OpenCL C that has the math built-ins call the C library's scalar functions of this process.
#pragma once

#include <string>

namespace orvane {

// To stand before a kernel's source, for a driver that compiles for this process with clang on x86-64.
std::string libm_builtins(bool with_double);

} // namespace orvane
