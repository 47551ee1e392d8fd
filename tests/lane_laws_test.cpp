// The lane laws of every export: each width gives a lane the bits that width 1 gives it, whatever stands in the
// other lanes, and twins are one function.
#include "support.h"

using namespace orvane;

namespace {

class LaneLaws : public testing::TestWithParam<subject> {};

// Any bit pattern in any lane, special ones beside ordinary ones: nothing faults and no lane sees another.
TEST_P(LaneLaws, EveryWidthAgreesWithWidthOne) {
    const subject s = GetParam();
    rng r(6);
    for (int w : widths) {
        auto call = s.caller(w);
        for (int pass = 0; pass < 400; pass++) {
            auto a = random_patterns(*s.row, stored_lanes(w), r);
            if (pass % 2) { // half of the lanes ordinary
                const auto b = ordinary_arguments(*s.row, stored_lanes(w), r);
                for (int i = 0; i < stored_lanes(w); i++)
                    if (r() & 1)
                        for (size_t j = 0; j < a.size(); j++)
                            a[j][i] = b[j][i];
            }
            for (auto& v : call.in.vector)
                for (auto& byte : v)
                    byte = r(); // garbage above W
            for (auto& g : call.in.integer)
                g = r();
            std::vector<words> got;
            call(a, got);
            const auto want = by_single_lanes(s, a);
            for (size_t j = 0; j < got.size(); j++)
                for (int i = 0; i < w; i++)
                    ASSERT_EQ(got[j][i], want[j][i])
                        << std::hex << "width " << w << " lane " << i << " result " << j << " of " << a[0][i];
        }
    }
}

// What stands above the lanes of a register that they only partly fill leaves no trace: not in the lanes, for which
// the test above takes width 1 as its measure, and not in the sticky flags.
TEST_P(LaneLaws, GarbageAboveALaneHasNoEffect) {
    const subject s = GetParam();
    rng r(7);
    for (int w : {1, 2, 3}) {
        auto call = s.caller(w);
        for (int pass = 0; pass < 200; pass++) {
            const auto a = pass % 2 ? random_patterns(*s.row, w, r) : ordinary_arguments(*s.row, w, r);
            std::vector<words> results[2];
            uint32_t flags[2];
            for (int k = 0; k < 2; k++) {
                for (auto& v : call.in.vector)
                    for (auto& byte : v)
                        byte = r();
                call(a, results[k]);
                flags[k] = call.out.mxcsr & 0x3F;
                for (auto& lanes : results[k])
                    lanes.resize(w); // without the spare lane
            }
            ASSERT_EQ(results[0], results[1]) << std::hex << "width " << w << ", " << a[0][0];
            ASSERT_EQ(flags[0], flags[1]) << std::hex << "flags at width " << w << ", " << a[0][0];
        }
    }
}

TEST_P(LaneLaws, TwinsAreOneFunction) {
    const subject s = GetParam();
    if (s.row->twin_name.empty()) return;
    const kernel_row* of = find_row(library_rows(), s.row->twin_name, s.row->twin_tier);
    ASSERT_NE(of, nullptr);
    for (int w : widths)
        EXPECT_EQ(s.in->address(plan_of(*s.row, w).symbol), s.in->address(plan_of(*of, w).symbol)) << "width " << w;
}

FOR_ALL_BUILT(LaneLaws);

} // namespace
