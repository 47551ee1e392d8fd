#include "trig/reduction_tables.h"

namespace orvane {

constexpr reduction_row_f32 __orvane_stan_reduction_data[256] = {
#include "trig/tables/reduction_f32.inc"
};
ORVANE_TABLE_TWIN(__orvane_stan_rm_reduction_data, __orvane_stan_reduction_data)
ORVANE_TABLE_TWIN(__orvane_stan_native_reduction_data, __orvane_stan_reduction_data)
ORVANE_TABLE_TWIN(__orvane_stan_half_reduction_data, __orvane_stan_reduction_data)
ORVANE_TABLE_TWIN(__orvane_ssin_reduction_data, __orvane_stan_reduction_data)
ORVANE_TABLE_TWIN(__orvane_ssin_rm_reduction_data, __orvane_stan_reduction_data)
ORVANE_TABLE_TWIN(__orvane_ssin_native_reduction_data, __orvane_stan_reduction_data)
ORVANE_TABLE_TWIN(__orvane_ssin_half_reduction_data, __orvane_stan_reduction_data)
ORVANE_TABLE_TWIN(__orvane_scos_reduction_data, __orvane_stan_reduction_data)
ORVANE_TABLE_TWIN(__orvane_scos_rm_reduction_data, __orvane_stan_reduction_data)
ORVANE_TABLE_TWIN(__orvane_scos_native_reduction_data, __orvane_stan_reduction_data)
ORVANE_TABLE_TWIN(__orvane_scos_half_reduction_data, __orvane_stan_reduction_data)

constexpr reduction_row_f64 __orvane_dtan_reduction_data[2048] = {
#include "trig/tables/reduction_f64.inc"
};
ORVANE_TABLE_TWIN(__orvane_dtan_rm_reduction_data, __orvane_dtan_reduction_data)
ORVANE_TABLE_TWIN(__orvane_dtan_native_reduction_data, __orvane_dtan_reduction_data)
ORVANE_TABLE_TWIN(__orvane_dtan_half_reduction_data, __orvane_dtan_reduction_data)
ORVANE_TABLE_TWIN(__orvane_dsin_reduction_data, __orvane_dtan_reduction_data)
ORVANE_TABLE_TWIN(__orvane_dcos_reduction_data, __orvane_dtan_reduction_data)
ORVANE_TABLE_TWIN(__orvane_dsincos_reduction_data, __orvane_dtan_reduction_data)
ORVANE_TABLE_TWIN(__orvane_dsincosreg_reduction_data, __orvane_dtan_reduction_data)

constexpr scalar_reduction_table __dsin_g_ReductionTab[1] = {{
    {f64(0x0000000000000000), f64(0xBFF0000000000000)},
    {f64(0x3FF0000000000000), f64(0xBFF0000000000000)},
    f64(0x4198000000000000),
    0.0,
    f64(0x3FE921FB40000000),
    f64(0x3E64442D18469899),
    f64(0x3FF45F306DC9C883),
    0.0,
    {f64(0x3FE921FB54000000), f64(0x3E010B4612000000), f64(0xBC2676733C000000), f64(0x3A61701B839A2520)},
    {f64(0x3FE921FA00000000), f64(0x3EA5444300000000), f64(0xBD373DCA00000000), f64(0xBBF3B39A00000000),
     f64(0x3A845C06E0E68948)},
    0.0,
    0.0,
    {
#include "trig/tables/four_over_pi.inc"
    },
}};
ORVANE_TABLE_TWIN(__dcos_g_ReductionTab, __dsin_g_ReductionTab)
ORVANE_TABLE_TWIN(__dsincos_g_ReductionTab, __dsin_g_ReductionTab)
ORVANE_TABLE_TWIN(__dsincosreg_g_ReductionTab, __dsin_g_ReductionTab)

} // namespace orvane
