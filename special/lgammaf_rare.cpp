// The slow paths of lgammaf and lgammarf: extended arithmetic under the process's control word, but for the
// logarithm, which is double arithmetic.
#include "log/log_tables.h"
#include "special/lgamma_rare.h"
#include "special/lgammaf_pieces.h"

namespace orvane {

using namespace lgammaf_pieces;

namespace {

// (lo, hi): -ln of the reciprocals 1 / (1 + (i + 1/2) / 256), hi a double with its low 32 bits clear.
constexpr lo_hi __libm_log_table_256[256] = {
#include "special/tables/log_256.inc"
};

double without_low_word(double v) { return f64(bits(v) & 0xFFFFFFFF00000000); }

// ln x for a positive normal x, to a little less than double.
[[gnu::noinline]] double own_log(double x) {
    constexpr double ol_third = f64(0x3FD5555555555555);
    const uint32_t h = uint32_t(bits(x) >> 32);
    if (h >= 0x3FEFFF00 && h <= 0x3FF0007F) { // 1 and what is within 2^-13 of it
        // Fit on |d| <= 2^-13, z = d^2: d + d*(z*(ol_t0*z + ol_third) + d*(ol_t1*z - 1/2)) = log(1 + d)
        // to 2^-69.2 relative
        constexpr double ol_t0 = f64(0x3FC99999A199B4B4), ol_t1 = f64(0xBFD0000003555556);
        if (x == 1) return 0;
        const double d = x + -1;
        const double z = d * d;
        double a = ol_t0 * z + ol_third;
        const double b = (ol_t1 * z + -0.5) * d;
        a = a * z + b;
        return a * d + d;
    }
    if (h >= 0x3FEF8000 && h < 0x3FF04000) { // within 2^-6: d - d^2 / 2 with d^2 in two exact parts
        // Fit on |d| <= 2^-6, z = d^2: d - z/2 + z*(d*horner(z, ol_m) + z*horner(z, ol_n)) = log(1 + d)
        // to 2^-68.1 relative
        constexpr double ol_m[] = {f64(0x3FBC756A566CE20D), f64(0x3FC2492478D1D116), f64(0x3FC99999999A2B21),
                                   ol_third};
        constexpr double ol_n[] = {f64(0xBFB99D9A03A0403E), f64(0xBFBFFFFFB94B8A57), f64(0xBFC5555555566AD6),
                                   f64(0xBFCFFFFFFFFFFFFC)};
        const double d = x + -1;
        const double z = d * d;
        const double dh = without_low_word(d);
        const double hh = dh * dh;
        const double h2 = without_low_word(hh);
        const double hl = hh - h2;
        double s = horner(z, ol_m);
        double t = horner(z, ol_n);
        s = s * d;
        const double dl = d - dh;
        t = t * z;
        s = s + t;
        const double m = (dl + dh) * dl;
        s = s * z + dl;
        const double n = (dl * dh + m) + hl;
        return (n * -0.5 + s) + (h2 * -0.5 + dh);
    }
    // x = 2^e y: ln y = ln(1 + r) - ln c, r = y c - 1 in two parts, the first exact.
    constexpr double ln2_hi = f64(0x3FE62E42FEE00000), ln2_lo = f64(0x3DEA39EF35793C76);
    // Fit on |r| <= 2^-8.8, z = r^2: r + z*((ol_a0*z + ol_a1)*z - 1/2) + r*z*(ol_b0*z + ol_b1) = log(1 + r)
    // to 2^-59.3 relative
    constexpr double ol_a0 = f64(0xBFC5555F7BD1FCD4), ol_a1 = f64(0xBFCFFFFFFFFE169D),
                     ol_b0 = f64(0x3FC999A24CDB6ABC), ol_b1 = f64(0x3FD555555554D0DF);
    const double e = int(h >> 20) - 1023;
    const int i = h >> 12 & 0xFF;
    const double y = f64((bits(x) & 0x000FFFFFFFFFFFFF) | 0x3FF0000000000000);
    const double yh = without_low_word(y);
    const double yl = y - yh;
    const double c = __dlog2_g___libm_rcp_table_256[i];
    const double eh = e * ln2_hi + __libm_log_table_256[i].hi;
    const double el = e * ln2_lo + __libm_log_table_256[i].lo;
    const double r0 = yh * c + -1;
    const double r1 = yl * c;
    const double r = r0 + r1;
    const double z = r * r;
    double p = (ol_a0 * z + ol_a1) * z + -0.5;
    const double q = ((ol_b0 * z + ol_b1) * r) * z;
    p = p * z + q;
    p = p + r1;
    return (r0 + eh) + (p + el);
}

// log gamma(y) for y in [1, 2], and from 4 to 8192.
[[gnu::noinline]] extended own_lgammaf_pos(extended y) { return log_gamma(double(y), y); }

// Around the zeros of log|gamma| in (-3, -2) and in (-4, -3): the left and the right one of each interval.
struct root_cubic {
    root_window window;
    double P[4];
    extended at(extended x) const { return horner(x - window.centre, P); }
};
constexpr root_cubic left_roots[2] = {
    // Fit on lower <= x <= upper, u = x - centre: horner(u, P) = lgamma(x) to 2^-64.8 absolute
    {.window = {.lower = f64(0xC005FB43A9328A1D),
                .centre = f64(0xC005FB410A1BD901),
                .upper = f64(0xC005FB3E6B0527E5)},
     .P = {f64(0xC034185AC31314FF), f64(0x4023267F3C28DFE3), f64(0xBFFEA12DA904B194), f64(0x3CA8FB8530BA7689)}},
    // Fit on lower <= x <= upper, u = x - centre: horner(u, P) = lgamma(x) to 2^-42.8 absolute
    {.window = {.lower = f64(0xC00FA47BD0D6F455),
                .centre = f64(0xC00FA471547C2FE5),
                .upper = f64(0xC00FA45D80000000)},
     .P = {f64(0xC0AD25359E70C888), f64(0x406F76DEAEA1B8C6), f64(0xC034B99D966C5644), f64(0xBCBDDC0336980B58)}},
};
constexpr root_cubic right_roots[2] = {
    // Fit on lower <= x <= upper, u = x - centre: horner(u, P) = lgamma(x) to 2^-67.5 absolute
    {.window = {.lower = f64(0xC003A7FF3517A988),
                .centre = f64(0xC003A7FC9600F86C),
                .upper = f64(0xC003A7F9F6EA4750)},
     .P = {f64(0x3FF694A6058D9592), f64(0x40136EEBB003A92B), f64(0x3FF83FE966AF5360), f64(0x3C90323B6D1FE86D)}},
    // Fit on lower <= x <= upper, u = x - centre: horner(u, P) = lgamma(x) to 2^-61.5 absolute
    {.window = {.lower = f64(0xC00926105BB50ACB),
                .centre = f64(0xC009260DBC9E59AF),
                .upper = f64(0xC009260B1D87A893)},
     .P = {f64(0x405C11371268DA38), f64(0x4039D4D2977D2C23), f64(0x401F20A65F2FAC62), f64(0x3CDE9605E3AE7A62)}},
};

float to_integer_nearest(float x) { return (12582912.0f - x) + -12582912.0f; } // of -x

extended log_gamma_of_positive(float x) {
    if (x == 1 || x == 2) return 0;
    if (x >= 8192) { // Stirling's series up to its constant term
        // Fit on 8192 <= x <= 2^40: (x - 1/2)*log(x) + log(2*pi)/2 - x = lgamma(x) to 2^-32.6 relative
        const extended L = own_log(x);
        return ((x + -0.5L) * L + lg_half_log2pi) - x;
    }
    if (x < 1) return own_lgammaf_pos(x + 1.0L) - own_log(x);
    if (x > 2 && x < 4) return log_gamma_from_2_to_4(extended(x));
    return own_lgammaf_pos(x);
}

extended log_gamma_of_negative(float x) {
    if (x > -9) {
        if (x < -2 && x > -4) {
            const int k = bits((-2.5f - x) + 12582912.0f) & 1;
            if (inside(left_roots[k].window, x)) return left_roots[k].at(x);
            if (inside(right_roots[k].window, x)) return right_roots[k].at(x);
        }
        return shifted_up(x, own_lgammaf_pos, own_log);
    }
    // gamma(x) gamma(A) = pi / (x sin(pi x)), A = -x
    const float A = -x;
    const extended r = to_nearest_integer(A, to_integer_nearest(x));
    const extended z = r * r;
    const double distance = r < 0 ? -r : r;
    extended T;
    if (x > -8192) {
        const extended w = z * z;
        const extended H = -extended(own_log(A)) - own_lgammaf_pos(A);
        const extended P = ((lg_sin[1] * w + lg_sin[3]) * w + lg_sin[5]) * w + lg_sin[7];
        const extended Q = ((lg_sin[0] * w + lg_sin[2]) * w + lg_sin[4]) * w + lg_sin[6];
        T = H - (w * Q + z * P);
    } else {
        const extended L = own_log(A);
        const extended V = ((x + -0.5L) * L + -lg_half_log2pi) - x;
        T = V - z * horner(z, lg_sin);
    }
    return T - own_log(distance);
}

} // namespace

ORVANE_SLOW_PATH(__orvane_slgamma_cout_rare, const float* x, float* result) {
    constexpr float largest = f32(0x7C44AF8D);
    int status;
    if (no_log_gamma(*x, largest, result, &status)) return status;
    *result = *x > 0 ? log_gamma_of_positive(*x) : log_gamma_of_negative(*x);
    return ordinary;
}
ORVANE_SLOW_PATH(__orvane_slgammar_cout_rare, const float* x, float* result, int* sign) {
    *sign = sign_of_gamma(*x);
    return __orvane_slgamma_cout_rare(x, result);
}

} // namespace orvane
