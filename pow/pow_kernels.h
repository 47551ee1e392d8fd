// Kernels of x^y. Each is 2^(y log2 x) or e^(y ln x) on every lane, for x a positive normal number; other lanes, and
// those whose result comes near overflow or underflow, are special.
#pragma once

#include "log/log_kernels.h"
#include "pow/pow_blocks.h"

namespace orvane {

// 32-bit words in place, seen as 64-bit lanes again.
template <class T, int W, int N> ORVANE_INLINE lanes<T, W> in_lanes(lanes<int32_t, N> words) {
    return (typename lanes<T, W>::raw)words.v;
}

// log2 x = H + L by one table: x = 2^e z, r about 1 / z to nine bits, log2 z = log2(1 + u) - log2 r with u = r z - 1
// exact. H is exact but for one rounding, whose error L takes up. Then y H is a pair too, and 2^ of it a table of 256
// entries and a polynomial.
template <const auto& Block, auto& Rare> struct pow_in_pairs : kernel<two_arguments<double>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto prepare(const dpow_block& c, lanes<double, W> x, lanes<double, W>) {
        auto z = (x & c.mant_mask) | c.one;
        return as<double>((bits(reciprocal_estimate(z)) + c.rcp_round) & c.rcp_mask);
    }
    template <int W>
    static ORVANE_INLINE auto proceed(const dpow_block& c, lanes<double, W> x, lanes<double, W>, lanes<double, W> r) {
        auto z = (x & c.mant_mask) | c.one;
        auto e = as<double>((bits(x) >> 52) | c.exp_shifter) - c.exp_shifter; // biased: the table has the bias
        auto [Th, Tl] = pair_of_bits<39, 0x7FC000>(c.log2_tab, r);

        auto A = Th + e;
        auto u = fma(r, z, -lanes<double, W>(c.one));
        auto p1 = fma(u, c.lg_c6, c.lg_c5);
        auto p2 = fma(u, c.lg_c4, c.lg_c3);
        auto u2 = u * u;
        auto tl = fma(u, c.log2e_lo, Tl);
        auto q = fma(fma(p1, u2, p2), u, c.lg_c2);
        auto H = fma(u, c.log2e_hi, A);
        // H - A is exact but where much cancels, and then its error is.
        auto from_A = H - A;
        auto herr = fma(u, c.log2e_hi, -from_A) - (H - (from_A + A));
        return results{H, fma(q, u2, tl + herr)};
    }
    template <int W> static ORVANE_INLINE auto vector_path(const dpow_block& c, lanes<double, W> x,
                                                           lanes<double, W> y, auto logarithm) {
        auto [H, L] = logarithm;
        // Lanes near overflow and underflow are special. y H tells them; at the lower end s has to tell, too: H may
        // lack half a thousandth of the logarithm (x from 0.9990 to 0.9992), and below -1022 there is no scale.
        auto P = y * H;
        auto perr = fma(y, H, -P);
        lane_bits<W> special = not_less_equal(x, lanes<double, W>(c.max_normal)) | (x < c.min_normal) |
                               not_less_equal(P & c.abs_mask, lanes<double, W>(c.p_limit));
        auto s = fma(L, y, P);
        special = special | lane_bits<W>(s < c.s_limit);
        auto N = s + c.ex_shifter;
        auto Nf = N - c.ex_shifter;
        auto lo = perr + fma(y, L, -(s - P));
        auto g = s - Nf;
        auto d = lo + g;
        auto q4 = fma(g, c.ex_c4, c.ex_c3);
        q4 = fma(q4, d, c.ex_c2);
        q4 = fma(q4, d, c.ex_c1);

        auto T = lookup_bytes<double>(&c.exp2_tab, (bits(N) << 3) & c.ex_index_mask);
        auto scale = as<double>((bits(N) >> 8) << 52); // the exponent, already biased
        auto t = d * T;
        return answer{fma(q4, t, T) * scale, special};
    }
};

