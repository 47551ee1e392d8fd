// log and logf: the natural logarithm.
#include "log/log_kernels.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dln_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_sln_cout_rare, const float* x, float* result);

struct dln_block {
    TABLE(0, log_pairs, ln_pairs)
    TABLE(129, log_single, ln_single)
    ORVANE_LN_POLYNOMIAL
    SLOT(double, 198, mantissa_mask, 0x000FFFFFFFFFFFFF)
    SLOT(double, 199, m_exponent, 0x3F50000000000000) // 2^-10, exponent given to m
    SLOT(double, 200, min_normal, 0x0010000000000000) // smallest ordinary input
    SLOT(double, 201, max_finite, 0x7FEFFFFFFFFFFFFF) // largest ordinary input
    GAP(202, 202)
    SLOT(double, 203, one, 0x3FF0000000000000)          // 1.0
    SLOT(double, 204, ln2_hi, 0x3FE62E42FEFA0000)       // 0.6931471805582987, ln 2, high part
    SLOT(double, 205, ln2_lo, 0x3D7CF79ABC9E0000)       // 1.6465949582866463e-12, low part
    SLOT(double, 206, c_split, 0x4086A00000000000)      // 724.0, the c nearest to 512 * sqrt(2)
    SLOT(double, 207, bias_small_m, 0x408FF80000000000) // 1023.0, exponent bias for c above `c_split`
    SLOT(double, 208, bias_large_m, 0x408FF00000000000) // 1022.0, exponent bias otherwise
    SLOT(double, 209, ln2, 0x3FE62E42FEFA39EF)          // 0.6931471805599453, ln 2
};
ORVANE_BLOCK(dln_block, __orvane_dln_data)
ORVANE_BLOCK_TWIN(__orvane_dln_rm_data, __orvane_dln_data)
ORVANE_BLOCK_TWIN(__orvane_dln_native_data, __orvane_dln_data)
ORVANE_BLOCK_TWIN(__orvane_dln_half_data, __orvane_dln_data)
struct sln_block {
    // Fit on |r| <= 1/3: r + c0*r^2 + c1*r^3 + c2*r^4 + c3*r^5 + c4*r^6 + c5*r^7 + c6*r^8 + c7*r^9 + c8*r^10 =
    // log(1 + r) to 2^-27.4 relative
    SLOT(float, 0, c0, 0xBF000000)                 // -0.5, polynomial
    SLOT(float, 1, c1, 0x3EAAAA83)                 // 0.3333321511745453, polynomial
    SLOT(float, 2, c2, 0xBE7FFF78)                 // -0.24999797344207764, polynomial
    SLOT(float, 3, c3, 0x3E4CE814)                 // 0.20010405778884888, polynomial
    SLOT(float, 4, c4, 0xBE2ACEE6)                 // -0.16680487990379333, polynomial
    SLOT(float, 5, c5, 0x3E0F6B8C)                 // 0.140058696269989, polynomial
    SLOT(float, 6, c6, 0xBDF9889E)                 // -0.12184260785579681, polynomial
    SLOT(float, 7, c7, 0x3E0F335D)                 // 0.1398443728685379, polynomial
    SLOT(float, 8, c8, 0xBE0402C8)                 // -0.12891685962677002, polynomial
    SLOT(int32_t, 9, min_normal_bits, 0x00800000)  // added to the bits of x for the test
    SLOT(int32_t, 10, test_limit, 0x01000000)      // signed limit of the test
    SLOT(int32_t, 11, two_thirds_bits, 0x3F2AAAAB) // 0.6666666865348816, lower end of the range of m
    SLOT(int32_t, 12, mantissa_mask, 0x007FFFFF)
    SLOT(float, 13, one, 0x3F800000)    // 1.0
    SLOT(float, 14, ln2_hi, 0x3F317200) // 0.693145751953125, ln 2, high part
    SLOT(float, 15, ln2_lo, 0x35BFBE8E) // 1.428606765330187e-06, ln 2, low part
};
ORVANE_BLOCK(sln_block, __orvane_sln_data)
ORVANE_BLOCK_TWIN(__orvane_sln_rm_data, __orvane_sln_data)
struct sln_native_block {
    // Fit on |r| <= 1/3: r + c0*r^2 + c1*r^3 + c2*r^4 + c3*r^5 = log(1 + r) to 2^-13.3 relative
    SLOT(float, 0, c0, 0xBF000000) // -0.5
    SLOT(float, 1, c1, 0x3EAA7160) // 0.33289623260498047
    SLOT(float, 2, c2, 0xBE88E8FE) // -0.2674025893211365
    SLOT(float, 3, c3, 0x3E612933) // 0.2198837250471115
    SLOT(int32_t, 4, min_normal_bits, 0x00800000)
    SLOT(int32_t, 5, test_limit, 0x01000000)
    SLOT(int32_t, 6, two_thirds_bits, 0x3F2AAAAB)
    SLOT(int32_t, 7, mantissa_mask, 0x007FFFFF)
    SLOT(float, 8, one, 0x3F800000) // 1.0
    SLOT(float, 9, ln2, 0x3F317218) // 0.6931471824645996
};
ORVANE_BLOCK(sln_native_block, __orvane_sln_native_data)
struct sln_half_block {
    // Fit on |r| <= 1/3: r + c0*r^2 + c1*r^3 + c2*r^4 + c3*r^5 + c4*r^6 + c5*r^7 + c6*r^8 = log(1 + r)
    // to 2^-22.2 relative
    SLOT(float, 0, c0, 0xBF000000) // -0.5
    SLOT(float, 1, c1, 0x3EAAAEE7) // 0.33336564898490906
    SLOT(float, 2, c2, 0xBE80061D) // -0.25004664063453674
    SLOT(float, 3, c3, 0x3E4AFB81) // 0.19822503626346588
    SLOT(float, 4, c4, 0xBE289358) // -0.16462457180023193
    SLOT(float, 5, c5, 0x3E2DB86B) // 0.16964881122112274
    SLOT(float, 6, c6, 0xBE1B6A22) // -0.15177205204963684
    SLOT(int32_t, 7, min_normal_bits, 0x00800000)
    SLOT(int32_t, 8, test_limit, 0x01000000)
    SLOT(int32_t, 9, two_thirds_bits, 0x3F2AAAAB)
    SLOT(int32_t, 10, mantissa_mask, 0x007FFFFF)
    SLOT(float, 11, one, 0x3F800000) // 1.0
    SLOT(float, 12, ln2, 0x3F317218) // 0.6931471824645996
};
ORVANE_BLOCK(sln_half_block, __orvane_sln_half_data)

