// div, inv: the processor's division, correctly rounded; the fast tiers of float take its 12-bit reciprocal estimate
// (relative error at most 1.5 * 2^-12) as it stands.
#include "frame/_orvane_template.h"
#include "frame/rare.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_ddiv_cout_rare, const double* x, const double* y, double* result);
ORVANE_SLOW_PATH(__orvane_sdiv_cout_rare, const float* x, const float* y, float* result);
ORVANE_SLOW_PATH(__orvane_sinv_cout_rare, const float* x, float* result);

struct ddiv_block {
    GAP(0, 0)
    SLOT(double, 1, exponent_clear, 0x800FFFFFFFFFFFFF) // keeps sign and fraction
};
struct sdiv_native_block {
    SLOT(int32_t, 0, abs_mask, 0x7FFFFFFF)
    SLOT(int32_t, 1, min_normal_bits, 0x00800000)
    SLOT(int32_t, 2, divisor_limit, 0x7DFFFFFF) // that of the largest number below 2^126, less min_normal_bits
};
struct sinv_block {
    GAP(0, 3)
    SLOT(float, 4, one, 0x3F800000)
};
struct sinv_native_block {
    SLOT(int32_t, 0, abs_mask, 0x7FFFFFFF)
    SLOT(int32_t, 1, min_normal_bits, 0x00800000)
    SLOT(int32_t, 2, divisor_limit, 0x7DFFE800)
};
ORVANE_BLOCK(ddiv_block, __orvane_ddiv_data)
ORVANE_BLOCK_TWIN(__orvane_ddiv_rm_data, __orvane_ddiv_data)
ORVANE_BLOCK_TWIN(__orvane_ddiv_native_data, __orvane_ddiv_data)
ORVANE_BLOCK_TWIN(__orvane_ddiv_half_data, __orvane_ddiv_data)
ORVANE_BLOCK(sdiv_native_block, __orvane_sdiv_native_data)
ORVANE_BLOCK_TWIN(__orvane_sdiv_half_data, __orvane_sdiv_native_data)
ORVANE_BLOCK(sinv_block, __orvane_sinv_data)
ORVANE_BLOCK_TWIN(__orvane_sinv_rm_data, __orvane_sinv_data)
ORVANE_BLOCK(sinv_native_block, __orvane_sinv_native_data)
ORVANE_BLOCK_TWIN(__orvane_sinv_half_data, __orvane_sinv_native_data)

// A zero or subnormal divisor is handed over for its status alone: the quotient is right in every lane.
struct ddiv : kernel<two_arguments<double>, __orvane_ddiv_data, __orvane_ddiv_cout_rare> {
    template <int W>
    static ORVANE_INLINE auto vector_path(const ddiv_block& c, lanes<double, W> x, lanes<double, W> y) {
        auto exponent = andnot(lanes<double, W>(c.exponent_clear), y);
        return answer{x / y, exponent == lanes<double, W>(0.0)};
    }
};
ORVANE_EXPORT(div, , ddiv)
ORVANE_TWIN(div, _rm, div, )
ORVANE_TWIN(div, _native, div, )
ORVANE_TWIN(div, _half, div, )

struct sdiv : kernel<two_arguments<float>> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<float, W> x, lanes<float, W> y) {
        return x / y;
    }
};
ORVANE_EXPORT_SETTLED(divf, , sdiv)
ORVANE_TWIN_SETTLED(divf, _rm, divf, )

// Whether y is zero or subnormal (the subtraction wraps these), infinite, a NaN, or too large for a normal
// reciprocal.
template <int W> ORVANE_INLINE auto beyond_estimate(const auto& c, lanes<float, W> y) {
    return ((signed_bits(y) - c.min_normal_bits) & c.abs_mask) > c.divisor_limit;
}

struct sdiv_native : kernel<two_arguments<float>, __orvane_sdiv_native_data, __orvane_sdiv_cout_rare> {
    template <int W>
    static ORVANE_INLINE auto vector_path(const sdiv_native_block& c, lanes<float, W> x, lanes<float, W> y) {
        return answer{x * reciprocal_estimate(y), beyond_estimate(c, y)};
    }
};
// Largest known error of divf_native: 5291 ulp at 0xBF18F7BE,0xBD98F7FF, with one processor's estimates
// Largest known error of divf_native, slow path: 0.5 ulp at 0x80D10233,0x002F5A3A
ORVANE_EXPORT(divf, _native, sdiv_native)
ORVANE_TWIN(divf, _half, divf, _native)

struct dinv : kernel<one_argument<double>> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<double, W> x) {
        return lanes<double, W>(1.0) / x;
    }
};
ORVANE_EXPORT_SETTLED(inv, , dinv)
ORVANE_TWIN_SETTLED(inv, _rm, inv, )
ORVANE_TWIN_SETTLED(inv, _native, inv, )
ORVANE_TWIN_SETTLED(inv, _half, inv, )

struct sinv : kernel<one_argument<float>, __orvane_sinv_data> {
    template <int W> static ORVANE_INLINE auto vector_path(const sinv_block& c, lanes<float, W> x) {
        return lanes<float, W>(c.one) / x;
    }
};
ORVANE_EXPORT_SETTLED(invf, , sinv)
ORVANE_TWIN_SETTLED(invf, _rm, invf, )

struct sinv_native : kernel<one_argument<float>, __orvane_sinv_native_data, __orvane_sinv_cout_rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const sinv_native_block& c, lanes<float, W> x) {
        return answer{reciprocal_estimate(x), beyond_estimate(c, x)};
    }
};
// Largest known error of invf_native: 4762 ulp at 0x328697FF, with one processor's estimates
// Largest known error of invf_native, slow path: 0.5 ulp at 0xFE7FFFFF
ORVANE_EXPORT(invf, _native, sinv_native)
ORVANE_TWIN(invf, _half, invf, _native)

} // namespace orvane
