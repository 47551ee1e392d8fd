// asinh, acosh and atanh: logarithms of 1 + V,
//
//     asinh abs(x) = log(1 + V),      V = abs(x) + (sqrt(1 + x^2) - 1)
//     acosh x = log(1 + V),           V = (x - 1) + sqrt(x^2 - 1)
//     atanh abs(x) = log(1 + V) / 2,  V = 2 abs(x) / (1 - abs(x)).
//
// Square root and quotient come from the processor's estimates, cut to so few bits that products with them are exact
// or nearly so, and a polynomial of what the estimate misses. 1 + V has a head and a tail, so that a small V is whole
// in the logarithm.
#include "log/log_kernels.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dasinh_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_sasinh_cout_rare, const float* x, float* result);
ORVANE_SLOW_PATH(__orvane_dacosh_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_sacosh_cout_rare, const float* x, float* result);
ORVANE_SLOW_PATH(__orvane_datanh_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_satanh_cout_rare, const float* x, float* result);

struct sasinh_block {
    GAP(0, 16)
    SLOT(float, 17, abs_mask, 0x7FFFFFFF)
    GAP(18, 30)
    SLOT(float, 31, one, 0x3F800000) // 1.0
    // Fit on |f| <= 1/3: f + l1*f^2 + l2*f^3 + l3*f^4 + l4*f^5 + l5*f^6 + l6*f^7 + l7*f^8 + l8*f^9 = log(1 + f)
    // to 2^-24.7 relative
    SLOT(float, 32, l1, 0xBF000000) // -0.5, coefficient of f^2
    SLOT(float, 33, l2, 0x3EAAAA94) // 0.33333266, f^3
    SLOT(float, 34, l3, 0xBE80058E) // -0.25004238, f^4
    SLOT(float, 35, l4, 0x3E4CE190) // 0.2000792, f^5
    SLOT(float, 36, l5, 0xBE28AD37) // -0.16472326, f^6
    SLOT(float, 37, l6, 0x3E0FCB12) // 0.14042309, f^7
    SLOT(float, 38, l7, 0xBE1AD9E3) // -0.1512218, f^8
    SLOT(float, 39, l8, 0x3E0D84ED) // 0.13820238, f^9
    GAP(40, 41)
    SLOT(int32_t, 42, mant_base, 0x3F2AAAAB) // bits of 2/3: the significand is brought into [2/3, 4/3)
    SLOT(int32_t, 43, mant_mask, 0x007FFFFF)
    SLOT(float, 44, big_limit, 0x4E800000) // 2^30
    // Fit on -2^-10.4 <= d <= 2^-5.9: 1 + half*d + r_c1*d^2 + r_c2*d^3 = 1/sqrt(1 - d) to 2^-25.5 relative
    SLOT(float, 45, r_c1, 0x3EC00000) // 0.375
    SLOT(float, 46, r_c2, 0x3EA00000) // 0.3125
    SLOT(float, 47, half, 0x3F000000) // 0.5
    SLOT(float, 48, max_finite, 0x7F7FFFFF)
    SLOT(float, 49, small_limit, 0x3D800000) // 0.0625
    SLOT(float, 50, sign_mask, 0x80000000)
    SLOT(float, 51, big_k, 0x41F80000) // 31.0
    GAP(52, 53)
    SLOT(float, 54, sqrt_mask, 0xFFFF0000) // keeps 8 significand bits
    SLOT(float, 55, big_scale, 0x30800000) // 2^-30
    SLOT(float, 56, ln2, 0x3F317218)       // 0.6931472
};
struct sasinh_native_block {
    GAP(0, 16)
    SLOT(float, 17, abs_mask, 0x7FFFFFFF)
    GAP(18, 30)
    SLOT(float, 31, one, 0x3F800000) // 1.0
    // Fit on |f| <= 1/3: f + l1*f^2 + l2*f^3 + l3*f^4 + l4*f^5 = log(1 + f) to 2^-13.3 relative
    SLOT(float, 32, l1, 0xBF000000) // -0.5, coefficient of f^2
    SLOT(float, 33, l2, 0x3EAA7160) // 0.33289623, f^3
    SLOT(float, 34, l3, 0xBE88E8FE) // -0.2674026, f^4
    SLOT(float, 35, l4, 0x3E612933) // 0.21988373, f^5
    GAP(36, 37)
    SLOT(int32_t, 38, mant_base, 0x3F2AAAAB) // bits of 2/3: the significand is brought into [2/3, 4/3)
    SLOT(int32_t, 39, mant_mask, 0x007FFFFF)
    SLOT(float, 40, big_limit, 0x4E800000) // 2^30
    // Fit on -2^-10.4 <= d <= 2^-5.9: 1 + half*d + r_c1*d^2 + r_c2*d^3 = 1/sqrt(1 - d) to 2^-25.5 relative
    // Of the arc hyperbolic cosine. Fit on -2^-10.4 <= d <= 2^-5.9: 1 + half*d = 1/sqrt(1 - d) to 2^-13.2 relative
    SLOT(float, 41, r_c1, 0x3EC00000) // 0.375
    SLOT(float, 42, r_c2, 0x3EA00000) // 0.3125
    SLOT(float, 43, half, 0x3F000000) // 0.5
    SLOT(float, 44, max_finite, 0x7F7FFFFF)
    SLOT(float, 45, small_limit, 0x3D800000) // 0.0625
    SLOT(float, 46, sign_mask, 0x80000000)
    SLOT(float, 47, big_k, 0x41F80000) // 31.0
    GAP(48, 49)
    SLOT(float, 50, sqrt_mask, 0xFFFF0000) // keeps 8 significand bits
    SLOT(float, 51, big_scale, 0x30800000) // 2^-30
    SLOT(float, 52, ln2, 0x3F317218)       // 0.6931472
};
struct satanh_block {
    GAP(0, 16)
    SLOT(float, 17, abs_mask, 0x7FFFFFFF)
    GAP(18, 30)
    SLOT(float, 31, one, 0x3F800000) // 1.0
    // Fit on |f| <= 1/3: f + l1*f^2 + l2*f^3 + l3*f^4 + l4*f^5 + l5*f^6 + l6*f^7 + l7*f^8 + l8*f^9 = log(1 + f)
    // to 2^-24.7 relative
    SLOT(float, 32, l1, 0xBF000000) // -0.5, coefficient of f^2
    SLOT(float, 33, l2, 0x3EAAAA94) // 0.33333266, f^3
    SLOT(float, 34, l3, 0xBE80058E) // -0.25004238, f^4
    SLOT(float, 35, l4, 0x3E4CE190) // 0.2000792, f^5
    SLOT(float, 36, l5, 0xBE28AD37) // -0.16472326, f^6
    SLOT(float, 37, l6, 0x3E0FCB12) // 0.14042309, f^7
    SLOT(float, 38, l7, 0xBE1AD9E3) // -0.1512218, f^8
    SLOT(float, 39, l8, 0x3E0D84ED) // 0.13820238, f^9
    GAP(40, 41)
    SLOT(int32_t, 42, mant_base, 0x3F2AAAAB) // bits of 2/3: the significand is brought into [2/3, 4/3)
    SLOT(int32_t, 43, mant_mask, 0x007FFFFF)
    GAP(44, 46)
    SLOT(float, 47, half, 0x3F000000) // 0.5
    GAP(48, 49)
    SLOT(float, 50, sign_mask, 0x80000000)
    GAP(51, 52)
    SLOT(float, 53, rcp_mask, 0xFFFFF000) // keeps 12 significand bits
    GAP(54, 55)
    SLOT(float, 56, tiny_limit, 0x0C000000) // 2^-103
    SLOT(float, 57, ln2, 0x3F317218)        // 0.6931472
};
struct satanh_native_block {
    GAP(0, 16)
    SLOT(float, 17, abs_mask, 0x7FFFFFFF)
    GAP(18, 30)
    SLOT(float, 31, one, 0x3F800000) // 1.0
    // Fit on |f| <= 1/3: f + l1*f^2 + l2*f^3 + l3*f^4 + l4*f^5 = log(1 + f) to 2^-13.3 relative
    SLOT(float, 32, l1, 0xBF000000) // -0.5, coefficient of f^2
    SLOT(float, 33, l2, 0x3EAA7160) // 0.33289623, f^3
    SLOT(float, 34, l3, 0xBE88E8FE) // -0.2674026, f^4
    SLOT(float, 35, l4, 0x3E612933) // 0.21988373, f^5
    GAP(36, 37)
    SLOT(int32_t, 38, mant_base, 0x3F2AAAAB) // bits of 2/3: the significand is brought into [2/3, 4/3)
    SLOT(int32_t, 39, mant_mask, 0x007FFFFF)
    GAP(40, 42)
    SLOT(float, 43, half, 0x3F000000) // 0.5
    GAP(44, 45)
    SLOT(float, 46, sign_mask, 0x80000000)
    GAP(47, 48)
    SLOT(float, 49, rcp_mask, 0xFFFFF000) // keeps 12 significand bits
    GAP(50, 51)
    SLOT(float, 52, tiny_limit, 0x0C000000) // 2^-103
    SLOT(float, 53, ln2, 0x3F317218)        // 0.6931472
};
ORVANE_BLOCK(sasinh_block, __orvane_sasinh_data)
ORVANE_BLOCK_TWIN(__orvane_sacosh_data, __orvane_sasinh_data)
ORVANE_BLOCK(sasinh_native_block, __orvane_sasinh_native_data)
ORVANE_BLOCK_TWIN(__orvane_sacosh_native_data, __orvane_sasinh_native_data)
ORVANE_BLOCK(satanh_block, __orvane_satanh_data)
ORVANE_BLOCK(satanh_native_block, __orvane_satanh_native_data)

