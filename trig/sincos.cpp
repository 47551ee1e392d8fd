// sincos and sincosreg in double: one polynomial gives both results, the cosine from a second remainder half a turn
// of pi away from the sine's. Large lanes as in sin and cos. The two families differ only in how the cosine travels.
#include "trig/sine_steps.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dsincos_cout_rare, const double* x, double* sine, double* cosine);
ORVANE_SLOW_PATH(__orvane_dsincosreg_cout_rare, const double* x, double* sine, double* cosine);

struct dsincos_block {
    SLOT(double, 0, sign_mask, 0x8000000000000000)
    GAP(1, 1)
    SLOT(double, 2, large_limit, 0x4160000000000000) // 2^23
    GAP(3, 3)
    SLOT(double, 4, inv_pi, 0x3FD45F306DC9C883)
    SLOT(double, 5, shifter, 0x4338000000000000) // 1.5 * 2^52
    SLOT(double, 6, half, 0x3FE0000000000000)    // 0.5
    GAP(7, 10)
    SLOT(double, 11, pi_1, 0x400921FB54442D18)
    SLOT(double, 12, pi_2, 0x3CA1A62633145C06)
    SLOT(double, 13, pi_3, 0x395C1CD129024E09)
    GAP(14, 17)
    // Fit on |r| <= pi/2: r + s1*r^3 + s2*r^5 + s3*r^7 + s4*r^9 + s5*r^11 + s6*r^13 + s7*r^15 = sin(r)
    // to 2^-52.3 relative
    SLOT(double, 18, s1, 0xBFC55555555554A7) // r^3
    SLOT(double, 19, s2, 0x3F8111111110A4A6) // r^5
    GAP(20, 20)
    SLOT(double, 21, s3, 0xBF2A01A019A5B86D)  // r^7
    SLOT(double, 22, s4, 0x3EC71DE38030FEA0)  // r^9
    SLOT(double, 23, s5, 0xBE5AE63546002231)  // r^11
    SLOT(double, 24, s6, 0x3DE60E6857A2F220)  // r^13
    SLOT(double, 25, s7, 0xBD69F0D60811AAC8)  // r^15
    SLOT(double, 26, one, 0x3FF0000000000000) // 1.0
};
struct dsincos_rm_block {
    SLOT(double, 0, sign_mask, 0x8000000000000000)
    SLOT(double, 1, large_limit, 0x4160000000000000) // 2^23
    GAP(2, 2)
    SLOT(double, 3, inv_pi, 0x3FD45F306DC9C883)
    SLOT(double, 4, shifter, 0x4338000000000000)
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
struct dsincos_ha_block {
    TABLE(0, rows, sin_rows_f64)
    GAP(256, 257)
    SLOT(double, 258, exp_mask, 0x7FF0000000000000)
    GAP(259, 260)
    SLOT(double, 261, row_mask, 0x00000000000001FF)
    SLOT(double, 262, quarter, 0x0000000000000080) // 128 rows, a quarter turn
    GAP(263, 265)
    // Fit on |r| <= pi/512: r + ha_s1*r^3 + ha_s2*r^5 = sin(r) to 2^-61.1 relative
    // Fit on |r| <= pi/512: 1 + ha_c1*r^2 + ha_c2*r^4 + ha_c3*r^6 = cos(r) to 2^-78.8 relative
    SLOT(double, 266, ha_s1, 0xBFC5555555554448)
    SLOT(double, 267, ha_s2, 0x3F81110FABB3551C)
    SLOT(double, 268, ha_c1, 0xBFE0000000000000)
    SLOT(double, 269, ha_c2, 0x3FA5555555554CCF)
    SLOT(double, 270, ha_c3, 0xBF56C16AB163B2D7)
};
ORVANE_BLOCK(dsincos_block, __orvane_dsincos_data)
ORVANE_BLOCK_TWIN(__orvane_dsincosreg_data, __orvane_dsincos_data)
ORVANE_BLOCK(dsincos_rm_block, __orvane_dsincos_rm_data)
ORVANE_BLOCK_TWIN(__orvane_dsincos_native_data, __orvane_dsincos_rm_data)
ORVANE_BLOCK_TWIN(__orvane_dsincosreg_native_data, __orvane_dsincos_rm_data)
ORVANE_BLOCK(dsincos_ha_block, __orvane_dsincos_data_ha)
ORVANE_BLOCK_TWIN(__orvane_dsincosreg_data_ha, __orvane_dsincos_data_ha)

// sin(z) for |z| <= pi/2.
template <int W> ORVANE_INLINE auto odd_sine(const auto& c, lanes<double, W> z) {
    auto z2 = z * z;
    return fma(z2 * sine_polynomial(c, z2), z, z);
}

template <class Signature, const auto& Block, auto& Rare> struct dsincos_short : kernel<Signature, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<double, W> x) {
        using V = lanes<double, W>;
        const V sign_mask = c.sign_mask;
        auto ax = andnot(sign_mask, x);
        auto t = fma(ax, c.inv_pi, c.shifter); // n in the low bits
        auto n = t - c.shifter;
        auto sgn = as<double>(bits(t) << 63);
        auto a = fma(-n, c.pi_1, ax);
        a = fma(-n, c.pi_2, a);

        auto q = a & sign_mask;
        auto nc = (q | c.half) + n; // half a turn of pi on, towards the sign of a
        auto rs = a;
        if constexpr (requires { c.pi_3; }) rs = fma(-n, c.pi_3, a);
        auto rc = less_multiples_of_pi(c, nc, ax);

        auto sine = odd_sine(c, rs) ^ sgn ^ (x & sign_mask);
        auto cosine = odd_sine(c, rc) ^ sgn ^ q ^ sign_mask;
        cosine = select(x == V(0.0), V(c.one), cosine);
        return answer{sine, cosine, is_large(c, ax)};
    }
};

