// The gamma function's constants in the slow paths: polynomials on [1, 2), products of quadratics from 2 on, and
// sin(pi r) / pi. The vector path's rows are fitted to these very polynomials.
#pragma once

#include "special/x87.h"

namespace orvane {

// A polynomial for gamma(w) from its lower bound up: in w + shift, coefficients from the constant term.
template <class V, int N> struct gamma_piece {
    double from;
    V shift, c[N];
};
// Rows for gamma(2 + t), gamma(k + t), gamma(2k + t) ..., t in [0, 1), k = 2^shift: the linear, then the constant
// coefficients of monic quadratics in t, then the scale. The last row is that of gamma times `tiny`. In float
// tgammaf_rows.inc to 2^-32.9 relative; in double tgamma_rows_00_01.inc to 2^-63.6 relative, tgamma_rows_02_10.inc to
// 2^-62.8 relative, tgamma_rows_11.inc to 2^-63.1 relative.
template <class T> struct tgamma_constants;

template <> struct tgamma_constants<float> {
    using working = double;
    static constexpr int quadratics = 6, shift = 3;
    static constexpr working _tgamma_A_table[6][13] = {
#include "special/tables/tgammaf_rows.inc"
    };
    static constexpr gamma_piece<working, 8> pieces[] = {
        // Fit on 1.75 <= w <= 2, t = w + shift: horner_up(t, c) = gamma(w) to 2^-39.0 relative
        {.from = 1.75,
         .shift = -1.0,
         .c = {f64(0x3FEFEE1E644B2022), f64(0xBFE1C1AEDFB25495), f64(0x3FEC56A80A977CA5), f64(0xBFE3C24AC40AC0BB),
               f64(0x3FDB262D949175BE), f64(0xBFC6F0E707560916), f64(0x3FA96E37D09735F3), f64(0xBF7746A85137617E)}},
        // Fit on 1.5 <= w <= 1.75, t = w + shift: horner_up(t, c) = gamma(w) to 2^-37.1 relative
        {.from = 1.5,
         .shift = -1.0,
         .c = {f64(0x3FEFFC613AE7FBC8), f64(0xBFE245971DF735B8), f64(0x3FEE65557AB26771), f64(0xBFE85B427DBD23E4),
               f64(0x3FE3C90CC8F09147), f64(0xBFD59D31BE3AB42A), f64(0x3FBF4203E3816C7B), f64(0xBF94730B51795867)}},
        // Fit on 1.25 <= w <= 1.5, t = w + shift: horner_up(t, c) = gamma(w) to 2^-34.9 relative
        {.from = 1.25,
         .shift = f64(0xBFF762D86356BE40),
         .c = {f64(0x3FEC56DC82A39AA2), f64(0xBDEE86A39D8452EB), f64(0x3FDB6C5465BBEF1F), f64(0xBFC0BADE710A10B9),
               f64(0x3FC496A01A545163), f64(0xBFB7E7F83A546EBE), f64(0x3FAF237514F36691), f64(0xBFB421236426936C)}},
        // Fit on 1 <= w <= 1.25, t = w + shift: horner_up(t, c) = gamma(w) to 2^-32.3 relative
        {.from = 1.0,
         .shift = -1.0,
         .c = {f64(0x3FEFFFFFFFE9209E), f64(0xBFE2788CCD545AA4), f64(0x3FEFA648D144911C), f64(0xBFED0800D93449B8),
               f64(0x3FEF4857A010CA3B), f64(0xBFEE3720F7720B4D), f64(0x3FE96FFEEEA8520F), f64(0xBFD9909648921868)}},
    };
    static constexpr double tiny = f64(0x368954EAEDBCC440);
    static constexpr float over = f32(0x420C2910), neg_zero = f32(0xC22C0000), neg_scale = f32(0xC2200000);
    static constexpr float whole = 0x1p23f, huge = 0x1p100f;
    static constexpr uint32_t pole_side = 0x00200000, smallest_normal = 0x00800000, infinity = 0x7F800000,
                              quiet_nan = 0x7FC00000;
    static constexpr uint32_t index_mask = 0xFFFFF;
    static constexpr status underflows = underflow;

    // Fit on |r| <= 1/2, z = r^2: r + r*z*(sp_c[0]*z + sp_c[1])*((z + sp_c[2])*z + sp_c[3])*((z + sp_c[4])*z +
    // sp_c[5])*((z + sp_c[6])*z + sp_c[7]) = sin(pi*r)/pi to 2^-44.4 relative
    static constexpr double sp_c[] = {f64(0x3E90FC992FF39E13), f64(0xBEC144B2760626E2), f64(0xC026FB0D377656CC),
                                      f64(0x405541D7ABECEFCA), f64(0x3FFFB15F95A22324), f64(0x406CE58F4A41C6E7),
                                      f64(0xC023D59A47DBFCD3), f64(0x404453786302C61E)};
    template <class V> static V sine(V r) {
        const V z = r * r;
        V u = sp_c[0] * z + sp_c[1];
        V v = (z + sp_c[2]) * z + sp_c[3];
        V w = (z + sp_c[4]) * z + sp_c[5];
        u = u * z;
        v = v * u;
        w = w * v;
        V y = (z + sp_c[6]) * z + sp_c[7];
        y = y * w;
        y = y * r;
        return y + r;
    }
};

template <> struct tgamma_constants<double> {
    using working = extended;
    static constexpr int quadratics = 11, shift = 4;
    static constexpr working _tgamma_A_table[12][23] = {
#include "special/tables/tgamma_rows_00_01.inc"
#include "special/tables/tgamma_rows_02_10.inc"
#include "special/tables/tgamma_rows_11.inc"
    };
    static constexpr gamma_piece<working, 16> pieces[] = {
        // Fit on 1.5 <= w <= 2, t = w + shift: horner_up(t, c) = gamma(w) to 2^-60.4 relative
        {.from = 1.5,
         .shift = -1.0L,
         .c = {0xFFFFF1781FDBEE84p-64L, -0x93C30FD9781DBA88p-64L, 0xFD23CD9741B460B8p-64L, -0xE7E82D0C613A8DE4p-64L,
               0xF9535027C1B1F795p-64L, -0xF41312A8572ED346p-64L, 0xE96254A2407A5EACp-64L, -0xCF579312AD7EAD72p-64L,
               0xA6605F2721F787CEp-64L, -0xE7F236EBFB9F774Ep-65L, 0x87445235F4688CC5p-65L, -0xFD84F35B70CD9AE2p-67L,
               0xB5D5E9E5104FA995p-68L, -0xBA55A9A1FC883523p-70L, 0xF1F75D3C561CBBAFp-73L, -0x9533F9D3723B448Cp-76L}},
        // Fit on 1.25 <= w <= 1.5, t = w + shift: horner_up(t, c) = gamma(w) to 2^-65.7 relative
        {.from = 1.25,
         .shift = -0xBB16C31AB5F1FC00p-63L,
         .c = {0xE2B6E4153A57746Cp-64L, 0xF4F8FBC7C0C9D317p-120L, 0xDB629FB9BBDC1C4Ep-65L, -0x85D74FA063E81476p-66L,
               0xA4C08BAF0A559479p-66L, -0xBCFBBD5786537E9Ap-67L, 0x8F4BDE8883232364p-67L, -0xC038E6E3261568F9p-68L,
               0x85A262C6F8FEEF71p-68L, -0xB6F91CB5C371177Bp-69L, 0xFB14010FB3697785p-70L, -0xAC8FD5E11F6EEAD8p-70L,
               0xE366DB2FB27B7ECDp-71L, -0xC53F83645D4597FCp-71L, 0xEA6DE925E6EB8C8Fp-75L, -0xD038092400619677p-71L}},
        // Fit on 1 <= w <= 1.25, t = w + shift: horner_up(t, c) = gamma(w) to 2^-64.5 relative
        {.from = 1.0,
         .shift = -1.0L,
         .c = {0x8000000000000000p-63L, -0x93C467E37DB0C536p-64L, 0xFD32C611D8A881D0p-64L, -0xE8508C7990A0DAC0p-64L,
               0xFB52882A095B18A4p-64L, -0xFB64074CED2658FBp-64L, 0xFE3F02E5EDB6811Ep-64L, -0xFEF9CAEE2CB5B533p-64L,
               0xFF8153BD42E71A4Fp-64L, -0xFFA5EF3959089E94p-64L, 0xFF173B7E66FD1D61p-64L, -0xFB73D31793068463p-64L,
               0xECF7DDDFD27C9223p-64L, -0xC4DED71C782F76C8p-64L, 0xF5B5413F95E1C282p-65L, -0xA405530B067ECD3Cp-66L}},
    };
    static constexpr extended tiny = 0xBA5D5869211696FFp-1106L;
    static constexpr double over = f64(0x406573FAE561F648), neg_zero = f64(0xC067200000000000);
    static constexpr double neg_scale = f64(0xC066000000000000);
    static constexpr double whole = 0x1p52, huge = 0x1p1000;
    static constexpr uint64_t pole_side = 0x0004000000000000, smallest_normal = 0x0010000000000000;
    static constexpr uint64_t infinity = 0x7FF0000000000000, quiet_nan = 0x7FF8000000000000;
    static constexpr uint64_t index_mask = 0xFFFFFFFF;
    static constexpr status underflows = ordinary;

    // Fit on |r| <= 1/2, z = r^2: r + z*r*horner(z, sin_c) = sin(pi*r)/pi to 2^-59.5 relative
    static constexpr extended sin_c[] = {0xBCBC4342112F52A2p-96L,  -0xFAFCECB86536F655p-91L, 0x87E4C97F9CF09B92p-85L,
                                         -0xEA124C68E704C5CBp-81L, 0x9BA38CFD59C8AA1Dp-76L,  -0x99C0B552303D5B21p-72L,
                                         0xD63402E79A853175p-69L,  -0xC354723906DB36BAp-66L, 0xCFCE5A015E236291p-64L,
                                         -0xD28D3312983E9918p-63L};
    template <class V> static V sine(V r) {
        const V z = r * r;
        return r + (z * r) * horner(z, sin_c);
    }
};

// The piece of [1, 2) that w lies in.
template <class T, class V> const auto& gamma_piece_of(V w) {
    const auto* piece = tgamma_constants<T>::pieces;
    while (w < piece->from)
        piece++;
    return *piece;
}

// The product of the row of n at t: gamma of the first number of n's group of 8 or 16 (of 2 in the first), plus t.
template <class T, class V> [[gnu::always_inline]] inline V gamma_row_product(uint32_t n, V t) {
    constexpr int Q = tgamma_constants<T>::quadratics;
    const auto* row = tgamma_constants<T>::_tgamma_A_table[n >> tgamma_constants<T>::shift];
    const V z = t * t;
    V G = row[2 * Q];
#pragma GCC unroll 11
    for (int i = 0; i < Q; i++)
        G = G * ((row[i] * t + z) + row[Q + i]);
    return G;
}

// How much further the slow path can be from the vector path at negative arguments, relative: what fit-gamma proves.
constexpr double tgamma_reflection_margin = 0x1p-60;

} // namespace orvane
