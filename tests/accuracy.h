// The largest error of a vector path over a million arguments or more: first against the C library in extended
// precision, which is two thousand times finer than a double's last place; the arguments where that is largest are
// decided against the truth.
#pragma once

#include "support.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace orvane {

using extended_function = long double (*)(long double);

inline double float_or_double(lane_type t, uint64_t w) { return value_of(t, w); }

// Error of a result in ulps of its type at the reference, to about 2^-11 of one in double.
inline double approximate_ulps(lane_type t, uint64_t result, long double reference) {
    if (reference == 0 || !std::isfinite(reference)) return 0;
    const int bits = t == lane_type::f32 ? 24 : 53, emin = t == lane_type::f32 ? -125 : -1021;
    const int exponent = std::max(std::ilogb(reference) + 1, emin);
    return (double)std::ldexp(std::fabs((long double)value_of(t, result) - reference), bits - exponent);
}

inline worst sampled_error(sweep& f, truth& t, const words& x, extended_function reference) {
    constexpr size_t candidates = 16;
    const lane_type type = f.row().in;
    const auto& y = f({x});
    std::vector<std::pair<double, uint64_t>> top; // approximate error, lane
    double least = 0;
    for (size_t i = 0; i < x.size(); i++) {
        const double e = approximate_ulps(type, y[0][i], reference(value_of(type, x[i])));
        if (e < least) continue;
        top.emplace_back(e, i);
        if (top.size() < 4 * candidates) continue;
        std::nth_element(top.begin(), top.begin() + candidates, top.end(), std::greater<>());
        top.resize(candidates);
        least = std::min_element(top.begin(), top.end())->first;
    }
    worst w;
    for (const auto& [e, i] : top)
        if (t(f.row(), &x[i])) {
            const double exact = t.error(0, type, y[0][i]);
            if (exact > w.ulps) w = {exact, x[i]};
        }
    return w;
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
    double bound; // ulps, as measured; kernels fed by the processor's estimate get a tenth more
    double lo, hi;
    extended_function reference;
    bool by_exponent = false;
};
inline void check_accuracy(const accuracy& a) {
    truth t;
    sweep f(a.name, a.tier, 8);
    const lane_type type = f.row().in;
    worst w = sampled_error(f, t, spread(type, a.lo, a.hi, 1'000'000, a.by_exponent, 21), a.reference);
    if (!a.by_exponent) { // and small ones of both signs
        for (double sign : {1.0, -1.0}) {
            auto x = spread(type, 1e-9, std::min(1.0, a.hi), 100'000, true, 22);
            for (auto& v : x)
                v = word_of(type, sign * value_of(type, v));
            if (-a.lo < 1e-9 && sign < 0) continue;
            const auto s = sampled_error(f, t, x, a.reference);
            if (s.ulps > w.ulps) w = s;
        }
    }
    EXPECT_LE(w.ulps, a.bound) << a.name << " " << a.tier << " at " << std::hex << w.argument;
    EXPECT_GT(w.ulps, 0.4) << a.name << ": nothing was measured";
    printf("%-8s %-8s largest error %.4g ulp\n", a.name, a.tier, w.ulps);
}

} // namespace orvane