// What the logarithm of double lanes reads, at the same numbers in every block.
// Fit on |r| <= 2^-9.5: r + p2*r^2 + p3*r^3 + p4*r^4 + p5*r^5 = log(1 + r) to 2^-52.2 relative
// Of the fast tiers. Fit on |r| <= 2^-9.5: r + p2*r^2 + p3*r^3 = log(1 + r) to 2^-30.5 relative
#define ORVANE_LOG_STAGE_SLOTS                                                                                       \
    GAP(0, 128)                                                                                                      \
    TABLE(129, logs, ln_single)                                                                                      \
    SLOT(double, 194, p5, 0x3FC9999CACDB4D0A) /* 0.2000003665949424, log series, r^5 */                              \
    SLOT(double, 195, p4, 0xBFD0000148058EE1) /* -0.2500003054940248, r^4 */                                         \
    SLOT(double, 196, p3, 0x3FD55555555543C5) /* 0.33333333333308374, r^3 */                                         \
    SLOT(double, 197, p2, 0xBFDFFFFFFFFFF81F) /* -0.49999999999988803, r^2 */                                        \
    SLOT(double, 198, mant_mask, 0x000FFFFFFFFFFFFF)                                                                 \
    SLOT(double, 199, m_exp, 0x3F50000000000000) /* 2^-10 */                                                         \
    GAP(200, 202)                                                                                                    \
    SLOT(double, 203, one, 0x3FF0000000000000) /* 1.0 */                                                             \
    SLOT(double, 204, abs_mask, 0x7FFFFFFFFFFFFFFF)                                                                  \
    SLOT(double, 205, w_limit, 0x3E00000000000000) /* 2^-31 */                                                       \
    SLOT(double, 206, w_mask, 0xFFFFFFFFFFFFFC00)  /* clears 10 bits of Wh */                                        \
    GAP(207, 208)                                                                                                    \
    SLOT(double, 209, c_split, 0x4086A00000000000) /* 724.0 */                                                       \
    SLOT(double, 210, k_hi, 0x408FF80000000000)    /* 1023.0 */                                                      \
    SLOT(double, 211, k_lo, 0x408FF00000000000)    /* 1022.0 */                                                      \
    SLOT(uint64_t, 212, exp_mask, 0x7FF0000000000000)                                                                \
    SLOT(uint64_t, 213, sc_base, 0x7F40000000000000) /* 2 * 1023 - 10 in the exponent field */                       \
    SLOT(double, 214, ln2, 0x3FE62E42FEFA39EF)       /* 0.6931471805599453, ln 2 in one piece */
