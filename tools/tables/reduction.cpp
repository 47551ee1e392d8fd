// Rows of bits of 1 / (2 pi), for the reduction of large arguments of the circular functions.
#include "table.h"

#include <gmp.h>

namespace orvane::tables {

namespace {

// Row e is floor(2^(e - below) / (2 pi)) mod 2^(3 word_bits), the most significant word first.
std::function<void(writer&)> rows(int count, int below, int word_bits) {
    return [=](writer& w) {
        mpfr_t inverse, scaled;
        mpfr_inits2(2400, inverse, scaled, (mpfr_ptr) nullptr); // the last row's integer has 1162 bits
        mpfr_const_pi(inverse, MPFR_RNDN);
        mpfr_mul_2si(inverse, inverse, 1, MPFR_RNDN);
        mpfr_ui_div(inverse, 1, inverse, MPFR_RNDN);
        mpz_t bits, word;
        mpz_inits(bits, word, nullptr);
        for (int e = 0; e < count; e++) {
            mpfr_mul_2si(scaled, inverse, e - below, MPFR_RNDN);
            mpfr_get_z(bits, scaled, MPFR_RNDD);
            for (int i = 2; i >= 0; i--) {
                mpz_fdiv_q_2exp(word, bits, i * word_bits);
                mpz_fdiv_r_2exp(word, word, word_bits);
                word_bits == 64 ? w.u64(mpz_get_ui(word)) : w.u32((uint32_t)mpz_get_ui(word));
            }
            w.end_row();
        }
        mpz_clears(bits, word, nullptr);
        mpfr_clears(inverse, scaled, (mpfr_ptr) nullptr);
    };
}

} // namespace

std::vector<table> reduction_tables() {
    return {
        {"trig/tables/reduction_f32.inc", rows(256, 54, 32)},
        {"trig/tables/reduction_f64.inc", rows(2048, 883, 64)},
    };
}

} // namespace orvane::tables
