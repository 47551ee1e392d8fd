// div, inv, sqrt, rsqrt, cbrt, rcbrt, hypot: what is correctly rounded against the compiler's own division and root,
// what is an estimate against the instruction, and errors by path. Where the processor's estimate feeds a kernel, no
// bits are frozen.
#include "accuracy.h"
#include "tools/estimates.h"

#include <immintrin.h>

using namespace orvane;

namespace {

constexpr double inf = HUGE_VAL;
constexpr auto tiers = {"default", "rm", "native", "half"};

lane_type type_of(const char* name) { return find_row(library_rows(), name, "default")->in; }

// The words of lo to hi, evenly over the patterns and with both ends; of both signs on demand.
words patterns(lane_type t, double lo, double hi, int n, bool signs = false, uint64_t seed = 41) {
    const uint64_t first = word_of(t, lo), last = word_of(t, hi);
    words w{first, last};
    for (rng r(seed); int(w.size()) < n;)
        w.push_back(first + r() % (last - first + 1));
    for (size_t i = 0; signs && i < w.size(); i += 2)
        w[i] |= uint64_t(1) << (8 * size_of(t) - 1);
    return w;
}

float f32_of(uint64_t w) { return value_of(lane_type::f32, w); }
double f64_of(uint64_t w) { return value_of(lane_type::f64, w); }
float rcp(float x) { return _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(x))); }
float rsqrt(float x) { return _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(x))); }

