// Tables of the error functions: value and slope on a grid.
#include "table.h"

namespace orvane::tables {

namespace {

// 2/sqrt(pi) exp(-x^2), the derivative of erf.
real slope(const real& x) {
    real r = real(0) - x * x;
    mpfr_exp(r.get(), r.get(), MPFR_RNDN);
    return real(2) / sqrt(pi()) * r;
}

// (2^scale f(k/steps), 2^scale slope(k/steps)) for k from 0 to count - 1, then zeros.
template <class T> auto grid(real (*f)(const real&), int steps, int scale, int count, int zeros) {
    return [=](writer& w) {
        const real unit = exp2(real(scale));
        auto put = [&](const real& v) {
            if constexpr (sizeof(T) == 8) w.f64(rounded_f64(v));
            else w.f32(rounded_f32(v));
        };
        for (int k = 0; k < count + zeros; k++) {
            const real x = real(k) / steps;
            put(k < count ? unit * f(x) : real(0)), put(k < count ? unit * slope(x) : real(0));
            w.end_row();
        }
    };
}

} // namespace

std::vector<table> erf_tables() {
    return {
        {"special/tables/erf_128ths.inc", grid<double>(erf, 128, 0, 768, 0)},
        {"special/tables/erff_128ths.inc", grid<float>(erf, 128, 0, 504, 0)},
        {"special/tables/erfc_128ths.inc", grid<double>(erfc, 128, 128, 3487, 1)},
        {"special/tables/erfc_64ths.inc", grid<double>(erfc, 64, 128, 1743, 1)},
        {"special/tables/erfcf_64ths.inc", grid<float>(erfc, 64, 48, 644, 4)},
        {"special/tables/erfcf_32nds.inc", grid<float>(erfc, 32, 48, 322, 6)},
    };
}

} // namespace orvane::tables
