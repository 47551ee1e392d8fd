// sinf and cosf: up to a limit by multiples of pi and an odd polynomial, all in float, beyond it by the reduction to
// a fraction of a turn and a table of angles. Only Inf and NaN have a slow path.
#include "trig/sine_steps.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_ssin_cout_rare, const float* x, float* result);
ORVANE_SLOW_PATH(__orvane_scos_cout_rare, const float* x, float* result);

struct ssin_block {
    TABLE(0, rows, sin_rows_f32)
    SLOT(float, 64, abs_mask, 0x7FFFFFFF)
    GAP(65, 65)
    SLOT(float, 66, exp_mask, 0x7F800000)
    SLOT(float, 67, large_limit, 0x49000000) // 524288.0 = 2^19
    // Fit on |r| <= pi/256: r + lg_s1*r^3 + lg_s2*r^5 = sin(r) to 2^-40.3 relative
    // Fit on |r| <= pi/256: 1 + lg_c1*r^2 + lg_c2*r^4 = cos(r) to 2^-50.1 relative
    SLOT(float, 68, lg_s1, 0xBE2AAAAB)
    SLOT(float, 69, lg_s2, 0x3C08885C)
    SLOT(float, 70, lg_c1, 0xBF000000)
    SLOT(float, 71, lg_c2, 0x3D2AAA7C)
    GAP(72, 75)
    SLOT(float, 76, pi_1, 0x40490FDB)
    SLOT(float, 77, pi_2, 0xB3BBBD2E)
    SLOT(float, 78, pi_3, 0xA7772CED)
    // Fit on |r| <= pi/2: r + s1*r^3 + s2*r^5 + s3*r^7 + s4*r^9 = sin(r) to 2^-24.6 relative
    SLOT(float, 79, s1, 0xBE2AAAA6) // r^3
    SLOT(float, 80, s2, 0x3C088766) // r^5
    SLOT(float, 81, s3, 0xB94FB7FF) // r^7
    SLOT(float, 82, s4, 0x362EDEF8) // r^9
    SLOT(float, 83, inv_pi, 0x3EA2F983)
    SLOT(float, 84, shifter,
         0x4B400000) // 1.5 * 2^23: adding it rounds to an integer, kept in the low significand bits
};
struct ssin_rm_block {
    TABLE(0, rows, sin_rows_f32)
    SLOT(float, 64, abs_mask, 0x7FFFFFFF)
    SLOT(float, 65, large_limit, 0x461C4000) // 10000.0
    SLOT(float, 66, exp_mask, 0x7F800000)
    GAP(67, 67)
    // Fit on |r| <= pi/256: r + lg_s1*r^3 + lg_s2*r^5 = sin(r) to 2^-40.3 relative
    // Fit on |r| <= pi/256: 1 + lg_c1*r^2 + lg_c2*r^4 = cos(r) to 2^-50.1 relative
    SLOT(float, 68, lg_s1, 0xBE2AAAAB)
    SLOT(float, 69, lg_s2, 0x3C08885C)
    SLOT(float, 70, lg_c1, 0xBF000000)
    SLOT(float, 71, lg_c2, 0x3D2AAA7C)
    GAP(72, 75)
    SLOT(float, 76, pi_1, 0x40490FDB)
    SLOT(float, 77, pi_2, 0xB3BBBD2E)
    GAP(78, 78)
    // Fit on |r| <= pi/2: c0*r + c1*r^3 + c2*r^5 = sin(r) to 2^-12.7 absolute
    SLOT(float, 79, c0, 0x3F7FF87C) // r, 0.99988532, not 1
    SLOT(float, 80, c1, 0xBE29E72F) // r^3
    SLOT(float, 81, c2, 0x3BF84524) // r^5
    SLOT(float, 82, inv_pi, 0x3EA2F983)
    SLOT(float, 83, shifter, 0x4B400000) // 1.5 * 2^23
};
struct scos_block {
    TABLE(0, rows, cos_rows_f32)
    SLOT(float, 64, abs_mask, 0x7FFFFFFF)
    GAP(65, 65)
    SLOT(float, 66, exp_mask, 0x7F800000)
    SLOT(float, 67, large_limit, 0x49000000) // 524288.0
    // Fit on |r| <= pi/256: r + lg_s1*r^3 + lg_s2*r^5 = sin(r) to 2^-40.3 relative
    // Fit on |r| <= pi/256: 1 + lg_c1*r^2 + lg_c2*r^4 = cos(r) to 2^-50.1 relative
    SLOT(float, 68, lg_s1, 0xBE2AAAAB)
    SLOT(float, 69, lg_s2, 0x3C08885C)
    SLOT(float, 70, lg_c1, 0xBF000000)
    SLOT(float, 71, lg_c2, 0x3D2AAA7C)
    GAP(72, 75)
    SLOT(float, 76, pi_1, 0x40490FDB)
    SLOT(float, 77, pi_2, 0xB3BBBD2E)
    SLOT(float, 78, pi_3, 0xA7772CED)
    // Fit on |r| <= pi/2: r + s1*r^3 + s2*r^5 + s3*r^7 + s4*r^9 = sin(r) to 2^-24.5 relative
    SLOT(float, 79, s1, 0xBE2AAAA6) // r^3, as in sinf
    GAP(80, 82)
    SLOT(float, 83, s2, 0x3C088764) // r^5
    SLOT(float, 84, s3, 0xB94FB6CF) // r^7
    SLOT(float, 85, s4, 0x362EC335) // r^9
    SLOT(float, 86, inv_pi, 0x3EA2F983)
    SLOT(float, 87, shifter, 0x4B400000) // 1.5 * 2^23
    SLOT(float, 88, half_pi, 0x3FC90FDB)
    SLOT(float, 89, half, 0x3F000000) // 0.5
    SLOT(float, 90, one, 0x3F800000)  // 1.0
};
struct scos_rm_block {
    TABLE(0, rows, cos_rows_f32)
    SLOT(float, 64, abs_mask, 0x7FFFFFFF)
    SLOT(float, 65, large_limit, 0x461C4000) // 10000.0
    SLOT(float, 66, exp_mask, 0x7F800000)
    GAP(67, 67)
    // Fit on |r| <= pi/256: r + lg_s1*r^3 + lg_s2*r^5 = sin(r) to 2^-40.3 relative
    // Fit on |r| <= pi/256: 1 + lg_c1*r^2 + lg_c2*r^4 = cos(r) to 2^-50.1 relative
    SLOT(float, 68, lg_s1, 0xBE2AAAAB)
    SLOT(float, 69, lg_s2, 0x3C08885C)
    SLOT(float, 70, lg_c1, 0xBF000000)
    SLOT(float, 71, lg_c2, 0x3D2AAA7C)
    GAP(72, 74)
    SLOT(float, 75, pi_1, 0x40490FDB)
    SLOT(float, 76, pi_2, 0xB3BBBD2E)
    // Fit on |r| <= pi/2: c0*r + c1*r^3 + c2*r^5 = sin(r) to 2^-12.7 absolute
    SLOT(float, 77, c0, 0x3F7FF87C)
    SLOT(float, 78, c1, 0xBE29E73F) // r^3
    SLOT(float, 79, c2, 0x3BF84524)
    SLOT(float, 80, inv_pi, 0x3EA2F983)
    SLOT(float, 81, shifter, 0x4B400000) // 1.5 * 2^23
    SLOT(float, 82, half_pi, 0x3FC90FDB)
    SLOT(float, 83, half, 0x3F000000)
    SLOT(float, 84, one, 0x3F800000)
};
ORVANE_BLOCK(ssin_block, __orvane_ssin_data)
ORVANE_BLOCK(ssin_rm_block, __orvane_ssin_rm_data)
ORVANE_BLOCK_TWIN(__orvane_ssin_native_data, __orvane_ssin_rm_data)
ORVANE_BLOCK_TWIN(__orvane_ssin_half_data, __orvane_ssin_rm_data)
ORVANE_BLOCK(scos_block, __orvane_scos_data)
ORVANE_BLOCK(scos_rm_block, __orvane_scos_rm_data)
ORVANE_BLOCK_TWIN(__orvane_scos_native_data, __orvane_scos_rm_data)
ORVANE_BLOCK_TWIN(__orvane_scos_half_data, __orvane_scos_rm_data)

