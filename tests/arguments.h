// Arguments by rule, the same on every machine: what digests are taken over.
#pragma once

#include "support.h"

#include <set>

namespace orvane {

// Arguments of one rule: [argument][lane].
struct rule {
    std::string name;
    std::vector<words> arguments;
};

// The rule of lanes with two NaN, of which an operation of the processor returns the first; some emulators another.
inline constexpr auto two_nans = "two NaN";

// Replicated constants of a kernel's blocks; limits are among them.
struct block_constants {
    std::set<uint64_t> wide;   // of eight bytes
    std::set<uint32_t> narrow; // of four
};

// Some twenty thousand lanes: ordinary ranges, all exponents, leading bits, grids and the edges between them (so that
// every entry of a table is used), constants of the blocks and their neighbours, what is special to the functions of
// the library, subnormals, specials, any patterns; for several arguments pairs of these.
std::vector<rule> arguments_by_rule(const kernel_row& row, const block_constants& constants);

} // namespace orvane
