// idiv, irem, idivrem on int lanes and udiv, urem, udivrem on uint lanes, in double arithmetic.
//
// The single-precision reciprocal estimate of b (relative error at most 1.5 * 2^-12) and two steps of r (2 - r b)
// give 1 / b; the second step has a moved in front, q = (a r) (2 + 2^-42 - r b), so that its bias puts q above the
// true quotient by about 2^-42 of it: more than all errors together, and far less than the distance to the next
// integer, since |a| < 2^32. Truncation then gives the exact integer. A zero divisor makes fma(-Inf, 0, 2) the
// default NaN, which goes through to the conversion.
#include "frame/_orvane_template.h"

namespace orvane {

inline constexpr double two = from_bits<double>(0x4000000000000000);
inline constexpr double two_biased = from_bits<double>(0x4000000000000200); // 2 + 2^-42
inline constexpr double shifter = from_bits<double>(0x4338000000000000);    // 1.5 * 2^52: an integer below 2^32 added
inline constexpr double neg_shifter = from_bits<double>(0xC338000000000000); // to it lies in the low word

// (a / b) lifted just over the true quotient, from the estimate r0 of 1 / b.
template <int W>
ORVANE_INLINE lanes<double, W> lifted_quotient(lanes<double, W> ad, lanes<double, W> bd, lanes<double, W> r0) {
    using V = lanes<double, W>;
    auto r1 = fma(-r0, bd, V(two)) * r0;
    auto e = fma(-r1, bd, V(two_biased));
    return (ad * r1) * e;
}

template <int W> ORVANE_INLINE lanes<int32_t, W> quotient(lanes<int32_t, W> a, lanes<int32_t, W> b) {
    auto estimate = reciprocal_estimate(convert<float>(b)); // one for all lanes
    return by_halves(
        [](auto a, auto b, auto r0) ORVANE_LAMBDA {
            auto q = lifted_quotient(convert<double>(a), convert<double>(b), convert<double>(r0));
            return truncate<int32_t>(q); // NaN and what is out of range: 0x80000000
        },
        a, b, estimate);
}

// There is no unsigned conversion: u is put into the low word of the shifter, which is taken off again, exactly.
template <int W> ORVANE_INLINE lanes<double, W> widened(lanes<uint32_t, W> u) {
    using V = lanes<double, W>;
    return as<double>(convert<uint64_t>(u) | bits(V(shifter))) + V(neg_shifter);
}
template <int W> ORVANE_INLINE lanes<uint32_t, W> quotient(lanes<uint32_t, W> a, lanes<uint32_t, W> b) {
    return by_halves(
        [](auto a, auto b) ORVANE_LAMBDA {
            auto bd = widened(b);
            auto r0 = convert<double>(reciprocal_estimate(convert<float>(bd)));
            auto t = round_to<toward_zero>(lifted_quotient(widened(a), bd, r0));
            return low_words(t + decltype(t)(shifter)); // 0 for the default NaN
        },
        a, b);
}

// a - q b, wrapping in 32 bits.
template <class I, int W> ORVANE_INLINE lanes<I, W> remainder(lanes<I, W> a, lanes<I, W> b, lanes<I, W> q) {
    return as<I>(bits(a) - bits(q) * bits(b));
}

template <class I> struct division : kernel<integer<I>> {
    static constexpr double spare = 1;
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<I, W> a, lanes<I, W> b) {
        return quotient(a, b);
    }
};
template <class I> struct modulo : kernel<integer<I>> {
    static constexpr double spare = 1;
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<I, W> a, lanes<I, W> b) {
        return remainder(a, b, quotient(a, b));
    }
};
template <class I> struct division_and_modulo : kernel<integer_pair<I>> {
    static constexpr double spare = 1;
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<I, W> a, lanes<I, W> b) {
        auto q = quotient(a, b);
        return results{q, remainder(a, b, q)};
    }
};

ORVANE_EXPORT_SETTLED(idiv, , division<int32_t>)
ORVANE_EXPORT_SETTLED(irem, , modulo<int32_t>)
ORVANE_EXPORT_SETTLED(idivrem, , division_and_modulo<int32_t>)
ORVANE_EXPORT_SETTLED(udiv, , division<uint32_t>)
ORVANE_EXPORT_SETTLED(urem, , modulo<uint32_t>)
ORVANE_EXPORT_SETTLED(udivrem, , division_and_modulo<uint32_t>)

} // namespace orvane
