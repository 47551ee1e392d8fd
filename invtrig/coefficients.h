// Polynomials of the inverse trigonometric functions: coefficients in slots, highest power first, and the schemes
// that more than one family evaluates them by.
#pragma once

#include "frame/slots.h"

namespace orvane {

template <class T, int N> struct coefficients {
    static constexpr int count = N;
    slot<T, 1> c[N];
    ORVANE_INLINE constexpr const slot<T, 1>& operator[](int i) const { return c[i]; }
};

// Coefficients First, First + Step, ... below Last, each step fused.
template <int First, int Step, int Last, class V, class P> ORVANE_INLINE V chain(V x, const P& p) {
    V a = p[First];
    each<(Last - First - 1) / Step>([&](auto i) ORVANE_LAMBDA { a = fma(a, x, V(p[First + (i + 1) * Step])); });
    return a;
}

template <class T, int W, class U, int N>
ORVANE_INLINE lanes<T, W> horner(lanes<T, W> x, const coefficients<U, N>& p) {
    return chain<0, 1, N>(x, p);
}

// The first N coefficients as two chains in x^2 that run side by side; the one that ends on the last coefficient
// takes the other times x.
template <int N, class V, class P> ORVANE_INLINE V two_chains(V x, const P& p) {
    V x2 = x * x;
    V other = chain<N % 2, 2, N>(x2, p), last = chain<1 - N % 2, 2, N>(x2, p);
    return fma(x, other, last);
}

} // namespace orvane
