// What a family is held against: SLEEF's function of the same meaning, and scalar code with libm.
#pragma once

#include "bench/pass.h"

#include <optional>

namespace orvane::bench {

// A function of a vector of some lanes. One whose arguments and result are registers is called by the very loop that
// calls our exports; `run` calls any other.
struct vector_function {
    pass run;
    int lanes;
    const void* in_registers = nullptr;
};
template <class R, class... A> constexpr bool is_in_registers =
    !std::is_class_v<R> && (!std::is_class_v<A> && ...) && sizeof(R) >= 16 && ((sizeof(A) >= 16) && ...);

struct peer {
    const char* name;       // "u10": within 1.0 ulp; empty where SLEEF states no error
    vector_function wide;   // 256 bits per call
    vector_function narrow; // 128 bits per call, for vectors that fit them
    const char* library;    // "SLEEF" or "C", what the compiler makes of scalar code
    peer(const char* name, vector_function wide, vector_function narrow, const char* library = "SLEEF")
        : name(name), wide(std::move(wide)), narrow(std::move(narrow)), library(library) {}
    const vector_function& at(int width, lane_type t) const { return width * size_of(t) <= 16 ? narrow : wide; }
};

struct family_peers {
    std::optional<peer> accurate; // SLEEF, the most accurate one; or plain C
    std::optional<peer> fast;     // SLEEF, the one of lower accuracy where it has two
    pass scalar;                  // empty: nothing to compare with
    pass chained_scalar;          // each lane after the one before; empty where that is not measured
    // The first result of the argument lanes in long double, to measure errors by; empty where the lanes are
    // integers.
    std::function<void(buffer&, long double* results)> truth;
};

// The peers of the family of `row`; all empty if it has none.
family_peers peers_of(const kernel_row& row);
// Those of conversions and of families of one instruction, in plain C; all empty for others.
family_peers plain_peers_of(const kernel_row& row);

} // namespace orvane::bench
