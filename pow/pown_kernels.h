// Where pown and rootn differ: how the exponent is made of n, what is out of the domain, and how 2^r and e^d end.
#pragma once

#include "pow/pow_kernels.h"

namespace orvane {

// The sign of the result alone: negative where n is odd and x is negative.
template <class T, int W> ORVANE_INLINE lanes<T, W> sign_of_odd(lanes<T, W> x, lanes<int32_t, W> n) {
    if constexpr (sizeof(T) == 8) return as<T>(convert<int64_t>(n) << 63) & x;
    else return as<T>(n << 31) & x;
}

// f = fh + fl; in double the rounded f as well.
template <int W> struct double_exponent { lanes<double, W> f, fh, fl; };
template <int W> struct float_exponent { lanes<float, W> fh, fl; };

struct integer_power {
    template <class T, int W> static ORVANE_INLINE lanes<T, W> exponent(lanes<int32_t, W> n) { return convert<T>(n); }
    template <int W> static ORVANE_INLINE auto exponent_pair(const auto& c, lanes<int32_t, W> n) {
        if constexpr (requires { c.split_mask; }) {
            auto nf = exponent<double>(n);
            auto nh = nf & c.split_mask;
            return double_exponent<W>{nf, nh, nf - nh};
        } else {
            auto nf = exponent<float>(n);
            auto ndf =
                convert<float>(n - truncate<int32_t>(nf)); // n = nf + ndf; 2^31 wraps, and so does the difference
            auto w = nf * c.split_c;
            auto nh = w - (w - nf);
            return float_exponent<W>{nh, (nf - nh) + ndf};
        }
    }
    template <class T, int W> static ORVANE_INLINE auto out_of_domain(lanes<T, W>, lanes<int32_t, W>) {
        return lanes<int_of<T>, W>(int_of<T>(0));
    }
    template <class V> static ORVANE_INLINE V power_of_two(const auto& c, V r, V T, V, V scale) {
        auto TS = T * scale;
        return fma(horner(r, c.xp5, c.xp4, c.xp3, c.xp2, c.xp1), r * TS, TS);
    }
    template <class V> static ORVANE_INLINE V exponential(const auto& c, V d) {
        return horner(d, c.e4, c.e3, c.e2, c.e1, c.e0, c.e0);
    }
};

// 1/n = rh + rl from the rounded 1/n. n = 0 makes rh a NaN, which every limit test marks.
struct integer_root {
    template <class T, int W> static ORVANE_INLINE lanes<T, W> exponent(lanes<int32_t, W> n) {
        return lanes<T, W>(T(1)) / convert<T>(n);
    }
    template <int W> static ORVANE_INLINE auto exponent_pair(const auto& c, lanes<int32_t, W> n) {
        if constexpr (requires { c.split_mask; }) {
            auto [rh, rl] = pair<double>(lanes<double, W>(0x1p27 + 1), lanes<double, W>(c.one), n);
            return double_exponent<W>{rh, rh, rl};
        } else {
            auto [rh, rl] = pair<float>(lanes<float, W>(c.split_c), lanes<float, W>(c.f_one), n);
            return float_exponent<W>{rh, rl};
        }
    }
    // Even roots of negative numbers.
    template <class T, int W> static ORVANE_INLINE auto out_of_domain(lanes<T, W> x, lanes<int32_t, W> n) {
        if constexpr (sizeof(T) == 8) return andnot(convert<int64_t>(n) << 63, signed_bits(x));
        else return andnot(n << 31, signed_bits(x));
    }
    template <class V> static ORVANE_INLINE V power_of_two(const auto& c, V r, V T, V To, V scale) {
        auto r2 = r * r;
        auto r4 = r2 * r2;
        auto a = To + T * (fma(r, c.xp5, c.xp4) * r4);
        auto b = T * (fma(r, c.xp3, c.xp2) * r2);
        auto l = T * (r * c.xp1);
        return (T + (l + (b + a))) * scale;
    }
    template <class V> static ORVANE_INLINE V exponential(const auto& c, V d) {
        return horner(d, c.g5, c.g4, c.g3, c.g2, c.g1, c.g0);
    }

private:
    template <class V> struct root_pair { V rh, rl; };
    template <class T, int W>
    static ORVANE_INLINE root_pair<lanes<T, W>> pair(lanes<T, W> splitter, lanes<T, W> one, lanes<int32_t, W> n) {
        auto nf = convert<T>(n);
        auto rn = one / nf;
        auto a = splitter * rn;
        auto rh = a - (a - rn);
        auto e = one - rh * nf;
        auto rl = rh * ((one + e) * e);
        return {rh, rl};
    }
};

} // namespace orvane
