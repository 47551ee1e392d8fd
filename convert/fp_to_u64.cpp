// cvtfptou64<mode><sat|nosat>, from double and float.
#include "convert/fp_to_64.h"

namespace orvane {

template struct d_to_64_block<false>; // checks the places of its slots
template struct s_to_64_block<false>;
ORVANE_FP_TO_INTEGER_BLOCK(d_to_64_block<false>, __orvane_dcvtfptou64)
ORVANE_FP_TO_INTEGER_BLOCK(s_to_64_block<false>, __orvane_scvtfptou64)

template <rounding R, bool S> using d_to_u64 = to_64<double, uint64_t, R, S, __orvane_dcvtfptou64rtesat_data>;
template <rounding R, bool S> using s_to_u64 = to_64<float, uint64_t, R, S, __orvane_scvtfptou64rtesat_data>;
ORVANE_FP_TO_INTEGER(d, , u64, d_to_u64)
ORVANE_FP_TO_INTEGER(s, f, u64, s_to_u64)

} // namespace orvane
