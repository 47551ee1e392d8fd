#include "libm_builtins.h"

#include <cmath>
#include <cstdint>

namespace orvane {

namespace {

// Drivers link kernels to their own library alone, and OpenCL C has no pointers to functions: the functions are
// called at their addresses by assembly, which says what a call in C changes. The stack is aligned, and its red zone
// kept.
constexpr const char* calls = R"cl(
#pragma OPENCL EXTENSION cl_khr_fp64 : enable
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wpsabi"
#define ORVANE_FN __attribute__((overloadable, always_inline))
#define ORVANE_CALLED "rbx", "rcx", "rdx", "r8", "r9", "r10", "r11", "xmm2", "xmm3", "xmm4", "xmm5", "xmm6", "xmm7", "xmm8", \
        "xmm9", "xmm10", "xmm11", "xmm12", "xmm13", "xmm14", "xmm15", "memory", "cc"
#define ORVANE_CALL "vzeroupper\n movq %%rsp, %%rbx\n subq $128, %%rsp\n andq $-32, %%rsp\n callq *%%rax\n movq %%rbx, %%rsp"
#define ORVANE_VECTORS_1(NAME, T) \
    T##2 ORVANE_FN NAME(T##2 x) { return (T##2)(NAME(x.x), NAME(x.y)); } \
    T##3 ORVANE_FN NAME(T##3 x) { return (T##3)(NAME(x.x), NAME(x.y), NAME(x.z)); } \
    T##4 ORVANE_FN NAME(T##4 x) { return (T##4)(NAME(x.lo), NAME(x.hi)); } \
    T##8 ORVANE_FN NAME(T##8 x) { return (T##8)(NAME(x.lo), NAME(x.hi)); } \
    T##16 ORVANE_FN NAME(T##16 x) { return (T##16)(NAME(x.lo), NAME(x.hi)); }
#define ORVANE_VECTORS_2(NAME, T, U) \
    T##2 ORVANE_FN NAME(T##2 x, U##2 y) { return (T##2)(NAME(x.x, y.x), NAME(x.y, y.y)); } \
    T##3 ORVANE_FN NAME(T##3 x, U##3 y) { return (T##3)(NAME(x.x, y.x), NAME(x.y, y.y), NAME(x.z, y.z)); } \
    T##4 ORVANE_FN NAME(T##4 x, U##4 y) { return (T##4)(NAME(x.lo, y.lo), NAME(x.hi, y.hi)); } \
    T##8 ORVANE_FN NAME(T##8 x, U##8 y) { return (T##8)(NAME(x.lo, y.lo), NAME(x.hi, y.hi)); } \
    T##16 ORVANE_FN NAME(T##16 x, U##16 y) { return (T##16)(NAME(x.lo, y.lo), NAME(x.hi, y.hi)); }
#define ORVANE_LIBM_1(NAME, T, ADDRESS) \
    T ORVANE_FN NAME(T x) { ulong f = ADDRESS; \
        __asm__(ORVANE_CALL : "+Yz"(x), "+a"(f) : : ORVANE_CALLED, "rsi", "rdi", "xmm1"); return x; } \
    ORVANE_VECTORS_1(NAME, T)
#define ORVANE_LIBM_2(NAME, T, MOVE, ADDRESS) \
    T ORVANE_FN NAME(T x, T y) { ulong f = ADDRESS; \
        __asm__(MOVE " %2, %%xmm1\n" ORVANE_CALL : "+Yz"(x), "+a"(f) : "m"(y) : ORVANE_CALLED, "rsi", "rdi", "xmm1"); \
        return x; } \
    ORVANE_VECTORS_2(NAME, T, T)
#define ORVANE_SINCOS_TO(NAME, T, N, SPACE) \
    T##N ORVANE_FN NAME(T##N x, SPACE T##N *c) { T##N s, d; s = NAME##_both(x, &d); *c = d; return s; }
#define ORVANE_SINCOS_WIDE(NAME, T, N) \
    T##N ORVANE_FN NAME##_both(T##N x, __private T##N *c) { \
        T##N s; for (int i = 0; i < N; i++) { T d; s[i] = NAME##_both(x[i], &d); (*c)[i] = d; } return s; }
#if defined(__opencl_c_generic_address_space) || __OPENCL_C_VERSION__ == 200
#define ORVANE_SINCOS_SPACES(NAME, T, N) ORVANE_SINCOS_TO(NAME, T, N, generic)
#else
#define ORVANE_SINCOS_SPACES(NAME, T, N) ORVANE_SINCOS_TO(NAME, T, N, __private) \
    ORVANE_SINCOS_TO(NAME, T, N, __global) ORVANE_SINCOS_TO(NAME, T, N, __local)
#endif
#define ORVANE_SINCOS(NAME, T, ADDRESS) \
    T ORVANE_FN NAME##_both(T x, __private T *c) { ulong f = ADDRESS; T s, d, *ps = &s, *pc = &d; \
        __asm__ volatile(ORVANE_CALL : "+Yz"(x), "+a"(f), "+D"(ps), "+S"(pc) : : ORVANE_CALLED, "xmm1"); \
        *c = d; return s; } \
    ORVANE_SINCOS_WIDE(NAME, T, 2) ORVANE_SINCOS_WIDE(NAME, T, 3) ORVANE_SINCOS_WIDE(NAME, T, 4) \
    ORVANE_SINCOS_WIDE(NAME, T, 8) ORVANE_SINCOS_WIDE(NAME, T, 16) ORVANE_SINCOS_SPACES(NAME, T, ) \
    ORVANE_SINCOS_SPACES(NAME, T, 2) ORVANE_SINCOS_SPACES(NAME, T, 3) ORVANE_SINCOS_SPACES(NAME, T, 4) \
    ORVANE_SINCOS_SPACES(NAME, T, 8) ORVANE_SINCOS_SPACES(NAME, T, 16)
#define ORVANE_FROM_1(NAME, T, VALUE) T ORVANE_FN NAME(T x) { return VALUE; } ORVANE_VECTORS_1(NAME, T)
#define ORVANE_FROM_2(NAME, T, U, VALUE) T ORVANE_FN NAME(T x, U y) { return VALUE; } ORVANE_VECTORS_2(NAME, T, U)
)cl";

