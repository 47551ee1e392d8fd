// The math functions over std::experimental::simd, of any ABI tag and any number of lanes: native_simd<double>,
// fixed_size_simd<float, 16>. C++20, x86-64 with AVX2 and FMA; link with liborvane_l9.
//
//     namespace stdx = std::experimental;
//     stdx::native_simd<float> y = orvane::exp(x);           // the default tier: OpenCL C's error limits
//     stdx::native_simd<float> z = orvane::fast::exp(x);     // the fastest tier, of some 10 to 28 bits
//     auto [s, c] = orvane::sincos(x);
//     stdx::native_simd<double> f = orvane::frexp(d, &n);    // n is a fixed_size_simd<int, d.size()>
//
// Namespaces are tiers: orvane itself, orvane::rm, orvane::half, and orvane::fast for native_; a function that lacks
// a tier is there in the next better one. Calls are inlined down to the exports, with lanes in registers: eight
// floats or four doubles per call, and the rest in a call of 1 to 4 lanes; five to seven floats go as eight. Results
// are the bits of the exports, those of special arguments too (orvane.h says which).
//
// Integer arguments and results are fixed_size_simd<int, N>. Results beside the first one are stored through
// pointers; sincos returns a pair.
#ifndef ORVANE_SIMD_HPP
#define ORVANE_SIMD_HPP

#include <cstdint>
#include <cstring>
#include <experimental/simd>
#include <orvane/orvane.h>
#include <type_traits>
#include <utility>

