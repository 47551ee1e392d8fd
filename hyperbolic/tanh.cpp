// tanh and tanhf.
#include "frame/_orvane_template.h"
#include "hyperbolic/hyperbolic_tables.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dtanh_cout_rare, const double* x, double* result);

struct dtanh_block {
    GAP(0, 40)
    TABLE(41, rows, tanh_rows)
    GAP(161, 161)
    SLOT(double, 162, sign_mask, 0x8000000000000000)
    SLOT(double, 163, abs_mask, 0x7FFFFFFFFFFFFFFF)
    SLOT(int32_t, 164, hw_mask, 0x7FFE0000) // exponent and top 3 significand bits of the high word
    SLOT(int32_t, 165, hw_limit, 0x7FE00000)
    SLOT(int32_t, 166, hw_base, 0x3FBE0000) // the interval of 0.1171875
    SLOT(int32_t, 167, hw_top, 0x00760000)  // 59 << 17
};
ORVANE_BLOCK(dtanh_block, __orvane_dtanh_data)
ORVANE_BLOCK_TWIN(__orvane_dtanh_native_data, __orvane_dtanh_data)
struct stanh_block {
    GAP(0, 7)
    // Fit on 0 <= x <= 8.015625, z = x^2: x*(pd0 + pd1*z + pf2*z^2 + pf3*z^3 + pf4*z^4)/(qd0 + qd1*z + qd2*z^2 +
    // qf3*z^3 + qf4*z^4) = tanh(x) to 2^-25.5 relative
    SLOT(double, 8, qd2, 0x3F9AA5668F92C8DF)  // 0.026021578324340374, denominator, z^2
    SLOT(double, 9, qd1, 0x3FDDEAEA531EA139)  // 0.46746309392121393, denominator, z
    SLOT(double, 10, qd0, 0x3FF000000341B1A6) // 1.0000000121318435, denominator, constant term
    SLOT(double, 11, pd1, 0x3FC12B2ADE806E60) // 0.13412986625995682, numerator, z
    SLOT(double, 12, pd0, 0x3FF0000000000000) // 1.0, numerator, constant term
    SLOT(float, 13, qf4, 0x355A9223)          // 8.1423985e-07, denominator, z^4
    SLOT(float, 14, qf3, 0x39AF8D12)          // 0.00033483707, denominator, z^3
    SLOT(float, 15, pf4, 0x32750800)          // 1.4262696e-08, numerator, z^4
    SLOT(float, 16, pf3, 0x37B239C3)          // 2.1246151e-05, numerator, z^3
    SLOT(float, 17, pf2, 0x3B679600)          // 0.003533721, numerator, z^2
    SLOT(float, 18, one, 0x3F800000)          // 1.0
    SLOT(float, 19, abs_mask, 0x7FFFFFFF)
    SLOT(float, 20, sat_limit, 0x41004000) // 8.015625
};
struct stanh_native_block {
    // Fit on 0 <= x <= 5, z = x^2: x*(1 + p0 + p1*z + p2*z^2)/(1 + q1*z + q2*z^2) = tanh(x) to 2^-14.2 relative
    SLOT(float, 0, q2, 0x3C520A84)  // 0.01281989, denominator, z^2
    SLOT(float, 1, q1, 0x3EDEF102)  // 0.4354325, denominator, z
    SLOT(float, 2, one, 0x3F800000) // 1.0, denominator, constant term, and the clamped result
    SLOT(float, 3, p2, 0x3A2FC8E6)  // 0.00067056564, numerator, z^2
    SLOT(float, 4, p1, 0x3DD1C060)  // 0.10241771, numerator, z
    SLOT(float, 5, p0, 0xB859E195)  // -5.194692e-05, numerator, constant term of the correction to x
    SLOT(float, 6, abs_mask, 0x7FFFFFFF)
    SLOT(float, 7, sat_limit, 0x40A00000) // 5.0
};
ORVANE_BLOCK(stanh_block, __orvane_stanh_data_avx2)
ORVANE_BLOCK(stanh_native_block, __orvane_stanh_native_data_avx2)

