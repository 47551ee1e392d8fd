// idiv, irem, idivrem on int lanes and udiv, urem, udivrem on uint lanes, in double arithmetic.
//
// The single-precision reciprocal estimate of b (relative error at most 1.5 * 2^-12) and two steps of r (2 - r b)
// give 1 / b; the second step has a moved in front, q = (a r) (2 + 2^-42 - r b), so that its bias puts q above the
// true quotient by about 2^-42 of it: more than all errors together, and far less than the distance to the next
// integer, since |a| < 2^32. Truncation then gives the exact integer. A zero divisor makes fma(-Inf, 0, 2) the
// default NaN, which goes through to the conversion.
#include "frame/_orvane_template.h"

namespace orvane {

struct intdiv_pool {
    SLOT(double, 0, two, 0x4000000000000000)
    SLOT(double, 1, two_biased, 0x4000000000000200) // 2 + 2^-42
    SLOT(double, 2, shifter, 0x4338000000000000) // 1.5 * 2^52: an integer below 2^32 added to it lies in the low word
    SLOT(double, 3, neg_shifter, 0xC338000000000000)
};
ORVANE_BLOCK(intdiv_pool, __orvane_intdiv_pool)

// 1 / b from its estimate r0 as two factors, whose product has the bias: (a r1) e lies just above a / b.
template <int W> struct refined_reciprocal { lanes<double, W> r1, e; };
template <int W>
ORVANE_INLINE refined_reciprocal<W> refined(const intdiv_pool& c, lanes<double, W> bd, lanes<float, W> estimate) {
    auto r0 = convert<double>(estimate);
    auto r1 = fma(-r0, bd, c.two) * r0;
    auto e = fma(-r1, bd, c.two_biased);
    return {r1, e};
}

template <int W>
ORVANE_INLINE lanes<int32_t, W> quotient(const intdiv_pool& pool, lanes<int32_t, W> a, lanes<int32_t, W> b) {
    const auto* block = &pool;
    auto estimate = reciprocal_estimate(convert<float>(b)); // one for all lanes
    return by_halves(
        [&](auto a, auto b, auto r0) ORVANE_LAMBDA {
            auto [r1, e] = refined(anew(block), convert<double>(b), r0);
            auto q = (convert<double>(a) * r1) * e;
            return truncate<int32_t>(q); // NaN and what is out of range: 0x80000000
        },
        a, b, estimate);
}

// There is no unsigned conversion: u is put into the low word of the shifter's pattern and the shifter subtracted
// again, which is exact. The quotient comes back in the same way, in the low word of its sum with the shifter.
template <int W>
ORVANE_INLINE lanes<double, W> quotient_in_shifter(const intdiv_pool& c, lanes<double, W> a, lanes<double, W> b) {
    auto bd = b + c.neg_shifter;
    auto [r1, e] = refined(c, bd, reciprocal_estimate(convert<float>(bd)));
    auto q = ((a + c.neg_shifter) * r1) * e;
    return round_to<toward_zero>(q) + c.shifter; // the low word of the default NaN is 0
}
template <int W>
ORVANE_INLINE lanes<uint32_t, W> quotient(const intdiv_pool& pool, lanes<uint32_t, W> a, lanes<uint32_t, W> b) {
    if constexpr (W == 8) {
        const auto* block = &pool;
        // Even lanes and then odd lanes, so that nothing crosses the halves of a register.
        auto even = [](const intdiv_pool& c, auto u) ORVANE_LAMBDA {
            return pairs_in_place<double>(alternate(u, words_in_place<uint32_t>(lanes<double, 4>(c.shifter))));
        };
        auto odd = [](const intdiv_pool& c, auto u)
                       ORVANE_LAMBDA { return as<double>((pairs_in_place<uint64_t>(u) >> 32) | c.shifter); };
        auto divide = [&](auto part) ORVANE_LAMBDA {
            const auto& c = anew(block);
            return finished(bits(quotient_in_shifter(c, part(c, a), part(c, b))));
        };
        auto q_even = divide(even), q_odd = divide(odd);
        return alternate(words_in_place<uint32_t>(q_even), words_in_place<uint32_t>(q_odd << 32));
    } else {
        auto in_shifter = [&](auto u) ORVANE_LAMBDA { return as<double>(convert<uint64_t>(u) | pool.shifter); };
        return low_words(quotient_in_shifter(pool, in_shifter(a), in_shifter(b)));
    }
}

// a - q b, wrapping in 32 bits.
template <class I, int W> ORVANE_INLINE lanes<I, W> remainder(lanes<I, W> a, lanes<I, W> b, lanes<I, W> q) {
    return as<I>(bits(a) - bits(q) * bits(b));
}

template <class I> struct division : kernel<integer<I>, __orvane_intdiv_pool> {
    static constexpr double spare = 1;
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<I, W> a, lanes<I, W> b) {
        return quotient(c, a, b);
    }
};
template <class I> struct modulo : kernel<integer<I>, __orvane_intdiv_pool> {
    static constexpr double spare = 1;
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<I, W> a, lanes<I, W> b) {
        return remainder(a, b, quotient(c, a, b));
    }
};
template <class I> struct division_and_modulo : kernel<integer_pair<I>, __orvane_intdiv_pool> {
    static constexpr double spare = 1;
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<I, W> a, lanes<I, W> b) {
        auto q = quotient(c, a, b);
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
