/* The exports of liborvane_l9.so. Written by write-exports.
 *
 * Register-form exports take lane vectors in vector registers 0 to 3 and give them back from 0 on; a vector type here is
 * the register: orvane_float4 for up to four lanes of float, lane 0 lowest, lanes beyond the width ignored; a 3-wide
 * vector has a spare fourth lane, and its out-object room for it. What C cannot call (results in several registers) is
 * declared for its address alone, with its registers; orvane/call.hpp calls it from C++ by that address.
 *
 * Every call keeps rbx, rbp, rsp, r12 to r15; a register-form call also vector registers 8 to 15, all 256 bits, and rdi
 * and rsi unless an argument travels there. A compiler that calls through this header need not know.
 *
 * A family's text tells what special arguments (zeros, infinities, NaN, subnormal and negative numbers) give, in every
 * tier: where a fast tier gives something else than the default one, the line of the tier says of what.
 *
 * lgamma, lgammaf, lgammar, lgammarf and tgamma compute on the x87 unit: its register stack must be empty at the call (emms
 * after MMX code) and is empty again at the return. The double ones set significands of 64 bits in its control word and put
 * the caller's word back; the float ones count on them, which is the default. All compute under its rounding mode. */
#ifndef ORVANE_H
#define ORVANE_H

/* Without AVX a compiler passes vectors of 32 bytes in memory, which no export expects. Code that calls from functions
 * with an AVX target of their own says so by ORVANE_CALLED_WITH_AVX. */
#if !defined __AVX__ && !defined ORVANE_CALLED_WITH_AVX
#error "orvane.h: compile with -mavx or more"
#endif

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define ORVANE_NOT_C __attribute__((error("results in several registers: orvane/call.hpp calls this from C++")))

typedef float orvane_float4 __attribute__((vector_size(16), aligned(4)));
typedef float orvane_float8 __attribute__((vector_size(32), aligned(4)));
typedef double orvane_double2 __attribute__((vector_size(16), aligned(8)));
typedef double orvane_double4 __attribute__((vector_size(32), aligned(8)));
typedef int32_t orvane_int4 __attribute__((vector_size(16), aligned(4)));
typedef int32_t orvane_int8 __attribute__((vector_size(32), aligned(4)));
typedef uint32_t orvane_uint4 __attribute__((vector_size(16), aligned(4)));
typedef uint32_t orvane_uint8 __attribute__((vector_size(32), aligned(4)));
typedef int64_t orvane_long2 __attribute__((vector_size(16), aligned(8)));
typedef int64_t orvane_long4 __attribute__((vector_size(32), aligned(8)));
typedef uint64_t orvane_ulong2 __attribute__((vector_size(16), aligned(8)));
typedef uint64_t orvane_ulong4 __attribute__((vector_size(32), aligned(8)));

