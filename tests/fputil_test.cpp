// Rounding, fractions and selection: meaning, NaN rules and the caller's rounding mode.
#include "typed_lanes.h"

using namespace orvane;

namespace {

template <class T> class Fputil : public testing::Test {};
TYPED_TEST_SUITE(Fputil, floating_types);

// Against the C library, which is right here: every operation is exact.
TYPED_TEST(Fputil, RoundingsMeanWhatTheySay) {
    using T = TypeParam;
    rng r(10);
    const std::pair<const char*, T (*)(T)> families[] = {{"ceil", std::ceil},   {"floor", std::floor},
                                                         {"trunc", std::trunc}, {"round", std::round},
                                                         {"rint", std::rint},   {"nearbyint", std::nearbyint}};
    for (const auto& [base, expected] : families) {
        sweep f(member<T>(base));
        std::vector<words> x = random_patterns(f.row(), 20000, r);
        for (int i = -4000; i < 4000; i++)
            x[0].push_back(word(T(i) / 4)); // ties and their neighbours
        for (T edge : {T(0x1p22), T(0x1p23), T(0x1p24), T(0x1p51), T(0x1p52), T(0x1p53), T(0.5), T(1.5)})
            for (T v : {edge, std::nextafter(edge, T(0)), std::nextafter(edge, T(1e30))})
                for (T s : {v, -v, v - T(0.5), v + T(0.5)})
                    x[0].push_back(word(s));
        const auto& y = f(x);
        for (size_t i = 0; i < x[0].size(); i++) {
            const T v = number<T>(x[0][i]);
            if (std::isnan(v)) // quieted, with its sign and payload
                EXPECT_EQ(y[0][i], x[0][i] | word(std::numeric_limits<T>::quiet_NaN())) << base;
            else EXPECT_SAME(number<T>(y[0][i]), expected(v)) << base << " of " << v;
        }
    }
    EXPECT_EQ(value<T>("round", -2.5), -3);
    EXPECT_EQ(value<T>("rint", 2.5), 2);
}

TYPED_TEST(Fputil, OnlyRintAndNearbyintFollowTheMode) {
    using T = TypeParam;
    auto under = [&](const char* f, T x, uint32_t mode) { return number<T>(words_of<T>(f, mode, x)[0]); };
    for (auto f : {"rint", "nearbyint"}) {
        EXPECT_EQ(under(f, 1.1, up), 2);
        EXPECT_EQ(under(f, 1.9, down), 1);
        EXPECT_EQ(under(f, -1.1, down), -2);
        EXPECT_EQ(under(f, -1.9, to_zero), -1);
    }
    for (uint32_t mode : {down, up, to_zero})
        for (T x : {T(1.1), T(-1.9), T(2.5), T(-0.5)})
            for (auto f : {"ceil", "floor", "trunc", "round"})
                EXPECT_SAME(under(f, x, mode), under(f, x, to_even)) << f;
    // rint tells an inexact result in the sticky flags, nearbyint does not.
    for (auto [f, raised] : {std::pair{"rint", 0x20u}, {"nearbyint", 0u}}) {
        const kernel_row* row = find_row(library_rows(), member<T>(f), "default");
        auto call = subject{row, &library_under_test()}.caller(1);
        std::vector<words> y;
        call({{word(T(1.1))}}, y);
        EXPECT_EQ(call.out.mxcsr & 0x20, raised) << f;
    }
    // fract and modf subtract under the caller's mode: x - floor(x) of a tiny negative number rounds to 1 or below
    // it.
    const T tiny = T(-1e-30), below = std::nextafter(T(1), T(0));
    EXPECT_SAME(number<T>(words_of<T>("fract", up, tiny)[0]), below);
    EXPECT_SAME(number<T>(words_of<T>("fract", down, tiny)[0]), below);
    const T x = sizeof(T) == 8 ? T(-0x1.0000000000001p-3) : T(-0x1.000002p-3); // 1 + x is no number of the type
    EXPECT_GT(number<T>(words_of<T>("fract", up, x)[0]), number<T>(words_of<T>("fract", down, x)[0]));
    // Nothing left is a negative zero where the mode is downward.
    for (auto f : {"fract", "modf"}) {
        EXPECT_SAME(number<T>(words_of<T>(f, down, T(3))[0]), T(-0.0)) << f;
        for (uint32_t mode : {to_even, up, to_zero})
            EXPECT_SAME(number<T>(words_of<T>(f, mode, T(3))[0]), T(0)) << f;
    }
}

TYPED_TEST(Fputil, FractionsAddUpAgain) {
    using T = TypeParam;
    rng r(11);
    sweep fract(member<T>("fract")), modf(member<T>("modf"));
    const auto x = random_patterns(fract.row(), 40000, r);
    const auto a = fract(x), b = modf(x);
    for (size_t i = 0; i < x[0].size(); i++) {
        const T v = number<T>(x[0][i]), f = number<T>(a[0][i]), g = number<T>(b[0][i]);
        if (std::isnan(v)) {
            EXPECT_EQ(a[0][i], x[0][i]) << "fract hands a NaN on as it came";
            EXPECT_EQ(a[1][i], x[0][i]);
            EXPECT_EQ(b[0][i], x[0][i] | word(std::numeric_limits<T>::quiet_NaN())) << "modf quiets it";
            EXPECT_EQ(b[1][i], b[0][i]);
            continue;
        }
        T whole;
        EXPECT_SAME(g, std::modf(v, &whole));
        EXPECT_EQ(b[1][i], word(whole));
        EXPECT_EQ(a[1][i], word(std::floor(v)));
        if (std::isinf(v) || v == 0) EXPECT_SAME(f, std::copysign(T(0), v));
        else EXPECT_SAME(f, std::min(v - std::floor(v), std::nextafter(T(1), T(0))) + T(0));
    }
    EXPECT_SAME(value<T>("fract", T(2)), T(0));
    EXPECT_SAME(value<T>("modf", T(-3)), T(-0.0));
}

TYPED_TEST(Fputil, Selections) {
    using T = TypeParam;
    rng r(12);
    const auto quiet = word(std::numeric_limits<T>::quiet_NaN());
    struct rule {
        const char* base;
        T (*of)(T, T);
    };
    const rule rules[] = {
        {"fmin", [](T x, T y) { return x < y ? x : y; }},
        {"fmax", [](T x, T y) { return x > y ? x : y; }},
        {"minmag",
         [](T x, T y) {
             return std::fabs(x) < std::fabs(y) ? x : std::fabs(y) < std::fabs(x) ? y : y < x ? y : x;
         }},
        {"maxmag",
         [](T x, T y) {
             return std::fabs(x) > std::fabs(y) ? x : std::fabs(y) > std::fabs(x) ? y : y > x ? y : x;
         }},
        {"fdim", [](T x, T y) { return y < x ? x - y : T(0); }},
    };
    for (const auto& [base, of] : rules) {
        sweep f(member<T>(base));
        auto a = random_patterns(f.row(), 30000, r);
        for (size_t i = 0; i < a[0].size(); i += 5)
            a[1][i] = a[0][i] ^ (r() & 1 ? word(T(-0.0)) : 0); // ties
        const auto& y = f(a);
        const bool difference = std::string(base) == "fdim";
        for (size_t i = 0; i < a[0].size(); i++) {
            const T p = number<T>(a[0][i]), q = number<T>(a[1][i]);
            uint64_t want = word(of(p, q));
            // A NaN gives the other argument, of a difference itself; of two the second; always quiet.
            if (std::isnan(p) || std::isnan(q)) {
                const bool take_y = difference ? std::isnan(q) : std::isnan(p);
                want = take_y ? a[1][i] : a[0][i];
                if (std::isnan(number<T>(want))) want |= quiet;
            }
            ASSERT_EQ(y[0][i], want) << base << " of " << p << ", " << q;
        }
    }
    EXPECT_SAME(value<T>("fmin", T(0), T(-0.0)), T(-0.0));
    EXPECT_SAME(value<T>("minmag", T(0), T(-0.0)), T(0));
    EXPECT_SAME(value<T>("fdim", T(HUGE_VAL), T(HUGE_VAL)), T(0));
}

// No status tells an error, and lanes that a slow path does not answer keep what the vector path has put there.
TYPED_TEST(Fputil, SlowPaths) {
    using T = TypeParam;
    const auto infinity = word(T(HUGE_VAL)), minus = word(T(-0.0)), one = word(T(1)), before = word(T(42));
    const auto quiet = word(std::numeric_limits<T>::quiet_NaN()), nan = infinity | 5 | minus;
    const uint64_t mask = sizeof(T) == 4 ? 0xFFFFFFFF : ~uint64_t(0);
    auto slow = [&](const char* base, std::vector<uint64_t> lane) {
        const auto r = slow_path_of<T>(base, lane, before);
        EXPECT_EQ(r.status, 0) << base;
        return std::pair{r.result & mask, r.out & mask};
    };
    for (uint64_t sign : {uint64_t(0), minus}) {
        EXPECT_EQ(slow("fract", {sign}), std::pair(sign, sign));
        EXPECT_EQ(slow("fract", {infinity | sign}), std::pair(sign, infinity | sign));
        EXPECT_EQ(slow("modf", {infinity | sign}), std::pair(sign, infinity | sign));
    }
    EXPECT_EQ(slow("fract", {nan}), std::pair(nan, nan));
    EXPECT_EQ(slow("modf", {nan}), std::pair(nan | quiet, nan | quiet));
    for (auto f : {"fmin", "fmax", "minmag", "maxmag", "fdim"}) {
        EXPECT_EQ(slow(f, {infinity, one}).first, before) << f;
        EXPECT_EQ(slow(f, {infinity, nan}).first, std::string(f) == "fdim" ? nan | quiet : infinity) << f;
        EXPECT_EQ(slow(f, {nan ^ 1, nan}).first, nan | quiet) << f;
    }
}

TYPED_TEST(Fputil, FmaRoundsOnce) {
    using T = TypeParam;
    rng r(13);
    for (auto tier : {"default", "rm"}) {
        sweep f(member<T>("fma"), tier);
        auto a = random_patterns(f.row(), 30000, r);
        for (size_t i = 0; i < a[0].size(); i += 2) // cancellation: c next to -a b
            a[2][i] = word(T(-(number<T>(a[0][i]) * number<T>(a[1][i]))));
        const auto& y = f(a);
        for (size_t i = 0; i < a[0].size(); i++) {
            const T v = std::fma(number<T>(a[0][i]), number<T>(a[1][i]), number<T>(a[2][i]));
            if (std::isnan(v)) EXPECT_TRUE(std::isnan(number<T>(y[0][i])));
            else ASSERT_EQ(y[0][i], word(v));
        }
    }
}

} // namespace
