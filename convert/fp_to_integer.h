// Floating lanes to integer lanes, in a rounding mode that stands in the immediate of the rounding instruction.
//
// After that instruction a lane is a whole number, an infinity or a NaN, so that nothing which follows rounds,
// whatever mode the caller is in. Out of range: the saturating forms give the nearest end of the result's range and 0
// for a NaN; the others give the top bit alone, and the unsigned ones of them convert the magnitude of a negative
// lane. The range is that of the rounded value.
#pragma once

#include "frame/_orvane_template.h"

namespace orvane {

template <class T, int W> ORVANE_INLINE auto magnitude(lanes<T, W> x) {
    return x & lanes<T, W>(from_bits<T>(uint_of<T>(-1) >> 1));
}
template <class T, int W> ORVANE_INLINE lanes<int32_t, W> signed_top_words(lanes<T, W> x) {
    if constexpr (sizeof(T) == 8) return as<int32_t>(high_words(x));
    else return signed_bits(x);
}

// A comparison of T lanes as a mask of 32-bit lanes, and 32-bit lanes or masks as 64-bit ones.
template <class M, int W> ORVANE_INLINE auto narrow(lanes<M, W> m) {
    if constexpr (sizeof(M) == 8) return convert<int32_t>(m);
    else return m;
}
template <class M, int W> ORVANE_INLINE auto widen(lanes<M, W> m) {
    if constexpr (sizeof(M) == 8) return m;
    else return convert<std::conditional_t<std::is_signed_v<M>, int64_t, uint64_t>>(m);
}

// Signed 32-bit results: the processor's conversion, which gives the top bit alone for all that is out of range.
template <class T, rounding R, bool Saturating, const auto& Block> struct to_i32
    : kernel<conversion<T, int32_t>, Block> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        auto r = round_to<R>(x);
        auto y = convert<int32_t>(r);
        if constexpr (!Saturating) return y;
        else {
            auto w = signed_top_words(r);
            auto s = select(w, c.sat_neg32, c.sat_pos32);
            auto ok = (w & c.abs_mask32) < c.limit_word;
            return andnot(narrow(is_nan(r)), select(ok, y, s));
        }
    }
};

// Unsigned 32-bit results: the signed conversion below 2^31; above, the pattern shifted until the leading significand
// bit is bit 31.
template <class T, rounding R, bool Saturating, const auto& Block> struct to_u32
    : kernel<conversion<T, uint32_t>, Block> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        const lanes<T, W> top_bit(T(-0.0)); // clears the sign and sets the leading bit: one constant for both
        auto r = round_to<R>(x);
        if constexpr (!Saturating) r = andnot(top_bit, r);
        constexpr int exponent_bits = sizeof(T) == 8 ? 11 : 8;
        auto top = signed_top_words(as<T>(bits(r) << exponent_bits) | top_bit);
        auto e = bits(r) & c.exp_mask;
        auto v = select(narrow(e == c.two31), top, convert<int32_t>(r));
        if constexpr (Saturating) {
            auto sign = signed_top_words(r);
            v = select(c.in_range(r), v, c.sat_pos32);
            v = select(narrow(is_nan(r)) | sign, lanes<int32_t, W>(0), v);
        }
        return as<uint32_t>(v);
    }
};

// 64-bit results, for which there is no conversion: the integer is built from the pattern of the magnitude. From 2^52
// (2^23) on it is the significand shifted left; below that, adding 2^52 (2^23) lays it into the significand field.
// The saturating unsigned form keeps the sign, since its last step drops negative lanes anyway.
template <class T, class I, rounding R, bool Saturating, const auto& Block> struct to_64
    : kernel<conversion<T, I>, Block> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        constexpr bool is_signed = std::is_signed_v<I>;
        constexpr int significand_bits = sizeof(T) == 8 ? 52 : 23;
        const lanes<int64_t, W> zero(0);

        auto r = round_to<R>(x);
        auto a = r;
        if constexpr (is_signed || !Saturating) a = magnitude(r);
        auto m = (bits(a) & c.mant_mask) | c.implicit_bit;
        auto eb = andnot(lanes<uint_of<T>, W>(c.mant_mask), bits(a));
        auto sh = (eb >> significand_bits) - c.shift_bias; // of small values it wraps to a huge count: all bits go
        auto big = shift_left(widen(m), widen(sh));
        auto small = widen(bits(a + c.shifter()) & c.mant_mask);

        auto v = as<int64_t>(select(c.below_shifter(as<T>(eb)), small, big));
        auto in = c.in_range(as<T>(eb));
        if constexpr (is_signed) {
            auto neg = widen(r < lanes<T, W>(T(0))); // false for NaN and -0
            v = select(neg, zero - v, v);
            if constexpr (Saturating) {
                auto s = select(neg, c.sat_neg64, c.sat_pos64);
                v = andnot(widen(is_nan(x)), select(in, v, s));
            }
        }
        if constexpr (!Saturating) v = select(in, v, c.sat_neg64);
        else if constexpr (!is_signed) {
            auto sign = widen(signed_bits(eb));
            v = select(widen(is_nan(x)) | sign, zero, select(in, v, c.sat_pos64));
        }
        return as<I>(v);
    }
};

// The eight families of one source type (type letter, suffix) and one result; Kernel<R, Saturating>.
#define ORVANE_FP_TO_INTEGER(letter, suffix, result, Kernel)                                                         \
    ORVANE_FP_TO_INTEGER_MODE(letter, suffix, result##rte, Kernel, to_nearest)                                       \
    ORVANE_FP_TO_INTEGER_MODE(letter, suffix, result##rtn, Kernel, downward)                                         \
    ORVANE_FP_TO_INTEGER_MODE(letter, suffix, result##rtp, Kernel, upward)                                           \
    ORVANE_FP_TO_INTEGER_MODE(letter, suffix, result##rtz, Kernel, toward_zero)
#define ORVANE_FP_TO_INTEGER_MODE(letter, suffix, result, Kernel, R)                                                 \
    using letter##result##sat_kernel = Kernel<R, true>;                                                              \
    using letter##result##nosat_kernel = Kernel<R, false>;                                                           \
    ORVANE_EXPORT_SETTLED(cvtfpto##result##sat##suffix, , letter##result##sat_kernel)                                \
    ORVANE_EXPORT_SETTLED(cvtfpto##result##nosat##suffix, , letter##result##nosat_kernel)

// Their blocks hold the same bytes: one object under eight names, of which the first is the kernels'.
#define ORVANE_FP_TO_INTEGER_BLOCK(type, stem)                                                                       \
    ORVANE_BLOCK(type, stem##rtesat_data)                                                                            \
    ORVANE_BLOCK_TWIN(stem##rtnsat_data, stem##rtesat_data)                                                          \
    ORVANE_BLOCK_TWIN(stem##rtpsat_data, stem##rtesat_data)                                                          \
    ORVANE_BLOCK_TWIN(stem##rtzsat_data, stem##rtesat_data)                                                          \
    ORVANE_BLOCK_TWIN(stem##rtenosat_data, stem##rtesat_data)                                                        \
    ORVANE_BLOCK_TWIN(stem##rtnnosat_data, stem##rtesat_data)                                                        \
    ORVANE_BLOCK_TWIN(stem##rtpnosat_data, stem##rtesat_data)                                                        \
    ORVANE_BLOCK_TWIN(stem##rtznosat_data, stem##rtesat_data)

} // namespace orvane
