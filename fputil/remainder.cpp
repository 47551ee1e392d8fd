// fmod, remainder, remquo: one quotient from the division instruction, and the remainder exactly from it, which works
// while the quotient has few bits: while the exponent of x is at most `ediff_max` above that of y. Other lanes are
// divided bit by bit in the slow path.
#include "fputil/words.h"
#include "frame/_orvane_template.h"
#include "frame/rare.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dfmod_cout_rare, const double* x, const double* y, double* result);
ORVANE_SLOW_PATH(__orvane_sfmod_cout_rare, const float* x, const float* y, float* result);
ORVANE_SLOW_PATH(__orvane_dremainder_cout_rare, const double* x, const double* y, double* result);
ORVANE_SLOW_PATH(__orvane_sremainder_cout_rare, const float* x, const float* y, float* result);
ORVANE_SLOW_PATH(__orvane_dremquo_cout_rare, const double* x, const double* y, double* result, int32_t* out);
ORVANE_SLOW_PATH(__orvane_sremquo_cout_rare, const float* x, const float* y, float* result, int32_t* out);

// Lanes whose exponents are too far apart, and lanes whose y is small or at the top of its range, infinite or NaN:
// the subtraction of `y_base` wraps words of small y to the top. A and Y are magnitudes.
template <class T, int W>
ORVANE_INLINE lane_bits<W> beyond_one_quotient(const auto& c, lanes<T, W> A, lanes<T, W> Y) {
    constexpr int shift = sizeof(T) == 8 ? 20 : 23;
    auto y_out = (words(Y) - c.y_base) > c.y_limit;
    auto far = ((words(A) >> shift) - (words(Y) >> shift)) > c.ediff_max;
    return marked<T, W>(y_out | far);
}

struct dfmod_block {
    GAP(0, 0)
    SLOT(double, 1, abs_mask, 0x7FFFFFFFFFFFFFFF)
    SLOT(double, 2, sign_mask, 0x8000000000000000)
    SLOT(int32_t, 3, ediff_max, 25)       // largest difference of the exponents: a quotient below 2^26
    SLOT(int32_t, 4, y_base, 0x83300000)  // takes the high word of 2^-972 to the least int32
    SLOT(int32_t, 5, y_limit, 0xFCBFFFFF) // and that of the largest finite number here
};
struct sfmod_block {
    GAP(0, 0)
    SLOT(float, 1, abs_mask, 0x7FFFFFFF)
    SLOT(float, 2, sign_mask, 0x80000000)
    SLOT(int32_t, 3, ediff_max, 11)       // largest difference of the exponents: a quotient below 2^12
    SLOT(int32_t, 4, y_base, 0x8C000000)  // takes 2^-103 to the least int32
    SLOT(int32_t, 5, y_limit, 0xF28FFFFF) // and the largest number below 1.125 * 2^126 here
};
ORVANE_BLOCK(dfmod_block, __orvane_dfmod_data)
ORVANE_BLOCK(sfmod_block, __orvane_sfmod_data)

template <class T, const auto& Block, auto& Rare> struct fmod_kernel : kernel<two_arguments<T>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x, lanes<T, W> y) {
        auto A = x & c.abs_mask, Y = y & c.abs_mask;
        auto special = beyond_one_quotient(c, A, Y);
        auto q = round_to<toward_zero>(x / y);
        auto s = x & c.sign_mask;
        auto r = fma(-q, s ^ y, A);             // |x| - |q| |y|, exactly
        r = r + keep(r < lanes<T, W>(T(0)), Y); // where x / y was rounded up to an integer, q is one too large
        return answer{s | r, special};
    }
};
using dfmod_kernel = fmod_kernel<double, __orvane_dfmod_data, __orvane_dfmod_cout_rare>;
using sfmod_kernel = fmod_kernel<float, __orvane_sfmod_data, __orvane_sfmod_cout_rare>;
ORVANE_EXPORT(fmod, , dfmod_kernel)
ORVANE_EXPORT(fmodf, , sfmod_kernel)

