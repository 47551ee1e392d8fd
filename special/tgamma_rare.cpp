// The slow paths of tgamma and tgammaf, which run on every lane: float in double, double in extended precision.
//
// On |x| < 2 a polynomial on a piece of [1, 2); from there on a product of quadratics for gamma on the one unit
// interval of each 8 or 16, and a product of shifted arguments to reach it. Negative arguments by reflection,
// gamma(x) gamma(-x) = -pi / (x sin(pi x)), with sin(pi r) / pi of the distance r to the nearest integer.
#include "special/x87.h"

namespace orvane {

namespace {

// A polynomial for gamma(w) from its lower bound up: in w + shift, coefficients from the constant term.
template <class V, int N> struct gamma_piece {
    double from;
    V shift, c[N];
};
// Rows for gamma(2 + t), gamma(k + t), gamma(2k + t) ..., t in [0, 1), k = 2^shift: T0 on linear, then the constant
// coefficients of monic quadratics, then the scale. The last row is scaled by `tiny`.
template <class T> struct tgamma_constants;

template <> struct tgamma_constants<float> {
    using working = double;
    static constexpr int quadratics = 6, shift = 3;
    static constexpr working _tgamma_A_table[6][13] = {
#include "special/tables/tgammaf_rows.inc"
    };
    static constexpr gamma_piece<working, 8> pieces[] = {
        {1.75,
         -1.0,
         {f64(0x3FEFEE1E644B2022), f64(0xBFE1C1AEDFB25495), f64(0x3FEC56A80A977CA5), f64(0xBFE3C24AC40AC0BB),
          f64(0x3FDB262D949175BE), f64(0xBFC6F0E707560916), f64(0x3FA96E37D09735F3), f64(0xBF7746A85137617E)}},
        {1.5,
         -1.0,
         {f64(0x3FEFFC613AE7FBC8), f64(0xBFE245971DF735B8), f64(0x3FEE65557AB26771), f64(0xBFE85B427DBD23E4),
          f64(0x3FE3C90CC8F09147), f64(0xBFD59D31BE3AB42A), f64(0x3FBF4203E3816C7B), f64(0xBF94730B51795867)}},
        {1.25,
         f64(0xBFF762D86356BE40),
         {f64(0x3FEC56DC82A39AA2), f64(0xBDEE86A39D8452EB), f64(0x3FDB6C5465BBEF1F), f64(0xBFC0BADE710A10B9),
          f64(0x3FC496A01A545163), f64(0xBFB7E7F83A546EBE), f64(0x3FAF237514F36691), f64(0xBFB421236426936C)}},
        {1.0,
         -1.0,
         {f64(0x3FEFFFFFFFE9209E), f64(0xBFE2788CCD545AA4), f64(0x3FEFA648D144911C), f64(0xBFED0800D93449B8),
          f64(0x3FEF4857A010CA3B), f64(0xBFEE3720F7720B4D), f64(0x3FE96FFEEEA8520F), f64(0xBFD9909648921868)}},
    };
    static constexpr double tiny = f64(0x368954EAEDBCC440);
    static constexpr float over = f32(0x420C2910), neg_zero = f32(0xC22C0000), neg_scale = f32(0xC2200000);
    static constexpr float whole = 0x1p23f, huge = 0x1p100f;
    static constexpr uint32_t pole_side = 0x00200000, smallest_normal = 0x00800000, infinity = 0x7F800000,
                              quiet_nan = 0x7FC00000;
    static constexpr uint32_t index_mask = 0xFFFFF;
    static constexpr status underflows = underflow;

    // sin(pi r) / pi
    static double sine(double r) {
        constexpr double sp_c0 = f64(0x3E90FC992FF39E13), sp_c1 = f64(0xBEC144B2760626E2),
                         sp_c2 = f64(0xC026FB0D377656CC), sp_c3 = f64(0x405541D7ABECEFCA),
                         sp_c4 = f64(0x3FFFB15F95A22324), sp_c5 = f64(0x406CE58F4A41C6E7),
                         sp_c6 = f64(0xC023D59A47DBFCD3), sp_c7 = f64(0x404453786302C61E);
        const double z = r * r;
        double u = sp_c0 * z + sp_c1;
        double v = (z + sp_c2) * z + sp_c3;
        double w = (z + sp_c4) * z + sp_c5;
        u = u * z;
        v = v * u;
        w = w * v;
        double y = (z + sp_c6) * z + sp_c7;
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
        {1.5,
         -1.0L,
         {0xFFFFF1781FDBEE84p-64L, -0x93C30FD9781DBA88p-64L, 0xFD23CD9741B460B8p-64L, -0xE7E82D0C613A8DE4p-64L,
          0xF9535027C1B1F795p-64L, -0xF41312A8572ED346p-64L, 0xE96254A2407A5EACp-64L, -0xCF579312AD7EAD72p-64L,
          0xA6605F2721F787CEp-64L, -0xE7F236EBFB9F774Ep-65L, 0x87445235F4688CC5p-65L, -0xFD84F35B70CD9AE2p-67L,
          0xB5D5E9E5104FA995p-68L, -0xBA55A9A1FC883523p-70L, 0xF1F75D3C561CBBAFp-73L, -0x9533F9D3723B448Cp-76L}},
        {1.25,
         -0xBB16C31AB5F1FC00p-63L,
         {0xE2B6E4153A57746Cp-64L, 0xF4F8FBC7C0C9D317p-120L, 0xDB629FB9BBDC1C4Ep-65L, -0x85D74FA063E81476p-66L,
          0xA4C08BAF0A559479p-66L, -0xBCFBBD5786537E9Ap-67L, 0x8F4BDE8883232364p-67L, -0xC038E6E3261568F9p-68L,
          0x85A262C6F8FEEF71p-68L, -0xB6F91CB5C371177Bp-69L, 0xFB14010FB3697785p-70L, -0xAC8FD5E11F6EEAD8p-70L,
          0xE366DB2FB27B7ECDp-71L, -0xC53F83645D4597FCp-71L, 0xEA6DE925E6EB8C8Fp-75L, -0xD038092400619677p-71L}},
        {1.0,
         -1.0L,
         {0x8000000000000000p-63L, -0x93C467E37DB0C536p-64L, 0xFD32C611D8A881D0p-64L, -0xE8508C7990A0DAC0p-64L,
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

    static extended sine(extended r) {
        constexpr extended sin_c[] = {0xBCBC4342112F52A2p-96L,  -0xFAFCECB86536F655p-91L, 0x87E4C97F9CF09B92p-85L,
                                      -0xEA124C68E704C5CBp-81L, 0x9BA38CFD59C8AA1Dp-76L,  -0x99C0B552303D5B21p-72L,
                                      0xD63402E79A853175p-69L,  -0xC354723906DB36BAp-66L, 0xCFCE5A015E236291p-64L,
                                      -0xD28D3312983E9918p-63L};
        const extended z = r * r;
        return r + (z * r) * horner(sin_c, z);
    }
};

// gamma(w) on [1, 2); a subnormal x has w = 1.
template <class T, class V> V gamma_from_1_to_2(V w, bool subnormal) {
    const auto* piece = tgamma_constants<T>::pieces;
    while (w < piece->from)
        piece++;
    const double t = w + piece->shift; // rounded to double in extended precision, too
    return subnormal ? piece->c[0] : horner_up(piece->c, V(t));
}

// gamma(A) for A = F + t >= 2, F = n: the row's product G and the product p of A - 1, A - 2 ... that leads to it.
template <class V> struct shifted { V G, p; };
template <class T, class V> shifted<V> gamma_from_2(T A, T F, uint32_t n) {
    using c = tgamma_constants<T>;
    constexpr int Q = c::quadratics;
    constexpr uint32_t step = 1 << c::shift;
    const uint32_t e = n >= step ? n & (step - 1) : n - 2;
    const V* row = c::_tgamma_A_table[n >> c::shift];
    const V t = A - F, z = t * t;
    V G = row[2 * Q];
#pragma GCC unroll 11
    for (int i = 0; i < Q; i++)
        G = G * ((row[i] * t + z) + row[Q + i]);
    V p = 1;
    for (uint32_t i = 1; i <= e; i++)
        p = p * V(T(A - T(i)));
    return {G, p};
}

template <class T> [[gnu::noinline]] int tgamma_rare(const T* argument, T* result) {
    using c = tgamma_constants<T>;
    using V = typename c::working;
    using word = decltype(bits(T()));
    const T x = *argument;
    const bool negative = x < 0;
    const T A = negative ? -x : x;

    if (!(A < std::bit_cast<T>(c::infinity))) {
        *result = negative ? std::bit_cast<T>(c::quiet_nan) : x + x;
        return negative ? domain_error : ordinary;
    }
    if (x == 0) {
        *result = 1 / x;
        return pole;
    }
    if (bits(A) <= c::pole_side) {
        *result = (negative ? -c::huge : c::huge) * c::huge;
        return overflow;
    }

    // The nearest integer R, its parity the low bit of S, and F below A.
    const T S = A + c::whole, R = S - c::whole;
    const bool above = A < R;
    const T F = above ? R - 1 : R;
    const uint32_t n = uint32_t(bits(S) & word(c::index_mask)) - above;
    V s = 0;
    if (negative) {
        if (A >= c::whole || A == F) {
            *result = std::bit_cast<T>(c::quiet_nan);
            return domain_error;
        }
        if (x < c::neg_zero) {
            *result = (n % 2 ? 1 / c::huge : -1 / c::huge) * (1 / c::huge);
            return c::underflows;
        }
        const T r = above ? R - A : A - R;
        s = c::sine(r);
    } else if (x >= c::over) {
        *result = c::huge * c::huge;
        return overflow;
    }

    const V a = A;
    V y;
    if (A < 2) {
        const V P = gamma_from_1_to_2<T>(A < 1 ? a + 1 : a, bits(A) < c::smallest_normal);
        if (negative) y = A < 1 ? -1 / (s * P) : 1 / ((s * a) * P);
        else y = A < 1 ? P / a : P;
    } else {
        const auto [G, p] = gamma_from_2<T, V>(A, F, n);
        if (negative) {
            y = 1 / (((s * a) * G) * p);
            if (x < c::neg_scale) y = y * c::tiny;
            if (n % 2 == 0) y = -y;
        } else y = G * p;
    }
    *result = T(y);
    return ordinary;
}

} // namespace

ORVANE_SLOW_PATH(__orvane_dtgamma_cout_rare, const double* x, double* result) {
    return with_64_bit_significands<tgamma_rare<double>>(x, result);
}
ORVANE_SLOW_PATH(__orvane_stgamma_cout_rare, const float* x, float* result) { return tgamma_rare(x, result); }

} // namespace orvane
