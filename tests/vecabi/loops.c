// A loop for every function, as a user of orvane/math.h writes it. C_LIBRARY_ALONE leaves that header out.
#define _GNU_SOURCE
#include "loops.h"

#ifdef C_LIBRARY_ALONE
#include <math.h>
#else
#include <orvane/math.h>
#endif

#define LOOP_OF(T, f, statement)                                                                                     \
    void loop_##f(struct results_##T* restrict r, const struct arguments_##T* restrict a) {                          \
        for (int i = 0; i < MOST; i++)                                                                               \
            statement;                                                                                               \
    }
#define V(T, f) LOOP_OF(T, f, r->first[i] = f(a->x[i]))
#define VV(T, f) LOOP_OF(T, f, r->first[i] = f(a->x[i], a->y[i]))
#define VVV(T, f) LOOP_OF(T, f, r->first[i] = f(a->x[i], a->y[i], a->z[i]))
#define VI(T, f) LOOP_OF(T, f, r->first[i] = f(a->x[i], a->n[i]))
#define IV(T, f) LOOP_OF(T, f, r->whole[i] = f(a->x[i]))

// Functions that store through pointers: they are declared with OpenMP's linear clauses, and an OpenMP pragma has the
// loops vectorized.
#define SIMD_LOOP_OF(T, f, statement)                                                                                \
    void loop_##f(struct results_##T* restrict r, const struct arguments_##T* restrict a) {                          \
        _Pragma("omp simd") for (int i = 0; i < MOST; i++) statement;                                                \
    }
#define PP(T, f) SIMD_LOOP_OF(T, f, f(a->x[i], r->first + i, r->second + i))
#define P(T, f) SIMD_LOOP_OF(T, f, r->first[i] = f(a->x[i], r->second + i))
#define PI(T, f) SIMD_LOOP_OF(T, f, r->first[i] = f(a->x[i], r->whole + i))
#define PVI(T, f) SIMD_LOOP_OF(T, f, r->first[i] = f(a->x[i], a->y[i], r->whole + i))

#ifndef C_LIBRARY_ALONE
#define LINEAR _Pragma("omp declare simd notinbranch linear(p:1)")
#define TWO_LINEAR _Pragma("omp declare simd notinbranch linear(p:1) linear(q:1)")
TWO_LINEAR void sincospi(double x, double* p, double* q);
TWO_LINEAR void sincospif(float x, float* p, float* q);
LINEAR double modf(double x, double* p);
LINEAR float modff(float x, float* p);
LINEAR double fract(double x, double* p);
LINEAR float fractf(float x, float* p);
LINEAR double frexp(double x, int* p);
LINEAR float frexpf(float x, int* p);
LINEAR double lgamma_r(double x, int* p);
LINEAR float lgammaf_r(float x, int* p);
LINEAR double remquo(double x, double y, int* p);
LINEAR float remquof(float x, float y, int* p);
#endif

#define LOOP(kind, d, f, ...) kind(double, d) kind(float, f)
#include "functions.def"
