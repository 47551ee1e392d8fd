// exp: e^x on double lanes.
#include "exp/exp_kernels.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dexp_cout_rare, const double* x, double* result);

struct dexp_block {
    TABLE(0, exp2_pairs, exp2_pairs_64)
    SLOT(double, 16, inv_ln2_64, 0x40571547652B82FE)    // 92.33248261689366, 64 / ln 2
    SLOT(double, 17, shifter, 0x4338000000000000)       // 1.5 * 2^52
    SLOT(double, 18, index_shifter, 0x42F8000000000000) // 1.5 * 2^48
    SLOT(double, 19, ln2_64_hi, 0x3F862E42FEFA0000)     // 0.010830424696223417, ln 2 / 64, high part
    SLOT(double, 20, ln2_64_lo, 0x3D1CF79ABC9E3B3A)     // 2.572804622327669e-14, ln 2 / 64, low part
    // Fit on |r| <= ln2/128: 1 + r + c2*r^2 + c3*r^3 + c4*r^4 + c5*r^5 = exp(r) to 2^-59.3 relative
    SLOT(double, 21, c2, 0x3FDFFFFFFFFFDB3B) // 0.4999999999994775, coefficient of r^2
    SLOT(double, 22, c3, 0x3FC555555555653E) // 0.1666666666667797, coefficient of r^3
    SLOT(double, 23, c4, 0x3FA555573F218B93) // 0.04166672368662385, coefficient of r^4
    SLOT(double, 24, c5, 0x3F8111112D9F549B) // 0.00833333416441411, coefficient of r^5
    GAP(25, 25)
    SLOT(uint64_t, 26, offset_mask, 0x00000000000003FF) // byte offset of the table entry in the bits of u
    SLOT(double, 27, abs_mask, 0x7FFFFFFFFFFFFFFF)
    SLOT(double, 28, ordinary_limit,
         0x4086232AFFFFFFFF) // 708.3959960937499, a lane with abs(x) above this is special
    GAP(29, 30)
    SLOT(double, 31, overflow_limit, 0x40862E42FEFA39EF)  // 709.782712893384, above it the result is +Inf
    SLOT(double, 32, underflow_limit, 0xC0874910D52D3051) // -745.1332191019411, below it the result is +0
};
struct dexp_rm_block {
    TABLE(0, exp2_single, exp2_single_128)
    SLOT(double, 16, inv_ln2_128, 0x40671547652B82FE) // 184.6649652337873, 128 / ln 2
    SLOT(double, 17, shifter, 0x4338000000000000)     // 1.5 * 2^52
    // Fit on |r| <= ln2/256: 1 + r + b2*r^2 = exp(r) to 2^-28.2 relative
    SLOT(double, 18, one, 0x3FF0000000000000)     // 1.0
    SLOT(double, 19, b2, 0x3FDFFFFC2808F7E8)      // 0.49999908361121337, coefficient of r^2
    SLOT(double, 20, ln2_128, 0x3F762E42FEFA39EF) // 0.0054152123481245725, ln 2 / 128
    SLOT(uint64_t, 21, index_mask, 0x000000000000007F)
    SLOT(int32_t, 22, abs_high_mask, 0x7FFFFFFF)          // applied to the high word of x
    SLOT(int32_t, 23, ordinary_high_limit, 0x4086232A)    // signed limit on that word
    SLOT(double, 24, overflow_limit, 0x40862E42FEFA39EF)  // 709.782712893384
    SLOT(double, 25, underflow_limit, 0xC0874910D52D3051) // -745.1332191019411
};
ORVANE_BLOCK(dexp_block, __orvane_dexp_data)
ORVANE_BLOCK(dexp_rm_block, __orvane_dexp_rm_data)
ORVANE_BLOCK_TWIN(__orvane_dexp_native_data, __orvane_dexp_rm_data)
ORVANE_BLOCK_TWIN(__orvane_dexp_half_data, __orvane_dexp_rm_data)

// e^x = 2^(n/64) e^r with n = round(x 64 / ln 2), |r| <= ln 2 / 128.
struct exp_pairs : kernel<one_argument<double>, __orvane_dexp_data, __orvane_dexp_cout_rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const dexp_block& c, lanes<double, W> x) {
        auto t = fma(x, c.inv_ln2_64, c.shifter);
        auto n = t - c.shifter;

        // The last place of u is 2^-4: its pattern holds 16 n, the byte offset of entry n mod 64 and above it floor(n
        // / 64).
        auto u = bits(n + c.index_shifter);
        auto [hi, lo] = lookup_pair_bytes<double>(&c.exp2_pairs, u & c.offset_mask);
        auto exponent = andnot(lanes<uint64_t, W>(c.offset_mask), u) << 42;

        auto r = fma(-n, c.ln2_64_hi, x);
        r = fma(-n, c.ln2_64_lo, r);
        auto r2 = r * r;
        auto p = fma(horner(r, c.c5, c.c4, c.c3, c.c2), r2, r); // e^r - 1
        auto y = hi + fma(p, hi, lo);
        return answer{add_exponent(y, exponent), not_less_equal(x & c.abs_mask, c.ordinary_limit)};
    }
    template <int W> static ORVANE_INLINE auto settle(const dexp_block& c, lanes<double, W> x, auto a) {
        return settle_exp_limits(c, x, a);
    }
};

// e^x = 2^(n/128) e^r with n = round(x 128 / ln 2), |r| <= ln 2 / 256.
struct exp_single : kernel<one_argument<double>, __orvane_dexp_rm_data, __orvane_dexp_cout_rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const dexp_rm_block& c, lanes<double, W> x) {
        auto t = fma(x, c.inv_ln2_128, c.shifter); // n in the low bits
        auto n = t - c.shifter;
        auto r = fma(-n, c.ln2_128, x);
        auto power = lookup(c.exp2_single.entry, bits(t) & c.index_mask);
        auto exponent = andnot(lanes<uint64_t, W>(c.index_mask), bits(t)) << 45;
        auto y = horner(r, c.b2, c.one, c.one) * power;
        return answer{add_exponent(y, exponent), beyond_limit(c, x)};
    }
    template <int W> static ORVANE_INLINE auto settle(const dexp_rm_block& c, lanes<double, W> x, auto a) {
        return settle_exp_limits(c, x, a);
    }
};

// Largest known error of exp: 0.5236 ulp at 0xC05A84FA40148CEE
// Largest known error of exp, slow path: 0.5138 ulp at 0x40862DF706D5EE69
ORVANE_EXPORT(exp, , exp_pairs)
// Largest known error of exp_rm: 3.308e-09 relative at 0xC0852F348816BC14
// Largest known error of exp_rm, slow path: 0.5111 ulp at 0x40862DB45AF01265
ORVANE_EXPORT(exp, _rm, exp_single)
ORVANE_TWIN(exp, _native, exp, _rm)
ORVANE_TWIN(exp, _half, exp, _rm)

} // namespace orvane
