// Tables of the exponentials.
#include "table.h"

namespace orvane::tables {

std::vector<table> exp_tables() {
    return {
        {"exp/tables/exp2_64_relative.inc",
         [](writer& w) { // 2^(j/64): hi rounded, lo what is missing, relative to hi
             for (int j = 0; j < 64; j++) {
                 const real t = exp2(real(j) / 64);
                 const double hi = rounded_f64(t);
                 w.f64(hi), w.f64(rounded_f64(t / hi - 1)), w.end_row();
             }
         }},
    };
}

} // namespace orvane::tables
