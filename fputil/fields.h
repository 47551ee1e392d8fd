// What the slow paths of the utilities take values apart with.
#pragma once

#include "frame/rare.h"

namespace orvane {

template <class T> using pattern = decltype(bits(T()));
template <class T> constexpr pattern<T> sign_bit = pattern<T>(1) << (8 * sizeof(T) - 1);

template <class T> bool is_negative(T v) { return bits(v) & sign_bit<T>; }
template <class T> bool is_nan(T v) { return v != v; }
template <class T> T magnitude(T v) { return std::bit_cast<T>(bits(v) & ~sign_bit<T>); }

// What an operation on x and y gives if one of them is a NaN: that of two is x, quieted. Written out since the compiler
// may exchange the operands of a sum or a product.
template <class T> T nan_of(T x, T y) { return (is_nan(x) ? x : y) * T(1.0); }

} // namespace orvane
