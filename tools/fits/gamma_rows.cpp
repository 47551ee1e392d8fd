// The rows of the gamma functions' vector paths: polynomials through the Chebyshev points of their cells. They are
// fitted to the slow path's own polynomials and not to the true functions, so that the distance between the two
// paths, which the rounding test allows for, is this fit's error and rounding errors alone.
#include "gamma_rows.h"
#include "rounding_bounds.h"
#include "special/lgamma_pieces.h"
#include "special/lgamma_rare.h"
#include "special/lgammaf_pieces.h"
#include "special/tgamma_pieces.h"

#include <cmath>
#include <cstdio>
#include <stdexcept>

namespace orvane::fits {

namespace {

using tables::writer;
using function = std::function<real(const real&)>;

// The polynomial in x - centre that agrees with f at the Chebyshev points of [lo, hi]: Newton's divided differences,
// multiplied out.
polynomial interpolated(const function& f, const real& lo, const real& hi, const real& centre, int degree) {
    const int n = degree + 1;
    std::vector<real> u(n), c(n);
    for (int i = 0; i < n; i++) {
        u[i] = (lo + hi) / 2 - centre + (hi - lo) / 2 * tables::cos(tables::pi() * (2 * i + 1) / (2 * n));
        c[i] = f(centre + u[i]);
    }
    for (int k = 1; k < n; k++)
        for (int i = n - 1; i >= k; i--)
            c[i] = (c[i] - c[i - 1]) / (u[i] - u[i - k]);
    polynomial p = {c[n - 1]};
    for (int i = n - 2; i >= 0; i--) { // p (x - u_i) + c_i
        p.push_back(p.back());
        for (size_t k = p.size() - 2; k > 0; k--)
            p[k] = p[k - 1] - u[i] * p[k];
        p[0] = c[i] - u[i] * p[0];
    }
    return p;
}

// Of a sample one row in 16 is fitted, and texts have no headings but a form feed after each row.
bool is_sample = false;
int rows_seen = 0;
bool left_out() { return is_sample && rows_seen++ % 16; }
const char* end_of_row() { return is_sample ? "\f" : ""; }

std::string heading(const std::string& what, double error) {
    if (is_sample) return "";
    char s[40];
    snprintf(s, sizeof s, "error 2^%.1f\n", error);
    return "// " + what + s;
}

// A file of rows of eight coefficients in double, from the constant term.
struct rows_of_eight {
    std::string text;
    real worst = 0;

