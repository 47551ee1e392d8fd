#include "hyperbolic/hyperbolic_tables.h"

namespace orvane {

constexpr hi_lo<double> __dsinh_g_CoutTab[65] = {
#include "exp/tables/exp2_64_pairs.inc"
    2.0, 0.0};
ORVANE_TABLE_TWIN(__ssinh_g_CoutTab, __dsinh_g_CoutTab)
ORVANE_TABLE_TWIN(__dcosh_g_CoutTab, __dsinh_g_CoutTab)
ORVANE_TABLE_TWIN(__scosh_g_CoutTab, __dsinh_g_CoutTab)
constexpr double __dtanh_g__orwdTanhTab[2] = {1.0, -1.0};

} // namespace orvane
