// Steps that sine and cosine share: the short path's, and the sine of a large argument (with rows a quarter of a turn
// on: the cosine) from its reduced angle.
#pragma once

#include "trig/angle_tables.h"
#include "trig/reduction.h"

namespace orvane {

// (sin(r) / r - 1) / r^2 in r^2, of degree 6 or 3.
template <class V> ORVANE_INLINE V sine_polynomial(const auto& c, V r2) {
    if constexpr (requires { c.s7; }) return horner(r2, c.s7, c.s6, c.s5, c.s4, c.s3, c.s2, c.s1);
    else return horner(r2, c.s4, c.s3, c.s2, c.s1);
}

// sin(2 pi j/256 + rh + rl), c the block with the row table.
template <int W> ORVANE_INLINE lanes<float, W> eval_large_f32(const auto& c, const reduced_angle<float, W>& angle) {
    auto [S, r, rl] = angle;
    const row_addresses<W> row(c.rows.entry, (S & lanes<uint32_t, W>(255u)) << 4);
    auto [ct, sh, sl, ch] = row.four(&angle_row<float>::cos_tail);

    auto cosine = ch + ct;
    auto v = fma(-sh, r, cosine);
    auto w = fma(rl, v, sl);
    auto r2 = r * r;
    auto pc = fma(r2, c.lg_c2, c.lg_c1) * r2;
    w = fma(pc, sh, w);
    // h2 + e = sin_hi + r cos, the product's roundings kept in e.
    auto h1 = fma(r, ch, sh);
    auto e1 = fma(r, ch, sh - h1);
    auto h2 = fma(ct, r, h1);
    auto e2 = fma(ct, r, h1 - h2);
    auto e = e2 + e1;
    auto ps = (r2 * fma(r2, c.lg_s2, c.lg_s1)) * r;
    auto u = fma(ps, v, e);
    return h2 + (u + w);
}

// sin(2 pi j/512 + rh + rl).
template <int W> ORVANE_INLINE lanes<double, W> eval_large_f64(const auto& c, const reduced_angle<double, W>& angle) {
    auto [S, r, rl] = angle;
    const row_addresses<W> row(c.rows.entry, (S & lanes<uint64_t, W>(uint64_t(511))) << 5);
    auto [ct, ch] = row.pair(&angle_row<double>::cos_tail);
    auto [sh, sl] = row.pair(&angle_row<double>::sin_hi);

    auto h1 = fma(r, ch, sh);
    auto h2 = fma(ct, r, h1);
    auto e1 = fma(r, ch, sh - h1);
    auto e2 = fma(ct, r, h1 - h2);
    auto e = e1 + e2;
    auto r2 = r * r;
    auto ps = (r2 * fma(c.ha_s2, r2, c.ha_s1)) * r;
    auto cosine = ch + ct;
    auto u = fma(ps, cosine, e);
    auto pc = r2 * fma(fma(c.ha_c3, r2, c.ha_c2), r2, c.ha_c1);
    u = fma(pc, sh, u);
    auto v = fma(-sh, r, cosine);
    auto w = fma(rl, v, sl);
    return h2 + (u + w);
}

} // namespace orvane
