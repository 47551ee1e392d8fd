// pownf, rootnf: x^n and x^(1/n).
#include "pow/pown_kernels.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_spown_cout_rare, const float* x, const int* n, float* result);
ORVANE_SLOW_PATH(__orvane_srootn_cout_rare, const float* x, const int* n, float* result);

// Slots that both have: of the logarithm and the reduction of the exponential.
// Fit on |u| <= 1/128: u + q2*u^2 + q3*u^3 + q4*u^4 = log(1 + u) to 2^-30.3 relative
#define ORVANE_POWNF_LOGARITHM                                                                                       \
    GAP(0, 0)                                                                                                        \
    SLOT(float, 1, split_c, 0x45800800)   /* 2^12 + 1 */                                                             \
    SLOT(int32_t, 2, x_bias, 0x80800000)  /* takes the smallest normal to the least int32 */                         \
    SLOT(int32_t, 3, x_limit, 0xFEFFFFFF) /* and the largest finite number here */                                   \
    GAP(4, 4)                                                                                                        \
    TABLE(5, ln_entries, pown_ln_entries)                                                                            \
    GAP(18, 19)                                                                                                      \
    SLOT(float, 20, m_mask, 0x007FFFFF)                                                                              \
    SLOT(float, 21, f_one, 0x3F800000)                                                                               \
    SLOT(int32_t, 22, i_mask, 0x007F0000)  /* the seven leading bits of the fraction */                              \
    SLOT(int32_t, 23, i_round, 0x00010000) /* half of an index step */                                               \
    SLOT(float, 24, m_split, 0x7FFFC000)   /* keeps 10 significand bits */                                           \
    SLOT(float, 25, q4, 0xBE800000)                                                                                  \
    SLOT(float, 26, q3, 0x3EAAAAAB)                                                                                  \
    SLOT(float, 27, q2, 0xBF000000)                                                                                  \
    SLOT(int32_t, 28, exp127, 0x0000007F)                                                                            \
    SLOT(int32_t, 29, near_add, 0x407E0000)   /* takes 1 + 2^-6 beyond the largest int32 */                          \
    SLOT(int32_t, 30, near_limit, 0x7FFC0000) /* and 1 - 2^-7 here */                                                \
    SLOT(float, 31, ln2_a, 0x3F317000)        /* ln 2 in two parts for the exponent of x */                          \
    SLOT(float, 32, ln2_b, 0x3805FDF4)                                                                               \
    SLOT(float, 33, f_log2e, 0x3FB8AA3B)                                                                             \
    SLOT(float, 34, f_shifter, 0x4B400000)                                                                           \
    SLOT(float, 35, ln2_c, 0x3F317200) /* ln 2 in two parts for the reduction */                                     \
    SLOT(float, 36, ln2_d, 0x35BFBE8E)

