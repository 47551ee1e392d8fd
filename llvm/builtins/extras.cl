// OpenCL C built-ins that are no export of the library: common, geometric, integer and relational functions, vector
// loads and stores, shuffles, and forms of the math functions with a scalar operand. What belongs to a runtime
// (work-items, barriers, atomics, images, pipes, printf) is not here.
//
// An operator on vectors works on scalars too, so most bodies are written once and made for every width by a macro.
#pragma OPENCL EXTENSION cl_khr_fp64 : enable

#define FN __attribute__((overloadable, always_inline))
#define VECTORS(M, ...) M(2, __VA_ARGS__) M(3, __VA_ARGS__) M(4, __VA_ARGS__) M(8, __VA_ARGS__) M(16, __VA_ARGS__)
#define WIDTHS(M, ...) M(, __VA_ARGS__) VECTORS(M, __VA_ARGS__)
#define FLOATING(M) WIDTHS(M, float, int) WIDTHS(M, double, long)
// type, unsigned twin, signed twin, the type of twice the bits, bits
#define INTEGERS(M)                                                                                                   \
    M(char, uchar, char, short, 8)                                                                                    \
    M(uchar, uchar, char, ushort, 8)                                                                                  \
    M(short, ushort, short, int, 16)                                                                                  \
    M(ushort, ushort, short, uint, 16)                                                                                \
    M(int, uint, int, long, 32)                                                                                       \
    M(uint, uint, int, ulong, 32)                                                                                     \
    M(long, ulong, long, long, 64)                                                                                    \
    M(ulong, ulong, long, ulong, 64)
#define TYPES(M) M(char) M(uchar) M(short) M(ushort) M(int) M(uint) M(long) M(ulong) M(float) M(double)
#define AS(T, x) __builtin_astype(x, T)

// A function of one, two or three lanes made one of vectors, by halves.
#define BY_HALVES_1(NAME, R, A)                                                                                       \
    R##2 FN NAME(A##2 x) { return (R##2)(NAME(x.x), NAME(x.y)); }                                                     \
    R##3 FN NAME(A##3 x) { return (R##3)(NAME(x.x), NAME(x.y), NAME(x.z)); }                                          \
    R##4 FN NAME(A##4 x) { return (R##4)(NAME(x.lo), NAME(x.hi)); }                                                   \
    R##8 FN NAME(A##8 x) { return (R##8)(NAME(x.lo), NAME(x.hi)); }                                                   \
    R##16 FN NAME(A##16 x) { return (R##16)(NAME(x.lo), NAME(x.hi)); }

#include "conversions.cl"

// ---- Math

// mad as fma, the best that it may be: one rounding, one instruction.
#define MATH(N, T, I)                                                                                                 \
    T##N FN mad(T##N x, T##N y, T##N z) { return fma(x, y, z); }
#define MATH_SCALAR_OPERAND(N, T, I)                                                                                  \
    T##N FN fmin(T##N x, T y) { return fmin(x, (T##N)y); }                                                            \
    T##N FN fmax(T##N x, T y) { return fmax(x, (T##N)y); }                                                            \
    T##N FN ldexp(T##N x, int k) { return ldexp(x, (int##N)k); }                                                      \
    T##N FN pown(T##N x, int k) { return pown(x, (int##N)k); }                                                        \
    T##N FN rootn(T##N x, int k) { return rootn(x, (int##N)k); }
// Built-ins that this file calls; their definitions are made from the list of exports.
#define EXTERNAL(N, T, I)                                                                                             \
    T##N __attribute__((overloadable, const)) fma(T##N, T##N, T##N);                                                  \
    T##N __attribute__((overloadable, const)) fmin(T##N, T##N);                                                       \
    T##N __attribute__((overloadable, const)) fmax(T##N, T##N);                                                       \
    T##N __attribute__((overloadable, const)) sqrt(T##N);                                                             \
    T##N __attribute__((overloadable, const)) fabs(T##N);                                                             \
    T##N __attribute__((overloadable, const)) copysign(T##N, T##N);                                                   \
    T##N __attribute__((overloadable, const)) ldexp(T##N, int##N);                                                    \
    T##N __attribute__((overloadable, const)) pown(T##N, int##N);                                                     \
    T##N __attribute__((overloadable, const)) rootn(T##N, int##N);
FLOATING(EXTERNAL)
FLOATING(MATH)
VECTORS(MATH_SCALAR_OPERAND, float, int)
VECTORS(MATH_SCALAR_OPERAND, double, long)

