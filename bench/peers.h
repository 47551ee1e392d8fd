// The functions of the same meaning elsewhere: SLEEF's AVX2 variants and the scalar C library.
#pragma once

#include <functional>
#include <string>

namespace orvane::bench {

// Runs the peer over n lanes (a multiple of 16) of its arguments; results go to `out`.
struct operands {
    const void *x, *y, *z;
    void* out;
    size_t n;
};
using peer = std::function<void(const operands&)>;

// By base name without the f; null where there is no such function. `fast` asks for the 3.5-ulp variant, where there
// is one beside the 1.0-ulp variant.
peer sleef_peer(const std::string& base, bool is_float, bool fast);
peer libm_peer(const std::string& base, bool is_float);

} // namespace orvane::bench
