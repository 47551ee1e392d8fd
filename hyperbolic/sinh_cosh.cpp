// sinh and cosh. abs(x) = m ln 2 + r, S = sinh(m ln 2) and C = cosh(m ln 2) come from powers of two by integer
// additions to exponent fields, and
//
//     sinh abs(x) = S + (S (cosh r - 1) + C sinh r),  cosh abs(x) = C + (C (cosh r - 1) + S sinh r):
//
// the two functions differ in which of S and C leads.
#include "frame/_orvane_template.h"
#include "hyperbolic/hyperbolic_tables.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dsinh_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_ssinh_cout_rare, const float* x, float* result);
ORVANE_SLOW_PATH(__orvane_dcosh_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_scosh_cout_rare, const float* x, float* result);

struct ssinh_block {
    GAP(0, 14)
    SLOT(float, 15, log2e, 0x3FB8AA3B)  // 1.442695, 1/ln 2
    SLOT(float, 16, ln2_hi, 0x3F317000) // 0.69311523, ln 2, leading part
    SLOT(float, 17, ln2_lo, 0x3805FDF4) // 3.1946183e-05, ln 2 - ln2_hi
    SLOT(float, 18, sign_mask, 0x80000000)
    GAP(19, 19)
    SLOT(float, 20, shifter, 0x4B400000) // 1.5 * 2^23
    GAP(21, 21)
    SLOT(int32_t, 22, large_limit, 0x42AEAC4E) // 87.33653, compared as an integer
    GAP(23, 23)
    // Fit on |r| <= ln2/2: r + s1*r^3 + s2*r^5 = sinh(r) to 2^-26.2 relative
    // Fit on |r| <= ln2/2: 1 + c1*r^2 + c2*r^4 + c3*r^6 = cosh(r) to 2^-33.2 relative
    SLOT(float, 24, c1, 0x3F000000)           // 0.5, coefficient of r^2 in cosh r - 1
    SLOT(float, 25, s1, 0x3E2AAA57)           // 0.16666542, coefficient of r^3 in sinh r
    SLOT(float, 26, c2, 0x3D2AAA72)           // 0.041666456, coefficient of r^4
    SLOT(float, 27, s2, 0x3C091461)           // 0.008366675, coefficient of r^5
    SLOT(float, 28, c3, 0x3AB6A8A3)           // 0.0013935756, coefficient of r^6
    SLOT(uint32_t, 29, half_bits, 0x3F000000) // bits of 0.5, base of the exponent arithmetic
};
struct scosh_block {
    GAP(0, 11)
    SLOT(float, 12, log2e, 0x3FB8AA3B) // 1.442695, 1/ln 2
    GAP(13, 13)
    SLOT(float, 14, ln2_hi, 0x3F317000) // 0.69311523, ln 2, leading part
    SLOT(float, 15, ln2_lo, 0x3805FDF4) // 3.1946183e-05, ln 2 - ln2_hi
    SLOT(float, 16, sign_mask, 0x80000000)
    GAP(17, 19)
    SLOT(float, 20, shifter, 0x4B400000) // 1.5 * 2^23
    GAP(21, 21)
    SLOT(int32_t, 22, large_limit, 0x42AEAC4E) // 87.33653, compared as an integer
    GAP(23, 23)
    // Fit on |r| <= ln2/2: r + s1*r^3 + s2*r^5 = sinh(r) to 2^-26.2 relative
    // Fit on |r| <= ln2/2: 1 + c1*r^2 + c2*r^4 + c3*r^6 = cosh(r) to 2^-33.2 relative
    SLOT(float, 24, c1, 0x3F000000)           // 0.5, coefficient of r^2 in cosh r - 1
    SLOT(float, 25, s1, 0x3E2AAA57)           // 0.16666542, coefficient of r^3 in sinh r
    SLOT(float, 26, c2, 0x3D2AAA72)           // 0.041666456, coefficient of r^4
    SLOT(float, 27, s2, 0x3C091461)           // 0.008366675, coefficient of r^5
    SLOT(float, 28, c3, 0x3AB6A8A3)           // 0.0013935756, coefficient of r^6
    SLOT(uint32_t, 29, half_bits, 0x3F000000) // bits of 0.5, base of the exponent arithmetic
};
struct ssinh_native_block {
    GAP(0, 14)
    SLOT(float, 15, log2e, 0x3FB8AA3B)  // 1.442695, 1/ln 2
    SLOT(float, 16, ln2_hi, 0x3F317000) // 0.69311523, ln 2, leading part
    SLOT(float, 17, ln2_lo, 0x3805FDF4) // 3.1946183e-05, ln 2 - ln2_hi
    SLOT(float, 18, sign_mask, 0x80000000)
    GAP(19, 19)
    SLOT(float, 20, shifter, 0x4B400000) // 1.5 * 2^23
    GAP(21, 21)
    SLOT(int32_t, 22, large_limit, 0x42AEAC4E) // 87.33653, compared as an integer
    // Fit on |r| <= ln2/2: a0*r + a1*r^3 = sinh(r) to 2^-13.9 relative
    // Fit on |r| <= ln2/2: 1 + b0*r^2 + b1*r^4 = cosh(r) to 2^-20.3 relative
    SLOT(float, 23, a0, 0x3F7FFBC9) // 0.9999357, sinh r / r, constant term, not 1
    SLOT(float, 24, b0, 0x3EFFFB2F) // 0.49996325, (cosh r - 1)/r^2, constant term
    SLOT(float, 25, a1, 0x3E2CCD2E) // 0.16875145, sinh r / r, r^2 term
    SLOT(float, 26, b1, 0x3D2CA395) // 0.04214819, (cosh r - 1)/r^2, r^2 term
    SLOT(uint32_t, 27, half_bits, 0x3F000000)
};
struct scosh_native_block {
    GAP(0, 11)
    SLOT(float, 12, log2e, 0x3FB8AA3B) // 1.442695, 1/ln 2
    GAP(13, 13)
    SLOT(float, 14, ln2_hi, 0x3F317000) // 0.69311523, ln 2, leading part
    SLOT(float, 15, ln2_lo, 0x3805FDF4) // 3.1946183e-05, ln 2 - ln2_hi
    SLOT(float, 16, sign_mask, 0x80000000)
    GAP(17, 19)
    SLOT(float, 20, shifter, 0x4B400000) // 1.5 * 2^23
    GAP(21, 21)
    SLOT(int32_t, 22, large_limit, 0x42AEAC4E) // 87.33653, compared as an integer
    // Fit on |r| <= ln2/2: a0*r + a1*r^3 = sinh(r) to 2^-13.9 relative
    // Fit on |r| <= ln2/2: 1 + b0*r^2 + b1*r^4 = cosh(r) to 2^-20.3 relative
    SLOT(float, 23, a0, 0x3F7FFBC9) // 0.9999357, sinh r / r, constant term, not 1
    SLOT(float, 24, b0, 0x3EFFFB2F) // 0.49996325, (cosh r - 1)/r^2, constant term
    SLOT(float, 25, a1, 0x3E2CCD2E) // 0.16875145, sinh r / r, r^2 term
    SLOT(float, 26, b1, 0x3D2CA395) // 0.04214819, (cosh r - 1)/r^2, r^2 term
    SLOT(uint32_t, 27, half_bits, 0x3F000000)
};
ORVANE_BLOCK(ssinh_block, __orvane_ssinh_data)
ORVANE_BLOCK(scosh_block, __orvane_scosh_data)
ORVANE_BLOCK(ssinh_native_block, __orvane_ssinh_native_data)
ORVANE_BLOCK(scosh_native_block, __orvane_scosh_native_data)
struct dsinh_block {
    GAP(0, 18)
    SLOT(double, 19, log2e, 0x3FF71547652B82FE)  // 1.4426950408889634, 1/ln 2
    SLOT(double, 20, ln2_hi, 0x3FE62E42FEFA0000) // 0.6931471805582987
    SLOT(double, 21, ln2_lo, 0x3D7CF79ABC9E3B3A) // 1.6465949582897082e-12
    SLOT(double, 22, sign_mask, 0x8000000000000000)
    GAP(23, 24)
    TABLE(25, rows, sinh_rows)
    SLOT(double, 57, shifter, 0x42C8000000000000) // 1.5 * 2^45: leaves 7 fractional bits
    SLOT(int32_t, 58, large_limit, 0x40861D99)    // high word of about 707.7
    GAP(59, 59)
    // Fit on |r| <= ln2/256: r + s1*r^3 + s2*r^5 = sinh(r) to 2^-68.1 relative
    // Fit on |r| <= ln2/256: 1 + c1*r^2 + c2*r^4 = cosh(r) to 2^-65.4 relative
    SLOT(double, 60, c1, 0x3FDFFFFFFFFFFDBD) // 0.49999999999996786
    SLOT(double, 61, s1, 0x3FC55555555554AD) // 0.166666666666662
    SLOT(double, 62, c2, 0x3FA55555CF16D299) // 0.04166668084090936
    SLOT(double, 63, s2, 0x3F8111115712F425) // 0.008333335370815995
    GAP(64, 65)
    SLOT(uint64_t, 66, index_mask, 0x000000000000007F)
};
struct dcosh_block {
    GAP(0, 13)
    TABLE(14, half_powers, half_exp2_256)
    SLOT(double, 47, log2e, 0x3FF71547652B82FE)   // 1.4426950408889634
    SLOT(double, 48, ln2_hi, 0x3FE62E42FEFC0000)  // 0.6931471805728506
    SLOT(double, 49, ln2_lo, 0xBDAC610CA86C3899)  // -1.2905320270077144e-11
    SLOT(double, 50, shifter, 0x42B8000000000000) // 1.5 * 2^44: leaves 8 fractional bits
    SLOT(uint32_t, 51, index_mask, 0x000000FF)
    // Fit on |r| <= ln2/512: r + s1*r^3 = sinh(r) to 2^-47.6 relative
    // Fit on |r| <= ln2/512: 1 + c1*r^2 + c2*r^4 = cosh(r) to 2^-65.4 relative
    SLOT(double, 52, c1, 0x3FDFFFFFFFFFFDBD)  // 0.49999999999996786
    SLOT(double, 53, s1, 0x3FC5555570813E14)  // 0.16666667931939172
    SLOT(double, 54, c2, 0x3FA55555CF16D299)  // 0.04166668084090936
    SLOT(uint32_t, 55, index_top, 0x00000100) // 256
    SLOT(uint64_t, 56, exp_mask, 0x7FF0000000000000)
    SLOT(double, 57, sign_mask, 0x8000000000000000)
    SLOT(int32_t, 58, large_limit, 0x40861D99)
};
ORVANE_BLOCK(dsinh_block, __orvane_dsinh_data)
ORVANE_BLOCK_TWIN(__orvane_dsinh_native_data, __orvane_dsinh_data)
ORVANE_BLOCK(dcosh_block, __orvane_dcosh_data)
ORVANE_BLOCK_TWIN(__orvane_dcosh_native_data, __orvane_dcosh_data)

