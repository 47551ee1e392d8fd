// Kinds of processors, told by what the two 12-bit estimate instructions return: the bits of some families depend on
// it.
#pragma once

#include <cstdint>
#include <string>

namespace orvane {

// A digest over the reciprocal and the reciprocal square root estimates of 2^14 numbers from [1, 4), as 16 digits.
const std::string& kind_of_processor();

// Does an operation on two NaN return the first, as the instruction set has it?
bool first_nan_wins();

// Mixes a word into a digest; a digest begins with 0.
constexpr uint64_t mixed(uint64_t digest, uint64_t word) {
    digest = (digest ^ word) * 0x9E3779B97F4A7C15 + 0x632BE59BD9B4E019;
    return digest ^ digest >> 29;
}

} // namespace orvane
