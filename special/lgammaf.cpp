// lgammaf and lgammarf, log|gamma(x)|, the second with the sign of gamma(x) as out-lane, in double.
//
// From 2^-6 to 8192 a row of 16 cells per binade gives log gamma. Behind a branch: below 2^-6 log gamma(1 + x) - ln
// x; from 8192 on Stirling's series; from -9 to 0 log gamma(y) - ln|x (x + 1) ... (y - 1)| with y from 1 to 2; and
// from -8192 to -9 reflection, -log gamma(A) - ln(A r) - ln(sin(pi r) / (pi r)), A = -x and r its distance to the
// nearest integer. The rows hold the slow path's polynomials, so that the margin is rounding alone.
#include "special/gamma_lanes.h"
#include "special/lgammaf_pieces.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_slgamma_cout_rare, const float* x, float* result);
ORVANE_SLOW_PATH(__orvane_slgammar_cout_rare, const float* x, float* result, int* sign);

// log gamma on the cells from 2^-6 to 8192, in powers of x less the cell's lower end.
inline constexpr table<row_of_eight, 304> lgammaf_cells = {{
#include "special/tables/lgammaf_cells.inc"
}};
// ln on sixteenths of [1, 2).
inline constexpr table<row_of_eight, 16> lgammaf_ln = {{
#include "special/tables/lgammaf_ln.inc"
}};

struct slgamma_block {
    TABLE(0, cells, lgammaf_cells)
    TABLE(304, ln_cells, lgammaf_ln)
    SLOT(uint32_t, 320, first_cell, (127 - 6) << 4) // of 2^-6
    SLOT(uint32_t, 321, last_cell, 303)             // the one below 8192
    SLOT(float, 322, cell_end, 0xFFF80000)          // sign, exponent and four bits
    SLOT(double, 323, abs_mask, 0x7FFFFFFFFFFFFFFF)
    SLOT(double, 324, margin, 0x3D40000000000000)       // 2^-43, of the value
    SLOT(double, 325, least_margin, 0x3C80000000000000) // 2^-55
    SLOT(double, 326, one, 0x3FF0000000000000)
    // Behind the branch.
    SLOT(double, 327, cell_end_d, 0xFFFF000000000000)
    SLOT(uint64_t, 328, first_cell_d, (1023 - 6) << 4)
    SLOT(double, 329, first_x, 0x3F90000000000000) // 2^-6
    SLOT(double, 330, large, 0x40C0000000000000)   // 8192
    SLOT(double, 331, minus_large, 0xC0C0000000000000)
    SLOT(double, 332, minus_nine, 0xC022000000000000)
    SLOT(double, 333, half, 0x3FE0000000000000)
    SLOT(double, 334, half_log2pi, 0x3FED67F1C864BEB4)
    SLOT(double, 335, ln2, 0x3FE62E42FEFA39EF)
    SLOT(double, 336, fraction, 0x000FFFFFFFFFFFFF)
    SLOT(double, 337, two52_bias, 0x43300000000003FF) // 2^52 + 1023
    SLOT(double, 338, two, 0x4000000000000000)
    SLOT(double, 339, two52, 0x4330000000000000)
    SLOT(double, 340, ln_margin, 0x3D36000000000000) // 1.375 * 2^-44, of the logarithm
    SLOT(double, 341, near_zero, 0x3F50000000000000) // 2^-10
    SLOT(float, 342, overflow_bound, 0x7C44AF8D)
    SLOT(float, 343, inf, 0x7F800000)
    SLOT(float, 344, minus_large_f, 0xC6000000)
    SLOT(float, 345, one_f, 0x3F800000)
    SLOT(double, 346, sin_0, bits(lgammaf_pieces::lg_sin[0]))
    SLOT(double, 347, sin_1, bits(lgammaf_pieces::lg_sin[1]))
    SLOT(double, 348, sin_2, bits(lgammaf_pieces::lg_sin[2]))
    SLOT(double, 349, sin_3, bits(lgammaf_pieces::lg_sin[3]))
    SLOT(double, 350, sin_4, bits(lgammaf_pieces::lg_sin[4]))
    SLOT(double, 351, sin_5, bits(lgammaf_pieces::lg_sin[5]))
    SLOT(double, 352, sin_6, bits(lgammaf_pieces::lg_sin[6]))
    SLOT(double, 353, sin_7, bits(lgammaf_pieces::lg_sin[7]))
    SLOT(float, 354, two_f, 0x40000000)
};
ORVANE_BLOCK(slgamma_block, __orvane_slgamma_data)
ORVANE_BLOCK_TWIN(__orvane_slgammar_data, __orvane_slgamma_data)