namespace {

// m, a multiple of a power of 1/2 with its bits at the low end of t, and r.
template <class V> struct multiple_and_rest { V t, r; };
template <class V> ORVANE_INLINE multiple_and_rest<V> split_by_ln2(const auto& c, V ax) {
    auto t = fma(ax, c.log2e, c.shifter);
    auto n = t - c.shifter;
    auto r = fma(-n, c.ln2_hi, ax);
    return {t, fma(-n, c.ln2_lo, r)};
}

template <class V> struct sinh_and_cosh { V S, C; };
template <class V> struct leading { V lead, other; };
template <class V> ORVANE_INLINE leading<V> with_lead(bool sinh, const sinh_and_cosh<V>& f) {
    return sinh ? leading<V>{f.S, f.C} : leading<V>{f.C, f.S};
}

// Of n ln 2, n whole: (2^n -+ 2^-n) / 2.
template <int W> ORVANE_INLINE sinh_and_cosh<lanes<float, W>> of_power(const auto& c, lanes<float, W> t) {
    auto e = bits(t) << 23;
    auto P = as<float>(c.half_bits + e), M = as<float>(c.half_bits - e);
    return {P - M, P + M};
}
// Of (k + j / 128) ln 2: sinh of the whole is 2^k sinh of the fraction + sinh(k ln 2) 2^(-j/128). Entry 0 of the sinh
// column is 0, which an exponent k > 0 turns into a number too small to matter.
template <int W> ORVANE_INLINE sinh_and_cosh<lanes<double, W>> of_power(const dsinh_block& c, lanes<double, W> t) {
    auto j = bits(t) & c.index_mask;
    auto e = (bits(t) ^ j) << 45;
    auto [T0, T1] = lookup_pair_bytes<double>(&c.rows, j << 4);
    auto A = as<double>(bits(T0) + e), B = as<double>(bits(T1) + e), D = as<double>(bits(T1) - e);
    auto Cs = B + D, Sd = B - D;
    return {A + Sd, A + Cs};
}
// Of (k + j / 256) ln 2: half of 2^k 2^(j/256) and half of its reciprocal, 2^(-k-1) 2^(1 - j/256).
template <int W> ORVANE_INLINE sinh_and_cosh<lanes<double, W>> of_power(const dcosh_block& c, lanes<double, W> t) {
    auto j = low_words(t) & c.index_mask;
    auto e = (bits(t) << 44) & c.exp_mask;
    auto G = lookup(c.half_powers.entry, j), H = lookup(c.half_powers.entry, c.index_top - j);
    auto A = as<double>(bits(G) + e);
    auto B = as<double>(bits(H) - (e + lanes<uint64_t, W>(uint64_t(1) << 52)));
    return {A - B, A + B};
}

// lead cosh r + other sinh r.
template <class V> ORVANE_INLINE V combined(const auto& c, const leading<V>& f, V r) {
    auto r2 = r * r;
    if constexpr (requires { c.a0; }) { // sinh r and cosh r - 1 as r and r^2 times polynomials
        auto p = fma(c.a1, r2, V(c.a0)) * f.other, q = fma(c.b1, r2, V(c.b0)) * f.lead;
        return fma(fma(q, r, p), r, f.lead);
    } else if constexpr (requires { c.index_top; }) { // r is half as long: sinh r of two terms
        auto sr = fma(r2 * c.s1, r, r), cr = r2 * fma(c.c2, r2, c.c1);
        return f.lead + fma(cr, f.lead, sr * f.other);
    } else {
        auto sr = fma(r2 * fma(c.s2, r2, c.s1), r, r);
        auto cr = [&]() ORVANE_LAMBDA {
            if constexpr (requires { c.c3; }) return r2 * horner(r2, c.c3, c.c2, c.c1);
            else return r2 * fma(c.c2, r2, c.c1);
        }();
        return f.lead + fma(f.other, sr, f.lead * cr);
    }
}

// Lanes near the ends of the range and beyond, and NaN: one comparison of patterns, in double of the high words
// alone.
template <class T, const auto& Block, auto& Rare> struct sinh_kernel : kernel<one_argument<T>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        using V = lanes<T, W>;
        auto ax = andnot(V(c.sign_mask), x);
        const lane_bits<W> special = marked<T, W>(words(ax) > c.large_limit);
        auto [t, r] = split_by_ln2(c, ax);
        auto y = combined(c, with_lead(true, of_power(c, t)), r);
        return answer{with_sign_of(y, x), special};
    }
};
template <class T, const auto& Block, auto& Rare> struct cosh_kernel : kernel<one_argument<T>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        auto ax = andnot(lanes<T, W>(c.sign_mask), x);
        lane_bits<W> special;
        if constexpr (sizeof(T) == 8) special = marked<T, W>(words(ax) > c.large_limit);
        else special = signed_bits(ax) >= c.large_limit;
        auto [t, r] = split_by_ln2(c, ax);
        return answer{combined(c, with_lead(false, of_power(c, t)), r), special};
    }
};

} // namespace

