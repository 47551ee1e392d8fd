// Tables of the hyperbolic functions: sinh and powers of two by formula, tanh by fits.
#include "fits/minimax.h"

#include <bit>

namespace orvane::tables {

namespace {

// tanh on one of the 60 intervals of abs(x), eight a binade: its value at the centre and the coefficients of y^1 to
// y^10, y the distance from the centre.
struct interval {
    real lo, hi, centre;
};
constexpr int last_fitted = 58;
interval interval_of(int j) {
    auto start = [](int j) { return std::bit_cast<double>(uint64_t(0x3FBE0000 + (j << 17)) << 32); };
    if (j == 0) return {0, start(1), 0};
    // From 55/2 ln 2 on tanh rounds to 1; up to 20 the last row leaves its fit only in what is less than half an ulp.
    const real hi = j < last_fitted ? real(start(j + 1)) : real(55) * ln2() / 2;
    return {start(j), hi, real(rounded_f64((start(j) + hi) / 2))};
}

// The polynomial of degree 10 with the least largest RELATIVE error; in row 0 it has no constant, since the result
// must be x for small x. Before the coefficients are rounded that error is 2^-55.97 in row 0 and at most 2^-58.28
// (row 41) in the others.
fits::polynomial tanh_fit(const interval& i, bool through_zero) {
    const real zero = 0;
    real error;
    if (through_zero) {
        auto ratio = [=](const real& y) { return zero < y ? tanh(y) / y : real(1); };
        auto p = fits::minimax({ratio, [=](const real& y) { return real(1) / ratio(y); }, i.lo, i.hi}, 9, &error);
        p.insert(p.begin(), 0);
        return p;
    }
    auto f = [=](const real& y) { return tanh(i.centre + y); };
    return fits::minimax({f, [=](const real& y) { return real(1) / f(y); }, i.lo - i.centre, i.hi - i.centre}, 10,
                         &error);
}

// A row: what rounding takes from the value at the centre, that value, ten coefficients, minus the centre, 1.0, 0, 0.
void tanh_row(writer& w, const fits::polynomial& p, const real& centre) {
    w.f64(rounded_f64(p[0] - rounded_f64(p[0])));
    for (const auto& c : p)
        w.f64(rounded_f64(c));
    w.f64(0 < centre ? -rounded_f64(centre) : 0.0), w.f64(1.0), w.f64(0.0), w.f64(0.0), w.end_row();
}

} // namespace

std::vector<table> hyperbolic_tables() {
    return {
        {"hyperbolic/tables/sinh_128.inc",
         [](writer& w) { // sinh(j ln 2 / 128), 2^(-j/128) / 2
             for (int j = 0; j < 128; j++)
                 w.f64(rounded_f64(sinh(real(j) * ln2() / 128))), w.f64(rounded_f64(exp2(real(-j) / 128) / 2)),
                     w.end_row();
         }},
        {"hyperbolic/tables/half_exp2_256.inc",
         [](writer& w) { // 2^(j/256) / 2
             for (int j = 0; j <= 256; j++)
                 w.f64(rounded_f64(exp2(real(j) / 256) / 2)), w.end_row();
         }},
        {"hyperbolic/tables/tanh_60.inc",
         [](writer& w) {
             for (int j = 0; j <= last_fitted; j++) {
                 const auto i = interval_of(j);
                 tanh_row(w, tanh_fit(i, j == 0), i.centre);
             }
             tanh_row(w, fits::polynomial{1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, 0); // from 20 on
         }},
    };
}

} // namespace orvane::tables
