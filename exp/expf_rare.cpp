// The slow path of expf, in double: e^x = 2^(n/64) * e^r with a table of 64 entries and a polynomial of degree 6.
#include "exp/exp_tables.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_sexp_cout_rare, const float* x, float* result) {
    const float v = *x;
    if ((bits(v) & 0x7F800000) == 0x7F800000) {
        *result = bits(v) == 0xFF800000 ? 0.0f : v * v; // +0 of -Inf; +Inf, and NaN quieted
        return ordinary;
    }
    if (v > f32(0x42B17217)) { // 88.72283
        *result = __builtin_inff();
        return overflow;
    }
    if (v < f32(0xC2CFF1B4)) { // -103.97208
        *result = 0.0f;
        return underflow;
    }

    const double d = v;
    const double w = d * f64(0x40571547652B82FE) + f64(0x4338000000000000); // 64 / ln 2; 1.5 * 2^52
    const double n = w + f64(0xC338000000000000);
    const uint32_t b = (uint32_t)bits(w), j = b & 63, e = b >> 6; // for x < 0 e is large: its low bits count
    const auto [hi, lo] = _orvdExpHATab[j];

    // -ln 2 / 64 in a high part with trailing zeros, so that n * high is exact, and a low part.
    const double r = (n * f64(0xBF862E42FEFA0000) + d) + n * f64(0xBD1CF79ABC9E3B3A);
    double p = f64(0x3F56C16A1C2A3FFD);
    p = p * r + f64(0x3F8111123AAF20D3);
    p = p * r + f64(0x3FA5555555558FCC);
    p = p * r + f64(0x3FC55555555548F8);
    p = p * r + 0.5;
    const double q = (((p * r) * r + r) + lo) * hi;

    if (v >= f32(0xC2AEAC4F)) { // -87.33654
        *result = (float)((hi + q) * power_of_two(e + 1023));
        return ordinary;
    }
    // The result may be subnormal as a float: the sum is cut at the last bit that counts and what falls off it, with
    // the sum's own error, is added last, so that the rounding to float is the only one that shows.
    const double scale = power_of_two(e + 1083); // 2^(e + 60)
    const double a = hi * scale, c = q * scale;
    const double s = a + c, error = c + (a - s);
    const double shifter = s * f64(0x41F8000000000000); // 1.5 * 2^32
    const double h = (s + shifter) - shifter;
    constexpr double back = f64(0x3C30000000000000); // 2^-60
    *result = (float)(h * back + back * (error + (s - h)));
    return underflow;
}

} // namespace orvane
