// sin and cos: by multiples of pi and an odd polynomial. Beyond a limit the default tiers reduce to a fraction of a
// turn and take a table of angles; the fast tiers leave large lanes to the slow path, which computes them in full.
#include "trig/sine_steps.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dsin_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_dcos_cout_rare, const double* x, double* result);

struct dsin_block {
    SLOT(double, 0, abs_mask, 0x7FFFFFFFFFFFFFFF)
    SLOT(double, 1, large_limit, 0x4170000000000000) // 2^24
    SLOT(double, 2, inv_pi, 0x3FD45F306DC9C883)
    SLOT(double, 3, shifter, 0x4338000000000000) // 1.5 * 2^52
    GAP(4, 9)
    SLOT(double, 10, pi_1, 0x400921FB54442D18)
    SLOT(double, 11, pi_2, 0x3CA1A62633145C06)
    SLOT(double, 12, pi_3, 0x395C1CD129024E09)
    // Fit on |r| <= pi/2: r + s1*r^3 + s2*r^5 + s3*r^7 + s4*r^9 + s5*r^11 + s6*r^13 + s7*r^15 = sin(r)
    // to 2^-52.3 relative
    SLOT(double, 13, s1, 0xBFC55555555554A8) // r^3
    SLOT(double, 14, s2, 0x3F8111111110A573) // r^5
    SLOT(double, 15, s3, 0xBF2A01A019A659DD) // r^7
    SLOT(double, 16, s4, 0x3EC71DE3806ADD1A) // r^9
    SLOT(double, 17, s5, 0xBE5AE6355AAA4A53) // r^11
    SLOT(double, 18, s6, 0x3DE60E6BEE01D83E) // r^13
    SLOT(double, 19, s7, 0xBD69F1517E9F65F0) // r^15
};
struct dsin_rm_block {
    SLOT(double, 0, abs_mask, 0x7FFFFFFFFFFFFFFF)
    SLOT(double, 1, large_limit, 0x4170000000000000) // 2^24
    SLOT(double, 2, inv_pi, 0x3FD45F306DC9C883)
    SLOT(double, 3, shifter, 0x4338000000000000) // 1.5 * 2^52
    GAP(4, 6)
    SLOT(double, 7, pi_1, 0x400921FB54442D18)
    SLOT(double, 8, pi_2, 0x3CA1A62633145C06)
    // Fit on |r| <= pi/2: r + s1*r^3 + s2*r^5 + s3*r^7 + s4*r^9 = sin(r) to 2^-27.1 relative
    SLOT(double, 9, s1, 0xBFC55554AD3EAF1F)  // r^3
    SLOT(double, 10, s2, 0x3F8110EA968A0185) // r^5
    SLOT(double, 11, s3, 0xBF29F67D9395D587) // r^7
    SLOT(double, 12, s4, 0x3EC5D4567512BBD5) // r^9
};
struct dcos_block {
    SLOT(double, 0, abs_mask, 0x7FFFFFFFFFFFFFFF)
    SLOT(double, 1, large_limit, 0x4160000000000000) // 2^23
    SLOT(double, 2, half_pi, 0x3FF921FB54442D18)
    SLOT(double, 3, inv_pi, 0x3FD45F306DC9C883)
    SLOT(double, 4, shifter, 0x4338000000000000) // 1.5 * 2^52
    SLOT(double, 5, half, 0x3FE0000000000000)    // 0.5
    GAP(6, 9)
    SLOT(double, 10, pi_1, 0x400921FB54442D18)
    SLOT(double, 11, pi_2, 0x3CA1A62633145C06)
    SLOT(double, 12, pi_3, 0x395C1CD129024E09)
    // Fit on |r| <= pi/2: r + s1*r^3 + s2*r^5 + s3*r^7 + s4*r^9 + s5*r^11 + s6*r^13 + s7*r^15 = sin(r)
    // to 2^-52.2 relative
    SLOT(double, 13, s1, 0xBFC55555555554A7) // r^3
    GAP(14, 14)
    SLOT(double, 15, s2, 0x3F8111111110A4A8)  // r^5
    SLOT(double, 16, s3, 0xBF2A01A019A5B87B)  // r^7
    SLOT(double, 17, s4, 0x3EC71DE38030FEA0)  // r^9
    SLOT(double, 18, s5, 0xBE5AE63546002231)  // r^11
    SLOT(double, 19, s6, 0x3DE60E6857A2F220)  // r^13
    SLOT(double, 20, s7, 0xBD69F0D60811AAC8)  // r^15
    SLOT(double, 21, one, 0x3FF0000000000000) // 1.0
};
struct dcos_rm_block {
    SLOT(double, 0, abs_mask, 0x7FFFFFFFFFFFFFFF)
    SLOT(double, 1, large_limit, 0x4160000000000000) // 2^23
    SLOT(double, 2, half_pi, 0x3FF921FB54442D18)
    SLOT(double, 3, inv_pi, 0x3FD45F306DC9C883)
    SLOT(double, 4, shifter, 0x4338000000000000) // 1.5 * 2^52
    SLOT(double, 5, half, 0x3FE0000000000000)
    GAP(6, 8)
    SLOT(double, 9, pi_1, 0x400921FB54442D18)
    SLOT(double, 10, pi_2, 0x3CA1A62633145C06)
    // Fit on |r| <= pi/2: r + s1*r^3 + s2*r^5 + s3*r^7 + s4*r^9 = sin(r) to 2^-27.1 relative
    SLOT(double, 11, s1, 0xBFC55554AD3EAF1F)
    SLOT(double, 12, s2, 0x3F8110EA968A0185)
    SLOT(double, 13, s3, 0xBF29F67D9395D587)
    SLOT(double, 14, s4, 0x3EC5D4567512BBD5)
    SLOT(double, 15, one, 0x3FF0000000000000)
};
// Constants of the last steps for large arguments: rows of angles, and sine and cosine of what is left.
struct dsin_ha_block {
    TABLE(0, rows, sin_rows_f64)
    GAP(256, 257)
    SLOT(double, 258, exp_mask, 0x7FF0000000000000)
    GAP(259, 264)
    // Fit on |r| <= pi/512: r + ha_s1*r^3 + ha_s2*r^5 = sin(r) to 2^-61.1 relative
    // Fit on |r| <= pi/512: 1 + ha_c1*r^2 + ha_c2*r^4 + ha_c3*r^6 = cos(r) to 2^-78.8 relative
    SLOT(double, 265, ha_s1, 0xBFC5555555554448) // sine coefficient of r^3
    SLOT(double, 266, ha_s2, 0x3F81110FABB3551C) // sine coefficient of r^5
    SLOT(double, 267, ha_c1, 0xBFE0000000000000) // cosine coefficient of r^2 (-0.5)
    SLOT(double, 268, ha_c2, 0x3FA5555555554CCF) // cosine coefficient of r^4
    SLOT(double, 269, ha_c3, 0xBF56C16AB163B2D7) // cosine coefficient of r^6
};
struct dcos_ha_block {
    TABLE(0, rows, cos_rows_f64)
    GAP(256, 257)
    SLOT(double, 258, exp_mask, 0x7FF0000000000000)
    GAP(259, 264)
    // Fit on |r| <= pi/512: r + ha_s1*r^3 + ha_s2*r^5 = sin(r) to 2^-61.1 relative
    // Fit on |r| <= pi/512: 1 + ha_c1*r^2 + ha_c2*r^4 + ha_c3*r^6 = cos(r) to 2^-78.8 relative
    SLOT(double, 265, ha_s1, 0xBFC5555555554448) // sine coefficient of r^3
    SLOT(double, 266, ha_s2, 0x3F81110FABB3551C) // sine coefficient of r^5
    SLOT(double, 267, ha_c1, 0xBFE0000000000000) // cosine coefficient of r^2 (-0.5)
    SLOT(double, 268, ha_c2, 0x3FA5555555554CCF) // cosine coefficient of r^4
    SLOT(double, 269, ha_c3, 0xBF56C16AB163B2D7) // cosine coefficient of r^6
};
ORVANE_BLOCK(dsin_block, __orvane_dsin_data)
ORVANE_BLOCK(dsin_rm_block, __orvane_dsin_rm_data)
ORVANE_BLOCK_TWIN(__orvane_dsin_native_data, __orvane_dsin_rm_data)
ORVANE_BLOCK_TWIN(__orvane_dsin_half_data, __orvane_dsin_rm_data)
ORVANE_BLOCK(dcos_block, __orvane_dcos_data)
ORVANE_BLOCK(dcos_rm_block, __orvane_dcos_rm_data)
ORVANE_BLOCK_TWIN(__orvane_dcos_native_data, __orvane_dcos_rm_data)
ORVANE_BLOCK_TWIN(__orvane_dcos_half_data, __orvane_dcos_rm_data)
ORVANE_BLOCK(dsin_ha_block, __orvane_dsin_data_ha)
ORVANE_BLOCK(dcos_ha_block, __orvane_dcos_data_ha)

