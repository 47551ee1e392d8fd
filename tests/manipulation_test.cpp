// Exponents, signs and neighbours against the C library, ldexp against one rounding from extended precision; what
// each slow path tells.
#include "typed_lanes.h"

using namespace orvane;

namespace {

template <class T> class Manipulation : public testing::Test {};
TYPED_TEST_SUITE(Manipulation, floating_types);

// Every power of two with its neighbours, of both signs, and random patterns.
template <class T> words telling(const kernel_row& row, rng& r) {
    using limits = std::numeric_limits<T>;
    words x = random_patterns(row, 20000, r)[0];
    for (int e = limits::min_exponent - limits::digits; e < limits::max_exponent; e++)
        for (T sign : {T(1), T(-1)})
            for (int64_t d : {-1, 0, 1})
                x.push_back(word(std::ldexp(sign, e)) + d);
    return x;
}

TYPED_TEST(Manipulation, Exponents) {
    using T = TypeParam;
    rng r(30);
    sweep frexp(member<T>("frexp")), ilogb(member<T>("ilogb")), logb(member<T>("logb"));
    const words x = telling<T>(frexp.row(), r);
    const auto parts = frexp({x}), integers = ilogb({x}), values = logb({x});
    for (size_t i = 0; i < x.size(); i++) {
        const T v = number<T>(x[i]);
        int e = 0;
        const T fraction = std::isfinite(v) ? std::frexp(v, &e) : v;
        // frexp hands on NaN as they are, signalling ones too.
        ASSERT_EQ(parts[0][i], std::isfinite(v) ? word(fraction) : x[i]) << std::hex << x[i];
        ASSERT_EQ((int32_t)parts[1][i], e) << std::hex << x[i];
        ASSERT_EQ((int32_t)integers[0][i], std::isnan(v) ? INT32_MAX : std::ilogb(v)) << std::hex << x[i];
        const uint64_t without_sign = (x[i] | quiet_bit<T>)&~sign_word<T>;
        ASSERT_EQ(values[0][i], std::isnan(v) ? without_sign : word(std::logb(v))) << std::hex << x[i];
    }
}

// x 2^n, rounded once.
template <class T> T scaled(T x, int n) { return (T)std::ldexp((long double)x, n); }

TYPED_TEST(Manipulation, LdexpRoundsOnce) {
    using T = TypeParam;
    rng r(31);
    sweep f(member<T>("ldexp"));
    words x = telling<T>(f.row(), r), n;
    const auto once = x;
    for (int i = 0; i < 3; i++)
        x.insert(x.end(), once.begin(), once.end());
    constexpr int range = std::numeric_limits<T>::max_exponent;
    for (size_t i = 0; i < x.size(); i++) {
        const T v = number<T>(x[i]);
        int k = (int)r() >> r() % 31;            // of every length
        if (i % 4 && std::isfinite(v) && v != 0) // to the ends of the range, subnormals among them
            k = (i % 4 == 1 ? range : -range) - std::ilogb(v) + int(r() % 70) - 35;
        n.push_back((uint32_t)k);
    }
    const auto& y = f({x, n});
    for (size_t i = 0; i < x.size(); i++) {
        const T v = number<T>(x[i]);
        const uint64_t expected = std::isnan(v) ? x[i] | quiet_bit<T> : word(scaled(v, (int32_t)n[i]));
        ASSERT_EQ(y[0][i], expected) << std::hex << x[i] << ", " << std::dec << (int32_t)n[i];
    }
    // A result below the normal range rounds by the caller's mode.
    const T third = T(1) / 3, least = std::numeric_limits<T>::denorm_min();
    const int down_there = std::ilogb(least) + 1;
    for (auto [mode, steps] : {std::pair{to_even, 1}, {down, 0}, {up, 1}, {to_zero, 0}}) {
        const words lane = {word(third)}, by = {(uint32_t)down_there};
        const auto z = by_single_lanes({&f.row(), &library_under_test()}, {lane, by}, mode);
        EXPECT_EQ(number<T>(z[0][0]), steps * least);
    }
}

TYPED_TEST(Manipulation, Neighbours) {
    using T = TypeParam;
    rng r(32);
    sweep f(member<T>("nextafter"));
    words x = telling<T>(f.row(), r), y = x;
    std::shuffle(y.begin(), y.end(), r);
    for (size_t i = 0; i < x.size(); i += 3)
        y[i] = x[i] + r() % 5 - 2; // close by, or the same
    for (size_t i = 1; i < x.size(); i += 3)
        y[i] = x[i] ^ sign_word<T>;
    if (sizeof(T) == 4)
        for (auto* w : {&x, &y})
            for (auto& v : *w)
                v &= 0xFFFFFFFF;
    const auto& z = f({x, y});
    for (size_t i = 0; i < x.size(); i++) {
        const T a = number<T>(x[i]), b = number<T>(y[i]);
        const uint64_t nan = (std::isnan(a) ? x[i] : y[i]) | quiet_bit<T>;
        ASSERT_EQ(z[0][i], std::isnan(a + b) && !(std::isinf(a) && std::isinf(b)) ? nan : word(std::nextafter(a, b)))
            << std::hex << x[i] << ", " << y[i];
    }
    EXPECT_SAME(value<T>("nextafter", T(-0.0), T(0)), T(0));
    EXPECT_SAME(value<T>("nextafter", T(HUGE_VAL), T(0)), std::numeric_limits<T>::max());
    EXPECT_SAME(value<T>("nextafter", T(-1), T(-2)), number<T>(word(T(-1)) + 1));
}

TYPED_TEST(Manipulation, Masks) {
    using T = TypeParam;
    rng r(33);
    sweep copysign(member<T>("copysign")), fabs(member<T>("fabs")), nan(member<T>("nan"));
    const auto a = random_patterns(copysign.row(), 20000, r);
    const auto y = copysign(a)[0], z = fabs({a[0]})[0], q = nan({a[0]})[0];
    for (size_t i = 0; i < y.size(); i++) {
        ASSERT_EQ(y[i], (a[0][i] & ~sign_word<T>) | (a[1][i] & sign_word<T>));
        ASSERT_EQ(z[i], a[0][i] & ~sign_word<T>);
        ASSERT_EQ(q[i], a[0][i] | infinity_word<T> | quiet_bit<T>);
    }
}

TYPED_TEST(Manipulation, SlowPaths) {
    using T = TypeParam;
    using limits = std::numeric_limits<T>;
    const uint64_t one = word(T(1)), zero = 0, minus_zero = sign_word<T>, signalling = infinity_word<T> | 5;
    const uint64_t least = 1, largest = word(limits::max()), smallest = word(limits::min());
    struct expectation {
        const char* base;
        std::vector<uint64_t> lane;
        int status;
        uint64_t result;
    };
    const expectation table[] = {
        {"frexp", {signalling}, 0, signalling},
        {"frexp", {minus_zero}, 0, minus_zero},
        {"ldexp", {signalling, 3}, 0, signalling | quiet_bit<T>},
        {"ldexp", {minus_zero, 3}, 0, minus_zero},
        {"ldexp", {one, 0x7FFFFFFF}, 3, infinity_word<T>}, // the exponents' sum does not wrap
        {"ldexp", {one | minus_zero, 0x80000000}, 4, minus_zero},
        {"ldexp", {smallest | minus_zero, (uint32_t)-limits::digits}, 4, minus_zero}, // a tie, to even
        {"ldexp", {smallest + 1, (uint32_t)-limits::digits}, 0, least},
        {"ldexp", {least, limits::digits + 10}, 0, word(std::ldexp(limits::denorm_min(), limits::digits + 10))},
        {"ilogb", {signalling}, 1, 0x7FFFFFFF},
        {"ilogb", {infinity_word<T> | minus_zero}, 1, 0x7FFFFFFF},
        {"ilogb", {minus_zero}, 1, 0x80000000},
        {"ilogb", {least}, 0, (uint32_t)std::ilogb(limits::denorm_min())},
        {"logb", {minus_zero}, 1, word(T(-HUGE_VAL))},
        {"logb", {infinity_word<T> | minus_zero}, 0, infinity_word<T>},
        {"logb", {signalling | minus_zero}, 0, signalling | quiet_bit<T>},
        {"nextafter", {zero, minus_zero}, 0, minus_zero},
        {"nextafter", {zero, one | minus_zero}, 4, least | minus_zero},
        {"nextafter", {least, zero}, 4, zero},
        {"nextafter", {smallest, zero}, 4, smallest - 1},
        {"nextafter", {smallest - 1, one}, 0, smallest},
        {"nextafter", {largest, infinity_word<T>}, 3, infinity_word<T>},
        {"nextafter", {one, signalling}, 0, signalling | quiet_bit<T>},
    };
    for (const auto& e : table) {
        const auto r = slow_path_of<T>(e.base, e.lane);
        const bool integer = std::string(e.base) == "ilogb";
        EXPECT_EQ(integer ? (uint32_t)r.result : r.result, e.result) << e.base << " of " << std::hex << e.lane[0];
        EXPECT_EQ(r.status, e.status) << e.base << " of " << std::hex << e.lane[0];
    }
}

} // namespace
