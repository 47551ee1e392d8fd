// The slow paths of tgamma and tgammaf: float in double, double in extended precision.
//
// On |x| < 2 a polynomial on a piece of [1, 2); from there on a product of quadratics for gamma on the one unit
// interval of each 8 or 16, and a product of shifted arguments to reach it. Negative arguments by reflection,
// gamma(x) gamma(-x) = -pi / (x sin(pi x)), with sin(pi r) / pi of the distance r to the nearest integer.
#include "special/tgamma_pieces.h"

namespace orvane {

namespace {

// gamma(w) on [1, 2); a subnormal x has w = 1.
template <class T, class V> V gamma_from_1_to_2(V w, bool subnormal) {
    const auto& piece = gamma_piece_of<T>(w);
    const double t = w + piece.shift; // rounded to double in extended precision, too
    return subnormal ? piece.c[0] : horner_up(V(t), piece.c);
}

// gamma(A) for A = F + t >= 2, F = n: the row's product G and the product p of A - 1, A - 2 ... that leads to it.
template <class V> struct shifted { V G, p; };
template <class T, class V> shifted<V> gamma_from_2(T A, T F, uint32_t n) {
    using c = tgamma_constants<T>;
    constexpr uint32_t step = 1 << c::shift;
    const uint32_t e = n >= step ? n & (step - 1) : n - 2;
    const V G = gamma_row_product<T>(n, V(A - F));
    V p = 1;
    for (uint32_t i = 1; i <= e; i++)
        p = p * V(T(A - T(i)));
    return {G, p};
}

// The result is T's, or the unrounded value.
template <class T, class Result = T> [[gnu::noinline]] int tgamma_rare(const T* argument, Result* result) {
    using c = tgamma_constants<T>;
    using V = typename c::working;
    using word = decltype(bits(T()));
    const T x = *argument;
    const bool negative = __builtin_isless(x, T(0)); // a NaN raises no flag
    const T A = negative ? -x : x;

    if (!__builtin_isless(A, std::bit_cast<T>(c::infinity))) {
        *result = negative ? std::bit_cast<T>(c::quiet_nan) : x + x;
        return negative ? domain_error : ordinary;
    }
    if (x == 0) {
        *result = 1 / x;
        return pole;
    }
    if (bits(A) <= c::pole_side) {
        *result = (negative ? -c::huge : c::huge) * c::huge;
        return overflow;
    }

    // An integer R next to A, the nearest one in the default rounding mode, its parity the low bit of S; and F below
    // A.
    const T S = A + c::whole, R = S - c::whole;
    const bool above = A < R;
    const T F = above ? R - 1 : R;
    const uint32_t n = uint32_t(bits(S) & word(c::index_mask)) - above;
    V s = 0;
    if (negative) {
        if (A >= c::whole || A == F) {
            *result = std::bit_cast<T>(c::quiet_nan);
            return domain_error;
        }
        if (x < c::neg_zero) {
            *result = (n % 2 ? 1 / c::huge : -1 / c::huge) * (1 / c::huge);
            return c::underflows;
        }
        const T t = A - F;
        s = c::sine(V(t > T(0.5) ? 1 - t : t));
    } else if (x >= c::over) {
        *result = c::huge * c::huge;
        return overflow;
    }

    const V a = A;
    V y;
    if (A < 2) {
        const V P = gamma_from_1_to_2<T>(A < 1 ? a + 1 : a, bits(A) < c::smallest_normal);
        if (negative) y = A < 1 ? -1 / (s * P) : 1 / ((s * a) * P);
        else y = A < 1 ? P / a : P;
    } else {
        const auto [G, p] = gamma_from_2<T, V>(A, F, n);
        if (negative) {
            y = 1 / (((s * a) * G) * p);
            if (x < c::neg_scale) y = y * c::tiny;
            if (n % 2 == 0) y = -y;
        } else y = G * p;
    }
    *result = Result(y);
    return ordinary;
}

} // namespace

ORVANE_SLOW_PATH(__orvane_dtgamma_cout_rare, const double* x, double* result) {
    return with_64_bit_significands<tgamma_rare<double>>(x, result);
}
ORVANE_SLOW_PATH(__orvane_stgamma_cout_rare, const float* x, float* result) { return tgamma_rare(x, result); }

} // namespace orvane
