// erfc: value and slope at the nearest grid point x0 from a table, and a Taylor step from there, as in erf. The table
// is scaled by a large power of two; the last fused step scales down, so that a subnormal result is rounded once, and
// reflects a negative x: 2 - erfc(|x|).
#include "frame/_orvane_template.h"
#include "special/erf_tables.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_derfc_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_serfc_cout_rare, const float* x, float* result);

struct derfc_block {
    TABLE(0, grid, erfc_at_128ths)
    SLOT(double, 872, abs_mask, 0x7FFFFFFFFFFFFFFF)
    SLOT(double, 873, x_cap, 0x403B3E0000000000) // 3487/128
    SLOT(double, 874, sign_mask, 0x8000000000000000)
    SLOT(double, 875, one, 0x3FF0000000000000)
    SLOT(double, 876, lo_scale, 0x37F0000000000000) // 2^-128
    SLOT(double, 877, shifter, 0x42C0000000000000)  // 2^45
    // Fit on |d| <= 1/256, 0 <= x <= x_cap, u = x*d, slope = 2/sqrt(pi)*exp(-x^2): erfc(x) - slope*d*(1 - u +
    // u^2*(e8 + e7*u + e6*u^2 + e5*u^3 + e4*u^4 + e3*u^5 + e2*u^6 + e1*u^7) + d^2*(h0 + u*(f6 + f5*u + f4*u^2 +
    // f3*u^3 + f2*u^4 + f1*u^5) + d^2*(g4 + g3*u + g2*u^2 + g1*u^3))) = erfc(x + d) to 2^-54.2 relative
    SLOT(double, 878, e1, 0xBF2282C89A04C65F)
    SLOT(double, 879, e2, 0x3F472360BAC04E70)
    SLOT(double, 880, f1, 0xBF8441DF86900A46)
    SLOT(double, 881, f2, 0x3FA117ABF1FEA28C)
    SLOT(double, 882, g1, 0xBFB56433674BA5C2)
    SLOT(double, 883, g2, 0x3FC256E8E6045CDF)
    SLOT(double, 884, e3, 0xBF6A019F4F234617)
    SLOT(double, 885, f3, 0xBFB8618412BC79EC)
    SLOT(double, 886, g3, 0xBFC5554E249FF4A7)
    SLOT(double, 887, e4, 0x3F8A019F5AEED25F)
    SLOT(double, 888, f4, 0x3FCC71C4B73B20B6)
    SLOT(double, 889, g4, 0x3FB9998F9D0729DA)
    SLOT(double, 890, e5, 0xBFA6C16C16D06420)
    SLOT(double, 891, f5, 0xBFD9999999F3D838)
    SLOT(double, 892, e6, 0x3FC11111111AB082)
    SLOT(double, 893, f6, 0x3FE0000000379730)
    SLOT(double, 894, h0, 0xBFD5555555554ADD)
    SLOT(double, 895, e7, 0xBFD555555555548A)
    SLOT(double, 896, e8, 0x3FE55555555554CF)
    SLOT(double, 897, limit, 0x403B39DC41E48BFD)
    GAP(898, 898)
    SLOT(uint64_t, 899, idx_mask, 0x00000000FFFFFFFF)
};
ORVANE_BLOCK(derfc_block, __orvane_derfc_data)

