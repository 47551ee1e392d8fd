// log1p and log1pf: ln(1 + x). z = 1 + x rounded, its error err kept exactly and folded into the residual as err / z.
#include "log/log_kernels.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dlog1p_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_slog1p_cout_rare, const float* x, float* result);

struct dlog1p_block {
    TABLE(0, log_pairs, ln_pairs)
    TABLE(129, log_single, ln_single)
    ORVANE_LN_POLYNOMIAL
    SLOT(double, 198, mantissa_mask, 0x000FFFFFFFFFFFFF)
    SLOT(double, 199, m_exponent, 0x3F50000000000000)  // 2^-10
    SLOT(double, 200, lower_limit, 0xBFEFFFFFFFFFFFFF) // -0.9999999999999999, smallest ordinary input
    SLOT(double, 201, upper_limit, 0x7F3FFFFFFFFFF000) // 8.77779851006591e+304, largest ordinary input
    GAP(202, 202)
    SLOT(double, 203, one, 0x3FF0000000000000) // 1.0
    SLOT(double, 204, abs_mask, 0x7FFFFFFFFFFFFFFF)
    SLOT(double, 205, tiny_limit, 0x3E00000000000000)   // 2^-31, below it z keeps all its bits
    SLOT(double, 206, z_mask, 0xFFFFFFFFFFFFFC00)       // clears the low 10 bits of z
    SLOT(double, 207, ln2_hi, 0x3FE62E42FEFA0000)       // 0.6931471805582987, as in log
    SLOT(double, 208, ln2_lo, 0x3D7CF79ABC9E0000)       // 1.6465949582866463e-12, as in log
    SLOT(double, 209, c_split, 0x4086A00000000000)      // 724.0
    SLOT(double, 210, bias_small_m, 0x408FF80000000000) // 1023.0
    SLOT(double, 211, bias_large_m, 0x408FF00000000000) // 1022.0
    SLOT(uint64_t, 212, exponent_field, 0x7FF0000000000000)
    SLOT(uint64_t, 213, scale_base,
         0x7F40000000000000) // 2 * 1023 - 10 in the exponent field: less that of z it is that of 2^k
    SLOT(double, 214, ln2, 0x3FE62E42FEFA39EF) // 0.6931471805599453
};
ORVANE_BLOCK(dlog1p_block, __orvane_dlog1p_data)
ORVANE_BLOCK_TWIN(__orvane_dlog1p_native_data, __orvane_dlog1p_data)
struct slog1p_block {
    TABLE(0, log_pairs, ln1pf_pairs_129)
    SLOT(float, 17, abs_mask, 0x7FFFFFFF)
    SLOT(float, 18, tiny_limit, 0x39800000) // 2^-12
    SLOT(float, 19, z_mask, 0xFFFFFF00)     // clears the low 8 bits of z
    SLOT(uint32_t, 20, exponent_field, 0x7F800000)
    SLOT(uint32_t, 21, scale_base, 0x7B000000) // 2 * 127 - 8 in the exponent field
    // Fit on |r| <= 2^-7.8: r + p2*r^2 + p3*r^3 = log(1 + r) to 2^-26.9 relative
    SLOT(float, 22, p3, 0x3EAAAB39) // 0.33333757519721985
    SLOT(float, 23, p2, 0xBF000036) // -0.5000032186508179
    SLOT(float, 24, mantissa_mask, 0x007FFFFF)
    SLOT(float, 25, m_exponent, 0x3B800000)  // 2^-8
    SLOT(float, 26, lower_limit, 0xBF7FFFFF) // -0.9999999403953552
    SLOT(float, 27, upper_limit, 0x7A800000) // 3.32306998946229e+35
    GAP(28, 28)
    SLOT(float, 29, ln2_hi, 0x3F317200) // 0.693145751953125, ln 2, high part
    SLOT(float, 30, ln2_lo, 0x35BFBE00) // 1.4285906217992306e-06, low part
    SLOT(float, 31, one, 0x3F800000)    // 1.0
};
ORVANE_BLOCK(slog1p_block, __orvane_slog1p_data)
struct slog1p_native_block {
    GAP(0, 16)
    SLOT(float, 17, abs_mask, 0x7FFFFFFF)
    GAP(18, 30)
    SLOT(float, 31, one, 0x3F800000)
    // Fit on |r| <= 1/3: r + c0*r^2 + c1*r^3 + c2*r^4 + c3*r^5 = log(1 + r) to 2^-13.3 relative
    SLOT(float, 32, c0, 0xBF000000)          // -0.5
    SLOT(float, 33, c1, 0x3EAA7160)          // 0.33289623260498047
    SLOT(float, 34, c2, 0xBE88E8FE)          // -0.2674025893211365
    SLOT(float, 35, c3, 0x3E612933)          // 0.2198837250471115
    SLOT(int32_t, 36, test_bias, 0x01000000) // added to the bits of z
    SLOT(int32_t, 37, test_limit, 0x01800000)
    SLOT(int32_t, 38, two_thirds_bits, 0x3F2AAAAB)
    SLOT(int32_t, 39, mantissa_mask, 0x007FFFFF)
    SLOT(float, 40, ln2, 0x3F317218) // 0.6931471824645996
};
ORVANE_BLOCK(slog1p_native_block, __orvane_slog1p_native_data)

// The larger and the smaller of 1 and x.
template <class V> struct ordered_pair { V big, small; };
template <class V> ORVANE_INLINE ordered_pair<V> order(V one, V x) { return {max(one, x), min(one, x)}; }
template <class V> ORVANE_INLINE auto outside_limits(const auto& c, V x) {
    return not_less_equal(x, V(c.upper_limit)) | (x < V(c.lower_limit));
}
// The power of two with which z times it is the significand m.
template <class T, int W> ORVANE_INLINE lanes<T, W> scale_to_significand(const auto& c, lanes<T, W> z) {
    return as<T>(lanes<uint_of<T>, W>(c.scale_base) - (bits(z) & c.exponent_field));
}

