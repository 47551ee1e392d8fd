// cvti32tofp<mode> and cvtu32tofp<mode>, to double (exact) and float (two pieces).
#include "convert/integer_to_fp.h"

namespace orvane {

// No block: the processor's conversion.
struct i32_to_double : kernel<conversion<int32_t, double>> {
    static constexpr double spare = 1;
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<int32_t, W> x) {
        return convert<double>(x);
    }
};
ORVANE_FROM_INTEGER_EXACTLY(cvti32tofp, i32_to_double)

struct u32_to_double_block {
    SLOT(double, 0, shift_lo, 0x4330000000000000) // 2^52
};
ORVANE_FROM_INTEGER_BLOCK(u32_to_double_block, __orvane_dcvtu32tofp)

struct u32_to_double : kernel<conversion<uint32_t, double>, __orvane_dcvtu32tofprte_data> {
    static constexpr double spare = 1;
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<uint32_t, W> x) {
        return piece(convert<uint64_t>(x), lanes<double, W>(c.shift_lo));
    }
};
ORVANE_FROM_INTEGER_EXACTLY(cvtu32tofp, u32_to_double)

struct i32_to_float_block {
    SLOT(uint32_t, 0, low_mask, 0x007FFFFF)
    SLOT(uint32_t, 1, sign_mask, 0x80000000)
    SLOT(float, 2, shift_lo, 0x4B000000) // 2^23
    SLOT(float, 3, shift_hi, 0x56800000) // 2^46
    SLOT(uint32_t, 4, one_int, 1)
    SLOT(uint32_t, 5, minus_one_int, 0xFFFFFFFF)
};
struct u32_to_float_block {
    SLOT(uint32_t, 0, low_mask, 0x007FFFFF)
    SLOT(float, 1, shift_lo, 0x4B000000) // 2^23
    SLOT(float, 2, shift_hi, 0x56800000) // 2^46
    SLOT(uint32_t, 3, one_int, 1)
};
ORVANE_FROM_INTEGER_BLOCK(i32_to_float_block, __orvane_scvti32tofp)
ORVANE_FROM_INTEGER_BLOCK(u32_to_float_block, __orvane_scvtu32tofp)

template <rounding R> using i32_to_float = from_two_pieces<int32_t, float, R, __orvane_scvti32tofprte_data>;
template <rounding R> using u32_to_float = from_two_pieces<uint32_t, float, R, __orvane_scvtu32tofprte_data>;
ORVANE_FROM_SIGNED(i32, f, i32_to_float)
ORVANE_FROM_UNSIGNED(u32, f, u32_to_float)

} // namespace orvane
