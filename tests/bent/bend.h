// The estimates that the bent library puts in place of the processor's: anything the instruction set allows, a
// relative error of 1.5 * 2^-12, as the variable orvane_bend says.
#pragma once

namespace orvane {

enum class bend : int {
    exact,            // the quotient or root, rounded
    up,               // the largest allowed
    down,             // the smallest allowed
    either_end,       // one of these two, as the argument's bits fall
    anywhere,         // in between, as the argument's bits fall
    exact_for_powers, // either end, but exact for powers of two
};
inline constexpr bend bends[] = {bend::exact,      bend::up,       bend::down,
                                 bend::either_end, bend::anywhere, bend::exact_for_powers};

} // namespace orvane
