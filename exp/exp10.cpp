// exp10 and exp10f: 10^x.
#include "exp/exp_kernels.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dexp10_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_sexp10_cout_rare, const float* x, float* result);

struct dexp10_block {
    TABLE(0, exp2_pairs, exp2_pairs_128)
    SLOT(double, 32, log2_10_x128, 0x407A934F0979A371) // 425.20679614558236, 128 log2(10)
    SLOT(double, 33, shifter, 0x4338800000000000)      // 1.53125 * 2^52
    SLOT(double, 34, log10_2_hi, 0x3F63441350A00000)   // 0.0023517968411397305, log10(2) / 128, high part
    SLOT(double, 35, log10_2_lo, 0xBD10C0219DC1DA99)   // -1.487744411497209e-14, low part
    // Fit on |r| <= ln2/log(10)/256: 1 + c1*r + c2*r^2 + c3*r^3 + c4*r^4 + c5*r^5 = 10^r to 2^-63.5 relative
    SLOT(double, 36, c1, 0x40026BB1BBB55516) // 2.302585092994046, polynomial
    SLOT(double, 37, c2, 0x40053524C73CE8E3) // 2.650949055239026, polynomial
    SLOT(double, 38, c3, 0x4000470591CCEA8B) // 2.0346785917911965, polynomial
    SLOT(double, 39, c4, 0x3FF2BD767584DB59) // 1.1712555494866221, polynomial
    SLOT(double, 40, c5, 0x3FE144C03EFAFB54) // 0.5396424512945068, polynomial
    SLOT(uint64_t, 41, exponent_mask, 0xFFF0000000000000)
    SLOT(int32_t, 42, index_mask, 0x0000007F)
    SLOT(int32_t, 43, abs_high_mask, 0x7FFFFFFF)
    SLOT(int32_t, 44, ordinary_high_limit, 0x40733A70) // abs(x) below 307.652587890625
};
struct dexp10_rm_block {
    SLOT(double, 0, log2_10, 0x400A934F0979A371) // 3.321928094887362
    SLOT(double, 1, shifter, 0x4338800000000000)
    // Fit on |v| <= 1/2: a0 + a1*v + a2*v^2 + a3*v^3 + a4*v^4 + a5*v^5 + a6*v^6 = exp2(v) to 2^-27.7 relative
    SLOT(double, 2, a0, 0x3FF0000000000000) // 1.0
    SLOT(double, 3, a1, 0x3FE62E4302EEB44D) // 0.6931471879266923
    SLOT(double, 4, a2, 0x3FCEBFBDEC29C82A) // 0.24022649794966472
    SLOT(double, 5, a3, 0x3FAC6AF6E92BE375) // 0.05550357433634804
    SLOT(double, 6, a4, 0x3F83B2B9FBD8970F) // 0.009618237493735941
    SLOT(double, 7, a5, 0x3F55F07B4611E454) // 0.0013390735478238285
    SLOT(double, 8, a6, 0x3F24308FABC18DEC) // 0.00015403512759624928
    SLOT(int32_t, 9, abs_high_mask, 0x7FFFFFFF)
    SLOT(int32_t, 10, ordinary_high_limit, 0x40733A70)
};
struct sexp10_block {
    TABLE(0, exp2_pairs, exp2f_pairs_128)
    SLOT(float, 16, log2_10_x128, 0x43D49A78) // 425.206787109375
    SLOT(float, 17, shifter, 0x4B400000)      // 1.5 * 2^23
    SLOT(float, 18, log10_2_hi, 0x3B1A4000)   // 0.002353668212890625
    SLOT(float, 19, log10_2_lo, 0xB5FB2BD8)   // -1.8713717508944683e-06
    // Fit on |r| <= ln2/log(10)/256: 1 + c1*r + c2*r^2 = 10^r to 2^-30.1 relative
    SLOT(float, 20, c1, 0x40135D97) // 2.3025872707366943
    SLOT(float, 21, c2, 0x4029A929) // 2.650949716567993
    SLOT(uint32_t, 22, index_mask, 0x0000007F)
    SLOT(int32_t, 23, abs_mask, 0x7FFFFFFF)
    SLOT(int32_t, 24, ordinary_limit, 0x4217B818) // 37.929779052734375, compared as bits
};
struct sexp10_rm_block {
    SLOT(float, 0, log2_10, 0x40549A78) // 3.321928024291992
    SLOT(float, 1, shifter, 0x4B400000) // 1.5 * 2^23
    // Fit on |v| <= 1/2: a0 + a1*v + a2*v^2 + a3*v^3 = exp2(v) to 2^-12.4 relative
    SLOT(float, 2, a0, 0x3F800000) // 1.0
    SLOT(float, 3, a1, 0x3F317422) // 0.6931782960891724
    SLOT(float, 4, a2, 0x3E77D66A) // 0.2420288622379303
    SLOT(float, 5, a3, 0x3D63582B) // 0.055504005402326584
    SLOT(int32_t, 6, abs_mask, 0x7FFFFFFF)
    SLOT(int32_t, 7, ordinary_limit, 0x4217B818)
};
ORVANE_BLOCK(dexp10_block, __orvane_dexp10_data)
ORVANE_BLOCK(dexp10_rm_block, __orvane_dexp10_rm_data)
ORVANE_BLOCK_TWIN(__orvane_dexp10_native_data, __orvane_dexp10_rm_data)
ORVANE_BLOCK_TWIN(__orvane_dexp10_half_data, __orvane_dexp10_rm_data)
ORVANE_BLOCK(sexp10_block, __orvane_sexp10_data)
ORVANE_BLOCK(sexp10_rm_block, __orvane_sexp10_rm_data)
ORVANE_BLOCK_TWIN(__orvane_sexp10_native_data, __orvane_sexp10_rm_data)
ORVANE_BLOCK_TWIN(__orvane_sexp10_half_data, __orvane_sexp10_rm_data)

