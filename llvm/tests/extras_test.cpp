// What the OpenCL C source beside the list of exports computes, against the host's own arithmetic.
#include "examples/jit/jit.h"

#include <gtest/gtest.h>
#include <immintrin.h>

#include <bit>
#include <cmath>
#include <random>

namespace {

using wide = __int128;
constexpr size_t items = 500;

template <class T> wide clamped(wide v) {
    return std::min<wide>(std::max<wide>(v, std::numeric_limits<T>::min()), std::numeric_limits<T>::max());
}
// The product of two 64-bit integers of one sign has up to 128 bits, signed or not.
template <class T> T high_half(T a, T b) {
    if constexpr (std::is_signed_v<T>) return T((wide(a) * b) >> (8 * sizeof(T)));
    else return T((unsigned __int128)(a)*b >> (8 * sizeof(T)));
}
template <class T> T saturated_sum_of_product(T a, T b, T d) {
    if constexpr (std::is_signed_v<T>) return T(clamped<T>(wide(a) * b + d));
    else {
        const unsigned __int128 p = (unsigned __int128)(a)*b + d;
        return p > std::numeric_limits<T>::max() ? std::numeric_limits<T>::max() : T(p);
    }
}

template <class T> std::vector<T> expected(T a, T b, T d) {
    using U = std::make_unsigned_t<T>;
    const U ua = a;
    const T low = std::min(b, d), high = std::max(b, d);
    return {T(clamped<T>(wide(a) + b)),
            T(clamped<T>(wide(a) - b)),
            T((wide(a) + b) >> 1),
            T((wide(a) + b + 1) >> 1),
            high_half(a, b),
            saturated_sum_of_product(a, b, d),
            T(std::rotl(ua, int(U(b) % (8 * sizeof(T))))),
            T(std::countl_zero(ua)),
            T(std::popcount(ua)),
            T(a < 0 ? -wide(a) : wide(a)),
            T(a < b ? wide(b) - a : wide(a) - b),
            std::min(std::max(a, low), high),
            T(std::countr_zero(ua)),
            T(high_half(a, b) + d),
            T((ua & ~U(d)) | (U(b) & U(d))),
            d & 1 ? b : a};
}

const jit::program& extras(unsigned width) {
    static const jit::program scalar(ORVANE_LLVM_TESTS "/extras.cl", {.width = 1}),
        eight(ORVANE_LLVM_TESTS "/extras.cl", {.width = 8});
    return width == 1 ? scalar : eight;
}

template <class T> void check_integers(const char* type) {
    std::mt19937_64 bits(7);
    std::vector<T> x[3], out(16 * items);
    for (auto& v : x)
        for (size_t i = 0; i < items; i++) {
            const T edges[] = {0, 1, T(-1), std::numeric_limits<T>::min(), std::numeric_limits<T>::max()};
            v.push_back(bits() % 3 ? T(bits() >> bits() % 64) : edges[bits() % 5]);
        }
    for (const char* form : {"integers_", "vectors_"})
        for (unsigned width : {1, 8}) {
            void* p[] = {x[0].data(), x[1].data(), x[2].data(), out.data()};
            void* arguments[] = {&p[0], &p[1], &p[2], &p[3]};
            extras(width).kernel(std::string(form) + type)(arguments, 0, items);
            for (size_t i = 0; i < items; i++) {
                const auto want = expected<T>(x[0][i], x[1][i], x[2][i]);
                for (size_t k = 0; k < 16; k++)
                    ASSERT_EQ(out[16 * i + k], want[k])
                        << form << type << " result " << k << " of " << +x[0][i] << ", " << +x[1][i] << ", "
                        << +x[2][i] << ", width " << width;
            }
        }
}

} // namespace

TEST(Extras, Integers) {
    check_integers<int8_t>("char");
    check_integers<uint8_t>("uchar");
    check_integers<int16_t>("short");
    check_integers<uint16_t>("ushort");
    check_integers<int32_t>("int");
    check_integers<uint32_t>("uint");
    check_integers<int64_t>("long");
    check_integers<uint64_t>("ulong");
}

TEST(Extras, Floats) {
    std::mt19937_64 bits(9);
    std::uniform_real_distribution<float> real(-3, 3);
    std::vector<float> x[3], out(32 * items);
    for (auto& v : x)
        for (size_t i = 0; i < items; i++)
            v.push_back(real(bits));
    for (unsigned width : {1, 8}) {
        void* p[] = {x[0].data(), x[1].data(), x[2].data(), out.data()};
        void* arguments[] = {&p[0], &p[1], &p[2], &p[3]};
        extras(width).kernel("floats")(arguments, 0, items);
        for (size_t i = 0; i < items; i++) {
            const double a = x[0][i], b = x[1][i], d = x[2][i], t = std::min(std::max(a, 0.), 1.);
            const double norm = std::sqrt(a * a + b * b + d * d), norm4 = std::sqrt(a * a + b * b + d * d + 1);
            auto half = [&](int mode) {
                const float v = x[0][i];
                switch (mode) {
                case 0:
                    return double(_cvtsh_ss(_cvtss_sh(v, _MM_FROUND_TO_ZERO)));
                case 1:
                    return double(_cvtsh_ss(_cvtss_sh(v, _MM_FROUND_TO_POS_INF)));
                default:
                    return double(_cvtsh_ss(_cvtss_sh(v, _MM_FROUND_TO_NEAREST_INT)));
                }
            };
            const bool negative_a = a < 0, negative_b = b < 0;
            const double want[32] = {std::min(std::max(a, std::min(b, d)), std::max(b, d)),
                                     a + (b - a) * d,
                                     b < a ? 0. : 1.,
                                     t * t * (3 - 2 * t),
                                     a > 0   ? 1.
                                     : a < 0 ? -1.
                                             : 0.,
                                     a * 180 / M_PI,
                                     a * M_PI / 180,
                                     a * d + b * a + d * b + 2,
                                     norm * 1e30,
                                     norm * 1e-30,
                                     std::fabs(a - b),
                                     3 * b - 2 * d,
                                     d - 3 * a,
                                     2 * a - b,
                                     a / norm4,
                                     b / norm4,
                                     d / norm4,
                                     1 / norm4,
                                     a > b ? 1. : 0.,
                                     1. + 2 + (d < 0 ? 4 : 0) + 8,
                                     negative_a ? 1. : 0.,
                                     negative_a && negative_b ? 1. : 0.,
                                     5.,
                                     b,
                                     6.,
                                     4.,
                                     std::nearbyint(std::min(std::max(double(x[0][i] * 100), -128.), 127.)),
                                     double(int(x[1][i] * 10) & 0xffff),
                                     a * b + d,
                                     half(0),
                                     half(1),
                                     half(2)};
            for (int k = 0; k < 32; k++) {
                const double bound = k >= 29 || k == 26 || k == 27
                                         ? 0
                                         : 2e-6 * std::max(1., std::fabs(want[k])) * (k == 9 ? 1e-30 : 1);
                ASSERT_NEAR(out[32 * i + k], want[k], bound)
                    << "result " << k << " of " << a << ", " << b << ", " << d << ", width " << width;
            }
        }
    }
}
