// Integer lanes to floating lanes in four rounding modes, by ordinary arithmetic: the magnitude is cut into pieces
// that are exact in the target type, their sum is rounded once to nearest, and the sign of that rounding's error says
// whether the pattern of the sum must move by one. A piece becomes a floating value by ORing it into the pattern of
// the power of two whose unit in the last place is the piece's weight, and taking that power off again.
#pragma once

#include "frame/_orvane_template.h"

namespace orvane {

// Sign of the source, and the magnitude as an unsigned integer, which holds that of the most negative value too.
template <class I, int W> ORVANE_INLINE lanes<uint_of<I>, W> magnitude_bits(lanes<I, W> x) {
    if constexpr (std::is_signed_v<I>) return bits(select(x, lanes<I, W>(0) - x, x));
    else return x;
}
template <class I, int W> ORVANE_INLINE two_registers<uint_of<I>, W> magnitude_bits(two_registers<I, W> x) {
    return {magnitude_bits(x.low), magnitude_bits(x.high)};
}

// The piece whose bits stand in `integer`, with the weight of the unit in the last place of `shift`.
template <class T, class U, int W> ORVANE_INLINE lanes<T, W> piece(lanes<U, W> integer, lanes<T, W> shift) {
    return as<T>(integer | bits(shift)) - shift;
}

// On a negative value the pattern grows as the value falls: one step of the pattern toward plus infinity.
template <class U, int W> ORVANE_INLINE lanes<U, W> step_up(const auto& c, lanes<U, W> sign) {
    return select(as<int_of<U>>(sign), lanes<U, W>(c.minus_one_int), lanes<U, W>(c.one_int));
}

// Two pieces, for a target of the source's size: the low 23 (52) bits and the rest.
template <class I, class T, rounding R, const auto& Block> struct from_two_pieces : kernel<conversion<I, T>, Block> {
    static constexpr double spare = 1;
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<I, W> x) {
        using V = lanes<T, W>;
        using B = lanes<uint_of<T>, W>;
        constexpr int low_bits = sizeof(T) == 8 ? 52 : 23;
        constexpr bool is_signed = std::is_signed_v<I>;

        auto u = magnitude_bits(x);
        auto lo = piece(u & c.low_mask, V(c.shift_lo));
        auto hi = piece(u >> low_bits, V(c.shift_hi));
        auto s = lo + hi; // the one rounding
        V sign;
        if constexpr (is_signed) sign = as<T>(bits(x) & c.sign_mask);

        if constexpr (R == to_nearest) {
            if constexpr (is_signed) return s | sign;
            else return s;
        } else if constexpr (is_signed && R != toward_zero) {
            s = s | sign;
            auto t = s - (hi | sign); // exact: the low piece as rounded
            auto step = step_up(c, bits(sign));
            if constexpr (R == downward) return as<T>(bits(s) - keep((lo | sign) < t, step));
            else return as<T>(bits(s) + keep(t < (lo | sign), step));
        } else {
            auto t = s - hi;
            if constexpr (R == upward) return as<T>(bits(s) + keep(t < lo, B(c.one_int)));
            else {
                auto y = as<T>(bits(s) - keep(lo < t, B(c.one_int)));
                if constexpr (is_signed) y = y | sign;
                return y;
            }
        }
    }
};