// The lanes that the short path does not reach, and what is left to the slow path.
template <const auto& Block, auto& Rare> struct with_large_f32 : kernel<one_argument<float>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto large_path(const auto& c, lanes<float, W> x, auto ordinary) {
        auto y = eval_large_f32(c, reduce_large_f32<of_any_sign>(x));
        return answer{select(ordinary.special, y, ordinary.first), not_finite(c, x)};
    }
};

// sin(x) = (-1)^n sin(|x| - n pi) under the sign of x.
template <const auto& Block> struct ssin_kernel : with_large_f32<Block, __orvane_ssin_cout_rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<float, W> x) {
        auto ax = x & c.abs_mask;
        auto t = fma(ax, c.inv_pi, c.shifter); // n in the low bits
        auto n = t - c.shifter;
        auto sgn = as<float>(bits(t) << 31);
        auto r = less_multiples_of_pi(c, n, ax);

        auto r2 = r * r;
        auto rs = r ^ sgn;
        lanes<float, W> y;
        if constexpr (requires { c.s4; }) {
            auto p = r2 * sine_polynomial(c, r2);
            y = fma(p, rs, rs);
        } else y = fma(r2 * fma(c.c2, r2, c.c1), rs, rs * c.c0);
        return answer{y ^ andnot(lanes<float, W>(c.abs_mask), x), is_large(c, ax)};
    }
};

