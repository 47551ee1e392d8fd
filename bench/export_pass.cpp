// Calls of exports as a compiler would emit them: arguments loaded into their registers, results stored from theirs.
#include "bench/pass.h"

#include <immintrin.h>

#include <cstring>
#include <tuple>
#include <utility>

namespace orvane::bench {

namespace {

template <class... T> struct list {};

template <int W, class T> constexpr int bytes_of = sizeof(T) * stored_lanes(W);
template <int W, class T> constexpr bool in_integer_register = W == 1 && std::is_integral_v<T>;
template <int W, class T> constexpr int registers_of = in_integer_register<W, T> ? 0
                                                       : bytes_of<W, T> > 32     ? bytes_of<W, T> / 32
                                                                                 : 1;

template <int Bytes> __m256 load(const unsigned char* at) {
    if constexpr (Bytes >= 32) return _mm256_loadu_ps((const float*)at);
    else if constexpr (Bytes == 16) return _mm256_castps128_ps256(_mm_loadu_ps((const float*)at));
    else if constexpr (Bytes == 8) return _mm256_castps128_ps256(_mm_castsi128_ps(_mm_loadu_si64(at)));
    else return _mm256_castps128_ps256(_mm_castsi128_ps(_mm_loadu_si32(at)));
}
template <int Bytes> void store(unsigned char* at, __m256 x) {
    if constexpr (Bytes >= 32) _mm256_storeu_ps((float*)at, x);
    else if constexpr (Bytes == 16) _mm_storeu_ps((float*)at, _mm256_castps256_ps128(x));
    else if constexpr (Bytes == 8) _mm_storeu_si64(at, _mm_castps_si128(_mm256_castps256_ps128(x)));
    else _mm_storeu_si32(at, _mm_castps_si128(_mm256_castps256_ps128(x)));
}

// A parameter of this type goes to the stack, one after the other without gaps.
template <int Bytes> struct stack_vector { alignas(8) unsigned char bytes[Bytes]; };

// What chains calls: zeros that depend on the results of the call before. It is empty where calls are independent.
template <bool Chained> struct chain {
    __m256 mask, zeros;
    chain() {
        int none = 0;
        asm("" : "+r"(none)); // hides from the compiler that it is zero
        mask = zeros = _mm256_castsi256_ps(_mm256_set1_epi32(none));
    }
    [[gnu::always_inline]] void wait_for(__m256 y) { zeros = _mm256_and_ps(y, mask); }
    [[gnu::always_inline]] void wait_for(uint64_t y) {
        wait_for(_mm256_castsi256_ps(_mm256_zextsi128_si256(_mm_cvtsi64_si128(y))));
    }
    [[gnu::always_inline]] __m256 after(__m256 x) const { return _mm256_xor_ps(x, zeros); }
    [[gnu::always_inline]] uint64_t after(uint64_t x) const {
        return x ^ _mm_cvtsi128_si64(_mm256_castsi256_si128(_mm256_castps_si256(zeros)));
    }
};
template <> struct chain<false> {
    template <class T> void wait_for(T) {}
    template <class T> T after(T x) const { return x; }
};

// The arguments of one call in the register form. (Loops over them are unrolled, or they would go through memory.)
struct registers {
    uint64_t integer[2] = {};
    __m256 vector[4];
    int integers = 0, vectors = 0;