using dsinh = sinh_kernel<double, __orvane_dsinh_data, __orvane_dsinh_cout_rare>;
using ssinh = sinh_kernel<float, __orvane_ssinh_data, __orvane_ssinh_cout_rare>;
using ssinh_native = sinh_kernel<float, __orvane_ssinh_native_data, __orvane_ssinh_cout_rare>;
using dcosh = cosh_kernel<double, __orvane_dcosh_data, __orvane_dcosh_cout_rare>;
using scosh = cosh_kernel<float, __orvane_scosh_data, __orvane_scosh_cout_rare>;
using scosh_native = cosh_kernel<float, __orvane_scosh_native_data, __orvane_scosh_cout_rare>;

// Largest known error of sinh: 1.896 ulp at 0x3F6CC4ADEE8765F2
// Largest known error of sinh, slow path: 0.5159 ulp at 0x4086330FE3651662
ORVANE_EXPORT(sinh, , dsinh)
ORVANE_TWIN(sinh, _native, sinh, )
// Largest known error of sinhf: 1.546 ulp at 0x3EC3278E
// Largest known error of sinhf, slow path: 0.5 ulp at 0xC2B2753E
ORVANE_EXPORT(sinhf, , ssinh)
// Largest known error of sinhf_native: 1079 ulp at 0x397FFFFF
// Largest known error of sinhf_native, slow path: 0.5 ulp at 0xC2B2753E
ORVANE_EXPORT(sinhf, _native, ssinh_native)
// Largest known error of cosh: 1.516 ulp at 0x4032B2872AE27762
// Largest known error of cosh, slow path: 0.5164 ulp at 0x4086331171B3E7C8
ORVANE_EXPORT(cosh, , dcosh)
ORVANE_TWIN(cosh, _native, cosh, )
// Largest known error of coshf: 2.079 ulp at 0x41003122
// Largest known error of coshf, slow path: 0.5 ulp at 0xC2B2753E
ORVANE_EXPORT(coshf, , scosh)
// Largest known error of coshf_native: 380.4 ulp at 0x40FF1487
// Largest known error of coshf_native, slow path: 0.5 ulp at 0xC2B2753E
ORVANE_EXPORT(coshf, _native, scosh_native)

} // namespace orvane