struct derfc_native_block {
    TABLE(0, grid, erfc_at_64ths)
    SLOT(double, 436, abs_mask, 0x7FFFFFFFFFFFFFFF)
    SLOT(double, 437, x_cap, 0x403B3C0000000000) // 1743/64
    SLOT(double, 438, sign_mask, 0x8000000000000000)
    SLOT(double, 439, one, 0x3FF0000000000000)
    SLOT(double, 440, lo_scale, 0x37F0000000000000) // 2^-128
    SLOT(double, 441, shifter, 0x42D0000000000000)  // 2^46
    // Fit on |d| <= 1/128, 0 <= x <= x_cap, u = x*d, slope = 2/sqrt(pi)*exp(-x^2): erfc(x) - slope*d*(1 + h1*u +
    // u^2*(e6 + e5*u + e4*u^2 + e3*u^3 + e2*u^4 + e1*u^5) + d^2*(f4 + f3*u + f2*u^2 + f1*u^3)) = erfc(x + d)
    // to 2^-33.9 relative
    SLOT(double, 442, e1, 0xBF6A1FDD30652EA1)
    SLOT(double, 443, e2, 0x3F8A1F05F5094FB6)
    SLOT(double, 444, f1, 0x3FCCBC5887DF9127)
    SLOT(double, 445, f2, 0xBFD9E0A0FBE743D2)
    SLOT(double, 446, e3, 0xBFA6C15C3DA087D4)
    SLOT(double, 447, f3, 0x3FDFFF6F976A22C5)
    SLOT(double, 448, e4, 0x3FC111066671A484)
    SLOT(double, 449, f4, 0xBFD554EE2F28F34D)
    SLOT(double, 450, e5, 0xBFD555555ADC4EA0)
    SLOT(double, 451, e6, 0x3FE555555933BC54)
    SLOT(double, 452, h1, 0xBFEFFFFFFFFEB794)
    SLOT(double, 453, limit, 0x403B39DC41E48BFD)
    GAP(454, 454)
    SLOT(uint64_t, 455, idx_mask, 0x00000000FFFFFFFF)
};
ORVANE_BLOCK(derfc_native_block, __orvane_derfc_native_data)

struct serfc_block {
    TABLE(0, grid, erfcf_at_64ths)
    SLOT(float, 81, abs_mask, 0x7FFFFFFF)
    SLOT(float, 82, x_cap, 0x41210000) // 644/64
    SLOT(float, 83, sign_mask, 0x80000000)
    SLOT(float, 84, one, 0x3F800000)
    SLOT(float, 85, shifter, 0x48000000)  // 2^17
    SLOT(float, 86, lo_scale, 0x27800000) // 2^-48
    // Fit on |d| <= 1/128, 0 <= x <= x_cap, u = x*d, slope = 2/sqrt(pi)*exp(-x^2): erfc(x) - slope*d*(1 + u*(e4 +
    // e3*u + e2*u^2 + e1*u^3) + d^2*(f2 + f1*u)) = erfc(x + d) to 2^-25.8 relative
    SLOT(float, 87, e1, 0x3E08A7CA)
    SLOT(float, 88, e2, 0xBEAACF22)
    SLOT(float, 89, f1, 0x3F005B36)
    SLOT(float, 90, f2, 0xBEAB4EDB)
    SLOT(float, 91, e3, 0x3F2AAAA6)
    SLOT(float, 92, e4, 0xBF7FFFFC)
    SLOT(float, 93, limit, 0x4120DDFB)
};
ORVANE_BLOCK(serfc_block, __orvane_serfc_data)

struct serfc_native_block {
    TABLE(0, grid, erfcf_at_32nds)
    SLOT(float, 41, abs_mask, 0x7FFFFFFF)
    SLOT(float, 42, x_cap, 0x41210000) // 322/32
    SLOT(float, 43, sign_mask, 0x80000000)
    SLOT(float, 44, one, 0x3F800000)
    SLOT(float, 45, shifter, 0x48800000)  // 2^18
    SLOT(float, 46, lo_scale, 0x27800000) // 2^-48
    // Fit on |d| <= 1/64, 0 <= x <= x_cap, u = x*d, slope = 2/sqrt(pi)*exp(-x^2): erfc(x) - slope*d*(1 + u*(e3 +
    // e2*u + e1*u^2)) = erfc(x + d) to 2^-15.3 relative
    SLOT(float, 47, e1, 0xBEAB6147)
    SLOT(float, 48, e2, 0x3F2B4F03)
    SLOT(float, 49, e3, 0xBF7FFF8B)
    SLOT(float, 50, limit, 0x4120DDFB)
};
ORVANE_BLOCK(serfc_native_block, __orvane_serfc_native_data)

