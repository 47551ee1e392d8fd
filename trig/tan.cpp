// tan and tanf: up to a limit by multiples of pi/2 and a quotient of polynomials, beyond it by the reduction to a
// fraction of a turn and a table of rows.
#include "trig/reduction.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_stan_cout_rare, const float* x, float* result);
ORVANE_SLOW_PATH(__orvane_dtan_cout_rare, const double* x, double* result);

// Row j of tan around a = pi j/N: with b = pi/2 - a the polynomial in R of tan(a + R) - pole / (b - R), where pole is
// 1 in the half of the rows around pi/2, else 0. The first two coefficients are in two parts, c1_head a power of two.
// Fits by rows on |R| <= pi/(2 N): tanf_rows.inc to 2^-30.8 relative, tan_rows.inc to 2^-60.9 relative.
template <class T> struct tan_row;
template <> struct tan_row<float> { float pb_hi, pb_lo, pole, c0_hi, c0_lo, c1_head, c1_tail, c2, c3, c4; };
template <> struct tan_row<double> {
    double pb_hi, pb_lo, pole, c0_hi, c0_lo, c1_head, c1_tail, c2, c3, c4, c5, c6, c7;
};
inline constexpr table<tan_row<float>, 128> tan_rows_f32 = {{
#include "trig/tables/tanf_rows.inc"
}};
inline constexpr table<tan_row<double>, 256> tan_rows_f64 = {{
#include "trig/tables/tan_rows.inc"
}};