struct dasinh_block {
    ORVANE_LOG_STAGE_SLOTS
    SLOT(double, 215, big_limit, 0x41D0000000000000) // 2^30
    // Fit on -2^-10.4 <= d <= 2^-9.1: 1 + half*d + q1*d^2 + q2*d^3 + q3*d^4 + q4*d^5 = 1/sqrt(1 - d)
    // to 2^-56.7 relative
    SLOT(double, 216, q1, 0x3FD8000000000000)   // 0.375
    SLOT(double, 217, q2, 0x3FD4000000000000)   // 0.3125
    SLOT(double, 218, q3, 0x3FD1800000000000)   // 0.2734375
    SLOT(double, 219, q4, 0x3FCF800000000000)   // 0.24609375
    SLOT(double, 220, half, 0x3FE0000000000000) // 0.5
    SLOT(double, 221, max_finite, 0x7FEFFFFFFFFFFFFF)
    SLOT(double, 222, small_limit, 0x3F60000000000000) // 2^-9
    SLOT(double, 223, sign_mask, 0x8000000000000000)
    SLOT(double, 224, big_k, 0x403F000000000000)  // 31.0
    SLOT(double, 225, y_mask, 0xFFFFFE0000000000) // keeps 12 significand bits
    GAP(226, 226)
    SLOT(double, 227, sqrt_mask, 0xFFFFFFFFFF000000) // keeps 29 significand bits
    GAP(228, 228)
    SLOT(double, 229, big_scale, 0x3E10000000000000) // 2^-30
};
struct dacosh_block {
    ORVANE_LOG_STAGE_SLOTS
    SLOT(double, 215, big_limit, 0x41D0000000000000) // 2^30
    // Fit on -2^-10.4 <= d <= 2^-9.1: 1 + q1*d + q2*d^2 + q3*d^3 + q4*d^4 + q5*d^5 = 1/sqrt(1 - d)
    // to 2^-56.8 relative
    SLOT(double, 216, q1, 0x3FE0000000000000) // 0.5
    SLOT(double, 217, q2, 0x3FD7FFFFFFFFFFFA) // 0.37499999999999967
    SLOT(double, 218, q3, 0x3FD3FFFFFFFFFFFA) // 0.31249999999999967
    SLOT(double, 219, q4, 0x3FD1800013D9D428) // 0.27343751848758524
    SLOT(double, 220, q5, 0x3FCF800025DE102F) // 0.24609376763339827
    SLOT(double, 221, max_finite, 0x7FEFFFFFFFFFFFFF)
    GAP(222, 223)
    SLOT(double, 224, big_k, 0x403F000000000000)  // 31.0
    SLOT(double, 225, y_mask, 0xFFFFFE0000000000) // keeps 12 significand bits
    GAP(226, 226)
    SLOT(double, 227, sqrt_mask, 0xFFFFFFFFFF000000) // keeps 29 significand bits
    GAP(228, 228)
    SLOT(double, 229, big_scale, 0x3E10000000000000) // 2^-30
};
struct dacosh_native_block {
    ORVANE_LOG_STAGE_SLOTS
    SLOT(double, 215, big_limit, 0x41D0000000000000) // 2^30
    // Fit on -2^-10.4 <= d <= 2^-9.1: 1 + q1*d + q2*d^2 = 1/sqrt(1 - d) to 2^-29.0 relative
    SLOT(double, 216, q1, 0x3FE0000000000000) // 0.5
    SLOT(double, 217, q2, 0x3FD8000000000000) // 0.375
    GAP(218, 220)
    SLOT(double, 221, max_finite, 0x7FEFFFFFFFFFFFFF)
    GAP(222, 223)
    SLOT(double, 224, big_k, 0x403F000000000000)  // 31.0
    SLOT(double, 225, y_mask, 0xFFFFFE0000000000) // keeps 12 significand bits
    GAP(226, 226)
    SLOT(double, 227, sqrt_mask, 0xFFFFFFFFFF000000) // keeps 29 significand bits
    GAP(228, 228)
    SLOT(double, 229, big_scale, 0x3E10000000000000) // 2^-30
};
struct datanh_block {
    ORVANE_LOG_STAGE_SLOTS
    GAP(215, 219)
    SLOT(double, 220, half, 0x3FE0000000000000) // 0.5
    GAP(221, 222)
    SLOT(double, 223, sign_mask, 0x8000000000000000)
    GAP(224, 224)
    SLOT(double, 225, y_mask, 0xFFFFFE0000000000) // keeps 12 significand bits
    GAP(226, 227)
    SLOT(double, 228, n_mask, 0xFFFFFFFFFFFFF000) // keeps 41 significand bits
    GAP(229, 229)
    SLOT(double, 230, tiny_limit, 0x0350000000000000) // 2^-970
};
#undef ORVANE_LOG_STAGE_SLOTS
ORVANE_BLOCK(dasinh_block, __orvane_dasinh_data)
ORVANE_BLOCK_TWIN(__orvane_dasinh_native_data, __orvane_dasinh_data)
ORVANE_BLOCK(dacosh_block, __orvane_dacosh_data)
ORVANE_BLOCK(dacosh_native_block, __orvane_dacosh_native_data)
ORVANE_BLOCK(datanh_block, __orvane_datanh_data)
ORVANE_BLOCK_TWIN(__orvane_datanh_native_data, __orvane_datanh_data)