namespace orvane {

namespace detail::simd {

namespace stdx = std::experimental;

#define ORVANE_SIMD_INLINE [[gnu::always_inline]] inline

template <class V> using lane_of = typename V::value_type;
template <class V> using int_lanes = stdx::fixed_size_simd<int, V::size()>;
template <class T>
concept lane = std::is_same_v<T, float> || std::is_same_v<T, double>;

// The register of W lanes, as orvane.h has it.
template <class T, int W> struct register_type;
template <int W> struct register_type<float, W> { using type = orvane_float4; };
template <> struct register_type<float, 8> { using type = orvane_float8; };
template <int W> struct register_type<double, W> { using type = orvane_double4; };
template <> struct register_type<double, 1> { using type = orvane_double2; };
template <> struct register_type<double, 2> { using type = orvane_double2; };
template <int W> struct register_type<int, W> { using type = orvane_int4; };
template <> struct register_type<int, 8> { using type = orvane_int8; };
template <> struct register_type<int, 1> { using type = int32_t; };

template <class T, int W> struct width {};

// Lanes that are in registers once the compiler has looked through: whole registers, the rest filled with lane 0,
// which takes no other path than a lane that counts.
template <class T, int N> struct array {
    static constexpr int room = (N + 7) / 8 * 8;
    T at[room];
    template <class V> ORVANE_SIMD_INLINE static array of(const V& x) {
        array a;
        x.copy_to(a.at, stdx::element_aligned);
        for (int i = N; i < room; i++)
            a.at[i] = a.at[0];
        return a;
    }
    template <class V> ORVANE_SIMD_INLINE V as() const { return V(at, stdx::element_aligned); }
    template <int W> ORVANE_SIMD_INLINE auto load(int i) const {
        typename register_type<T, W>::type r{};
        std::memcpy(&r, at + i, W * sizeof(T));
        return r;
    }
    template <int W> ORVANE_SIMD_INLINE void store(int i, const typename register_type<T, W>::type& r) {
        std::memcpy(at + i, &r, W * sizeof(T));
    }
};

// f(width, arguments) of all lanes, the lanes of T register by register.
template <class T, int N, int I = 0, class R, class F, class... X>
ORVANE_SIMD_INLINE void over(F f, array<R, N>& y, const array<X, N>&... x) {
    constexpr int left = N - I, most = 32 / int(sizeof(T));
    constexpr int W = left <= 4 ? left : most == 8 ? 8 : 4;
    y.template store<W>(I, f(width<T, W>(), x.template load<W>(I)...));
    if constexpr (left > W) over<T, N, I + W>(f, y, x...);
}
// The same with out-lanes.
template <class T, int N, int I = 0, class R, class P, class F, class... X>
ORVANE_SIMD_INLINE void over_out(F f, array<R, N>& y, array<P, N>& out, const array<X, N>&... x) {
    constexpr int left = N - I, most = 32 / int(sizeof(T));
    constexpr int W = left <= 4 ? left : most == 8 ? 8 : 4;
    P second[W == 3 ? 4 : W];
    y.template store<W>(I, f(width<T, W>(), second, x.template load<W>(I)...));
    std::memcpy(out.at + I, second, W * sizeof(P));
    if constexpr (left > W) over_out<T, N, I + W>(f, y, out, x...);
}

template <class R, class V, class F, class... X> ORVANE_SIMD_INLINE R map(F f, const V& x, const X&... more) {
    constexpr int N = V::size();
    array<lane_of<R>, N> y;
    over<lane_of<V>, N>(f, y, array<lane_of<V>, N>::of(x), array<lane_of<X>, N>::of(more)...);
    return y.template as<R>();
}
template <class V, class P, class F, class... X>
ORVANE_SIMD_INLINE V map_out(F f, P* out, const V& x, const X&... more) {
    constexpr int N = V::size();
    array<lane_of<V>, N> y;
    array<lane_of<P>, N> second;
    over_out<lane_of<V>, N>(f, y, second, array<lane_of<V>, N>::of(x), array<lane_of<X>, N>::of(more)...);
    *out = second.template as<P>();
    return y.template as<V>();
}

} // namespace detail::simd

// The exports of a family in double and in float, with the suffixes of their tiers, by width.
#define ORVANE_SIMD_CALL(d, d_tier, f, f_tier)                                                                       \
    []<class T_, int W_>(detail::simd::width<T_, W_>, auto... a_) __attribute__((always_inline)) {                   \
        if constexpr (sizeof(T_) == 8) {                                                                             \
            if constexpr (W_ == 1) return __orvane_l9_##d##1##d_tier(a_...);                                         \
            else if constexpr (W_ == 2) return __orvane_l9_##d##2##d_tier(a_...);                                    \
            else if constexpr (W_ == 3) return __orvane_l9_##d##3##d_tier(a_...);                                    \
            else return __orvane_l9_##d##4##d_tier(a_...);                                                           \
        } else {                                                                                                     \
            if constexpr (W_ == 1) return __orvane_l9_##f##1##f_tier(a_...);                                         \
            else if constexpr (W_ == 2) return __orvane_l9_##f##2##f_tier(a_...);                                    \
            else if constexpr (W_ == 3) return __orvane_l9_##f##3##f_tier(a_...);                                    \
            else if constexpr (W_ == 4) return __orvane_l9_##f##4##f_tier(a_...);                                    \
            else return __orvane_l9_##f##8##f_tier(a_...);                                                           \
        }                                                                                                            \
    }
#define ORVANE_SIMD_TEMPLATE template <detail::simd::lane T, class Abi> ORVANE_SIMD_INLINE
#define ORVANE_SIMD_V std::experimental::simd<T, Abi>

#define ORVANE_SIMD_one_argument(name, ...)                                                                          \
    ORVANE_SIMD_TEMPLATE ORVANE_SIMD_V name(const ORVANE_SIMD_V& x) {                                                \
        return detail::simd::map<ORVANE_SIMD_V>(ORVANE_SIMD_CALL(__VA_ARGS__), x);                                   \
    }
#define ORVANE_SIMD_two_arguments(name, ...)                                                                         \
    ORVANE_SIMD_TEMPLATE ORVANE_SIMD_V name(const ORVANE_SIMD_V& x, const std::type_identity_t<ORVANE_SIMD_V>& y) {  \
        return detail::simd::map<ORVANE_SIMD_V>(ORVANE_SIMD_CALL(__VA_ARGS__), x, y);                                \
    }
#define ORVANE_SIMD_three_arguments(name, ...)                                                                       \
    ORVANE_SIMD_TEMPLATE ORVANE_SIMD_V name(const ORVANE_SIMD_V& x, const std::type_identity_t<ORVANE_SIMD_V>& y,    \
                                            const std::type_identity_t<ORVANE_SIMD_V>& z) {                          \
        return detail::simd::map<ORVANE_SIMD_V>(ORVANE_SIMD_CALL(__VA_ARGS__), x, y, z);                             \
    }
#define ORVANE_SIMD_with_integer(name, ...)                                                                          \
    ORVANE_SIMD_TEMPLATE ORVANE_SIMD_V name(const ORVANE_SIMD_V& x,                                                  \
                                            const detail::simd::int_lanes<ORVANE_SIMD_V>& n) {                       \
        return detail::simd::map<ORVANE_SIMD_V>(ORVANE_SIMD_CALL(__VA_ARGS__), x, n);                                \
    }
#define ORVANE_SIMD_to_integer(name, ...)                                                                            \
    ORVANE_SIMD_TEMPLATE detail::simd::int_lanes<ORVANE_SIMD_V> name(const ORVANE_SIMD_V& x) {                       \
        return detail::simd::map<detail::simd::int_lanes<ORVANE_SIMD_V>>(ORVANE_SIMD_CALL(__VA_ARGS__), x);          \
    }
#define ORVANE_SIMD_pointer_out(name, ...)                                                                           \
    ORVANE_SIMD_TEMPLATE ORVANE_SIMD_V name(const ORVANE_SIMD_V& x, ORVANE_SIMD_V* out) {                            \
        return detail::simd::map_out(ORVANE_SIMD_CALL(__VA_ARGS__), out, x);                                         \
    }
#define ORVANE_SIMD_integer_out(name, ...)                                                                           \
    ORVANE_SIMD_TEMPLATE ORVANE_SIMD_V name(const ORVANE_SIMD_V& x, detail::simd::int_lanes<ORVANE_SIMD_V>* out) {   \
        return detail::simd::map_out(ORVANE_SIMD_CALL(__VA_ARGS__), out, x);                                         \
    }
#define ORVANE_SIMD_two_pointer_out(name, ...)                                                                       \
    ORVANE_SIMD_TEMPLATE ORVANE_SIMD_V name(const ORVANE_SIMD_V& x, const std::type_identity_t<ORVANE_SIMD_V>& y,    \
                                            detail::simd::int_lanes<ORVANE_SIMD_V>* out) {                           \
        return detail::simd::map_out(ORVANE_SIMD_CALL(__VA_ARGS__), out, x, y);                                      \
    }
#define ORVANE_SIMD_both(name, ...)                                                                                  \
    ORVANE_SIMD_TEMPLATE std::pair<ORVANE_SIMD_V, ORVANE_SIMD_V> name(const ORVANE_SIMD_V& x) {                      \
        ORVANE_SIMD_V second;                                                                                        \
        const ORVANE_SIMD_V first = detail::simd::map_out(ORVANE_SIMD_CALL(__VA_ARGS__), &second, x);                \
        return {first, second};                                                                                      \
    }

#include <orvane/simd_functions.inc>

} // namespace orvane

#undef ORVANE_SIMD_CALL
#undef ORVANE_SIMD_TEMPLATE
#undef ORVANE_SIMD_V
#undef ORVANE_SIMD_one_argument
#undef ORVANE_SIMD_two_arguments
#undef ORVANE_SIMD_three_arguments
#undef ORVANE_SIMD_with_integer
#undef ORVANE_SIMD_to_integer
#undef ORVANE_SIMD_pointer_out
#undef ORVANE_SIMD_integer_out
#undef ORVANE_SIMD_two_pointer_out
#undef ORVANE_SIMD_both
#undef ORVANE_SIMD_INLINE
#endif
