// What the kernels of the utilities share.
#pragma once

#include "frame/lanes.h"
#include "frame/slots.h"

namespace orvane {

// Constants of kernels that have no block of their own.
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