// Every result bit for bit, over patterns of all kinds and over `more`.
template <class Model> void holds(const char* name, const char* tier, std::vector<words> more, Model model) {
    sweep f(name, tier, 8);
    rng r(42);
    auto arguments = random_patterns(f.row(), 50'000, r);
    for (size_t j = 0; j < more.size(); j++)
        arguments[j].insert(arguments[j].end(), more[j].begin(), more[j].end());
    const auto& y = f(arguments)[0];
    for (size_t i = 0; i < y.size(); i++) {
        const uint64_t x = arguments[0][i], second = arguments.back()[i];
        // Of two NaN the processor takes the first operand's; an emulator may not, and then it depends on the order
        // that the compiler gave the model.
        if (std::isnan(value_of(f.row().in, x)) && std::isnan(value_of(f.row().in, second)) && arguments.size() > 1 &&
            !first_nan_wins())
            continue;
        ASSERT_EQ(y[i], word_of(f.row().out, model(x, second)))
            << name << " " << tier << std::hex << " of " << x << ", " << second;
    }
}

TEST(Quotients, AreCorrectlyRounded) {
    for (auto tier : tiers) {
        holds("div", tier, {}, [](auto x, auto y) { return f64_of(x) / f64_of(y); });
        holds("inv", tier, {}, [](auto x, auto) { return 1.0 / f64_of(x); });
    }
    for (auto tier : {"default", "rm"}) {
        holds("divf", tier, {}, [](auto x, auto y) { return f32_of(x) / f32_of(y); });
        holds("invf", tier, {}, [](auto x, auto) { return 1.0f / f32_of(x); });
    }
}

// An estimate for divisors with a normal reciprocal, the exact quotient for others; the limits themselves.
TEST(Quotients, FastTiersAreTheEstimateInItsRange) {
    const words limits{0x00800000, 0x007FFFFF, 0x7E7FFFFF, 0x7E800000, 0xFE7FFFFF, 0xFE800000,
                       0x80800000, 0x807FFFFF, 0x7E7FE800, 0x7E7FE801, 0xFE7FE800, 0xFE7FE801};
    for (auto tier : {"native", "half"}) {
        holds("divf", tier, {words(limits.size(), 0x40490FDB), limits}, [](auto x, auto y) {
            const float a = std::fabs(f32_of(y));
            return a >= 0x1p-126f && a < 0x1p126f ? f32_of(x) * rcp(f32_of(y)) : f32_of(x) / f32_of(y);
        });
        holds("invf", tier, {limits}, [](auto x, auto) {
            const uint64_t a = x & 0x7FFFFFFF;
            return a >= 0x00800000 && a <= 0x7E7FE800 ? rcp(f32_of(x)) : 1.0f / f32_of(x);
        });
    }
}

TEST(Quotients, StatusCodes) {
    for (auto name : {"div", "divf", "invf"}) {
        auto status = [&](double divisor) { return status_for(name, "native", divisor, divisor); };
        EXPECT_EQ(status(0.0), 2) << name;
        EXPECT_EQ(status(-0.0), 2) << name;
        for (double y : {1e-40, inf, -3.0, (double)NAN})
            EXPECT_EQ(status(y), 0) << name << y;
    }
}

TEST(SquareRoots, AreTheInstruction) {
    for (auto tier : {"default", "native", "half"})
        holds("sqrt", tier, {}, [](auto x, auto) { return _mm_cvtsd_f64(_mm_sqrt_pd(_mm_set1_pd(f64_of(x)))); });
    auto root = [](float x) { return _mm_cvtss_f32(_mm_sqrt_ss(_mm_set_ss(x))); };
    holds("sqrtf", "default", {}, [&](auto x, auto) { return root(f32_of(x)); });
    holds("sqrtf", "native", {}, [](auto x, auto) { return f32_of(x) * rsqrt(f32_of(x)); });
    // Where the estimate does not serve the half tier is correctly rounded; the NaN of a negative number is positive.
    holds("sqrtf", "half", {patterns(lane_type::f32, 0x1p-149, 0x1.fffffcp-127, 50'000)}, [&](auto x, auto) {
        const float v = f32_of(x);
        if (v >= 0x1p-126f && v < inf) return v * rsqrt(v);
        return v < 0 ? NAN : root(v);
    });
}

// Poles, domains, infinities and NaN, at every tier.
TEST(Roots, SpecialArguments) {
    for (auto name : {"rsqrt", "rsqrtf", "rcbrt", "rcbrtf", "cbrt", "cbrtf", "hypot", "hypotf"})
        each_tier(name, [&](auto tier) {
            const lane_type t = type_of(name);
            const std::string_view n = name;
            auto word = [&](double x) { return word_of(t, x); };
            auto at = [&](double x, double y = 0) { return word_for(name, tier, x, y); };
            if (n.starts_with("hypot")) {
                for (double a : {inf, -inf})
                    for (double b : {0.0, -1.0, -inf, (double)NAN}) {
                        EXPECT_EQ(at(a, b), word(inf)) << a << b;
                        EXPECT_EQ(at(b, a), word(inf)) << a << b;
                    }
                for (double a : {0.0, -0.0})
                    for (double b : {0.0, -0.0})
                        EXPECT_EQ(at(a, b), 0u);
                sweep f(name, tier, 1);
                const uint64_t first = quiet_nan(t, true) | 1, second = quiet_nan(t) | 2, one = word(1);
                EXPECT_EQ(f({{first}, {one}})[0][0], first);
                EXPECT_EQ(f({{one}, {second}})[0][0], second);
                EXPECT_EQ(f({{first}, {second}})[0][0], first);
                return;
            }
            const bool inverse = n[0] == 'r', square = n.starts_with("rsqrt");
            for (double zero : {0.0, -0.0}) {
                const double sign = std::copysign(1, zero);
                EXPECT_EQ(at(zero), word(inverse ? sign * inf : zero));
                if (!square) EXPECT_EQ(at(sign * inf), word(inverse ? zero : sign * inf));
            }
            if (square) {
                EXPECT_EQ(at(inf), 0u);
                for (double x : {-1.0, -1e-40, -1e30})
                    EXPECT_EQ(at(x), quiet_nan(t)) << x;
                EXPECT_EQ(at(-inf), quiet_nan(t, true)); // the processor's, of Inf / Inf
            }
            const uint64_t signaling = t == lane_type::f64 ? 0xFFF0000000000777 : 0xFF800777;
            EXPECT_EQ(sweep(name, tier, 1)({{signaling}})[0][0], signaling | quiet_nan(t));
        });
}

TEST(Roots, Figures) {
    each_tier("cbrt", [](auto tier) {
        EXPECT_NEAR(value_for("cbrt", tier, -8), -2, 2e-8);
        EXPECT_NEAR(value_for("cbrtf", tier, -8), -2, 2e-4);
        EXPECT_NEAR(value_for("rcbrt", tier, -8), -0.5, 2e-8);
        EXPECT_NEAR(value_for("rcbrtf", tier, -8), -0.5, 2e-3);
    });
    for (int k = -340; k < 341; k++) { // powers of eight
        EXPECT_EQ(value_for("cbrt", "default", -std::ldexp(1, 3 * k)), -std::ldexp(1, k));
        EXPECT_EQ(value_for("rcbrt", "default", std::ldexp(1, 3 * k)), std::ldexp(1, -k));
    }
    for (auto tier : {"default", "native"}) {
        EXPECT_EQ(value_for("hypot", tier, 3e200, -4e200), 5e200);
        EXPECT_EQ(value_for("hypot", tier, 0x1.8p-1072, 0x1p-1071),
                  0x1.4p-1071); // 3, 4, 5 in units of the last place
        EXPECT_EQ(value_for("hypot", tier, 0x1.fffffffffffffp1023, 0x1.fffffffffffffp1023), inf);
        EXPECT_EQ(value_for("hypotf", tier, 0x1.fffffep127, 0x1.fffffep127), inf);
        EXPECT_EQ(value_for("hypot", tier, 1e300, 1e-300), 1e300);
    }
}

TEST(Roots, StatusCodes) {
    for (auto name : {"rsqrt", "rsqrtf"}) {
        EXPECT_EQ(status_for(name, "native", -0.0), 2) << name;
        EXPECT_EQ(status_for(name, "native", -1e-40), 1) << name;
        EXPECT_EQ(status_for(name, "native", -inf), 1) << name;
        for (double x : {inf, (double)NAN, 1e-40, 4.0})
            EXPECT_EQ(status_for(name, "native", x), 0) << name << x;
    }
    for (auto name : {"rcbrt", "rcbrtf"}) {
        EXPECT_EQ(status_for(name, "native", -0.0), 2) << name;
        for (double x : {inf, -inf, (double)NAN, -1e-40})
            EXPECT_EQ(status_for(name, "native", x), 0) << name << x;
    }
    EXPECT_EQ(status_for("sqrtf", "half", -1e-40), 1);
    EXPECT_EQ(status_for("sqrtf", "half", -inf), 1);
    EXPECT_EQ(status_for("sqrtf", "half", -0.0), 0);
}

// Largest errors over ranges that lie on one path. That no kernel lane is taken for a slow-path one (or the reverse)
// shows at the ends: of the fast tiers' kernels the error is large everywhere, of the slow paths it is not.
struct range {
    const char *name, *tier;
    double lo, hi;
    allowed bound;
};
constexpr double top = 0x1.fffffffffffffp1023, topf = 0x1.fffffep127, below = 1 - 0x1p-53, belowf = 1 - 0x1p-24;
template <class... T>
void check(const range& a, sweep& f, truth& t, const std::vector<words>& x, long double (*reference)(T...)) {
    expect_errors((std::stringstream() << a.name << " " << a.tier << " from " << a.lo).str(), a.bound, f, t, x,
                  reference);
}

long double rsqrtl(long double x) { return 1 / sqrtl(x); }
long double rcbrtl(long double x) { return 1 / cbrtl(x); }
long double invl(long double x) { return 1 / x; }
extended_function reference_of(std::string_view name) {
    return name.starts_with("rsqrt")   ? rsqrtl
           : name.starts_with("cbrt")  ? cbrtl
           : name.starts_with("rcbrt") ? rcbrtl
           : name.starts_with("sqrt")  ? sqrtl
                                       : invl;
}

const allowed estimate = fed(4760, 1.5 * 0x1p12 + 2); // and nothing but it: 1.5 * 2^-12, and two roundings
const range roots[] = {
    {"rsqrt", "default", 0x1p-970, 0x1p1022 * below, fed(0.529, 0.531)},
    {"rsqrt", "default", 0x1p-1074, 0x1p-970 * below, 0.501},
    {"rsqrt", "default", 0x1p1022, top, 0.5005},
    {"rsqrt", "native", 0x1p-1020, 0x1p1022 * below, fed(2.74e5, 2.79e5)},
    {"rsqrt", "native", 0x1p-1020, 0x1p-1019, fed(2.73e5, 2.79e5)},
    {"rsqrt", "native", 0x1p-1022, 0x1p-1020 * below, 0.5005},
    {"rsqrt", "native", 0x1p1021, 0x1p1022 * below, fed(1.95e5, 1.97e5)},
    {"rsqrt", "native", 0x1p1022, top, 0.5005},
    {"rsqrtf", "default", 0x1p-126, topf, fed(0.508, 0.515)},
    {"rsqrtf", "default", 0x1p-149, 0x1p-126 * (1 - 0x1p-23), 0.5001},
    {"rsqrtf", "native", 0x1p-126, topf, fed(2.25, 5.3)},
    {"sqrtf", "native", 0x1p-126, topf, estimate},
    {"invf", "native", 0x1p-126, 0x1p125, estimate},
    {"cbrt", "default", 0x1p-1022, top, 0.513},
    {"cbrt", "native", 0x1p-1022, top, 1.68e7},
    {"cbrt", "native", 0x1p-1074, 0x1p-1022 * (1 - 0x1p-52), 0.502},
    {"cbrtf", "default", 0x1p-126, topf, fed(0.519, 0.521)},
    {"cbrtf", "native", 0x1p-126, topf, fed(2.77, 2.78)},
    {"cbrtf", "native", 0x1p-149, 0x1p-126 * (1 - 0x1p-23), 0.509},
    {"rcbrt", "default", 0x1p-1022, top, 0.543},
    {"rcbrt", "native", 0x1p-1022, top, 9.77e5},
    {"rcbrt", "native", 0x1p-1074, 0x1p-1022 * (1 - 0x1p-52), 0.507},
    {"rcbrtf", "default", 0x1p-126, topf, 0.51},
    {"rcbrtf", "native", 0x1p-126, topf, 890},
    {"rcbrtf", "native", 0x1p-149, 0x1p-126 * (1 - 0x1p-23), 0.5001},
};
TEST(Roots, LargestErrors) {
    truth t;
    for (const auto& a : roots) {
        sweep f(a.name, a.tier);
        const bool odd = std::string_view(a.name).find("cbrt") != std::string_view::npos;
        const auto x = patterns(f.row().in, a.lo, a.hi, a.hi / a.lo > 4 ? 1'000'000 : 100'000, odd);
        check(a, f, t, {x}, reference_of(a.name));
    }
}

// Of two arguments in the range, every other pair of like magnitude.
TEST(Hypotenuse, LargestErrors) {
    truth t;
    for (const auto& a : {range{"hypot", "default", 0x1p-33, 0x1p32, fed(1.16, 1.52)},
                          {"hypot", "native", 0x1p-33, 0x1p32, fed(3.67e5, 1.11e6)},
                          {"hypot", "default", 0x1p33, top, 0.853},
                          {"hypot", "native", 0x1p34, 0x1p1000, 0.851},
                          {"hypot", "default", 0x1p-1022, 0x1p-35, 0.851},
                          {"hypot", "native", 0x1p-1074, 0x1p-1024, 0.679},
                          {"hypotf", "default", 0x1p-33, 0x1p32, fed(1.17, 1.17)},
                          {"hypotf", "native", 0x1p-62, 0x1p62, estimate},
                          {"hypotf", "default", 0x1p34, topf, 0.5001},
                          {"hypotf", "native", 0x1p-149, 0x1p-64, 0.5001}}) {
        sweep f(a.name, a.tier);
        const lane_type type = f.row().in;
        const auto x = patterns(type, a.lo, a.hi, 1'000'000, true, 43);
        auto y = patterns(type, a.lo, a.hi, 1'000'000, true, 44);
        rng r(45);
        for (size_t i = 1; i < y.size(); i += 2)
            y[i] = word_of(type, std::clamp(std::ldexp(value_of(type, x[i]), int(r() % 9) - 4) * (1 + r() % 8 / 8.0),
                                            -a.hi, a.hi));
        check(a, f, t, {x, y}, hypotl);
    }
}

// All significands with all remainders of the exponent by 2 and 3, from which other normal floats differ by a power
// of two; and all subnormals.
TEST(Roots, LongEverySignificand) {
    truth t;
    for (const auto& a : {range{"cbrtf", "default", 1, 8 * belowf, fed(0.522, 0.53)},
                          {"cbrtf", "native", 1, 8 * belowf, fed(2.8, 2.82)},
                          {"cbrtf", "native", 0x1p-149, 0x1p-126 * (1 - 0x1p-23), 0.512},
                          {"rcbrtf", "default", 1, 8 * belowf, 0.513},
                          {"rcbrtf", "native", 1, 8 * belowf, 890},
                          {"rcbrtf", "native", 0x1p-149, 0x1p-126 * (1 - 0x1p-23), 0.5005},
                          {"rsqrtf", "default", 1, 4 * belowf, fed(0.51, 0.52)},
                          {"rsqrtf", "native", 1, 4 * belowf, fed(2.39, 5.5)},
                          {"rsqrtf", "native", 0x1p-149, 0x1p-126 * (1 - 0x1p-23), 0.5005}}) {
        sweep f(a.name, a.tier, 16);
        words x;
        for (uint64_t w = word_of(lane_type::f32, a.lo); w <= word_of(lane_type::f32, a.hi); w++)
            x.push_back(w);
        check(a, f, t, {x}, reference_of(a.name));
    }
}

} // namespace
