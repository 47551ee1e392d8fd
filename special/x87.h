// Extended precision for slow paths: x87 arithmetic with 64-bit significands, each operation rounded by itself.
#pragma once

#include "frame/rare.h"

namespace orvane {

using extended = long double;

// Runs a slow path's steps under a control word with 64-bit significands, its other bits the caller's, and puts the
// caller's word back if it was another. The steps are a function of their own, so that none of their arithmetic can
// move out of the changed state.
template <auto Steps, class... Pointer> int with_64_bit_significands(Pointer... p) {
    constexpr uint16_t precision = 0x0300; // both bits set: 64
    uint16_t callers;
    asm volatile("fnstcw %0" : "=m"(callers) : : "memory");
    if ((callers & precision) == precision) return Steps(p...);
    const uint16_t own = callers | precision;
    asm volatile("fldcw %0" : : "m"(own) : "memory");
    const int status = Steps(p...);
    asm volatile("fldcw %0" : : "m"(callers) : "memory");
    return status;
}

// Horner's scheme at v, carried on from r.
template <class V, class C, int N> V horner_from(V v, V r, const C (&c)[N]) {
    for (int i = 0; i < N; i++)
        r = r * v + c[i];
    return r;
}

} // namespace orvane
