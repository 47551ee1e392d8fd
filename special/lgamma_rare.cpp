// The slow paths of lgamma and lgammar, in extended precision.
#include "special/lgamma_rare.h"
#include "special/lgamma_pieces.h"
#include "special/lgamma_roots.h"
#include "special/logl_rare.h"

namespace orvane {

using namespace lgamma_pieces;
using namespace lgamma_roots;

namespace {

// log gamma(y) for y from 0.875 to 512.
[[gnu::noinline]] extended own_lgamma_pos(extended y) { return log_gamma(double(y), y); }

// shifted_up with the product in two parts: each factor and the product's head are split so that the product of
// their leading parts is exact.
extended shifted_up_compensated(extended x) {
    constexpr double S = 0x1p33 + 1;
    extended y = x, hi = 1, lo = 0;
    do {
        const extended a = (y + y * S) - y * S, c = y - a;
        const extended b = (hi + hi * S) - hi * S, e = lo + (hi - b);
        const extended g = (c * e + e * a) + b * c, m = a * b;
        const extended h = m + g;
        lo = g - (h - m);
        hi = h;
        y = y + 1;
    } while (y < 1);
    return own_lgamma_pos(y) - own_logl(hi < 0 ? -hi : hi);
}

// Fit on 512 <= x <= 2^60: (x - 1/2)*log(x) + log(2*pi)/2 - x + (ld_stir2/x^3 + ld_stir1/x) = lgamma(x)
// to 2^-66.7 relative
constexpr extended ld_stir1 = 0xAAAAAAAAAAAAAAABp-67L;
constexpr double ld_stir2 = f64(0xBF66C16C16C16C17);
// Stirling's series for log gamma(x), with L = ln|x|; for x < 0 with the other sign of ln(2 pi) / 2.
extended stirling(extended x, extended L, extended half_log2pi) {
    const extended V = ((x + -0.5L) * L + half_log2pi) - x;
    const extended t = 1 / x;
    return V + t * (t * t * ld_stir2 + ld_stir1);
}

extended log_gamma_of_positive(double x) {
    if (x == 1) return 0;
    if (x >= 512) return stirling(x, own_logl(x), lg_half_log2pi);
    if (x >= 0.875) return own_lgamma_pos(x);
    return own_lgamma_pos(1 + extended(x)) - own_logl(x);
}

extended log_gamma_of_negative(double x) {
    if (x > -15) {
        if (x < -2) {
            const double above = -3 - x;
            const int k = int(above) + (above > 0); // its ceiling
            if (inside(_LRIB[k], x)) return left_root(k, extended(x));
            if (inside(_RRIB[k], x)) return right_root(k, extended(x));
        }
        return shifted_up(x, own_lgamma_pos, own_logl);
    }
    if (x > -17) return shifted_up_compensated(x);

    // gamma(x) gamma(A) = pi / (x sin(pi x)), A = -x; T = ln(sin(pi r) / (pi r)), r the distance to the nearest
    // integer R.
    // Fit on |r| <= 1/2, z = r^2, w = r^4: z*(w^3*horner(w, ld_sinp) + horner(w, ld_sinp_e)) +
    // w*(w^3*horner(w, ld_sinq) + horner(w, ld_sinq_e)) = log(sin(pi*r)/(pi*r)) to 2^-56.8 relative
    constexpr double ld_sinp[] = {f64(0x3FD36D6D6CE263D7), f64(0xBF9957F5146FC7AF), f64(0xBFBBE1703F315086),
                                  f64(0xBFC248DEC29CAC4A)};
    constexpr extended ld_sinp_e[] = {-0xCD00EFF2F8F86899p-66L, -0xADA06587FACD668Bp-65L, -0xD28D3312983E98A0p-63L};
    constexpr double ld_sinq[] = {f64(0xBFDC1BF0931AE591), f64(0xBFD23AB9E6CC88AC), f64(0xBFBD516F4FD9FB18),
                                  f64(0xBFC007B324E23040)};
    constexpr extended ld_sinq_e[] = {-0xAAB5A3CCEFCD3628p-66L, -0x80859B5C318E19A5p-65L, -0x8A8991563EC7EB33p-64L};
    constexpr double shifter = 0x1.8p52;
    const double A = -x;
    const double R = double(extended(shifter) - x) + -shifter;
    const extended r = to_nearest_integer(A, R);
    const extended z = r * r, w = z * z;
    const extended P = horner_from(w, horner(w, ld_sinp), ld_sinp_e);
    const extended Q = horner_from(w, horner(w, ld_sinq), ld_sinq_e);
    const extended T = z * P + w * Q;
    const extended L = own_logl(A);
    const extended Lr = own_logl(r < 0 ? -r : r);
    if (x > -512) return ((-L - own_lgamma_pos(A)) - T) - Lr;
    return (stirling(x, L, -lg_half_log2pi) - T) - Lr;
}

[[gnu::noinline]] int lgamma_rare(const double* x, double* result) {
    constexpr double largest = f64(0x7F5754D9278B51A8 - 1);
    int status;
    if (no_log_gamma(*x, largest, result, &status)) return status;
    *result = *x > 0 ? log_gamma_of_positive(*x) : log_gamma_of_negative(*x);
    return ordinary;
}

} // namespace

ORVANE_SLOW_PATH(__orvane_dlgamma_cout_rare, const double* x, double* result) {
    return with_64_bit_significands<lgamma_rare>(x, result);
}
ORVANE_SLOW_PATH(__orvane_dlgammar_cout_rare, const double* x, double* result, int* sign) {
    *sign = sign_of_gamma(*x);
    return __orvane_dlgamma_cout_rare(x, result);
}

} // namespace orvane
