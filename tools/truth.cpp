#include "truth.h"

#include "call_plan.h"

#include <cmath>
#include <map>
#include <string>

namespace orvane {

namespace {

constexpr mpfr_prec_t precision = 160;

using unary = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t);
using binary = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_srcptr, mpfr_rnd_t);

int reciprocal(mpfr_ptr r, mpfr_srcptr x, mpfr_rnd_t m) { return mpfr_ui_div(r, 1, x, m); }
int reciprocal_cbrt(mpfr_ptr r, mpfr_srcptr x, mpfr_rnd_t m) {
    mpfr_cbrt(r, x, m);
    return mpfr_ui_div(r, 1, r, m);
}
int reciprocal_sqrt(mpfr_ptr r, mpfr_srcptr x, mpfr_rnd_t m) {
    return mpfr_zero_p(x) ? mpfr_ui_div(r, 1, x, m) : mpfr_rec_sqrt(r, x, m); // an infinity with the sign of the zero
}
int log_abs_gamma(mpfr_ptr r, mpfr_srcptr x, mpfr_rnd_t m) {
    int sign;
    return mpfr_lgamma(r, &sign, x, m);
}
template <mpfr_rnd_t Mode> int to_integral(mpfr_ptr r, mpfr_srcptr x, mpfr_rnd_t) { return mpfr_rint(r, x, Mode); }
int ties_away(mpfr_ptr r, mpfr_srcptr x, mpfr_rnd_t) { return mpfr_round(r, x); }
int exponent_of(mpfr_ptr r, mpfr_srcptr x, mpfr_rnd_t m) {
    if (!mpfr_regular_p(x)) return mpfr_zero_p(x) ? (mpfr_set_inf(r, -1), 0) : mpfr_abs(r, x, m);
    return mpfr_set_si(r, mpfr_get_exp(x) - 1, m);
}

const std::map<std::string, unary> unaries = {
    {"acos", mpfr_acos},
    {"acosh", mpfr_acosh},
    {"acospi", mpfr_acospi},
    {"asin", mpfr_asin},
    {"asinh", mpfr_asinh},
    {"asinpi", mpfr_asinpi},
    {"atan", mpfr_atan},
    {"atanh", mpfr_atanh},
    {"atanpi", mpfr_atanpi},
    {"cbrt", mpfr_cbrt},
    {"ceil", to_integral<MPFR_RNDU>},
    {"cos", mpfr_cos},
    {"cosh", mpfr_cosh},
    {"cospi", mpfr_cospi},
    {"erf", mpfr_erf},
    {"erfc", mpfr_erfc},
    {"exp", mpfr_exp},
    {"exp10", mpfr_exp10},
    {"exp2", mpfr_exp2},
    {"expm1", mpfr_expm1},
    {"fabs", mpfr_abs},
    {"floor", to_integral<MPFR_RNDD>},
    {"inv", reciprocal},
    {"lgamma", log_abs_gamma},
    {"log", mpfr_log},
    {"log10", mpfr_log10},
    {"log1p", mpfr_log1p},
    {"log2", mpfr_log2},
    {"logb", exponent_of},
    {"nearbyint", to_integral<MPFR_RNDN>},
    {"rcbrt", reciprocal_cbrt},
    {"rint", to_integral<MPFR_RNDN>},
    {"round", ties_away},
    {"rsqrt", reciprocal_sqrt},
    {"sin", mpfr_sin},
    {"sinh", mpfr_sinh},
    {"sinpi", mpfr_sinpi},
    {"sqrt", mpfr_sqrt},
    {"tan", mpfr_tan},
    {"tanh", mpfr_tanh},
    {"tanpi", mpfr_tanpi},
    {"tgamma", mpfr_gamma},
    {"trunc", to_integral<MPFR_RNDZ>},
};

int positive_difference(mpfr_ptr r, mpfr_srcptr x, mpfr_srcptr y, mpfr_rnd_t m) { return mpfr_dim(r, x, y, m); }
template <bool Larger> int by_magnitude(mpfr_ptr r, mpfr_srcptr x, mpfr_srcptr y, mpfr_rnd_t m) {
    const int c = mpfr_cmpabs(x, y);
    if (c == 0 || mpfr_nan_p(x) || mpfr_nan_p(y)) return Larger ? mpfr_max(r, x, y, m) : mpfr_min(r, x, y, m);
    return mpfr_set(r, (c > 0) == Larger ? x : y, m);
}
int power_of_positive(mpfr_ptr r, mpfr_srcptr x, mpfr_srcptr y, mpfr_rnd_t m) {
    return mpfr_nan_p(y) ? mpfr_set(r, y, m) : mpfr_powr(r, x, y, m);
}
int neighbour(mpfr_ptr r, lane_type t, uint64_t x, uint64_t y) {
    if (t == lane_type::f64) return mpfr_set_d(r, std::nextafter(value_of(t, x), value_of(t, y)), MPFR_RNDN);
    return mpfr_set_flt(r, std::nextafter((float)value_of(t, x), (float)value_of(t, y)), MPFR_RNDN);
}

