// Rows of the large path of tan: what tan(a + R) is made of around a = pi j/N, abs(R) <= pi/(2N).
#include "table.h"

#include <array>
#include <cmath>

namespace orvane::tables {

namespace {

// A row: the distance b = pi/2 - a of the pole, in two parts; whether the pole is taken out (pole); and a polynomial
// in R of what is left, its first two coefficients in two parts. From c0_lo and c1_tail on they are fitted:
//
//     c0_lo + c1_tail R + c2 R^2 + ... ~ g(R) - c0_hi - c1_head R,   g(R) = tan(a + R) - pole / (b - R)
//
// by least squares relative to g (in the row of the pole itself, where g is small, absolute) at the Chebyshev nodes
// of the interval. They are rounded in turn, c1 first, to two bits more than T has, then the higher powers and, last,
// c0_lo, what is left being fitted anew each time, so that it makes up for the rounding of those before.
//
// The largest error of a row relative to tan(a + R): 2^-30.8 in float (row 0), 2^-60.9 in double (rows 3 and 253).
template <class T> struct tan_rows {
    static constexpr bool is_float = sizeof(T) == 4;
    static constexpr int N = is_float ? 128 : 256, degree = is_float ? 4 : 7;

    static T rounded(const real& x) {
        if constexpr (is_float) return rounded_f32(x);
        else return rounded_f64(x);
    }
    static void put(writer& w, T x) {
        if constexpr (is_float) w.f32(x);
        else w.f64(x);
    }

    // Weighted sums over the nodes: of R^i, and of R^i times what is to be fitted.
    using sums = std::array<real, 2 * degree + 1>;
    using moments = std::array<real, degree + 1>;

    // The coefficient of the last of `powers` where all of these fit best: the normal equations, eliminated up to it.
    static real fitted(const sums& s, const moments& right, const std::vector<int>& powers) {
        const int n = (int)powers.size();
        std::vector<std::vector<real>> m(n, std::vector<real>(n + 1));
        for (int i = 0; i < n; i++) {
            for (int k = 0; k < n; k++)
                m[i][k] = s[powers[i] + powers[k]];
            m[i][n] = right[powers[i]];
        }
        for (int p = 0; p < n; p++)
            for (int i = p + 1; i < n; i++) {
                const real q = m[i][p] / m[p][p];
                for (int k = p; k <= n; k++)
                    m[i][k] = m[i][k] - q * m[p][k];
            }
        return m[n - 1][n] / m[n - 1][n - 1];
    }

    static void row(writer& w, int j) {
        const real a = pi() * j / N, b = pi() * (N / 2 - j) / N, t = tan(a), zero = 0;
        const bool pole = N / 4 <= j && j < 3 * N / 4, at_pole = j == N / 2, odd = j == 0 || at_pole;
        auto g = [&](const real& R) { return pole ? tan(a + R) - 1 / (b - R) : tan(a + R); };
        const real g0 = odd ? zero : g(zero), g1 = at_pole ? real(1) / 3 : 1 + t * t - (pole ? 1 / (b * b) : zero);
        const T pb_hi = rounded(b), c0_hi = rounded(g0);
        const T c1_head = (T)std::exp2(std::floor(std::log2(rounded_f64(g1 / 1.5))) + 1); // ratio in [0.75, 1.5)

        sums s;
        moments right;
        s.fill(0), right.fill(0);
        const int nodes = (degree + 1) * (odd ? 2 : 1);
        for (int k = 0; k < nodes; k++) {
            const real R = pi() / (2 * N) * cos(pi() * (2 * k + 1) / (2 * nodes)), gR = g(R);
            const real rest = gR - real(c0_hi) - R * c1_head;
            real weight = at_pole ? 1 : 1 / (gR * gR);
            for (int i = 0; i <= 2 * degree; i++, weight = weight * R) {
                s[i] = s[i] + weight;
                if (i <= degree) right[i] = right[i] + weight * rest;
            }
        }
        std::vector<int> powers;
        if (!odd) powers.push_back(0);
        for (int i = degree; i > 0; i--)
            if (!odd || i % 2) powers.push_back(i);
        T c[degree + 1] = {};
        for (; !powers.empty(); powers.pop_back()) {
            const int i = powers.back();
            real best = fitted(s, right, powers);
            if (i == 1) best = to_significant(best + c1_head, is_float ? 26 : 55) - c1_head;
            c[i] = rounded(best);
            for (int k = 0; k <= degree; k++)
                right[k] = right[k] - s[i + k] * c[i];
        }
        for (T x : {pb_hi, rounded(b - real(pb_hi)), T(pole), c0_hi, c[0], c1_head})
            put(w, x);
        for (int i = 1; i <= degree; i++)
            put(w, c[i]);
        w.end_row();
    }
    static void write(writer& w) {
        for (int j = 0; j < N; j++)
            row(w, j);
    }
};

} // namespace

std::vector<table> tan_tables() {
    return {
        {"trig/tables/tan_rows.inc", tan_rows<double>::write},
        {"trig/tables/tanf_rows.inc", tan_rows<float>::write},
    };
}

} // namespace orvane::tables
