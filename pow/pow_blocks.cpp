#include "pow/pow_blocks.h"

namespace orvane {

constexpr dpow_block __orvane_dpow_data{};
constexpr dpow_rm_block __orvane_dpow_rm_data{};
constexpr spow_block __orvane_spow_data{};
constexpr spow_rm_block __orvane_spow_rm_data{};
ORVANE_BLOCK_TWIN(__orvane_dpowr_data, __orvane_dpow_data)
ORVANE_BLOCK_TWIN(__orvane_dpow_native_data, __orvane_dpow_rm_data)
ORVANE_BLOCK_TWIN(__orvane_dpowr_native_data, __orvane_dpow_rm_data)
ORVANE_BLOCK_TWIN(__orvane_dpowr_half_data, __orvane_dpow_rm_data)
ORVANE_BLOCK_TWIN(__orvane_spow_native_data, __orvane_spow_rm_data)
ORVANE_BLOCK_TWIN(__orvane_spowr_native_data, __orvane_spow_rm_data)
ORVANE_BLOCK_TWIN(__orvane_spowr_half_data, __orvane_spow_rm_data)

} // namespace orvane
