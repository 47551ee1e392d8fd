// The slow paths of frexp, ldexp, ilogb, logb and nextafter: what is not normal going in or coming out.
#include "frame/rare.h"

namespace orvane {

// Pairs (+v, -v), indexed by the sign bit; a product of two of them overflows or underflows.
#define ORVANE_SIGNED_PAIR(T, name, v)                                                                               \
    ORVANE_TABLE(T, name, 2);                                                                                        \
    constexpr T name[2] = {v, -(v)};
ORVANE_SIGNED_PAIR(double, _own_small_value_64, 0x1p-1000)
ORVANE_SIGNED_PAIR(double, _large_value_64, 0x1p1000)
ORVANE_SIGNED_PAIR(double, _min_subnormal_64, 0x1p-1074)
ORVANE_SIGNED_PAIR(float, _small_value_32, 0x1p-100f)
ORVANE_SIGNED_PAIR(float, _large_value_32, 0x1p100f)
ORVANE_SIGNED_PAIR(float, _min_subnormal_32, 0x1p-149f)

namespace {

// What differs between the types: 2^up lifts every subnormal into the normal range.
template <class T> struct of_type;
template <> struct of_type<double> {
    static constexpr int up = 55;
    static constexpr double scale = 0x1p55, scale_back = 0x1p-55;
    static constexpr const double (&small)[2] = _own_small_value_64, (&large)[2] = _large_value_64,
                                  (&least)[2] = _min_subnormal_64;
};
template <> struct of_type<float> {
    static constexpr int up = 25;
    static constexpr float scale = 0x1p25f, scale_back = 0x1p-25f;
    static constexpr const float (&small)[2] = _small_value_32, (&large)[2] = _large_value_32,
                                 (&least)[2] = _min_subnormal_32;
};
template <class T> bool is_zero(T v) { return v == T(0); }

// x comes and goes as bits: a signalling NaN stays one.
template <class T> int frexp_rare(const T* x, T* result, int32_t* out) {
    *out = 0;
    __builtin_memcpy(result, x, sizeof(T));
    if (biased_exponent(*x) == top_exponent<T> || is_zero(*x)) return ordinary;
    const T v = *x * of_type<T>::scale;
    *out = biased_exponent(v) - (exponent_bias<T> - 1) - of_type<T>::up;
    *result = with_biased_exponent(v, exponent_bias<T> - 1);
    return ordinary;
}

template <class T> int ldexp_rare(const T* x, const int32_t* n, T* result) {
    using type = of_type<T>;
    T w = *x * T(1.0);
    int e = biased_exponent(w);
    *result = w;
    if (is_zero(w) || e == top_exponent<T>) return ordinary;
    if (e == 0) {
        w = w * type::scale;
        e = biased_exponent(w) - type::up;
    }
    const int m = *n > 65536 ? 65536 : *n < -65536 ? -65536 : *n;
    const int s = e + m;
    const bool negative = is_negative(w);
    if (s >= top_exponent<T>) {
        *result = type::large[negative] * type::large[0];
        return overflow;
    }
    if (s > 0) {
        *result = with_biased_exponent(w, s);
        return ordinary;
    }
    if (s > -(fraction_bits<T> + 1)) {
        *result = with_biased_exponent(w, s + type::up) * type::scale_back; // the one rounding
        if (!is_zero(*result)) return ordinary;
    }
    *result = type::small[negative] * type::small[0];
    return underflow;
}

// The exponent of a subnormal x.
template <class T> int subnormal_exponent(T x) {
    return biased_exponent(x * of_type<T>::scale) - exponent_bias<T> - of_type<T>::up;
}

template <class T> int ilogb_rare(const T* x, int32_t* result) {
    if (biased_exponent(*x) == top_exponent<T>) return *result = INT32_MAX, domain_error;
    if (is_zero(*x)) return *result = INT32_MIN, domain_error;
    *result = subnormal_exponent(*x);
    return ordinary;
}

template <class T> int logb_rare(const T* x, T* result) {
    const T w = *x * T(1.0);
    if (is_zero(w)) return *result = T(-1.0) / T(0.0), domain_error;
    *result = biased_exponent(w) == top_exponent<T> ? magnitude(w) : T(subnormal_exponent(w));
    return ordinary;
}

template <class T> int nextafter_rare(const T* x, const T* y, T* result) {
    if (is_nan(*x) || is_nan(*y)) return *result = nan_of(*x, *y), ordinary;
    if (*x == *y) return *result = *y, ordinary; // where both are zeros, the second one
    if (is_zero(*x)) return *result = of_type<T>::least[is_negative(*y)], underflow;
    const bool down = is_negative(*x) != is_negative(*y) || magnitude(*x) > magnitude(*y);
    *result = std::bit_cast<T>(bits(*x) + (down ? pattern<T>(-1) : pattern<T>(1)));
    const int e = biased_exponent(*result);
    return e == 0 ? underflow : e == top_exponent<T> ? overflow : ordinary;
}

} // namespace

ORVANE_SLOW_PATH(__orvane_dfrexp_cout_rare, const double* x, double* result, int32_t* out) {
    return frexp_rare(x, result, out);
}
ORVANE_SLOW_PATH(__orvane_sfrexp_cout_rare, const float* x, float* result, int32_t* out) {
    return frexp_rare(x, result, out);
}
ORVANE_SLOW_PATH(__orvane_dldexp_cout_rare, const double* x, const int32_t* n, double* result) {
    return ldexp_rare(x, n, result);
}
ORVANE_SLOW_PATH(__orvane_sldexp_cout_rare, const float* x, const int32_t* n, float* result) {
    return ldexp_rare(x, n, result);
}
ORVANE_SLOW_PATH(__orvane_dilogb_cout_rare, const double* x, int32_t* result) { return ilogb_rare(x, result); }
ORVANE_SLOW_PATH(__orvane_silogb_cout_rare, const float* x, int32_t* result) { return ilogb_rare(x, result); }
ORVANE_SLOW_PATH(__orvane_dlogb_cout_rare, const double* x, double* result) { return logb_rare(x, result); }
ORVANE_SLOW_PATH(__orvane_slogb_cout_rare, const float* x, float* result) { return logb_rare(x, result); }
ORVANE_SLOW_PATH(__orvane_dnextafter_cout_rare, const double* x, const double* y, double* result) {
    return nextafter_rare(x, y, result);
}
ORVANE_SLOW_PATH(__orvane_snextafter_cout_rare, const float* x, const float* y, float* result) {
    return nextafter_rare(x, y, result);
}

} // namespace orvane
