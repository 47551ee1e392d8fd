#include "trig/sin_rare.h"

namespace orvane {

constexpr scalar_angle_table __dsin_g_CoutTab[1] = {{
    .row =
        {
#include "trig/tables/angle_scalar.inc"
        },
    .m32_pi = f64(0x40245F306DC9C883),
    .m_shift = f64(0x4338000000000000),
    .p32_a = f64(0x3FB921FB54400000),
    .p32_b = f64(0x3D90B4611A600000),
    .p32_c = f64(0x3B63198A2E037073),
    // Fit on |r| <= pi/64: r + t_s1*r^3 + t_s2*r^5 + t_s3*r^7 + t_s4*r^9 = sin(r) to 2^-65.2 relative
    .t_s1 = f64(0xBFC5555555555555),
    .t_s2 = f64(0x3F81111111111111),
    .t_s3 = f64(0xBF2A01A01A01A01A),
    .t_s4 = f64(0x3EC71DE3A556C734),
    // Fit on |r| <= pi/64: 1 + t_c1*r^2 + t_c2*r^4 + t_c3*r^6 + t_c4*r^8 = cos(r) to 2^-65.3 relative
    .t_c1 = f64(0xBFE0000000000000),
    .t_c2 = f64(0x3FA5555555555555),
    .t_c3 = f64(0xBF56C16C16C16C17),
    .t_c4 = f64(0x3EFA01A01A01A01A),
    .unread = {},
    .two55 = 0x1p55,
    .two_m55 = 0x1p-55,
}};
ORVANE_TABLE_TWIN(__dcos_g_CoutTab, __dsin_g_CoutTab)
ORVANE_TABLE_TWIN(__dsincos_g__orvdSinCosFullCoutTab, __dsin_g_CoutTab)
ORVANE_TABLE_TWIN(__dsincosreg_g__orvdSinCosFullCoutTab, __dsin_g_CoutTab)

} // namespace orvane
