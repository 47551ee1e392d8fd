// Lanes of independent scalar models (tests/data/lanes), and where the library disagrees with them.
#pragma once

#include "support.h"

namespace orvane {

struct model_lane {
    std::vector<uint64_t> arguments, results;
    bool fed_by_estimates = false; // counts on processors with the model's estimates alone
    int steps = 0;                 // how many numbers a result may lie beside the model's
};
struct model_lanes {
    std::string name;
    std::vector<std::string> tiers; // for which the lanes hold
    std::vector<model_lane> lanes;
};
// Throws with file and line if a file cannot be read.
const std::vector<model_lanes>& lanes_of_models();

// Has this processor the estimates of the models?
bool models_have_these_estimates();

// What is wrong with an export, a line for each lane that differs; nothing if it agrees.
std::vector<std::string> disagreements(const model_lanes& with, std::string_view tier, int width);

// Words as in the data.
std::string to_text(const std::vector<uint64_t>& words, const std::vector<lane_type>& types);

} // namespace orvane
