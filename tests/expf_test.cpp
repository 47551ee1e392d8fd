// expf: values, errors and ends of its range in all tiers.
#include "accuracy.h"

#include <bit>
#include <cmath>

using namespace orvane;

namespace {

constexpr const char* tiers[] = {"default", "rm", "native", "half"};
// Measured over all ordinary floats, reached at -1.45238841 and at 84.9105301; the default kernel's formula has 4
// table entries, the native one a cubic alone.
constexpr double table_bound = 0.7494, polynomial_bound = 1775.9;

uint32_t one(const char* tier, uint32_t x) {
    sweep f("expf", tier, 1);
    return f({{x}})[0][0];
}
uint32_t one(const char* tier, float x) { return one(tier, std::bit_cast<uint32_t>(x)); }

TEST(Expf, ExactFigures) {
    for (auto tier : tiers) {
        SCOPED_TRACE(tier);
        for (uint32_t x : {0x00000000u, 0x80000000u, 0x00000001u, 0x80000001u, 0x007FFFFFu})
            EXPECT_EQ(one(tier, x), 0x3F800000u);
        EXPECT_EQ(one(tier, HUGE_VALF), 0x7F800000u);
        EXPECT_EQ(one(tier, -HUGE_VALF), 0u);
        EXPECT_EQ(one(tier, 1.0f), tier[0] == 'd' || tier[0] == 'r' ? 0x402DF854u : 0x402DF6E1u);
    }
}

// Overflow and underflow limits belong to the slow path, their neighbours outside to the kernel.
TEST(Expf, EndsOfTheRange) {
    for (auto tier : tiers) {
        SCOPED_TRACE(tier);
        EXPECT_EQ(one(tier, 0x42B17217u), 0x7F7FFF84u);
        EXPECT_EQ(one(tier, 0x42B17218u), 0x7F800000u);
        EXPECT_EQ(one(tier, 0xC2CFF1B4u), 0x00000001u);
        EXPECT_EQ(one(tier, 0xC2CFF1B5u), 0u);
        EXPECT_EQ(one(tier, 0x7F7FFFFFu), 0x7F800000u);
        EXPECT_EQ(one(tier, 0xFF7FFFFFu), 0u);
    }
    // At the ordinary limit the tiers still differ, one step beyond all of them give the slow path's answer.
    for (uint32_t sign : {0u, 0x80000000u}) {
        EXPECT_NE(one("default", 0x42AEAC4Fu | sign), one("native", 0x42AEAC4Fu | sign));
        EXPECT_EQ(one("default", 0x42AEAC50u | sign), one("native", 0x42AEAC50u | sign));
    }
}

TEST(Expf, NanKeepsSignAndPayload) {
    for (auto tier : tiers)
        for (uint32_t nan : {0x7FC00000u, 0xFFC12345u, 0x7F800001u, 0xFFABCDEFu})
            EXPECT_EQ(one(tier, nan), nan | 0x00400000u) << tier;
}

TEST(Expf, StatusCodes) {
    const kernel_row& row = *find_row(library_rows(), "expf", "default");
    auto status = [&](uint32_t x) { return call_slow_path(library_under_test(), row, {x}).status; };
    EXPECT_EQ(status(0x7FC00000), 0);
    EXPECT_EQ(status(0xFF800000), 0);
    EXPECT_EQ(status(0x42B17217), 0);
    EXPECT_EQ(status(0x42B17218), 3);
    EXPECT_EQ(status(0xC2AEAC4F), 0);
    EXPECT_EQ(status(0xC2AEAC50), 4);
    EXPECT_EQ(status(0xC2CFF1B4), 4);
    EXPECT_EQ(status(0xC2CFF1B5), 4);
}

words floats(uint32_t first, uint32_t last, uint32_t step) {
    words w;
    for (uint64_t x = first; x <= last; x += step)
        w.push_back(x);
    return w;
}

// Between the ordinary limit and the ends, where subnormal results too are rounded once.
TEST(Expf, SlowPathIsCorrectlyRounded) {
    truth t;
    for (auto [first, last] : {std::pair{0x42AEAC50u, 0x42B17217u}, {0xC2AEAC50u, 0xC2CFF1B4u}}) {
        sweep f("expf");
        const auto w = sampled_error(f, t, floats(first, last, 1), expl);
        expect_error("expf slow path", 0.5001, w);
    }
}

// Below 2^-31 every result is 1; from there to the ordinary limit, the largest error.
void errors(uint32_t step) {
    truth t;
    for (auto tier : {"default", "native"}) {
        sweep f("expf", tier);
        worst largest;
        for (uint32_t sign : {0u, 0x80000000u}) {
            for (uint64_t y : f({floats(sign, 0x30000000 | sign, 997 * step)})[0])
                ASSERT_EQ(y, 0x3F800000u);
            for (uint64_t from = 0x30000000; from <= 0x42AEAC4F; from += 1 << 20) {
                const auto to = std::min<uint64_t>(from + (1 << 20) - 1, 0x42AEAC4F);
                const auto w = sampled_error(f, t, floats(from | sign, to | sign, step), expl);
                if (w.ulps > largest.ulps) largest = w;
            }
        }
        expect_error(std::string("expf ") + tier, tier[0] == 'd' ? table_bound : polynomial_bound, largest);
    }
}
TEST(Expf, LargestError) { errors(601); }

TEST(Expf, LongEveryOrdinaryFloat) { errors(1); }

} // namespace
