// Slow path of tan: Inf and NaN; every finite lane is the kernel's.
#include "frame/rare.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_stan_cout_rare, const float* x, float* result) {
    if (*x != *x) return *result = *x * *x, ordinary;
    *result = *x * 0.0f;
    return domain_error;
}
ORVANE_SLOW_PATH(__orvane_dtan_cout_rare, const double* x, double* result) {
    if (*x != *x) return *result = *x * *x, ordinary;
    *result = *x * 0.0;
    return domain_error;
}

} // namespace orvane