struct spown_block {
    ORVANE_POWNF_LOGARITHM
    // Fit on |d| <= ln2/2: e0 + e0*d + e1*d^2 + e2*d^3 + e3*d^4 + e4*d^5 = exp(d) to 2^-22.8 relative
    SLOT(float, 37, e0, 0x3F800001)
    SLOT(float, 38, e1, 0x3EFFFE85)
    SLOT(float, 39, e2, 0x3E2AA9C6)
    SLOT(float, 40, e3, 0x3D2BB1B6)
    SLOT(float, 41, e4, 0x3C0950EF)
    GAP(42, 42)
    SLOT(float, 43, f_abs, 0x7FFFFFFF)
    SLOT(int32_t, 44, h_limit_f, 0x42AE9A00) // 87.3
};
struct srootn_block {
    ORVANE_POWNF_LOGARITHM
    // Fit on |d| <= ln2/2: g0 + g1*d + g2*d^2 + g3*d^3 + g4*d^4 + g5*d^5 = exp(d) to 2^-22.6 relative
    SLOT(float, 37, g0, 0x3F800000)
    SLOT(float, 38, g1, 0x3F7FFFFE)
    SLOT(float, 39, g2, 0x3EFFFF34)
    SLOT(float, 40, g3, 0x3E2AACAC)
    SLOT(float, 41, g4, 0x3D2B8392)
    SLOT(float, 42, g5, 0x3C07D9FE)
    GAP(43, 43)
    SLOT(float, 44, f_abs, 0x7FFFFFFF)
    SLOT(int32_t, 45, h_limit_f, 0x42AE9A00) // 87.3
};
ORVANE_BLOCK(spown_block, __orvane_spown_data)
ORVANE_BLOCK(srootn_block, __orvane_srootn_data)
struct spown_native_block {
    // Fit on |f| <= 1/3: f + lq2*f^2 + lq3*f^3 + lq4*f^4 + lq5*f^5 + lq6*f^6 + lq7*f^7 = log(1 + f)
    // to 2^-19.1 relative
    SLOT(float, 0, lq2, 0xBF000000)
    SLOT(float, 1, lq3, 0x3EAAAD03)
    SLOT(float, 2, lq4, 0xBE7F0F0F)
    SLOT(float, 3, lq5, 0x3E4B62C0)
    SLOT(float, 4, lq6, 0xBE424B46)
    SLOT(float, 5, lq7, 0x3E2B350C)
    GAP(6, 7)
    SLOT(int32_t, 8, m_base, 0x3F2AAAAB) // 2/3
    SLOT(int32_t, 9, m_mask, 0x007FFFFF)
    SLOT(float, 10, f_one, 0x3F800000)
    SLOT(float, 11, ln2_c, 0x3F317200) // ln 2 in two parts for the reduction
    SLOT(float, 12, ln2_d, 0x35BFBE8E)
    SLOT(float, 13, f_log2e, 0x3FB8AA3B)
    SLOT(float, 14, f_shifter, 0x4B400000)
    SLOT(float, 15, f_ln2, 0x3F317218)
    // Fit on |d| <= ln2/2: ek0 + ek1*d + ek2*d^2 + ek3*d^3 = exp(d) to 2^-13.2 relative
    SLOT(float, 16, ek0, 0x3F7FFB0D)
    SLOT(float, 17, ek1, 0x3F7FFC0B)
    SLOT(float, 18, ek2, 0x3F014935)
    SLOT(float, 19, ek3, 0x3E2C359F)
    GAP(20, 20)
    SLOT(int32_t, 21, f_abs, 0x7FFFFFFF)
    SLOT(int32_t, 22, h_limit_f, 0x42AE9A00) // 87.3
    GAP(23, 25)
    SLOT(int32_t, 26, x_bias, 0x80800000)  // takes the smallest normal to the least int32
    SLOT(int32_t, 27, x_limit, 0xFEFFFFFF) // and the largest finite number here
};
ORVANE_BLOCK(spown_native_block, __orvane_spown_native_data)
ORVANE_BLOCK_TWIN(__orvane_srootn_native_data, __orvane_spown_native_data)