// ---- Common functions

#define COMMON(N, T, I)                                                                                               \
    T##N FN clamp(T##N x, T##N lo, T##N hi) { return fmin(fmax(x, lo), hi); }                                         \
    T##N FN degrees(T##N x) { return x * (T)57.29577951308232087680; }                                                \
    T##N FN radians(T##N x) { return x * (T)0.01745329251994329577; }                                                 \
    T##N FN min(T##N x, T##N y) { return y < x ? y : x; }                                                             \
    T##N FN max(T##N x, T##N y) { return x < y ? y : x; }                                                             \
    T##N FN mix(T##N x, T##N y, T##N a) { return x + (y - x) * a; }                                                   \
    T##N FN step(T##N edge, T##N x) { return x < edge ? (T##N)0 : (T##N)1; }                                          \
    T##N FN smoothstep(T##N lo, T##N hi, T##N x) {                                                                    \
        const T##N t = clamp((x - lo) / (hi - lo), (T##N)0, (T##N)1);                                                 \
        return t * t * (3 - 2 * t);                                                                                   \
    }                                                                                                                 \
    T##N FN sign(T##N x) { return x != x ? (T##N)0 : x > 0 ? (T##N)1 : x < 0 ? (T##N)-1 : x; }
#define COMMON_SCALAR_OPERAND(N, T, I)                                                                                \
    T##N FN clamp(T##N x, T lo, T hi) { return clamp(x, (T##N)lo, (T##N)hi); }                                        \
    T##N FN min(T##N x, T y) { return min(x, (T##N)y); }                                                              \
    T##N FN max(T##N x, T y) { return max(x, (T##N)y); }                                                              \
    T##N FN mix(T##N x, T##N y, T a) { return mix(x, y, (T##N)a); }                                                   \
    T##N FN step(T edge, T##N x) { return step((T##N)edge, x); }                                                      \
    T##N FN smoothstep(T lo, T hi, T##N x) { return smoothstep((T##N)lo, (T##N)hi, x); }
FLOATING(COMMON)
VECTORS(COMMON_SCALAR_OPERAND, float, int)
VECTORS(COMMON_SCALAR_OPERAND, double, long)

// ---- Geometric functions

