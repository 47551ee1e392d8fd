// Steps that kernels of the arc tangents of one and of two arguments share: polynomials of atan on [-1, 1], the
// reciprocal that divides num by den, and the range of magnitudes for which that holds.
#pragma once

#include "frame/_orvane_template.h"
#include "invtrig/coefficients.h"

namespace orvane {

// atan(x) / x, or the same over pi, in powers of x^2.
// Fit on |z| <= 1: z*atan_fast(z^2) = atan(z) to 2^-28.6 relative
inline constexpr coefficients<double, 10> atan_fast = {
    {0xBF5C95B5AB286A02, 0x3F85E36A8CED7474, 0xBF9F791909CB44C4, 0x3FAD6EE2DACE07AF, 0xBFB56FCD7489159A,
     0x3FBC0236E7018BA7, 0xBFC2414862594647, 0x3FC999069C08617C, 0xBFD55553391CE4C9, 0x3FEFFFFFFEB5A845}};
// Fit on |z| <= 1: z*atanpi_accurate(z^2) = atan(z)/pi to 2^-52.9 relative
inline constexpr coefficients<double, 22> atanpi_accurate = {
    {0xBEC435D571D7FB69, 0x3EFEE969B7DB1149, 0xBF26798A20DC9977, 0x3F44C3C0C907686F, 0xBF5B8DDB0F1CD2C5,
     0x3F6C3A72776AC84D, 0xBF778AC56B6FECF2, 0x3F80BAD5CF20A9ED, 0xBF85278CBEF8B02E, 0x3F88CA8EE19B9723,
     0xBF8BE48C140DF0C8, 0x3F8EEA5306D0465F, 0xBF9124120821BA9D, 0x3F932BC4F824F7C6, 0xBF95BAC83A460E3E,
     0x3F9912AF904B4DD1, 0xBF9DA1BAA68634EC, 0x3FA21BB94433ED0A, 0xBFA7483758DF91CF, 0x3FB04C26BE3AF8D5,
     0xBFBB2995E7B7B5ED, 0x3FD45F306DC9C883}};
// Fit on |z| <= 1: z*atanpi_fast(z^2) = atan(z)/pi to 2^-28.6 relative
inline constexpr coefficients<double, 10> atanpi_fast = {
    {0xBF42329940F01541, 0x3F6BDE7DB93E8B55, 0xBF84094ECA14A044, 0x3F92BCDB8589EE51, 0xBF9B4B49880FA760,
     0x3FA1D4B346C946CD, 0xBFA73E3559D3A6F6, 0x3FB04BC92A8107F5, 0xBFBB299337E33714, 0x3FD45F306CF77B05}};
// Fit on |z| <= 1: z*atanf_accurate(z^2) = atan(z) to 2^-24.4 relative
inline constexpr coefficients<float, 9> atanf_accurate = {
    {0x3B322CC0, 0xBC7F2631, 0x3D2BC384, 0xBD987629, 0x3DD96474, 0xBE1161F8, 0x3E4CB79F, 0xBEAAAA49, 0x3F800000}};
// Fit on |z| <= 1: z*atanf_fast(z^2) = atan(z) to 2^-12.1 relative
inline constexpr coefficients<float, 4> atanf_fast = {{0xBD324820, 0x3E1E481B, 0xBEA6A8A3, 0x3F7FF145}};
// Fit on |z| <= 1: z*atanpif_accurate(z^2) = atan(z)/pi to 2^-24.3 relative
inline constexpr coefficients<float, 9> atanpif_accurate = {
    {0x3A62DBF5, 0xBBA26EDA, 0x3C5AB246, 0xBCC21EBE, 0x3D0A6574, 0xBD391B64, 0x3D8253BA, 0xBDD94C33, 0x3EA2F983}};
// Fit on |z| <= 1: z*atanpif_fast(z^2) = atan(z)/pi to 2^-12.1 relative
inline constexpr coefficients<float, 4> atanpif_fast = {{0xBC62FED0, 0x3D4987CD, 0xBDD4324D, 0x3EA2F023}};

// The slots around a double kernel's range of magnitudes and its reciprocal, which begin at one number.
#define RANGE_SLOTS(first)                                                                                           \
    SLOT(double, first, sign_mask, 0x8000000000000000)                                                               \
    SLOT(int32_t, first + 1, hw_bias, 0x80300000)  /* takes the high word of 2^-1020 to the least int32 */           \
    SLOT(int32_t, first + 2, hw_limit, 0xFDD00000) /* and that of 2^993 here */                                      \
    SLOT(double, first + 3, abs_mask, 0x7FFFFFFFFFFFFFFF)
#define WORD_ESTIMATE_SLOTS(first)                                                                                   \
    SLOT(uint32_t, first, exp_word, 0xFFF00000)      /* sign and exponent of a high word */                          \
    SLOT(uint32_t, first + 1, rcp_exp, 0x7FE00000)   /* twice the bias, in the exponent's place */                   \
    SLOT(uint32_t, first + 2, mant_word, 0x007FFFFF) /* the fraction of a float */                                   \
    SLOT(uint32_t, first + 3, one_word, 0x3F800000)                                                                  \
    SLOT(uint32_t, first + 4, rebias, 0x07F00000) /* one_word >> 3 */                                                \
    SLOT(uint64_t, first + 5, hi_mask, 0xFFFFFFFF00000000)                                                           \
    SLOT(double, first + 6, one, 0x3FF0000000000000)

// Whether a magnitude lies outside 2^-1020 to 2^993 (float: 2^-125 to 2^123), as the sign of its lane: by one signed
// comparison of the biased high words, all words in place.
template <int W> ORVANE_INLINE auto biased_words(const auto& c, lanes<double, W> a) {
    return words_in_place<int32_t>(a) - c.hw_bias;
}
template <int W> ORVANE_INLINE auto biased_words(const auto& c, lanes<float, W> a) {
    return signed_bits(a) - c.bits_bias;
}
template <class T, int W, class M> ORVANE_INLINE lanes<int_of<T>, W> out_of_range(const auto& c, M words) {
    M limit;
    if constexpr (sizeof(T) == 8) limit = c.hw_limit;
    else limit = c.bits_limit;
    return (typename lanes<int_of<T>, W>::raw)(limit <= words).v;
}

// num / den, in several ways: by the division instruction,
struct by_division {
    template <class V> static ORVANE_INLINE V of(const auto&, V num, V den) { return num / den; }
};

// About 1 / den for double, by words: the top 20 significand bits as a float of 1 to 2, whose estimate goes back
// below the negated exponent. All words run in place; those of low halves are noise until they are cleared.
template <int W> ORVANE_INLINE lanes<double, W> word_estimate(const auto& c, lanes<double, W> den) {
    auto h = words_in_place<uint32_t>(den);
    auto e = reciprocal_estimate(as<float>(((h << 3) & c.mant_word) | c.one_word));
    auto r = ((bits(e) >> 3) - c.rebias) + (c.rcp_exp - (h & c.exp_word));
    return as<double>(lanes<uint64_t, W>((typename lanes<uint64_t, W>::raw)r.v) & c.hi_mask);
}
// With e = den r - 1, r (1 - e + e^2 - e^3 + e^4); den in two parts, so that e is exact but for one rounding.
struct word_estimate_long {
    template <class V> static ORVANE_INLINE V of(const auto& c, V num, V den) {
        V r = word_estimate(c, den);
        V dh = den & c.hi_mask, dl = den - dh;
        V e = dl * r + (dh * r - c.one);
        V d = e * (c.one + e * (e - c.one)); // e - e^2 + e^3
        V inv = (e * (d - c.one)) * r + r;
        return num * inv;
    }
};
// r (1 - e + e^2).
struct word_estimate_short {
    template <class V> static ORVANE_INLINE V of(const auto& c, V num, V den) {
        V r = word_estimate(c, den);
        V e = den * r - c.one;
        return num * ((e * (e - c.one)) * r + r);
    }
};
struct word_estimate_fused {
    template <class V> static ORVANE_INLINE V of(const auto& c, V num, V den) {
        V r = word_estimate(c, den);
        V e = fma(den, r, -V(c.one));
        e = fma(e, e, -e);
        return fma(e, r, r) * num;
    }
};
// One Newton step on the estimate of float.
struct newton {
    template <class V> static ORVANE_INLINE V of(const auto& c, V num, V den) {
        V r = reciprocal_estimate(den);
        return num * ((c.two - den * r) * r);
    }
};
template <class V> ORVANE_INLINE V newton_reciprocal(const auto& c, V den) {
    V r = reciprocal_estimate(den);
    return r * fma(-den, r, V(c.two));
}
struct newton_fused {
    template <class V> static ORVANE_INLINE V of(const auto& c, V num, V den) {
        return newton_reciprocal(c, den) * num;
    }
};

} // namespace orvane
