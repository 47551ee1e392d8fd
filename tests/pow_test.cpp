// pow, powr, pown, rootn: meanings at the edges, exact figures, status codes, and errors by path. Of kernels fed by
// the processor's reciprocal estimate (pow, powr, and the fast double ones) no bits are frozen.
#include "accuracy.h"

using namespace orvane;

namespace {

constexpr double inf = HUGE_VAL, nan_ = __builtin_nan("");

// What the kernels reach, in ulps, where the result is within 2^lo to 2^hi. Tiers without a row are twins.
struct figure {
    const char *name, *tier;
    allowed bound;
    double lo, hi;
};
const figure figures[] = {
    {"pow", "default", fed(1.26, 3.65), -1021, 1021},
    {"powr", "default", fed(1.26, 3.65), -1021, 1021},
    {"powf", "default", fed(0.877, 2.12), -148, 127.99},
    {"powrf", "default", fed(2.64, 2.65), -125, 125},
    {"pown", "default", 1.37, -989, 989},
    {"pownf", "default", 7.4, -125.9, 125.9},
    {"rootn", "default", 0.506, -1021, 1021},
    {"rootnf", "default", 5, -125.9, 125.9},
    {"pow", "native", fed(6.45e7, 7.04e7), -1021, 1021},
    {"powr", "half", fed(6.45e7, 7.04e7), -1021, 1021},
    {"rootn", "native", fed(6.45e7, 6.47e7), -1021, 1021},
    {"pown", "native", fed(1.93e9, 7.4e9), -1021, 1021}, // a short logarithm times n, next to 1
    {"powf", "native", 1981, -125.9, 125.9},
    {"powrf", "half", 1981, -125.9, 125.9},
    {"pownf", "native", 4467, -125.9, 125.9},
    {"rootnf", "native", 1334, -125.9, 125.9},
};
const figure& figure_of(std::string_view name, bool fast) {
    return *std::find_if(std::begin(figures), std::end(figures), [&](const figure& f) {
        return f.name == name && (f.tier != std::string_view("default")) == fast;
    });
}

bool by_integer(const kernel_row& row) { return row.argument(1) == lane_type::i32; }
bool is_single(const kernel_row& row) { return row.in == lane_type::f32; }

// What OpenCL C says, written out; the families as named and with their floats.
TEST(Powers, MeaningsAtTheEdges) {
    struct meaning {
        const char* family;
        double x, y, result;
    };
    const meaning meanings[] = {
        {"pow", 1, nan_, 1},
        {"pow", nan_, 0, 1},
        {"pow", nan_, -0.0, 1},
        {"pow", inf, 0, 1},
        {"pow", -1, inf, 1},
        {"pow", -1, -inf, 1},
        {"pow", nan_, 1, nan_},
        {"pow", 2, nan_, nan_},
        {"pow", 0, -3, inf},
        {"pow", -0.0, -3, -inf},
        {"pow", -0.0, -2, inf},
        {"pow", -0.0, -2.5, inf},
        {"pow", 0, -inf, inf},
        {"pow", -0.0, -inf, inf},
        {"pow", -0.0, 3, -0.0},
        {"pow", -0.0, 2.5, 0},
        {"pow", -0.0, 4, 0},
        {"pow", 0, inf, 0},
        {"pow", -8, 0.5, nan_},
        {"pow", -8, -2.5, nan_},
        {"pow", 0.5, inf, 0},
        {"pow", -0.5, -inf, inf},
        {"pow", -2, inf, inf},
        {"pow", 2, -inf, 0},
        {"pow", -inf, 3, -inf},
        {"pow", -inf, 2, inf},
        {"pow", -inf, 2.5, inf},
        {"pow", -inf, -3, -0.0},
        {"pow", -inf, -2, 0},
        {"pow", inf, -1e-30, 0},
        {"pow", inf, 1e-30, inf},
        {"pow", -1, 7, -1},
        {"powr", 0, 0, nan_},
        {"powr", -0.0, 0, nan_},
        {"powr", inf, 0, nan_},
        {"powr", inf, -0.0, nan_},
        {"powr", 1, inf, nan_},
        {"powr", 1, -inf, nan_},
        {"powr", 1, nan_, nan_},
        {"powr", nan_, 0, nan_},
        {"powr", -1, 2, nan_},
        {"powr", -inf, 2, nan_},
        {"powr", 0, nan_, nan_},
        {"powr", -0.0, nan_, nan_},
        {"powr", 0, -1, inf},
        {"powr", -0.0, -3, inf},
        {"powr", -0.0, 3, 0},
        {"powr", 0, -inf, inf},
        {"powr", 0, inf, 0},
        {"powr", inf, 2, inf},
        {"powr", inf, -2, 0},
        {"powr", 0.5, -inf, inf},
        {"powr", 0.5, inf, 0},
        {"powr", 2, inf, inf},
        {"powr", 2, -inf, 0},
        {"powr", 1e-40, 0, 1},
        {"pown", nan_, 0, 1},
        {"pown", 0, 0, 1},
        {"pown", -inf, 0, 1},
        {"pown", -0.0, -3, -inf},
        {"pown", -0.0, -2, inf},
        {"pown", -0.0, 3, -0.0},
        {"pown", -0.0, 2, 0},
        {"pown", -inf, 3, -inf},
        {"pown", -inf, -3, -0.0},
        {"pown", -inf, 2, inf},
        {"pown", inf, -1, 0},
        {"pown", nan_, 5, nan_},
        {"pown", -0.0, -0x1p31, inf},
        {"pown", -0.0, 0x1p31 - 1, -0.0},
        {"pown", -0.0, -0x1p24 - 1, -inf},
        {"rootn", -8, 2, nan_},
        {"rootn", -0.0, 2, 0},
        {"rootn", -0.0, 3, -0.0},
        {"rootn", -0.0, -3, -inf},
        {"rootn", 0, -2, inf},
        {"rootn", -0.0, -2, inf},
        {"rootn", 2, 0, nan_},
        {"rootn", 0, 0, nan_},
        {"rootn", nan_, 0, nan_},
        {"rootn", -inf, 3, -inf},
        {"rootn", -inf, -3, -0.0},
        {"rootn", -inf, 2, nan_},
        {"rootn", inf, 2, inf},
        {"rootn", inf, -2, 0},
        {"rootn", nan_, 3, nan_},
        {"rootn", -1e-45, 2, nan_},
    };
    each_member({"pow", "powr", "pown", "rootn"}, [&](const member& pair) {
        const auto& [row, name, tier] = std::tie(*pair.row, pair.row->name, pair.row->tier);
        for (const auto& m : meanings) {
            if (row.base() != m.family) continue;
            const uint64_t got = word_for(name, tier, m.x, m.y);
            const double y = value_of(row.out, got);
            if (std::isnan(m.result)) EXPECT_TRUE(std::isnan(y)) << m.x << " " << m.y;
            else EXPECT_EQ(got, word_of(row.out, m.result)) << m.x << " " << m.y << " gave " << y;
        }
    });
}

// Every pair of edge values against the truth: infinities, NaN, signs of zeros and of everything else, and figures to
// what the tier can do.
TEST(Powers, EveryPairOfEdges) {
    truth t;
    each_member({"pow", "powr", "pown", "rootn"}, [&](const member& pair) {
        const auto& [row, name, tier] = std::tie(*pair.row, pair.row->name, pair.row->tier);
        const bool single = is_single(row), fast = std::string_view(tier) != "default";
        const double most = figure_of(name, fast).bound.most;
        const double tiny = single ? 0x1p-149 : 0x1p-1074, least = single ? 0x1p-126 : 0x1p-1022,
                     largest = single ? 0x1.fffffep127 : 0x1.fffffffffffffp1023,
                     half_ulp = single ? 0x1p-24 : 0x1p-53,
                     last_odd = 1 / half_ulp - 1; // the last odd integer
        std::vector<double> x = {0,       tiny,  3 * tiny,         least - tiny, least, 0.5, 1 - half_ulp,
                                 1,       1.484, 1 + 2 * half_ulp, 1.5,          2,     3,   7.25,
                                 largest, inf};
        std::vector<double> y = {0,
                                 tiny,
                                 least,
                                 0x1p-70,
                                 0.5,
                                 1,
                                 1.5,
                                 2,
                                 2.5,
                                 3,
                                 1e9,
                                 100,
                                 101,
                                 last_odd - 1,
                                 last_odd / 2,
                                 last_odd,
                                 last_odd + 1,
                                 2 * last_odd + 4,
                                 inf};
        if (by_integer(row)) y = {0, 1, 2, 3, 4, 100, 101, 0x1p24 - 1, 0x1p24 + 1, 0x1p30, 0x1p31 - 1, 0x1p31};
        sweep f(name, tier, 8);
        words xs, ys;
        auto add = [&](double a, double b) {
            xs.push_back(word_of(row.argument(0), a)), ys.push_back(word_of(row.argument(1), b));
        };
        for (double a : x)
            for (double b : y)
                for (int signs = 0; signs < 4; signs++) {
                    if (by_integer(row) && b == 0x1p31 && !(signs & 2)) continue;
                    add(signs & 1 ? -a : a, signs & 2 ? -b : b);
                    if (b == y[0]) add(nan_, a > 0x1p31 ? 1 : a);
                    if (a == x[0] && !by_integer(row)) add(b, nan_);
                }
        const words& r = f({xs, ys})[0];
        for (size_t i = 0; i < r.size(); i++) {
            const uint64_t lane[] = {xs[i], ys[i]};
            ASSERT_TRUE(t(row, lane));
            const double got = value_of(row.out, r[i]);
            EXPECT_LE(t.error(0, row.out, r[i]), most) << std::hexfloat << value_of(row.argument(0), xs[i]) << " "
                                                       << value_of(row.argument(1), ys[i]) << " gave " << got;
            if (!std::isnan(got))
                EXPECT_EQ(std::signbit(got), mpfr_signbit(t.value(0)) != 0)
                    << value_of(row.argument(0), xs[i]) << " " << value_of(row.argument(1), ys[i]) << " gave " << got;
        }
    });
}

TEST(Powers, Figures) {
    for (int k = -1021; k <= 1021; k++) {
        EXPECT_EQ(word_for("pow", "default", 2, k), word_of(lane_type::f64, std::ldexp(1.0, k)));
        EXPECT_EQ(word_for("powr", "default", std::ldexp(1.0, k), -1), word_of(lane_type::f64, std::ldexp(1.0, -k)));
    }
    EXPECT_EQ(word_for("pow", "default", -8, 3), word_of(lane_type::f64, -512));
    EXPECT_EQ(word_for("pow", "native", 7.25, 0), word_of(lane_type::f64, 1));
    EXPECT_EQ(word_for("powf", "default", 7.25, 0), word_of(lane_type::f32, 1));
    EXPECT_EQ(word_for("powf", "default", 0x1.fffffep127, 1), 0x7F7FFFFFu);
    EXPECT_EQ(word_for("powf", "default", 1.5, 220), 0x7F800000u); // out of the kernel, by narrowing
    EXPECT_EQ(word_for("pow", "default", 0x1p-1074, 0x1p-80), word_of(lane_type::f64, 1));

    EXPECT_EQ(word_for("pown", "default", 7.25, 0), word_of(lane_type::f64, 1));
    EXPECT_EQ(word_for("pown", "native", 7.25, 0), word_of(lane_type::f64, 0x1.ffffffc27dd9ep-1));
    EXPECT_EQ(word_for("pownf", "default", 7.25, 0), 0x3F800001u);
    EXPECT_EQ(word_for("pownf", "native", 7.25, 0), 0x3F7FFB0Du);
    EXPECT_EQ(word_for("pown", "default", -2, 3), word_of(lane_type::f64, -8));
    EXPECT_EQ(word_for("pownf", "default", -2, 3), word_of(lane_type::f32, -0x1.000002p+3));
    EXPECT_EQ(word_for("rootn", "default", -8, 3), word_of(lane_type::f64, -2));

    // Invalid operations give the processor's NaN, and a NaN its payload.
    EXPECT_EQ(word_for("pow", "default", -8, 0.3), 0xFFF8000000000000u);
    EXPECT_EQ(word_for("powrf", "default", 0, 0), 0xFFC00000u);
    EXPECT_EQ(word_for("rootn", "default", -8, 2), 0xFFF8000000000000u);
    sweep f("pow", "default", 1);
    EXPECT_EQ(f({{0xFFF0000000000777}, {0x3FF0000000000000}})[0][0], 0xFFF8000000000777u);
}

TEST(Powers, StatusCodes) {
    struct code {
        const char* name;
        double x, y;
        int status;
    };
    for (const auto& [name, x, y, status] :
         {code{"pow", 0, -1, 1},  {"pow", -0.0, -2.5, 1}, {"pow", -8, 0.3, 1},   {"pow", 2, 2000, 0},
          {"pow", 2, -2000, 0},   {"pow", nan_, 1, 0},    {"powf", 0, -1, 1},    {"powf", -8, 0.3, 1},
          {"powr", -1, 2, 1},     {"powr", -inf, 2, 1},   {"powr", 0, 0, 0},     {"powr", 0, -1, 0},
          {"powr", 1, inf, 0},    {"powr", 2, 2000, 3},   {"powr", 2, -2000, 4}, {"powr", 2, 1e300, 3},
          {"powr", 2, -1e300, 4}, {"powr", 2, -1024, 0},  {"powr", 2, -1040, 4}, {"powr", 2, 1023, 0},
          {"powrf", 2, 200, 3},   {"powrf", 2, -200, 4},  {"powrf", 2, -128, 0}, {"powrf", 2, -140, 4},
          {"powrf", -1, 2, 1},    {"pown", 0, -3, 1},     {"pown", -0.0, -2, 1}, {"pown", 0, 3, 0},
          {"pown", 2, 2000, 0},   {"pownf", 0, -3, 1},    {"pownf", 2, 2000, 0}, {"rootn", -8, 2, 0},
          {"rootn", 0, -2, 0},    {"rootn", 2, 0, 0},     {"rootnf", -8, 2, 0},  {"rootnf", 0, -2, 0}}) {
        EXPECT_EQ(status_for(name, "default", x, y), status) << name << " " << x << " " << y;
    }
}

// Arguments whose result is about 2^E, E spread over a range, with bases of all sizes and next to 1; the exponents
// n of integer families of all sizes.
std::vector<words> arguments_of(const kernel_row& row, double lo, double hi, int n, bool negative, uint64_t seed) {
    rng r(seed);
    auto between = [&](double a, double b) { return std::uniform_real_distribution<double>(a, b)(r); };
    const double largest = is_single(row) ? 125 : 1021, ends = std::max(-lo, hi),
                 top = is_single(row) ? 127.99 : 1023.99;
    std::vector<words> w(2);
    while ((int)w[0].size() < n) {
        const double E = between(lo, hi), sign = negative ? -1 : 1;
        double x, y;
        if (by_integer(row)) {
            const bool root = row.base() == "rootn";
            const double widest = root ? std::log2(std::max(1.0, ends / std::fabs(E))) : 31;
            y = std::floor(std::exp2(between(0, std::min(widest, 31.0)))) * (r() % 2 ? 1 : -1);
            const double l = root ? E * y : E / y;
            if (std::fabs(y) >= 0x1p31 || l > top || l < (root ? -ends : -largest)) continue;
            x = std::exp2(l);
        } else {
            const double spreads[] = {largest, 1, std::exp2(-between(1, 30))};
            const double l = between(-1, 1) * spreads[r() % 3];
            y = E / l;
            if (negative) y = std::nearbyint(y);
            x = std::exp2(negative ? E / y : l);
            if (std::fabs(l) < 1e-12 || y == 0 || !std::isnormal((float)y) || !(x < HUGE_VAL)) continue;
        }
        const uint64_t lane[] = {word_of(row.argument(0), sign * x), word_of(row.argument(1), y)};
        const double rounded = value_of(row.argument(1), lane[1]),
                     power = row.base() == "rootn" ? 1 / rounded : rounded;
        const double reached =
            power * std::log2(std::fabs(value_of(row.in, lane[0]))); // roundings of x count next to 1
        if (!(lo <= reached && reached <= hi)) continue;
        for (int j = 0; j < 2; j++)
            w[j].push_back(lane[j]);
    }
    return w;
}
long double power_of(long double x, long double y) { return powl(x, y); }
long double root_of(long double x, long double n) { return std::copysign(powl(fabsl(x), 1 / n), x); }

void check(const char* path, const kernel_row& row, const std::vector<words>& a, const allowed& bound) {
    truth t;
    sweep f(row.name, row.tier, 8);
    expect_errors((std::stringstream() << row.name << " " << row.tier << " " << path).str(), bound, f, t, a,
                  row.base() == "rootn" ? root_of : power_of);
}

TEST(Powers, LargestErrors) {
    for (const auto& [name, tier, bound, lo, hi] : figures) {
        const kernel_row& row = *find_row(library_rows(), name, tier);
        check("vector", row, arguments_of(row, lo, hi, 1'000'000, false, 41), bound);
    }
}

// Negative bases, subnormal ones, and results at the ends of the range, where powf has its kernel still.
TEST(Powers, SlowPaths) {
    struct bound {
        const char* name;
        double top, bottom, subnormal;
    };
    for (const auto& [name, of_top, of_bottom, of_subnormal] : {bound{"pow", 0.536, 0.758, 0.507},
                                                                {"powr", 0.536, 0.505, 0.507},
                                                                {"pown", 0.546, 0.757, 0},
                                                                {"rootn", 0.51, 0.504, 0.502},
                                                                {"powf", 0.609, 0, 0.746},
                                                                {"powrf", 1.32, 0.765, 0.933},
                                                                {"pownf", 1.2, 1.02, 0},
                                                                {"rootnf", 0.528, 0.507, 0.531}}) {
        const kernel_row& row = *find_row(library_rows(), name, "default");
        const double top = is_single(row) ? 127.9 : 1023.9, bottom = is_single(row) ? -148 : -1073,
                     least = is_single(row) ? -126 : -1022;
        if (of_bottom) {
            check("top", row, arguments_of(row, top - 1.5, top, 300'000, false, 42), of_top);
            check("bottom", row, arguments_of(row, bottom, least, 300'000, false, 43), of_bottom);
        }
        if (row.base() == "pow") check("negative", row, arguments_of(row, least, top, 500'000, true, 44), of_top);
        if (!of_subnormal) continue; // pown: of a subnormal only n = 1, 0, -1 give anything but 0 and Inf
        std::vector<words> a(2);
        for (rng r(45); a[0].size() < 200'000;) {
            const uint64_t x = r() % (is_single(row) ? 0x007FFFFF : 0x000FFFFFFFFFFFFF) >> r() % 20;
            const double y = std::uniform_real_distribution<double>(-0.9, 0.9)(r);
            if (!x || std::fabs(y) < 1e-6) continue;
            a[0].push_back(x), a[1].push_back(word_of(row.argument(1), by_integer(row) ? std::round(1 / y) : y));
        }
        check("subnormal x", row, a, of_subnormal);
    }
}

// powr is pow where both have a value, tier by tier.
TEST(Powers, OfPositiveNumbersAreTheSame) {
    struct two {
        const char *pow, *of, *powr, *tier;
    };
    for (const auto& [pow, of, powr, tier] : {two{"pow", "default", "powr", "default"},
                                              {"pow", "rm", "powr", "native"},
                                              {"powf", "rm", "powrf", "half"}}) {
        sweep f(pow, of, 16), g(powr, tier, 16);
        const auto a = arguments_of(f.row(), -120, 120, 100'000, false, 46);
        EXPECT_EQ(f(a), g(a)) << pow;
    }
}

// Just below 2^-1022, where y times the high part of log2 x is within the limit of the vector path and y log2 x is
// not.
TEST(Powers, NextToSubnormalResultsComeFromTheSlowPath) {
    for (auto name : {"pow", "powr"}) {
        sweep f(name);
        truth t;
        std::vector<words> a(2);
        rng r(47);
        std::uniform_real_distribution<double> x(0.99903, 0.99915), e(-1022.3, -1022);
        for (int i = 0; i < 20'000; i++) {
            const double v = x(r);
            a[0].push_back(word_of(lane_type::f64, v));
            a[1].push_back(word_of(lane_type::f64, e(r) / std::log2(v)));
        }
        EXPECT_LE(worst_error(f, t, a).ulps, 0.76) << name;
    }
}

} // namespace
