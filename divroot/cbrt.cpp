// cbrt and rcbrt: x = m 2^(3 q + rem), so that the root is 2^q (for rcbrt 2^-q) times that of 2^rem m, which a table
// has near m, at a point c; a short polynomial in u = (m - c) / c corrects it. The sign goes into the scale.
#include "divroot/root_tables.h"
#include "frame/_orvane_template.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dcbrt_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_scbrt_cout_rare, const float* x, float* result);
ORVANE_SLOW_PATH(__orvane_dinvcbrt_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_sinvcbrt_cout_rare, const float* x, float* result);

struct dcbrt_block {
    TABLE(0, neg_rcp, cbrt_neg_rcp)
    TABLE(4, root_pairs, cbrt_pairs)
    // Fit on |u| <= 2^-6: 1 + u*(c0 + c1*u + c2*u^2 + c3*u^3 + c4*u^4 + c5*u^5 + c6*u^6 + c7*u^7) = cbrt(1 + u)
    // to 2^-59.7 relative
    SLOT(double, 28, c7, 0xBF9036DE5C9CC8E7)
    SLOT(double, 29, c6, 0x3F93750AD588F115)
    SLOT(double, 30, c5, 0xBF98090D6221A247)
    SLOT(double, 31, c4, 0x3F9EE7113506AC12)
    SLOT(double, 32, c3, 0xBFA511E8D2B3183B)
    SLOT(double, 33, c2, 0x3FAF9ADD3C0CA458)
    SLOT(double, 34, c1, 0xBFBC71C71C71C71C)
    SLOT(double, 35, c0, 0x3FD5555555555555)
    SLOT(double, 36, c_or, 0xBFF0400000000000)
    SLOT(double, 37, c_mask, 0x000FC00000000000)
    SLOT(double, 38, m_or, 0xBFF0000000000000)
    SLOT(double, 39, mant_mask, 0x000FFFFFFFFFFFFF)
    GAP(40, 40)
    SLOT(uint64_t, 41, e_mask, 0x00000000000007FF)
    SLOT(uint64_t, 42, third_mul, 0x0000000000001556) // 2^14 / 3, rounded up
    SLOT(uint32_t, 43, i_mask, 0x000F8000)            // of a high word, the five leading bits of the fraction
    SLOT(int32_t, 44, word_abs, 0x7FFFFFFF)
    SLOT(uint32_t, 45, sign_word, 0x00000800) // the sign, above the exponent
    SLOT(uint32_t, 46, exp_base, 0x000002AA)  // 1023 - 1023 / 3: the root's exponent is this and a third of x's
    SLOT(int32_t, 47, hw_bias, 0x80100000)    // takes the high word of the smallest normal to the least int32
    SLOT(int32_t, 48, hw_limit, 0xFFDFFFFF)   // and that of the largest finite number here
};
ORVANE_BLOCK(dcbrt_block, __orvane_dcbrt_data)
struct dcbrt_native_block {
    TABLE(0, neg_rcp, cbrt_neg_rcp)
    TABLE(4, root_hi, hi_parts(cbrt_pairs))
    GAP(16, 20)
    // Fit on |u| <= 2^-6: 1 + u*(c0 + c1*u + c2*u^2) = cbrt(1 + u) to 2^-28.6 relative
    SLOT(double, 21, c2, 0x3FAF9ADD3C0CA458)
    SLOT(double, 22, c1, 0xBFBC71C71C71C71C)
    SLOT(double, 23, c0, 0x3FD5555555555555)
    SLOT(double, 24, c_or, 0xBFF0400000000000)
    SLOT(double, 25, c_mask, 0x000FC00000000000)
    SLOT(double, 26, m_or, 0xBFF0000000000000)
    SLOT(double, 27, mant_mask, 0x000FFFFFFFFFFFFF)
    GAP(28, 28)
    SLOT(uint64_t, 29, e_mask, 0x00000000000007FF)
    SLOT(uint64_t, 30, third_mul, 0x0000000000001556) // 2^14 / 3, rounded up
    SLOT(uint32_t, 31, i_mask, 0x000F8000)            // of a high word, the five leading bits of the fraction
    SLOT(int32_t, 32, word_abs, 0x7FFFFFFF)
    SLOT(uint32_t, 33, sign_word, 0x00000800) // the sign, above the exponent
    SLOT(uint32_t, 34, exp_base, 0x000002AA)  // 1023 - 1023 / 3: the root's exponent is this and a third of x's
    SLOT(int32_t, 35, hw_bias, 0x80100000)    // takes the high word of the smallest normal to the least int32
    SLOT(int32_t, 36, hw_limit, 0xFFDFFFFF)   // and that of the largest finite number here
};
ORVANE_BLOCK(dcbrt_native_block, __orvane_dcbrt_native_data)
struct dinvcbrt_block {
    TABLE(0, neg_rcp, cbrt_neg_rcp)
    TABLE(4, root_pairs, rcbrt_pairs)
    // Fit on |u| <= 2^-6: 1 + u*(c0 + c1*u + c2*u^2 + c3*u^3 + c4*u^4 + c5*u^5 + c6*u^6 + c7*u^7) = 1/cbrt(1 + u)
    // to 2^-57.5 relative
    SLOT(double, 28, c7, 0x3FB791D4F50A7B47)
    SLOT(double, 29, c6, 0xBFB9B33CA7A65562)
    SLOT(double, 30, c5, 0x3FBC67C9DD3D11BB)
    SLOT(double, 31, c4, 0xBFBFF4C33F90EF5F)
    SLOT(double, 32, c3, 0x3FC26FABB85D0196)
    SLOT(double, 33, c2, 0xBFC61F9ADD3C0CA3)
    SLOT(double, 34, c1, 0x3FCC71C71C71C71C)
    SLOT(double, 35, c0, 0xBFD5555555555555)
    SLOT(double, 36, c_or, 0xBFF0400000000000)
    SLOT(double, 37, c_mask, 0x000FC00000000000)
    SLOT(double, 38, m_or, 0xBFF0000000000000)
    SLOT(double, 39, mant_mask, 0x000FFFFFFFFFFFFF)
    GAP(40, 40)
    SLOT(uint64_t, 41, e_mask, 0x00000000000007FF)
    SLOT(uint64_t, 42, third_mul, 0x0000000000001556) // 2^14 / 3, rounded up
    SLOT(uint32_t, 43, i_mask, 0x000F8000)            // of a high word, the five leading bits of the fraction
    SLOT(int32_t, 44, word_abs, 0x7FFFFFFF)
    SLOT(uint32_t, 45, sign_word, 0x00000800) // the sign, above the exponent
    SLOT(uint32_t, 46, exp_base, 0x00000554)  // 1023 + 1023 / 3: the root's exponent is this less a third of x's
    SLOT(int32_t, 47, hw_bias, 0x80100000)    // takes the high word of the smallest normal to the least int32
    SLOT(int32_t, 48, hw_limit, 0xFFDFFFFF)   // and that of the largest finite number here
};
ORVANE_BLOCK(dinvcbrt_block, __orvane_dinvcbrt_data)
struct dinvcbrt_native_block {
    TABLE(0, neg_rcp, cbrt_neg_rcp)
    TABLE(4, root_hi, hi_parts(rcbrt_pairs))
    GAP(16, 19)
    // Fit on |u| <= 2^-6: 1 + u*(c0 + c1*u + c2*u^2 + c3*u^3) = 1/cbrt(1 + u) to 2^-33.0 relative
    SLOT(double, 20, c3, 0x3FC26FABB85D0196)
    SLOT(double, 21, c2, 0xBFC61F9ADD3C0CA3)
    SLOT(double, 22, c1, 0x3FCC71C71C71C71C)
    SLOT(double, 23, c0, 0xBFD5555555555555)
    SLOT(double, 24, c_or, 0xBFF0400000000000)
    SLOT(double, 25, c_mask, 0x000FC00000000000)
    SLOT(double, 26, m_or, 0xBFF0000000000000)
    SLOT(double, 27, mant_mask, 0x000FFFFFFFFFFFFF)
    GAP(28, 28)
    SLOT(uint64_t, 29, e_mask, 0x00000000000007FF)
    SLOT(uint64_t, 30, third_mul, 0x0000000000001556) // 2^14 / 3, rounded up
    SLOT(uint32_t, 31, i_mask, 0x000F8000)            // of a high word, the five leading bits of the fraction
    SLOT(int32_t, 32, word_abs, 0x7FFFFFFF)
    SLOT(uint32_t, 33, sign_word, 0x00000800) // the sign, above the exponent
    SLOT(uint32_t, 34, exp_base, 0x00000554)  // 1023 + 1023 / 3: the root's exponent is this less a third of x's
    SLOT(int32_t, 35, hw_bias, 0x80100000)    // takes the high word of the smallest normal to the least int32
    SLOT(int32_t, 36, hw_limit, 0xFFDFFFFF)   // and that of the largest finite number here
};
ORVANE_BLOCK(dinvcbrt_native_block, __orvane_dinvcbrt_native_data)
struct scbrt_block {
    TABLE(0, root_pairs_f, cbrtf_rcp_pairs)
    // Fit on -2^-5 <= u <= 2^-11: 1 + u*(c0 + c1*u + c2*u^2 + c3*u^3) = cbrt(1 + u) to 2^-30.6 relative
    SLOT(float, 12, c3, 0xBD288F47)
    SLOT(float, 13, c2, 0x3D7CD6EA)
    SLOT(float, 14, c1, 0xBDE38E39)
    SLOT(float, 15, c0, 0x3EAAAAAB)
    SLOT(float, 16, m_mask_f, 0x007FFFFF)
    GAP(17, 17)
    SLOT(float, 18, one_f, 0x3F800000)
    GAP(19, 19)
    SLOT(uint32_t, 20, i_mask_f, 0x0000007C) // the five leading bits of the fraction, times 4
    SLOT(uint32_t, 21, e_mask_f, 0x000000FF)
    SLOT(uint32_t, 22, sign_bit_f, 0x00000100) // the sign, above the exponent
    SLOT(uint32_t, 23, exp_base_f, 0x00000055) // 127 - 126 / 3: the root's exponent is this and a third of x's
    SLOT(uint32_t, 24, one_i, 0x00000001)
    SLOT(uint32_t, 25, third_mul_f, 0x00000555) // 2^12 / 3, rounded down
    SLOT(int32_t, 26, abs_f, 0x7FFFFFFF)
    SLOT(int32_t, 27, bits_bias, 0x80800000)  // takes the smallest normal to the least int32
    SLOT(int32_t, 28, bits_limit, 0xFEFFFFFF) // and the largest finite number here
    SLOT(float, 29, rcp_mask_f, 0xFFFC0000)   // keeps five bits of the fraction
};
ORVANE_BLOCK(scbrt_block, __orvane_scbrt_data)
struct scbrt_native_block {
    TABLE(0, root_hi_f, hi_parts(cbrtf_rcp_pairs))
    // Fit on -2^-5 <= u <= 2^-11: 1 + u*(c0 + c1*u) = cbrt(1 + u) to 2^-23.0 relative
    SLOT(float, 6, c1, 0xBDE9A440)
    SLOT(float, 7, c0, 0x3EAAA61F)
    SLOT(float, 8, m_mask_f, 0x007FFFFF)
    GAP(9, 9)
    SLOT(float, 10, one_f, 0x3F800000)
    GAP(11, 11)
    SLOT(uint32_t, 12, i_mask_f, 0x0000007C) // the five leading bits of the fraction, times 4
    SLOT(uint32_t, 13, e_mask_f, 0x000000FF)
    SLOT(uint32_t, 14, sign_bit_f, 0x00000100) // the sign, above the exponent
    SLOT(uint32_t, 15, exp_base_f, 0x00000055) // 127 - 126 / 3: the root's exponent is this and a third of x's
    SLOT(uint32_t, 16, one_i, 0x00000001)
    SLOT(uint32_t, 17, third_mul_f, 0x00000555) // 2^12 / 3, rounded down
    SLOT(int32_t, 18, abs_f, 0x7FFFFFFF)
    SLOT(int32_t, 19, bits_bias, 0x80800000)  // takes the smallest normal to the least int32
    SLOT(int32_t, 20, bits_limit, 0xFEFFFFFF) // and the largest finite number here
    SLOT(float, 21, rcp_mask_f, 0xFFFC0000)   // keeps five bits of the fraction
};
ORVANE_BLOCK(scbrt_native_block, __orvane_scbrt_native_data)
struct sinvcbrt_block {
    TABLE(0, neg_rcp_f, cbrtf_neg_rcp)
    TABLE(2, root_pairs_f, rcbrtf_pairs)
    // Fit on |u| <= 2^-6: 1 + u*(c0 + c1*u + c2*u^2 + c3*u^3) = 1/cbrt(1 + u) to 2^-33.4 relative
    SLOT(float, 14, c3, 0x3E137D5E)
    SLOT(float, 15, c2, 0xBE30FCD7)
    SLOT(float, 16, c1, 0x3E638E39)
    SLOT(float, 17, c0, 0xBEAAAAAB)
    SLOT(float, 18, m_mask_f, 0x007FFFFF)
    SLOT(float, 19, c_mask_f, 0x007E0000)
    SLOT(float, 20, m_or_f, 0xBF800000)
    SLOT(float, 21, c_or_f, 0xBF820000)
    SLOT(uint32_t, 22, i_mask_f, 0x0000007C) // the five leading bits of the fraction, times 4
    SLOT(uint32_t, 23, e_mask_f, 0x000000FF)
    SLOT(uint32_t, 24, sign_bit_f, 0x00000100) // the sign, above the exponent
    SLOT(uint32_t, 25, exp_base_f, 0x000000A9)
    SLOT(uint32_t, 26, one_i, 0x00000001)
    SLOT(uint32_t, 27, third_mul_f, 0x00000555) // 2^12 / 3, rounded down
    SLOT(int32_t, 28, abs_f, 0x7FFFFFFF)
    SLOT(int32_t, 29, bits_bias, 0x80800000)  // takes the smallest normal to the least int32
    SLOT(int32_t, 30, bits_limit, 0xFEFFFFFF) // and the largest finite number here
};
ORVANE_BLOCK(sinvcbrt_block, __orvane_sinvcbrt_data)
struct sinvcbrt_native_block {
    TABLE(0, neg_rcp_f, cbrtf_neg_rcp)
    TABLE(2, root_hi_f, hi_parts(rcbrtf_pairs))
    GAP(8, 10)
    // Fit on |u| <= 2^-6: 1 + c0*u = 1/cbrt(1 + u) to 2^-14.2 relative
    SLOT(float, 11, c0, 0xBEAAAAAB)
    SLOT(float, 12, m_mask_f, 0x007FFFFF)
    SLOT(float, 13, c_mask_f, 0x007E0000)
    SLOT(float, 14, m_or_f, 0xBF800000)
    SLOT(float, 15, c_or_f, 0xBF820000)
    SLOT(uint32_t, 16, i_mask_f, 0x0000007C) // the five leading bits of the fraction, times 4
    SLOT(uint32_t, 17, e_mask_f, 0x000000FF)
    SLOT(uint32_t, 18, sign_bit_f, 0x00000100) // the sign, above the exponent
    SLOT(uint32_t, 19, exp_base_f, 0x000000A9)
    SLOT(uint32_t, 20, one_i, 0x00000001)
    SLOT(uint32_t, 21, third_mul_f, 0x00000555) // 2^12 / 3, rounded down
    SLOT(int32_t, 22, abs_f, 0x7FFFFFFF)
    SLOT(int32_t, 23, bits_bias, 0x80800000)  // takes the smallest normal to the least int32
    SLOT(int32_t, 24, bits_limit, 0xFEFFFFFF) // and the largest finite number here
};
ORVANE_BLOCK(sinvcbrt_native_block, __orvane_sinvcbrt_native_data)

