// What the rules of tables are written with: a table is a file of the repo and a few lines that compute its entries.
#pragma once

#include <cstdint>
#include <functional>
#include <mpfr.h>
#include <string>
#include <vector>

namespace orvane::tables {

// A number of 400 bits, far beyond what any entry needs to be rounded rightly, with value semantics.
class real {
public:
    real() { mpfr_init2(v, precision); }
    real(double x) : real() { mpfr_set_d(v, x, MPFR_RNDN); }
    real(long double x) : real() { mpfr_set_ld(v, x, MPFR_RNDN); }
    real(int x) : real() { mpfr_set_si(v, x, MPFR_RNDN); }
    real(const real& o) : real() { mpfr_set(v, o.v, MPFR_RNDN); }
    real& operator=(const real& o) {
        mpfr_set(v, o.v, MPFR_RNDN);
        return *this;
    }
    ~real() { mpfr_clear(v); }
    mpfr_ptr get() { return v; }
    mpfr_srcptr get() const { return v; }

    static constexpr mpfr_prec_t precision = 400;

private:
    mpfr_t v;
};

#define ORVANE_REAL_OPERATOR(op, f)                                                                                  \
    inline real operator op(const real& a, const real& b) {                                                          \
        real r;                                                                                                      \
        f(r.get(), a.get(), b.get(), MPFR_RNDN);                                                                     \
        return r;                                                                                                    \
    }
ORVANE_REAL_OPERATOR(+, mpfr_add)
ORVANE_REAL_OPERATOR(-, mpfr_sub)
ORVANE_REAL_OPERATOR(*, mpfr_mul)
ORVANE_REAL_OPERATOR(/, mpfr_div)
#undef ORVANE_REAL_OPERATOR

#define ORVANE_REAL_FUNCTION(name, f)                                                                                \
    inline real name(const real& a) {                                                                                \
        real r;                                                                                                      \
        f(r.get(), a.get(), MPFR_RNDN);                                                                              \
        return r;                                                                                                    \
    }
ORVANE_REAL_FUNCTION(exp2, mpfr_exp2)
ORVANE_REAL_FUNCTION(log, mpfr_log)
ORVANE_REAL_FUNCTION(log2, mpfr_log2)
ORVANE_REAL_FUNCTION(log10, mpfr_log10)
ORVANE_REAL_FUNCTION(sqrt, mpfr_sqrt)
ORVANE_REAL_FUNCTION(cbrt, mpfr_cbrt)
ORVANE_REAL_FUNCTION(sin, mpfr_sin)
ORVANE_REAL_FUNCTION(cos, mpfr_cos)
ORVANE_REAL_FUNCTION(tan, mpfr_tan)
ORVANE_REAL_FUNCTION(atan, mpfr_atan)
ORVANE_REAL_FUNCTION(asin, mpfr_asin)
ORVANE_REAL_FUNCTION(sinh, mpfr_sinh)
ORVANE_REAL_FUNCTION(tanh, mpfr_tanh)
ORVANE_REAL_FUNCTION(erf, mpfr_erf)
ORVANE_REAL_FUNCTION(erfc, mpfr_erfc)
ORVANE_REAL_FUNCTION(gamma, mpfr_gamma)
#undef ORVANE_REAL_FUNCTION

inline real log_gamma(const real& a) { // of |gamma|
    real r;
    int sign;
    mpfr_lgamma(r.get(), &sign, a.get(), MPFR_RNDN);
    return r;
}

inline real pi() {
    real r;
    mpfr_const_pi(r.get(), MPFR_RNDN);
    return r;
}
inline real ln2() { return log(real(2)); }

// Roundings to a type, back as numbers.
double rounded_f64(const real& x);                 // to nearest double, subnormals included
float rounded_f32(const real& x);                  // to nearest float, subnormals included
real to_multiple(const real& x, int exponent);     // the multiple of 2^exponent nearest to x (ties to even)
real cut_to_multiple(const real& x, int exponent); // the same, toward zero
real to_significant(const real& x, int bits);      // to `bits` significand bits, nearest
real cut_to_significant(const real& x, int bits);  // toward zero

// Entries as their bit patterns, the form in which tables are kept.
struct writer {
    std::string text;
    void f64(double x);
    void f32(float x);
    void u64(uint64_t x);
    void u32(uint32_t x);
    void end_row(); // ends a line of the file
};

// 1 / (1 + (i + 1/2) / 256) to a multiple of 2^-11: what logarithms of slow paths multiply by.
real reciprocal_256(int i);

struct table {
    std::string path; // below the root of the repo
    std::function<void(writer&)> rule;
};

// The tables of each folder.
std::vector<table> exp_tables();
std::vector<table> log_tables();
std::vector<table> divroot_tables();
std::vector<table> gamma_tables();
std::vector<table> pow_tables();
std::vector<table> hyperbolic_tables();
std::vector<table> invtrig_tables();
std::vector<table> reduction_tables();
std::vector<table> angle_tables();
std::vector<table> tan_tables();
std::vector<table> erf_tables();

std::vector<table> all_tables();

} // namespace orvane::tables
