// The rows of tgamma's and lgamma's tables that are fits, from 400-bit numbers: fit-gamma ROOT writes them with the
// error that each reaches; fit-gamma --check ROOT compares them with what the sources hold. Both first hold the
// constructions against rows whose numbers are fixed, and print in how many digits they agree.
#include "gamma_rows.h"
#include "whole_file.h"

#include <bit>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <stdexcept>

using namespace orvane::fits;
using namespace orvane::tables;
namespace fs = std::filesystem;

namespace {

constexpr double f64(uint64_t pattern) { return std::bit_cast<double>(pattern); }

const long double tgamma_fixed[3][23] = {
#include "special/tables/tgamma_rows_00_01.inc"
#include "special/tables/tgamma_rows_11.inc"
};
const long double binade_fixed[1][23] = {
#include "special/tables/lgamma_C5_row_0.inc"
};
const double left_windows[13][3] = {
#include "special/tables/lgamma_LRIB.inc"
};
const double right_windows[13][3] = {
#include "special/tables/lgamma_RRIB.inc"
};
template <int Extended, int Doubles> struct root_row {
    long double E[Extended];
    double D[Doubles];
};
const root_row<5, 11> left_fixed[1] = {
#include "special/tables/lgamma_LRP_row_0.inc"
};
const double left_16_fixed[1] = {
#include "special/tables/lgamma_LRP16_row_0.inc"
};
const root_row<4, 12> right_fixed[1] = {
#include "special/tables/lgamma_RRP_row_0.inc"
};

real digamma(const real& x) {
    real r;
    mpfr_digamma(r.get(), x.get(), MPFR_RNDN);
    return r;
}

// A coefficient in the type that it is kept in.
struct kept {
    bool extended;
    real exact, rounded;
};
kept in_extended(const real& x) { return {true, x, to_significant(x, 64)}; }
kept in_double(const real& x) { return {false, x, real(rounded_f64(x))}; }
std::string literal(const kept& k) {
    char s[48];
    if (k.extended) { // the significand with its leading one, and the power of two of its last place
        const mpfr_exp_t e = mpfr_get_exp(k.rounded.get()) - 64;
        real m = magnitude(k.rounded);
        mpfr_mul_2si(m.get(), m.get(), -e, MPFR_RNDN);
        snprintf(s, sizeof s, "%s0x%016llXp%dL", mpfr_signbit(k.rounded.get()) ? "-" : "",
                 (unsigned long long)mpfr_get_uj(m.get(), MPFR_RNDN), (int)e);
    } else
        snprintf(s, sizeof s, "f64(0x%016llX)", (unsigned long long)std::bit_cast<uint64_t>(rounded_f64(k.rounded)));
    return s;
}
std::string braced(const std::vector<kept>& row, const char* before = "{", const char* after = "},\n") {
    std::string text, line = before;
    for (size_t i = 0; i < row.size(); i++) {
        const std::string next = literal(row[i]) + (i + 1 < row.size() ? "," : after);
        if (line.size() + 1 + next.size() > 117) text += line + "\n", line = " ";
        if (line != before && line != " ") line += ' ';
        line += next;
    }
    return text + line;
}
// Prints in how many significant digits a fit and the fixed numbers agree, of all coefficients the worst; fewer than
// 5.5 mean another construction.
void compare(const char* what, const std::vector<kept>& row, const std::vector<long double>& fixed) {
    double digits = 99;
    for (size_t i = 0; i < row.size(); i++) {
        real f;
        mpfr_set_ld(f.get(), fixed[i], MPFR_RNDN);
        const real off = magnitude((row[i].rounded - f) / f);
        if (real(0) < off) digits = std::min(digits, -log2_of(off) * std::log10(2));
    }
    printf("%s: every coefficient agrees in %.1f digits\n", what, digits);
    if (digits < 5.5) throw std::runtime_error(std::string(what) + ": not the construction of the fixed row");
}
std::string errors(const std::string& what, const real& fitted, const real& rounded) {
    char s[80];
    snprintf(s, sizeof s, ": error 2^%.1f as fitted, 2^%.1f with rounded coefficients\n", log2_of(fitted),
             log2_of(rounded));
    return "// " + what + s;
}

// Monic quadratics t^2 + linear t + constant of a polynomial of degree 22, whose roots are complex pairs but for two
// real ones, if any, which make the last quadratic.
struct quadratic {
    real linear, constant;
};
std::vector<quadratic> quadratics(const polynomial& p, bool falling) {
    std::vector<quadratic> q;
    std::vector<real> on_axis;
    for (const auto& z : roots(p)) {
        if (magnitude(z.im) < real(0x1p-200)) on_axis.push_back(z.re);
        else if (real(0) < z.im) q.push_back({real(-2) * z.re, z.re * z.re + z.im * z.im});
    }
    std::sort(q.begin(), q.end(), [&](const quadratic& a, const quadratic& b) {
        return falling ? b.linear < a.linear : a.linear < b.linear;
    });
    if (on_axis.size() == 2) q.push_back({-(on_axis[0] + on_axis[1]), on_axis[0] * on_axis[1]});
    return q;
}

// gamma(first + t) on [0, 1]: least relative error; T0 to T10 linear, T11 to T21 constant coefficients, T22 the
// scale.
struct gamma_row {
    std::vector<kept> T;
    std::string comment;
};
gamma_row fit_gamma_row(int first) {
    target t{[&](const real& x) { return gamma(x + first); },
             [&](const real& x) { return real(1) / gamma(x + first); }, 0, 1};
    real fitted;
    const polynomial p = minimax(t, 22, &fitted);
    const auto q = quadratics(p, true);
    gamma_row row;
    for (const auto& f : q)
        row.T.push_back(in_extended(f.linear));
    for (const auto& f : q)
        row.T.push_back(in_extended(f.constant));
    row.T.push_back(in_extended(p[22]));
    const real rounded = largest_error(t, [&](const real& x) {
        real G = row.T[22].rounded;
        for (int i = 0; i < 11; i++)
            G = G * (x * x + row.T[i].rounded * x + row.T[11 + i].rounded);
        return G;
    });
    row.comment = errors("gamma(" + std::to_string(first) + " + t), relative", fitted, rounded);
    return row;
}

// log gamma(2^(j+2) (1 + u)) on [0, 1]: least absolute error; pairs (constant, linear) coefficient, then the scale.
gamma_row fit_binade(int j) {
    const int first = 4 << j;
    target t{[&](const real& u) { return log_gamma(real(first) * (real(1) + u)); },
             [](const real&) { return real(1); }, 0, 1};
    real fitted;
    const polynomial p = minimax(t, 22, &fitted);
    gamma_row row;
    for (const auto& f : quadratics(p, false))
        row.T.push_back(in_extended(f.constant)), row.T.push_back(in_extended(f.linear));
    row.T.push_back(in_extended(p[22]));
    const real rounded = largest_error(t, [&](const real& u) {
        real G = row.T[22].rounded;
        for (int i = 0; i < 11; i++)
            G = G * (u * u + row.T[2 * i + 1].rounded * u + row.T[2 * i].rounded);
        return G;
    });
    const std::string range = "[" + std::to_string(first) + ", " + std::to_string(2 * first) + ")";
    const std::string least = std::to_string((int)rounded_f64(t.f(0)));
    row.comment = errors("log gamma on " + range + ", from " + least + " up, absolute", fitted, rounded);
    return row;
}

// log|gamma(c + u)| around a zero, as log|gamma(c)| + u p(u): p with the least absolute error of the quotient, over
// |u| up to the window's farther bound.
struct root_fit {
    std::vector<kept> c; // of u^0, u^1, ...
    std::string comment;
};
root_fit fit_root(const double (&window)[3], int degree, int extended) {
    const real centre = window[1], at_centre = log_gamma(centre);
    const real h = std::max(magnitude(real(window[0]) - centre), magnitude(real(window[2]) - centre));
    target t{[&](const real& s) {
                 const real u = s * h;
                 return magnitude(u) < real(0x1p-200) ? digamma(centre) : (log_gamma(centre + u) - at_centre) / u;
             },
             [](const real&) { return real(1); }, -1, 1};
    real fitted;
    const polynomial p = minimax(t, degree, &fitted); // in s = u / h
    root_fit fit{{in_extended(at_centre)}, ""};
    real power = 1;
    for (int k = 0; k <= degree; k++, power = power * h)
        fit.c.push_back(k + 1 < extended ? in_extended(p[k] / power) : in_double(p[k] / power));
    const real rounded = largest_error(t, [&](const real& s) {
        real r = fit.c.back().rounded;
        for (size_t k = fit.c.size() - 1; k-- > 1;)
            r = r * (s * h) + fit.c[k].rounded;
        return r;
    });
    char what[100];
    snprintf(what, sizeof what, "log|gamma| at %.17g, its slope, relative", window[1]);
    const real unit = magnitude(digamma(centre));
    fit.comment = errors(what, fitted / unit, rounded / unit);
    return fit;
}
// Where each power's coefficient stands among E, D and the table of 16th powers.
const int left_E[] = {0, 1, 2, 3, 4}, left_D[] = {5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
const int right_E[] = {0, 1, 2, 3}, right_D[] = {15, 14, 11, 10, 7, 6, 13, 12, 9, 8, 5, 4};
template <size_t N> std::vector<kept> picked(const root_fit& fit, const int (&power)[N]) {
    std::vector<kept> row;
    for (int k : power)
        row.push_back(fit.c[k]);
    return row;
}
template <size_t E, size_t D> std::string root_text(const root_fit& fit, const int (&e)[E], const int (&d)[D]) {
    return fit.comment + braced(picked(fit, e), "{{") + braced(picked(fit, d), " {", "}},\n");
}
template <int E, int D> std::vector<long double> numbers(const root_row<E, D>& row) {
    std::vector<long double> all(row.E, row.E + E);
    all.insert(all.end(), row.D, row.D + D);
    return all;
}

std::vector<long double> numbers(const long double (&row)[23]) { return {row, row + 23}; }

void compare_with_fixed_rows() {
    compare("tgamma, row 0", fit_gamma_row(2).T, numbers(tgamma_fixed[0]));
    compare("tgamma, row 1", fit_gamma_row(16).T, numbers(tgamma_fixed[1]));
    auto last = fit_gamma_row(176).T;
    auto fixed = numbers(tgamma_fixed[2]);
    last.pop_back(), fixed.pop_back(); // scaled to have 1 as its leading coefficient
    compare("tgamma, row 11", last, fixed);
    compare("lgamma, binade row 0", fit_binade(0).T, numbers(binade_fixed[0]));
    const auto left = fit_root(left_windows[0], 15, 5), right = fit_root(right_windows[0], 14, 4);
    auto row = picked(left, left_E), d = picked(left, left_D);
    row.insert(row.end(), d.begin(), d.end());
    compare("lgamma, left root row 0", row, numbers(left_fixed[0]));
    compare("lgamma, left root row 0, 16th power", {left.c[16]}, {left_16_fixed[0]});
    row = picked(right, right_E), d = picked(right, right_D);
    row.insert(row.end(), d.begin(), d.end());
    compare("lgamma, right root row 0", row, numbers(right_fixed[0]));
}

std::vector<file> slow_path_rows() {
    std::vector<file> files = {{"special/tables/tgamma_rows_02_10.inc", ""},
                               {"special/tables/lgamma_C5_rows_1_6.inc", ""},
                               {"special/tables/lgamma_LRP_rows_1_12.inc", ""},
                               {"special/tables/lgamma_LRP16_rows_1_12.inc", ""},
                               {"special/tables/lgamma_RRP_rows_1_12.inc", ""}};
    for (int b = 2; b <= 10; b++) {
        const auto row = fit_gamma_row(16 * b);
        files[0].text += row.comment + braced(row.T);
    }
    for (int j = 1; j <= 6; j++) {
        const auto row = fit_binade(j);
        files[1].text += row.comment + braced(row.T);
    }
    for (int k = 1; k <= 12; k++) {
        const auto left = fit_root(left_windows[k], 15, 5), right = fit_root(right_windows[k], 14, 4);
        files[2].text += root_text(left, left_E, left_D);
        files[3].text += literal(left.c[16]) + ",\n";
        files[4].text += root_text(right, right_E, right_D);
    }
    return files;
}

} // namespace

int main(int argc, char** argv) {
    std::vector<std::string> args(argv + 1, argv + argc);
    const bool check = !args.empty() && args[0] == "--check";
    if (check) args.erase(args.begin());
    const bool vector = !args.empty() && args[0] == "--vector";
    if (vector) args.erase(args.begin());
    const bool sample = check && vector && !args.empty() && args[0] == "--sample";
    if (sample) args.erase(args.begin());
    if (args.size() != 1 || !fs::is_directory(args[0])) {
        std::cerr
            << "usage: fit-gamma [--check] [--vector [--sample]] ROOT, with ROOT the root of the sources; --vector "
               "leaves out the slow paths' rows, which take minutes; --sample, after --check --vector, checks "
               "one row in 16\n";
        return 2;
    }
    const fs::path root = args[0];
    int wrong = 0;
    try {
        auto files = gamma_rows(sample);
        if (!vector) {
            compare_with_fixed_rows();
            const auto more = slow_path_rows();
            files.insert(files.end(), more.begin(), more.end());
        }
        for (const auto& f : files) {
            if (sample) {
                const std::string text = orvane::contents_of(root / f.path);
                for (size_t from = 0, to; (to = f.text.find('\f', from)) != f.text.npos; from = to + 1)
                    if (text.find(f.text.substr(from, to - from)) == text.npos)
                        wrong++, std::cout << f.path << ": differs from its fit\n";
            } else if (check) {
                if (orvane::contents_of(root / f.path) != f.text)
                    wrong++, std::cout << f.path << ": differs from its fit\n";
            } else {
                orvane::write_whole(root / f.path, f.text);
                std::cout << f.path << '\n';
            }
        }
    } catch (const std::exception& e) {
        std::cerr << "fit-gamma: " << e.what() << '\n';
        return 1;
    }
    return wrong ? 1 : 0;
}