// ln x = E ln 2 + ln(2^10 / c) - 1023 ln 2 + ln(1 + r): h and l the first three in hi and lo, summed with the error.
struct log_compensated : kernel<one_argument<double>, __orvane_dln_data, __orvane_dln_cout_rare> {
    template <int W> static ORVANE_INLINE auto prepare(const dln_block& c, lanes<double, W> x) {
        return rest_and_row(c, x);
    }
    template <int W> static ORVANE_INLINE auto vector_path(const dln_block& c, lanes<double, W> x, auto ready) {
        auto [r, integer] = ready;
        auto E = biased_exponent(x);
        auto [T0, T1] = pair_of_bits<39, 0x810000>(c, integer);
        auto h = E * c.ln2_hi + T0;
        auto l = T1 + E * c.ln2_lo;

        auto a = fma(r, c.p5, c.p4);
        auto p = fma(r, c.p3, c.p2);
        auto r2 = r * r;
        p = r2 * fma(r2, a, p);
        auto [s, e] = add_exactly(r, h);
        return answer{s + ((l + e) + p), not_positive_normal(c, x)};
    }
};

struct log_plain : kernel<one_argument<double>, __orvane_dln_data, __orvane_dln_cout_rare> {
    template <int W> static ORVANE_INLINE auto prepare(const dln_block& c, lanes<double, W> x) {
        return rest_and_row(c, x);
    }
    template <int W> static ORVANE_INLINE auto vector_path(const dln_block& c, lanes<double, W> x, auto ready) {
        auto [r, integer] = ready;
        auto k = unbiased(c, integer, biased_exponent(x));
        auto U = single_of_bits<40, 0x405FC0>(c, integer);
        auto h = k * c.ln2;
        auto r2 = r * r;
        auto p = r2 * fma(r, c.p3, c.p2);
        return answer{h + (U + (r + p)), not_positive_normal(c, x)};
    }
};

// Largest known error of log: 0.7446 ulp at 0x3FEFF80151EEACC1, with one processor's estimates
// Largest known error of log, slow path: 0.5 ulp at 0x00093A736F73358F
ORVANE_EXPORT(log, , log_compensated)
// Largest known error of log_rm: 3.316e-10 relative at 0x3FEFF6FFF0000568, with one processor's estimates
// Largest known error of log_rm, slow path: 0.4999 ulp at 0x0000E66A7851F902
ORVANE_EXPORT(log, _rm, log_plain)
ORVANE_TWIN(log, _native, log, _rm)
ORVANE_TWIN(log, _half, log, _rm)

// ln x = K ln 2 + r + r^2 p(r), x = (1 + r) 2^K. Tiers differ in the degree of p and the parts of ln 2.
template <class V> ORVANE_INLINE V ln_polynomial(const auto& c, V r) {
    if constexpr (requires { c.c8; }) return horner(r, c.c8, c.c7, c.c6, c.c5, c.c4, c.c3, c.c2, c.c1, c.c0);
    else if constexpr (requires { c.c6; }) return horner(r, c.c6, c.c5, c.c4, c.c3, c.c2, c.c1, c.c0);
    else return horner(r, c.c3, c.c2, c.c1, c.c0);
}
template <const auto& Block> struct logf_polynomial : kernel<one_argument<float>, Block, __orvane_sln_cout_rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<float, W> x) {
        auto [r, K, d] = cut_at_two_thirds(c, c.mantissa_mask, signed_bits(x));
        auto q = r * ln_polynomial(c, r);
        auto y = fma(r, q, r);
        if constexpr (requires { c.ln2_lo; }) y = fma(K, c.ln2_hi, fma(K, c.ln2_lo, y));
        else y = fma(K, c.ln2, y);
        // Special: what is below the smallest normal, with zeros and negatives, and +Inf and NaN, whose sum wraps.
        return answer{y, signed_bits(x) + c.min_normal_bits < c.test_limit};
    }
};
using logf_default = logf_polynomial<__orvane_sln_data>;
using logf_native = logf_polynomial<__orvane_sln_native_data>;
using logf_half = logf_polynomial<__orvane_sln_half_data>;

// Largest known error of logf: 0.931 ulp at 0x402ACE97
// Largest known error of logf, slow path: 0.5 ulp at 0x006C7C8B
ORVANE_EXPORT(logf, , logf_default)
ORVANE_TWIN(logf, _rm, logf, )
// Largest known error of logf_native: 1568 ulp at 0x3F475F9E
// Largest known error of logf_native, slow path: 0.5 ulp at 0x006C7C8B
ORVANE_EXPORT(logf, _native, logf_native)
// Largest known error of logf_half: 3.937 ulp at 0x3F61EFFA
// Largest known error of logf_half, slow path: 0.5 ulp at 0x006C7C8B
ORVANE_EXPORT(logf, _half, logf_half)

} // namespace orvane
