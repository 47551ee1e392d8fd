// Tables of the slow paths of atan2 and atan2pi.
#pragma once

#include "frame/rare.h"

namespace orvane {

struct atan2_table {
    hi_lo<double> atan_pairs[114]; // atan of the centres 1.25 and 1.75 times 2^k, k from -3 on
    double at_p[7];                // (atan z - z) / z in powers of z^2, lowest first
    double eighth, one, two;
    hi_lo<double> quarter_pi, half_pi, pi, three_quarter_pi;
    double minus_one, zero, huge, tiny, split;
};
// 1 / pi in two parts, and powers of two that keep products with the second part from underflow.
struct datan2pi_table {
    atan2_table common;
    double ip_hi, ip_lo, up, down, far_down;
};
struct satan2pi_table {
    atan2_table common;
    double inv_pi;
};
static_assert(sizeof(atan2_table) == 2008);

ORVANE_TABLE(atan2_table, __datan2_g_CoutTab, 1);
ORVANE_TABLE(datan2pi_table, __datan2pi_g_CoutTab, 1);
ORVANE_TABLE(satan2pi_table, __satan2pi_g_CoutTab, 1);

} // namespace orvane
