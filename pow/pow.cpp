// pow: x^y.
#include "pow/pow_kernels.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dpow_cout_rare, const double* x, const double* y, double* result);

using pow_default = pow_in_pairs<__orvane_dpow_data, __orvane_dpow_cout_rare>;
using pow_reduced = pow_by_chords<__orvane_dpow_rm_data, __orvane_dpow_cout_rare>;
// Largest known error of pow: 2.101 ulp at 0x3FEFF8F44443549E,0x41290091A6DD1637, with one processor's estimates
// Largest known error of pow, slow path: 0.7547 ulp at 0x3FEFFA3FE4CBC330,0x412ECA2D437078FA
ORVANE_EXPORT(pow, , pow_default)
// Largest known error of pow_rm: 1.432e-08 relative at 0x4A5B23B92430CCFB,0xC002DA69305D63C5, with one processor's estimates
// Largest known error of pow_rm, slow path: 0.7531 ulp at 0x7F4C903F0E48E1C9,0xBFF021B17997B5DF
ORVANE_EXPORT(pow, _rm, pow_reduced)
ORVANE_TWIN(pow, _native, pow, _rm)

} // namespace orvane
