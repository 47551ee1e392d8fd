// sqrt and rsqrt. The square root is the processor's; the fast tiers of sqrtf and all of rsqrt take its 12-bit
// estimate e of 1 / sqrt(x), which rsqrt refines by a short series in the residual 1 - x e^2.
#include "frame/_orvane_template.h"
#include "frame/rare.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_ssqrt_cout_rare, const float* x, float* result);
ORVANE_SLOW_PATH(__orvane_dinvsqrt_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_sinvsqrt_cout_rare, const float* x, float* result);

struct ssqrt_half_block {
    GAP(0, 0)
    SLOT(int32_t, 1, test_bias, 0x80800000)  // takes the smallest normal to the least int32
    SLOT(int32_t, 2, test_limit, 0xFEFFFFFF) // and the largest finite number here
};
ORVANE_BLOCK(ssqrt_half_block, __orvane_ssqrt_half_data)
struct sinvsqrt_block {
    SLOT(int32_t, 0, test_bias, 0x80800000)  // subtracted from the bits of x
    SLOT(int32_t, 1, test_limit, 0xFEFFFFFF) // signed limit of the test
    SLOT(float, 2, one, 0x3F800000)
    SLOT(float, 3, estimate_mask, 0xFFFF8000) // keeps the top 9 significant bits of the estimate
    // Fit on -2^-6.8 <= d <= 2^-10.4: 1 + d*(k1 + k2*d + k3*d^2) = 1/sqrt(1 + d) to 2^-29.1 relative
    SLOT(float, 4, k3, 0xBEA00000)         // -0.3125, series of 1 / sqrt(1 + d)
    SLOT(float, 5, k2, 0x3EC00000)         // 0.375
    SLOT(float, 6, k1, 0xBF000000)         // -0.5
    SLOT(float, 7, three, 0x40400000)      // 3.0, Newton step
    SLOT(float, 8, minus_half, 0xBF000000) // -0.5, Newton step
};
ORVANE_BLOCK(sinvsqrt_block, __orvane_sinvsqrt_data)
ORVANE_BLOCK_TWIN(__orvane_sinvsqrt_native_data, __orvane_sinvsqrt_data)
ORVANE_BLOCK_TWIN(__orvane_sinvsqrt_half_data, __orvane_sinvsqrt_data)
struct dinvsqrt_block {
    GAP(0, 2)
    SLOT(int32_t, 3, test_bias, 0x83500000)         // subtracted from the high word of x
    SLOT(int32_t, 4, test_limit, 0xFC7FFFFF)        // signed limit of the test
    SLOT(uint64_t, 5, low_mask, 0x001FFFFFFFFFFFFF) // significand and lowest exponent bit
    SLOT(uint64_t, 6, exponent_mask, 0x7FF0000000000000)
    SLOT(uint64_t, 7, exponent_one, 0x0010000000000000) // lowest exponent bit
    GAP(8, 8)
    SLOT(uint64_t, 9, float_bias, 0x07F0000000000000)  // exponent field of a value near 1 in a float's position
    SLOT(uint64_t, 10, scale_bias, 0xBFD0000000000000) // 3 * 1023 in the exponent field
    GAP(11, 13)
    SLOT(double, 14, one, 0x3FF0000000000000)
    GAP(15, 17)
    // Fit on |u| <= 2^-10.4: 1 + u*(c0 + c1*u + c2*u^2 + c3*u^3) = 1/sqrt(1 - u) to 2^-57.7 relative
    SLOT(double, 18, c0, 0x3FDFFFFFFFFFFE71) // 0.49999999999997785, polynomial
    SLOT(double, 19, c1, 0x3FD80000000000F6) // 0.37500000000001366, polynomial
    SLOT(double, 20, c2, 0x3FD40000B13001D9) // 0.31250016501874495, polynomial
    SLOT(double, 21, c3, 0x3FD1800032338CBB) // 0.27343754675366555, polynomial
};
struct dinvsqrt_native_block {
    GAP(0, 2)
    SLOT(int32_t, 3, test_bias, 0x80300000)         // takes the high word of 2^-1020 to the least int32
    SLOT(int32_t, 4, test_limit, 0xFF9FFFFF)        // and that of the largest number below 2^1022 here
    SLOT(uint64_t, 5, low_mask, 0x001FFFFFFFFFFFFF) // the fraction and the exponent's lowest bit
    SLOT(uint64_t, 6, exponent_mask, 0x7FF0000000000000)
    SLOT(uint64_t, 7, exponent_one, 0x0010000000000000) // the exponent's lowest bit
    GAP(8, 8)
    SLOT(uint64_t, 9, float_bias, 0x07F0000000000000)  // 127, the bias of float, in the exponent field
    SLOT(uint64_t, 10, scale_bias, 0xBFD0000000000000) // 3 * 1023 in the exponent field
    GAP(11, 13)
    SLOT(double, 14, one, 0x3FF0000000000000)
    GAP(15, 16)
    // Fit on |u| <= 2^-10.4: a0 + a1*u + a2*u^2 = 1/sqrt(1 - u) to 2^-34.8 relative
    SLOT(double, 17, a0, 0x3FEFFFFFFFFFFF4F) // 0.9999999999999803
    SLOT(double, 18, a1, 0x3FE000004379ADB7) // 0.5000001256825531
    SLOT(double, 19, a2, 0x3FD80000C4CD9197) // 0.37500018328707924
};
ORVANE_BLOCK(dinvsqrt_block, __orvane_dinvsqrt_data)
ORVANE_BLOCK(dinvsqrt_native_block, __orvane_dinvsqrt_native_data)
ORVANE_BLOCK_TWIN(__orvane_dinvsqrt_half_data, __orvane_dinvsqrt_native_data)

