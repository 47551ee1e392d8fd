#include "invtrig/atan2_tables.h"

namespace orvane {

namespace {

constexpr atan2_table common = {
    .atan_pairs =
        {
#include "invtrig/tables/atan_pairs.inc"
        },
    // Fit on |z| <= 1/8: z + z^3*horner_up(z^2, at_p) = atan(z) to 2^-61.8 relative
    .at_p = {f64(0xBFD5555555555555), f64(0x3FC99999999991BB), f64(0xBFC2492492382A27), f64(0x3FBC71C6F9B157D3),
             f64(0xBFB745BE69CCA475), f64(0x3FB3AB7C1048AFD1), f64(0xBFB029BD34239994)},
    .eighth = 0.125,
    .one = 1.0,
    .two = 2.0,
    .quarter_pi = {f64(0x3FE921FB54442D18), f64(0x3C81A62633145C07)},
    .half_pi = {f64(0x3FF921FB54442D18), f64(0x3C91A62633145C07)},
    .pi = {f64(0x400921FB54442D18), f64(0x3CA1A62633145C07)},
    .three_quarter_pi = {f64(0x4002D97C7F3321D2), f64(0x3C9A79394C9E8A0A)},
    .minus_one = -1.0,
    .zero = 0.0,
    .huge = 0x1p1022,
    .tiny = 0x1p-1022,
    .split = 134217729.0,
};

} // namespace

constexpr atan2_table __datan2_g_CoutTab[1] = {common};
ORVANE_TABLE_TWIN(__satan2_g_CoutTab, __datan2_g_CoutTab)
constexpr datan2pi_table __datan2pi_g_CoutTab[1] = {
    {common, f64(0x3FD45F3070000000), f64(0xBE21B1BBEAD603D9), 0x1p82, 0x1p-82, 0x1p-128}};
constexpr satan2pi_table __satan2pi_g_CoutTab[1] = {{common, f64(0x3FD45F306DC9C883)}};

} // namespace orvane
