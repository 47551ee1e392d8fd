// tgamma, the gamma function, in pairs of doubles.
//
// Rows of eighths give gamma on [1, 3) and on the first unit of each eight from 8 on; up to seven factors lead from
// there to x, and below 1 gamma(1 + x) is divided by x. Behind a branch negative arguments by reflection, gamma(x) =
// -pi / (sin(pi x) A gamma(A)), A = -x. Rows and sine hold the slow path's polynomials.
#include "special/gamma_lanes.h"
#include "special/tgamma_pieces.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dtgamma_cout_rare, const double* x, double* result);

// gamma on eighths of [1, 2), [8, 9), [16, 17) ... [168, 169), and [2, 3): in powers of x less the eighth's lower end
// on [1, 2), less its middle elsewhere.
inline constexpr table<row_of_sixteen, 184> tgamma_eighths = {{
#include "special/tables/tgamma_eighths.inc"
}};
// How far the slow path can be from each row, relative.
inline constexpr table<double, 184> tgamma_margins = {{
#include "special/tables/tgamma_margins.inc"
}};
// sin(pi r) / (pi r) in r^2.
inline constexpr table<row_of_sixteen, 1> tgamma_sine = {{
#include "special/tables/tgamma_sine.inc"
}};

struct dtgamma_block {
    using slow = tgamma_constants<double>;
    TABLE(0, eighths, tgamma_eighths)
    TABLE(368, sine, tgamma_sine)
    SLOT(double, 370, smallest, 0x0170000000000000) // 2^-1000
    SLOT(double, 371, overflow_bound, bits(slow::over))
    SLOT(double, 372, one, 0x3FF0000000000000)
    SLOT(double, 373, two, 0x4000000000000000)
    SLOT(double, 374, eight, 0x4020000000000000)
    SLOT(double, 375, eighth, 0x3FC0000000000000)
    SLOT(double, 376, sixteenth, 0x3FB0000000000000)
    SLOT(double, 377, two52, 0x4330000000000000)
    SLOT(double, 378, two52_and_176, 0x43300000000000B0) // to the rows of [2, 3)
    SLOT(uint64_t, 379, row_mask, 255)
    SLOT(double, 380, factor_margin, 0x3BF0000000000000) // 2^-64: the slow path rounds once more for each factor
    GAP(381, 381)
    // Behind the branch.
    SLOT(double, 382, abs_mask, 0x7FFFFFFFFFFFFFFF)
    SLOT(double, 383, far, 0x4065000000000000) // 168
    SLOT(double, 384, half, 0x3FE0000000000000)
    SLOT(double, 385, reflection_margin, bits(tgamma_reflection_margin))
    GAP(386, 386)
    SLOT(double, 387, pole_side, 0x0004000000000000) // 2^-1024
    SLOT(double, 388, zero_bound, bits(slow::neg_zero))
    SLOT(double, 389, inf, 0x7FF0000000000000)
    SLOT(double, 390, quiet_nan, 0x7FF8000000000000)
    SLOT(double, 391, safe, 0x3FF8000000000000) // 1.5
    TABLE(392, margins, tgamma_margins)
};
ORVANE_BLOCK(dtgamma_block, __orvane_dtgamma_data)

