// Tables of the sine and cosine: angles of one turn, and the bits of 4 / pi and 2 / pi for their slow and large
// paths.
#include "table.h"

#include <bit>

namespace orvane::tables {

namespace {

// sin and cos of j/n of a turn, exact where they are 0 or 1.
real sine(int j, int n) {
    real r;
    mpfr_sinu(r.get(), real(j).get(), n, MPFR_RNDN);
    return r;
}
real cosine(int j, int n) {
    real r;
    mpfr_cosu(r.get(), real(j).get(), n, MPFR_RNDN);
    return r;
}

// The power of two with the sign of c for which |c| / power lies in [least, 2 least); 0 for 0.
real power_near(const real& c, const real& least) {
    if (mpfr_zero_p(c.get())) return 0;
    const int sign = mpfr_sgn(c.get());
    const real magnitude = real(sign) * c;
    real power = 1;
    while (mpfr_less_p(magnitude.get(), (power * least).get()))
        power = power / real(2);
    while (!mpfr_less_p(magnitude.get(), (power * least * real(2)).get()))
        power = power * real(2);
    return real(sign) * power;
}
const real root_half = sqrt(real(0.5)), three_quarters = 0.75;

// A zero of either sign as +0.
double plus_zero(double x) { return x + 0.0; }

void angles_f32(writer& w) {
    for (int j = 0; j < 256; j++) {
        const real s = sine(j, 256), c = cosine(j, 256), head = power_near(c, root_half);
        const float hi = (float)plus_zero(rounded_f32(s));
        for (float x : {rounded_f32(c - head), hi, rounded_f32(s - real(hi)), rounded_f32(head)})
            w.f32((float)plus_zero(x));
        w.end_row();
    }
}
void angles_f64(writer& w) {
    for (int j = 0; j < 512; j++) {
        const real s = sine(j, 512), c = cosine(j, 512), head = power_near(c, three_quarters);
        const double hi = rounded_f64(s);
        for (const real& x : {c - head, head, s, cut_to_significant(s - real(hi), 24)})
            w.f64(plus_zero(rounded_f64(x)));
        w.end_row();
    }
}
void angles_scalar(writer& w) {
    for (int j = 0; j < 64; j++) {
        const real s = sine(j, 64), c = cosine(j, 64), head = power_near(c, three_quarters);
        for (const real& x : {c - head, s, real(rounded_f32(s - real(rounded_f64(s)))), head})
            w.f64(plus_zero(rounded_f64(x)));
        w.end_row();
    }
}

// 49 groups of 25 bits of 4 / pi, each with its weight times 2^200.
void four_over_pi(writer& w) {
    mpfr_t rest, piece;
    mpfr_inits2(1400, rest, piece, (mpfr_ptr) nullptr);
    mpfr_const_pi(rest, MPFR_RNDN);
    mpfr_ui_div(rest, 4, rest, MPFR_RNDN);
    for (int k = 0; k < 49; k++) {
        mpfr_mul_2si(piece, rest, 25 * k + 24, MPFR_RNDN);
        mpfr_floor(piece, piece);
        mpfr_mul_2si(piece, piece, -(25 * k + 24), MPFR_RNDN);
        mpfr_sub(rest, rest, piece, MPFR_RNDN);
        mpfr_mul_2si(piece, piece, 200, MPFR_RNDN);
        w.f64(mpfr_get_d(piece, MPFR_RNDN));
        w.end_row();
    }
    mpfr_clears(rest, piece, (mpfr_ptr) nullptr);
}

// 2 / pi without its bits from the weight 2^(2 - 8 r) on.
real two_over_pi_below(int r) {
    const real x = real(2) / pi();
    return x - cut_to_multiple(x, 2 - 8 * r);
}
void two_over_pi_hi(writer& w) {
    for (int r = 0; r < 16; r++)
        w.f64(rounded_f64(two_over_pi_below(r))), w.end_row();
}
// The rest of each; the last four, which only products far below an ulp see, are fixed numbers.
void two_over_pi_lo(writer& w) {
    for (int r = 0; r < 12; r++) {
        const real x = two_over_pi_below(r);
        w.f64(rounded_f64(x - real(rounded_f64(x)))), w.end_row();
    }
    const uint64_t fixed[] = {0x369664F10E41080E, 0xB61B0EF1BEF7FAC6, 0xB58DE37DEFFF0ECE, 0x350C820FF0D954BB};
    for (uint64_t x : fixed)
        w.f64(std::bit_cast<double>(x)), w.end_row();
}

} // namespace

std::vector<table> angle_tables() {
    return {
        {"trig/tables/angle_f32.inc", angles_f32},          {"trig/tables/angle_f64.inc", angles_f64},
        {"trig/tables/angle_scalar.inc", angles_scalar},    {"trig/tables/four_over_pi.inc", four_over_pi},
        {"trig/tables/two_over_pi_hi.inc", two_over_pi_hi}, {"trig/tables/two_over_pi_lo.inc", two_over_pi_lo},
    };
}

} // namespace orvane::tables
