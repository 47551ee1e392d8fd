#include "minimax.h"

#include <stdexcept>

namespace orvane::fits {

std::vector<real> solved(std::vector<std::vector<real>> rows) {
    const size_t n = rows.size();
    for (size_t k = 0; k < n; k++) {
        std::swap(rows[k], *std::max_element(rows.begin() + k, rows.end(),
                                             [&](auto& a, auto& b) { return magnitude(a[k]) < magnitude(b[k]); }));
        for (size_t i = k + 1; i < n; i++) {
            const real factor = rows[i][k] / rows[k][k];
            for (size_t j = k; j <= n; j++)
                rows[i][j] = rows[i][j] - factor * rows[k][j];
        }
    }
    std::vector<real> x(n);
    for (size_t k = n; k-- > 0;) {
        real sum = rows[k][n];
        for (size_t j = k + 1; j < n; j++)
            sum = sum - rows[k][j] * x[j];
        x[k] = sum / rows[k][k];
    }
    return x;
}

polynomial minimax(const target& t, int degree, real* error) {
    const int unknowns = degree + 2; // the coefficients and the error
    struct sample {
        real x, f, w;
    };
    auto at = [&](const real& x) { return sample{x, t.f(x), t.w(x)}; };
    std::vector<sample> grid, nodes;
    for (const auto& x : chebyshev_points(t.lo, t.hi, 40 * unknowns))
        grid.push_back(at(x));
    for (const auto& x : chebyshev_points(t.lo, t.hi, unknowns))
        nodes.push_back(at(x));

    polynomial p;
    auto error_at = [&](const sample& s) { return (value(p, s.x) - s.f) * s.w; };
    for (int round = 0; round < 60; round++) {
        std::vector<std::vector<real>> rows;
        for (int i = 0; i < unknowns; i++) { // p(x) + (-1)^i e / w = f
            std::vector<real> row{real(1)};
            for (int k = 1; k <= degree; k++)
                row.push_back(row.back() * nodes[i].x);
            row.push_back(real(i % 2 ? -1 : 1) / nodes[i].w);
            row.push_back(nodes[i].f);
            rows.push_back(row);
        }
        p = solved(rows);
        const real level = magnitude(p.back());
        p.pop_back();

        // One extremum for each stretch of one sign, moved to the top of the parabola through its neighbours.
        std::vector<real> e;
        for (const auto& s : grid)
            e.push_back(error_at(s));
        std::vector<size_t> tops;
        for (size_t i = 0; i < e.size(); i++) {
            const bool new_stretch = tops.empty() || (e[i] < real(0)) != (e[tops.back()] < real(0));
            if (new_stretch) tops.push_back(i);
            else if (magnitude(e[tops.back()]) < magnitude(e[i])) tops.back() = i;
        }
        while ((int)tops.size() > unknowns) // too many: the smaller end goes
            tops.erase(magnitude(e[tops.front()]) < magnitude(e[tops.back()]) ? tops.begin() : tops.end() - 1);
        if ((int)tops.size() < unknowns) throw std::runtime_error("the error does not alternate often enough");
        real largest = 0;
        for (int k = 0; k < unknowns; k++) {
            const size_t i = tops[k];
            nodes[k] = grid[i];
            if (i > 0 && i + 1 < grid.size()) {
                const real left = grid[i].x - grid[i - 1].x, right = grid[i + 1].x - grid[i].x;
                const real a = (e[i] - e[i - 1]) / left, b = (e[i + 1] - e[i]) / right;
                const real top = (grid[i - 1].x + grid[i].x) / 2 + a * (left + right) / 2 / (a - b);
                if (grid[i - 1].x < top && top < grid[i + 1].x) nodes[k] = at(top);
            }
            largest = std::max(largest, magnitude(error_at(nodes[k])));
        }
        if (largest < level * real(1 + 1e-9)) {
            *error = largest;
            return p;
        }
    }
    throw std::runtime_error("the exchange does not converge");
}

real largest_error(const target& t, const std::function<real(const real&)>& approximation) {
    real largest = 0;
    for (const auto& x : chebyshev_points(t.lo, t.hi, 2000))
        largest = std::max(largest, magnitude((approximation(x) - t.f(x)) * t.w(x)));
    return largest;
}

std::vector<complex> roots(const polynomial& p) {
    auto times = [](const complex& a, const complex& b) {
        return complex{a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
    };
    auto over = [&](const complex& a, const complex& b) {
        const real n = b.re * b.re + b.im * b.im;
        const complex q = times(a, {b.re, -b.im});
        return complex{q.re / n, q.im / n};
    };
    const size_t n = p.size() - 1;
    // On a circle of the roots' geometric mean, not symmetric to the real axis.
    const real radius = tables::exp2(tables::log2(magnitude(p[0] / p[n])) / int(n));
    std::vector<complex> z;
    for (size_t i = 0; i < n; i++) {
        const real angle = tables::pi() * 2 * (i + 0.3) / double(n);
        z.push_back({radius * tables::cos(angle), radius * tables::sin(angle)});
    }
    for (int round = 0; round < 2000; round++) {
        real change = 0;
        for (size_t i = 0; i < n; i++) {
            complex numerator{1, 0}, denominator{1, 0}; // p(z) / leading coefficient
            for (size_t k = n; k-- > 0;) {
                numerator = times(numerator, z[i]);
                numerator.re = numerator.re + p[k] / p[n];
            }
            for (size_t j = 0; j < n; j++)
                if (j != i) denominator = times(denominator, {z[i].re - z[j].re, z[i].im - z[j].im});
            const complex step = over(numerator, denominator);
            z[i] = {z[i].re - step.re, z[i].im - step.im};
            change = std::max(change, magnitude(step.re) + magnitude(step.im));
        }
        if (change < radius * real(0x1p-250)) return z;
    }
    throw std::runtime_error("the roots do not converge");
}

} // namespace orvane::fits