    // f on [lo, hi] in powers of x - lo. With an exact constant term the rest is fitted to (f(x) - f(lo)) / (x - lo).
    void add(const function& f, const real& lo, const real& hi, bool exact_at_lo, bool relative) {
        if (left_out()) return;
        polynomial p;
        if (exact_at_lo) {
            const real f0 = f(lo);
            p = interpolated([&](const real& x) { return (f(x) - f0) / (x - lo); }, lo, hi, lo, 6);
            p.insert(p.begin(), f0);
        } else p = interpolated(f, lo, hi, lo, 7);
        writer w;
        for (auto& c : p)
            w.f64(tables::rounded_f64(c)), c = tables::rounded_f64(c);
        w.end_row();
        text += w.text + end_of_row();
        for (int k = 1; k < 64; k++) {
            const real x = lo + (hi - lo) * k / 64, truth = f(x), off = magnitude(value(p, x - lo) - truth);
            const real error = relative ? off / magnitude(truth) : off;
            if (worst < error) worst = error;
        }
    }
    file under(const char* path, const std::string& what) const {
        return {path, heading(what, log2_of(worst)) + text};
    }
};

real power_of_two(int e) { return tables::exp2(real(e)); }

// log gamma of the slow path in float on 16 cells per binade from 2^-6 to 8192.
file lgammaf_rows() {
    rows_of_eight rows;
    for (int e = -6; e < 13; e++)
        for (int i = 0; i < 16; i++) {
            const real cell = power_of_two(e) / 16, lo = power_of_two(e) + cell * i;
            const double middle = tables::rounded_f64(lo + cell / 2);
            auto f = [&](const real& x) {
                using namespace lgammaf_pieces;
                if (middle < 1) return log_gamma(middle + 1, x + 1) - tables::log(x);
                if (middle > 2 && middle < 4) return log_gamma_from_2_to_4(x);
                return log_gamma(middle, x);
            };
            rows.add(f, lo, lo + cell, i == 0 && (e == 0 || e == 1), true); // 1 and 2 are zeros
        }
    return rows.under("special/tables/lgammaf_cells.inc",
                      "the slow path's log gamma in 16 cells per binade, relative: ");
}

// ln on 16 cells of [1, 2).
file ln_rows() {
    rows_of_eight rows;
    for (int i = 0; i < 16; i++)
        rows.add([](const real& x) { return tables::log(x); }, real(1) + real(i) / 16, real(1) + real(i + 1) / 16,
                 i == 0, false);
    return rows.under("special/tables/lgammaf_ln.inc", "ln in 16 cells of [1, 2), absolute: ");
}

// gamma of the slow path in T at x, in the piece or the row that `where` lies in.
template <class T> real slow_gamma(double where, const real& x) {
    using constants = tgamma_constants<T>;
    if (where < 2) {
        const auto& piece = gamma_piece_of<T>(where);
        return horner_up(x + piece.shift, piece.c);
    }
    const int n = int(where), step = 1 << constants::shift, factors = n >= step ? n % step : n - 2;
    real p = gamma_row_product<T>(n, x - n);
    for (int i = 1; i <= factors; i++)
        p = p * (x - i);
    return p;
}

// gamma of the slow path in float on eighths of [1, 35).
file tgammaf_rows() {
    rows_of_eight rows;
    for (int i = 8; i < 8 * 35; i++) {
        const double where = (i + 0.5) / 8;
        rows.add([&](const real& x) { return slow_gamma<float>(where, x); }, real(i) / 8, real(i + 1) / 8, false,
                 true);
    }
    return rows.under("special/tables/tgammaf_eighths.inc",
                      "the slow path's gamma on eighths of [1, 35), relative: ");
}

// ---- Rows in double: c0 to c2 as hi + lo, then the other coefficients.

// A row that the slow path has two polynomials on is fitted to the true function.
// A part of a row's range on which the slow path has one polynomial.
struct part {
    real lo, hi;
    std::function<exact_polynomial(const real& centre)> slow; // the slow path's text in u = x - centre
    // The slow path's text on an interval of x, with the error of its rounding.
    std::function<bounded<64>(const real& lo, const real& hi)> computed;
};

struct double_row {
    polynomial head; // c0 to c2, each the sum of two doubles
    polynomial tail; // c3 and on, doubles
    polynomial all() const {
        polynomial p = head;
        p.insert(p.end(), tail.begin(), tail.end());
        return p;
    }
};
double_row fit_double_row(const std::vector<part>& parts, const function& truth, const real& centre, int degree,
                          bool zero_at_centre) {
    const real lo = parts.front().lo, hi = parts.back().hi;
    const polynomial p = parts[0].slow(centre).c;
    auto slow = [&](const real& u) { return parts.size() == 1 ? value(p, u) : truth(centre + u); };
    const real a = lo - centre, b = hi - centre;
    auto through = [&](const function& f, int degree) {
        if (!zero_at_centre) return interpolated(f, a, b, 0, degree);
        auto q = interpolated([&](const real& u) { return f(u) / u; }, a, b, 0, degree - 1);
        q.insert(q.begin(), 0);
        return q;
    };
    double_row row;
    for (const auto& c : through(slow, degree))
        row.tail.push_back(tables::rounded_f64(c));
    row.tail.erase(row.tail.begin(), row.tail.begin() + 3);
    for (const auto& c : through([&](const real& u) { return slow(u) - value(row.tail, u) * u * u * u; }, 2)) {
        const double hi = tables::rounded_f64(c);
        row.head.push_back(real(hi) + tables::rounded_f64(c - hi));
    }
    return row;
}

// The vector path's evaluation of a row on u from lo to hi: a bound of |h + l - row(u)|. Horner's scheme in fused
// steps down to c3; then three times h = u T + a and, in l, the rest that this rounding leaves, u times the l before,
// and the low part of the coefficient. u T + a - h is found by two fused steps, of which a - h is exact where u T is
// small enough, or a is 0.
real evaluation_error(const double_row& row, const real& lo, const real& hi) {
    const bounded<53> u(lo, hi);
    bounded<53> T(tables::rounded_f64(row.tail.back()));
    for (size_t k = row.tail.size() - 1; k-- > 0;)
        T = fma(T, u, bounded<53>(tables::rounded_f64(row.tail[k])));
    // h as an interval, and what h + l is off by.
    bounded<53> h(T.lo, T.hi);
    real off = T.error, low = 0;
    for (int k = 2; k >= 0; k--) {
        const double a = tables::rounded_f64(row.head[k]), b = tables::rounded_f64(row.head[k] - a);
        const auto product = u.exact_product(h);
        const auto next = product.exact_sum(bounded<53>(a));
        const real rest = half_ulp(next.largest() + low, 53); // |u T + a - h|
        real lost = half_ulp(rest, 53);
        // a - h is exact where it has no more bits than the grid of the smaller one.
        auto grid = [](const real& x) { return half_ulp(x, -1); };
        if (a != 0 && smaller(grid(magnitude(real(a))), grid(next.least() - low)) < product.largest() + low)
            lost = lost + half_ulp(magnitude(real(a)) + next.largest(), 53); // a - h is rounded
        const real sum = rest + magnitude(real(b));
        lost = lost + half_ulp(sum, 53);
        const real carried = low * u.largest();
        if (k < 2) lost = lost + half_ulp(sum + carried, 53);
        low = sum + carried;
        off = off * u.largest() + lost;
        h = {next.lo - low, next.hi + low};
    }
    return off;
}

// Margins are the proven bound times this, so that no argument takes more than half of one.
constexpr double slack = 1.25;

// The bound of a row relative to its value: how far the slow path can be from the row, with all rounding errors of
// both, at most over the row.
double margin_of(const double_row& row, const std::vector<part>& parts, const real& centre, bool zero_at_centre) {
    real most = 0;
    for (const auto& s : parts) {
        const polynomial off = (s.slow(centre) - exact_polynomial(row.all())).c;
        auto on = [&](const real& lo, const real& hi, int pieces) { // of u
            real fit = 0;
            for (int i = 0; i < pieces; i++) {
                const real step = (hi - lo) / pieces, from = lo + step * i;
                if (zero_at_centre) { // (slow - row) / u by the same bound, times u
                    const polynomial slope(off.begin() + 1, off.end());
                    fit = larger(fit, bound_of(slope, from, from + step) * larger(magnitude(lo), magnitude(hi)) +
                                          magnitude(off[0]));
                } else fit = larger(fit, bound_of(off, from, from + step));
            }
            const auto slow = s.computed(centre + lo, centre + hi);
            const real error = fit + slow.error + evaluation_error(row, lo, hi);
            most = larger(most, error / slow.least());
        };
        const real a = s.lo - centre, b = s.hi - centre;
        if (!zero_at_centre) {
            for (int i = 0; i < 64; i++)
                on(a + (b - a) * i / 64, a + (b - a) * (i + 1) / 64, 1);
            continue;
        }
        // Toward the zero by halves, to the neighbours of 1 and 2.
        for (const real& end : {a, b})
            if (real(0) < magnitude(end))
                for (int k = 0; k < 54; k++)
                    for (int i = 0; i < 8; i++) {
                        const real far = end * power_of_two(-k), p = far * (16 - i) / 16, q = far * (15 - i) / 16;
                        on(smaller(p, q), larger(p, q), 1);
                    }
    }
    return std::nextafter(tables::rounded_f64(most * (real(1) + power_of_two(-20))), 1.0);
}
std::string text_of(const double_row& row, double last, bool with_last) {
    writer w;
    for (const auto& c : row.head) {
        const double hi = tables::rounded_f64(c);
        w.f64(hi), w.f64(tables::rounded_f64(c - hi));
    }
    for (const auto& c : row.tail)
        w.f64(tables::rounded_f64(c));
    if (with_last) w.f64(last);
    w.end_row();
    return w.text + end_of_row();
}

// ln(centre + u): its series, of which 80 terms leave less than 2^-300 for |u| up to an eighth of the centre.
exact_polynomial log_series(const real& centre) {
    polynomial c{tables::log(centre)};
    real power = 1;
    for (int k = 1; k < 80; k++) {
        power = power / centre;
        c.push_back(power / (k % 2 ? k : -k));
    }
    return c;
}
// The slow path's logarithm: its last rounding, from 512 on that of the sum before it, and 2^-70 for its polynomial
// and tables, more than a test finds.
bounded<64> computed_log(const real& lo, const real& hi) {
    const real a = tables::log(lo), b = tables::log(hi);
    const real largest = larger(magnitude(a), magnitude(b));
    return {a, b, half_ulp(largest, 64) * (real(512) < largest ? 2 : 1) + power_of_two(-70)};
}

// ---- Margins that are no row's: the bounds of their steps, summed over all ranges.

real ln_fit,
    sine_fit; // how far lgamma's rows of ln and of the sine are from the functions, set where they are fitted

struct step {
    const char* what;
    real bound; // relative to what the margin multiplies
};
// Throws where the steps together exceed the margin, at which argument they do so.
void hold(const char* range, const real& at, const std::vector<step>& steps, const real& margin, real* worst) {
    real sum = 0;
    for (const auto& s : steps)
        sum = sum + s.bound;
    *worst = larger(*worst, sum / margin);
    if (!(margin < sum)) return;
    std::string text =
        std::string(range) + ": the margin is too small at " + std::to_string(tables::rounded_f64(at)) + ":";
    for (const auto& s : steps)
        text += std::string(" ") + s.what + " " + std::to_string(tables::rounded_f64(s.bound * power_of_two(64)));
    throw std::runtime_error(text + " times 2^-64");
}
// The slow path's polynomials against the true function, for y from 0.875 to 512; sampled, with a quarter more.
real slow_log_gamma_off(const real& y) {
    const double where = tables::rounded_f64(y);
    return magnitude(value(lgamma_pieces::log_gamma(where, exact_polynomial({real(0), real(1)})).c, y) -
                     tables::log_gamma(y)) *
           1.25;
}

void prove_lgamma_margins() {
    const real margin = lgamma_pieces::term_margin, once = power_of_two(-64); // one rounding of the slow path
    const real pairs = power_of_two(-90); // what the pairs of doubles lose: a few roundings of 2^-105
    real worst = 0;
    // Below 1/8: log gamma(1 + x) - ln x.
    for (int e = -1000; e < -3; e++)
        for (int i = 0; i < 8; i++) {
            const real unit = power_of_two(e) / 8, lo = unit * (8 + i), hi = lo + unit;
            const auto y = bounded<64>(lo + 1, hi + 1).rounded();
            const auto g = lgamma_pieces::log_gamma(1 + tables::rounded_f64((lo + hi) / 2), y);
            const auto slow = g - computed_log(lo, hi);
            const real least = slow.least(), row = g.largest() * power_of_two(-60); // margins of rows around 1
            hold("lgamma below 1/8", lo,
                 {{"slow path", slow.error / least}, {"row", row / least}, {"ln", (ln_fit + pairs) / least}}, margin,
                 &worst);
        }
    // From 512: (x - 1/2) L - x + ln(2 pi) / 2 + 1 / (12 x) - 1 / (360 x^3).
    for (int e = 9; e < 1000; e++)
        for (int i = 0; i < 16; i++) {
            const real unit = power_of_two(e) / 16, lo = unit * (16 + i), hi = lo + unit;
            const bounded<64> x(lo, hi), L = computed_log(lo, hi);
            const auto V = ((x + -0.5L) * L + lg_half_log2pi) - x;
            const real least = V.least();
            hold("lgamma from 512", lo,
                 {{"slow path", V.error / least},
                  {"its last sum", once},
                  {"series and its end", power_of_two(-74) / least},
                  {"ln", hi * (ln_fit + pairs) / least}},
                 margin, &worst);
        }
    // Negative x, A = -x, v = log gamma(A), L = ln(A sin(pi r) / pi): the margin is (|v| + |L|) times the one above,
    // an absolute part, and v's own from its row.
    const real absolute = lgamma_pieces::reflection_margin;
    real off = 0; // of the slow path's polynomials, absolute, where it takes them at 1 to 2 and the rows at A
    for (int i = 0; i < 1024; i++)
        off = larger(off, slow_log_gamma_off(real(1) + real(i) / 1024));
    for (int n = 0; n < 511; n++) {
        if (n > 40 && n % 10) continue;
        for (int k = 1; k <= 60; k++)
            for (int side : {1, -1}) {
                if (n == 0 && side < 0) continue;
                const real r = k < 16 ? real(k) / 30 : power_of_two(-k), A = real(n) + r * side;
                const bool tiny = A < real(1) / 8;
                const real v = magnitude(tables::log_gamma(tiny ? A + 1 : A));
                const real sine = magnitude(tables::cos((real(1) / 2 - r) * tables::pi())) / tables::pi();
                const real lnA = tables::log(A), l = magnitude(tables::log(tiny ? sine : sine * A));
                const real all = (v + l) * margin + absolute;
                const real common = (ln_fit + sine_fit * 2 + pairs) + power_of_two(-70) * 2;
                const real slow_off = A < real(7) / 8 ? off : slow_log_gamma_off(A); // of v against its row's fit
                if (A < real(17)) {
                    // log gamma(y) - ln p, y from 1 to 2, p of as many factors as the unit has; from -15 on p is
                    // compensated, and then its factors cost next to nothing.
                    const int factors = A < real(15) ? n + 1 : 3;
                    const real rounding = once * (n < 1 ? 2 : factors) + once / 4; // the product's and y's
                    hold("lgamma of negative x", -A,
                         {{"product", rounding / all},
                          {"its logarithm", once * (v + l + real(1) / 8) / all},
                          {"difference", once * (v + l) / all},
                          {"polynomials", (off + slow_off) / all},
                          {"log gamma from 1 to 2", once / 4 / all},
                          {"ln and sine", common / all}},
                         1, &worst);
                } else {
                    // ((-ln A - log gamma(A)) - T) - ln r, |T| below 1/2
                    const real sum = v + lnA, lnr = magnitude(tables::log(r));
                    hold("lgamma of negative x", -A,
                         {{"ln A", once * lnA / all},
                          {"ln r", once * lnr / all},
                          {"T", once / all},
                          {"sums", once * (sum * 2 + real(1) / 2 + v + l) / all},
                          {"ln and sine", common / all}},
                         1, &worst);
                }
            }
    }
    printf("lgamma: at most %.2f of the margins that are no row's\n", tables::rounded_f64(worst));
}
// gamma's pairs: up to seven factors and the quotient, of a few roundings of 2^-105 each, against what rows allow
// for.
void prove_tgamma_pairs() {
    real worst = 0;
    hold("tgamma", 1, {{"factors", power_of_two(-105) * 14}, {"quotient", power_of_two(-103) * 4}}, power_of_two(-75),
         &worst);
}

// log gamma of the slow path around 16 grid points per binade, from 1/8 to 512; the last column is the margin.
file lgamma_rows() {
    using lgamma_pieces::log_gamma;
    std::string text;
    real worst = 0;
    for (int k = 0; k <= 16 * 12; k++) {
        if (left_out()) continue;
        const int e = k / 16 - 3, i = k % 16;
        const real step = power_of_two(e) / 16, centre = power_of_two(e) + step * i;
        std::vector<real> ends = {centre - step / (i ? 2 : 4)};
        const real end = centre + step / 2;
        for (double joint : {0.25, 0.75, 0.875, 1.25, 1.75, 2.25, 4.0, 8.0, 16.0, 32.0, 64.0, 128.0, 256.0})
            if (ends.back() < joint && joint < end) ends.push_back(joint);
        if (k == 16 * 12) ends = {centre - step / 4, centre};
        else ends.push_back(end);
        std::vector<part> parts;
        for (size_t n = 0; n + 1 < ends.size(); n++) {
            const double where = tables::rounded_f64((ends[n] + ends[n + 1]) / 2);
            if (where < 0.875)
                parts.push_back({ends[n], ends[n + 1],
                                 [=](const real& c) {
                                     return log_gamma(1 + where, exact_polynomial({c + 1, real(1)})) - log_series(c);
                                 },
                                 [=](const real& lo, const real& hi) {
                                     return log_gamma(1 + where, bounded<64>(lo + 1, hi + 1)) - computed_log(lo, hi);
                                 }});
            else
                parts.push_back(
                    {ends[n], ends[n + 1],
                     [=](const real& c) {
                         return log_gamma(where, exact_polynomial({c, real(1)}));
                     },
                     [=](const real& lo, const real& hi) { return log_gamma(where, bounded<64>(lo, hi)); }});
        }
        const bool zero = centre == 1 || centre == 2;
        const auto row = fit_double_row(parts, tables::log_gamma, centre, 11, zero);
        // Of few roundings next to all can fall together, of many never.
        const double margin = margin_of(row, parts, centre, zero) * (centre < real(2.25) ? 2 : slack);
        worst = larger(worst, margin);
        text += text_of(row, margin, true);
    }
    return {"special/tables/lgamma_grid.inc",
            heading("the slow path's log gamma around 16 grid points per binade, the margin last, relative: ",
                    log2_of(worst)) +
                text};
}

// A function given by its series around any centre, on [lo, hi].
part exact_part(const real& lo, const real& hi, exact_polynomial (*series)(const real&)) {
    return {lo, hi, series, nullptr};
}
// The largest error of a row of a series, absolute.
real fit_error(const double_row& row, const part& p, const real& centre) {
    const polynomial off = (p.slow(centre) - exact_polynomial(row.all())).c;
    real worst = 0;
    const int pieces = is_sample ? 32 : 1024;
    for (int i = 0; i < pieces; i++)
        worst = larger(worst, bound_of(off, p.lo - centre + (p.hi - p.lo) * i / pieces,
                                       p.lo - centre + (p.hi - p.lo) * (i + 1) / pieces));
    return worst;
}

// ln around sixteenths from 1 to 2.
file lgamma_ln_rows() {
    std::string text;
    real worst = 0;
    for (int i = 0; i <= 16; i++) {
        const real centre = real(1) + real(i) / 16;
        const auto p =
            exact_part(i ? centre - real(1) / 32 : centre, i < 16 ? centre + real(1) / 32 : centre, log_series);
        const auto wide = exact_part(centre - real(1) / 32, centre + real(1) / 32, log_series);
        const auto row = fit_double_row({wide}, nullptr, centre, 12, i == 0);
        worst = larger(worst, fit_error(row, p, centre));
        text += text_of(row, 0, false);
    }
    ln_fit = worst;
    return {"special/tables/lgamma_ln.inc", heading("ln around sixteenths, absolute: ", log2_of(worst)) + text};
}
// sin(pi r) / (pi r) in z = r^2.
exact_polynomial sine_series(const real&) {
    polynomial c{real(1)};
    for (int k = 1; k < 40; k++)
        c.push_back(-c.back() * tables::pi() * tables::pi() / (2 * k * (2 * k + 1)));
    return c;
}
file lgamma_sine_row() {
    const auto p = exact_part(0, real(1) / 4, sine_series);
    auto row = fit_double_row({p}, nullptr, 0, 11, false);
    const auto error = fit_error(row, p, 0);
    sine_fit = error;
    return {"special/tables/lgamma_sine.inc",
            heading("sin(pi r) / (pi r) in r^2, absolute: ", log2_of(error)) + text_of(row, 0, true)};
}

// gamma of the slow path on the unit from n on, in u = x - centre; in the piece of `where` below 2.
exact_polynomial exact_gamma(int n, double where, const real& centre) {
    if (n < 2) {
        const auto& piece = gamma_piece_of<double>(where);
        return horner_up(exact_polynomial({centre + piece.shift, real(1)}), piece.c);
    }
    exact_polynomial p = gamma_row_product<double>(n, exact_polynomial({centre - n, real(1)}));
    for (int i = 1; i <= (n >= 16 ? n % 16 : n - 2); i++)
        p = p * exact_polynomial({centre - i, real(1)});
    return p;
}
// The slow path's rounding there, relative: the polynomial's or the product's, of its factors, and two roundings for
// the last product or quotient.
real gamma_rounding(int n, double where, const real& lo, const real& hi) {
    if (n < 2) {
        const auto& piece = gamma_piece_of<double>(where);
        const auto P = horner_up(bounded<64>(lo + piece.shift, hi + piece.shift, power_of_two(-64)), piece.c);
        return P.error / P.least() + power_of_two(-63);
    }
    const auto G = gamma_row_product<double>(n, bounded<64>(lo - n, hi - n));
    return G.error / G.least() + power_of_two(-64) * ((n >= 16 ? n % 16 : n - 2) + 1);
}

// gamma of the slow path in double on eighths, and the margins that its rounding and theirs need.
std::vector<file> tgamma_rows() {
    std::string text, margins;
    real worst_fit = 0;
    auto unit = [&](int n) {
        for (int i = 0; i < 8; i++) {
            if (left_out()) continue;
            const real lo = real(n) + real(i) / 8, hi = lo + real(1) / 8, centre = n == 1 ? lo : (lo + hi) / 2;
            const double where = tables::rounded_f64((lo + hi) / 2);
            const part p = {lo, hi, [=](const real& c) { return exact_gamma(n, where, c); }, nullptr};
            const auto row = fit_double_row({p}, nullptr, centre, 12, false);
            const polynomial off = (p.slow(centre) - exact_polynomial(row.all())).c;
            real fit = 0;
            for (int k = 0; k < 32; k++) {
                const real a = lo - centre + (hi - lo) * k / 32, b = a + (hi - lo) / 32;
                const real least = magnitude(value(row.all(), (a + b) / 2)) * (1 - 1.0 / 32); // slopes are below 6
                fit = larger(fit, (bound_of(off, a, b) + evaluation_error(row, a, b)) / least);
            }
            worst_fit = larger(worst_fit, fit);
            real rounding = 0;
            for (int k = 0; k < 32; k++)
                rounding = larger(rounding,
                                  gamma_rounding(n, where, lo + (hi - lo) * k / 32, lo + (hi - lo) * (k + 1) / 32));
            const real margin = (fit + rounding + power_of_two(-75)) * slack;
            writer w;
            w.f64(tables::rounded_f64(margin)), w.end_row();
            margins += w.text + end_of_row();
            text += text_of(row, 0, false);
        }
    };
    unit(1);
    for (int n = 8; n <= 168; n += 8)
        unit(n);
    unit(2);
    // The sine: rounded as the slow path's text says, for r from 0 to 1/2; and reflection's four further roundings.
    real sine = 0;
    for (int i = 0; i < 256; i++) {
        const bounded<64> r(real(i) / 512 + power_of_two(-60), real(i + 1) / 512);
        const bounded<64> z = r * r, q = z * horner(z, tgamma_constants<double>::sin_c) + 1; // s / r, a rounding more
        sine = larger(sine, q.error / q.least() + power_of_two(-62));
    }
    auto check = [&](const char* what, const real& proven, double margin) {
        printf("tgamma, %s: proven 2^%.2f, margin 2^%.2f\n", what, log2_of(proven), std::log2(margin));
        if (real(margin) < proven) throw std::runtime_error("tgamma: a margin is too small");
    };
    const real products = power_of_two(-64) * 4; // sine, A, gamma's two factors and the quotient after these
    check("reflection", sine + products + power_of_two(-66), tgamma_reflection_margin);
    return {
        {"special/tables/tgamma_eighths.inc",
         heading("the slow path's gamma on eighths, with the evaluation's rounding, relative: ", log2_of(worst_fit)) +
             text},
        {"special/tables/tgamma_margins.inc",
         (is_sample ? "" : "// for each eighth what the slow path can be from the row, relative\n") + margins}};
}
exact_polynomial slow_sine(const real&) {
    const exact_polynomial z({real(0), real(1)});
    return exact_polynomial(1) + z * horner(z, tgamma_constants<double>::sin_c);
}
file tgamma_sine_row() {
    const auto p = exact_part(0, real(1) / 4, slow_sine);
    auto row = fit_double_row({p}, nullptr, 0, 11, false);
    const auto error = fit_error(row, p, 0);
    return {"special/tables/tgamma_sine.inc",
            heading("the slow path's sin(pi r) / (pi r) in r^2, absolute: ", log2_of(error)) + text_of(row, 0, true)};
}

} // namespace

std::vector<file> gamma_rows(bool sample) {
    is_sample = sample;
    std::vector<file> files = tgamma_rows();
    for (auto rows :
         {lgammaf_rows, ln_rows, tgammaf_rows, lgamma_rows, lgamma_ln_rows, lgamma_sine_row, tgamma_sine_row})
        files.push_back(rows());
    prove_lgamma_margins();
    prove_tgamma_pairs();
    return files;
}

} // namespace orvane::fits
