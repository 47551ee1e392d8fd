// Tables of the exponentials: 2^(j/N) in hi and lo parts.
#include "table.h"

#include <bit>

namespace orvane::tables {

namespace {

real power(int j, int n) { return exp2(real(j) / n); }

// hi rounded; lo the rest.
template <class T> auto pairs(int n) {
    return [n](writer& w) {
        for (int j = 0; j < n; j++) {
            const real t = power(j, n);
            if constexpr (sizeof(T) == 8) w.f64(rounded_f64(t)), w.f64(rounded_f64(t - rounded_f64(t)));
            else w.f32(rounded_f32(t)), w.f32(rounded_f32(t - real(rounded_f32(t))));
            w.end_row();
        }
    };
}

double fraction_field(double x) { return std::bit_cast<double>(std::bit_cast<uint64_t>(x) & 0x000FFFFFFFFFFFFF); }
float fraction_field(float x) { return std::bit_cast<float>(std::bit_cast<uint32_t>(x) & 0x007FFFFF); }

} // namespace

std::vector<table> exp_tables() {
    return {
        {"exp/tables/exp2_64_relative.inc",
         [](writer& w) { // hi rounded; lo the rest, relative to hi
             for (int j = 0; j < 64; j++) {
                 const real t = power(j, 64);
                 const double hi = rounded_f64(t);
                 w.f64(hi), w.f64(rounded_f64(t / hi - 1)), w.end_row();
             }
         }},
        {"exp/tables/exp2_64_pairs.inc", pairs<double>(64)},
        {"exp/tables/exp2_128_pairs.inc", pairs<double>(128)},
        {"exp/tables/exp2f_64_pairs.inc", pairs<float>(64)},
        {"exp/tables/exp2f_128_pairs.inc", pairs<float>(128)},
        {"exp/tables/exp2_128_single.inc",
         [](writer& w) {
             for (int j = 0; j < 128; j++)
                 w.f64(rounded_f64(power(j, 128))), w.end_row();
         }},
        {"exp/tables/exp2_128_split.inc",
         [](writer& w) { // hi the nearest multiple of 2^-25, kept as its fraction field; lo the rest
             for (int j = 0; j < 128; j++) {
                 const real t = power(j, 128), hi = to_multiple(t, -25);
                 w.f64(fraction_field(rounded_f64(hi))), w.f64(rounded_f64(t - hi)), w.end_row();
             }
         }},
        {"exp/tables/exp2f_64_split.inc",
         [](writer& w) { // the same with multiples of 2^-11
             for (int j = 0; j < 64; j++) {
                 const real t = power(j, 64), hi = to_multiple(t, -11);
                 w.f32(fraction_field(rounded_f32(hi))), w.f32(rounded_f32(t - hi)), w.end_row();
             }
         }},
        {"exp/tables/exp2_128_significands.inc",
         [](writer& w) {
             for (int j = 0; j < 128; j++)
                 w.f64(fraction_field(rounded_f64(power(j, 128)))), w.end_row();
         }},
        {"exp/tables/exp2f_32_significands.inc",
         [](writer& w) {
             for (int j = 0; j < 32; j++)
                 w.f32(fraction_field(rounded_f32(power(j, 32)))), w.end_row();
         }},
    };
}

} // namespace orvane::tables
