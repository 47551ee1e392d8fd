// What call.hpp lets the compiler keep across a call, and the declarations of orvane.h. (That both call every export
// right is in exports_test.)
#include "include/orvane/call.hpp"
#define ORVANE_CALLED_WITH_AVX
#include "include/orvane/orvane.h"
#include "tests/support.h"

#include <immintrin.h>

using namespace orvane;

namespace {

// What a leaf function keeps in its red zone, below the stack pointer.
__attribute__((noinline)) int below_the_stack_pointer(const void* f, int n) {
    volatile int below[8] = {n, n + 1, n + 2, n + 3, n + 4, n + 5, n + 6, n + 7};
    const auto e = call<float>(f, vec<float, 1>{{NAN}});
    int sum = e[0] != e[0];
    for (int i = 0; i < 8; i++)
        sum += below[i] - n;
    return sum;
}

// More vectors than registers 8 to 15 hold, more integers than are free, and a value on the x87 stack, all of them
// live across a call that takes a slow path.
__attribute__((noinline, target("avx2"))) bool live_values(const void* f, const float* from, const uint64_t* n) {
#define TWELVE(X) X(0) X(1) X(2) X(3) X(4) X(5) X(6) X(7) X(8) X(9) X(10) X(11)
#define LOAD(i)                                                                                                      \
    const __m256 v##i = _mm256_sqrt_ps(_mm256_loadu_ps(from + i));                                                   \
    const uint64_t n##i = n[i] * (2 * i + 3);
    TWELVE(LOAD)
    const long double third = 1.0L / from[0];
    const auto y = call<float>(f, vec<float, 8>{{NAN, 0, 0, 0, 0, 0, 0, NAN}});
    float s[8];
    bool same = y[1] == 1 && y[0] != y[0] && third == 1.0L / from[0];
#define COMPARE(i)                                                                                                   \
    _mm256_storeu_ps(s, v##i);                                                                                       \
    for (int k = 0; k < 8; k++)                                                                                      \
        same &= s[k] * s[k] == from[i + k];                                                                          \
    same &= n##i == n[i] * (2 * i + 3);
    TWELVE(COMPARE)
    return same;
#undef TWELVE
#undef LOAD
#undef COMPARE
}

// As many values on the x87 stack as it holds, across calls whose slow paths compute there.
__attribute__((noinline)) bool live_x87_values(const void* gamma, const void* log_gamma, const double* from) {
#define EIGHT(X) X(0) X(1) X(2) X(3) X(4) X(5) X(6) X(7)
#define LOAD(i) const long double v##i = 1.0L / from[i];
    EIGHT(LOAD)
    const double y = call<double>(gamma, vec<double, 2>{{5, -0.5}})[0];
    const double z = call<double>(log_gamma, vec<double, 2>{{2, 20.5}})[0];
    bool same = y == 24 && z == 0;
#define COMPARE(i) same &= v##i == 1.0L / from[i];
    EIGHT(COMPARE)
    return same;
#undef EIGHT
#undef LOAD
#undef COMPARE
}

// A result in the integer register, where nothing else asks for registers.
__attribute__((noinline)) int quotient(const void* f, int a, int b) {
    return call<int32_t>(f, vec<int32_t, 1>{{a}}, vec<int32_t, 1>{{b}})[0];
}
__attribute__((noinline)) vec<float, 8> exponential(const void* f, const vec<float, 8>& x) {
    return call<float>(f, x);
}

TEST(Caller, KeepsWhatTheCompilerKeeps) {
    float squares[19];
    for (int i = 0; i < 19; i++)
        squares[i] = (i + 2) * (i + 2);
    const uint64_t n[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    const void* one = library_under_test().address("__orvane_l9_expf1");
    const void* eight = library_under_test().address("__orvane_l9_expf8");
    const void* divide = library_under_test().address("__orvane_l9_idiv1");
    ASSERT_TRUE(one && eight && divide);
    EXPECT_EQ(quotient(divide, -17, 5), -3);
    EXPECT_EQ(exponential(eight, vec<float, 8>{{NAN}})[7], 1);
    EXPECT_EQ(below_the_stack_pointer(one, 1000), 29);
    EXPECT_TRUE(live_values(eight, squares, n));
    const double odd[] = {3, 5, 7, 9, 11, 13, 15, 17};
    EXPECT_TRUE(live_x87_values(library_under_test().address("__orvane_l9_tgamma2"),
                                library_under_test().address("__orvane_l9_lgamma2"), odd));
}

// The address of an export under the type that orvane.h declares it with.
template <class F> F* declared(const char* symbol) { return (F*)library_under_test().address(symbol); }
#define DECLARED(name) declared<decltype(name)>(#name)

// One of each kind of declaration.
__attribute__((target("avx2"))) void call_declared() {
    const orvane_float4 e = DECLARED(__orvane_l9_expf2)(orvane_float4{0, 0});
    EXPECT_EQ(e[0], 1);
    EXPECT_EQ(e[1], 1);
    const orvane_float8 m =
        DECLARED(__orvane_l9_fmaxf8)(orvane_float8{1, 2, 3, 4, 5, 6, 7, 8}, orvane_float8{8, 7, 6, 5, 4, 3, 2, 1});
    EXPECT_EQ(m[0], 8);
    EXPECT_EQ(m[7], 8);
    EXPECT_EQ(m[4], 5);
    float whole;
    EXPECT_EQ(DECLARED(__orvane_l9_fractf1)(&whole, orvane_float4{-0.25f})[0], 0.75f);
    EXPECT_EQ(whole, -1);
    double parts[4] = {};
    const orvane_double4 f = DECLARED(__orvane_l9_modf3)(parts, orvane_double4{1.5, -2.25, 3});
    EXPECT_EQ(f[1], -0.25);
    EXPECT_EQ(parts[1], -2);
    EXPECT_EQ(DECLARED(__orvane_l9_idivrem1)(7, 2), 0x100000003u);
    EXPECT_EQ(DECLARED(__orvane_l9_irem1)(-7, 2), -1);
    const orvane_int4 q = DECLARED(__orvane_l9_idiv2)(orvane_int4{7, -9}, orvane_int4{2, 4});
    EXPECT_EQ(q[0], 3);
    EXPECT_EQ(q[1], -2);
    orvane_args_fma16 a;
    for (int i = 0; i < 16; i++)
        a.x[i] = i, a.y[i] = 15 - i, a.z[i] = 1;
    double sum[16];
    EXPECT_EQ(DECLARED(__orvane_l9_fma16)(sum, a), sum);
    for (int i = 0; i < 16; i++)
        EXPECT_EQ(sum[i], i * (15 - i) + 1);
}
TEST(Declarations, AreCallable) { call_declared(); }

} // namespace
