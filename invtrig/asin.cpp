// asin, acos, asinpi, acospi: one fold, so that a single polynomial in t, 0 <= t <= 1/4, serves the whole range.
//
// Below 1/2 it works on t = x^2; from there up on t = w = (1 - |x|) / 2, since asin |x| = pi/2 - 2 asin(sqrt(w)).
// With R the argument of the remaining arc sine, asin R = R + R Q(t) or, over pi, asin(R) / pi = R J(t). A NaN has
// one sign in R and another in t; the order of the last step's operands is fixed, so that all widths return the same
// NaN.
#include "frame/_orvane_template.h"
#include "frame/rare.h"
#include "invtrig/coefficients.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dasin_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_sasin_cout_rare, const float* x, float* result);
ORVANE_SLOW_PATH(__orvane_dacos_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_sacos_cout_rare, const float* x, float* result);
ORVANE_SLOW_PATH(__orvane_dasinpi_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_sasinpi_cout_rare, const float* x, float* result);
ORVANE_SLOW_PATH(__orvane_dacospi_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_sacospi_cout_rare, const float* x, float* result);

// Fit on 0 <= t <= 1/4: 1 + t*asin_long(t) = asin(sqrt(t))/sqrt(t) to 2^-54.9 relative
inline constexpr coefficients<double, 12> asin_long = {{0x3FA07520C70EB909, 0xBF90FB17F7DBB0ED, 0x3F943F44BFBC3BAE,
                                                        0x3F7A583395D45ED5, 0x3F88F8DC2AFCCAD6, 0x3F8C6DBBCB88BD57,
                                                        0x3F91C6DCF538AD2E, 0x3F96E89CEBDEFADD, 0x3F9F1C72E13AD8BE,
                                                        0x3FA6DB6DB3B445F8, 0x3FB333333337E0DE, 0x3FC555555555529C}};
// Fit on 0 <= t <= 1/4: 1/pi + t*asinpi_long(t) = asin(sqrt(t))/sqrt(t)/pi to 2^-54.9 relative
inline constexpr coefficients<double, 12> asinpi_long = {
    {0x3F84F4523BC020D8, 0xBF759EE439EEE799, 0x3F79C78AE09A5457, 0x3F60C57DF579794A, 0x3F6FCBA466EA069B,
     0x3F7219262ADC70A8, 0x3F76A256C108AAED, 0x3F7D2B0EA1978F74, 0x3F83CE53573AD4F4, 0x3F8D1A452B1C8F4E,
     0x3F98723A1D5E7F21, 0x3FAB2995E7B7B28B}};
// Fit on 0 <= t <= 1/4: 1 + t*asin_short(t) = asin(sqrt(t))/sqrt(t) to 2^-30.8 relative
inline constexpr coefficients<double, 6> asin_short = {{0x3FA36C5AF645A11E, 0x3F8CE147EA9E9282, 0x3FA056B4151FA155,
                                                        0x3FA6C8ED2A4CCE54, 0x3FB33399EBF85B6A, 0x3FC5555480C83A45}};
// Fit on 0 <= t <= 1/4: 1/pi + t*asinpi_short(t) = asin(sqrt(t))/sqrt(t)/pi to 2^-30.8 relative
inline constexpr coefficients<double, 6> asinpi_short = {{0x3F88BAFFDA4549F0, 0x3F7262B57524FB3B, 0x3F84CD955BDDED9F,
                                                          0x3F8D02B66C2AD236, 0x3F9872BCE76EFA44,
                                                          0x3FAB2994D916CB05}};
// Fit on 0 <= t <= 1/4: 1 + t*asinf_long(t) = asin(sqrt(t))/sqrt(t) to 2^-26.7 relative
inline constexpr coefficients<float, 5> asinf_long = {{0x3D2EDC07, 0x3CC32A6B, 0x3D3A9AB4, 0x3D997C12, 0x3E2AAAFF}};
// Fit on 0 <= t <= 1/4: 1/pi + t*asinpif_long(t) = asin(sqrt(t))/sqrt(t)/pi to 2^-26.6 relative
inline constexpr coefficients<float, 5> asinpif_long = {{0x3C5EA355, 0x3BF87E20, 0x3C6D978C, 0x3CC36C37, 0x3D594D1B}};
// Fit on 0 <= t <= 1/4: 1 + asinf_short(t) = asin(sqrt(t))/sqrt(t) to 2^-14.9 relative
inline constexpr coefficients<float, 3> asinf_short = {{0x3DC4C6AE, 0x3E2876B2, 0x380561A3}};
// Fit on 0 <= t <= 1/4: asinpif_short(t) = asin(sqrt(t))/sqrt(t)/pi to 2^-14.9 relative
inline constexpr coefficients<float, 3> asinpif_short = {{0x3CFA8B09, 0x3D567E9D, 0x3EA2FAD7}};

