// log2, log10 and their float members. The accurate kernels scale the reciprocal by K near 1 / ln of the base before
// it is rounded, so that r = c m - K comes scaled for the base and its leading term needs no multiplication.
#include "log/log_kernels.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dlog2_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_slog2_cout_rare, const float* x, float* result);
ORVANE_SLOW_PATH(__orvane_dlog10_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_slog10_cout_rare, const float* x, float* result);

struct dlog2_block {
    TABLE(0, log2_pairs, log2_pairs_513)
    TABLE(129, log2_single, log2_single_513)
    // Fit on |r| <= 2^-8.6: r + r*(d0 + d1*r + d2*r^2 + d3*r^3 + d4*r^4 + d5*r^5) = log2(1 + r/k_scale)
    // to 2^-60.1 relative
    SLOT(double, 194, d5, 0xBF9B743CA0B38EEB) // -0.0268105958065367, polynomial
    SLOT(double, 195, d4, 0x3FA7BE52039FB7CE) // 0.04637390417325059, polynomial
    SLOT(double, 196, d3, 0xBFB563D0FCE18810) // -0.08355432676174268, polynomial
    SLOT(double, 197, d2, 0x3FC48DEAD300E7BF) // 0.16058097174555816, polynomial
    SLOT(double, 198, d1, 0xBFD6386B9B9B5D42) // -0.3471936244581749, polynomial
    SLOT(double, 199, d0, 0x3F4D4C6D2BC5AEA6) // 0.0008941205083323369, polynomial
    GAP(200, 201)
    // Fit on |r| <= 2^-9.5: e0*r + e1*r^2 + e2*r^3 = log2(1 + r) to 2^-30.5 relative
    SLOT(double, 202, e2, 0x3FDEC709DC39E926) // 0.48089834696260636, fast polynomial
    SLOT(double, 203, e1, 0xBFE71547652B7CF8) // -0.7213475204443105, fast polynomial
    SLOT(double, 204, e0, 0x3FF71547652B82FE) // 1.4426950408889634, fast polynomial
    SLOT(double, 205, mantissa_mask, 0x000FFFFFFFFFFFFF)
    SLOT(double, 206, m_exponent_wide, 0x3F60000000000000) // 2^-9, exponent given to m, default tier
    SLOT(double, 207, m_exponent, 0x3F50000000000000)      // 2^-10, exponent given to m, fast tiers
    SLOT(double, 208, min_normal, 0x0010000000000000)      // smallest ordinary input
    SLOT(double, 209, max_finite, 0x7FEFFFFFFFFFFFFF)      // largest ordinary input
    GAP(210, 210)
    SLOT(double, 211, k_scale, 0x3FF7100000000000)      // 1.44140625, K = 369 / 256
    SLOT(double, 212, one, 0x3FF0000000000000)          // 1.0
    SLOT(double, 213, c_split, 0x4086A00000000000)      // 724.0
    SLOT(double, 214, bias_small_m, 0x408FF80000000000) // 1023.0
    SLOT(double, 215, bias_large_m, 0x408FF00000000000) // 1022.0
};
ORVANE_BLOCK(dlog2_block, __orvane_dlog2_data)
ORVANE_BLOCK_TWIN(__orvane_dlog2_rm_data, __orvane_dlog2_data)
ORVANE_BLOCK_TWIN(__orvane_dlog2_native_data, __orvane_dlog2_data)
ORVANE_BLOCK_TWIN(__orvane_dlog2_half_data, __orvane_dlog2_data)
struct dlog10_block {
    TABLE(0, log10_pairs, log10_pairs_257)
    TABLE(65, log10_single, log10_single_513)
    // Fit on |r| <= 2^-9.7: r + r*(d0 + d1*r + d2*r^2 + d3*r^3 + d4*r^4 + d5*r^5) = log(1 + r/k_scale)/log(10)
    // to 2^-56.1 relative
    SLOT(double, 130, d5, 0xC025C91A15F7EB9F) // -10.892777143968315, polynomial
    SLOT(double, 131, d4, 0x4016ABA863A166DB) // 5.667634541250403, polynomial
    SLOT(double, 132, d3, 0xC008930964D2FA9B) // -3.07179526108605, polynomial
    SLOT(double, 133, d2, 0x3FFC6A02DC954978) // 1.77588163533491, polynomial
    SLOT(double, 134, d1, 0xBFF27AF2DC77B115) // -1.1550167667401798, polynomial
    SLOT(double, 135, d0, 0x3F5A7A6CBF2E410C) // 0.0016161024074997114, polynomial
    GAP(136, 137)
    // Fit on |r| <= 2^-9.5: e0*r + e1*r^2 + e2*r^3 = log(1 + r)/log(10) to 2^-30.5 relative
    SLOT(double, 138, e2, 0x3FC287A7636F341E) // 0.14476482730097556, fast polynomial
    SLOT(double, 139, e1, 0xBFCBCB7B1526DE36) // -0.21714724095157728, fast polynomial
    SLOT(double, 140, e0, 0x3FDBCB7B1526E50E) // 0.4342944819032518, fast polynomial
    SLOT(double, 141, mantissa_mask, 0x000FFFFFFFFFFFFF)
    SLOT(double, 142, m_exponent, 0x3F50000000000000) // 2^-10
    SLOT(double, 143, min_normal, 0x0010000000000000)
    SLOT(double, 144, max_finite, 0x7FEFFFFFFFFFFFFF)
    GAP(145, 145)
    SLOT(double, 146, k_scale, 0x3FDBC00000000000)      // 0.43359375, K = 111 / 256
    SLOT(double, 147, one, 0x3FF0000000000000)          // 1.0
    SLOT(double, 148, log10_2_hi, 0x3FD34413509F0000)   // 0.30102999566224753, log10(2), high part
    SLOT(double, 149, log10_2_lo, 0x3D7E7FBCC47C0000)   // 1.7336659603714182e-12, low part
    SLOT(double, 150, c_split, 0x4086A00000000000)      // 724.0
    SLOT(double, 151, bias_small_m, 0x408FF80000000000) // 1023.0
    SLOT(double, 152, bias_large_m, 0x408FF00000000000) // 1022.0
    SLOT(double, 153, log10_2, 0x3FD34413509F79FF)      // 0.3010299956639812
};
ORVANE_BLOCK(dlog10_block, __orvane_dlog10_data)
ORVANE_BLOCK_TWIN(__orvane_dlog10_native_data, __orvane_dlog10_data)
ORVANE_BLOCK_TWIN(__orvane_dlog10_half_data, __orvane_dlog10_data)
struct slog2_block {
    TABLE(0, log2_pairs, log2f_pairs_129)
    // Fit on |r| <= 2^-6.9: r + r*(e0 + e1*r + e2*r^2) = log2(1 + r/k_scale) to 2^-25.9 relative
    SLOT(float, 17, e2, 0x3E25C86A) // 0.16189733147621155
    SLOT(float, 18, e1, 0xBEB2BB8C) // -0.349087119102478
    SLOT(float, 19, e0, 0x3B6CD7E0) // 0.0036139413714408875
    SLOT(float, 20, mantissa_mask, 0x007FFFFF)
    SLOT(float, 21, m_exponent, 0x3C000000) // 2^-7
    SLOT(float, 22, min_normal, 0x00800000)
    SLOT(float, 23, max_finite, 0x7F7FFFFF)
    GAP(24, 24)
    SLOT(float, 25, k_scale, 0x3FB80000)           // 1.4375
    SLOT(int32_t, 26, two_thirds_bits, 0x3F2AAAAB) // 2/3
    SLOT(int32_t, 27, cut_mantissa_mask, 0x007FFFFF)
    SLOT(float, 28, one, 0x3F800000) // 1.0
    GAP(29, 37)
    // Fit on |v| <= 1/3: a0*v + a1*v^2 + a2*v^3 + a3*v^4 + a4*v^5 = log2(1 + v) to 2^-14.0 relative
    SLOT(float, 38, a4, 0x3EAAE01B) // 0.33374103903770447
    SLOT(float, 39, a3, 0xBECB686C) // -0.39728105068206787
    SLOT(float, 40, a2, 0x3EF4FA41) // 0.4784717857837677
    SLOT(float, 41, a1, 0xBF38658A) // -0.7202993631362915
    SLOT(float, 42, a0, 0x3FB8AAED) // 1.4427162408828735
};
ORVANE_BLOCK(slog2_block, __orvane_slog2_data)
ORVANE_BLOCK_TWIN(__orvane_slog2_rm_data, __orvane_slog2_data)
ORVANE_BLOCK_TWIN(__orvane_slog2_native_data, __orvane_slog2_data)
ORVANE_BLOCK_TWIN(__orvane_slog2_half_data, __orvane_slog2_data)
struct slog10_block {
    TABLE(0, log10_pairs, log10f_pairs_129)
    // Fit on |r| <= 2^-8.8: r + r*(e0 + e1*r + e2*r^2) = log(1 + r/k_scale)/log(10) to 2^-26.1 relative
    SLOT(float, 17, e2, 0x3FE35103) // 1.7759097814559937
    SLOT(float, 18, e1, 0xBF93D7E4) // -1.1550259590148926
    SLOT(float, 19, e0, 0x3AD3D366) // 0.00161610241048038
    SLOT(float, 20, mantissa_mask, 0x007FFFFF)
    SLOT(float, 21, m_exponent, 0x3B000000) // 2^-9
    SLOT(float, 22, min_normal, 0x00800000)
    SLOT(float, 23, max_finite, 0x7F7FFFFF)
    GAP(24, 24)
    SLOT(float, 25, k_scale, 0x3EDE0000)           // 0.43359375
    SLOT(float, 26, log10_2_hi, 0x3E9A2100)        // 0.30103302001953125
    SLOT(float, 27, log10_2_lo, 0xB64AF600)        // -3.0243536457419395e-06
    SLOT(int32_t, 28, two_thirds_bits, 0x3F2AAAAB) // 2/3
    SLOT(int32_t, 29, cut_mantissa_mask, 0x007FFFFF)
    SLOT(float, 30, one, 0x3F800000) // 1.0
    GAP(31, 39)
    // Fit on |v| <= 1/3: a0*v + a1*v^2 + a2*v^3 + a3*v^4 + a4*v^5 = log(1 + v)/log(10) to 2^-14.0 relative
    SLOT(float, 40, a4, 0x3DCDC127)      // 0.10046606510877609
    SLOT(float, 41, a3, 0xBDF4ED71)      // -0.11959350854158401
    SLOT(float, 42, a2, 0x3E137DBE)      // 0.14403435587882996
    SLOT(float, 43, a1, 0xBE5E0922)      // -0.21683171391487122
    SLOT(float, 44, a0, 0x3EDE5CAE)      // 0.43430083990097046
    SLOT(float, 45, log10_2, 0x3E9A209B) // 0.3010300099849701
};
ORVANE_BLOCK(slog10_block, __orvane_slog10_data)
ORVANE_BLOCK_TWIN(__orvane_slog10_native_data, __orvane_slog10_data)
ORVANE_BLOCK_TWIN(__orvane_slog10_half_data, __orvane_slog10_data)

