#include "trig/reduction_tables.h"

namespace orvane {

constexpr reduction_row_f32 __orvane_stan_reduction_data[256] = {
#include "trig/tables/reduction_f32.inc"
};
ORVANE_TABLE_TWIN(__orvane_stan_rm_reduction_data, __orvane_stan_reduction_data)
ORVANE_TABLE_TWIN(__orvane_stan_native_reduction_data, __orvane_stan_reduction_data)
ORVANE_TABLE_TWIN(__orvane_stan_half_reduction_data, __orvane_stan_reduction_data)

constexpr reduction_row_f64 __orvane_dtan_reduction_data[2048] = {
#include "trig/tables/reduction_f64.inc"
};
ORVANE_TABLE_TWIN(__orvane_dtan_rm_reduction_data, __orvane_dtan_reduction_data)
ORVANE_TABLE_TWIN(__orvane_dtan_native_reduction_data, __orvane_dtan_reduction_data)
ORVANE_TABLE_TWIN(__orvane_dtan_half_reduction_data, __orvane_dtan_reduction_data)

} // namespace orvane
