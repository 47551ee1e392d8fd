// tanpi: tan(pi x), by the quotient of two polynomials in the distance of x to the nearest multiple of 1/2.
#include "frame/_orvane_template.h"
#include "frame/rare.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_stanpi_cout_rare, const float* x, float* result);
ORVANE_SLOW_PATH(__orvane_dtanpi_cout_rare, const double* x, double* result);

struct stanpi_block {
    GAP(0, 79)
    SLOT(float, 80, abs_mask, 0x7FFFFFFF)
    GAP(81, 81)
    SLOT(float, 82, exp_mask, 0x7F800000)
    GAP(83, 101)
    SLOT(float, 102, large_limit, 0x49800000) // 2^20
    SLOT(float, 103, shifter, 0x4AC00000)     // 1.5 * 2^22
    GAP(104, 104)
    // Fit on |f| <= 1/4: f*(p0 + p1*f^2)/(q0 + q1*f^2 + q2*f^4) = tan(pi*f) to 2^-24.7 relative
    SLOT(float, 105, p0, 0x40490FD7) // 3.14159179, numerator, f, not quite pi
    SLOT(float, 106, p1, 0xC03E1BF0) // -2.97045517, numerator, f^3
    SLOT(float, 107, q0, 0x3F7FFFFC) // 0.999999762, denominator, constant term
    SLOT(float, 108, q1, 0xC0878864) // -4.23539925, denominator, f^2
    SLOT(float, 109, q2, 0x3F724E71) // 0.946509421, denominator, f^4
};
struct stanpi_native_block {
    GAP(0, 79)
    SLOT(float, 80, abs_mask, 0x7FFFFFFF)
    GAP(81, 81)
    SLOT(float, 82, exp_mask, 0x7F800000)
    GAP(83, 101)
    SLOT(float, 102, large_limit, 0x49800000) // 2^20
    SLOT(float, 103, shifter, 0x4AC00000)     // 1.5 * 2^22
    GAP(104, 104)
    // Fit on |f| <= 1/4: f*(p0 + p1*f^2)/(q0 + q1*f^2) = tan(pi*f) to 2^-14.7 relative
    SLOT(float, 105, p0, 0x40490FD6) // 3.14159155, numerator, f, not quite pi
    SLOT(float, 106, p1, 0xC009A99A) // -2.15097666, numerator, f^3
    SLOT(float, 107, q0, 0x3F800000) // 1, denominator, constant term
    SLOT(float, 108, q1, 0xC07E2A1E) // -3.97132063, denominator, f^2
};
struct dtanpi_block {
    GAP(0, 415)
    SLOT(double, 416, abs_mask, 0x7FFFFFFFFFFFFFFF)
    GAP(417, 417)
    SLOT(double, 418, exp_mask, 0x7FF0000000000000)
    GAP(419, 424)
    SLOT(double, 425, shifter, 0x4328000000000000)     // 1.5 * 2^51
    SLOT(double, 426, large_limit, 0x4300000000000000) // 2^49
    // Fit on |f| <= 1/4: f*(p0 + p1*f^2 + p2*f^4 + p3*f^6)/(q0 + q1*f^2 + q2*f^4 + q3*f^6 + q4*f^8) = tan(pi*f)
    // to 2^-53.6 relative
    SLOT(double, 427, p0, 0x400921FB54442D18) // 3.1415926535897931, numerator, f
    SLOT(double, 428, p3, 0xBFABB103D68EE571) // -0.054084892216858978, f^7
    SLOT(double, 429, p2, 0x3FF0C8580FA6B9B9) // 1.0489121066453733, f^5
    SLOT(double, 430, p1, 0xC0108BB113B2D25A) // -4.1364176824468704, f^3
    SLOT(double, 431, q4, 0x3F73727E6E36B82F) // 0.0047478617374690354, denominator, f^8
    SLOT(double, 432, q3, 0xBFD336A7EAFF7F8E) // -0.30021093319918968, f^6
    SLOT(double, 433, q2, 0x400401CCE5F3A97B) // 2.5008790936455489, f^4
    SLOT(double, 434, q1, 0xC0126D1667518600) // -4.6065307754047353, f^2
    SLOT(double, 435, q0, 0x3FF0000000000000) // 1
};
struct dtanpi_native_block {
    GAP(0, 415)
    SLOT(double, 416, abs_mask, 0x7FFFFFFFFFFFFFFF)
    GAP(417, 417)
    SLOT(double, 418, exp_mask, 0x7FF0000000000000)
    GAP(419, 424)
    SLOT(double, 425, shifter, 0x4328000000000000)     // 1.5 * 2^51
    SLOT(double, 426, large_limit, 0x4300000000000000) // 2^49
    GAP(427, 427)
    // Fit on |f| <= 1/4: f*(p0 + p1*f^2 + p2*f^4)/(q0 + q1*f^2 + q2*f^4) = tan(pi*f) to 2^-32.6 relative
    SLOT(double, 428, p2, 0x3FD53574825D38E0) // 0.33138764124750075, f^5
    SLOT(double, 429, p1, 0xC00BA6A41A1305EC) // -3.4563676869445228, f^3
    SLOT(double, 430, p0, 0x400921FB54546C23) // 3.1415926540626216, numerator, f
    SLOT(double, 431, q2, 0x3FF8F71DB651327F) // 1.5603310701145856, f^4
    SLOT(double, 432, q1, 0xC0118F6CF4345389) // -4.3900640637338109, f^2
    SLOT(double, 433, q0, 0x3FF0000000000000) // 1
};
ORVANE_BLOCK(stanpi_block, __orvane_stanpi_data)
ORVANE_BLOCK(stanpi_native_block, __orvane_stanpi_native_data)
ORVANE_BLOCK(dtanpi_block, __orvane_dtanpi_data)
ORVANE_BLOCK(dtanpi_native_block, __orvane_dtanpi_native_data)

