// Stands before the double gamma kernels of the unrounded library, in four lanes: what they hand to their rounding
// test is stored where a test finds it.
#pragma once

#include "frame/_orvane_template.h"

#define rounding_test silent_rounding_test
#include "special/gamma_lanes.h"
#undef rounding_test

extern "C" [[gnu::visibility("default")]] double orvane_unrounded[3][4]; // h, l and the margin

namespace orvane {

template <int W> ORVANE_INLINE auto rounding_test(hi_lo_lanes<W> v, lanes<double, W> E) {
    store_lanes<double, W>(orvane_unrounded[0], v.h);
    store_lanes<double, W>(orvane_unrounded[1], v.l);
    store_lanes<double, W>(orvane_unrounded[2], E);
    return silent_rounding_test(v, E);
}

} // namespace orvane

#undef ORVANE_AT_ALL_WIDTHS
#define ORVANE_AT_ALL_WIDTHS(INSTANCE, family, tier, ...) INSTANCE(family, 4, tier, __VA_ARGS__)
