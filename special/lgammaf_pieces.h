// log gamma in float: the polynomials of the slow path, for any type that holds their values. The vector path's rows
// are fitted to these very polynomials.
#pragma once

#include "frame/rare.h"

namespace orvane::lgammaf_pieces {

// Each binade [2^(j+2), 2^(j+3)) in u from 0 to 1, in even and odd powers, by the coefficients of lgammaf_C5_0.inc
// and lgammaf_C5.inc to 2^-32.1 relative.
constexpr float _A[] = {0x1p2f, 0x1p3f, 0x1p4f, 0x1p5f, 0x1p6f, 0x1p7f, 0x1p8f, 0x1p9f, 0x1p10f, 0x1p11f, 0x1p12f};
constexpr float _B[] = {0x1p-2f, 0x1p-3f, 0x1p-4f,  0x1p-5f,  0x1p-6f, 0x1p-7f,
                        0x1p-8f, 0x1p-9f, 0x1p-10f, 0x1p-11f, 0x1p-12f};
constexpr double _C5[11][8] = {
#include "special/tables/lgammaf_C5.inc"
};
constexpr double _C5_0[11][3] = {
#include "special/tables/lgammaf_C5_0.inc"
};
template <class V> V binade(int j, V x) {
    const auto& C = _C5[j];
    const auto& D = _C5_0[j];
    const V u = (x - _A[j]) * _B[j];
    const V v = u * u;
    const V P = (((C[1] * v + C[5]) * v + D[1]) * v + C[7]) * v + C[3];
    const V Q = (((C[0] * v + C[4]) * v + D[0]) * v + C[6]) * v + C[2];
    return (v * Q + D[2]) + u * P;
}

// c + odd and even powers of v, from a lower bound of x up; v = x + shift.
template <int N> struct split_polynomial {
    double from, shift, a[N], b[N], c;
    template <class V> V at(V x) const {
        const V v = x + shift, w = v * v;
        const V P = horner(w, a);
        const V Q = horner(w, b);
        return (w * Q + c) + v * P;
    }
};
constexpr split_polynomial<4> lg_q[] = {
    // Fit on 1.75 <= x <= 2, v = x + shift, w = v^2: c + w*horner(w, b) + v*horner(w, a) = lgamma(x)
    // to 2^-44.5 absolute
    {.from = 1.75,
     .shift = 0.0,
     .a = {f64(0xBF8CBC9587EEA5A3), f64(0xBFDFA67E65E89B29), f64(0xC00851BC418B8A25), f64(0xC013284CE7CB0C39)},
     .b = {f64(0x3F4A9222032EB39A), f64(0x3FBBC992783E8C5B), f64(0x3FF795400783BE49), f64(0x4012B408F02FAF88)},
     .c = f64(0x4000A0CB38D6CF0A)},
    // Fit on 1.5 <= x <= 1.75, v = x + shift, w = v^2: c + w*horner(w, b) + v*horner(w, a) = lgamma(x)
    // to 2^-44.4 absolute
    {.from = 1.5,
     .shift = 0.0,
     .a = {f64(0xBFA44EAC9BFA7FDE), f64(0xBFF084AF95883BA5), f64(0xC012A5CFE00A2522), f64(0xC015F83DB73B57B7)},
     .b = {f64(0x3F65D5A7EB31047F), f64(0x3FD0E1583AB00E08), f64(0x40051FEFE7A663D8), f64(0x40185982877AE0A2)},
     .c = f64(0x4001DB08F9DFA0CC)},
    // Fit on 1.25 <= x <= 1.5, v = x + shift, w = v^2: c + w*horner(w, b) + v*horner(w, a) = lgamma(x)
    // to 2^-40.6 absolute
    {.from = 1.25,
     .shift = f64(0xBFF762D86356BE3F),
     .a = {f64(0xBF831BBBD61313B7), f64(0xBFA0C90C9C223044), f64(0xBFC2E427A53EB830), f64(0x3D890B3DAEBC1DFC)},
     .b = {f64(0x3F838E0D35A6171A), f64(0x3F9285DDDC20D6C3), f64(0x3FB08B40196425D0), f64(0x3FDEF72BC8F5287C)},
     .c = f64(0xBFBF19B9BCC38A42)},
    // Fit on 1 <= x <= 1.25, v = x + shift, w = v^2: c + w*horner(w, b) + v*horner(w, a) = lgamma(x)
    // to 2^-37.5 absolute
    {.from = 1.0,
     .shift = 0.0,
     .a = {f64(0xBFE22092FC0EE4DC), f64(0xC01B63D2FD8B4838), f64(0xC02C6004CA309876), f64(0xC01F4732F1F3E423)},
     .b = {f64(0x3FAC8CDFBC14D340), f64(0x40048D48C3A02F10), f64(0x4027CB007D9BF558), f64(0x40288FCC5B1371AE)},
     .c = f64(0x4004F39421765550)},
};
// Fit on 2 <= x <= 4, w = x^2: c + w*horner(w, b) + x*horner(w, a) = lgamma(x)/(x - 2) to 2^-30.8 relative
constexpr split_polynomial<5> lg_p24 = {
    .from = 2.0,
    .shift = 0.0,
    .a = {f64(0x3F035F2D1833BF4C), f64(0x3F7437F2FA1436C6), f64(0x3FBF7422445C9460), f64(0x3FE9F107FEE8BD29),
          f64(0x3FFC9D5D5B6CDEFF)},
    .b = {f64(0xBEB2CC7A38B9355F), f64(0xBF421676F9CB46C7), f64(0xBF9E1C289FB224AB), f64(0xBFD7A7041DE592FE),
          f64(0xBFF51BAA7FD27785)},
    .c = f64(0xBFF01E76D66F8D8A)};

// log gamma(y) for y in [1, 2] and from 4 to 8192, by the piece that `where` lies in.
template <class V> V log_gamma(double where, V y) {
    if (where >= 4) return binade(int(bits(where) >> 52) - 0x401, y);
    const auto* piece = lg_q;
    while (where < piece->from)
        piece++;
    return piece->at(y);
}
template <class V> V log_gamma_from_2_to_4(V y) { return (y + -2.0L) * lg_p24.at(y); }

// Fit on |r| <= 1/2: r^2*horner(r^2, lg_sin) = log(sin(pi*r)/(pi*r)) to 2^-33.3 relative
constexpr double lg_sin[] = {f64(0xBFD58731A486E820), f64(0xBFA4452CC28E15A9), f64(0xBFC86A0D5252E778),
                             f64(0xBFC93E08C9EE284B), f64(0xBFD013F6E1B86C4F), f64(0xBFD5B3F19F7A341F),
                             f64(0xBFE15132555C9EDD), f64(0xBFFA51A662480E35)};

} // namespace orvane::lgammaf_pieces
