// The bits of 1 / (2 pi) by which large arguments are reduced: one row an exponent field, from which the product with
// the significand gives the fraction of a turn, words from the most significant one down.
#pragma once

#include "frame/rare.h"

namespace orvane {

// Row e is floor(2^(e - 54) / (2 pi)) mod 2^96: M * row / 2^96 = x / (2 pi) mod 1 for x = M 2^(e - 150).
struct reduction_row_f32 { uint32_t w[3]; };
ORVANE_TABLE(reduction_row_f32, __orvane_stan_reduction_data, 256);

// Row e is floor(2^(e - 883) / (2 pi)) mod 2^192: M * row / 2^192 = x / (2 pi) mod 1 for x = M 2^(e - 1075).
struct reduction_row_f64 { uint64_t w[3]; };
ORVANE_TABLE(reduction_row_f64, __orvane_dtan_reduction_data, 2048);

} // namespace orvane