struct stan_block {
    GAP(0, 12)
    SLOT(float, 13, two_over_pi, 0x3F22F983) // 0.636619747, 2 / pi
    GAP(14, 14)
    SLOT(float, 15, abs_mask, 0x7FFFFFFF)
    GAP(16, 16)
    SLOT(float, 17, shifter, 0x4B400000)     // 1.5 * 2^23
    SLOT(float, 18, one, 0x3F800000)         // 1.0
    SLOT(float, 19, large_limit, 0x46010000) // 8256.0
    GAP(20, 23)
    SLOT(float, 24, pi_1, 0x3FC90FDB) // 1.57079637, pi / 2
    SLOT(float, 25, pi_2, 0xB33BBD2E) // -4.37113883e-08, second piece
    SLOT(float, 26, pi_3, 0xA6F72CED) // -1.71512451e-15, third piece
    // Fit on |r| <= pi/4: r*(p0 + p1*r^2)/(q0 + q1*r^2 + q2*r^4) = tan(r) to 2^-25.1 relative
    SLOT(float, 27, p0, 0x3F7FFFFC) // 0.999999762, numerator, r
    SLOT(float, 28, p1, 0xBDC433B4) // -0.0958017409, numerator, r^3
    SLOT(float, 29, q0, 0x3F7FFFFC) // 0.999999762, denominator, constant term
    SLOT(float, 30, q1, 0xBEDBB7AB) // -0.42913565, denominator, r^2
    SLOT(float, 31, q2, 0x3C1F336B) // 0.00971684884, denominator, r^4
    GAP(32, 32)
    TABLE(33, rows, tan_rows_f32)
};
struct stan_rm_block {
    GAP(0, 12)
    SLOT(float, 13, two_over_pi, 0x3F22F983) // 0.636619747, 2 / pi
    GAP(14, 14)
    SLOT(float, 15, abs_mask, 0x7FFFFFFF)
    GAP(16, 16)
    SLOT(float, 17, shifter, 0x4B400000)     // 1.5 * 2^23
    SLOT(float, 18, one, 0x3F800000)         // 1.0
    SLOT(float, 19, large_limit, 0x46010000) // 8256.0
    GAP(20, 22)
    SLOT(float, 23, pi_1, 0x3FC90FDB) // 1.57079637, pi / 2
    SLOT(float, 24, pi_2, 0xB33BBD2E) // -4.37113883e-08, second piece
    // Fit on |r| <= pi/4: r*(p0 + p1*r^2)/(q0 + q1*r^2 + q2*r^4) = tan(r) to 2^-25.1 relative
    SLOT(float, 25, p0, 0x3F7FFFFC)  // 0.999999762, numerator, r
    SLOT(float, 26, p1, 0xBDC433B4)  // -0.0958017409, numerator, r^3
    SLOT(float, 27, q0, 0x3F7FFFFC)  // 0.999999762, denominator, constant term
    SLOT(float, 28, q1, 0xBEDBB7AB)  // -0.42913565, denominator, r^2
    SLOT(float, 29, q2, 0x3C1F336B)  // 0.00971684884, denominator, r^4
    SLOT(float, 30, two, 0x40000000) // 2.0
    TABLE(31, rows, tan_rows_f32)
};
struct dtan_block {
    GAP(0, 15)
    SLOT(double, 16, abs_mask, 0x7FFFFFFFFFFFFFFF)
    SLOT(double, 17, exp_mask, 0x7FF0000000000000)
    SLOT(double, 18, shifter, 0x4338000000000000) // 1.5 * 2^52
    GAP(19, 23)
    TABLE(24, rows, tan_rows_f64)
    SLOT(double, 440, large_limit, 0x40FF400000000000) // 128000.0
    GAP(441, 441)
    SLOT(double, 442, two_over_pi, 0x3FE45F306DC9C883) // 0.63661977236758138, 2 / pi
    GAP(443, 445)
    SLOT(double, 446, pi_1, 0x3FF921FB54442D18) // 1.5707963267948966, pi / 2
    SLOT(double, 447, pi_2, 0x3C91A62633145C06) // 6.1232339957367648e-17, second piece
    SLOT(double, 448, pi_3, 0x394C1CD129024E09) // 1.082856673921914e-32, third piece
    GAP(449, 449)
    // Fit on |r| <= pi/4: (r + p1*r^3 + p2*r^5 + p3*r^7)/(q0 + q1*r^2 + q2*r^4 + q3*r^6) = tan(r)
    // to 2^-55.0 relative
    SLOT(double, 450, p1, 0xBFC06B97BE36D389) // -0.12828347003747023, numerator
    SLOT(double, 451, p2, 0x3F66FC6FDCE5D301) // 0.0028059181997214249
    SLOT(double, 452, p3, 0xBEDF637DCE2A3800) // -7.4836345641659391e-06
    SLOT(double, 453, q0, 0x3FF0000000000000) // 1.0, denominator
    SLOT(double, 454, q1, 0xBFDD8B213470BEEE) // -0.46161680337080113
    SLOT(double, 455, q2, 0x3F97E7B68AC28A56) // 0.023344852656587221
    SLOT(double, 456, q3, 0xBF2B525B03BC92A6) // -0.00020844803827304198
};
struct dtan_rm_block {
    GAP(0, 15)
    SLOT(double, 16, abs_mask, 0x7FFFFFFFFFFFFFFF)
    SLOT(double, 17, exp_mask, 0x7FF0000000000000)
    SLOT(double, 18, shifter, 0x4338000000000000) // 1.5 * 2^52
    GAP(19, 23)
    TABLE(24, rows, tan_rows_f64)
    SLOT(double, 440, large_limit, 0x40FF400000000000) // 128000.0
    GAP(441, 441)
    SLOT(double, 442, two_over_pi, 0x3FE45F306DC9C883) // 0.63661977236758138, 2 / pi
    GAP(443, 445)
    SLOT(double, 446, pi_1, 0x3FF921FB54442D18) // 1.5707963267948966, pi / 2
    SLOT(double, 447, pi_2, 0x3C91A62633145C06) // 6.1232339957367648e-17, second piece
    // Fit on |r| <= pi/4: r*(p0 + p1*r^2 + p2*r^4)/(q0 + q1*r^2 + q2*r^4) = tan(r) to 2^-35.4 relative
    SLOT(double, 448, p0, 0x3FF27E949512AA02) // 1.1559034178886809, numerator
    SLOT(double, 449, p1, 0xBFC079FF5BF6A4DF) // -0.12872306814578047, numerator
    SLOT(double, 450, p2, 0x3F545C936ED9193A) // 0.0012427749419586368, numerator
    SLOT(double, 451, q0, 0x3FF27E949510E8DE) // 1.1559034178631502, denominator
    SLOT(double, 452, q1, 0xBFE072E2E400EC37) // -0.51402420551256156, denominator
    SLOT(double, 453, q2, 0x3F92E825CC67D220) // 0.018463698006558116, denominator
};
ORVANE_BLOCK(stan_block, __orvane_stan_data)
ORVANE_BLOCK(stan_rm_block, __orvane_stan_rm_data)
ORVANE_BLOCK_TWIN(__orvane_stan_native_data, __orvane_stan_rm_data)
ORVANE_BLOCK_TWIN(__orvane_stan_half_data, __orvane_stan_rm_data)
ORVANE_BLOCK(dtan_block, __orvane_dtan_data)
ORVANE_BLOCK(dtan_rm_block, __orvane_dtan_rm_data)
ORVANE_BLOCK_TWIN(__orvane_dtan_native_data, __orvane_dtan_rm_data)
ORVANE_BLOCK_TWIN(__orvane_dtan_half_data, __orvane_dtan_rm_data)