namespace {

enum class tier { accurate, fast };

// ---- The logarithm of Wh + Wl.

// Where abs(x) >= 2^30 the logarithm is that of 2 abs(x), taken of abs(x) 2^-30: big_k = 31 is added to the exponent.
struct no_big_lanes {};
template <class V> ORVANE_INLINE V with_big_k(const auto& c, V k, const auto& big) {
    if constexpr (std::is_same_v<decltype(big), const no_big_lanes&>) return k;
    else return k + keep(big, V(c.big_k));
}

// Wh = m 2^k with m in [2/3, 4/3), Wl taken along: k ln 2 + f + f^2 p(f).
template <tier, int W>
ORVANE_INLINE lanes<float, W> log_stage_f32(const auto& c, lanes<float, W> Wh, lanes<float, W> Wl, const auto& big) {
    using ints = lanes<int32_t, W>;
    auto i = signed_bits(Wh) - c.mant_base;
    auto k = convert<float>(i >> 23);
    auto m = as<float>((i & c.mant_mask) + c.mant_base);
    auto sc = as<float>(ints(c.one) - andnot(ints(c.mant_mask), i)); // 2^-k
    auto f = (m - c.one) + Wl * sc;
    auto p = [&]() ORVANE_LAMBDA {
        if constexpr (requires { c.l8; }) return horner(f, c.l8, c.l7, c.l6, c.l5, c.l4, c.l3, c.l2, c.l1);
        else return horner(f, c.l4, c.l3, c.l2, c.l1);
    }();
    auto L = fma(f * p, f, f);
    return fma(with_big_k(c, k, big), c.ln2, L);
}

// c is an integer near 1024 / significand of Wh, and cs = c 2^-exponent, so that Wh cs = 1 + rh with a small rh:
// ln(Wh + Wl) = k ln 2 - ln(c / 1024) + ln(1 + r), with c / 512 where c <= 724. acosh adds the rounding error of
// r = rh + rl as well, since it counts there.
enum class rest_of_r { dropped, kept };
template <int W> ORVANE_INLINE lanes<double, W> row_of(const auto& c, lanes<double, W> Wh) {
    return round_to<to_nearest>(reciprocal_estimate((Wh & c.mant_mask) | c.m_exp)); // 512 to 1024
}
template <tier Tier, rest_of_r Rest, int W> ORVANE_INLINE lanes<double, W>
log_stage_f64(const auto& c, lanes<double, W> Wh, lanes<double, W> Wl, lanes<double, W> integer, const auto& big) {
    using V = lanes<double, W>;
    auto sc = as<double>(c.sc_base - (bits(Wh) & c.exp_mask));
    auto cs = integer * sc;
    // 1023 above c_split, else 1022: the patterns differ in one bit.
    auto bias = keep(integer > V(c.c_split), V(c.k_hi)) | c.k_lo;
    auto kl = (with_big_k(c, biased_exponent(Wh), big) - bias) * c.ln2;
    auto T = single_of_bits<40, 0x405FC0>(c, integer);
    auto rh = fma(Wh, cs, -V(c.one)), rl = Wl * cs, r = rh + rl;
    auto r2 = r * r;
    auto b = fma(c.p3, r, V(c.p2));
    if constexpr (Tier == tier::fast) return fma(b, r2, kl + (T + r));
    else {
        b = fma(r2, fma(c.p5, r, V(c.p4)), b);
        if constexpr (Rest == rest_of_r::dropped) return kl + (T + fma(b, r2, r));
        else return kl + (T + (r + fma(b, r2, rl - (r - rh))));
    }
}

// The stage before the logarithm of 1 + V = Wh + Wl: these and, in double, the row of Wh. From |x| = 2^30 on 1 + V is
// 2 |x| to working precision: there it is ln(x 2^-30) + 31 ln 2.
template <class T, int W> ORVANE_INLINE auto with_row(const auto& c, lanes<T, W> Wh, lanes<T, W> Wl) {
    if constexpr (sizeof(T) == 4) return results{Wh, Wl};
    else return three_results{Wh, Wl, row_of(c, Wh)};
}
template <class T, int W>
ORVANE_INLINE auto with_row_or_large(const auto& c, lanes<T, W> x, lanes<T, W> Wh, lanes<T, W> Wl) {
    auto big = x >= lanes<T, W>(c.big_limit);
    return with_row(c, select(big, x * c.big_scale, Wh), andnot(as<T>(big), Wl));
}
template <tier Tier, rest_of_r Rest = rest_of_r::dropped>
ORVANE_INLINE auto log_stage(const auto& c, const auto& ready, const auto& big) {
    if constexpr (requires { ready.third; })
        return log_stage_f64<Tier, Rest>(c, ready.first, ready.second, ready.third, big);
    else return log_stage_f32<Tier>(c, ready.first, ready.second, big);
}

// ---- 1 + V as head and tail: the larger operand first, so that the tail is exact. In double the head is cut to 42
// bits, so that its product with cs is exact, but not where V is so small that nothing of it would be left.

template <class V> struct head_and_tail { V Wh, Wl; };

template <tier Tier, class T, int W> ORVANE_INLINE head_and_tail<lanes<T, W>> one_and(const auto& c, lanes<T, W> v) {
    using V = lanes<T, W>;
    auto A = max(V(c.one), v), B = min(V(c.one), v);
    auto Wh = A + B;
    if constexpr (sizeof(T) == 8 && Tier == tier::accurate) Wh = select(v >= V(c.w_limit), Wh & c.w_mask, Wh);
    return {Wh, B + (A - Wh)};
}

// ---- sqrt(sh + sl) = (h + l) (1 + w), sh being the cut sum; d = 1 - (sh + sl) y^2, 1 + w = (1 - d)^(-1/2).

template <int W> ORVANE_INLINE lanes<double, W> rsqrt_of(const auto& c, lanes<double, W> s) {
    return convert<double>(rsqrt_estimate(convert<float>(s))) & c.y_mask;
}
template <int W> ORVANE_INLINE lanes<float, W> rsqrt_of(const auto& c, lanes<float, W> s) {
    return rsqrt_estimate(s) & c.sqrt_mask;
}
template <class V> ORVANE_INLINE V root_polynomial(const auto& c, V d) {
    if constexpr (requires { c.r_c2; }) return horner(d, c.r_c2, c.r_c1, c.half);
    else if constexpr (requires { c.q5; }) return horner(d, c.q5, c.q4, c.q3, c.q2, c.q1);
    else if constexpr (requires { c.q4; }) return horner(d, c.q4, c.q3, c.q2, c.q1, c.half);
    else return horner(d, c.q2, c.q1);
}
template <class V> struct root { V h, l, d; };
template <class V> ORVANE_INLINE root<V> root_of(const auto& c, V sh, V sl) {
    auto y = rsqrt_of(c, sh);
    auto h = sh * y, l = sl * y;
    auto d = fma(-h, y, c.one);
    return {h, l, fma(-l, y, d)};
}

// ---- The kernels.

template <class T, tier Tier, const auto& Block, auto& Rare> struct asinh_kernel
    : kernel<one_argument<T>, Block, Rare> {
    static constexpr bool staged = sizeof(T) == 8;
    template <int W> static ORVANE_INLINE auto prepare(const auto& c, lanes<T, W> x) {
        auto ax = x & c.abs_mask;
        auto x2 = x * x, x2l = fma(x, x, -x2);
        auto s = x2 + c.one, e = ((c.one - s) + x2) + x2l; // 1 + x^2 and what is missing
        auto sh = s & c.sqrt_mask, sl = e + (s - sh);
        auto [h, l, d] = root_of(c, sh, sl);
        auto w = d * root_polynomial(c, d);
        auto v = fma(h + l, w, l), g = h - c.one;

        // sqrt(1 + x^2) - 1 of a small x by its series: u - u^2 / 2 + u^3 / 2, u = x^2 / 2.
        auto u = (x2 + x2l) * c.half, uu = u * u;
        auto q = fma(u, uu, -uu) * c.half;
        auto small = ax <= lanes<T, W>(c.small_limit);
        if constexpr (sizeof(T) == 8) return select(small, u + q, g + v) + ax;
        else {
            auto Th = g + v, Tl = v + (g - Th), Sh = u + q, Sl = q + (u - Sh);
            Th = select(small, Sh, Th), Tl = select(small, Sl, Tl);
            auto Vh = Th + ax, Vl = Tl + ((ax - Vh) + Th);
            return results{Vh, Vl};
        }
    }
    template <int W> static ORVANE_INLINE auto proceed(const auto& c, lanes<T, W> x, auto v) {
        auto ax = x & c.abs_mask;
        if constexpr (sizeof(T) == 8) {
            auto [Wh, Wl] = one_and<Tier>(c, v);
            return with_row_or_large(c, ax, Wh, Wl);
        } else {
            auto [Wh, Wl] = one_and<Tier>(c, v.first);
            return with_row_or_large(c, ax, Wh, Wl + v.second);
        }
    }
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x, auto ready) {
        using V = lanes<T, W>;
        auto ax = x & c.abs_mask;
        auto y = log_stage<Tier>(c, ready, ax >= V(c.big_limit));
        return answer{y ^ (x & c.sign_mask), not_less_equal(ax, V(c.max_finite))};
    }
};

