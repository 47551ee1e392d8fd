// powr: x^y for x >= 0. The kernels are pow's: what they leave to the slow path is where the two differ.
#include "pow/pow_kernels.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dpowr_cout_rare, const double* x, const double* y, double* result);

using powr_default = pow_in_pairs<__orvane_dpowr_data, __orvane_dpowr_cout_rare>;
using powr_reduced = pow_by_chords<__orvane_dpowr_native_data, __orvane_dpowr_cout_rare>;
// Largest known error of powr: 2.101 ulp at 0x3FEFF8F44443549E,0x41290091A6DD1637, with one processor's estimates
// Largest known error of powr, slow path: 0.5115 ulp at 0x000FA3BE050ADA1F,0x3FC48C3C5D4FC77B
ORVANE_EXPORT(powr, , powr_default)
// Largest known error of powr_native: 1.432e-08 relative at 0x4A5B23B92430CCFB,0xC002DA69305D63C5, with one processor's estimates
// Largest known error of powr_native, slow path: 0.5034 ulp at 0x4018A5D8D22A2CD4,0xC0785AC11049E14F
ORVANE_EXPORT(powr, _native, powr_reduced)
ORVANE_TWIN(powr, _half, powr, _native)

} // namespace orvane
