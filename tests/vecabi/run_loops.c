// Runs the loops and compares every result with the bits that the export of one lane gives.
//
//     run_loops LIBORVANE_L9 [NAME...]     the loops over these functions, or all
#include "loops.h"

#include <dlfcn.h>
#include <limits.h>
#include <math.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static void* library;
static int failed, compared;

static void* export_of(const char* name) {
    char symbol[64];
    if (!strncmp(name, "scalbn", 6)) name = name[6] ? "ldexpf" : "ldexp";
    if (!strcmp(name, "lgamma_r")) name = "lgammar";
    if (!strcmp(name, "lgammaf_r")) name = "lgammarf";
    snprintf(symbol, sizeof symbol, "__orvane_l9_%s1", name);
    void* f = dlsym(library, symbol);
    if (!f) fprintf(stderr, "%s\n", dlerror()), exit(2);
    return f;
}

static uint64_t state = 88172645463325252;
static double between(double lo, double hi) {
    state ^= state << 13, state ^= state >> 7, state ^= state << 17;
    return lo + (hi - lo) * (state >> 11) * 0x1p-53;
}

static const double special[] = {
    0,    -0.0,    INFINITY, -INFINITY, NAN,  1,      -1,  0x1p-1074, -0x1.8p-1030, 0x1p-140, 1e300, -1e300,
    3e38, -2.5e20, 709.9,    -745.2,    88.9, -103.5, 0.5, 1e9,       -7,           2,        170.7, -0.5};
enum { SPECIAL = sizeof special / sizeof *special };

static struct arguments_double d;
static struct arguments_float f;

// Ordinary vectors first, so that both paths of a kernel run; then special arguments, alone and side by side.
static void fill(double lo, double hi, double ylo, double yhi) {
    for (int i = 0; i < MOST; i++) {
        const int among = i >= 48 && (i % 5 == 0 || i > 160);
        d.x[i] = among ? special[(i * 7) % SPECIAL] : between(lo, hi);
        d.y[i] = among && i % 2 ? special[(i * 11 + i / SPECIAL) % SPECIAL] : between(ylo, yhi);
        d.z[i] = between(-30, 30);
        d.n[i] = among && i % 3 == 0 ? (i % 2 ? INT_MAX : INT_MIN) : (int)between(-9, 9);
        f.x[i] = d.x[i], f.y[i] = d.y[i], f.z[i] = d.z[i], f.n[i] = d.n[i];
    }
}

static void fail(const char* name, int i, double x, double y, int n, double got, double expected) {
    if (failed++ < 20)
        printf("%s: lane %d, x = %a, y = %a, n = %d: %a instead of %a\n", name, i, x, y, n, got, expected);
}

// Where compilers may turn arguments round: of several NaNs a fused multiply-add gives the first in the order of the
// instruction, and fmin and fmax give the second of two equal arguments, zeros of either sign among them.
#define OF(name, family) (!strncmp(name, family, strlen(family)))
#define SAME(T, name, a, b)                                                                                          \
    (!memcmp(&a, &b, sizeof a) || (OF(name, "fma") && a != a && b != b) ||                                           \
     ((OF(name, "fmin") || (OF(name, "fmax"))) && (a == b || (a != a && b != b))))
#define COMPARE(T, got, expected)                                                                                    \
    do {                                                                                                             \
        compared++;                                                                                                  \
        if (!SAME(T, name, got, expected)) fail(name, i, a->x[i], a->y[i], a->n[i], got, expected);                  \
    } while (0)

#define CHECK_OF(T, kind, body)                                                                                      \
    static void check_##kind##_##T(const char* name, const struct results_##T* r, const struct arguments_##T* a) {   \
        void* f = export_of(name);                                                                                   \
        for (int i = 0; i < MOST; i++) {                                                                             \
            T y = 0, second = 0;                                                                                     \
            int n = 0;                                                                                               \
            (void)y, (void)second, (void)n;                                                                          \
            body                                                                                                     \
        }                                                                                                            \
    }
#define CHECKS(T)                                                                                                    \
    CHECK_OF(T, V, y = ((T(*)(T))f)(a->x[i]); COMPARE(T, r->first[i], y);)                                           \
    CHECK_OF(T, VV, y = ((T(*)(T, T))f)(a->x[i], a->y[i]); COMPARE(T, r->first[i], y);)                              \
    CHECK_OF(T, VVV, y = ((T(*)(T, T, T))f)(a->x[i], a->y[i], a->z[i]); COMPARE(T, r->first[i], y);)                 \
    CHECK_OF(T, VI, y = ((T(*)(T, int))f)(a->x[i], a->n[i]); COMPARE(T, r->first[i], y);)                            \
    CHECK_OF(T, IV, n = ((int (*)(T))f)(a->x[i]); COMPARE(T, r->whole[i], n);)                                       \
    CHECK_OF(T, P, y = ((T(*)(T, T*))f)(a->x[i], &second); COMPARE(T, r->first[i], y);                               \
             COMPARE(T, r->second[i], second);)                                                                      \
    CHECK_OF(T, PI, y = ((T(*)(T, int*))f)(a->x[i], &n); COMPARE(T, r->first[i], y); COMPARE(T, r->whole[i], n);)    \
    CHECK_OF(T, PVI, y = ((T(*)(T, T, int*))f)(a->x[i], a->y[i], &n); COMPARE(T, r->first[i], y);                    \
             COMPARE(T, r->whole[i], n);)
CHECKS(double)
CHECKS(float)

// Sine and cosine by name.
#define CHECK_BOTH(T)                                                                                                \
    static void check_PP_##T(const char* name, const struct results_##T* r, const struct arguments_##T* a) {         \
        const int single = name[strlen(name) - 1] == 'f', pi = name[6] == 'p';                                       \
        T (*sine)(T) = (T(*)(T))export_of(pi ? single ? "sinpif" : "sinpi" : single ? "sincosf" : "sincos");         \
        T (*cosine)(T) = (T(*)(T))export_of(single ? "cospif" : "cospi");                                            \
        for (int i = 0; i < MOST; i++) {                                                                             \
            T s, c;                                                                                                  \
            if (pi) s = sine(a->x[i]), c = cosine(a->x[i]);                                                          \
            else s = ((T(*)(T, T*))(void*)sine)(a->x[i], &c);                                                        \
            COMPARE(T, r->first[i], s);                                                                              \
            COMPARE(T, r->second[i], c);                                                                             \
        }                                                                                                            \
    }
CHECK_BOTH(double)
CHECK_BOTH(float)

static int wanted(char** names, const char* name) {
    if (!*names) return 1;
    for (; *names; names++)
        if (!strcmp(*names, name)) return 1;
    return 0;
}

int main(int argc, char** argv) {
    library = dlopen(argv[argc > 1], RTLD_NOW);
    if (!library) return fprintf(stderr, "%s\n", dlerror()), 2;
    static struct results_double rd;
    static struct results_float rf;
#define LOOP(kind, dname, fname, lo, hi, ...)                                                                        \
    fill(lo, hi, __VA_ARGS__);                                                                                       \
    if (wanted(argv + 2, #dname)) loop_##dname(&rd, &d), check_##kind##_double(#dname, &rd, &d);                     \
    if (wanted(argv + 2, #fname)) loop_##fname(&rf, &f), check_##kind##_float(#fname, &rf, &f);
#include "functions.def"
    if (failed) return printf("%d of %d results differ\n", failed, compared), 1;
    printf("%d results\n", compared);
    return 0;
}
