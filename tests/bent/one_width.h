// Stands behind the frame in kernels of the bent library: instances of eight lanes are enough, for the steps are
// those of all widths.
#pragma once

#undef ORVANE_AT_ALL_WIDTHS
#define ORVANE_AT_ALL_WIDTHS(INSTANCE, family, tier, ...) INSTANCE(family, 8, tier, __VA_ARGS__)
