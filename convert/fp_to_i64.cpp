// cvtfptoi64<mode><sat|nosat>, from double and float.
#include "convert/fp_to_64.h"

namespace orvane {

template struct d_to_64_block<true>; // checks the places of its slots
template struct s_to_64_block<true>;
ORVANE_FP_TO_INTEGER_BLOCK(d_to_64_block<true>, __orvane_dcvtfptoi64)
ORVANE_FP_TO_INTEGER_BLOCK(s_to_64_block<true>, __orvane_scvtfptoi64)

template <rounding R, bool S> using d_to_i64 = to_64<double, int64_t, R, S, __orvane_dcvtfptoi64rtesat_data>;
template <rounding R, bool S> using s_to_i64 = to_64<float, int64_t, R, S, __orvane_scvtfptoi64rtesat_data>;
ORVANE_FP_TO_INTEGER(d, , i64, d_to_i64)
ORVANE_FP_TO_INTEGER(s, f, i64, s_to_i64)

} // namespace orvane
