// tgamma and tgammaf: the gamma function, lane by lane through the slow path.
#include "frame/_orvane_template.h"
#include "frame/rare.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dtgamma_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_stgamma_cout_rare, const float* x, float* result);

template <class T, auto& Rare> struct tgamma_kernel : kernel<one_argument<T>, no_block, Rare> {
    static constexpr bool all_lanes = true;
};
using dtgamma_kernel = tgamma_kernel<double, __orvane_dtgamma_cout_rare>;
using stgamma_kernel = tgamma_kernel<float, __orvane_stgamma_cout_rare>;
ORVANE_EXPORT(tgamma, , dtgamma_kernel)
ORVANE_EXPORT(tgammaf, , stgamma_kernel)

} // namespace orvane
