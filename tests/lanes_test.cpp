// Every kernel at every width against lanes of independent scalar models: all pairs, tiers and paths. A fused
// operation that is none, or operands swapped, show here, where an error bound would let them pass.
#include "lanes.h"

#include <set>

using namespace orvane;

namespace {

TEST(ModelLanes, HoldAtEveryWidth) {
    std::string set_aside;
    for (const auto& m : lanes_of_models()) {
        int lanes = 0;
        for (const auto& lane : m.lanes)
            lanes += lane.fed_by_estimates;
        if (lanes) set_aside += " " + m.name + " (" + m.tiers[0] + ") " + std::to_string(lanes);
        for (const auto& tier : m.tiers)
            for (int width : widths)
                for (const auto& line : disagreements(m, tier, width))
                    ADD_FAILURE() << line;
    }
    if (!models_have_these_estimates())
        printf("lanes set aside, since the model's processor has other estimates:%s\n", set_aside.c_str());
}

// Every kernel has its lanes.
TEST(ModelLanes, AreThereForEveryPair) {
    std::set<std::string> there;
    for (const auto& m : lanes_of_models()) {
        EXPECT_GE(m.lanes.size(), 150u) << m.name;
        for (const auto& tier : m.tiers)
            EXPECT_TRUE(there.insert(m.name + " " + tier).second) << m.name << " " << tier << " twice";
    }
    for (const auto& row : library_rows())
        EXPECT_TRUE(there.contains(std::string(row.name) + " " + std::string(row.tier))) << row.name << row.suffix();
}

} // namespace