template <class T, const auto& Block, auto& Rare> struct log1p_compensated : kernel<one_argument<T>, Block, Rare> {
    static constexpr bool staged = sizeof(T) == 8;

    template <int W> static ORVANE_INLINE auto prepare(const auto& c, lanes<T, W> x) {
        using V = lanes<T, W>;
        const V one = c.one;
        auto z = x + one;
        // Low bits of z are cleared, so that err has room; where x is tiny z is 1 and err x itself.
        auto zz = finished(z & as<T>(((x & c.abs_mask) < V(c.tiny_limit)) | signed_bits(V(c.z_mask))));
        auto [big, small] = order(one, x);
        auto err = finished((big - zz) + small); // 1 + x = zz + err exactly

        return three_results{zz, err, round_to<to_nearest>(reciprocal_estimate(significand(c, zz, c.m_exponent)))};
    }
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x, auto ready) {
        using V = lanes<T, W>;
        const V one = c.one;
        auto [zz, err, integer] = ready;
        auto m = significand(c, zz, c.m_exponent);
        auto E = biased_exponent(zz);
        auto s = scale_to_significand(c, zz);
        auto v = integer * s;
        V r;
        if constexpr (sizeof(T) == 8) r = fma(integer, m, -one);
        else r = fma(v, zz, -one);
        auto d = err * v;
        auto R = r + d;
        auto e1 = d - (R - r);

        lane_pair<T, W> t;
        if constexpr (sizeof(T) == 8) t = pair_of_bits<39, 0x810000>(c, integer);
        else t = pair_of_bits<13, 0x21800>(c, integer);
        auto h = fma(E, c.ln2_hi, t.first);
        auto l = finished(fma(E, c.ln2_lo, t.second));
        in_turn(l, R);

        auto R2 = R * R;
        auto [u, e] = add_exactly(R, h);
        V w;
        if constexpr (sizeof(T) == 8) {
            auto a = fma(R, c.p5, c.p4);
            auto p = fma(R, c.p3, c.p2);
            w = e + fma(fma(R2, a, p), R2, e1 + l);
        } else w = fma(fma(R, c.p3, c.p2), R2, e1) + (l + e);
        return answer{with_sign_of(u + w, x), outside_limits(c, x)};
    }
};

struct log1p_plain : kernel<one_argument<double>, __orvane_dlog1p_data, __orvane_dlog1p_cout_rare> {
    template <int W> static ORVANE_INLINE auto prepare(const dlog1p_block& c, lanes<double, W> x) {
        return rest_and_row(c, x + c.one);
    }
    template <int W> static ORVANE_INLINE auto vector_path(const dlog1p_block& c, lanes<double, W> x, auto ready) {
        const lanes<double, W> one = c.one;
        auto [r, integer] = ready;
        auto [big, small] = order(one, x);
        auto z = x + one;
        auto err = (big - z) + small;
        auto k = unbiased(c, integer, biased_exponent(z));
        auto R = fma(err, scale_to_significand(c, z) * integer, r);
        auto U = single_of_bits<40, 0x405FC0>(c, integer);
        auto a = fma(R, c.p3, c.p2);
        auto q = (R + U) + k * c.ln2;
        return answer{with_sign_of(fma(a, R * R, q), x), outside_limits(c, x)};
    }
};

struct log1pf_polynomial : kernel<one_argument<float>, __orvane_slog1p_native_data, __orvane_slog1p_cout_rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const slog1p_native_block& c, lanes<float, W> x) {
        const lanes<float, W> one = c.one;
        auto [big, small] = order(one, x);
        auto z = big + small;
        auto err = (big - z) + small;
        auto [m1, K, d] = cut_at_two_thirds(c, c.mantissa_mask, signed_bits(z));
        auto s = as<float>(signed_bits(one) - (d & lanes<int32_t, W>(int32_t(0xFF800000)))); // 2^-k
        auto v = m1 + err * s;
        auto q = v * horner(v, c.c3, c.c2, c.c1, c.c0);
        auto y = fma(K, c.ln2, fma(v, q, v));
        return answer{with_sign_of(y, x), signed_bits(z) + c.test_bias < c.test_limit};
    }
};

using dlog1p_default = log1p_compensated<double, __orvane_dlog1p_data, __orvane_dlog1p_cout_rare>;
using slog1p_default = log1p_compensated<float, __orvane_slog1p_data, __orvane_slog1p_cout_rare>;

// Largest known error of log1p: 0.7442 ulp at 0xBF4FE632575E881F, with one processor's estimates
// Largest known error of log1p, slow path: 0.5 ulp at 0x7FA76AED761392E1
ORVANE_EXPORT(log1p, , dlog1p_default)
// Largest known error of log1p_native: 3.316e-10 relative at 0xBF52001FFFE6FEC3, with one processor's estimates
// Largest known error of log1p_native, slow path: 0.5 ulp at 0x7F925670D2784D03
ORVANE_EXPORT(log1p, _native, log1p_plain)
// Largest known error of log1pf: 0.622 ulp at 0x3B000AB3, with one processor's estimates
// Largest known error of log1pf, slow path: 0.5 ulp at 0x7BBA24CE
ORVANE_EXPORT(log1pf, , slog1p_default)
// Largest known error of log1pf_native: 1568 ulp at 0xBE628188
// Largest known error of log1pf_native, slow path: 0.5 ulp at 0x7F68E407
ORVANE_EXPORT(log1pf, _native, log1pf_polynomial)

} // namespace orvane
