// Integer division: exact for every pair, and the results that no quotient gives.
#include "support.h"

using namespace orvane;

namespace {

template <class I> struct names;
template <> struct names<int32_t> {
    static constexpr const char *quotient = "idiv", *remainder = "irem", *both = "idivrem";
    static constexpr uint32_t of_zero = 0x80000000;
};
template <> struct names<uint32_t> {
    static constexpr const char *quotient = "udiv", *remainder = "urem", *both = "udivrem";
    static constexpr uint32_t of_zero = 0;
};

template <class I> std::pair<uint32_t, uint32_t> expected(I a, I b) {
    if (b == 0) return {names<I>::of_zero, (uint32_t)a};
    const int64_t q = (int64_t)a / (int64_t)b; // -2^31 / -1 does not overflow here; its low word is the result
    return {(uint32_t)q, (uint32_t)((int64_t)a - q * b)};
}

// Pairs where a quotient is whole or just below a whole number, powers of two with their neighbours, and any bits.
uint32_t operand(rng& r) {
    switch (r() % 4) {
    case 0:
        return (1u << r() % 32) + uint32_t(r() % 3) - 1;
    case 1:
        return uint32_t(r()) >> r() % 32;
    case 2:
        return -(uint32_t(r()) >> r() % 32);
    default:
        return r();
    }
}
template <class I> std::vector<words> pairs(size_t n, rng& r) {
    std::vector<words> a(2);
    for (size_t i = 0; i < n; i++) {
        uint32_t b = operand(r), x = operand(r);
        if (r() % 2) { // k b and its neighbours
            const uint32_t k = operand(r);
            x = k * b + uint32_t(r() % 3) - 1;
        }
        a[0].push_back(x), a[1].push_back(b);
    }
    return a;
}

template <class I> void exact(size_t pairs_to_try, uint64_t seed) {
    rng r(seed);
    sweep q(names<I>::quotient), m(names<I>::remainder), both(names<I>::both);
    for (size_t done = 0; done < pairs_to_try; done += 4096) {
        const auto a = pairs<I>(4096, r);
        const auto &x = q(a), &y = m(a), &z = both(a);
        for (size_t i = 0; i < 4096; i++) {
            const auto want = expected<I>((I)a[0][i], (I)a[1][i]);
            ASSERT_EQ(x[0][i], want.first) << (I)a[0][i] << " / " << (I)a[1][i];
            ASSERT_EQ(y[0][i], want.second) << (I)a[0][i] << " % " << (I)a[1][i];
            ASSERT_EQ(z[0][i], want.first);
            ASSERT_EQ(z[1][i], want.second);
        }
    }
}

TEST(IntDiv, ExactSigned) { exact<int32_t>(3'000'000, 14); }
TEST(IntDiv, ExactUnsigned) { exact<uint32_t>(3'000'000, 15); }
TEST(IntDiv, LongExactSigned) { exact<int32_t>(100'000'000, 16); }
TEST(IntDiv, LongExactUnsigned) { exact<uint32_t>(100'000'000, 17); }

// Every divisor of a small range against multiples at the top of the dividends, where a quotient is closest to whole.
TEST(IntDiv, WholeQuotientsAtTheTop) {
    sweep u("udiv"), s("idiv");
    std::vector<words> a(2);
    for (uint32_t b = 1; b < 200000; b++)
        for (uint32_t x : {0xFFFFFFFF / b * b, 0xFFFFFFFF / b * b - 1})
            a[0].push_back(x), a[1].push_back(b);
    const auto& q = u(a);
    for (size_t i = 0; i < a[0].size(); i++)
        ASSERT_EQ(q[0][i], a[0][i] / a[1][i]) << a[0][i] << " / " << a[1][i];
    for (auto& w : a[0])
        w >>= 1;
    const auto& p = s(a);
    for (size_t i = 0; i < a[0].size(); i++)
        ASSERT_EQ(p[0][i], a[0][i] / a[1][i]) << a[0][i] << " / " << a[1][i];
}

TEST(IntDiv, NoQuotient) {
    for (uint32_t a : {0u, 1u, 7u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
        auto one = [&](const char* f, uint32_t b) {
            sweep s(f, "default", 1);
            return s({{a}, {b}});
        };
        EXPECT_EQ(one("idiv", 0)[0][0], 0x80000000u);
        EXPECT_EQ(one("irem", 0)[0][0], a);
        EXPECT_EQ(one("udiv", 0)[0][0], 0u);
        EXPECT_EQ(one("urem", 0)[0][0], a);
        EXPECT_EQ(one("irem", 0xFFFFFFFF)[0][0], 0u);
    }
    sweep both("idivrem", "default", 1);
    EXPECT_EQ(both({{0x80000000}, {0xFFFFFFFF}}), (std::vector<words>{{0x80000000}, {0}}));
}

} // namespace
