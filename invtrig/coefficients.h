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
template <int First, int Step, int Last, class V, class P> ORVANE_INLINE V chain(const P& p, V x) {
    V a = p[First];
    each<(Last - First - 1) / Step>([&](auto i) ORVANE_LAMBDA { a = fma(a, x, V(p[First + (i + 1) * Step])); });
    return a;
}

template <class V, class P> ORVANE_INLINE V horner(const P& p, V x) { return chain<0, 1, P::count>(p, x); }

// The first N coefficients as two chains in x^2 that run side by side; the one that ends on the last coefficient
// takes the other times x.
template <int N, class V, class P> ORVANE_INLINE V two_chains(const P& p, V x) {
    V x2 = x * x;
    V other = chain<N % 2, 2, N>(p, x2), last = chain<1 - N % 2, 2, N>(p, x2);
    return fma(x, other, last);
}

} // namespace orvane
