// The lane laws of every built export: each width gives a lane the bits that width 1 gives it, whatever stands in the
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

// Width 1 against itself with other garbage around it, which the test above takes as its measure.
TEST_P(LaneLaws, GarbageAboveALaneHasNoEffect) {
    const subject s = GetParam();
    rng r(7);
    auto call = s.caller(1);
    for (int pass = 0; pass < 200; pass++) {
        const auto a = random_patterns(*s.row, 1, r);
        std::vector<words> first, second;
        for (auto* result : {&first, &second}) {
            for (auto& v : call.in.vector)
                for (auto& byte : v)
                    byte = r();
            call(a, *result);
        }
        ASSERT_EQ(first, second) << std::hex << a[0][0];
    }
}

TEST_P(LaneLaws, TwinsAreOneFunction) {
    const subject s = GetParam();
    if (s.row->twin_name.empty()) return;
    const kernel_row* of = find_row(library_rows(), s.row->twin_name, s.row->twin_tier);
    ASSERT_NE(of, nullptr);
    ASSERT_TRUE(of->built);
    for (int w : widths)
        EXPECT_EQ(s.in->address(plan_of(*s.row, w).symbol), s.in->address(plan_of(*of, w).symbol)) << "width " << w;
}

FOR_ALL_BUILT(LaneLaws);

} // namespace
