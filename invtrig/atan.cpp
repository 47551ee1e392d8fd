// atan and atanpi. But for the default double kernel, which reads a table, all turn |x| > 1 round by
// atan(x) = +-pi/2 + atan(-1 / x) and have one polynomial on [-1, 1].
#include "frame/rare.h"
#include "invtrig/atan_kernels.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_datan_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_satan_cout_rare, const float* x, float* result);
ORVANE_SLOW_PATH(__orvane_datanpi_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_satanpi_cout_rare, const float* x, float* result);

// atan(k / 4)
inline constexpr table<double, 32> atan_quarters = {{
#include "invtrig/tables/atan_quarters.inc"
}};
// Fit on |r| <= 8/63: r + r^3*atan_near_quarter(r^2) = atan(r) to 2^-54.8 relative
inline constexpr coefficients<double, 6> atan_near_quarter = {{0x3FB2E9B9F5C4FE97, 0xBFB74257C46790CC,
                                                               0x3FBC71BFEFF916A0, 0xBFC249248EEF04DA,
                                                               0x3FC999999998741E, 0xBFD555555555554D}};

struct datan_block {
    SLOT(double, 0, abs_mask, 0x7FFFFFFFFFFFFFFF)
    SLOT(double, 1, quarter_shifter, 0x4318000000000000) // 1.5 * 2^50: rounds to quarters
    SLOT(double, 2, table_limit, 0x401F800000000000)     // 7.875: beyond it the reciprocal
    SLOT(double, 3, neg_one, 0xBFF0000000000000)
    SLOT(double, 4, one, 0x3FF0000000000000)
    SLOT(double, 5, cap, 0x47F0000000000000) // 2^128
    GAP(6, 6)
    TABLE(7, atan_tab, atan_quarters)
    GAP(11, 15)
    SLOT(double, 16, pi_half, 0x3FF921FB54442D18)
    GAP(17, 17)
    TABLE(18, poly, atan_near_quarter)
};
ORVANE_BLOCK(datan_block, __orvane_datan_data_avx512)
struct datan_native_block {
    SLOT(double, 0, sign_mask, 0x8000000000000000)
    SLOT(double, 1, abs_mask, 0x7FFFFFFFFFFFFFFF)
    SLOT(double, 2, one, 0x3FF0000000000000)
    SLOT(double, 3, pi_half, 0x3FF921FB54442D18)
    SLOT(double, 4, inf, 0x7FF0000000000000)
    TABLE(5, poly, atan_fast)
};
ORVANE_BLOCK(datan_native_block, __orvane_datan_native_data)
struct satan_block {
    SLOT(float, 0, sign_mask, 0x80000000)
    SLOT(float, 1, abs_mask, 0x7FFFFFFF)
    SLOT(float, 2, one, 0x3F800000)
    GAP(3, 3)
    SLOT(float, 4, pi_half, 0x3FC90FDB)
    GAP(5, 5)
    TABLE(6, poly, atanf_accurate)
};
ORVANE_BLOCK(satan_block, __orvane_satan_data)
struct satan_native_block {
    SLOT(float, 0, sign_mask, 0x80000000)
    SLOT(float, 1, abs_mask, 0x7FFFFFFF)
    SLOT(float, 2, one, 0x3F800000)
    SLOT(float, 3, two, 0x40000000)
    SLOT(float, 4, pi_half, 0x3FC90FDB)
    SLOT(float, 5, inf, 0x7F800000)
    TABLE(6, poly, atanf_fast)
};
ORVANE_BLOCK(satan_native_block, __orvane_satan_native_data)
struct datanpi_block {
    GAP(0, 0)
    SLOT(double, 1, half, 0x3FE0000000000000)
    TABLE(2, poly, atanpi_accurate)
    RANGE_SLOTS(24)
    GAP(28, 28)
    WORD_ESTIMATE_SLOTS(29)
    SLOT(double, 36, neg_one, 0xBFF0000000000000)
};
ORVANE_BLOCK(datanpi_block, __orvane_datanpi_data)
struct datanpi_native_block {
    GAP(0, 0)
    SLOT(double, 1, half, 0x3FE0000000000000)
    TABLE(2, poly, atanpi_fast)
    RANGE_SLOTS(12)
    GAP(16, 16)
    WORD_ESTIMATE_SLOTS(17)
    SLOT(double, 24, neg_one, 0xBFF0000000000000)
};
ORVANE_BLOCK(datanpi_native_block, __orvane_datanpi_native_data)
struct satanpi_block {
    SLOT(float, 0, one, 0x3F800000)
    SLOT(float, 1, neg_one, 0xBF800000)
    SLOT(float, 2, abs_mask, 0x7FFFFFFF)
    GAP(3, 5)
    SLOT(float, 6, two, 0x40000000)
    SLOT(float, 7, sign_mask, 0x80000000)
    SLOT(float, 8, half, 0x3F000000)
    GAP(9, 9)
    TABLE(10, poly, atanpif_accurate)
    SLOT(int32_t, 19, bits_bias, 0x81000000)  // takes 2^-125 to the least int32
    SLOT(int32_t, 20, bits_limit, 0xFC000000) // and 2^123 here
};
ORVANE_BLOCK(satanpi_block, __orvane_satanpi_data)
struct satanpi_native_block {
    SLOT(float, 0, one, 0x3F800000)
    SLOT(float, 1, neg_one, 0xBF800000)
    SLOT(float, 2, abs_mask, 0x7FFFFFFF)
    GAP(3, 3)
    SLOT(float, 4, sign_mask, 0x80000000)
    SLOT(float, 5, half, 0x3F000000)
    GAP(6, 6)
    SLOT(float, 7, two, 0x40000000)
    TABLE(8, poly, atanpif_fast)
    SLOT(int32_t, 12, bits_bias, 0x81000000)  // takes 2^-125 to the least int32
    SLOT(int32_t, 13, bits_limit, 0xFC000000) // and 2^123 here
};
ORVANE_BLOCK(satanpi_native_block, __orvane_satanpi_native_data)

