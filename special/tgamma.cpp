// tgamma: the gamma function, lane by lane through the slow path.
#include "frame/_orvane_template.h"
#include "frame/rare.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dtgamma_cout_rare, const double* x, double* result);

struct dtgamma_kernel : kernel<one_argument<double>, no_block, __orvane_dtgamma_cout_rare> {
    static constexpr bool all_lanes = true;
};
ORVANE_EXPORT(tgamma, , dtgamma_kernel)

} // namespace orvane