// Zeros, subnormals, infinities and NaN.
template <int W> ORVANE_INLINE auto not_normal(const auto& c, lanes<double, W> x) {
    return marked<double, W>((words(x) & c.word_abs) - c.hw_bias > c.hw_limit);
}
template <int W> ORVANE_INLINE auto not_normal(const auto& c, lanes<float, W> x) {
    return (signed_bits(x) & c.abs_f) - c.bits_bias > c.bits_limit;
}

// 1 + u P(u) is the root of 1 + u, or its reciprocal.
template <class V> ORVANE_INLINE V root_polynomial(const auto& c, V u) {
    if constexpr (requires { c.c7; }) return horner(u, c.c7, c.c6, c.c5, c.c4, c.c3, c.c2, c.c1, c.c0);
    else if constexpr (requires { c.c3; }) return horner(u, c.c3, c.c2, c.c1, c.c0);
    else if constexpr (requires { c.c2; }) return horner(u, c.c2, c.c1, c.c0);
    else if constexpr (requires { c.c1; }) return horner(u, c.c1, c.c0);
    else return c.c0;
}

// A slot of 32-bit words as 64-bit lanes; the high word is shifted out, or in.
template <int W> ORVANE_INLINE lanes<uint64_t, W> long_lanes(const slot<uint32_t, 1>& words) {
    return *(const typename lanes<uint64_t, W>::raw*)words.lane;
}

