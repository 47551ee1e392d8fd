// Tables that the slow paths of the exponentials share.
#pragma once

#include "frame/rare.h"

namespace orvane {

// 2^(j/64), j = 0 to 63: hi rounded to nearest, lo RELATIVE: 2^(j/64) = hi * (1 + lo), lo rounded.
extern "C" [[gnu::visibility("hidden")]] const hi_lo<double> _orvdExpHATab[64];

} // namespace orvane
