// sin, cos, sincos, sincosreg with their f members: errors by path, thresholds, symmetry, and what special lanes
// give.
#include "accuracy.h"

using namespace orvane;

namespace {

constexpr auto f32 = lane_type::f32, f64 = lane_type::f64;
constexpr double closest = 0x1.6ac5b262ca1ffp+849; // of all doubles the closest to a multiple of pi/2, by 2^-60.9

struct family {
    const char *name, *tier;
    lane_type t;
    double limit;          // of the short path
    double small, large;   // ulps on either side of it
    bool absolute = false; // small is an absolute error
};
const family families[] = {
    {"sinf", "default", f32, 0x1p19, 2.3, 0.597},         {"cosf", "default", f32, 0x1p19, 2.36, 0.593},
    {"sinf", "native", f32, 10000, 1.51e-4, 0.599, true}, {"cosf", "native", f32, 10000, 1.52e-4, 0.593, true},
    {"sincosf", "default", f32, 0x1p19, 2.1, 2.08},       {"sin", "default", f64, 0x1p24, 3.23, 0.503},
    {"cos", "default", f64, 0x1p23, 3.3, 0.503},          {"sincos", "default", f64, 0x1p23, 3.25, 0.503},
    {"sin", "rm", f64, 0x1p24, 6.82e-9, 0.51, true},      {"cos", "rm", f64, 0x1p23, 6.82e-9, 0.512, true},
    {"sincos", "rm", f64, 0x1p23, 6.82e-9, 0.513, true},
};

std::vector<extended_function> references(std::string_view name) {
    if (name.starts_with("sincos")) return {sinl, cosl};
    return {name.starts_with("sin") ? sinl : cosl};
}

// Arguments next to multiples of pi/2, as far as the type goes.
words near_zeros(lane_type t, double lo, double hi) {
    rng r(61);
    words x;
    for (int i = 0; i < 30000; i++) {
        const long double half_pi = 1.57079632679489661923132169163975144L;
        const uint64_t w = word_of(t, (double)(half_pi * (r() % (uint64_t(1) << (2 + i % 44)))));
        for (int step = 0; step < 3; step++)
            if (const double v = value_of(t, w + step); v > lo && v <= hi) x.push_back(w + step);
    }
    return x;
}

double absolute_error(double y, long double z) { return std::isnan(y) ? HUGE_VAL : (double)std::fabs(y - z); }

void check(const family& f, const std::string& path, const words& x, double bound, bool absolute) {
    sweep run(f.name, f.tier, 8);
    truth exact;
    const auto y = run({x});
    const auto reference = references(f.name);
    for (size_t k = 0; k < reference.size(); k++) {
        worst w;
        largest_errors top(16);
        for (size_t i = 0; i < x.size(); i++) {
            const long double z = reference[k](value_of(f.t, x[i]));
            if (!absolute) top.offer(approximate_ulps(f.t, y[k][i], z), y[k][i], x[i]);
            else if (const double e = absolute_error(value_of(f.t, y[k][i]), z); e > w.ulps) w = {e, x[i]};
        }
        if (!absolute) w = top.decided(run.row(), exact, k);
        expect_error(std::string(f.name) + " " + f.tier + " " + path + ", result " + std::to_string(k),
                     absolute ? allowed{bound, bound / 4} : bound, w);
    }
}

TEST(Trig, LargestErrors) {
    for (const auto& f : families) {
        auto x = spread(f.t, -8, 8, 400'000, false, 51);
        for (auto w : spread(f.t, 1e-9, f.limit * 0.999, 600'000, true, 52))
            x.push_back(w);
        if (!f.absolute)
            for (auto w : near_zeros(f.t, 0, std::min(f.limit, 1e4)))
                x.push_back(w);
        check(f, "short", x, f.small, f.absolute);

        const double top = f.t == f32 ? 3.4e38 : 1.79e308;
        x = spread(f.t, f.limit * 1.0001, top, 700'000, true, 53);
        for (auto w : spread(f.t, -f.limit * 64, -f.limit * 1.0001, 300'000, false, 54))
            x.push_back(w);
        for (auto w : near_zeros(f.t, f.limit + 2, top))
            x.push_back(w);
        x.push_back(f.t == f32 ? 0x7F7FFFFF : 0x7FEFFFFFFFFFFFFF);
        if (f.t == f64)
            for (double scale : {1.0, -1.0, 0.5, 2.0})
                x.push_back(word_of(f64, scale * closest));
        check(f, "large", x, f.large, false);
    }
}

// Both sides of the limit and beyond, both signs: odd and even.
TEST(Trig, Symmetry) {
    for (const auto& f : families) {
        words x, minus;
        for (int i = -3000; i <= 3000; i++) {
            x.push_back(word_of(f.t, f.limit) + i);
            x.push_back(word_of(f.t, f.limit * 1e6) + i);
        }
        for (auto w : x)
            minus.push_back(word_of(f.t, -value_of(f.t, w)));
        const auto y = sweep(f.name, f.tier, 8)({x}), z = sweep(f.name, f.tier, 8)({minus});
        for (size_t k = 0; k < references(f.name).size(); k++)
            for (size_t i = 0; i < x.size(); i++) {
                const bool odd = references(f.name)[k] == sinl;
                ASSERT_EQ(z[k][i], odd ? word_of(f.t, -value_of(f.t, y[k][i])) : y[k][i]) << f.name << " " << f.tier;
            }
    }
}

TEST(Trig, SincosregIsSincos) {
    for (auto [a, b, tier] : {std::tuple{"sincos", "sincosreg", "default"},
                              {"sincos", "sincosreg", "native"},
                              {"sincosf", "sincosregf", "default"},
                              {"sincosf", "sincosregf", "native"}}) {
        const lane_type t = std::string_view(a).ends_with('f') ? f32 : f64;
        auto x = spread(t, 1e-30, t == f32 ? 3e38 : 1e300, 100'000, true, 56);
        for (double v : {0.0, -0.0, HUGE_VAL, -HUGE_VAL, (double)NAN})
            x.push_back(word_of(t, v));
        const auto y = sweep(a, tier, 8)({x}), z = sweep(b, tier, 8)({x});
        EXPECT_EQ(y[0], z[0]) << a << " " << tier;
        EXPECT_EQ(y[1], z[1]) << a << " " << tier;
    }
}

TEST(Trig, ZerosInfinitiesNan) {
    for (const auto& f : families) {
        sweep run(f.name, f.tier, 1);
        const bool sine = references(f.name)[0] == sinl;
        for (double zero : {0.0, -0.0}) {
            const auto y = run({{word_of(f.t, zero)}});
            EXPECT_EQ(y[0][0], word_of(f.t, sine ? zero : 1.0)) << f.name << " " << f.tier;
            if (references(f.name).size() == 2) EXPECT_EQ(y[1][0], word_of(f.t, 1.0));
        }
        const auto& row = *find_row(library_rows(), f.name, f.tier);
        if (!row.has_slow_path()) continue;
        EXPECT_EQ(call_slow_path(library_under_test(), row, {word_of(f.t, HUGE_VAL)}).status, 1) << f.name;
        EXPECT_EQ(call_slow_path(library_under_test(), row, {word_of(f.t, NAN)}).status, 0) << f.name;
        EXPECT_TRUE(std::isnan(value_of(f.t, run({{word_of(f.t, -HUGE_VAL)}})[0][0])));
    }
    // What sincosf gives without a slow path follows from its steps.
    sweep run("sincosf", "default", 8);
    const auto y = run({{0x7F800000, 0xFF800000, 0xFF801234, 0x7FC00777, 0, 0x80000000, 0, 0}});
    EXPECT_EQ((words(y[0].begin(), y[0].begin() + 6)),
              (words{0xFFC00000, 0x7FC00000, 0xFFC01234, 0x7FC00777, 0, 0x80000000}));
    EXPECT_EQ((words(y[1].begin(), y[1].begin() + 6)),
              (words{0xFFC00000, 0xFFC00000, 0x7FC01234, 0x7FC00777, 0x3F800000, 0x3F800000}));
}

TEST(Trig, LongEveryFloat) {
    for (const auto& a : {float_accuracy{"sinf", "default", known(), std::sin},
                          {"cosf", "default", known(), std::cos},
                          {"sincosf", "default", 2.19, std::sin},
                          {"sincosf", "default", 2.18, std::cos, 1},
                          {"sinf", "native", 0.6, std::sin, 0, 10000.001f},
                          {"cosf", "native", 0.6, std::cos, 0, 10000.001f}})
        check_all_floats(a);
    for (auto [name, reference] :
         {std::pair<const char*, double (*)(double)>{"sinf", std::sin}, {"cosf", std::cos}}) {
        sweep f(name, "native", 16);
        double largest = 0;
        over_all_floats(f, 0, [&](float x, float y) {
            if (std::fabs(x) <= 10000) largest = std::max(largest, absolute_error(y, reference(x)));
        });
        EXPECT_LE(largest, 2e-4) << name;
        printf("%-8s native below 10000: absolute error %.4g\n", name, largest);
    }
}

} // namespace
