// Tables of the logarithms.
#pragma once

#include "frame/rare.h"

namespace orvane {

// In kernels' blocks: pairs whose first part is short enough to be added to a multiple of the biased exponent
// exactly, the second ABSOLUTE; and single values. The index is the integer c (or v) that the reciprocal was rounded
// to, reached by the bits of c itself.
inline constexpr table<hi_lo<double>, 513> ln_pairs = {{
#include "log/tables/ln_pairs.inc"
}};
inline constexpr table<double, 513> ln_single = {{
#include "log/tables/ln_single.inc"
}};
inline constexpr table<hi_lo<double>, 513> log2_pairs_513 = {{
#include "log/tables/log2_pairs.inc"
}};
inline constexpr table<double, 513> log2_single_513 = {{
#include "log/tables/log2_single.inc"
}};
inline constexpr table<hi_lo<double>, 257> log10_pairs_257 = {{
#include "log/tables/log10_pairs.inc"
}};
inline constexpr table<double, 513> log10_single_513 = {{
#include "log/tables/log10_single.inc"
}};
inline constexpr table<hi_lo<float>, 129> log2f_pairs_129 = {{
#include "log/tables/log2f_pairs.inc"
}};
inline constexpr table<hi_lo<float>, 129> log10f_pairs_129 = {{
#include "log/tables/log10f_pairs.inc"
}};
inline constexpr table<hi_lo<float>, 129> ln1pf_pairs_129 = {{
#include "log/tables/ln1pf_pairs.inc"
}};

// In slow paths: R near 1 / (1 + i/64) times the family's constant, and the logarithm of what R takes away.
template <class T> struct rare_log_entry { T R, hi, lo; };
ORVANE_TABLE(rare_log_entry<double>, __dln_g_CoutTab, 65);
ORVANE_TABLE(rare_log_entry<float>, __sln_g_CoutTab, 65);
ORVANE_TABLE(rare_log_entry<double>, __dlog10_g_CoutTab, 65);
ORVANE_TABLE(rare_log_entry<float>, __slog10_g_CoutTab, 65);
ORVANE_TABLE(rare_log_entry<float>, __slog2_g_CoutTab, 65);
// 1 / (1 + (i + 1/2) / 256) to a multiple of 2^-11, and (lo, hi) of -log2 of that.
ORVANE_TABLE(float, __dlog2_g___libm_rcp_table_256, 256);
struct lo_hi {
    double lo, hi;
};
ORVANE_TABLE(lo_hi, __dlog2_g___libm_log2_table_256, 256);

} // namespace orvane
