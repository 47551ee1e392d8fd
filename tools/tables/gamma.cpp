// Tables of the logarithms inside lgamma, over the reciprocals of the logarithms' slow paths.
#include "table.h"

#include <bit>

namespace orvane::tables {

std::vector<table> gamma_tables() {
    return {
        {"special/tables/log_256.inc",
         [](writer& w) { // (lo, hi): -ln of these reciprocals, hi a double with its low 32 bits clear
             for (int i = 0; i < 256; i++) {
                 const real v = real(0) - log(reciprocal_256(i));
                 const auto head = std::bit_cast<uint64_t>(rounded_f64(v)) & 0xFFFFFFFF00000000;
                 const double hi = std::bit_cast<double>(head);
                 w.f64(rounded_f64(v - hi)), w.f64(hi), w.end_row();
             }
         }},
        {"special/tables/logl_256.inc",
         [](writer& w) { // (hi, lo): the same, hi to 40 bits
             for (int i = 0; i < 256; i++) {
                 const real v = real(0) - log(reciprocal_256(i)), hi = to_significant(v, 40);
                 w.f64(rounded_f64(hi)), w.f64(rounded_f64(v - hi)), w.end_row();
             }
         }},
    };
}

} // namespace orvane::tables
