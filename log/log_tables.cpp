#include "log/log_tables.h"

namespace orvane {

constexpr rare_log_entry<double> __dln_g_CoutTab[65] = {
#include "log/tables/ln_rare.inc"
};
constexpr rare_log_entry<float> __sln_g_CoutTab[65] = {
#include "log/tables/lnf_rare.inc"
};
ORVANE_TABLE_TWIN(__dlog1p_g_CoutTab, __dln_g_CoutTab)
ORVANE_TABLE_TWIN(__slog1p_g_CoutTab, __sln_g_CoutTab)
constexpr rare_log_entry<double> __dlog10_g_CoutTab[65] = {
#include "log/tables/log10_rare.inc"
};
constexpr rare_log_entry<float> __slog10_g_CoutTab[65] = {
#include "log/tables/log10f_rare.inc"
};
constexpr rare_log_entry<float> __slog2_g_CoutTab[65] = {
#include "log/tables/log2f_rare.inc"
};
constexpr float __dlog2_g___libm_rcp_table_256[256] = {
#include "log/tables/rcp_256.inc"
};
constexpr lo_hi __dlog2_g___libm_log2_table_256[256] = {
#include "log/tables/log2_256.inc"
};

} // namespace orvane
