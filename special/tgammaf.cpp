// tgammaf, the gamma function, in double.
//
// Rows of eighths give gamma on [1, 35); below 1 it is gamma(1 + x) / x. Behind a branch negative arguments by
// reflection, gamma(x) = -pi / (sin(pi x) A gamma(A)), A = -x. The rows hold the slow path's polynomials, and the
// sine is its own.
#include "special/gamma_lanes.h"
#include "special/tgamma_pieces.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_stgamma_cout_rare, const float* x, float* result);

// gamma on eighths of [1, 35), in powers of x less the eighth's lower end.
inline constexpr table<row_of_eight, 272> tgammaf_eighths = {{
#include "special/tables/tgammaf_eighths.inc"
}};

struct stgamma_block {
    using slow = tgamma_constants<float>;
    TABLE(0, eighths, tgammaf_eighths)
    SLOT(uint32_t, 272, smallest, 0x00800000)              // 2^-126
    SLOT(uint32_t, 273, span, 0x420C0000 - 0x00800000 - 1) // up to 35
    SLOT(double, 274, one, 0x3FF0000000000000)
    SLOT(double, 275, eight, 0x4020000000000000)
    SLOT(double, 276, eighth, 0x3FC0000000000000)
    SLOT(uint32_t, 277, margin, 200000) // eighths of a last place of double
    SLOT(int32_t, 278, margin_end, 0x80000000 + 2 * 200000)
    // Behind the branch.
    SLOT(double, 279, abs_mask, 0x7FFFFFFFFFFFFFFF)
    SLOT(double, 280, two52, 0x4330000000000000)
    SLOT(float, 281, abs_mask_f, 0x7FFFFFFF)
    SLOT(float, 282, smallest_f, 0x00800000)
    SLOT(float, 283, end, 0x420C0000)       // 35
    SLOT(float, 284, pole_side, 0x00200000) // 2^-128
    SLOT(float, 285, overflow_bound, bits(slow::over))
    SLOT(float, 286, zero_bound, bits(slow::neg_zero))
    SLOT(float, 287, inf, 0x7F800000)
    SLOT(float, 288, quiet_nan, 0x7FC00000)
    GAP(289, 289)
    SLOT(float, 290, one_f, 0x3F800000)
    SLOT(double, 291, s0, bits(slow::sp_c[0]))
    SLOT(double, 292, s1, bits(slow::sp_c[1]))
    SLOT(double, 293, s2, bits(slow::sp_c[2]))
    SLOT(double, 294, s3, bits(slow::sp_c[3]))
    SLOT(double, 295, s4, bits(slow::sp_c[4]))
    SLOT(double, 296, s5, bits(slow::sp_c[5]))
    SLOT(double, 297, s6, bits(slow::sp_c[6]))
    SLOT(double, 298, s7, bits(slow::sp_c[7]))
    SLOT(uint32_t, 299, first_row, 8 * sizeof(row_of_eight))
};
ORVANE_BLOCK(stgamma_block, __orvane_stgamma_data)

struct stgamma_kernel : kernel<one_argument<float>, __orvane_stgamma_data, __orvane_stgamma_cout_rare> {
    // gamma(y), y from 1 to 35.
    template <int W> static ORVANE_INLINE auto gamma_of(const stgamma_block& c, lanes<double, W> y) {
        auto number = truncate<int32_t>(y * c.eight); // of the eighth below y
        auto u = fma(-convert<double>(number), c.eighth, y);
        return polynomial_at(c.eighths, bits(number << 6) - c.first_row, u);
    }
    // Whether a normal float's value lies within the margin of the middle between two floats: the 29 bits that a
    // float lacks, as a 32-bit word whose sign bit they begin at, against that bit alone.
    template <int W> static ORVANE_INLINE lanes<int32_t, W> in_doubt(const stgamma_block& c, auto v) {
        auto rest = as<int32_t>((low_words(v) << 3) + c.margin);
        return rest < lanes<int32_t, W>(c.margin_end);
    }

    template <int W> static ORVANE_INLINE auto beyond(const stgamma_block& c, lanes<float, W> x) {
        auto k = bits(x) - c.smallest;
        return signed_bits(k != min(k, lanes<uint32_t, W>(c.span)));
    }
    template <int W> static ORVANE_INLINE auto vector_path(const stgamma_block& c, lanes<float, W> x) {
        auto v = widened(
            [&](auto x_f) ORVANE_LAMBDA {
                auto x = convert<double>(x_f);
                auto below_1 = x < decltype(x)(c.one);
                auto g = gamma_of(c, x + keep(below_1, decltype(x)(c.one)));
                return g / select(below_1, x, c.one);
            },
            x);
        auto y = narrowed([](auto v) ORVANE_LAMBDA { return v; }, v);
        return answer{y, in_doubt<W>(c, v)};
    }

    // gamma(x) for 2^-126 <= |x| < 35.
    template <int W> static ORVANE_INLINE auto reflected(const stgamma_block& c, lanes<double, W> x) {
        using V = lanes<double, W>;
        auto A = x & c.abs_mask;
        auto negative = x < V(0.0), below_1 = A < V(c.one);
        auto g = gamma_of(c, A + keep(below_1, V(c.one)));
        auto r = (A - round_to<to_nearest>(A)) & c.abs_mask;
        auto z = r * r;
        auto s = fma(V(c.s0), z, c.s1) * z;
        s = s * fma(z + c.s2, z, c.s3);
        s = s * fma(z + c.s4, z, c.s5);
        s = s * fma(z + c.s6, z, c.s7);
        s = fma(s, r, r); // sin(pi r) / pi
        auto odd = bits(round_to<downward>(A) + c.two52) << 63;
        auto sign = V(-1.0) ^ as<double>(odd);
        auto below = select(negative, (select(below_1, V(c.one), A) * s) * g, select(below_1, A, c.one));
        return select(negative, sign, g) / below;
    }
    template <int W> static ORVANE_INLINE auto large_path(const stgamma_block& c, lanes<float, W> x) {
        using V = lanes<float, W>;
        auto A = x & c.abs_mask_f;
        auto is_pole = (x < V(0.0f)) & (round_to<downward>(A) == A);
        auto special = not_less(A, V(c.end)) | not_less(V(c.smallest_f), A) | is_pole;
        if (all(special)) return answer{x, special};
        auto inside = select(special, V(c.one_f), x);
        auto v = widened([&](auto x) ORVANE_LAMBDA { return reflected(c, convert<double>(x)); }, inside);
        auto y = narrowed([](auto v) ORVANE_LAMBDA { return v; }, v);
        return answer{y, special | in_doubt<W>(c, v) | ((y & c.abs_mask_f) <= V(c.smallest_f))};
    }
    template <int W> static ORVANE_INLINE auto settle(const stgamma_block& c, lanes<float, W> x, auto a) {
        return settle_gamma(c, x, a);
    }
};
// Largest known error of tgammaf: 0.5028 ulp at 0x3E76253B
// Largest known error of tgammaf, slow path: 0.5029 ulp at 0x3E753955
ORVANE_EXPORT(tgammaf, , stgamma_kernel)

} // namespace orvane
