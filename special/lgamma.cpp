// lgamma and lgammar, log|gamma(x)|, the second with the sign of gamma(x) as out-lane: lane by lane through the slow
// path.
#include "frame/_orvane_template.h"
#include "frame/rare.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dlgamma_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_dlgammar_cout_rare, const double* x, double* result, int* sign);

template <class Signature, auto& Rare> struct lgamma_kernel : kernel<Signature, no_block, Rare> {
    static constexpr bool all_lanes = true;
};
using dlgamma_kernel = lgamma_kernel<one_argument<double>, __orvane_dlgamma_cout_rare>;
using dlgammar_kernel = lgamma_kernel<pointer_out<double, int32_t>, __orvane_dlgammar_cout_rare>;
ORVANE_EXPORT(lgamma, , dlgamma_kernel)
ORVANE_EXPORT(lgammar, , dlgammar_kernel)

} // namespace orvane
