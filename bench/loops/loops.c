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