// atan x = atan c + atan((x - c) / (1 + c x)), c the multiple of 1/4 nearest to |x|; from 7.875 up pi/2 - atan(1 /
// x). Every lane comes out right: at 2^128 and above, where 1 / x no longer counts, x is capped.
struct atan_table_kernel : kernel<one_argument<double>, __orvane_datan_data_avx512> {
    template <int W> static ORVANE_INLINE auto vector_path(const datan_block& c, lanes<double, W> x) {
        using V = lanes<double, W>;
        V ax = x & c.abs_mask;
        V s = ax + c.quarter_shifter; // 4 c is its low bits
        V centre = s - c.quarter_shifter;
        auto big = V(c.table_limit) <= ax;
        V num = select(big, V(c.neg_one), ax - centre);
        V den = select(big, min(V(c.cap), ax), fma(centre, ax, V(c.one)));
        V r = num / den;
        V T = lookup_bytes<double>(c.atan_tab.entry, (bits(s) << 3) & lanes<uint64_t, W>(31 << 3));
        T = select(big, V(c.pi_half), T);

        const auto& p = c.poly;
        V y = r * r;
        V y2 = y * y;
        V A = fma(V(p[0]), y, p[1]), B = finished(fma(y2, A, fma(V(p[2]), y, p[3])));
        V P = fma(fma(B, y2, fma(V(p[4]), y, p[5])), r * y, r);
        return (T + P) ^ (x ^ ax);
    }
};

// 1 / x for the kernels of atan that turn |x| > 1 round: divided, or an estimate corrected.
template <int W> ORVANE_INLINE auto reciprocal(const satan_block& c, lanes<float, W> x) { return c.one / x; }
template <int W> ORVANE_INLINE auto reciprocal(const satan_native_block& c, lanes<float, W> x) {
    return newton_reciprocal(c, x);
}
template <int W> ORVANE_INLINE auto reciprocal(const datan_native_block& c, lanes<double, W> x) {
    using V = lanes<double, W>;
    V r = reciprocal_estimate(x); // a NaN comes from x, with all its bits
    V e = fma_in_order(x ^ c.sign_mask, r, V(c.one));
    e = fma(e, e, e);
    return fma_in_order(e, r, r);
}

