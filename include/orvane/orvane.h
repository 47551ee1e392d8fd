/* The exports of liborvane_l9.so, as far as they are built. Written by write-exports.
 *
 * Register-form exports take lane vectors in vector registers 0 to 3 and give them back from 0 on; a vector type here is
 * the register: orvane_float4 for up to four lanes of float, lane 0 lowest, lanes beyond the width ignored; a 3-wide
 * vector has a spare fourth lane, and its out-object room for it. What C cannot call (results in several registers) is
 * declared for its address alone, with its registers; orvane/call.hpp calls it from C++ by that address.
 *
 * Every call keeps rbx, rbp, rsp, r12 to r15; a register-form call also vector registers 8 to 15, all 256 bits, and rdi
 * and rsi unless an argument travels there. A compiler that calls through this header need not know. */
#ifndef ORVANE_H
#define ORVANE_H

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
orvane_double2 __orvane_l9_exp1(orvane_double2 x);
orvane_double2 __orvane_l9_exp2(orvane_double2 x);
orvane_double4 __orvane_l9_exp3(orvane_double4 x);
orvane_double4 __orvane_l9_exp4(orvane_double4 x);
void __orvane_l9_exp8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_exp1_rm(orvane_double2 x);
orvane_double2 __orvane_l9_exp2_rm(orvane_double2 x);
orvane_double4 __orvane_l9_exp3_rm(orvane_double4 x);
orvane_double4 __orvane_l9_exp4_rm(orvane_double4 x);
void __orvane_l9_exp8_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_exp1_native(orvane_double2 x);
orvane_double2 __orvane_l9_exp2_native(orvane_double2 x);
orvane_double4 __orvane_l9_exp3_native(orvane_double4 x);
orvane_double4 __orvane_l9_exp4_native(orvane_double4 x);
void __orvane_l9_exp8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_exp1_half(orvane_double2 x);
orvane_double2 __orvane_l9_exp2_half(orvane_double2 x);
orvane_double4 __orvane_l9_exp3_half(orvane_double4 x);
orvane_double4 __orvane_l9_exp4_half(orvane_double4 x);
void __orvane_l9_exp8_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* expf: e to the power x. +Inf on overflow, +0 far below; 1 of zeros. */
orvane_float4 __orvane_l9_expf1(orvane_float4 x);
orvane_float4 __orvane_l9_expf2(orvane_float4 x);
orvane_float4 __orvane_l9_expf3(orvane_float4 x);
orvane_float4 __orvane_l9_expf4(orvane_float4 x);
orvane_float8 __orvane_l9_expf8(orvane_float8 x);
void __orvane_l9_expf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_expf1_rm(orvane_float4 x);
orvane_float4 __orvane_l9_expf2_rm(orvane_float4 x);
orvane_float4 __orvane_l9_expf3_rm(orvane_float4 x);
orvane_float4 __orvane_l9_expf4_rm(orvane_float4 x);
orvane_float8 __orvane_l9_expf8_rm(orvane_float8 x);
void __orvane_l9_expf16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_expf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_expf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_expf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_expf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_expf8_native(orvane_float8 x);
void __orvane_l9_expf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_expf1_half(orvane_float4 x);
orvane_float4 __orvane_l9_expf2_half(orvane_float4 x);
orvane_float4 __orvane_l9_expf3_half(orvane_float4 x);
orvane_float4 __orvane_l9_expf4_half(orvane_float4 x);
orvane_float8 __orvane_l9_expf8_half(orvane_float8 x);
void __orvane_l9_expf16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* exp2: 2 to the power x. +Inf on overflow, +0 far below; 1 of zeros. */
orvane_double2 __orvane_l9_exp21(orvane_double2 x);
orvane_double2 __orvane_l9_exp22(orvane_double2 x);
orvane_double4 __orvane_l9_exp23(orvane_double4 x);
orvane_double4 __orvane_l9_exp24(orvane_double4 x);
void __orvane_l9_exp28(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp216(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_exp21_rm(orvane_double2 x);
orvane_double2 __orvane_l9_exp22_rm(orvane_double2 x);
orvane_double4 __orvane_l9_exp23_rm(orvane_double4 x);
orvane_double4 __orvane_l9_exp24_rm(orvane_double4 x);
void __orvane_l9_exp28_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp216_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_exp21_native(orvane_double2 x);
orvane_double2 __orvane_l9_exp22_native(orvane_double2 x);
orvane_double4 __orvane_l9_exp23_native(orvane_double4 x);
orvane_double4 __orvane_l9_exp24_native(orvane_double4 x);
void __orvane_l9_exp28_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp216_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_exp21_half(orvane_double2 x);
orvane_double2 __orvane_l9_exp22_half(orvane_double2 x);
orvane_double4 __orvane_l9_exp23_half(orvane_double4 x);
orvane_double4 __orvane_l9_exp24_half(orvane_double4 x);
void __orvane_l9_exp28_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp216_half(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* exp2f: 2 to the power x. +Inf on overflow, +0 far below; 1 of zeros. */
orvane_float4 __orvane_l9_exp2f1(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f2(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f3(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f4(orvane_float4 x);
orvane_float8 __orvane_l9_exp2f8(orvane_float8 x);
void __orvane_l9_exp2f16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_exp2f1_rm(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f2_rm(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f3_rm(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f4_rm(orvane_float4 x);
orvane_float8 __orvane_l9_exp2f8_rm(orvane_float8 x);
void __orvane_l9_exp2f16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_exp2f1_native(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f2_native(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f3_native(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f4_native(orvane_float4 x);
orvane_float8 __orvane_l9_exp2f8_native(orvane_float8 x);
void __orvane_l9_exp2f16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_exp2f1_half(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f2_half(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f3_half(orvane_float4 x);
orvane_float4 __orvane_l9_exp2f4_half(orvane_float4 x);
orvane_float8 __orvane_l9_exp2f8_half(orvane_float8 x);
void __orvane_l9_exp2f16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* exp10: 10 to the power x. +Inf on overflow, +0 far below; 1 of zeros. */
orvane_double2 __orvane_l9_exp101(orvane_double2 x);
orvane_double2 __orvane_l9_exp102(orvane_double2 x);
orvane_double4 __orvane_l9_exp103(orvane_double4 x);
orvane_double4 __orvane_l9_exp104(orvane_double4 x);
void __orvane_l9_exp108(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp1016(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_exp101_rm(orvane_double2 x);
orvane_double2 __orvane_l9_exp102_rm(orvane_double2 x);
orvane_double4 __orvane_l9_exp103_rm(orvane_double4 x);
orvane_double4 __orvane_l9_exp104_rm(orvane_double4 x);
void __orvane_l9_exp108_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp1016_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_exp101_native(orvane_double2 x);
orvane_double2 __orvane_l9_exp102_native(orvane_double2 x);
orvane_double4 __orvane_l9_exp103_native(orvane_double4 x);
orvane_double4 __orvane_l9_exp104_native(orvane_double4 x);
void __orvane_l9_exp108_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp1016_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_exp101_half(orvane_double2 x);
orvane_double2 __orvane_l9_exp102_half(orvane_double2 x);
orvane_double4 __orvane_l9_exp103_half(orvane_double4 x);
orvane_double4 __orvane_l9_exp104_half(orvane_double4 x);
void __orvane_l9_exp108_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_exp1016_half(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* exp10f: 10 to the power x. +Inf on overflow, +0 far below; 1 of zeros. */
orvane_float4 __orvane_l9_exp10f1(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f2(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f3(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f4(orvane_float4 x);
orvane_float8 __orvane_l9_exp10f8(orvane_float8 x);
void __orvane_l9_exp10f16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_exp10f1_rm(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f2_rm(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f3_rm(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f4_rm(orvane_float4 x);
orvane_float8 __orvane_l9_exp10f8_rm(orvane_float8 x);
void __orvane_l9_exp10f16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_exp10f1_native(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f2_native(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f3_native(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f4_native(orvane_float4 x);
orvane_float8 __orvane_l9_exp10f8_native(orvane_float8 x);
void __orvane_l9_exp10f16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_exp10f1_half(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f2_half(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f3_half(orvane_float4 x);
orvane_float4 __orvane_l9_exp10f4_half(orvane_float4 x);
orvane_float8 __orvane_l9_exp10f8_half(orvane_float8 x);
void __orvane_l9_exp10f16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* expm1: e to the power x, minus 1, without cancellation near 0. -1 of -Inf; zeros come back as they are. */
orvane_double2 __orvane_l9_expm11(orvane_double2 x);
orvane_double2 __orvane_l9_expm12(orvane_double2 x);
orvane_double4 __orvane_l9_expm13(orvane_double4 x);
orvane_double4 __orvane_l9_expm14(orvane_double4 x);
void __orvane_l9_expm18(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_expm116(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_expm11_native(orvane_double2 x);
orvane_double2 __orvane_l9_expm12_native(orvane_double2 x);
orvane_double4 __orvane_l9_expm13_native(orvane_double4 x);
orvane_double4 __orvane_l9_expm14_native(orvane_double4 x);
void __orvane_l9_expm18_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_expm116_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* expm1f: e to the power x, minus 1, without cancellation near 0. -1 of -Inf; zeros come back as they are. */
orvane_float4 __orvane_l9_expm1f1(orvane_float4 x);
orvane_float4 __orvane_l9_expm1f2(orvane_float4 x);
orvane_float4 __orvane_l9_expm1f3(orvane_float4 x);
orvane_float4 __orvane_l9_expm1f4(orvane_float4 x);
orvane_float8 __orvane_l9_expm1f8(orvane_float8 x);
void __orvane_l9_expm1f16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_expm1f1_native(orvane_float4 x);
orvane_float4 __orvane_l9_expm1f2_native(orvane_float4 x);
orvane_float4 __orvane_l9_expm1f3_native(orvane_float4 x);
orvane_float4 __orvane_l9_expm1f4_native(orvane_float4 x);
orvane_float8 __orvane_l9_expm1f8_native(orvane_float8 x);
void __orvane_l9_expm1f16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* log: Natural logarithm. -Inf of zeros, NaN of negative numbers, +Inf of +Inf. */
orvane_double2 __orvane_l9_log1(orvane_double2 x);
orvane_double2 __orvane_l9_log2(orvane_double2 x);
orvane_double4 __orvane_l9_log3(orvane_double4 x);
orvane_double4 __orvane_l9_log4(orvane_double4 x);
void __orvane_l9_log8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_log1_rm(orvane_double2 x);
orvane_double2 __orvane_l9_log2_rm(orvane_double2 x);
orvane_double4 __orvane_l9_log3_rm(orvane_double4 x);
orvane_double4 __orvane_l9_log4_rm(orvane_double4 x);
void __orvane_l9_log8_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_log1_native(orvane_double2 x);
orvane_double2 __orvane_l9_log2_native(orvane_double2 x);
orvane_double4 __orvane_l9_log3_native(orvane_double4 x);
orvane_double4 __orvane_l9_log4_native(orvane_double4 x);
void __orvane_l9_log8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_log1_half(orvane_double2 x);
orvane_double2 __orvane_l9_log2_half(orvane_double2 x);
orvane_double4 __orvane_l9_log3_half(orvane_double4 x);
orvane_double4 __orvane_l9_log4_half(orvane_double4 x);
void __orvane_l9_log8_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* logf: Natural logarithm. -Inf of zeros, NaN of negative numbers, +Inf of +Inf. */
orvane_float4 __orvane_l9_logf1(orvane_float4 x);
orvane_float4 __orvane_l9_logf2(orvane_float4 x);
orvane_float4 __orvane_l9_logf3(orvane_float4 x);
orvane_float4 __orvane_l9_logf4(orvane_float4 x);
orvane_float8 __orvane_l9_logf8(orvane_float8 x);
void __orvane_l9_logf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_logf1_rm(orvane_float4 x);
orvane_float4 __orvane_l9_logf2_rm(orvane_float4 x);
orvane_float4 __orvane_l9_logf3_rm(orvane_float4 x);
orvane_float4 __orvane_l9_logf4_rm(orvane_float4 x);
orvane_float8 __orvane_l9_logf8_rm(orvane_float8 x);
void __orvane_l9_logf16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_logf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_logf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_logf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_logf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_logf8_native(orvane_float8 x);
void __orvane_l9_logf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_logf1_half(orvane_float4 x);
orvane_float4 __orvane_l9_logf2_half(orvane_float4 x);
orvane_float4 __orvane_l9_logf3_half(orvane_float4 x);
orvane_float4 __orvane_l9_logf4_half(orvane_float4 x);
orvane_float8 __orvane_l9_logf8_half(orvane_float8 x);
void __orvane_l9_logf16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* log2: Logarithm to base 2. -Inf of zeros, NaN of negative numbers, +Inf of +Inf. */
orvane_double2 __orvane_l9_log21(orvane_double2 x);
orvane_double2 __orvane_l9_log22(orvane_double2 x);
orvane_double4 __orvane_l9_log23(orvane_double4 x);
orvane_double4 __orvane_l9_log24(orvane_double4 x);
void __orvane_l9_log28(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log216(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_log21_rm(orvane_double2 x);
orvane_double2 __orvane_l9_log22_rm(orvane_double2 x);
orvane_double4 __orvane_l9_log23_rm(orvane_double4 x);
orvane_double4 __orvane_l9_log24_rm(orvane_double4 x);
void __orvane_l9_log28_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log216_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_log21_native(orvane_double2 x);
orvane_double2 __orvane_l9_log22_native(orvane_double2 x);
orvane_double4 __orvane_l9_log23_native(orvane_double4 x);
orvane_double4 __orvane_l9_log24_native(orvane_double4 x);
void __orvane_l9_log28_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log216_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_log21_half(orvane_double2 x);
orvane_double2 __orvane_l9_log22_half(orvane_double2 x);
orvane_double4 __orvane_l9_log23_half(orvane_double4 x);
orvane_double4 __orvane_l9_log24_half(orvane_double4 x);
void __orvane_l9_log28_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log216_half(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* log2f: Logarithm to base 2. -Inf of zeros, NaN of negative numbers, +Inf of +Inf. */
orvane_float4 __orvane_l9_log2f1(orvane_float4 x);
orvane_float4 __orvane_l9_log2f2(orvane_float4 x);
orvane_float4 __orvane_l9_log2f3(orvane_float4 x);
orvane_float4 __orvane_l9_log2f4(orvane_float4 x);
orvane_float8 __orvane_l9_log2f8(orvane_float8 x);
void __orvane_l9_log2f16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_log2f1_rm(orvane_float4 x);
orvane_float4 __orvane_l9_log2f2_rm(orvane_float4 x);
orvane_float4 __orvane_l9_log2f3_rm(orvane_float4 x);
orvane_float4 __orvane_l9_log2f4_rm(orvane_float4 x);
orvane_float8 __orvane_l9_log2f8_rm(orvane_float8 x);
void __orvane_l9_log2f16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_log2f1_native(orvane_float4 x);
orvane_float4 __orvane_l9_log2f2_native(orvane_float4 x);
orvane_float4 __orvane_l9_log2f3_native(orvane_float4 x);
orvane_float4 __orvane_l9_log2f4_native(orvane_float4 x);
orvane_float8 __orvane_l9_log2f8_native(orvane_float8 x);
void __orvane_l9_log2f16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_log2f1_half(orvane_float4 x);
orvane_float4 __orvane_l9_log2f2_half(orvane_float4 x);
orvane_float4 __orvane_l9_log2f3_half(orvane_float4 x);
orvane_float4 __orvane_l9_log2f4_half(orvane_float4 x);
orvane_float8 __orvane_l9_log2f8_half(orvane_float8 x);
void __orvane_l9_log2f16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* log10: Logarithm to base 10. -Inf of zeros, NaN of negative numbers, +Inf of +Inf. */
orvane_double2 __orvane_l9_log101(orvane_double2 x);
orvane_double2 __orvane_l9_log102(orvane_double2 x);
orvane_double4 __orvane_l9_log103(orvane_double4 x);
orvane_double4 __orvane_l9_log104(orvane_double4 x);
void __orvane_l9_log108(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log1016(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_log101_native(orvane_double2 x);
orvane_double2 __orvane_l9_log102_native(orvane_double2 x);
orvane_double4 __orvane_l9_log103_native(orvane_double4 x);
orvane_double4 __orvane_l9_log104_native(orvane_double4 x);
void __orvane_l9_log108_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log1016_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_log101_half(orvane_double2 x);
orvane_double2 __orvane_l9_log102_half(orvane_double2 x);
orvane_double4 __orvane_l9_log103_half(orvane_double4 x);
orvane_double4 __orvane_l9_log104_half(orvane_double4 x);
void __orvane_l9_log108_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log1016_half(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* log10f: Logarithm to base 10. -Inf of zeros, NaN of negative numbers, +Inf of +Inf. */
orvane_float4 __orvane_l9_log10f1(orvane_float4 x);
orvane_float4 __orvane_l9_log10f2(orvane_float4 x);
orvane_float4 __orvane_l9_log10f3(orvane_float4 x);
orvane_float4 __orvane_l9_log10f4(orvane_float4 x);
orvane_float8 __orvane_l9_log10f8(orvane_float8 x);
void __orvane_l9_log10f16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_log10f1_native(orvane_float4 x);
orvane_float4 __orvane_l9_log10f2_native(orvane_float4 x);
orvane_float4 __orvane_l9_log10f3_native(orvane_float4 x);
orvane_float4 __orvane_l9_log10f4_native(orvane_float4 x);
orvane_float8 __orvane_l9_log10f8_native(orvane_float8 x);
void __orvane_l9_log10f16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_log10f1_half(orvane_float4 x);
orvane_float4 __orvane_l9_log10f2_half(orvane_float4 x);
orvane_float4 __orvane_l9_log10f3_half(orvane_float4 x);
orvane_float4 __orvane_l9_log10f4_half(orvane_float4 x);
orvane_float8 __orvane_l9_log10f8_half(orvane_float8 x);
void __orvane_l9_log10f16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* log1p: Natural logarithm of 1 + x, accurate near 0. -Inf of -1, NaN below. */
orvane_double2 __orvane_l9_log1p1(orvane_double2 x);
orvane_double2 __orvane_l9_log1p2(orvane_double2 x);
orvane_double4 __orvane_l9_log1p3(orvane_double4 x);
orvane_double4 __orvane_l9_log1p4(orvane_double4 x);
void __orvane_l9_log1p8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log1p16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_log1p1_native(orvane_double2 x);
orvane_double2 __orvane_l9_log1p2_native(orvane_double2 x);
orvane_double4 __orvane_l9_log1p3_native(orvane_double4 x);
orvane_double4 __orvane_l9_log1p4_native(orvane_double4 x);
void __orvane_l9_log1p8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_log1p16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* log1pf: Natural logarithm of 1 + x, accurate near 0. -Inf of -1, NaN below. */
orvane_float4 __orvane_l9_log1pf1(orvane_float4 x);
orvane_float4 __orvane_l9_log1pf2(orvane_float4 x);
orvane_float4 __orvane_l9_log1pf3(orvane_float4 x);
orvane_float4 __orvane_l9_log1pf4(orvane_float4 x);
orvane_float8 __orvane_l9_log1pf8(orvane_float8 x);
void __orvane_l9_log1pf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_log1pf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_log1pf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_log1pf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_log1pf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_log1pf8_native(orvane_float8 x);
void __orvane_l9_log1pf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* sin: Sine of x radians, for every finite x. NaN of infinities. */
orvane_double2 __orvane_l9_sin1(orvane_double2 x);
orvane_double2 __orvane_l9_sin2(orvane_double2 x);
orvane_double4 __orvane_l9_sin3(orvane_double4 x);
orvane_double4 __orvane_l9_sin4(orvane_double4 x);
void __orvane_l9_sin8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_sin16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_sin1_rm(orvane_double2 x);
orvane_double2 __orvane_l9_sin2_rm(orvane_double2 x);
orvane_double4 __orvane_l9_sin3_rm(orvane_double4 x);
orvane_double4 __orvane_l9_sin4_rm(orvane_double4 x);
void __orvane_l9_sin8_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_sin16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_sin1_native(orvane_double2 x);
orvane_double2 __orvane_l9_sin2_native(orvane_double2 x);
orvane_double4 __orvane_l9_sin3_native(orvane_double4 x);
orvane_double4 __orvane_l9_sin4_native(orvane_double4 x);
void __orvane_l9_sin8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_sin16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_sin1_half(orvane_double2 x);
orvane_double2 __orvane_l9_sin2_half(orvane_double2 x);
orvane_double4 __orvane_l9_sin3_half(orvane_double4 x);
orvane_double4 __orvane_l9_sin4_half(orvane_double4 x);
void __orvane_l9_sin8_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_sin16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* sinf: Sine of x radians, for every finite x. NaN of infinities. */
orvane_float4 __orvane_l9_sinf1(orvane_float4 x);
orvane_float4 __orvane_l9_sinf2(orvane_float4 x);
orvane_float4 __orvane_l9_sinf3(orvane_float4 x);
orvane_float4 __orvane_l9_sinf4(orvane_float4 x);
orvane_float8 __orvane_l9_sinf8(orvane_float8 x);
void __orvane_l9_sinf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_sinf1_rm(orvane_float4 x);
orvane_float4 __orvane_l9_sinf2_rm(orvane_float4 x);
orvane_float4 __orvane_l9_sinf3_rm(orvane_float4 x);
orvane_float4 __orvane_l9_sinf4_rm(orvane_float4 x);
orvane_float8 __orvane_l9_sinf8_rm(orvane_float8 x);
void __orvane_l9_sinf16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_sinf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_sinf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_sinf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_sinf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_sinf8_native(orvane_float8 x);
void __orvane_l9_sinf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_sinf1_half(orvane_float4 x);
orvane_float4 __orvane_l9_sinf2_half(orvane_float4 x);
orvane_float4 __orvane_l9_sinf3_half(orvane_float4 x);
orvane_float4 __orvane_l9_sinf4_half(orvane_float4 x);
orvane_float8 __orvane_l9_sinf8_half(orvane_float8 x);
void __orvane_l9_sinf16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cos: Cosine of x radians, for every finite x. NaN of infinities. */
orvane_double2 __orvane_l9_cos1(orvane_double2 x);
orvane_double2 __orvane_l9_cos2(orvane_double2 x);
orvane_double4 __orvane_l9_cos3(orvane_double4 x);
orvane_double4 __orvane_l9_cos4(orvane_double4 x);
void __orvane_l9_cos8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cos16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_cos1_rm(orvane_double2 x);
orvane_double2 __orvane_l9_cos2_rm(orvane_double2 x);
orvane_double4 __orvane_l9_cos3_rm(orvane_double4 x);
orvane_double4 __orvane_l9_cos4_rm(orvane_double4 x);
void __orvane_l9_cos8_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cos16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_cos1_native(orvane_double2 x);
orvane_double2 __orvane_l9_cos2_native(orvane_double2 x);
orvane_double4 __orvane_l9_cos3_native(orvane_double4 x);
orvane_double4 __orvane_l9_cos4_native(orvane_double4 x);
void __orvane_l9_cos8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cos16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_cos1_half(orvane_double2 x);
orvane_double2 __orvane_l9_cos2_half(orvane_double2 x);
orvane_double4 __orvane_l9_cos3_half(orvane_double4 x);
orvane_double4 __orvane_l9_cos4_half(orvane_double4 x);
void __orvane_l9_cos8_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cos16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cosf: Cosine of x radians, for every finite x. NaN of infinities. */
orvane_float4 __orvane_l9_cosf1(orvane_float4 x);
orvane_float4 __orvane_l9_cosf2(orvane_float4 x);
orvane_float4 __orvane_l9_cosf3(orvane_float4 x);
orvane_float4 __orvane_l9_cosf4(orvane_float4 x);
orvane_float8 __orvane_l9_cosf8(orvane_float8 x);
void __orvane_l9_cosf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_cosf1_rm(orvane_float4 x);
orvane_float4 __orvane_l9_cosf2_rm(orvane_float4 x);
orvane_float4 __orvane_l9_cosf3_rm(orvane_float4 x);
orvane_float4 __orvane_l9_cosf4_rm(orvane_float4 x);
orvane_float8 __orvane_l9_cosf8_rm(orvane_float8 x);
void __orvane_l9_cosf16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_cosf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_cosf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_cosf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_cosf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_cosf8_native(orvane_float8 x);
void __orvane_l9_cosf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_cosf1_half(orvane_float4 x);
orvane_float4 __orvane_l9_cosf2_half(orvane_float4 x);
orvane_float4 __orvane_l9_cosf3_half(orvane_float4 x);
orvane_float4 __orvane_l9_cosf4_half(orvane_float4 x);
orvane_float8 __orvane_l9_cosf8_half(orvane_float8 x);
void __orvane_l9_cosf16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* tan: Tangent of x radians, for every finite x. NaN of infinities. */
orvane_double2 __orvane_l9_tan1(orvane_double2 x);
orvane_double2 __orvane_l9_tan2(orvane_double2 x);
orvane_double4 __orvane_l9_tan3(orvane_double4 x);
orvane_double4 __orvane_l9_tan4(orvane_double4 x);
void __orvane_l9_tan8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_tan16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_tan1_rm(orvane_double2 x);
orvane_double2 __orvane_l9_tan2_rm(orvane_double2 x);
orvane_double4 __orvane_l9_tan3_rm(orvane_double4 x);
orvane_double4 __orvane_l9_tan4_rm(orvane_double4 x);
void __orvane_l9_tan8_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_tan16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_tan1_native(orvane_double2 x);
orvane_double2 __orvane_l9_tan2_native(orvane_double2 x);
orvane_double4 __orvane_l9_tan3_native(orvane_double4 x);
orvane_double4 __orvane_l9_tan4_native(orvane_double4 x);
void __orvane_l9_tan8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_tan16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_tan1_half(orvane_double2 x);
orvane_double2 __orvane_l9_tan2_half(orvane_double2 x);
orvane_double4 __orvane_l9_tan3_half(orvane_double4 x);
orvane_double4 __orvane_l9_tan4_half(orvane_double4 x);
void __orvane_l9_tan8_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_tan16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* tanf: Tangent of x radians, for every finite x. NaN of infinities. */
orvane_float4 __orvane_l9_tanf1(orvane_float4 x);
orvane_float4 __orvane_l9_tanf2(orvane_float4 x);
orvane_float4 __orvane_l9_tanf3(orvane_float4 x);
orvane_float4 __orvane_l9_tanf4(orvane_float4 x);
orvane_float8 __orvane_l9_tanf8(orvane_float8 x);
void __orvane_l9_tanf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_tanf1_rm(orvane_float4 x);
orvane_float4 __orvane_l9_tanf2_rm(orvane_float4 x);
orvane_float4 __orvane_l9_tanf3_rm(orvane_float4 x);
orvane_float4 __orvane_l9_tanf4_rm(orvane_float4 x);
orvane_float8 __orvane_l9_tanf8_rm(orvane_float8 x);
void __orvane_l9_tanf16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_tanf1_native(orvane_float4 x);
orvane_float4 __orvane_l9_tanf2_native(orvane_float4 x);
orvane_float4 __orvane_l9_tanf3_native(orvane_float4 x);
orvane_float4 __orvane_l9_tanf4_native(orvane_float4 x);
orvane_float8 __orvane_l9_tanf8_native(orvane_float8 x);
void __orvane_l9_tanf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_tanf1_half(orvane_float4 x);
orvane_float4 __orvane_l9_tanf2_half(orvane_float4 x);
orvane_float4 __orvane_l9_tanf3_half(orvane_float4 x);
orvane_float4 __orvane_l9_tanf4_half(orvane_float4 x);
orvane_float8 __orvane_l9_tanf8_half(orvane_float8 x);
void __orvane_l9_tanf16_half(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* sincos: Sine of x radians; the cosine goes to the out-lane. */
orvane_double2 __orvane_l9_sincos1(double* out, orvane_double2 x);
orvane_double2 __orvane_l9_sincos2(double* out, orvane_double2 x);
orvane_double4 __orvane_l9_sincos3(double* out, orvane_double4 x);
orvane_double4 __orvane_l9_sincos4(double* out, orvane_double4 x);
void __orvane_l9_sincos8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */
void __orvane_l9_sincos16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3, at rdi */
orvane_double2 __orvane_l9_sincos1_rm(double* out, orvane_double2 x);
orvane_double2 __orvane_l9_sincos2_rm(double* out, orvane_double2 x);
orvane_double4 __orvane_l9_sincos3_rm(double* out, orvane_double4 x);
orvane_double4 __orvane_l9_sincos4_rm(double* out, orvane_double4 x);
void __orvane_l9_sincos8_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */
void __orvane_l9_sincos16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3, at rdi */
orvane_double2 __orvane_l9_sincos1_native(double* out, orvane_double2 x);
orvane_double2 __orvane_l9_sincos2_native(double* out, orvane_double2 x);
orvane_double4 __orvane_l9_sincos3_native(double* out, orvane_double4 x);
orvane_double4 __orvane_l9_sincos4_native(double* out, orvane_double4 x);
void __orvane_l9_sincos8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */
void __orvane_l9_sincos16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3, at rdi */

/* sincosf: Sine of x radians; the cosine goes to the out-lane. */
orvane_float4 __orvane_l9_sincosf1(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_sincosf2(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_sincosf3(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_sincosf4(float* out, orvane_float4 x);
orvane_float8 __orvane_l9_sincosf8(float* out, orvane_float8 x);
void __orvane_l9_sincosf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */
orvane_float4 __orvane_l9_sincosf1_rm(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_sincosf2_rm(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_sincosf3_rm(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_sincosf4_rm(float* out, orvane_float4 x);
orvane_float8 __orvane_l9_sincosf8_rm(float* out, orvane_float8 x);
void __orvane_l9_sincosf16_rm(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */
orvane_float4 __orvane_l9_sincosf1_native(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_sincosf2_native(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_sincosf3_native(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_sincosf4_native(float* out, orvane_float4 x);
orvane_float8 __orvane_l9_sincosf8_native(float* out, orvane_float8 x);
void __orvane_l9_sincosf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */

/* sincosreg: Sine and cosine of x radians as two results. */
void __orvane_l9_sincosreg1(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosreg2(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosreg3(void) ORVANE_NOT_C; /* in ymm0; out ymm0, ymm1 */
void __orvane_l9_sincosreg4(void) ORVANE_NOT_C; /* in ymm0; out ymm0, ymm1 */
void __orvane_l9_sincosreg8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, ymm2 ymm3 */
struct orvane_args_sincosreg16 { double x[16]; };
void* __orvane_l9_sincosreg16(void* result, struct orvane_args_sincosreg16 arguments);
void __orvane_l9_sincosreg1_native(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosreg2_native(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosreg3_native(void) ORVANE_NOT_C; /* in ymm0; out ymm0, ymm1 */
void __orvane_l9_sincosreg4_native(void) ORVANE_NOT_C; /* in ymm0; out ymm0, ymm1 */
void __orvane_l9_sincosreg8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, ymm2 ymm3 */
struct orvane_args_sincosreg16_native { double x[16]; };
void* __orvane_l9_sincosreg16_native(void* result, struct orvane_args_sincosreg16_native arguments);

/* sincosregf: Sine and cosine of x radians as two results. */
void __orvane_l9_sincosregf1(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosregf2(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosregf3(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosregf4(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosregf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0, ymm1 */
void __orvane_l9_sincosregf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, ymm2 ymm3 */
void __orvane_l9_sincosregf1_native(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosregf2_native(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosregf3_native(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosregf4_native(void) ORVANE_NOT_C; /* in xmm0; out xmm0, xmm1 */
void __orvane_l9_sincosregf8_native(void) ORVANE_NOT_C; /* in ymm0; out ymm0, ymm1 */
void __orvane_l9_sincosregf16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, ymm2 ymm3 */

/* sinpi: Sine of x half turns: sin(pi x). NaN of infinities. */
orvane_double2 __orvane_l9_sinpi1(orvane_double2 x);
orvane_double2 __orvane_l9_sinpi2(orvane_double2 x);
orvane_double4 __orvane_l9_sinpi3(orvane_double4 x);
orvane_double4 __orvane_l9_sinpi4(orvane_double4 x);
void __orvane_l9_sinpi8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_sinpi16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_sinpi1_native(orvane_double2 x);
orvane_double2 __orvane_l9_sinpi2_native(orvane_double2 x);
orvane_double4 __orvane_l9_sinpi3_native(orvane_double4 x);
orvane_double4 __orvane_l9_sinpi4_native(orvane_double4 x);
void __orvane_l9_sinpi8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_sinpi16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* sinpif: Sine of x half turns: sin(pi x). NaN of infinities. */
orvane_float4 __orvane_l9_sinpif1(orvane_float4 x);
orvane_float4 __orvane_l9_sinpif2(orvane_float4 x);
orvane_float4 __orvane_l9_sinpif3(orvane_float4 x);
orvane_float4 __orvane_l9_sinpif4(orvane_float4 x);
orvane_float8 __orvane_l9_sinpif8(orvane_float8 x);
void __orvane_l9_sinpif16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_sinpif1_native(orvane_float4 x);
orvane_float4 __orvane_l9_sinpif2_native(orvane_float4 x);
orvane_float4 __orvane_l9_sinpif3_native(orvane_float4 x);
orvane_float4 __orvane_l9_sinpif4_native(orvane_float4 x);
orvane_float8 __orvane_l9_sinpif8_native(orvane_float8 x);
void __orvane_l9_sinpif16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cospi: Cosine of x half turns: cos(pi x). NaN of infinities. */
orvane_double2 __orvane_l9_cospi1(orvane_double2 x);
orvane_double2 __orvane_l9_cospi2(orvane_double2 x);
orvane_double4 __orvane_l9_cospi3(orvane_double4 x);
orvane_double4 __orvane_l9_cospi4(orvane_double4 x);
void __orvane_l9_cospi8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cospi16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_cospi1_native(orvane_double2 x);
orvane_double2 __orvane_l9_cospi2_native(orvane_double2 x);
orvane_double4 __orvane_l9_cospi3_native(orvane_double4 x);
orvane_double4 __orvane_l9_cospi4_native(orvane_double4 x);
void __orvane_l9_cospi8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cospi16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cospif: Cosine of x half turns: cos(pi x). NaN of infinities. */
orvane_float4 __orvane_l9_cospif1(orvane_float4 x);
orvane_float4 __orvane_l9_cospif2(orvane_float4 x);
orvane_float4 __orvane_l9_cospif3(orvane_float4 x);
orvane_float4 __orvane_l9_cospif4(orvane_float4 x);
orvane_float8 __orvane_l9_cospif8(orvane_float8 x);
void __orvane_l9_cospif16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_cospif1_native(orvane_float4 x);
orvane_float4 __orvane_l9_cospif2_native(orvane_float4 x);
orvane_float4 __orvane_l9_cospif3_native(orvane_float4 x);
orvane_float4 __orvane_l9_cospif4_native(orvane_float4 x);
orvane_float8 __orvane_l9_cospif8_native(orvane_float8 x);
void __orvane_l9_cospif16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* tanpi: Tangent of x half turns: tan(pi x). */
orvane_double2 __orvane_l9_tanpi1(orvane_double2 x);
orvane_double2 __orvane_l9_tanpi2(orvane_double2 x);
orvane_double4 __orvane_l9_tanpi3(orvane_double4 x);
orvane_double4 __orvane_l9_tanpi4(orvane_double4 x);
void __orvane_l9_tanpi8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_tanpi16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */
orvane_double2 __orvane_l9_tanpi1_native(orvane_double2 x);
orvane_double2 __orvane_l9_tanpi2_native(orvane_double2 x);
orvane_double4 __orvane_l9_tanpi3_native(orvane_double4 x);
orvane_double4 __orvane_l9_tanpi4_native(orvane_double4 x);
void __orvane_l9_tanpi8_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_tanpi16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* tanpif: Tangent of x half turns: tan(pi x). */
orvane_float4 __orvane_l9_tanpif1(orvane_float4 x);
orvane_float4 __orvane_l9_tanpif2(orvane_float4 x);
orvane_float4 __orvane_l9_tanpif3(orvane_float4 x);
orvane_float4 __orvane_l9_tanpif4(orvane_float4 x);
orvane_float8 __orvane_l9_tanpif8(orvane_float8 x);
void __orvane_l9_tanpif16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
orvane_float4 __orvane_l9_tanpif1_native(orvane_float4 x);
orvane_float4 __orvane_l9_tanpif2_native(orvane_float4 x);
orvane_float4 __orvane_l9_tanpif3_native(orvane_float4 x);
orvane_float4 __orvane_l9_tanpif4_native(orvane_float4 x);
orvane_float8 __orvane_l9_tanpif8_native(orvane_float8 x);
void __orvane_l9_tanpif16_native(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* ceil: Smallest integer not below x. A zero result keeps the sign of x. */
orvane_double2 __orvane_l9_ceil1(orvane_double2 x);
orvane_double2 __orvane_l9_ceil2(orvane_double2 x);
orvane_double4 __orvane_l9_ceil3(orvane_double4 x);
orvane_double4 __orvane_l9_ceil4(orvane_double4 x);
void __orvane_l9_ceil8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_ceil16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* ceilf: Smallest integer not below x. A zero result keeps the sign of x. */
orvane_float4 __orvane_l9_ceilf1(orvane_float4 x);
orvane_float4 __orvane_l9_ceilf2(orvane_float4 x);
orvane_float4 __orvane_l9_ceilf3(orvane_float4 x);
orvane_float4 __orvane_l9_ceilf4(orvane_float4 x);
orvane_float8 __orvane_l9_ceilf8(orvane_float8 x);
void __orvane_l9_ceilf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* floor: Largest integer not above x. A zero result keeps the sign of x. */
orvane_double2 __orvane_l9_floor1(orvane_double2 x);
orvane_double2 __orvane_l9_floor2(orvane_double2 x);
orvane_double4 __orvane_l9_floor3(orvane_double4 x);
orvane_double4 __orvane_l9_floor4(orvane_double4 x);
void __orvane_l9_floor8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_floor16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* floorf: Largest integer not above x. A zero result keeps the sign of x. */
orvane_float4 __orvane_l9_floorf1(orvane_float4 x);
orvane_float4 __orvane_l9_floorf2(orvane_float4 x);
orvane_float4 __orvane_l9_floorf3(orvane_float4 x);
orvane_float4 __orvane_l9_floorf4(orvane_float4 x);
orvane_float8 __orvane_l9_floorf8(orvane_float8 x);
void __orvane_l9_floorf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* trunc: x rounded toward zero to an integer. A zero result keeps the sign of x. */
orvane_double2 __orvane_l9_trunc1(orvane_double2 x);
orvane_double2 __orvane_l9_trunc2(orvane_double2 x);
orvane_double4 __orvane_l9_trunc3(orvane_double4 x);
orvane_double4 __orvane_l9_trunc4(orvane_double4 x);
void __orvane_l9_trunc8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_trunc16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* truncf: x rounded toward zero to an integer. A zero result keeps the sign of x. */
orvane_float4 __orvane_l9_truncf1(orvane_float4 x);
orvane_float4 __orvane_l9_truncf2(orvane_float4 x);
orvane_float4 __orvane_l9_truncf3(orvane_float4 x);
orvane_float4 __orvane_l9_truncf4(orvane_float4 x);
orvane_float8 __orvane_l9_truncf8(orvane_float8 x);
void __orvane_l9_truncf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* rint: Nearest integer by the caller's rounding mode. */
orvane_double2 __orvane_l9_rint1(orvane_double2 x);
orvane_double2 __orvane_l9_rint2(orvane_double2 x);
orvane_double4 __orvane_l9_rint3(orvane_double4 x);
orvane_double4 __orvane_l9_rint4(orvane_double4 x);
void __orvane_l9_rint8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_rint16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* rintf: Nearest integer by the caller's rounding mode. */
orvane_float4 __orvane_l9_rintf1(orvane_float4 x);
orvane_float4 __orvane_l9_rintf2(orvane_float4 x);
orvane_float4 __orvane_l9_rintf3(orvane_float4 x);
orvane_float4 __orvane_l9_rintf4(orvane_float4 x);
orvane_float8 __orvane_l9_rintf8(orvane_float8 x);
void __orvane_l9_rintf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* nearbyint: Nearest integer by the caller's rounding mode, without the inexact flag. */
orvane_double2 __orvane_l9_nearbyint1(orvane_double2 x);
orvane_double2 __orvane_l9_nearbyint2(orvane_double2 x);
orvane_double4 __orvane_l9_nearbyint3(orvane_double4 x);
orvane_double4 __orvane_l9_nearbyint4(orvane_double4 x);
void __orvane_l9_nearbyint8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_nearbyint16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* nearbyintf: Nearest integer by the caller's rounding mode, without the inexact flag. */
orvane_float4 __orvane_l9_nearbyintf1(orvane_float4 x);
orvane_float4 __orvane_l9_nearbyintf2(orvane_float4 x);
orvane_float4 __orvane_l9_nearbyintf3(orvane_float4 x);
orvane_float4 __orvane_l9_nearbyintf4(orvane_float4 x);
orvane_float8 __orvane_l9_nearbyintf8(orvane_float8 x);
void __orvane_l9_nearbyintf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* round: Nearest integer, ties away from zero. */
orvane_double2 __orvane_l9_round1(orvane_double2 x);
orvane_double2 __orvane_l9_round2(orvane_double2 x);
orvane_double4 __orvane_l9_round3(orvane_double4 x);
orvane_double4 __orvane_l9_round4(orvane_double4 x);
void __orvane_l9_round8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_round16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* roundf: Nearest integer, ties away from zero. */
orvane_float4 __orvane_l9_roundf1(orvane_float4 x);
orvane_float4 __orvane_l9_roundf2(orvane_float4 x);
orvane_float4 __orvane_l9_roundf3(orvane_float4 x);
orvane_float4 __orvane_l9_roundf4(orvane_float4 x);
orvane_float8 __orvane_l9_roundf8(orvane_float8 x);
void __orvane_l9_roundf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* fract: x - floor(x), below 1; floor(x) goes to the out-lane. A NaN goes on as it came. */
orvane_double2 __orvane_l9_fract1(double* out, orvane_double2 x);
orvane_double2 __orvane_l9_fract2(double* out, orvane_double2 x);
orvane_double4 __orvane_l9_fract3(double* out, orvane_double4 x);
orvane_double4 __orvane_l9_fract4(double* out, orvane_double4 x);
void __orvane_l9_fract8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */
void __orvane_l9_fract16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3, at rdi */

/* fractf: x - floor(x), below 1; floor(x) goes to the out-lane. A NaN goes on as it came. */
orvane_float4 __orvane_l9_fractf1(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_fractf2(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_fractf3(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_fractf4(float* out, orvane_float4 x);
orvane_float8 __orvane_l9_fractf8(float* out, orvane_float8 x);
void __orvane_l9_fractf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */

/* modf: Fraction of x with its sign; trunc(x) goes to the out-lane. A NaN is quieted. */
orvane_double2 __orvane_l9_modf1(double* out, orvane_double2 x);
orvane_double2 __orvane_l9_modf2(double* out, orvane_double2 x);
orvane_double4 __orvane_l9_modf3(double* out, orvane_double4 x);
orvane_double4 __orvane_l9_modf4(double* out, orvane_double4 x);
void __orvane_l9_modf8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */
void __orvane_l9_modf16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3, at rdi */

/* modff: Fraction of x with its sign; trunc(x) goes to the out-lane. A NaN is quieted. */
orvane_float4 __orvane_l9_modff1(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_modff2(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_modff3(float* out, orvane_float4 x);
orvane_float4 __orvane_l9_modff4(float* out, orvane_float4 x);
orvane_float8 __orvane_l9_modff8(float* out, orvane_float8 x);
void __orvane_l9_modff16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1, at rdi */

/* fmin: The smaller of x and y; y on a tie. Of a NaN and a number the number. */
orvane_double2 __orvane_l9_fmin1(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_fmin2(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_fmin3(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_fmin4(orvane_double4 x, orvane_double4 y);
void __orvane_l9_fmin8(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_fmin16 { double x[16]; double y[16]; };
void* __orvane_l9_fmin16(void* result, struct orvane_args_fmin16 arguments);

/* fminf: The smaller of x and y; y on a tie. Of a NaN and a number the number. */
orvane_float4 __orvane_l9_fminf1(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_fminf2(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_fminf3(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_fminf4(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_fminf8(orvane_float8 x, orvane_float8 y);
void __orvane_l9_fminf16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* fmax: The larger of x and y; y on a tie. Of a NaN and a number the number. */
orvane_double2 __orvane_l9_fmax1(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_fmax2(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_fmax3(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_fmax4(orvane_double4 x, orvane_double4 y);
void __orvane_l9_fmax8(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_fmax16 { double x[16]; double y[16]; };
void* __orvane_l9_fmax16(void* result, struct orvane_args_fmax16 arguments);

/* fmaxf: The larger of x and y; y on a tie. Of a NaN and a number the number. */
orvane_float4 __orvane_l9_fmaxf1(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_fmaxf2(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_fmaxf3(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_fmaxf4(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_fmaxf8(orvane_float8 x, orvane_float8 y);
void __orvane_l9_fmaxf16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* minmag: The argument of smaller magnitude; fmin of equal ones. Of a NaN and a number the number. */
orvane_double2 __orvane_l9_minmag1(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_minmag2(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_minmag3(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_minmag4(orvane_double4 x, orvane_double4 y);
void __orvane_l9_minmag8(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_minmag16 { double x[16]; double y[16]; };
void* __orvane_l9_minmag16(void* result, struct orvane_args_minmag16 arguments);

/* minmagf: The argument of smaller magnitude; fmin of equal ones. Of a NaN and a number the number. */
orvane_float4 __orvane_l9_minmagf1(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_minmagf2(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_minmagf3(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_minmagf4(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_minmagf8(orvane_float8 x, orvane_float8 y);
void __orvane_l9_minmagf16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* maxmag: The argument of larger magnitude; fmax of equal ones. Of a NaN and a number the number. */
orvane_double2 __orvane_l9_maxmag1(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_maxmag2(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_maxmag3(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_maxmag4(orvane_double4 x, orvane_double4 y);
void __orvane_l9_maxmag8(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_maxmag16 { double x[16]; double y[16]; };
void* __orvane_l9_maxmag16(void* result, struct orvane_args_maxmag16 arguments);

/* maxmagf: The argument of larger magnitude; fmax of equal ones. Of a NaN and a number the number. */
orvane_float4 __orvane_l9_maxmagf1(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_maxmagf2(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_maxmagf3(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_maxmagf4(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_maxmagf8(orvane_float8 x, orvane_float8 y);
void __orvane_l9_maxmagf16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* fdim: Positive difference: x - y if x > y, else +0. NaN if an argument is. */
orvane_double2 __orvane_l9_fdim1(orvane_double2 x, orvane_double2 y);
orvane_double2 __orvane_l9_fdim2(orvane_double2 x, orvane_double2 y);
orvane_double4 __orvane_l9_fdim3(orvane_double4 x, orvane_double4 y);
orvane_double4 __orvane_l9_fdim4(orvane_double4 x, orvane_double4 y);
void __orvane_l9_fdim8(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */
struct orvane_args_fdim16 { double x[16]; double y[16]; };
void* __orvane_l9_fdim16(void* result, struct orvane_args_fdim16 arguments);

/* fdimf: Positive difference: x - y if x > y, else +0. NaN if an argument is. */
orvane_float4 __orvane_l9_fdimf1(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_fdimf2(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_fdimf3(orvane_float4 x, orvane_float4 y);
orvane_float4 __orvane_l9_fdimf4(orvane_float4 x, orvane_float4 y);
orvane_float8 __orvane_l9_fdimf8(orvane_float8 x, orvane_float8 y);
void __orvane_l9_fdimf16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* fma: a b + c with one rounding. */
orvane_double2 __orvane_l9_fma1(orvane_double2 x, orvane_double2 y, orvane_double2 z);
orvane_double2 __orvane_l9_fma2(orvane_double2 x, orvane_double2 y, orvane_double2 z);
orvane_double4 __orvane_l9_fma3(orvane_double4 x, orvane_double4 y, orvane_double4 z);
orvane_double4 __orvane_l9_fma4(orvane_double4 x, orvane_double4 y, orvane_double4 z);
struct orvane_args_fma8 { double x[8]; double y[8]; double z[8]; };
void* __orvane_l9_fma8(void* result, struct orvane_args_fma8 arguments);
struct orvane_args_fma16 { double x[16]; double y[16]; double z[16]; };
void* __orvane_l9_fma16(void* result, struct orvane_args_fma16 arguments);
orvane_double2 __orvane_l9_fma1_rm(orvane_double2 x, orvane_double2 y, orvane_double2 z);
orvane_double2 __orvane_l9_fma2_rm(orvane_double2 x, orvane_double2 y, orvane_double2 z);
orvane_double4 __orvane_l9_fma3_rm(orvane_double4 x, orvane_double4 y, orvane_double4 z);
orvane_double4 __orvane_l9_fma4_rm(orvane_double4 x, orvane_double4 y, orvane_double4 z);
struct orvane_args_fma8_rm { double x[8]; double y[8]; double z[8]; };
void* __orvane_l9_fma8_rm(void* result, struct orvane_args_fma8_rm arguments);
struct orvane_args_fma16_rm { double x[16]; double y[16]; double z[16]; };
void* __orvane_l9_fma16_rm(void* result, struct orvane_args_fma16_rm arguments);

/* fmaf: a b + c with one rounding. */
orvane_float4 __orvane_l9_fmaf1(orvane_float4 x, orvane_float4 y, orvane_float4 z);
orvane_float4 __orvane_l9_fmaf2(orvane_float4 x, orvane_float4 y, orvane_float4 z);
orvane_float4 __orvane_l9_fmaf3(orvane_float4 x, orvane_float4 y, orvane_float4 z);
orvane_float4 __orvane_l9_fmaf4(orvane_float4 x, orvane_float4 y, orvane_float4 z);
orvane_float8 __orvane_l9_fmaf8(orvane_float8 x, orvane_float8 y, orvane_float8 z);
struct orvane_args_fmaf16 { float x[16]; float y[16]; float z[16]; };
void* __orvane_l9_fmaf16(void* result, struct orvane_args_fmaf16 arguments);
orvane_float4 __orvane_l9_fmaf1_rm(orvane_float4 x, orvane_float4 y, orvane_float4 z);
orvane_float4 __orvane_l9_fmaf2_rm(orvane_float4 x, orvane_float4 y, orvane_float4 z);
orvane_float4 __orvane_l9_fmaf3_rm(orvane_float4 x, orvane_float4 y, orvane_float4 z);
orvane_float4 __orvane_l9_fmaf4_rm(orvane_float4 x, orvane_float4 y, orvane_float4 z);
orvane_float8 __orvane_l9_fmaf8_rm(orvane_float8 x, orvane_float8 y, orvane_float8 z);
struct orvane_args_fmaf16_rm { float x[16]; float y[16]; float z[16]; };
void* __orvane_l9_fmaf16_rm(void* result, struct orvane_args_fmaf16_rm arguments);

/* idiv: Quotient truncated toward zero. 0x80000000 for b = 0 and for -2^31 / -1. */
int32_t __orvane_l9_idiv1(int32_t x, int32_t y);
orvane_int4 __orvane_l9_idiv2(orvane_int4 x, orvane_int4 y);
orvane_int4 __orvane_l9_idiv3(orvane_int4 x, orvane_int4 y);
orvane_int4 __orvane_l9_idiv4(orvane_int4 x, orvane_int4 y);
orvane_int8 __orvane_l9_idiv8(orvane_int8 x, orvane_int8 y);
void __orvane_l9_idiv16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* irem: Remainder a - q b, with the sign of a. a for b = 0. */
int32_t __orvane_l9_irem1(int32_t x, int32_t y);
orvane_int4 __orvane_l9_irem2(orvane_int4 x, orvane_int4 y);
orvane_int4 __orvane_l9_irem3(orvane_int4 x, orvane_int4 y);
orvane_int4 __orvane_l9_irem4(orvane_int4 x, orvane_int4 y);
orvane_int8 __orvane_l9_irem8(orvane_int8 x, orvane_int8 y);
void __orvane_l9_irem16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* idivrem: Quotient truncated toward zero, and remainder: idiv and irem of one computation. */
uint64_t __orvane_l9_idivrem1(int32_t x, int32_t y);
void __orvane_l9_idivrem2(void) ORVANE_NOT_C; /* in xmm0, xmm1; out xmm0, xmm1 */
void __orvane_l9_idivrem3(void) ORVANE_NOT_C; /* in xmm0, xmm1; out xmm0, xmm1 */
void __orvane_l9_idivrem4(void) ORVANE_NOT_C; /* in xmm0, xmm1; out xmm0, xmm1 */
void __orvane_l9_idivrem8(void) ORVANE_NOT_C; /* in ymm0, ymm1; out ymm0, ymm1 */
void __orvane_l9_idivrem16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1, ymm2 ymm3 */

/* udiv: Quotient of unsigned integers. 0 for b = 0. */
uint32_t __orvane_l9_udiv1(uint32_t x, uint32_t y);
orvane_uint4 __orvane_l9_udiv2(orvane_uint4 x, orvane_uint4 y);
orvane_uint4 __orvane_l9_udiv3(orvane_uint4 x, orvane_uint4 y);
orvane_uint4 __orvane_l9_udiv4(orvane_uint4 x, orvane_uint4 y);
orvane_uint8 __orvane_l9_udiv8(orvane_uint8 x, orvane_uint8 y);
void __orvane_l9_udiv16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* urem: Remainder of unsigned integers. a for b = 0. */
uint32_t __orvane_l9_urem1(uint32_t x, uint32_t y);
orvane_uint4 __orvane_l9_urem2(orvane_uint4 x, orvane_uint4 y);
orvane_uint4 __orvane_l9_urem3(orvane_uint4 x, orvane_uint4 y);
orvane_uint4 __orvane_l9_urem4(orvane_uint4 x, orvane_uint4 y);
orvane_uint8 __orvane_l9_urem8(orvane_uint8 x, orvane_uint8 y);
void __orvane_l9_urem16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1 */

/* udivrem: Quotient and remainder of unsigned integers: udiv and urem of one computation. */
uint64_t __orvane_l9_udivrem1(uint32_t x, uint32_t y);
void __orvane_l9_udivrem2(void) ORVANE_NOT_C; /* in xmm0, xmm1; out xmm0, xmm1 */
void __orvane_l9_udivrem3(void) ORVANE_NOT_C; /* in xmm0, xmm1; out xmm0, xmm1 */
void __orvane_l9_udivrem4(void) ORVANE_NOT_C; /* in xmm0, xmm1; out xmm0, xmm1 */
void __orvane_l9_udivrem8(void) ORVANE_NOT_C; /* in ymm0, ymm1; out ymm0, ymm1 */
void __orvane_l9_udivrem16(void) ORVANE_NOT_C; /* in ymm0 ymm1, ymm2 ymm3; out ymm0 ymm1, ymm2 ymm3 */

/* cvtfptoi32rtesat: Conversion from double to int, rounded to nearest, ties to even; values out of range give the nearest end of it, NaN gives 0. */
int32_t __orvane_l9_cvtfptoi32rtesat1(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtesat2(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtesat3(orvane_double4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtesat4(orvane_double4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtesat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptoi32rtesat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptoi32rtesatf: Conversion from float to int, rounded to nearest, ties to even; values out of range give the nearest end of it, NaN gives 0. */
int32_t __orvane_l9_cvtfptoi32rtesatf1(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtesatf2(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtesatf3(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtesatf4(orvane_float4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtesatf8(orvane_float8 x);
void __orvane_l9_cvtfptoi32rtesatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptoi32rtenosat: Conversion from double to int, rounded to nearest, ties to even; values out of range give what the processor's steps give. */
int32_t __orvane_l9_cvtfptoi32rtenosat1(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtenosat2(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtenosat3(orvane_double4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtenosat4(orvane_double4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtenosat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptoi32rtenosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptoi32rtenosatf: Conversion from float to int, rounded to nearest, ties to even; values out of range give what the processor's steps give. */
int32_t __orvane_l9_cvtfptoi32rtenosatf1(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtenosatf2(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtenosatf3(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtenosatf4(orvane_float4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtenosatf8(orvane_float8 x);
void __orvane_l9_cvtfptoi32rtenosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptoi32rtnsat: Conversion from double to int, rounded down; values out of range give the nearest end of it, NaN gives 0. */
int32_t __orvane_l9_cvtfptoi32rtnsat1(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnsat2(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnsat3(orvane_double4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnsat4(orvane_double4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtnsat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptoi32rtnsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptoi32rtnsatf: Conversion from float to int, rounded down; values out of range give the nearest end of it, NaN gives 0. */
int32_t __orvane_l9_cvtfptoi32rtnsatf1(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnsatf2(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnsatf3(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnsatf4(orvane_float4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtnsatf8(orvane_float8 x);
void __orvane_l9_cvtfptoi32rtnsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptoi32rtnnosat: Conversion from double to int, rounded down; values out of range give what the processor's steps give. */
int32_t __orvane_l9_cvtfptoi32rtnnosat1(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnnosat2(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnnosat3(orvane_double4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnnosat4(orvane_double4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtnnosat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptoi32rtnnosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptoi32rtnnosatf: Conversion from float to int, rounded down; values out of range give what the processor's steps give. */
int32_t __orvane_l9_cvtfptoi32rtnnosatf1(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnnosatf2(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnnosatf3(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtnnosatf4(orvane_float4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtnnosatf8(orvane_float8 x);
void __orvane_l9_cvtfptoi32rtnnosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptoi32rtpsat: Conversion from double to int, rounded up; values out of range give the nearest end of it, NaN gives 0. */
int32_t __orvane_l9_cvtfptoi32rtpsat1(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpsat2(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpsat3(orvane_double4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpsat4(orvane_double4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtpsat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptoi32rtpsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptoi32rtpsatf: Conversion from float to int, rounded up; values out of range give the nearest end of it, NaN gives 0. */
int32_t __orvane_l9_cvtfptoi32rtpsatf1(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpsatf2(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpsatf3(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpsatf4(orvane_float4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtpsatf8(orvane_float8 x);
void __orvane_l9_cvtfptoi32rtpsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptoi32rtpnosat: Conversion from double to int, rounded up; values out of range give what the processor's steps give. */
int32_t __orvane_l9_cvtfptoi32rtpnosat1(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpnosat2(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpnosat3(orvane_double4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpnosat4(orvane_double4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtpnosat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptoi32rtpnosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptoi32rtpnosatf: Conversion from float to int, rounded up; values out of range give what the processor's steps give. */
int32_t __orvane_l9_cvtfptoi32rtpnosatf1(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpnosatf2(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpnosatf3(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtpnosatf4(orvane_float4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtpnosatf8(orvane_float8 x);
void __orvane_l9_cvtfptoi32rtpnosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptoi32rtzsat: Conversion from double to int, rounded toward zero; values out of range give the nearest end of it, NaN gives 0. */
int32_t __orvane_l9_cvtfptoi32rtzsat1(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtzsat2(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtzsat3(orvane_double4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtzsat4(orvane_double4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtzsat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptoi32rtzsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptoi32rtzsatf: Conversion from float to int, rounded toward zero; values out of range give the nearest end of it, NaN gives 0. */
int32_t __orvane_l9_cvtfptoi32rtzsatf1(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtzsatf2(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtzsatf3(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtzsatf4(orvane_float4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtzsatf8(orvane_float8 x);
void __orvane_l9_cvtfptoi32rtzsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptoi32rtznosat: Conversion from double to int, rounded toward zero; values out of range give what the processor's steps give. */
int32_t __orvane_l9_cvtfptoi32rtznosat1(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtznosat2(orvane_double2 x);
orvane_int4 __orvane_l9_cvtfptoi32rtznosat3(orvane_double4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtznosat4(orvane_double4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtznosat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptoi32rtznosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptoi32rtznosatf: Conversion from float to int, rounded toward zero; values out of range give what the processor's steps give. */
int32_t __orvane_l9_cvtfptoi32rtznosatf1(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtznosatf2(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtznosatf3(orvane_float4 x);
orvane_int4 __orvane_l9_cvtfptoi32rtznosatf4(orvane_float4 x);
orvane_int8 __orvane_l9_cvtfptoi32rtznosatf8(orvane_float8 x);
void __orvane_l9_cvtfptoi32rtznosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptoi64rtesat: Conversion from double to long, rounded to nearest, ties to even; values out of range give the nearest end of it, NaN gives 0. */
int64_t __orvane_l9_cvtfptoi64rtesat1(orvane_double2 x);
orvane_long2 __orvane_l9_cvtfptoi64rtesat2(orvane_double2 x);
orvane_long4 __orvane_l9_cvtfptoi64rtesat3(orvane_double4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtesat4(orvane_double4 x);
void __orvane_l9_cvtfptoi64rtesat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtesat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtesatf: Conversion from float to long, rounded to nearest, ties to even; values out of range give the nearest end of it, NaN gives 0. */
int64_t __orvane_l9_cvtfptoi64rtesatf1(orvane_float4 x);
orvane_long2 __orvane_l9_cvtfptoi64rtesatf2(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtesatf3(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtesatf4(orvane_float4 x);
void __orvane_l9_cvtfptoi64rtesatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtesatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtenosat: Conversion from double to long, rounded to nearest, ties to even; values out of range give what the processor's steps give. */
int64_t __orvane_l9_cvtfptoi64rtenosat1(orvane_double2 x);
orvane_long2 __orvane_l9_cvtfptoi64rtenosat2(orvane_double2 x);
orvane_long4 __orvane_l9_cvtfptoi64rtenosat3(orvane_double4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtenosat4(orvane_double4 x);
void __orvane_l9_cvtfptoi64rtenosat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtenosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtenosatf: Conversion from float to long, rounded to nearest, ties to even; values out of range give what the processor's steps give. */
int64_t __orvane_l9_cvtfptoi64rtenosatf1(orvane_float4 x);
orvane_long2 __orvane_l9_cvtfptoi64rtenosatf2(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtenosatf3(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtenosatf4(orvane_float4 x);
void __orvane_l9_cvtfptoi64rtenosatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtenosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtnsat: Conversion from double to long, rounded down; values out of range give the nearest end of it, NaN gives 0. */
int64_t __orvane_l9_cvtfptoi64rtnsat1(orvane_double2 x);
orvane_long2 __orvane_l9_cvtfptoi64rtnsat2(orvane_double2 x);
orvane_long4 __orvane_l9_cvtfptoi64rtnsat3(orvane_double4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtnsat4(orvane_double4 x);
void __orvane_l9_cvtfptoi64rtnsat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtnsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtnsatf: Conversion from float to long, rounded down; values out of range give the nearest end of it, NaN gives 0. */
int64_t __orvane_l9_cvtfptoi64rtnsatf1(orvane_float4 x);
orvane_long2 __orvane_l9_cvtfptoi64rtnsatf2(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtnsatf3(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtnsatf4(orvane_float4 x);
void __orvane_l9_cvtfptoi64rtnsatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtnsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtnnosat: Conversion from double to long, rounded down; values out of range give what the processor's steps give. */
int64_t __orvane_l9_cvtfptoi64rtnnosat1(orvane_double2 x);
orvane_long2 __orvane_l9_cvtfptoi64rtnnosat2(orvane_double2 x);
orvane_long4 __orvane_l9_cvtfptoi64rtnnosat3(orvane_double4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtnnosat4(orvane_double4 x);
void __orvane_l9_cvtfptoi64rtnnosat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtnnosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtnnosatf: Conversion from float to long, rounded down; values out of range give what the processor's steps give. */
int64_t __orvane_l9_cvtfptoi64rtnnosatf1(orvane_float4 x);
orvane_long2 __orvane_l9_cvtfptoi64rtnnosatf2(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtnnosatf3(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtnnosatf4(orvane_float4 x);
void __orvane_l9_cvtfptoi64rtnnosatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtnnosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtpsat: Conversion from double to long, rounded up; values out of range give the nearest end of it, NaN gives 0. */
int64_t __orvane_l9_cvtfptoi64rtpsat1(orvane_double2 x);
orvane_long2 __orvane_l9_cvtfptoi64rtpsat2(orvane_double2 x);
orvane_long4 __orvane_l9_cvtfptoi64rtpsat3(orvane_double4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtpsat4(orvane_double4 x);
void __orvane_l9_cvtfptoi64rtpsat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtpsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtpsatf: Conversion from float to long, rounded up; values out of range give the nearest end of it, NaN gives 0. */
int64_t __orvane_l9_cvtfptoi64rtpsatf1(orvane_float4 x);
orvane_long2 __orvane_l9_cvtfptoi64rtpsatf2(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtpsatf3(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtpsatf4(orvane_float4 x);
void __orvane_l9_cvtfptoi64rtpsatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtpsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtpnosat: Conversion from double to long, rounded up; values out of range give what the processor's steps give. */
int64_t __orvane_l9_cvtfptoi64rtpnosat1(orvane_double2 x);
orvane_long2 __orvane_l9_cvtfptoi64rtpnosat2(orvane_double2 x);
orvane_long4 __orvane_l9_cvtfptoi64rtpnosat3(orvane_double4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtpnosat4(orvane_double4 x);
void __orvane_l9_cvtfptoi64rtpnosat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtpnosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtpnosatf: Conversion from float to long, rounded up; values out of range give what the processor's steps give. */
int64_t __orvane_l9_cvtfptoi64rtpnosatf1(orvane_float4 x);
orvane_long2 __orvane_l9_cvtfptoi64rtpnosatf2(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtpnosatf3(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtpnosatf4(orvane_float4 x);
void __orvane_l9_cvtfptoi64rtpnosatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtpnosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtzsat: Conversion from double to long, rounded toward zero; values out of range give the nearest end of it, NaN gives 0. */
int64_t __orvane_l9_cvtfptoi64rtzsat1(orvane_double2 x);
orvane_long2 __orvane_l9_cvtfptoi64rtzsat2(orvane_double2 x);
orvane_long4 __orvane_l9_cvtfptoi64rtzsat3(orvane_double4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtzsat4(orvane_double4 x);
void __orvane_l9_cvtfptoi64rtzsat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtzsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtzsatf: Conversion from float to long, rounded toward zero; values out of range give the nearest end of it, NaN gives 0. */
int64_t __orvane_l9_cvtfptoi64rtzsatf1(orvane_float4 x);
orvane_long2 __orvane_l9_cvtfptoi64rtzsatf2(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtzsatf3(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtzsatf4(orvane_float4 x);
void __orvane_l9_cvtfptoi64rtzsatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtzsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtznosat: Conversion from double to long, rounded toward zero; values out of range give what the processor's steps give. */
int64_t __orvane_l9_cvtfptoi64rtznosat1(orvane_double2 x);
orvane_long2 __orvane_l9_cvtfptoi64rtznosat2(orvane_double2 x);
orvane_long4 __orvane_l9_cvtfptoi64rtznosat3(orvane_double4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtznosat4(orvane_double4 x);
void __orvane_l9_cvtfptoi64rtznosat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtznosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptoi64rtznosatf: Conversion from float to long, rounded toward zero; values out of range give what the processor's steps give. */
int64_t __orvane_l9_cvtfptoi64rtznosatf1(orvane_float4 x);
orvane_long2 __orvane_l9_cvtfptoi64rtznosatf2(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtznosatf3(orvane_float4 x);
orvane_long4 __orvane_l9_cvtfptoi64rtznosatf4(orvane_float4 x);
void __orvane_l9_cvtfptoi64rtznosatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptoi64rtznosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou32rtesat: Conversion from double to uint, rounded to nearest, ties to even; values out of range give the nearest end of it, NaN gives 0. */
uint32_t __orvane_l9_cvtfptou32rtesat1(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtesat2(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtesat3(orvane_double4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtesat4(orvane_double4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtesat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptou32rtesat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptou32rtesatf: Conversion from float to uint, rounded to nearest, ties to even; values out of range give the nearest end of it, NaN gives 0. */
uint32_t __orvane_l9_cvtfptou32rtesatf1(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtesatf2(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtesatf3(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtesatf4(orvane_float4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtesatf8(orvane_float8 x);
void __orvane_l9_cvtfptou32rtesatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptou32rtenosat: Conversion from double to uint, rounded to nearest, ties to even; values out of range give what the processor's steps give. */
uint32_t __orvane_l9_cvtfptou32rtenosat1(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtenosat2(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtenosat3(orvane_double4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtenosat4(orvane_double4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtenosat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptou32rtenosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptou32rtenosatf: Conversion from float to uint, rounded to nearest, ties to even; values out of range give what the processor's steps give. */
uint32_t __orvane_l9_cvtfptou32rtenosatf1(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtenosatf2(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtenosatf3(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtenosatf4(orvane_float4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtenosatf8(orvane_float8 x);
void __orvane_l9_cvtfptou32rtenosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptou32rtnsat: Conversion from double to uint, rounded down; values out of range give the nearest end of it, NaN gives 0. */
uint32_t __orvane_l9_cvtfptou32rtnsat1(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnsat2(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnsat3(orvane_double4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnsat4(orvane_double4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtnsat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptou32rtnsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptou32rtnsatf: Conversion from float to uint, rounded down; values out of range give the nearest end of it, NaN gives 0. */
uint32_t __orvane_l9_cvtfptou32rtnsatf1(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnsatf2(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnsatf3(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnsatf4(orvane_float4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtnsatf8(orvane_float8 x);
void __orvane_l9_cvtfptou32rtnsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptou32rtnnosat: Conversion from double to uint, rounded down; values out of range give what the processor's steps give. */
uint32_t __orvane_l9_cvtfptou32rtnnosat1(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnnosat2(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnnosat3(orvane_double4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnnosat4(orvane_double4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtnnosat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptou32rtnnosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptou32rtnnosatf: Conversion from float to uint, rounded down; values out of range give what the processor's steps give. */
uint32_t __orvane_l9_cvtfptou32rtnnosatf1(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnnosatf2(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnnosatf3(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtnnosatf4(orvane_float4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtnnosatf8(orvane_float8 x);
void __orvane_l9_cvtfptou32rtnnosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptou32rtpsat: Conversion from double to uint, rounded up; values out of range give the nearest end of it, NaN gives 0. */
uint32_t __orvane_l9_cvtfptou32rtpsat1(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpsat2(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpsat3(orvane_double4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpsat4(orvane_double4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtpsat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptou32rtpsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptou32rtpsatf: Conversion from float to uint, rounded up; values out of range give the nearest end of it, NaN gives 0. */
uint32_t __orvane_l9_cvtfptou32rtpsatf1(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpsatf2(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpsatf3(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpsatf4(orvane_float4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtpsatf8(orvane_float8 x);
void __orvane_l9_cvtfptou32rtpsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptou32rtpnosat: Conversion from double to uint, rounded up; values out of range give what the processor's steps give. */
uint32_t __orvane_l9_cvtfptou32rtpnosat1(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpnosat2(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpnosat3(orvane_double4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpnosat4(orvane_double4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtpnosat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptou32rtpnosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptou32rtpnosatf: Conversion from float to uint, rounded up; values out of range give what the processor's steps give. */
uint32_t __orvane_l9_cvtfptou32rtpnosatf1(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpnosatf2(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpnosatf3(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtpnosatf4(orvane_float4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtpnosatf8(orvane_float8 x);
void __orvane_l9_cvtfptou32rtpnosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptou32rtzsat: Conversion from double to uint, rounded toward zero; values out of range give the nearest end of it, NaN gives 0. */
uint32_t __orvane_l9_cvtfptou32rtzsat1(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtzsat2(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtzsat3(orvane_double4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtzsat4(orvane_double4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtzsat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptou32rtzsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptou32rtzsatf: Conversion from float to uint, rounded toward zero; values out of range give the nearest end of it, NaN gives 0. */
uint32_t __orvane_l9_cvtfptou32rtzsatf1(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtzsatf2(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtzsatf3(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtzsatf4(orvane_float4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtzsatf8(orvane_float8 x);
void __orvane_l9_cvtfptou32rtzsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptou32rtznosat: Conversion from double to uint, rounded toward zero; values out of range give what the processor's steps give. */
uint32_t __orvane_l9_cvtfptou32rtznosat1(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtznosat2(orvane_double2 x);
orvane_uint4 __orvane_l9_cvtfptou32rtznosat3(orvane_double4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtznosat4(orvane_double4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtznosat8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfptou32rtznosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfptou32rtznosatf: Conversion from float to uint, rounded toward zero; values out of range give what the processor's steps give. */
uint32_t __orvane_l9_cvtfptou32rtznosatf1(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtznosatf2(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtznosatf3(orvane_float4 x);
orvane_uint4 __orvane_l9_cvtfptou32rtznosatf4(orvane_float4 x);
orvane_uint8 __orvane_l9_cvtfptou32rtznosatf8(orvane_float8 x);
void __orvane_l9_cvtfptou32rtznosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtfptou64rtesat: Conversion from double to ulong, rounded to nearest, ties to even; values out of range give the nearest end of it, NaN gives 0. */
uint64_t __orvane_l9_cvtfptou64rtesat1(orvane_double2 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtesat2(orvane_double2 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtesat3(orvane_double4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtesat4(orvane_double4 x);
void __orvane_l9_cvtfptou64rtesat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtesat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtesatf: Conversion from float to ulong, rounded to nearest, ties to even; values out of range give the nearest end of it, NaN gives 0. */
uint64_t __orvane_l9_cvtfptou64rtesatf1(orvane_float4 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtesatf2(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtesatf3(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtesatf4(orvane_float4 x);
void __orvane_l9_cvtfptou64rtesatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtesatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtenosat: Conversion from double to ulong, rounded to nearest, ties to even; values out of range give what the processor's steps give. */
uint64_t __orvane_l9_cvtfptou64rtenosat1(orvane_double2 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtenosat2(orvane_double2 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtenosat3(orvane_double4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtenosat4(orvane_double4 x);
void __orvane_l9_cvtfptou64rtenosat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtenosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtenosatf: Conversion from float to ulong, rounded to nearest, ties to even; values out of range give what the processor's steps give. */
uint64_t __orvane_l9_cvtfptou64rtenosatf1(orvane_float4 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtenosatf2(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtenosatf3(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtenosatf4(orvane_float4 x);
void __orvane_l9_cvtfptou64rtenosatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtenosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtnsat: Conversion from double to ulong, rounded down; values out of range give the nearest end of it, NaN gives 0. */
uint64_t __orvane_l9_cvtfptou64rtnsat1(orvane_double2 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtnsat2(orvane_double2 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtnsat3(orvane_double4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtnsat4(orvane_double4 x);
void __orvane_l9_cvtfptou64rtnsat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtnsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtnsatf: Conversion from float to ulong, rounded down; values out of range give the nearest end of it, NaN gives 0. */
uint64_t __orvane_l9_cvtfptou64rtnsatf1(orvane_float4 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtnsatf2(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtnsatf3(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtnsatf4(orvane_float4 x);
void __orvane_l9_cvtfptou64rtnsatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtnsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtnnosat: Conversion from double to ulong, rounded down; values out of range give what the processor's steps give. */
uint64_t __orvane_l9_cvtfptou64rtnnosat1(orvane_double2 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtnnosat2(orvane_double2 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtnnosat3(orvane_double4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtnnosat4(orvane_double4 x);
void __orvane_l9_cvtfptou64rtnnosat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtnnosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtnnosatf: Conversion from float to ulong, rounded down; values out of range give what the processor's steps give. */
uint64_t __orvane_l9_cvtfptou64rtnnosatf1(orvane_float4 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtnnosatf2(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtnnosatf3(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtnnosatf4(orvane_float4 x);
void __orvane_l9_cvtfptou64rtnnosatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtnnosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtpsat: Conversion from double to ulong, rounded up; values out of range give the nearest end of it, NaN gives 0. */
uint64_t __orvane_l9_cvtfptou64rtpsat1(orvane_double2 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtpsat2(orvane_double2 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtpsat3(orvane_double4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtpsat4(orvane_double4 x);
void __orvane_l9_cvtfptou64rtpsat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtpsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtpsatf: Conversion from float to ulong, rounded up; values out of range give the nearest end of it, NaN gives 0. */
uint64_t __orvane_l9_cvtfptou64rtpsatf1(orvane_float4 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtpsatf2(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtpsatf3(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtpsatf4(orvane_float4 x);
void __orvane_l9_cvtfptou64rtpsatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtpsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtpnosat: Conversion from double to ulong, rounded up; values out of range give what the processor's steps give. */
uint64_t __orvane_l9_cvtfptou64rtpnosat1(orvane_double2 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtpnosat2(orvane_double2 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtpnosat3(orvane_double4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtpnosat4(orvane_double4 x);
void __orvane_l9_cvtfptou64rtpnosat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtpnosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtpnosatf: Conversion from float to ulong, rounded up; values out of range give what the processor's steps give. */
uint64_t __orvane_l9_cvtfptou64rtpnosatf1(orvane_float4 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtpnosatf2(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtpnosatf3(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtpnosatf4(orvane_float4 x);
void __orvane_l9_cvtfptou64rtpnosatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtpnosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtzsat: Conversion from double to ulong, rounded toward zero; values out of range give the nearest end of it, NaN gives 0. */
uint64_t __orvane_l9_cvtfptou64rtzsat1(orvane_double2 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtzsat2(orvane_double2 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtzsat3(orvane_double4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtzsat4(orvane_double4 x);
void __orvane_l9_cvtfptou64rtzsat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtzsat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtzsatf: Conversion from float to ulong, rounded toward zero; values out of range give the nearest end of it, NaN gives 0. */
uint64_t __orvane_l9_cvtfptou64rtzsatf1(orvane_float4 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtzsatf2(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtzsatf3(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtzsatf4(orvane_float4 x);
void __orvane_l9_cvtfptou64rtzsatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtzsatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtznosat: Conversion from double to ulong, rounded toward zero; values out of range give what the processor's steps give. */
uint64_t __orvane_l9_cvtfptou64rtznosat1(orvane_double2 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtznosat2(orvane_double2 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtznosat3(orvane_double4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtznosat4(orvane_double4 x);
void __orvane_l9_cvtfptou64rtznosat8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtznosat16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtfptou64rtznosatf: Conversion from float to ulong, rounded toward zero; values out of range give what the processor's steps give. */
uint64_t __orvane_l9_cvtfptou64rtznosatf1(orvane_float4 x);
orvane_ulong2 __orvane_l9_cvtfptou64rtznosatf2(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtznosatf3(orvane_float4 x);
orvane_ulong4 __orvane_l9_cvtfptou64rtznosatf4(orvane_float4 x);
void __orvane_l9_cvtfptou64rtznosatf8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtfptou64rtznosatf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvti32tofprte: Conversion from int to double, rounded to nearest, ties to even. */
orvane_double2 __orvane_l9_cvti32tofprte1(int32_t x);
orvane_double2 __orvane_l9_cvti32tofprte2(orvane_int4 x);
orvane_double4 __orvane_l9_cvti32tofprte3(orvane_int4 x);
orvane_double4 __orvane_l9_cvti32tofprte4(orvane_int4 x);
void __orvane_l9_cvti32tofprte8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvti32tofprte16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvti32tofprtef: Conversion from int to float, rounded to nearest, ties to even. */
orvane_float4 __orvane_l9_cvti32tofprtef1(int32_t x);
orvane_float4 __orvane_l9_cvti32tofprtef2(orvane_int4 x);
orvane_float4 __orvane_l9_cvti32tofprtef3(orvane_int4 x);
orvane_float4 __orvane_l9_cvti32tofprtef4(orvane_int4 x);
orvane_float8 __orvane_l9_cvti32tofprtef8(orvane_int8 x);
void __orvane_l9_cvti32tofprtef16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvti32tofprtn: Conversion from int to double, rounded down. */
orvane_double2 __orvane_l9_cvti32tofprtn1(int32_t x);
orvane_double2 __orvane_l9_cvti32tofprtn2(orvane_int4 x);
orvane_double4 __orvane_l9_cvti32tofprtn3(orvane_int4 x);
orvane_double4 __orvane_l9_cvti32tofprtn4(orvane_int4 x);
void __orvane_l9_cvti32tofprtn8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvti32tofprtn16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvti32tofprtnf: Conversion from int to float, rounded down. */
orvane_float4 __orvane_l9_cvti32tofprtnf1(int32_t x);
orvane_float4 __orvane_l9_cvti32tofprtnf2(orvane_int4 x);
orvane_float4 __orvane_l9_cvti32tofprtnf3(orvane_int4 x);
orvane_float4 __orvane_l9_cvti32tofprtnf4(orvane_int4 x);
orvane_float8 __orvane_l9_cvti32tofprtnf8(orvane_int8 x);
void __orvane_l9_cvti32tofprtnf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvti32tofprtp: Conversion from int to double, rounded up. */
orvane_double2 __orvane_l9_cvti32tofprtp1(int32_t x);
orvane_double2 __orvane_l9_cvti32tofprtp2(orvane_int4 x);
orvane_double4 __orvane_l9_cvti32tofprtp3(orvane_int4 x);
orvane_double4 __orvane_l9_cvti32tofprtp4(orvane_int4 x);
void __orvane_l9_cvti32tofprtp8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvti32tofprtp16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvti32tofprtpf: Conversion from int to float, rounded up. */
orvane_float4 __orvane_l9_cvti32tofprtpf1(int32_t x);
orvane_float4 __orvane_l9_cvti32tofprtpf2(orvane_int4 x);
orvane_float4 __orvane_l9_cvti32tofprtpf3(orvane_int4 x);
orvane_float4 __orvane_l9_cvti32tofprtpf4(orvane_int4 x);
orvane_float8 __orvane_l9_cvti32tofprtpf8(orvane_int8 x);
void __orvane_l9_cvti32tofprtpf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvti32tofprtz: Conversion from int to double, rounded toward zero. */
orvane_double2 __orvane_l9_cvti32tofprtz1(int32_t x);
orvane_double2 __orvane_l9_cvti32tofprtz2(orvane_int4 x);
orvane_double4 __orvane_l9_cvti32tofprtz3(orvane_int4 x);
orvane_double4 __orvane_l9_cvti32tofprtz4(orvane_int4 x);
void __orvane_l9_cvti32tofprtz8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvti32tofprtz16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvti32tofprtzf: Conversion from int to float, rounded toward zero. */
orvane_float4 __orvane_l9_cvti32tofprtzf1(int32_t x);
orvane_float4 __orvane_l9_cvti32tofprtzf2(orvane_int4 x);
orvane_float4 __orvane_l9_cvti32tofprtzf3(orvane_int4 x);
orvane_float4 __orvane_l9_cvti32tofprtzf4(orvane_int4 x);
orvane_float8 __orvane_l9_cvti32tofprtzf8(orvane_int8 x);
void __orvane_l9_cvti32tofprtzf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvti64tofprte: Conversion from long to double, rounded to nearest, ties to even. */
orvane_double2 __orvane_l9_cvti64tofprte1(int64_t x);
orvane_double2 __orvane_l9_cvti64tofprte2(orvane_long2 x);
orvane_double4 __orvane_l9_cvti64tofprte3(orvane_long4 x);
orvane_double4 __orvane_l9_cvti64tofprte4(orvane_long4 x);
void __orvane_l9_cvti64tofprte8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvti64tofprte16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvti64tofprtef: Conversion from long to float, rounded to nearest, ties to even. */
orvane_float4 __orvane_l9_cvti64tofprtef1(int64_t x);
orvane_float4 __orvane_l9_cvti64tofprtef2(orvane_long2 x);
orvane_float4 __orvane_l9_cvti64tofprtef3(orvane_long4 x);
orvane_float4 __orvane_l9_cvti64tofprtef4(orvane_long4 x);
orvane_float8 __orvane_l9_cvti64tofprtef8(orvane_long4 x0, orvane_long4 x1);
void __orvane_l9_cvti64tofprtef16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvti64tofprtn: Conversion from long to double, rounded down. */
orvane_double2 __orvane_l9_cvti64tofprtn1(int64_t x);
orvane_double2 __orvane_l9_cvti64tofprtn2(orvane_long2 x);
orvane_double4 __orvane_l9_cvti64tofprtn3(orvane_long4 x);
orvane_double4 __orvane_l9_cvti64tofprtn4(orvane_long4 x);
void __orvane_l9_cvti64tofprtn8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvti64tofprtn16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvti64tofprtnf: Conversion from long to float, rounded down. */
orvane_float4 __orvane_l9_cvti64tofprtnf1(int64_t x);
orvane_float4 __orvane_l9_cvti64tofprtnf2(orvane_long2 x);
orvane_float4 __orvane_l9_cvti64tofprtnf3(orvane_long4 x);
orvane_float4 __orvane_l9_cvti64tofprtnf4(orvane_long4 x);
orvane_float8 __orvane_l9_cvti64tofprtnf8(orvane_long4 x0, orvane_long4 x1);
void __orvane_l9_cvti64tofprtnf16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvti64tofprtp: Conversion from long to double, rounded up. */
orvane_double2 __orvane_l9_cvti64tofprtp1(int64_t x);
orvane_double2 __orvane_l9_cvti64tofprtp2(orvane_long2 x);
orvane_double4 __orvane_l9_cvti64tofprtp3(orvane_long4 x);
orvane_double4 __orvane_l9_cvti64tofprtp4(orvane_long4 x);
void __orvane_l9_cvti64tofprtp8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvti64tofprtp16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvti64tofprtpf: Conversion from long to float, rounded up. */
orvane_float4 __orvane_l9_cvti64tofprtpf1(int64_t x);
orvane_float4 __orvane_l9_cvti64tofprtpf2(orvane_long2 x);
orvane_float4 __orvane_l9_cvti64tofprtpf3(orvane_long4 x);
orvane_float4 __orvane_l9_cvti64tofprtpf4(orvane_long4 x);
orvane_float8 __orvane_l9_cvti64tofprtpf8(orvane_long4 x0, orvane_long4 x1);
void __orvane_l9_cvti64tofprtpf16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvti64tofprtz: Conversion from long to double, rounded toward zero. */
orvane_double2 __orvane_l9_cvti64tofprtz1(int64_t x);
orvane_double2 __orvane_l9_cvti64tofprtz2(orvane_long2 x);
orvane_double4 __orvane_l9_cvti64tofprtz3(orvane_long4 x);
orvane_double4 __orvane_l9_cvti64tofprtz4(orvane_long4 x);
void __orvane_l9_cvti64tofprtz8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvti64tofprtz16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvti64tofprtzf: Conversion from long to float, rounded toward zero. */
orvane_float4 __orvane_l9_cvti64tofprtzf1(int64_t x);
orvane_float4 __orvane_l9_cvti64tofprtzf2(orvane_long2 x);
orvane_float4 __orvane_l9_cvti64tofprtzf3(orvane_long4 x);
orvane_float4 __orvane_l9_cvti64tofprtzf4(orvane_long4 x);
orvane_float8 __orvane_l9_cvti64tofprtzf8(orvane_long4 x0, orvane_long4 x1);
void __orvane_l9_cvti64tofprtzf16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtu32tofprte: Conversion from uint to double, rounded to nearest, ties to even. */
orvane_double2 __orvane_l9_cvtu32tofprte1(uint32_t x);
orvane_double2 __orvane_l9_cvtu32tofprte2(orvane_uint4 x);
orvane_double4 __orvane_l9_cvtu32tofprte3(orvane_uint4 x);
orvane_double4 __orvane_l9_cvtu32tofprte4(orvane_uint4 x);
void __orvane_l9_cvtu32tofprte8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtu32tofprte16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtu32tofprtef: Conversion from uint to float, rounded to nearest, ties to even. */
orvane_float4 __orvane_l9_cvtu32tofprtef1(uint32_t x);
orvane_float4 __orvane_l9_cvtu32tofprtef2(orvane_uint4 x);
orvane_float4 __orvane_l9_cvtu32tofprtef3(orvane_uint4 x);
orvane_float4 __orvane_l9_cvtu32tofprtef4(orvane_uint4 x);
orvane_float8 __orvane_l9_cvtu32tofprtef8(orvane_uint8 x);
void __orvane_l9_cvtu32tofprtef16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtu32tofprtn: Conversion from uint to double, rounded down. */
orvane_double2 __orvane_l9_cvtu32tofprtn1(uint32_t x);
orvane_double2 __orvane_l9_cvtu32tofprtn2(orvane_uint4 x);
orvane_double4 __orvane_l9_cvtu32tofprtn3(orvane_uint4 x);
orvane_double4 __orvane_l9_cvtu32tofprtn4(orvane_uint4 x);
void __orvane_l9_cvtu32tofprtn8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtu32tofprtn16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtu32tofprtnf: Conversion from uint to float, rounded down. */
orvane_float4 __orvane_l9_cvtu32tofprtnf1(uint32_t x);
orvane_float4 __orvane_l9_cvtu32tofprtnf2(orvane_uint4 x);
orvane_float4 __orvane_l9_cvtu32tofprtnf3(orvane_uint4 x);
orvane_float4 __orvane_l9_cvtu32tofprtnf4(orvane_uint4 x);
orvane_float8 __orvane_l9_cvtu32tofprtnf8(orvane_uint8 x);
void __orvane_l9_cvtu32tofprtnf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtu32tofprtp: Conversion from uint to double, rounded up. */
orvane_double2 __orvane_l9_cvtu32tofprtp1(uint32_t x);
orvane_double2 __orvane_l9_cvtu32tofprtp2(orvane_uint4 x);
orvane_double4 __orvane_l9_cvtu32tofprtp3(orvane_uint4 x);
orvane_double4 __orvane_l9_cvtu32tofprtp4(orvane_uint4 x);
void __orvane_l9_cvtu32tofprtp8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtu32tofprtp16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtu32tofprtpf: Conversion from uint to float, rounded up. */
orvane_float4 __orvane_l9_cvtu32tofprtpf1(uint32_t x);
orvane_float4 __orvane_l9_cvtu32tofprtpf2(orvane_uint4 x);
orvane_float4 __orvane_l9_cvtu32tofprtpf3(orvane_uint4 x);
orvane_float4 __orvane_l9_cvtu32tofprtpf4(orvane_uint4 x);
orvane_float8 __orvane_l9_cvtu32tofprtpf8(orvane_uint8 x);
void __orvane_l9_cvtu32tofprtpf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtu32tofprtz: Conversion from uint to double, rounded toward zero. */
orvane_double2 __orvane_l9_cvtu32tofprtz1(uint32_t x);
orvane_double2 __orvane_l9_cvtu32tofprtz2(orvane_uint4 x);
orvane_double4 __orvane_l9_cvtu32tofprtz3(orvane_uint4 x);
orvane_double4 __orvane_l9_cvtu32tofprtz4(orvane_uint4 x);
void __orvane_l9_cvtu32tofprtz8(void) ORVANE_NOT_C; /* in ymm0; out ymm0 ymm1 */
void __orvane_l9_cvtu32tofprtz16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 ymm2 ymm3 */

/* cvtu32tofprtzf: Conversion from uint to float, rounded toward zero. */
orvane_float4 __orvane_l9_cvtu32tofprtzf1(uint32_t x);
orvane_float4 __orvane_l9_cvtu32tofprtzf2(orvane_uint4 x);
orvane_float4 __orvane_l9_cvtu32tofprtzf3(orvane_uint4 x);
orvane_float4 __orvane_l9_cvtu32tofprtzf4(orvane_uint4 x);
orvane_float8 __orvane_l9_cvtu32tofprtzf8(orvane_uint8 x);
void __orvane_l9_cvtu32tofprtzf16(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */

/* cvtu64tofprte: Conversion from ulong to double, rounded to nearest, ties to even. */
orvane_double2 __orvane_l9_cvtu64tofprte1(uint64_t x);
orvane_double2 __orvane_l9_cvtu64tofprte2(orvane_ulong2 x);
orvane_double4 __orvane_l9_cvtu64tofprte3(orvane_ulong4 x);
orvane_double4 __orvane_l9_cvtu64tofprte4(orvane_ulong4 x);
void __orvane_l9_cvtu64tofprte8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtu64tofprte16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtu64tofprtef: Conversion from ulong to float, rounded to nearest, ties to even. */
orvane_float4 __orvane_l9_cvtu64tofprtef1(uint64_t x);
orvane_float4 __orvane_l9_cvtu64tofprtef2(orvane_ulong2 x);
orvane_float4 __orvane_l9_cvtu64tofprtef3(orvane_ulong4 x);
orvane_float4 __orvane_l9_cvtu64tofprtef4(orvane_ulong4 x);
orvane_float8 __orvane_l9_cvtu64tofprtef8(orvane_ulong4 x0, orvane_ulong4 x1);
void __orvane_l9_cvtu64tofprtef16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtu64tofprtn: Conversion from ulong to double, rounded down. */
orvane_double2 __orvane_l9_cvtu64tofprtn1(uint64_t x);
orvane_double2 __orvane_l9_cvtu64tofprtn2(orvane_ulong2 x);
orvane_double4 __orvane_l9_cvtu64tofprtn3(orvane_ulong4 x);
orvane_double4 __orvane_l9_cvtu64tofprtn4(orvane_ulong4 x);
void __orvane_l9_cvtu64tofprtn8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtu64tofprtn16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtu64tofprtnf: Conversion from ulong to float, rounded down. */
orvane_float4 __orvane_l9_cvtu64tofprtnf1(uint64_t x);
orvane_float4 __orvane_l9_cvtu64tofprtnf2(orvane_ulong2 x);
orvane_float4 __orvane_l9_cvtu64tofprtnf3(orvane_ulong4 x);
orvane_float4 __orvane_l9_cvtu64tofprtnf4(orvane_ulong4 x);
orvane_float8 __orvane_l9_cvtu64tofprtnf8(orvane_ulong4 x0, orvane_ulong4 x1);
void __orvane_l9_cvtu64tofprtnf16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtu64tofprtp: Conversion from ulong to double, rounded up. */
orvane_double2 __orvane_l9_cvtu64tofprtp1(uint64_t x);
orvane_double2 __orvane_l9_cvtu64tofprtp2(orvane_ulong2 x);
orvane_double4 __orvane_l9_cvtu64tofprtp3(orvane_ulong4 x);
orvane_double4 __orvane_l9_cvtu64tofprtp4(orvane_ulong4 x);
void __orvane_l9_cvtu64tofprtp8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtu64tofprtp16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtu64tofprtpf: Conversion from ulong to float, rounded up. */
orvane_float4 __orvane_l9_cvtu64tofprtpf1(uint64_t x);
orvane_float4 __orvane_l9_cvtu64tofprtpf2(orvane_ulong2 x);
orvane_float4 __orvane_l9_cvtu64tofprtpf3(orvane_ulong4 x);
orvane_float4 __orvane_l9_cvtu64tofprtpf4(orvane_ulong4 x);
orvane_float8 __orvane_l9_cvtu64tofprtpf8(orvane_ulong4 x0, orvane_ulong4 x1);
void __orvane_l9_cvtu64tofprtpf16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtu64tofprtz: Conversion from ulong to double, rounded toward zero. */
orvane_double2 __orvane_l9_cvtu64tofprtz1(uint64_t x);
orvane_double2 __orvane_l9_cvtu64tofprtz2(orvane_ulong2 x);
orvane_double4 __orvane_l9_cvtu64tofprtz3(orvane_ulong4 x);
orvane_double4 __orvane_l9_cvtu64tofprtz4(orvane_ulong4 x);
void __orvane_l9_cvtu64tofprtz8(void) ORVANE_NOT_C; /* in ymm0 ymm1; out ymm0 ymm1 */
void __orvane_l9_cvtu64tofprtz16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 ymm2 ymm3 */

/* cvtu64tofprtzf: Conversion from ulong to float, rounded toward zero. */
orvane_float4 __orvane_l9_cvtu64tofprtzf1(uint64_t x);
orvane_float4 __orvane_l9_cvtu64tofprtzf2(orvane_ulong2 x);
orvane_float4 __orvane_l9_cvtu64tofprtzf3(orvane_ulong4 x);
orvane_float4 __orvane_l9_cvtu64tofprtzf4(orvane_ulong4 x);
orvane_float8 __orvane_l9_cvtu64tofprtzf8(orvane_ulong4 x0, orvane_ulong4 x1);
void __orvane_l9_cvtu64tofprtzf16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfp64tofp32rte: Conversion from double to float, rounded to nearest, ties to even. */
orvane_float4 __orvane_l9_cvtfp64tofp32rte1(orvane_double2 x);
orvane_float4 __orvane_l9_cvtfp64tofp32rte2(orvane_double2 x);
orvane_float4 __orvane_l9_cvtfp64tofp32rte3(orvane_double4 x);
orvane_float4 __orvane_l9_cvtfp64tofp32rte4(orvane_double4 x);
orvane_float8 __orvane_l9_cvtfp64tofp32rte8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfp64tofp32rte16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfp64tofp32rtn: Conversion from double to float, rounded down. */
orvane_float4 __orvane_l9_cvtfp64tofp32rtn1(orvane_double2 x);
orvane_float4 __orvane_l9_cvtfp64tofp32rtn2(orvane_double2 x);
orvane_float4 __orvane_l9_cvtfp64tofp32rtn3(orvane_double4 x);
orvane_float4 __orvane_l9_cvtfp64tofp32rtn4(orvane_double4 x);
orvane_float8 __orvane_l9_cvtfp64tofp32rtn8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfp64tofp32rtn16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfp64tofp32rtp: Conversion from double to float, rounded up. */
orvane_float4 __orvane_l9_cvtfp64tofp32rtp1(orvane_double2 x);
orvane_float4 __orvane_l9_cvtfp64tofp32rtp2(orvane_double2 x);
orvane_float4 __orvane_l9_cvtfp64tofp32rtp3(orvane_double4 x);
orvane_float4 __orvane_l9_cvtfp64tofp32rtp4(orvane_double4 x);
orvane_float8 __orvane_l9_cvtfp64tofp32rtp8(orvane_double4 x0, orvane_double4 x1);
void __orvane_l9_cvtfp64tofp32rtp16(void) ORVANE_NOT_C; /* in ymm0 ymm1 ymm2 ymm3; out ymm0 ymm1 */

/* cvtfp64tofp32rtz: Conversion from double to float, rounded toward zero. */
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
