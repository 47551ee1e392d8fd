#include "bench/peers.h"

#include <bit>
#include <cmath>
#include <cstring>
#include <immintrin.h>
#include <map>
#include <numbers>
#include <sleef.h>

namespace orvane::bench {

namespace {

// ---- Scalar code. A shape computes lane i of the first result in the type T from its first argument x and lanes of
// the type L; a second result goes to its own array.

template <class F> struct one {
    F f;
    template <class L, class T> auto at(buffer&, int, T x) const { return f(x); }
};
template <class F> struct two {
    F f;
    template <class L, class T> auto at(buffer& b, int i, T x) const { return f(x, T(b.argument[1].as<L>()[i])); }
};
template <class F> struct three {
    F f;
    template <class L, class T> auto at(buffer& b, int i, T x) const {
        return f(x, T(b.argument[1].as<L>()[i]), T(b.argument[2].as<L>()[i]));
    }
};
template <class F> struct with_integer {
    F f;
    template <class L, class T> auto at(buffer& b, int i, T x) const { return f(x, b.argument[1].as<int32_t>()[i]); }
};
template <class F> struct with_second {
    F f;
    template <class L, class T> auto at(buffer& b, int i, T x) const {
        T second;
        const auto first = f(x, &second);
        b.result[1].as<L>()[i] = L(second);
        return first;
    }
};
template <class F> struct with_integer_out {
    F f;
    template <class L, class T> auto at(buffer& b, int i, T x) const { return f(x, &b.result[1].as<int32_t>()[i]); }
};
template <class F> struct two_with_integer_out {
    F f;
    template <class L, class T> auto at(buffer& b, int i, T x) const {
        return f(x, T(b.argument[1].as<L>()[i]), &b.result[1].as<int32_t>()[i]);
    }
};

template <class T, class Shape> pass scalar_pass(Shape shape) {
    using result = decltype(shape.template at<T, T>(std::declval<buffer&>(), 0, T()));
    return [shape](buffer& b) {
        for (int i = 0; i < lanes_of_buffer; i++)
            b.result[0].as<result>()[i] = shape.template at<T, T>(b, i, b.argument[0].as<T>()[i]);
    };
}
// x, after y is known.
template <class T, class R> T after(T x, R y) {
    unsigned none = 0;
    asm("" : "+r"(none));
    if constexpr (std::is_same_v<R, float>) {
        const __m128 zeros = _mm_castsi128_ps(_mm_set1_epi32(none));
        return _mm_cvtss_f32(_mm_xor_ps(_mm_set_ss(x), _mm_and_ps(_mm_set_ss(y), zeros)));
    } else if constexpr (std::is_same_v<R, double>) {
        const __m128d zeros = _mm_castsi128_pd(_mm_set1_epi32(none));
        return _mm_cvtsd_f64(_mm_xor_pd(_mm_set_sd(x), _mm_and_pd(_mm_set_sd(y), zeros)));
    } else {
        using word = std::conditional_t<sizeof(T) == 8, uint64_t, uint32_t>;
        return std::bit_cast<T>(word(std::bit_cast<word>(x) ^ word(y & R(none))));
    }
}
// The same, where every lane waits for the one before.
template <class T, class Shape> pass chained_pass(Shape shape) {
    using result = decltype(shape.template at<T, T>(std::declval<buffer&>(), 0, T()));
    return [shape](buffer& b) {
        result last{};
        for (int i = 0; i < lanes_of_buffer; i++)
            b.result[0].as<result>()[i] = last = shape.template at<T, T>(b, i, after(b.argument[0].as<T>()[i], last));
    };
}
template <class T, class Shape> std::function<void(buffer&, long double*)> truth_pass(Shape shape) {
    using result = decltype(shape.template at<T, T>(std::declval<buffer&>(), 0, T()));
    if constexpr (std::is_integral_v<result>) return {};
    else
        return [shape](buffer& b, long double* results) {
            for (int i = 0; i < lanes_of_buffer; i++)
                results[i] = shape.template at<T, long double>(b, i, b.argument[0].as<T>()[i]);
        };
}

// Functions that <cmath> has under other names, or not for every type.
float exp10_of(float x) { return exp10f(x); }
double exp10_of(double x) { return exp10(x); }
long double exp10_of(long double x) { return exp10l(x); }
float sine_and_cosine(float x, float* c) { return sincosf(x, &x, c), x; }
double sine_and_cosine(double x, double* c) { return sincos(x, &x, c), x; }
long double sine_and_cosine(long double x, long double* c) { return sincosl(x, &x, c), x; }
float lgamma_and_sign(float x, int* s) { return lgammaf_r(x, s); }
double lgamma_and_sign(double x, int* s) { return lgamma_r(x, s); }
long double lgamma_and_sign(long double x, int* s) { return lgammal_r(x, s); }

// sin(pi x) from the distance to the nearest integer or half-integer, which is exact.
template <class T> T sine_of_turns(T distance, T n) {
    const T s = std::sin(std::numbers::pi_v<T> * distance);
    return std::fmod(n, T(2)) == 0 ? s : -s;
}
template <class T> T sinpi_of(T x) {
    const T n = std::rint(x);
    return sine_of_turns(x - n, n);
}
template <class T> T cospi_of(T x) {
    const T n = std::floor(x);
    return sine_of_turns(T(0.5) - (x - n), n);
}

template <class T> T larger_magnitude(T x, T y) {
    return std::fabs(x) > std::fabs(y) ? x : std::fabs(y) > std::fabs(x) ? y : std::fmax(x, y);
}
template <class T> T smaller_magnitude(T x, T y) {
    return std::fabs(x) < std::fabs(y) ? x : std::fabs(y) < std::fabs(x) ? y : std::fmin(x, y);
}

// ---- SLEEF: N lanes a call.

// Integers beside two doubles: the low half of a register, 8 bytes in memory.
struct half_vector {
    int32_t lane[2];
    half_vector(__m128i v) { memcpy(lane, &v, sizeof lane); }
    operator __m128i() const { return _mm_loadu_si64(lane); }
};

template <int N, class R, class... A> vector_function vector_pass(R (*f)(A...)) {
    pass run = [f](buffer& b) {
        for (int i = 0; i < lanes_of_buffer; i += N) {
            auto load = [&]<class V>(int j, V*) { return *(const V*)(b.argument[j].bytes + i * (sizeof(V) / N)); };
            const R r = [&]<int... J>(std::integer_sequence<int, J...>) { return f(load(J, (A*)nullptr)...); }
            (std::make_integer_sequence<int, sizeof...(A)>());
            auto store = [&](int j, const auto& v) { memcpy(b.result[j].bytes + i * (sizeof v / N), &v, sizeof v); };
            if constexpr (requires { r.y; }) store(0, r.x), store(1, r.y);
            else store(0, r);
        }
    };
    return {run, N, is_in_registers<R, A...> ? (const void*)f : nullptr};
}

struct variants {
    std::optional<peer> f32, f64;
};
#define SLEEF_FUNCTIONS(name, f, u)                                                                                  \
    variants {                                                                                                       \
        peer{name, vector_pass<8>(Sleef_##f##f8_##u##avx2), vector_pass<4>(Sleef_##f##f4_##u##avx2128)}, peer {      \
            name, vector_pass<4>(Sleef_##f##d4_##u##avx2), vector_pass<2>(Sleef_##f##d2_##u##avx2128)                \
        }                                                                                                            \
    }
#define SLEEF(f, u) SLEEF_FUNCTIONS(#u, f, u)
#define SLEEF_PLAIN(f) SLEEF_FUNCTIONS("", f, )

__m256 pown_f8(__m256 x, __m256i n) { return Sleef_powf8_u10avx2(x, _mm256_cvtepi32_ps(n)); }
__m128 pown_f4(__m128 x, __m128i n) { return Sleef_powf4_u10avx2128(x, _mm_cvtepi32_ps(n)); }
__m256d pown_d4(__m256d x, __m128i n) { return Sleef_powd4_u10avx2(x, _mm256_cvtepi32_pd(n)); }
__m128d pown_d2(__m128d x, half_vector n) { return Sleef_powd2_u10avx2128(x, _mm_cvtepi32_pd(n)); }
__m256 rootn_f8(__m256 x, __m256i n) { return Sleef_powf8_u10avx2(x, 1.0f / _mm256_cvtepi32_ps(n)); }
__m128 rootn_f4(__m128 x, __m128i n) { return Sleef_powf4_u10avx2128(x, 1.0f / _mm_cvtepi32_ps(n)); }
__m256d rootn_d4(__m256d x, __m128i n) { return Sleef_powd4_u10avx2(x, 1.0 / _mm256_cvtepi32_pd(n)); }
__m128d rootn_d2(__m128d x, half_vector n) { return Sleef_powd2_u10avx2128(x, 1.0 / _mm_cvtepi32_pd(n)); }
__m128d ldexp_d2(__m128d x, half_vector n) { return Sleef_ldexpd2_avx2128(x, n); }
half_vector ilogb_d2(__m128d x) { return {Sleef_ilogbd2_avx2128(x)}; }

// ---- The table, by base name.

struct peers_of_both_types {
    family_peers f32, f64;
};

template <class Shape>
peers_of_both_types against(Shape shape, const variants& accurate = {}, const variants& fast = {}) {
    return {
        {accurate.f32, fast.f32, scalar_pass<float>(shape), chained_pass<float>(shape), truth_pass<float>(shape)},
        {accurate.f64, fast.f64, scalar_pass<double>(shape), chained_pass<double>(shape), truth_pass<double>(shape)}};
}

// A function of scalar arguments as a lambda that takes them in any type.
#define ONE(expression)                                                                                              \
    one {                                                                                                            \
        [](auto x) { return expression; }                                                                            \
    }
#define TWO(expression)                                                                                              \
    two {                                                                                                            \
        [](auto x, auto y) { return expression; }                                                                    \
    }
#define WITH_INTEGER(expression)                                                                                     \
    with_integer {                                                                                                   \
        [](auto x, int n) { return expression; }                                                                     \
    }
#define PI std::numbers::pi_v<decltype(x)>

const std::map<std::string, peers_of_both_types>& floating_table() {
    static const std::map<std::string, peers_of_both_types> table = {
        {"exp", against(ONE(std::exp(x)), SLEEF(exp, u10))},
        {"exp2", against(ONE(std::exp2(x)), SLEEF(exp2, u10), SLEEF(exp2, u35))},
        {"exp10", against(ONE(exp10_of(x)), SLEEF(exp10, u10), SLEEF(exp10, u35))},
        {"expm1", against(ONE(std::expm1(x)), SLEEF(expm1, u10))},
        {"log", against(ONE(std::log(x)), SLEEF(log, u10), SLEEF(log, u35))},
        {"log2", against(ONE(std::log2(x)), SLEEF(log2, u10), SLEEF(log2, u35))},
        {"log10", against(ONE(std::log10(x)), SLEEF(log10, u10))},
        {"log1p", against(ONE(std::log1p(x)), SLEEF(log1p, u10))},

        {"pow", against(TWO(std::pow(x, y)), SLEEF(pow, u10))},
        {"powr", against(TWO(std::pow(x, y)), SLEEF(pow, u10))},
        {"pown", against(WITH_INTEGER(std::pow(x, decltype(x)(n))),
                         {peer{"u10", vector_pass<8>(pown_f8), vector_pass<4>(pown_f4)},
                          peer{"u10", vector_pass<4>(pown_d4), vector_pass<2>(pown_d2)}})},
        {"rootn", against(WITH_INTEGER(std::pow(x, 1 / decltype(x)(n))),
                          {peer{"u10", vector_pass<8>(rootn_f8), vector_pass<4>(rootn_f4)},
                           peer{"u10", vector_pass<4>(rootn_d4), vector_pass<2>(rootn_d2)}})},

        {"div", against(TWO(x / y))},
        {"inv", against(ONE(1 / x))},
        {"sqrt", against(ONE(std::sqrt(x)), SLEEF(sqrt, u05), SLEEF(sqrt, u35))},
        {"rsqrt", against(ONE(1 / std::sqrt(x)))},
        {"cbrt", against(ONE(std::cbrt(x)), SLEEF(cbrt, u10), SLEEF(cbrt, u35))},
        {"rcbrt", against(ONE(1 / std::cbrt(x)))},
        {"hypot", against(TWO(std::hypot(x, y)), SLEEF(hypot, u05), SLEEF(hypot, u35))},

        {"sin", against(ONE(std::sin(x)), SLEEF(sin, u10), SLEEF(sin, u35))},
        {"cos", against(ONE(std::cos(x)), SLEEF(cos, u10), SLEEF(cos, u35))},
        {"tan", against(ONE(std::tan(x)), SLEEF(tan, u10), SLEEF(tan, u35))},
        {"sincos", against(with_second{[](auto x, auto* c) { return sine_and_cosine(x, c); }}, SLEEF(sincos, u10),
                           SLEEF(sincos, u35))},
        {"sincosreg", against(with_second{[](auto x, auto* c) { return sine_and_cosine(x, c); }}, SLEEF(sincos, u10),
                              SLEEF(sincos, u35))},
        {"sinpi", against(ONE(sinpi_of(x)), SLEEF(sinpi, u05))},
        {"cospi", against(ONE(cospi_of(x)), SLEEF(cospi, u05))},
        {"tanpi", against(ONE(sinpi_of(x) / cospi_of(x)))},

        {"asin", against(ONE(std::asin(x)), SLEEF(asin, u10), SLEEF(asin, u35))},
        {"acos", against(ONE(std::acos(x)), SLEEF(acos, u10), SLEEF(acos, u35))},
        {"atan", against(ONE(std::atan(x)), SLEEF(atan, u10), SLEEF(atan, u35))},
        {"asinpi", against(ONE(std::asin(x) / PI))},
        {"acospi", against(ONE(std::acos(x) / PI))},
        {"atanpi", against(ONE(std::atan(x) / PI))},
        {"atan2", against(TWO(std::atan2(x, y)), SLEEF(atan2, u10), SLEEF(atan2, u35))},
        {"atan2pi", against(TWO(std::atan2(x, y) / PI))},

        {"sinh", against(ONE(std::sinh(x)), SLEEF(sinh, u10), SLEEF(sinh, u35))},
        {"cosh", against(ONE(std::cosh(x)), SLEEF(cosh, u10), SLEEF(cosh, u35))},
        {"tanh", against(ONE(std::tanh(x)), SLEEF(tanh, u10), SLEEF(tanh, u35))},
        {"asinh", against(ONE(std::asinh(x)), SLEEF(asinh, u10))},
        {"acosh", against(ONE(std::acosh(x)), SLEEF(acosh, u10))},
        {"atanh", against(ONE(std::atanh(x)), SLEEF(atanh, u10))},

        {"erf", against(ONE(std::erf(x)), SLEEF(erf, u10))},
        {"erfc", against(ONE(std::erfc(x)), SLEEF(erfc, u15))},
        {"tgamma", against(ONE(std::tgamma(x)), SLEEF(tgamma, u10))},
        {"lgamma", against(ONE(std::lgamma(x)), SLEEF(lgamma, u10))},
        {"lgammar",
         against(with_integer_out{[](auto x, int* s) { return lgamma_and_sign(x, s); }}, SLEEF(lgamma, u10))},

        {"ceil", against(ONE(std::ceil(x)), SLEEF_PLAIN(ceil))},
        {"floor", against(ONE(std::floor(x)), SLEEF_PLAIN(floor))},
        {"trunc", against(ONE(std::trunc(x)), SLEEF_PLAIN(trunc))},
        {"rint", against(ONE(std::rint(x)), SLEEF_PLAIN(rint))},
        {"nearbyint", against(ONE(std::nearbyint(x)), SLEEF_PLAIN(rint))},
        {"round", against(ONE(std::round(x)), SLEEF_PLAIN(round))},
        {"fract", against(with_second{[](auto x, auto* whole) { return x - (*whole = std::floor(x)); }})},
        {"modf", against(with_second{[](auto x, auto* whole) { return std::modf(x, whole); }}, SLEEF_PLAIN(modf))},
        {"frexp", against(with_integer_out{[](auto x, int* n) { return std::frexp(x, n); }})},
        {"ldexp", against(WITH_INTEGER(std::ldexp(x, n)),
                          {{}, peer{"", vector_pass<4>(Sleef_ldexpd4_avx2), vector_pass<2>(ldexp_d2)}})},
        {"ilogb",
         against(ONE(std::ilogb(x)), {{}, peer{"", vector_pass<4>(Sleef_ilogbd4_avx2), vector_pass<2>(ilogb_d2)}})},
        {"logb", against(ONE(std::logb(x)))},
        {"copysign", against(TWO(std::copysign(x, y)), SLEEF_PLAIN(copysign))},
        {"nextafter", against(TWO(std::nextafter(x, y)), SLEEF_PLAIN(nextafter))},
        {"fmax", against(TWO(std::fmax(x, y)), SLEEF_PLAIN(fmax))},
        {"fmin", against(TWO(std::fmin(x, y)), SLEEF_PLAIN(fmin))},
        {"maxmag", against(TWO(larger_magnitude(x, y)))},
        {"minmag", against(TWO(smaller_magnitude(x, y)))},
        {"fdim", against(TWO(std::fdim(x, y)), SLEEF_PLAIN(fdim))},
        {"fma", against(three{[](auto x, auto y, auto z) { return std::fma(x, y, z); }}, SLEEF_PLAIN(fma))},
        {"fmod", against(TWO(std::fmod(x, y)), SLEEF_PLAIN(fmod))},
        {"remainder", against(TWO(std::remainder(x, y)), SLEEF_PLAIN(remainder))},
        {"remquo", against(two_with_integer_out{[](auto x, auto y, int* n) { return std::remquo(x, y, n); }})},
    };
    return table;
}

// Integer division by the processor's instruction.
template <class T> pass division(std::string_view name) {
    if (name.ends_with("divrem"))
        return [](buffer& b) {
            const T *x = b.argument[0].as<T>(), *y = b.argument[1].as<T>();
            for (int i = 0; i < lanes_of_buffer; i++) {
                b.result[0].as<T>()[i] = x[i] / y[i];
                b.result[1].as<T>()[i] = x[i] % y[i];
            }
        };
    return name.ends_with("div") ? scalar_pass<T>(TWO(x / y)) : scalar_pass<T>(TWO(x % y));
}

} // namespace

family_peers peers_of(const kernel_row& row) {
    switch (row.sclass) {
    case signature_class::integer:
    case signature_class::integer_pair:
        return {
            {}, {}, row.in == lane_type::i32 ? division<int32_t>(row.name) : division<uint32_t>(row.name), {}, {}};
    case signature_class::conversion:
    case signature_class::bits_to_nan:
        return plain_peers_of(row);
    default: {
        const auto& table = floating_table();
        const auto at = table.find(row.base());
        if (at == table.end()) return plain_peers_of(row);
        return row.in == lane_type::f32 ? at->second.f32 : at->second.f64;
    }
    }
}

} // namespace orvane::bench