// What the bases differ in: where the pairs lie by the bits of c, and the exponent's share (h, l) of the result.
struct base_2 {
    template <class V> static ORVANE_INLINE V significand_of(const auto& c, V x) {
        if constexpr (requires { c.m_exponent_wide; }) return significand(c, x, c.m_exponent_wide);
        else return significand(c, x, c.m_exponent);
    }
    template <int W> static ORVANE_INLINE auto pair(const auto& c, lanes<double, W> v) {
        return pair_of_bits<39, 0x80EE20>(c, v);
    }
    template <int W> static ORVANE_INLINE auto pair(const auto& c, lanes<float, W> v) {
        return pair_of_bits<13, 0x215C0>(c, v);
    }
    template <class T, int W>
    static ORVANE_INLINE lane_pair<T, W> with_exponent(const auto&, lane_pair<T, W> t, lanes<T, W> E) {
        return {t.first + E, t.second};
    }
    template <int W> static ORVANE_INLINE auto single(const auto& c, lanes<double, W> v) {
        return single_of_bits<40, 0x405FC0>(c, v);
    }
    template <class V> static ORVANE_INLINE V times_log_2(const auto&, V k) { return k; }
};
struct base_10 {
    template <class V> static ORVANE_INLINE V significand_of(const auto& c, V x) {
        return significand(c, x, c.m_exponent);
    }
    template <int W> static ORVANE_INLINE auto pair(const auto& c, lanes<double, W> v) {
        return pair_of_bits<40, 0x406BC0>(c, v);
    }
    template <int W> static ORVANE_INLINE auto pair(const auto& c, lanes<float, W> v) {
        return pair_of_bits<13, 0x216F0>(c, v);
    }
    template <class T, int W>
    static ORVANE_INLINE lane_pair<T, W> with_exponent(const auto& c, lane_pair<T, W> t, lanes<T, W> E) {
        return {fma(E, c.log10_2_hi, t.first), fma(E, c.log10_2_lo, t.second)};
    }
    template <int W> static ORVANE_INLINE auto single(const auto& c, lanes<double, W> v) {
        return single_of_bits<40, 0x406FC0>(c, v);
    }
    template <class V> static ORVANE_INLINE V times_log_2(const auto& c, V k) { return k * c.log10_2; }
};

