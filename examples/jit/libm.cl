// Built-ins of the benchmark's kernels on the C library's scalar functions: what the passes are measured against.
#pragma OPENCL EXTENSION cl_khr_fp64 : enable
#define FN __attribute__((overloadable, always_inline))
#define ONE(NAME)                                                                                                     \
    float __attribute__((const)) NAME##f(float);                                                                      \
    double __attribute__((const)) JOINED(c_, NAME)(double) __asm(#NAME);                                              \
    float FN NAME(float x) { return NAME##f(x); }                                                                     \
    double FN NAME(double x) { return JOINED(c_, NAME)(x); }
#define JOINED(a, b) a##b
ONE(exp)
ONE(log)
ONE(erfc)
ONE(sin)
ONE(cos)
ONE(asin)
ONE(tanh)
float __attribute__((const)) powf(float, float);
float FN pow(float x, float y) { return powf(x, y); }
double __attribute__((const)) c_pow(double, double) __asm("pow");
double FN pow(double x, double y) { return c_pow(x, y); }
void sincosf(float, float*, float*);
float FN sincos(float x, private float* c) {
    float s, d;
    sincosf(x, &s, &d);
    *c = d;
    return s;
}
float FN sincos(float x, generic float* c) {
    float s, d;
    sincosf(x, &s, &d);
    *c = d;
    return s;
}
float FN sqrt(float x) { return __builtin_sqrtf(x); }
double FN sqrt(double x) { return __builtin_sqrt(x); }
float FN rsqrt(float x) { return 1 / __builtin_sqrtf(x); }
