// fmod, remainder and remquo, exactly, against MPFR's; which NaN each path gives, and the caller's rounding mode.
#include "typed_lanes.h"

using namespace orvane;

namespace {

template <class T> class Remainder : public testing::Test {};
TYPED_TEST_SUITE(Remainder, floating_types);

template <class T> constexpr int path_limit = sizeof(T) == 8 ? 25 : 11; // exponents further apart: the slow path

// MPFR's results, every one of which is a number of the type.
template <class T> class exact {
public:
    exact() {
        for (auto* v : {&x, &y, &z})
            mpfr_init2(*v, 64);
    }
    ~exact() { mpfr_clears(x, y, z, (mpfr_ptr) nullptr); }
    exact(const exact&) = delete;
    T fmod(T a, T b) { return set(a, b), mpfr_fmod(z, x, y, MPFR_RNDN), result(); }
    T remainder(T a, T b, int32_t* quotient) {
        set(a, b);
        long q;
        mpfr_remquo(z, &q, x, y, MPFR_RNDN);
        const int32_t low = int32_t(std::labs(q) & 0x7FFFFFFF);
        *quotient = std::signbit(a) == std::signbit(b) ? low : -low;
        return result();
    }

private:
    void set(T a, T b) { mpfr_set_d(x, a, MPFR_RNDN), mpfr_set_d(y, b, MPFR_RNDN); }
    T result() { return (T)mpfr_get_d(z, MPFR_RNDN); }
    mpfr_t x, y, z;
};

template <class T> struct pairs {
    words x, y;
    void add(T a, T b) {
        if (std::isfinite(a) && std::isfinite(b) && b != 0) x.push_back(word(a)), y.push_back(word(b));
    }
};
template <class T> T random_significand(rng& r) {
    constexpr int digits = std::numeric_limits<T>::digits;
    T m = (T)std::ldexp((double)(r() >> (64 - digits) | 1ull << (digits - 1)), 1 - digits);
    if (r() % 4 == 0) m = (T)std::ldexp(std::floor(std::ldexp((double)m, 4)), -4); // short: ties and exact multiples
    return r() & 1 ? -m : m;
}

// Exponents from the largest difference down to x far below y, at every place of the range; multiples, ties and their
// neighbours, whose quotients the division rounds to a whole number.
template <class T> pairs<T> telling_pairs(rng& r) {
    using limits = std::numeric_limits<T>;
    constexpr int lowest = limits::min_exponent - limits::digits, highest = limits::max_exponent - 1;
    pairs<T> p;
    for (int difference = -3; difference <= highest - lowest; difference++) {
        const bool on_the_vector_path = difference <= path_limit<T>;
        for (int i = 0; i < (on_the_vector_path ? 400 : 6); i++) {
            const int ey = lowest + int(r() % (highest - lowest - std::max(difference, 0) + 1));
            const T y = std::ldexp(random_significand<T>(r), ey);
            p.add(std::ldexp(random_significand<T>(r), ey + difference), y);
            const T n = std::trunc(std::ldexp(random_significand<T>(r), std::min(difference, limits::digits)));
            for (T multiple : {n * y, (n + T(0.5)) * y})
                for (T x :
                     {multiple, std::nextafter(multiple, T(0)), std::nextafter(multiple, T(HUGE_VAL) * multiple)})
                    p.add(x, y);
        }
    }
    for (T x : {T(0), T(-0.0), limits::denorm_min(), -limits::min(), limits::max()})
        for (T y : {limits::denorm_min(), limits::min(), T(1), limits::max() / 2, -limits::max()})
            p.add(x, y);
    return p;
}

TYPED_TEST(Remainder, ExactAsInMpfr) {
    using T = TypeParam;
    rng r(40);
    exact<T> truth;
    sweep fmod(member<T>("fmod")), remainder(member<T>("remainder")), remquo(member<T>("remquo"));
    const auto p = telling_pairs<T>(r);
    const auto f = fmod({p.x, p.y}), m = remainder({p.x, p.y}), q = remquo({p.x, p.y});
    for (size_t i = 0; i < p.x.size(); i++) {
        const T x = number<T>(p.x[i]), y = number<T>(p.y[i]);
        SCOPED_TRACE(testing::Message() << std::hexfloat << x << ", " << y);
        int32_t quotient;
        const T rest = truth.remainder(x, y, &quotient);
        ASSERT_EQ(f[0][i], word(truth.fmod(x, y)));
        ASSERT_EQ(m[0][i], word(rest));
        ASSERT_EQ(q[0][i], word(rest));
        ASSERT_EQ((int32_t)q[1][i], quotient);
    }
}

TYPED_TEST(Remainder, InNumbers) {
    using T = TypeParam;
    auto of = [](const char* f, double x, double y) { return (double)value<T>(f, x, y); };
    auto quotient = [](double x, double y) { return (int32_t)words_of<T>("remquo", to_even, x, y)[1]; };
    EXPECT_EQ(of("fmod", -5.5, 2), -1.5);
    EXPECT_SAME(value<T>("fmod", -6, 3), T(-0.0));
    EXPECT_SAME(value<T>("fmod", -0x1p60, 1), T(-0.0));
    EXPECT_EQ(of("remainder", 5, 2), 1);
    EXPECT_EQ(of("remainder", 7, 2), -1);
    EXPECT_EQ(of("remainder", 6, 4), -2);
    EXPECT_EQ(quotient(7, 2), 4);
    EXPECT_EQ(quotient(-7, 2), -4);
    EXPECT_EQ(quotient(0x1p60 * 1.5, 3), 0); // 2^59: its low 31 bits
}

// Results that are no number, with the status of the slow path: the first NaN is passed on quieted; a zero y or an
// infinite x is invalid.
TYPED_TEST(Remainder, WithoutARemainder) {
    using T = TypeParam;
    const uint64_t infinity = infinity_word<T>, sign = sign_word<T>, quiet = infinity | quiet_bit<T>,
                   one = word(T(1));
    const uint64_t nan = infinity | 5 | sign, other_nan = infinity | 9;
    const uint64_t by_division = sizeof(T) == 8 ? quiet | sign : quiet;
    struct expectation {
        uint64_t x, y, fmod, remainder;
        int fmod_status, remainder_status;
    };
    for (const auto& e : {expectation{nan, other_nan, nan | quiet, nan | quiet, 0, 0},
                          {one, other_nan, other_nan | quiet, other_nan | quiet, 0, 0},
                          {infinity, nan, nan | quiet, nan | quiet, 0, 0},
                          {one, sign, quiet, by_division, 2, 1},
                          {infinity | sign, 0, quiet, by_division, 2, 1},
                          {infinity | sign, one, quiet, by_division, 2, 0},
                          {infinity, infinity, quiet, by_division, 2, 0},
                          {one | sign, infinity, one | sign, one | sign, 0, 0},
                          {sign, one, sign, sign, 0, 0}}) {
        SCOPED_TRACE(testing::Message() << std::hex << e.x << ", " << e.y);
        for (auto base : {"fmod", "remainder", "remquo"}) {
            const bool is_fmod = base == std::string("fmod"), is_remquo = base == std::string("remquo");
            const auto r = slow_path_of<T>(base, {e.x, e.y});
            const uint64_t expected = is_fmod ? e.fmod : e.remainder;
            EXPECT_EQ(r.result, expected) << base;
            EXPECT_EQ(r.status, is_fmod                       ? e.fmod_status
                                : is_remquo && sizeof(T) == 8 ? 0
                                                              : e.remainder_status)
                << base;
            EXPECT_EQ(words_of<T>(base, to_even, number<T>(e.x), number<T>(e.y))[0], expected) << base;
            if (is_remquo) EXPECT_EQ((int32_t)r.out, 0);
        }
    }
    // Of an infinity the vector path of fmod makes the processor's NaN, where y is so large that it stays there.
    const T large = sizeof(T) == 8 ? T(1e308) : T(9e37);
    for (uint64_t s : {uint64_t(0), sign})
        EXPECT_EQ(words_of<T>("fmod", to_even, number<T>(infinity | s), large)[0], quiet | sign);
}

// The caller's mode counts in ties of the vector path alone, and in the sign of its zeros. (Of x below y, where the
// quotient can round up to 1, the mode can reach the last place of the remainder.)
TYPED_TEST(Remainder, UnderAnyMode) {
    using T = TypeParam;
    rng r(41);
    auto all = telling_pairs<T>(r);
    pairs<T> p;
    for (int i = 0; i < 20000; i++) {
        const size_t at = r() % all.x.size();
        const T x = number<T>(all.x[at]), y = number<T>(all.y[at]);
        const T rest = std::fabs(std::remainder(x, y));
        if (rest != 0 && rest != std::fabs(y) - rest && std::fabs(x) >= std::fabs(y)) p.add(x, y);
    }
    for (auto base : {"fmod", "remainder", "remquo"}) {
        const subject s{find_row(library_rows(), member<T>(base), "default"), &library_under_test()};
        const auto expected = by_single_lanes(s, {p.x, p.y});
        for (uint32_t mode : {down, up, to_zero})
            EXPECT_EQ(by_single_lanes(s, {p.x, p.y}, mode), expected) << base << std::hex << mode;
        for (T x : {T(6), T(-6)})
            for (uint32_t mode : {to_even, up, to_zero, down})
                EXPECT_SAME(number<T>(words_of<T>(base, mode, x, T(3))[0]),
                            mode == down ? T(-0.0) : std::copysign(T(0), x))
                    << base << mode;
    }
    for (auto [mode, rest, quotient] :
         {std::tuple{to_even, 1, 2}, {down, 1, 2}, {up, -1, 3}, {to_zero, 1, 2}}) { // 5/2
        const auto w = words_of<T>("remquo", mode, T(5), T(2));
        EXPECT_EQ(number<T>(w[0]), rest);
        EXPECT_EQ((int32_t)w[1], quotient);
    }
    // A tie of the slow path stays to even.
    const T x = T(sizeof(T) == 8 ? 0x1p38 : 0x1p30) + T(0x1p7), y = T(0x1p8);
    for (uint32_t mode : {to_even, down, up, to_zero})
        EXPECT_EQ(number<T>(words_of<T>("remainder", mode, x, y)[0]), T(0x1p7));
}

} // namespace
