// cvtfp64tofp32<mode>: the ordinary conversion to nearest, converted back and compared with the source; where it lies
// on the wrong side the pattern moves by one, which leads over binades, subnormals and zeros, and from an infinity to
// the largest finite value. A NaN compares false and stays as the conversion quieted it.
#include "frame/_orvane_template.h"

namespace orvane {

struct fp64_to_fp32_block {
    SLOT(double, 0, abs64, 0x7FFFFFFFFFFFFFFF)
    SLOT(int32_t, 1, abs32, 0x7FFFFFFF)
    SLOT(int32_t, 2, sign32, 0x80000000)
    SLOT(int32_t, 3, sign32b, 0x80000000)
    SLOT(int32_t, 4, zero_int, 0)
    SLOT(int32_t, 5, one_int, 1)
};
ORVANE_BLOCK(fp64_to_fp32_block, __orvane_dcvtfp64tofp32rte_data)
ORVANE_BLOCK_TWIN(__orvane_dcvtfp64tofp32rtn_data, __orvane_dcvtfp64tofp32rte_data)
ORVANE_BLOCK_TWIN(__orvane_dcvtfp64tofp32rtp_data, __orvane_dcvtfp64tofp32rte_data)
ORVANE_BLOCK_TWIN(__orvane_dcvtfp64tofp32rtz_data, __orvane_dcvtfp64tofp32rte_data)

template <rounding R> struct fp64_to_fp32 : kernel<conversion<double, float>, __orvane_dcvtfp64tofp32rte_data> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<double, W> x) {
        using I = lanes<int32_t, W>;
        auto f = convert<float>(x);
        if constexpr (R == to_nearest) return f;
        else {
            auto pattern = signed_bits(f);
            auto d = convert<double>(f);
            if constexpr (R == toward_zero) {
                auto too_big = convert<int32_t>((x & c.abs64) < (d & c.abs64));
                auto m = (pattern & c.abs32) - keep(too_big, I(c.one_int));
                return as<float>(m | (pattern & c.sign32));
            } else {
                auto step = ((pattern & c.sign32b) < c.zero_int) | c.one_int; // upward: +1, for negative values -1
                if constexpr (R == downward) return as<float>(pattern - keep(convert<int32_t>(x < d), step));
                else return as<float>(pattern + keep(convert<int32_t>(d < x), step));
            }
        }
    }
};
ORVANE_EXPORT_SETTLED(cvtfp64tofp32rte, , fp64_to_fp32<to_nearest>)
ORVANE_EXPORT_SETTLED(cvtfp64tofp32rtn, , fp64_to_fp32<downward>)
ORVANE_EXPORT_SETTLED(cvtfp64tofp32rtp, , fp64_to_fp32<upward>)
ORVANE_EXPORT_SETTLED(cvtfp64tofp32rtz, , fp64_to_fp32<toward_zero>)

} // namespace orvane
