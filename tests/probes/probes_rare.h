// The slow paths of the probes. Each answers with numbers that no vector path gives, and can be told to look at the
// stack on its way.
#pragma once

#include "frame/rare.h"

#define ORVANE_PROBE_PATHS(s, T)                                                                                     \
    ORVANE_SLOW_PATH(__orvane_##s##probe_one_cout_rare, const T* x, T* result);                                      \
    ORVANE_SLOW_PATH(__orvane_##s##probe_one_to_two_cout_rare, const T* x, T* result, T* out);                       \
    ORVANE_SLOW_PATH(__orvane_##s##probe_to_integer_cout_rare, const T* x, int32_t* result);                         \
    ORVANE_SLOW_PATH(__orvane_##s##probe_integer_out_cout_rare, const T* x, T* result, int32_t* out);                \
    ORVANE_SLOW_PATH(__orvane_##s##probe_with_integer_cout_rare, const T* x, const int32_t* n, T* result);           \
    ORVANE_SLOW_PATH(__orvane_##s##probe_two_cout_rare, const T* x, const T* y, T* result);                          \
    ORVANE_SLOW_PATH(__orvane_##s##probe_two_out_cout_rare, const T* x, const T* y, T* result, int32_t* out);        \
    ORVANE_SLOW_PATH(__orvane_##s##probe_three_cout_rare, const T* x, const T* y, const T* z, T* result);            \
    template <> struct probe_rare<T> {                                                                               \
        static constexpr auto& one = __orvane_##s##probe_one_cout_rare;                                              \
        static constexpr auto& one_to_two = __orvane_##s##probe_one_to_two_cout_rare;                                \
        static constexpr auto& to_integer = __orvane_##s##probe_to_integer_cout_rare;                                \
        static constexpr auto& integer_out = __orvane_##s##probe_integer_out_cout_rare;                              \
        static constexpr auto& with_integer = __orvane_##s##probe_with_integer_cout_rare;                            \
        static constexpr auto& two = __orvane_##s##probe_two_cout_rare;                                              \
        static constexpr auto& two_out = __orvane_##s##probe_two_out_cout_rare;                                      \
        static constexpr auto& three = __orvane_##s##probe_three_cout_rare;                                          \
    };

namespace orvane {

template <class T> struct probe_rare;
ORVANE_PROBE_PATHS(d, double)
ORVANE_PROBE_PATHS(s, float)

// Called by every slow path of the probes, if set.
extern "C" [[gnu::visibility("default")]] void (*orvane_probe_hook)();

} // namespace orvane
