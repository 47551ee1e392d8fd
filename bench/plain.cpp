// The peers of families that are an instruction or two: what a compiler makes of plain scalar code. Each is a
// function of a vector that is not inlined, as ours are not; the inlined loop over the buffer stands beside it for
// information.
#include "bench/peers.h"

#include <bit>
#include <cmath>
#include <cstring>
#include <limits>

namespace orvane::bench {

namespace {

template <class T, int N> struct vector_of { typedef T type __attribute__((vector_size(N * sizeof(T)))); };
template <class T, int N> using vector = typename vector_of<T, N>::type;

template <class F, class From, class To, int N> [[gnu::noinline]] vector<To, N> on_vector(vector<From, N> x) {
    From from[N];
    To to[N];
    memcpy(from, &x, sizeof x);
    for (int i = 0; i < N; i++)
        to[i] = F::template of<To>(from[i]);
    vector<To, N> y;
    memcpy(&y, to, sizeof y);
    return y;
}
template <class F, class From, class To, int N> vector_function called() {
    auto* function = &on_vector<F, From, To, N>;
    asm("" : "+r"(function)); // called through a pointer, as ours are
    pass run = [function](buffer& b) {
        for (int i = 0; i < lanes_of_buffer; i += N) {
            vector<From, N> x;
            memcpy(&x, b.argument[0].as<From>() + i, sizeof x);
            const auto y = function(x);
            memcpy(b.result[0].as<To>() + i, &y, sizeof y);
        }
    };
    return {run, N, is_in_registers<vector<To, N>, vector<From, N>> ? (const void*)function : nullptr};
}
template <class F, class From, class To> family_peers plain() {
    constexpr int wide = 32 / std::max(sizeof(From), sizeof(To));
    family_peers p;
    p.accurate.emplace(peer{"C", called<F, From, To, wide>(), called<F, From, To, wide / 2>(), "C"});
    p.scalar = [](buffer& b) {
        const From* x = b.argument[0].as<From>();
        To* y = b.result[0].as<To>();
        for (int i = 0; i < lanes_of_buffer; i++)
            y[i] = F::template of<To>(x[i]);
    };
    return p;
}

struct absolute {
    template <class To> static To of(To x) { return std::fabs(x); }
};
struct quiet_nan {
    template <class To, class Bits> static To of(Bits payload) {
        return std::bit_cast<To>(payload | std::bit_cast<Bits>(std::numeric_limits<To>::quiet_NaN()));
    }
};

enum mode { rte, rtn, rtp, rtz };
template <mode M, class T> T rounded(T x) {
    return M == rte ? std::rint(x) : M == rtn ? std::floor(x) : M == rtp ? std::ceil(x) : std::trunc(x);
}
template <mode M, bool Saturating> struct to_integer {
    template <class To, class From> static To of(From x) {
        using limits = std::numeric_limits<To>;
        const From r = rounded<M>(x);
        if (!Saturating) return (To)r;
        constexpr From end = From(limits::max() / 2 + 1) * 2;
        return r >= end ? limits::max() : r <= From(limits::min()) ? limits::min() : r != r ? To(0) : (To)r;
    }
};
// To nearest by the cast; the directed ones one pattern on, where the cast went the wrong way.
template <mode M> struct to_floating {
    template <class To, class From> static To of(From x) {
        const To y = (To)x;
        if (M == rte) return y;
        using pattern = std::conditional_t<sizeof(To) == 8, int64_t, int32_t>;
        const From back = (From)y;
        const bool above = M == rtn ? back > x : M == rtp ? false : x < 0 ? back < x : back > x;
        const bool below = M == rtp && back < x;
        const pattern step = above ? (M == rtz || y > 0 ? -1 : 1) : below ? (y < 0 ? -1 : 1) : 0;
        return std::bit_cast<To>(std::bit_cast<pattern>(y) + step);
    }
};

template <class From, class To, mode M> family_peers conversion(bool saturating) {
    if constexpr (std::is_integral_v<To>) {
        if (saturating) return plain<to_integer<M, true>, From, To>();
        return plain<to_integer<M, false>, From, To>();
    } else return plain<to_floating<M>, From, To>();
}

} // namespace

family_peers plain_peers_of(const kernel_row& row) {
    if (row.sclass == signature_class::bits_to_nan)
        return row.out == lane_type::f32 ? plain<quiet_nan, uint32_t, float>() : plain<quiet_nan, uint64_t, double>();
    if (row.base() == "fabs")
        return row.out == lane_type::f32 ? plain<absolute, float, float>() : plain<absolute, double, double>();
    if (row.sclass != signature_class::conversion) return {};
    auto has = [&](std::string_view part) { return row.name.find(part) != row.name.npos; };
    return with_type(row.in, [&]<class From>(type<From>) {
        return with_type(row.out, [&]<class To>(type<To>) -> family_peers {
            constexpr bool from = std::is_floating_point_v<From>, to = std::is_floating_point_v<To>;
            if constexpr (from != to || (from && sizeof(From) > sizeof(To))) {
                const bool saturating = !has("nosat");
                return has("rte")   ? conversion<From, To, rte>(saturating)
                       : has("rtn") ? conversion<From, To, rtn>(saturating)
                       : has("rtp") ? conversion<From, To, rtp>(saturating)
                                    : conversion<From, To, rtz>(saturating);
            } else return {};
        });
    });
}

} // namespace orvane::bench
