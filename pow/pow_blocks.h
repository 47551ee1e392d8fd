// Constant blocks that pow and powr share.
#pragma once

#include "frame/_orvane_template.h"
#include "pow/pow_tables.h"

namespace orvane {

struct dpow_block {
    TABLE(0, log2_tab, pow_log2_pairs)
    TABLE(129, exp2_tab, exp2_single_256)
    SLOT(double, 161, mant_mask, 0x000FFFFFFFFFFFFF)   // significand field
    SLOT(double, 162, one, 0x3FF0000000000000)         // 1.0
    SLOT(double, 163, exp_shifter, 0x4338000000000000) // 1.5 * 2^52, turns the exponent field into a double
    SLOT(double, 164, min_normal, 0x0010000000000000)  // 2^-1022
    SLOT(double, 165, max_normal, 0x7FEFFFFFFFFFFFFF)  // largest finite
    SLOT(double, 166, rcp_round, 0x0000040000000000)   // half a unit of the ninth fraction bit
    SLOT(double, 167, rcp_mask, 0xFFFFF80000000000)    // keeps sign, exponent, nine fraction bits
    // Fit on |u| <= 2^-9.5: (log2e_hi + log2e_lo)*u + lg_c2*u^2 + lg_c3*u^3 + lg_c4*u^4 + lg_c5*u^5 + lg_c6*u^6 =
    // log2(1 + u) to 2^-60.5 relative
    SLOT(double, 168, lg_c6, 0xBFCEC1CFBBC5C90C)         // log2(1+u) polynomial, u^6
    SLOT(double, 169, lg_c5, 0x3FD2776DA3D26E6A)         // u^5
    SLOT(double, 170, lg_c4, 0xBFD71547655D37E0)         // u^4
    SLOT(double, 171, lg_c3, 0x3FDEC709DC39FB02)         // u^3
    SLOT(double, 172, log2e_lo, 0x3C777A3A2C24613D)      // 1/ln 2, low part
    SLOT(double, 173, log2e_hi, 0x3FF71547652B82FE)      // 1/ln 2, high part (the coefficient of u)
    SLOT(double, 174, lg_c2, 0xBFE71547652B82FE)         // u^2 (-log2e_hi/2)
    SLOT(double, 175, abs_mask, 0x7FFFFFFFFFFFFFFF)      // clears the sign
    SLOT(double, 176, p_limit, 0x408FEC0000000000)       // 1021.5, limit on abs(y * log2 x)
    SLOT(double, 177, ex_shifter, 0x42B800000003FF00)    // 1.5 * 2^44 + 1023: the last place is 2^-8
    SLOT(double, 178, ex_index_mask, 0x00000000000007F8) // the 8 index bits after a left shift by 3
    // Fit on |d| <= 2^-9: 1 + ex_c1*d + ex_c2*d^2 + ex_c3*d^3 + ex_c4*d^4 = exp2(d) to 2^-58.5 relative
    SLOT(double, 179, ex_c4, 0x3F83B2AB930F15F9)   // 2^d polynomial, d^4
    SLOT(double, 180, ex_c3, 0x3FAC6B090DA1E0A9)   // d^3
    SLOT(double, 181, ex_c2, 0x3FCEBFBDFF82C54D)   // d^2
    SLOT(double, 182, ex_c1, 0x3FE62E42FEFA39B9)   // d^1
    SLOT(double, 183, s_limit, 0xC08FF00000000000) // -1022, least y * log2 x with a normal scale
};

// What the reduced kernels read, from slot `at` of ln_a4 on: e^(y ln x) with a table of logarithms, reached by an
// integer reciprocal of the significand, and one of powers of two for interpolation along chords.
// Of pow and powr. Fit on |u| <= 2^-9.5: u + ln_a2*u^2 + ln_a3*u^3 + ln_a4*u^4 = log(1 + u) to 2^-40.3 relative
// Of the others. Fit on |u| <= 2^-9.5: u + ln_a2*u^2 + ln_a3*u^3 = log(1 + u) to 2^-30.5 relative
// The chord. Fit on 0 <= f <= 1: 1 + chord*f = exp2(f/2048) to 2^-26.1 relative
#define ORVANE_REDUCED_CORE(at, chords)                                                                              \
    TABLE((at)-66, ln_tab, ln_single)                                                                                \
    ::orvane::gap<-1, -1> below_1;                                                                                   \
    SLOT(double, at, ln_a4, 0xBFD0000148058EE1)                                                                      \
    SLOT(double, (at) + 1, ln_a3, 0x3FD55555555543C5)                                                                \
    SLOT(double, (at) + 2, ln_a2, 0xBFDFFFFFFFFFF81F)                                                                \
    SLOT(double, (at) + 3, mant_mask, 0x000FFFFFFFFFFFFF)                                                            \
    SLOT(double, (at) + 4, z_exponent, 0x3F50000000000000)                                                           \
    ::orvane::gap<5, 7> above_5;                                                                                     \
    SLOT(double, (at) + 8, one, 0x3FF0000000000000)                                                                  \
    ::orvane::gap<9, 10> above_9;                                                                                    \
    SLOT(double, (at) + 11, r_split, 0x4086A00000000000)                                                             \
    SLOT(double, (at) + 12, bias_hi, 0x408FF80000000000)                                                             \
    SLOT(double, (at) + 13, bias_lo, 0x408FF00000000000)                                                             \
    SLOT(double, (at) + 14, ln2, 0x3FE62E42FEFA39EF)                                                                 \
    ::orvane::gap<15, 17> above_15;                                                                                  \
    TABLE((at) + 18, exp_tab, chords)                                                                                \
    SLOT(double, (at) + 275, inv_ln2_2048, 0x40A71547652B82FE)                                                       \
    SLOT(double, (at) + 276, shifter, 0x4338000000000000)                                                            \
    SLOT(double, (at) + 277, half, 0x3FE0000000000000)                                                               \
    SLOT(double, (at) + 278, chord, 0x3F362F3904051FA1)                                                              \
    SLOT(int64_t, (at) + 279, idx_mask, 0x00000000000007FF)

struct dpow_rm_block {
    SLOT(int32_t, 0, x_bias, 0x00100000)  // added to the high word of x
    SLOT(int32_t, 1, x_limit, 0x00200000) // bound on that sum, signed
    SLOT(int32_t, 2, word_abs, 0x7FFFFFFF)
    SLOT(int32_t, 3, y_limit, 0x7F800000)
    SLOT(int32_t, 4, p_word_limit, 0x4086232B) // bound on the high word of abs(y * ln x), about 708.396
    GAP(5, 133)
    ORVANE_REDUCED_CORE(200, exp_chords_from_one)
};
struct spow_block {
    SLOT(int32_t, 0, x_bias, 0x80800000)  // subtracted from the pattern of x
    SLOT(int32_t, 1, x_limit, 0xFEFFFFFF) // bound on that difference, signed
    GAP(2, 133)
    ORVANE_REDUCED_CORE(200, exp_chords)
    SLOT(int32_t, 480, word_abs2, 0x7FFFFFFF)
    SLOT(int32_t, 481, p_word_limit2, 0x4059FE36) // of the high word of abs(y * ln x), about 103.97 (150 * ln 2)
};
struct spow_rm_block {
    // Fit on |f| <= 1/3: f + ln_k2*f^2 + ln_k3*f^3 + ln_k4*f^4 + ln_k5*f^5 + ln_k6*f^6 + ln_k7*f^7 + ln_k8*f^8 =
    // log(1 + f) to 2^-22.2 relative
    SLOT(float, 0, ln_k2, 0xBF000000) // -0.5
    SLOT(float, 1, ln_k3, 0x3EAAAEE7) // 0.333365649
    SLOT(float, 2, ln_k4, 0xBE80061D) // -0.250046641
    SLOT(float, 3, ln_k5, 0x3E4AFB81) // 0.198225036
    SLOT(float, 4, ln_k6, 0xBE289358) // -0.164624572
    SLOT(float, 5, ln_k7, 0x3E2DB86B) // 0.169648811
    SLOT(float, 6, ln_k8, 0xBE1B6A22) // -0.151772052
    GAP(7, 8)
    SLOT(int32_t, 9, m_base, 0x3F2AAAAB)   // 2/3: reduction origin, bits
    SLOT(int32_t, 10, m_mask, 0x007FFFFF)  // significand field
    SLOT(float, 11, f_one, 0x3F800000)     // 1.0
    SLOT(float, 12, ln2_hi, 0x3F317200)    // 0.693145752
    SLOT(float, 13, ln2_lo, 0x35BFBE8E)    // 1.42860677e-6
    SLOT(float, 14, f_log2e, 0x3FB8AA3B)   // 1/ln 2
    SLOT(float, 15, f_shifter, 0x4B400000) // 1.5 * 2^23
    SLOT(float, 16, f_ln2, 0x3F317218)     // ln 2
    // Fit on |d| <= ln2/2: ex_k0 + ex_k1*d + ex_k2*d^2 + ex_k3*d^3 = exp(d) to 2^-12.7 relative
    SLOT(float, 17, ex_k0, 0x3F800000) // 1.0
    SLOT(float, 18, ex_k1, 0x3F8003DE) // 1.000118017
    SLOT(float, 19, ex_k2, 0x3F00F2D6) // 0.503705382
    SLOT(float, 20, ex_k3, 0x3E2963AC) // 0.165419281
    GAP(21, 21)
    SLOT(int32_t, 22, f_abs, 0x7FFFFFFF)     // sign mask
    SLOT(int32_t, 23, p_limit_f, 0x42AE9A00) // 87.30078125, compared as integer bits
    GAP(24, 26)
    SLOT(int32_t, 27, f_x_bias, 0x80800000)  // takes the smallest normal to the least int32
    SLOT(int32_t, 28, f_x_limit, 0xFEFFFFFF) // and the largest finite number here
};

extern "C" {
#define ORVANE_POW_BLOCK(type, name) extern const type name [[gnu::visibility("hidden")]];
ORVANE_POW_BLOCK(dpow_block, __orvane_dpow_data)
ORVANE_POW_BLOCK(dpow_block, __orvane_dpowr_data)
ORVANE_POW_BLOCK(dpow_rm_block, __orvane_dpow_rm_data)
ORVANE_POW_BLOCK(dpow_rm_block, __orvane_dpowr_native_data)
ORVANE_POW_BLOCK(spow_block, __orvane_spow_data)
ORVANE_POW_BLOCK(spow_rm_block, __orvane_spow_rm_data)
ORVANE_POW_BLOCK(spow_rm_block, __orvane_spowr_native_data)
#undef ORVANE_POW_BLOCK
}

} // namespace orvane