// sin(x) = (-1)^n sin(|x| - n pi) under the sign of x.
template <const auto& Block> struct dsin_short : kernel<one_argument<double>, Block, __orvane_dsin_cout_rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<double, W> x) {
        auto ax = x & c.abs_mask;
        auto t = fma(ax, c.inv_pi, c.shifter); // n in the low bits
        auto n = t - c.shifter;
        auto sgn = as<double>(bits(t) << 63);
        auto r = less_multiples_of_pi(c, n, ax);

        auto r2 = r * r;
        auto rs = r ^ sgn;
        auto y = fma(r2 * sine_polynomial(c, r2), rs, rs);
        return answer{y ^ andnot(lanes<double, W>(c.abs_mask), x), is_large(c, ax)};
    }
};
struct dsin : dsin_short<__orvane_dsin_data> {
    template <int W> static ORVANE_INLINE auto large_path(const dsin_block& c, lanes<double, W> x, auto ordinary) {
        const auto& ha = __orvane_dsin_data_ha;
        auto y = eval_large_f64(ha, reduce_large_f64<not_negative>(x & c.abs_mask)) ^
                 andnot(lanes<double, W>(c.abs_mask), x);
        return answer{select(ordinary.special, y, ordinary.first), not_finite(ha, x)};
    }
};