template <class T, class Base, const auto& Block, auto& Rare> struct log_scaled
    : kernel<one_argument<T>, Block, Rare> {
    static constexpr bool staged = sizeof(T) == 8;

    template <int W> static ORVANE_INLINE auto prepare(const auto& c, lanes<T, W> x) {
        auto m = Base::significand_of(c, x);
        auto integer = round_to<to_nearest>(reciprocal_estimate(m) * c.k_scale);
        return results{fma(integer, m, -lanes<T, W>(c.k_scale)), integer};
    }
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x, auto ready) {
        auto [r, integer] = ready;
        auto E = biased_exponent(x);
        auto [h, l] = Base::with_exponent(c, Base::pair(c, integer), E);
        auto [s, e] = add_exactly(r, h);

        lanes<T, W> w;
        if constexpr (sizeof(T) == 8) {
            auto a = fma(r, c.d5, c.d4);
            auto p = fma(r, c.d3, c.d2);
            auto d = fma(r, c.d1, c.d0);
            auto r2 = r * r;
            p = fma(fma(r2, a, p), r2, d);
            w = (l + e) + r * p;
        } else {
            auto p = horner(r, c.e2, c.e1, c.e0);
            if constexpr (std::is_same_v<Base, base_2>) w = r * p + (l + e);
            else w = fma(r, p, l) + e;
        }
        return answer{s + w, not_positive_normal(c, x)};
    }
};

