// What fast tiers give for zeros, infinities, NaN, subnormal and negative arguments where the default tier gives
// something else.
#pragma once

#include "signature.h"

namespace orvane {

// Empty: what the default tier gives.
inline std::string_view special_values_of(const kernel_row& row) {
    static constexpr struct {
        std::string_view name, tier, text;
    } told[] = {
        {"sqrtf", "native", "NaN of +0, +Inf, -0; +Inf of positive subnormal numbers, negative subnormal numbers"},
    };
    for (const auto& t : told)
        if (t.name == row.name && t.tier == row.tier) return t.text;
    return "";
}

} // namespace orvane
