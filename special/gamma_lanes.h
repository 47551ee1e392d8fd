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

} // namespace orvane