// The scaled erfc at x0 + d, from u = x0 d and d^2: value - (1 + q) slope d.
struct derfc_step {
    template <int W>
    static ORVANE_INLINE auto of(const auto& c, auto T1, auto T2, lanes<double, W> d, auto u, auto D2) {
        auto pe = horner(u, c.e1, c.e2, c.e3, c.e4, c.e5, c.e6, c.e7, c.e8);
        auto pf = horner(u, c.f1, c.f2, c.f3, c.f4, c.f5, c.f6);
        auto pg = fma(horner(u, c.g1, c.g2, c.g3, c.g4), D2, c.h0);
        pg = fma(u, pf, pg);
        auto q = fma(D2, pg, -u);
        q = fma(u * u, pe, q);
        auto s = T2 * d;
        return T1 - fma(q, s, s);
    }
};
struct derfc_native_step {
    template <int W>
    static ORVANE_INLINE auto of(const auto& c, auto T1, auto T2, lanes<double, W> d, auto u, auto D2) {
        auto pe = horner(u, c.e1, c.e2, c.e3, c.e4, c.e5, c.e6);
        auto pf = horner(u, c.f1, c.f2, c.f3, c.f4);
        auto q = fma(lanes<double, W>(c.h1), u, D2 * pf);
        q = fma(u * u, pe, q);
        auto s = T2 * d;
        return T1 - fma(q, s, s);
    }
};
struct serfc_step {
    template <int W>
    static ORVANE_INLINE auto of(const auto& c, auto T1, auto T2, lanes<float, W> d, auto u, auto D2) {
        auto pf = horner(u, c.f1, c.f2);
        auto pe = horner(u, c.e1, c.e2, c.e3, c.e4);
        auto p = fma(pe, u, D2 * pf);
        return fma(-d, fma(p, T2, T2), T1);
    }
};
struct serfc_native_step {
    template <int W> static ORVANE_INLINE auto of(const auto& c, auto T1, auto T2, lanes<float, W> d, auto u, auto) {
        auto p = u * horner(u, c.e1, c.e2, c.e3);
        return fma(-d, fma(p, T2, T2), T1);
    }
};

template <class T, const auto& Block, auto& Rare, class Step> struct erfc_kernel
    : kernel<one_argument<T>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        lane_bits<W> special = not_less(x, lanes<T, W>(c.limit)); // or NaN
        auto X = min(x & c.abs_mask, lanes<T, W>(c.x_cap));
        auto t = X + c.shifter;
        auto [T1, T2] = value_and_slope_at(c, t);
        auto x0 = t - c.shifter;
        auto d = max(X, lanes<T, W>(c.lo_scale)) - x0;
        auto E = Step::of(c, T1, T2, d, x0 * d, d * d);
        auto sg = x & c.sign_mask;
        auto base = c.one - (sg | c.one); // 0 or 2
        return answer{fma(sg | c.lo_scale, E, base), special};
    }
};
using derfc_kernel = erfc_kernel<double, __orvane_derfc_data, __orvane_derfc_cout_rare, derfc_step>;
using derfc_native_kernel =
    erfc_kernel<double, __orvane_derfc_native_data, __orvane_derfc_cout_rare, derfc_native_step>;
using serfc_kernel = erfc_kernel<float, __orvane_serfc_data, __orvane_serfc_cout_rare, serfc_step>;
using serfc_native_kernel =
    erfc_kernel<float, __orvane_serfc_native_data, __orvane_serfc_cout_rare, serfc_native_step>;
// Largest known error of erfc: 2.065 ulp at 0x40397AF7A88EA619
// Largest known error of erfc, slow path: 0.5 ulp at 0x403B39DC41E48BFD
ORVANE_EXPORT(erfc, , derfc_kernel)
// Largest known error of erfc_native: 7.638e-10 relative at 0x403475FFFFFFF0FC
// Largest known error of erfc_native, slow path: 0.5 ulp at 0x403B39DC41E48BFD
ORVANE_EXPORT(erfc, _native, derfc_native_kernel)
// Largest known error of erfcf: 1.615 ulp at 0x40943F9D
// Largest known error of erfcf, slow path: 0.5 ulp at 0x4120DDFC
ORVANE_EXPORT(erfcf, , serfc_kernel)
// Largest known error of erfcf_native: 404.2 ulp at 0x41073FFF
// Largest known error of erfcf_native, slow path: 0.5 ulp at 0x4120DDFC
ORVANE_EXPORT(erfcf, _native, serfc_native_kernel)

} // namespace orvane
