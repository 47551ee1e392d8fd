// sinpi, cospi, tanpi: exact figures with the signs of zeros and infinities, large arguments, symmetry, errors.
#include "accuracy.h"

#include <numbers>

using namespace orvane;

namespace {

// The kernels of one type; from even_limit on all its numbers are even integers, from tangent_limit on tanpi first
// takes multiples of 512 or 256 out.
struct kernels {
    lane_type type;
    const char *sine, *cosine, *tangent;
    double even_limit, tangent_limit;
};
constexpr kernels types[] = {{lane_type::f64, "sinpi", "cospi", "tanpi", 0x1p53, 0x1p49},
                             {lane_type::f32, "sinpif", "cospif", "tanpif", 0x1p24, 0x1p20}};
template <class F> void each_kernel(F f) {
    for (const auto& m : types)
        for (auto tier : {"default", "native"}) {
            SCOPED_TRACE(std::string(m.tangent) + " and its sisters, " + tier);
            f(m, tier);
        }
}
words words_of(lane_type t, const std::vector<double>& x) {
    words w;
    for (double v : x)
        w.push_back(word_of(t, v));
    return w;
}
double parity(double n) { return std::fmod(n, 2) == 0 ? 1 : -1; }

TEST(Sinpi, IntegersAndHalves) {
    each_kernel([](const kernels& m, const char* tier) {
        std::vector<double> n = {-0.0, m.even_limit - 1, 1 - m.even_limit, m.even_limit - 2, 2 - m.even_limit};
        for (double k = -70; k <= 70; k++)
            n.push_back(k);
        for (double x : {m.even_limit, m.even_limit * 2, m.even_limit * 0x1p9, m.even_limit * 0x1p40, 3e38})
            n.insert(n.end(), {x, -x});
        auto expect = [&](const char* name, double offset, auto value) {
            std::vector<double> x, expected;
            for (double k : n)
                if (offset == 0 || std::fabs(k) < 100)
                    x.push_back(offset ? k + offset : k), expected.push_back(value(k));
            sweep f(name, tier);
            const auto y = f({words_of(m.type, x)})[0];
            for (size_t i = 0; i < x.size(); i++)
                EXPECT_EQ(y[i], word_of(m.type, expected[i])) << name << " of " << x[i];
        };
        expect(m.sine, 0, [](double k) { return std::copysign(0.0, k); });
        expect(m.cosine, 0, [](double k) { return parity(k); });
        expect(m.tangent, 0, [](double k) { return std::copysign(0.0, k) * parity(k); });
        expect(m.sine, 0.5, [](double k) { return parity(k); });
        expect(m.cosine, 0.5, [](double) { return 0.0; });
        expect(m.tangent, 0.5, [](double k) { return parity(k) * HUGE_VAL; });
    });
}

// Of an argument beyond tangent_limit only the distance above a multiple of 512 counts, which the remainder gives
// exactly.
TEST(Sinpi, LargeTangents) {
    each_kernel([](const kernels& m, const char* tier) {
        rng r(61);
        std::vector<double> x = {m.tangent_limit, std::nextafter((float)m.tangent_limit, HUGE_VALF)}, rest;
        const int fraction = m.type == lane_type::f64 ? 52 : 23;
        for (int i = 0; i < 100'000; i++) {
            const double significand = (double)(uint64_t(1) << fraction | r() >> (64 - fraction));
            x.push_back(std::ldexp(significand, std::ilogb(m.tangent_limit) - fraction + i % 5));
        }
        for (size_t i = 0; i < x.size(); i += 2)
            x[i] = -x[i];
        for (double v : x)
            rest.push_back(std::fmod(v, 512.0));
        sweep f(m.tangent, tier);
        const auto reduced = f({words_of(m.type, rest)})[0];
        EXPECT_EQ(f({words_of(m.type, x)})[0], reduced);
    });
}

TEST(Sinpi, NotFinite) {
    each_kernel([](const kernels& m, const char* tier) {
        const bool wide = m.type == lane_type::f64;
        const uint64_t nan = wide ? 0x7FF0000000000777 : 0x7F800777;
        const uint64_t quiet = nan | (wide ? uint64_t(1) << 51 : 1 << 22);
        for (auto name : {m.sine, m.cosine, m.tangent}) {
            sweep f(name, tier, 1);
            EXPECT_TRUE(std::isnan(value_of(m.type, f({words_of(m.type, {HUGE_VAL})})[0][0]))) << name;
            EXPECT_TRUE(std::isnan(value_of(m.type, f({words_of(m.type, {-HUGE_VAL})})[0][0]))) << name;
            EXPECT_EQ(f({{nan}})[0][0], quiet) << name;
        }
        const kernel_row& row = *find_row(library_rows(), m.tangent, tier);
        EXPECT_EQ(call_slow_path(library_under_test(), row, {word_of(m.type, -HUGE_VAL)}).status, 1);
        EXPECT_EQ(call_slow_path(library_under_test(), row, {nan}).status, 0);
    });
}

TEST(Sinpi, OddAndEven) {
    each_kernel([](const kernels& m, const char* tier) {
        rng r(62);
        const auto any = random_patterns(*find_row(library_rows(), m.sine, tier), 100'000, r)[0];
        words x, minus;
        for (uint64_t w : any)
            if (!std::isnan(value_of(m.type, w)) && !std::isinf(value_of(m.type, w)))
                x.push_back(w), minus.push_back(word_of(m.type, -value_of(m.type, w)));
        for (auto name : {m.sine, m.cosine, m.tangent}) {
            sweep f(name, tier);
            words expected;
            for (uint64_t y : f({x})[0])
                expected.push_back(name == m.cosine ? y : word_of(m.type, -value_of(m.type, y)));
            EXPECT_EQ(f({minus})[0], expected) << name;
        }
    });
}

// The references: exact reduction, then the C library, for all floats in double and else in extended precision.
template <class T> T sine_of_half_turns(T x) { return std::sin(std::numbers::pi_v<T> * x); }
template <class T> T sinpi_of(T x) {
    const T n = std::rint(x);
    return (T)parity(n) * sine_of_half_turns(x - n);
}
template <class T> T cospi_of(T x) {
    const T n = std::rint(x);
    return (T)parity(n) * sine_of_half_turns(T(0.5) - std::fabs(x - n));
}
template <class T> T tanpi_of(T x) {
    const T quarters = std::rint(2 * x), t = std::tan(std::numbers::pi_v<T> * (x - quarters / 2));
    if (parity((double)quarters) > 0) return t;
    return t == 0 ? parity((double)(quarters - 1) / 2) * T(HUGE_VAL) : -1 / t; // poles: +Inf and -Inf in turn
}
TEST(Sinpi, LargestErrors) {
    struct largest {
        const char *name, *tier;
        allowed bound;
        extended_function reference;
    };
    for (const auto& [name, tier, bound, reference] : {largest{"sinpi", "default", known(), sinpi_of},
                                                       {"sinpi", "native", known(), sinpi_of},
                                                       {"sinpif", "default", known(), sinpi_of},
                                                       {"cospi", "default", known(), cospi_of},
                                                       {"cospi", "native", known(), cospi_of},
                                                       {"cospif", "default", known(), cospi_of},
                                                       {"tanpi", "default", known(), tanpi_of},
                                                       {"tanpi", "native", known(), tanpi_of},
                                                       {"tanpif", "default", known(), tanpi_of},
                                                       {"tanpif", "native", known(), tanpi_of}}) {
        check_accuracy({name, tier, bound, -1, 1, reference});
        check_accuracy({name, tier, bound, 1, 1e15, reference, true});
    }
}

TEST(Sinpi, LongEveryFloat) {
    for (const auto& a : {float_accuracy{"sinpif", "default", known(), sinpi_of},
                          {"cospif", "default", known(), cospi_of},
                          {"tanpif", "default", known(), tanpi_of},
                          {"tanpif", "native", known(), tanpi_of}})
        check_all_floats(a);
}

} // namespace
