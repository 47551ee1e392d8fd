#include "exp/exp_tables.h"

namespace orvane {

constexpr hi_lo<double> _orvdExpHATab[64] = {
#include "exp/tables/exp2_64_relative.inc"
};

} // namespace orvane
