/* The loops that are measured, as a user writes them: compiled with vector functions, and once more as scalar code.
 */
#define _GNU_SOURCE
#include "loops.h"

#include <orvane/math.h>

#define LOOP_OF(T, R, f, statement)                                                                                  \
    void loop_##f(R* restrict r, const T* restrict x, const T* restrict y, const int* restrict n, long count) {      \
        (void)y, (void)n;                                                                                            \
        for (long i = 0; i < count; i++)                                                                             \
            statement;                                                                                               \
    }
#define V(T, f) LOOP_OF(T, T, f, r[i] = f(x[i]))
#define VV(T, f) LOOP_OF(T, T, f, r[i] = f(x[i], y[i]))
#define VVV(T, f) LOOP_OF(T, T, f, r[i] = f(x[i], y[i], x[i]))
#define VI(T, f) LOOP_OF(T, T, f, r[i] = f(x[i], n[i]))
#define IV(T, f) LOOP_OF(T, int, f, r[i] = f(x[i]))
#define LOOP(kind, d, f, ...) kind(double, d) kind(float, f)
#include "tests/vecabi/functions.def"

/* Of what OpenCL C has beyond the C library, a pair that SLEEF has as well, under names of the vector ABI alone. */
#ifdef LOOPS_OF_SLEEF
#define SLEEF_V(T, f)                                                                                                \
    T sleef_##f(T) __asm__(#f) __attribute__((nothrow, const, simd("notinbranch")));                                 \
    LOOP_OF(T, T, f, r[i] = sleef_##f(x[i]))
#elif defined LOOPS_OF_SCALAR
#define SLEEF_V(T, f) /* the C library has none */
#else
#define SLEEF_V V
#endif
SLEEF_V(double, sinpi)
SLEEF_V(float, sinpif)
SLEEF_V(double, cospi)
SLEEF_V(float, cospif)