struct dremainder_block {
    SLOT(double, 0, split_mask, 0xFFFFFFFFF8000000) // the upper half of the significand
    SLOT(double, 1, abs_mask, 0x7FFFFFFFFFFFFFFF)
    SLOT(double, 2, sign_mask, 0x8000000000000000)
    SLOT(double, 3, half, 0x3FE0000000000000)
    SLOT(int32_t, 4, ediff_max, 25)       // largest difference of the exponents: a quotient below 2^26
    SLOT(int32_t, 5, y_base, 0x83300000)  // takes the high word of 2^-972 to the least int32
    SLOT(int32_t, 6, y_limit, 0xFB1FFFFF) // and that of the largest number below 2^998 here
    SLOT(int32_t, 7, one_int, 1)
};
struct sremainder_block {
    SLOT(float, 0, split_mask, 0xFFFFF000) // keeps 12 significand bits
    SLOT(float, 1, abs_mask, 0x7FFFFFFF)
    SLOT(float, 2, sign_mask, 0x80000000)
    SLOT(float, 3, half, 0x3F000000)
    SLOT(int32_t, 4, ediff_max, 11)       // largest difference of the exponents: a quotient below 2^12
    SLOT(int32_t, 5, y_base, 0x8C000000)  // takes 2^-103 to the least int32
    SLOT(int32_t, 6, y_limit, 0xED7FFFFF) // and the largest number below 2^116 here
    SLOT(int32_t, 7, one_int, 1)
};
ORVANE_BLOCK(dremainder_block, __orvane_dremquo_data)
ORVANE_BLOCK(sremainder_block, __orvane_sremquo_data)
ORVANE_BLOCK_TWIN(__orvane_dremainder_data, __orvane_dremquo_data)
ORVANE_BLOCK_TWIN(__orvane_sremainder_data, __orvane_sremquo_data)

// x - n y with n the integer nearest to the rounded quotient; `beyond` marks lanes where the rest is still more than
// half of y, so that y is taken off once more, toward zero.
template <class T, int W> struct nearest_multiple {
    lanes<T, W> n, r, v;
    lanes<int_of<T>, W> beyond;
};
template <class T, int W> ORVANE_INLINE nearest_multiple<T, W> off_nearest_multiple(const auto& c, lanes<T, W> x,
                                                                                    lanes<T, W> y, lanes<T, W> Y) {
    auto yh = y & c.split_mask, yl = y - yh;
    auto n = round_to<by_mode_quietly>(x / y);
    auto r = (x - n * yh) - n * yl; // all exact: n and the halves of y are short
    auto ar = r & c.abs_mask, sr = r & c.sign_mask;
    auto beyond = (Y * c.half) < ar;
    auto v = r - (keep(beyond, Y) | sr);
    v = v | keep(v == lanes<T, W>(T(0)), x & c.sign_mask);
    return {n, r, v, beyond};
}

template <class T, const auto& Block, auto& Rare> struct remainder_kernel : kernel<two_arguments<T>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x, lanes<T, W> y) {
        auto Y = y & c.abs_mask;
        auto special = beyond_one_quotient(c, x & c.abs_mask, Y);
        return answer{off_nearest_multiple(c, x, y, Y).v, special};
    }
};
using dremainder_kernel = remainder_kernel<double, __orvane_dremquo_data, __orvane_dremainder_cout_rare>;
using sremainder_kernel = remainder_kernel<float, __orvane_sremquo_data, __orvane_sremainder_cout_rare>;
ORVANE_EXPORT(remainder, , dremainder_kernel)
ORVANE_EXPORT(remainderf, , sremainder_kernel)

template <class T, const auto& Block, auto& Rare> struct remquo_kernel : kernel<two_pointer_out<T>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x, lanes<T, W> y) {
        auto Y = y & c.abs_mask;
        auto special = beyond_one_quotient(c, x & c.abs_mask, Y);
        auto [n, r, v, beyond] = off_nearest_multiple(c, x, y, Y);
        auto narrow = [](auto words) ORVANE_LAMBDA {
            if constexpr (sizeof(T) == 8) return as<int32_t>(high_words(words));
            else return words;
        };
        auto st = (narrow(signed_bits(r ^ y)) >> 31) | c.one_int; // one more y off, or one fewer
        auto quotient = convert<int32_t>(n) + keep(narrow(beyond), st);
        return answer{v, quotient, special};
    }
};
using dremquo_kernel = remquo_kernel<double, __orvane_dremquo_data, __orvane_dremquo_cout_rare>;
using sremquo_kernel = remquo_kernel<float, __orvane_sremquo_data, __orvane_sremquo_cout_rare>;
ORVANE_EXPORT(remquo, , dremquo_kernel)
ORVANE_EXPORT(remquof, , sremquo_kernel)

} // namespace orvane
