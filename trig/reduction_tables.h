// The bits of 1 / (2 pi) by which large arguments are reduced: one row per exponent field, from which the product
// with the significand gives the fraction of a turn, words from the most significant one down.
#pragma once

#include "frame/rare.h"

namespace orvane {

// Row e is floor(2^(e - 54) / (2 pi)) mod 2^96: M * row / 2^96 = x / (2 pi) mod 1 for x = M 2^(e - 150).
struct reduction_row_f32 {
    uint32_t w[3];
};
ORVANE_TABLE(reduction_row_f32, __orvane_stan_reduction_data, 256);

// Row e is floor(2^(e - 883) / (2 pi)) mod 2^192: M * row / 2^192 = x / (2 pi) mod 1 for x = M 2^(e - 1075).
struct reduction_row_f64 {
    uint64_t w[3];
};
ORVANE_TABLE(reduction_row_f64, __orvane_dtan_reduction_data, 2048);

// What the scalar reduction of slow paths reads: signs, pi/4 in parts and 4 / pi in pieces.
struct scalar_reduction_table {
    double parity[2]; // added to a fraction by the parity of its octant
    double sign[2];   // of a result, by the sign of x
    double splitter;  // 1.5 * 2^26
    double unread_5;
    double pio4_a, pio4_b; // pi/4 in two parts
    double four_over_pi;
    double unread_9;
    double pm[4]; // pi/4 in four parts, below 2^23
    double pu[5]; // pi/4 in five parts, below 2^30
    double unread_19;
    double zero_piece;
    double piece[49]; // group k of 25 bits of 4 / pi, times 2^200
};
ORVANE_TABLE(scalar_reduction_table, __dsin_g_ReductionTab, 1);

} // namespace orvane
