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

// The arguments of one call in the register form. (Loops over them are unrolled, or they would go through memory.)
struct registers {
    uint64_t integer[2] = {};
    __m256 vector[4];
    int integers = 0, vectors = 0;

    template <int W, class T> [[gnu::always_inline]] void take(const unsigned char* at) {
        if constexpr (in_integer_register<W, T>) {
            T value;
            memcpy(&value, at, sizeof value);
            integer[integers++] = (uint64_t)value;
        } else {
#pragma GCC unroll 4
            for (int r = 0; r < registers_of<W, T>; r++)
                vector[vectors++] = load<bytes_of<W, T>>(at + 32 * r);
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

    static void run(const void* f, buffer& b) {
        for (int k = 0; k < lanes_of_buffer / stored_lanes(W); k++) {
            void* out = nullptr;
            if constexpr (has_out) out = b.result[1].bytes + k * bytes_of<W, Out>;
            if constexpr (memory_form) in_memory(f, b, k, out);
            else in_registers(f, b, k, out);
        }
    }

    [[gnu::always_inline]] static void in_registers(const void* f, buffer& b, int k, void* out) {
        registers in;
        if constexpr (has_out) in.integer[in.integers++] = (uint64_t)out;
        int j = 0;
        (in.take<W, A>(b.argument[j++].bytes + k * bytes_of<W, A>), ...);

        unsigned char* to[2] = {b.result[0].bytes + k * bytes_of<W, first>,
                                b.result[1].bytes + k * bytes_of<W, first>};
        if constexpr (in_integer_register<W, first>) {
            const auto value = in.call<vectors_in, uint64_t>(f);
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
#pragma GCC unroll 2
            for (size_t j = 0; j < sizeof...(R); j++)
#pragma GCC unroll 4
                for (int r = 0; r < n; r++)
                    store<bytes_of<W, first>>(to[j] + 32 * r, y[j * n + r]);
        }
    }

    [[gnu::always_inline]] static void in_memory(const void* f, buffer& b, int k, void* out) {
        using value = stack_vector<bytes_of<W, first>>;
        const auto call = (void* (*)(void*, void*, stack_vector<bytes_of<W, A>>...))f;
        auto* to = (value*)b.result[0].bytes + k;
        [&]<size_t... J>(std::index_sequence<J...>) [[gnu::always_inline]] {
            auto run = [&](void* object) [[gnu::always_inline]] {
                call(object, out, ((const stack_vector<bytes_of<W, A>>*)b.argument[J].bytes)[k]...);
            };
            if constexpr (sizeof...(R) == 1) run(to);
            else {
                value object[2];
                run(object);
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
template <class Arguments, class Results, class Out = void> run_function at_width(int width) {
    switch (width) {
    case 1:
        return caller<1, Arguments, Results, Out>::run;
    case 2:
        return caller<2, Arguments, Results, Out>::run;
    case 3:
        return caller<3, Arguments, Results, Out>::run;
    case 4:
        return caller<4, Arguments, Results, Out>::run;
    case 8:
        return caller<8, Arguments, Results, Out>::run;
    default:
        return caller<16, Arguments, Results, Out>::run;
    }
}

template <class T> run_function of_floating(const kernel_row& row, int width) {
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

pass export_pass(const call_plan& plan, const void* function) {
    const kernel_row& row = *plan.row;
    run_function run;
    switch (row.sclass) {
    case signature_class::integer:
        run = at_width<list<int32_t, int32_t>, list<int32_t>>(plan.width);
        break;
    case signature_class::integer_pair:
        run = at_width<list<int32_t, int32_t>, list<int32_t, int32_t>>(plan.width);
        break;
    case signature_class::bits_to_nan:
    case signature_class::conversion:
        run = with_type(row.in, [&]<class I>(type<I>) {
            return with_type(row.out, [&]<class R>(type<R>) {
                return at_width<list<typename traveller<I>::type>, list<typename traveller<R>::type>>(plan.width);
            });
        });
        break;
    default:
        run = row.in == lane_type::f32 ? of_floating<float>(row, plan.width) : of_floating<double>(row, plan.width);
    }
    return [=](buffer& b) { run(function, b); };
}

} // namespace orvane::bench
