// Tests on the fields of floating lanes that the utilities share.
#pragma once

#include "frame/lanes.h"

namespace orvane {

template <class T> constexpr uint_of<T> exponent_field = sizeof(T) == 8 ? uint_of<T>(0x7FF0000000000000) : 0x7F800000;

// The 32-bit word with sign and exponent, and what stands below it.
template <class T, int W> ORVANE_INLINE lanes<uint32_t, W> top_words(lanes<T, W> x) {
    if constexpr (sizeof(T) == 8) return high_words(x);
    else return bits(x);
}
template <class T, int W> ORVANE_INLINE lanes<uint32_t, W> rest_of_words(lanes<T, W> x) {
    if constexpr (sizeof(T) == 8) return low_words(x);
    else return lanes<uint32_t, W>(0u);
}

// Infinities and NaN: the exponent field is all ones.
template <class T, int W> ORVANE_INLINE auto not_finite(lanes<T, W> x) {
    const lanes<uint_of<T>, W> field(exponent_field<T>);
    return (bits(x) & field) == field;
}
// The same of x or of y. 32-bit patterns have a maximum, which saves a comparison.
template <class T, int W> ORVANE_INLINE auto either_not_finite(lanes<T, W> x, lanes<T, W> y) {
    if constexpr (sizeof(T) == 4) {
        const lanes<int32_t, W> magnitude(0x7FFFFFFF);
        return max(signed_bits(x) & magnitude, signed_bits(y) & magnitude) > lanes<int32_t, W>(0x7F7FFFFF);
    } else return not_finite(x) | not_finite(y);
}

} // namespace orvane
