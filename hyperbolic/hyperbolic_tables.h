// Tables of the hyperbolic functions.
#pragma once

#include "frame/rare.h"

namespace orvane {

// In kernels' blocks.
struct sinh_row {
    double sinh, half_power; // of j ln 2 / 128, and 2^(-j/128) / 2
};
inline constexpr table<sinh_row, 128> sinh_rows = {{
#include "hyperbolic/tables/sinh_128.inc"
}};
inline constexpr table<double, 257> half_exp2_256 = {{
// 2^(j/256) / 2
#include "hyperbolic/tables/half_exp2_256.inc"
}};
// Fits by rows for x below 20, y = x - centre: tanh_60.inc to 2^-55.0 relative.
struct tanh_row {
    double value_rest;      // what rounding took from the value at the centre
    double value;           // tanh at the centre
    double coefficient[10]; // of y^1 to y^10
    double neg_centre;
    double one, zero[2];
};
inline constexpr table<tanh_row, 60> tanh_rows = {{
#include "hyperbolic/tables/tanh_60.inc"
}};

// In the slow paths of sinh and cosh: 2^(j/64), j = 0 to 64, hi rounded to nearest, lo ABSOLUTE.
ORVANE_TABLE(hi_lo<double>, __dsinh_g_CoutTab, 65);
// The limits of tanh.
ORVANE_TABLE(double, __dtanh_g__orwdTanhTab, 2);

} // namespace orvane
