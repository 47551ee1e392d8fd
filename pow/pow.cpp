// pow: x^y.
#include "pow/pow_kernels.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dpow_cout_rare, const double* x, const double* y, double* result);

using pow_default = pow_in_pairs<__orvane_dpow_data, __orvane_dpow_cout_rare>;
using pow_reduced = pow_by_chords<__orvane_dpow_rm_data, __orvane_dpow_cout_rare>;
ORVANE_EXPORT(pow, , pow_default)
ORVANE_EXPORT(pow, _rm, pow_reduced)
ORVANE_TWIN(pow, _native, pow, _rm)

} // namespace orvane
