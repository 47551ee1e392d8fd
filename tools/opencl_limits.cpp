#include "opencl_limits.h"

#include <cmath>
#include <map>

namespace orvane {

namespace {

// The full profile, float and double; the tables differ for divisions and the square root.
const std::map<std::string_view, double> full_profile = {
    {"acos", 4},     {"acosh", 4},   {"acospi", 5}, {"asin", 4},   {"asinh", 4}, {"asinpi", 5}, {"atan", 5},
    {"atan2", 6},    {"atan2pi", 6}, {"atanh", 5},  {"atanpi", 5}, {"cbrt", 2},  {"cos", 4},    {"cosh", 4},
    {"cospi", 4},    {"div", 2.5},   {"erf", 16},   {"erfc", 16},  {"exp", 3},   {"exp10", 3},  {"exp2", 3},
    {"expm1", 3},    {"hypot", 4},   {"inv", 2.5},  {"log", 3},    {"log10", 3}, {"log1p", 2},  {"log2", 3},
    {"pow", 16},     {"pown", 16},   {"powr", 16},  {"rootn", 16}, {"rsqrt", 2}, {"sin", 4},    {"sincos", 4},
    {"sinh", 4},     {"sinpi", 4},   {"sqrt", 3},   {"tan", 5},    {"tanh", 5},  {"tanpi", 6},  {"tgamma", 16},
    {"sincosreg", 4}};

// Functions of float under -cl-fast-relaxed-math.
const std::map<std::string_view, error_limit> relaxed = {
    {"cos", {0, 0x1p-11, limit_condition::half_circle}},
    {"div", {2.5, 0, limit_condition::normal_reciprocal}},
    {"exp", {3, 0, limit_condition::grows}},
    {"exp10", {8192, 0}},
    {"exp2", {3, 0, limit_condition::grows}},
    {"inv", {2.5, 0, limit_condition::normal_reciprocal}},
    {"log", {3, 0, limit_condition::outside_half_to_2}},
    {"log2", {3, 0, limit_condition::outside_half_to_2}},
    {"pow", {8192, 0}},
    {"sin", {0, 0x1p-11, limit_condition::half_circle}},
    {"sincos", {0, 0x1p-11, limit_condition::half_circle}},
    {"tan", {8192, 0}},
};

} // namespace

bool error_limit::allows(double x, double ulps, double absolutely) const {
    const double size = std::fabs(x);
    switch (condition) {
    case limit_condition::normal_reciprocal:
        return size < 0x1p-126 || size > 0x1p126 || ulps <= ulp;
    case limit_condition::grows:
        return ulps <= ulp + std::floor(2 * size);
    case limit_condition::outside_half_to_2:
        return x >= 0.5 && x <= 2 ? absolutely <= 0x1p-21 : ulps <= ulp;
    case limit_condition::half_circle:
        return size > M_PI || absolutely <= absolute;
    case limit_condition::none:
        break;
    }
    return absolute ? absolutely <= absolute : ulps <= ulp;
}

std::string_view error_limit::where() const {
    switch (condition) {
    case limit_condition::normal_reciprocal:
        return "for magnitudes from 2^-126 to 2^126";
    case limit_condition::grows:
        return "and floor(|2 x|) more";
    case limit_condition::outside_half_to_2:
        return "outside [0.5, 2], 2^-21 absolute inside";
    case limit_condition::half_circle:
        return "on [-pi, pi]";
    case limit_condition::none:
        break;
    }
    return "";
}

std::string error_limit::text() const {
    char s[32];
    if (absolute) snprintf(s, sizeof s, "2^%g absolute", std::log2(absolute));
    else snprintf(s, sizeof s, "%g ulp", ulp);
    return s + std::string(where().empty() ? "" : " ") + std::string(where());
}

std::optional<error_limit> limit_of(const kernel_row& row) {
    const std::string base = row.base();
    const auto at = full_profile.find(base);
    if (at == full_profile.end()) return {};
    if (row.tier == "default") {
        const bool is_double = row.in == lane_type::f64;
        const bool is_rounded = is_double && (base == "div" || base == "inv" || base == "sqrt");
        return error_limit{is_rounded ? 0.5 : at->second, 0};
    }
    if (row.in != lane_type::f32) return {};
    if (row.tier == "half" && !row.builtin.empty()) return error_limit{8192, 0};
    if (row.tier == "rm")
        if (const auto r = relaxed.find(base); r != relaxed.end()) return r->second;
    return {};
}

} // namespace orvane