template <const auto& Block, auto& Rare, bool Reciprocal> struct dcbrt_kernel
    : kernel<one_argument<double>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<double, W> x) {
        using V = lanes<double, W>;
        lane_bits<W> special = not_normal(c, x);
        // m - c is exact: c is m's top six fraction bits, the sixth set.
        auto i = bits(x) & long_lanes<W>(c.i_mask);
        auto r = lookup_bytes<double>(&c.neg_rcp, i >> 44);
        auto minus_m = (x & c.mant_mask) | c.m_or;
        auto minus_c = (x & c.c_mask) | c.c_or;
        auto u = finished(r * (minus_m - minus_c));

        auto top = bits(x) >> 52;
        auto e = top & c.e_mask;
        auto q = multiply_low_words(e, lanes<uint64_t, W>(c.third_mul)) >> 14; // floor(e / 3) for all e that occur
        auto rem = e - (q + q + q);
        auto sign_and_base = (top & long_lanes<W>(c.sign_word)) | long_lanes<W>(c.exp_base);
        auto scale = as<double>((Reciprocal ? sign_and_base - q : sign_and_base + q) << 52);
        if constexpr (requires { c.root_pairs; }) {
            auto [hi, lo] = lookup_pair_bytes<double>(&c.root_pairs, (rem << 9) + (i >> 43));
            V TS = hi * scale, LS = lo * scale;
            return answer{TS + (LS + TS * u * root_polynomial(c, u)), special};
        } else {
            auto TS = lookup_bytes<double>(&c.root_hi, (rem << 8) + (i >> 44)) * scale;
            return answer{TS + TS * u * root_polynomial(c, u), special};
        }
    }
};
using dcbrt = dcbrt_kernel<__orvane_dcbrt_data, __orvane_dcbrt_cout_rare, false>;
using dcbrt_native = dcbrt_kernel<__orvane_dcbrt_native_data, __orvane_dcbrt_cout_rare, false>;
using dinvcbrt = dcbrt_kernel<__orvane_dinvcbrt_data, __orvane_dinvcbrt_cout_rare, true>;
using dinvcbrt_native = dcbrt_kernel<__orvane_dinvcbrt_native_data, __orvane_dinvcbrt_cout_rare, true>;
// Largest known error of cbrt: 0.517 ulp at 0x3DD000A541A0AE93
// Largest known error of cbrt, slow path: 0.501 ulp at 0x00055CEBB0DB710E
ORVANE_EXPORT(cbrt, , dcbrt)
// Largest known error of cbrt_native: 2.344e-09 relative at 0x3E3000000000064D
// Largest known error of cbrt_native, slow path: 0.5007 ulp at 0x00055CEAC8B21557
ORVANE_EXPORT(cbrt, _native, dcbrt_native)
// Largest known error of rcbrt: 0.5482 ulp at 0xBF007FCAFDB0341A
// Largest known error of rcbrt, slow path: 0.5072 ulp at 0x8008A0823855BCC6
ORVANE_EXPORT(rcbrt, , dinvcbrt)
// Largest known error of rcbrt_native: 1.085e-10 relative at 0x3F400000000081B4
// Largest known error of rcbrt_native, slow path: 0.5072 ulp at 0x8008A0823855BCC6
ORVANE_EXPORT(rcbrt, _native, dinvcbrt_native)

