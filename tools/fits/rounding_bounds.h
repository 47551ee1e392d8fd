// Rounding errors, bounded: the text of a computation is run on intervals that carry how far rounding can have taken
// the computed value from the exact one.
//
// Ends and errors are numbers of 400 bits; what their own rounding loses, some 2^-390, is far below the slack that
// every margin has.
#pragma once

#include "minimax.h"

namespace orvane::fits {

// Half a unit in the last of `bits` places of the numbers up to `largest`.
inline real half_ulp(const real& largest, int bits) {
    if (!(real(0) < largest)) return 0;
    real r = 1;
    mpfr_mul_2si(r.get(), r.get(), mpfr_get_exp(largest.get()) - bits - 1, MPFR_RNDN);
    return r;
}
inline const real& larger(const real& a, const real& b) { return a < b ? b : a; }
inline const real& smaller(const real& a, const real& b) { return b < a ? b : a; }

// A value between lo and hi, computed with an error of at most `error`, by operations that round to `bits` bits: 64
// for the x87 unit. Constants are exact.
template <int Bits> struct bounded {
    real lo, hi, error = 0;
    bounded(const real& lo, const real& hi, const real& error = 0) : lo(lo), hi(hi), error(error) {}
    bounded(long double x) : lo(x), hi(x) {}
    bounded(double x) : lo(x), hi(x) {}
    bounded(int x) : lo(x), hi(x) {}

    real largest() const { return larger(magnitude(lo), magnitude(hi)); }
    real least() const { // of the magnitude
        if (!(real(0) < lo * hi)) return 0;
        return smaller(magnitude(lo), magnitude(hi));
    }
    bool is_constant() const { return !(lo < hi) && !(real(0) < error); }
    // What the operation's own rounding adds.
    bounded rounded() const { return {lo, hi, error + half_ulp(largest() + error, Bits)}; }

    bounded exact_sum(const bounded& b) const { return {lo + b.lo, hi + b.hi, error + b.error}; }
    bounded exact_product(const bounded& b) const {
        const real p[] = {lo * b.lo, lo * b.hi, hi * b.lo, hi * b.hi};
        const real e = error * b.largest() + b.error * largest() + error * b.error;
        return {smaller(smaller(p[0], p[1]), smaller(p[2], p[3])), larger(larger(p[0], p[1]), larger(p[2], p[3])), e};
    }
    friend bounded operator-(const bounded& a) { return {-a.hi, -a.lo, a.error}; }
    friend bounded operator+(const bounded& a, const bounded& b) {
        if (b.is_constant() && !(real(0) < b.largest())) return a;
        return a.exact_sum(b).rounded();
    }
    friend bounded operator-(const bounded& a, const bounded& b) { return a + -b; }
    friend bounded operator*(const bounded& a, const bounded& b) { return a.exact_product(b).rounded(); }
    friend bounded fma(const bounded& a, const bounded& b, const bounded& c) {
        return a.exact_product(b).exact_sum(c).rounded();
    }
};

// An exact polynomial in a variable u, to run the text of a polynomial on.
struct exact_polynomial {
    polynomial c;
    exact_polynomial(const polynomial& c) : c(c) {}
    exact_polynomial(const real& x) : c{x} {}
    exact_polynomial(long double x) : c{real(x)} {}
    exact_polynomial(double x) : c{real(x)} {}
    exact_polynomial(int x) : c{real(x)} {}

    friend exact_polynomial operator+(const exact_polynomial& a, const exact_polynomial& b) {
        polynomial s(std::max(a.c.size(), b.c.size()), real(0));
        for (size_t i = 0; i < a.c.size(); i++)
            s[i] = a.c[i];
        for (size_t i = 0; i < b.c.size(); i++)
            s[i] = s[i] + b.c[i];
        return s;
    }
    friend exact_polynomial operator*(const exact_polynomial& a, const exact_polynomial& b) {
        polynomial p(a.c.size() + b.c.size() - 1, real(0));
        for (size_t i = 0; i < a.c.size(); i++)
            for (size_t j = 0; j < b.c.size(); j++)
                p[i + j] = p[i + j] + a.c[i] * b.c[j];
        return p;
    }
    friend exact_polynomial operator-(const exact_polynomial& a, const exact_polynomial& b) {
        return a + b * exact_polynomial(-1);
    }
};
// A bound of |p| for u from lo to hi: the magnitudes of its terms in powers of the distance from the middle.
inline real bound_of(polynomial p, const real& lo, const real& hi) {
    const real middle = (lo + hi) / 2, reach = (hi - lo) / 2;
    real bound = 0, power = 1;
    for (size_t n = 0; n < p.size();
         n++, power = power * reach) { // each pass of Horner's scheme leaves a coefficient
        for (size_t k = p.size() - 1; k-- > n;)
            p[k] = p[k] + middle * p[k + 1];
        bound = bound + magnitude(p[n]) * power;
    }
    return bound;
}

} // namespace orvane::fits