// Three pieces, 64-bit integers to float: bits 0 to 22, 23 to 45 and 46 to 63, cut out of the two words.
template <class I, rounding R, const auto& Block> struct from_three_pieces : kernel<narrowing<I, float>, Block> {
    static constexpr double spare = 1;
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, auto x) {
        using V = lanes<float, W>;
        constexpr bool is_signed = std::is_signed_v<I>;

        auto u = magnitude_bits(x);
        auto low_word = low_words(u), high_word = high_words(u);
        auto low = low_word & c.low_mask;
        auto mid = piece(((low_word >> 23) | (high_word << 9)) & c.low_mask, V(c.shift_mid));
        auto hi = piece(high_word >> 14, V(c.shift_hi));
        V sign;
        if constexpr (is_signed) sign = as<float>(high_words(x) & c.sign_mask);
        auto with_sign = [&](V y) ORVANE_LAMBDA {
            if constexpr (is_signed) return y | sign;
            else return y;
        };

        if constexpr (R == to_nearest) {
            auto nlo = V(c.shift_lo) - as<float>(low | c.shift_lo);
            auto s = mid + hi;
            auto e = mid + (hi - s); // its exact error
            // Where mid + hi was a tie that went down to its even neighbour and lo lies above, the pattern is even
            // and half a unit is missing: made odd, it is right, and lo, less than half a unit, does not move it
            // again.
            auto h = andnot(lanes<uint32_t, W>(c.low_mask), bits(s)) - c.half_ulp_step;
            auto sticky = keep(bits(e) == h, bits(nlo) >> 31);
            return with_sign(as<float>(bits(s) | sticky) - nlo);
        } else {
            auto lo = piece(low, V(c.shift_lo));
            auto s1 = lo + mid;
            auto e1 = lo + (mid - s1);
            auto s2 = hi + s1;
            auto e2 = s1 + (hi - s2);
            auto e = e1 + e2; // of the right sign: s2 + e is the value
            const V zero(0.0f);
            if constexpr (is_signed && R != toward_zero) {
                auto r = bits(s2 | sign);
                auto es = e ^ sign;
                auto step = step_up(c, bits(sign));
                if constexpr (R == downward) return as<float>(r - keep(es < zero, step));
                else return as<float>(r + keep(zero < es, step));
            } else if constexpr (R == upward) return as<float>(signed_bits(s2) - (signed_bits(zero - e) >> 31));
            else return with_sign(as<float>(signed_bits(s2) + (signed_bits(e) >> 31)));
        }
    }
};

// Four modes of one source and target; Kernel<R>. An unsigned source is never negative, so that downward and toward
// zero are one.
#define ORVANE_FROM_SIGNED(source, suffix, Kernel)                                                                   \
    ORVANE_FROM_INTEGER(cvt##source##tofprte##suffix, Kernel, to_nearest)                                            \
    ORVANE_FROM_INTEGER(cvt##source##tofprtn##suffix, Kernel, downward)                                              \
    ORVANE_FROM_INTEGER(cvt##source##tofprtp##suffix, Kernel, upward)                                                \
    ORVANE_FROM_INTEGER(cvt##source##tofprtz##suffix, Kernel, toward_zero)
#define ORVANE_FROM_UNSIGNED(source, suffix, Kernel)                                                                 \
    ORVANE_FROM_INTEGER(cvt##source##tofprte##suffix, Kernel, to_nearest)                                            \
    ORVANE_FROM_INTEGER(cvt##source##tofprtn##suffix, Kernel, downward)                                              \
    ORVANE_FROM_INTEGER(cvt##source##tofprtp##suffix, Kernel, upward)                                                \
    ORVANE_TWIN_SETTLED(cvt##source##tofprtz##suffix, , cvt##source##tofprtn##suffix, )
#define ORVANE_FROM_INTEGER(family, Kernel, R)                                                                       \
    using family##_kernel = Kernel<R>;                                                                               \
    ORVANE_EXPORT_SETTLED(family, , family##_kernel)

// Where every value of the source is a value of the target all four modes are one.
#define ORVANE_FROM_INTEGER_EXACTLY(stem, Kernel)                                                                    \
    ORVANE_EXPORT_SETTLED(stem##rte, , Kernel)                                                                       \
    ORVANE_TWIN_SETTLED(stem##rtn, , stem##rte, )                                                                    \
    ORVANE_TWIN_SETTLED(stem##rtp, , stem##rte, )                                                                    \
    ORVANE_TWIN_SETTLED(stem##rtz, , stem##rte, )

// The four blocks hold the same bytes: one object under four names.
#define ORVANE_FROM_INTEGER_BLOCK(type, stem)                                                                        \
    ORVANE_BLOCK(type, stem##rte_data)                                                                               \
    ORVANE_BLOCK_TWIN(stem##rtn_data, stem##rte_data)                                                                \
    ORVANE_BLOCK_TWIN(stem##rtp_data, stem##rte_data)                                                                \
    ORVANE_BLOCK_TWIN(stem##rtz_data, stem##rte_data)

} // namespace orvane
