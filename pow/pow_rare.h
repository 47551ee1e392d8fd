// The scalar x^y of the slow paths, one text for double and float: log2 x through three levels of reciprocals as a
// pair G + gl, its product with y by Dekker's splits, and 2^r through a table of pairs. Every operation rounds by
// itself, in the order written. Families put a front of their own before it and choose how the product is summed and
// how a subnormal result is finished.
#pragma once

#include "pow/pow_tables.h"

namespace orvane {

// Where a level's index stands in the pattern's upper word (float: the whole pattern): rounded, not cut.
struct index_field {
    uint32_t mask, half;
    int shift;
    constexpr int of(uint32_t word) const { return int(((word & mask) + half) >> shift); }
};

template <class T> struct power_format;
template <> struct power_format<double> {
    static constexpr auto& tables = __dpow_g_CoutTab;
    static constexpr int up_exponent = 200;        // of tables.up
    static constexpr uint32_t k_base = 0x3FE7C000; // half of 1.484375: where k goes up by one
    static constexpr int k_shift = 20;
    static constexpr index_field index1 = {0xFC000, 0x4000, 15}, index2 = {0xFC00, 0x400, 11},
                                 index3 = {0xFF0, 0x10, 5};
    static constexpr int beyond = 2056, below = 1985; // exponent fields of log2 x and y together: |y log2 x| is above
                                                      // 2^11, or so small that x^y is 1
    static constexpr int to_zero = -61;               // exponent fields of results that are 0
    static uint32_t upper(double x) { return uint32_t(bits(x) >> 32); }
    static double scale(int field) { return power_of_two(uint64_t(field)); }
};
template <> struct power_format<float> {
    static constexpr auto& tables = __spow_g_CoutTab;
    static constexpr int up_exponent = 64;
    static constexpr uint32_t k_base = 0x3F380000; // half of 1.4375
    static constexpr int k_shift = 23;
    static constexpr index_field index1 = {0x780000, 0x80000, 20}, index2 = {0x1E0000, 0x20000, 18},
                                 index3 = {0x7C000, 0x4000, 15};
    static constexpr int beyond = 264, below = 193;
    static constexpr int to_zero = -32;
    static uint32_t upper(float x) { return bits(x); }
    static float scale(int field) { return power_of_two_f32(uint32_t(field)); }
};

enum parity : int { no_integer = 0, odd = 1, even = 2 };
template <class T> parity parity_of(T y) {
    const int e = biased_exponent(y) - exponent_bias<T>;
    if (y == 0) return even;
    if (e < 0 || e == top_exponent<T> - exponent_bias<T>) return no_integer;
    if (e > fraction_bits<T>) return even;
    const auto shifted = bits(y) << e; // the last bit of the integral part where the exponent's was
    const auto unit = pattern<T>(1) << fraction_bits<T>;
    if (shifted & (unit - 1)) return no_integer;
    return shifted & unit ? odd : even;
}

template <class T> struct scalar_power {
    T value;
    int status; // overflow and underflow too: families that do not tell them return their own
};

// y, and it again as yh + yl (of 1/n the two are a better value than y itself).
template <class T> struct exponent_parts { T y, yh, yl; };
template <class T> exponent_parts<T> parts_of(T y) {
    const auto [yh, yl] = split(y);
    return {y, yh, yl};
}

// log2 |x| = G + gl; V is the head alone, which is good enough for tests of its size.
template <class T> struct scalar_log2 { T G, gl, V; };
template <class T> scalar_log2<T> log2_in_parts(T x) {
    using f = power_format<T>;
    constexpr auto& t = f::tables;
    T ax = magnitude(x);
    const bool subnormal = biased_exponent(ax) == 0;
    if (subnormal) ax = ax * t.up;
    const uint32_t upper = f::upper(ax);
    const int k = (int32_t(upper - f::k_base) >> f::k_shift) - (subnormal ? f::up_exponent : 0);
    const T m = with_biased_exponent(ax, exponent_bias<T>);

    const int i1 = f::index1.of(upper);
    const T y1 = t.rcp1[i1] * m;
    const int i2 = f::index2.of(f::upper(y1));
    const T y2 = y1 * t.rcp2[i2];
    const int i3 = f::index3.of(f::upper(y2));
    const T y3 = y2 * t.rcp3[i3];
    const T R = (t.rcp1[i1] * t.rcp2[i2]) * t.rcp3[i3]; // exact
    const auto [hi1, lo1] = t.log1[i1];
    const auto [hi2, lo2] = t.log2nd[i2];
    const auto [hi3, lo3] = t.log3[i3];

    // The head S: sums of double parts are exact; those of float parts, which have no such room, keep their errors.
    const T kT = T(k);
    T S, Slo;
    if constexpr (sizeof(T) == 8) {
        S = ((kT + hi1) + hi2) + hi3;
        Slo = (lo2 + lo3) + lo1;
    } else {
        const T S1 = hi1 + kT, e1 = (kT - S1) + hi1;
        const T S2 = hi2 + S1, e2 = (S1 - S2) + hi2;
        S = hi3 + S2;
        const T e3 = (S2 - S) + hi3;
        Slo = ((((e1 + e2) + e3) + lo1) + lo2) + lo3;
    }

    const T z3 = y3 - t.c;
    const auto [mh, ml] = split(m);
    const auto [Rh, Rl] = split(R);
    const T V = S + z3;
    const T err = ml * Rl + (mh * Rl + (Rh * ml + (mh * Rh - y3))); // m R - y3, exactly
    const T zz = z3 + err;
    const T pl = (((t.lg_A[3] * zz + t.lg_A[2]) * zz + t.lg_A[1]) * zz + t.lg_A[0]) * zz;
    const T lo = Slo + (err + ((S - V) + z3));
    const T W = V + pl, G = lo + W;
    return {G, ((V - W) + pl) + ((W - G) + lo), V};
}

// y log2 x = n/128 + r, where the last place of N = shifter + head is 1/128.
template <class T> struct reduced_product { T N, r; };
// The head is the product of the leading parts alone.
struct leading_head {
    template <class T> static reduced_product<T> of(T G, T gl, const exponent_parts<T>& e) {
        const auto [Gh, Gl] = split(G);
        const T H = Gh * e.yh, N = power_format<T>::tables.shifter + H;
        const T B = gl * e.y + (e.yl * Gh + (Gl * e.yl + e.yh * Gl));
        return {N, B + (H - (N - power_format<T>::tables.shifter))};
    }
};
// The head has the cross products in it.
struct full_head {
    template <class T> static reduced_product<T> of(T G, T gl, const exponent_parts<T>& e) {
        const auto [Gh, Gl] = split(G);
        const T P1 = Gh * e.yh, P2 = e.yh * Gl + Gh * e.yl, P = P1 + P2;
        const T N = power_format<T>::tables.shifter + P;
        const T B = gl * e.y + (e.yl * Gl + ((P1 - P) + P2));
        return {N, B + (P - (N - power_format<T>::tables.shifter))};
    }
};

// Results at the lower end of the range, (wh + wl + lw) 2^n in parts, s being 2^n times `up`.
struct joined_finish {
    template <class T> static T of(T wh, T wl, T lw, T s, T down) { return ((lw + wl) * s + wh * s) * down; }
};
struct parted_finish {
    template <class T> static T of(T wh, T wl, T lw, T s, T down) { return (wh * s) * down + ((lw + wl) * s) * down; }
};

// sgn |x|^y for finite x and y other than 0.
template <class Head, class Finish, class T> scalar_power<T> power(T x, const exponent_parts<T>& e, T sgn) {
    using f = power_format<T>;
    constexpr auto& t = f::tables;
    const T tiny = t.huge_tiny[1] * t.huge_tiny[1]; // 0, with its flags
    const auto [G, gl, V] = log2_in_parts(x);
    const int E = biased_exponent(V) + biased_exponent(e.y);
    if (E > f::beyond) {
        const int down = is_negative(V) ^ is_negative(e.y);
        return {sgn * (t.huge_tiny[down] * t.huge_tiny[down]), down ? underflow : overflow};
    }
    if (E < f::below) return {sgn * (t.sign_tab[0] + t.huge_tiny[1]), ordinary};

    const auto [N, r] = Head::of(G, gl, e);
    int j = int(bits(N) & 127), n;
    T q;
    if constexpr (sizeof(T) == 8) {
        n = int32_t(uint32_t(bits(N))) >> 7;
        q = ((((t.ex_B[4] * r + t.ex_B[3]) * r + t.ex_B[2]) * r + t.ex_B[1]) * r + t.ex_B[0]) * r;
    } else {
        n = int32_t(bits(N) << 10) >> 17;
        q = ((t.ex_B[2] * r + t.ex_B[1]) * r + t.ex_B[0]) * r;
    }
    const auto [Th, Tl] = t.exp128[j];
    const T v = q * Th + Tl, w = Th + v;

    const int field = biased_exponent(w) + n;
    if (field >= top_exponent<T>) return {sgn * (t.huge_tiny[0] * t.huge_tiny[0]), overflow};
    if (field >= 1) return {sgn * with_biased_exponent(w, field), ordinary};
    const T s = f::scale(n + exponent_bias<T> + f::up_exponent);
    if (field >= -9) {
        const auto [wh, wl] = split(w);
        return {sgn * (Finish::of(wh, wl, v + (Th - w), s, t.down) + tiny), ordinary};
    }
    if (field >= f::to_zero) return {(w * s) * (sgn * t.down) - tiny, underflow};
    return {sgn * tiny, underflow};
}

// What 0 / 0 gives, without its flag: for a quiet NaN.
template <class T> constexpr T no_number = -invalid<T>;

// x^y in all its cases, with the parity of y; what is left of them goes to the general algorithm.
template <class T, class General> int power_by_cases(T x, T y, parity p, T* result, General general) {
    constexpr auto& t = power_format<T>::tables;
    const T sgn = t.sign_tab[p & is_negative(x)];
    if (x == 1 || y == 0) {
        const T one = __builtin_copysign(T(1), x + y); // a signalling NaN is seen
        *result = one * one;
    } else if (is_nan(x) || is_nan(y)) *result = x + y;
    else if (x == 0) {
        *result = y < 0 ? sgn / (x * x) : sgn * (x * x);
        return y < 0 ? domain_error : ordinary;
    } else if (x == -1 && (p != no_integer || is_infinite(y))) *result = t.sign_tab[p & 1];
    else if (is_infinite(x) || is_infinite(y)) {
        if (magnitude(x) >= 1) *result = y < 0 ? t.zero * sgn : ((x * x) * y) * sgn;
        else *result = y < 0 ? y * y : T(0);
    } else if (x < 0 && p == no_integer) {
        *result = invalid_operation<T>();
        return domain_error;
    } else *result = general(sgn);
    return ordinary;
}

} // namespace orvane