template <class T, tier Tier, const auto& Block, auto& Rare> struct acosh_kernel
    : kernel<one_argument<T>, Block, Rare> {
    static constexpr bool staged = sizeof(T) == 8;
    static constexpr double spare = 2.0;

    template <int W> static ORVANE_INLINE auto prepare(const auto& c, lanes<T, W> x) {
        auto t = fma(x, x, -lanes<T, W>(c.one));
        auto sh = t & c.sqrt_mask, sl = t - sh;
        auto [h, l, d] = root_of(c, sh, sl);
        return three_results{h, l, d};
    }
    template <int W> static ORVANE_INLINE auto proceed(const auto& c, lanes<T, W> x, auto root) {
        auto [h, l, d] = root;
        lanes<T, W> w;
        if constexpr (sizeof(T) == 4 && Tier == tier::fast) w = d * c.half;
        else w = d * root_polynomial(c, d);
        auto s = h + l;
        auto [Wh, Wl] = one_and<Tier>(c, (x - c.one) + fma(w, s, s));
        return with_row_or_large(c, x, Wh, Wl);
    }
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x, auto ready) {
        using V = lanes<T, W>;
        const lane_bits<W> special = not_less_equal(x, V(c.max_finite)) | not_less(V(c.one), x);
        return answer{log_stage<Tier, rest_of_r::kept>(c, ready, x >= V(c.big_limit)), special};
    }
};

