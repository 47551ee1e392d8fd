#include "exp/exp_tables.h"

namespace orvane {

constexpr hi_lo<double> _orvdExpHATab[64] = {
#include "exp/tables/exp2_64_relative.inc"
};
ORVANE_TABLE_TWIN(_orwdExpHATab, _orvdExpHATab)
ORVANE_TABLE_TWIN(__dexp2_g__orwdExp2HATab, _orvdExpHATab)
ORVANE_TABLE_TWIN(__sexp2_g__orwdExp2HATab, _orvdExpHATab)
ORVANE_TABLE_TWIN(__dexp10_g__orwdExp10Tab, _orvdExpHATab)
ORVANE_TABLE_TWIN(__sexp10_g__orwsExp10Tab, _orvdExpHATab)

} // namespace orvane
