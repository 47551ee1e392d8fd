// The slow paths of lgamma and tgamma, and the logarithm of the first, with the value that they are about to round.
#include "special/lgamma_rare.cpp"
#include "special/tgamma_rare.cpp"

extern "C" {
[[gnu::visibility("default")]] double orvane_unrounded[3][4];
[[gnu::visibility("default")]] void orvane_slow_lgamma(double x, long double* value) {
    *value = x > 0 ? orvane::log_gamma_of_positive(x) : orvane::log_gamma_of_negative(x);
}
[[gnu::visibility("default")]] void orvane_slow_log(double x, long double* value) { *value = orvane::own_logl(x); }
[[gnu::visibility("default")]] void orvane_slow_tgamma(double x, long double* value) {
    orvane::tgamma_rare(&x, value);
}
}