template <class T, tier Tier, const auto& Block, auto& Rare> struct atanh_kernel
    : kernel<one_argument<T>, Block, Rare> {
    static constexpr bool staged = sizeof(T) == 8;
    template <int W> static ORVANE_INLINE auto prepare(const auto& c, lanes<T, W> x) {
        auto ax = x & c.abs_mask;
        auto D = c.one - ax, Dl = (c.one - D) - ax;
        auto N = ax + ax;
        if constexpr (sizeof(T) == 8) {
            auto y = reciprocal_estimate(D) & c.y_mask;
            auto [Qh, Ql, e] = quotient(c, y, D, Dl, N, N & c.n_mask);
            auto E = e * fma(fma(e, e, e), fma(e, e, lanes<T, W>(c.one)), c.one); // of 1 / (1 - e) - 1, five terms
            return Qh + (E * Qh + fma(E, Ql, Ql));
        } else {
            auto y = reciprocal_estimate(D) & c.rcp_mask;
            auto [Qh, Ql, e] = quotient(c, y, D, Dl, N, N & c.rcp_mask);
            auto E = fma(e, e, e);
            auto cq = E * Qh + fma(E, Ql, Ql);
            auto Vh = Qh + cq, Vl = cq + (Qh - Vh);
            return results{Vh, Vl};
        }
    }
    template <int W> static ORVANE_INLINE auto proceed(const auto& c, lanes<T, W>, auto v) {
        if constexpr (sizeof(T) == 8) {
            auto [Wh, Wl] = one_and<Tier>(c, v);
            return with_row(c, Wh, Wl);
        } else {
            auto [Wh, Wl] = one_and<Tier>(c, v.first);
            return with_row(c, Wh, Wl + v.second);
        }
    }
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x, auto ready) {
        using V = lanes<T, W>;
        auto ax = x & c.abs_mask;
        const lane_bits<W> special = not_less(ax, V(c.one));
        auto v = log_stage<Tier>(c, ready, no_big_lanes{});
        auto sign = x & c.sign_mask;
        v = v * (sign ^ c.half);
        v = select(ax < V(c.tiny_limit), fma(x, x, x) | sign, v);
        return answer{v, special};
    }
    // N / (D + Dl) = (Qh + Ql) / (1 - e), Qh the exact product of the cut numerator Nh and the estimate y.
    template <class V> struct estimated { V Qh, Ql, e; };
    template <class V> static ORVANE_INLINE estimated<V> quotient(const auto& c, V y, V D, V Dl, V N, V Nh) {
        auto e = fma(-y, D, c.one);
        e = fma(-y, Dl, e);
        return {y * Nh, y * (N - Nh), e};
    }
};

} // namespace