struct dasin_block {
    SLOT(double, 0, sign_or_abs, 0x7FFFFFFFFFFFFFFF)
    SLOT(double, 1, half, 0x3FE0000000000000)
    SLOT(double, 2, w_floor, 0x3000000000000000) // 2^-255
    GAP(3, 3)
    SLOT(double, 4, domain, 0x3FF0000000000000)
    GAP(5, 5)
    SLOT(double, 6, two, 0x4000000000000000)
    GAP(7, 8)
    // Fit on |d| <= 2^-9.4: 1 - d*(sq_c0 + sq_c1*d) = 1/sqrt(1 + d/2) to 2^-32.9 relative
    SLOT(double, 9, sq_c1, 0xBFB7FFFFFFFFFE97)
    SLOT(double, 10, sq_c0, 0x3FCFFFFFFFFFFF9D)
    TABLE(11, poly_long, asin_long)
    SLOT(double, 23, pi_half, 0x3FF921FB54442D18)
    GAP(24, 25)
    SLOT(double, 26, neg_zero, 0x8000000000000000)
    GAP(27, 27)
    TABLE(28, poly_short, asin_short)
};
ORVANE_BLOCK(dasin_block, __orvane_dasin_data)
ORVANE_BLOCK_TWIN(__orvane_dasin_native_data, __orvane_dasin_data)
struct dacos_block {
    SLOT(double, 0, sign_or_abs, 0x8000000000000000)
    SLOT(double, 1, half, 0x3FE0000000000000)
    SLOT(double, 2, w_floor, 0x3000000000000000) // 2^-255
    GAP(3, 3)
    SLOT(double, 4, domain, 0xBFF0000000000000)
    GAP(5, 5)
    SLOT(double, 6, two, 0x4000000000000000)
    GAP(7, 8)
    // Fit on |d| <= 2^-9.4: 1 - d*(sq_c0 + sq_c1*d) = 1/sqrt(1 + d/2) to 2^-32.9 relative
    SLOT(double, 9, sq_c1, 0xBFB7FFFFFFFFFE97)
    SLOT(double, 10, sq_c0, 0x3FCFFFFFFFFFFF9D)
    TABLE(11, poly_long, asin_long)
    GAP(23, 23)
    SLOT(double, 24, pi_full, 0x400921FB54442D18)
    GAP(25, 25)
    SLOT(double, 26, pi_half, 0x3FF921FB54442D18)
    GAP(27, 29)
    TABLE(30, poly_short, asin_short)
};
ORVANE_BLOCK(dacos_block, __orvane_dacos_data)
ORVANE_BLOCK_TWIN(__orvane_dacos_native_data, __orvane_dacos_data)
struct dasinpi_block {
    SLOT(double, 0, sign_or_abs, 0x7FFFFFFFFFFFFFFF)
    SLOT(double, 1, half, 0x3FE0000000000000)
    GAP(2, 3)
    SLOT(double, 4, domain, 0x3FF0000000000000)
    GAP(5, 5)
    SLOT(double, 6, two, 0x4000000000000000)
    GAP(7, 8)
    // Fit on |d| <= 2^-9.4: 1 - d*(sq_c0 + sq_c1*d) = 1/sqrt(1 + d/2) to 2^-32.9 relative
    SLOT(double, 9, sq_c1, 0xBFB7FFFFFFFFFE97)
    SLOT(double, 10, sq_c0, 0x3FCFFFFFFFFFFF9D)
    TABLE(11, poly_long, asinpi_long)
    GAP(23, 24)
    SLOT(double, 25, inv_pi, 0x3FD45F306DC9C883)
    GAP(26, 26)
    SLOT(double, 27, neg_zero, 0x8000000000000000)
    TABLE(28, poly_short, asinpi_short)
};
ORVANE_BLOCK(dasinpi_block, __orvane_dasinpi_data)
ORVANE_BLOCK_TWIN(__orvane_dasinpi_native_data, __orvane_dasinpi_data)
struct dacospi_block {
    SLOT(double, 0, sign_or_abs, 0x8000000000000000)
    SLOT(double, 1, half, 0x3FE0000000000000)
    GAP(2, 3)
    SLOT(double, 4, domain, 0xBFF0000000000000)
    GAP(5, 5)
    SLOT(double, 6, two, 0x4000000000000000)
    GAP(7, 8)
    // Fit on |d| <= 2^-9.4: 1 - d*(sq_c0 + sq_c1*d) = 1/sqrt(1 + d/2) to 2^-32.9 relative
    SLOT(double, 9, sq_c1, 0xBFB7FFFFFFFFFE97)
    SLOT(double, 10, sq_c0, 0x3FCFFFFFFFFFFF9D)
    TABLE(11, poly_long, asinpi_long)
    GAP(23, 24)
    SLOT(double, 25, unit, 0x3FF0000000000000)
    SLOT(double, 26, inv_pi, 0x3FD45F306DC9C883)
    GAP(27, 27)
    TABLE(28, poly_short, asinpi_short)
};
ORVANE_BLOCK(dacospi_block, __orvane_dacospi_data)
ORVANE_BLOCK_TWIN(__orvane_dacospi_native_data, __orvane_dacospi_data)
struct sasin_block {
    SLOT(float, 0, sign_or_abs, 0x7FFFFFFF)
    SLOT(float, 1, half, 0x3F000000)
    GAP(2, 2)
    SLOT(float, 3, w_floor, 0x2F800000) // 2^-32
    SLOT(float, 4, domain, 0x3F800000)
    GAP(5, 6)
    SLOT(float, 7, two, 0x40000000)
    GAP(8, 8)
    // Fit on |d| <= 2^-9.4: 1 - d*sq_c0 = 1/sqrt(1 + d/2) to 2^-22.2 relative
    SLOT(float, 9, sq_c0, 0x3E800001)
    TABLE(10, poly_long, asinf_long)
    SLOT(float, 15, pi_half, 0x3FC90FDB)
    GAP(16, 18)
    SLOT(float, 19, neg_zero, 0x80000000)
    GAP(20, 20)
    TABLE(21, poly_short, asinf_short)
};
ORVANE_BLOCK(sasin_block, __orvane_sasin_data)
ORVANE_BLOCK_TWIN(__orvane_sasin_native_data, __orvane_sasin_data)
struct sacos_block {
    SLOT(float, 0, sign_or_abs, 0x80000000)
    SLOT(float, 1, half, 0x3F000000)
    GAP(2, 2)
    SLOT(float, 3, w_floor, 0x2F800000) // 2^-32
    SLOT(float, 4, domain, 0xBF800000)
    GAP(5, 6)
    SLOT(float, 7, two, 0x40000000)
    GAP(8, 8)
    // Fit on |d| <= 2^-9.4: 1 - d*sq_c0 = 1/sqrt(1 + d/2) to 2^-22.2 relative
    SLOT(float, 9, sq_c0, 0x3E800001)
    TABLE(10, poly_long, asinf_long)
    SLOT(float, 15, pi_half, 0x3FC90FDB)
    GAP(16, 16)
    SLOT(float, 17, pi_full, 0x40490FDB)
    GAP(18, 21)
    TABLE(22, poly_short, asinf_short)
};
ORVANE_BLOCK(sacos_block, __orvane_sacos_data)
ORVANE_BLOCK_TWIN(__orvane_sacos_native_data, __orvane_sacos_data)
struct sasinpi_block {
    SLOT(float, 0, sign_or_abs, 0x7FFFFFFF)
    SLOT(float, 1, half, 0x3F000000)
    GAP(2, 4)
    SLOT(float, 5, domain, 0x3F800000)
    GAP(6, 9)
    TABLE(10, poly_long, asinpif_long)
    GAP(15, 18)
    SLOT(float, 19, inv_pi, 0x3EA2F983)
    SLOT(float, 20, neg_zero, 0x80000000)
    TABLE(21, poly_short, asinpif_short)
};
ORVANE_BLOCK(sasinpi_block, __orvane_sasinpi_data)
ORVANE_BLOCK_TWIN(__orvane_sasinpi_native_data, __orvane_sasinpi_data)
struct sacospi_block {
    SLOT(float, 0, sign_or_abs, 0x80000000)
    SLOT(float, 1, half, 0x3F000000)
    GAP(2, 2)
    SLOT(float, 3, domain, 0xBF800000)
    GAP(4, 7)
    TABLE(8, poly_long, asinpif_long)
    GAP(13, 14)
    SLOT(float, 15, unit, 0x3F800000)
    SLOT(float, 16, inv_pi, 0x3EA2F983)
    GAP(17, 17)
    TABLE(18, poly_short, asinpif_short)
};
ORVANE_BLOCK(sacospi_block, __orvane_sacospi_data)
ORVANE_BLOCK_TWIN(__orvane_sacospi_native_data, __orvane_sacospi_data)

