// orvane/simd.hpp: every number of lanes gives in each lane what the export of one lane gives, by shape and tier.
#include <cstring>
#include <gtest/gtest.h>
#include <orvane/simd.hpp>

namespace stdx = std::experimental;

namespace {

template <class V> V ramp(double from, double step) {
    return V([&](auto i) { return typename V::value_type(from + step * int(i)); });
}

// y lane by lane against f of one lane.
template <class V, class Y, class F> void expect_lanes(const char* what, const Y& y, F f) {
    for (int i = 0; i < int(V::size()); i++) {
        const typename Y::value_type expected = f(i), got = y[i];
        EXPECT_EQ(0, memcmp(&got, &expected, sizeof got)) << what << ", lane " << i << " of " << V::size();
    }
}

template <class X> auto lane0(X x) {
    if constexpr (std::is_arithmetic_v<X>) return x;
    else return x[0];
}
template <class T> using one = std::conditional_t<sizeof(T) == 8, orvane_double2, orvane_float4>;

// The export of one lane, for T.
#define ONE(d, f)                                                                                                    \
    [](auto... a) {                                                                                                  \
        if constexpr (sizeof(T) == 8) return __orvane_l9_##d(a...);                                                  \
        else return __orvane_l9_##f(a...);                                                                           \
    }

template <class V> void all_shapes() {
    using T = typename V::value_type;
    constexpr int N = V::size();
    using I = stdx::fixed_size_simd<int, N>;
    const V x = ramp<V>(-2.3, 0.61), y = ramp<V>(0.2, 0.37), special = ramp<V>(-745, 130);
    const I n([](auto i) { return int(i) * 3 - 7; });
    auto in = [](const V& v, int i) { return one<T>{T(v[i])}; };

#define EXPECT_ONE_ARGUMENT(name, d, f)                                                                              \
    expect_lanes<V>(#name, name(y), [&](int i) { return lane0(ONE(d, f)(in(y, i))); });                              \
    expect_lanes<V>(#name, name(special), [&](int i) { return lane0(ONE(d, f)(in(special, i))); })
    EXPECT_ONE_ARGUMENT(orvane::exp, exp1, expf1);
    EXPECT_ONE_ARGUMENT(orvane::fast::exp, exp1_native, expf1_native);
    if constexpr (N == 5 || N == 8) {
        EXPECT_ONE_ARGUMENT(orvane::half::log, log1_half, logf1_half);
        EXPECT_ONE_ARGUMENT(orvane::rm::exp10, exp101_rm, exp10f1_rm);
        EXPECT_ONE_ARGUMENT(orvane::fast::floor, floor1, floorf1);
        EXPECT_ONE_ARGUMENT(orvane::lgamma, lgamma1, lgammaf1);
    }

    expect_lanes<V>("pow", orvane::pow(y, x), [&](int i) { return lane0(ONE(pow1, powf1)(in(y, i), in(x, i))); });
    expect_lanes<V>("fma", orvane::fma(y, x, special),
                    [&](int i) { return lane0(ONE(fma1, fmaf1)(in(y, i), in(x, i), in(special, i))); });
    expect_lanes<V>("pow of a number", orvane::pow(y, T(2)),
                    [&](int i) { return lane0(ONE(pow1, powf1)(in(y, i), one<T>{T(2)})); });
    expect_lanes<V>("ldexp", orvane::ldexp(x, n),
                    [&](int i) { return lane0(ONE(ldexp1, ldexpf1)(in(x, i), int(n[i]))); });
    expect_lanes<V>("ilogb", orvane::ilogb(x), [&](int i) { return int(ONE(ilogb1, ilogbf1)(in(x, i))); });

    V whole;
    I integer;
    T t;
    int k;
    const V fraction = orvane::modf(x, &whole);
    expect_lanes<V>("modf", fraction, [&](int i) { return lane0(ONE(modf1, modff1)(&t, in(x, i))); });
    expect_lanes<V>("modf, whole", whole, [&](int i) { return ONE(modf1, modff1)(&t, in(x, i)), t; });
    const V part = orvane::frexp(x, &integer);
    expect_lanes<V>("frexp", part, [&](int i) { return lane0(ONE(frexp1, frexpf1)(&k, in(x, i))); });
    expect_lanes<V>("frexp, exponent", integer, [&](int i) { return ONE(frexp1, frexpf1)(&k, in(x, i)), k; });
    const V rest = orvane::remquo(special, y, &integer);
    expect_lanes<V>("remquo", rest,
                    [&](int i) { return lane0(ONE(remquo1, remquof1)(&k, in(special, i), in(y, i))); });
    expect_lanes<V>("remquo, quotient", integer,
                    [&](int i) { return ONE(remquo1, remquof1)(&k, in(special, i), in(y, i)), k; });
    const auto [sine, cosine] = orvane::sincos(special);
    expect_lanes<V>("sine", sine, [&](int i) { return lane0(ONE(sincos1, sincosf1)(&t, in(special, i))); });
    expect_lanes<V>("cosine", cosine, [&](int i) { return ONE(sincos1, sincosf1)(&t, in(special, i)), t; });
}

template <class T, int... N> void all_widths(std::integer_sequence<int, N...>) {
    (all_shapes<stdx::fixed_size_simd<T, N + 1>>(), ...);
    all_shapes<stdx::native_simd<T>>();
    all_shapes<stdx::simd<T>>();
    all_shapes<stdx::simd<T, stdx::simd_abi::scalar>>();
}

TEST(Simd, FloatOfEveryWidth) { all_widths<float>(std::make_integer_sequence<int, 16>()); }
TEST(Simd, DoubleOfEveryWidth) { all_widths<double>(std::make_integer_sequence<int, 16>()); }

} // namespace
