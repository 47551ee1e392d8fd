// What slow paths are written with: scalar code, one lane per call, in the baseline instruction set.
//
// A slow path reads its lane through pointers, stores its result and returns a status code that only a debugger or a
// test ever sees. There are no fused operations: every product and every sum rounds by itself, in the order written.
#pragma once

#include <bit>
#include <cstdint>

// Declares or defines the slow path of a family; kernels and slow paths share its name and nothing else.
#define ORVANE_SLOW_PATH(name, ...) extern "C" [[gnu::visibility("hidden")]] int name(__VA_ARGS__)
// The slow path of another family whose code is the same.
#define ORVANE_SLOW_PATH_TWIN(name, of) extern "C" [[gnu::visibility("hidden"), gnu::alias(#of)]] decltype(of) name;

// A read-only table that slow paths share, under its name in the symbol table, and further names of the same bytes.
#define ORVANE_TABLE(type, name, length) extern "C" [[gnu::visibility("hidden")]] const type name[length]
#define ORVANE_TABLE_TWIN(name, of) extern "C" [[gnu::visibility("hidden"), gnu::alias(#of)]] const decltype(of) name;

namespace orvane {

enum status : int { ordinary = 0, domain_error = 1, pole = 2, overflow = 3, underflow = 4 };

constexpr uint32_t bits(float x) { return std::bit_cast<uint32_t>(x); }
constexpr uint64_t bits(double x) { return std::bit_cast<uint64_t>(x); }
constexpr float f32(uint32_t pattern) { return std::bit_cast<float>(pattern); }
constexpr double f64(uint64_t pattern) { return std::bit_cast<double>(pattern); }

// A power of two, or what else the field stands for, from a biased exponent under its mask.
constexpr double power_of_two(uint64_t biased) { return f64((biased & 0x7FF) << 52); }
constexpr float power_of_two_f32(uint32_t biased) { return f32((biased & 0xFF) << 23); }

// Fields of a value, and the NaN that is no result.
template <class T> constexpr int fraction_bits = sizeof(T) == 8 ? 52 : 23;
template <class T> constexpr int exponent_bias = sizeof(T) == 8 ? 1023 : 127;
template <class T> constexpr int top_exponent = sizeof(T) == 8 ? 0x7FF : 0xFF; // of infinities and NaN
template <class T> constexpr auto pattern_of_one = bits(T(1));
template <class T> constexpr T invalid = sizeof(T) == 8 ? T(f64(0x7FF8000000000000)) : T(f32(0x7FC00000)); // positive

template <class T> using pattern = decltype(bits(T()));
template <class T> constexpr pattern<T> sign_bit = bits(T(-0.0));

template <class T> int biased_exponent(T x) { return int(bits(x) >> fraction_bits<T>) & top_exponent<T>; }
// Sign and significand of x under another exponent field.
template <class T> T with_biased_exponent(T x, int field) {
    const auto kept = bits(x) & ~(pattern<T>(top_exponent<T>) << fraction_bits<T>);
    return std::bit_cast<T>(kept | pattern<T>(field) << fraction_bits<T>);
}
// The significand with exponent 0: in [1, 2).
template <class T> T significand(T x) {
    const auto fraction = bits(x) & ((decltype(bits(x))(1) << fraction_bits<T>)-1);
    return std::bit_cast<T>(fraction | pattern_of_one<T>);
}

// By the bits: of -0 and NaN too.
template <class T> bool is_negative(T x) { return bits(x) & sign_bit<T>; }
template <class T> T magnitude(T x) { return std::bit_cast<T>(bits(x) & ~sign_bit<T>); }
template <class T> T with_sign_of(T x, T v) { return std::bit_cast<T>(bits(magnitude(v)) | (bits(x) & sign_bit<T>)); }
template <class T> bool is_infinite(T x) { return magnitude(x) == T(__builtin_inf()); }
template <class T> bool is_nan(T x) { return x != x; }

// What an operation on x and y gives if one of them is a NaN: that of two is x, quieted. Written out since the
// compiler may exchange the operands of a sum or a product.
template <class T> T nan_of(T x, T y) { return (is_nan(x) ? x : y) * T(1.0); }

// What 0 / 0 is on the processor: a NaN with its sign set, and the invalid flag; a compiler's own has it clear.
template <class T> T invalid_operation() {
    T zero = 0;
    asm("" : "+x"(zero));
    return zero / zero;
}

// Horner's scheme at x: coefficients from the highest power down, or (horner_up) from the lowest up.
template <class V, class C, int N> V horner(V x, const C (&c)[N]) {
    V r = c[0];
    for (int i = 1; i < N; i++)
        r = r * x + c[i];
    return r;
}
template <class V, class C, int N> V horner_up(V x, const C (&c)[N]) {
    V r = c[N - 1];
    for (int i = N - 2; i >= 0; i--)
        r = r * x + c[i];
    return r;
}

// Two values whose exact sum stands for one number.
template <class T> struct hi_lo { T hi, lo; };

// A table of N entries, to be read by name or by byte offset.
template <class T, int N> struct table { T entry[N]; };

// Dekker's split: v = hi + lo exactly, each with at most half of the significand's bits, so that products of such
// parts are exact without a fused operation.
template <class T> constexpr T splitter = sizeof(T) == 8 ? T(134217729.0) : T(4097.0); // 2^27 + 1, 2^12 + 1
template <class T> [[gnu::always_inline]] inline hi_lo<T> split(T v) {
    const T a = v * splitter<T>;
    const T h = a - (a - v);
    return {h, v - h};
}

} // namespace orvane
