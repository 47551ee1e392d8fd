// hypot: the root of s = x^2 + y^2 by the processor's estimate e0 of 1 / sqrt(s) and its refinement, where s lies in
// the middle of the range.
#include "frame/_orvane_template.h"
#include "frame/rare.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dhypot_cout_rare, const double* x, const double* y, double* result);
ORVANE_SLOW_PATH(__orvane_shypot_cout_rare, const float* x, const float* y, float* result);

struct dhypot_block {
    GAP(0, 1)
    SLOT(double, 2, one, 0x3FF0000000000000)
    GAP(3, 3)
    // Fit on |h| <= 2^-10.4: 1 + h*(hp0 + hp1*h + hp2*h^2 + hp3*h^3) = 1/sqrt(1 + h) to 2^-54.0 relative
    // Of the fast tier. Fit on |h| <= 2^-10.4: 1 + h*(hp0 + hp1*h) = 1/sqrt(1 + h) to 2^-32.9 relative
    SLOT(double, 4, hp3, 0x3FD1800000000000) // 0.2734375, series of 1 / sqrt(1 + h)
    SLOT(double, 5, hp2, 0xBFD4000000000000) // -0.3125
    SLOT(double, 6, hp1, 0x3FD8000000000000) // 0.375
    SLOT(double, 7, hp0, 0xBFE0000000000000) // -0.5
    GAP(8, 8)
    SLOT(int32_t, 9, hw_min, 0x3BC00000)  // lower bound on the high word of s, about 2^-67
    SLOT(int32_t, 10, hw_max, 0x44100000) // upper bound, about 2^66
    GAP(11, 13)
};
ORVANE_BLOCK(dhypot_block, __orvane_dhypot_data)
ORVANE_BLOCK_TWIN(__orvane_dhypot_native_data, __orvane_dhypot_data)
struct shypot_block {
    GAP(0, 2)
    SLOT(float, 3, half, 0x3F000000)
    SLOT(float, 4, exp_field, 0x7F800000)
    GAP(5, 5)
    SLOT(int32_t, 6, s_min, 0x1E300000) // lower bound on the bits of s, about 2^-67
    SLOT(int32_t, 7, s_max, 0x60A00000) // upper bound, about 2^66
    GAP(8, 8)
};
ORVANE_BLOCK(shypot_block, __orvane_shypot_data)
ORVANE_BLOCK_TWIN(__orvane_shypot_native_data, __orvane_shypot_data)

template <class V> ORVANE_INLINE V sum_of_squares(V x, V y) { return fma(y, y, x * x); }

// 1 / sqrt(s) = e0 (1 + h)^(-1/2), h = s e0^2 - 1; the tiers differ in the terms of the series.
template <bool Native> struct dhypot_kernel
    : kernel<two_arguments<double>, __orvane_dhypot_data, __orvane_dhypot_cout_rare> {
    template <int W>
    static ORVANE_INLINE auto prepare(const dhypot_block& c, lanes<double, W> x, lanes<double, W> y) {
        auto s = sum_of_squares(x, y);
        auto special = marked<double, W>((words(s) > c.hw_max) | (words(s) < c.hw_min));
        auto inside = select(special, lanes<double, W>(c.one), s); // the estimate stays finite
        return three_results{inside, convert<double>(rsqrt_estimate(convert<float>(inside))), special};
    }
    template <int W>
    static ORVANE_INLINE auto vector_path(const dhypot_block& c, lanes<double, W>, lanes<double, W>, auto estimated) {
        using V = lanes<double, W>;
        auto [s, e0, special] = estimated;
        auto h = fma(e0 * e0, s, -V(c.one));
        V P;
        if constexpr (Native) P = horner(h, c.hp1, c.hp0);
        else P = horner(h, c.hp3, c.hp2, c.hp1, c.hp0);
        auto t = h * P * e0 * s;
        return answer{fma(s, e0, t), special};
    }
};
using dhypot = dhypot_kernel<false>;
using dhypot_native = dhypot_kernel<true>;
// Largest known error of hypot: 1.215 ulp at 0x4066E89949DAAA48,0x4020899E372BD122, with one processor's estimates
// Largest known error of hypot, slow path: 0.8533 ulp at 0x0B2413207DD204B4,0x8B14EF6616BC02E7
ORVANE_EXPORT(hypot, , dhypot)
// Largest known error of hypot_native: 4.329e-11 relative at 0x4088FACBE7C499A2,0x4048159F16D032FB, with one processor's estimates
// Largest known error of hypot_native, slow path: 0.8534 ulp at 0x7D84AFB2CD48D4B0,0xFD725F9AA909570D
ORVANE_EXPORT(hypot, _native, dhypot_native)

// A Newton step on g = sqrt(s) and k = 1 / (2 sqrt(s)) together, and one more on g by its residual.
struct shypot : kernel<two_arguments<float>, __orvane_shypot_data, __orvane_shypot_cout_rare> {
    template <int W>
    static ORVANE_INLINE auto vector_path(const shypot_block& c, lanes<float, W> x, lanes<float, W> y) {
        auto s = sum_of_squares(x, y);
        auto special = (words(s) > c.s_max) | (words(s) < c.s_min);
        s = select(special, lanes<float, W>(c.half), s);
        auto e0 = rsqrt_estimate(s);
        auto g = s * e0, k = e0 * c.half;
        auto d = fma(-g, k, c.half);
        auto k2 = fma(d, k, k), g2 = fma(d, g, g);
        auto r = fma(g2, g2, -s);
        return answer{fma(-r, k2, g2), special};
    }
};
// Largest known error of hypotf: 1.203 ulp at 0x3FB5E2BE,0xBAE24631, with one processor's estimates
// Largest known error of hypotf, slow path: 0.5 ulp at 0x1E74E6BD,0xA46A48A8
ORVANE_EXPORT(hypotf, , shypot)

struct shypot_native : kernel<two_arguments<float>, __orvane_shypot_native_data, __orvane_shypot_cout_rare> {
    template <int W>
    static ORVANE_INLINE auto vector_path(const shypot_block& c, lanes<float, W> x, lanes<float, W> y) {
        auto s = sum_of_squares(x, y);
        auto a = bits(s) & c.exp_field;
        auto tiny = a == lanes<uint32_t, W>(0u);
        auto e0 = andnot(as<float>(tiny), rsqrt_estimate(s)); // no 0 * Inf
        return answer{s * e0, tiny | (a == c.exp_field)};
    }
};
// Largest known error of hypotf_native: 4157 ulp at 0x4477A92F,0x3F9460BE, with one processor's estimates
// Largest known error of hypotf_native, slow path: 0.5 ulp at 0x9D748F91,0x977A370D
ORVANE_EXPORT(hypotf, _native, shypot_native)

} // namespace orvane