// What the float kernels share: e - 1 = 3 q + rem, and the sign at its place above an exponent.
template <int W> struct thirds { lanes<uint32_t, W> q, rem, sign; };
template <int W> ORVANE_INLINE thirds<W> exponent_thirds(const auto& c, lanes<float, W> x) {
    auto top = bits(x) >> 23;
    auto e = top & c.e_mask_f;
    auto q = multiply_short(e, lanes<uint32_t, W>(c.third_mul_f)) >> 12;
    return {q, e - (q + q + q + c.one_i), top & c.sign_bit_f};
}
// The byte offset of entry i in row rem of the table, from 4 i; 0 in special lanes, whose rem may be -1.
template <int Entry, int W>
ORVANE_INLINE auto root_offset(lanes<uint32_t, W> rem, lanes<uint32_t, W> i4, lanes<int32_t, W> special) {
    return andnot(as<uint32_t>(special), Entry == 8 ? (rem << 8) + (i4 + i4) : (rem << 7) + i4);
}

// The table's point is the reciprocal r of c, five bits of the processor's estimate of 1 / m; u = r m - 1. The rows
// are for 1/2 <= r < 1: an estimate beyond (that of 1.0 is 1.0 itself on some processors) is taken back.
template <const auto& Block> struct scbrt_kernel : kernel<one_argument<float>, Block, __orvane_scbrt_cout_rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<float, W> x) {
        using V = lanes<float, W>;
        constexpr int entry_bytes = requires { c.root_pairs_f; }
        ? 8 : 4;
        auto special = not_normal(c, x);
        auto m = (x & c.m_mask_f) | c.one_f;
        const V below_one(f32(0x3F7FFFFF)), half(0.5f);
        auto r = max(min(reciprocal_estimate(m), below_one), half) & c.rcp_mask_f;
        auto u = fma(r, m, -V(c.one_f));
        auto i4 = (bits(r) >> 16) & c.i_mask_f;
        auto [q, rem, sign] = exponent_thirds(c, x);
        auto offset = root_offset<entry_bytes>(rem, i4, special);
        lane_bits<W> special_bits = special;
        auto scale = as<float>(((q + c.exp_base_f) | sign) << 23);
        if constexpr (requires { c.root_pairs_f; }) {
            auto [hi, lo] = lookup_pair_bytes<float>(&c.root_pairs_f, offset);
            V TS = hi * scale, LS = lo * scale;
            return answer{TS + (LS + root_polynomial(c, u) * (u * TS)), special_bits};
        } else {
            auto TS = lookup_bytes<float>(&c.root_hi_f, offset) * scale;
            return answer{TS + root_polynomial(c, u) * (u * TS), special_bits};
        }
    }
};
using scbrt = scbrt_kernel<__orvane_scbrt_data>;
using scbrt_native = scbrt_kernel<__orvane_scbrt_native_data>;
// Largest known error of cbrtf: 0.5219 ulp at 0x43F85A2A, with one processor's estimates
// Largest known error of cbrtf, slow path: 0.5118 ulp at 0x805FF6A7
ORVANE_EXPORT(cbrtf, , scbrt)
// Largest known error of cbrtf_native: 2.774 ulp at 0x43B8B801, with one processor's estimates
// Largest known error of cbrtf_native, slow path: 0.5118 ulp at 0x805FF6A7
ORVANE_EXPORT(cbrtf, _native, scbrt_native)