    template <int W, class T, class Chain> [[gnu::always_inline]] void take(const unsigned char* at, const Chain& c) {
        if constexpr (in_integer_register<W, T>) {
            T value;
            memcpy(&value, at, sizeof value);
            integer[integers++] = c.after((uint64_t)value);
        } else {
#pragma GCC unroll 4
            for (int r = 0; r < registers_of<W, T>; r++)
                vector[vectors++] = c.after(load<bytes_of<W, T>>(at + 32 * r));
        }
    }
    template <int N, class R> [[gnu::always_inline]] R call(const void* f) const {
        const auto [i0, i1] = integer;
        if constexpr (N == 0) return ((R(*)(uint64_t, uint64_t))f)(i0, i1);
        else if constexpr (N == 1) return ((R(*)(uint64_t, uint64_t, __m256))f)(i0, i1, vector[0]);
        else if constexpr (N == 2) return ((R(*)(uint64_t, uint64_t, __m256, __m256))f)(i0, i1, vector[0], vector[1]);
        else if constexpr (N == 3)
            return ((R(*)(uint64_t, uint64_t, __m256, __m256, __m256))f)(i0, i1, vector[0], vector[1], vector[2]);
        else
            return ((R(*)(uint64_t, uint64_t, __m256, __m256, __m256, __m256))f)(i0, i1, vector[0], vector[1],
                                                                                 vector[2], vector[3]);
    }
};

template <int W, class Arguments, class Results, class Out> struct caller;
template <int W, class... A, class... R, class Out> struct caller<W, list<A...>, list<R...>, Out> {
    static constexpr bool has_out = !std::is_void_v<Out>;
    static constexpr int vectors_in = (registers_of<W, A> + ... + 0), vectors_back = (registers_of<W, R> + ... + 0);
    static constexpr bool memory_form = vectors_in > 4 || vectors_back > 4;
    using first = std::tuple_element_t<0, std::tuple<R...>>;

    template <bool Chained> static void run(const void* f, buffer& b) {
        chain<Chained> c;
        for (int k = 0; k < lanes_of_buffer / stored_lanes(W); k++) {
            void* out = nullptr;
            if constexpr (has_out) out = b.result[1].bytes + k * bytes_of<W, Out>;
            if constexpr (memory_form) in_memory(f, b, k, out, c);
            else in_registers(f, b, k, out, c);
        }
    }

    template <class Chain>
    [[gnu::always_inline]] static void in_registers(const void* f, buffer& b, int k, void* out, Chain& c) {
        registers in;
        if constexpr (has_out) in.integer[in.integers++] = (uint64_t)out;
        int j = 0;
        (in.take<W, A>(b.argument[j++].bytes + k * bytes_of<W, A>, c), ...);

        unsigned char* to[2] = {b.result[0].bytes + k * bytes_of<W, first>,
                                b.result[1].bytes + k * bytes_of<W, first>};
        if constexpr (in_integer_register<W, first>) {
            const auto value = in.call<vectors_in, uint64_t>(f);
            c.wait_for(value);
            memcpy(to[0], &value, sizeof(first));
            if constexpr (sizeof...(R) == 2) memcpy(to[1], (const char*)&value + 4, 4);
        } else {
            // The first result register is the function's value; the others are read before anything can change them.
            register __m256 y0 asm("ymm0") = in.call<vectors_in, __m256>(f);
            register __m256 y1 asm("ymm1");
            register __m256 y2 asm("ymm2");
            register __m256 y3 asm("ymm3");
            asm volatile("" : "+x"(y0), "=x"(y1), "=x"(y2), "=x"(y3));
            const __m256 y[4] = {y0, y1, y2, y3};
            constexpr int n = registers_of<W, first>;
            __m256 all = y[0];
#pragma GCC unroll 4
            for (int r = 1; r < vectors_back; r++)
                all = _mm256_or_ps(all, y[r]);
            c.wait_for(all);
#pragma GCC unroll 2
            for (size_t j = 0; j < sizeof...(R); j++)
#pragma GCC unroll 4
                for (int r = 0; r < n; r++)
                    store<bytes_of<W, first>>(to[j] + 32 * r, y[j * n + r]);
        }
    }

    template <class Chain>
    [[gnu::always_inline]] static void in_memory(const void* f, buffer& b, int k, void* out, Chain& c) {
        using value = stack_vector<bytes_of<W, first>>;
        const auto linked = [&]<class V>(const V& x) [[gnu::always_inline]] {
            if constexpr (std::is_same_v<Chain, chain<true>>) {
                V copy;
                constexpr int step = sizeof(V) < 32 ? sizeof(V) : 32;
                for (size_t i = 0; i < sizeof(V); i += step)
                    store<step>(copy.bytes + i, c.after(load<step>(x.bytes + i)));
                return copy;
            } else return x;
        };
        const auto wait_for = [&](const value& y) [[gnu::always_inline]] {
            if constexpr (std::is_same_v<Chain, chain<true>>) {
                constexpr int step = sizeof(value) < 32 ? sizeof(value) : 32;
                __m256 all = load<step>(y.bytes);
                for (size_t i = step; i < sizeof(value); i += step)
                    all = _mm256_or_ps(all, load<step>(y.bytes + i));
                c.wait_for(all);
            }
        };
        const auto call = (void* (*)(void*, void*, stack_vector<bytes_of<W, A>>...))f;
        auto* to = (value*)b.result[0].bytes + k;
        [&]<size_t... J>(std::index_sequence<J...>) [[gnu::always_inline]] {
            auto run = [&](void* object) [[gnu::always_inline]] {
                call(object, out, linked(((const stack_vector<bytes_of<W, A>>*)b.argument[J].bytes)[k])...);
            };
            if constexpr (sizeof...(R) == 1) {
                run(to);
                wait_for(*to);
            } else {
                value object[2];
                run(object);
                wait_for(object[1]);
                *to = object[0];
                ((value*)b.result[1].bytes)[k] = object[1];
            }
        }
        (std::index_sequence_for<A...>());
    }
};

// Signed and unsigned lanes travel alike.
template <class T> struct traveller { using type = T; };
template <> struct traveller<uint32_t> { using type = int32_t; };
template <> struct traveller<uint64_t> { using type = int64_t; };

using run_function = void (*)(const void*, buffer&);
struct run_functions {
    run_function independent, chained;
};
template <int W, class... List>
constexpr run_functions both = {caller<W, List...>::template run<false>, caller<W, List...>::template run<true>};
template <class Arguments, class Results, class Out = void> run_functions at_width(int width) {
    switch (width) {
    case 1:
        return both<1, Arguments, Results, Out>;
    case 2:
        return both<2, Arguments, Results, Out>;
    case 3:
        return both<3, Arguments, Results, Out>;
    case 4:
        return both<4, Arguments, Results, Out>;
    case 8:
        return both<8, Arguments, Results, Out>;
    default:
        return both<16, Arguments, Results, Out>;
    }
}

template <class T> run_functions of_floating(const kernel_row& row, int width) {
    switch (row.sclass) {
    case signature_class::one_argument:
        return at_width<list<T>, list<T>>(width);
    case signature_class::two_arguments:
        return at_width<list<T, T>, list<T>>(width);
    case signature_class::three_arguments:
        return at_width<list<T, T, T>, list<T>>(width);
    case signature_class::with_integer:
        return at_width<list<T, int32_t>, list<T>>(width);
    case signature_class::to_integer:
        return at_width<list<T>, list<int32_t>>(width);
    case signature_class::pointer_out:
        return row.extra == lane_type::i32 ? at_width<list<T>, list<T>, int32_t>(width)
                                           : at_width<list<T>, list<T>, T>(width);
    case signature_class::two_pointer_out:
        return at_width<list<T, T>, list<T>, int32_t>(width);
    case signature_class::pair:
        return at_width<list<T>, list<T, T>>(width);
    default:
        throw std::logic_error("not a class of floating arguments");
    }
}

} // namespace

pass export_pass(const call_plan& plan, const void* function, calls how) {
    const kernel_row& row = *plan.row;
    run_functions runs;
    switch (row.sclass) {
    case signature_class::integer:
        runs = at_width<list<int32_t, int32_t>, list<int32_t>>(plan.width);
        break;
    case signature_class::integer_pair:
        runs = at_width<list<int32_t, int32_t>, list<int32_t, int32_t>>(plan.width);
        break;
    case signature_class::bits_to_nan:
    case signature_class::conversion:
        runs = with_type(row.in, [&]<class I>(type<I>) {
            return with_type(row.out, [&]<class R>(type<R>) {
                return at_width<list<typename traveller<I>::type>, list<typename traveller<R>::type>>(plan.width);
            });
        });
        break;
    default:
        runs = row.in == lane_type::f32 ? of_floating<float>(row, plan.width) : of_floating<double>(row, plan.width);
    }
    const run_function run = how == calls::chained ? runs.chained : runs.independent;
    return [=](buffer& b) { run(function, b); };
}

} // namespace orvane::bench
