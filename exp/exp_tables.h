// Tables of the exponentials. Two kinds of lo part occur: in tables of slow paths it is RELATIVE, 2^(j/N) = hi (1 +
// lo), in tables of kernels' blocks ABSOLUTE, 2^(j/N) = hi + lo.
#pragma once

#include "frame/rare.h"

namespace orvane {

// 2^(j/64), j = 0 to 63: hi rounded to nearest, lo relative, rounded. One table under the names that the families'
// slow paths have for it.
ORVANE_TABLE(hi_lo<double>, _orvdExpHATab, 64);

// 2^(j/N), hi rounded to nearest, lo absolute, rounded.
inline constexpr table<hi_lo<double>, 64> exp2_pairs_64 = {{
#include "exp/tables/exp2_64_pairs.inc"
}};
inline constexpr table<hi_lo<double>, 128> exp2_pairs_128 = {{
#include "exp/tables/exp2_128_pairs.inc"
}};
inline constexpr table<hi_lo<float>, 64> exp2f_pairs_64 = {{
#include "exp/tables/exp2f_64_pairs.inc"
}};
inline constexpr table<hi_lo<float>, 128> exp2f_pairs_128 = {{
#include "exp/tables/exp2f_128_pairs.inc"
}};

// 2^(j/128) rounded to nearest.
inline constexpr table<double, 128> exp2_single_128 = {{
#include "exp/tables/exp2_128_single.inc"
}};

// 2^(j/N) short enough for exact products (multiples of 2^-25, in float of 2^-11), of which `hi` is the significand
// field without an exponent, to be ORed with one; lo absolute, rounded.
inline constexpr table<hi_lo<double>, 128> exp2_split_128 = {{
#include "exp/tables/exp2_128_split.inc"
}};
inline constexpr table<hi_lo<float>, 64> exp2f_split_64 = {{
#include "exp/tables/exp2f_64_split.inc"
}};
// The significand fields of 2^(j/N) rounded to nearest.
inline constexpr table<double, 128> exp2_significands_128 = {{
#include "exp/tables/exp2_128_significands.inc"
}};
inline constexpr table<float, 32> exp2f_significands_32 = {{
#include "exp/tables/exp2f_32_significands.inc"
}};

} // namespace orvane
