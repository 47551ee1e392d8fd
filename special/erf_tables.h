// Tables of the error functions: value and slope on a grid of arguments, for a Taylor step from the nearest one.
#pragma once

#include "frame/rare.h"
#include "frame/slots.h"

namespace orvane {

template <class T> struct value_and_slope { T value, slope; };

// erf(k/128) and its derivative, both rounded to nearest, up to where erf rounds to 1.
inline constexpr table<value_and_slope<double>, 768> erf_at_128ths = {{
#include "special/tables/erf_128ths.inc"
}};
inline constexpr table<value_and_slope<float>, 504> erff_at_128ths = {{
#include "special/tables/erff_128ths.inc"
}};

// erfc and its derivative's magnitude, times 2^128 (float: 2^48) so that nothing underflows, rounded to nearest. From
// the largest argument on they are 0.
inline constexpr table<value_and_slope<double>, 3488> erfc_at_128ths = {{
#include "special/tables/erfc_128ths.inc"
}};
inline constexpr table<value_and_slope<double>, 1744> erfc_at_64ths = {{
#include "special/tables/erfc_64ths.inc"
}};
inline constexpr table<value_and_slope<float>, 648> erfcf_at_64ths = {{
#include "special/tables/erfcf_64ths.inc"
}};
inline constexpr table<value_and_slope<float>, 328> erfcf_at_32nds = {{
#include "special/tables/erfcf_32nds.inc"
}};

// An argument X >= 0 as a grid point and the rest. The grid is the last place of the shifter that is added, so that
// the sum's low bits are the number of the table's entry.
template <class T, int W> struct grid_point { lanes<T, W> x0, d, sum; };
template <class T, int W> ORVANE_INLINE grid_point<T, W> nearest_grid_point(const auto& c, lanes<T, W> X) {
    auto t = X + c.shifter;
    auto x0 = t - c.shifter;
    return {x0, X - x0, t};
}
template <class T, int W> ORVANE_INLINE lane_pair<T, W> value_and_slope_at(const auto& c, lanes<T, W> sum) {
    if constexpr (sizeof(T) == 8) return lookup_pair_bytes<T>(&c.grid, (bits(sum) << 4) & c.idx_mask);
    else return lookup_pair<T>(&c.grid, bits(sum) - bits(lanes<T, W>(c.shifter)));
}

} // namespace orvane
