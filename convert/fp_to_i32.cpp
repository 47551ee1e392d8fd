// cvtfptoi32<mode><sat|nosat>, from double and float. The forms without saturation read no block.
#include "convert/fp_to_integer.h"

namespace orvane {

struct d_to_i32_block {
    SLOT(int32_t, 0, abs_mask32, 0x7FFFFFFF)
    SLOT(int32_t, 1, limit_word, 0x41E00000) // of 2^31
    SLOT(int32_t, 2, sat_neg32, 0x80000000)
    SLOT(int32_t, 3, sat_pos32, 0x7FFFFFFF)
};
struct s_to_i32_block {
    SLOT(int32_t, 0, abs_mask32, 0x7FFFFFFF)
    SLOT(int32_t, 1, limit_word, 0x4F000000) // 2^31
    SLOT(int32_t, 2, sat_neg32, 0x80000000)
    SLOT(int32_t, 3, sat_pos32, 0x7FFFFFFF)
};
ORVANE_FP_TO_INTEGER_BLOCK(d_to_i32_block, __orvane_dcvtfptoi32)
ORVANE_FP_TO_INTEGER_BLOCK(s_to_i32_block, __orvane_scvtfptoi32)

template <rounding R, bool S> using d_to_i32 = to_i32<double, R, S, __orvane_dcvtfptoi32rtesat_data>;
template <rounding R, bool S> using s_to_i32 = to_i32<float, R, S, __orvane_scvtfptoi32rtesat_data>;
ORVANE_FP_TO_INTEGER(d, , i32, d_to_i32)
ORVANE_FP_TO_INTEGER(s, f, i32, s_to_i32)

} // namespace orvane
