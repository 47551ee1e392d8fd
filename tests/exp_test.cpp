// exp, exp2, exp10, expm1: figures that tell tiers and paths apart, the ends of their ranges, and errors.
#include "accuracy.h"

using namespace orvane;

namespace {

uint64_t one(const char* name, uint64_t x, const char* tier = "default") {
    sweep f(name, tier, 1);
    return f({{x}})[0][0];
}
double of(const char* name, double x, const char* tier = "default") { return value_for(name, tier, x); }
double next(double x, double to) { return std::nextafter(x, to); }
int status(const char* name, double x) { return status_for(name, "default", x); }

TEST(Exponentials, ZerosInfinitiesAndNan) {
    for (auto name : {"exp", "exp2", "exp10", "exp2f", "exp10f"})
        each_tier(name, [&](auto tier) {
            // Polynomials without a table have a constant term of their own.
            const bool exact = std::string(tier) == "default" || std::string(name) == "exp" ||
                               std::string(name).starts_with("exp10");
            if (exact) EXPECT_EQ(of(name, 0.0, tier), 1.0);
            EXPECT_EQ(of(name, -0.0, tier), of(name, 0.0, tier));
            EXPECT_EQ(of(name, HUGE_VAL, tier), HUGE_VAL);
            EXPECT_EQ(word_for(name, tier, -HUGE_VAL), 0u);
        });
    for (auto name : {"expm1", "expm1f"})
        each_tier(name, [&](auto tier) {
            EXPECT_FALSE(std::signbit(of(name, 0.0, tier)));
            EXPECT_TRUE(std::signbit(of(name, -0.0, tier)));
            const lane_type t = find_row(library_rows(), name, tier)->in;
            EXPECT_EQ(word_for(name, tier, 1e-40), word_of(t, 1e-40));
            EXPECT_EQ(of(name, -800, tier), -1);
            EXPECT_EQ(of(name, -HUGE_VAL, tier), -1);
            EXPECT_EQ(of(name, HUGE_VAL, tier), HUGE_VAL);
        });
    for (auto name : {"exp", "exp2", "exp10", "expm1"})
        each_tier(name, [&](auto tier) {
            EXPECT_EQ(one(name, 0x7FF0000000000123, tier), 0x7FF8000000000123u);
            EXPECT_EQ(one(name, 0xFFF8000000000456, tier), 0xFFF8000000000456u);
        });
}

TEST(Exponentials, FiguresOfTheTiers) {
    EXPECT_EQ(of("exp", 1.0), 2.718281828459045);
    EXPECT_EQ(of("exp", 1.0, "rm"), 2.7182818311600885);
    EXPECT_EQ(of("expm1", 1.0), 1.7182818284590453);
    for (int k = -1022; k < 1024; k++)
        EXPECT_EQ(of("exp2", k), std::ldexp(1.0, k)) << k;
    for (int k = -149; k < 128; k++)
        EXPECT_EQ(of("exp2f", k), std::ldexp(1.0, k)) << k;
    EXPECT_EQ(of("exp2", -1074), 0x1p-1074);
}

TEST(Exponentials, EndsOfTheRange) {
    struct ends {
        const char* name;
        double overflow, underflow;
    };
    for (const auto& [name, over, under] :
         {ends{"exp", 709.782712893384, -745.1332191019411}, ends{"exp10", 308.2547155599167, -323.60724533877976}}) {
        each_tier(name, [&](auto tier) {
            EXPECT_TRUE(std::isfinite(of(name, over, tier))) << name;
            EXPECT_EQ(of(name, next(over, 1e9), tier), HUGE_VAL) << name;
            EXPECT_EQ(of(name, under, tier), 0x1p-1074) << name;
            EXPECT_EQ(of(name, next(under, -1e9), tier), 0) << name;
        });
        EXPECT_EQ(status(name, over), 0);
        EXPECT_EQ(status(name, next(over, 1e9)), 3);
        EXPECT_EQ(status(name, under), 4);
        EXPECT_EQ(status(name, next(under, -1e9)), 4);
    }
    EXPECT_EQ(of("exp2", next(1024, 0)), std::exp2(next(1024, 0)));
    EXPECT_EQ(of("exp2", 1024), HUGE_VAL);
    EXPECT_EQ(of("exp2", -1075), 0);
    EXPECT_EQ(of("exp2f", 128), HUGE_VAL);
    EXPECT_EQ(status("exp2f", -126.5), 4);
    EXPECT_EQ(of("expm1", 709.782712893384), of("exp", 709.782712893384));
    EXPECT_EQ(status("expm1", 710), 3);
    EXPECT_EQ(status("expm1", HUGE_VAL), 0);
}

// The slow paths on the lanes that reach them.
TEST(Exponentials, SlowPaths) {
    for (const auto& a : {accuracy{"exp", "default", 0.514, 708.396, 709.7827, expl},
                          {"exp", "default", 0.504, -745.1332, -708.396, expl},
                          {"exp10", "default", 0.524, 307.66, 308.2547, exp10l},
                          {"exp10", "default", 0.508, -323.6, -307.6526, exp10l},
                          {"exp2", "default", 0.52, 1022.0, 1023.9, exp2l},
                          {"exp2", "default", 0.758, -1074.9, -1022.0, exp2l},
                          {"exp2f", "default", 0.5001, 126.01, 127.99, exp2l},
                          {"exp2f", "default", 0.5001, -149.9, -126.01, exp2l},
                          {"exp10f", "default", 0.5001, 37.93, 38.53, exp10l},
                          {"exp10f", "default", 0.5001, -45.15, -37.93, exp10l},
                          {"expm1f", "default", 0.5001, 86.65, 88.72, expm1l}})
        check_accuracy(a);
}

TEST(Exponentials, LargestErrors) {
    for (const auto& a : {accuracy{"exp", "default", known(), -708, 708, expl},
                          {"exp", "native", known(), -708, 708, expl},
                          {"exp2", "default", 0.519, -1021, 1021, exp2l},
                          {"exp2", "native", known(), -1021, 1021, exp2l},
                          {"exp10", "default", known(), -307, 307, exp10l},
                          {"exp10", "native", 2.83e7, -307, 307, exp10l},
                          {"expm1", "default", known(), -40, 700, expm1l},
                          {"expm1", "native", 5.19e6, -40, 700, expm1l},
                          {"exp2f", "default", known(), -125, 125, exp2l},
                          {"exp2f", "native", known(), -125, 125, exp2l},
                          {"exp10f", "default", known(), -37, 37, exp10l},
                          {"exp10f", "native", known(), -37, 37, exp10l},
                          {"expm1f", "default", known(), -20, 86, expm1l},
                          {"expm1f", "native", known(), -20, 86, expm1l}})
        check_accuracy(a);
}

TEST(Exponentials, LongEveryFloat) {
    for (const auto& a : {float_accuracy{"exp2f", "default", known(), std::exp2},
                          {"exp2f", "native", known(), std::exp2},
                          {"exp10f", "default", known(), exp10},
                          {"exp10f", "native", known(), exp10},
                          {"expm1f", "default", known(), std::expm1},
                          {"expm1f", "native", known(), std::expm1}})
        check_all_floats(a);
}

} // namespace
