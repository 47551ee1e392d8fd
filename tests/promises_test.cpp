// Promises about what a call leaves behind: how far it goes down the stack, and which flags a quiet NaN raises.
#include "support.h"

#include <cmath>
#include <set>

using namespace orvane;

namespace {

// A thread's stack, painted below the call and looked at after it: every export, ordinary and special lanes alike.
class Stack : public testing::TestWithParam<subject> {};

constexpr size_t paint_bytes = 16384;
constexpr uint64_t paint = 0x5AFEC0DE5AFEC0DE;

// The bytes below the stack pointer at the call's entry that the call has written, the raw-register caller's own
// pattern (512 bytes) apart.
__attribute__((noinline)) size_t depth_of(lane_caller& call) {
    auto* here = (volatile uint64_t*)__builtin_frame_address(0);
    volatile uint64_t* low = here - (paint_bytes + 4096) / 8;
    for (volatile uint64_t* p = low; p < here - 64; p++) // above: this function's own frame
        *p = paint;
    call.call();
    const auto* top = (volatile uint64_t*)call.out.called_at - 1;
    for (volatile uint64_t* p = low; p < top; p++)
        if (*p != paint && *p != 0xA5A5A5A5A5A5A5A5) return (char*)top - (char*)p;
    return 0;
}

TEST_P(Stack, IsBelowTwoAndAQuarterKiB) {
    const subject s = GetParam();
    rng r(11);
    for (int w : widths) {
        auto call = s.caller(w);
        for (int pass = 0; pass < 24; pass++) {
            auto a = random_patterns(*s.row, stored_lanes(w), r);
            if (pass == 0) a = ordinary_arguments(*s.row, stored_lanes(w), r);
            if (pass == 1 && !s.row->special.empty()) a = special_arguments(*s.row, stored_lanes(w));
            call.place_arguments(a);
            EXPECT_LT(depth_of(call), 2304u) << "width " << w;
        }
    }
}
FOR_ALL_BUILT(Stack);

// Slow paths of circular functions and of hypot: a quiet NaN, alone or beside a number, raises no flag.
TEST(QuietNaN, RaisesNoFlagInSlowPathsOfCircularFunctionsAndHypot) {
    const std::set<std::string> bases = {"sin", "cos", "tan", "sincos", "sincosreg", "hypot"};
    int seen = 0;
    for (const auto& row : library_rows()) {
        if (!row.has_slow_path() || !bases.contains(row.base())) continue;
        for (int nan = 0; nan < row.arguments(); nan++) {
            std::vector<uint64_t> lane;
            bool floating = is_floating(row.argument(nan));
            for (int j = 0; j < row.arguments(); j++)
                lane.push_back(j == nan ? quiet_nan(row.argument(j)) : word_of(row.argument(j), 3));
            if (!floating) continue;
            seen++;
            __builtin_ia32_ldmxcsr(0x1F80);
            call_slow_path(library_under_test(), row, lane);
            EXPECT_EQ(__builtin_ia32_stmxcsr() & 0x3F, 0u) << row.slow_path_symbol() << " argument " << nan;
            __builtin_ia32_ldmxcsr(0x1F80);
        }
    }
    EXPECT_GT(seen, 10);
}

// What orvane.h says of the fast square root, which is a reciprocal estimate times its argument.
TEST(FastTiers, SpecialValuesOfTheSquareRoot) {
    for (double x : {0.0, -0.0, (double)INFINITY, -1.0})
        EXPECT_TRUE(std::isnan(value_for("sqrtf", "native", x))) << x;
    EXPECT_EQ(value_for("sqrtf", "native", 1e-40), INFINITY);
    for (double x : {0.0, -0.0, (double)INFINITY})
        EXPECT_EQ(value_for("sqrtf", "default", x), x);
}

} // namespace