// ln x in plain double: x = 2^n z', r an integer near 1 / z with z = z' 2^-10 (or 2^-9), u = r z - 1 exact, and the
// entry of r, 0 at both ends so that little is lost around 1.
template <int W> struct ln_reduction { lanes<double, W> r, u; };
template <int W> ORVANE_INLINE ln_reduction<W> reduce_for_ln(const auto& c, lanes<double, W> x) {
    auto z = (x & c.mant_mask) | c.z_exponent;
    auto r = round_to<to_nearest>(reciprocal_estimate(z)); // 512 to 1024
    auto u = fma(r, z, -lanes<double, W>(c.one));
    return {r, u};
}
template <int Degree, int W>
ORVANE_INLINE lanes<double, W> reduced_ln(const auto& c, lanes<double, W> x, ln_reduction<W> reduced) {
    auto [r, u] = reduced;
    auto T = single_of_bits<40, 0x408000>(c.ln_tab, r);
    auto bias = keep(r > c.r_split, lanes<double, W>(c.bias_hi)) | c.bias_lo; // the patterns differ in one bit
    auto Nl = (biased_exponent(x) - bias) * c.ln2;
    lanes<double, W> pl;
    if constexpr (Degree == 4) pl = horner(u, c.ln_a4, c.ln_a3, c.ln_a2);
    else pl = horner(u, c.ln_a3, c.ln_a2);
    auto l = (u * u) * pl + u;
    return Nl + (T + l);
}
template <int Degree, int W> ORVANE_INLINE lanes<double, W> reduced_ln(const auto& c, lanes<double, W> x) {
    return reduced_ln<Degree>(c, x, reduce_for_ln(c, x));
}
// e^P = 2^(N/2048) along the chord of 2^x between N/2048 and the next, N = floor(2048 P / ln 2).
template <int W> ORVANE_INLINE lanes<double, W> chord_exp(const auto& c, lanes<double, W> P) {
    auto t = P * c.inv_ln2_2048;
    auto a = c.shifter + (t - c.half);
    auto N = a - c.shifter;
    auto f = (t - N) * c.chord;
    auto T = lookup(c.exp_tab.entry, bits(a) & c.idx_mask);
    auto w = fma(T, f, T);
    return as<double>(bits(w) + ((bits(a) >> 11) << 52));
}

// Whether the high word of x, masked by `c.word_abs`, is below the limit; the sign of a lane tells.
template <int W>
ORVANE_INLINE lanes<int64_t, W> high_word_below(const auto& c, lanes<double, W> x, const auto& limit) {
    return in_lanes<int64_t, W>((words_in_place<int32_t>(x) & c.word_abs) < limit);
}
// Whether x is anything but a positive normal number, by one addition, which makes infinities and NaN negative, too.
template <int W> ORVANE_INLINE lanes<int64_t, W> no_positive_normal(const auto& c, lanes<double, W> x) {
    return in_lanes<int64_t, W>((words_in_place<int32_t>(x) + c.x_bias) < c.x_limit);
}

template <const auto& Block, auto& Rare> struct pow_by_chords : kernel<two_arguments<double>, Block, Rare> {
    template <int W>
    static ORVANE_INLINE auto vector_path(const dpow_rm_block& c, lanes<double, W> x, lanes<double, W> y) {
        auto P = y * reduced_ln<4>(c, x);
        lane_bits<W> special =
            no_positive_normal(c, x) | ~(high_word_below(c, y, c.y_limit) & high_word_below(c, P, c.p_word_limit));
        return answer{chord_exp(c, P), special};
    }
};

// Whether x is anything but a positive normal number, by one subtraction; the largest finite number counts as special
// too. A NaN in the other argument makes P a NaN, which the test of P's size marks, so it needs no test of its own.
template <int W>
ORVANE_INLINE lanes<int32_t, W> pattern_out_of_range(lanes<float, W> x, const auto& bias, const auto& limit) {
    return (signed_bits(x) - bias) >= limit;
}

// e^(y ln x) of floats in pure float, by polynomials alone.
template <int W> ORVANE_INLINE lanes<float, W> float_ln(const auto& c, lanes<float, W> x) {
    auto iX = signed_bits(x) - c.m_base;
    auto kf = convert<float>(iX >> 23);
    auto m = as<float>((iX & c.m_mask) + c.m_base); // 2/3 to 4/3
    auto f = m - c.f_one;
    if constexpr (requires { c.ln_k8; }) {
        auto p = horner(f, c.ln_k8, c.ln_k7, c.ln_k6, c.ln_k5, c.ln_k4, c.ln_k3, c.ln_k2) * f;
        p = fma(p, f, f);
        p = fma(kf, c.ln2_lo, p);
        return fma(kf, c.ln2_hi, p);
    } else {
        auto p = horner(f, c.lq7, c.lq6, c.lq5, c.lq4, c.lq3, c.lq2) * f;
        p = fma(p, f, f);
        p = fma(kf, c.ln2_d, p);
        return kf * c.ln2_c + p;
    }
}
template <int W> ORVANE_INLINE lanes<float, W> float_exp(const auto& c, lanes<float, W> P) {
    auto a = fma(P, c.f_log2e, c.f_shifter);
    auto nf = a - c.f_shifter;
    auto d = fma(-nf, c.f_ln2, P);
    lanes<float, W> q;
    if constexpr (requires { c.ex_k3; }) q = horner(d, c.ex_k3, c.ex_k2, c.ex_k1, c.ex_k0);
    else q = horner(d, c.ek3, c.ek2, c.ek1, c.ek0);
    return as<float>(bits(q) + (bits(a) << 23));
}

template <const auto& Block, auto& Rare> struct powf_by_polynomials : kernel<two_arguments<float>, Block, Rare> {
    template <int W>
    static ORVANE_INLINE auto vector_path(const spow_rm_block& c, lanes<float, W> x, lanes<float, W> y) {
        auto P = y * float_ln(c, x);
        lane_bits<W> special =
            pattern_out_of_range(x, c.f_x_bias, c.f_x_limit) | ((signed_bits(P) & c.f_abs) > c.p_limit_f);
        return answer{float_exp(c, P), special};
    }
};

} // namespace orvane
