// The names of the vector function ABI that the exports serve, and how: from the list of exports.
#pragma once

#include "signature.h"

#include <string>
#include <vector>

namespace orvane {

// A function that C, OpenCL C or SLEEF knows by this name.
struct c_function {
    std::string name;       // exp, expf, lgammaf_r
    std::string family;     // exp of both
    std::string parameters; // letters of the ABI: v, vv, vvv; pointers l8, l4; sincos: pp
    const kernel_row* row;
    bool in_c; // the C library's math.h declares it; others are in C as orvane_NAME, with that name's vector forms
    bool pure; // no pointers: a loop over it can be vectorized by its declaration
};
const std::vector<c_function>& c_functions();

// One symbol: a macro of vecabi/names.S with its arguments behind the symbol.
struct vecabi_name {
    std::string family, symbol, shape, target;
};
const std::vector<vecabi_name>& vecabi_names();

} // namespace orvane
