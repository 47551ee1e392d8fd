// The true values themselves, on which every accuracy figure rests: against the C library, whose functions are known
// to be good to an ulp or two, and against values that can be told without one.
#include "tests/support.h"

#include <bit>
#include <cmath>

using namespace orvane;

namespace {

uint64_t bits(double x) { return std::bit_cast<uint64_t>(x); }
const kernel_row& row(std::string_view name) { return *find_row(library_rows(), name, "default"); }

TEST(Truth, AgreesWithTheCLibrary) {
    using f1 = double (*)(double);
    const std::pair<const char*, f1> one[] = {
        {"exp", std::exp},     {"exp2", std::exp2},     {"expm1", std::expm1},
        {"log", std::log},     {"log2", std::log2},     {"log10", std::log10},
        {"log1p", std::log1p}, {"sqrt", std::sqrt},     {"cbrt", std::cbrt},
        {"sin", std::sin},     {"cos", std::cos},       {"tan", std::tan},
        {"asin", std::asin},   {"acos", std::acos},     {"atan", std::atan},
        {"sinh", std::sinh},   {"cosh", std::cosh},     {"tanh", std::tanh},
        {"asinh", std::asinh}, {"acosh", std::acosh},   {"atanh", std::atanh},
        {"erf", std::erf},     {"erfc", std::erfc},     {"tgamma", std::tgamma},
        {"ceil", std::ceil},   {"floor", std::floor},   {"trunc", std::trunc},
        {"rint", std::rint},   {"round", std::round},   {"fabs", std::fabs},
        {"logb", std::logb},   {"lgamma", std::lgamma}, {"inv", [](double x) { return 1 / x; }}};
    using f2 = double (*)(double, double);
    const std::pair<const char*, f2> two[] = {{"pow", std::pow},
                                              {"powr", std::pow},
                                              {"hypot", std::hypot},
                                              {"atan2", std::atan2},
                                              {"fmod", std::fmod},
                                              {"fdim", std::fdim},
                                              {"fmin", std::fmin},
                                              {"fmax", std::fmax},
                                              {"remainder", std::remainder},
                                              {"nextafter", std::nextafter},
                                              {"copysign", std::copysign},
                                              {"div", [](double x, double y) { return x / y; }}};
    truth t;
    std::mt19937_64 random(1);
    const auto in = [&](double lo, double hi) { return lo + (hi - lo) * (random() >> 11) * 0x1p-53; };
    for (const auto& [name, f] : one) {
        const kernel_row& r = row(name);
        for (int i = 0; i < 200; i++) {
            const uint64_t x = bits(in(r.range[0], r.range[1]));
            ASSERT_TRUE(t(r, &x)) << name;
            // (The C library's own lgamma and tgamma are good to a few ulps.)
            ASSERT_LE(t.error(0, lane_type::f64, bits(f(std::bit_cast<double>(x)))), 8) << name;
        }
    }
    for (const auto& [name, f] : two) {
        const kernel_row& r = row(name);
        for (int i = 0; i < 200; i++) {
            const double x = in(r.range[0], r.range[1]), y = in(r.range[2], r.range[3]);
            const uint64_t lane[] = {bits(x), bits(y)};
            ASSERT_TRUE(t(r, lane)) << name;
            ASSERT_LE(t.error(0, lane_type::f64, bits(f(x, y))), 2) << name;
        }
    }
}

// A value of a family where it can be told at sight; NaN stands for "no true value".
struct known {
    const char* name;
    double x, y, first, second = 0;
};
TEST(Truth, GivesTheValuesThatCanBeTold) {
    const double inf = INFINITY, none = NAN;
    const known cases[] = {{"exp10", 2, 0, 100},
                           {"sinpi", 0.5, 0, 1},
                           {"cospi", 1, 0, -1},
                           {"tanpi", 0.25, 0, 1},
                           {"asinpi", 1, 0, 0.5},
                           {"acospi", -1, 0, 1},
                           {"atanpi", -1, 0, -0.25},
                           {"atan2pi", 1, -1, 0.75},
                           {"rsqrt", 0.25, 0, 2},
                           {"rsqrt", -0.0, 0, -inf},
                           {"rcbrt", -0.125, 0, -2},
                           {"rootn", -8, 3, -2},
                           {"rootn", 4, -2, 0.5},
                           {"pown", -2, 3, -8},
                           {"ldexp", 0.75, 3, 6},
                           {"powr", 0, -1, inf},
                           {"minmag", 1, -1, -1},
                           {"maxmag", -3, 2, -3},
                           {"sincos", 0, 0, 0, 1},
                           {"modf", -2.25, 0, -0.25, -2},
                           {"fract", -0.25, 0, 0.75, -1},
                           {"frexp", 8, 0, 0.5, 4},
                           {"frexp", 0, 0, 0, 0},
                           {"remquo", 7, 2, -1, 4},
                           {"remquo", -0x1p40 - 1, 2, -1, 0},
                           {"lgammar", 1, 0, 0, 1},
                           {"lgammar", -2, 0, inf, 1},
                           {"lgammar", -0.0, 0, inf, -1},
                           {"ilogb", -5, 0, 2},
                           {"ilogb", 0, 0, -0x1p31},
                           {"ilogb", -inf, 0, 0x1p31 - 1},
                           {"idiv", -7, 2, -3},
                           {"irem", -7, 2, -1},
                           {"idivrem", 7, -2, -3, 1},
                           {"idiv", -0x1p31, -1, none},
                           {"udivrem", 0xFFFFFFFF, 16, 0x0FFFFFFF, 15},
                           {"urem", 5, 0, none},
                           {"cvtfptoi32rtesat", 2.5, 0, 2},
                           {"cvtfptoi32rtpnosat", 2.5, 0, 3},
                           {"cvtfptou32rtnsat", -0.5, 0, 0},
                           {"cvtfptoi64rtzsat", inf, 0, 0x1p63 - 1},
                           {"cvtfptoi32rtesat", none, 0, 0},
                           {"cvtfptoi32rtenosat", 0x1p31, 0, none},
                           {"cvti64tofprtn", 0x1p53, 0, 0x1p53},
                           {"cvtfp64tofp32rtp", 1 + 0x1p-30, 0, 1 + 0x1p-23},
                           {"cvtfp64tofp32rtz", 1e300, 0, 0x1.fffffep127}};
    truth t;
    for (const known& k : cases) {
        const kernel_row& r = row(k.name);
        const uint64_t lane[] = {word_of(r.argument(0), k.x), word_of(r.arguments() > 1 ? r.argument(1) : r.in, k.y)};
        const bool told = t(r, lane);
        ASSERT_EQ(told, !std::isnan(k.first)) << k.name << ' ' << k.x << ' ' << k.y;
        if (!told) continue;
        EXPECT_EQ(mpfr_get_d(t.value(0), MPFR_RNDN), k.first) << k.name << ' ' << k.x << ' ' << k.y;
        if (r.results() + r.has_out() == 2)
            EXPECT_EQ(mpfr_get_d(t.value(1), MPFR_RNDN), k.second) << k.name << ' ' << k.x << ' ' << k.y;
    }
}

TEST(Truth, MeasuresErrorsInUlpsOfTheType) {
    truth t;
    const uint64_t quarter = word_of(lane_type::f32, 0.25), two = bits(2);
    const auto single = [](float x) { return std::bit_cast<uint32_t>(x); };
    ASSERT_TRUE(t(row("sqrtf"), &quarter)); // 0.5: an ulp is 2^-24
    EXPECT_EQ(t.error(0, lane_type::f32, single(0.5f)), 0);
    EXPECT_EQ(t.error(0, lane_type::f32, single(0.5f) + 3), 3);
    EXPECT_EQ(t.error(0, lane_type::f32, single(NAN)), HUGE_VAL);
    ASSERT_TRUE(t(row("sqrt"), &two));
    EXPECT_LT(t.error(0, lane_type::f64, bits(std::sqrt(2.0))), 0.5);
    EXPECT_NEAR(t.error(0, lane_type::f64, bits(std::sqrt(2.0)) + 10), 10, 0.5);
    const uint64_t tiny = word_of(lane_type::f32, -140), huge = word_of(lane_type::f32, 200);
    ASSERT_TRUE(t(row("exp2f"), &tiny)); // subnormal: an ulp is 2^-149
    EXPECT_EQ(t.error(0, lane_type::f32, (1 << 9) + 2), 2);
    ASSERT_TRUE(t(row("exp2f"), &huge)); // infinity is the nearest
    EXPECT_EQ(t.error(0, lane_type::f32, single(INFINITY)), 0);
    EXPECT_GT(t.error(0, lane_type::f32, single(0x1.fffffep127f)), 1e6);
    const uint64_t seven[] = {7, 2};
    ASSERT_TRUE(t(row("idiv"), seven));
    EXPECT_EQ(t.error(0, lane_type::i32, 5), 2);
}

} // namespace