using dasinh = asinh_kernel<double, tier::accurate, __orvane_dasinh_data, __orvane_dasinh_cout_rare>;
using dasinh_native = asinh_kernel<double, tier::fast, __orvane_dasinh_native_data, __orvane_dasinh_cout_rare>;
using sasinh = asinh_kernel<float, tier::accurate, __orvane_sasinh_data, __orvane_sasinh_cout_rare>;
using sasinh_native = asinh_kernel<float, tier::fast, __orvane_sasinh_native_data, __orvane_sasinh_cout_rare>;
using dacosh = acosh_kernel<double, tier::accurate, __orvane_dacosh_data, __orvane_dacosh_cout_rare>;
using dacosh_native = acosh_kernel<double, tier::fast, __orvane_dacosh_native_data, __orvane_dacosh_cout_rare>;
using sacosh = acosh_kernel<float, tier::accurate, __orvane_sacosh_data, __orvane_sacosh_cout_rare>;
using sacosh_native = acosh_kernel<float, tier::fast, __orvane_sacosh_native_data, __orvane_sacosh_cout_rare>;
using datanh = atanh_kernel<double, tier::accurate, __orvane_datanh_data, __orvane_datanh_cout_rare>;
using datanh_native = atanh_kernel<double, tier::fast, __orvane_datanh_native_data, __orvane_datanh_cout_rare>;
using satanh = atanh_kernel<float, tier::accurate, __orvane_satanh_data, __orvane_satanh_cout_rare>;
using satanh_native = atanh_kernel<float, tier::fast, __orvane_satanh_native_data, __orvane_satanh_cout_rare>;

