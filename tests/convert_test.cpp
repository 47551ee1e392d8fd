// Conversions against their mathematical meaning: floating to integer by exact integer arithmetic on the pattern,
// integer to floating and double to float by MPFR with the rounding of the name.
#include "support.h"

#include <bit>
#include <cmath>
#include <limits>
#include <mpfr.h>

using namespace orvane;

namespace {

enum mode { rte, rtn, rtp, rtz };
struct conversion_row {
    const kernel_row* row;
    mode rounding;
    bool saturating;
};
// The conversions from lanes of any of the types in `from`.
std::vector<conversion_row> conversions_from(std::initializer_list<lane_type> from, bool to_floating) {
    std::vector<conversion_row> found;
    for (const auto& row : library_rows()) {
        if (row.sclass != signature_class::conversion || is_floating(row.out) != to_floating) continue;
        if (std::find(from.begin(), from.end(), row.in) == from.end()) continue;
        for (auto [name, m] : {std::pair{"rte", rte}, {"rtn", rtn}, {"rtp", rtp}, {"rtz", rtz}})
            if (row.name.find(name) != row.name.npos)
                found.push_back({&row, m, row.name.find("nosat") == row.name.npos});
    }
    return found;
}

uint64_t low_bits(int n) { return ~uint64_t(0) >> (64 - n); }
template <class T> uint64_t word(T x) {
    return std::bit_cast<std::conditional_t<sizeof(T) == 4, uint32_t, uint64_t>>(x);
}

// The number of a floating pattern, rounded to an integer: exact below 2^100, above that 2^100.
using wide = __int128;
struct rounded_value {
    bool nan;
    wide integer;
};
rounded_value rounded(lane_type t, uint64_t pattern, mode m) {
    const int fraction = size_of(t) == 8 ? 52 : 23, top = 8 * size_of(t) - 1;
    const bool negative = pattern >> top & 1;
    const uint64_t field = pattern & low_bits(fraction);
    const int exponent = int(pattern >> fraction & low_bits(top - fraction)), largest = int(low_bits(top - fraction));
    if (exponent == largest && field) return {true, 0};
    const uint64_t significand = exponent ? field | 1ull << fraction : field;
    const int scale = std::max(exponent, 1) - largest / 2 - fraction; // the number is significand * 2^scale
    wide whole;
    if (scale >= 0) whole = exponent == largest || scale > 100 - 53 ? wide(1) << 100 : wide(significand) << scale;
    else {
        const int cut = std::min(-scale, 63);
        whole = significand >> cut;
        const uint64_t rest = significand & low_bits(cut), half = 1ull << (cut - 1);
        const bool away = m == rte ? rest > half || (rest == half && whole % 2)
                                   : rest && ((m == rtn && negative) || (m == rtp && !negative));
        whole += away;
    }
    return {false, negative ? -whole : whole};
}

uint64_t expected_integer(const conversion_row& c, uint64_t pattern) {
    const bool is_signed = c.row->out == lane_type::i32 || c.row->out == lane_type::i64;
    const int bits = 8 * size_of(c.row->out);
    const wide lowest = is_signed ? -(wide(1) << (bits - 1)) : 0;
    const wide highest = (wide(1) << (is_signed ? bits - 1 : bits)) - 1;
    auto [nan, r] = rounded(c.row->in, pattern, c.rounding);
    if (c.saturating) r = nan ? 0 : std::clamp(r, lowest, highest);
    else {
        if (!is_signed && r < 0) r = -r; // the magnitude
        if (nan || r < lowest || r > highest) r = wide(1) << (bits - 1);
    }
    return uint64_t(r) & low_bits(bits);
}

// Every power of two with its neighbours, halves around it, quarters of small numbers, zeros, infinities and NaN, of
// both signs; then patterns at random, half of them with the exponents of integers.
template <class T> words telling_floats(rng& r, int random) {
    using limits = std::numeric_limits<T>;
    words x;
    auto both_signs = [&](T v) { x.push_back(word(v)), x.push_back(word(-v)); };
    for (int e = limits::min_exponent - limits::digits; e < limits::max_exponent; e++) {
        const T p = std::ldexp(T(1), e);
        for (T below = p, above = p; std::abs(int64_t(word(above) - word(p))) < 3;
             below = std::nextafter(below, T(0)), above = std::nextafter(above, limits::infinity()))
            both_signs(below), both_signs(above);
        for (T d : {T(0.25), T(0.4), T(0.5), T(0.6), T(1), T(1.5), T(2), T(2.5)})
            both_signs(p - d), both_signs(p + d);
    }
    for (int i = 0; i < 400; i++)
        both_signs(T(i) / 4), both_signs(std::nextafter(T(i) / 2, T(0))),
            both_signs(std::nextafter(T(i) / 2, T(1e9)));
    for (T v : {limits::infinity(), limits::max(), limits::quiet_NaN()})
        both_signs(v);
    x.push_back(word(limits::infinity()) + 1); // signalling
    x.push_back(low_bits(8 * sizeof(T)));
    for (int i = 0; i < random; i++) {
        const uint64_t w = r() & low_bits(8 * sizeof(T));
        const T fraction = std::bit_cast<T>(
            std::conditional_t<sizeof(T) == 4, uint32_t, uint64_t>((w & low_bits(limits::digits - 1)) | word(T(1))));
        x.push_back(w);
        both_signs(std::ldexp(fraction, int(r() % 70) - 3));
    }
    return x;
}
words telling_floats(lane_type t, rng& r, int random) {
    return t == lane_type::f64 ? telling_floats<double>(r, random) : telling_floats<float>(r, random);
}

void expect_integers(const conversion_row& c, const words& x, const words& y) {
    for (size_t i = 0; i < x.size(); i++)
        ASSERT_EQ(y[i], expected_integer(c, x[i])) << c.row->name << " of 0x" << std::hex << x[i];
}

TEST(Convert, FloatingToInteger) {
    rng r(20);
    const auto families = conversions_from({lane_type::f64, lane_type::f32}, false);
    ASSERT_EQ(families.size(), 64u);
    for (const auto& c : families) {
        const words x = telling_floats(c.row->in, r, 3000);
        expect_integers(c, x, sweep(c.row->name)({x})[0]);
    }
}

// A few results in numbers.
TEST(Convert, FloatingToIntegerInNumbers) {
    auto of = [](const char* name, double x) {
        const kernel_row* row = find_row(library_rows(), name, "default");
        return sweep(name)({{row->in == lane_type::f64 ? word(x) : word(float(x))}})[0][0];
    };
    const double nan = std::nan("");
    EXPECT_EQ(of("cvtfptou32rtznosat", -3.7), 3u);
    EXPECT_EQ(of("cvtfptou32rtnnosat", -3.7), 4u);
    EXPECT_EQ(of("cvtfptou32rtenosat", -3e9), 3000000000u);
    EXPECT_EQ(of("cvtfptou32rtenosatf", 3e9), 3000000000u);
    EXPECT_EQ(of("cvtfptou32rtesat", 4294967295.4), 0xFFFFFFFFu);
    EXPECT_EQ(of("cvtfptou32rtpsat", -0.4), 0u);
    EXPECT_EQ(of("cvtfptoi32rtesat", 2147483647.5), 0x7FFFFFFFu);
    EXPECT_EQ(of("cvtfptoi32rtenosat", 2147483647.4), 0x7FFFFFFFu);
    EXPECT_EQ(of("cvtfptoi32rtenosat", 2147483647.5), 0x80000000u);
    EXPECT_EQ(of("cvtfptoi64rtesat", 0x1p63 - 1024), 0x7FFFFFFFFFFFFC00u);
    EXPECT_EQ(of("cvtfptoi64rtesat", 0x1p63), 0x7FFFFFFFFFFFFFFFu);
    EXPECT_EQ(of("cvtfptoi64rtznosatf", -0x1p63), 0x8000000000000000u);
    EXPECT_EQ(of("cvtfptou64rtznosat", nan), 0x8000000000000000u);
    EXPECT_EQ(of("cvtfptou64rtzsatf", nan), 0u);
    EXPECT_EQ(of("cvtfptou64rtenosatf", -0x1p40), 0x1p40);
}

// Integer sources: powers of two with their neighbours and their multiples by significands of every length around the
// two targets' precisions (ties among them), and random ones of every length.
words telling_integers(lane_type t, rng& r, int random) {
    const int bits = 8 * size_of(t);
    words x = {0};
    auto add = [&](uint64_t v) { x.push_back(v & low_bits(bits)), x.push_back(-v & low_bits(bits)); };
    for (int e = 0; e < bits; e++)
        for (int64_t d = -3; d <= 3; d++)
            add((1ull << e) + d);
    for (int e = 0; e < bits; e++)
        for (int f = 0; f < e; f++)
            for (int64_t d = -1; d <= 1; d++) {
                add((1ull << e) + (1ull << f) + d), add((1ull << e) - (1ull << f) + d);
                const uint64_t odd = r() | 1; // a tie where f is half a unit in the last place, and next to it
                add(((1ull << e | (odd & low_bits(e - f)) << f) | 1ull << f) + d);
            }
    for (int i = 0; i < random; i++)
        add(r() >> (64 - bits) >> (r() % bits));
    return x;
}

class floats {
public:
    explicit floats(lane_type t) : t(t) { mpfr_init2(v, t == lane_type::f64 ? 53 : 24); }
    ~floats() { mpfr_clear(v); }
    floats(const floats&) = delete;
    uint64_t of_integer(lane_type from, uint64_t w, mode m) {
        if (from == lane_type::i32) mpfr_set_si(v, int32_t(w), of[m]);
        else if (from == lane_type::i64) mpfr_set_si(v, int64_t(w), of[m]);
        else mpfr_set_ui(v, w, of[m]);
        if (mpfr_zero_p(v)) return 0;
        return t == lane_type::f64 ? word(mpfr_get_d(v, MPFR_RNDN)) : word(mpfr_get_flt(v, MPFR_RNDN));
    }
    uint64_t of_double(uint64_t w, mode m) {
        const double x = std::bit_cast<double>(w);
        if (x != x) return (w >> 32 & 0x80000000) | 0x7FC00000 | (w >> 29 & 0x3FFFFF); // sign, top of the payload
        mpfr_set_d(v, x, MPFR_RNDN);
        return word(mpfr_get_flt(v, of[m]));
    }

private:
    static constexpr mpfr_rnd_t of[] = {MPFR_RNDN, MPFR_RNDD, MPFR_RNDU, MPFR_RNDZ};
    lane_type t;
    mpfr_t v;
};

TEST(Convert, IntegerToFloating) {
    rng r(21);
    const auto families = conversions_from({lane_type::i32, lane_type::u32, lane_type::i64, lane_type::u64}, true);
    ASSERT_EQ(families.size(), 32u);
    for (const auto& c : families) {
        floats expected(c.row->out);
        words x = telling_integers(c.row->in, r, 20000);
        // Ties: the upper two pieces lie halfway between two floats, and the low piece is zero or not.
        if (size_of(c.row->in) == 8)
            for (int i = 0; i < 20000; i++) {
                const int e = 46 + int(r() % 18);
                uint64_t v = (1ull << e | (r() & low_bits(e))) & ~low_bits(e - 23) & ~0ull << 23;
                v |= 1ull << (e - 24);
                if (r() % 4) v |= r() & low_bits(23) & ~0ull << (r() % 23);
                x.push_back(r() & 1 ? v : -v);
            }
        sweep f(c.row->name);
        const auto& y = f({x})[0];
        for (size_t i = 0; i < x.size(); i++)
            ASSERT_EQ(y[i], expected.of_integer(c.row->in, x[i], c.rounding))
                << c.row->name << " of 0x" << std::hex << x[i];
    }
}

TEST(Convert, DoubleToFloat) {
    rng r(22);
    const auto families = conversions_from({lane_type::f64}, true);
    ASSERT_EQ(families.size(), 4u);
    words x = telling_floats(lane_type::f64, r, 20000);
    // Floats, halves between them, and the doubles beside both; past the largest finite float as well.
    auto around = [&](uint32_t pattern) {
        const double a = std::bit_cast<float>(pattern), b = std::bit_cast<float>(pattern + 1);
        for (double v : {a, std::isinf(b) ? std::copysign(0x1.ffffffp127, b) : (a + b) / 2})
            for (int64_t d = -1; d <= 1; d++)
                x.push_back(word(v) + d);
    };
    for (uint32_t sign : {0u, 0x80000000u}) {
        for (uint32_t e = 0; e < 255; e++)
            for (uint32_t f : {0u, 1u, 2u, 0x7FFFFEu, 0x7FFFFFu})
                around(sign | e << 23 | f);
        for (int i = 0; i < 20000; i++)
            around(sign | uint32_t(r() % 0x7F800000));
    }
    for (const auto& c : families) {
        floats expected(lane_type::f64);
        sweep f(c.row->name);
        const auto& y = f({x})[0];
        for (size_t i = 0; i < x.size(); i++)
            ASSERT_EQ(y[i], expected.of_double(x[i], c.rounding)) << c.row->name << " of 0x" << std::hex << x[i];
    }
}

// Floating to integer rounds by the name alone, whatever mode the caller is in.
TEST(Convert, FloatingToIntegerUnderAnyMode) {
    rng r(23);
    for (const auto& c : conversions_from({lane_type::f64, lane_type::f32}, false)) {
        words x = telling_floats(c.row->in, r, 100);
        std::shuffle(x.begin(), x.end(), r);
        x.resize(500);
        for (uint32_t mxcsr : {0x3F80u, 0x5F80u, 0x7F80u})
            expect_integers(c, x, by_single_lanes({c.row, &library_under_test()}, {x}, mxcsr)[0]);
    }
}

// A case a family, so that shards can share them.
class LongEveryFloat : public testing::TestWithParam<conversion_row> {};
TEST_P(LongEveryFloat, ToInteger) {
    const conversion_row& c = GetParam();
    words x(1 << 16);
    sweep f(c.row->name, "default", 16);
    for (uint64_t first = 0; first < 1ull << 32; first += x.size()) {
        for (size_t i = 0; i < x.size(); i++)
            x[i] = first + i;
        const words& y = f({x})[0];
        bool same = true; // one assertion per lane would take as long as the lane
        for (size_t i = 0; i < x.size(); i++)
            same &= y[i] == expected_integer(c, x[i]);
        if (!same) return expect_integers(c, x, y);
    }
}
INSTANTIATE_TEST_SUITE_P(Convert, LongEveryFloat, testing::ValuesIn(conversions_from({lane_type::f32}, false)),
                         [](const auto& info) { return std::string(info.param.row->name); });

} // namespace
