#include "peers.h"

#include <cmath>
#include <immintrin.h>
#include <map>
#include <sleef.h>

namespace orvane::bench {

namespace {

// Loops over lane vectors of a function of one, two or three arguments.
template <class T> struct vector_of;
template <> struct vector_of<float> {
    using type = __m256;
    static type load(const void* p, size_t i) { return _mm256_loadu_ps((const float*)p + i); }
    static void store(void* p, size_t i, type v) { _mm256_storeu_ps((float*)p + i, v); }
};
template <> struct vector_of<double> {
    using type = __m256d;
    static type load(const void* p, size_t i) { return _mm256_loadu_pd((const double*)p + i); }
    static void store(void* p, size_t i, type v) { _mm256_storeu_pd((double*)p + i, v); }
};
template <class T, class F> peer over_vectors(F f) {
    using V = vector_of<T>;
    return [f](const operands& o) {
        for (size_t i = 0; i < o.n; i += 32 / sizeof(T)) {
            const auto x = V::load(o.x, i);
            if constexpr (std::is_invocable_v<F, decltype(x)>) V::store(o.out, i, f(x));
            else if constexpr (std::is_invocable_v<F, decltype(x), decltype(x)>)
                V::store(o.out, i, f(x, V::load(o.y, i)));
            else V::store(o.out, i, f(x, V::load(o.y, i), V::load(o.z, i)));
        }
    };
}
template <class T, class F> peer over_scalars(F f) {
    return [f](const operands& o) {
        const T *x = (const T*)o.x, *y = (const T*)o.y, *z = (const T*)o.z;
        T* out = (T*)o.out;
        for (size_t i = 0; i < o.n; i++) {
            if constexpr (std::is_invocable_v<F, T>) out[i] = f(x[i]);
            else if constexpr (std::is_invocable_v<F, T, T>) out[i] = f(x[i], y[i]);
            else out[i] = f(x[i], y[i], z[i]);
        }
    };
}

struct pair_of_peers {
    peer f32, f64;
};
#define SLEEF(base, ulp)                                                                                             \
    {                                                                                                                \
#base, {                                                                                                     \
            over_vectors<float>([](auto... a) -> decltype(Sleef_##base##f8_##ulp##avx2(a...)) {                      \
                return Sleef_##base##f8_##ulp##avx2(a...);                                                           \
            }),                                                                                                      \
                over_vectors<double>([](auto... a) -> decltype(Sleef_##base##d4_##ulp##avx2(a...)) {                 \
                    return Sleef_##base##d4_##ulp##avx2(a...);                                                       \
                })                                                                                                   \
        }                                                                                                            \
    }
#define SLEEF_EXACT(base)                                                                                            \
    {                                                                                                                \
#base, {                                                                                                     \
            over_vectors<float>(                                                                                     \
                [](auto... a) -> decltype(Sleef_##base##f8_avx2(a...)) { return Sleef_##base##f8_avx2(a...); }),     \
                over_vectors<double>(                                                                                \
                    [](auto... a) -> decltype(Sleef_##base##d4_avx2(a...)) { return Sleef_##base##d4_avx2(a...); })  \
        }                                                                                                            \
    }
const std::map<std::string, pair_of_peers>& accurate() {
    static const std::map<std::string, pair_of_peers> m = {
        SLEEF(exp, u10),
        SLEEF(exp2, u10),
        SLEEF(exp10, u10),
        SLEEF(expm1, u10),
        SLEEF(log, u10),
        SLEEF(log2, u10),
        SLEEF(log10, u10),
        SLEEF(log1p, u10),
        SLEEF(pow, u10),
        SLEEF(sin, u10),
        SLEEF(cos, u10),
        SLEEF(tan, u10),
        SLEEF(sinpi, u05),
        SLEEF(cospi, u05),
        SLEEF(asin, u10),
        SLEEF(acos, u10),
        SLEEF(atan, u10),
        SLEEF(atan2, u10),
        SLEEF(sinh, u10),
        SLEEF(cosh, u10),
        SLEEF(tanh, u10),
        SLEEF(asinh, u10),
        SLEEF(acosh, u10),
        SLEEF(atanh, u10),
        SLEEF(cbrt, u10),
        SLEEF(hypot, u05),
        SLEEF(erf, u10),
        SLEEF(erfc, u15),
        SLEEF(tgamma, u10),
        SLEEF(lgamma, u10),
        SLEEF(sqrt, u05),
        SLEEF_EXACT(fmod),
        SLEEF_EXACT(fdim),
        SLEEF_EXACT(fma),
        SLEEF_EXACT(fmin),
        SLEEF_EXACT(fmax),
        SLEEF_EXACT(rint),
        SLEEF_EXACT(round),
        SLEEF_EXACT(trunc),
        SLEEF_EXACT(ceil),
        SLEEF_EXACT(floor),
        SLEEF_EXACT(fabs),
        SLEEF_EXACT(copysign),
        SLEEF_EXACT(nextafter),
        {"modf",
         {over_vectors<float>([](__m256 x) { return Sleef_modff8_avx2(x).x; }),
          over_vectors<double>([](__m256d x) { return Sleef_modfd4_avx2(x).x; })}},
        {"frexp",
         {over_vectors<float>([](__m256 x) { return Sleef_frfrexpf8_avx2(x); }), over_vectors<double>([](__m256d x) {
              const __m128i e = Sleef_expfrexpd4_avx2(x);
              return _mm256_or_pd(Sleef_frfrexpd4_avx2(x), _mm256_and_pd(_mm256_cvtepi32_pd(e), _mm256_setzero_pd()));
          })}},
        {"sincos",
         {over_vectors<float>([](__m256 x) {
              const auto r = Sleef_sincosf8_u10avx2(x);
              return _mm256_add_ps(r.x, r.y);
          }),
          over_vectors<double>([](__m256d x) {
              const auto r = Sleef_sincosd4_u10avx2(x);
              return _mm256_add_pd(r.x, r.y);
          })}},
    };
    return m;
}
const std::map<std::string, pair_of_peers>& fast_ones() {
    static const std::map<std::string, pair_of_peers> m = {
        SLEEF(exp2, u35),
        SLEEF(exp10, u35),
        SLEEF(log, u35),
        SLEEF(log2, u35),
        SLEEF(sin, u35),
        SLEEF(cos, u35),
        SLEEF(tan, u35),
        SLEEF(asin, u35),
        SLEEF(acos, u35),
        SLEEF(atan, u35),
        SLEEF(atan2, u35),
        SLEEF(sinh, u35),
        SLEEF(cosh, u35),
        SLEEF(tanh, u35),
        SLEEF(cbrt, u35),
        SLEEF(hypot, u35),
        SLEEF(sqrt, u35),
        {"sincos",
         {over_vectors<float>([](__m256 x) {
              const auto r = Sleef_sincosf8_u35avx2(x);
              return _mm256_add_ps(r.x, r.y);
          }),
          over_vectors<double>([](__m256d x) {
              const auto r = Sleef_sincosd4_u35avx2(x);
              return _mm256_add_pd(r.x, r.y);
          })}},
    };
    return m;
}

#define LIBM(base, call)                                                                                             \
    {                                                                                                                \
        base, {                                                                                                      \
            over_scalars<float>([](auto... a) -> decltype(call(a...)) { return call(a...); }),                       \
                over_scalars<double>([](auto... a) -> decltype(call(a...)) { return call(a...); })                   \
        }                                                                                                            \
    }
const std::map<std::string, pair_of_peers>& scalar() {
    static const std::map<std::string, pair_of_peers> m = {
        LIBM("exp", std::exp),
        LIBM("exp2", std::exp2),
        LIBM("expm1", std::expm1),
        LIBM("log", std::log),
        LIBM("log2", std::log2),
        LIBM("log10", std::log10),
        LIBM("log1p", std::log1p),
        LIBM("pow", std::pow),
        LIBM("powr", std::pow),
        LIBM("sin", std::sin),
        LIBM("cos", std::cos),
        LIBM("tan", std::tan),
        LIBM("asin", std::asin),
        LIBM("acos", std::acos),
        LIBM("atan", std::atan),
        LIBM("atan2", std::atan2),
        LIBM("sinh", std::sinh),
        LIBM("cosh", std::cosh),
        LIBM("tanh", std::tanh),
        LIBM("asinh", std::asinh),
        LIBM("acosh", std::acosh),
        LIBM("atanh", std::atanh),
        LIBM("cbrt", std::cbrt),
        LIBM("hypot", std::hypot),
        LIBM("erf", std::erf),
        LIBM("erfc", std::erfc),
        LIBM("tgamma", std::tgamma),
        LIBM("lgamma", std::lgamma),
        LIBM("sqrt", std::sqrt),
        LIBM("fmod", std::fmod),
        LIBM("remainder", std::remainder),
        LIBM("fdim", std::fdim),
        LIBM("fma", std::fma),
        LIBM("fmin", std::fmin),
        LIBM("fmax", std::fmax),
        LIBM("rint", std::rint),
        LIBM("nearbyint", std::nearbyint),
        LIBM("round", std::round),
        LIBM("trunc", std::trunc),
        LIBM("ceil", std::ceil),
        LIBM("floor", std::floor),
        LIBM("fabs", std::fabs),
        LIBM("copysign", std::copysign),
        LIBM("nextafter", std::nextafter),
        LIBM("logb", std::logb),
        {"exp10", {over_scalars<float>([](float x) { return exp10f(x); }), over_scalars<double>([](double x) {
                       return exp10(x);
                   })}},
        {"modf",
         {over_scalars<float>([](float x) {
              float whole;
              return std::modf(x, &whole) + whole;
          }),
          over_scalars<double>([](double x) {
              double whole;
              return std::modf(x, &whole) + whole;
          })}},
        {"sincos",
         {over_scalars<float>([](float x) {
              float s, c;
              sincosf(x, &s, &c);
              return s + c;
          }),
          over_scalars<double>([](double x) {
              double s, c;
              sincos(x, &s, &c);
              return s + c;
          })}},
    };
    return m;
}

peer find(const std::map<std::string, pair_of_peers>& m, const std::string& base, bool is_float) {
    const auto p = m.find(base);
    return p == m.end() ? peer{} : is_float ? p->second.f32 : p->second.f64;
}
// Families that ask the same of a peer.
std::string same_meaning(const std::string& base) {
    if (base == "sincosreg") return "sincos";
    if (base == "lgammar") return "lgamma";
    if (base == "powr") return "pow";
    if (base == "nearbyint") return "rint";
    return base;
}

template <class I> peer divided(bool remainder) {
    return [remainder](const operands& o) {
        const I *x = (const I*)o.x, *y = (const I*)o.y;
        I* out = (I*)o.out;
        for (size_t i = 0; i < o.n; i++)
            out[i] = remainder ? x[i] % y[i] : x[i] / y[i];
    };
}

} // namespace

peer sleef_peer(const std::string& base, bool is_float, bool fast) {
    const std::string of = same_meaning(base);
    peer p;
    if (fast) p = find(fast_ones(), of, is_float);
    return p ? p : find(accurate(), of, is_float);
}
peer libm_peer(const std::string& base, bool is_float) {
    if (base == "idiv" || base == "irem" || base == "idivrem") return divided<int32_t>(base == "irem");
    if (base == "udiv" || base == "urem" || base == "udivrem") return divided<uint32_t>(base == "urem");
    const peer p = find(scalar(), base, is_float);
    return p ? p : find(scalar(), same_meaning(base), is_float);
}

} // namespace orvane::bench
