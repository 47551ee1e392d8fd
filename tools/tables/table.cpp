#include "table.h"

#include <bit>
#include <cstdio>

namespace orvane::tables {

namespace {

// mpfr_subnormalize needs the exponent range of the target: it then rounds once, also below the normal range.
template <class Round> double in_range(mpfr_exp_t emin, mpfr_exp_t emax, mpfr_prec_t bits, Round round) {
    const mpfr_exp_t kept_min = mpfr_get_emin(), kept_max = mpfr_get_emax();
    mpfr_t r;
    mpfr_init2(r, bits);
    mpfr_set_emin(emin);
    mpfr_set_emax(emax);
    const int inexact = round(r);
    mpfr_subnormalize(r, inexact, MPFR_RNDN);
    const double d = mpfr_get_d(r, MPFR_RNDN);
    mpfr_set_emin(kept_min);
    mpfr_set_emax(kept_max);
    mpfr_clear(r);
    return d;
}

real multiple(const real& x, int exponent, mpfr_rnd_t mode) {
    real r = x;
    mpfr_mul_2si(r.get(), r.get(), -exponent, MPFR_RNDN);
    mpfr_rint(r.get(), r.get(), mode);
    mpfr_mul_2si(r.get(), r.get(), exponent, MPFR_RNDN);
    return r;
}

real significant(const real& x, int bits, mpfr_rnd_t mode) {
    real r = x;
    mpfr_prec_round(r.get(), bits, mode);
    mpfr_prec_round(r.get(), real::precision, MPFR_RNDN);
    return r;
}

} // namespace

double rounded_f64(const real& x) {
    return in_range(-1073, 1024, 53, [&](mpfr_ptr r) { return mpfr_set(r, x.get(), MPFR_RNDN); });
}
float rounded_f32(const real& x) {
    return (float)in_range(-148, 128, 24, [&](mpfr_ptr r) { return mpfr_set(r, x.get(), MPFR_RNDN); });
}
real to_multiple(const real& x, int exponent) { return multiple(x, exponent, MPFR_RNDN); }
real cut_to_multiple(const real& x, int exponent) { return multiple(x, exponent, MPFR_RNDZ); }
real to_significant(const real& x, int bits) { return significant(x, bits, MPFR_RNDN); }
real cut_to_significant(const real& x, int bits) { return significant(x, bits, MPFR_RNDZ); }

void writer::u64(uint64_t x) {
    char s[32];
    snprintf(s, sizeof s, "0x%016llX, ", (unsigned long long)x);
    text += s;
}
void writer::u32(uint32_t x) {
    char s[32];
    snprintf(s, sizeof s, "0x%08X, ", x);
    text += s;
}
void writer::f64(double x) {
    char s[40];
    snprintf(s, sizeof s, "f64(0x%016llX), ", (unsigned long long)std::bit_cast<uint64_t>(x));
    text += s;
}
void writer::f32(float x) {
    char s[32];
    snprintf(s, sizeof s, "f32(0x%08X), ", std::bit_cast<uint32_t>(x));
    text += s;
}
void writer::end_row() {
    if (!text.empty() && text.back() == ' ') text.back() = '\n';
}

std::vector<table> all_tables() {
    std::vector<table> all;
    for (auto part : {exp_tables, log_tables, reduction_tables, angle_tables, tan_tables}) {
        auto t = part();
        all.insert(all.end(), t.begin(), t.end());
    }
    return all;
}

} // namespace orvane::tables
