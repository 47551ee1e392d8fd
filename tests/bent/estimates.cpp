#include "tests/bent/bend.h"

#include <bit>
#include <cstdint>

extern "C" {
[[gnu::visibility("default")]] auto orvane_bend = orvane::bend::exact;
}

namespace orvane {
namespace {

// Half a unit short of the limit, so that rounding to a float stays within it.
constexpr double limit = 1.5 * 0x1p-12 - 0x1p-24;

float bent(float a, double value) {
    const uint32_t bits = std::bit_cast<uint32_t>(a), mixed = (bits ^ bits >> 15) * 0x9E3779B1u;
    const double end = (int32_t)mixed < 0 ? -limit : limit;
    double by = 0;
    switch (orvane_bend) {
    case bend::exact:
        break;
    case bend::up:
        by = limit;
        break;
    case bend::down:
        by = -limit;
        break;
    case bend::either_end:
        by = end;
        break;
    case bend::anywhere:
        by = (int32_t)mixed * 0x1p-31 * limit;
        break;
    case bend::exact_for_powers:
        by = (bits & 0x007FFFFF) ? end : 0;
        break;
    }
    const float estimate = (float)(value * (1 + by));
    return std::bit_cast<float>(std::bit_cast<uint32_t>(estimate) & 0x7FFFFFFF) < 0x1p-126f ? estimate * 0.0f
                                                                                            : estimate;
}
// Subnormal numbers count as zeros.
float flushed(float a) {
    const uint32_t bits = std::bit_cast<uint32_t>(a);
    return bits & 0x7F800000 ? a : std::bit_cast<float>(bits & 0x80000000);
}

} // namespace

__m256 bent_reciprocal(__m256 a) {
    for (int i = 0; i < 8; i++)
        a[i] = bent(a[i], 1 / (double)flushed(a[i]));
    return a;
}
__m256 bent_rsqrt(__m256 a) {
    for (int i = 0; i < 8; i++)
        a[i] = bent(a[i], 1 / __builtin_sqrt((double)flushed(a[i])));
    return a;
}

} // namespace orvane
