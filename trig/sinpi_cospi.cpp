// sinpi, cospi: sin(pi x) and cos(pi x). The integer part of x goes exactly, so that no argument is large and no lane
// special: Inf and NaN give NaN from the first subtraction.
#include "frame/_orvane_template.h"

namespace orvane {

struct ssinpi_block {
    SLOT(float, 0, abs_mask, 0x7FFFFFFF)
    SLOT(float, 1, half, 0x3F000000) // 0.5
    SLOT(float, 2, sign_mask, 0x80000000)
    SLOT(float, 3, zero, 0x00000000)
    // Fit on |g| <= 1/2: g*(a0 + a1*g^2 + a2*g^4 + a3*g^6 + a4*g^8) = sin(pi*g) to 2^-24.7 relative
    SLOT(float, 4, a4, 0x3D9F0000) // 0.0776367188, coefficient of z^4
    SLOT(float, 5, a3, 0xBF1929AD) // -0.598292172, of z^3
    SLOT(float, 6, a2, 0x40233479) // 2.55007768, of z^2
    SLOT(float, 7, a1, 0xC0A55DE2) // -5.1677103, of z
    SLOT(float, 8, a0, 0x40490FDB) // 3.14159274, pi
};
ORVANE_BLOCK(ssinpi_block, __orvane_ssinpi_data)
ORVANE_BLOCK_TWIN(__orvane_ssinpi_native_data, __orvane_ssinpi_data)
ORVANE_BLOCK_TWIN(__orvane_scospi_data, __orvane_ssinpi_data)
ORVANE_BLOCK_TWIN(__orvane_scospi_native_data, __orvane_ssinpi_data)

// The first slots, which the blocks of sine and cosine share. (The sine does not read slot 3, the cosine's 1/2.)
#define ORVANE_PARITY_CONSTANTS                                                                                      \
    SLOT(double, 0, abs_mask, 0x7FFFFFFFFFFFFFFF)                                                                    \
    SLOT(double, 1, two52, 0x4330000000000000) /* 2^52 */                                                            \
    SLOT(double, 2, two53, 0x4340000000000000) /* 2^53 */                                                            \
    SLOT(double, 3, half, 0x3FE0000000000000)  /* 0.5 */                                                             \
    SLOT(double, 4, sign_mask, 0x8000000000000000)                                                                   \
    SLOT(double, 5, zero, 0x0000000000000000)
// sin(pi g) / g in g^2 for abs(g) <= 1/2, from slot `first` on.
// Fit on |g| <= 1/2: g*(a0 + a1*g^2 + a2*g^4 + a3*g^6 + a4*g^8 + a5*g^10 + a6*g^12 + a7*g^14 + a8*g^16) =
// sin(pi*g) to 2^-54.5 relative
#define ORVANE_SINE_OF_9_TERMS(first)                                                                                \
    SLOT(double, first, a8, 0x3EA9D46B06CE620E)       /* 7.697867779764488e-07 */                                    \
    SLOT(double, (first) + 1, a7, 0xBEF6F7AD23B5CD51) /* -2.1903501175879917e-05 */                                  \
    SLOT(double, (first) + 2, a6, 0x3F3E8F3677C334D3) /* 0.00046629981785601993 */                                   \
    SLOT(double, (first) + 3, a5, 0xBF7E3074DFB5BB14) /* -0.007370430506269416 */                                    \
    SLOT(double, (first) + 4, a4, 0x3FB50783485523F4) /* 0.0821458865731442 */                                       \
    SLOT(double, (first) + 5, a3, 0xBFE32D2CCE627C9E) /* -0.59926452931894736 */                                     \
    SLOT(double, (first) + 6, a2, 0x400466BC6775AA7D) /* 2.5501640398773007 */                                       \
    SLOT(double, (first) + 7, a1, 0xC014ABBCE625BE52) /* -5.1677127800499694 */                                      \
    SLOT(double, (first) + 8, a0, 0x400921FB54442D18) /* 3.1415926535897931 */
// Fit on |g| <= 1/2: g*(a0 + a1*g^2 + a2*g^4 + a3*g^6 + a4*g^8 + a5*g^10) = sin(pi*g) to 2^-34.2 relative
#define ORVANE_SINE_OF_6_TERMS(first)                                                                                \
    SLOT(double, first, a5, 0xBF7CC9E2457440BA)       /* -0.0070284689638954682 */                                   \
    SLOT(double, (first) + 1, a4, 0x3FB501422DFC7159) /* 0.082050453402591997 */                                     \
    SLOT(double, (first) + 2, a3, 0xBFE32D12F805BE40) /* -0.59925220910913168 */                                     \
    SLOT(double, (first) + 3, a2, 0x400466BC06D54F0B) /* 2.5501633199545544 */                                       \
    SLOT(double, (first) + 4, a1, 0xC014ABBCE51D46FF) /* -5.1677127646560157 */                                      \
    SLOT(double, (first) + 5, a0, 0x400921FB54442D18) /* 3.1415926535897931 */
struct dsinpi_block {
    ORVANE_PARITY_CONSTANTS
    GAP(6, 6)
    ORVANE_SINE_OF_9_TERMS(7)
};
struct dsinpi_native_block {
    ORVANE_PARITY_CONSTANTS
    GAP(6, 6)
    ORVANE_SINE_OF_6_TERMS(7)
};
struct dcospi_block {
    ORVANE_PARITY_CONSTANTS
    ORVANE_SINE_OF_9_TERMS(6)
};
struct dcospi_native_block {
    ORVANE_PARITY_CONSTANTS
    ORVANE_SINE_OF_6_TERMS(6)
};
ORVANE_BLOCK(dsinpi_block, __orvane_dsinpi_data_avx2)
ORVANE_BLOCK(dsinpi_native_block, __orvane_dsinpi_native_data_avx2)
ORVANE_BLOCK(dcospi_block, __orvane_dcospi_data_avx2)
ORVANE_BLOCK(dcospi_native_block, __orvane_dcospi_native_data_avx2)

// x = n + f with the integer n nearest to it and f exact, abs(f) <= 1/2.
template <class T, int W> struct turned {
    lanes<T, W> f;
    lanes<T, W> parity; // of n, in the sign bit
};
template <int W> ORVANE_INLINE turned<float, W> without_integer(const auto&, lanes<float, W> x) {
    auto n = round_to<to_nearest>(x);
    auto f = x - n;
    return {f, as<float>(convert<int32_t>(n) << 31)}; // beyond their range, where floats are even, an even integer
}
// In doubles a shift of the value brings the integer into the low bits; above 2^53 all doubles are even.
template <int W> ORVANE_INLINE turned<double, W> without_integer(const auto& c, lanes<double, W> x) {
    auto n = round_to<to_nearest>(x);
    auto f = x - n;
    auto an = n & c.abs_mask;
    an = an + keep(an < c.two52, lanes<double, W>(c.two52));
    an = min(an, lanes<double, W>(c.two53));
    return {f, as<double>(bits(an) << 63)};
}

// sin(pi g) with the sign turned by s.
template <int W> ORVANE_INLINE auto signed_sine(const auto& c, lanes<float, W> g, lanes<float, W> s) {
    auto z = g * g;
    auto P = horner(z, c.a4, c.a3, c.a2, c.a1, c.a0);
    return (g * P) ^ s;
}
template <int W> ORVANE_INLINE auto signed_sine(const auto& c, lanes<double, W> g, lanes<double, W> s) {
    auto z = g * g;
    lanes<double, W> P;
    if constexpr (requires { c.a8; }) P = horner(z, c.a8, c.a7, c.a6, c.a5, c.a4, c.a3, c.a2, c.a1, c.a0);
    else P = horner(z, c.a5, c.a4, c.a3, c.a2, c.a1, c.a0);
    return P * (g ^ s);
}

// sin(pi x) = (-1)^n sin(pi f); an integer gives a zero of its own sign.
template <class T, const auto& Block> struct sinpi_kernel : kernel<one_argument<T>, Block> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        auto [f, parity] = without_integer(c, x);
        auto s = select(f != c.zero, parity, x & c.sign_mask);
        return signed_sine(c, f, s);
    }
};

