// Promises about what a call leaves behind: how far it goes down the stack, and which flags a quiet NaN raises.
#include "support.h"

#include <cmath>

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

// Slow paths: a quiet NaN, alone or beside a number, raises no flag.
TEST(QuietNaN, RaisesNoFlagInSlowPaths) {
    int seen = 0;
    for (const auto& row : library_rows()) {
        if (!row.has_slow_path() || row.base() == "atan") continue; // the vector path of atan does NaN itself
        auto values = [&](int j) {
            const lane_type t = row.argument(j);
            if (!is_floating(t)) return words{0, 1, 2, 3, 0xFFFFFFFF, 0xFFFFFFFE, 0x7FFFFFFF, 0x80000000};
            words w{quiet_nan(t), quiet_nan(t, true), quiet_nan(t) + 0x1234};
            for (double x : {0.0, 1.0, 3.0, 2.5, 1e-310, 1e-40, 1e300, (double)INFINITY})
                w.push_back(word_of(t, x)), w.push_back(word_of(t, -x));
            return w;
        };
        for (uint64_t x : values(0))
            for (uint64_t y : row.arguments() > 1 ? values(1) : words{0}) {
                auto is_nan = [&](int j, uint64_t w) {
                    return is_floating(row.argument(j)) && std::isnan(value_of(row.argument(j), w));
                };
                if (!is_nan(0, x) && !(row.arguments() > 1 && is_nan(1, y))) continue;
                seen++;
                const auto lane = row.arguments() > 1 ? words{x, y} : words{x};
                __builtin_ia32_ldmxcsr(0x1F80);
                call_slow_path(library_under_test(), row, lane);
                const unsigned raised =
                    __builtin_ia32_stmxcsr() & 0x3D; // a subnormal beside it may tell that it is one
                __builtin_ia32_ldmxcsr(0x1F80);
                EXPECT_EQ(raised, 0u) << row.slow_path_symbol() << std::hex << " of " << x << " " << y;
            }
    }
    EXPECT_GT(seen, 1000);
}

} // namespace
