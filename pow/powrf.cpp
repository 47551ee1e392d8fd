// powrf: x^y for x >= 0.
#include "pow/pow_kernels.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_spowr_cout_rare, const float* x, const float* y, float* result);

struct spowr_block {
    SLOT(float, 0, min_normal, 0x00800000) // compared as float
    SLOT(float, 1, x_ceiling, 0x7E400000)  // 6.380294e37, compared as float
    SLOT(float, 2, rcp_round, 0x00080000)  // half a unit of the third fraction bit
    SLOT(float, 3, rcp_mask, 0xFFF00000)   // keeps sign, exponent, three fraction bits
    SLOT(float, 4, one, 0x3F800000)
    // log_hi is near 127 - log2(1 + k/8), log_lo what is missing.
    ENTRIES(float, 5, 8, log_hi, 0x42FE0000, 0x42FDA900, 0x42FD5B2C, 0x42FD14C4, 0x42FCD480, 0x42FC9960, 0x42FC62A2,
            0x42FC2FAC)
    ENTRIES(float, 6, 8, log_lo, 0x00000000, 0xB651CFDF, 0x35F6865C, 0x37307F34, 0xB5D1CFDF, 0xB48E4789, 0x364055FE,
            0x3492D9F8)
    // Fit on |u| <= 1/16.8: (log2e_f + lo_u1)*u + (k2 + lo_u2)*u^2 + k3*u^3 + k4*u^4 + k5*u^5 + k6*u^6 + k7*u^7 =
    // log2(1 + u) to 2^-36.8 relative
    SLOT(float, 7, k7, 0x3E547EDE) // polynomial
    SLOT(float, 8, k6, 0xBE777CC7)
    SLOT(float, 9, k5, 0x3E93BADC)
    SLOT(float, 10, k4, 0xBEB8A9EA)
    SLOT(float, 11, log2e_f, 0x3FB8AA3B) // 1/ln 2 as float
    SLOT(float, 12, lo_u2, 0xB239C255)   // low part of the u^2 coefficient
    SLOT(float, 13, lo_u1, 0x32A56F15)   // low part of the u coefficient
    SLOT(float, 14, k2, 0xBF38AA3B)      // u^2 coefficient, -log2e_f/2
    SLOT(float, 15, k3, 0x3EF6384F)
    SLOT(float, 16, abs_mask, 0x7FFFFFFF)
    SLOT(float, 17, p_ceiling, 0x42FB0000)  // 125.5
    SLOT(float, 18, ex_shifter, 0x49C003F8) // 1.5 * 2^20 + 127: the last place is 1/8
    // 2^(j/8).
    ENTRIES(float, 19, 8, exp2_8, 0x3F800000, 0x3F8B95C2, 0x3F9837F0, 0x3FA5FED7, 0x3FB504F3, 0x3FC5672A, 0x3FD744FD,
            0x3FEAC0C7)
    // Fit on |d| <= 1/16: 1 + ex_c1*d + ex_c2*d^2 + ex_c3*d^3 = exp2(d) to 2^-24.7 relative
    SLOT(float, 20, ex_c3, 0x3D636078)
    SLOT(float, 21, ex_c2, 0x3E7607C9)
    SLOT(float, 22, exp_field, 0x7F800000)
    SLOT(float, 23, ex_c1, 0x3F317218) // ln 2
};
ORVANE_BLOCK(spowr_block, __orvane_spowr_data_avx2)

// pow's steps in pairs of floats. The reciprocal r of x itself, rounded to three bits, has the exponent and the table
// index in it, and the tables lie in registers.
struct powrf_in_pairs : kernel<two_arguments<float>, __orvane_spowr_data_avx2, __orvane_spowr_cout_rare> {
    template <int W>
    static ORVANE_INLINE auto vector_path(const spowr_block& c, lanes<float, W> x, lanes<float, W> y) {
        auto low = x < c.min_normal;
        auto rb = andnot(as<uint32_t>(low), (bits(reciprocal_estimate(x)) + c.rcp_round) & c.rcp_mask);
        auto u = fma(as<float>(rb), x, -lanes<float, W>(c.one));
        auto E = convert<float>(as<int32_t>(rb >> 23));
        auto k = rb >> 20;
        auto A = permute(c.log_hi, k) - E;
        auto Tl = permute(c.log_lo, k);

        auto p = fma(u, c.k7, c.k6);
        auto u2 = u * u;
        auto q = fma(u, c.k5, c.k4);
        auto l9 = fma(u, c.lo_u2, c.lo_u1);
        auto H1 = fma(u, c.log2e_f, A);
        q = fma(u2, p, q);
        auto H = fma(u2, c.k2, H1);
        auto e1 = fma(u, c.log2e_f, -(H1 - A));
        auto e2 = fma(u2, c.k2, -(H - H1));
        q = fma(q, u, c.k3);
        q = fma(q, u2, l9);
        auto L = fma(u, q, (Tl + e1) + e2);

        auto P = y * H;
        auto perr = fma(y, H, -P);
        lane_bits<W> special = low | not_less_equal(x, lanes<float, W>(c.x_ceiling)) |
                               not_less_equal(P & c.abs_mask, lanes<float, W>(c.p_ceiling));
        auto s = fma(L, y, P);
        auto N = s + c.ex_shifter;
        auto Nf = N - c.ex_shifter;
        auto lo = perr + fma(y, L, -(s - P));
        auto g = s - Nf;
        auto d = g + lo;
        auto b = fma(fma(g, c.ex_c3, c.ex_c2), d, c.ex_c1);
        auto T = permute(c.exp2_8, N);
        auto scale = as<float>(bits(N) << 20) & c.exp_field;
        auto t = T * d;
        return answer{fma(b, t, T) * scale, special};
    }
};
using powrf_fast = powf_by_polynomials<__orvane_spowr_native_data, __orvane_spowr_cout_rare>;

// Largest known error of powrf: 3.087 ulp at 0x3F749637,0x44E9D273, with one processor's estimates
// Largest known error of powrf, slow path: 1.621 ulp at 0x00BAF8B6,0xBF80880F
ORVANE_EXPORT(powrf, , powrf_in_pairs)
// Largest known error of powrf_native: 2061 ulp at 0x3FA66B58,0xC3A06D0A
// Largest known error of powrf_native, slow path: 1.621 ulp at 0x7B506BD4,0x3F88D80B
ORVANE_EXPORT(powrf, _native, powrf_fast)
ORVANE_TWIN(powrf, _half, powrf, _native)

} // namespace orvane