// A polynomial in y = abs(x) - c, its coefficients and the centre c in a row for each eighth of a binade, which the
// high word of x numbers; below 0.125 and from 18 on one row serves all.
struct tanh_by_rows : kernel<one_argument<double>, __orvane_dtanh_data, __orvane_dtanh_cout_rare> {
    template <int W> static ORVANE_INLINE auto prepare(const dtanh_block& c, lanes<double, W> x) {
        using words = lanes<int32_t, W>;
        auto hw = as<int32_t>(high_words(x)) & c.hw_mask;
        auto d = min(max(hw - c.hw_base, words(0)), words(c.hw_top));
        return results{as<uint32_t>(d >> 10), hw};
    }
    template <int W> static ORVANE_INLINE auto vector_path(const dtanh_block& c, lanes<double, W> x, auto ready) {
        auto [offset, hw] = ready;
        const row_addresses<W> row(&c.rows, offset);

        auto y = row.template entry<double>(12) + (x & c.abs_mask);
        auto [p9, p10] = row.template pair<double>(10);
        auto p = fma(p10, y, p9);
        each<4>([&](auto i) ORVANE_LAMBDA {
            auto [even, odd] = row.template pair<double>(8 - 2 * i);
            p = fma(fma(p, y, odd), y, even);
        });
        auto [rest, value] = row.template pair<double>(0);
        p = fma(p, y, value);
        return answer{p | (x & c.sign_mask), hw > c.hw_limit};
    }
};

// Largest known error of tanh: 1.253 ulp at 0xBFB00404627A46C1
ORVANE_EXPORT(tanh, , tanh_by_rows)
ORVANE_TWIN(tanh, _native, tanh, )

// +-v, and +-1 where abs(x) has reached the limit.
template <class V> ORVANE_INLINE V saturated(const auto& c, V x, V ax, V v) {
    return select(V(c.sat_limit) <= ax, V(c.one), v) ^ (x ^ ax);
}

// x P(x^2) / Q(x^2); the last steps, whose errors count most, run in double.
struct tanhf_mixed : kernel<one_argument<float>, __orvane_stanh_data_avx2> {
    template <int W> static ORVANE_INLINE auto vector_path(const stanh_block& c, lanes<float, W> x) {
        auto ax = x & c.abs_mask;
        auto z = ax * ax;
        auto qf = fma(c.qf4, z, lanes<float, W>(c.qf3)), pf = horner(z, c.pf4, c.pf3, c.pf2);
        auto q = by_halves(
            [&](auto ax, auto qf) ORVANE_LAMBDA {
                auto a = convert<double>(ax), zd = a * a; // exact
                return convert<float>(horner(zd, convert<double>(qf), c.qd2, c.qd1, c.qd0));
            },
            ax, qf);
        auto p = by_halves(
            [&](auto ax, auto pf) ORVANE_LAMBDA {
                auto a = convert<double>(ax), zd = a * a;
                return convert<float>(horner(zd, convert<double>(pf), c.pd1, c.pd0));
            },
            ax, pf);
        return saturated(c, x, ax, p * ax / q);
    }
};
struct tanhf_short : kernel<one_argument<float>, __orvane_stanh_native_data_avx2> {
    template <int W> static ORVANE_INLINE auto vector_path(const stanh_native_block& c, lanes<float, W> x) {
        auto ax = x & c.abs_mask;
        auto z = ax * ax;
        auto q = horner(z, c.q2, c.q1, c.one);
        auto p = horner(z, c.p2, c.p1, c.p0);
        return saturated(c, x, ax, fma(p, ax, ax) / q);
    }
};

// Largest known error of tanhf: 3.818 ulp at 0x40E0A228
ORVANE_EXPORT_SETTLED(tanhf, , tanhf_mixed)
// Largest known error of tanhf_native: 1523 ulp at 0x40A00000
ORVANE_EXPORT_SETTLED(tanhf, _native, tanhf_short)

} // namespace orvane
