// sincosf and sincosregf: by multiples of pi/2 and two polynomials, exchanged by the parity of the quadrant. The
// large path runs in double, with 2 / pi cut off where it counts whole turns; every lane is finished here.
#include "frame/_orvane_template.h"
#include "frame/rare.h"

namespace orvane {

// 2 / pi mod 2^(2 - 8 r) as hi + lo.
inline constexpr table<double, 16> mul_hi_entries = {{
#include "trig/tables/two_over_pi_hi.inc"
}};
inline constexpr table<double, 16> mul_lo_entries = {{
#include "trig/tables/two_over_pi_lo.inc"
}};

struct ssincos_block {
    TABLE(0, mul_hi, mul_hi_entries)
    TABLE(2, mul_lo, mul_lo_entries)
    SLOT(float, 4, abs_mask, 0x7FFFFFFF)
    GAP(5, 5)
    SLOT(float, 6, shifter, 0x4B400000) // 1.5 * 2^23
    SLOT(float, 7, two_over_pi, 0x3F22F983)
    SLOT(float, 8, large_limit, 0x49000000)        // 524288.0
    SLOT(double, 9, d_shifter, 0x4338000000000000) // 1.5 * 2^52
    SLOT(float, 10, npi_1, 0xBFC90FDB)             // -pi/2, first piece
    SLOT(float, 11, npi_2, 0x333BBD2E)             // second piece
    SLOT(float, 12, npi_3, 0x26F72CED)             // third piece
    // Fit on |r| <= pi/4: fc0 + fc1*r^2 + fc2*r^4 + fc3*r^6 = cos(r) to 2^-23.6 relative
    SLOT(float, 13, fc3, 0xBAB1FCEB) // cosine polynomial, r^6
    SLOT(float, 14, fc2, 0x3D2A9DD3) // r^4
    SLOT(float, 15, fc1, 0xBEFFFFCB) // r^2
    SLOT(float, 16, fc0, 0x3F800000) // 1.0
    // Fit on |r| <= pi/4: r + r*(fs0 + fs1*r^2 + fs2*r^4 + fs3*r^6) = sin(r) to 2^-27.1 relative
    SLOT(float, 17, fs3, 0xB94C7DCE)               // sine polynomial, r^7
    SLOT(float, 18, fs2, 0x3C088303)               // r^5
    SLOT(float, 19, fs1, 0xBE2AAAA0)               // r^3
    SLOT(float, 20, fs0, 0xB15E870D)               // r^1 correction to the leading r
    SLOT(double, 21, d_two23, 0x4160000000000000)  // 2^23
    SLOT(uint64_t, 22, e_base, 0x0000000000000416) // 1046, the biased exponent of 2^23
    SLOT(double, 23, d_half_pi, 0x3FF921FB54442D18)
    GAP(24, 24)
};
ORVANE_BLOCK(ssincos_block, __orvane_ssincos_data_avx2)
ORVANE_BLOCK_TWIN(__orvane_ssincos_rm_data_avx2, __orvane_ssincos_data_avx2)
ORVANE_BLOCK_TWIN(__orvane_ssincos_native_data_avx2, __orvane_ssincos_data_avx2)
ORVANE_BLOCK_TWIN(__orvane_ssincosreg_data_avx2, __orvane_ssincos_data_avx2)
ORVANE_BLOCK_TWIN(__orvane_ssincosreg_native_data_avx2, __orvane_ssincos_data_avx2)

// The remainder in [-pi/4, pi/4] of as many lanes as fit one register of double, and the quadrant in the low bits.
template <int W> struct quadrant_f32 {
    lanes<float, W> r;
    lanes<uint32_t, W> quadrant;
};
template <int W> ORVANE_INLINE quadrant_f32<W> large_quadrant(const ssincos_block& c, lanes<float, W> ax) {
    auto d = convert<double>(ax);
    // The entry's offset, 8 ((e - 1046) / 8); that of an infinity lies within the block.
    auto e = bits(max(d, lanes<double, W>(c.d_two23))) >> 52;
    auto o = (e - c.e_base) & lanes<uint64_t, W>(~uint64_t(7));
    auto H = lookup_bytes<double>(&c.mul_hi, o), L = lookup_bytes<double>(&c.mul_lo, o);
    auto p = H * d;
    auto lo = fma(H, d, -p);
    auto T = p + c.d_shifter;
    auto f = p - (T - c.d_shifter); // in quarter turns, from -1/2 to 1/2
    lo = fma(d, L, lo);
    f = lo + f;
    return {convert<float>(c.d_half_pi * f), low_words(T)};
}

template <class Signature> struct ssincos_kernel : kernel<Signature, __orvane_ssincos_data_avx2> {
    template <int W> static ORVANE_INLINE auto reduce(const ssincos_block& c, lanes<float, W> x) {
        auto ax = x & c.abs_mask;
        auto t = fma(ax, c.two_over_pi, c.shifter); // n in the low bits
        auto n = t - c.shifter;
        auto r = fma(n, c.npi_1, ax);
        r = fma(n, c.npi_2, r);
        r = fma(n, c.npi_3, r);
        return answer{r, bits(t), not_less(ax, lanes<float, W>(c.large_limit))};
    }
    template <int W> static ORVANE_INLINE auto large_reduce(const ssincos_block& c, lanes<float, W> x, auto reduced) {
        auto ax = x & c.abs_mask;
        lanes<float, W> r;
        lanes<uint32_t, W> t;
        if constexpr (W == 8) {
            auto low = large_quadrant(c, low_half(ax)), high = large_quadrant(c, high_half(ax));
            r = join(low.r, high.r);
            t = join(low.quadrant, high.quadrant);
        } else {
            auto all = large_quadrant(c, ax);
            r = all.r, t = all.quadrant;
        }
        const auto large = reduced.special;
        return answer{select(large, r, reduced.first), select(large, t, reduced.second), large};
    }
    template <int W> static ORVANE_INLINE auto vector_path(const ssincos_block& c, lanes<float, W> x, auto reduced) {
        using V = lanes<float, W>;
        auto r = reduced.first;
        auto t = reduced.second;
        auto r2 = r * r;
        auto sv = fma(horner(r2, c.fs3, c.fs2, c.fs1, c.fs0), r, r);
        auto cv = horner(r2, c.fc3, c.fc2, c.fc1, c.fc0);

        // Bit 0 exchanges the two, bit 1 turns both signs, bit 0 the cosine's once more.
        auto odd = t << 31, half_turn = t << 30;
        auto is_odd = as<int32_t>(odd);
        auto sine_sign = as<float>(half_turn) ^ x, cosine_sign = as<float>(half_turn ^ odd);
        auto sine = select(is_odd, cv, sv) ^ andnot(V(c.abs_mask), sine_sign);
        auto cosine = select(is_odd, sv, cv) ^ andnot(V(c.abs_mask), cosine_sign);
        return results{sine, cosine};
    }
};

using ssincos = ssincos_kernel<pointer_out<float>>;
using ssincosreg = ssincos_kernel<pair_result<float>>;
// Largest known error of sincosf: 2.134 ulp at 0xC077D1D6
// Largest known error of sincosf, large arguments: 2.054 ulp at 0x5A611FCF
ORVANE_EXPORT_SETTLED(sincosf, , ssincos)
ORVANE_TWIN_SETTLED(sincosf, _rm, sincosf, )
ORVANE_TWIN_SETTLED(sincosf, _native, sincosf, )
// Largest known error of sincosregf: 2.152 ulp at 0x40779C6A
// Largest known error of sincosregf, large arguments: 2.106 ulp at 0xE14E31B1
ORVANE_EXPORT_SETTLED(sincosregf, , ssincosreg)
ORVANE_TWIN_SETTLED(sincosregf, _native, sincosregf, )

} // namespace orvane