// tan(r) = N / D for abs(r) <= pi/4.
template <class T, int W> struct tan_quotient { lanes<T, W> N, D; };
template <int W> ORVANE_INLINE tan_quotient<float, W> quotient_of(const auto& c, lanes<float, W> r) {
    auto r2 = r * r;
    return {r * horner(r2, c.p1, c.p0), horner(r2, c.q2, c.q1, c.q0)};
}
template <int W> ORVANE_INLINE tan_quotient<double, W> quotient_of(const dtan_block& c, lanes<double, W> r) {
    auto r2 = r * r;
    auto P = horner(r2, c.p3, c.p2, c.p1);
    return {fma(r2 * P, r, r), horner(r2, c.q3, c.q2, c.q1, c.q0)};
}
template <int W> ORVANE_INLINE tan_quotient<double, W> quotient_of(const dtan_rm_block& c, lanes<double, W> r) {
    auto r2 = r * r;
    return {r * horner(r2, c.p2, c.p1, c.p0), horner(r2, c.q2, c.q1, c.q0)};
}

// n / d by the division instruction, or in the fast float kernel by the reciprocal estimate and a Newton step.
template <class T, int W> ORVANE_INLINE auto divided(const auto& c, lanes<T, W> n, lanes<T, W> d) {
    if constexpr (requires { c.two; }) {
        auto y = reciprocal_estimate(d);
        y = y * fma(-y, d, c.two);
        return n * y;
    } else return n / d;
}

// tan(x) = tan(r) or -1 / tan(r) with r = abs(x) - n pi/2, by the parity of n, under the sign of x.
template <class T, int W> ORVANE_INLINE lanes<T, W> ordinary_tan(const auto& c, lanes<T, W> x) {
    auto ax = x & c.abs_mask;
    auto t = fma(ax, c.two_over_pi, c.shifter);
    auto n = t - c.shifter;
    auto r = less_multiples_of_pi(c, n, ax);

    auto [N, D] = quotient_of(c, r);
    auto odd = signed_bits(t) << (8 * sizeof(T) - 1);
    auto n_or_d = select(odd, D, N);
    auto v = divided(c, n_or_d, n_or_d ^ (N ^ D));
    return v ^ andnot(lanes<T, W>(c.abs_mask), as<T>(odd) ^ x);
}

// 1 / (b - R) in two parts, y0 of 12 bits and cr, is exact to beyond a float; the sum with the polynomial keeps its
// errors.
template <int W> ORVANE_INLINE lanes<float, W> row_tan(const stan_block& c, const reduced_angle<float, W>& angle) {
    using V = lanes<float, W>;
    const V cut(f32(0xFFFFF000));
    using fields = tan_row<float>;
    auto j = angle.S & lanes<uint32_t, W>(127u);
    const row_addresses<W, 8> row(c.rows.entry, (j << 2) + j);
    auto R = angle.rl + angle.rh;

    auto [pb_hi, pb_lo, pole, c0_hi] = row.four(&fields::pb_hi);
    auto d = pb_hi - R;
    auto dh = d & cut;
    auto dl = ((pb_hi - d) - R) + ((d - dh) + pb_lo);
    auto y0 = reciprocal_estimate(dh) & cut;
    auto e = fma(-y0, dh, c.one);
    auto y1 = fma(e, y0, y0) * fma(e, e, c.one);
    auto u = dl * y1;
    auto v = fma(u, u, V(-(u - e)));
    auto cr = v * y1;

    auto [c0_lo, c1_head, c1_tail, c2] = row.four(&fields::c0_lo);
    auto H = fma(c1_head, R, c0_hi);
    auto L = fma(c1_head, R, c0_hi - H);
    L = fma(pole, cr, L);
    auto P = fma(y0, pole, H);
    auto E = fma(pole, y0, V(-P));
    auto s = ((E + H) + L) + c0_lo;

    auto [c3, c4] = row.pair(&fields::c3);
    auto Q = fma(R * R, fma(c4, R, c3), fma(c2, R, c1_tail));
    return P + fma(Q, R, s);
}
// 1 / (b - R) by the estimate and one step.
template <int W> ORVANE_INLINE lanes<float, W> row_tan(const stan_rm_block& c, const reduced_angle<float, W>& angle) {
    using fields = tan_row<float>;
    auto j = angle.S & lanes<uint32_t, W>(127u);
    const row_addresses<W, 8> row(c.rows.entry, (j << 2) + j);
    auto R = angle.rl + angle.rh;

    auto [c1_tail, c2, c3, c4] = row.four(&fields::c1_tail);
    auto Q = fma(R * R, fma(c4, R, c3), fma(c2, R, c1_tail));
    auto [pole, c0_hi, c0_lo, c1_head] = row.four(&fields::pole);
    auto A = fma(R, Q, fma(c1_head, R, c0_hi));

    auto d = row.entry(&fields::pb_hi) - R;
    auto y = reciprocal_estimate(d);
    auto e = fma(-y, d, c.one);
    auto g = y * pole;
    g = fma(e, g, g);
    return g + A;
}
// 1 / (b - R) from the estimate in float by three terms of its geometric series, twice.
template <int W> ORVANE_INLINE lanes<double, W> row_tan(const auto& c, const reduced_angle<double, W>& angle) {
    using fields = tan_row<double>;
    auto j = angle.S & lanes<uint64_t, W>(uint64_t(255));
    const row_addresses<W, 8> row(c.rows.entry, (j << 3) + (j << 2) + j);
    auto R = angle.rl + angle.rh;

    auto d = row.entry(&fields::pb_hi) - R;
    auto y0 = reciprocal_estimate(d);
    auto e = fma(-y0, d, lanes<double, W>(1.0));
    auto e2 = e * e;
    auto g = fma(e, e, e);
    auto h = fma(e2, y0, y0);
    auto y = fma(g, h, y0);
    auto [pole, c0_hi] = row.pair(&fields::pole);
    auto [c1_head, c1_tail] = row.pair(&fields::c1_head);
    auto A = fma(pole, y, fma(c1_head, R, c0_hi));

    auto [c2, c3] = row.pair(&fields::c2);
    auto [c4, c5] = row.pair(&fields::c4);
    auto [c6, c7] = row.pair(&fields::c6);
    auto p = fma(c2, R, c1_tail);
    auto q = fma(c4, R, c3);
    auto s = fma(c6, R, c5);
    auto R2 = R * R;
    s = fma(R2, c7, s);
    q = fma(q, R2, p);
    auto R4 = R2 * R2;
    q = fma(R4, s, q);
    return fma(q, R, A);
}
template <int W> ORVANE_INLINE lanes<float, W> large_tan(const auto& c, lanes<float, W> x) {
    auto ax = x & c.abs_mask;
    return row_tan(c, reduce_large_f32<not_negative>(ax)) ^ andnot(lanes<float, W>(c.abs_mask), x);
}
template <int W> ORVANE_INLINE lanes<double, W> large_tan(const auto& c, lanes<double, W> x) {
    return row_tan(c, reduce_large_f64<of_any_sign>(x));
}

