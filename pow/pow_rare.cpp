// The slow paths of pow and powf.
#include "pow/pow_rare.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dpow_cout_rare, const double* x, const double* y, double* result) {
    return power_by_cases(*x, *y, parity_of(*y), result, [=](double sgn) {
        return power<leading_head, joined_finish>(*x, parts_of(*y), sgn).value;
    });
}

ORVANE_SLOW_PATH(__orvane_spow_cout_rare, const float* x, const float* y, float* result) {
    return power_by_cases(*x, *y, parity_of(*y), result,
                          [=](float sgn) { return power<full_head, joined_finish>(*x, parts_of(*y), sgn).value; });
}

} // namespace orvane