// -2 sqrt(w) or, for the arc cosine, +2 sqrt(w): by the square-root instruction, or from the processor's estimate e
// of 1 / sqrt(w) with one correction: s = 2 w e, d = s e - 2 (twice what e^2 w is off 1), s - s d (1/4 - ...).
template <bool Native, bool Cosine, class V> ORVANE_INLINE V two_roots(const auto& c, V w) {
    if constexpr (Native && requires { c.sq_c0; }) {
        // No infinity where w is 0: s is 0 then and d -2, whatever finite e may be.
        constexpr bool takes_zero = requires { c.w_floor; };
        V e;
        if constexpr (sizeof(typename V::element) == 8) {
            e = convert<double>(rsqrt_estimate(convert<float>(w)));
            if constexpr (takes_zero) e = keep(V(c.w_floor) <= w, e);
        } else if constexpr (takes_zero) e = rsqrt_estimate(max(w, V(c.w_floor)));
        else e = rsqrt_estimate(w);
        V s = (w + w) * e;
        V d = fma(s, e, -V(c.two));
        V k = c.sq_c0;
        if constexpr (requires { c.sq_c1; }) k = fma(V(c.sq_c1), d, k);
        if constexpr (Cosine) return fma(-k, s * d, s);
        else return fma(k, s * d, -s);
    } else {
        V s = sqrt(w);
        if constexpr (Cosine) return s + s;
        else return (s + s) | c.neg_zero;
    }
}

