// The slow paths of lgammaf and lgammarf, which run on every lane: extended arithmetic under the process's control
// word, but for the logarithm, which is double arithmetic.
#include "log/log_tables.h"
#include "special/lgamma_rare.h"

namespace orvane {

namespace {

// (lo, hi): -ln of the reciprocals 1 / (1 + (i + 1/2) / 256), hi a double with its low 32 bits clear.
constexpr lo_hi __libm_log_table_256[256] = {
#include "special/tables/log_256.inc"
};

double without_low_word(double v) { return f64(bits(v) & 0xFFFFFFFF00000000); }

// ln x for a positive normal x, to a little less than double.
[[gnu::noinline]] double own_log(double x) {
    constexpr double ol_third = f64(0x3FD5555555555555);
    const uint32_t h = uint32_t(bits(x) >> 32);
    if (h >= 0x3FEFFF00 && h <= 0x3FF0007F) { // 1 and what is within 2^-13 of it
        constexpr double ol_t0 = f64(0x3FC99999A199B4B4), ol_t1 = f64(0xBFD0000003555556);
        if (x == 1) return 0;
        const double d = x + -1;
        const double z = d * d;
        double a = ol_t0 * z + ol_third;
        const double b = (ol_t1 * z + -0.5) * d;
        a = a * z + b;
        return a * d + d;
    }
    if (h >= 0x3FEF8000 && h < 0x3FF04000) { // within 2^-6: d - d^2 / 2 with d^2 in two exact parts
        constexpr double ol_m[] = {f64(0x3FBC756A566CE20D), f64(0x3FC2492478D1D116), f64(0x3FC99999999A2B21),
                                   ol_third};
        constexpr double ol_n[] = {f64(0xBFB99D9A03A0403E), f64(0xBFBFFFFFB94B8A57), f64(0xBFC5555555566AD6),
                                   f64(0xBFCFFFFFFFFFFFFC)};
        const double d = x + -1;
        const double z = d * d;
        const double dh = without_low_word(d);
        const double hh = dh * dh;
        const double h2 = without_low_word(hh);
        const double hl = hh - h2;
        double s = horner(ol_m, z);
        double t = horner(ol_n, z);
        s = s * d;
        const double dl = d - dh;
        t = t * z;
        s = s + t;
        const double m = (dl + dh) * dl;
        s = s * z + dl;
        const double n = (dl * dh + m) + hl;
        return (n * -0.5 + s) + (h2 * -0.5 + dh);
    }
    // x = 2^e y: ln y = ln(1 + r) - ln c, r = y c - 1 in two parts, the first exact.
    constexpr double ln2_hi = f64(0x3FE62E42FEE00000), ln2_lo = f64(0x3DEA39EF35793C76);
    constexpr double ol_a0 = f64(0xBFC5555F7BD1FCD4), ol_a1 = f64(0xBFCFFFFFFFFE169D),
                     ol_b0 = f64(0x3FC999A24CDB6ABC), ol_b1 = f64(0x3FD555555554D0DF);
    const double e = int(h >> 20) - 1023;
    const int i = h >> 12 & 0xFF;
    const double y = f64((bits(x) & 0x000FFFFFFFFFFFFF) | 0x3FF0000000000000);
    const double yh = without_low_word(y);
    const double yl = y - yh;
    const double c = __dlog2_g___libm_rcp_table_256[i];
    const double eh = e * ln2_hi + __libm_log_table_256[i].hi;
    const double el = e * ln2_lo + __libm_log_table_256[i].lo;
    const double r0 = yh * c + -1;
    const double r1 = yl * c;
    const double r = r0 + r1;
    const double z = r * r;
    double p = (ol_a0 * z + ol_a1) * z + -0.5;
    const double q = ((ol_b0 * z + ol_b1) * r) * z;
    p = p * z + q;
    p = p + r1;
    return (r0 + eh) + (p + el);
}

// Each binade [2^(j+2), 2^(j+3)) in u from 0 to 1.
constexpr float _A[] = {0x1p2f, 0x1p3f, 0x1p4f, 0x1p5f, 0x1p6f, 0x1p7f, 0x1p8f, 0x1p9f, 0x1p10f, 0x1p11f, 0x1p12f};
constexpr float _B[] = {0x1p-2f, 0x1p-3f, 0x1p-4f,  0x1p-5f,  0x1p-6f, 0x1p-7f,
                        0x1p-8f, 0x1p-9f, 0x1p-10f, 0x1p-11f, 0x1p-12f};
constexpr double _C5[11][8] = {
#include "special/tables/lgammaf_C5.inc"
};
constexpr double _C5_0[11][3] = {
#include "special/tables/lgammaf_C5_0.inc"
};
extended binade(int j, extended x) {
    const auto& C = _C5[j];
    const auto& D = _C5_0[j];
    const extended u = (x - _A[j]) * _B[j];
    const extended v = u * u;
    const extended P = (((C[1] * v + C[5]) * v + D[1]) * v + C[7]) * v + C[3];
    const extended Q = (((C[0] * v + C[4]) * v + D[0]) * v + C[6]) * v + C[2];
    return (v * Q + D[2]) + u * P;
}

// c + odd and even powers of v, from a lower bound of x up; v = x + shift.
template <int N> struct split_polynomial {
    double from, shift, a[N], b[N], c;
    extended at(extended x) const {
        const extended v = x + shift, w = v * v;
        const extended P = horner(a, w);
        const extended Q = horner(b, w);
        return (w * Q + c) + v * P;
    }
};
constexpr split_polynomial<4> lg_q[] = {
    {1.75,
     0.0,
     {f64(0xBF8CBC9587EEA5A3), f64(0xBFDFA67E65E89B29), f64(0xC00851BC418B8A25), f64(0xC013284CE7CB0C39)},
     {f64(0x3F4A9222032EB39A), f64(0x3FBBC992783E8C5B), f64(0x3FF795400783BE49), f64(0x4012B408F02FAF88)},
     f64(0x4000A0CB38D6CF0A)},
    {1.5,
     0.0,
     {f64(0xBFA44EAC9BFA7FDE), f64(0xBFF084AF95883BA5), f64(0xC012A5CFE00A2522), f64(0xC015F83DB73B57B7)},
     {f64(0x3F65D5A7EB31047F), f64(0x3FD0E1583AB00E08), f64(0x40051FEFE7A663D8), f64(0x40185982877AE0A2)},
     f64(0x4001DB08F9DFA0CC)},
    {1.25,
     f64(0xBFF762D86356BE3F),
     {f64(0xBF831BBBD61313B7), f64(0xBFA0C90C9C223044), f64(0xBFC2E427A53EB830), f64(0x3D890B3DAEBC1DFC)},
     {f64(0x3F838E0D35A6171A), f64(0x3F9285DDDC20D6C3), f64(0x3FB08B40196425D0), f64(0x3FDEF72BC8F5287C)},
     f64(0xBFBF19B9BCC38A42)},
    {1.0,
     0.0,
     {f64(0xBFE22092FC0EE4DC), f64(0xC01B63D2FD8B4838), f64(0xC02C6004CA309876), f64(0xC01F4732F1F3E423)},
     {f64(0x3FAC8CDFBC14D340), f64(0x40048D48C3A02F10), f64(0x4027CB007D9BF558), f64(0x40288FCC5B1371AE)},
     f64(0x4004F39421765550)},
};
// Of log gamma(x) / (x - 2) on (2, 4).
constexpr split_polynomial<5> lg_p24 = {2.0,
                                        0.0,
                                        {f64(0x3F035F2D1833BF4C), f64(0x3F7437F2FA1436C6), f64(0x3FBF7422445C9460),
                                         f64(0x3FE9F107FEE8BD29), f64(0x3FFC9D5D5B6CDEFF)},
                                        {f64(0xBEB2CC7A38B9355F), f64(0xBF421676F9CB46C7), f64(0xBF9E1C289FB224AB),
                                         f64(0xBFD7A7041DE592FE), f64(0xBFF51BAA7FD27785)},
                                        f64(0xBFF01E76D66F8D8A)};

// log gamma(y) for y in [1, 2], and from 4 to 8192.
[[gnu::noinline]] extended own_lgammaf_pos(extended y) {
    const double rounded = y;
    if (rounded >= 4) return binade(int(bits(rounded) >> 52) - 0x401, y);
    const auto* piece = lg_q;
    while (rounded < piece->from)
        piece++;
    return piece->at(y);
}

// Around the zeros of log|gamma| in (-3, -2) and in (-4, -3): the left and the right one of each interval.
struct root_cubic {
    root_window window;
    double P[4];
    extended at(extended x) const { return horner(P, x - window.centre); }
};
constexpr root_cubic left_roots[2] = {
    {{f64(0xC005FB43A9328A1D), f64(0xC005FB410A1BD901), f64(0xC005FB3E6B0527E5)},
     {f64(0xC034185AC31314FF), f64(0x4023267F3C28DFE3), f64(0xBFFEA12DA904B194), f64(0x3CA8FB8530BA7689)}},
    {{f64(0xC00FA47BD0D6F455), f64(0xC00FA471547C2FE5), f64(0xC00FA45D80000000)},
     {f64(0xC0AD25359E70C888), f64(0x406F76DEAEA1B8C6), f64(0xC034B99D966C5644), f64(0xBCBDDC0336980B58)}},
};
constexpr root_cubic right_roots[2] = {
    {{f64(0xC003A7FF3517A988), f64(0xC003A7FC9600F86C), f64(0xC003A7F9F6EA4750)},
     {f64(0x3FF694A6058D9592), f64(0x40136EEBB003A92B), f64(0x3FF83FE966AF5360), f64(0x3C90323B6D1FE86D)}},
    {{f64(0xC00926105BB50ACB), f64(0xC009260DBC9E59AF), f64(0xC009260B1D87A893)},
     {f64(0x405C11371268DA38), f64(0x4039D4D2977D2C23), f64(0x401F20A65F2FAC62), f64(0x3CDE9605E3AE7A62)}},
};

constexpr double lg_sin[] = {f64(0xBFD58731A486E820), f64(0xBFA4452CC28E15A9), f64(0xBFC86A0D5252E778),
                             f64(0xBFC93E08C9EE284B), f64(0xBFD013F6E1B86C4F), f64(0xBFD5B3F19F7A341F),
                             f64(0xBFE15132555C9EDD), f64(0xBFFA51A662480E35)};

float to_integer_nearest(float x) { return (12582912.0f - x) + -12582912.0f; } // of -x

extended log_gamma_of_positive(float x) {
    if (x == 1 || x == 2) return 0;
    if (x >= 8192) { // Stirling's series, its first terms
        const extended L = own_log(x);
        return ((x + -0.5L) * L + lg_half_log2pi) - x;
    }
    if (x < 1) return own_lgammaf_pos(x + 1.0L) - own_log(x);
    if (x > 2 && x < 4) return (x + -2.0L) * lg_p24.at(x);
    return own_lgammaf_pos(x);
}

extended log_gamma_of_negative(float x) {
    if (x > -9) {
        if (x < -2 && x > -4) {
            const int k = bits((-2.5f - x) + 12582912.0f) & 1;
            if (inside(left_roots[k].window, x)) return left_roots[k].at(x);
            if (inside(right_roots[k].window, x)) return right_roots[k].at(x);
        }
        return shifted_up(x, own_lgammaf_pos, own_log);
    }
    // gamma(x) gamma(A) = pi / (x sin(pi x)), A = -x
    const float A = -x;
    const extended r = extended(A) - to_integer_nearest(x);
    const extended z = r * r;
    const double distance = r < 0 ? -r : r;
    extended T;
    if (x > -8192) {
        const extended w = z * z;
        const extended H = -extended(own_log(A)) - own_lgammaf_pos(A);
        const extended P = ((lg_sin[1] * w + lg_sin[3]) * w + lg_sin[5]) * w + lg_sin[7];
        const extended Q = ((lg_sin[0] * w + lg_sin[2]) * w + lg_sin[4]) * w + lg_sin[6];
        T = H - (w * Q + z * P);
    } else {
        const extended L = own_log(A);
        const extended V = ((x + -0.5L) * L + -lg_half_log2pi) - x;
        T = V - z * horner(lg_sin, z);
    }
    return T - own_log(distance);
}

} // namespace

ORVANE_SLOW_PATH(__orvane_slgamma_cout_rare, const float* x, float* result) {
    constexpr float largest = f32(0x7C44AF8D);
    int status;
    if (no_log_gamma(*x, largest, result, &status)) return status;
    *result = *x > 0 ? log_gamma_of_positive(*x) : log_gamma_of_negative(*x);
    return ordinary;
}
ORVANE_SLOW_PATH(__orvane_slgammar_cout_rare, const float* x, float* result, int* sign) {
    *sign = sign_of_gamma(*x);
    return __orvane_slgamma_cout_rare(x, result);
}

} // namespace orvane