// What the C library lacks, by what it has.
constexpr const char* composed = R"cl(
#define ORVANE_COMPOSED(T, PI) \
    ORVANE_FROM_1(orvane_libm_sinpi, T, orvane_libm_sin((T)PI * x)) \
    ORVANE_FROM_1(orvane_libm_cospi, T, orvane_libm_cos((T)PI * x)) \
    ORVANE_FROM_1(orvane_libm_tanpi, T, orvane_libm_tan((T)PI * x)) \
    ORVANE_FROM_1(orvane_libm_asinpi, T, orvane_libm_asin(x) / (T)PI) \
    ORVANE_FROM_1(orvane_libm_acospi, T, orvane_libm_acos(x) / (T)PI) \
    ORVANE_FROM_1(orvane_libm_atanpi, T, orvane_libm_atan(x) / (T)PI) \
    ORVANE_FROM_2(orvane_libm_atan2pi, T, T, orvane_libm_atan2(x, y) / (T)PI) \
    ORVANE_FROM_2(orvane_libm_pown, T, int, orvane_libm_pow(x, (T)y)) \
    ORVANE_FROM_2(orvane_libm_rootn, T, int, orvane_libm_pow(x, (T)1 / (T)y))
ORVANE_COMPOSED(float, 3.14159265358979323846f)
)cl";

struct one {
    const char* name;
    float (*f)(float);
    double (*d)(double);
};
struct two {
    const char* name;
    float (*f)(float, float);
    double (*d)(double, double);
};
// lgamma writes a global of the C library, as in any C program.
constexpr one ones[] = {
    {"exp", expf, exp},         {"exp2", exp2f, exp2},    {"exp10", exp10f, exp10}, {"expm1", expm1f, expm1},
    {"log", logf, log},         {"log2", log2f, log2},    {"log10", log10f, log10}, {"log1p", log1pf, log1p},
    {"sin", sinf, sin},         {"cos", cosf, cos},       {"tan", tanf, tan},       {"asin", asinf, asin},
    {"acos", acosf, acos},      {"atan", atanf, atan},    {"sinh", sinhf, sinh},    {"cosh", coshf, cosh},
    {"tanh", tanhf, tanh},      {"asinh", asinhf, asinh}, {"acosh", acoshf, acosh}, {"atanh", atanhf, atanh},
    {"erf", erff, erf},         {"erfc", erfcf, erfc},    {"cbrt", cbrtf, cbrt},    {"tgamma", tgammaf, tgamma},
    {"lgamma", lgammaf, lgamma}};
constexpr two twos[] = {{"pow", powf, pow},
                        {"atan2", atan2f, atan2},
                        {"hypot", hypotf, hypot},
                        {"fmod", fmodf, fmod},
                        {"remainder", remainderf, remainder}};

template <class F> std::string address(F* f) { return std::to_string(reinterpret_cast<uintptr_t>(f)) + "ul"; }

} // namespace

std::string libm_builtins(bool with_double) {
    std::string s = calls, names;
    const auto known_as = [&](const std::string& name, const std::string& as) {
        names += "#undef " + name + "\n#define " + name + " orvane_libm_" + as + "\n";
    };
    for (const auto& [name, f, d] : ones) {
        const std::string n = std::string("orvane_libm_") + name;
        s += "ORVANE_LIBM_1(" + n + ", float, " + address(f) + ")\n";
        if (with_double) s += "ORVANE_LIBM_1(" + n + ", double, " + address(d) + ")\n";
        known_as(name, name);
    }
    for (const auto& [name, f, d] : twos) {
        const std::string n = std::string("orvane_libm_") + name;
        s += "ORVANE_LIBM_2(" + n + ", float, \"movss\", " + address(f) + ")\n";
        if (with_double) s += "ORVANE_LIBM_2(" + n + ", double, \"movsd\", " + address(d) + ")\n";
        known_as(name, name);
    }
    s += "ORVANE_SINCOS(orvane_libm_sincos, float, " +
         address(static_cast<void (*)(float, float*, float*)>(sincosf)) + ")\n";
    if (with_double)
        s += "ORVANE_SINCOS(orvane_libm_sincos, double, " +
             address(static_cast<void (*)(double, double*, double*)>(sincos)) + ")\n";
    s += composed;
    if (with_double) s += "ORVANE_COMPOSED(double, 3.14159265358979323846)\n";
    for (const char* name :
         {"sincos", "sinpi", "cospi", "tanpi", "asinpi", "acospi", "atanpi", "atan2pi", "pown", "rootn"})
        known_as(name, name);
    known_as("powr", "pow");
    for (const char* name : {"exp", "exp2", "exp10", "log", "log2", "log10", "sin", "cos", "tan"}) {
        known_as(std::string("native_") + name, name);
        known_as(std::string("half_") + name, name);
    }
    known_as("native_powr", "pow");
    known_as("half_powr", "pow");
    return s + "#pragma clang diagnostic pop\n" + names;
}

} // namespace orvane
