#include "estimates.h"

#include <bit>
#include <cstdio>
#include <immintrin.h>

namespace orvane {

const std::string& kind_of_processor() {
    static const std::string kind = [] {
        uint64_t digest = 0;
        for (uint32_t n = 0; n < 1 << 14; n++) {
            const __m128 x = _mm_set_ss(std::bit_cast<float>(0x3F800000 + (n << 10)));
            digest = mixed(digest, std::bit_cast<uint32_t>(_mm_cvtss_f32(_mm_rcp_ss(x))));
            digest = mixed(digest, std::bit_cast<uint32_t>(_mm_cvtss_f32(_mm_rsqrt_ss(x))));
        }
        char text[17];
        snprintf(text, sizeof text, "%016llx", (unsigned long long)digest);
        return std::string(text);
    }();
    return kind;
}

bool first_nan_wins() {
    volatile uint32_t patterns[] = {0x7FC00001, 0x7FC00002};
    const __m128 a = _mm_castsi128_ps(_mm_cvtsi32_si128(int(patterns[0]))),
                 b = _mm_castsi128_ps(_mm_cvtsi32_si128(int(patterns[1])));
    return std::bit_cast<uint32_t>(_mm_cvtss_f32(_mm_div_ss(a, b))) == patterns[0];
}

} // namespace orvane
