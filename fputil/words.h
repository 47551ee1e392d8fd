// Tests on the fields of floating lanes that the utilities share, on 32-bit words in their places: a double is its
// high word, and what its low word gives is never looked at, since the sign of a lane is what marks it.
#pragma once

#include "frame/lanes.h"
#include "frame/slots.h"

namespace orvane {

template <class T, int W> ORVANE_INLINE auto words(lanes<T, W> x) {
    if constexpr (sizeof(T) == 8) return words_in_place<int32_t>(x);
    else return signed_bits(x);
}
// A comparison of words as special lanes of T.
template <class T, int W, class M> ORVANE_INLINE lanes<int_of<T>, W> marked(M m) {
    return (typename lanes<int_of<T>, W>::raw)m.v;
}

// Constants that stand in no block of their own.
template <class T> struct fputil_pool;
template <> struct fputil_pool<double> {
    SLOT(int32_t, 0, largest_word, 0x7FEFFFFF) // of a finite magnitude
    SLOT(double, 1, magnitude, 0x7FFFFFFFFFFFFFFF)
    SLOT(double, 2, sign, 0x8000000000000000)
};
template <> struct fputil_pool<float> {
    SLOT(int32_t, 0, largest_word, 0x7F7FFFFF)
    SLOT(float, 1, magnitude, 0x7FFFFFFF)
    SLOT(float, 2, sign, 0x80000000)
};
extern "C" {
inline constexpr fputil_pool<double> __orvane_dfputil_pool;
inline constexpr fputil_pool<float> __orvane_sfputil_pool;
}

} // namespace orvane
