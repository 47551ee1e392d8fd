// erf: value and slope at the nearest multiple x0 of 1/128 from a table, and a Taylor step from there. With d the
// distance and s = slope * d,
//
//     erf(x0 + d) = erf(x0) + s (1 + q),  q a polynomial in u = x0 d and d^2.
//
// No lane is special: what lies beyond the table is clamped to its end, where d is 0 and the value 1. erff_native is
// a plain polynomial.
#include "frame/_orvane_template.h"
#include "special/erf_tables.h"

namespace orvane {

// Both tiers read this block.
struct derf_block {
    TABLE(0, grid, erf_at_128ths)
    SLOT(double, 192, abs_mask, 0x7FFFFFFFFFFFFFFF)
    SLOT(double, 193, x_cap, 0x4017F80000000000)   // 767/128
    SLOT(double, 194, shifter, 0x42C0000000000000) // 2^45
    SLOT(double, 195, tiny, 0x2FF0000000000000)    // 2^-256
    GAP(196, 197)
    // Fit on |d| <= 1/256, 1/128 <= x <= 6, u = x*d, slope = 2/sqrt(pi)*exp(-x^2): erf(x) + slope*d*(1 - u +
    // u^2*(a0 + a1*u + a2*u^2 + a3*u^3) + d^2*(h0 + u*(b0 + b1*u + b2*u^2) + d^2*(c0 + c1*u))) = erf(x + d)
    // to 2^-52.6 relative
    SLOT(double, 198, a3, 0xBFA6C16DB05BDEA5)
    SLOT(double, 199, a2, 0x3FC1111235A363B1)
    SLOT(double, 200, b2, 0x3FCC71CA1C71EB57)
    SLOT(double, 201, b1, 0xBFD9999C2BE2DDA8)
    SLOT(double, 202, c1, 0xBFC5555800001B4F)
    SLOT(double, 203, c0, 0x3FB9999E2BE2F122)
    SLOT(double, 204, a1, 0xBFD55555555547F6)
    SLOT(double, 205, b0, 0x3FDFFFFFFFFFD4CD)
    SLOT(double, 206, a0, 0x3FE5555555554B0C)
    SLOT(double, 207, h0, 0xBFD5555555555555)
    GAP(208, 209)
    SLOT(uint64_t, 210, idx_mask, 0x00000000FFFFFFFF)
    // Fit on |d| <= 1/256, 1/128 <= x <= 6, u = x*d, slope = 2/sqrt(pi)*exp(-x^2): erf(x) + slope*d*(1 + u*(w0 +
    // w1*u) + d^2*(m0 + m1*u)) = erf(x + d) to 2^-34.9 relative
    SLOT(double, 211, w1, 0x3FE55557BBBBDCA6)
    SLOT(double, 212, w0, 0xBFF0000180001429)
    SLOT(double, 213, m1, 0x3FE0000400005666)
    SLOT(double, 214, m0, 0xBFD5555C88892F64)
};
ORVANE_BLOCK(derf_block, __orvane_derf_data)
ORVANE_BLOCK_TWIN(__orvane_derf_native_data, __orvane_derf_data)

struct serf_block {
    TABLE(0, grid, erff_at_128ths)
    GAP(63, 94)
    SLOT(float, 95, abs_mask, 0x7FFFFFFF)
    SLOT(float, 96, one, 0x3F800000)
    GAP(97, 98)
    SLOT(float, 99, x_cap, 0x407B8000) // 503/128
    GAP(100, 100)
    SLOT(float, 101, shifter, 0x47800000) // 2^16
    GAP(102, 102)
    SLOT(float, 103, tiny, 0x2F800000) // 2^-32
    GAP(104, 105)
    // Fit on |d| <= 1/256, 1/128 <= x <= 3.93, u = x*d, slope = 2/sqrt(pi)*exp(-x^2): erf(x) + slope*d*(1 - u +
    // c3*d^2) = erf(x + d) to 2^-25.5 relative
    SLOT(float, 106, c3, 0xBEAAAADE)
    GAP(107, 121)
    SLOT(float, 122, sq_limit, 0x40D74E66)
    // Fit on 0 <= x <= sqrt(sq_limit), z = x^2: x*(p0 + p1*z + p2*z^2 + p3*z^3 + p4*z^4 + p5*z^5)^2 = erf(x)
    // to 2^-12.6 relative
    SLOT(float, 123, p0, 0x3F87F527)
    SLOT(float, 124, p1, 0xBE34718D)
    SLOT(float, 125, p2, 0x3D175FFF)
    SLOT(float, 126, p3, 0xBBAF8D5D)
    SLOT(float, 127, p4, 0x39F00702)
    SLOT(float, 128, p5, 0xB78F18F8)
};
ORVANE_BLOCK(serf_block, __orvane_serf_data)
ORVANE_BLOCK_TWIN(__orvane_serf_native_data, __orvane_serf_data)

// The series of q, in three chains.
struct full_series {
    template <int W> static ORVANE_INLINE auto of(const auto& c, lanes<double, W> u, lanes<double, W> D2) {
        auto pa = horner(u, c.a3, c.a2, c.a1, c.a0);
        auto pb = horner(u, c.b2, c.b1, c.b0);
        auto pc = fma(horner(u, c.c1, c.c0), D2, c.h0);
        pc = fma(u, pb, pc);
        auto q = fma(pa, u * u, -u);
        return fma(D2, pc, q);
    }
};
struct short_series {
    template <int W> static ORVANE_INLINE auto of(const auto& c, lanes<double, W> u, lanes<double, W> D2) {
        auto pw = horner(u, c.w1, c.w0);
        auto pm = horner(u, c.m1, c.m0);
        return fma(D2, pm, u * pw);
    }
};

template <class Series> struct erf_kernel : kernel<one_argument<double>, __orvane_derf_data> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<double, W> x) {
        auto A = x & c.abs_mask, sg = x ^ A;
        auto X = min(A, lanes<double, W>(c.x_cap)); // the cap for a NaN
        auto [x0, d, sum] = nearest_grid_point(c, X);
        auto [T1, T2] = value_and_slope_at(c, sum);
        auto dm = keep(c.tiny < X, d); // of tiny arguments the square would underflow
        auto D2 = dm * dm, u = d * x0;
        auto s = T2 * (sg ^ min(d, A)); // d, but a NaN comes back in
        auto q = Series::of(c, u, D2);
        auto r = fma(q, s, s) + (T1 ^ sg);
        return sg | r;
    }
};
using derf_kernel = erf_kernel<full_series>;
using derf_native_kernel = erf_kernel<short_series>;
// Largest known error of erf: 2.542 ulp at 0xBF70007F4999232A
ORVANE_EXPORT_SETTLED(erf, , derf_kernel)
// Largest known error of erf_native: 4.948e-11 relative at 0xBF6FFFFFFC6714EF
ORVANE_EXPORT_SETTLED(erf, _native, derf_native_kernel)

