// Included before the frame in kernels of the bent library: the two estimate instructions become calls.
#pragma once

#include <immintrin.h>

namespace orvane {
__m256 bent_reciprocal(__m256 a);
__m256 bent_rsqrt(__m256 a);
} // namespace orvane

#define _mm256_rcp_ps(a) ((__m256)::orvane::bent_reciprocal((__m256)(a)))
#define _mm256_rsqrt_ps(a) ((__m256)::orvane::bent_rsqrt((__m256)(a)))
#define _mm_rcp_ps(a) _mm256_castps256_ps128(::orvane::bent_reciprocal(_mm256_castps128_ps256((__m128)(a))))
#define _mm_rsqrt_ps(a) _mm256_castps256_ps128(::orvane::bent_rsqrt(_mm256_castps128_ps256((__m128)(a))))
