// log|gamma| in double next to its zeros on the negative axis: the polynomials of the slow path, for any type that
// holds extended values.
#pragma once

#include "special/lgamma_rare.h"

#include <initializer_list>

namespace orvane::lgamma_roots {

// The zeros of log|gamma| in (-3 - k, -2 - k), the left and the right one of each interval.
constexpr root_window _LRIB[13] = {
#include "special/tables/lgamma_LRIB.inc"
};
constexpr root_window _RRIB[13] = {
#include "special/tables/lgamma_RRIB.inc"
};
// Polynomials in the distance to a window's centre: around the left zeros lgamma_LRP_row_0.inc to 2^-59.5 relative
// and lgamma_LRP_rows_1_12.inc to 2^-62.7 relative, around the right ones lgamma_RRP_row_0.inc to 2^-63.8 relative
// and lgamma_RRP_rows_1_12.inc to 2^-59.6 relative. E holds the lowest powers, D the others in the order of the steps
// below.
struct left_row {
    extended E[5];
    double D[11];
    double unused[3] = {};
};
struct right_row {
    extended E[4];
    double D[12];
};
static_assert(sizeof(left_row) == 192 && sizeof(right_row) == 160);
constexpr left_row _LRP[13] = {
#include "special/tables/lgamma_LRP_row_0.inc"
#include "special/tables/lgamma_LRP_rows_1_12.inc"
};
// Coefficients of the 16th power, the highest.
constexpr double _LRP16[13] = {
#include "special/tables/lgamma_LRP16_row_0.inc"
#include "special/tables/lgamma_LRP16_rows_1_12.inc"
};
constexpr right_row _RRP[13] = {
#include "special/tables/lgamma_RRP_row_0.inc"
#include "special/tables/lgamma_RRP_rows_1_12.inc"
};

// Horner's scheme carried on from r, the coefficients in an order of their own.
template <class V, class C> V horner_in_order(V v, V r, const C& c, std::initializer_list<int> order) {
    for (int i : order)
        r = r * v + c[i];
    return r;
}
template <class V> V left_root(int k, V x) {
    const auto& [E, D, unused] = _LRP[k];
    const V u = x - _LRIB[k].centre, v = u * u;
    const V P = horner_in_order(v, horner_in_order(v, V(_LRP16[k]), D, {9, 7, 5, 3, 1}), E, {4, 2, 0});
    const V Q = horner_in_order(v, horner_in_order(v, V(D[10]), D, {8, 6, 4, 2, 0}), E, {3, 1});
    return P + u * Q;
}
template <class V> V right_root(int k, V x) {
    const auto& [E, D] = _RRP[k];
    const V u = x - _RRIB[k].centre, v = u * u;
    const V P = horner_in_order(v, horner_in_order(v, V(D[1]), D, {7, 3, 9, 5, 11}), E, {2, 0});
    const V Q = horner_in_order(v, horner_in_order(v, V(D[0]), D, {6, 2, 8, 4, 10}), E, {3, 1});
    return P + u * Q;
}

} // namespace orvane::lgamma_roots
