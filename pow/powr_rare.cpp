// The slow paths of powr and powrf: x^y as e^(y ln x), so that x is not negative, 0^0, Inf^0 and 1^Inf have no value,
// and 0^y has no sign.
#include "pow/pow_rare.h"

namespace orvane {

namespace {

template <class T> int powr_rare(T x, T y, T* result) {
    constexpr T infinity = T(__builtin_inf());
    auto settled = [=](T value, int status = ordinary) {
        *result = value;
        return status;
    };
    const auto none = [=] { return is_nan(y) || is_nan(x) ? no_number<T> : invalid_operation<T>(); };
    if (is_nan(x) || (x == infinity && y == 0)) return settled(none());
    if (x == 0 && !is_nan(y)) return settled(y == 0 ? invalid_operation<T>() : y > 0 ? T(0) : infinity);
    if (x == 1) return settled(is_nan(y) || is_infinite(y) ? none() : T(1));
    if (is_negative(x)) return settled(none(), domain_error);
    if (y == 0) return settled(T(1));
    if (is_nan(y)) return settled(x + y);
    if (is_infinite(x) || is_infinite(y)) {
        if (x >= 1) return settled(y < 0 ? T(0) : (x * x) * y);
        return settled(y < 0 ? y * y : T(0));
    }
    const auto p = power<leading_head, parted_finish>(x, parts_of(y), T(1));
    return settled(p.value, p.status);
}

} // namespace

ORVANE_SLOW_PATH(__orvane_dpowr_cout_rare, const double* x, const double* y, double* result) {
    return powr_rare(*x, *y, result);
}
ORVANE_SLOW_PATH(__orvane_spowr_cout_rare, const float* x, const float* y, float* result) {
    return powr_rare(*x, *y, result);
}

} // namespace orvane