template <class V> ORVANE_INLINE V polynomial(const coefficients<double, 12>& c, V t) {
    V t2 = t * t;
    V B = fma(t2, fma(V(c[0]), t, c[1]), fma(V(c[2]), t, c[3]));
    V D = fma(t2, fma(V(c[4]), t, c[5]), fma(V(c[6]), t, c[7]));
    V E = fma(t2 * t2, B, D);
    V G = fma(t2, E, fma(V(c[8]), t, c[9]));
    return fma(t2, G, fma(V(c[10]), t, c[11]));
}
template <class V> ORVANE_INLINE V polynomial(const coefficients<double, 6>& c, V t) {
    V A = fma(V(c[0]), t, c[1]), B = fma(V(c[2]), t, c[3]), C = fma(V(c[4]), t, c[5]), t2 = t * t;
    return fma(fma(t2, A, B), t2, C);
}
template <class V> ORVANE_INLINE V polynomial(const coefficients<float, 5>& c, V t) {
    V A = fma(V(c[0]), t, c[1]), B = fma(V(c[2]), t, c[3]);
    return fma(fma(A, t * t, B), t, c[4]);
}
template <class V> ORVANE_INLINE V polynomial(const coefficients<float, 3>& c, V t) { return horner(t, c); }

template <bool Native> ORVANE_INLINE const auto& polynomial_of(const auto& c) {
    if constexpr (Native) return c.poly_short;
    else return c.poly_long;
}
// Q(t), which leaves the leading 1 out, and J(t), which has 1 / pi in it. The short float polynomials are Q and J
// whole.
template <bool Native, class V> ORVANE_INLINE V Q_of(const auto& c, V t) {
    V I = polynomial(polynomial_of<Native>(c), t);
    if constexpr (Native && sizeof(typename V::element) == 4) return I;
    else return t * I;
}
template <bool Native, class V> ORVANE_INLINE V J_of(const auto& c, V t) {
    V I = polynomial(polynomial_of<Native>(c), t);
    if constexpr (Native && sizeof(typename V::element) == 4) return I;
    else return fma(I, t, V(c.inv_pi));
}

// asin and asinpi: R = |x| or -2 sqrt(w), and a quarter of a turn beside the latter.
template <class T, const auto& Block, auto& Rare, bool Native> struct arc_sine
    : kernel<one_argument<T>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        using V = lanes<T, W>;
        V ax = x & c.sign_or_abs;
        const lane_bits<W> special = is_special(c, ax);
        auto big = not_less(ax, V(c.half));
        V w = fma(-ax, V(c.half), V(c.half));
        V t = min(ax * ax, w);
        V R = finished(select(big, two_roots<Native, false>(c, w), ax));
        V y;
        if constexpr (requires { c.pi_half; }) {
            V offset = finished(keep(big, V(c.pi_half)));
            y = offset + fma_in_order(R, Q_of<Native>(c, t), R);
        } else {
            V offset = finished(keep(big, V(c.half)));
            if constexpr (Native) y = fma_in_order(R, J_of<Native>(c, t), offset);
            else y = fma_in_order(Q_of<Native>(c, t), R, fma(R, V(c.inv_pi), offset));
        }
        return answer{y ^ (x & V(T(-0.0))),
                      special}; // a mask of its own: neg_zero would stay in a register till here
    }
    // The pi forms leave +-1 to the slow path as well.
    template <class V> static ORVANE_INLINE auto is_special(const auto& c, V ax) {
        if constexpr (requires { c.pi_half; }) return V(c.domain) < ax;
        else return V(c.domain) <= ax;
    }
};

