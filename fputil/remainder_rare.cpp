// The slow paths of fmod, remainder and remquo: long division of the significands as integers, one quotient bit per
// step, and what has no remainder. Every result is exact.
#include "frame/rare.h"

namespace orvane {

namespace {

template <class T> constexpr pattern<T> leading_bit = pattern<T>(1) << fraction_bits<T>;

// A finite nonzero magnitude as significand * 2^(exponent - fraction_bits), leading bit in place; of subnormals too.
template <class T> struct unpacked {
    pattern<T> significand;
    int exponent;
};
template <class T> int shift_to_leading(pattern<T> m) {
    if constexpr (sizeof(T) == 8) return __builtin_clzll(m) - (63 - fraction_bits<T>);
    else return __builtin_clz(m) - (31 - fraction_bits<T>);
}
template <class T> unpacked<T> unpack(T v) {
    const auto fraction = bits(v) & (leading_bit<T> - 1);
    if (const int field = biased_exponent(v)) return {fraction | leading_bit<T>, field - exponent_bias<T>};
    const int n = shift_to_leading<T>(fraction);
    return {fraction << n, 1 - exponent_bias<T> - n};
}
// The inverse, for any nonzero significand. A subnormal result shifts out zeros only, so that it is exact.
template <class T> T pack(unpacked<T> u) {
    const int n = shift_to_leading<T>(u.significand);
    const auto m = u.significand << n;
    const int field = u.exponent - n + exponent_bias<T>;
    if (field <= 0) return std::bit_cast<T>(pattern<T>(m >> (1 - field)));
    return std::bit_cast<T>((m ^ leading_bit<T>) | pattern<T>(field) << fraction_bits<T>);
}

// A = q Y + remainder for A > Y > 0; only the low 32 bits of q are kept.
template <class T> struct quotient_and_remainder {
    uint32_t q;
    T remainder;
};
template <class T> quotient_and_remainder<T> long_division(T A, T Y) {
    const auto [mx, ex] = unpack(A);
    const auto [my, ey] = unpack(Y);
    auto m = mx;
    uint32_t q = 0;
    // One quotient bit: m is below 2 my; my is subtracted where it fits, and the rest doubled for the next bit.
    auto step = [&] {
        const auto rest = m - my;
        const bool fits = m >= my;
        m = fits ? rest : m;
        m = m + m;
        q = q + q + fits;
    };
    int count = ex - ey + 1;
    for (; count >= 8; count -= 8) {
#pragma GCC unroll 8
        for (int i = 0; i < 8; i++)
            step();
    }
    for (; count; count--)
        step();
    return {q, m ? pack<T>({m >> 1, ey}) : T(0)};
}

template <class T> int fmod_rare(const T* x, const T* y, T* result) {
    if (is_nan(*x) || is_nan(*y)) return *result = nan_of(*x, *y), ordinary;
    const T A = magnitude(*x), Y = magnitude(*y);
    if (Y == 0 || is_infinite(A)) return *result = invalid<T>, pole;
    if (A < Y) return *result = *x, ordinary;
    if (A == Y) return *result = *x * T(0), ordinary;
    const T R = long_division(A, Y).remainder;
    *result = R == 0 ? *x * T(0) : with_sign_of(*x, R);
    return ordinary;
}

// Arguments without a remainder.
template <class T> T no_remainder() { return sizeof(T) == 4 ? invalid<T> : invalid_operation<T>(); }

template <class T> int remquo_rare(const T* x, const T* y, T* result, int32_t* out) {
    *out = 0;
    if (is_nan(*x)) return *result = *x * T(1.0), ordinary;
    if (is_nan(*y)) return *result = *y * T(1.0), ordinary;
    const T A = magnitude(*x), Y = magnitude(*y);
    if (Y == 0) return *result = no_remainder<T>(), domain_error;
    if (is_infinite(A)) return *result = no_remainder<T>(), ordinary;
    if (is_infinite(Y) || A == 0) return *result = *x, ordinary;
    const int sq = is_negative(*x) == is_negative(*y) ? 1 : -1;
    if (A == Y) return *out = sq, *result = *x * T(0), ordinary;
    if (A < Y) {
        constexpr T half_of_range = sizeof(T) == 8 ? T(0x1p1023) : T(0x1p127f);
        if (A < half_of_range && Y >= A + A) return *result = *x, ordinary;
        *out = sq;
        *result = *x > 0 ? A - Y : -(A - Y);
        return ordinary;
    }
    auto [q, R] = long_division(A, Y);
    if (R == 0) *result = *x * T(0);
    else {
        const T t = R + R;
        if (t > Y) {
            R = R - Y;
            q++;
        } else if (t == Y && q % 2) { // a tie
            R = -R;
            q++;
        }
        *result = *x > 0 ? R : -R;
    }
    *out = int32_t(q & 0x7FFFFFFF) * sq;
    return ordinary;
}

template <class T> int remainder_rare(const T* x, const T* y, T* result) {
    int32_t quotient;
    return remquo_rare(x, y, result, &quotient);
}

} // namespace

ORVANE_SLOW_PATH(__orvane_dfmod_cout_rare, const double* x, const double* y, double* result) {
    return fmod_rare(x, y, result);
}
ORVANE_SLOW_PATH(__orvane_sfmod_cout_rare, const float* x, const float* y, float* result) {
    return fmod_rare(x, y, result);
}
ORVANE_SLOW_PATH(__orvane_dremainder_cout_rare, const double* x, const double* y, double* result) {
    return remainder_rare(x, y, result);
}
ORVANE_SLOW_PATH(__orvane_sremainder_cout_rare, const float* x, const float* y, float* result) {
    return remainder_rare(x, y, result);
}
ORVANE_SLOW_PATH(__orvane_dremquo_cout_rare, const double* x, const double* y, double* result, int32_t* out) {
    remquo_rare(x, y, result, out);
    return ordinary; // whatever status remainder has
}
ORVANE_SLOW_PATH(__orvane_sremquo_cout_rare, const float* x, const float* y, float* result, int32_t* out) {
    return remquo_rare(x, y, result, out);
}

} // namespace orvane