struct dtgamma_kernel : kernel<one_argument<double>, __orvane_dtgamma_data, __orvane_dtgamma_cout_rare> {
    // gamma(A), or gamma(1 + A) below 1, and its margin.
    template <int W> static ORVANE_INLINE hi_lo_lanes<W> gamma_of(const dtgamma_block& c, lanes<double, W> A,
                                                                  lanes<double, W>& margin) {
        using V = lanes<double, W>;
        const V one = c.one;
        auto below_1 = A < one, from_2 = A >= V(c.two), from_8 = A >= V(c.eight);
        auto F = round_to<downward>(A);
        // The unit that rows begin in: a multiple of 8, or 0, 1 or 2.
        auto eights = keep(from_8, round_to<downward>(F * c.eighth) * c.eight);
        auto unit = max(eights, select(from_2, c.two, andnot(as<double>(below_1), one)));
        auto factors = F - unit;
        auto t = A - F;
        auto number = round_to<downward>(t * c.eight);
        auto u = t - fma(number, c.eighth, keep(from_2, V(c.sixteenth)));
        auto at = eights + number + select(from_2 & ~from_8, V(c.two52_and_176), c.two52);
        auto row = bits(at) & c.row_mask;
        margin = fma(factors, c.factor_margin, lookup(c.margins.entry, row));
        auto g = polynomial_at<false>(row_addresses<W>(&c.eighths, row << 7), u, nullptr);
        auto f = A;
        each<7>([&](auto i) ORVANE_LAMBDA {
            f = f - c.one;
            g = times(g, select(factors > V(double(i)), f, c.one));
        });
        return g;
    }
    // The quotient of two pairs.
    template <int W>
    static ORVANE_INLINE hi_lo_lanes<W> quotient(const dtgamma_block& c, hi_lo_lanes<W> a, hi_lo_lanes<W> b) {
        auto i = c.one / b.h;
        auto q = a.h * i;
        return {q, fma(-q, b.l, fma(-q, b.h, a.h) + a.l) * i};
    }

    template <int W> static ORVANE_INLINE auto beyond(const dtgamma_block& c, lanes<double, W> x) {
        using V = lanes<double, W>;
        return not_less(x, V(c.overflow_bound)) | (x < V(c.smallest));
    }
    template <int W> static ORVANE_INLINE auto vector_path(const dtgamma_block& c, lanes<double, W> x) {
        using V = lanes<double, W>;
        V margin;
        auto g = gamma_of(c, x, margin);
        auto y = quotient<W>(c, g, {select(x < V(c.one), x, c.one), V(0.0)});
        return rounding_test(y, y.h * margin);
    }
    template <int W> static ORVANE_INLINE auto large_path(const dtgamma_block& c, lanes<double, W> x) {
        using V = lanes<double, W>;
        auto A = x & c.abs_mask;
        auto F = round_to<downward>(A);
        auto negative = x < V(0.0), is_pole = negative & (F == A);
        auto special = not_less(A, select(negative, V(c.far), c.overflow_bound)) | (A < V(c.smallest)) | is_pole;
        if (all(special)) return answer{x, special};
        auto a = select(special, c.safe, A);
        V margin;
        auto g = gamma_of(c, a, margin);
        auto below_1 = a < V(c.one);
        // 1 / (sin(pi r) / pi a gamma(a)) under its sign, without a below 1, or gamma over a or 1.
        auto r = a - round_to<to_nearest>(a);
        auto s = sine_of(c.sine.entry[0].c, r & c.abs_mask);
        auto n = times(g, select(below_1, c.one, a));
        auto p = n.h * s.h;
        hi_lo_lanes<W> product = {p, fma(n.h, s.l, fma(n.l, s.h, fma(n.h, s.h, -p)))};
        auto odd = bits(round_to<downward>(a) + c.two52) << 63;
        auto sign = V(-1.0) ^ as<double>(odd);
        auto y = quotient<W>(c, {select(negative, sign, g.h), andnot(as<double>(negative), g.l)},
                             {select(negative, product.h, select(below_1, a, c.one)), keep(negative, product.l)});
        auto tested = rounding_test(y, y.h * (margin + keep(negative, V(c.reflection_margin))));
        return answer{tested.first, special | tested.special};
    }
    template <int W> static ORVANE_INLINE auto settle(const dtgamma_block& c, lanes<double, W> x, auto a) {
        return settle_gamma(c, x, a);
    }
};
// Largest known error of tgamma: 0.5049 ulp at 0xBFE026281DDC7FF4
// Largest known error of tgamma, slow path: 0.516 ulp at 0xC05F601B91B83980
ORVANE_EXPORT(tgamma, , dtgamma_kernel)

} // namespace orvane