const std::map<std::string, binary> binaries = {
    {"atan2", mpfr_atan2},
    {"atan2pi", mpfr_atan2pi},
    {"copysign", mpfr_copysign},
    {"div", mpfr_div},
    {"fdim", positive_difference},
    {"fmax", mpfr_max},
    {"fmin", mpfr_min},
    {"fmod", mpfr_fmod},
    {"hypot", mpfr_hypot},
    {"maxmag", by_magnitude<true>},
    {"minmag", by_magnitude<false>},
    {"pow", mpfr_pow},
    {"powr", power_of_positive},
    {"remainder", mpfr_remainder},
    {"pown", mpfr_pow},
};

void set_lane(mpfr_ptr r, lane_type t, uint64_t w) {
    switch (t) {
    case lane_type::i64:
        mpfr_set_sj(r, (int64_t)w, MPFR_RNDN);
        break;
    case lane_type::u64:
        mpfr_set_uj(r, w, MPFR_RNDN);
        break;
    default:
        mpfr_set_d(r, value_of(t, w), MPFR_RNDN);
    }
}

mpfr_rnd_t mode_of(const std::string& base) {
    if (base.find("rtz") != base.npos) return MPFR_RNDZ;
    if (base.find("rtn") != base.npos) return MPFR_RNDD;
    if (base.find("rtp") != base.npos) return MPFR_RNDU;
    return MPFR_RNDN;
}

// A number rounded to a floating type by a mode: once, subnormals included.
void round_to_type(mpfr_ptr r, lane_type t, mpfr_rnd_t mode) {
    const bool single = t == lane_type::f32;
    if (!mpfr_number_p(r)) return;
    const mpfr_exp_t kept_min = mpfr_get_emin(), kept_max = mpfr_get_emax();
    mpfr_t s;
    mpfr_init2(s, single ? 24 : 53);
    mpfr_set_emin(single ? -148 : -1073);
    mpfr_set_emax(single ? 128 : 1024);
    int inexact = mpfr_set(s, r, mode);
    inexact = mpfr_check_range(s, inexact, mode);
    mpfr_subnormalize(s, inexact, mode);
    mpfr_set_emin(kept_min);
    mpfr_set_emax(kept_max);
    mpfr_set(r, s, MPFR_RNDN);
    mpfr_clear(s);
}

} // namespace

truth::truth() { mpfr_inits2(precision, v[0], v[1], x, y, z, (mpfr_ptr) nullptr); }
truth::~truth() { mpfr_clears(v[0], v[1], x, y, z, (mpfr_ptr) nullptr); }