// sin(2 pi j/512 + r + rl) for one of the two rows; the same terms as a single sine's, in another order.
template <int W> ORVANE_INLINE auto sine_of_row(const dsincos_ha_block& c, lanes<uint64_t, W> j, lanes<double, W> r,
                                                lanes<double, W> rl, lanes<double, W> ps, lanes<double, W> pc) {
    const row_addresses<W> row(c.rows.entry, j << 5);
    auto [ct, ch] = row.pair(&angle_row<double>::cos_tail);
    auto [sh, sl] = row.pair(&angle_row<double>::sin_hi);
    auto cosine = ct + ch;
    auto v = fma(-sh, r, cosine);
    auto w = fma(rl, v, sl);
    w = fma(ps, cosine, w);
    auto h1 = fma(r, ch, sh);
    auto h2 = fma(ct, r, h1);
    auto e2 = fma(ct, r, h1 - h2);
    auto e1 = fma(ch, r, sh - h1);
    auto u = fma(pc, sh, w + e2);
    return h2 + (e1 + u);
}
template <class Signature, const auto& Block, auto& Rare> struct dsincos_large
    : dsincos_short<Signature, Block, Rare> {
    template <int W> static ORVANE_INLINE auto large_path(const auto& c, lanes<double, W> x, auto ordinary) {
        const auto& ha = __orvane_dsincos_data_ha;
        auto ax = andnot(lanes<double, W>(c.sign_mask), x);
        auto [S, r, rl] = reduce_large_f64<not_negative>(ax);
        auto j = S & ha.row_mask;
        auto j2 = (j + ha.quarter) & ha.row_mask;
        auto r2 = r * r;
        auto ps = (r2 * fma(ha.ha_s2, r2, ha.ha_s1)) * r;
        auto pc = fma(fma(ha.ha_c3, r2, ha.ha_c2), r2, ha.ha_c1) * r2;
        auto sine = sine_of_row(ha, j, r, rl, ps, pc) ^ (x & c.sign_mask);
        auto cosine = sine_of_row(ha, j2, r, rl, ps, pc);
        auto large = is_large(c, ax);
        return answer{select(large, sine, ordinary.first), select(large, cosine, ordinary.second), not_finite(ha, x)};
    }
};

using dsincos = dsincos_large<pointer_out<double>, __orvane_dsincos_data, __orvane_dsincos_cout_rare>;
using dsincos_rm = dsincos_short<pointer_out<double>, __orvane_dsincos_rm_data, __orvane_dsincos_cout_rare>;
using dsincosreg = dsincos_large<pair_result<double>, __orvane_dsincosreg_data, __orvane_dsincosreg_cout_rare>;
using dsincosreg_native =
    dsincos_short<pair_result<double>, __orvane_dsincosreg_native_data, __orvane_dsincosreg_cout_rare>;
// Largest known error of sincos: 3.403 ulp at 0x3FBB4AE103DA0F38
// Largest known error of sincos, large arguments: 0.5027 ulp at 0x5139A31870434371
ORVANE_EXPORT(sincos, , dsincos)
// Largest known error of sincos_rm: 6.819e-09 absolute at 0x40293E0D74817963
// Largest known error of sincos_rm, slow path: 0.5121 ulp at 0x490473DF31C4DB07
ORVANE_EXPORT(sincos, _rm, dsincos_rm)
ORVANE_TWIN(sincos, _native, sincos, _rm)
// Largest known error of sincosreg: 3.39 ulp at 0xBFBDBF9925FA6818
// Largest known error of sincosreg, large arguments: 0.5026 ulp at 0xEC35B59471BDED5D
ORVANE_EXPORT(sincosreg, , dsincosreg)
// Largest known error of sincosreg_native: 6.819e-09 absolute at 0xBFAC122FCEA735B0
// Largest known error of sincosreg_native, slow path: 0.5123 ulp at 0x7E01601DD29F0203
ORVANE_EXPORT(sincosreg, _native, dsincosreg_native)

} // namespace orvane