template <class T> struct hardware_sqrt : kernel<one_argument<T>> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<T, W> x) { return sqrt(x); }
};
using dsqrt = hardware_sqrt<double>;
using ssqrt = hardware_sqrt<float>;
ORVANE_EXPORT_SETTLED(sqrt, , dsqrt)
ORVANE_TWIN_SETTLED(sqrt, _native, sqrt, )
ORVANE_TWIN_SETTLED(sqrt, _half, sqrt, )
ORVANE_EXPORT_SETTLED(sqrtf, , ssqrt)

// Whether x lies outside the positive normal numbers that the formula takes. With the least of them subtracted, words
// of zeros, negatives, smaller numbers, infinities and NaN all compare as greater than the limit.
template <class T, int W> ORVANE_INLINE auto outside_range(const auto& c, lanes<T, W> x) {
    return marked<T, W>(words(x) - c.test_bias > c.test_limit);
}

// x e; for 0 and +Inf that is 0 * Inf, a NaN.
struct ssqrt_native : kernel<one_argument<float>> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<float, W> x) {
        return x * rsqrt_estimate(x);
    }
};
// Largest known error of sqrtf_native: 4156 ulp at 0x3C6F97FF, with one processor's estimates
ORVANE_EXPORT_SETTLED(sqrtf, _native, ssqrt_native)

struct ssqrt_half : kernel<one_argument<float>, __orvane_ssqrt_half_data, __orvane_ssqrt_cout_rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const ssqrt_half_block& c, lanes<float, W> x) {
        return answer{x * rsqrt_estimate(x), outside_range(c, x)};
    }
};
// Largest known error of sqrtf_half: 4156 ulp at 0x396F97FF, with one processor's estimates
// Largest known error of sqrtf_half, slow path: 0.5 ulp at 0x0047F021
ORVANE_EXPORT(sqrtf, _half, ssqrt_half)

struct sinvsqrt : kernel<one_argument<float>, __orvane_sinvsqrt_data, __orvane_sinvsqrt_cout_rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const sinvsqrt_block& c, lanes<float, W> x) {
        auto e = rsqrt_estimate(x) & c.estimate_mask; // nine bits: e * e is exact
        auto d = fma(x, e * e, -lanes<float, W>(c.one));
        auto q = d * horner(d, c.k3, c.k2, c.k1);
        return answer{fma(e, q, e), outside_range(c, x)};
    }
};
// Largest known error of rsqrtf: 0.5099 ulp at 0x44729337, with one processor's estimates
// Largest known error of rsqrtf, slow path: 0.5 ulp at 0x004EFE54
ORVANE_EXPORT(rsqrtf, , sinvsqrt)

// One Newton step: e (3 - x e^2) / 2.
struct sinvsqrt_native : kernel<one_argument<float>, __orvane_sinvsqrt_native_data, __orvane_sinvsqrt_cout_rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const sinvsqrt_block& c, lanes<float, W> x) {
        auto e = rsqrt_estimate(x);
        auto a = fma(x * e, e, -lanes<float, W>(c.three));
        auto h = e * c.minus_half;
        return answer{h * a, outside_range(c, x)};
    }
};
// Largest known error of rsqrtf_native: 2.386 ulp at 0x31872807, with one processor's estimates
// Largest known error of rsqrtf_native, slow path: 0.5 ulp at 0x004EFE54
ORVANE_EXPORT(rsqrtf, _native, sinvsqrt_native)
ORVANE_TWIN(rsqrtf, _half, rsqrtf, _native)

// The estimate exists in single precision alone. x = f 4^k with f the significand, or twice it, as the exponent's
// parity has it: in integers f is brought into a float, cut short, and 2^-k made from the rest of the exponent.
template <const auto& Block> struct dinvsqrt_series
    : kernel<one_argument<double>, Block, __orvane_dinvsqrt_cout_rare> {
    template <int W> static ORVANE_INLINE auto prepare(const auto& c, lanes<double, W> x) {
        auto exponent = bits(x) & c.exponent_mask;
        auto even = andnot(exponent, c.exponent_one);
        auto f = (even + c.float_bias) | (bits(x) & c.low_mask);
        auto r = convert<double>(rsqrt_estimate(as<float>(low_words(f >> 29))));
        auto g = as<double>((even - exponent + c.scale_bias) >> 1);
        return r * g;
    }
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<double, W> x, lanes<double, W> y0) {
        auto u = fma(-x, y0 * y0, c.one);
        lanes<double, W> y;
        if constexpr (requires { c.c3; }) y = fma(y0, u * horner(u, c.c3, c.c2, c.c1, c.c0), y0);
        else y = y0 * horner(u, c.a2, c.a1, c.a0);
        return answer{y, outside_range(c, x)};
    }
};
using dinvsqrt = dinvsqrt_series<__orvane_dinvsqrt_data>;
using dinvsqrt_native = dinvsqrt_series<__orvane_dinvsqrt_native_data>;
// Largest known error of rsqrt: 0.5291 ulp at 0x3FF00012D7EC1C5C, with one processor's estimates
// Largest known error of rsqrt, slow path: 0.5011 ulp at 0x02304636EA13384F
ORVANE_EXPORT(rsqrt, , dinvsqrt)
// Largest known error of rsqrt_native: 3.068e-11 relative at 0x07AF6541410048F8, with one processor's estimates
// Largest known error of rsqrt_native, slow path: 0.5008 ulp at 0x7FE1BFCEF64CC486
ORVANE_EXPORT(rsqrt, _native, dinvsqrt_native)
ORVANE_TWIN(rsqrt, _half, rsqrt, _native)

} // namespace orvane
