// Sines and cosines of the multiples of a part of a turn. In every row cos_head is a power of two, so that products
// with it are exact, and the cosine is cos_head + cos_tail; the sine is sin_hi + sin_lo. The fields stand in another
// order in float and double.
#pragma once

#include "frame/rare.h"

namespace orvane {

template <class T> struct angle_row;
template <> struct angle_row<float> { float cos_tail, sin_hi, sin_lo, cos_head; };
template <> struct angle_row<double> { double cos_tail, cos_head, sin_hi, sin_lo; };

// Row j is the angle 2 pi j/N.
inline constexpr table<angle_row<float>, 256> sin_rows_f32 = {{
#include "trig/tables/angle_f32.inc"
}};
inline constexpr table<angle_row<double>, 512> sin_rows_f64 = {{
#include "trig/tables/angle_f64.inc"
}};

// The same, a quarter of a turn on: steps that give the sine from the one give the cosine from the other.
template <class Row, int N> constexpr table<Row, N> quarter_turned(const table<Row, N>& rows) {
    table<Row, N> turned{};
    for (int j = 0; j < N; j++)
        turned.entry[j] = rows.entry[(j + N / 4) % N];
    return turned;
}
inline constexpr auto cos_rows_f32 = quarter_turned(sin_rows_f32);
inline constexpr auto cos_rows_f64 = quarter_turned(sin_rows_f64);

} // namespace orvane
