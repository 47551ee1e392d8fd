// Included after the frame in kernels of the bent library: instances of eight lanes are enough, since the steps are
// the same at all widths.
#pragma once

#undef ORVANE_AT_ALL_WIDTHS
#define ORVANE_AT_ALL_WIDTHS(INSTANCE, family, tier, ...) INSTANCE(family, 8, tier, __VA_ARGS__)
