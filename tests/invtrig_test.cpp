// asin, acos, atan, atan2 and their pi forms: exact values, domains, quadrants, slow paths, and errors. Of kernels
// fed by the processor's estimates no bits are frozen.
#include "accuracy.h"

#include <numbers>

using namespace orvane;

namespace {

constexpr double pi = std::numbers::pi, inf = HUGE_VAL;

// +0 is not -0.
void expect_same(double a, double b) {
    EXPECT_EQ(std::bit_cast<uint64_t>(a), std::bit_cast<uint64_t>(b)) << a << " " << b;
}

TEST(InverseTrigonometry, OutsideTheDomain) {
    for (auto name : {"asin", "acos", "asinpi", "acospi"})
        each_member({name}, [](const member& f) {
            const double after_one = f.is_float() ? std::nextafterf(1, 2) : std::nextafter(1, 2);
            for (double x : {after_one, 2.0, 1e30, inf})
                for (double s : {x, -x}) {
                    EXPECT_EQ(f.of_words({f.word(s)}), f.quiet()) << s;
                    EXPECT_EQ(f.status(s), 1) << s;
                }
        });
}

TEST(InverseTrigonometry, NanKeepsItsPayload) {
    for (auto name : {"asin", "acos", "asinpi", "acospi", "atan", "atanpi"})
        each_member({name}, [](const member& f) {
            const uint64_t signalling = f.is_float() ? 0x7F812345 : 0x7FF0000012345678;
            for (uint64_t s : {uint64_t(0), f.sign()})
                EXPECT_EQ(f.of_words({signalling | s}) & ~f.sign(), signalling | f.quiet());
        });
    for (auto name : {"atan2", "atan2pi"})
        each_member({name}, [](const member& f) {
            const uint64_t signalling = (f.is_float() ? 0x7F812345 : 0x7FF0000012345678) | f.sign();
            for (double other : {0.0, -0.0, 1.0, inf, -inf}) {
                EXPECT_EQ(f.of_words({signalling, f.word(other)}), signalling | f.quiet()) << other;
                EXPECT_EQ(f.of_words({f.word(other), signalling}), signalling | f.quiet()) << other;
            }
        });
}

TEST(InverseTrigonometry, ExactValues) {
    each_member({"asin"}, [](const member& f) {
        for (double s : {1.0, -1.0}) {
            expect_same(f(s * 0.0), s * 0.0);
            expect_same(f(s), f.rounded(s * pi / 2));
            const double subnormal = f.is_float() ? 0x7FFFFFp-149 : 0xFFFFFFFFFFFFFp-1074;
            if (!f.is_fast() || !f.is_float()) expect_same(f(s * subnormal), s * subnormal);
        }
    });
    each_member({"acos"}, [](const member& f) {
        for (double s : {1.0, -1.0})
            expect_same(f(s * 0.0), f.rounded(pi / 2));
        expect_same(f(1.0), 0.0);
        expect_same(f(-1.0), f.rounded(pi));
    });
    each_member({"asinpi"}, [](const member& f) {
        for (double s : {1.0, -1.0}) {
            expect_same(f(s * 0.0), s * 0.0);
            expect_same(f(s), s * 0.5);
            EXPECT_EQ(f.status(s), 0);
        }
    });
    each_member({"acospi"}, [](const member& f) {
        expect_same(f(0.0), 0.5);
        expect_same(f(-0.0), 0.5);
        expect_same(f(1.0), 0.0);
        expect_same(f(-1.0), 1.0);
        EXPECT_EQ(f.status(-1.0), 0);
    });
    each_member({"atan"}, [](const member& f) {
        for (double s : {1.0, -1.0}) {
            expect_same(f(s * 0.0), s * 0.0);
            expect_same(f(s * inf), f.rounded(s * pi / 2));
            expect_same(f(s * (f.is_float() ? 0x1p127 : 0x1p1023)), f.rounded(s * pi / 2));
            if (!f.is_fast()) expect_same(f(s * 0x1p-149), s * 0x1p-149);
        }
    });
    each_member({"atanpi"}, [](const member& f) {
        const double limit = f.is_float() ? 0x1p123 : 0x1p993;
        for (double s : {1.0, -1.0}) {
            expect_same(f(s * 0.0), s * 0.0);
            for (double x : {limit, f.is_float() ? std::nextafterf(limit, 0) : std::nextafter(limit, 0), inf})
                expect_same(f(s * x), s * 0.5);
        }
    });
    expect_same(member{find_row(library_rows(), "atanpi", "default")}(1.0), 0.25);
}

// Zeros, finite numbers and infinities of both signs: all angles are multiples of an eighth of a turn.
TEST(InverseTrigonometry, Quadrants) {
    for (bool over_pi : {false, true})
        each_member({over_pi ? "atan2pi" : "atan2"}, [&](const member& f) {
            for (double y : {0.0, 2.5, inf})
                for (double x : {0.0, 3.5, inf})
                    for (double t : {y, -y})
                        for (double s : {x, -x}) {
                            if (y == 2.5 && x == 3.5) continue;
                            const double eighths = std::rint(std::atan2(t, s) / (pi / 4)); // keeps -0
                            SCOPED_TRACE(testing::Message() << t << " " << s);
                            expect_same(f(t, s), over_pi ? eighths / 4 : f.rounded(std::atan2(t, s)));
                            EXPECT_EQ(f.status(t, s), over_pi && t == 0 && s == 0);
                        }
            // The diagonal of very large and of very small numbers, and exponents so far apart that only the
            // quadrant is left.
            const double large = f.is_float() ? 0x1p126 : 0x1p1000, small = f.is_float() ? 0x1p-126 : 0x1p-1022;
            for (double m : {large, small})
                for (double t : {m, -m}) {
                    expect_same(f(t, m), f.rounded(over_pi ? std::copysign(0.25, t) : std::copysign(pi / 4, t)));
                    expect_same(f(t, -m), f.rounded(over_pi ? std::copysign(0.75, t) : std::atan2(t, -m)));
                }
            expect_same(f(large, small), f.rounded(over_pi ? 0.5 : pi / 2));
            expect_same(f(-small, -large), f.rounded(over_pi ? -1.0 : -pi));
        });
}

// ---- Errors.

long double asinpi_of(long double x) { return asinl(x) / std::numbers::pi_v<long double>; }
long double acospi_of(long double x) { return acosl(x) / std::numbers::pi_v<long double>; }
long double atanpi_of(long double x) { return atanl(x) / std::numbers::pi_v<long double>; }
long double atan2pi_of(long double y, long double x) { return atan2l(y, x) / std::numbers::pi_v<long double>; }

TEST(InverseTrigonometry, LargestErrors) {
    for (const auto& a : {accuracy{"asin", "default", known(), -1, 1, asinl},
                          {"asin", "native", fed(4.70e6, 5.88e6), -1, 1, asinl},
                          {"asinf", "default", known(), -1, 1, asinl},
                          {"asinf", "native", known(541), -1, 1, asinl},
                          {"acos", "default", known(), -1, 1, acosl},
                          {"acos", "native", known(5.68e6), -1, 1, acosl},
                          {"acosf", "default", known(), -1, 1, acosl},
                          {"acosf", "native", known(532), -1, 1, acosl},
                          {"asinpi", "default", known(), -1, 1, asinpi_of},
                          {"asinpi", "native", fed(5.99e6, 7.48e6), -1, 1, asinpi_of},
                          {"asinpif", "default", known(), -1, 1, asinpi_of},
                          {"asinpif", "native", known(), -1, 1, asinpi_of},
                          {"acospi", "default", known(), -1, 1, acospi_of},
                          {"acospi", "native", known(5.61e6), -1, 1, acospi_of},
                          {"acospif", "default", known(), -1, 1, acospi_of},
                          {"acospif", "native", known(), -1, 1, acospi_of},
                          {"atan", "default", known(), -10, 10, atanl},
                          {"atan", "default", 1.48, 1e-300, 1e300, atanl, true},
                          {"atan", "native", known(2.17e7), -10, 10, atanl},
                          {"atanf", "default", known(), -10, 10, atanl},
                          {"atanf", "native", known(3786), -10, 10, atanl},
                          {"atanpi", "default", known(2.68), -10, 10, atanpi_of},
                          {"atanpi", "default", known(2.56), 1e-300, 1e290, atanpi_of, true},
                          {"atanpi", "native", known(2.22e7), -10, 10, atanpi_of},
                          {"atanpif", "default", known(4.49), -10, 10, atanpi_of},
                          {"atanpif", "native", known(3788), -10, 10, atanpi_of}})
        check_accuracy(a);
}

// Arguments (y, x) of all quadrants: y by its exponent, and x a ratio away from it.
struct ranges {
    long double y_lo, y_hi, ratio_lo, ratio_hi;
};
void add_pairs(std::vector<words>& lanes, lane_type type, const ranges& a, int n) {
    rng r(41);
    auto within = [&](long double lo, long double hi) {
        const auto v = std::exp(std::uniform_real_distribution<long double>(std::log(lo), std::log(hi))(r));
        return r() % 2 ? v : -v;
    };
    for (int i = 0; i < n; i++) {
        const long double v = within(a.y_lo, a.y_hi);
        lanes[0].push_back(word_of(type, v));
        lanes[1].push_back(word_of(type, v * within(a.ratio_lo, a.ratio_hi)));
    }
}
struct pair_accuracy {
    const char *name, *tier;
    allowed bound;
    extended_function2 reference;
};
void check_pairs(const pair_accuracy& a, std::initializer_list<ranges> all, int n) {
    sweep f(a.name, a.tier, 8);
    truth t;
    std::vector<words> lanes(2);
    for (const auto& range : all)
        add_pairs(lanes, f.row().in, range, n);
    expect_errors(std::string(a.name) + " " + a.tier, a.bound, f, t, lanes, a.reference);
}

TEST(InverseTrigonometry, LargestErrorsOfTwoArguments) {
    for (const auto& a : {pair_accuracy{"atan2", "default", known(), atan2l},
                          {"atan2", "native", known(2.22e7), atan2l},
                          {"atan2f", "default", known(), atan2l},
                          {"atan2f", "native", known(3790), atan2l},
                          {"atan2pi", "default", known(3.21), atan2pi_of},
                          {"atan2pi", "native", known(2.22e7), atan2pi_of},
                          {"atan2pif", "default", known(), atan2pi_of},
                          {"atan2pif", "native", known(3789), atan2pi_of}})
        check_pairs(a, {{1e-6, 1e6, 0.1, 10}, {1e-12, 1e12, 1e-9, 1e9}}, 500'000);
}

// Beyond the kernels' range: |y| below 2^-1020 or above 2^993 (float: 2^-125 and 2^123), and quotients of every kind.
TEST(InverseTrigonometry, SlowPathsOfTwoArguments) {
    const std::initializer_list<ranges> doubles = {{1e299, 1e307, 1e-5, 5},
                                                   {1e299, 1e307, 1e-24, 1e-16},
                                                   {1e-320, 8e-308, 1e-5, 1e5},
                                                   {1e-320, 8e-308, 1e-24, 1e-16}};
    const std::initializer_list<ranges> floats = {{1.1e37, 1e38, 1e-5, 3},
                                                  {1.1e37, 1e38, 1e-24, 1e-16},
                                                  {1e-44, 2.3e-38, 1e-5, 1e5}},
                                        tiny_float_quotients = {{1e-44, 2.3e-38, 1e16, 1e36},
                                                                {1e-44, 2.3e-38, 1e37, 1e45}};
    const std::initializer_list<ranges> tiny_quotients = {{1e-320L, 8e-308, 1e16, 1e300},
                                                          {1e-320L, 8e-308, 1e307, 1e323L}};
    check_pairs({"atan2", "default", 0.506, atan2l}, doubles, 100'000);
    check_pairs({"atan2pi", "default", 0.64, atan2pi_of}, doubles, 100'000); // by the constants near half a turn
    check_pairs({"atan2f", "default", 0.5001, atan2l}, floats, 100'000);
    check_pairs({"atan2pif", "default", 0.5001, atan2pi_of}, floats, 100'000);
    check_pairs({"atan2", "default", 0.5001, atan2l}, tiny_quotients, 100'000);
    check_pairs({"atan2pi", "default", 0.75, atan2pi_of}, tiny_quotients, 100'000); // subnormals are rounded twice
    check_pairs({"atan2f", "default", 0.5001, atan2l}, tiny_float_quotients, 100'000);
    check_pairs({"atan2pif", "default", 0.5001, atan2pi_of}, tiny_float_quotients, 100'000);
}

TEST(InverseTrigonometry, SlowPathsOfAtanpi) {
    // Some results of the double one are rounded twice.
    check_accuracy({"atanpi", "default", 0.75, 0x1p-1074, 0x1p-1021, atanpi_of, true});
    check_accuracy({"atanpif", "default", 0.5001, 0x1p-149, 0x1p-126, atanpi_of, true});
}

// Both sides of every change of form.
TEST(InverseTrigonometry, ErrorsAtTheSeams) {
    struct seam {
        const char* name;
        extended_function reference;
        double at;
        allowed bound, bound_of_float;
    };
    for (const auto& s : {seam{"asin", asinl, 0.5, 1.32, 1.74},
                          {"acos", acosl, 0.5, 0.966, 1.12},
                          {"asinpi", asinpi_of, 0.5, 1.35, 1.8},
                          {"acospi", acospi_of, 0.5, 1.03, 1.26},
                          {"asin", asinl, 1 - 1e-5, 0.778, 0.87},
                          {"acos", acosl, 1 - 1e-5, 0.981, 0.988},
                          {"atan", atanl, 7.875, 0.998, 0.922},
                          {"atan", atanl, 0.125, 2.5, 1.48},
                          {"atan", atanl, 1.0, 0.776, 1.92},
                          {"atan", atanl, 0x1p63, {0.276, 0.27}, {0.367, 0.36}}, // pi/2 all of them
                          {"atanpi", atanpi_of, 1.0, fed(2.39, 2.39), fed(2.64, 3.28)}})
        for (auto type : {"", "f"}) {
            sweep f(std::string(s.name) + type);
            truth t;
            words x;
            for (double at : {s.at, -s.at})
                for (int i = -2000; i <= 2000; i++)
                    x.push_back(word_of(f.row().in, at) + i);
            expect_errors(std::string(s.name) + type + " at a seam", *type ? s.bound_of_float : s.bound, f, t, {x},
                          s.reference);
        }
}

TEST(InverseTrigonometry, LongEveryFloat) {
    for (const auto& a : {float_accuracy{"asinf", "default", known(), std::asin},
                          {"acosf", "default", known(), std::acos},
                          {"atanf", "default", known(), std::atan},
                          {"asinpif", "default", known(), [](double x) { return std::asin(x) / pi; }},
                          {"acospif", "default", known(), [](double x) { return std::acos(x) / pi; }},
                          {"atanpif", "default", known(4.49), [](double x) { return std::atan(x) / pi; }}})
        check_all_floats(a);
}

} // namespace