// acos and acospi: R = -x or +-2 sqrt(w), and beside them a quarter of a turn, nothing, or a half for x <= -1/2.
template <class T, const auto& Block, auto& Rare, bool Native> struct arc_cosine
    : kernel<one_argument<T>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        using V = lanes<T, W>;
        V nx = x | c.sign_or_abs; // -|x|
        const lane_bits<W> special = is_special(c, nx);
        V w = fma(nx, V(c.half), V(c.half));
        V t = min(nx * nx, w);
        auto big = not_less(t, w);  // w <= x^2 just where |x| >= 1/2
        auto below = big & (x < t); // t <= 1/4, so x is negative
        V offset;
        if constexpr (requires { c.pi_half; })
            offset = andnot(V(as<T>(big)), V(c.pi_half)) + keep(below, V(c.pi_full));
        else offset = andnot(V(as<T>(big)), V(c.half)) + keep(below, V(c.unit));
        offset = finished(offset);
        V R = select(big, two_roots<Native, true>(c, w), nx);
        in_turn(R, x); // the sign after the roots
        R = finished(R ^ (x & c.sign_or_abs));
        if constexpr (requires { c.pi_half; })
            return answer{offset + fma_in_order(R, Q_of<Native>(c, t), R), special};
        else return answer{fma_in_order(R, J_of<Native>(c, t), offset), special};
    }
    template <class V> static ORVANE_INLINE auto is_special(const auto& c, V nx) {
        if constexpr (requires { c.pi_half; }) return not_less_equal(V(c.domain), nx);
        else return nx <= V(c.domain);
    }
};

#define ORVANE_ARCS(family, Kernel)                                                                                  \
    using d##family##_default = Kernel<double, __orvane_d##family##_data, __orvane_d##family##_cout_rare, false>;    \
    using d##family##_fast = Kernel<double, __orvane_d##family##_native_data, __orvane_d##family##_cout_rare, true>; \
    using s##family##_default = Kernel<float, __orvane_s##family##_data, __orvane_s##family##_cout_rare, false>;     \
    using s##family##_fast = Kernel<float, __orvane_s##family##_native_data, __orvane_s##family##_cout_rare, true>;  \
    ORVANE_EXPORT(family, , d##family##_default)                                                                     \
    ORVANE_EXPORT(family, _native, d##family##_fast)                                                                 \
    ORVANE_EXPORT(family##f, , s##family##_default)                                                                  \
    ORVANE_EXPORT(family##f, _native, s##family##_fast)
// Largest known error of asin: 2.136 ulp at 0x3FE03E4A49A34FE1
// Largest known error of asin_native: 1.005e-09 relative at 0xBFE000000790B6DF, with one processor's estimates
// Largest known error of asinf: 2.266 ulp at 0x3F00105A
// Largest known error of asinf_native: 535.2 ulp at 0x3F000041, with one processor's estimates
ORVANE_ARCS(asin, arc_sine)
// Largest known error of acos: 1.289 ulp at 0x3FE347987CF09E3D
// Largest known error of acos_native: 5.47e-10 relative at 0x3FEF1118007FF639, with one processor's estimates
// Largest known error of acosf: 1.244 ulp at 0xBF003512
// Largest known error of acosf_native: 532.5 ulp at 0x3F7FFE01, with one processor's estimates
ORVANE_ARCS(acos, arc_cosine)
// Largest known error of asinpi: 2.463 ulp at 0xBFE6327ED57A90E7
// Largest known error of asinpi_native: 1.005e-09 relative at 0xBFE000000789E72C, with one processor's estimates
// Largest known error of asinpif: 2.676 ulp at 0xBF33EB67
// Largest known error of asinpif_native: 680.6 ulp at 0x3F00006E
ORVANE_ARCS(asinpi, arc_sine)
// Largest known error of acospi: 2.401 ulp at 0x3FEFFFFFFD8E49B0
// Largest known error of acospi_native: 5.47e-10 relative at 0x3FEF1118007FD8ED, with one processor's estimates
// Largest known error of acospif: 2.457 ulp at 0x3F6D8E54
// Largest known error of acospif_native: 531.6 ulp at 0x3F7FFB18
ORVANE_ARCS(acospi, arc_cosine)

} // namespace orvane