// cos(pi x) = (-1)^n sin(pi (1/2 - abs(f))); half an odd integer gives +0.
template <class T, const auto& Block> struct cospi_kernel : kernel<one_argument<T>, Block> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        auto [f, parity] = without_integer(c, x);
        auto g = lanes<T, W>(c.half) - (f & c.abs_mask);
        auto s = keep(g != c.zero, parity);
        return signed_sine(c, g, s);
    }
};

using ssinpi_kernel = sinpi_kernel<float, __orvane_ssinpi_data>;
using scospi_kernel = cospi_kernel<float, __orvane_ssinpi_data>;
using dsinpi_kernel = sinpi_kernel<double, __orvane_dsinpi_data_avx2>;
using dcospi_kernel = cospi_kernel<double, __orvane_dcospi_data_avx2>;
using dsinpi_native_kernel = sinpi_kernel<double, __orvane_dsinpi_native_data_avx2>;
using dcospi_native_kernel = cospi_kernel<double, __orvane_dcospi_native_data_avx2>;

// Largest known error of sinpif: 2.453 ulp at 0x401FFA27
ORVANE_EXPORT_SETTLED(sinpif, , ssinpi_kernel)
ORVANE_TWIN_SETTLED(sinpif, _native, sinpif, )
// Largest known error of cospif: 2.454 ulp at 0x39BB1E00
ORVANE_EXPORT_SETTLED(cospif, , scospi_kernel)
ORVANE_TWIN_SETTLED(cospif, _native, cospif, )
// Largest known error of sinpi: 2.481 ulp at 0xC051E006B5327895
ORVANE_EXPORT_SETTLED(sinpi, , dsinpi_kernel)
// Largest known error of sinpi_native: 5.162e-11 relative at 0x4054611086B1CF39
ORVANE_EXPORT_SETTLED(sinpi, _native, dsinpi_native_kernel)
// Largest known error of cospi: 2.526 ulp at 0xBFF00000FC17E2F1
ORVANE_EXPORT_SETTLED(cospi, , dcospi_kernel)
// Largest known error of cospi_native: 5.162e-11 relative at 0xBF91077E0E8A09F7
ORVANE_EXPORT_SETTLED(cospi, _native, dcospi_native_kernel)

} // namespace orvane