// 10^x = 2^(n/128) 10^r with n = round(x 128 log2 10); log10(2) / 128 is taken off in two parts.
template <class T, const auto& Block, auto& Rare> struct exp10_by_table : kernel<one_argument<T>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        auto t = fma(x, c.log2_10_x128, c.shifter);
        auto n = t - c.shifter;
        auto r = fma(-n, c.log10_2_hi, x);
        r = fma(-n, c.log10_2_lo, r);
        auto [hi, lo] = lookup_pair<T>(&c.exp2_pairs, pair_index(c, t));
        auto q = r * table_polynomial(c, r);
        auto y = hi + fma(q, hi, lo);
        return answer{add_exponent(y, exponent(c, bits(t))), beyond_limit(c, x)};
    }
    // floor(n / 128) in the exponent field.
    template <int W> static ORVANE_INLINE auto exponent(const auto& c, lanes<uint64_t, W> t) {
        return (t << 45) & c.exponent_mask;
    }
    template <int W> static ORVANE_INLINE auto exponent(const auto& c, lanes<uint32_t, W> t) {
        return andnot(lanes<uint32_t, W>(c.index_mask), t) << 16;
    }
};

// 10^x = 2^n 2^v with n = round(x log2 10).
template <class T, const auto& Block, auto& Rare> struct exp10_by_polynomial : kernel<one_argument<T>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        auto t = fma(x, c.log2_10, c.shifter);
        auto n = t - c.shifter;
        auto v = fma(x, c.log2_10, -n);
        return answer{with_low_bits_as_exponent(power_polynomial(c, v), t), beyond_limit(c, x)};
    }
};

using dexp10_table = exp10_by_table<double, __orvane_dexp10_data, __orvane_dexp10_cout_rare>;
using dexp10_polynomial = exp10_by_polynomial<double, __orvane_dexp10_rm_data, __orvane_dexp10_cout_rare>;
using sexp10_table = exp10_by_table<float, __orvane_sexp10_data, __orvane_sexp10_cout_rare>;
using sexp10_polynomial = exp10_by_polynomial<float, __orvane_sexp10_rm_data, __orvane_sexp10_cout_rare>;

// Largest known error of exp10: 0.5075 ulp at 0x3FCF77526888AC69
// Largest known error of exp10, slow path: 0.5259 ulp at 0x407343AA5D67F2BD
ORVANE_EXPORT(exp10, , dexp10_table)
// Largest known error of exp10_rm: 4.44e-09 relative at 0xC070EC6C777215BA
// Largest known error of exp10_rm, slow path: 0.5252 ulp at 0x407343AA5C01A8FA
ORVANE_EXPORT(exp10, _rm, dexp10_polynomial)
ORVANE_TWIN(exp10, _native, exp10, _rm)
ORVANE_TWIN(exp10, _half, exp10, _rm)
// Largest known error of exp10f: 0.525 ulp at 0xC211C560
// Largest known error of exp10f, slow path: 0.5 ulp at 0xC2313CD4
ORVANE_EXPORT(exp10f, , sexp10_table)
// Largest known error of exp10f_rm: 2148 ulp at 0x42171DF8
// Largest known error of exp10f_rm, slow path: 0.5 ulp at 0xC22AFDE9
ORVANE_EXPORT(exp10f, _rm, sexp10_polynomial)
ORVANE_TWIN(exp10f, _native, exp10f, _rm)
ORVANE_TWIN(exp10f, _half, exp10f, _rm)

} // namespace orvane
