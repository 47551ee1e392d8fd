// The loops over all functions, and what they run on.
#pragma once

enum { MOST = 256 }; // whole rounds of every loop, unrolled too: no lane is left to scalar code

#define DATA(T)                                                                                                      \
    struct arguments_##T {                                                                                           \
        T x[MOST], y[MOST], z[MOST];                                                                                 \
        int n[MOST];                                                                                                 \
    };                                                                                                               \
    struct results_##T {                                                                                             \
        T first[MOST], second[MOST];                                                                                 \
        int whole[MOST];                                                                                             \
    };
DATA(double)
DATA(float)

#define LOOP(kind, d, f, ...)                                                                                        \
    void loop_##d(struct results_double* restrict r, const struct arguments_double* restrict a);                     \
    void loop_##f(struct results_float* restrict r, const struct arguments_float* restrict a);
#include "functions.def"
#undef LOOP