struct serf_kernel : kernel<one_argument<float>, __orvane_serf_data> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<float, W> x) {
        auto A = x & c.abs_mask, sg = x ^ A;
        auto X = min(A, lanes<float, W>(c.x_cap));
        auto [x0, d, sum] = nearest_grid_point(c, X);
        auto [T1, T2] = value_and_slope_at(c, sum);
        auto dm = keep(c.tiny < X, d);
        auto e = min(d, A);
        auto v = fma(e, c.c3, -x0); // the step is e + dm^2 v
        v = fma(dm * dm, v, e);
        return sg | fma(T2, v, T1);
    }
};
// Largest known error of erff: 1.929 ulp at 0x3B61B9F3
ORVANE_EXPORT_SETTLED(erff, , serf_kernel)

// x p(x^2)^2 below the limit, 1 above.
struct serf_native_kernel : kernel<one_argument<float>, __orvane_serf_data> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<float, W> x) {
        auto z = x * x;
        auto p = horner(z, c.p5, c.p4, c.p3, c.p2, c.p1, c.p0);
        p = p * p;
        auto small = not_less_equal(lanes<float, W>(c.sq_limit), z); // or NaN
        return select(small, x * p, andnot(lanes<float, W>(c.abs_mask), x) | c.one);
    }
};
// Largest known error of erff_native: 4096 ulp at 0xC0260278
ORVANE_EXPORT_SETTLED(erff, _native, serf_native_kernel)

} // namespace orvane
