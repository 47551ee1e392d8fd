/* Written by write-vecabi.
 *
 * The functions of math.h, and those that OpenCL C has beside them, with their vector forms in liborvane_vecabi: GCC
 * then vectorizes a loop that calls them at -O3 (or -O2 -ftree-vectorize) for -mavx2 -mfma, with no flag that gives up
 * exact arithmetic. Results are those of the exports' default tiers, in every lane; what is left over at a loop's end
 * calls the C library for its own functions and liborvane_vecabi for the rest.
 *
 * The declarations say that a function has no effect but its result: errno and signgam are not to be counted on.
 * Other compilers see declarations alone. */
#ifndef ORVANE_MATH_H
#define ORVANE_MATH_H

#ifdef __cplusplus
#include <cmath>
#else
#include <math.h>
#endif

#if defined __GNUC__ && !defined __clang__ && defined __x86_64__
#define ORVANE_SIMD __attribute__((simd("notinbranch"), const, nothrow))
#define ORVANE_SIMD_STORES __attribute__((simd("notinbranch"), nothrow))
#else
#define ORVANE_SIMD __attribute__((const, nothrow))
#define ORVANE_SIMD_STORES __attribute__((nothrow))
#endif
#ifdef __cplusplus
#define ORVANE_NO_THROW noexcept(true)
#else
#define ORVANE_NO_THROW
#endif
#ifdef __GLIBC_PREREQ
#define ORVANE_GLIBC(minor) __GLIBC_PREREQ(2, minor)
#else
#define ORVANE_GLIBC(minor) 0
#endif

