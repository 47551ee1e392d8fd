// Kernels of the tests' own: instances of the skeleton in every signature class, wrapper and calling form, so that
// each of these is held whether or not a family of the library uses it. What they compute is as plain as can be; what
// matters is that every lane, of every argument and every result, in the vector path and in the slow path, can be
// told from every other.
#include "frame/_orvane_template.h"
#include "tests/probes/probes_rare.h"

namespace orvane {

// Lanes beyond this are special: the slow path answers them, and no vector path gives what it gives.
template <class T> constexpr T limit = T(1000);

template <int W, class T> ORVANE_INLINE auto past_limit(lanes<T, W> x) {
    return not_less_equal(x & as<T>(lanes<uint_of<T>, W>(~uint_of<T>(0) >> 1)), lanes<T, W>(limit<T>));
}
template <int W, class T> ORVANE_INLINE auto plus(lanes<T, W> x, T y) { return x + lanes<T, W>(y); }

// One argument, settled in the kernel and not; with a second result in registers or through a pointer.
template <class T> struct probe_pair_settled : kernel<pair_result<T>> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<T, W> x) {
        return results{plus(x, T(1)), plus(x, T(2))};
    }
};
template <class T> struct probe_out_settled : kernel<pointer_out<T>> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<T, W> x) {
        return results{plus(x, T(1)), plus(x, T(2))};
    }
};
template <class T> struct probe_pair : kernel<pair_result<T>, no_block, probe_rare<T>::one_to_two> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<T, W> x) {
        return answer{plus(x, T(1)), plus(x, T(2)), past_limit(x)};
    }
};
template <class T> struct probe_out : probe_pair<T> { using signature = pointer_out<T>; };

// Integers: lanes out, an out-lane through a pointer, lanes in, and all of 64 bits.
template <int W, class T> ORVANE_INLINE auto whole(lanes<T, W> x) { return truncate<int32_t>(x); }

template <class T> struct probe_to_integer : kernel<to_integer<T>, no_block, probe_rare<T>::to_integer> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<T, W> x) {
        return answer{whole(x), past_limit(x)};
    }
};
template <class T> struct probe_integer_out : kernel<pointer_out<T, int32_t>, no_block, probe_rare<T>::integer_out> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<T, W> x) {
        return answer{plus(x, T(1)), whole(x), past_limit(x)};
    }
};
template <class T> struct probe_with_integer : kernel<with_integer<T>, no_block, probe_rare<T>::with_integer> {
    static constexpr double spare = 1.0;
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<T, W> x, lanes<int32_t, W> n) {
        return answer{x + convert<T>(n), past_limit(x)};
    }
};

// Two and three arguments; two with an out-lane behind a pointer (four arrays).
template <class T> struct probe_two : kernel<two_arguments<T>, no_block, probe_rare<T>::two> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<T, W> x, lanes<T, W> y) {
        return answer{x - y, past_limit(x) | past_limit(y)};
    }
};
template <class T> struct probe_two_out : kernel<two_pointer_out<T>, no_block, probe_rare<T>::two_out> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<T, W> x, lanes<T, W> y) {
        return answer{x - y, whole(y), past_limit(x) | past_limit(y)};
    }
};
template <class T> struct probe_three : kernel<three_arguments<T>, no_block, probe_rare<T>::three> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<T, W> x, lanes<T, W> y, lanes<T, W> z) {
        return answer{fma(x, y, z), past_limit(x) | past_limit(y) | past_limit(z)};
    }
};

// No vector formula.
template <class T> struct probe_all : kernel<one_argument<T>, no_block, probe_rare<T>::one> {
    static constexpr bool all_lanes = true;
};
template <class T> struct probe_all_out : kernel<pointer_out<T, int32_t>, no_block, probe_rare<T>::integer_out> {
    static constexpr bool all_lanes = true;
};

// Patterns in, and every change of lane size.
template <class T> struct probe_bits : kernel<bits_to_nan<T>> {
    static constexpr double spare = 0;
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<uint_of<T>, W> n) {
        return as<T>(n | lanes<uint_of<T>, W>(bit_pattern_of_nan));
    }
    static constexpr uint_of<T> bit_pattern_of_nan = sizeof(T) == 8 ? 0x7FF8000000000000 : 0x7FC00000;
};
template <class From, class To> struct probe_convert : kernel<conversion<From, To>> {
    static constexpr double spare = is_floating<From> ? 0.75 : 1;
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<From, W> x) {
        if constexpr (is_floating<From> && is_floating<To>) return convert<To>(x);
        else if constexpr (is_floating<From> && sizeof(To) == 4) return as<To>(truncate<int32_t>(x));
        else if constexpr (is_floating<From> && sizeof(From) == 4) return convert<To>(truncate<int32_t>(x));
        else if constexpr (is_floating<From>) return as<To>(bits(x));
        else if constexpr (sizeof(From) == 4) return convert<To>(as<int32_t>(x));
        else if constexpr (sizeof(To) == 4) return convert<To>(convert<int32_t>(x));
        else return as<To>(x);
    }
};

