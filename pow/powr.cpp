// powr: x^y for x >= 0. The kernels are pow's: what they leave to the slow path is where the two differ.
#include "pow/pow_kernels.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dpowr_cout_rare, const double* x, const double* y, double* result);

using powr_default = pow_in_pairs<__orvane_dpowr_data, __orvane_dpowr_cout_rare>;
using powr_reduced = pow_by_chords<__orvane_dpowr_native_data, __orvane_dpowr_cout_rare>;
ORVANE_EXPORT(powr, , powr_default)
ORVANE_EXPORT(powr, _native, powr_reduced)
ORVANE_TWIN(powr, _half, powr, _native)

} // namespace orvane
