// Sine and cosine of one argument, as a user writes them.
#include "loops.h"

#include <math.h>

void loop_sincos(struct results_double* restrict r, const struct arguments_double* restrict a) {
    for (int i = 0; i < MOST; i++) {
        r->first[i] = sin(a->x[i]);
        r->second[i] = cos(a->x[i]);
    }
}
void loop_sincosf(struct results_float* restrict r, const struct arguments_float* restrict a) {
    for (int i = 0; i < MOST; i++) {
        r->second[i] = cosf(a->x[i]);
        r->first[i] = sinf(a->x[i]);
    }
}