/* exp: e to the power x. +Inf on overflow, +0 far below; 1 of zeros. */
/* exp default: largest known error 0.524 ulp; OpenCL C allows 3 ulp. */
orvane_double2 __orvane_l9_exp1(orvane_double2 x);
orvane_double2 __orvane_l9_exp2(orvane_double2 x);
orvane_double4 __orvane_l9_exp3(orvane_double4 x);
orvane_double4 __orvane_l9_exp4(orvane_double4 x);
void __orvane_l9_exp8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* exp rm: largest known error 3.31e-09 relative. */
orvane_double2 __orvane_l9_exp1_rm(orvane_double2 x);
orvane_double2 __orvane_l9_exp2_rm(orvane_double2 x);
orvane_double4 __orvane_l9_exp3_rm(orvane_double4 x);
orvane_double4 __orvane_l9_exp4_rm(orvane_double4 x);
void __orvane_l9_exp8_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* exp native: largest known error 3.31e-09 relative. */
orvane_double2 __orvane_l9_exp1_native(orvane_double2 x);
orvane_double2 __orvane_l9_exp2_native(orvane_double2 x);
orvane_double4 __orvane_l9_exp3_native(orvane_double4 x);
orvane_double4 __orvane_l9_exp4_native(orvane_double4 x);
void __orvane_l9_exp8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* exp half: largest known error 3.31e-09 relative. */
orvane_double2 __orvane_l9_exp1_half(orvane_double2 x);
orvane_double2 __orvane_l9_exp2_half(orvane_double2 x);
orvane_double4 __orvane_l9_exp3_half(orvane_double4 x);
orvane_double4 __orvane_l9_exp4_half(orvane_double4 x);
void __orvane_l9_exp8_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* expf: e to the power x. +Inf on overflow, +0 far below; 1 of zeros. */
/* expf default: largest known error 0.749 ulp; OpenCL C allows 3 ulp. */
orvane_float4 __orvane_l9_expf1(orvane_float4 x);
orvane_float4 __orvane_l9_expf2(orvane_float4 x);
orvane_float4 __orvane_l9_expf3(orvane_float4 x);
orvane_float4 __orvane_l9_expf4(orvane_float4 x);
orvane_float8 __orvane_l9_expf8(orvane_float8 x);
void __orvane_l9_expf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* expf rm: largest known error 0.749 ulp; OpenCL C allows 3 ulp and floor(|2 x|) more. */
orvane_float4 __orvane_l9_expf1_rm(orvane_float4 x);
orvane_float4 __orvane_l9_expf2_rm(orvane_float4 x);
orvane_float4 __orvane_l9_expf3_rm(orvane_float4 x);
orvane_float4 __orvane_l9_expf4_rm(orvane_float4 x);
orvane_float8 __orvane_l9_expf8_rm(orvane_float8 x);
void __orvane_l9_expf16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* expf native: largest known error 1776 ulp. */
orvane_float4 __orvane_l9_expf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_expf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_expf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_expf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_expf8_native(orvane_float8 x);
void __orvane_l9_expf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* expf half: largest known error 1776 ulp; OpenCL C allows 8192 ulp. */
orvane_float4 __orvane_l9_expf1_half(orvane_float4 x);
orvane_float4 __orvane_l9_expf2_half(orvane_float4 x);
orvane_float4 __orvane_l9_expf3_half(orvane_float4 x);
orvane_float4 __orvane_l9_expf4_half(orvane_float4 x);
orvane_float8 __orvane_l9_expf8_half(orvane_float8 x);
void __orvane_l9_expf16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* exp2: 2 to the power x. +Inf on overflow, +0 far below; 1 of zeros. */
/* exp2 default: largest known error 0.755 ulp; OpenCL C allows 3 ulp. */
orvane_double2 __orvane_l9_exp21(orvane_double2 x);
orvane_double2 __orvane_l9_exp22(orvane_double2 x);
orvane_double4 __orvane_l9_exp23(orvane_double4 x);
orvane_double4 __orvane_l9_exp24(orvane_double4 x);
void __orvane_l9_exp28(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp216(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* exp2 rm: largest known error 1.86e-09 relative. */
orvane_double2 __orvane_l9_exp21_rm(orvane_double2 x);
orvane_double2 __orvane_l9_exp22_rm(orvane_double2 x);
orvane_double4 __orvane_l9_exp23_rm(orvane_double4 x);
orvane_double4 __orvane_l9_exp24_rm(orvane_double4 x);
void __orvane_l9_exp28_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp216_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* exp2 native: largest known error 1.86e-09 relative. */
orvane_double2 __orvane_l9_exp21_native(orvane_double2 x);
orvane_double2 __orvane_l9_exp22_native(orvane_double2 x);
orvane_double4 __orvane_l9_exp23_native(orvane_double4 x);
orvane_double4 __orvane_l9_exp24_native(orvane_double4 x);
void __orvane_l9_exp28_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp216_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* exp2 half: largest known error 1.86e-09 relative. */
orvane_double2 __orvane_l9_exp21_half(orvane_double2 x);
orvane_double2 __orvane_l9_exp22_half(orvane_double2 x);
orvane_double4 __orvane_l9_exp23_half(orvane_double4 x);
orvane_double4 __orvane_l9_exp24_half(orvane_double4 x);
void __orvane_l9_exp28_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp216_half(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* exp2f: 2 to the power x. +Inf on overflow, +0 far below; 1 of zeros. */
/* exp2f default: largest known error 0.616 ulp; OpenCL C allows 3 ulp. */
orvane_float4 __orvane_l9_exp2f1(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f2(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f3(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f4(orvane_float4 x);
orvane_float8 __orvane_l9_exp2f8(orvane_float8 x);
void __orvane_l9_exp2f16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* exp2f rm: largest known error 0.616 ulp; OpenCL C allows 3 ulp and floor(|2 x|) more. */
orvane_float4 __orvane_l9_exp2f1_rm(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f2_rm(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f3_rm(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f4_rm(orvane_float4 x);
orvane_float8 __orvane_l9_exp2f8_rm(orvane_float8 x);
void __orvane_l9_exp2f16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* exp2f native: largest known error 1230 ulp. */
orvane_float4 __orvane_l9_exp2f1_native(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f2_native(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f3_native(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f4_native(orvane_float4 x);
orvane_float8 __orvane_l9_exp2f8_native(orvane_float8 x);
void __orvane_l9_exp2f16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* exp2f half: largest known error 1230 ulp; OpenCL C allows 8192 ulp. */
orvane_float4 __orvane_l9_exp2f1_half(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f2_half(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f3_half(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f4_half(orvane_float4 x);
orvane_float8 __orvane_l9_exp2f8_half(orvane_float8 x);
void __orvane_l9_exp2f16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* exp10: 10 to the power x. +Inf on overflow, +0 far below; 1 of zeros. */
/* exp10 default: largest known error 0.526 ulp; OpenCL C allows 3 ulp. */
orvane_double2 __orvane_l9_exp101(orvane_double2 x);
orvane_double2 __orvane_l9_exp102(orvane_double2 x);
orvane_double4 __orvane_l9_exp103(orvane_double4 x);
orvane_double4 __orvane_l9_exp104(orvane_double4 x);
void __orvane_l9_exp108(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp1016(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* exp10 rm: largest known error 4.44e-09 relative. */
orvane_double2 __orvane_l9_exp101_rm(orvane_double2 x);
orvane_double2 __orvane_l9_exp102_rm(orvane_double2 x);
orvane_double4 __orvane_l9_exp103_rm(orvane_double4 x);
orvane_double4 __orvane_l9_exp104_rm(orvane_double4 x);
void __orvane_l9_exp108_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp1016_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* exp10 native: largest known error 4.44e-09 relative. */
orvane_double2 __orvane_l9_exp101_native(orvane_double2 x);
orvane_double2 __orvane_l9_exp102_native(orvane_double2 x);
orvane_double4 __orvane_l9_exp103_native(orvane_double4 x);
orvane_double4 __orvane_l9_exp104_native(orvane_double4 x);
void __orvane_l9_exp108_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp1016_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* exp10 half: largest known error 4.44e-09 relative. */
orvane_double2 __orvane_l9_exp101_half(orvane_double2 x);
orvane_double2 __orvane_l9_exp102_half(orvane_double2 x);
orvane_double4 __orvane_l9_exp103_half(orvane_double4 x);
orvane_double4 __orvane_l9_exp104_half(orvane_double4 x);
void __orvane_l9_exp108_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp1016_half(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* exp10f: 10 to the power x. +Inf on overflow, +0 far below; 1 of zeros. */
/* exp10f default: largest known error 0.525 ulp; OpenCL C allows 3 ulp. */
orvane_float4 __orvane_l9_exp10f1(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f2(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f3(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f4(orvane_float4 x);
orvane_float8 __orvane_l9_exp10f8(orvane_float8 x);
void __orvane_l9_exp10f16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* exp10f rm: largest known error 2148 ulp; OpenCL C allows 8192 ulp. */
orvane_float4 __orvane_l9_exp10f1_rm(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f2_rm(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f3_rm(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f4_rm(orvane_float4 x);
orvane_float8 __orvane_l9_exp10f8_rm(orvane_float8 x);
void __orvane_l9_exp10f16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* exp10f native: largest known error 2148 ulp. */
orvane_float4 __orvane_l9_exp10f1_native(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f2_native(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f3_native(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f4_native(orvane_float4 x);
orvane_float8 __orvane_l9_exp10f8_native(orvane_float8 x);
void __orvane_l9_exp10f16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* exp10f half: largest known error 2148 ulp; OpenCL C allows 8192 ulp. */
orvane_float4 __orvane_l9_exp10f1_half(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f2_half(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f3_half(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f4_half(orvane_float4 x);
orvane_float8 __orvane_l9_exp10f8_half(orvane_float8 x);
void __orvane_l9_exp10f16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* expm1: e to the power x, minus 1, without cancellation near 0. -1 of -Inf; zeros come back as they are. */
/* expm1 default: largest known error 0.61 ulp; OpenCL C allows 3 ulp. */
orvane_double2 __orvane_l9_expm11(orvane_double2 x);
orvane_double2 __orvane_l9_expm12(orvane_double2 x);
orvane_double4 __orvane_l9_expm13(orvane_double4 x);
orvane_double4 __orvane_l9_expm14(orvane_double4 x);
void __orvane_l9_expm18(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_expm116(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* expm1 native: largest known error 8.3e-10 relative. */
orvane_double2 __orvane_l9_expm11_native(orvane_double2 x);
orvane_double2 __orvane_l9_expm12_native(orvane_double2 x);
orvane_double4 __orvane_l9_expm13_native(orvane_double4 x);
orvane_double4 __orvane_l9_expm14_native(orvane_double4 x);
void __orvane_l9_expm18_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_expm116_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* expm1f: e to the power x, minus 1, without cancellation near 0. -1 of -Inf; zeros come back as they are. */
/* expm1f default: largest known error 0.559 ulp; OpenCL C allows 3 ulp. */
orvane_float4 __orvane_l9_expm1f1(orvane_float4 x);
orvane_float4 __orvane_l9_expm1f2(orvane_float4 x);
orvane_float4 __orvane_l9_expm1f3(orvane_float4 x);
orvane_float4 __orvane_l9_expm1f4(orvane_float4 x);
orvane_float8 __orvane_l9_expm1f8(orvane_float8 x);
void __orvane_l9_expm1f16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* expm1f native: largest known error 284 ulp. */
orvane_float4 __orvane_l9_expm1f1_native(orvane_float4 x);
orvane_float4 __orvane_l9_expm1f2_native(orvane_float4 x);
orvane_float4 __orvane_l9_expm1f3_native(orvane_float4 x);
orvane_float4 __orvane_l9_expm1f4_native(orvane_float4 x);
orvane_float8 __orvane_l9_expm1f8_native(orvane_float8 x);
void __orvane_l9_expm1f16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* log: Natural logarithm. -Inf of zeros, NaN of negative numbers, +Inf of +Inf. */
/* log default: largest known error 0.745 ulp; OpenCL C allows 3 ulp. */
orvane_double2 __orvane_l9_log1(orvane_double2 x);
orvane_double2 __orvane_l9_log2(orvane_double2 x);
orvane_double4 __orvane_l9_log3(orvane_double4 x);
orvane_double4 __orvane_l9_log4(orvane_double4 x);
void __orvane_l9_log8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* log rm: largest known error 3.32e-10 relative. */
orvane_double2 __orvane_l9_log1_rm(orvane_double2 x);
orvane_double2 __orvane_l9_log2_rm(orvane_double2 x);
orvane_double4 __orvane_l9_log3_rm(orvane_double4 x);
orvane_double4 __orvane_l9_log4_rm(orvane_double4 x);
void __orvane_l9_log8_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* log native: largest known error 3.32e-10 relative. */
orvane_double2 __orvane_l9_log1_native(orvane_double2 x);
orvane_double2 __orvane_l9_log2_native(orvane_double2 x);
orvane_double4 __orvane_l9_log3_native(orvane_double4 x);
orvane_double4 __orvane_l9_log4_native(orvane_double4 x);
void __orvane_l9_log8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* log half: largest known error 3.32e-10 relative. */
orvane_double2 __orvane_l9_log1_half(orvane_double2 x);
orvane_double2 __orvane_l9_log2_half(orvane_double2 x);
orvane_double4 __orvane_l9_log3_half(orvane_double4 x);
orvane_double4 __orvane_l9_log4_half(orvane_double4 x);
void __orvane_l9_log8_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* logf: Natural logarithm. -Inf of zeros, NaN of negative numbers, +Inf of +Inf. */
/* logf default: largest known error 0.931 ulp; OpenCL C allows 3 ulp. */
orvane_float4 __orvane_l9_logf1(orvane_float4 x);
orvane_float4 __orvane_l9_logf2(orvane_float4 x);
orvane_float4 __orvane_l9_logf3(orvane_float4 x);
orvane_float4 __orvane_l9_logf4(orvane_float4 x);
orvane_float8 __orvane_l9_logf8(orvane_float8 x);
void __orvane_l9_logf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* logf rm: largest known error 0.931 ulp; OpenCL C allows 3 ulp outside [0.5, 2], 2^-21 absolute inside. */
orvane_float4 __orvane_l9_logf1_rm(orvane_float4 x);
orvane_float4 __orvane_l9_logf2_rm(orvane_float4 x);
orvane_float4 __orvane_l9_logf3_rm(orvane_float4 x);
orvane_float4 __orvane_l9_logf4_rm(orvane_float4 x);
orvane_float8 __orvane_l9_logf8_rm(orvane_float8 x);
void __orvane_l9_logf16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* logf native: largest known error 1568 ulp. */
orvane_float4 __orvane_l9_logf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_logf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_logf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_logf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_logf8_native(orvane_float8 x);
void __orvane_l9_logf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* logf half: largest known error 3.94 ulp; OpenCL C allows 8192 ulp. */
orvane_float4 __orvane_l9_logf1_half(orvane_float4 x);
orvane_float4 __orvane_l9_logf2_half(orvane_float4 x);
orvane_float4 __orvane_l9_logf3_half(orvane_float4 x);
orvane_float4 __orvane_l9_logf4_half(orvane_float4 x);
orvane_float8 __orvane_l9_logf8_half(orvane_float8 x);
void __orvane_l9_logf16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* log2: Logarithm to base 2. -Inf of zeros, NaN of negative numbers, +Inf of +Inf. */
/* log2 default: largest known error 0.502 ulp; OpenCL C allows 3 ulp. */
orvane_double2 __orvane_l9_log21(orvane_double2 x);
orvane_double2 __orvane_l9_log22(orvane_double2 x);
orvane_double4 __orvane_l9_log23(orvane_double4 x);
orvane_double4 __orvane_l9_log24(orvane_double4 x);
void __orvane_l9_log28(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log216(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* log2 rm: largest known error 3.32e-10 relative. */
orvane_double2 __orvane_l9_log21_rm(orvane_double2 x);
orvane_double2 __orvane_l9_log22_rm(orvane_double2 x);
orvane_double4 __orvane_l9_log23_rm(orvane_double4 x);
orvane_double4 __orvane_l9_log24_rm(orvane_double4 x);
void __orvane_l9_log28_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log216_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* log2 native: largest known error 3.32e-10 relative. */
orvane_double2 __orvane_l9_log21_native(orvane_double2 x);
orvane_double2 __orvane_l9_log22_native(orvane_double2 x);
orvane_double4 __orvane_l9_log23_native(orvane_double4 x);
orvane_double4 __orvane_l9_log24_native(orvane_double4 x);
void __orvane_l9_log28_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log216_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* log2 half: largest known error 3.32e-10 relative. */
orvane_double2 __orvane_l9_log21_half(orvane_double2 x);
orvane_double2 __orvane_l9_log22_half(orvane_double2 x);
orvane_double4 __orvane_l9_log23_half(orvane_double4 x);
orvane_double4 __orvane_l9_log24_half(orvane_double4 x);
void __orvane_l9_log28_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log216_half(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* log2f: Logarithm to base 2. -Inf of zeros, NaN of negative numbers, +Inf of +Inf. */
/* log2f default: largest known error 0.68 ulp; OpenCL C allows 3 ulp. */
orvane_float4 __orvane_l9_log2f1(orvane_float4 x);
orvane_float4 __orvane_l9_log2f2(orvane_float4 x);
orvane_float4 __orvane_l9_log2f3(orvane_float4 x);
orvane_float4 __orvane_l9_log2f4(orvane_float4 x);
orvane_float8 __orvane_l9_log2f8(orvane_float8 x);
void __orvane_l9_log2f16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* log2f rm: largest known error 0.68 ulp; OpenCL C allows 3 ulp outside [0.5, 2], 2^-21 absolute inside. */
orvane_float4 __orvane_l9_log2f1_rm(orvane_float4 x);
orvane_float4 __orvane_l9_log2f2_rm(orvane_float4 x);
orvane_float4 __orvane_l9_log2f3_rm(orvane_float4 x);
orvane_float4 __orvane_l9_log2f4_rm(orvane_float4 x);
orvane_float8 __orvane_l9_log2f8_rm(orvane_float8 x);
void __orvane_l9_log2f16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* log2f native: largest known error 894 ulp. */
orvane_float4 __orvane_l9_log2f1_native(orvane_float4 x);
orvane_float4 __orvane_l9_log2f2_native(orvane_float4 x);
orvane_float4 __orvane_l9_log2f3_native(orvane_float4 x);
orvane_float4 __orvane_l9_log2f4_native(orvane_float4 x);
orvane_float8 __orvane_l9_log2f8_native(orvane_float8 x);
void __orvane_l9_log2f16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* log2f half: largest known error 894 ulp; OpenCL C allows 8192 ulp. */
orvane_float4 __orvane_l9_log2f1_half(orvane_float4 x);
orvane_float4 __orvane_l9_log2f2_half(orvane_float4 x);
orvane_float4 __orvane_l9_log2f3_half(orvane_float4 x);
orvane_float4 __orvane_l9_log2f4_half(orvane_float4 x);
orvane_float8 __orvane_l9_log2f8_half(orvane_float8 x);
void __orvane_l9_log2f16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* log10: Logarithm to base 10. -Inf of zeros, NaN of negative numbers, +Inf of +Inf. */
/* log10 default: largest known error 0.509 ulp; OpenCL C allows 3 ulp. */
orvane_double2 __orvane_l9_log101(orvane_double2 x);
orvane_double2 __orvane_l9_log102(orvane_double2 x);
orvane_double4 __orvane_l9_log103(orvane_double4 x);
orvane_double4 __orvane_l9_log104(orvane_double4 x);
void __orvane_l9_log108(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log1016(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* log10 native: largest known error 3.32e-10 relative. */
orvane_double2 __orvane_l9_log101_native(orvane_double2 x);
orvane_double2 __orvane_l9_log102_native(orvane_double2 x);
orvane_double4 __orvane_l9_log103_native(orvane_double4 x);
orvane_double4 __orvane_l9_log104_native(orvane_double4 x);
void __orvane_l9_log108_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log1016_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* log10 half: largest known error 3.32e-10 relative. */
orvane_double2 __orvane_l9_log101_half(orvane_double2 x);
orvane_double2 __orvane_l9_log102_half(orvane_double2 x);
orvane_double4 __orvane_l9_log103_half(orvane_double4 x);
orvane_double4 __orvane_l9_log104_half(orvane_double4 x);
void __orvane_l9_log108_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log1016_half(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* log10f: Logarithm to base 10. -Inf of zeros, NaN of negative numbers, +Inf of +Inf. */
/* log10f default: largest known error 0.77 ulp; OpenCL C allows 3 ulp. */
orvane_float4 __orvane_l9_log10f1(orvane_float4 x);
orvane_float4 __orvane_l9_log10f2(orvane_float4 x);
orvane_float4 __orvane_l9_log10f3(orvane_float4 x);
orvane_float4 __orvane_l9_log10f4(orvane_float4 x);
orvane_float8 __orvane_l9_log10f8(orvane_float8 x);
void __orvane_l9_log10f16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* log10f native: largest known error 995 ulp. */
orvane_float4 __orvane_l9_log10f1_native(orvane_float4 x);
orvane_float4 __orvane_l9_log10f2_native(orvane_float4 x);
orvane_float4 __orvane_l9_log10f3_native(orvane_float4 x);
orvane_float4 __orvane_l9_log10f4_native(orvane_float4 x);
orvane_float8 __orvane_l9_log10f8_native(orvane_float8 x);
void __orvane_l9_log10f16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* log10f half: largest known error 995 ulp; OpenCL C allows 8192 ulp. */
orvane_float4 __orvane_l9_log10f1_half(orvane_float4 x);
orvane_float4 __orvane_l9_log10f2_half(orvane_float4 x);
orvane_float4 __orvane_l9_log10f3_half(orvane_float4 x);
orvane_float4 __orvane_l9_log10f4_half(orvane_float4 x);
orvane_float8 __orvane_l9_log10f8_half(orvane_float8 x);
void __orvane_l9_log10f16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* log1p: Natural logarithm of 1 + x, accurate near 0. -Inf of -1, NaN below. */
/* log1p default: largest known error 0.744 ulp; OpenCL C allows 2 ulp. */
orvane_double2 __orvane_l9_log1p1(orvane_double2 x);
orvane_double2 __orvane_l9_log1p2(orvane_double2 x);
orvane_double4 __orvane_l9_log1p3(orvane_double4 x);
orvane_double4 __orvane_l9_log1p4(orvane_double4 x);
void __orvane_l9_log1p8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log1p16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* log1p native: largest known error 3.32e-10 relative. */
orvane_double2 __orvane_l9_log1p1_native(orvane_double2 x);
orvane_double2 __orvane_l9_log1p2_native(orvane_double2 x);
orvane_double4 __orvane_l9_log1p3_native(orvane_double4 x);
orvane_double4 __orvane_l9_log1p4_native(orvane_double4 x);
void __orvane_l9_log1p8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log1p16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* log1pf: Natural logarithm of 1 + x, accurate near 0. -Inf of -1, NaN below. */
/* log1pf default: largest known error 0.622 ulp; OpenCL C allows 2 ulp. */
orvane_float4 __orvane_l9_log1pf1(orvane_float4 x);
orvane_float4 __orvane_l9_log1pf2(orvane_float4 x);
orvane_float4 __orvane_l9_log1pf3(orvane_float4 x);
orvane_float4 __orvane_l9_log1pf4(orvane_float4 x);
orvane_float8 __orvane_l9_log1pf8(orvane_float8 x);
void __orvane_l9_log1pf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* log1pf native: largest known error 1568 ulp. */
orvane_float4 __orvane_l9_log1pf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_log1pf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_log1pf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_log1pf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_log1pf8_native(orvane_float8 x);
void __orvane_l9_log1pf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* pow: x to the power y, with all special pairs of IEEE pow. */
/* pow default: largest known error 2.1 ulp; OpenCL C allows 16 ulp. */
orvane_double2 __orvane_l9_pow1(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_pow2(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_pow3(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_pow4(orvane_double4 x, orvane_double4 y);
void __orvane_l9_pow8(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_pow16 { double x[16]; double y[16]; };
void* __orvane_l9_pow16(void* result, struct orvane_args_pow16 arguments);
/* pow rm: largest known error 1.43e-08 relative. */
orvane_double2 __orvane_l9_pow1_rm(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_pow2_rm(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_pow3_rm(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_pow4_rm(orvane_double4 x, orvane_double4 y);
void __orvane_l9_pow8_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_pow16_rm { double x[16]; double y[16]; };
void* __orvane_l9_pow16_rm(void* result, struct orvane_args_pow16_rm arguments);
/* pow native: largest known error 1.43e-08 relative. */
orvane_double2 __orvane_l9_pow1_native(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_pow2_native(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_pow3_native(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_pow4_native(orvane_double4 x, orvane_double4 y);
void __orvane_l9_pow8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_pow16_native { double x[16]; double y[16]; };
void* __orvane_l9_pow16_native(void* result, struct orvane_args_pow16_native arguments);

/* powf: x to the power y, with all special pairs of IEEE pow. */
/* powf default: largest known error 1.1 ulp; OpenCL C allows 16 ulp. */
orvane_float4 __orvane_l9_powf1(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_powf2(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_powf3(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_powf4(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_powf8(orvane_float8 x, orvane_float8 y);
void __orvane_l9_powf16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
/* powf rm: largest known error 2061 ulp; OpenCL C allows 8192 ulp. */
orvane_float4 __orvane_l9_powf1_rm(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_powf2_rm(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_powf3_rm(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_powf4_rm(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_powf8_rm(orvane_float8 x, orvane_float8 y);
void __orvane_l9_powf16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
/* powf native: largest known error 2061 ulp. */
orvane_float4 __orvane_l9_powf1_native(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_powf2_native(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_powf3_native(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_powf4_native(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_powf8_native(orvane_float8 x, orvane_float8 y);
void __orvane_l9_powf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* powr: x to the power y for x >= 0: exp(y log x). NaN of negative x. */
/* powr default: largest known error 2.1 ulp; OpenCL C allows 16 ulp. */
orvane_double2 __orvane_l9_powr1(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_powr2(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_powr3(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_powr4(orvane_double4 x, orvane_double4 y);
void __orvane_l9_powr8(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_powr16 { double x[16]; double y[16]; };
void* __orvane_l9_powr16(void* result, struct orvane_args_powr16 arguments);
/* powr native: largest known error 1.43e-08 relative. */
orvane_double2 __orvane_l9_powr1_native(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_powr2_native(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_powr3_native(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_powr4_native(orvane_double4 x, orvane_double4 y);
void __orvane_l9_powr8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_powr16_native { double x[16]; double y[16]; };
void* __orvane_l9_powr16_native(void* result, struct orvane_args_powr16_native arguments);
/* powr half: largest known error 1.43e-08 relative. */
orvane_double2 __orvane_l9_powr1_half(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_powr2_half(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_powr3_half(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_powr4_half(orvane_double4 x, orvane_double4 y);
void __orvane_l9_powr8_half(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_powr16_half { double x[16]; double y[16]; };
void* __orvane_l9_powr16_half(void* result, struct orvane_args_powr16_half arguments);

/* powrf: x to the power y for x >= 0: exp(y log x). NaN of negative x. */
/* powrf default: largest known error 3.09 ulp; OpenCL C allows 16 ulp. */
orvane_float4 __orvane_l9_powrf1(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_powrf2(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_powrf3(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_powrf4(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_powrf8(orvane_float8 x, orvane_float8 y);
void __orvane_l9_powrf16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
/* powrf native: largest known error 2061 ulp. */
orvane_float4 __orvane_l9_powrf1_native(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_powrf2_native(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_powrf3_native(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_powrf4_native(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_powrf8_native(orvane_float8 x, orvane_float8 y);
void __orvane_l9_powrf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
/* powrf half: largest known error 2061 ulp; OpenCL C allows 8192 ulp. */
orvane_float4 __orvane_l9_powrf1_half(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_powrf2_half(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_powrf3_half(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_powrf4_half(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_powrf8_half(orvane_float8 x, orvane_float8 y);
void __orvane_l9_powrf16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* pown: x to the integer power n. */
/* pown default: largest known error 1.47 ulp; OpenCL C allows 16 ulp. */
orvane_double2 __orvane_l9_pown1(orvane_double2 x, int32_t y);
orvane_double2 __orvane_l9_pown2(orvane_double2 x, orvane_int4 y);
orvane_double4 __orvane_l9_pown3(orvane_double4 x, orvane_int4 y);
orvane_double4 __orvane_l9_pown4(orvane_double4 x, orvane_int4 y);
void __orvane_l9_pown8(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2; out ymm0 ymm1 */
struct orvane_args_pown16 { double x[16]; int32_t y[16]; };
void* __orvane_l9_pown16(void* result, struct orvane_args_pown16 arguments);
/* pown native: largest known error 2.42e-07 relative. */
orvane_double2 __orvane_l9_pown1_native(orvane_double2 x, int32_t y);
orvane_double2 __orvane_l9_pown2_native(orvane_double2 x, orvane_int4 y);
orvane_double4 __orvane_l9_pown3_native(orvane_double4 x, orvane_int4 y);
orvane_double4 __orvane_l9_pown4_native(orvane_double4 x, orvane_int4 y);
void __orvane_l9_pown8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2; out ymm0 ymm1 */
struct orvane_args_pown16_native { double x[16]; int32_t y[16]; };
void* __orvane_l9_pown16_native(void* result, struct orvane_args_pown16_native arguments);

/* pownf: x to the integer power n. */
/* pownf default: largest known error 11.8 ulp; OpenCL C allows 16 ulp. */
orvane_float4 __orvane_l9_pownf1(orvane_float4 x, int32_t y);
orvane_float4 __orvane_l9_pownf2(orvane_float4 x, orvane_int4 y);
orvane_float4 __orvane_l9_pownf3(orvane_float4 x, orvane_int4 y);
orvane_float4 __orvane_l9_pownf4(orvane_float4 x, orvane_int4 y);
orvane_float8 __orvane_l9_pownf8(orvane_float8 x, orvane_int8 y);
void __orvane_l9_pownf16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
/* pownf native: largest known error 4014 ulp. */
orvane_float4 __orvane_l9_pownf1_native(orvane_float4 x, int32_t y);
orvane_float4 __orvane_l9_pownf2_native(orvane_float4 x, orvane_int4 y);
orvane_float4 __orvane_l9_pownf3_native(orvane_float4 x, orvane_int4 y);
orvane_float4 __orvane_l9_pownf4_native(orvane_float4 x, orvane_int4 y);
orvane_float8 __orvane_l9_pownf8_native(orvane_float8 x, orvane_int8 y);
void __orvane_l9_pownf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* rootn: The n-th root of x. */
/* rootn default: largest known error 0.512 ulp; OpenCL C allows 16 ulp. */
orvane_double2 __orvane_l9_rootn1(orvane_double2 x, int32_t y);
orvane_double2 __orvane_l9_rootn2(orvane_double2 x, orvane_int4 y);
orvane_double4 __orvane_l9_rootn3(orvane_double4 x, orvane_int4 y);
orvane_double4 __orvane_l9_rootn4(orvane_double4 x, orvane_int4 y);
void __orvane_l9_rootn8(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2; out ymm0 ymm1 */
struct orvane_args_rootn16 { double x[16]; int32_t y[16]; };
void* __orvane_l9_rootn16(void* result, struct orvane_args_rootn16 arguments);
/* rootn native: largest known error 7.16e-09 relative. */
orvane_double2 __orvane_l9_rootn1_native(orvane_double2 x, int32_t y);
orvane_double2 __orvane_l9_rootn2_native(orvane_double2 x, orvane_int4 y);
orvane_double4 __orvane_l9_rootn3_native(orvane_double4 x, orvane_int4 y);
orvane_double4 __orvane_l9_rootn4_native(orvane_double4 x, orvane_int4 y);
void __orvane_l9_rootn8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2; out ymm0 ymm1 */
struct orvane_args_rootn16_native { double x[16]; int32_t y[16]; };
void* __orvane_l9_rootn16_native(void* result, struct orvane_args_rootn16_native arguments);

/* rootnf: The n-th root of x. */
/* rootnf default: largest known error 5.46 ulp; OpenCL C allows 16 ulp. */
orvane_float4 __orvane_l9_rootnf1(orvane_float4 x, int32_t y);
orvane_float4 __orvane_l9_rootnf2(orvane_float4 x, orvane_int4 y);
orvane_float4 __orvane_l9_rootnf3(orvane_float4 x, orvane_int4 y);
orvane_float4 __orvane_l9_rootnf4(orvane_float4 x, orvane_int4 y);
orvane_float8 __orvane_l9_rootnf8(orvane_float8 x, orvane_int8 y);
void __orvane_l9_rootnf16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
/* rootnf native: largest known error 1335 ulp. */
orvane_float4 __orvane_l9_rootnf1_native(orvane_float4 x, int32_t y);
orvane_float4 __orvane_l9_rootnf2_native(orvane_float4 x, orvane_int4 y);
orvane_float4 __orvane_l9_rootnf3_native(orvane_float4 x, orvane_int4 y);
orvane_float4 __orvane_l9_rootnf4_native(orvane_float4 x, orvane_int4 y);
orvane_float8 __orvane_l9_rootnf8_native(orvane_float8 x, orvane_int8 y);
void __orvane_l9_rootnf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* div: Quotient x / y, with the infinities, zeros and NaN of IEEE division. */
/* div default: largest known error 0.5 ulp; OpenCL C allows 0.5 ulp. */
orvane_double2 __orvane_l9_div1(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_div2(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_div3(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_div4(orvane_double4 x, orvane_double4 y);
void __orvane_l9_div8(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_div16 { double x[16]; double y[16]; };
void* __orvane_l9_div16(void* result, struct orvane_args_div16 arguments);
/* div rm: largest known error 0.5 ulp. */
orvane_double2 __orvane_l9_div1_rm(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_div2_rm(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_div3_rm(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_div4_rm(orvane_double4 x, orvane_double4 y);
void __orvane_l9_div8_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_div16_rm { double x[16]; double y[16]; };
void* __orvane_l9_div16_rm(void* result, struct orvane_args_div16_rm arguments);
/* div native: largest known error 0.5 ulp. */
orvane_double2 __orvane_l9_div1_native(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_div2_native(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_div3_native(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_div4_native(orvane_double4 x, orvane_double4 y);
void __orvane_l9_div8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_div16_native { double x[16]; double y[16]; };
void* __orvane_l9_div16_native(void* result, struct orvane_args_div16_native arguments);
/* div half: largest known error 0.5 ulp. */
orvane_double2 __orvane_l9_div1_half(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_div2_half(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_div3_half(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_div4_half(orvane_double4 x, orvane_double4 y);
void __orvane_l9_div8_half(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_div16_half { double x[16]; double y[16]; };
void* __orvane_l9_div16_half(void* result, struct orvane_args_div16_half arguments);

/* divf: Quotient x / y, with the infinities, zeros and NaN of IEEE division. */
/* divf default: largest known error 0.5 ulp; OpenCL C allows 2.5 ulp. */
orvane_float4 __orvane_l9_divf1(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_divf2(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_divf3(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_divf4(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_divf8(orvane_float8 x, orvane_float8 y);
void __orvane_l9_divf16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
/* divf rm: largest known error 0.5 ulp; OpenCL C allows 2.5 ulp for magnitudes from 2^-126 to 2^126. */
orvane_float4 __orvane_l9_divf1_rm(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_divf2_rm(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_divf3_rm(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_divf4_rm(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_divf8_rm(orvane_float8 x, orvane_float8 y);
void __orvane_l9_divf16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
/* divf native: largest known error 5291 ulp. */
orvane_float4 __orvane_l9_divf1_native(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_divf2_native(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_divf3_native(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_divf4_native(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_divf8_native(orvane_float8 x, orvane_float8 y);
void __orvane_l9_divf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
/* divf half: largest known error 5291 ulp; OpenCL C allows 8192 ulp. */
orvane_float4 __orvane_l9_divf1_half(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_divf2_half(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_divf3_half(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_divf4_half(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_divf8_half(orvane_float8 x, orvane_float8 y);
void __orvane_l9_divf16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* inv: Reciprocal 1 / x. Infinities of zeros with their sign, and the other way round. */
/* inv default: largest known error 0.5 ulp; OpenCL C allows 0.5 ulp. */
orvane_double2 __orvane_l9_inv1(orvane_double2 x);
orvane_double2 __orvane_l9_inv2(orvane_double2 x);
orvane_double4 __orvane_l9_inv3(orvane_double4 x);
orvane_double4 __orvane_l9_inv4(orvane_double4 x);
void __orvane_l9_inv8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_inv16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* inv rm: largest known error 0.5 ulp. */
orvane_double2 __orvane_l9_inv1_rm(orvane_double2 x);
orvane_double2 __orvane_l9_inv2_rm(orvane_double2 x);
orvane_double4 __orvane_l9_inv3_rm(orvane_double4 x);
orvane_double4 __orvane_l9_inv4_rm(orvane_double4 x);
void __orvane_l9_inv8_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_inv16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* inv native: largest known error 0.5 ulp. */
orvane_double2 __orvane_l9_inv1_native(orvane_double2 x);
orvane_double2 __orvane_l9_inv2_native(orvane_double2 x);
orvane_double4 __orvane_l9_inv3_native(orvane_double4 x);
orvane_double4 __orvane_l9_inv4_native(orvane_double4 x);
void __orvane_l9_inv8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_inv16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* inv half: largest known error 0.5 ulp. */
orvane_double2 __orvane_l9_inv1_half(orvane_double2 x);
orvane_double2 __orvane_l9_inv2_half(orvane_double2 x);
orvane_double4 __orvane_l9_inv3_half(orvane_double4 x);
orvane_double4 __orvane_l9_inv4_half(orvane_double4 x);
void __orvane_l9_inv8_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_inv16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* invf: Reciprocal 1 / x. Infinities of zeros with their sign, and the other way round. */
/* invf default: largest known error 0.5 ulp; OpenCL C allows 2.5 ulp. */
orvane_float4 __orvane_l9_invf1(orvane_float4 x);
orvane_float4 __orvane_l9_invf2(orvane_float4 x);
orvane_float4 __orvane_l9_invf3(orvane_float4 x);
orvane_float4 __orvane_l9_invf4(orvane_float4 x);
orvane_float8 __orvane_l9_invf8(orvane_float8 x);
void __orvane_l9_invf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* invf rm: largest known error 0.5 ulp; OpenCL C allows 2.5 ulp for magnitudes from 2^-126 to 2^126. */
orvane_float4 __orvane_l9_invf1_rm(orvane_float4 x);
orvane_float4 __orvane_l9_invf2_rm(orvane_float4 x);
orvane_float4 __orvane_l9_invf3_rm(orvane_float4 x);
orvane_float4 __orvane_l9_invf4_rm(orvane_float4 x);
orvane_float8 __orvane_l9_invf8_rm(orvane_float8 x);
void __orvane_l9_invf16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* invf native: largest known error 4762 ulp. */
orvane_float4 __orvane_l9_invf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_invf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_invf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_invf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_invf8_native(orvane_float8 x);
void __orvane_l9_invf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* invf half: largest known error 4762 ulp; OpenCL C allows 8192 ulp. */
orvane_float4 __orvane_l9_invf1_half(orvane_float4 x);
orvane_float4 __orvane_l9_invf2_half(orvane_float4 x);
orvane_float4 __orvane_l9_invf3_half(orvane_float4 x);
orvane_float4 __orvane_l9_invf4_half(orvane_float4 x);
orvane_float8 __orvane_l9_invf8_half(orvane_float8 x);
void __orvane_l9_invf16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* sqrt: Square root. NaN of negative numbers; zeros come back as they are. */
/* sqrt default: largest known error 0.5 ulp; OpenCL C allows 0.5 ulp. */
orvane_double2 __orvane_l9_sqrt1(orvane_double2 x);
orvane_double2 __orvane_l9_sqrt2(orvane_double2 x);
orvane_double4 __orvane_l9_sqrt3(orvane_double4 x);
orvane_double4 __orvane_l9_sqrt4(orvane_double4 x);
void __orvane_l9_sqrt8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_sqrt16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* sqrt native: largest known error 0.5 ulp. */
orvane_double2 __orvane_l9_sqrt1_native(orvane_double2 x);
orvane_double2 __orvane_l9_sqrt2_native(orvane_double2 x);
orvane_double4 __orvane_l9_sqrt3_native(orvane_double4 x);
orvane_double4 __orvane_l9_sqrt4_native(orvane_double4 x);
void __orvane_l9_sqrt8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_sqrt16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* sqrt half: largest known error 0.5 ulp. */
orvane_double2 __orvane_l9_sqrt1_half(orvane_double2 x);
orvane_double2 __orvane_l9_sqrt2_half(orvane_double2 x);
orvane_double4 __orvane_l9_sqrt3_half(orvane_double4 x);
orvane_double4 __orvane_l9_sqrt4_half(orvane_double4 x);
void __orvane_l9_sqrt8_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_sqrt16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* sqrtf: Square root. NaN of negative numbers; zeros come back as they are. */
/* sqrtf default: largest known error 0.5 ulp; OpenCL C allows 3 ulp. */
orvane_float4 __orvane_l9_sqrtf1(orvane_float4 x);
orvane_float4 __orvane_l9_sqrtf2(orvane_float4 x);
orvane_float4 __orvane_l9_sqrtf3(orvane_float4 x);
orvane_float4 __orvane_l9_sqrtf4(orvane_float4 x);
orvane_float8 __orvane_l9_sqrtf8(orvane_float8 x);
void __orvane_l9_sqrtf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* sqrtf native: largest known error 4156 ulp; unlike the default tier NaN of +0, +Inf, -0; +Inf of positive subnormal numbers, negative subnormal numbers. */
orvane_float4 __orvane_l9_sqrtf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_sqrtf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_sqrtf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_sqrtf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_sqrtf8_native(orvane_float8 x);
void __orvane_l9_sqrtf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* sqrtf half: largest known error 4156 ulp; OpenCL C allows 8192 ulp. */
orvane_float4 __orvane_l9_sqrtf1_half(orvane_float4 x);
orvane_float4 __orvane_l9_sqrtf2_half(orvane_float4 x);
orvane_float4 __orvane_l9_sqrtf3_half(orvane_float4 x);
orvane_float4 __orvane_l9_sqrtf4_half(orvane_float4 x);
orvane_float8 __orvane_l9_sqrtf8_half(orvane_float8 x);
void __orvane_l9_sqrtf16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* rsqrt: Reciprocal square root 1 / sqrt(x). NaN of negative numbers, infinities of zeros. */
/* rsqrt default: largest known error 0.529 ulp; OpenCL C allows 2 ulp. */
orvane_double2 __orvane_l9_rsqrt1(orvane_double2 x);
orvane_double2 __orvane_l9_rsqrt2(orvane_double2 x);
orvane_double4 __orvane_l9_rsqrt3(orvane_double4 x);
orvane_double4 __orvane_l9_rsqrt4(orvane_double4 x);
void __orvane_l9_rsqrt8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_rsqrt16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* rsqrt native: largest known error 3.07e-11 relative. */
orvane_double2 __orvane_l9_rsqrt1_native(orvane_double2 x);
orvane_double2 __orvane_l9_rsqrt2_native(orvane_double2 x);
orvane_double4 __orvane_l9_rsqrt3_native(orvane_double4 x);
orvane_double4 __orvane_l9_rsqrt4_native(orvane_double4 x);
void __orvane_l9_rsqrt8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_rsqrt16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* rsqrt half: largest known error 3.07e-11 relative. */
orvane_double2 __orvane_l9_rsqrt1_half(orvane_double2 x);
orvane_double2 __orvane_l9_rsqrt2_half(orvane_double2 x);
orvane_double4 __orvane_l9_rsqrt3_half(orvane_double4 x);
orvane_double4 __orvane_l9_rsqrt4_half(orvane_double4 x);
void __orvane_l9_rsqrt8_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_rsqrt16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* rsqrtf: Reciprocal square root 1 / sqrt(x). NaN of negative numbers, infinities of zeros. */
/* rsqrtf default: largest known error 0.51 ulp; OpenCL C allows 2 ulp. */
orvane_float4 __orvane_l9_rsqrtf1(orvane_float4 x);
orvane_float4 __orvane_l9_rsqrtf2(orvane_float4 x);
orvane_float4 __orvane_l9_rsqrtf3(orvane_float4 x);
orvane_float4 __orvane_l9_rsqrtf4(orvane_float4 x);
orvane_float8 __orvane_l9_rsqrtf8(orvane_float8 x);
void __orvane_l9_rsqrtf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* rsqrtf native: largest known error 2.39 ulp. */
orvane_float4 __orvane_l9_rsqrtf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_rsqrtf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_rsqrtf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_rsqrtf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_rsqrtf8_native(orvane_float8 x);
void __orvane_l9_rsqrtf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* rsqrtf half: largest known error 2.39 ulp; OpenCL C allows 8192 ulp. */
orvane_float4 __orvane_l9_rsqrtf1_half(orvane_float4 x);
orvane_float4 __orvane_l9_rsqrtf2_half(orvane_float4 x);
orvane_float4 __orvane_l9_rsqrtf3_half(orvane_float4 x);
orvane_float4 __orvane_l9_rsqrtf4_half(orvane_float4 x);
orvane_float8 __orvane_l9_rsqrtf8_half(orvane_float8 x);
void __orvane_l9_rsqrtf16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cbrt: Cube root, of negative numbers too. Zeros and infinities come back as they are. */
/* cbrt default: largest known error 0.517 ulp; OpenCL C allows 2 ulp. */
orvane_double2 __orvane_l9_cbrt1(orvane_double2 x);
orvane_double2 __orvane_l9_cbrt2(orvane_double2 x);
orvane_double4 __orvane_l9_cbrt3(orvane_double4 x);
orvane_double4 __orvane_l9_cbrt4(orvane_double4 x);
void __orvane_l9_cbrt8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cbrt16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* cbrt native: largest known error 2.34e-09 relative. */
orvane_double2 __orvane_l9_cbrt1_native(orvane_double2 x);
orvane_double2 __orvane_l9_cbrt2_native(orvane_double2 x);
orvane_double4 __orvane_l9_cbrt3_native(orvane_double4 x);
orvane_double4 __orvane_l9_cbrt4_native(orvane_double4 x);
void __orvane_l9_cbrt8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cbrt16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cbrtf: Cube root, of negative numbers too. Zeros and infinities come back as they are. */
/* cbrtf default: largest known error 0.522 ulp; OpenCL C allows 2 ulp. */
orvane_float4 __orvane_l9_cbrtf1(orvane_float4 x);
orvane_float4 __orvane_l9_cbrtf2(orvane_float4 x);
orvane_float4 __orvane_l9_cbrtf3(orvane_float4 x);
orvane_float4 __orvane_l9_cbrtf4(orvane_float4 x);
orvane_float8 __orvane_l9_cbrtf8(orvane_float8 x);
void __orvane_l9_cbrtf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* cbrtf native: largest known error 2.77 ulp. */
orvane_float4 __orvane_l9_cbrtf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_cbrtf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_cbrtf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_cbrtf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_cbrtf8_native(orvane_float8 x);
void __orvane_l9_cbrtf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* rcbrt: Reciprocal cube root 1 / cbrt(x). */
/* rcbrt default: largest known error 0.548 ulp. */
orvane_double2 __orvane_l9_rcbrt1(orvane_double2 x);
orvane_double2 __orvane_l9_rcbrt2(orvane_double2 x);
orvane_double4 __orvane_l9_rcbrt3(orvane_double4 x);
orvane_double4 __orvane_l9_rcbrt4(orvane_double4 x);
void __orvane_l9_rcbrt8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_rcbrt16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* rcbrt native: largest known error 1.09e-10 relative. */
orvane_double2 __orvane_l9_rcbrt1_native(orvane_double2 x);
orvane_double2 __orvane_l9_rcbrt2_native(orvane_double2 x);
orvane_double4 __orvane_l9_rcbrt3_native(orvane_double4 x);
orvane_double4 __orvane_l9_rcbrt4_native(orvane_double4 x);
void __orvane_l9_rcbrt8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_rcbrt16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* rcbrtf: Reciprocal cube root 1 / cbrt(x). */
/* rcbrtf default: largest known error 0.513 ulp. */
orvane_float4 __orvane_l9_rcbrtf1(orvane_float4 x);
orvane_float4 __orvane_l9_rcbrtf2(orvane_float4 x);
orvane_float4 __orvane_l9_rcbrtf3(orvane_float4 x);
orvane_float4 __orvane_l9_rcbrtf4(orvane_float4 x);
orvane_float8 __orvane_l9_rcbrtf8(orvane_float8 x);
void __orvane_l9_rcbrtf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* rcbrtf native: largest known error 890 ulp. */
orvane_float4 __orvane_l9_rcbrtf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_rcbrtf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_rcbrtf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_rcbrtf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_rcbrtf8_native(orvane_float8 x);
void __orvane_l9_rcbrtf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* hypot: sqrt(x^2 + y^2) without overflow in between. +Inf if an argument is infinite. */
/* hypot default: largest known error 1.22 ulp; OpenCL C allows 4 ulp. */
orvane_double2 __orvane_l9_hypot1(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_hypot2(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_hypot3(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_hypot4(orvane_double4 x, orvane_double4 y);
void __orvane_l9_hypot8(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_hypot16 { double x[16]; double y[16]; };
void* __orvane_l9_hypot16(void* result, struct orvane_args_hypot16 arguments);
/* hypot native: largest known error 4.33e-11 relative. */
orvane_double2 __orvane_l9_hypot1_native(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_hypot2_native(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_hypot3_native(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_hypot4_native(orvane_double4 x, orvane_double4 y);
void __orvane_l9_hypot8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_hypot16_native { double x[16]; double y[16]; };
void* __orvane_l9_hypot16_native(void* result, struct orvane_args_hypot16_native arguments);

/* hypotf: sqrt(x^2 + y^2) without overflow in between. +Inf if an argument is infinite. */
/* hypotf default: largest known error 1.2 ulp; OpenCL C allows 4 ulp. */
orvane_float4 __orvane_l9_hypotf1(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_hypotf2(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_hypotf3(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_hypotf4(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_hypotf8(orvane_float8 x, orvane_float8 y);
void __orvane_l9_hypotf16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
/* hypotf native: largest known error 4157 ulp. */
orvane_float4 __orvane_l9_hypotf1_native(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_hypotf2_native(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_hypotf3_native(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_hypotf4_native(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_hypotf8_native(orvane_float8 x, orvane_float8 y);
void __orvane_l9_hypotf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* sin: Sine of x radians, for every finite x. NaN of infinities. */
/* sin default: largest known error 3.41 ulp; OpenCL C allows 4 ulp. */
orvane_double2 __orvane_l9_sin1(orvane_double2 x);
orvane_double2 __orvane_l9_sin2(orvane_double2 x);
orvane_double4 __orvane_l9_sin3(orvane_double4 x);
orvane_double4 __orvane_l9_sin4(orvane_double4 x);
void __orvane_l9_sin8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_sin16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* sin rm: largest known error 6.82e-09 absolute. */
orvane_double2 __orvane_l9_sin1_rm(orvane_double2 x);
orvane_double2 __orvane_l9_sin2_rm(orvane_double2 x);
orvane_double4 __orvane_l9_sin3_rm(orvane_double4 x);
orvane_double4 __orvane_l9_sin4_rm(orvane_double4 x);
void __orvane_l9_sin8_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_sin16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* sin native: largest known error 6.82e-09 absolute. */
orvane_double2 __orvane_l9_sin1_native(orvane_double2 x);
orvane_double2 __orvane_l9_sin2_native(orvane_double2 x);
orvane_double4 __orvane_l9_sin3_native(orvane_double4 x);
orvane_double4 __orvane_l9_sin4_native(orvane_double4 x);
void __orvane_l9_sin8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_sin16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* sin half: largest known error 6.82e-09 absolute. */
orvane_double2 __orvane_l9_sin1_half(orvane_double2 x);
orvane_double2 __orvane_l9_sin2_half(orvane_double2 x);
orvane_double4 __orvane_l9_sin3_half(orvane_double4 x);
orvane_double4 __orvane_l9_sin4_half(orvane_double4 x);
void __orvane_l9_sin8_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_sin16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* sinf: Sine of x radians, for every finite x. NaN of infinities. */
/* sinf default: largest known error 2.37 ulp; OpenCL C allows 4 ulp. */
orvane_float4 __orvane_l9_sinf1(orvane_float4 x);
orvane_float4 __orvane_l9_sinf2(orvane_float4 x);
orvane_float4 __orvane_l9_sinf3(orvane_float4 x);
orvane_float4 __orvane_l9_sinf4(orvane_float4 x);
orvane_float8 __orvane_l9_sinf8(orvane_float8 x);
void __orvane_l9_sinf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* sinf rm: largest known error 0.00015 absolute; OpenCL C allows 2^-11 absolute on [-pi, pi]. */
orvane_float4 __orvane_l9_sinf1_rm(orvane_float4 x);
orvane_float4 __orvane_l9_sinf2_rm(orvane_float4 x);
orvane_float4 __orvane_l9_sinf3_rm(orvane_float4 x);
orvane_float4 __orvane_l9_sinf4_rm(orvane_float4 x);
orvane_float8 __orvane_l9_sinf8_rm(orvane_float8 x);
void __orvane_l9_sinf16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* sinf native: largest known error 0.00015 absolute. */
orvane_float4 __orvane_l9_sinf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_sinf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_sinf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_sinf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_sinf8_native(orvane_float8 x);
void __orvane_l9_sinf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* sinf half: largest known error 0.00015 absolute; OpenCL C allows 8192 ulp. */
orvane_float4 __orvane_l9_sinf1_half(orvane_float4 x);
orvane_float4 __orvane_l9_sinf2_half(orvane_float4 x);
orvane_float4 __orvane_l9_sinf3_half(orvane_float4 x);
orvane_float4 __orvane_l9_sinf4_half(orvane_float4 x);
orvane_float8 __orvane_l9_sinf8_half(orvane_float8 x);
void __orvane_l9_sinf16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cos: Cosine of x radians, for every finite x. NaN of infinities. */
/* cos default: largest known error 3.45 ulp; OpenCL C allows 4 ulp. */
orvane_double2 __orvane_l9_cos1(orvane_double2 x);
orvane_double2 __orvane_l9_cos2(orvane_double2 x);
orvane_double4 __orvane_l9_cos3(orvane_double4 x);
orvane_double4 __orvane_l9_cos4(orvane_double4 x);
void __orvane_l9_cos8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cos16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* cos rm: largest known error 6.82e-09 absolute. */
orvane_double2 __orvane_l9_cos1_rm(orvane_double2 x);
orvane_double2 __orvane_l9_cos2_rm(orvane_double2 x);
orvane_double4 __orvane_l9_cos3_rm(orvane_double4 x);
orvane_double4 __orvane_l9_cos4_rm(orvane_double4 x);
void __orvane_l9_cos8_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cos16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* cos native: largest known error 6.82e-09 absolute. */
orvane_double2 __orvane_l9_cos1_native(orvane_double2 x);
orvane_double2 __orvane_l9_cos2_native(orvane_double2 x);
orvane_double4 __orvane_l9_cos3_native(orvane_double4 x);
orvane_double4 __orvane_l9_cos4_native(orvane_double4 x);
void __orvane_l9_cos8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cos16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* cos half: largest known error 6.82e-09 absolute. */
orvane_double2 __orvane_l9_cos1_half(orvane_double2 x);
orvane_double2 __orvane_l9_cos2_half(orvane_double2 x);
orvane_double4 __orvane_l9_cos3_half(orvane_double4 x);
orvane_double4 __orvane_l9_cos4_half(orvane_double4 x);
void __orvane_l9_cos8_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cos16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cosf: Cosine of x radians, for every finite x. NaN of infinities. */
/* cosf default: largest known error 2.47 ulp; OpenCL C allows 4 ulp. */
orvane_float4 __orvane_l9_cosf1(orvane_float4 x);
orvane_float4 __orvane_l9_cosf2(orvane_float4 x);
orvane_float4 __orvane_l9_cosf3(orvane_float4 x);
orvane_float4 __orvane_l9_cosf4(orvane_float4 x);
orvane_float8 __orvane_l9_cosf8(orvane_float8 x);
void __orvane_l9_cosf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* cosf rm: largest known error 0.000151 absolute; OpenCL C allows 2^-11 absolute on [-pi, pi]. */
orvane_float4 __orvane_l9_cosf1_rm(orvane_float4 x);
orvane_float4 __orvane_l9_cosf2_rm(orvane_float4 x);
orvane_float4 __orvane_l9_cosf3_rm(orvane_float4 x);
orvane_float4 __orvane_l9_cosf4_rm(orvane_float4 x);
orvane_float8 __orvane_l9_cosf8_rm(orvane_float8 x);
void __orvane_l9_cosf16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* cosf native: largest known error 0.000151 absolute. */
orvane_float4 __orvane_l9_cosf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_cosf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_cosf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_cosf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_cosf8_native(orvane_float8 x);
void __orvane_l9_cosf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* cosf half: largest known error 0.000151 absolute; OpenCL C allows 8192 ulp. */
orvane_float4 __orvane_l9_cosf1_half(orvane_float4 x);
orvane_float4 __orvane_l9_cosf2_half(orvane_float4 x);
orvane_float4 __orvane_l9_cosf3_half(orvane_float4 x);
orvane_float4 __orvane_l9_cosf4_half(orvane_float4 x);
orvane_float8 __orvane_l9_cosf8_half(orvane_float8 x);
void __orvane_l9_cosf16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* tan: Tangent of x radians, for every finite x. NaN of infinities. */
/* tan default: largest known error 3.38 ulp; OpenCL C allows 5 ulp. */
orvane_double2 __orvane_l9_tan1(orvane_double2 x);
orvane_double2 __orvane_l9_tan2(orvane_double2 x);
orvane_double4 __orvane_l9_tan3(orvane_double4 x);
orvane_double4 __orvane_l9_tan4(orvane_double4 x);
void __orvane_l9_tan8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_tan16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* tan rm: largest known error 2.21e-11 relative. */
orvane_double2 __orvane_l9_tan1_rm(orvane_double2 x);
orvane_double2 __orvane_l9_tan2_rm(orvane_double2 x);
orvane_double4 __orvane_l9_tan3_rm(orvane_double4 x);
orvane_double4 __orvane_l9_tan4_rm(orvane_double4 x);
void __orvane_l9_tan8_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_tan16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* tan native: largest known error 2.21e-11 relative. */
orvane_double2 __orvane_l9_tan1_native(orvane_double2 x);
orvane_double2 __orvane_l9_tan2_native(orvane_double2 x);
orvane_double4 __orvane_l9_tan3_native(orvane_double4 x);
orvane_double4 __orvane_l9_tan4_native(orvane_double4 x);
void __orvane_l9_tan8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_tan16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* tan half: largest known error 2.21e-11 relative. */
orvane_double2 __orvane_l9_tan1_half(orvane_double2 x);
orvane_double2 __orvane_l9_tan2_half(orvane_double2 x);
orvane_double4 __orvane_l9_tan3_half(orvane_double4 x);
orvane_double4 __orvane_l9_tan4_half(orvane_double4 x);
void __orvane_l9_tan8_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_tan16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* tanf: Tangent of x radians, for every finite x. NaN of infinities. */
/* tanf default: largest known error 3.65 ulp; OpenCL C allows 5 ulp. */
orvane_float4 __orvane_l9_tanf1(orvane_float4 x);
orvane_float4 __orvane_l9_tanf2(orvane_float4 x);
orvane_float4 __orvane_l9_tanf3(orvane_float4 x);
orvane_float4 __orvane_l9_tanf4(orvane_float4 x);
orvane_float8 __orvane_l9_tanf8(orvane_float8 x);
void __orvane_l9_tanf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* tanf rm: largest known error 985 ulp; OpenCL C allows 8192 ulp. */
orvane_float4 __orvane_l9_tanf1_rm(orvane_float4 x);
orvane_float4 __orvane_l9_tanf2_rm(orvane_float4 x);
orvane_float4 __orvane_l9_tanf3_rm(orvane_float4 x);
orvane_float4 __orvane_l9_tanf4_rm(orvane_float4 x);
orvane_float8 __orvane_l9_tanf8_rm(orvane_float8 x);
void __orvane_l9_tanf16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* tanf native: largest known error 985 ulp. */
orvane_float4 __orvane_l9_tanf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_tanf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_tanf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_tanf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_tanf8_native(orvane_float8 x);
void __orvane_l9_tanf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* tanf half: largest known error 985 ulp; OpenCL C allows 8192 ulp. */
orvane_float4 __orvane_l9_tanf1_half(orvane_float4 x);
orvane_float4 __orvane_l9_tanf2_half(orvane_float4 x);
orvane_float4 __orvane_l9_tanf3_half(orvane_float4 x);
orvane_float4 __orvane_l9_tanf4_half(orvane_float4 x);
orvane_float8 __orvane_l9_tanf8_half(orvane_float8 x);
void __orvane_l9_tanf16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* sincos: Sine of x radians; the cosine goes to the out-lane. */
/* sincos default: largest known error 3.4 ulp; OpenCL C allows 4 ulp. */
orvane_double2 __orvane_l9_sincos1(double* out, orvane_double2 x);
orvane_double2 __orvane_l9_sincos2(double* out, orvane_double2 x);
orvane_double4 __orvane_l9_sincos3(double* out, orvane_double4 x);
orvane_double4 __orvane_l9_sincos4(double* out, orvane_double4 x);
void __orvane_l9_sincos8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */
void __orvane_l9_sincos16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3, at rdi */
/* sincos rm: largest known error 6.82e-09 absolute. */
orvane_double2 __orvane_l9_sincos1_rm(double* out, orvane_double2 x);
orvane_double2 __orvane_l9_sincos2_rm(double* out, orvane_double2 x);
orvane_double4 __orvane_l9_sincos3_rm(double* out, orvane_double4 x);
orvane_double4 __orvane_l9_sincos4_rm(double* out, orvane_double4 x);
void __orvane_l9_sincos8_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */
void __orvane_l9_sincos16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3, at rdi */
/* sincos native: largest known error 6.82e-09 absolute. */
orvane_double2 __orvane_l9_sincos1_native(double* out, orvane_double2 x);
orvane_double2 __orvane_l9_sincos2_native(double* out, orvane_double2 x);
orvane_double4 __orvane_l9_sincos3_native(double* out, orvane_double4 x);
orvane_double4 __orvane_l9_sincos4_native(double* out, orvane_double4 x);
void __orvane_l9_sincos8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */
void __orvane_l9_sincos16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3, at rdi */

/* sincosf: Sine of x radians; the cosine goes to the out-lane. */
/* sincosf default: largest known error 2.13 ulp; OpenCL C allows 4 ulp. */
orvane_float4 __orvane_l9_sincosf1(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_sincosf2(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_sincosf3(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_sincosf4(float* out, orvane_float4 x);
orvane_float8 __orvane_l9_sincosf8(float* out, orvane_float8 x);
void __orvane_l9_sincosf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */
/* sincosf rm: largest known error 2.13 ulp; OpenCL C allows 2^-11 absolute on [-pi, pi]. */
orvane_float4 __orvane_l9_sincosf1_rm(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_sincosf2_rm(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_sincosf3_rm(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_sincosf4_rm(float* out, orvane_float4 x);
orvane_float8 __orvane_l9_sincosf8_rm(float* out, orvane_float8 x);
void __orvane_l9_sincosf16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */
/* sincosf native: largest known error 2.13 ulp. */
orvane_float4 __orvane_l9_sincosf1_native(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_sincosf2_native(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_sincosf3_native(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_sincosf4_native(float* out, orvane_float4 x);
orvane_float8 __orvane_l9_sincosf8_native(float* out, orvane_float8 x);
void __orvane_l9_sincosf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */

/* sincosreg: Sine and cosine of x radians as two results. */
/* sincosreg default: largest known error 3.39 ulp; OpenCL C allows 4 ulp. */
void __orvane_l9_sincosreg1(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosreg2(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosreg3(void) ORVANE_NOT_C; /* in ymm0; out ymm0, ymm1 */
void __orvane_l9_sincosreg4(void) ORVANE_NOT_C; /* in ymm0; out ymm0, ymm1 */
void __orvane_l9_sincosreg8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, ymm2 ymm3 */
struct orvane_args_sincosreg16 { double x[16]; };
void* __orvane_l9_sincosreg16(void* result, struct orvane_args_sincosreg16 arguments);
/* sincosreg native: largest known error 6.82e-09 absolute. */
void __orvane_l9_sincosreg1_native(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosreg2_native(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosreg3_native(void) ORVANE_NOT_C; /* in ymm0; out ymm0, ymm1 */
void __orvane_l9_sincosreg4_native(void) ORVANE_NOT_C; /* in ymm0; out ymm0, ymm1 */
void __orvane_l9_sincosreg8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, ymm2 ymm3 */
struct orvane_args_sincosreg16_native { double x[16]; };
void* __orvane_l9_sincosreg16_native(void* result, struct orvane_args_sincosreg16_native arguments);

/* sincosregf: Sine and cosine of x radians as two results. */
/* sincosregf default: largest known error 2.15 ulp; OpenCL C allows 4 ulp. */
void __orvane_l9_sincosregf1(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosregf2(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosregf3(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosregf4(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosregf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0, ymm1 */
void __orvane_l9_sincosregf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, ymm2 ymm3 */
/* sincosregf native: largest known error 2.15 ulp. */
void __orvane_l9_sincosregf1_native(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosregf2_native(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosregf3_native(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosregf4_native(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosregf8_native(void) ORVANE_NOT_C; /* in ymm0; out ymm0, ymm1 */
void __orvane_l9_sincosregf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, ymm2 ymm3 */

/* sinpi: Sine of x half turns: sin(pi x). NaN of infinities. */
/* sinpi default: largest known error 2.48 ulp; OpenCL C allows 4 ulp. */
orvane_double2 __orvane_l9_sinpi1(orvane_double2 x);
orvane_double2 __orvane_l9_sinpi2(orvane_double2 x);
orvane_double4 __orvane_l9_sinpi3(orvane_double4 x);
orvane_double4 __orvane_l9_sinpi4(orvane_double4 x);
void __orvane_l9_sinpi8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_sinpi16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* sinpi native: largest known error 5.16e-11 relative. */
orvane_double2 __orvane_l9_sinpi1_native(orvane_double2 x);
orvane_double2 __orvane_l9_sinpi2_native(orvane_double2 x);
orvane_double4 __orvane_l9_sinpi3_native(orvane_double4 x);
orvane_double4 __orvane_l9_sinpi4_native(orvane_double4 x);
void __orvane_l9_sinpi8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_sinpi16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* sinpif: Sine of x half turns: sin(pi x). NaN of infinities. */
/* sinpif default: largest known error 2.45 ulp; OpenCL C allows 4 ulp. */
orvane_float4 __orvane_l9_sinpif1(orvane_float4 x);
orvane_float4 __orvane_l9_sinpif2(orvane_float4 x);
orvane_float4 __orvane_l9_sinpif3(orvane_float4 x);
orvane_float4 __orvane_l9_sinpif4(orvane_float4 x);
orvane_float8 __orvane_l9_sinpif8(orvane_float8 x);
void __orvane_l9_sinpif16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* sinpif native: largest known error 2.45 ulp. */
orvane_float4 __orvane_l9_sinpif1_native(orvane_float4 x);
orvane_float4 __orvane_l9_sinpif2_native(orvane_float4 x);
orvane_float4 __orvane_l9_sinpif3_native(orvane_float4 x);
orvane_float4 __orvane_l9_sinpif4_native(orvane_float4 x);
orvane_float8 __orvane_l9_sinpif8_native(orvane_float8 x);
void __orvane_l9_sinpif16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cospi: Cosine of x half turns: cos(pi x). NaN of infinities. */
/* cospi default: largest known error 2.53 ulp; OpenCL C allows 4 ulp. */
orvane_double2 __orvane_l9_cospi1(orvane_double2 x);
orvane_double2 __orvane_l9_cospi2(orvane_double2 x);
orvane_double4 __orvane_l9_cospi3(orvane_double4 x);
orvane_double4 __orvane_l9_cospi4(orvane_double4 x);
void __orvane_l9_cospi8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cospi16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* cospi native: largest known error 5.16e-11 relative. */
orvane_double2 __orvane_l9_cospi1_native(orvane_double2 x);
orvane_double2 __orvane_l9_cospi2_native(orvane_double2 x);
orvane_double4 __orvane_l9_cospi3_native(orvane_double4 x);
orvane_double4 __orvane_l9_cospi4_native(orvane_double4 x);
void __orvane_l9_cospi8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cospi16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cospif: Cosine of x half turns: cos(pi x). NaN of infinities. */
/* cospif default: largest known error 2.45 ulp; OpenCL C allows 4 ulp. */
orvane_float4 __orvane_l9_cospif1(orvane_float4 x);
orvane_float4 __orvane_l9_cospif2(orvane_float4 x);
orvane_float4 __orvane_l9_cospif3(orvane_float4 x);
orvane_float4 __orvane_l9_cospif4(orvane_float4 x);
orvane_float8 __orvane_l9_cospif8(orvane_float8 x);
void __orvane_l9_cospif16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* cospif native: largest known error 2.45 ulp. */
orvane_float4 __orvane_l9_cospif1_native(orvane_float4 x);
orvane_float4 __orvane_l9_cospif2_native(orvane_float4 x);
orvane_float4 __orvane_l9_cospif3_native(orvane_float4 x);
orvane_float4 __orvane_l9_cospif4_native(orvane_float4 x);
orvane_float8 __orvane_l9_cospif8_native(orvane_float8 x);
void __orvane_l9_cospif16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* tanpi: Tangent of x half turns: tan(pi x). */
/* tanpi default: largest known error 3.48 ulp; OpenCL C allows 6 ulp. */
orvane_double2 __orvane_l9_tanpi1(orvane_double2 x);
orvane_double2 __orvane_l9_tanpi2(orvane_double2 x);
orvane_double4 __orvane_l9_tanpi3(orvane_double4 x);
orvane_double4 __orvane_l9_tanpi4(orvane_double4 x);
void __orvane_l9_tanpi8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_tanpi16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* tanpi native: largest known error 1.51e-10 relative. */
orvane_double2 __orvane_l9_tanpi1_native(orvane_double2 x);
orvane_double2 __orvane_l9_tanpi2_native(orvane_double2 x);
orvane_double4 __orvane_l9_tanpi3_native(orvane_double4 x);
orvane_double4 __orvane_l9_tanpi4_native(orvane_double4 x);
void __orvane_l9_tanpi8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_tanpi16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* tanpif: Tangent of x half turns: tan(pi x). */
/* tanpif default: largest known error 3.18 ulp; OpenCL C allows 6 ulp. */
orvane_float4 __orvane_l9_tanpif1(orvane_float4 x);
orvane_float4 __orvane_l9_tanpif2(orvane_float4 x);
orvane_float4 __orvane_l9_tanpif3(orvane_float4 x);
orvane_float4 __orvane_l9_tanpif4(orvane_float4 x);
orvane_float8 __orvane_l9_tanpif8(orvane_float8 x);
void __orvane_l9_tanpif16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* tanpif native: largest known error 640 ulp. */
orvane_float4 __orvane_l9_tanpif1_native(orvane_float4 x);
orvane_float4 __orvane_l9_tanpif2_native(orvane_float4 x);
orvane_float4 __orvane_l9_tanpif3_native(orvane_float4 x);
orvane_float4 __orvane_l9_tanpif4_native(orvane_float4 x);
orvane_float8 __orvane_l9_tanpif8_native(orvane_float8 x);
void __orvane_l9_tanpif16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* asin: Arc sine, in radians, -pi/2 to pi/2. NaN outside [-1, 1]; a zero keeps its sign. */
/* asin default: largest known error 2.14 ulp; OpenCL C allows 4 ulp. */
orvane_double2 __orvane_l9_asin1(orvane_double2 x);
orvane_double2 __orvane_l9_asin2(orvane_double2 x);
orvane_double4 __orvane_l9_asin3(orvane_double4 x);
orvane_double4 __orvane_l9_asin4(orvane_double4 x);
void __orvane_l9_asin8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_asin16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* asin native: largest known error 1.01e-09 relative. */
orvane_double2 __orvane_l9_asin1_native(orvane_double2 x);
orvane_double2 __orvane_l9_asin2_native(orvane_double2 x);
orvane_double4 __orvane_l9_asin3_native(orvane_double4 x);
orvane_double4 __orvane_l9_asin4_native(orvane_double4 x);
void __orvane_l9_asin8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_asin16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* asinf: Arc sine, in radians, -pi/2 to pi/2. NaN outside [-1, 1]; a zero keeps its sign. */
/* asinf default: largest known error 2.27 ulp; OpenCL C allows 4 ulp. */
orvane_float4 __orvane_l9_asinf1(orvane_float4 x);
orvane_float4 __orvane_l9_asinf2(orvane_float4 x);
orvane_float4 __orvane_l9_asinf3(orvane_float4 x);
orvane_float4 __orvane_l9_asinf4(orvane_float4 x);
orvane_float8 __orvane_l9_asinf8(orvane_float8 x);
void __orvane_l9_asinf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* asinf native: largest known error 535 ulp. */
orvane_float4 __orvane_l9_asinf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_asinf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_asinf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_asinf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_asinf8_native(orvane_float8 x);
void __orvane_l9_asinf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* acos: Arc cosine, in radians, 0 to pi. NaN outside [-1, 1]. */
/* acos default: largest known error 1.29 ulp; OpenCL C allows 4 ulp. */
orvane_double2 __orvane_l9_acos1(orvane_double2 x);
orvane_double2 __orvane_l9_acos2(orvane_double2 x);
orvane_double4 __orvane_l9_acos3(orvane_double4 x);
orvane_double4 __orvane_l9_acos4(orvane_double4 x);
void __orvane_l9_acos8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_acos16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* acos native: largest known error 5.47e-10 relative. */
orvane_double2 __orvane_l9_acos1_native(orvane_double2 x);
orvane_double2 __orvane_l9_acos2_native(orvane_double2 x);
orvane_double4 __orvane_l9_acos3_native(orvane_double4 x);
orvane_double4 __orvane_l9_acos4_native(orvane_double4 x);
void __orvane_l9_acos8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_acos16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* acosf: Arc cosine, in radians, 0 to pi. NaN outside [-1, 1]. */
/* acosf default: largest known error 1.24 ulp; OpenCL C allows 4 ulp. */
orvane_float4 __orvane_l9_acosf1(orvane_float4 x);
orvane_float4 __orvane_l9_acosf2(orvane_float4 x);
orvane_float4 __orvane_l9_acosf3(orvane_float4 x);
orvane_float4 __orvane_l9_acosf4(orvane_float4 x);
orvane_float8 __orvane_l9_acosf8(orvane_float8 x);
void __orvane_l9_acosf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* acosf native: largest known error 532 ulp. */
orvane_float4 __orvane_l9_acosf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_acosf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_acosf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_acosf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_acosf8_native(orvane_float8 x);
void __orvane_l9_acosf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* asinpi: Arc sine in half turns: asin(x) / pi, -1/2 to 1/2. NaN outside [-1, 1]. */
/* asinpi default: largest known error 2.46 ulp; OpenCL C allows 5 ulp. */
orvane_double2 __orvane_l9_asinpi1(orvane_double2 x);
orvane_double2 __orvane_l9_asinpi2(orvane_double2 x);
orvane_double4 __orvane_l9_asinpi3(orvane_double4 x);
orvane_double4 __orvane_l9_asinpi4(orvane_double4 x);
void __orvane_l9_asinpi8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_asinpi16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* asinpi native: largest known error 1.01e-09 relative. */
orvane_double2 __orvane_l9_asinpi1_native(orvane_double2 x);
orvane_double2 __orvane_l9_asinpi2_native(orvane_double2 x);
orvane_double4 __orvane_l9_asinpi3_native(orvane_double4 x);
orvane_double4 __orvane_l9_asinpi4_native(orvane_double4 x);
void __orvane_l9_asinpi8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_asinpi16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* asinpif: Arc sine in half turns: asin(x) / pi, -1/2 to 1/2. NaN outside [-1, 1]. */
/* asinpif default: largest known error 2.68 ulp; OpenCL C allows 5 ulp. */
orvane_float4 __orvane_l9_asinpif1(orvane_float4 x);
orvane_float4 __orvane_l9_asinpif2(orvane_float4 x);
orvane_float4 __orvane_l9_asinpif3(orvane_float4 x);
orvane_float4 __orvane_l9_asinpif4(orvane_float4 x);
orvane_float8 __orvane_l9_asinpif8(orvane_float8 x);
void __orvane_l9_asinpif16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* asinpif native: largest known error 681 ulp. */
orvane_float4 __orvane_l9_asinpif1_native(orvane_float4 x);
orvane_float4 __orvane_l9_asinpif2_native(orvane_float4 x);
orvane_float4 __orvane_l9_asinpif3_native(orvane_float4 x);
orvane_float4 __orvane_l9_asinpif4_native(orvane_float4 x);
orvane_float8 __orvane_l9_asinpif8_native(orvane_float8 x);
void __orvane_l9_asinpif16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* acospi: Arc cosine in half turns: acos(x) / pi, 0 to 1. NaN outside [-1, 1]. */
/* acospi default: largest known error 2.4 ulp; OpenCL C allows 5 ulp. */
orvane_double2 __orvane_l9_acospi1(orvane_double2 x);
orvane_double2 __orvane_l9_acospi2(orvane_double2 x);
orvane_double4 __orvane_l9_acospi3(orvane_double4 x);
orvane_double4 __orvane_l9_acospi4(orvane_double4 x);
void __orvane_l9_acospi8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_acospi16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* acospi native: largest known error 5.47e-10 relative. */
orvane_double2 __orvane_l9_acospi1_native(orvane_double2 x);
orvane_double2 __orvane_l9_acospi2_native(orvane_double2 x);
orvane_double4 __orvane_l9_acospi3_native(orvane_double4 x);
orvane_double4 __orvane_l9_acospi4_native(orvane_double4 x);
void __orvane_l9_acospi8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_acospi16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* acospif: Arc cosine in half turns: acos(x) / pi, 0 to 1. NaN outside [-1, 1]. */
/* acospif default: largest known error 2.46 ulp; OpenCL C allows 5 ulp. */
orvane_float4 __orvane_l9_acospif1(orvane_float4 x);
orvane_float4 __orvane_l9_acospif2(orvane_float4 x);
orvane_float4 __orvane_l9_acospif3(orvane_float4 x);
orvane_float4 __orvane_l9_acospif4(orvane_float4 x);
orvane_float8 __orvane_l9_acospif8(orvane_float8 x);
void __orvane_l9_acospif16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* acospif native: largest known error 532 ulp. */
orvane_float4 __orvane_l9_acospif1_native(orvane_float4 x);
orvane_float4 __orvane_l9_acospif2_native(orvane_float4 x);
orvane_float4 __orvane_l9_acospif3_native(orvane_float4 x);
orvane_float4 __orvane_l9_acospif4_native(orvane_float4 x);
orvane_float8 __orvane_l9_acospif8_native(orvane_float8 x);
void __orvane_l9_acospif16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* atan: Arc tangent, in radians, -pi/2 to pi/2; these two at the infinities. */
/* atan default: largest known error 2.62 ulp; OpenCL C allows 5 ulp. */
orvane_double2 __orvane_l9_atan1(orvane_double2 x);
orvane_double2 __orvane_l9_atan2(orvane_double2 x);
orvane_double4 __orvane_l9_atan3(orvane_double4 x);
orvane_double4 __orvane_l9_atan4(orvane_double4 x);
void __orvane_l9_atan8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_atan16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* atan native: largest known error 2.4e-09 relative. */
orvane_double2 __orvane_l9_atan1_native(orvane_double2 x);
orvane_double2 __orvane_l9_atan2_native(orvane_double2 x);
orvane_double4 __orvane_l9_atan3_native(orvane_double4 x);
orvane_double4 __orvane_l9_atan4_native(orvane_double4 x);
void __orvane_l9_atan8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_atan16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* atanf: Arc tangent, in radians, -pi/2 to pi/2; these two at the infinities. */
/* atanf default: largest known error 2.47 ulp; OpenCL C allows 5 ulp. */
orvane_float4 __orvane_l9_atanf1(orvane_float4 x);
orvane_float4 __orvane_l9_atanf2(orvane_float4 x);
orvane_float4 __orvane_l9_atanf3(orvane_float4 x);
orvane_float4 __orvane_l9_atanf4(orvane_float4 x);
orvane_float8 __orvane_l9_atanf8(orvane_float8 x);
void __orvane_l9_atanf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* atanf native: largest known error 3771 ulp. */
orvane_float4 __orvane_l9_atanf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_atanf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_atanf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_atanf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_atanf8_native(orvane_float8 x);
void __orvane_l9_atanf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* atanpi: Arc tangent in half turns: atan(x) / pi, -1/2 to 1/2. */
/* atanpi default: largest known error 2.98 ulp; OpenCL C allows 5 ulp. */
orvane_double2 __orvane_l9_atanpi1(orvane_double2 x);
orvane_double2 __orvane_l9_atanpi2(orvane_double2 x);
orvane_double4 __orvane_l9_atanpi3(orvane_double4 x);
orvane_double4 __orvane_l9_atanpi4(orvane_double4 x);
void __orvane_l9_atanpi8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_atanpi16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* atanpi native: largest known error 2.42e-09 relative. */
orvane_double2 __orvane_l9_atanpi1_native(orvane_double2 x);
orvane_double2 __orvane_l9_atanpi2_native(orvane_double2 x);
orvane_double4 __orvane_l9_atanpi3_native(orvane_double4 x);
orvane_double4 __orvane_l9_atanpi4_native(orvane_double4 x);
void __orvane_l9_atanpi8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_atanpi16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* atanpif: Arc tangent in half turns: atan(x) / pi, -1/2 to 1/2. */
/* atanpif default: largest known error 3.25 ulp; OpenCL C allows 5 ulp. */
orvane_float4 __orvane_l9_atanpif1(orvane_float4 x);
orvane_float4 __orvane_l9_atanpif2(orvane_float4 x);
orvane_float4 __orvane_l9_atanpif3(orvane_float4 x);
orvane_float4 __orvane_l9_atanpif4(orvane_float4 x);
orvane_float8 __orvane_l9_atanpif8(orvane_float8 x);
void __orvane_l9_atanpif16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* atanpif native: largest known error 3773 ulp. */
orvane_float4 __orvane_l9_atanpif1_native(orvane_float4 x);
orvane_float4 __orvane_l9_atanpif2_native(orvane_float4 x);
orvane_float4 __orvane_l9_atanpif3_native(orvane_float4 x);
orvane_float4 __orvane_l9_atanpif4_native(orvane_float4 x);
orvane_float8 __orvane_l9_atanpif8_native(orvane_float8 x);
void __orvane_l9_atanpif16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* atan2: Angle of the point (y, x), first argument y, in radians, -pi to pi, with all signs of zeros and infinities told apart. */
/* atan2 default: largest known error 3.3 ulp; OpenCL C allows 6 ulp. */
orvane_double2 __orvane_l9_atan21(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_atan22(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_atan23(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_atan24(orvane_double4 x, orvane_double4 y);
void __orvane_l9_atan28(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_atan216 { double x[16]; double y[16]; };
void* __orvane_l9_atan216(void* result, struct orvane_args_atan216 arguments);
/* atan2 native: largest known error 2.43e-09 relative. */
orvane_double2 __orvane_l9_atan21_native(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_atan22_native(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_atan23_native(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_atan24_native(orvane_double4 x, orvane_double4 y);
void __orvane_l9_atan28_native(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_atan216_native { double x[16]; double y[16]; };
void* __orvane_l9_atan216_native(void* result, struct orvane_args_atan216_native arguments);

/* atan2f: Angle of the point (y, x), first argument y, in radians, -pi to pi, with all signs of zeros and infinities told apart. */
/* atan2f default: largest known error 3.41 ulp; OpenCL C allows 6 ulp. */
orvane_float4 __orvane_l9_atan2f1(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_atan2f2(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_atan2f3(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_atan2f4(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_atan2f8(orvane_float8 x, orvane_float8 y);
void __orvane_l9_atan2f16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
/* atan2f native: largest known error 3774 ulp. */
orvane_float4 __orvane_l9_atan2f1_native(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_atan2f2_native(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_atan2f3_native(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_atan2f4_native(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_atan2f8_native(orvane_float8 x, orvane_float8 y);
void __orvane_l9_atan2f16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* atan2pi: Angle of the point (y, x) in half turns: atan2(y, x) / pi, -1 to 1. */
/* atan2pi default: largest known error 3.78 ulp; OpenCL C allows 6 ulp. */
orvane_double2 __orvane_l9_atan2pi1(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_atan2pi2(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_atan2pi3(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_atan2pi4(orvane_double4 x, orvane_double4 y);
void __orvane_l9_atan2pi8(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_atan2pi16 { double x[16]; double y[16]; };
void* __orvane_l9_atan2pi16(void* result, struct orvane_args_atan2pi16 arguments);
/* atan2pi native: largest known error 2.43e-09 relative. */
orvane_double2 __orvane_l9_atan2pi1_native(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_atan2pi2_native(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_atan2pi3_native(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_atan2pi4_native(orvane_double4 x, orvane_double4 y);
void __orvane_l9_atan2pi8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_atan2pi16_native { double x[16]; double y[16]; };
void* __orvane_l9_atan2pi16_native(void* result, struct orvane_args_atan2pi16_native arguments);

/* atan2pif: Angle of the point (y, x) in half turns: atan2(y, x) / pi, -1 to 1. */
/* atan2pif default: largest known error 2.83 ulp; OpenCL C allows 6 ulp. */
orvane_float4 __orvane_l9_atan2pif1(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_atan2pif2(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_atan2pif3(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_atan2pif4(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_atan2pif8(orvane_float8 x, orvane_float8 y);
void __orvane_l9_atan2pif16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
/* atan2pif native: largest known error 3774 ulp. */
orvane_float4 __orvane_l9_atan2pif1_native(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_atan2pif2_native(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_atan2pif3_native(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_atan2pif4_native(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_atan2pif8_native(orvane_float8 x, orvane_float8 y);
void __orvane_l9_atan2pif16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* sinh: Hyperbolic sine. Infinities on overflow; zeros come back as they are. */
/* sinh default: largest known error 1.9 ulp; OpenCL C allows 4 ulp. */
orvane_double2 __orvane_l9_sinh1(orvane_double2 x);
orvane_double2 __orvane_l9_sinh2(orvane_double2 x);
orvane_double4 __orvane_l9_sinh3(orvane_double4 x);
orvane_double4 __orvane_l9_sinh4(orvane_double4 x);
void __orvane_l9_sinh8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_sinh16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* sinh native: largest known error 1.9 ulp. */
orvane_double2 __orvane_l9_sinh1_native(orvane_double2 x);
orvane_double2 __orvane_l9_sinh2_native(orvane_double2 x);
orvane_double4 __orvane_l9_sinh3_native(orvane_double4 x);
orvane_double4 __orvane_l9_sinh4_native(orvane_double4 x);
void __orvane_l9_sinh8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_sinh16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* sinhf: Hyperbolic sine. Infinities on overflow; zeros come back as they are. */
/* sinhf default: largest known error 1.55 ulp; OpenCL C allows 4 ulp. */
orvane_float4 __orvane_l9_sinhf1(orvane_float4 x);
orvane_float4 __orvane_l9_sinhf2(orvane_float4 x);
orvane_float4 __orvane_l9_sinhf3(orvane_float4 x);
orvane_float4 __orvane_l9_sinhf4(orvane_float4 x);
orvane_float8 __orvane_l9_sinhf8(orvane_float8 x);
void __orvane_l9_sinhf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* sinhf native: largest known error 1079 ulp. */
orvane_float4 __orvane_l9_sinhf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_sinhf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_sinhf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_sinhf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_sinhf8_native(orvane_float8 x);
void __orvane_l9_sinhf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cosh: Hyperbolic cosine. +Inf of infinities and on overflow. */
/* cosh default: largest known error 1.52 ulp; OpenCL C allows 4 ulp. */
orvane_double2 __orvane_l9_cosh1(orvane_double2 x);
orvane_double2 __orvane_l9_cosh2(orvane_double2 x);
orvane_double4 __orvane_l9_cosh3(orvane_double4 x);
orvane_double4 __orvane_l9_cosh4(orvane_double4 x);
void __orvane_l9_cosh8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cosh16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* cosh native: largest known error 1.52 ulp. */
orvane_double2 __orvane_l9_cosh1_native(orvane_double2 x);
orvane_double2 __orvane_l9_cosh2_native(orvane_double2 x);
orvane_double4 __orvane_l9_cosh3_native(orvane_double4 x);
orvane_double4 __orvane_l9_cosh4_native(orvane_double4 x);
void __orvane_l9_cosh8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cosh16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* coshf: Hyperbolic cosine. +Inf of infinities and on overflow. */
/* coshf default: largest known error 2.08 ulp; OpenCL C allows 4 ulp. */
orvane_float4 __orvane_l9_coshf1(orvane_float4 x);
orvane_float4 __orvane_l9_coshf2(orvane_float4 x);
orvane_float4 __orvane_l9_coshf3(orvane_float4 x);
orvane_float4 __orvane_l9_coshf4(orvane_float4 x);
orvane_float8 __orvane_l9_coshf8(orvane_float8 x);
void __orvane_l9_coshf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* coshf native: largest known error 380 ulp. */
orvane_float4 __orvane_l9_coshf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_coshf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_coshf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_coshf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_coshf8_native(orvane_float8 x);
void __orvane_l9_coshf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* tanh: Hyperbolic tangent, -1 to 1. Zeros come back as they are. */
/* tanh default: largest known error 1.25 ulp; OpenCL C allows 5 ulp. */
orvane_double2 __orvane_l9_tanh1(orvane_double2 x);
orvane_double2 __orvane_l9_tanh2(orvane_double2 x);
orvane_double4 __orvane_l9_tanh3(orvane_double4 x);
orvane_double4 __orvane_l9_tanh4(orvane_double4 x);
void __orvane_l9_tanh8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_tanh16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* tanh native: largest known error 1.25 ulp. */
orvane_double2 __orvane_l9_tanh1_native(orvane_double2 x);
orvane_double2 __orvane_l9_tanh2_native(orvane_double2 x);
orvane_double4 __orvane_l9_tanh3_native(orvane_double4 x);
orvane_double4 __orvane_l9_tanh4_native(orvane_double4 x);
void __orvane_l9_tanh8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_tanh16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* tanhf: Hyperbolic tangent, -1 to 1. Zeros come back as they are. */
/* tanhf default: largest known error 3.82 ulp; OpenCL C allows 5 ulp. */
orvane_float4 __orvane_l9_tanhf1(orvane_float4 x);
orvane_float4 __orvane_l9_tanhf2(orvane_float4 x);
orvane_float4 __orvane_l9_tanhf3(orvane_float4 x);
orvane_float4 __orvane_l9_tanhf4(orvane_float4 x);
orvane_float8 __orvane_l9_tanhf8(orvane_float8 x);
void __orvane_l9_tanhf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* tanhf native: largest known error 1523 ulp. */
orvane_float4 __orvane_l9_tanhf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_tanhf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_tanhf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_tanhf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_tanhf8_native(orvane_float8 x);
void __orvane_l9_tanhf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* asinh: Inverse hyperbolic sine. Zeros and infinities come back as they are. */
/* asinh default: largest known error 3.55 ulp; OpenCL C allows 4 ulp. */
orvane_double2 __orvane_l9_asinh1(orvane_double2 x);
orvane_double2 __orvane_l9_asinh2(orvane_double2 x);
orvane_double4 __orvane_l9_asinh3(orvane_double4 x);
orvane_double4 __orvane_l9_asinh4(orvane_double4 x);
void __orvane_l9_asinh8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_asinh16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* asinh native: largest known error 2.93e-11 relative. */
orvane_double2 __orvane_l9_asinh1_native(orvane_double2 x);
orvane_double2 __orvane_l9_asinh2_native(orvane_double2 x);
orvane_double4 __orvane_l9_asinh3_native(orvane_double4 x);
orvane_double4 __orvane_l9_asinh4_native(orvane_double4 x);
void __orvane_l9_asinh8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_asinh16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* asinhf: Inverse hyperbolic sine. Zeros and infinities come back as they are. */
/* asinhf default: largest known error 2.09 ulp; OpenCL C allows 4 ulp. */
orvane_float4 __orvane_l9_asinhf1(orvane_float4 x);
orvane_float4 __orvane_l9_asinhf2(orvane_float4 x);
orvane_float4 __orvane_l9_asinhf3(orvane_float4 x);
orvane_float4 __orvane_l9_asinhf4(orvane_float4 x);
orvane_float8 __orvane_l9_asinhf8(orvane_float8 x);
void __orvane_l9_asinhf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* asinhf native: largest known error 1468 ulp. */
orvane_float4 __orvane_l9_asinhf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_asinhf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_asinhf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_asinhf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_asinhf8_native(orvane_float8 x);
void __orvane_l9_asinhf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* acosh: Inverse hyperbolic cosine, 0 or greater. NaN below 1; +Inf of +Inf. */
/* acosh default: largest known error 3.6 ulp; OpenCL C allows 4 ulp. */
orvane_double2 __orvane_l9_acosh1(orvane_double2 x);
orvane_double2 __orvane_l9_acosh2(orvane_double2 x);
orvane_double4 __orvane_l9_acosh3(orvane_double4 x);
orvane_double4 __orvane_l9_acosh4(orvane_double4 x);
void __orvane_l9_acosh8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_acosh16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* acosh native: largest known error 2.69e-10 relative. */
orvane_double2 __orvane_l9_acosh1_native(orvane_double2 x);
orvane_double2 __orvane_l9_acosh2_native(orvane_double2 x);
orvane_double4 __orvane_l9_acosh3_native(orvane_double4 x);
orvane_double4 __orvane_l9_acosh4_native(orvane_double4 x);
void __orvane_l9_acosh8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_acosh16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* acoshf: Inverse hyperbolic cosine, 0 or greater. NaN below 1; +Inf of +Inf. */
/* acoshf default: largest known error 2.81 ulp; OpenCL C allows 4 ulp. */
orvane_float4 __orvane_l9_acoshf1(orvane_float4 x);
orvane_float4 __orvane_l9_acoshf2(orvane_float4 x);
orvane_float4 __orvane_l9_acoshf3(orvane_float4 x);
orvane_float4 __orvane_l9_acoshf4(orvane_float4 x);
orvane_float8 __orvane_l9_acoshf8(orvane_float8 x);
void __orvane_l9_acoshf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* acoshf native: largest known error 2300 ulp. */
orvane_float4 __orvane_l9_acoshf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_acoshf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_acoshf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_acoshf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_acoshf8_native(orvane_float8 x);
void __orvane_l9_acoshf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* atanh: Inverse hyperbolic tangent. Infinities at -1 and 1, NaN beyond them. */
/* atanh default: largest known error 3.55 ulp; OpenCL C allows 5 ulp. */
orvane_double2 __orvane_l9_atanh1(orvane_double2 x);
orvane_double2 __orvane_l9_atanh2(orvane_double2 x);
orvane_double4 __orvane_l9_atanh3(orvane_double4 x);
orvane_double4 __orvane_l9_atanh4(orvane_double4 x);
void __orvane_l9_atanh8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_atanh16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* atanh native: largest known error 2.93e-11 relative. */
orvane_double2 __orvane_l9_atanh1_native(orvane_double2 x);
orvane_double2 __orvane_l9_atanh2_native(orvane_double2 x);
orvane_double4 __orvane_l9_atanh3_native(orvane_double4 x);
orvane_double4 __orvane_l9_atanh4_native(orvane_double4 x);
void __orvane_l9_atanh8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_atanh16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* atanhf: Inverse hyperbolic tangent. Infinities at -1 and 1, NaN beyond them. */
/* atanhf default: largest known error 2.04 ulp; OpenCL C allows 5 ulp. */
orvane_float4 __orvane_l9_atanhf1(orvane_float4 x);
orvane_float4 __orvane_l9_atanhf2(orvane_float4 x);
orvane_float4 __orvane_l9_atanhf3(orvane_float4 x);
orvane_float4 __orvane_l9_atanhf4(orvane_float4 x);
orvane_float8 __orvane_l9_atanhf8(orvane_float8 x);
void __orvane_l9_atanhf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* atanhf native: largest known error 1468 ulp. */
orvane_float4 __orvane_l9_atanhf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_atanhf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_atanhf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_atanhf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_atanhf8_native(orvane_float8 x);
void __orvane_l9_atanhf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* erf: Error function, -1 to 1; these two at the infinities. */
/* erf default: largest known error 2.54 ulp; OpenCL C allows 16 ulp. */
orvane_double2 __orvane_l9_erf1(orvane_double2 x);
orvane_double2 __orvane_l9_erf2(orvane_double2 x);
orvane_double4 __orvane_l9_erf3(orvane_double4 x);
orvane_double4 __orvane_l9_erf4(orvane_double4 x);
void __orvane_l9_erf8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_erf16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* erf native: largest known error 4.95e-11 relative. */
orvane_double2 __orvane_l9_erf1_native(orvane_double2 x);
orvane_double2 __orvane_l9_erf2_native(orvane_double2 x);
orvane_double4 __orvane_l9_erf3_native(orvane_double4 x);
orvane_double4 __orvane_l9_erf4_native(orvane_double4 x);
void __orvane_l9_erf8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_erf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* erff: Error function, -1 to 1; these two at the infinities. */
/* erff default: largest known error 1.93 ulp; OpenCL C allows 16 ulp. */
orvane_float4 __orvane_l9_erff1(orvane_float4 x);
orvane_float4 __orvane_l9_erff2(orvane_float4 x);
orvane_float4 __orvane_l9_erff3(orvane_float4 x);
orvane_float4 __orvane_l9_erff4(orvane_float4 x);
orvane_float8 __orvane_l9_erff8(orvane_float8 x);
void __orvane_l9_erff16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* erff native: largest known error 4096 ulp. */
orvane_float4 __orvane_l9_erff1_native(orvane_float4 x);
orvane_float4 __orvane_l9_erff2_native(orvane_float4 x);
orvane_float4 __orvane_l9_erff3_native(orvane_float4 x);
orvane_float4 __orvane_l9_erff4_native(orvane_float4 x);
orvane_float8 __orvane_l9_erff8_native(orvane_float8 x);
void __orvane_l9_erff16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* erfc: Complementary error function 1 - erf(x), 0 to 2. */
/* erfc default: largest known error 2.07 ulp; OpenCL C allows 16 ulp. */
orvane_double2 __orvane_l9_erfc1(orvane_double2 x);
orvane_double2 __orvane_l9_erfc2(orvane_double2 x);
orvane_double4 __orvane_l9_erfc3(orvane_double4 x);
orvane_double4 __orvane_l9_erfc4(orvane_double4 x);
void __orvane_l9_erfc8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_erfc16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
/* erfc native: largest known error 7.64e-10 relative. */
orvane_double2 __orvane_l9_erfc1_native(orvane_double2 x);
orvane_double2 __orvane_l9_erfc2_native(orvane_double2 x);
orvane_double4 __orvane_l9_erfc3_native(orvane_double4 x);
orvane_double4 __orvane_l9_erfc4_native(orvane_double4 x);
void __orvane_l9_erfc8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_erfc16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* erfcf: Complementary error function 1 - erf(x), 0 to 2. */
/* erfcf default: largest known error 1.61 ulp; OpenCL C allows 16 ulp. */
orvane_float4 __orvane_l9_erfcf1(orvane_float4 x);
orvane_float4 __orvane_l9_erfcf2(orvane_float4 x);
orvane_float4 __orvane_l9_erfcf3(orvane_float4 x);
orvane_float4 __orvane_l9_erfcf4(orvane_float4 x);
orvane_float8 __orvane_l9_erfcf8(orvane_float8 x);
void __orvane_l9_erfcf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
/* erfcf native: largest known error 404 ulp. */
orvane_float4 __orvane_l9_erfcf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_erfcf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_erfcf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_erfcf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_erfcf8_native(orvane_float8 x);
void __orvane_l9_erfcf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* tgamma: Gamma function. NaN at negative integers, infinities of zeros. */
/* tgamma default: largest known error 0.516 ulp; OpenCL C allows 16 ulp. */
orvane_double2 __orvane_l9_tgamma1(orvane_double2 x);
orvane_double2 __orvane_l9_tgamma2(orvane_double2 x);
orvane_double4 __orvane_l9_tgamma3(orvane_double4 x);
orvane_double4 __orvane_l9_tgamma4(orvane_double4 x);
void __orvane_l9_tgamma8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_tgamma16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* tgammaf: Gamma function. NaN at negative integers, infinities of zeros. */
/* tgammaf default: largest known error 0.503 ulp; OpenCL C allows 16 ulp. */
orvane_float4 __orvane_l9_tgammaf1(orvane_float4 x);
orvane_float4 __orvane_l9_tgammaf2(orvane_float4 x);
orvane_float4 __orvane_l9_tgammaf3(orvane_float4 x);
orvane_float4 __orvane_l9_tgammaf4(orvane_float4 x);
orvane_float8 __orvane_l9_tgammaf8(orvane_float8 x);
void __orvane_l9_tgammaf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* lgamma: Logarithm of the magnitude of the gamma function. +Inf at 0 and at negative integers. */
/* lgamma default: largest known error 0.511 ulp. */
orvane_double2 __orvane_l9_lgamma1(orvane_double2 x);
orvane_double2 __orvane_l9_lgamma2(orvane_double2 x);
orvane_double4 __orvane_l9_lgamma3(orvane_double4 x);
orvane_double4 __orvane_l9_lgamma4(orvane_double4 x);
void __orvane_l9_lgamma8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_lgamma16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* lgammaf: Logarithm of the magnitude of the gamma function. +Inf at 0 and at negative integers. */
/* lgammaf default: largest known error 0.509 ulp. */
orvane_float4 __orvane_l9_lgammaf1(orvane_float4 x);
orvane_float4 __orvane_l9_lgammaf2(orvane_float4 x);
orvane_float4 __orvane_l9_lgammaf3(orvane_float4 x);
orvane_float4 __orvane_l9_lgammaf4(orvane_float4 x);
orvane_float8 __orvane_l9_lgammaf8(orvane_float8 x);
void __orvane_l9_lgammaf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* lgammar: lgamma, with the sign of the gamma function in the out-lane. */
/* lgammar default: largest known error 0.511 ulp. */
orvane_double2 __orvane_l9_lgammar1(int32_t* out, orvane_double2 x);
orvane_double2 __orvane_l9_lgammar2(int32_t* out, orvane_double2 x);
orvane_double4 __orvane_l9_lgammar3(int32_t* out, orvane_double4 x);
orvane_double4 __orvane_l9_lgammar4(int32_t* out, orvane_double4 x);
void __orvane_l9_lgammar8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */
void __orvane_l9_lgammar16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3, at rdi */

/* lgammarf: lgamma, with the sign of the gamma function in the out-lane. */
/* lgammarf default: largest known error 0.508 ulp. */
orvane_float4 __orvane_l9_lgammarf1(int32_t* out, orvane_float4 x);
orvane_float4 __orvane_l9_lgammarf2(int32_t* out, orvane_float4 x);
orvane_float4 __orvane_l9_lgammarf3(int32_t* out, orvane_float4 x);
orvane_float4 __orvane_l9_lgammarf4(int32_t* out, orvane_float4 x);
orvane_float8 __orvane_l9_lgammarf8(int32_t* out, orvane_float8 x);
void __orvane_l9_lgammarf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */

/* ceil: Smallest integer not below x. A zero result keeps the sign of x. */
/* ceil default: exact. */
orvane_double2 __orvane_l9_ceil1(orvane_double2 x);
orvane_double2 __orvane_l9_ceil2(orvane_double2 x);
orvane_double4 __orvane_l9_ceil3(orvane_double4 x);
orvane_double4 __orvane_l9_ceil4(orvane_double4 x);
void __orvane_l9_ceil8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_ceil16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* ceilf: Smallest integer not below x. A zero result keeps the sign of x. */
/* ceilf default: exact. */
orvane_float4 __orvane_l9_ceilf1(orvane_float4 x);
orvane_float4 __orvane_l9_ceilf2(orvane_float4 x);
orvane_float4 __orvane_l9_ceilf3(orvane_float4 x);
orvane_float4 __orvane_l9_ceilf4(orvane_float4 x);
orvane_float8 __orvane_l9_ceilf8(orvane_float8 x);
void __orvane_l9_ceilf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* floor: Largest integer not above x. A zero result keeps the sign of x. */
/* floor default: exact. */
orvane_double2 __orvane_l9_floor1(orvane_double2 x);
orvane_double2 __orvane_l9_floor2(orvane_double2 x);
orvane_double4 __orvane_l9_floor3(orvane_double4 x);
orvane_double4 __orvane_l9_floor4(orvane_double4 x);
void __orvane_l9_floor8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_floor16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* floorf: Largest integer not above x. A zero result keeps the sign of x. */
/* floorf default: exact. */
orvane_float4 __orvane_l9_floorf1(orvane_float4 x);
orvane_float4 __orvane_l9_floorf2(orvane_float4 x);
orvane_float4 __orvane_l9_floorf3(orvane_float4 x);
orvane_float4 __orvane_l9_floorf4(orvane_float4 x);
orvane_float8 __orvane_l9_floorf8(orvane_float8 x);
void __orvane_l9_floorf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* trunc: x rounded toward zero to an integer. A zero result keeps the sign of x. */
/* trunc default: exact. */
orvane_double2 __orvane_l9_trunc1(orvane_double2 x);
orvane_double2 __orvane_l9_trunc2(orvane_double2 x);
orvane_double4 __orvane_l9_trunc3(orvane_double4 x);
orvane_double4 __orvane_l9_trunc4(orvane_double4 x);
void __orvane_l9_trunc8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_trunc16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* truncf: x rounded toward zero to an integer. A zero result keeps the sign of x. */
/* truncf default: exact. */
orvane_float4 __orvane_l9_truncf1(orvane_float4 x);
orvane_float4 __orvane_l9_truncf2(orvane_float4 x);
orvane_float4 __orvane_l9_truncf3(orvane_float4 x);
orvane_float4 __orvane_l9_truncf4(orvane_float4 x);
orvane_float8 __orvane_l9_truncf8(orvane_float8 x);
void __orvane_l9_truncf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* rint: Nearest integer by the caller's rounding mode. */
/* rint default: exact. */
orvane_double2 __orvane_l9_rint1(orvane_double2 x);
orvane_double2 __orvane_l9_rint2(orvane_double2 x);
orvane_double4 __orvane_l9_rint3(orvane_double4 x);
orvane_double4 __orvane_l9_rint4(orvane_double4 x);
void __orvane_l9_rint8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_rint16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* rintf: Nearest integer by the caller's rounding mode. */
/* rintf default: exact. */
orvane_float4 __orvane_l9_rintf1(orvane_float4 x);
orvane_float4 __orvane_l9_rintf2(orvane_float4 x);
orvane_float4 __orvane_l9_rintf3(orvane_float4 x);
orvane_float4 __orvane_l9_rintf4(orvane_float4 x);
orvane_float8 __orvane_l9_rintf8(orvane_float8 x);
void __orvane_l9_rintf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* nearbyint: Nearest integer by the caller's rounding mode, without the inexact flag. */
/* nearbyint default: exact. */
orvane_double2 __orvane_l9_nearbyint1(orvane_double2 x);
orvane_double2 __orvane_l9_nearbyint2(orvane_double2 x);
orvane_double4 __orvane_l9_nearbyint3(orvane_double4 x);
orvane_double4 __orvane_l9_nearbyint4(orvane_double4 x);
void __orvane_l9_nearbyint8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_nearbyint16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* nearbyintf: Nearest integer by the caller's rounding mode, without the inexact flag. */
/* nearbyintf default: exact. */
orvane_float4 __orvane_l9_nearbyintf1(orvane_float4 x);
orvane_float4 __orvane_l9_nearbyintf2(orvane_float4 x);
orvane_float4 __orvane_l9_nearbyintf3(orvane_float4 x);
orvane_float4 __orvane_l9_nearbyintf4(orvane_float4 x);
orvane_float8 __orvane_l9_nearbyintf8(orvane_float8 x);
void __orvane_l9_nearbyintf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* round: Nearest integer, ties away from zero. */
/* round default: exact. */
orvane_double2 __orvane_l9_round1(orvane_double2 x);
orvane_double2 __orvane_l9_round2(orvane_double2 x);
orvane_double4 __orvane_l9_round3(orvane_double4 x);
orvane_double4 __orvane_l9_round4(orvane_double4 x);
void __orvane_l9_round8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_round16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* roundf: Nearest integer, ties away from zero. */
/* roundf default: exact. */
orvane_float4 __orvane_l9_roundf1(orvane_float4 x);
orvane_float4 __orvane_l9_roundf2(orvane_float4 x);
orvane_float4 __orvane_l9_roundf3(orvane_float4 x);
orvane_float4 __orvane_l9_roundf4(orvane_float4 x);
orvane_float8 __orvane_l9_roundf8(orvane_float8 x);
void __orvane_l9_roundf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* fract: x - floor(x), below 1; floor(x) goes to the out-lane. A NaN goes on as it came. */
/* fract default: largest known error 1 ulp. */
orvane_double2 __orvane_l9_fract1(double* out, orvane_double2 x);
orvane_double2 __orvane_l9_fract2(double* out, orvane_double2 x);
orvane_double4 __orvane_l9_fract3(double* out, orvane_double4 x);
orvane_double4 __orvane_l9_fract4(double* out, orvane_double4 x);
void __orvane_l9_fract8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */
void __orvane_l9_fract16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3, at rdi */

/* fractf: x - floor(x), below 1; floor(x) goes to the out-lane. A NaN goes on as it came. */
/* fractf default: largest known error 1 ulp. */
orvane_float4 __orvane_l9_fractf1(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_fractf2(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_fractf3(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_fractf4(float* out, orvane_float4 x);
orvane_float8 __orvane_l9_fractf8(float* out, orvane_float8 x);
void __orvane_l9_fractf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */

/* modf: Fraction of x with its sign; trunc(x) goes to the out-lane. A NaN is quieted. */
/* modf default: exact. */
orvane_double2 __orvane_l9_modf1(double* out, orvane_double2 x);
orvane_double2 __orvane_l9_modf2(double* out, orvane_double2 x);
orvane_double4 __orvane_l9_modf3(double* out, orvane_double4 x);
orvane_double4 __orvane_l9_modf4(double* out, orvane_double4 x);
void __orvane_l9_modf8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */
void __orvane_l9_modf16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3, at rdi */

/* modff: Fraction of x with its sign; trunc(x) goes to the out-lane. A NaN is quieted. */
/* modff default: exact. */
orvane_float4 __orvane_l9_modff1(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_modff2(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_modff3(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_modff4(float* out, orvane_float4 x);
orvane_float8 __orvane_l9_modff8(float* out, orvane_float8 x);
void __orvane_l9_modff16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */

/* frexp: Significand of x in [1/2, 1); the exponent goes to the out-lane. Zeros, infinities and NaN come back. */
/* frexp default: exact. */
orvane_double2 __orvane_l9_frexp1(int32_t* out, orvane_double2 x);
orvane_double2 __orvane_l9_frexp2(int32_t* out, orvane_double2 x);
orvane_double4 __orvane_l9_frexp3(int32_t* out, orvane_double4 x);
orvane_double4 __orvane_l9_frexp4(int32_t* out, orvane_double4 x);
void __orvane_l9_frexp8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */
void __orvane_l9_frexp16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3, at rdi */

/* frexpf: Significand of x in [1/2, 1); the exponent goes to the out-lane. Zeros, infinities and NaN come back. */
/* frexpf default: exact. */
orvane_float4 __orvane_l9_frexpf1(int32_t* out, orvane_float4 x);
orvane_float4 __orvane_l9_frexpf2(int32_t* out, orvane_float4 x);
orvane_float4 __orvane_l9_frexpf3(int32_t* out, orvane_float4 x);
orvane_float4 __orvane_l9_frexpf4(int32_t* out, orvane_float4 x);
orvane_float8 __orvane_l9_frexpf8(int32_t* out, orvane_float8 x);
void __orvane_l9_frexpf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */

/* ldexp: x times 2 to the power n, rounded once. Infinities, zeros and NaN come back. */
/* ldexp default: largest known error 0.5 ulp. */
orvane_double2 __orvane_l9_ldexp1(orvane_double2 x, int32_t y);
orvane_double2 __orvane_l9_ldexp2(orvane_double2 x, orvane_int4 y);
orvane_double4 __orvane_l9_ldexp3(orvane_double4 x, orvane_int4 y);
orvane_double4 __orvane_l9_ldexp4(orvane_double4 x, orvane_int4 y);
void __orvane_l9_ldexp8(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2; out ymm0 ymm1 */
struct orvane_args_ldexp16 { double x[16]; int32_t y[16]; };
void* __orvane_l9_ldexp16(void* result, struct orvane_args_ldexp16 arguments);

/* ldexpf: x times 2 to the power n, rounded once. Infinities, zeros and NaN come back. */
/* ldexpf default: largest known error 0.5 ulp. */
orvane_float4 __orvane_l9_ldexpf1(orvane_float4 x, int32_t y);
orvane_float4 __orvane_l9_ldexpf2(orvane_float4 x, orvane_int4 y);
orvane_float4 __orvane_l9_ldexpf3(orvane_float4 x, orvane_int4 y);
orvane_float4 __orvane_l9_ldexpf4(orvane_float4 x, orvane_int4 y);
orvane_float8 __orvane_l9_ldexpf8(orvane_float8 x, orvane_int8 y);
void __orvane_l9_ldexpf16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* ilogb: Exponent of x as an integer. */
/* ilogb default: exact. */
int32_t __orvane_l9_ilogb1(orvane_double2 x);
orvane_int4 __orvane_l9_ilogb2(orvane_double2 x);
orvane_int4 __orvane_l9_ilogb3(orvane_double4 x);
orvane_int4 __orvane_l9_ilogb4(orvane_double4 x);
orvane_int8 __orvane_l9_ilogb8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_ilogb16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* ilogbf: Exponent of x as an integer. */
/* ilogbf default: exact. */
int32_t __orvane_l9_ilogbf1(orvane_float4 x);
orvane_int4 __orvane_l9_ilogbf2(orvane_float4 x);
orvane_int4 __orvane_l9_ilogbf3(orvane_float4 x);
orvane_int4 __orvane_l9_ilogbf4(orvane_float4 x);
orvane_int8 __orvane_l9_ilogbf8(orvane_float8 x);
void __orvane_l9_ilogbf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* logb: Exponent of x as a floating value. -Inf of zeros, +Inf of infinities. */
/* logb default: exact. */
orvane_double2 __orvane_l9_logb1(orvane_double2 x);
orvane_double2 __orvane_l9_logb2(orvane_double2 x);
orvane_double4 __orvane_l9_logb3(orvane_double4 x);
orvane_double4 __orvane_l9_logb4(orvane_double4 x);
void __orvane_l9_logb8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_logb16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* logbf: Exponent of x as a floating value. -Inf of zeros, +Inf of infinities. */
/* logbf default: exact. */
orvane_float4 __orvane_l9_logbf1(orvane_float4 x);
orvane_float4 __orvane_l9_logbf2(orvane_float4 x);
orvane_float4 __orvane_l9_logbf3(orvane_float4 x);
orvane_float4 __orvane_l9_logbf4(orvane_float4 x);
orvane_float8 __orvane_l9_logbf8(orvane_float8 x);
void __orvane_l9_logbf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* nextafter: The next number after x in the direction of y. */
/* nextafter default: exact. */
orvane_double2 __orvane_l9_nextafter1(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_nextafter2(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_nextafter3(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_nextafter4(orvane_double4 x, orvane_double4 y);
void __orvane_l9_nextafter8(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_nextafter16 { double x[16]; double y[16]; };
void* __orvane_l9_nextafter16(void* result, struct orvane_args_nextafter16 arguments);

/* nextafterf: The next number after x in the direction of y. */
/* nextafterf default: exact. */
orvane_float4 __orvane_l9_nextafterf1(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_nextafterf2(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_nextafterf3(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_nextafterf4(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_nextafterf8(orvane_float8 x, orvane_float8 y);
void __orvane_l9_nextafterf16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* nan: A quiet NaN with the given bits as payload. */
/* nan default: exact. */
orvane_double2 __orvane_l9_nan1(uint64_t x);
orvane_double2 __orvane_l9_nan2(orvane_ulong2 x);
orvane_double4 __orvane_l9_nan3(orvane_ulong4 x);
orvane_double4 __orvane_l9_nan4(orvane_ulong4 x);
void __orvane_l9_nan8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_nan16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* nanf: A quiet NaN with the given bits as payload. */
/* nanf default: exact. */
orvane_float4 __orvane_l9_nanf1(uint32_t x);
orvane_float4 __orvane_l9_nanf2(orvane_uint4 x);
orvane_float4 __orvane_l9_nanf3(orvane_uint4 x);
orvane_float4 __orvane_l9_nanf4(orvane_uint4 x);
orvane_float8 __orvane_l9_nanf8(orvane_uint8 x);
void __orvane_l9_nanf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* copysign: The magnitude of x with the sign of y, NaN included. */
/* copysign default: exact. */
orvane_double2 __orvane_l9_copysign1(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_copysign2(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_copysign3(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_copysign4(orvane_double4 x, orvane_double4 y);
void __orvane_l9_copysign8(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_copysign16 { double x[16]; double y[16]; };
void* __orvane_l9_copysign16(void* result, struct orvane_args_copysign16 arguments);

/* copysignf: The magnitude of x with the sign of y, NaN included. */
/* copysignf default: exact. */
orvane_float4 __orvane_l9_copysignf1(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_copysignf2(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_copysignf3(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_copysignf4(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_copysignf8(orvane_float8 x, orvane_float8 y);
void __orvane_l9_copysignf16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* fabs: Magnitude of x: the sign bit cleared, of a NaN too. */
/* fabs default: exact. */
orvane_double2 __orvane_l9_fabs1(orvane_double2 x);
orvane_double2 __orvane_l9_fabs2(orvane_double2 x);
orvane_double4 __orvane_l9_fabs3(orvane_double4 x);
orvane_double4 __orvane_l9_fabs4(orvane_double4 x);
void __orvane_l9_fabs8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_fabs16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* fabsf: Magnitude of x: the sign bit cleared, of a NaN too. */
/* fabsf default: exact. */
orvane_float4 __orvane_l9_fabsf1(orvane_float4 x);
orvane_float4 __orvane_l9_fabsf2(orvane_float4 x);
orvane_float4 __orvane_l9_fabsf3(orvane_float4 x);
orvane_float4 __orvane_l9_fabsf4(orvane_float4 x);
orvane_float8 __orvane_l9_fabsf8(orvane_float8 x);
void __orvane_l9_fabsf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* fmin: The smaller of x and y; y on a tie. Of a NaN and a number the number. */
/* fmin default: exact. */
orvane_double2 __orvane_l9_fmin1(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_fmin2(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_fmin3(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_fmin4(orvane_double4 x, orvane_double4 y);
void __orvane_l9_fmin8(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_fmin16 { double x[16]; double y[16]; };
void* __orvane_l9_fmin16(void* result, struct orvane_args_fmin16 arguments);

/* fminf: The smaller of x and y; y on a tie. Of a NaN and a number the number. */
/* fminf default: exact. */
orvane_float4 __orvane_l9_fminf1(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_fminf2(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_fminf3(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_fminf4(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_fminf8(orvane_float8 x, orvane_float8 y);
void __orvane_l9_fminf16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* fmax: The larger of x and y; y on a tie. Of a NaN and a number the number. */
/* fmax default: exact. */
orvane_double2 __orvane_l9_fmax1(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_fmax2(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_fmax3(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_fmax4(orvane_double4 x, orvane_double4 y);
void __orvane_l9_fmax8(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_fmax16 { double x[16]; double y[16]; };
void* __orvane_l9_fmax16(void* result, struct orvane_args_fmax16 arguments);

/* fmaxf: The larger of x and y; y on a tie. Of a NaN and a number the number. */
/* fmaxf default: exact. */
orvane_float4 __orvane_l9_fmaxf1(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_fmaxf2(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_fmaxf3(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_fmaxf4(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_fmaxf8(orvane_float8 x, orvane_float8 y);
void __orvane_l9_fmaxf16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* minmag: The argument of smaller magnitude; fmin of equal ones. Of a NaN and a number the number. */
/* minmag default: exact. */
orvane_double2 __orvane_l9_minmag1(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_minmag2(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_minmag3(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_minmag4(orvane_double4 x, orvane_double4 y);
void __orvane_l9_minmag8(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_minmag16 { double x[16]; double y[16]; };
void* __orvane_l9_minmag16(void* result, struct orvane_args_minmag16 arguments);

/* minmagf: The argument of smaller magnitude; fmin of equal ones. Of a NaN and a number the number. */
/* minmagf default: exact. */
orvane_float4 __orvane_l9_minmagf1(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_minmagf2(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_minmagf3(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_minmagf4(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_minmagf8(orvane_float8 x, orvane_float8 y);
void __orvane_l9_minmagf16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* maxmag: The argument of larger magnitude; fmax of equal ones. Of a NaN and a number the number. */
/* maxmag default: exact. */
orvane_double2 __orvane_l9_maxmag1(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_maxmag2(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_maxmag3(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_maxmag4(orvane_double4 x, orvane_double4 y);
void __orvane_l9_maxmag8(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_maxmag16 { double x[16]; double y[16]; };
void* __orvane_l9_maxmag16(void* result, struct orvane_args_maxmag16 arguments);

/* maxmagf: The argument of larger magnitude; fmax of equal ones. Of a NaN and a number the number. */
/* maxmagf default: exact. */
orvane_float4 __orvane_l9_maxmagf1(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_maxmagf2(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_maxmagf3(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_maxmagf4(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_maxmagf8(orvane_float8 x, orvane_float8 y);
void __orvane_l9_maxmagf16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* fdim: Positive difference: x - y if x > y, else +0. NaN if an argument is. */
/* fdim default: largest known error 0.5 ulp. */
orvane_double2 __orvane_l9_fdim1(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_fdim2(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_fdim3(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_fdim4(orvane_double4 x, orvane_double4 y);
void __orvane_l9_fdim8(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_fdim16 { double x[16]; double y[16]; };
void* __orvane_l9_fdim16(void* result, struct orvane_args_fdim16 arguments);

/* fdimf: Positive difference: x - y if x > y, else +0. NaN if an argument is. */
/* fdimf default: largest known error 0.5 ulp. */
orvane_float4 __orvane_l9_fdimf1(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_fdimf2(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_fdimf3(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_fdimf4(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_fdimf8(orvane_float8 x, orvane_float8 y);
void __orvane_l9_fdimf16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* fma: a b + c with one rounding. */
/* fma default: largest known error 0.5 ulp. */
orvane_double2 __orvane_l9_fma1(orvane_double2 x, orvane_double2 y, orvane_double2 z);
orvane_double2 __orvane_l9_fma2(orvane_double2 x, orvane_double2 y, orvane_double2 z);
orvane_double4 __orvane_l9_fma3(orvane_double4 x, orvane_double4 y, orvane_double4 z);
orvane_double4 __orvane_l9_fma4(orvane_double4 x, orvane_double4 y, orvane_double4 z);
struct orvane_args_fma8 { double x[8]; double y[8]; double z[8]; };
void* __orvane_l9_fma8(void* result, struct orvane_args_fma8 arguments);
struct orvane_args_fma16 { double x[16]; double y[16]; double z[16]; };
void* __orvane_l9_fma16(void* result, struct orvane_args_fma16 arguments);
/* fma rm: largest known error 0.5 ulp. */
orvane_double2 __orvane_l9_fma1_rm(orvane_double2 x, orvane_double2 y, orvane_double2 z);
orvane_double2 __orvane_l9_fma2_rm(orvane_double2 x, orvane_double2 y, orvane_double2 z);
orvane_double4 __orvane_l9_fma3_rm(orvane_double4 x, orvane_double4 y, orvane_double4 z);
orvane_double4 __orvane_l9_fma4_rm(orvane_double4 x, orvane_double4 y, orvane_double4 z);
struct orvane_args_fma8_rm { double x[8]; double y[8]; double z[8]; };
void* __orvane_l9_fma8_rm(void* result, struct orvane_args_fma8_rm arguments);
struct orvane_args_fma16_rm { double x[16]; double y[16]; double z[16]; };
void* __orvane_l9_fma16_rm(void* result, struct orvane_args_fma16_rm arguments);

/* fmaf: a b + c with one rounding. */
/* fmaf default: largest known error 0.5 ulp. */
orvane_float4 __orvane_l9_fmaf1(orvane_float4 x, orvane_float4 y, orvane_float4 z);
orvane_float4 __orvane_l9_fmaf2(orvane_float4 x, orvane_float4 y, orvane_float4 z);
orvane_float4 __orvane_l9_fmaf3(orvane_float4 x, orvane_float4 y, orvane_float4 z);
orvane_float4 __orvane_l9_fmaf4(orvane_float4 x, orvane_float4 y, orvane_float4 z);
orvane_float8 __orvane_l9_fmaf8(orvane_float8 x, orvane_float8 y, orvane_float8 z);
struct orvane_args_fmaf16 { float x[16]; float y[16]; float z[16]; };
void* __orvane_l9_fmaf16(void* result, struct orvane_args_fmaf16 arguments);
/* fmaf rm: largest known error 0.5 ulp. */
orvane_float4 __orvane_l9_fmaf1_rm(orvane_float4 x, orvane_float4 y, orvane_float4 z);
orvane_float4 __orvane_l9_fmaf2_rm(orvane_float4 x, orvane_float4 y, orvane_float4 z);
orvane_float4 __orvane_l9_fmaf3_rm(orvane_float4 x, orvane_float4 y, orvane_float4 z);
orvane_float4 __orvane_l9_fmaf4_rm(orvane_float4 x, orvane_float4 y, orvane_float4 z);
orvane_float8 __orvane_l9_fmaf8_rm(orvane_float8 x, orvane_float8 y, orvane_float8 z);
struct orvane_args_fmaf16_rm { float x[16]; float y[16]; float z[16]; };
void* __orvane_l9_fmaf16_rm(void* result, struct orvane_args_fmaf16_rm arguments);

/* fmod: Remainder of x / y truncated, exact, with the sign of x. NaN for infinite x or y = 0. */
/* fmod default: exact. */
orvane_double2 __orvane_l9_fmod1(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_fmod2(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_fmod3(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_fmod4(orvane_double4 x, orvane_double4 y);
void __orvane_l9_fmod8(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_fmod16 { double x[16]; double y[16]; };
void* __orvane_l9_fmod16(void* result, struct orvane_args_fmod16 arguments);

/* fmodf: Remainder of x / y truncated, exact, with the sign of x. NaN for infinite x or y = 0. */
/* fmodf default: exact. */
orvane_float4 __orvane_l9_fmodf1(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_fmodf2(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_fmodf3(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_fmodf4(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_fmodf8(orvane_float8 x, orvane_float8 y);
void __orvane_l9_fmodf16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* remainder: Remainder of x / y with the quotient rounded to nearest, exact. NaN for infinite x or y = 0. */
/* remainder default: exact. */
orvane_double2 __orvane_l9_remainder1(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_remainder2(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_remainder3(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_remainder4(orvane_double4 x, orvane_double4 y);
void __orvane_l9_remainder8(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_remainder16 { double x[16]; double y[16]; };
void* __orvane_l9_remainder16(void* result, struct orvane_args_remainder16 arguments);

/* remainderf: Remainder of x / y with the quotient rounded to nearest, exact. NaN for infinite x or y = 0. */
/* remainderf default: exact. */
orvane_float4 __orvane_l9_remainderf1(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_remainderf2(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_remainderf3(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_remainderf4(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_remainderf8(orvane_float8 x, orvane_float8 y);
void __orvane_l9_remainderf16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* remquo: remainder, with sign and low bits of the quotient in the out-lane. */
/* remquo default: exact. */
orvane_double2 __orvane_l9_remquo1(int32_t* out, orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_remquo2(int32_t* out, orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_remquo3(int32_t* out, orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_remquo4(int32_t* out, orvane_double4 x, orvane_double4 y);
void __orvane_l9_remquo8(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1, at rdi */
struct orvane_args_remquo16 { double x[16]; double y[16]; };
void* __orvane_l9_remquo16(void* result, int32_t* out, struct orvane_args_remquo16 arguments);

/* remquof: remainder, with sign and low bits of the quotient in the out-lane. */
/* remquof default: exact. */
orvane_float4 __orvane_l9_remquof1(int32_t* out, orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_remquof2(int32_t* out, orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_remquof3(int32_t* out, orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_remquof4(int32_t* out, orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_remquof8(int32_t* out, orvane_float8 x, orvane_float8 y);
void __orvane_l9_remquof16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1, at rdi */

/* idiv: Quotient truncated toward zero. 0x80000000 for b = 0 and for -2^31 / -1. */
/* idiv default: exact. */
int32_t __orvane_l9_idiv1(int32_t x, int32_t y);
orvane_int4 __orvane_l9_idiv2(orvane_int4 x, orvane_int4 y);
orvane_int4 __orvane_l9_idiv3(orvane_int4 x, orvane_int4 y);
orvane_int4 __orvane_l9_idiv4(orvane_int4 x, orvane_int4 y);
orvane_int8 __orvane_l9_idiv8(orvane_int8 x, orvane_int8 y);
void __orvane_l9_idiv16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* irem: Remainder a - q b, with the sign of a. a for b = 0. */
/* irem default: exact. */
int32_t __orvane_l9_irem1(int32_t x, int32_t y);
orvane_int4 __orvane_l9_irem2(orvane_int4 x, orvane_int4 y);
orvane_int4 __orvane_l9_irem3(orvane_int4 x, orvane_int4 y);
orvane_int4 __orvane_l9_irem4(orvane_int4 x, orvane_int4 y);
orvane_int8 __orvane_l9_irem8(orvane_int8 x, orvane_int8 y);
void __orvane_l9_irem16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* idivrem: Quotient truncated toward zero, and remainder: idiv and irem of one computation. */
/* idivrem default: exact. */
uint64_t __orvane_l9_idivrem1(int32_t x, int32_t y);
void __orvane_l9_idivrem2(void) ORVANE_NOT_C; /* in xmm0, xmm1; out xmm0, xmm1 */
void __orvane_l9_idivrem3(void) ORVANE_NOT_C; /* in xmm0, xmm1; out xmm0, xmm1 */
void __orvane_l9_idivrem4(void) ORVANE_NOT_C; /* in xmm0, xmm1; out xmm0, xmm1 */
void __orvane_l9_idivrem8(void) ORVANE_NOT_C; /* in ymm0, ymm1; out ymm0, ymm1 */
void __orvane_l9_idivrem16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1, ymm2 ymm3 */

/* udiv: Quotient of unsigned integers. 0 for b = 0. */
/* udiv default: exact. */
uint32_t __orvane_l9_udiv1(uint32_t x, uint32_t y);
orvane_uint4 __orvane_l9_udiv2(orvane_uint4 x, orvane_uint4 y);
orvane_uint4 __orvane_l9_udiv3(orvane_uint4 x, orvane_uint4 y);
orvane_uint4 __orvane_l9_udiv4(orvane_uint4 x, orvane_uint4 y);
orvane_uint8 __orvane_l9_udiv8(orvane_uint8 x, orvane_uint8 y);
void __orvane_l9_udiv16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* urem: Remainder of unsigned integers. a for b = 0. */
/* urem default: exact. */
uint32_t __orvane_l9_urem1(uint32_t x, uint32_t y);
orvane_uint4 __orvane_l9_urem2(orvane_uint4 x, orvane_uint4 y);
orvane_uint4 __orvane_l9_urem3(orvane_uint4 x, orvane_uint4 y);
orvane_uint4 __orvane_l9_urem4(orvane_uint4 x, orvane_uint4 y);
orvane_uint8 __orvane_l9_urem8(orvane_uint8 x, orvane_uint8 y);
void __orvane_l9_urem16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* udivrem: Quotient and remainder of unsigned integers: udiv and urem of one computation. */
/* udivrem default: exact. */
uint64_t __orvane_l9_udivrem1(uint32_t x, uint32_t y);
void __orvane_l9_udivrem2(void) ORVANE_NOT_C; /* in xmm0, xmm1; out xmm0, xmm1 */
void __orvane_l9_udivrem3(void) ORVANE_NOT_C; /* in xmm0, xmm1; out xmm0, xmm1 */
void __orvane_l9_udivrem4(void) ORVANE_NOT_C; /* in xmm0, xmm1; out xmm0, xmm1 */
void __orvane_l9_udivrem8(void) ORVANE_NOT_C; /* in ymm0, ymm1; out ymm0, ymm1 */
void __orvane_l9_udivrem16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1, ymm2 ymm3 */

/* cvtfptoi32rtesat: Conversion from double to int, rounded to nearest, ties to even; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptoi32rtesat default: exact. */
int32_t __orvane_l9_cvtfptoi32rtesat1(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtesat2(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtesat3(orvane_double4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtesat4(orvane_double4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtesat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptoi32rtesat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptoi32rtesatf: Conversion from float to int, rounded to nearest, ties to even; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptoi32rtesatf default: exact. */
int32_t __orvane_l9_cvtfptoi32rtesatf1(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtesatf2(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtesatf3(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtesatf4(orvane_float4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtesatf8(orvane_float8 x);
void __orvane_l9_cvtfptoi32rtesatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptoi32rtenosat: Conversion from double to int, rounded to nearest, ties to even; values out of range give what the processor's steps give. */
/* cvtfptoi32rtenosat default: exact. */
int32_t __orvane_l9_cvtfptoi32rtenosat1(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtenosat2(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtenosat3(orvane_double4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtenosat4(orvane_double4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtenosat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptoi32rtenosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptoi32rtenosatf: Conversion from float to int, rounded to nearest, ties to even; values out of range give what the processor's steps give. */
/* cvtfptoi32rtenosatf default: exact. */
int32_t __orvane_l9_cvtfptoi32rtenosatf1(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtenosatf2(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtenosatf3(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtenosatf4(orvane_float4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtenosatf8(orvane_float8 x);
void __orvane_l9_cvtfptoi32rtenosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptoi32rtnsat: Conversion from double to int, rounded down; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptoi32rtnsat default: exact. */
int32_t __orvane_l9_cvtfptoi32rtnsat1(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnsat2(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnsat3(orvane_double4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnsat4(orvane_double4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtnsat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptoi32rtnsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptoi32rtnsatf: Conversion from float to int, rounded down; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptoi32rtnsatf default: exact. */
int32_t __orvane_l9_cvtfptoi32rtnsatf1(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnsatf2(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnsatf3(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnsatf4(orvane_float4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtnsatf8(orvane_float8 x);
void __orvane_l9_cvtfptoi32rtnsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptoi32rtnnosat: Conversion from double to int, rounded down; values out of range give what the processor's steps give. */
/* cvtfptoi32rtnnosat default: exact. */
int32_t __orvane_l9_cvtfptoi32rtnnosat1(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnnosat2(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnnosat3(orvane_double4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnnosat4(orvane_double4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtnnosat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptoi32rtnnosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptoi32rtnnosatf: Conversion from float to int, rounded down; values out of range give what the processor's steps give. */
/* cvtfptoi32rtnnosatf default: exact. */
int32_t __orvane_l9_cvtfptoi32rtnnosatf1(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnnosatf2(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnnosatf3(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnnosatf4(orvane_float4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtnnosatf8(orvane_float8 x);
void __orvane_l9_cvtfptoi32rtnnosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptoi32rtpsat: Conversion from double to int, rounded up; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptoi32rtpsat default: exact. */
int32_t __orvane_l9_cvtfptoi32rtpsat1(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpsat2(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpsat3(orvane_double4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpsat4(orvane_double4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtpsat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptoi32rtpsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptoi32rtpsatf: Conversion from float to int, rounded up; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptoi32rtpsatf default: exact. */
int32_t __orvane_l9_cvtfptoi32rtpsatf1(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpsatf2(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpsatf3(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpsatf4(orvane_float4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtpsatf8(orvane_float8 x);
void __orvane_l9_cvtfptoi32rtpsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptoi32rtpnosat: Conversion from double to int, rounded up; values out of range give what the processor's steps give. */
/* cvtfptoi32rtpnosat default: exact. */
int32_t __orvane_l9_cvtfptoi32rtpnosat1(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpnosat2(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpnosat3(orvane_double4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpnosat4(orvane_double4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtpnosat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptoi32rtpnosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptoi32rtpnosatf: Conversion from float to int, rounded up; values out of range give what the processor's steps give. */
/* cvtfptoi32rtpnosatf default: exact. */
int32_t __orvane_l9_cvtfptoi32rtpnosatf1(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpnosatf2(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpnosatf3(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpnosatf4(orvane_float4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtpnosatf8(orvane_float8 x);
void __orvane_l9_cvtfptoi32rtpnosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptoi32rtzsat: Conversion from double to int, rounded toward zero; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptoi32rtzsat default: exact. */
int32_t __orvane_l9_cvtfptoi32rtzsat1(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtzsat2(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtzsat3(orvane_double4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtzsat4(orvane_double4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtzsat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptoi32rtzsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptoi32rtzsatf: Conversion from float to int, rounded toward zero; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptoi32rtzsatf default: exact. */
int32_t __orvane_l9_cvtfptoi32rtzsatf1(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtzsatf2(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtzsatf3(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtzsatf4(orvane_float4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtzsatf8(orvane_float8 x);
void __orvane_l9_cvtfptoi32rtzsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptoi32rtznosat: Conversion from double to int, rounded toward zero; values out of range give what the processor's steps give. */
/* cvtfptoi32rtznosat default: exact. */
int32_t __orvane_l9_cvtfptoi32rtznosat1(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtznosat2(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtznosat3(orvane_double4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtznosat4(orvane_double4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtznosat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptoi32rtznosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptoi32rtznosatf: Conversion from float to int, rounded toward zero; values out of range give what the processor's steps give. */
/* cvtfptoi32rtznosatf default: exact. */
int32_t __orvane_l9_cvtfptoi32rtznosatf1(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtznosatf2(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtznosatf3(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtznosatf4(orvane_float4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtznosatf8(orvane_float8 x);
void __orvane_l9_cvtfptoi32rtznosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptoi64rtesat: Conversion from double to long, rounded to nearest, ties to even; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptoi64rtesat default: exact. */
int64_t __orvane_l9_cvtfptoi64rtesat1(orvane_double2 x);
orvane_long2 __orvane_l9_cvtfptoi64rtesat2(orvane_double2 x);
orvane_long4 __orvane_l9_cvtfptoi64rtesat3(orvane_double4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtesat4(orvane_double4 x);
void __orvane_l9_cvtfptoi64rtesat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtesat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtesatf: Conversion from float to long, rounded to nearest, ties to even; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptoi64rtesatf default: exact. */
int64_t __orvane_l9_cvtfptoi64rtesatf1(orvane_float4 x);
orvane_long2 __orvane_l9_cvtfptoi64rtesatf2(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtesatf3(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtesatf4(orvane_float4 x);
void __orvane_l9_cvtfptoi64rtesatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtesatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtenosat: Conversion from double to long, rounded to nearest, ties to even; values out of range give what the processor's steps give. */
/* cvtfptoi64rtenosat default: exact. */
int64_t __orvane_l9_cvtfptoi64rtenosat1(orvane_double2 x);
orvane_long2 __orvane_l9_cvtfptoi64rtenosat2(orvane_double2 x);
orvane_long4 __orvane_l9_cvtfptoi64rtenosat3(orvane_double4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtenosat4(orvane_double4 x);
void __orvane_l9_cvtfptoi64rtenosat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtenosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtenosatf: Conversion from float to long, rounded to nearest, ties to even; values out of range give what the processor's steps give. */
/* cvtfptoi64rtenosatf default: exact. */
int64_t __orvane_l9_cvtfptoi64rtenosatf1(orvane_float4 x);
orvane_long2 __orvane_l9_cvtfptoi64rtenosatf2(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtenosatf3(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtenosatf4(orvane_float4 x);
void __orvane_l9_cvtfptoi64rtenosatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtenosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtnsat: Conversion from double to long, rounded down; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptoi64rtnsat default: exact. */
int64_t __orvane_l9_cvtfptoi64rtnsat1(orvane_double2 x);
orvane_long2 __orvane_l9_cvtfptoi64rtnsat2(orvane_double2 x);
orvane_long4 __orvane_l9_cvtfptoi64rtnsat3(orvane_double4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtnsat4(orvane_double4 x);
void __orvane_l9_cvtfptoi64rtnsat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtnsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtnsatf: Conversion from float to long, rounded down; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptoi64rtnsatf default: exact. */
int64_t __orvane_l9_cvtfptoi64rtnsatf1(orvane_float4 x);
orvane_long2 __orvane_l9_cvtfptoi64rtnsatf2(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtnsatf3(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtnsatf4(orvane_float4 x);
void __orvane_l9_cvtfptoi64rtnsatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtnsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtnnosat: Conversion from double to long, rounded down; values out of range give what the processor's steps give. */
/* cvtfptoi64rtnnosat default: exact. */
int64_t __orvane_l9_cvtfptoi64rtnnosat1(orvane_double2 x);
orvane_long2 __orvane_l9_cvtfptoi64rtnnosat2(orvane_double2 x);
orvane_long4 __orvane_l9_cvtfptoi64rtnnosat3(orvane_double4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtnnosat4(orvane_double4 x);
void __orvane_l9_cvtfptoi64rtnnosat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtnnosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtnnosatf: Conversion from float to long, rounded down; values out of range give what the processor's steps give. */
/* cvtfptoi64rtnnosatf default: exact. */
int64_t __orvane_l9_cvtfptoi64rtnnosatf1(orvane_float4 x);
orvane_long2 __orvane_l9_cvtfptoi64rtnnosatf2(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtnnosatf3(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtnnosatf4(orvane_float4 x);
void __orvane_l9_cvtfptoi64rtnnosatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtnnosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtpsat: Conversion from double to long, rounded up; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptoi64rtpsat default: exact. */
int64_t __orvane_l9_cvtfptoi64rtpsat1(orvane_double2 x);
orvane_long2 __orvane_l9_cvtfptoi64rtpsat2(orvane_double2 x);
orvane_long4 __orvane_l9_cvtfptoi64rtpsat3(orvane_double4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtpsat4(orvane_double4 x);
void __orvane_l9_cvtfptoi64rtpsat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtpsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtpsatf: Conversion from float to long, rounded up; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptoi64rtpsatf default: exact. */
int64_t __orvane_l9_cvtfptoi64rtpsatf1(orvane_float4 x);
orvane_long2 __orvane_l9_cvtfptoi64rtpsatf2(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtpsatf3(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtpsatf4(orvane_float4 x);
void __orvane_l9_cvtfptoi64rtpsatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtpsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtpnosat: Conversion from double to long, rounded up; values out of range give what the processor's steps give. */
/* cvtfptoi64rtpnosat default: exact. */
int64_t __orvane_l9_cvtfptoi64rtpnosat1(orvane_double2 x);
orvane_long2 __orvane_l9_cvtfptoi64rtpnosat2(orvane_double2 x);
orvane_long4 __orvane_l9_cvtfptoi64rtpnosat3(orvane_double4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtpnosat4(orvane_double4 x);
void __orvane_l9_cvtfptoi64rtpnosat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtpnosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtpnosatf: Conversion from float to long, rounded up; values out of range give what the processor's steps give. */
/* cvtfptoi64rtpnosatf default: exact. */
int64_t __orvane_l9_cvtfptoi64rtpnosatf1(orvane_float4 x);
orvane_long2 __orvane_l9_cvtfptoi64rtpnosatf2(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtpnosatf3(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtpnosatf4(orvane_float4 x);
void __orvane_l9_cvtfptoi64rtpnosatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtpnosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtzsat: Conversion from double to long, rounded toward zero; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptoi64rtzsat default: exact. */
int64_t __orvane_l9_cvtfptoi64rtzsat1(orvane_double2 x);
orvane_long2 __orvane_l9_cvtfptoi64rtzsat2(orvane_double2 x);
orvane_long4 __orvane_l9_cvtfptoi64rtzsat3(orvane_double4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtzsat4(orvane_double4 x);
void __orvane_l9_cvtfptoi64rtzsat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtzsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtzsatf: Conversion from float to long, rounded toward zero; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptoi64rtzsatf default: exact. */
int64_t __orvane_l9_cvtfptoi64rtzsatf1(orvane_float4 x);
orvane_long2 __orvane_l9_cvtfptoi64rtzsatf2(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtzsatf3(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtzsatf4(orvane_float4 x);
void __orvane_l9_cvtfptoi64rtzsatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtzsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtznosat: Conversion from double to long, rounded toward zero; values out of range give what the processor's steps give. */
/* cvtfptoi64rtznosat default: exact. */
int64_t __orvane_l9_cvtfptoi64rtznosat1(orvane_double2 x);
orvane_long2 __orvane_l9_cvtfptoi64rtznosat2(orvane_double2 x);
orvane_long4 __orvane_l9_cvtfptoi64rtznosat3(orvane_double4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtznosat4(orvane_double4 x);
void __orvane_l9_cvtfptoi64rtznosat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtznosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtznosatf: Conversion from float to long, rounded toward zero; values out of range give what the processor's steps give. */
/* cvtfptoi64rtznosatf default: exact. */
int64_t __orvane_l9_cvtfptoi64rtznosatf1(orvane_float4 x);
orvane_long2 __orvane_l9_cvtfptoi64rtznosatf2(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtznosatf3(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtznosatf4(orvane_float4 x);
void __orvane_l9_cvtfptoi64rtznosatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtznosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou32rtesat: Conversion from double to uint, rounded to nearest, ties to even; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptou32rtesat default: exact. */
uint32_t __orvane_l9_cvtfptou32rtesat1(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtesat2(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtesat3(orvane_double4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtesat4(orvane_double4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtesat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptou32rtesat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptou32rtesatf: Conversion from float to uint, rounded to nearest, ties to even; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptou32rtesatf default: exact. */
uint32_t __orvane_l9_cvtfptou32rtesatf1(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtesatf2(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtesatf3(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtesatf4(orvane_float4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtesatf8(orvane_float8 x);
void __orvane_l9_cvtfptou32rtesatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptou32rtenosat: Conversion from double to uint, rounded to nearest, ties to even; values out of range give what the processor's steps give. */
/* cvtfptou32rtenosat default: exact. */
uint32_t __orvane_l9_cvtfptou32rtenosat1(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtenosat2(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtenosat3(orvane_double4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtenosat4(orvane_double4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtenosat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptou32rtenosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptou32rtenosatf: Conversion from float to uint, rounded to nearest, ties to even; values out of range give what the processor's steps give. */
/* cvtfptou32rtenosatf default: exact. */
uint32_t __orvane_l9_cvtfptou32rtenosatf1(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtenosatf2(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtenosatf3(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtenosatf4(orvane_float4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtenosatf8(orvane_float8 x);
void __orvane_l9_cvtfptou32rtenosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptou32rtnsat: Conversion from double to uint, rounded down; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptou32rtnsat default: exact. */
uint32_t __orvane_l9_cvtfptou32rtnsat1(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnsat2(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnsat3(orvane_double4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnsat4(orvane_double4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtnsat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptou32rtnsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptou32rtnsatf: Conversion from float to uint, rounded down; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptou32rtnsatf default: exact. */
uint32_t __orvane_l9_cvtfptou32rtnsatf1(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnsatf2(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnsatf3(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnsatf4(orvane_float4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtnsatf8(orvane_float8 x);
void __orvane_l9_cvtfptou32rtnsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptou32rtnnosat: Conversion from double to uint, rounded down; values out of range give what the processor's steps give. */
/* cvtfptou32rtnnosat default: exact. */
uint32_t __orvane_l9_cvtfptou32rtnnosat1(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnnosat2(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnnosat3(orvane_double4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnnosat4(orvane_double4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtnnosat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptou32rtnnosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptou32rtnnosatf: Conversion from float to uint, rounded down; values out of range give what the processor's steps give. */
/* cvtfptou32rtnnosatf default: exact. */
uint32_t __orvane_l9_cvtfptou32rtnnosatf1(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnnosatf2(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnnosatf3(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnnosatf4(orvane_float4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtnnosatf8(orvane_float8 x);
void __orvane_l9_cvtfptou32rtnnosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptou32rtpsat: Conversion from double to uint, rounded up; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptou32rtpsat default: exact. */
uint32_t __orvane_l9_cvtfptou32rtpsat1(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpsat2(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpsat3(orvane_double4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpsat4(orvane_double4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtpsat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptou32rtpsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptou32rtpsatf: Conversion from float to uint, rounded up; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptou32rtpsatf default: exact. */
uint32_t __orvane_l9_cvtfptou32rtpsatf1(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpsatf2(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpsatf3(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpsatf4(orvane_float4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtpsatf8(orvane_float8 x);
void __orvane_l9_cvtfptou32rtpsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptou32rtpnosat: Conversion from double to uint, rounded up; values out of range give what the processor's steps give. */
/* cvtfptou32rtpnosat default: exact. */
uint32_t __orvane_l9_cvtfptou32rtpnosat1(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpnosat2(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpnosat3(orvane_double4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpnosat4(orvane_double4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtpnosat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptou32rtpnosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptou32rtpnosatf: Conversion from float to uint, rounded up; values out of range give what the processor's steps give. */
/* cvtfptou32rtpnosatf default: exact. */
uint32_t __orvane_l9_cvtfptou32rtpnosatf1(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpnosatf2(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpnosatf3(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpnosatf4(orvane_float4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtpnosatf8(orvane_float8 x);
void __orvane_l9_cvtfptou32rtpnosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptou32rtzsat: Conversion from double to uint, rounded toward zero; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptou32rtzsat default: exact. */
uint32_t __orvane_l9_cvtfptou32rtzsat1(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtzsat2(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtzsat3(orvane_double4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtzsat4(orvane_double4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtzsat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptou32rtzsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptou32rtzsatf: Conversion from float to uint, rounded toward zero; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptou32rtzsatf default: exact. */
uint32_t __orvane_l9_cvtfptou32rtzsatf1(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtzsatf2(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtzsatf3(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtzsatf4(orvane_float4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtzsatf8(orvane_float8 x);
void __orvane_l9_cvtfptou32rtzsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptou32rtznosat: Conversion from double to uint, rounded toward zero; values out of range give what the processor's steps give. */
/* cvtfptou32rtznosat default: exact. */
uint32_t __orvane_l9_cvtfptou32rtznosat1(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtznosat2(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtznosat3(orvane_double4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtznosat4(orvane_double4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtznosat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptou32rtznosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptou32rtznosatf: Conversion from float to uint, rounded toward zero; values out of range give what the processor's steps give. */
/* cvtfptou32rtznosatf default: exact. */
uint32_t __orvane_l9_cvtfptou32rtznosatf1(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtznosatf2(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtznosatf3(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtznosatf4(orvane_float4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtznosatf8(orvane_float8 x);
void __orvane_l9_cvtfptou32rtznosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptou64rtesat: Conversion from double to ulong, rounded to nearest, ties to even; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptou64rtesat default: exact. */
uint64_t __orvane_l9_cvtfptou64rtesat1(orvane_double2 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtesat2(orvane_double2 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtesat3(orvane_double4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtesat4(orvane_double4 x);
void __orvane_l9_cvtfptou64rtesat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtesat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtesatf: Conversion from float to ulong, rounded to nearest, ties to even; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptou64rtesatf default: exact. */
uint64_t __orvane_l9_cvtfptou64rtesatf1(orvane_float4 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtesatf2(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtesatf3(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtesatf4(orvane_float4 x);
void __orvane_l9_cvtfptou64rtesatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtesatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtenosat: Conversion from double to ulong, rounded to nearest, ties to even; values out of range give what the processor's steps give. */
/* cvtfptou64rtenosat default: exact. */
uint64_t __orvane_l9_cvtfptou64rtenosat1(orvane_double2 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtenosat2(orvane_double2 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtenosat3(orvane_double4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtenosat4(orvane_double4 x);
void __orvane_l9_cvtfptou64rtenosat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtenosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtenosatf: Conversion from float to ulong, rounded to nearest, ties to even; values out of range give what the processor's steps give. */
/* cvtfptou64rtenosatf default: exact. */
uint64_t __orvane_l9_cvtfptou64rtenosatf1(orvane_float4 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtenosatf2(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtenosatf3(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtenosatf4(orvane_float4 x);
void __orvane_l9_cvtfptou64rtenosatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtenosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtnsat: Conversion from double to ulong, rounded down; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptou64rtnsat default: exact. */
uint64_t __orvane_l9_cvtfptou64rtnsat1(orvane_double2 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtnsat2(orvane_double2 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtnsat3(orvane_double4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtnsat4(orvane_double4 x);
void __orvane_l9_cvtfptou64rtnsat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtnsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtnsatf: Conversion from float to ulong, rounded down; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptou64rtnsatf default: exact. */
uint64_t __orvane_l9_cvtfptou64rtnsatf1(orvane_float4 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtnsatf2(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtnsatf3(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtnsatf4(orvane_float4 x);
void __orvane_l9_cvtfptou64rtnsatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtnsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtnnosat: Conversion from double to ulong, rounded down; values out of range give what the processor's steps give. */
/* cvtfptou64rtnnosat default: exact. */
uint64_t __orvane_l9_cvtfptou64rtnnosat1(orvane_double2 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtnnosat2(orvane_double2 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtnnosat3(orvane_double4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtnnosat4(orvane_double4 x);
void __orvane_l9_cvtfptou64rtnnosat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtnnosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtnnosatf: Conversion from float to ulong, rounded down; values out of range give what the processor's steps give. */
/* cvtfptou64rtnnosatf default: exact. */
uint64_t __orvane_l9_cvtfptou64rtnnosatf1(orvane_float4 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtnnosatf2(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtnnosatf3(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtnnosatf4(orvane_float4 x);
void __orvane_l9_cvtfptou64rtnnosatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtnnosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtpsat: Conversion from double to ulong, rounded up; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptou64rtpsat default: exact. */
uint64_t __orvane_l9_cvtfptou64rtpsat1(orvane_double2 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtpsat2(orvane_double2 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtpsat3(orvane_double4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtpsat4(orvane_double4 x);
void __orvane_l9_cvtfptou64rtpsat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtpsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtpsatf: Conversion from float to ulong, rounded up; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptou64rtpsatf default: exact. */
uint64_t __orvane_l9_cvtfptou64rtpsatf1(orvane_float4 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtpsatf2(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtpsatf3(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtpsatf4(orvane_float4 x);
void __orvane_l9_cvtfptou64rtpsatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtpsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtpnosat: Conversion from double to ulong, rounded up; values out of range give what the processor's steps give. */
/* cvtfptou64rtpnosat default: exact. */
uint64_t __orvane_l9_cvtfptou64rtpnosat1(orvane_double2 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtpnosat2(orvane_double2 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtpnosat3(orvane_double4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtpnosat4(orvane_double4 x);
void __orvane_l9_cvtfptou64rtpnosat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtpnosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtpnosatf: Conversion from float to ulong, rounded up; values out of range give what the processor's steps give. */
/* cvtfptou64rtpnosatf default: exact. */
uint64_t __orvane_l9_cvtfptou64rtpnosatf1(orvane_float4 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtpnosatf2(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtpnosatf3(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtpnosatf4(orvane_float4 x);
void __orvane_l9_cvtfptou64rtpnosatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtpnosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtzsat: Conversion from double to ulong, rounded toward zero; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptou64rtzsat default: exact. */
uint64_t __orvane_l9_cvtfptou64rtzsat1(orvane_double2 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtzsat2(orvane_double2 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtzsat3(orvane_double4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtzsat4(orvane_double4 x);
void __orvane_l9_cvtfptou64rtzsat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtzsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtzsatf: Conversion from float to ulong, rounded toward zero; values out of range give the nearest end of it, NaN gives 0. */
/* cvtfptou64rtzsatf default: exact. */
uint64_t __orvane_l9_cvtfptou64rtzsatf1(orvane_float4 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtzsatf2(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtzsatf3(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtzsatf4(orvane_float4 x);
void __orvane_l9_cvtfptou64rtzsatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtzsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtznosat: Conversion from double to ulong, rounded toward zero; values out of range give what the processor's steps give. */
/* cvtfptou64rtznosat default: exact. */
uint64_t __orvane_l9_cvtfptou64rtznosat1(orvane_double2 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtznosat2(orvane_double2 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtznosat3(orvane_double4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtznosat4(orvane_double4 x);
void __orvane_l9_cvtfptou64rtznosat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtznosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtznosatf: Conversion from float to ulong, rounded toward zero; values out of range give what the processor's steps give. */
/* cvtfptou64rtznosatf default: exact. */
uint64_t __orvane_l9_cvtfptou64rtznosatf1(orvane_float4 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtznosatf2(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtznosatf3(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtznosatf4(orvane_float4 x);
void __orvane_l9_cvtfptou64rtznosatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtznosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvti32tofprte: Conversion from int to double, rounded to nearest, ties to even. */
/* cvti32tofprte default: exact. */
orvane_double2 __orvane_l9_cvti32tofprte1(int32_t x);
orvane_double2 __orvane_l9_cvti32tofprte2(orvane_int4 x);
orvane_double4 __orvane_l9_cvti32tofprte3(orvane_int4 x);
orvane_double4 __orvane_l9_cvti32tofprte4(orvane_int4 x);
void __orvane_l9_cvti32tofprte8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvti32tofprte16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvti32tofprtef: Conversion from int to float, rounded to nearest, ties to even. */
/* cvti32tofprtef default: largest known error 0.5 ulp. */
orvane_float4 __orvane_l9_cvti32tofprtef1(int32_t x);
orvane_float4 __orvane_l9_cvti32tofprtef2(orvane_int4 x);
orvane_float4 __orvane_l9_cvti32tofprtef3(orvane_int4 x);
orvane_float4 __orvane_l9_cvti32tofprtef4(orvane_int4 x);
orvane_float8 __orvane_l9_cvti32tofprtef8(orvane_int8 x);
void __orvane_l9_cvti32tofprtef16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvti32tofprtn: Conversion from int to double, rounded down. */
/* cvti32tofprtn default: exact. */
orvane_double2 __orvane_l9_cvti32tofprtn1(int32_t x);
orvane_double2 __orvane_l9_cvti32tofprtn2(orvane_int4 x);
orvane_double4 __orvane_l9_cvti32tofprtn3(orvane_int4 x);
orvane_double4 __orvane_l9_cvti32tofprtn4(orvane_int4 x);
void __orvane_l9_cvti32tofprtn8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvti32tofprtn16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvti32tofprtnf: Conversion from int to float, rounded down. */
/* cvti32tofprtnf default: largest known error 1 ulp. */
orvane_float4 __orvane_l9_cvti32tofprtnf1(int32_t x);
orvane_float4 __orvane_l9_cvti32tofprtnf2(orvane_int4 x);
orvane_float4 __orvane_l9_cvti32tofprtnf3(orvane_int4 x);
orvane_float4 __orvane_l9_cvti32tofprtnf4(orvane_int4 x);
orvane_float8 __orvane_l9_cvti32tofprtnf8(orvane_int8 x);
void __orvane_l9_cvti32tofprtnf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvti32tofprtp: Conversion from int to double, rounded up. */
/* cvti32tofprtp default: exact. */
orvane_double2 __orvane_l9_cvti32tofprtp1(int32_t x);
orvane_double2 __orvane_l9_cvti32tofprtp2(orvane_int4 x);
orvane_double4 __orvane_l9_cvti32tofprtp3(orvane_int4 x);
orvane_double4 __orvane_l9_cvti32tofprtp4(orvane_int4 x);
void __orvane_l9_cvti32tofprtp8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvti32tofprtp16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvti32tofprtpf: Conversion from int to float, rounded up. */
/* cvti32tofprtpf default: largest known error 1 ulp. */
orvane_float4 __orvane_l9_cvti32tofprtpf1(int32_t x);
orvane_float4 __orvane_l9_cvti32tofprtpf2(orvane_int4 x);
orvane_float4 __orvane_l9_cvti32tofprtpf3(orvane_int4 x);
orvane_float4 __orvane_l9_cvti32tofprtpf4(orvane_int4 x);
orvane_float8 __orvane_l9_cvti32tofprtpf8(orvane_int8 x);
void __orvane_l9_cvti32tofprtpf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvti32tofprtz: Conversion from int to double, rounded toward zero. */
/* cvti32tofprtz default: exact. */
orvane_double2 __orvane_l9_cvti32tofprtz1(int32_t x);
orvane_double2 __orvane_l9_cvti32tofprtz2(orvane_int4 x);
orvane_double4 __orvane_l9_cvti32tofprtz3(orvane_int4 x);
orvane_double4 __orvane_l9_cvti32tofprtz4(orvane_int4 x);
void __orvane_l9_cvti32tofprtz8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvti32tofprtz16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvti32tofprtzf: Conversion from int to float, rounded toward zero. */
/* cvti32tofprtzf default: largest known error 1 ulp. */
orvane_float4 __orvane_l9_cvti32tofprtzf1(int32_t x);
orvane_float4 __orvane_l9_cvti32tofprtzf2(orvane_int4 x);
orvane_float4 __orvane_l9_cvti32tofprtzf3(orvane_int4 x);
orvane_float4 __orvane_l9_cvti32tofprtzf4(orvane_int4 x);
orvane_float8 __orvane_l9_cvti32tofprtzf8(orvane_int8 x);
void __orvane_l9_cvti32tofprtzf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvti64tofprte: Conversion from long to double, rounded to nearest, ties to even. */
/* cvti64tofprte default: largest known error 0.5 ulp. */
orvane_double2 __orvane_l9_cvti64tofprte1(int64_t x);
orvane_double2 __orvane_l9_cvti64tofprte2(orvane_long2 x);
orvane_double4 __orvane_l9_cvti64tofprte3(orvane_long4 x);
orvane_double4 __orvane_l9_cvti64tofprte4(orvane_long4 x);
void __orvane_l9_cvti64tofprte8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvti64tofprte16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvti64tofprtef: Conversion from long to float, rounded to nearest, ties to even. */
/* cvti64tofprtef default: largest known error 0.5 ulp. */
orvane_float4 __orvane_l9_cvti64tofprtef1(int64_t x);
orvane_float4 __orvane_l9_cvti64tofprtef2(orvane_long2 x);
orvane_float4 __orvane_l9_cvti64tofprtef3(orvane_long4 x);
orvane_float4 __orvane_l9_cvti64tofprtef4(orvane_long4 x);
orvane_float8 __orvane_l9_cvti64tofprtef8(orvane_long4 x0, orvane_long4 x1);
void __orvane_l9_cvti64tofprtef16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvti64tofprtn: Conversion from long to double, rounded down. */
/* cvti64tofprtn default: largest known error 1 ulp. */
orvane_double2 __orvane_l9_cvti64tofprtn1(int64_t x);
orvane_double2 __orvane_l9_cvti64tofprtn2(orvane_long2 x);
orvane_double4 __orvane_l9_cvti64tofprtn3(orvane_long4 x);
orvane_double4 __orvane_l9_cvti64tofprtn4(orvane_long4 x);
void __orvane_l9_cvti64tofprtn8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvti64tofprtn16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvti64tofprtnf: Conversion from long to float, rounded down. */
/* cvti64tofprtnf default: largest known error 1 ulp. */
orvane_float4 __orvane_l9_cvti64tofprtnf1(int64_t x);
orvane_float4 __orvane_l9_cvti64tofprtnf2(orvane_long2 x);
orvane_float4 __orvane_l9_cvti64tofprtnf3(orvane_long4 x);
orvane_float4 __orvane_l9_cvti64tofprtnf4(orvane_long4 x);
orvane_float8 __orvane_l9_cvti64tofprtnf8(orvane_long4 x0, orvane_long4 x1);
void __orvane_l9_cvti64tofprtnf16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvti64tofprtp: Conversion from long to double, rounded up. */
/* cvti64tofprtp default: largest known error 1 ulp. */
orvane_double2 __orvane_l9_cvti64tofprtp1(int64_t x);
orvane_double2 __orvane_l9_cvti64tofprtp2(orvane_long2 x);
orvane_double4 __orvane_l9_cvti64tofprtp3(orvane_long4 x);
orvane_double4 __orvane_l9_cvti64tofprtp4(orvane_long4 x);
void __orvane_l9_cvti64tofprtp8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvti64tofprtp16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvti64tofprtpf: Conversion from long to float, rounded up. */
/* cvti64tofprtpf default: largest known error 1 ulp. */
orvane_float4 __orvane_l9_cvti64tofprtpf1(int64_t x);
orvane_float4 __orvane_l9_cvti64tofprtpf2(orvane_long2 x);
orvane_float4 __orvane_l9_cvti64tofprtpf3(orvane_long4 x);
orvane_float4 __orvane_l9_cvti64tofprtpf4(orvane_long4 x);
orvane_float8 __orvane_l9_cvti64tofprtpf8(orvane_long4 x0, orvane_long4 x1);
void __orvane_l9_cvti64tofprtpf16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvti64tofprtz: Conversion from long to double, rounded toward zero. */
/* cvti64tofprtz default: largest known error 1 ulp. */
orvane_double2 __orvane_l9_cvti64tofprtz1(int64_t x);
orvane_double2 __orvane_l9_cvti64tofprtz2(orvane_long2 x);
orvane_double4 __orvane_l9_cvti64tofprtz3(orvane_long4 x);
orvane_double4 __orvane_l9_cvti64tofprtz4(orvane_long4 x);
void __orvane_l9_cvti64tofprtz8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvti64tofprtz16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvti64tofprtzf: Conversion from long to float, rounded toward zero. */
/* cvti64tofprtzf default: largest known error 1 ulp. */
orvane_float4 __orvane_l9_cvti64tofprtzf1(int64_t x);
orvane_float4 __orvane_l9_cvti64tofprtzf2(orvane_long2 x);
orvane_float4 __orvane_l9_cvti64tofprtzf3(orvane_long4 x);
orvane_float4 __orvane_l9_cvti64tofprtzf4(orvane_long4 x);
orvane_float8 __orvane_l9_cvti64tofprtzf8(orvane_long4 x0, orvane_long4 x1);
void __orvane_l9_cvti64tofprtzf16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtu32tofprte: Conversion from uint to double, rounded to nearest, ties to even. */
/* cvtu32tofprte default: exact. */
orvane_double2 __orvane_l9_cvtu32tofprte1(uint32_t x);
orvane_double2 __orvane_l9_cvtu32tofprte2(orvane_uint4 x);
orvane_double4 __orvane_l9_cvtu32tofprte3(orvane_uint4 x);
orvane_double4 __orvane_l9_cvtu32tofprte4(orvane_uint4 x);
void __orvane_l9_cvtu32tofprte8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtu32tofprte16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtu32tofprtef: Conversion from uint to float, rounded to nearest, ties to even. */
/* cvtu32tofprtef default: largest known error 0.5 ulp. */
orvane_float4 __orvane_l9_cvtu32tofprtef1(uint32_t x);
orvane_float4 __orvane_l9_cvtu32tofprtef2(orvane_uint4 x);
orvane_float4 __orvane_l9_cvtu32tofprtef3(orvane_uint4 x);
orvane_float4 __orvane_l9_cvtu32tofprtef4(orvane_uint4 x);
orvane_float8 __orvane_l9_cvtu32tofprtef8(orvane_uint8 x);
void __orvane_l9_cvtu32tofprtef16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtu32tofprtn: Conversion from uint to double, rounded down. */
/* cvtu32tofprtn default: exact. */
orvane_double2 __orvane_l9_cvtu32tofprtn1(uint32_t x);
orvane_double2 __orvane_l9_cvtu32tofprtn2(orvane_uint4 x);
orvane_double4 __orvane_l9_cvtu32tofprtn3(orvane_uint4 x);
orvane_double4 __orvane_l9_cvtu32tofprtn4(orvane_uint4 x);
void __orvane_l9_cvtu32tofprtn8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtu32tofprtn16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtu32tofprtnf: Conversion from uint to float, rounded down. */
/* cvtu32tofprtnf default: largest known error 1 ulp. */
orvane_float4 __orvane_l9_cvtu32tofprtnf1(uint32_t x);
orvane_float4 __orvane_l9_cvtu32tofprtnf2(orvane_uint4 x);
orvane_float4 __orvane_l9_cvtu32tofprtnf3(orvane_uint4 x);
orvane_float4 __orvane_l9_cvtu32tofprtnf4(orvane_uint4 x);
orvane_float8 __orvane_l9_cvtu32tofprtnf8(orvane_uint8 x);
void __orvane_l9_cvtu32tofprtnf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtu32tofprtp: Conversion from uint to double, rounded up. */
/* cvtu32tofprtp default: exact. */
orvane_double2 __orvane_l9_cvtu32tofprtp1(uint32_t x);
orvane_double2 __orvane_l9_cvtu32tofprtp2(orvane_uint4 x);
orvane_double4 __orvane_l9_cvtu32tofprtp3(orvane_uint4 x);
orvane_double4 __orvane_l9_cvtu32tofprtp4(orvane_uint4 x);
void __orvane_l9_cvtu32tofprtp8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtu32tofprtp16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtu32tofprtpf: Conversion from uint to float, rounded up. */
/* cvtu32tofprtpf default: largest known error 1 ulp. */
orvane_float4 __orvane_l9_cvtu32tofprtpf1(uint32_t x);
orvane_float4 __orvane_l9_cvtu32tofprtpf2(orvane_uint4 x);
orvane_float4 __orvane_l9_cvtu32tofprtpf3(orvane_uint4 x);
orvane_float4 __orvane_l9_cvtu32tofprtpf4(orvane_uint4 x);
orvane_float8 __orvane_l9_cvtu32tofprtpf8(orvane_uint8 x);
void __orvane_l9_cvtu32tofprtpf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtu32tofprtz: Conversion from uint to double, rounded toward zero. */
/* cvtu32tofprtz default: exact. */
orvane_double2 __orvane_l9_cvtu32tofprtz1(uint32_t x);
orvane_double2 __orvane_l9_cvtu32tofprtz2(orvane_uint4 x);
orvane_double4 __orvane_l9_cvtu32tofprtz3(orvane_uint4 x);
orvane_double4 __orvane_l9_cvtu32tofprtz4(orvane_uint4 x);
void __orvane_l9_cvtu32tofprtz8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtu32tofprtz16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtu32tofprtzf: Conversion from uint to float, rounded toward zero. */
/* cvtu32tofprtzf default: largest known error 1 ulp. */
orvane_float4 __orvane_l9_cvtu32tofprtzf1(uint32_t x);
orvane_float4 __orvane_l9_cvtu32tofprtzf2(orvane_uint4 x);
orvane_float4 __orvane_l9_cvtu32tofprtzf3(orvane_uint4 x);
orvane_float4 __orvane_l9_cvtu32tofprtzf4(orvane_uint4 x);
orvane_float8 __orvane_l9_cvtu32tofprtzf8(orvane_uint8 x);
void __orvane_l9_cvtu32tofprtzf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtu64tofprte: Conversion from ulong to double, rounded to nearest, ties to even. */
/* cvtu64tofprte default: largest known error 0.5 ulp. */
orvane_double2 __orvane_l9_cvtu64tofprte1(uint64_t x);
orvane_double2 __orvane_l9_cvtu64tofprte2(orvane_ulong2 x);
orvane_double4 __orvane_l9_cvtu64tofprte3(orvane_ulong4 x);
orvane_double4 __orvane_l9_cvtu64tofprte4(orvane_ulong4 x);
void __orvane_l9_cvtu64tofprte8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtu64tofprte16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtu64tofprtef: Conversion from ulong to float, rounded to nearest, ties to even. */
/* cvtu64tofprtef default: largest known error 0.5 ulp. */
orvane_float4 __orvane_l9_cvtu64tofprtef1(uint64_t x);
orvane_float4 __orvane_l9_cvtu64tofprtef2(orvane_ulong2 x);
orvane_float4 __orvane_l9_cvtu64tofprtef3(orvane_ulong4 x);
orvane_float4 __orvane_l9_cvtu64tofprtef4(orvane_ulong4 x);
orvane_float8 __orvane_l9_cvtu64tofprtef8(orvane_ulong4 x0, orvane_ulong4 x1);
void __orvane_l9_cvtu64tofprtef16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtu64tofprtn: Conversion from ulong to double, rounded down. */
/* cvtu64tofprtn default: largest known error 1 ulp. */
orvane_double2 __orvane_l9_cvtu64tofprtn1(uint64_t x);
orvane_double2 __orvane_l9_cvtu64tofprtn2(orvane_ulong2 x);
orvane_double4 __orvane_l9_cvtu64tofprtn3(orvane_ulong4 x);
orvane_double4 __orvane_l9_cvtu64tofprtn4(orvane_ulong4 x);
void __orvane_l9_cvtu64tofprtn8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtu64tofprtn16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtu64tofprtnf: Conversion from ulong to float, rounded down. */
/* cvtu64tofprtnf default: largest known error 1 ulp. */
orvane_float4 __orvane_l9_cvtu64tofprtnf1(uint64_t x);
orvane_float4 __orvane_l9_cvtu64tofprtnf2(orvane_ulong2 x);
orvane_float4 __orvane_l9_cvtu64tofprtnf3(orvane_ulong4 x);
orvane_float4 __orvane_l9_cvtu64tofprtnf4(orvane_ulong4 x);
orvane_float8 __orvane_l9_cvtu64tofprtnf8(orvane_ulong4 x0, orvane_ulong4 x1);
void __orvane_l9_cvtu64tofprtnf16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtu64tofprtp: Conversion from ulong to double, rounded up. */
/* cvtu64tofprtp default: largest known error 1 ulp. */
orvane_double2 __orvane_l9_cvtu64tofprtp1(uint64_t x);
orvane_double2 __orvane_l9_cvtu64tofprtp2(orvane_ulong2 x);
orvane_double4 __orvane_l9_cvtu64tofprtp3(orvane_ulong4 x);
orvane_double4 __orvane_l9_cvtu64tofprtp4(orvane_ulong4 x);
void __orvane_l9_cvtu64tofprtp8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtu64tofprtp16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtu64tofprtpf: Conversion from ulong to float, rounded up. */
/* cvtu64tofprtpf default: largest known error 1 ulp. */
orvane_float4 __orvane_l9_cvtu64tofprtpf1(uint64_t x);
orvane_float4 __orvane_l9_cvtu64tofprtpf2(orvane_ulong2 x);
orvane_float4 __orvane_l9_cvtu64tofprtpf3(orvane_ulong4 x);
orvane_float4 __orvane_l9_cvtu64tofprtpf4(orvane_ulong4 x);
orvane_float8 __orvane_l9_cvtu64tofprtpf8(orvane_ulong4 x0, orvane_ulong4 x1);
void __orvane_l9_cvtu64tofprtpf16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtu64tofprtz: Conversion from ulong to double, rounded toward zero. */
/* cvtu64tofprtz default: largest known error 1 ulp. */
orvane_double2 __orvane_l9_cvtu64tofprtz1(uint64_t x);
orvane_double2 __orvane_l9_cvtu64tofprtz2(orvane_ulong2 x);
orvane_double4 __orvane_l9_cvtu64tofprtz3(orvane_ulong4 x);
orvane_double4 __orvane_l9_cvtu64tofprtz4(orvane_ulong4 x);
void __orvane_l9_cvtu64tofprtz8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtu64tofprtz16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtu64tofprtzf: Conversion from ulong to float, rounded toward zero. */
/* cvtu64tofprtzf default: largest known error 1 ulp. */
orvane_float4 __orvane_l9_cvtu64tofprtzf1(uint64_t x);
orvane_float4 __orvane_l9_cvtu64tofprtzf2(orvane_ulong2 x);
orvane_float4 __orvane_l9_cvtu64tofprtzf3(orvane_ulong4 x);
orvane_float4 __orvane_l9_cvtu64tofprtzf4(orvane_ulong4 x);
orvane_float8 __orvane_l9_cvtu64tofprtzf8(orvane_ulong4 x0, orvane_ulong4 x1);
void __orvane_l9_cvtu64tofprtzf16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfp64tofp32rte: Conversion from double to float, rounded to nearest, ties to even. */
/* cvtfp64tofp32rte default: largest known error 0.5 ulp. */
orvane_float4 __orvane_l9_cvtfp64tofp32rte1(orvane_double2 x);
orvane_float4 __orvane_l9_cvtfp64tofp32rte2(orvane_double2 x);
orvane_float4 __orvane_l9_cvtfp64tofp32rte3(orvane_double4 x);
orvane_float4 __orvane_l9_cvtfp64tofp32rte4(orvane_double4 x);
orvane_float8 __orvane_l9_cvtfp64tofp32rte8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfp64tofp32rte16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfp64tofp32rtn: Conversion from double to float, rounded down. */
/* cvtfp64tofp32rtn default: largest known error 1 ulp. */
orvane_float4 __orvane_l9_cvtfp64tofp32rtn1(orvane_double2 x);
orvane_float4 __orvane_l9_cvtfp64tofp32rtn2(orvane_double2 x);
orvane_float4 __orvane_l9_cvtfp64tofp32rtn3(orvane_double4 x);
orvane_float4 __orvane_l9_cvtfp64tofp32rtn4(orvane_double4 x);
orvane_float8 __orvane_l9_cvtfp64tofp32rtn8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfp64tofp32rtn16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfp64tofp32rtp: Conversion from double to float, rounded up. */
/* cvtfp64tofp32rtp default: largest known error 1 ulp. */
orvane_float4 __orvane_l9_cvtfp64tofp32rtp1(orvane_double2 x);
orvane_float4 __orvane_l9_cvtfp64tofp32rtp2(orvane_double2 x);
orvane_float4 __orvane_l9_cvtfp64tofp32rtp3(orvane_double4 x);
orvane_float4 __orvane_l9_cvtfp64tofp32rtp4(orvane_double4 x);
orvane_float8 __orvane_l9_cvtfp64tofp32rtp8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfp64tofp32rtp16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfp64tofp32rtz: Conversion from double to float, rounded toward zero. */
/* cvtfp64tofp32rtz default: largest known error 1 ulp. */
orvane_float4 __orvane_l9_cvtfp64tofp32rtz1(orvane_double2 x);
orvane_float4 __orvane_l9_cvtfp64tofp32rtz2(orvane_double2 x);
orvane_float4 __orvane_l9_cvtfp64tofp32rtz3(orvane_double4 x);
orvane_float4 __orvane_l9_cvtfp64tofp32rtz4(orvane_double4 x);
orvane_float8 __orvane_l9_cvtfp64tofp32rtz8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfp64tofp32rtz16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

#ifdef __cplusplus
}
#endif
#endif
