// pown, rootn: x^n and x^(1/n).
#include "pow/pown_kernels.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dpown_cout_rare, const double* x, const int* n, double* result);
ORVANE_SLOW_PATH(__orvane_drootn_cout_rare, const double* x, const int* n, double* result);

struct dpown_block {
    SLOT(double, 0, abs_mask, 0x7FFFFFFFFFFFFFFF)
    TABLE(1, rcp_tab, pown_reciprocals)
    TABLE(130, log_tab, pown_log2_pairs)
    TABLE(387, exp_pairs, exp2_pairs_128)
    GAP(419, 419)
    // Fit on |u| <= 2^-10.4: u + lp0*u + lp1*u^2 + lp2*u^3 + lp3*u^4 + lp4*u^5 + lp5*u^6 = log2(1 - u/neg_c)
    // to 2^-65.3 relative
    SLOT(double, 420, lp5, 0xBF9B4EA0E9419F52)
    SLOT(double, 421, lp4, 0x3FA7A334DDFC9F86)
    SLOT(double, 422, lp3, 0xBFB550472A8BB463)
    SLOT(double, 423, lp2, 0x3FC47FD462B3B816)
    SLOT(double, 424, lp1, 0xBFD62E4346694107)
    SLOT(double, 425, lp0, 0x3E79C3A6966457EE)
    // Fit on |r| <= 2^-8: 1 + xp1*r + xp2*r^2 + xp3*r^3 + xp4*r^4 + xp5*r^5 = exp2(r) to 2^-60.4 relative
    SLOT(double, 426, xp5, 0x3F55D87FE78A6731)
    SLOT(double, 427, xp4, 0x3F83B2AB6FBA4E77)
    SLOT(double, 428, xp3, 0x3FAC6B08D704A0BF)
    SLOT(double, 429, xp2, 0x3FCEBFBDFF82C58E)
    SLOT(double, 430, xp1, 0x3FE62E42FEFA39EF)
    SLOT(double, 431, mant_mask, 0x000FFFFFFFFFFFFF)
    GAP(432, 432)
    SLOT(double, 433, one, 0x3FF0000000000000)
    SLOT(double, 434, hi_mask, 0xFFFFFFFF00000000)
    SLOT(double, 435, k_shifter, 0x4138000000000000)  // 1.5 * 2^20
    SLOT(double, 436, split_mask, 0xFFFFFFFFF8000000) // keeps 25 significand bits
    SLOT(double, 437, neg_c, 0xBFF7154740000000)      // -c
    SLOT(double, 438, exp_mask, 0xFFF0000000000000)
    SLOT(double, 439, ex_shifter, 0x42C8000000000000) // 1.5 * 2^45: ulp 2^-7
    GAP(440, 443)
    SLOT(int32_t, 444, x_bias, 0x00100000)  // takes high words of infinities and NaNs beyond the largest int32
    SLOT(int32_t, 445, x_limit, 0x00200000) // the smallest normal's high word and x_bias
    SLOT(int32_t, 446, word_abs, 0x7FFFFFFF)
    GAP(447, 447)
    SLOT(int32_t, 448, h_limit, 0x408EEFFF)   // high word of the numbers next below 990
    SLOT(int32_t, 449, idx_mask, 0x000FFE00)  // the eleven leading bits of the fraction
    SLOT(int32_t, 450, idx_round, 0x00000200) // half of an index step
    SLOT(int32_t, 451, k_base, 0x3FE7FE00)    // high word of 0.7495: k is one more from m = 1.499 on
    SLOT(int32_t, 452, k_word, 0x41380000)    // high word of 1.5 * 2^20
    SLOT(int32_t, 453, exp_bias, 0x3FF00000)  // high word of 1
    SLOT(int32_t, 454, j_mask, 0x0000007F)    // 128 entries
};
constexpr dpown_block with_h_limit(dpown_block b, slot<int32_t, 1> limit) {
    b.h_limit = limit;
    return b;
}
ORVANE_BLOCK(dpown_block, __orvane_dpown_data)
extern "C" [[gnu::visibility("hidden")]] const dpown_block __orvane_drootn_data;
constexpr dpown_block __orvane_drootn_data = with_h_limit({}, 0x408FEFFF);
struct dpown_native_block {
    SLOT(double, 0, abs_mask, 0x7FFFFFFFFFFFFFFF)
    SLOT(int32_t, 1, x_bias, 0x00100000)  // takes high words of infinities and NaNs beyond the largest int32
    SLOT(int32_t, 2, x_limit, 0x00200000) // the smallest normal's high word and x_bias
    SLOT(int32_t, 3, word_abs, 0x7FFFFFFF)
    GAP(4, 4)
    SLOT(int32_t, 5, p_word_limit, 0x4086232B)
    GAP(6, 134)
    ORVANE_REDUCED_CORE(201, exp_chords)
};
ORVANE_BLOCK(dpown_native_block, __orvane_dpown_native_data)
ORVANE_BLOCK_TWIN(__orvane_drootn_native_data, __orvane_dpown_native_data)

