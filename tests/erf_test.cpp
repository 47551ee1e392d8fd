// erf and erfc: signs, ends and subnormal results, the slow path of erfc, and errors.
#include "accuracy.h"
#include "typed_lanes.h"

using namespace orvane;

namespace {

template <class T> class ErrorFunctions : public testing::Test {};
TYPED_TEST_SUITE(ErrorFunctions, floating_types);

template <class T> T of(const char* base, const char* tier, T x) {
    sweep f(member<T>(base), tier);
    return number<T>(f({{word(x)}})[0][0]);
}

TYPED_TEST(ErrorFunctions, EndsAndSigns) {
    using T = TypeParam;
    using limits = std::numeric_limits<T>;
    const T nan = limits::quiet_NaN(), infinity = limits::infinity();
    const T erf_end = sizeof(T) == 8 ? T(5.9921875) : T(3.9296875);
    const T erfc_end = sizeof(T) == 8 ? T(27.226017111108366) : T(10.054195404052734);
    for (auto tier : {"default", "native"}) {
        SCOPED_TRACE(tier);
        for (T sign : {T(1), T(-1)}) {
            EXPECT_SAME(of("erf", tier, sign * T(0)), sign * T(0));
            for (T x : {erf_end, T(100), infinity})
                EXPECT_SAME(of("erf", tier, sign * x), sign * T(1));
            const T y = of("erf", tier, std::copysign(nan, sign));
            EXPECT_TRUE(std::isnan(y) && std::signbit(y) == (sign < 0));
            EXPECT_SAME(of("erfc", tier, sign * T(0)), T(1));
        }
        for (T x : {erfc_end, T(100), infinity})
            EXPECT_SAME(of("erfc", tier, x), T(0));
        for (T x : {T(-30), -infinity})
            EXPECT_SAME(of("erfc", tier, x), T(2));
        EXPECT_SAME(of("erfc", tier, std::nextafter(erfc_end, T(0))), limits::denorm_min());
        const uint64_t payload = word(infinity) | 5 | word(T(-0.0));
        EXPECT_SAME(of("erfc", tier, number<T>(payload)), number<T>(payload | word(nan)));
    }
    // No square underflows: two over the root of pi, times x.
    const T tiny = sizeof(T) == 8 ? T(0x1p-300) : T(0x1p-100);
    EXPECT_SAME(of("erf", "default", tiny), T(M_2_SQRTPI) * tiny);
}

TEST(ErrorFunctionsSlowPath, StatusAndResult) {
    const auto expect = [](auto x, int status, auto result) {
        using T = decltype(x);
        const auto r = slow_path_of<T>("erfc", {word(x)});
        EXPECT_EQ(r.result, word(T(result))) << x;
        EXPECT_EQ(r.status, status) << x;
    };
    expect(27.226017111108366, 4, 0);
    expect(HUGE_VAL, 0, 0);
    expect(0x1.41bbf6p3f, 0, 0x1p-149); // 1.00001 2^-150 rounds up
    expect(0x1.41bbf8p3f, 4, 0);
    expect(HUGE_VALF, 0, 0);
}

// The largest errors, in units of the last place, as measured by path; of results below the normal range apart, where
// the unit is that of subnormals.
TEST(ErrorFunctionsAccuracy, Accuracy) {
    for (const accuracy& a : {
             accuracy{"erf", "default", known(), 0, 6, erfl},
             {"erf", "native", 3.15e5, 0, 6, erfl},
             {"erff", "default", known(), 0, 4, erfl},
             {"erff", "native", known(), 0, 4, erfl},
             {"erfc", "default", known(), -6, 26.5, erfcl},
             {"erfc", "native", known(), -6, 26.5, erfcl},
             {"erfcf", "default", known(), -4, 9.19, erfcl},
             {"erfcf", "native", known(), -4, 9.19, erfcl},
             {"erfc", "default", 0.839, 26.55, 27.2260171, erfcl}, // subnormal results
             {"erfcf", "default", 1.02, 9.2, 10.0541944, erfcl},
         })
        check_accuracy(a);
}

TEST(ErrorFunctionsAccuracy, LongEveryFloat) {
    for (const auto& a : {float_accuracy{"erff", "default", known(), std::erf},
                          {"erff", "native", known(), std::erf},
                          {"erfcf", "default", 1.65, std::erfc},
                          {"erfcf", "native", known(), std::erfc}})
        check_all_floats(a);
}

} // namespace
