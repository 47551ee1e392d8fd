// What fast tiers give for special arguments: where that is not what the default tier gives, tools/special_values.h
// says so, and with it orvane.h and exports.json; here it is searched.
#include "support.h"
#include "tools/special_values.h"

#include <cmath>
#include <map>
#include <set>

using namespace orvane;

namespace {

std::string kind_of(lane_type t, uint64_t word) {
    if (!is_floating(t)) return "integers";
    const double x = value_of(t, word);
    const std::string sign = std::signbit(x) ? "-" : "+", side = std::signbit(x) ? "negative" : "positive";
    if (std::isnan(x)) return "NaN";
    if (std::isinf(x)) return sign + "Inf";
    if (x == 0) return sign + "0";
    return side + (std::abs(x) < (t == lane_type::f64 ? 0x1p-1022 : 0x1p-126) ? " subnormal numbers" : " numbers");
}

// Whether a fast tier's result stands for the default tier's: of one kind, or apart by no more than a tier's error,
// which is far below 1 in 100 or a unit of the subnormal range; the next number after the largest one is an infinity.
bool same(lane_type t, uint64_t fast, uint64_t precise) {
    double a = value_of(t, fast), b = value_of(t, precise);
    if (std::isnan(a) || std::isnan(b)) return std::isnan(a) && std::isnan(b);
    if (!is_floating(t) || a == b) return a == b && std::signbit(a) == std::signbit(b);
    if (std::signbit(a) != std::signbit(b)) return false;
    const double beyond = t == lane_type::f64 ? 0x1.fffffffffffffp1023 : 0x1p128;
    a = std::clamp(a, -beyond, beyond), b = std::clamp(b, -beyond, beyond);
    return std::abs(a - b) <= std::max(0.01 * std::abs(b), t == lane_type::f64 ? 0x1p-1074 : 0x1p-149);
}

// Special and edge values of a type, of either sign.
words edges(lane_type t) {
    if (!is_floating(t)) return {0, 1, 2, 3, 0xFFFFFFFF, 0xFFFFFFFE, 0xFFFFFFFD, 0x7FFFFFFF, 0x80000000};
    const bool wide = t == lane_type::f64;
    const double smallest = wide ? 0x1p-1022 : 0x1p-126, unit = wide ? 0x1p-1074 : 0x1p-149;
    const double largest = wide ? 0x1.fffffffffffffp1023 : 0x1.fffffep127;
    words w;
    for (double sign : {1.0, -1.0})
        for (double x : {0.0,
                         unit,
                         3 * unit,
                         smallest / 16,
                         smallest - unit,
                         smallest,
                         smallest * 16,
                         1e-25,
                         0.25,
                         0.5,
                         1 - (wide ? 0x1p-53 : 0x1p-24),
                         1.0,
                         1 + (wide ? 0x1p-52 : 0x1p-23),
                         1.5,
                         2.0,
                         3.0,
                         10.0,
                         38.0,
                         45.0,
                         90.0,
                         104.0,
                         310.0,
                         323.0,
                         710.0,
                         745.0,
                         750.0,
                         1030.0,
                         1074.0,
                         1e5,
                         1e30,
                         largest,
                         (double)INFINITY,
                         (double)NAN})
            w.push_back(word_of(t, sign * x));
    return w;
}

// "NaN of +0, -0; +Inf of positive subnormal numbers": the differences of a tier, by what it gives.
std::string differences(const kernel_row& row) {
    const kernel_row& precise = *find_row(library_rows(), row.name, "default");
    std::vector<words> a(row.arguments());
    const words first = edges(row.argument(0)), second = a.size() > 1 ? edges(row.argument(1)) : words{0};
    for (uint64_t x : first)
        for (uint64_t y : second) {
            a[0].push_back(x);
            if (a.size() > 1) a[1].push_back(y);
            if (a.size() > 2) { // each third argument beside some pairs
                const words third = edges(row.argument(2));
                a[2].push_back(third[a[0].size() * 7 % third.size()]);
            }
        }
    rng r(16);
    const auto any = random_patterns(row, 20000, r);
    for (size_t j = 0; j < a.size(); j++)
        a[j].insert(a[j].end(), any[j].begin(), any[j].end());
    const auto fast = by_single_lanes({&row, &library_under_test()}, a);
    const auto wanted = by_single_lanes({&precise, &library_under_test()}, a);

    // For each result and kinds of arguments: what kinds the tier gives instead, and whether it ever gives the same.
    std::vector<std::string> order; // of kinds, as they are met
    std::map<std::string, std::set<std::string>> instead;
    std::set<std::string> right;
    for (size_t j = 0; j < fast.size(); j++)
        for (size_t i = 0; i < a[0].size(); i++) {
            std::string kinds =
                (j ? "in result " + std::to_string(j + 1) + " " : "") + kind_of(row.argument(0), a[0][i]);
            for (size_t k = 1; k < a.size(); k++)
                kinds += " with " + kind_of(row.argument(k), a[k][i]);
            const lane_type t = row.result(j);
            if (same(t, fast[j][i], wanted[j][i])) right.insert(kinds);
            else if (instead[kinds].insert(kind_of(t, fast[j][i])).second) order.push_back(kinds);
        }
    std::vector<std::pair<std::string, std::string>> groups; // what it gives, of what
    for (const auto& kinds : order) {
        std::string gives;
        for (const auto& k : instead[kinds])
            gives += (gives.empty() ? "" : " or ") + k;
        const std::string of = (right.contains(kinds) ? "some " : "") + kinds;
        auto g = std::find_if(groups.begin(), groups.end(), [&](auto& p) { return p.first == gives; });
        if (g == groups.end()) groups.push_back({gives, of});
        else g->second += ", " + of;
    }
    std::string text;
    for (const auto& [gives, of] : groups)
        text += (text.empty() ? "" : "; ") + gives + " of " + of;
    return text;
}

TEST(FastTiers, GiveForSpecialArgumentsWhatTheDefaultTierGivesUnlessTold) {
    int seen = 0;
    for (const auto& row : library_rows()) {
        if (row.tier == "default") continue;
        seen++;
        EXPECT_EQ(special_values_of(row), differences(row)) << row.name << " " << row.tier;
    }
    EXPECT_GT(seen, 100);
}

} // namespace
