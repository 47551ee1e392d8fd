// exp2 and exp2f: 2^x. No product is needed to split x: the shifter is added to it directly.
#include "exp/exp_kernels.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dexp2_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_sexp2_cout_rare, const float* x, float* result);

struct dexp2_block {
    TABLE(0, exp2_pairs, exp2_pairs_64)
    SLOT(double, 16, shifter, 0x42D8000000000000) // 1.5 * 2^46: last place 2^-6
    // Fit on |r| <= 1/128: 1 + c1*r + c2*r^2 + c3*r^3 + c4*r^4 + c5*r^5 = exp2(r) to 2^-59.3 relative
    SLOT(double, 17, c1, 0x3FE62E42FEFA39EF)              // 0.6931471805599453, polynomial
    SLOT(double, 18, c2, 0x3FCEBFBDFF82A23A)              // 0.24022650695884967, polynomial
    SLOT(double, 19, c3, 0x3FAC6B08D7076268)              // 0.05550410866607508, polynomial
    SLOT(double, 20, c4, 0x3F83B2AD33F8B48B)              // 0.009618142269653759, polynomial
    SLOT(double, 21, c5, 0x3F55D870C4D8440A)              // 0.0013333417185814622, polynomial
    SLOT(uint64_t, 22, exponent_mask, 0xFFF0000000000000) // sign and exponent field
    SLOT(int32_t, 23, index_mask, 0x0000003F)
    SLOT(int32_t, 24, abs_high_mask, 0x7FFFFFFF)
    SLOT(int32_t, 25, ordinary_high_limit, 0x408FEFFF) // abs(x) below 1022.0
};
struct dexp2_rm_block {
    SLOT(double, 0, shifter, 0x4338000000000000) // 1.5 * 2^52
    // Fit on |v| <= 1/2: a0 + a1*v + a2*v^2 + a3*v^3 + a4*v^4 + a5*v^5 + a6*v^6 = exp2(v) to 2^-29.0 relative
    SLOT(double, 1, a0, 0x3FF0000000261500) // 1.0000000005541665
    SLOT(double, 2, a1, 0x3FE62E430C7E923C) // 0.6931472057372683
    SLOT(double, 3, a2, 0x3FCEBFBDADCB0BA8) // 0.24022646890634047
    SLOT(double, 4, a3, 0x3FAC6AED4B950AE1) // 0.0555032877696442
    SLOT(double, 5, a4, 0x3F83B2DBBC0FE08E) // 0.009618488957116502
    SLOT(double, 6, a5, 0x3F55F456A8ADF058) // 0.0013399931219444574
    SLOT(double, 7, a6, 0x3F241D3336B2AE61) // 0.0001534581200294148
    SLOT(int32_t, 8, abs_high_mask, 0x7FFFFFFF)
    SLOT(int32_t, 9, ordinary_high_limit, 0x408FEFFF)
};
struct sexp2_block {
    TABLE(0, exp2_pairs, exp2f_pairs_64)
    SLOT(float, 8, shifter, 0x48400000) // 196608.0 = 1.5 * 2^17
    // Fit on |r| <= 1/128: 1 + c1*r + c2*r^2 = exp2(r) to 2^-27.1 relative
    SLOT(float, 9, c1, 0x3F317243)  // 0.693149745464325
    SLOT(float, 10, c2, 0x3E75FDFC) // 0.24022668600082397
    SLOT(uint32_t, 11, exponent_mask, 0xFF800000)
    SLOT(uint32_t, 12, index_mask, 0x0000003F)
    SLOT(int32_t, 13, abs_mask, 0x7FFFFFFF)
    SLOT(int32_t, 14, ordinary_limit, 0x42FC0000) // 126.0, compared as bits
};
struct sexp2_native_block {
    SLOT(float, 0, shifter, 0x4B400000) // 1.5 * 2^23
    // Fit on |v| <= 1/2: a0 + a1*v + a2*v^2 + a3*v^3 = exp2(v) to 2^-13.7 relative
    SLOT(float, 1, a0, 0x3F7FFB49) // 0.9999280571937561
    SLOT(float, 2, a1, 0x3F31798D) // 0.6932609677314758
    SLOT(float, 3, a2, 0x3E786F13) // 0.24261121451854706
    SLOT(float, 4, a3, 0x3D61FBCC) // 0.055171772837638855
    SLOT(int32_t, 5, abs_mask, 0x7FFFFFFF)
    SLOT(int32_t, 6, ordinary_limit, 0x42FC0000)
};
ORVANE_BLOCK(dexp2_block, __orvane_dexp2_data)
ORVANE_BLOCK(dexp2_rm_block, __orvane_dexp2_rm_data)
ORVANE_BLOCK_TWIN(__orvane_dexp2_native_data, __orvane_dexp2_rm_data)
ORVANE_BLOCK_TWIN(__orvane_dexp2_half_data, __orvane_dexp2_rm_data)
ORVANE_BLOCK(sexp2_block, __orvane_sexp2_data)
ORVANE_BLOCK_TWIN(__orvane_sexp2_rm_data, __orvane_sexp2_data)
ORVANE_BLOCK(sexp2_native_block, __orvane_sexp2_native_data)
ORVANE_BLOCK_TWIN(__orvane_sexp2_half_data, __orvane_sexp2_native_data)