template <class Base, const auto& Block, auto& Rare> struct log_single_table
    : kernel<one_argument<double>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto prepare(const auto& c, lanes<double, W> x) {
        return rest_and_row(c, x);
    }
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<double, W> x, auto ready) {
        auto [r, integer] = ready;
        auto k = unbiased(c, integer, biased_exponent(x));
        auto U = Base::single(c, integer);
        auto a = fma(r, c.e2, c.e1);
        auto r2 = r * r;
        auto q = U + fma(a, r2, r * c.e0);
        return answer{Base::times_log_2(c, k) + q, not_positive_normal(c, x)};
    }
};

template <class Base, const auto& Block, auto& Rare> struct log_polynomial
    : kernel<one_argument<float>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<float, W> x) {
        auto [v, K, d] = cut_at_two_thirds(c, c.cut_mantissa_mask, signed_bits(x));
        auto p = horner(v, c.a4, c.a3, c.a2, c.a1, c.a0);
        return answer{fma(v, p, Base::times_log_2(c, K)), not_positive_normal(c, x)};
    }
};

using dlog2_default = log_scaled<double, base_2, __orvane_dlog2_data, __orvane_dlog2_cout_rare>;
using dlog2_fast = log_single_table<base_2, __orvane_dlog2_data, __orvane_dlog2_cout_rare>;
using slog2_default = log_scaled<float, base_2, __orvane_slog2_data, __orvane_slog2_cout_rare>;
using slog2_fast = log_polynomial<base_2, __orvane_slog2_data, __orvane_slog2_cout_rare>;
using dlog10_default = log_scaled<double, base_10, __orvane_dlog10_data, __orvane_dlog10_cout_rare>;
using dlog10_fast = log_single_table<base_10, __orvane_dlog10_data, __orvane_dlog10_cout_rare>;
using slog10_default = log_scaled<float, base_10, __orvane_slog10_data, __orvane_slog10_cout_rare>;
using slog10_fast = log_polynomial<base_10, __orvane_slog10_data, __orvane_slog10_cout_rare>;

