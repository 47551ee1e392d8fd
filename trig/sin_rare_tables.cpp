#include "trig/sin_rare.h"

namespace orvane {

constexpr scalar_angle_table __dsin_g_CoutTab[1] = {{
    {
#include "trig/tables/angle_scalar.inc"
    },
    f64(0x40245F306DC9C883),
    f64(0x4338000000000000),
    f64(0x3FB921FB54400000),
    f64(0x3D90B4611A600000),
    f64(0x3B63198A2E037073),
    f64(0xBFC5555555555555),
    f64(0x3F81111111111111),
    f64(0xBF2A01A01A01A01A),
    f64(0x3EC71DE3A556C734),
    f64(0xBFE0000000000000),
    f64(0x3FA5555555555555),
    f64(0xBF56C16C16C16C17),
    f64(0x3EFA01A01A01A01A),
    {},
    f64(0x4360000000000000),
    f64(0x3C80000000000000),
}};
ORVANE_TABLE_TWIN(__dcos_g_CoutTab, __dsin_g_CoutTab)
ORVANE_TABLE_TWIN(__dsincos_g__orvdSinCosFullCoutTab, __dsin_g_CoutTab)
ORVANE_TABLE_TWIN(__dsincosreg_g__orvdSinCosFullCoutTab, __dsin_g_CoutTab)

} // namespace orvane
