#include "tests/probes/probes_rare.h"

namespace orvane {

void (*orvane_probe_hook)() = nullptr;

namespace {
int visited() {
    if (orvane_probe_hook) orvane_probe_hook();
    return ordinary;
}
// The sign and the lowest bits tell lanes apart, also infinite ones and NaN.
template <class T> int tag(T x) { return (int)(bits(x) & 0xFFF) - (int)(bits(x) >> (8 * sizeof(T) - 1)); }
} // namespace

#define ORVANE_PROBE_BODIES(s, T)                                                                                    \
    int __orvane_##s##probe_one_cout_rare(const T* x, T* result) {                                                   \
        *result = T(5000 + tag(*x));                                                                                 \
        return visited();                                                                                            \
    }                                                                                                                \
    int __orvane_##s##probe_one_to_two_cout_rare(const T* x, T* result, T* out) {                                    \
        *result = T(5000 + tag(*x));                                                                                 \
        *out = T(6000 + tag(*x));                                                                                    \
        return visited();                                                                                            \
    }                                                                                                                \
    int __orvane_##s##probe_to_integer_cout_rare(const T* x, int32_t* result) {                                      \
        *result = 5000 + tag(*x);                                                                                    \
        return visited();                                                                                            \
    }                                                                                                                \
    int __orvane_##s##probe_integer_out_cout_rare(const T* x, T* result, int32_t* out) {                             \
        *result = T(5000 + tag(*x));                                                                                 \
        *out = 6000 + tag(*x);                                                                                       \
        return visited();                                                                                            \
    }                                                                                                                \
    int __orvane_##s##probe_with_integer_cout_rare(const T* x, const int32_t* n, T* result) {                        \
        *result = T(5000 + tag(*x) + (*n & 0xFFF) * 2);                                                              \
        return visited();                                                                                            \
    }                                                                                                                \
    int __orvane_##s##probe_two_cout_rare(const T* x, const T* y, T* result) {                                       \
        *result = T(5000 + tag(*x) + tag(*y) * 2);                                                                   \
        return visited();                                                                                            \
    }                                                                                                                \
    int __orvane_##s##probe_two_out_cout_rare(const T* x, const T* y, T* result, int32_t* out) {                     \
        *result = T(5000 + tag(*x) + tag(*y) * 2);                                                                   \
        *out = 6000 + tag(*y);                                                                                       \
        return visited();                                                                                            \
    }                                                                                                                \
    int __orvane_##s##probe_three_cout_rare(const T* x, const T* y, const T* z, T* result) {                         \
        *result = T(5000 + tag(*x) + tag(*y) * 2 + tag(*z) * 4);                                                     \
        return visited();                                                                                            \
    }
ORVANE_PROBE_BODIES(d, double)
ORVANE_PROBE_BODIES(s, float)

} // namespace orvane