// cos(x) = sin(|x| + pi/2) = (-1)^n sin(|x| - (n - 1/2) pi), with n counted from the shifted argument.
template <const auto& Block> struct scos_kernel : with_large_f32<Block, __orvane_scos_cout_rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<float, W> x) {
        auto ax = x & c.abs_mask;
        auto y = c.half_pi + ax;
        auto is_one = y == c.half_pi;
        auto t = fma(y, c.inv_pi, c.shifter);
        auto n = (t - c.shifter) - c.half;
        auto sgn = as<float>(bits(t) << 31);
        auto r = less_multiples_of_pi(c, n, ax);

        auto r2 = r * r;
        auto rs = r ^ sgn;
        auto r3 = r2 * rs;
        lanes<float, W> z;
        if constexpr (requires { c.s4; }) z = fma(r3, sine_polynomial(c, r2), rs);
        else z = fma(r3, fma(c.c2, r2, c.c1), rs * c.c0);
        return answer{select(is_one, lanes<float, W>(c.one), z), is_large(c, ax)};
    }
};

using ssin = ssin_kernel<__orvane_ssin_data>;
using ssin_rm = ssin_kernel<__orvane_ssin_rm_data>;
using scos = scos_kernel<__orvane_scos_data>;
using scos_rm = scos_kernel<__orvane_scos_rm_data>;
// Largest known error of sinf: 2.37 ulp at 0x48A48F61
// Largest known error of sinf, large arguments: 0.586 ulp at 0x789C2E15
ORVANE_EXPORT(sinf, , ssin)
// Largest known error of sinf_rm: 0.0001505 absolute at 0x3FB5D472
// Largest known error of sinf_rm, large arguments: 0.578 ulp at 0x4E56DE06
ORVANE_EXPORT(sinf, _rm, ssin_rm)
ORVANE_TWIN(sinf, _native, sinf, _rm)
ORVANE_TWIN(sinf, _half, sinf, _rm)
// Largest known error of cosf: 2.467 ulp at 0xC8C8B912
// Largest known error of cosf, large arguments: 0.5925 ulp at 0x76087DF9
ORVANE_EXPORT(cosf, , scos)
// Largest known error of cosf_rm: 0.0001511 absolute at 0xC03F8257
// Largest known error of cosf_rm, large arguments: 0.5848 ulp at 0xFC7A0C95
ORVANE_EXPORT(cosf, _rm, scos_rm)
ORVANE_TWIN(cosf, _native, cosf, _rm)
ORVANE_TWIN(cosf, _half, cosf, _rm)

} // namespace orvane