// 2^x = 2^(n/64) 2^r with n / 64 the multiple of 1/64 nearest to x; t, n and r are exact.
template <class T, const auto& Block, auto& Rare> struct exp2_by_table : kernel<one_argument<T>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        auto t = x + c.shifter;
        auto [hi, lo] = lookup_pair<T>(&c.exp2_pairs, pair_index(c, t)); // before r: 16 lanes stay in registers
        auto n = t - c.shifter;
        auto r = x - n;
        auto q = r * table_polynomial(c, r);
        auto y = hi + fma(q, hi, lo);
        auto exponent = (bits(t) << (sizeof(T) == 8 ? 46 : 17)) & c.exponent_mask;
        return answer{add_exponent(y, exponent), beyond_limit(c, x)};
    }
};

// 2^x = 2^n 2^v with n = round(x).
template <class T, const auto& Block, auto& Rare> struct exp2_by_polynomial : kernel<one_argument<T>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        auto t = x + c.shifter;
        auto n = t - c.shifter;
        auto v = x - n;
        return answer{with_low_bits_as_exponent(power_polynomial(c, v), t), beyond_limit(c, x)};
    }
};

using dexp2_table = exp2_by_table<double, __orvane_dexp2_data, __orvane_dexp2_cout_rare>;
using dexp2_polynomial = exp2_by_polynomial<double, __orvane_dexp2_rm_data, __orvane_dexp2_cout_rare>;
using sexp2_table = exp2_by_table<float, __orvane_sexp2_data, __orvane_sexp2_cout_rare>;
using sexp2_polynomial = exp2_by_polynomial<float, __orvane_sexp2_native_data, __orvane_sexp2_cout_rare>;

// Largest known error of exp2: 0.5236 ulp at 0xBFAC7ADE07E5FCDC
// Largest known error of exp2, slow path: 0.7549 ulp at 0xC08FF4B29611B95A
ORVANE_EXPORT(exp2, , dexp2_table)
// Largest known error of exp2_rm: 1.856e-09 relative at 0x407571724DB5D6B5
// Largest known error of exp2_rm, slow path: 0.7548 ulp at 0xC08FF678A38D71A4
ORVANE_EXPORT(exp2, _rm, dexp2_polynomial)
ORVANE_TWIN(exp2, _native, exp2, _rm)
ORVANE_TWIN(exp2, _half, exp2, _rm)
// Largest known error of exp2f: 0.6163 ulp at 0xBB83873F
// Largest known error of exp2f, slow path: 0.5 ulp at 0xC300F3F2
ORVANE_EXPORT(exp2f, , sexp2_table)
ORVANE_TWIN(exp2f, _rm, exp2f, )
// Largest known error of exp2f_native: 1230 ulp at 0xBCC44CB5
// Largest known error of exp2f_native, slow path: 0.5 ulp at 0xC301742A
ORVANE_EXPORT(exp2f, _native, sexp2_polynomial)
ORVANE_TWIN(exp2f, _half, exp2f, _native)

} // namespace orvane