// ln |x| = Lh + Ll: x = 2^k m, r = 1 / (1 + i/64) short, so that m's leading part times r is exact. Around 1, where
// the entry is 0, the rest t3 of the product belongs to the head.
template <class Front, const auto& Block, auto& Rare> struct pownf_in_pairs
    : kernel<with_integer<float>, Block, Rare> {
    static constexpr double spare = 1.0;

    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<float, W> x, lanes<int32_t, W> n) {
        auto ax = x & c.f_abs;
        auto near = as<float>((signed_bits(ax) + c.near_add) > c.near_limit);
        auto m = (ax & c.m_mask) | c.f_one;
        auto kf = convert<float>((signed_bits(ax) >> 23) - c.exp127);
        auto i = ((signed_bits(ax) & c.i_mask) + c.i_round) >> 17;
        auto [Thi, Tlo, r] = entry_of(c.ln_entries, i);

        auto mh = m & c.m_split;
        auto ml = m - mh;
        auto t2 = mh * r - c.f_one;
        auto t3 = ml * r;
        auto u = t3 + t2;
        auto q = (u * u) * horner(u, c.q4, c.q3, c.q2);
        auto Ah = (kf * c.ln2_a + (t2 + Thi)) + (near & t3);
        auto Bl = ((Tlo + kf * c.ln2_b) + q) + andnot(near, t3);
        auto S = Ah + Bl;
        auto w = S * c.split_c;
        auto Lh = (S + w) - w;
        auto Ll = (Ah - Lh) + Bl;

        auto [fh, fl] = Front::exponent_pair(c, n);
        auto H = fh * Lh;
        auto t = fma(Ll, fh, fma(Lh, fl, fl * Ll));
        lane_bits<W> special = pattern_out_of_range(ax, c.x_bias, c.x_limit) |
                               ((signed_bits(H) & c.f_abs) > c.h_limit_f) | Front::out_of_domain(x, n);

        auto a = fma(H, c.f_log2e, c.f_shifter);
        auto af = a - c.f_shifter;
        auto d = fma(-af, c.ln2_c, H);
        d = fma(-af, c.ln2_d, d) + t;
        auto e = Front::exponential(c, d);
        auto y = as<float>(bits(e) + (bits(a) << 23));
        return answer{y | sign_of_odd(x, n), special};
    }

private:
    template <int W> struct entry { lanes<float, W> hi, lo, r; };
    template <int W> static ORVANE_INLINE entry<W> entry_of(const auto& t, lanes<int32_t, W> i) {
        auto at = (i + i) + i;
        auto part = [&](int k) ORVANE_LAMBDA { return lookup(&t.entry[0].hi + k, at); };
        return {part(0), part(1), part(2)};
    }
};

template <class Front, auto& Rare> struct pownf_by_polynomials
    : kernel<with_integer<float>, __orvane_spown_native_data, Rare> {
    static constexpr double spare = 1.0;

    template <int W>
    static ORVANE_INLINE auto vector_path(const spown_native_block& c, lanes<float, W> x, lanes<int32_t, W> n) {
        auto ax = x & c.f_abs;
        auto P = Front::template exponent<float>(n) * float_ln(c, ax);
        lane_bits<W> special = pattern_out_of_range(ax, c.x_bias, c.x_limit) |
                               ((signed_bits(P) & c.f_abs) > c.h_limit_f) | Front::out_of_domain(x, n);
        return answer{float_exp(c, P) | sign_of_odd(x, n), special};
    }
};

using pownf_default = pownf_in_pairs<integer_power, __orvane_spown_data, __orvane_spown_cout_rare>;
using pownf_native = pownf_by_polynomials<integer_power, __orvane_spown_cout_rare>;
using rootnf_default = pownf_in_pairs<integer_root, __orvane_srootn_data, __orvane_srootn_cout_rare>;
using rootnf_native = pownf_by_polynomials<integer_root, __orvane_srootn_cout_rare>;
// Largest known error of pownf: 11.78 ulp at 0x3F82A0F1,0xFFFFEF47
// Largest known error of pownf, slow path: 1.454 ulp at 0xBF82BE09,0x00001057
ORVANE_EXPORT(pownf, , pownf_default)
// Largest known error of pownf_native: 4014 ulp at 0xBFB1F1C0,0x00000107
// Largest known error of pownf_native, slow path: 1.273 ulp at 0x3F7D5A9A,0xFFFFDEF6
ORVANE_EXPORT(pownf, _native, pownf_native)
// Largest known error of rootnf: 5.463 ulp at 0x8DB7BE5C,0xFFFFFFFF
// Largest known error of rootnf, slow path: 0.537 ulp at 0x0005125E,0x00000003
ORVANE_EXPORT(rootnf, , rootnf_default)
// Largest known error of rootnf_native: 1335 ulp at 0xFAFFF49C,0x00000001
// Largest known error of rootnf_native, slow path: 0.5417 ulp at 0x004382E6,0xFFFFFFFF
ORVANE_EXPORT(rootnf, _native, rootnf_native)

} // namespace orvane