// Largest known error of log2: 0.5018 ulp at 0x3FEFFF6AC52D3326, with one processor's estimates
// Largest known error of log2, slow path: 0.4999 ulp at 0x0004FF3CB37DA77F
ORVANE_EXPORT(log2, , dlog2_default)
// Largest known error of log2_rm: 3.316e-10 relative at 0x3FEFF6FFF00011CF, with one processor's estimates
// Largest known error of log2_rm, slow path: 0.4999 ulp at 0x0004FF3CB37DA77F
ORVANE_EXPORT(log2, _rm, dlog2_fast)
ORVANE_TWIN(log2, _native, log2, _rm)
ORVANE_TWIN(log2, _half, log2, _rm)
// Largest known error of log2f: 0.6804 ulp at 0x3F805888, with one processor's estimates
// Largest known error of log2f, slow path: 0.5467 ulp at 0x004675D1
ORVANE_EXPORT(log2f, , slog2_default)
ORVANE_TWIN(log2f, _rm, log2f, )
// Largest known error of log2f_native: 893.5 ulp at 0x3F8B9599
// Largest known error of log2f_native, slow path: 0.5467 ulp at 0x004675D1
ORVANE_EXPORT(log2f, _native, slog2_fast)
ORVANE_TWIN(log2f, _half, log2f, _native)
// Largest known error of log10: 0.5092 ulp at 0x3FF0048EAD13693E, with one processor's estimates
// Largest known error of log10, slow path: 0.5 ulp at 0x0005A654F917F62D
ORVANE_EXPORT(log10, , dlog10_default)
// Largest known error of log10_native: 3.316e-10 relative at 0x3FEFF6FFF0001822, with one processor's estimates
// Largest known error of log10_native, slow path: 0.4999 ulp at 0x0003CE0129B5F3C1
ORVANE_EXPORT(log10, _native, dlog10_fast)
ORVANE_TWIN(log10, _half, log10, _native)
// Largest known error of log10f: 0.7703 ulp at 0x3F804810, with one processor's estimates
// Largest known error of log10f, slow path: 0.5375 ulp at 0x004C86FA
ORVANE_EXPORT(log10f, , slog10_default)
// Largest known error of log10f_native: 995.1 ulp at 0x3FAAAAB8
// Largest known error of log10f_native, slow path: 0.5407 ulp at 0x00438C29
ORVANE_EXPORT(log10f, _native, slog10_fast)
ORVANE_TWIN(log10f, _half, log10f, _native)

} // namespace orvane
