// expf: e^x on float lanes.
#include "exp/exp_kernels.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_sexp_cout_rare, const float* x, float* result);

struct sexp_block {
    SLOT(float, 0, four_over_ln2, 0x40B8AA3B)  // 4 / ln 2
    SLOT(float, 1, shifter_biased, 0x4B4001FC) // 1.5 * 2^23 + 508
    SLOT(float, 2, abs_mask, 0x7FFFFFFF)       // clears the sign
    SLOT(float, 3, ordinary_limit, 0x42AEAC4F) // 87.33654, just under 126 ln 2
    SLOT(float, 4, ln2_q_hi, 0x3E317000)       // ln 2 / 4, high part with trailing zeros
    SLOT(float, 5, ln2_q_lo, 0x3705FDF4)       // ln 2 / 4, low part
    // 2^(j/4): tab_hi rounded, and what is missing from it, relative to it.
    ENTRIES(float, 6, 4, tab_lo, 0x00000000, 0x33092801, 0x329302AE, 0xB27CE182)
    ENTRIES(float, 7, 4, tab_hi, 0x3F800000, 0x3F9837F0, 0x3FB504F3, 0x3FD744FD)
    // Fit on |r| <= ln2/8: 1 + r + c1*r^2 + c2*r^3 + c3*r^4 = exp(r) to 2^-26.9 relative
    SLOT(float, 8, c3, 0x3D2ABB12)             // of r^4
    SLOT(float, 9, c2, 0x3E2ABB12)             // of r^3
    SLOT(float, 10, c1, 0x3EFFFFFF)            // of r^2
    SLOT(float, 11, exponent_mask, 0x7F800000) // exponent field
    GAP(12, 39)
    SLOT(float, 40, overflow_limit, 0x42B17217)  // 88.72283, the last x with a finite e^x
    SLOT(float, 41, underflow_limit, 0xC2CFF1B4) // -103.97208, the last x whose e^x does not round to 0
};
ORVANE_BLOCK(sexp_block, __orvane_sexp_data)
ORVANE_BLOCK_TWIN(__orvane_sexp_rm_data, __orvane_sexp_data)

struct sexp_native_block {
    SLOT(float, 0, log2e, 0x3FB8AA3B)   // 1 / ln 2
    SLOT(float, 1, shifter, 0x4B400000) // 1.5 * 2^23
    SLOT(float, 2, ln2, 0x3F317218)     // ln 2
    GAP(3, 7)
    // Fit on |r| <= ln2/2: a0 + a1*r + a2*r^2 + a3*r^3 = exp(r) to 2^-12.7 relative
    SLOT(float, 8, a0, 0x3F800000)              // of r^0
    SLOT(float, 9, a1, 0x3F8003DE)              // of r
    SLOT(float, 10, a2, 0x3F00F2D6)             // of r^2
    SLOT(float, 11, a3, 0x3E2963AC)             // of r^3
    SLOT(float, 12, abs_mask, 0x7FFFFFFF)       // clears the sign
    SLOT(float, 13, ordinary_limit, 0x42AEAC4F) // as in the default tier, compared as an integer
    SLOT(float, 14, overflow_limit, 0x42B17217)
    SLOT(float, 15, underflow_limit, 0xC2CFF1B4)
};
ORVANE_BLOCK(sexp_native_block, __orvane_sexp_native_data)
ORVANE_BLOCK_TWIN(__orvane_sexp_half_data, __orvane_sexp_native_data)

// e^x = 2^floor(k/4) * 2^(j/4) * e^r with k = round(x * 4 / ln 2), j = k mod 4, |r| <= ln 2 / 8.
struct expf_table : kernel<one_argument<float>, __orvane_sexp_data, __orvane_sexp_cout_rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const sexp_block& c, lanes<float, W> x) {
        auto t = fma(x, c.four_over_ln2, c.shifter_biased); // k + 508 in the low bits of the significand
        auto n = t - c.shifter_biased;                      // k, exactly
        auto r = fma(-n, c.ln2_q_hi, x);
        r = fma(-n, c.ln2_q_lo, r);

        auto r2 = r * r;
        auto p = horner(r, c.c3, c.c2, c.c1);
        auto lo = permute(c.tab_lo, t); // j is t's two low bits: 508 is a multiple of 4
        p = fma(p, r2, lo);             // e^r = 1 + r + p, the table's low part in p

        auto s = as<float>(bits(t) << 21) & c.exponent_mask; // (k + 508) / 4 as the exponent field: 2^floor(k/4)
        auto hi = permute(c.tab_hi, t);
        s = hi * s;
        auto q = r + p;
        return answer{fma(q, s, s), not_less_equal(x & c.abs_mask, c.ordinary_limit)};
    }
    template <int W, class A> static ORVANE_INLINE A settle(const sexp_block& c, lanes<float, W> x, A a) {
        return settle_exp_limits(c, x, a);
    }
};

// e^x = 2^n * e^r with n = round(x / ln 2) and a cubic for e^r; 2^n goes in by an addition to the exponent field.
struct expf_polynomial : kernel<one_argument<float>, __orvane_sexp_native_data, __orvane_sexp_cout_rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const sexp_native_block& c, lanes<float, W> x) {
        auto t = fma(x, c.log2e, c.shifter); // n in two's complement in the low nine bits of the significand
        auto n = t - c.shifter;
        auto r = fma(-n, c.ln2, x);
        auto p = horner(r, c.a3, c.a2, c.a1, c.a0);
        auto y = as<float>((bits(t) << 23) + bits(p));
        // NaN, infinities and finite lanes beyond the limit, in one comparison of patterns.
        return answer{y, signed_bits(x & c.abs_mask) > c.ordinary_limit};
    }
    template <int W, class A> static ORVANE_INLINE A settle(const sexp_native_block& c, lanes<float, W> x, A a) {
        return settle_exp_limits(c, x, a);
    }
};

// Largest known error of expf: 0.7493 ulp at 0xBFB9E7DD
// Largest known error of expf, slow path: 0.5 ulp at 0xC2B27DD9
ORVANE_EXPORT(expf, , expf_table)
ORVANE_TWIN(expf, _rm, expf, )
// Largest known error of expf_native: 1776 ulp at 0x42A9D231
// Largest known error of expf_native, slow path: 0.5 ulp at 0xC2BC79BE
ORVANE_EXPORT(expf, _native, expf_polynomial)
ORVANE_TWIN(expf, _half, expf, _native)

} // namespace orvane