// What large arguments are taken down with: int_shift rounds to its last place, 512 in float and 256 in double, and
// from int_limit on every number is a multiple of that.
template <class T> inline constexpr T int_limit = sizeof(T) == 8 ? T(0x1p59) : T(0x1p31);
template <class T> inline constexpr T int_shift = sizeof(T) == 8 ? T(0x1.8p60) : T(0x1.8p32);

// tan(pi f) = N / D for abs(f) <= 1/4.
template <class T, int W> struct quotient { lanes<T, W> N, D; };
template <class T, int W> ORVANE_INLINE quotient<T, W> tangent_quotient(const auto& c, lanes<T, W> f) {
    auto z = f * f;
    if constexpr (requires { c.q4; })
        return {f * horner(z, c.p3, c.p2, c.p1, c.p0), horner(z, c.q4, c.q3, c.q2, c.q1, c.q0)};
    else if constexpr (requires { c.p2; }) return {f * horner(z, c.p2, c.p1, c.p0), horner(z, c.q2, c.q1, c.q0)};
    else if constexpr (requires { c.q2; }) return {f * horner(z, c.p1, c.p0), horner(z, c.q2, c.q1, c.q0)};
    else return {f * horner(z, c.p1, c.p0), horner(z, c.q1, c.q0)};
}

template <class T, const auto& Block, auto& Rare> struct tanpi_kernel : kernel<one_argument<T>, Block, Rare> {
    // tan(pi x) from a, abs(x) less a multiple of 2, up to large_limit.
    template <int W> static ORVANE_INLINE lanes<T, W> tangent(const auto& c, lanes<T, W> a, lanes<T, W> x) {
        // The last place of t is 1/2: its low bits count the halves taken out, the lowest the quarter turns.
        auto t = a + c.shifter;
        auto f = a - (t - c.shifter);
        auto odd = [&]() ORVANE_LAMBDA { return signed_bits(t) << (8 * sizeof(T) - 1); };
        auto [N, D] = tangent_quotient(c, f);
        auto n_or_d = select(odd(), D, N);
        auto v = n_or_d / (n_or_d ^ (N ^ D));

        // An odd half turns the quotient over and negates it. Where the quotient is 0 or infinite, and its sign +, it
        // takes that of (-1)^floor(a).
        in_turn(v, t);
        auto next = signed_bits(t) << (8 * sizeof(T) - 2);
        auto s = andnot(lanes<T, W>(c.abs_mask), as<T>(select(f != lanes<T, W>(T(0)), odd(), next)) ^ x);
        return v ^ s;
    }
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        auto ax = x & c.abs_mask;
        return answer{tangent(c, ax, x), not_less_equal(ax, lanes<T, W>(c.large_limit))};
    }
    // Above the limit a multiple of 512 (in double 256) is taken off, from int_limit on all of the number; other
    // lanes stay as they are.
    template <int W> static ORVANE_INLINE auto large_path(const auto& c, lanes<T, W> x, auto ordinary) {
        auto ax = x & c.abs_mask;
        auto m = keep(ax < lanes<T, W>(int_limit<T>), lanes<T, W>(int_shift<T>));
        auto q = (m + ax) - m;
        auto a = select(ordinary.special, ax - q, ax);
        return answer{tangent(c, a, x), (bits(ax) & c.exp_mask) == c.exp_mask};
    }
};

using stanpi_kernel = tanpi_kernel<float, __orvane_stanpi_data, __orvane_stanpi_cout_rare>;
using stanpi_native_kernel = tanpi_kernel<float, __orvane_stanpi_native_data, __orvane_stanpi_cout_rare>;
using dtanpi_kernel = tanpi_kernel<double, __orvane_dtanpi_data, __orvane_dtanpi_cout_rare>;
using dtanpi_native_kernel = tanpi_kernel<double, __orvane_dtanpi_native_data, __orvane_dtanpi_cout_rare>;
// Largest known error of tanpif: 3.175 ulp at 0xBE7FD77D
ORVANE_EXPORT(tanpif, , stanpi_kernel)
// Largest known error of tanpif_native: 640 ulp at 0x3EB46FCE
ORVANE_EXPORT(tanpif, _native, stanpi_native_kernel)
// Largest known error of tanpi: 3.479 ulp at 0x405A300975A63CC3
ORVANE_EXPORT(tanpi, , dtanpi_kernel)
// Largest known error of tanpi_native: 1.505e-10 relative at 0x3FD02B08F2685BAE
ORVANE_EXPORT(tanpi, _native, dtanpi_native_kernel)

} // namespace orvane
