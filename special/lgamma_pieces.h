// log gamma in double: the polynomials of the slow path on [0.875, 512), for any type that holds extended values. The
// vector path's rows are fitted to these very polynomials.
#pragma once

#include "special/x87.h"

namespace orvane::lgamma_pieces {

// An extended value as the exact sum of two doubles, which loads in a quarter of the time that its 80 bits take: the
// products below wait for their coefficients.
struct stored_extended {
    double hi, lo;
    consteval stored_extended(extended v = 0) : hi(double(v)), lo(double(v - hi)) {}
    operator extended() const { return extended(hi) + lo; }
};

// A product of monic quadratics in u without their scale C[22]: (constant, linear) coefficients, v = u^2.
template <class V> [[gnu::always_inline]] inline V product_of_quadratics(const stored_extended* C, V u, V v) {
    V G = (extended(C[1]) * u + v) + extended(C[0]);
#pragma GCC unroll 10
    for (int i = 1; i <= 10; i++)
        G = G * ((extended(C[2 * i + 1]) * u + v) + extended(C[2 * i]));
    return G;
}

// Each binade [2^(j+2), 2^(j+3)) in u from 0 to 1, as a product: lgamma_C5_row_0.inc to 2^-62.2 relative, and
// lgamma_C5_rows_1_6.inc to 2^-61.6 relative.
constexpr double _A[] = {0x1p2, 0x1p3, 0x1p4, 0x1p5, 0x1p6, 0x1p7, 0x1p8};
constexpr double _B[] = {0x1p-2, 0x1p-3, 0x1p-4, 0x1p-5, 0x1p-6, 0x1p-7, 0x1p-8};
constexpr stored_extended _C5[7][24] = {
#include "special/tables/lgamma_C5_row_0.inc"
#include "special/tables/lgamma_C5_rows_1_6.inc"
};
template <class V> V binade(int j, V x) {
    const V u = (x - _A[j]) * _B[j];
    return product_of_quadratics(_C5[j], u, V(u * u)) * extended(_C5[j][22]);
}

// Fit on 2.25 <= x <= 4: quadratics(x, ld_f24) = lgamma(x)/(x - 2) to 2^-61.7 relative
constexpr stored_extended ld_f24[] = {
    0xD888B6CF34159B54p-61L, -0xF888E8D7892718A2p-61L, 0xBCB79C8329FD9F44p-64L,  0xF62F273BA12A4639p-65L,
    0xCB8896FAD69C455Dp-62L, -0xA93AC50A37EC8D38p-66L, 0xE510A424639EBF5Ep-61L,  -0xB4CC43D2C161E057p-63L,
    0xC65ED41B097486B3p-60L, -0xC6AC672F0C1392C7p-62L, 0x943AF77763601441p-59L,  -0xA292B9AE3276942Ep-61L,
    0xC8A93F9ECB06E891p-59L, -0xE554E4CCCA6C7B7Bp-61L, 0xFC2E5A4AD33DE19Dp-59L,  -0x92F0F55FBC87F860p-60L,
    0x9526B75B38670119p-58L, -0xAF60D0112843F6C1p-60L, 0xA7675879D68B587Ep-58L,  -0xC5956500FA3D92E7p-60L,
    0xB31DFA672D7FB8C0p-58L, -0xD3B22CCBD8587750p-60L, -0x83A27775D86F9A81p-103L};
template <class V> V from_2_25_to_4(V x) {
    return (x + -2) * (product_of_quadratics(ld_f24, x, V(x * x)) * extended(ld_f24[22]));
}

// Odd and even powers of u = x + shift, the first six coefficients of each in double.
struct series {
    extended shift;
    double p[6];
    extended pe[3];
    double q[6];
    extended qe[2];
    template <class V> V odd(V u, V v) const { return u * horner_from(v, horner(v, p), pe); }
    template <class V> V even(V v) const { return v * horner_from(v, horner(v, q), qe); }
};
constexpr extended ld_c146 = -0xF8CDCDE61C520E0Fp-67L;
// Fit on 1.75 <= x <= 2.25, u = x + shift, v = u^2: u*(v^3*horner(v, p) + horner(v, pe)) +
// v*(v^2*horner(v, q) + horner(v, qe)) = lgamma(x) to 2^-68.1 absolute
constexpr series ld_s200 = {.shift = -2,
                            .p = {f64(0xBEA01D7AFA5D8F52), f64(0xBEC112CD07CFC31A), f64(0xBEE3CBEDB4C918AA),
                                  f64(0xBF078DE5618D8C9F), f64(0xBF2D3FD4C7F68563), f64(0xBF538AC5C2BF540D)},
                            .pe = {-0xF2027E10C7B051ECp-71L, -0x89F000D2ABB03401p-67L, 0xD8773039049E70B6p-65L},
                            .q = {f64(0x3EB1010986E60253), f64(0x3ED2528A428D30E1), f64(0x3EF580F6D9D0F72D),
                                  f64(0x3F1A127AD811A53D), f64(0x3F40B36AF884AE9A), f64(0x3F67ADD6EADB5718)},
                            .qe = {0xA8991563EC243383p-69L, 0xA51A6625307D3230p-65L}};
// Fit on 1.25 <= x <= 1.75, u = x + shift, v = u^2: ld_c146 + u*(v^3*horner(v, p) + horner(v, pe)) +
// v*(v^2*horner(v, q) + horner(v, qe)) = lgamma(x) to 2^-65.0 absolute
constexpr series ld_s146 = {.shift = -0xBB16C31AB5F1FC00p-63L,
                            .p = {f64(0xBF12680486396DE6), f64(0xBF2E098A8A2332A8), f64(0xBF422633DA3A1496),
                                  f64(0xBF56F9849D3BC6CC), f64(0xBF6E2F1A1F804B5D), f64(0xBF851F9F9516A98F)},
                            .pe = {-0x864D46FA895985C1p-68L, -0x97213C6E35E12043p-66L, 0x8A8A42A401D979B7p-119L},
                            .q = {f64(0x3F23C51FC332CD9D), f64(0x3F370E61B73B205C), f64(0x3F4CC70680768857),
                                  f64(0x3F6283126F58D7F4), f64(0x3F78FCE02A032428), f64(0x3F9266E797A1433F)},
                            .qe = {0x845A14A6A81B0638p-67L, 0xF7B95E4771C55C99p-65L}};
// Fit on 0.875 <= x <= 1.25, u = x + shift, v = u^2: u*(v^3*horner(v, p) + horner(v, pe)) +
// v*(v^2*horner(v, q) + horner(v, qe)) = lgamma(x) to 2^-64.3 absolute
constexpr series ld_s100 = {.shift = -1,
                            .p = {f64(0xBF9A04F7E40C8498), f64(0xBFB10C251723B123), f64(0xBFB3B63609CA0CBD),
                                  f64(0xBFB748A3CFCE4717), f64(0xBFBC806766F48C41), f64(0xBFC2703A1D85497E)},
                            .pe = {-0xD45CE0BD54BE3D67p-66L, -0xCD26AADF559676D0p-65L, -0x93C467E37DB0C7A7p-64L},
                            .q = {f64(0x3FAB79D8D9380F03), f64(0x3FB2669DAD69A12D), f64(0x3FB5564EA1675539),
                                  f64(0x3FB9A01DEE29966A), f64(0x3FC010B36CDA773A), f64(0x3FC5B40CB0FD353C)},
                            .qe = {0x8A8991563ECBBA5Dp-65L, 0xD28D3312983E9844p-64L}};
template <class V> V at(const series& s, V x) {
    const V u = x + s.shift, v = u * u;
    return s.odd(u, v) + s.even(v);
}
template <class V> V around_the_minimum(V x) {
    const V u = x + ld_s146.shift, v = u * u;
    return (ld_s146.even(v) + ld_c146) + ld_s146.odd(u, v);
}

// log gamma(y) for y from 0.875 to 512, by the piece that `where` lies in.
template <class V> V log_gamma(double where, V y) {
    if (where >= 4) return binade(int(bits(where) >> 52) - 0x401, y);
    if (where >= 2.25) return from_2_25_to_4(y);
    if (where >= 1.75) return at(ld_s200, y);
    if (where >= 1.25) return around_the_minimum(y);
    return at(ld_s100, y);
}

// How far the vector path can be from the slow path: relative to the value from 512 on and, below 1/8, to the terms'
// magnitudes; and at negative arguments an absolute part more. fit-gamma proves both.
constexpr double term_margin = 1.25 * 0x1p-61, reflection_margin = 0x1p-60;

} // namespace orvane::lgamma_pieces