template <class T, const auto& Block> struct atan_settled : kernel<one_argument<T>, Block> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        using V = lanes<T, W>;
        V ax = x & c.abs_mask, sgn = x & c.sign_mask;
        auto inside = ax <= V(c.one);
        V offset = andnot(V(as<T>(inside)), V(c.pi_half)) ^ sgn;
        V z = select(inside, x, reciprocal(c, x) ^ c.sign_mask);
        V y = z * z, P;
        if constexpr (decltype(c.poly)::count == 9) P = fma(two_chains<8>(y, c.poly), y, V(c.poly[8]));
        else P = two_chains<decltype(c.poly)::count>(y, c.poly);
        return fma(P, z, offset);
    }
};
// The estimate of 1 / x times an infinite x is no number.
template <class T, const auto& Block, auto& Rare> struct atan_estimated : kernel<one_argument<T>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        using V = lanes<T, W>;
        return answer{atan_settled<T, Block>::template vector_path<W>(c, x), (x & c.abs_mask) == V(c.inf)};
    }
};

using atanf_default = atan_settled<float, __orvane_satan_data>;
using atan_native = atan_estimated<double, __orvane_datan_native_data, __orvane_datan_cout_rare>;
using atanf_native = atan_estimated<float, __orvane_satan_native_data, __orvane_satan_cout_rare>;
// Largest known error of atan: 2.62 ulp at 0x3FC00722905BB690
ORVANE_EXPORT_SETTLED(atan, , atan_table_kernel)
// Largest known error of atan_native: 2.404e-09 relative at 0xBFC39A5F6B3B8C46, with one processor's estimates
ORVANE_EXPORT(atan, _native, atan_native)
// Largest known error of atanf: 2.466 ulp at 0x3F80BAD6
ORVANE_EXPORT_SETTLED(atanf, , atanf_default)
// Largest known error of atanf_native: 3771 ulp at 0xAD7FFD12, with one processor's estimates
ORVANE_EXPORT(atanf, _native, atanf_native)

template <class T, const auto& Block, auto& Rare, class Quotient, bool Native> struct atanpi_kernel
    : kernel<one_argument<T>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        using V = lanes<T, W>;
        V ax = x & c.abs_mask, sx = x & c.sign_mask;
        auto special = out_of_range<T, W>(c, biased_words(c, ax));
        auto outside = V(c.one) < ax;
        V z = Quotient::of(c, select(outside, V(c.neg_one), ax), max(ax, V(c.one)));
        V y = z * z, P;
        if constexpr (Native) P = two_chains<decltype(c.poly)::count>(y, c.poly);
        else P = horner(y, c.poly);
        return answer{(keep(outside, V(c.half)) + z * P) | sx, special};
    }
};

using atanpi_default =
    atanpi_kernel<double, __orvane_datanpi_data, __orvane_datanpi_cout_rare, word_estimate_long, false>;
using atanpi_native =
    atanpi_kernel<double, __orvane_datanpi_native_data, __orvane_datanpi_cout_rare, word_estimate_short, true>;
using atanpif_default = atanpi_kernel<float, __orvane_satanpi_data, __orvane_satanpi_cout_rare, newton, false>;
using atanpif_native = atanpi_kernel<float, __orvane_satanpi_native_data, __orvane_satanpi_cout_rare, newton, true>;
// Largest known error of atanpi: 2.984 ulp at 0x3FEFFFFDA3952463, with one processor's estimates
// Largest known error of atanpi, slow path: 0.75 ulp at 0x002885345A13B249
ORVANE_EXPORT(atanpi, , atanpi_default)
// Largest known error of atanpi_native: 2.418e-09 relative at 0x3EC00B280241C687, with one processor's estimates
// Largest known error of atanpi_native, slow path: 0.75 ulp at 0x002885345A13B249
ORVANE_EXPORT(atanpi, _native, atanpi_native)
// Largest known error of atanpif: 3.245 ulp at 0xBF7F975D, with one processor's estimates
// Largest known error of atanpif, slow path: 0.5 ulp at 0x8026F5F3
ORVANE_EXPORT(atanpif, , atanpif_default)
// Largest known error of atanpif_native: 3773 ulp at 0xB9C90FD9, with one processor's estimates
// Largest known error of atanpif_native, slow path: 0.5 ulp at 0x809CA39A
ORVANE_EXPORT(atanpif, _native, atanpif_native)

} // namespace orvane