// Largest known error of asinh: 3.549 ulp at 0xBF3FFFFCEB41F3BD, with one processor's estimates
ORVANE_EXPORT(asinh, , dasinh)
// Largest known error of asinh_native: 2.925e-11 relative at 0xBF3FFD006146A387, with one processor's estimates
ORVANE_EXPORT(asinh, _native, dasinh_native)
// Largest known error of asinhf: 2.086 ulp at 0x3DFFE47B, with one processor's estimates
ORVANE_EXPORT(asinhf, , sasinh)
// Largest known error of asinhf_native: 1468 ulp at 0xBE667CEA, with one processor's estimates
ORVANE_EXPORT(asinhf, _native, sasinh_native)
// Largest known error of acosh: 3.6 ulp at 0x3FF00007FAF0F572, with one processor's estimates
ORVANE_EXPORT(acosh, , dacosh)
// Largest known error of acosh_native: 2.691e-10 relative at 0x3FF00007DC7E0D9A, with one processor's estimates
ORVANE_EXPORT(acosh, _native, dacosh_native)
// Largest known error of acoshf: 2.806 ulp at 0x3F80E7BF, with one processor's estimates
ORVANE_EXPORT(acoshf, , sacosh)
// Largest known error of acoshf_native: 2300 ulp at 0x3F837FC2, with one processor's estimates
ORVANE_EXPORT(acoshf, _native, sacosh_native)
// Largest known error of atanh: 3.55 ulp at 0x3F2FFF664799E7C8, with one processor's estimates
ORVANE_EXPORT(atanh, , datanh)
// Largest known error of atanh_native: 2.925e-11 relative at 0xBF2FFD0044996498, with one processor's estimates
ORVANE_EXPORT(atanh, _native, datanh_native)
// Largest known error of atanhf: 2.044 ulp at 0x3D7E1497, with one processor's estimates
ORVANE_EXPORT(atanhf, , satanh)
// Largest known error of atanhf_native: 1468 ulp at 0xBDE3A7D1, with one processor's estimates
ORVANE_EXPORT(atanhf, _native, satanh_native)

} // namespace orvane