// y below 2^-6: log gamma(1 + x) - ln x and so on, four lanes at a time.
template <int W> struct slgamma_wide {
    using V = lanes<double, W>;
    lanes<float, W> y;
    lanes<int32_t, W> in_doubt;

    ORVANE_INLINE slgamma_wide(const slgamma_block& c, lanes<float, W> x_f) {
        // Log gamma(a) w + ln q lw + k, a in the cells.
        const V x = convert<double>(x_f), one = c.one;
        auto A = x & c.abs_mask;
        auto tiny = x < c.first_x, large = x >= c.large, negative = x < V(0.0), reflected = x <= c.minus_nine;
        auto a = select(tiny, x + c.one, x);
        auto q = select(tiny | large, x, one);
        auto w = andnot(as<double>(large), one), lw = select(large, x - c.half, V(-1.0));
        auto k = keep(large, V(c.half_log2pi) - x);
        if (negative.signs()) {
            auto F = round_to<downward>(A);
            // x times the numbers from x + 1 on that are below 1
            auto p = x, f = x;
#pragma GCC unroll 9
            for (int i = 1; i <= 9; i++) {
                f = f + c.one;
                p = p * select(f < one, f, one);
            }
            auto r = A - round_to<to_nearest>(A);
            auto z = r * r;
            auto S = z * horner(z, c.sin_0, c.sin_1, c.sin_2, c.sin_3, c.sin_4, c.sin_5, c.sin_6, c.sin_7);
            q = select(negative, select(reflected, A * r, p) & c.abs_mask, q);
            a = select(negative, select(reflected, A, V(c.two) - (A - F)), a);
            w = select(reflected, V(-1.0), w);
            k = select(reflected, V(0.0) - S, k);
        }
        a = select(large, one, a);

        auto cell = a & c.cell_end_d;
        auto offset = ((bits(a) >> 48) - c.first_cell_d) << 6;
        auto row = polynomial_at(c.cells, offset, a - cell) * w;
        auto m = (q & c.fraction) | c.one;
        auto e = as<double>((bits(q) >> 52) | bits(V(c.two52))) - c.two52_bias;
        auto ln_offset = ((bits(m) >> 48) & lanes<uint64_t, W>(15)) << 6;
        auto L = fma(e, c.ln2, polynomial_at(c.ln_cells, ln_offset, m - (m & c.cell_end_d))) * lw;

        auto v = row + (L + k);
        auto E = fma(row & c.abs_mask, c.margin, fma(L & c.abs_mask, c.ln_margin, c.least_margin));
        y = convert<float>(v + E);
        auto doubt = y != convert<float>(v - E);
        // Next to a zero the slow path has polynomials of its own.
        auto near_zero = negative & ((v & c.abs_mask) < c.near_zero);
        in_doubt = signed_bits(low_words(near_zero)) | doubt;
    }
};

template <class Signature, auto& Rare> struct slgamma_kernel : kernel<Signature, __orvane_slgamma_data, Rare> {
    template <int W> static ORVANE_INLINE auto with_sign(lanes<float, W> x, lanes<float, W> y,
                                                         lanes<int32_t, W> special, bool positive) {
        if constexpr (Signature::has_out) {
            auto sign = lanes<int32_t, W>(1);
            if (!positive) sign = sign | (sign_of_gamma(x) >> 31);
            return answer{y, sign, special};
        } else return answer{y, special};
    }
    template <int W> static ORVANE_INLINE auto vector_path(const slgamma_block& c, lanes<float, W> x) {
        auto u = x - (x & c.cell_end);
        auto v = widened([&](auto u, auto offset)
                             ORVANE_LAMBDA { return polynomial_at(c.cells, offset, convert<double>(u)); },
                         u, ((bits(x) >> 19) - c.first_cell) << 6);
        auto margin = [&](auto v) ORVANE_LAMBDA { return fma(v & c.abs_mask, c.margin, c.least_margin); };
        auto y = narrowed([&](auto v) ORVANE_LAMBDA { return v + margin(v); }, v);
        auto other = narrowed([&](auto v) ORVANE_LAMBDA { return v - margin(v); }, v);
        return with_sign(x, y, y != other, true);
    }
    template <int W> static ORVANE_INLINE auto beyond(const slgamma_block& c, lanes<float, W> x) {
        auto cell = (bits(x) >> 19) - c.first_cell;
        return signed_bits(cell != min(cell, lanes<uint32_t, W>(c.last_cell)));
    }
    // Lanes outside of the cells.
    template <int W> static ORVANE_INLINE auto large_path(const slgamma_block& c, lanes<float, W> x) {
        using V = lanes<float, W>;
        auto is_pole = (x <= V(0.0f)) & (round_to<downward>(x) == x);
        auto special = (x <= c.minus_large_f) | is_pole | not_less_equal(x, V(c.overflow_bound));
        if (all(special)) return with_sign(x, x, special, true); // settle gives the signs
        auto inside = select(special, c.one_f, x);
        V y;
        if constexpr (W == 8) {
            const slgamma_wide<4> low(c, low_half(inside)), high(c, high_half(inside));
            y = join(low.y, high.y), special = special | join(low.in_doubt, high.in_doubt);
        } else {
            const slgamma_wide<W> all(c, inside);
            y = all.y, special = special | all.in_doubt;
        }
        return with_sign(x, y, special, false);
    }
    // Beside what needs no formula 1 and 2, whose value is 0: its rounding hangs on the margin.
    template <int W> static ORVANE_INLINE auto settle(const slgamma_block& c, lanes<float, W> x, auto a) {
        if constexpr (Signature::has_out) a.second = with_sign(x, a.first, a.special, false).second;
        auto zero = (x == c.one_f) | (x == c.two_f);
        a.first = andnot(as<float>(zero), a.first);
        a.special = andnot(zero, a.special);
        return settle_log_gamma(c, x, a);
    }
};
using slgamma_values = slgamma_kernel<one_argument<float>, __orvane_slgamma_cout_rare>;
using slgammar_values = slgamma_kernel<pointer_out<float, int32_t>, __orvane_slgammar_cout_rare>;
// Largest known error of lgammaf: 0.5085 ulp at 0x4031D468
ORVANE_EXPORT(lgammaf, , slgamma_values)
// Largest known error of lgammarf: 0.5084 ulp at 0x4002448C
ORVANE_EXPORT(lgammarf, , slgammar_values)

} // namespace orvane
