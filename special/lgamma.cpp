// lgamma and lgammar, log|gamma(x)|, the second with the sign of gamma(x) as out-lane, in pairs of doubles.
//
// From 1/8 to 512 a row around the nearest of 16 grid points per binade gives log gamma with its margin. Behind a
// branch: below 1/8 log gamma(1 + x) - ln x; from 512 on Stirling's series; from -512 to 0 reflection, -log gamma(A)
// - ln(A sin(pi r) / pi), A = -x and r its distance to the nearest integer (without A, and with log gamma(1 + A),
// where A is below 1/8). Rows hold the slow path's polynomials.
#include "special/gamma_lanes.h"
#include "special/lgamma_pieces.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dlgamma_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_dlgammar_cout_rare, const double* x, double* result, int* sign);

// log gamma around 2^e (1 + i / 16) from 1/8 to 512, in powers of x less that point; the last column is the margin.
inline constexpr table<row_of_sixteen, 193> lgamma_grid = {{
#include "special/tables/lgamma_grid.inc"
}};
// ln around sixteenths from 1 to 2.
inline constexpr table<row_of_sixteen, 17> lgamma_ln = {{
#include "special/tables/lgamma_ln.inc"
}};
// sin(pi r) / (pi r) in r^2.
inline constexpr table<row_of_sixteen, 1> lgamma_sine = {{
#include "special/tables/lgamma_sine.inc"
}};

struct dlgamma_block {
    TABLE(0, grid, lgamma_grid)
    TABLE(386, ln_grid, lgamma_ln)
    TABLE(420, sine, lgamma_sine)
    SLOT(uint64_t, 422, half_step, 0x0000800000000000)
    SLOT(uint64_t, 423, first_point, (1023 - 3) << 4) // of 1/8
    SLOT(int64_t, 424, last_point, 191)
    SLOT(double, 425, point_mask, 0xFFFF000000000000) // sign, exponent and four bits
    SLOT(double, 426, abs_mask, 0x7FFFFFFFFFFFFFFF)
    // Behind the branch.
    SLOT(double, 427, one, 0x3FF0000000000000)
    SLOT(double, 428, half, 0x3FE0000000000000)
    SLOT(double, 429, eighth, 0x3FC0000000000000)
    SLOT(double, 430, large, 0x4080000000000000)      // 512
    SLOT(double, 431, smallest, 0x0170000000000000)   // 2^-1000
    SLOT(double, 432, largest, 0x7E70000000000000)    // 2^1000
    SLOT(double, 433, sixteenths, 0x42F0000000000000) // 2^48, whose last place is a sixteenth
    SLOT(uint64_t, 434, sixty_three, 63)
    SLOT(uint64_t, 435, points_to_1, 48)
    SLOT(double, 436, fraction, 0x000FFFFFFFFFFFFF)
    SLOT(double, 437, two52, 0x4330000000000000)
    SLOT(double, 438, two52_bias, 0x43300000000003FF) // 2^52 + 1023
    SLOT(double, 439, ln2_hi, 0x3FE62E42FEFA3800)
    SLOT(double, 440, ln2_lo, 0x3D2EF35793C76730)
    SLOT(double, 441, half_log2pi, 0x3FED67F1C864BEB5)
    SLOT(double, 442, twelfth, 0x3FB5555555555555)
    SLOT(double, 443, rcp_360, 0x3F66C16C16C16C17)
    // Of large and tiny lanes, and of both terms of negative ones; what these have beside it.
    SLOT(double, 444, margin, bits(lgamma_pieces::term_margin))
    SLOT(double, 445, least_margin, bits(lgamma_pieces::reflection_margin))
    SLOT(double, 446, overflow_bound, 0x7F5754D9278B51A7)
    SLOT(double, 447, inf, 0x7FF0000000000000)
    SLOT(double, 448, safe, 0x400C000000000000) // 3.5
};
ORVANE_BLOCK(dlgamma_block, __orvane_dlgamma_data)
ORVANE_BLOCK_TWIN(__orvane_dlgammar_data, __orvane_dlgamma_data)

