// Minimax polynomials and their roots, in the table generator's numbers of 400 bits.
#pragma once

#include "tables/table.h"

#include <algorithm>

namespace orvane::tables {
inline bool operator<(const real& a, const real& b) { return mpfr_less_p(a.get(), b.get()); }
inline bool operator==(const real& a, const real& b) { return mpfr_equal_p(a.get(), b.get()); }
inline real operator-(const real& a) { return real(0) - a; }
} // namespace orvane::tables

namespace orvane::fits {

using tables::real;

inline real magnitude(const real& a) { return a < real(0) ? -a : a; }
inline double log2_of(const real& a) { return tables::rounded_f64(tables::log2(a)); }

using polynomial = std::vector<real>; // from the constant term
inline real value(const polynomial& p, const real& x) {
    real r = p.back();
    for (size_t i = p.size() - 1; i-- > 0;)
        r = r * x + p[i];
    return r;
}

// What is fitted: f with the weight w of its error, on [lo, hi].
struct target {
    std::function<real(const real&)> f, w;
    real lo, hi;
};

// Points from lo to hi, denser toward the ends.
inline std::vector<real> chebyshev_points(const real& lo, const real& hi, int n) {
    std::vector<real> x;
    for (int i = 0; i < n; i++)
        x.push_back((lo + hi) / 2 - (hi - lo) / 2 * tables::cos(tables::pi() * i / (n - 1)));
    return x;
}

// The solution of a system of linear equations, each row with its right side last.
std::vector<real> solved(std::vector<std::vector<real>> rows);

// The polynomial of a degree with the least largest weighted error, by Remez' exchange of all extrema; `error` gets
// that error.
polynomial minimax(const target& t, int degree, real* error);

// The largest weighted error of any approximation of a target, over a dense grid.
real largest_error(const target& t, const std::function<real(const real&)>& approximation);

struct complex {
    real re, im;
};
// All roots of a polynomial with real coefficients, by Weierstrass' simultaneous iteration.
std::vector<complex> roots(const polynomial& p);

} // namespace orvane::fits
