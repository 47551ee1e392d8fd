// The slow paths of cbrt and rcbrt.
#include "divroot/root_rare.h"

namespace orvane {

// Subnormals. r is a seed of 1 / cbrt(m): a = mh r^2 is near the root, and a factor (1 - e)^(-2/3) with e = 1 - m r^3
// corrects it; everything is kept as hi + lo.
ORVANE_SLOW_PATH(__orvane_dcbrt_cout_rare, const double* x, double* result) {
    constexpr auto& T = __dcbrt_g__orvdCbrtTab;
    const double v0 = *x;
    if (biased_exponent(v0) == top_exponent<double> || v0 == 0) {
        *result = v0 == 0 ? v0 : v0 + v0;
        return ordinary;
    }
    const double ax = __builtin_fabs(v0) * T.scale_up;
    const int exponent = biased_exponent(ax), q = (exponent * 0x5556) >> 16, rem = exponent - 3 * q;
    const double m = significand(ax), r = T.cbrt_seed[bits(ax) >> 47 & 31], r2 = r * r;

    const double mh = leading(m, T.seed_splitter), ml = m - mh;
    const double a = mh * r2, b = r2 * ml;
    const double e1 = 1.0 - a * r, eh = leading(e1, T.splitter);
    const double d = (e1 - eh) - r * b, ee = eh + d;

    // v + vl = ((1 - e)^(-2/3) - 1) / e, v split.
    const double p = horner_up(ee, T.k) * ee;
    const auto [c0, c0_lo] = T.two_thirds;
    const double v = p + c0, vc = c0 - v, vh = leading(v, T.splitter);
    const double vl = (((p + vc) + (c0 - (v + vc))) + c0_lo) + (v - vh);

    const double f = eh * vh, fh = leading(f, T.splitter), g = a * fh;
    const double s = a + g, s1 = a - s, sh = leading(s, T.splitter);
    double h = d * vl + vh * d;
    h = vl * eh + h;
    h = h + (f - fh);
    const double Z = (((g + s1) + (a - (s + s1))) + (s - sh)) + (h * a + (fh * b + b * h)) + b;

    const auto [Th, Tl] = T.two_roots[rem];
    const double R = sh * Th + (Z * Th + (Tl * Z + sh * Tl));
    *result = (R * power_of_two(q - 441 + 1023)) * T.sign[bits(v0) >> 63];
    return ordinary;
}

// The kernels' formula on a scaled subnormal: the table's point is the centre of the interval.
ORVANE_SLOW_PATH(__orvane_scbrt_cout_rare, const float* x, float* result) {
    constexpr auto& T = __scbrt_g_vscbrt_ha_cout_data;
    if (biased_exponent(*x) == top_exponent<float> || *x == 0) {
        *result = *x == 0 ? *x : *x + *x;
        return ordinary;
    }
    const float v = *x * 0x1p126f;
    const uint32_t top = bits(v) >> 23, e = top & 0xFF, i = bits(v) >> 18 & 31;
    const float minus_m = f32((bits(v) & 0x007FFFFF) | 0xBF800000),
                minus_c = f32((bits(v) & 0x007C0000) | 0xBF820000);
    const float u = (minus_m - minus_c) * T.neg_rcp_f.entry[i];
    const uint32_t q = (e * 1365) >> 12, rem = e - 3 * q - 1;
    const float scale = f32(((q | (top & 0x100)) << 23) + 0x2A800000);
    const auto [hi, lo] = T.root_pairs_f.entry[32 * rem + i];
    const float HS = hi * scale, LS = lo * scale;
    // Fit on |u| <= 2^-6: 1 + u*horner_up(u, coefficients) = cbrt(1 + u) to 2^-32.9 relative
    constexpr float coefficients[] = {f32(0x3EAAAAAB), f32(0xBDE38E39), f32(0x3D7CD6EA), f32(0xBD288F47)};
    const float P = horner_up(u, coefficients);
    *result = ((LS + (u * HS) * P) + HS) * 0x1p-42f;
    return ordinary;
}

namespace {

// 1 / cbrt(x) for finite x other than 0.
double reciprocal_cube_root(double x) {
    constexpr auto& T = _orvdInvCbrtHATab;
    const bool subnormal = biased_exponent(x) == 0;
    const double ax = subnormal ? __builtin_fabs(x) * T.scale_up : __builtin_fabs(x);
    const int exponent = biased_exponent(ax) - 1023, third = exponent / 3, rem0 = exponent - 3 * third;
    const int rem = rem0 < 0 ? rem0 + 3 : rem0;
    const double m = significand(ax), M = m * (1 << rem);
    const int i = bits(m + T.index_shifter) & 63; // m to a multiple of 1/32, in the last places
    const double r = T.rcbrt_seed[32 * rem + i], r3 = (r * r) * r;

    // e1 = 1 - M r^3, and (1 - e1)^(-1/3) as a polynomial in e1.
    const double Mh = leading(M, T.splitter), Ml = M - Mh;
    const double a = r3 * Ml, e0 = 1.0 - Mh * r3, e1 = e0 - a, eh = leading(e0, T.splitter);
    const double c = T.third_hi, b = (eh * r) * c;
    const double v = e1 * T.third_lo + horner_up(e1, T.j) * e1 * e1;
    const double s = r + b;
    const double y = (((e0 - eh) * c + (a * -c + v)) * r + ((r - s) + b)) + s;
    const double scale = power_of_two((subnormal ? 1053 : 1023) - third + (rem0 < 0));
    return y * __builtin_copysign(scale, x);
}

template <class T> int rcbrt_rare(T x, T* result) {
    if (x == 0) {
        *result = T(1.0) / x;
        return pole;
    }
    if (biased_exponent(x) == top_exponent<T>) *result = (x != x ? x : T(0.0)) / x;
    else *result = T(reciprocal_cube_root(x));
    return ordinary;
}

} // namespace

ORVANE_SLOW_PATH(__orvane_dinvcbrt_cout_rare, const double* x, double* result) { return rcbrt_rare(*x, result); }
ORVANE_SLOW_PATH(__orvane_sinvcbrt_cout_rare, const float* x, float* result) { return rcbrt_rare(*x, result); }

} // namespace orvane