// cos(x) = sin(pi/2 - |x|), with n and the limit counted from the shifted argument: r = (1/2 - n) pi - |x|.
template <const auto& Block> struct dcos_short : kernel<one_argument<double>, Block, __orvane_dcos_cout_rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<double, W> x) {
        using V = lanes<double, W>;
        auto ax = x & c.abs_mask;
        auto y = c.half_pi - ax;
        auto is_one = y == c.half_pi;
        auto t = fma(y, c.inv_pi, c.shifter);
        auto n = t - c.shifter;
        auto m = c.half - n;
        auto sgn = as<double>(bits(t) << 63);
        auto r = fma(m, c.pi_1, -ax);
        r = fma(m, c.pi_2, r);
        if constexpr (requires { c.pi_3; }) r = fma(m, c.pi_3, r);

        auto r2 = r * r;
        auto rs = r ^ sgn;
        auto r3 = r2 * rs;
        auto z = fma(r3, sine_polynomial(c, r2), rs);
        return answer{select(is_one, V(c.one), z), is_large(c, y & c.abs_mask)};
    }
};
struct dcos : dcos_short<__orvane_dcos_data> {
    template <int W> static ORVANE_INLINE auto large_path(const dcos_block&, lanes<double, W> x, auto ordinary) {
        const auto& ha = __orvane_dcos_data_ha;
        auto y = eval_large_f64(ha, reduce_large_f64<of_any_sign>(x));
        return answer{select(ordinary.special, y, ordinary.first), not_finite(ha, x)};
    }
};

using dsin_rm = dsin_short<__orvane_dsin_rm_data>;
using dcos_rm = dcos_short<__orvane_dcos_rm_data>;
// Largest known error of sin: 3.408 ulp at 0x409CFC8C4ECD519D
// Largest known error of sin, large arguments: 0.5023 ulp at 0x417905694F170C58
ORVANE_EXPORT(sin, , dsin)
// Largest known error of sin_rm: 6.819e-09 absolute at 0xC025E1A9E52B965F
// Largest known error of sin_rm, slow path: 0.511 ulp at 0xF7633728258C5DA6
ORVANE_EXPORT(sin, _rm, dsin_rm)
ORVANE_TWIN(sin, _native, sin, _rm)
ORVANE_TWIN(sin, _half, sin, _rm)
// Largest known error of cos: 3.448 ulp at 0xC02F76ED2C003F3C
// Largest known error of cos, large arguments: 0.5027 ulp at 0x4167D46DDC06B534
ORVANE_EXPORT(cos, , dcos)
// Largest known error of cos_rm: 6.819e-09 absolute at 0xC05143DA8ADD1C4B
// Largest known error of cos_rm, slow path: 0.5101 ulp at 0xF0C5497F3F49679A
ORVANE_EXPORT(cos, _rm, dcos_rm)
ORVANE_TWIN(cos, _native, cos, _rm)
ORVANE_TWIN(cos, _half, cos, _rm)

} // namespace orvane
