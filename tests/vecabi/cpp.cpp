// Loops as a user of C++ writes them: the functions of <cmath> by their overloads, and std::experimental::simd.
#include <cmath>
#include <orvane/math.h>
#include <orvane/simd.hpp>

#define LOOP(name, T, f)                                                                                             \
    extern "C" void loop_##name(T* __restrict r, const T* __restrict x) {                                            \
        for (int i = 0; i < 256; i++)                                                                                \
            r[i] = f(x[i]);                                                                                          \
    }
LOOP(exp, double, std::exp)
LOOP(lgamma, double, std::lgamma)
LOOP(expf, float, std::exp)
LOOP(log1pf, float, std::log1p)
LOOP(tgammaf, float, std::tgamma)
LOOP(lgammaf, float, lgammaf)
LOOP(sinpif, float, sinpif)
extern "C" void loop_powf(float* __restrict r, const float* __restrict x) {
    for (int i = 0; i < 256; i++)
        r[i] = std::pow(x[i], 1.7f);
}

namespace stdx = std::experimental;
extern "C" void loop_simd(stdx::native_simd<float>& y, const stdx::native_simd<float>& x) {
    y = orvane::log(orvane::fast::exp(x));
}
