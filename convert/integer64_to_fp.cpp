// cvti64tofp<mode> and cvtu64tofp<mode>, to double (two pieces) and float (three pieces).
#include "convert/integer_to_fp.h"

namespace orvane {

struct i64_to_double_block {
    SLOT(uint64_t, 0, low_mask, 0x000FFFFFFFFFFFFF)
    SLOT(uint64_t, 1, sign_mask, 0x8000000000000000)
    SLOT(double, 2, shift_lo, 0x4330000000000000) // 2^52
    SLOT(double, 3, shift_hi, 0x4670000000000000) // 2^104
    SLOT(uint64_t, 4, one_int, 1)
    SLOT(uint64_t, 5, minus_one_int, 0xFFFFFFFFFFFFFFFF)
};
struct u64_to_double_block {
    SLOT(uint64_t, 0, low_mask, 0x000FFFFFFFFFFFFF)
    SLOT(double, 1, shift_lo, 0x4330000000000000) // 2^52
    SLOT(double, 2, shift_hi, 0x4670000000000000) // 2^104
    SLOT(uint64_t, 3, one_int, 1)
};
ORVANE_FROM_INTEGER_BLOCK(i64_to_double_block, __orvane_dcvti64tofp)
ORVANE_FROM_INTEGER_BLOCK(u64_to_double_block, __orvane_dcvtu64tofp)

template <rounding R> using i64_to_double = from_two_pieces<int64_t, double, R, __orvane_dcvti64tofprte_data>;
template <rounding R> using u64_to_double = from_two_pieces<uint64_t, double, R, __orvane_dcvtu64tofprte_data>;
ORVANE_FROM_SIGNED(i64, , i64_to_double)
ORVANE_FROM_UNSIGNED(u64, , u64_to_double)

struct i64_to_float_block {
    SLOT(uint32_t, 0, low_mask, 0x007FFFFF)
    SLOT(uint32_t, 1, half_ulp_step, 0x0C000000) // 24 in the exponent field
    SLOT(uint32_t, 2, sign_mask, 0x80000000)
    SLOT(float, 3, shift_lo, 0x4B000000)  // 2^23
    SLOT(float, 4, shift_mid, 0x56800000) // 2^46
    SLOT(float, 5, shift_hi, 0x62000000)  // 2^69
    SLOT(uint32_t, 6, one_int, 1)
    SLOT(uint32_t, 7, minus_one_int, 0xFFFFFFFF)
};
struct u64_to_float_block {
    SLOT(uint32_t, 0, low_mask, 0x007FFFFF)
    SLOT(uint32_t, 1, half_ulp_step, 0x0C000000) // 24 in the exponent field
    SLOT(float, 2, shift_lo, 0x4B000000)         // 2^23
    SLOT(float, 3, shift_mid, 0x56800000)        // 2^46
    SLOT(float, 4, shift_hi, 0x62000000)         // 2^69
    SLOT(uint32_t, 5, one_int, 1)
};
ORVANE_FROM_INTEGER_BLOCK(i64_to_float_block, __orvane_scvti64tofp)
ORVANE_FROM_INTEGER_BLOCK(u64_to_float_block, __orvane_scvtu64tofp)

template <rounding R> using i64_to_float = from_three_pieces<int64_t, R, __orvane_scvti64tofprte_data>;
template <rounding R> using u64_to_float = from_three_pieces<uint64_t, R, __orvane_scvtu64tofprte_data>;
ORVANE_FROM_SIGNED(i64, f, i64_to_float)
ORVANE_FROM_UNSIGNED(u64, f, u64_to_float)

} // namespace orvane