template <class Signature, auto& Rare> struct dlgamma_kernel : kernel<Signature, __orvane_dlgamma_data, Rare> {
    template <int W>
    static ORVANE_INLINE auto with_sign(lanes<double, W> x, lanes<double, W> y, auto special, bool positive) {
        if constexpr (Signature::has_out) {
            auto sign = lanes<int32_t, W>(1);
            if (!positive) sign = sign | (signed_bits(high_words(sign_of_gamma(x))) >> 31);
            return answer{y, sign, special};
        } else return answer{y, special};
    }

    // The nearest grid point of x by its bits.
    template <int W>
    static ORVANE_INLINE lanes<uint64_t, W> rounded_bits(const dlgamma_block& c, lanes<double, W> x) {
        return bits(x) + c.half_step;
    }
    template <int W> static ORVANE_INLINE auto beyond(const dlgamma_block& c, lanes<double, W> x) {
        auto k = signed_bits((rounded_bits(c, x) >> 48) - c.first_point);
        return (k > lanes<int64_t, W>(c.last_point)) | k; // its sign
    }
    template <int W> static ORVANE_INLINE auto vector_path(const dlgamma_block& c, lanes<double, W> x) {
        auto b = rounded_bits(c, x);
        auto k = (b >> 48) - c.first_point;
        auto u = x - (as<double>(b) & c.point_mask);
        lanes<double, W> margin;
        auto v = polynomial_at<true>(row_addresses<W>(&c.grid, k << 7), u, &margin);
        auto tested = rounding_test(v, v.h * margin);
        return with_sign(x, tested.first, tested.special, true);
    }

    // ln q for a positive normal q.
    template <int W> static ORVANE_INLINE hi_lo_lanes<W> log_of(const dlgamma_block& c, lanes<double, W> q) {
        auto m = (q & c.fraction) | c.one;
        auto e = as<double>((bits(q) >> 52) | c.two52) - c.two52_bias;
        auto t = m + c.sixteenths;
        auto point = t - c.sixteenths;
        auto v = polynomial_at<false>(
            row_addresses<W>(&c.ln_grid, ((bits(t) & c.sixty_three) - lanes<uint64_t, W>(16)) << 7), m - point,
            nullptr);
        auto a = e * c.ln2_hi, h = a + v.h; // |a| is 0 or the larger one
        return {h, fma(e, c.ln2_lo, v.l) + ((a - h) + v.h)};
    }
    template <int W> static ORVANE_INLINE auto large_path(const dlgamma_block& c, lanes<double, W> x) {
        using V = lanes<double, W>;
        auto A = x & c.abs_mask;
        auto negative = x < V(0.0);
        auto whole = round_to<downward>(A) == A;
        auto special =
            not_less(A, select(negative, V(c.large), c.largest)) | (A < V(c.smallest)) | (negative & whole);
        if (all(special)) return with_sign(x, x, special, true); // settle gives the signs
        A = select(special, c.safe, A);
        auto large = A >= c.large, tiny = A < V(c.eighth);

        // Log gamma by rows: of A, of 1 + A where A is tiny, of 1, which is 0, where it is large.
        auto a = select(large, V(0.0), A);
        auto b = rounded_bits(c, a);
        auto t = a + c.sixteenths;
        auto by_one = tiny | large;
        auto k = select(by_one, (bits(t) & c.sixty_three) + c.points_to_1, (b >> 48) - c.first_point);
        auto point = select(by_one, t - c.sixteenths, as<double>(b) & c.point_mask);
        V margin;
        auto v = polynomial_at<true>(row_addresses<W>(&c.grid, k << 7), a - point, &margin);

        // The logarithm of A, or of A sin(pi r) / pi, which is s + s.l: ln s + s.l / s.
        auto q = A, correction = V(0.0);
        if (negative.signs()) {
            auto r = A - round_to<to_nearest>(A);
            auto s = sine_of(c.sine.entry[0].c, select(negative & ~special, r & c.abs_mask, c.half));
            s = times(s, select(tiny, c.one, A));
            q = select(negative, s.h, q);
            correction = keep(negative, s.l) / q;
        }
        auto L = log_of(c, q);
        L.l = L.l + correction;

        const V sign = V(-0.0);
        auto turn = as<double>(negative) & sign;
        auto with_log = as<double>(negative | by_one);
        auto y = exact_sum(v.h ^ turn, (L.h & with_log) ^ sign);
        y.l = y.l + ((v.l ^ turn) - (L.l & with_log));
        auto E = ((v.h & c.abs_mask) + (L.h & c.abs_mask)) * c.margin + c.least_margin;
        E = keep(negative, fma(v.h & c.abs_mask, margin, E));
        if (large.signs()) {
            // (A - 1/2) L - A + ln(2 pi) / 2 + 1 / (12 A) - 1 / (360 A^3)
            auto p = A * L.h, p_low = fma(A, L.l, fma(A, L.h, -p));
            auto s = p - A;
            p_low = p_low + ((p - s) - A);
            auto d = fma(-L.h, c.half, c.half_log2pi);
            auto d_low = fma(-L.h, c.half, c.half_log2pi - d) - L.l * c.half;
            auto i = c.one / A;
            d_low = fma(i, fma(-(i * i), c.rcp_360, c.twelfth), d_low);
            auto z = exact_sum(s, d);
            y.h = select(large, z.h, y.h);
            y.l = select(large, z.l + (p_low + d_low), y.l);
        }
        auto own = select(negative, V(0.0), select(by_one, c.margin, margin));
        auto tested = rounding_test(y, fma(y.h & c.abs_mask, own, E));
        return with_sign(x, tested.first, special | tested.special, false);
    }
    template <int W> static ORVANE_INLINE auto settle(const dlgamma_block& c, lanes<double, W> x, auto a) {
        if constexpr (Signature::has_out) a.second = with_sign(x, a.first, a.special, false).second;
        return settle_log_gamma(c, x, a);
    }
};
using dlgamma_values = dlgamma_kernel<one_argument<double>, __orvane_dlgamma_cout_rare>;
using dlgammar_values = dlgamma_kernel<pointer_out<double, int32_t>, __orvane_dlgammar_cout_rare>;
// Largest known error of lgamma: 0.4993 ulp at 0x3FECCDD9F860CF7F
// Largest known error of lgamma, slow path: 0.5113 ulp at 0xC005ADD45CDEA3E8
ORVANE_EXPORT(lgamma, , dlgamma_values)
// Largest known error of lgammar: 0.511 ulp at 0xC005AD83BE5ED40B
ORVANE_EXPORT(lgammar, , dlgammar_values)

} // namespace orvane
