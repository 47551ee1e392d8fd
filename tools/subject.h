// A kernel, many lanes at a time, beside what tells its errors.
#pragma once

#include "extended.h"
#include "worst_cases.h"

#include <array>
#include <bit>
#include <cmath>

namespace orvane {

class subject {
public:
    using lane = std::array<uint64_t, 3>;
    static constexpr int width = 16;

    subject(const kernel_row& row, const library& in);

    // The results of `width` lanes; valid until the next call.
    const std::vector<words>& operator()(const lane* x);
    // The errors of `width` lanes in a measure, by the C library in extended precision, or by MPFR where that has no
    // reference. Where a result is a number and its true value none, or the other way round, there is no error to
    // tell but a fault, which tests of special arguments hold: 0.
    void errors(const lane* x, error_measure m, double* error);
    lane_path path_of(const lane& x);
    double decided(const lane& x, error_measure m); // the same of one lane, by MPFR

    static double error_of(error_measure m, lane_type t, uint64_t result, long double v) {
        const double y = value_of(t, result);
        if (!std::isfinite(v) || !std::isfinite(y)) return 0;
        const int bits = t == lane_type::f32 ? 24 : 53, emin = t == lane_type::f32 ? -125 : -1021;
        const long double e = std::fabs(y - v);
        if (m == error_measure::absolute) return e;
        if (m == error_measure::relative) return e / std::max(std::fabs(v), std::ldexp(1.0L, emin - 1));
        return std::ldexp(e, bits - std::max(v == 0 ? emin : std::ilogb(v) + 1, emin));
    }

    // Every float from `first` to `last` by pattern, eight bits of pattern at a time: visit(pattern, error) for those
    // that are not the float nearest to the C library's double.
    template <class F> void each_float(uint32_t first, uint32_t last, F visit) {
        wide.place_arguments(arguments); // and the pointers to results in memory
        auto* const at = wide.argument_lanes(0);
        for (uint64_t x = first; x <= last; x += width) {
            uint32_t patterns[width];
            for (int i = 0; i < width; i++)
                patterns[i] = std::min<uint64_t>(x + i, last);
            memcpy(at, patterns, sizeof patterns);
            wide.call();
            for (int j : of_interest) {
                float y[width];
                memcpy(y, wide.result_lanes(j), sizeof y);
                for (int i = 0; i < width; i++) {
                    const double a = std::bit_cast<float>(patterns[i]);
                    const double v = j ? reference->quick_second(a) : reference->quick(a);
                    if (y[i] == (float)v || !(std::fabs(v) < 0x1.ffffffp127) || !std::isfinite(y[i])) continue;
                    visit(patterns[i], y[i], v);
                }
            }
        }
    }

    const kernel_row& row;
    one_lane one;
    const extended_reference* reference; // null: MPFR alone
    std::vector<int> of_interest;        // results whose errors are told

private:
    lane_caller wide;
    std::vector<words> arguments, results;
    truth exact;
};

} // namespace orvane