#define DOT(T)                                                                                                        \
    T FN dot(T x, T y) { return x * y; }                                                                              \
    T FN dot(T##2 x, T##2 y) { return fma(x.x, y.x, x.y * y.y); }                                                     \
    T FN dot(T##3 x, T##3 y) { return fma(x.x, y.x, fma(x.y, y.y, x.z * y.z)); }                                      \
    T FN dot(T##4 x, T##4 y) { return fma(x.x, y.x, x.y * y.y) + fma(x.z, y.z, x.w * y.w); }                          \
    T##3 FN cross(T##3 x, T##3 y) { return x.yzx * y.zxy - x.zxy * y.yzx; }                                           \
    T##4 FN cross(T##4 x, T##4 y) { return (T##4)(cross(x.xyz, y.xyz), 0); }
DOT(float)
DOT(double)
// A length must neither overflow nor vanish where the sum of squares would: the vector is scaled by a power of two when
// that sum leaves the middle of the range.
#define LENGTHS(N, T, HUGE_SUM, TINY_SUM, DOWN, UP)                                                                   \
    T FN length(T##N x) {                                                                                             \
        const T plain = dot(x, x);                                                                                    \
        const T scale = plain > HUGE_SUM ? (T)DOWN : plain < TINY_SUM ? (T)UP : (T)1;                                 \
        const T back = plain > HUGE_SUM ? (T)UP : plain < TINY_SUM ? (T)DOWN : (T)1;                                  \
        const T##N scaled = x * scale;                                                                                \
        return sqrt(dot(scaled, scaled)) * back;                                                                      \
    }                                                                                                                 \
    T FN distance(T##N x, T##N y) { return length(x - y); }                                                           \
    T##N FN normalize(T##N x) {                                                                                       \
        const T plain = dot(x, x);                                                                                    \
        const T##N scaled = plain > HUGE_SUM ? x * (T)DOWN : plain < TINY_SUM ? x * (T)UP : x;                        \
        const T sum = dot(scaled, scaled);                                                                            \
        return sum == 0 ? x : scaled * (1 / sqrt(sum));                                                               \
    }                                                                                                                 \
    T FN fast_length(T##N x) { return sqrt(dot(x, x)); }                                                              \
    T FN fast_distance(T##N x, T##N y) { return fast_length(x - y); }                                                 \
    T##N FN fast_normalize(T##N x) {                                                                                  \
        const T sum = dot(x, x);                                                                                      \
        return sum == 0 ? x : x * (1 / sqrt(sum));                                                                    \
    }
#define LENGTHS_OF(T, ...)                                                                                            \
    LENGTHS(, T, __VA_ARGS__) LENGTHS(2, T, __VA_ARGS__) LENGTHS(3, T, __VA_ARGS__) LENGTHS(4, T, __VA_ARGS__)
LENGTHS_OF(float, 0x1p+100f, 0x1p-80f, 0x1p-66f, 0x1p+66f)
LENGTHS_OF(double, 0x1p+900, 0x1p-800, 0x1p-530, 0x1p+530)

// ---- Integer functions

#define MIN_MAX(N, T, U, S)                                                                                           \
    T##N FN min(T##N x, T##N y) { return y < x ? y : x; }                                                             \
    T##N FN max(T##N x, T##N y) { return x < y ? y : x; }                                                             \
    T##N FN clamp(T##N x, T##N lo, T##N hi) { return min(max(x, lo), hi); }
#define MIN_MAX_SCALAR_OPERAND(N, T)                                                                                  \
    T##N FN min(T##N x, T y) { return min(x, (T##N)y); }                                                              \
    T##N FN max(T##N x, T y) { return max(x, (T##N)y); }                                                              \
    T##N FN clamp(T##N x, T lo, T hi) { return min(max(x, (T##N)lo), (T##N)hi); }
// abs_diff's subtraction wraps to the true distance, whatever the signs.
#define ARITHMETIC(N, T, U, S, BITS)                                                                                  \
    U##N FN abs(T##N x) { return x < (T##N)0 ? -AS(U##N, x) : AS(U##N, x); }                                                \
    U##N FN abs_diff(T##N x, T##N y) { return x < y ? AS(U##N, y) - AS(U##N, x) : AS(U##N, x) - AS(U##N, y); }         \
    T##N FN hadd(T##N x, T##N y) { return (x & y) + ((x ^ y) >> (T##N)1); }                                           \
    T##N FN rhadd(T##N x, T##N y) { return (x | y) - ((x ^ y) >> (T##N)1); }                                          \
    T##N FN rotate(T##N x, T##N k) {                                                                                  \
        const U##N left = AS(U##N, k) & (U##N)(BITS - 1), right = -left & (U##N)(BITS - 1);                           \
        return AS(T##N, (U##N)(AS(U##N, x) << left | AS(U##N, x) >> right));                                          \
    }
// The high half by arithmetic of twice the bits.
#define HIGH_HALF(N, T, WIDE, BITS)                                                                                   \
    T##N FN mul_hi(T##N x, T##N y) {                                                                                  \
        return convert_##T##N((WIDE##N)(convert_##WIDE##N(x) * convert_##WIDE##N(y) >> (WIDE##N)BITS));                     \
    }                                                                                                                 \
    T##N FN mad_sat(T##N x, T##N y, T##N z) {                                                                         \
        const WIDE##N exact = convert_##WIDE##N(x) * convert_##WIDE##N(y) + convert_##WIDE##N(z);                  \
        return convert_##T##N(clamp(exact, (WIDE##N)(WIDE)LEAST(T), (WIDE##N)(WIDE)GREATEST(T)));                                \
    }
// There is nothing wider than ulong: four products of halves. For long the unsigned product is corrected: it counts a
// negative factor as 2^64 more than it is.
#define HIGH_HALF_LONG(N, _)                                                                                          \
    ulong##N FN mul_hi(ulong##N x, ulong##N y) {                                                                      \
        const ulong##N low = 0xffffffff, half_bits = 32;                                                              \
        const ulong##N x0 = x & low, x1 = x >> half_bits, y0 = y & low, y1 = y >> half_bits;                          \
        const ulong##N middle = x1 * y0 + (x0 * y0 >> half_bits), other = x0 * y1 + (middle & low);                   \
        return x1 * y1 + (middle >> half_bits) + (other >> half_bits);                                                \
    }                                                                                                                 \
    long##N FN mul_hi(long##N x, long##N y) {                                                                         \
        return AS(long##N, mul_hi(AS(ulong##N, x), AS(ulong##N, y))) - ((x >> (long##N)63) & y) -                     \
               ((y >> (long##N)63) & x);                                                                              \
    }                                                                                                                 \
    ulong##N FN mad_sat(ulong##N x, ulong##N y, ulong##N z) {                                                         \
        const ulong##N low = x * y, sum = low + z;                                                                    \
        return mul_hi(x, y) != 0 || sum < low ? (ulong##N)~0ul : sum;                                                 \
    }                                                                                                                 \
    long##N FN mad_sat(long##N x, long##N y, long##N z) {                                                             \
        const ulong##N low = AS(ulong##N, x) * AS(ulong##N, y), sum = low + AS(ulong##N, z);                          \
        const long##N carry = sum < low ? (long##N)1 : (long##N)0;                                                    \
        const long##N high = mul_hi(x, y) + (z >> (long##N)63) + carry;                                               \
        const long##N fits = AS(long##N, sum) >> (long##N)63;                                                         \
        return high == fits ? AS(long##N, sum) : high < 0 ? (long##N)LEAST(long) : (long##N)GREATEST(long);           \
    }
#define MAD_HI(N, T)                                                                                                  \
    T##N FN mad_hi(T##N x, T##N y, T##N z) { return mul_hi(x, y) + z; }

// Counts lane by lane; lanes of 8 and 16 bits are counted in 32.
#define COUNTS(T, U, S, WIDE, BITS)                                                                                   \
    T FN clz(T x) { return x == 0 ? BITS : BITS <= 32 ? __builtin_clz((uint)(U)x) - (32 - BITS) : __builtin_clzl(x); } \
    T FN ctz(T x) { return x == 0 ? BITS : BITS <= 32 ? __builtin_ctz((uint)(U)x) : __builtin_ctzl(x); }              \
    T FN popcount(T x) { return __builtin_popcountl((U)x); }                                                          \
    BY_HALVES_1(clz, T, T)                                                                                            \
    BY_HALVES_1(ctz, T, T)                                                                                            \
    BY_HALVES_1(popcount, T, T)

// The compiler's saturating operations widen a short scalar to int, but no vector.
#define SATURATING(N, T)                                                                                              \
    T##N FN add_sat(T##N x, T##N y) { return __builtin_elementwise_add_sat(x, y); }                                   \
    T##N FN sub_sat(T##N x, T##N y) { return __builtin_elementwise_sub_sat(x, y); }
#define SATURATING_SCALAR(T)                                                                                          \
    T FN add_sat(T x, T y) { return add_sat((T##2)x, (T##2)y).x; }                                                    \
    T FN sub_sat(T x, T y) { return sub_sat((T##2)x, (T##2)y).x; }

#define MIN_MAX_OF(T, U, S, WIDE, BITS)                                                                               \
    WIDTHS(MIN_MAX, T, U, S)                                                                                          \
    VECTORS(MIN_MAX_SCALAR_OPERAND, T)                                                                                \
    VECTORS(SATURATING, T)                                                                                            \
    SATURATING_SCALAR(T)                                                                                              \
    WIDTHS(ARITHMETIC, T, U, S, BITS)                                                                                 \
    COUNTS(T, U, S, WIDE, BITS)
INTEGERS(MIN_MAX_OF)
WIDTHS(HIGH_HALF, char, short, 8)
WIDTHS(HIGH_HALF, uchar, ushort, 8)
WIDTHS(HIGH_HALF, short, int, 16)
WIDTHS(HIGH_HALF, ushort, uint, 16)
WIDTHS(HIGH_HALF, int, long, 32)
WIDTHS(HIGH_HALF, uint, ulong, 32)
WIDTHS(HIGH_HALF_LONG, )
#define MAD_HI_OF(T, U, S, WIDE, BITS) WIDTHS(MAD_HI, T)
INTEGERS(MAD_HI_OF)

#define UPSAMPLE(N, WIDE, HIGH, LOW, UWIDE, BITS)                                                                     \
    WIDE##N FN upsample(HIGH##N high, LOW##N low) {                                                                   \
        return convert_##WIDE##N(high) << (WIDE##N)BITS | convert_##WIDE##N(low);                                   \
    }
WIDTHS(UPSAMPLE, short, char, uchar, ushort, 8)
WIDTHS(UPSAMPLE, ushort, uchar, uchar, ushort, 8)
WIDTHS(UPSAMPLE, int, short, ushort, uint, 16)
WIDTHS(UPSAMPLE, uint, ushort, ushort, uint, 16)
WIDTHS(UPSAMPLE, long, int, uint, ulong, 32)
WIDTHS(UPSAMPLE, ulong, uint, uint, ulong, 32)

// 24-bit operands: the low 32 bits of the product, in either reading of the sign.
#define PRODUCT_24(N, T)                                                                                              \
    T##N FN mul24(T##N x, T##N y) { return (x << (T##N)8 >> (T##N)8) * (y << (T##N)8 >> (T##N)8); }                   \
    T##N FN mad24(T##N x, T##N y, T##N z) { return mul24(x, y) + z; }
WIDTHS(PRODUCT_24, int)
WIDTHS(PRODUCT_24, uint)

// ---- Relational functions: 1 for a true scalar, all bits for a true lane

#define COMPARISONS(N, T, I, R)                                                                                       \
    R##N FN isequal(T##N x, T##N y) { return x == y; }                                                                \
    R##N FN isnotequal(T##N x, T##N y) { return x != y; }                                                             \
    R##N FN isgreater(T##N x, T##N y) { return x > y; }                                                               \
    R##N FN isgreaterequal(T##N x, T##N y) { return x >= y; }                                                         \
    R##N FN isless(T##N x, T##N y) { return x < y; }                                                                  \
    R##N FN islessequal(T##N x, T##N y) { return x <= y; }                                                            \
    R##N FN islessgreater(T##N x, T##N y) { return (x < y) | (x > y); }                                               \
    R##N FN isordered(T##N x, T##N y) { return (x == x) & (y == y); }                                                 \
    R##N FN isunordered(T##N x, T##N y) { return (x != x) | (y != y); }                                               \
    R##N FN isnan(T##N x) { return x != x; }                                                                          \
    R##N FN isinf(T##N x) { return fabs(x) == (T##N)INFINITY; }                                                       \
    R##N FN isfinite(T##N x) { return fabs(x) < (T##N)INFINITY; }                                                     \
    R##N FN isnormal(T##N x) { return (fabs(x) < (T##N)INFINITY) & (fabs(x) >= (T##N)LEAST_NORMAL_##T); }             \
    R##N FN signbit(T##N x) { return AS(I##N, x) < 0; }
#define LEAST_NORMAL_float 0x1p-126f
#define LEAST_NORMAL_double 0x1p-1022
WIDTHS(COMPARISONS, float, int, int)
COMPARISONS(, double, long, int)
VECTORS(COMPARISONS, double, long, long)

#define BITSELECT(N, T, I)                                                                                            \
    T##N FN bitselect(T##N x, T##N y, T##N where) {                                                                   \
        return AS(T##N, (I##N)((AS(I##N, x) & ~AS(I##N, where)) | (AS(I##N, y) & AS(I##N, where))));                  \
    }
#define SELECT(T, C, S)                                                                                                \
    T FN select(T x, T y, C c) { return c ? y : x; }                                                                  \
    VECTORS(SELECT_LANES, T, C, S)
#define SELECT_LANES(N, T, C, S)                                                                                      \
    T##N FN select(T##N x, T##N y, C##N c) { return AS(S##N, c) < (S##N)0 ? y : x; }
#define CHOICES(T, U, S, WIDE, BITS)                                                                                  \
    WIDTHS(BITSELECT, T, T)                                                                                           \
    SELECT(T, S, S)                                                                                                     \
    SELECT(T, U, S)
INTEGERS(CHOICES)
FLOATING(BITSELECT)
SELECT(float, int, int)
SELECT(float, uint, int)
SELECT(double, long, long)
SELECT(double, ulong, long)

#define ANY_ALL(T)                                                                                                    \
    int FN any(T x) { return x < 0; }                                                                                 \
    int FN all(T x) { return x < 0; }                                                                                 \
    int FN any(T##2 x) { return (x.x | x.y) < 0; }                                                                    \
    int FN all(T##2 x) { return (x.x & x.y) < 0; }                                                                    \
    int FN any(T##3 x) { return (x.x | x.y | x.z) < 0; }                                                              \
    int FN all(T##3 x) { return (x.x & x.y & x.z) < 0; }                                                              \
    int FN any(T##4 x) { return any((T##2)(x.lo | x.hi)); }                                                           \
    int FN all(T##4 x) { return all((T##2)(x.lo & x.hi)); }                                                           \
    int FN any(T##8 x) { return any((T##4)(x.lo | x.hi)); }                                                           \
    int FN all(T##8 x) { return all((T##4)(x.lo & x.hi)); }                                                           \
    int FN any(T##16 x) { return any((T##8)(x.lo | x.hi)); }                                                          \
    int FN all(T##16 x) { return all((T##8)(x.lo & x.hi)); }
ANY_ALL(char)
ANY_ALL(short)
ANY_ALL(int)
ANY_ALL(long)

// ---- Vector loads and stores: aligned to an element only

#define LOADS(SPACE, T)                                                                                               \
    VECTORS_BUT_3(LOAD, SPACE, T)                                                                                     \
    T##3 FN vload3(size_t i, const SPACE T* p) { return (T##3)(p[3 * i], p[3 * i + 1], p[3 * i + 2]); }
#define STORES(SPACE, T)                                                                                              \
    VECTORS_BUT_3(STORE, SPACE, T)                                                                                    \
    void FN vstore3(T##3 x, size_t i, SPACE T* p) { p[3 * i] = x.x, p[3 * i + 1] = x.y, p[3 * i + 2] = x.z; }
#define VECTORS_BUT_3(M, ...) M(2, __VA_ARGS__) M(4, __VA_ARGS__) M(8, __VA_ARGS__) M(16, __VA_ARGS__)
#define LOAD(N, SPACE, T)                                                                                             \
    T##N FN vload##N(size_t i, const SPACE T* p) { return *(const SPACE packed_##T##N*)(p + N * i); }
#define STORE(N, SPACE, T)                                                                                            \
    void FN vstore##N(T##N x, size_t i, SPACE T* p) { *(SPACE packed_##T##N*)(p + N * i) = x; }
#define PACKED(N, T) typedef T##N __attribute__((aligned(sizeof(T)))) packed_##T##N;
#define MEMORY_OF(T)                                                                                                  \
    VECTORS_BUT_3(PACKED, T)                                                                                          \
    LOADS(__global, T)                                                                                                \
    LOADS(__local, T)                                                                                                 \
    LOADS(__private, T)                                                                                               \
    LOADS(__generic, T)                                                                                               \
    LOADS(__constant, T)                                                                                              \
    STORES(__global, T)                                                                                               \
    STORES(__local, T)                                                                                                \
    STORES(__private, T)                                                                                              \
    STORES(__generic, T)
TYPES(MEMORY_OF)

// half in memory. The processor's conversion rounds to nearest; the other modes step back from it where it went the
// wrong way: one pattern further is one half further from zero.
#define HALF_STORE(SPACE, T)                                                                                          \
    void FN vstore_half(T x, size_t i, SPACE half* p) { HALF_STORE_##T(x, p + i); }                                   \
    void FN vstore_half_rte(T x, size_t i, SPACE half* p) { vstore_half(x, i, p); }                                   \
    void FN vstore_half_rtz(T x, size_t i, SPACE half* p) { stored_half(x, p + i, 0, 0); }                            \
    void FN vstore_half_rtp(T x, size_t i, SPACE half* p) { stored_half(x, p + i, 1, 0); }                            \
    void FN vstore_half_rtn(T x, size_t i, SPACE half* p) { stored_half(x, p + i, 0, 1); }
#define HALF_STORE_float(x, p) __builtin_store_halff(x, p)
#define HALF_STORE_double(x, p) __builtin_store_half(x, p)
#define STORED_HALF(SPACE, T, I)                                                                                      \
    static void FN stored_half(T x, SPACE half* p, int up, int down) {                                                \
        HALF_STORE_##T(x, p);                                                                                         \
        const T back = __builtin_load_halff(p);                                                                       \
        const int negative = AS(I, x) < 0;                                                                            \
        SPACE ushort* bits = (SPACE ushort*)p;                                                                        \
        const int away = negative ? down : up; /* the mode's direction is away from zero */                           \
        if (!away && fabs(back) > fabs(x)) *bits -= 1;                                                                \
        if (away && fabs(back) < fabs(x)) *bits += 1;                                                                 \
    }
#define HALF_VECTORS(N, SPACE, STEP)                                                                                  \
    float##N FN vload_half##N(size_t i, const SPACE half* p) {                                                        \
        float##N x;                                                                                                   \
        for (int k = 0; k < N; k++)                                                                                   \
            x[k] = __builtin_load_halff(p + N * i + k);                                                               \
        return x;                                                                                                     \
    }                                                                                                                 \
    float##N FN vloada_half##N(size_t i, const SPACE half* p) {                                                       \
        float##N x;                                                                                                   \
        for (int k = 0; k < N; k++)                                                                                   \
            x[k] = __builtin_load_halff(p + STEP * i + k);                                                            \
        return x;                                                                                                     \
    }
#define HALF_VECTOR_STORES(N, SPACE, T, STEP)                                                                         \
    HALF_VECTOR_STORE(N, SPACE, T, STEP, ) HALF_VECTOR_STORE(N, SPACE, T, STEP, _rte)                                 \
    HALF_VECTOR_STORE(N, SPACE, T, STEP, _rtz) HALF_VECTOR_STORE(N, SPACE, T, STEP, _rtp)                             \
    HALF_VECTOR_STORE(N, SPACE, T, STEP, _rtn)
#define HALF_VECTOR_STORE(N, SPACE, T, STEP, MODE)                                                                    \
    void FN vstore_half##N##MODE(T##N x, size_t i, SPACE half* p) {                                                   \
        for (int k = 0; k < N; k++)                                                                                   \
            vstore_half##MODE(x[k], N * i + k, p);                                                                    \
    }                                                                                                                 \
    void FN vstorea_half##N##MODE(T##N x, size_t i, SPACE half* p) {                                                  \
        for (int k = 0; k < N; k++)                                                                                   \
            vstore_half##MODE(x[k], STEP * i + k, p);                                                                 \
    }
#define HALF_LOADS(SPACE)                                                                                             \
    float FN vload_half(size_t i, const SPACE half* p) { return __builtin_load_halff(p + i); }                        \
    float FN vloada_half(size_t i, const SPACE half* p) { return __builtin_load_halff(p + i); }                       \
    HALF_VECTORS(2, SPACE, 2) HALF_VECTORS(3, SPACE, 4) HALF_VECTORS(4, SPACE, 4) HALF_VECTORS(8, SPACE, 8)           \
    HALF_VECTORS(16, SPACE, 16)
#define HALF_STORES(SPACE, T, I)                                                                                      \
    STORED_HALF(SPACE, T, I)                                                                                          \
    HALF_STORE(SPACE, T)                                                                                              \
    HALF_VECTOR_STORES(2, SPACE, T, 2) HALF_VECTOR_STORES(3, SPACE, T, 4) HALF_VECTOR_STORES(4, SPACE, T, 4)          \
    HALF_VECTOR_STORES(8, SPACE, T, 8) HALF_VECTOR_STORES(16, SPACE, T, 16)
#define HALF_MEMORY(SPACE)                                                                                            \
    HALF_LOADS(SPACE)                                                                                                 \
    HALF_STORES(SPACE, float, int)                                                                                    \
    HALF_STORES(SPACE, double, long)
HALF_MEMORY(__global)
HALF_MEMORY(__local)
HALF_MEMORY(__private)
HALF_MEMORY(__generic)
HALF_LOADS(__constant)

// ---- Shuffles: the low bits of a mask's lane are the place

#define SHUFFLE(N, M, T, U)                                                                                           \
    T##N FN shuffle(T##M x, U##N mask) {                                                                              \
        T##N y;                                                                                                       \
        for (int k = 0; k < N; k++)                                                                                   \
            y[k] = x[mask[k] & (M - 1)];                                                                              \
        return y;                                                                                                     \
    }                                                                                                                 \
    T##N FN shuffle2(T##M x, T##M x2, U##N mask) {                                                                    \
        T##N y;                                                                                                       \
        for (int k = 0; k < N; k++)                                                                                   \
            y[k] = mask[k] & M ? x2[mask[k] & (M - 1)] : x[mask[k] & (M - 1)];                                        \
        return y;                                                                                                     \
    }
#define SHUFFLES(T, U)                                                                                                \
    VECTORS_BUT_3(SHUFFLE, 2, T, U)                                                                                   \
    VECTORS_BUT_3(SHUFFLE, 4, T, U)                                                                                   \
    VECTORS_BUT_3(SHUFFLE, 8, T, U)                                                                                   \
    VECTORS_BUT_3(SHUFFLE, 16, T, U)
#define SHUFFLES_OF(T, U, S, WIDE, BITS) SHUFFLES(T, U)
INTEGERS(SHUFFLES_OF)
SHUFFLES(float, uint)
SHUFFLES(double, ulong)