template <const auto& Block> struct sinvcbrt_kernel
    : kernel<one_argument<float>, Block, __orvane_sinvcbrt_cout_rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<float, W> x) {
        using V = lanes<float, W>;
        constexpr int entry_bytes = requires { c.root_pairs_f; }
        ? 8 : 4;
        auto special = not_normal(c, x);
        auto i4 = (bits(x) >> 16) & c.i_mask_f;
        auto r = lookup_bytes<float>(&c.neg_rcp_f, i4);
        auto minus_m = (x & c.m_mask_f) | c.m_or_f;
        auto minus_c = (x & c.c_mask_f) | c.c_or_f;
        auto u = finished((minus_m - minus_c) * r);
        auto [q, rem, sign] = exponent_thirds(c, x);
        auto offset = root_offset<entry_bytes>(rem, i4, special);
        lane_bits<W> special_bits = special;
        auto scale = as<float>(((sign | c.exp_base_f) - q) << 23);
        if constexpr (requires { c.root_pairs_f; }) {
            auto [hi, lo] = lookup_pair_bytes<float>(&c.root_pairs_f, offset);
            V HS = hi * scale, LS = lo * scale;
            return answer{HS + fma(root_polynomial(c, u), u * HS, LS), special_bits};
        } else {
            auto TS = lookup_bytes<float>(&c.root_hi_f, offset) * scale;
            return answer{TS + (u * TS) * root_polynomial(c, u), special_bits};
        }
    }
};
using sinvcbrt = sinvcbrt_kernel<__orvane_sinvcbrt_data>;
using sinvcbrt_native = sinvcbrt_kernel<__orvane_sinvcbrt_native_data>;
// Largest known error of rcbrtf: 0.5129 ulp at 0x3383FBD7
// Largest known error of rcbrtf, slow path: 0.5 ulp at 0x007DD384
ORVANE_EXPORT(rcbrtf, , sinvcbrt)
// Largest known error of rcbrtf_native: 889.7 ulp at 0x51800017
// Largest known error of rcbrtf_native, slow path: 0.5 ulp at 0x000C2043
ORVANE_EXPORT(rcbrtf, _native, sinvcbrt_native)

} // namespace orvane
