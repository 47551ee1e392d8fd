// sinh, cosh, tanh, asinh, acosh, atanh: exact figures, poles and domains, both sides of the limits, slow paths, and
// errors. The inverse functions are fed by the processor's estimates.
#include "accuracy.h"

using namespace orvane;

namespace {

double next(lane_type t, double x, double to) {
    return t == lane_type::f64 ? std::nextafter(x, to) : std::nextafterf((float)x, (float)to);
}
TEST(Hyperbolics, ZerosAndNan) {
    each_member({"sinh", "tanh", "asinh", "atanh"}, [](const member& m) {
        for (double x : {0.0, -0.0})
            EXPECT_EQ(m.of_words({m.word(x)}), m.word(x));
    });
    each_member({"cosh"}, [](const member& m) { EXPECT_EQ(m(0), 1); });
    each_member({"acosh"}, [](const member& m) { EXPECT_EQ(m.of_words({m.word(1)}), 0u); });
    each_member({"sinh", "cosh", "tanh", "asinh", "acosh", "atanh"}, [](const member& m) {
        const uint64_t signaling = m.type() == lane_type::f64 ? 0xFFF0000000000777 : 0xFF800777;
        EXPECT_EQ(m.of_words({signaling}), signaling | m.quiet());
    });
}

TEST(Hyperbolics, SmallArguments) {
    each_member({"sinh", "tanh", "asinh", "atanh"}, [](const member& m) {
        const bool f64 = m.type() == lane_type::f64;
        const bool shortened = !f64 && m.is_fast(); // polynomials with a first term not 1
        const double slope = !shortened                ? 1
                             : m.row->base() == "sinh" ? 0.99993569
                             : m.row->base() == "tanh" ? 0.99994805
                                                       : 1;
        for (double x : {f64 ? 1e-305 : 1e-36, 1e-20, -1e-15})
            EXPECT_NEAR(m(x) / m.rounded(x), slope, slope == 1 ? 0 : 1e-7) << x;
        const double least = f64 ? 0x1p-1074 : 0x1p-149;
        if (slope == 1) EXPECT_EQ(m(-least), -least);
    });
}

TEST(Hyperbolics, InfinitiesPolesAndDomains) {
    each_member({"sinh", "asinh"}, [](const member& m) {
        for (double x : {HUGE_VAL, -HUGE_VAL}) {
            EXPECT_EQ(m(x), x);
            EXPECT_EQ(m.status(x), 0);
        }
    });
    each_member({"cosh"}, [](const member& m) {
        EXPECT_EQ(m(-HUGE_VAL), HUGE_VAL);
        EXPECT_EQ(m.status(HUGE_VAL), 0);
    });
    each_member({"tanh"}, [](const member& m) {
        for (double x : {HUGE_VAL, 3e38, 30.0}) {
            EXPECT_EQ(m(x), 1);
            EXPECT_EQ(m(-x), -1);
        }
        if (m.type() == lane_type::f64) {
            EXPECT_EQ(m(-0x1.2p1023), -1);
            EXPECT_EQ(m.status(-0x1.2p1023), 0);
        }
    });
    auto domain = [](const member& m, double x) {
        EXPECT_EQ(m.of_words({m.word(x)}), quiet_nan(m.type(), m.type() == lane_type::f32)) << x;
        EXPECT_EQ(m.status(x), 1) << x;
    };
    each_member({"acosh"}, [&](const member& m) {
        EXPECT_EQ(m(HUGE_VAL), HUGE_VAL);
        EXPECT_EQ(m.status(HUGE_VAL), 0);
        EXPECT_EQ(m.status(1), 0);
        for (double x : {next(m.type(), 1, 0), 0.0, -1.0, -HUGE_VAL})
            domain(m, x);
    });
    each_member({"atanh"}, [&](const member& m) {
        EXPECT_EQ(m(1), HUGE_VAL);
        EXPECT_EQ(m(-1), -HUGE_VAL);
        EXPECT_EQ(m.status(1), 2);
        EXPECT_EQ(m.status(-1), 2);
        for (double x : {next(m.type(), 1, 2), -2.0, HUGE_VAL, -HUGE_VAL})
            domain(m, x);
    });
}

// Where sinh and cosh overflow, through a scale that is no double itself; of float first by rounding alone.
TEST(Hyperbolics, EndsOfTheRange) {
    const double last = 710.475860073944, lastf = 89.41599273681641;
    for (auto name : {"sinh", "cosh"}) {
        const member m{find_row(library_rows(), name, "default")};
        EXPECT_GT(m(std::nextafter(last, 0)), 1.79e308);
        EXPECT_EQ(m.status(std::nextafter(last, 0)), 0);
        for (double x : {last, 711.0, 1e300}) {
            EXPECT_EQ(m(x), HUGE_VAL);
            EXPECT_EQ(m.status(x), 3);
        }
    }
    EXPECT_EQ(value_for("sinh", "default", -711), -HUGE_VAL);
    for (auto name : {"sinhf", "coshf"}) {
        const member m{find_row(library_rows(), name, "native")};
        EXPECT_GT(m(next(m.type(), lastf, 0)), 3.4e38f);
        EXPECT_EQ(m.status(next(m.type(), lastf, 0)), 0);
        EXPECT_EQ(m(lastf), HUGE_VAL);
        EXPECT_EQ(m.status(lastf), 3);
    }
}

// The limit itself is the last argument of sinhf's kernels and the first of coshf's slow path. Which of them ran
// shows when rounding goes downward: there a kernel's n is one too small, and r far outside of its polynomials'
// range.
TEST(Hyperbolics, LimitsOfTheSlowPaths) {
    constexpr uint32_t downward = 0x3F80;
    constexpr uint64_t limit = 0x42AEAC4E;
    auto is_slow = [](const char* name, uint64_t x) {
        const kernel_row& row = *find_row(library_rows(), name, "native");
        const auto y = by_single_lanes({&row, &library_under_test()}, {{x}}, downward)[0][0];
        const double slow = value_of(row.out, call_slow_path(library_under_test(), row, {x}).result);
        return std::fabs(value_of(row.out, y) / slow - 1) < 0x1p-22;
    };
    EXPECT_FALSE(is_slow("sinhf", limit));
    EXPECT_TRUE(is_slow("sinhf", limit + 1));
    EXPECT_FALSE(is_slow("coshf", limit - 1));
    EXPECT_TRUE(is_slow("coshf", limit));
}

TEST(Hyperbolics, TanhSaturates) {
    EXPECT_EQ(value_for("tanh", "default", 20), 1);
    EXPECT_EQ(value_for("tanh", "default", -std::nextafter(20.0, 0)), -1);
    EXPECT_EQ(value_for("tanhf", "default", 8.015625), 1);
    EXPECT_EQ(value_for("tanhf", "native", 5), 1);
    EXPECT_LT(value_for("tanhf", "native", std::nextafterf(5, 0)), 1);
}

// Largest errors near places where a kernel changes its form: on both sides, so that a wrong side would show.
TEST(Hyperbolics, ChangesOfForm) {
    truth t;
    struct places {
        const char* name;
        std::vector<double> at;
        allowed bound;
        extended_function reference;
    };
    std::vector<double> rows, halves;
    for (int j = 1; j <= 58; j++)
        rows.push_back(std::bit_cast<double>(uint64_t(0x3FBE0000 + (j << 17)) << 32));
    for (int n = 1; n < 250; n++)
        halves.push_back((n - 0.5) * M_LN2 / 2);
    for (const auto& [name, at, bound, reference] :
         {places{"tanh", rows, 1.01, tanhl}, places{"tanhf", {8.015625}, 3.66, tanhl},
          places{"asinh", {0x1p-9, 0x1p30}, fed(1.05, 2.05), asinhl},
          places{"asinhf", {0.0625, 0x1p30}, fed(1.59, 1.59), asinhl},
          places{"acosh", {0x1p30}, fed(0.736, 0.738), acoshl}, places{"acoshf", {0x1p30}, fed(0.531, 0.533), acoshl},
          places{"atanh", {0x1p-970, 0x1p-32}, fed(1, 1.01), atanhl},
          places{"atanhf", {0x1p-103, 0x1p-32}, {1e-6, 0}, atanhl}, places{"sinhf", halves, 1.04, sinhl},
          places{"coshf", halves, 1.57, coshl}}) {
        sweep f(name);
        words x;
        for (double v : at)
            for (uint64_t d = 0; d < 200; d++)
                x.push_back(word_of(f.row().in, v) - 100 + d);
        expect_errors(std::string(name) + " change of form", bound, f, t, {x}, reference);
    }
}

TEST(Hyperbolics, SlowPaths) {
    for (const auto& a : {accuracy{"sinh", "default", 0.514, 707.8, 710.47586, sinhl},
                          {"cosh", "default", 0.514, 707.8, 710.47586, coshl},
                          {"sinhf", "default", 0.5001, 87.34, 89.41598, sinhl},
                          {"coshf", "default", 0.5001, 87.34, 89.41598, coshl}})
        check_accuracy(a);
}

TEST(Hyperbolics, LargestErrors) {
    for (const auto& a : {accuracy{"sinh", "default", known(), -707, 707, sinhl},
                          {"sinh", "default", known(), 1e-5, 4, sinhl, true},
                          {"cosh", "default", known(), -707, 707, coshl},
                          {"cosh", "default", known(), -3, 3, coshl},
                          {"sinhf", "default", known(), -87, 87, sinhl},
                          {"sinhf", "default", known(), 1e-3, 4, sinhl, true},
                          {"sinhf", "native", known(), -87, 87, sinhl},
                          {"coshf", "default", known(), -87, 87, coshl},
                          {"coshf", "default", 1.21, -3, 3, coshl},
                          {"coshf", "native", known(), -87, 87, coshl},
                          {"tanh", "default", known(), -20, 20, tanhl},
                          {"tanh", "default", known(), 1e-5, 20, tanhl, true},
                          {"tanhf", "default", known(), -9, 9, tanhl},
                          {"tanhf", "default", known(), 1e-3, 9, tanhl, true},
                          {"tanhf", "native", known(), -6, 6, tanhl},
                          {"asinh", "default", fed(2.06, 6.34), -100, 100, asinhl},
                          {"asinh", "default", fed(2.15, 6.24), 1e-8, 1e40, asinhl, true},
                          {"asinh", "native", known(4.94e6), 1e-8, 1e40, asinhl, true},
                          {"asinhf", "default", known(2.05), -100, 100, asinhl},
                          {"asinhf", "default", known(2.07), 1e-4, 1e35, asinhl, true},
                          {"asinhf", "native", known(1474), 1e-4, 1e35, asinhl, true},
                          {"acosh", "default", fed(2.55, 2.74), 1, 4, acoshl, true},
                          {"acosh", "default", fed(2.31, 2.32), 1, 1e40, acoshl, true},
                          {"acosh", "native", fed(1.34e6, 1.06e7), 1, 1e40, acoshl, true},
                          {"acoshf", "default", known(2.82), 1, 4, acoshl, true},
                          {"acoshf", "default", known(2.18), 1, 1e35, acoshl, true},
                          {"acoshf", "native", known(2483), 1, 1e35, acoshl, true},
                          {"atanh", "default", fed(1.97, 6.19), -0.999999, 0.999999, atanhl},
                          {"atanh", "default", fed(2.42, 6.43), 1e-8, 1, atanhl, true},
                          {"atanh", "native", known(4.94e6), -0.999999, 0.999999, atanhl},
                          {"atanhf", "default", known(1.97), -0.999, 0.999, atanhl},
                          {"atanhf", "default", known(2.03), 1e-4, 1, atanhl, true},
                          {"atanhf", "native", known(1474), -0.999, 0.999, atanhl}})
        check_accuracy(a);
}

TEST(Hyperbolics, LongEveryFloat) {
    for (const auto& a : {float_accuracy{"sinhf", "default", known(), std::sinh},
                          {"sinhf", "native", known(), std::sinh},
                          {"coshf", "default", known(), std::cosh},
                          {"coshf", "native", known(), std::cosh},
                          {"tanhf", "default", known(), std::tanh},
                          {"tanhf", "native", known(), std::tanh},
                          {"asinhf", "default", known(2.1), std::asinh},
                          {"asinhf", "native", known(1474), std::asinh},
                          {"acoshf", "default", known(2.82), std::acosh},
                          {"acoshf", "native", known(2500), std::acosh},
                          {"atanhf", "default", known(2.06), std::atanh},
                          {"atanhf", "native", known(1474), std::atanh}})
        check_all_floats(a);
}

} // namespace
