// cvtfptou32<mode><sat|nosat>, from double and float.
#include "convert/fp_to_integer.h"

namespace orvane {

struct d_to_u32_block {
    SLOT(double, 0, exp_mask, 0x7FF0000000000000)
    GAP(1, 1)
    SLOT(double, 2, two31, 0x41E0000000000000)
    SLOT(int32_t, 3, limit_word, 0x41F00000) // of 2^32
    GAP(4, 4)
    SLOT(int32_t, 5, sat_pos32, 0xFFFFFFFF)

    template <int W> ORVANE_INLINE auto in_range(lanes<double, W> r) const {
        return signed_top_words(r) < limit_word;
    }
};
struct s_to_u32_block {
    SLOT(float, 0, exp_mask, 0x7F800000)
    GAP(1, 1)
    SLOT(float, 2, two31, 0x4F000000)
    SLOT(float, 3, limit, 0x4F800000) // 2^32
    GAP(4, 4)
    SLOT(int32_t, 5, sat_pos32, 0xFFFFFFFF)

    template <int W> ORVANE_INLINE auto in_range(lanes<float, W> r) const { return r < limit; }
};
ORVANE_FP_TO_INTEGER_BLOCK(d_to_u32_block, __orvane_dcvtfptou32)
ORVANE_FP_TO_INTEGER_BLOCK(s_to_u32_block, __orvane_scvtfptou32)

template <rounding R, bool S> using d_to_u32 = to_u32<double, R, S, __orvane_dcvtfptou32rtesat_data>;
template <rounding R, bool S> using s_to_u32 = to_u32<float, R, S, __orvane_scvtfptou32rtesat_data>;
ORVANE_FP_TO_INTEGER(d, , u32, d_to_u32)
ORVANE_FP_TO_INTEGER(s, f, u32, s_to_u32)

} // namespace orvane