bool truth::operator()(const kernel_row& row, const uint64_t* a) {
    const std::string base = row.base();
    set_lane(x, row.argument(0), a[0]);
    if (row.arguments() > 1) set_lane(y, row.argument(1), a[1]);
    if (row.arguments() > 2) set_lane(z, row.argument(2), a[2]);
    mpfr_ptr r = v[0];

    if (const auto f = unaries.find(base); f != unaries.end()) {
        f->second(r, x, MPFR_RNDN);
        return true;
    }
    if (const auto f = binaries.find(base); f != binaries.end()) return f->second(r, x, y, MPFR_RNDN), true;
    if (base == "fma") {
        mpfr_set_prec(r, 3 * precision); // the product of two doubles and a sum: rounded far below the last bit
        mpfr_fma(r, x, y, z, MPFR_RNDN);
        return true;
    }
    if (base == "sincos" || base == "sincosreg") return mpfr_sin_cos(v[0], v[1], x, MPFR_RNDN), true;
    if (base == "lgammar") { // the sign of gamma: of a pole at zero the zero's, +1 where there is none
        int sign = 1;
        mpfr_lgamma(v[0], &sign, x, MPFR_RNDN);
        if (!mpfr_number_p(x) || (mpfr_sgn(x) < 0 && mpfr_integer_p(x))) sign = 1;
        mpfr_set_si(v[1], sign, MPFR_RNDN);
        return true;
    }
    if (base == "ilogb") {
        const long of_none = mpfr_zero_p(x) ? INT32_MIN : INT32_MAX;
        mpfr_set_si(r, mpfr_regular_p(x) ? mpfr_get_exp(x) - 1 : of_none, MPFR_RNDN);
        return true;
    }
    if (base == "nextafter") return neighbour(r, row.in, a[0], a[1]), true;
    if (base == "modf") return mpfr_modf(v[1], v[0], x, MPFR_RNDN), true;
    if (base == "fract") {
        mpfr_floor(v[1], x);
        if (mpfr_inf_p(x)) mpfr_set_zero(v[0], mpfr_sgn(x));
        else mpfr_sub(v[0], x, v[1], MPFR_RNDN);
        return true;
    }
    if (base == "frexp") {
        const mpfr_exp_t e = mpfr_regular_p(x) ? mpfr_get_exp(x) : 0;
        mpfr_set_si(v[1], e, MPFR_RNDN);
        mpfr_mul_2si(v[0], x, -e, MPFR_RNDN);
        return true;
    }
    if (base == "ldexp") return mpfr_mul_2si(r, x, mpfr_get_si(y, MPFR_RNDN), MPFR_RNDN), true;
    if (base == "rootn") {
        const long n = mpfr_get_si(y, MPFR_RNDN);
        if (n == 0) return mpfr_set_nan(r), true;
        mpfr_rootn_ui(r, x, std::labs(n), MPFR_RNDN);
        if (n < 0) mpfr_ui_div(r, 1, r, MPFR_RNDN);
        return true;
    }
    if (base == "remquo") {
        long quotient = 0;
        mpfr_remquo(v[0], &quotient, x, y, MPFR_RNDN);
        if (mpfr_nan_p(v[0])) quotient = 0;
        mpfr_set_si(v[1], quotient % (1L << 31), MPFR_RNDN); // the low 31 bits, under the sign
        return true;
    }
    if (row.sclass == signature_class::integer || row.sclass == signature_class::integer_pair) {
        // A divisor of zero, and the one quotient that no lane can hold, have no true value.
        if (mpfr_zero_p(y) || (mpfr_cmp_si(x, INT32_MIN) == 0 && mpfr_cmp_si(y, -1) == 0)) return false;
        mpfr_div(z, x, y, MPFR_RNDZ);
        mpfr_trunc(z, z);
        const bool remainder = base.ends_with("rem") && row.results() == 1;
        mpfr_fmod(v[remainder ? 0 : 1], x, y, MPFR_RNDN);
        if (!remainder) mpfr_set(v[0], z, MPFR_RNDN);
        return true;
    }
    if (row.sclass == signature_class::conversion) {
        const mpfr_rnd_t mode = mode_of(base);
        mpfr_set(r, x, MPFR_RNDN);
        if (is_floating(row.out)) return round_to_type(r, row.out, mode), true;
        const bool saturates = base.find("nosat") == base.npos;
        if (mpfr_nan_p(r)) return mpfr_set_zero(r, 1), saturates;
        if (mpfr_number_p(r)) mpfr_rint(r, r, mode);
        const bool is_signed = row.out == lane_type::i32 || row.out == lane_type::i64;
        const int bits = 8 * size_of(row.out);
        mpfr_set_ui_2exp(y, 1, is_signed ? bits - 1 : bits, MPFR_RNDN);
        mpfr_sub_ui(y, y, 1, MPFR_RNDN); // the largest
        mpfr_set_zero(z, 1);
        if (is_signed) mpfr_neg(z, y, MPFR_RNDN), mpfr_sub_ui(z, z, 1, MPFR_RNDN);
        const bool inside = mpfr_lessequal_p(z, r) && mpfr_lessequal_p(r, y);
        if (!inside && !saturates) return false;
        if (mpfr_less_p(r, z)) mpfr_set(r, z, MPFR_RNDN);
        if (mpfr_greater_p(r, y)) mpfr_set(r, y, MPFR_RNDN);
        return true;
    }
    return false;
}

double truth::error(int j, lane_type t, uint64_t result) {
    mpfr_srcptr true_value = v[j];
    if (!is_floating(t)) {
        set_lane(x, t, result);
        mpfr_sub(x, x, true_value, MPFR_RNDN);
        return std::fabs(mpfr_get_d(x, MPFR_RNDN));
    }
    const double got = value_of(t, result);
    if (mpfr_nan_p(true_value) || std::isnan(got)) return mpfr_nan_p(true_value) && std::isnan(got) ? 0 : HUGE_VAL;
    const int bits = t == lane_type::f32 ? 24 : 53, emin = t == lane_type::f32 ? -125 : -1021;
    if (std::isinf(got) || mpfr_inf_p(true_value)) {
        mpfr_set(y, true_value, MPFR_RNDN);
        round_to_type(y, t, MPFR_RNDN);
        return mpfr_cmp_d(y, got) == 0 ? 0 : HUGE_VAL;
    }
    if (mpfr_zero_p(true_value)) {
        if (got == 0) return 0;
        return std::ldexp(std::fabs(got), bits - emin);
    }
    const long exponent = std::max<long>(mpfr_get_exp(true_value), emin);
    mpfr_sub_d(x, true_value, got, MPFR_RNDN);
    mpfr_mul_2si(x, x, bits - exponent, MPFR_RNDN);
    return std::fabs(mpfr_get_d(x, MPFR_RNDN));
}

} // namespace orvane
