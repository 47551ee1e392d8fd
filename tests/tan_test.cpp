// tan and tanf: symmetry, and errors on both paths. The reciprocal estimate feeds the fast tanf kernel and
// the large paths.
#include "accuracy.h"

using namespace orvane;

namespace {

constexpr auto f32 = lane_type::f32, f64 = lane_type::f64;
constexpr double closest = 0x1.6ac5b262ca1ffp+849; // of all doubles the closest to a multiple of pi/2, by 2^-60.9

const char* name_of(lane_type t) { return t == f32 ? "tanf" : "tan"; }
double limit_of(lane_type t) { return t == f32 ? 8256.0 : 128000.0; }
double one(lane_type t, std::string_view tier, double x) { return value_for(name_of(t), tier, x); }
TEST(Tan, ZeroInfinityNan) {
    each_member({"tan"}, [](const member& m) {
        const auto t = m.type();
        const auto tier = m.row->tier;
        for (double zero : {0.0, -0.0})
            EXPECT_EQ(word_of(t, one(t, tier, zero)), word_of(t, zero));
        sweep f(name_of(t), tier, 1);
        const uint64_t nan = t == f64 ? 0xFFF0000000000777 : 0xFF800777;
        EXPECT_EQ(f({{nan}})[0][0], nan | quiet_nan(t));
        const kernel_row& row = *find_row(library_rows(), name_of(t), tier);
        EXPECT_EQ(call_slow_path(library_under_test(), row, {nan}).status, 0);
        for (double x : {HUGE_VAL, -HUGE_VAL}) {
            EXPECT_TRUE(std::isnan(one(t, tier, x)));
            EXPECT_EQ(status_for(name_of(t), tier, x), 1);
        }
        // Without polynomials of equal leading terms a small argument comes back a little larger.
        if (t == f64) EXPECT_EQ(one(t, tier, 0x1p-40) == 0x1p-40, tier[0] == 'd');
    });
}

// Both sides of the limits, where the paths meet, and both signs; the large path of tan works on signed arguments, in
// mirrored rows, the others take the sign out.
TEST(Tan, Odd) {
    each_member({"tan"}, [](const member& m) {
        const auto t = m.type();
        const auto tier = m.row->tier;
        words x, minus;
        const uint64_t limit = word_of(t, limit_of(t));
        for (int i = -5000; i <= 5000; i++)
            x.push_back(limit + i), minus.push_back(word_of(t, -value_of(t, limit + i)));
        sweep f(name_of(t), tier);
        const auto y = f({x})[0], negated = f({minus})[0];
        for (size_t i = 0; i < x.size(); i++)
            EXPECT_EQ(negated[i], word_of(t, -value_of(t, y[i])));
    });
}

words near_poles(lane_type t) {
    rng r(71);
    words x;
    auto around = [&](long double pole) {
        const uint64_t w = word_of(t, (double)pole);
        for (int i = -2; i <= 2; i++)
            x.push_back(w + i);
    };
    for (int k = 1; k < 4000; k++)
        around(k * 1.57079632679489661923132169163975144L);
    for (int i = 0; i < 20000; i++)
        around((r() % (uint64_t(1) << (10 + i % 40))) * 1.57079632679489661923132169163975144L);
    if (t == f64)
        for (double s : {1.0, -1.0, 0.5, 2.0})
            x.push_back(word_of(t, s * closest));
    return x;
}

// By path: ulps up to the limit, beyond it, and near multiples of pi/2.
TEST(Tan, LargestErrors) {
    struct bounds {
        lane_type t;
        const char* tier;
        allowed small, large, poles;
    };
    for (const auto& [t, tier, small, large, poles] :
         {bounds{f32, "default", 3.29, fed(1.45, 1.45), fed(2.35, 2.36)},
          {f32, "native", fed(4.34, 6.66), fed(4.28, 6.18), fed(985, 989)},
          {f64, "default", 2.88, fed(3.4, 3.41), fed(2.65, 2.65)},
          {f64, "native", 1.99e5, fed(3.4, 3.41), fed(1.99e5, 2e5)}}) {
        truth exact;
        sweep f(name_of(t), tier);
        const double limit = limit_of(t), top = t == f32 ? 3.4e38 : 1.79e308;
        auto check = [&](std::string path, const allowed& bound, const words& x) {
            expect_errors(std::string(name_of(t)) + " " + tier + " " + path, bound, f, exact, {x},
                          (extended_function)tanl);
        };
        auto small_ones = spread(t, -8, 8, 1'000'000, false, 72), more = spread(t, 1e-9, limit, 500'000, true, 73);
        small_ones.insert(small_ones.end(), more.begin(), more.end());
        check("small", small, small_ones);
        auto large_ones = spread(t, limit * 1.0001, limit * 64, 500'000, true, 74);
        more = spread(t, limit * 1.0001, top, 1'000'000, true, 75);
        large_ones.insert(large_ones.end(), more.begin(), more.end());
        large_ones.push_back(t == f32 ? 0x7F7FFFFF : 0x7FEFFFFFFFFFFFFF);
        check("large", large, large_ones);
        check("poles", poles, near_poles(t));
    }
}

TEST(Tan, LongEveryFloat) {
    check_all_floats({"tanf", "default", 3.66, std::tan});
    check_all_floats({"tanf", "native", fed(1000, 1010), std::tan});
}

} // namespace
