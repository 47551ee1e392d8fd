// The scalar logarithms of the slow paths: every operation rounds by itself, in the order written.
#pragma once

#include "log/log_tables.h"

namespace orvane {

// Arguments without a finite logarithm: true, with result and status, for NaN, infinities, zeros and negatives.
template <class T> bool no_logarithm(T x, T* result, int* status) {
    if (biased_exponent(x) == top_exponent<T>) {
        const bool negative = x == -T(__builtin_inf());
        *result = negative ? invalid<T> : x * x; // +Inf, or the NaN quieted
        *status = negative ? domain_error : ordinary;
        return true;
    }
    if (x > 0) return false;
    *result = x == 0 ? -T(__builtin_inf()) : invalid<T>;
    *status = x == 0 ? pole : domain_error;
    return true;
}

// The entry for M rounded to a multiple of 1/64: a sum whose last place that is has it in its low bits.
inline int entry_of(double M) { return int(bits(f64(0x42D0000000000040) + M) & 127); }
inline int entry_of(float M) { return int(bits(f32(0x48000040) + M) & 127); }

// ln(M 2^K) = ln M R + K ln 2 - ln R. M is cut so that its leading part times R is exact, and so is K ln2_hi + hi.
template <class T> struct ln_constants;
template <> struct ln_constants<double> {
    static constexpr double cut = 2097152.0; // leaves multiples of 2^-31
    static constexpr double ln2_hi = f64(0x3FE62E42FEFA3800), ln2_lo = f64(0x3D2EF35793C76730);
    // Fit on |v| <= 2^-6.9: v + v^2*horner(v, p) = log(1 + v) to 2^-63.1 relative
    static constexpr double p[] = {f64(0xBFC000B405A2836D),
                                   f64(0x3FC249C02481059D),
                                   f64(0xBFC555555228B38F),
                                   f64(0x3FC9999997B36C81),
                                   f64(0xBFD0000000000262),
                                   f64(0x3FD5555555555613),
                                   -0.5};
    static constexpr auto& entries = __dln_g_CoutTab;
};
template <> struct ln_constants<float> {
    static constexpr float cut = 8192.0f; // leaves multiples of 2^-10
    static constexpr float ln2_hi = f32(0x3F317200), ln2_lo = f32(0x35BFBE8E);
    // Fit on |v| <= 2^-6.9: v + v^2*horner(v, p) = log(1 + v) to 2^-40.4 relative
    static constexpr float p[] = {f32(0xBE0005A0), f32(0x3E124E01), f32(0xBE2AAAAB), f32(0x3E4CCCCD),
                                  f32(0xBE800000), f32(0x3EAAAAAB), f32(0xBF000000)};
    static constexpr auto& entries = __sln_g_CoutTab;
};

template <class T> T ln_rare(T M, T K) {
    using c = ln_constants<T>;
    const auto [R, hi, lo] = c::entries[entry_of(M)];
    const T Mh = (M + c::cut) - c::cut, Ml = M - Mh;
    const T t = Mh * R + T(-1), u = Ml * R;
    const T A = K * c::ln2_hi + hi, Bl = K * c::ln2_lo + lo;
    const T v = t + u;
    const T P = (horner(v, c::p) * v) * v;
    return ((u + Bl) + P) + (t + A);
}

} // namespace orvane
