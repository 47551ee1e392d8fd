// Tables of the inverse trigonometric functions: arc tangents.
#include "table.h"

namespace orvane::tables {

std::vector<table> invtrig_tables() {
    return {
        {"invtrig/tables/atan_quarters.inc",
         [](writer& w) { // atan(k / 4)
             for (int k = 0; k < 32; k++)
                 w.f64(rounded_f64(atan(real(k) / 4))), w.end_row();
         }},
        {"invtrig/tables/atan_pairs.inc",
         [](writer& w) { // (hi, lo) of atan c, hi to 26 bits, c the centres of halves of [1, 2) 2^k from 1/8 on
             for (int i = 0; i < 114; i++) {
                 const real c = exp2(real((i >> 1) - 3)) * (real(1.25) + real(0.5) * (i & 1));
                 const real v = atan(c), hi = to_significant(v, 26);
                 w.f64(rounded_f64(hi)), w.f64(rounded_f64(v - hi)), w.end_row();
             }
         }},
    };
}

} // namespace orvane::tables