// log2 |x| = L1 + llo: x = 2^k m, r = c / (1 + i/1024), u = r m - c as an exact pair u0 + ulo. L1 takes part in exact
// sums; the factor c makes the linear term of the logarithm u itself. Then 2^ of the product H + B.
template <class Front, const auto& Block, auto& Rare> struct pown_in_pairs
    : kernel<with_integer<double>, Block, Rare> {
    static constexpr double spare = 1.0;

    template <int W> static ORVANE_INLINE auto prepare(const dpown_block& c, lanes<double, W> x, lanes<int32_t, W>) {
        auto ax = x & c.abs_mask;
        auto hw = words_in_place<int32_t>(ax);
        auto m = (ax & c.mant_mask) | c.one;
        auto i = bits(in_lanes<int64_t, W>((hw & c.idx_mask) + c.idx_round)) >> 42;
        auto r = lookup(c.rcp_tab.entry, i);
        auto [Th, Tl] = lookup_pair<double>(&c.log_tab, i);
        auto kd = (in_lanes<double, W>(((hw - c.k_base) >> 20) + c.k_word) & c.hi_mask) - c.k_shifter;
        auto A = Th + kd;

        auto mh = m & c.split_mask;
        auto ml = m - mh;
        auto rm = r * m;
        auto u0 = rm + c.neg_c;
        auto ulo = fma(r, ml, fma(r, mh, -rm));
        auto S1 = u0 + A;
        auto e1 = (A - S1) + u0;
        auto S2 = ulo + S1;
        auto e2 = (S1 - S2) + ulo;
        auto lo = Tl + (e1 + e2);
        auto u = u0 + ulo;
        auto p = horner(u, c.lp5, c.lp4, c.lp3, c.lp2, c.lp1, c.lp0, lo);
        auto L1 = S2 + p;
        return results{L1, p - (L1 - S2)};
    }
    template <int W> static ORVANE_INLINE auto vector_path(const dpown_block& c, lanes<double, W> x,
                                                           lanes<int32_t, W> n, auto logarithm) {
        auto [L1, llo] = logarithm;
        auto hw = words_in_place<int32_t>(x & c.abs_mask);
        auto L1h = L1 & c.split_mask;
        auto L1l = L1 - L1h;

        auto [f, fh, fl] = Front::exponent_pair(c, n);
        auto H = fh * L1h;
        auto t = fma(fl, L1h, fma(fh, L1l, fl * L1l));
        auto B = llo * f + t;
        lane_bits<W> special = in_lanes<int64_t, W>((hw + c.x_bias) < c.x_limit) | ~high_word_below(c, H, c.h_limit) |
                               Front::out_of_domain(x, n);

        auto N = H + c.ex_shifter;
        auto [T, To] = lookup_pair<double>(&c.exp_pairs, low_words(N) & c.j_mask);
        auto scale = in_lanes<double, W>(words_in_place<int32_t>(bits(N) << 45) + c.exp_bias) & c.exp_mask;
        auto rr = (H - (N - c.ex_shifter)) + B;
        auto y = Front::power_of_two(c, rr, T, To, scale);
        return answer{y | sign_of_odd(x, n), special};
    }
};

// e^(f ln |x|) with f the rounded exponent.
template <class Front, auto& Rare> struct pown_by_chords
    : kernel<with_integer<double>, __orvane_dpown_native_data, Rare> {
    static constexpr double spare = 1.0;

    template <int W>
    static ORVANE_INLINE auto vector_path(const dpown_native_block& c, lanes<double, W> x, lanes<int32_t, W> n) {
        auto ax = x & c.abs_mask;
        auto P = Front::template exponent<double>(n) * reduced_ln<3>(c, ax);
        lane_bits<W> special =
            no_positive_normal(c, ax) | ~high_word_below(c, P, c.p_word_limit) | Front::out_of_domain(x, n);
        return answer{chord_exp(c, P) | sign_of_odd(x, n), special};
    }
};

using pown_default = pown_in_pairs<integer_power, __orvane_dpown_data, __orvane_dpown_cout_rare>;
using pown_native = pown_by_chords<integer_power, __orvane_dpown_cout_rare>;
using rootn_default = pown_in_pairs<integer_root, __orvane_drootn_data, __orvane_drootn_cout_rare>;
using rootn_native = pown_by_chords<integer_root, __orvane_drootn_cout_rare>;
// Largest known error of pown: 1.467 ulp at 0x3FF001E733D625E5,0xFFEA8736
// Largest known error of pown, slow path: 0.7522 ulp at 0x3F8865C853688698,0x000000A0
ORVANE_EXPORT(pown, , pown_default)
// Largest known error of pown_native: 2.421e-07 relative at 0xBFEFF6FFF0359898,0x0009D528, with one processor's estimates
// Largest known error of pown_native, slow path: 0.7518 ulp at 0x4021B481ECD97981,0xFFFFFEBB
ORVANE_EXPORT(pown, _native, pown_native)
// Largest known error of rootn: 0.5116 ulp at 0x84816CE75EF2CE6C,0x0003B2FB
// Largest known error of rootn, slow path: 0.5066 ulp at 0x800E31217696B579,0x00003555
ORVANE_EXPORT(rootn, , rootn_default)
// Largest known error of rootn_native: 7.161e-09 relative at 0xBFEFFFFFC2AD777E,0x7FFFFC71, with one processor's estimates
// Largest known error of rootn_native, slow path: 0.5076 ulp at 0x800E31216FDC70AD,0x00003555
ORVANE_EXPORT(rootn, _native, rootn_native)

} // namespace orvane