template <class T, const auto& Block, auto& Rare> struct tan_kernel : kernel<one_argument<T>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        auto y = ordinary_tan(c, x);
        return answer{y, is_large(c, x & c.abs_mask)};
    }
    template <int W> static ORVANE_INLINE auto large_path(const auto& c, lanes<T, W> x, auto ordinary) {
        return answer{select(is_large(c, x & c.abs_mask), large_tan(c, x), ordinary.first), not_finite(c, x)};
    }
};

using stan_kernel = tan_kernel<float, __orvane_stan_data, __orvane_stan_cout_rare>;
using stan_rm_kernel = tan_kernel<float, __orvane_stan_rm_data, __orvane_stan_cout_rare>;
using dtan_kernel = tan_kernel<double, __orvane_dtan_data, __orvane_dtan_cout_rare>;
using dtan_rm_kernel = tan_kernel<double, __orvane_dtan_rm_data, __orvane_dtan_cout_rare>;
// Largest known error of tanf: 3.651 ulp at 0x3FA8A4E8, with one processor's estimates
// Largest known error of tanf, large arguments: 1.463 ulp at 0x46C30F9E, with one processor's estimates
ORVANE_EXPORT(tanf, , stan_kernel)
// Largest known error of tanf_rm: 984.7 ulp at 0x437CE5F1, with one processor's estimates
// Largest known error of tanf_rm, large arguments: 4.006 ulp at 0xCE81825C, with one processor's estimates
ORVANE_EXPORT(tanf, _rm, stan_rm_kernel)
ORVANE_TWIN(tanf, _native, tanf, _rm)
ORVANE_TWIN(tanf, _half, tanf, _rm)
// Largest known error of tan: 3.375 ulp at 0xC0ADA48B78337AF1, with one processor's estimates
// Largest known error of tan, large arguments: 3.344 ulp at 0xC1DA7F2E0A5A4FD1, with one processor's estimates
ORVANE_EXPORT(tan, , dtan_kernel)
// Largest known error of tan_rm: 2.209e-11 relative at 0xBFEA4620A266A91D, with one processor's estimates
// Largest known error of tan_rm, large arguments: 3.228 ulp at 0x549C30EFC78656A9, with one processor's estimates
ORVANE_EXPORT(tan, _rm, dtan_rm_kernel)
ORVANE_TWIN(tan, _native, tan, _rm)
ORVANE_TWIN(tan, _half, tan, _rm)

} // namespace orvane
