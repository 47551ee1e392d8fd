// OpenCL C conversions that are no export of the library: between integers, from short integers to floating types and
// back (through int), and between floating types where the value is kept.
#define MODES(M, ...) M(, __VA_ARGS__) M(_rte, __VA_ARGS__) M(_rtz, __VA_ARGS__) M(_rtp, __VA_ARGS__) M(_rtn, __VA_ARGS__)
#define LEAST(T) ((T)-1 < (T)1 ? (T)((T)1 << (sizeof(T) * 8 - 1)) : (T)0)
#define GREATEST(T) ((T)~LEAST(T))

// Where the value fits, or a wrapping integer conversion, one plain conversion serves all modes.
#define PLAIN(MODE, TO, FROM)                                                                                         \
    TO FN convert_##TO##MODE(FROM x) { return (TO)x; }                                                                \
    VECTORS(PLAIN_VECTOR, MODE, TO, FROM)
#define PLAIN_VECTOR(N, MODE, TO, FROM)                                                                               \
    TO##N FN convert_##TO##N##MODE(FROM##N x) { return __builtin_convertvector(x, TO##N); }

// The ends of TO as far as FROM reaches them.
#define LOW_END(TO, FROM)                                                                                             \
    (LEAST(TO) == 0 || LEAST(FROM) == 0 ? (FROM)0 : sizeof(TO) < sizeof(FROM) ? (FROM)LEAST(TO) : LEAST(FROM))
#define HIGH_END(TO, FROM)                                                                                            \
    (sizeof(TO) < sizeof(FROM) || (sizeof(TO) == sizeof(FROM) && LEAST(TO) != 0 && LEAST(FROM) == 0)                  \
         ? (FROM)GREATEST(TO)                                                                                         \
         : GREATEST(FROM))
#define SATURATED(N, MODE, TO, FROM)                                                                                  \
    TO##N FN convert_##TO##N##_sat##MODE(FROM##N x) {                                                                 \
        const FROM##N low = LOW_END(TO, FROM), high = HIGH_END(TO, FROM);                                             \
        const FROM##N raised = x < low ? low : x;                                                                     \
        const FROM##N fitted = raised > high ? high : raised;                                                         \
        return convert_##TO##N(fitted);                                                                               \
    }
#define SATURATED_WIDTHS(MODE, TO, FROM) WIDTHS(SATURATED, MODE, TO, FROM)
#define BETWEEN_INTEGERS(TO, FROM) MODES(PLAIN, TO, FROM) MODES(SATURATED_WIDTHS, TO, FROM)
#define FROM_ALL_INTEGERS(TO)                                                                                         \
    BETWEEN_INTEGERS(TO, char)                                                                                        \
    BETWEEN_INTEGERS(TO, uchar)                                                                                       \
    BETWEEN_INTEGERS(TO, short)                                                                                       \
    BETWEEN_INTEGERS(TO, ushort)                                                                                      \
    BETWEEN_INTEGERS(TO, int)                                                                                         \
    BETWEEN_INTEGERS(TO, uint)                                                                                        \
    BETWEEN_INTEGERS(TO, long)                                                                                        \
    BETWEEN_INTEGERS(TO, ulong)
FROM_ALL_INTEGERS(char)
FROM_ALL_INTEGERS(uchar)
FROM_ALL_INTEGERS(short)
FROM_ALL_INTEGERS(ushort)
FROM_ALL_INTEGERS(int)
FROM_ALL_INTEGERS(uint)
FROM_ALL_INTEGERS(long)
FROM_ALL_INTEGERS(ulong)

#define SHORT_TO_FLOATING(TO)                                                                                         \
    MODES(PLAIN, TO, char) MODES(PLAIN, TO, uchar) MODES(PLAIN, TO, short) MODES(PLAIN, TO, ushort)
SHORT_TO_FLOATING(float)
SHORT_TO_FLOATING(double)
MODES(PLAIN, float, float)
MODES(PLAIN, double, double)
MODES(PLAIN, double, float)

#define FROM_FLOATING(N, MODE, TO, FROM)                                                                              \
    int##N __attribute__((overloadable, const)) convert_int##N##MODE(FROM##N);                                        \
    int##N __attribute__((overloadable, const)) convert_int##N##_sat##MODE(FROM##N);                                  \
    TO##N FN convert_##TO##N##MODE(FROM##N x) { return convert_##TO##N(convert_int##N##MODE(x)); }                    \
    TO##N FN convert_##TO##N##_sat##MODE(FROM##N x) { return convert_##TO##N##_sat(convert_int##N##_sat##MODE(x)); }
#define FROM_FLOATING_WIDTHS(MODE, TO, FROM) WIDTHS(FROM_FLOATING, MODE, TO, FROM)
#define FLOATING_TO_SHORT(TO) MODES(FROM_FLOATING_WIDTHS, TO, float) MODES(FROM_FLOATING_WIDTHS, TO, double)
FLOATING_TO_SHORT(char)
FLOATING_TO_SHORT(uchar)
FLOATING_TO_SHORT(short)
FLOATING_TO_SHORT(ushort)
