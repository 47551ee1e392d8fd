// The largest error of a vector path over a million arguments or more: first against the C library in extended
// precision, which is two thousand times finer than a double's last place; the arguments where that is largest are
// decided against the truth.
#pragma once

#include "support.h"
#include "tools/worst_cases.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <sstream>

namespace orvane {

using extended_function = long double (*)(long double);
using extended_function2 = long double (*)(long double, long double);

// Error of a result in ulps of its type at the reference, to about 2^-11 of one in double; infinite where one of them
// alone is a number.
inline double approximate_ulps(lane_type t, uint64_t result, long double reference) {
    const double y = value_of(t, result), rounded = t == lane_type::f32 ? (float)reference : (double)reference;
    if (y == rounded || (std::isnan(y) && std::isnan(rounded))) {
        if (reference == 0 || !std::isfinite(y)) return 0;
    } else if (!std::isfinite(y) || !std::isfinite(rounded)) return HUGE_VAL;
    const int bits = t == lane_type::f32 ? 24 : 53, emin = t == lane_type::f32 ? -125 : -1021;
    const int exponent = std::max(reference == 0 ? emin : std::ilogb(reference) + 1, emin);
    return (double)std::ldexp(std::fabs(y - reference), bits - exponent);
}

// Lanes of the largest approximate errors, as many as are to be decided against the truth.
class largest_errors {
public:
    explicit largest_errors(size_t keep) : keep(keep) {}
    void offer(double ulps, uint64_t result, uint64_t x, uint64_t second = 0) {
        if (!(ulps >= least)) return;
        top.push_back({ulps, result, {x, second}});
        if (top.size() >= 4 * keep) cut();
    }
    worst decided(const kernel_row& row, truth& t, int result = 0) {
        if (top.size() > keep) cut();
        worst w;
        bool known = top.empty();
        for (const auto& lane : top)
            if (t(row, lane.arguments)) {
                known = true;
                const double exact = t.error(result, row.out, lane.result);
                if (exact > w.ulps) w = {exact, lane.arguments[0], lane.arguments[1]};
            }
        if (!known) ADD_FAILURE() << "tools/truth.cpp knows no value of " << row.name;
        return w;
    }

private:
    struct lane {
        double ulps;
        uint64_t result, arguments[2];
    };
    void cut() {
        std::nth_element(top.begin(), top.begin() + keep, top.end(),
                         [](const lane& a, const lane& b) { return a.ulps > b.ulps; });
        top.resize(keep);
        for (least = HUGE_VAL; const auto& l : top)
            least = std::min(least, l.ulps);
    }
    size_t keep;
    double least = 0;
    std::vector<lane> top;
};

// The errors that a kernel may show: at most what was measured, rounded up, and at least a part of it, since a
// smaller error means that another kernel ran: the fast ones are hundreds of times as far off as the others.
struct allowed {
    allowed(double measured) : most(measured), least(std::max(0.4, measured / 4)) {}
    allowed(double most, double least) : most(most), least(least) {}
    double most, least; // ulps
    double bent = 0;    // of kernels fed by estimates: with any estimate that the instruction set allows
    bool from_file = false;
};
// Of a kernel fed by the processor's 12-bit estimates: `measured` on one kind of processor, with some room for others
// of like make; `bent` is the largest error that estimates anywhere in their range (bent/bend.h) make, and the bound
// on processors whose estimates are others.
inline allowed fed(double measured, double bent) {
    allowed a =
        estimates_are_known() ? allowed(1.1 * measured, std::max(0.4, std::sqrt(measured) / 4)) : allowed(bent, 0);
    a.bent = bent;
    return a;
}
// The largest known error of data/worst_cases.txt, the pair's on any path; `bent` as for `fed`.
inline allowed known(double bent = 0) {
    allowed a(0, 0);
    a.bent = bent;
    a.from_file = true;
    return a;
}
inline allowed of_file(const allowed& a, const kernel_row& row) {
    if (!a.from_file) return a;
    static const auto cases = read_worst_cases(ORVANE_SOURCES "/data/worst_cases.txt");
    const auto [error, measure] = largest_known_error(row, cases);
    const double per_ulp = measure == error_measure::ulp ? 1 : row.in == lane_type::f32 ? 0x1p24 : 0x1p53;
    const double ulps = 1.00001 * error * per_ulp;
    return a.bent ? fed(ulps, a.bent) : allowed(ulps);
}
inline void expect_error(const std::string& of, const allowed& a, const worst& w) {
    EXPECT_LE(w.ulps, a.most) << of << std::hex << " at " << w.argument << ", " << w.second;
    EXPECT_GE(w.ulps, a.least) << of << ": nothing was measured";
    printf("%-36s largest error %.5g ulp at %llx, %llx\n", of.c_str(), w.ulps, (unsigned long long)w.argument,
           (unsigned long long)w.second);
}

// True values to about 2^-64 of them, lane by lane.
template <class... T> std::vector<long double> references(const kernel_row& row, const std::vector<words>& x,
                                                          long double (*reference)(T...)) {
    std::vector<long double> r;
    for (size_t i = 0; i < x[0].size(); i++)
        if constexpr (sizeof...(T) == 1) r.push_back(reference(value_of(row.in, x[0][i])));
        else r.push_back(reference(value_of(row.argument(0), x[0][i]), value_of(row.argument(1), x[1][i])));
    return r;
}
inline worst largest_error(sweep& f, truth& t, const std::vector<words>& x,
                           const std::vector<long double>& reference) {
    const auto& y = f(x)[0];
    largest_errors top(16);
    for (size_t i = 0; i < y.size(); i++)
        top.offer(approximate_ulps(f.row().out, y[i], reference[i]), y[i], x[0][i], x.size() > 1 ? x[1][i] : 0);
    return top.decided(f.row(), t);
}
inline worst sampled_error(sweep& f, truth& t, const words& x, extended_function reference) {
    return largest_error(f, t, {x}, references(f.row(), {x}, reference));
}

// The largest error within its bound; of a kernel fed by estimates under every bend as well, over some of the lanes.
template <class... T> void expect_errors(const std::string& of, const allowed& bound, sweep& f, truth& t,
                                         const std::vector<words>& x, long double (*reference)(T...)) {
    const allowed a = of_file(bound, f.row());
    const auto r = references(f.row(), x, reference);
    expect_error(of, a, largest_error(f, t, x, r));
    if (!a.bent) return;
    std::vector<words> some(x.size());
    std::vector<long double> their;
    for (size_t i = 0, step = 1 + x[0].size() / 30'000; i < x[0].size(); i += step) {
        for (size_t j = 0; j < x.size(); j++)
            some[j].push_back(x[j][i]);
        their.push_back(r[i]);
    }
    sweep bent(f.row().name, f.row().tier, 8, bent_library());
    worst w;
    for (bend b : bends) {
        set_bend(b);
        if (const auto e = largest_error(bent, t, some, their); e.ulps >= w.ulps) w = e;
    }
    expect_error(of + ", bent", {a.bent, a.bent / 3}, w);
}

// Runs a kernel over every float, those that are no numbers too: visit(x, y) for each, of one of its results.
template <class visitor> void over_all_floats(sweep& f, int result, visitor visit) {
    words x(1 << 16);
    for (uint64_t from = 0; from < (uint64_t(1) << 32); from += x.size()) {
        for (size_t i = 0; i < x.size(); i++)
            x[i] = from + i;
        const auto& y = f({x})[result];
        for (size_t i = 0; i < x.size(); i++)
            visit(std::bit_cast<float>((uint32_t)x[i]), std::bit_cast<float>((uint32_t)y[i]));
    }
}

// A kernel's largest error over every float from a magnitude on, vector path and slow path, against the C library's
// double function; the worst thousand are decided against the truth.
struct float_accuracy {
    const char *name, *tier;
    allowed bound;
    double (*reference)(double);
    int result = 0;
    float from = 0;
};
inline void check_all_floats(const float_accuracy& a) {
    sweep f(a.name, a.tier, 16);
    truth t;
    largest_errors top(1000);
    over_all_floats(f, a.result, [&](float x, float y) {
        if (std::fabs(x) < a.from) return;
        const double z = a.reference(x);
        // The float nearest to z is off by half a unit at most, and not what is looked for.
        if (y != (float)z)
            top.offer(approximate_ulps(lane_type::f32, std::bit_cast<uint32_t>(y), z), std::bit_cast<uint32_t>(y),
                      std::bit_cast<uint32_t>(x));
    });
    expect_error(std::string(a.name) + " " + a.tier + " over all floats", of_file(a.bound, f.row()),
                 top.decided(f.row(), t, a.result));
}

// Spread over a range: evenly, or evenly in the exponent.
inline words spread(lane_type t, double lo, double hi, int n, bool by_exponent, uint64_t seed) {
    rng r(seed);
    std::uniform_real_distribution<double> d(by_exponent ? std::log(lo) : lo, by_exponent ? std::log(hi) : hi);
    words w;
    for (int i = 0; i < n; i++)
        w.push_back(word_of(t, by_exponent ? std::exp(d(r)) : d(r)));
    return w;
}

// One kernel's bound over ranges of its domain.
struct accuracy {
    const char *name, *tier;
    allowed bound;
    double lo, hi;
    extended_function reference;
    bool by_exponent = false;
};
inline void check_accuracy(const accuracy& a) {
    truth t;
    sweep f(a.name, a.tier, 8);
    const lane_type type = f.row().in;
    words x = spread(type, a.lo, a.hi, 1'000'000, a.by_exponent, 21);
    if (!a.by_exponent && a.lo <= 0 && a.hi > 0) // and small ones of both signs
        for (double sign : {1.0, -1.0}) {
            if (-a.lo < 1e-9 && sign < 0) continue;
            for (uint64_t v : spread(type, 1e-9, std::min(1.0, a.hi), 100'000, true, 22))
                x.push_back(word_of(type, sign * value_of(type, v)));
        }
    expect_errors((std::stringstream() << a.name << " " << a.tier << " from " << a.lo).str(), a.bound, f, t, {x},
                  a.reference);
}

} // namespace orvane