#ifdef __cplusplus
extern "C" {
#endif

double exp(double x) ORVANE_NO_THROW ORVANE_SIMD;
float expf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double exp2(double x) ORVANE_NO_THROW ORVANE_SIMD;
float exp2f(float x) ORVANE_NO_THROW ORVANE_SIMD;
double exp10(double x) ORVANE_NO_THROW ORVANE_SIMD;
float exp10f(float x) ORVANE_NO_THROW ORVANE_SIMD;
double expm1(double x) ORVANE_NO_THROW ORVANE_SIMD;
float expm1f(float x) ORVANE_NO_THROW ORVANE_SIMD;
double log(double x) ORVANE_NO_THROW ORVANE_SIMD;
float logf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double log2(double x) ORVANE_NO_THROW ORVANE_SIMD;
float log2f(float x) ORVANE_NO_THROW ORVANE_SIMD;
double log10(double x) ORVANE_NO_THROW ORVANE_SIMD;
float log10f(float x) ORVANE_NO_THROW ORVANE_SIMD;
double log1p(double x) ORVANE_NO_THROW ORVANE_SIMD;
float log1pf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double pow(double x, double y) ORVANE_NO_THROW ORVANE_SIMD;
float powf(float x, float y) ORVANE_NO_THROW ORVANE_SIMD;
double sqrt(double x) ORVANE_NO_THROW ORVANE_SIMD;
float sqrtf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double cbrt(double x) ORVANE_NO_THROW ORVANE_SIMD;
float cbrtf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double hypot(double x, double y) ORVANE_NO_THROW ORVANE_SIMD;
float hypotf(float x, float y) ORVANE_NO_THROW ORVANE_SIMD;
double sin(double x) ORVANE_NO_THROW ORVANE_SIMD;
float sinf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double cos(double x) ORVANE_NO_THROW ORVANE_SIMD;
float cosf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double tan(double x) ORVANE_NO_THROW ORVANE_SIMD;
float tanf(float x) ORVANE_NO_THROW ORVANE_SIMD;
void sincos(double x, double* sine, double* cosine) ORVANE_NO_THROW ORVANE_SIMD_STORES;
void sincosf(float x, float* sine, float* cosine) ORVANE_NO_THROW ORVANE_SIMD_STORES;
double asin(double x) ORVANE_NO_THROW ORVANE_SIMD;
float asinf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double acos(double x) ORVANE_NO_THROW ORVANE_SIMD;
float acosf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double atan(double x) ORVANE_NO_THROW ORVANE_SIMD;
float atanf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double atan2(double x, double y) ORVANE_NO_THROW ORVANE_SIMD;
float atan2f(float x, float y) ORVANE_NO_THROW ORVANE_SIMD;
double sinh(double x) ORVANE_NO_THROW ORVANE_SIMD;
float sinhf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double cosh(double x) ORVANE_NO_THROW ORVANE_SIMD;
float coshf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double tanh(double x) ORVANE_NO_THROW ORVANE_SIMD;
float tanhf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double asinh(double x) ORVANE_NO_THROW ORVANE_SIMD;
float asinhf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double acosh(double x) ORVANE_NO_THROW ORVANE_SIMD;
float acoshf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double atanh(double x) ORVANE_NO_THROW ORVANE_SIMD;
float atanhf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double erf(double x) ORVANE_NO_THROW ORVANE_SIMD;
float erff(float x) ORVANE_NO_THROW ORVANE_SIMD;
double erfc(double x) ORVANE_NO_THROW ORVANE_SIMD;
float erfcf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double tgamma(double x) ORVANE_NO_THROW ORVANE_SIMD;
float tgammaf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double lgamma(double x) ORVANE_NO_THROW ORVANE_SIMD;
float lgammaf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double ceil(double x) ORVANE_NO_THROW ORVANE_SIMD;
float ceilf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double floor(double x) ORVANE_NO_THROW ORVANE_SIMD;
float floorf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double trunc(double x) ORVANE_NO_THROW ORVANE_SIMD;
float truncf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double rint(double x) ORVANE_NO_THROW ORVANE_SIMD;
float rintf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double nearbyint(double x) ORVANE_NO_THROW ORVANE_SIMD;
float nearbyintf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double round(double x) ORVANE_NO_THROW ORVANE_SIMD;
float roundf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double ldexp(double x, int n) ORVANE_NO_THROW ORVANE_SIMD;
double scalbn(double x, int n) ORVANE_NO_THROW ORVANE_SIMD;
float ldexpf(float x, int n) ORVANE_NO_THROW ORVANE_SIMD;
float scalbnf(float x, int n) ORVANE_NO_THROW ORVANE_SIMD;
int ilogb(double x) ORVANE_NO_THROW ORVANE_SIMD;
int ilogbf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double logb(double x) ORVANE_NO_THROW ORVANE_SIMD;
float logbf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double nextafter(double x, double y) ORVANE_NO_THROW ORVANE_SIMD;
float nextafterf(float x, float y) ORVANE_NO_THROW ORVANE_SIMD;
double copysign(double x, double y) ORVANE_NO_THROW ORVANE_SIMD;
float copysignf(float x, float y) ORVANE_NO_THROW ORVANE_SIMD;
double fabs(double x) ORVANE_NO_THROW ORVANE_SIMD;
float fabsf(float x) ORVANE_NO_THROW ORVANE_SIMD;
double fmin(double x, double y) ORVANE_NO_THROW ORVANE_SIMD;
float fminf(float x, float y) ORVANE_NO_THROW ORVANE_SIMD;
double fmax(double x, double y) ORVANE_NO_THROW ORVANE_SIMD;
float fmaxf(float x, float y) ORVANE_NO_THROW ORVANE_SIMD;
double fdim(double x, double y) ORVANE_NO_THROW ORVANE_SIMD;
float fdimf(float x, float y) ORVANE_NO_THROW ORVANE_SIMD;
double fma(double x, double y, double z) ORVANE_NO_THROW ORVANE_SIMD;
float fmaf(float x, float y, float z) ORVANE_NO_THROW ORVANE_SIMD;
double fmod(double x, double y) ORVANE_NO_THROW ORVANE_SIMD;
float fmodf(float x, float y) ORVANE_NO_THROW ORVANE_SIMD;
double remainder(double x, double y) ORVANE_NO_THROW ORVANE_SIMD;
float remainderf(float x, float y) ORVANE_NO_THROW ORVANE_SIMD;

/* Times or over pi; newer C libraries have them as well. */
#if ORVANE_GLIBC(41)
double sinpi(double x) ORVANE_NO_THROW ORVANE_SIMD;
#else
double sinpi(double x) ORVANE_NO_THROW __asm__("orvane_sinpi") ORVANE_SIMD;
#endif
#if ORVANE_GLIBC(41)
float sinpif(float x) ORVANE_NO_THROW ORVANE_SIMD;
#else
float sinpif(float x) ORVANE_NO_THROW __asm__("orvane_sinpif") ORVANE_SIMD;
#endif
#if ORVANE_GLIBC(41)
double cospi(double x) ORVANE_NO_THROW ORVANE_SIMD;
#else
double cospi(double x) ORVANE_NO_THROW __asm__("orvane_cospi") ORVANE_SIMD;
#endif
#if ORVANE_GLIBC(41)
float cospif(float x) ORVANE_NO_THROW ORVANE_SIMD;
#else
float cospif(float x) ORVANE_NO_THROW __asm__("orvane_cospif") ORVANE_SIMD;
#endif
#if ORVANE_GLIBC(41)
double tanpi(double x) ORVANE_NO_THROW ORVANE_SIMD;
#else
double tanpi(double x) ORVANE_NO_THROW __asm__("orvane_tanpi") ORVANE_SIMD;
#endif
#if ORVANE_GLIBC(41)
float tanpif(float x) ORVANE_NO_THROW ORVANE_SIMD;
#else
float tanpif(float x) ORVANE_NO_THROW __asm__("orvane_tanpif") ORVANE_SIMD;
#endif
#if ORVANE_GLIBC(41)
double asinpi(double x) ORVANE_NO_THROW ORVANE_SIMD;
#else
double asinpi(double x) ORVANE_NO_THROW __asm__("orvane_asinpi") ORVANE_SIMD;
#endif
#if ORVANE_GLIBC(41)
float asinpif(float x) ORVANE_NO_THROW ORVANE_SIMD;
#else
float asinpif(float x) ORVANE_NO_THROW __asm__("orvane_asinpif") ORVANE_SIMD;
#endif
#if ORVANE_GLIBC(41)
double acospi(double x) ORVANE_NO_THROW ORVANE_SIMD;
#else
double acospi(double x) ORVANE_NO_THROW __asm__("orvane_acospi") ORVANE_SIMD;
#endif
#if ORVANE_GLIBC(41)
float acospif(float x) ORVANE_NO_THROW ORVANE_SIMD;
#else
float acospif(float x) ORVANE_NO_THROW __asm__("orvane_acospif") ORVANE_SIMD;
#endif
#if ORVANE_GLIBC(41)
double atanpi(double x) ORVANE_NO_THROW ORVANE_SIMD;
#else
double atanpi(double x) ORVANE_NO_THROW __asm__("orvane_atanpi") ORVANE_SIMD;
#endif
#if ORVANE_GLIBC(41)
float atanpif(float x) ORVANE_NO_THROW ORVANE_SIMD;
#else
float atanpif(float x) ORVANE_NO_THROW __asm__("orvane_atanpif") ORVANE_SIMD;
#endif
#if ORVANE_GLIBC(41)
double atan2pi(double x, double y) ORVANE_NO_THROW ORVANE_SIMD;
#else
double atan2pi(double x, double y) ORVANE_NO_THROW __asm__("orvane_atan2pi") ORVANE_SIMD;
#endif
#if ORVANE_GLIBC(41)
float atan2pif(float x, float y) ORVANE_NO_THROW ORVANE_SIMD;
#else
float atan2pif(float x, float y) ORVANE_NO_THROW __asm__("orvane_atan2pif") ORVANE_SIMD;
#endif

/* Reciprocal square root and powers; newer C libraries have them, with another n in pown and rootn. */
#if ORVANE_GLIBC(42)
double powr(double x, double y) ORVANE_NO_THROW ORVANE_SIMD;
#else
double powr(double x, double y) ORVANE_NO_THROW __asm__("orvane_powr") ORVANE_SIMD;
#endif
#if ORVANE_GLIBC(42)
float powrf(float x, float y) ORVANE_NO_THROW ORVANE_SIMD;
#else
float powrf(float x, float y) ORVANE_NO_THROW __asm__("orvane_powrf") ORVANE_SIMD;
#endif
#if ORVANE_GLIBC(42)
#else
double pown(double x, int n) ORVANE_NO_THROW __asm__("orvane_pown") ORVANE_SIMD;
#endif
#if ORVANE_GLIBC(42)
#else
float pownf(float x, int n) ORVANE_NO_THROW __asm__("orvane_pownf") ORVANE_SIMD;
#endif
#if ORVANE_GLIBC(42)
#else
double rootn(double x, int n) ORVANE_NO_THROW __asm__("orvane_rootn") ORVANE_SIMD;
#endif
#if ORVANE_GLIBC(42)
#else
float rootnf(float x, int n) ORVANE_NO_THROW __asm__("orvane_rootnf") ORVANE_SIMD;
#endif
#if ORVANE_GLIBC(42)
double rsqrt(double x) ORVANE_NO_THROW ORVANE_SIMD;
#else
double rsqrt(double x) ORVANE_NO_THROW __asm__("orvane_rsqrt") ORVANE_SIMD;
#endif
#if ORVANE_GLIBC(42)
float rsqrtf(float x) ORVANE_NO_THROW ORVANE_SIMD;
#else
float rsqrtf(float x) ORVANE_NO_THROW __asm__("orvane_rsqrtf") ORVANE_SIMD;
#endif

/* Reciprocal cube root, and the argument of smaller or larger magnitude. */
double rcbrt(double x) ORVANE_NO_THROW __asm__("orvane_rcbrt") ORVANE_SIMD;
float rcbrtf(float x) ORVANE_NO_THROW __asm__("orvane_rcbrtf") ORVANE_SIMD;
double minmag(double x, double y) ORVANE_NO_THROW __asm__("orvane_minmag") ORVANE_SIMD;
float minmagf(float x, float y) ORVANE_NO_THROW __asm__("orvane_minmagf") ORVANE_SIMD;
double maxmag(double x, double y) ORVANE_NO_THROW __asm__("orvane_maxmag") ORVANE_SIMD;
float maxmagf(float x, float y) ORVANE_NO_THROW __asm__("orvane_maxmagf") ORVANE_SIMD;

#ifdef __cplusplus
}
#endif

#undef ORVANE_SIMD
#undef ORVANE_SIMD_STORES
#undef ORVANE_NO_THROW
#undef ORVANE_GLIBC
#endif
