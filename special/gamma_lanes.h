// What the gamma kernels share: rows of polynomials, and float lanes that are computed in double.
//
// A vector path computes more digits than its result has, and can differ from the slow path by a known margin before
// the last rounding. Where both ends of that margin round to one number, this is the slow path's result; where they
// do not, the lane is in doubt and the slow path decides it.
#pragma once

#include "frame/_orvane_template.h"
#include "frame/rare.h"

namespace orvane {

struct row_of_eight {
    double c[8];
};

// Row polynomials by Horner's scheme in fused steps; coefficients leave memory two at a time. `offset` is in bytes.
template <int N, int W, class I, class V>
ORVANE_INLINE V polynomial_at(const table<row_of_eight, N>& rows, lanes<I, W> offset, V u) {
    const row_addresses<W> row(&rows, offset);
    auto [c6, c7] = row.template pair<double>(6);
    V p = fma(c7, u, c6);
    each<3>([&](auto i) ORVANE_LAMBDA {
        auto [even, odd] = row.template pair<double>(4 - 2 * i);
        p = fma(fma(p, u, odd), u, even);
    });
    return p;
}

// Lane by lane through double: f(half) at W = 8, f(all) at the lower widths.
template <int W, class F> ORVANE_INLINE lanes<float, W> narrowed(F f, lanes<double, W> v) {
    return convert<float>(f(v));
}
template <class F> ORVANE_INLINE lanes<float, 8> narrowed(F f, two_registers<double, 8> v) {
    auto low = convert<float>(f(v.low));
    return join(low, convert<float>(f(v.high)));
}

// ---- double: the value h + l, h rounded and l what it lacks.

template <int W> struct hi_lo_lanes { lanes<double, W> h, l; };

// A row in double: c0 to c2 as hi + lo, c3 to c11, and c12 or the row's margin.
struct row_of_sixteen {
    double c[16];
};

// One step of Horner's scheme: u (T + l) + a + b with what the fused step's rounding leaves.
template <int W> ORVANE_INLINE hi_lo_lanes<W> exact_step(lanes<double, W> u, hi_lo_lanes<W> T, lanes<double, W> a,
                                                         lanes<double, W> b) {
    auto h = fma(u, T.h, a);
    return {h, fma(u, T.l, fma(u, T.h, a - h) + b)};
}
// A row's polynomial; `last` gets its last column where that is no coefficient.
template <bool HasMargin, int W> ORVANE_INLINE hi_lo_lanes<W>
polynomial_at(const row_addresses<W>& row, lanes<double, W> u, std::type_identity_t<lanes<double, W>>* last) {
    auto [even, odd] = row.template pair<double>(14);
    auto T = even;
    if constexpr (HasMargin) *last = odd;
    else T = fma(odd, u, even);
    each<4>([&](auto i) ORVANE_LAMBDA {
        auto [even, odd] = row.template pair<double>(12 - 2 * i);
        T = fma(fma(T, u, odd), u, even);
    });
    auto [a2, b2] = row.template pair<double>(4);
    auto h = fma(u, T, a2);
    hi_lo_lanes<W> v = {h, fma(u, T, a2 - h) + b2};
    auto [a1, b1] = row.template pair<double>(2);
    v = exact_step(u, v, a1, b1);
    auto [a0, b0] = row.template pair<double>(0);
    return exact_step(u, v, a0, b0);
}

// (h + l) f
template <int W> ORVANE_INLINE hi_lo_lanes<W> times(hi_lo_lanes<W> g, lanes<double, W> f) {
    auto p = g.h * f;
    return {p, fma(g.l, f, fma(g.h, f, -p))};
}
// a + b, exactly.
template <int W> ORVANE_INLINE hi_lo_lanes<W> exact_sum(lanes<double, W> a, lanes<double, W> b) {
    auto s = a + b, t = s - a;
    return {s, (a - (s - t)) + (b - t)};
}

// Sixteen slots of one coefficient each: sin(pi r) / (pi r) in z = r^2, the first three as hi + lo, up to z^11.
template <class Row, int W> ORVANE_INLINE hi_lo_lanes<W> sine_of(const Row& c, lanes<double, W> r) {
    using V = lanes<double, W>;
    auto z = r * r, z_low = fma(r, r, -z);
    auto entry = [&](int i) ORVANE_LAMBDA { return V(c[i]); };
    auto T = entry(14);
    each<8>([&](auto i) ORVANE_LAMBDA { T = fma(T, z, entry(13 - i)); });
    auto h = fma(z, T, entry(4));
    hi_lo_lanes<W> v2 = {h, fma(z, T, entry(4) - h) + entry(5)};
    auto v1 = exact_step(z, v2, entry(2), entry(3));
    auto slope = fma(z, fma(z, T, v2.h), v1.h); // to a few bits
    auto v0 = exact_step(z, v1, V(1.0), entry(1));
    return times(hi_lo_lanes<W>{v0.h, fma(slope, z_low, v0.l)}, r);
}

// Both ends of the margin E, of either sign, around h + l, rounded: the result where they agree.
template <int W> ORVANE_INLINE auto rounding_test(hi_lo_lanes<W> v, lanes<double, W> E) {
    auto y = v.h + (v.l + E);
    return answer{y, y != v.h + (v.l - E)};
}

// Whether every lane is marked.
template <class T, int W> ORVANE_INLINE bool all(lanes<T, W> m) {
    constexpr unsigned live = (1u << W) - 1;
    return (m.signs() & live) == live;
}

// The sign of gamma(x): of its pole at a zero, -1 where the integer below a negative |x| is even, else +1.
template <class T, int W> ORVANE_INLINE auto sign_of_gamma(lanes<T, W> x) {
    using V = lanes<T, W>;
    constexpr T whole = sizeof(T) == 8 ? T(0x1p52) : T(0x1p23);
    auto A = andnot(V(T(-0.0)), x);
    auto F = round_to<downward>(A);
    auto odd = bits(F + V(whole)) << (8 * sizeof(T) - 1);
    auto minus = keep((x < V(T(0))) & (F != A) & (A < V(whole)), ~signed_bits(as<T>(odd))) |
                 keep(x == V(T(0)), signed_bits(x));
    return minus;
}

// What needs no formula of log gamma: NaN, infinities, zeros, negative integers and overflow.
template <class T, int W, class A> ORVANE_INLINE A settle_log_gamma(const auto& c, lanes<T, W> x, A a) {
    using V = lanes<T, W>;
    auto no_number = not_less(andnot(V(T(-0.0)), x), V(c.inf));
    auto is_pole = (x <= V(T(0))) & (round_to<downward>(x) == x);
    auto infinite = is_pole | (x > c.overflow_bound);
    auto n = select(no_number, x, V(T(1))); // a product of others would take its time where it underflows
    a.first = select(no_number, n * n, select(infinite, c.inf, a.first));
    a.special = andnot(no_number | infinite, a.special);
    return a;
}
// What needs no formula of gamma: NaN, poles, overflow and underflow, whose zeros have gamma's sign.
template <class T, int W, class Answer> ORVANE_INLINE Answer settle_gamma(const auto& c, lanes<T, W> x, Answer a) {
    using V = lanes<T, W>;
    constexpr T whole = sizeof(T) == 8 ? T(0x1p52) : T(0x1p23);
    auto A = andnot(V(T(-0.0)), x);
    auto F = round_to<downward>(A);
    auto is_pole = (x < V(T(0))) & (F == A);
    auto over = (x >= V(c.overflow_bound)) | (A <= V(c.pole_side));
    auto under = (x < V(c.zero_bound)) & ~is_pole;
    auto odd = as<T>(bits(F + V(whole)) << (8 * sizeof(T) - 1));
    auto y = select(over, V(c.inf) | (x & V(T(-0.0))), a.first);
    y = select(under, andnot(odd, V(T(-0.0))), y);
    y = select(is_pole, c.quiet_nan, y);
    a.first = select(is_nan(x), x + x, y);
    a.special = andnot(over | under | is_pole | is_nan(x), a.special);
    return a;
}

} // namespace orvane