// The two places of an inline large path: in front of the formula and behind it. Lanes beyond `limit` take it; NaN
// and infinities go on to the slow path.
template <int W, class T> ORVANE_INLINE auto not_finite(lanes<T, W> x) {
    const auto difference = x - x;
    return is_nan(difference);
}
template <class T> struct probe_large_after : kernel<one_argument<T>, no_block, probe_rare<T>::one> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<T, W> x) {
        return answer{plus(x, T(1)), past_limit(x)};
    }
    template <int W> static ORVANE_INLINE auto large_path(const auto&, lanes<T, W> x, auto ordinary) {
        return answer{select(ordinary.special, plus(x, T(-64)), ordinary.first), not_finite(x)};
    }
};
template <class T> struct probe_large_before : kernel<one_argument<T>, no_block, probe_rare<T>::one> {
    template <int W> static ORVANE_INLINE auto reduce(const auto&, lanes<T, W> x) {
        return answer{plus(x, T(1)), past_limit(x)};
    }
    template <int W> static ORVANE_INLINE auto large_reduce(const auto&, lanes<T, W> x, auto reduced) {
        return answer{select(reduced.special, plus(x, T(-64)), reduced.first), reduced.special};
    }
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<T, W> x, auto reduced) {
        return answer{reduced.first, not_finite(x)};
    }
};

#define ORVANE_PROBES(SUFFIX, T)                                                                                     \
    using pair_settled##SUFFIX = probe_pair_settled<T>;                                                              \
    using out_settled##SUFFIX = probe_out_settled<T>;                                                                \
    using pair##SUFFIX = probe_pair<T>;                                                                              \
    using out##SUFFIX = probe_out<T>;                                                                                \
    using to_integer##SUFFIX = probe_to_integer<T>;                                                                  \
    using integer_out##SUFFIX = probe_integer_out<T>;                                                                \
    using with_integer##SUFFIX = probe_with_integer<T>;                                                              \
    using two##SUFFIX = probe_two<T>;                                                                                \
    using two_out##SUFFIX = probe_two_out<T>;                                                                        \
    using three##SUFFIX = probe_three<T>;                                                                            \
    using all##SUFFIX = probe_all<T>;                                                                                \
    using all_out##SUFFIX = probe_all_out<T>;                                                                        \
    using bits##SUFFIX = probe_bits<T>;                                                                              \
    using large_after##SUFFIX = probe_large_after<T>;                                                                \
    using large_before##SUFFIX = probe_large_before<T>;

namespace probes {
ORVANE_PROBES(d, double)
ORVANE_PROBES(s, float)
} // namespace probes

#define ORVANE_EXPORT_PROBES(f, SUFFIX)                                                                              \
    ORVANE_EXPORT_SETTLED(probepairsettled##f, , probes::pair_settled##SUFFIX)                                       \
    ORVANE_EXPORT_SETTLED(probeoutsettled##f, , probes::out_settled##SUFFIX)                                         \
    ORVANE_EXPORT(probepair##f, , probes::pair##SUFFIX)                                                              \
    ORVANE_EXPORT(probeout##f, , probes::out##SUFFIX)                                                                \
    ORVANE_EXPORT(probetoint##f, , probes::to_integer##SUFFIX)                                                       \
    ORVANE_EXPORT(probeintout##f, , probes::integer_out##SUFFIX)                                                     \
    ORVANE_EXPORT(probewithint##f, , probes::with_integer##SUFFIX)                                                   \
    ORVANE_EXPORT(probetwo##f, , probes::two##SUFFIX)                                                                \
    ORVANE_EXPORT(probetwoout##f, , probes::two_out##SUFFIX)                                                         \
    ORVANE_EXPORT(probethree##f, , probes::three##SUFFIX)                                                            \
    ORVANE_EXPORT(probeall##f, , probes::all##SUFFIX)                                                                \
    ORVANE_EXPORT(probeallout##f, , probes::all_out##SUFFIX)                                                         \
    ORVANE_EXPORT_SETTLED(probebits##f, , probes::bits##SUFFIX)                                                      \
    ORVANE_EXPORT(probelargeafter##f, , probes::large_after##SUFFIX)                                                 \
    ORVANE_EXPORT(probelargebefore##f, , probes::large_before##SUFFIX)
ORVANE_EXPORT_PROBES(, d)
ORVANE_EXPORT_PROBES(f, s)

#define ORVANE_EXPORT_CONVERSION(name, From, To)                                                                     \
    using name##_kernel = probe_convert<From, To>;                                                                   \
    ORVANE_EXPORT_SETTLED(name, , name##_kernel)
ORVANE_EXPORT_CONVERSION(probefptoi64, double, int64_t)
ORVANE_EXPORT_CONVERSION(probefptoi64f, float, int64_t)
ORVANE_EXPORT_CONVERSION(probefptou32, double, uint32_t)
ORVANE_EXPORT_CONVERSION(probefptou32f, float, uint32_t)
ORVANE_EXPORT_CONVERSION(probei64tofp, int64_t, double)
ORVANE_EXPORT_CONVERSION(probei64tofpf, int64_t, float)
ORVANE_EXPORT_CONVERSION(probei32tofp, int32_t, double)
ORVANE_EXPORT_CONVERSION(probei32tofpf, int32_t, float)
ORVANE_EXPORT_CONVERSION(probefp64tofp32, double, float)

} // namespace orvane
