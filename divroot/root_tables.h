// Tables of the roots. Those of the cube roots have a row of 32 for each remainder of the exponent by 3, an entry for
// the top five fraction bits i: of the interval's centre c(i) = 1 + (2i + 1)/64 in kernels (and in one slow path), of
// its lower end 1 + i/32 in the seeds of the other slow paths.
#pragma once

#include "frame/rare.h"

namespace orvane {

// -1 / c(i), rounded to nearest.
inline constexpr table<double, 32> cbrt_neg_rcp = {{
#include "divroot/tables/cbrt_neg_rcp.inc"
}};
inline constexpr table<float, 32> cbrtf_neg_rcp = {{
#include "divroot/tables/cbrtf_neg_rcp.inc"
}};

// cbrt(2^rem c(i)) and its reciprocal as hi + lo: hi cut toward zero, lo rounded.
inline constexpr table<hi_lo<double>, 96> cbrt_pairs = {{
#include "divroot/tables/cbrt_pairs.inc"
}};
inline constexpr table<hi_lo<double>, 96> rcbrt_pairs = {{
#include "divroot/tables/rcbrt_pairs.inc"
}};
inline constexpr table<hi_lo<float>, 96> cbrtf_pairs = {{
#include "divroot/tables/cbrtf_pairs.inc"
}};
inline constexpr table<hi_lo<float>, 96> rcbrtf_pairs = {{
#include "divroot/tables/rcbrtf_pairs.inc"
}};
// cbrt(2^rem / r(i)) with r(i) = (1 + i/32) / 2, hi rounded to nearest.
inline constexpr table<hi_lo<float>, 96> cbrtf_rcp_pairs = {{
#include "divroot/tables/cbrtf_rcp_pairs.inc"
}};

// The hi parts alone.
template <class T, int N> constexpr table<T, N> hi_parts(const table<hi_lo<T>, N>& pairs) {
    table<T, N> hi{};
    for (int i = 0; i < N; i++)
        hi.entry[i] = pairs.entry[i].hi;
    return hi;
}

// 1 / sqrt((1 + i/32) 2^o) to a multiple of 2^-13: i = 0 to 31 for o = 0, then i = 0 to 32 for o = 1.
ORVANE_TABLE(double, __dinvsqrt_g__orvdInvSqrtHATab, 65);
// 1 / sqrt((1 + i/256) 2^o) to a multiple of 2^-11: i = 0 to 255 for o = 0, then for o = 1.
ORVANE_TABLE(double, _orvdSqrtHATab, 512);

// The slow path of cbrtf: -1 / c(i), and cbrt(2^rem c(i)) as hi + lo.
struct scbrt_rare_table {
    table<float, 32> neg_rcp_f;
    table<hi_lo<float>, 96> root_pairs_f;
};
extern "C" [[gnu::visibility("hidden")]] const scbrt_rare_table __scbrt_g_vscbrt_ha_cout_data;

// The slow path of cbrt: (1 + i/32)^(-1/3) cut to a multiple of 2^-8, the series of (1 - v)^(-2/3), its first
// coefficient in two parts, and 2^(rem/3) as hi + lo.
struct dcbrt_rare_table {
    double cbrt_seed[32];
    hi_lo<double> two_thirds;
    double k[11];
    double scale_up, splitter, seed_splitter;
    hi_lo<double> two_roots[3];
    double zero, sign[2];
};
static_assert(sizeof(dcbrt_rare_table) == 57 * 8);
extern "C" [[gnu::visibility("hidden")]] const dcbrt_rare_table __dcbrt_g__orvdCbrtTab;

// The slow paths of rcbrt: 1 / cbrt(2^rem (1 + i/32)) to a multiple of 2^-8, an entry 96 for i = 32 at the end, and a
// polynomial fitted to (1 - v)^(-1/3), its first coefficient in two parts, the high one short for an exact product.
struct rcbrt_rare_table {
    double rcbrt_seed[97];
    double index_shifter, splitter, scale_up;
    double zero, one;
    double third_hi, third_lo, j[7];
};
static_assert(sizeof(rcbrt_rare_table) == 111 * 8);
extern "C" [[gnu::visibility("hidden")]] const rcbrt_rare_table _orvdInvCbrtHATab;

} // namespace orvane
