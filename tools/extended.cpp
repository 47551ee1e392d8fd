#include "extended.h"

#include <cmath>
#include <map>

namespace orvane {

namespace {

constexpr long double pi = 3.14159265358979323846264338327950288L;

// pi times the distance of x from the nearest multiple of 1/2, a distance that is exact; quarter: that multiple's
// number modulo 4.
template <class T> T half_turns(T x, int* quarter) {
    const T n = std::nearbyint(2 * std::fmod(x, T(2)));
    *quarter = int(n) & 3;
    return T(pi) * (std::fmod(x, T(2)) - n / 2);
}
template <class T> T sine_of(T r, int quarter) {
    const T y = quarter & 1 ? std::cos(r) : std::sin(r);
    return quarter & 2 ? -y : y;
}
template <class T> T sinpi(T x) {
    int q;
    const T r = half_turns(x, &q);
    return sine_of(r, q);
}
template <class T> T cospi(T x) {
    int q;
    const T r = half_turns(x, &q);
    return sine_of(r, q + 1);
}
template <class T> T tanpi(T x) {
    int q;
    const T t = std::tan(half_turns(x, &q));
    return q & 1 ? -1 / t : t;
}
// x^(1/n), corrected for the rounding of 1 / n.
long double root(long double x, long double n) {
    const long double a = std::fabs(x), e = 1 / n, lost = std::fma(-e, n, 1.0L) / n;
    const long double y = std::pow(a, e);
    return std::copysign(y + y * (lost * std::log(a)), std::fmod(n, 2.0L) == 0 ? 1.0L : x);
}

#define ORVANE_ONE(name, ...)                                                                                        \
    {                                                                                                                \
        name, {                                                                                                      \
            [](long double x, long double) -> long double { return __VA_ARGS__; }, nullptr,                          \
                [](double x) -> double { return __VA_ARGS__; }                                                       \
        }                                                                                                            \
    }
#define ORVANE_TWO(name, ...)                                                                                        \
    {                                                                                                                \
        name, {                                                                                                      \
            [](long double x, long double y) -> long double { return __VA_ARGS__; }                                  \
        }                                                                                                            \
    }

const std::map<std::string, extended_reference> references = {
    ORVANE_ONE("exp", std::exp(x)),
    ORVANE_ONE("exp2", std::exp2(x)),
    {"exp10", {[](long double x, long double) { return exp10l(x); }, nullptr, [](double x) { return exp10(x); }}},
    ORVANE_ONE("expm1", std::expm1(x)),
    ORVANE_ONE("log", std::log(x)),
    ORVANE_ONE("log2", std::log2(x)),
    ORVANE_ONE("log10", std::log10(x)),
    ORVANE_ONE("log1p", std::log1p(x)),
    ORVANE_ONE("inv", 1 / x),
    ORVANE_ONE("sqrt", std::sqrt(x)),
    ORVANE_ONE("rsqrt", 1 / std::sqrt(x)),
    ORVANE_ONE("cbrt", std::cbrt(x)),
    ORVANE_ONE("rcbrt", 1 / std::cbrt(x)),
    ORVANE_ONE("sin", std::sin(x)),
    ORVANE_ONE("cos", std::cos(x)),
    ORVANE_ONE("tan", std::tan(x)),
    ORVANE_ONE("sinpi", sinpi(x)),
    ORVANE_ONE("cospi", cospi(x)),
    ORVANE_ONE("tanpi", tanpi(x)),
    ORVANE_ONE("asin", std::asin(x)),
    ORVANE_ONE("acos", std::acos(x)),
    ORVANE_ONE("atan", std::atan(x)),
    ORVANE_ONE("asinpi", std::asin(x) / decltype(x)(pi)),
    ORVANE_ONE("acospi", std::acos(x) / decltype(x)(pi)),
    ORVANE_ONE("atanpi", std::atan(x) / decltype(x)(pi)),
    ORVANE_ONE("sinh", std::sinh(x)),
    ORVANE_ONE("cosh", std::cosh(x)),
    ORVANE_ONE("tanh", std::tanh(x)),
    ORVANE_ONE("asinh", std::asinh(x)),
    ORVANE_ONE("acosh", std::acosh(x)),
    ORVANE_ONE("atanh", std::atanh(x)),
    ORVANE_ONE("erf", std::erf(x)),
    ORVANE_ONE("erfc", std::erfc(x)),
    ORVANE_ONE("tgamma", std::tgamma(x)),
    ORVANE_ONE("lgamma", std::lgamma(x)),
    ORVANE_ONE("lgammar", std::lgamma(x)),
    ORVANE_TWO("div", x / y),
    ORVANE_TWO("hypot", std::hypot(x, y)),
    ORVANE_TWO("pow", std::pow(x, y)),
    ORVANE_TWO("powr", std::pow(x, y)),
    ORVANE_TWO("pown", std::pow(x, y)),
    ORVANE_TWO("rootn", root(x, y)),
    ORVANE_TWO("atan2", std::atan2(x, y)),
    ORVANE_TWO("atan2pi", std::atan2(x, y) / pi),
};
const extended_reference sine_and_cosine = {
    [](long double x, long double) { return std::sin(x); }, [](long double x, long double) { return std::cos(x); },
    [](double x) { return std::sin(x); }, [](double x) { return std::cos(x); }};

} // namespace

const extended_reference* extended_reference_of(const kernel_row& row) {
    const std::string base = row.base();
    if (base == "sincos" || base == "sincosreg") return &sine_and_cosine;
    const auto at = references.find(base);
    return at == references.end() ? nullptr : &at->second;
}

} // namespace orvane
