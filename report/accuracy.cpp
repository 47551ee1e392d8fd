#include "accuracy.h"

#include "tools/estimates.h"

#include <algorithm>
#include <functional>
#include <map>
#include <random>

namespace orvane::report {

std::vector<int> edges_of(lane_type t, bool of_plane) {
    if (!is_floating(t)) {
        std::vector<int> edges;
        const int bits = 8 * size_of(t) - (t == lane_type::i32 || t == lane_type::i64);
        for (int e = 0; e <= bits; e += of_plane && e >= 8 ? 4 : 1)
            edges.push_back(e);
        if (edges.back() != bits) edges.push_back(bits);
        return edges;
    }
    const bool single = t == lane_type::f32;
    std::vector<int> edges = {single ? -149 : -1074, single ? -126 : -1022};
    std::vector<int> inner;
    if (of_plane) inner = {1, 2, 4, 6, 8, 12, 16, 24, 32, 64, 128, 512};
    else {
        for (int e = 1; e < 32; e++)
            inner.push_back(e);
        for (int e = 32; e < 1022; e += single ? 4 : 33)
            inner.push_back(e);
    }
    std::erase_if(inner, [&](int e) { return e >= (single ? 126 : 1022); });
    for (size_t i = inner.size(); i-- > 0;)
        edges.push_back(-inner[i]);
    edges.push_back(0);
    edges.insert(edges.end(), inner.begin(), inner.end());
    edges.push_back(single ? 128 : 1024);
    return edges;
}

namespace {

constexpr int linear_bins = 96;

// Errors of one bin and path: the largest with its argument, and a histogram of 16 parts per octave for the median.
struct tally {
    static constexpr int octaves = 72, parts = 16, lowest = -60;
    double largest = -1;
    subject::lane at{};
    uint64_t count = 0;
    std::vector<uint32_t> below = std::vector<uint32_t>(octaves * parts + 1);

    void add(double e, const subject::lane& x) {
        if (e > largest) largest = e, at = x;
        count++;
        below[e > 0 ? 1 + std::clamp(int((std::log2(e) - lowest) * parts), 0, octaves * parts - 1) : 0]++;
    }
    double median() const {
        uint64_t seen = 0;
        for (size_t i = 0; i < below.size(); i++)
            if (2 * (seen += below[i]) >= count)
                return i ? std::min(largest, std::exp2((double(i) - 0.5) / parts + lowest)) : 0;
        return 0;
    }
};

double rounded(double x) {
    char s[32];
    snprintf(s, sizeof s, "%.4g", x);
    return strtod(s, nullptr);
}
std::string digits(lane_type t, uint64_t bits) {
    char s[20];
    snprintf(s, sizeof s, "%0*llX", 2 * size_of(t), (unsigned long long)bits);
    return s;
}

// The pattern of 2^e, or that of the smallest magnitude above what a type has.
uint64_t pattern_of(lane_type t, int e) {
    if (!is_floating(t)) return e >= 64 ? ~uint64_t(0) : (uint64_t(1) << e);
    const bool single = t == lane_type::f32;
    const int mantissa = single ? 23 : 52, bias = single ? 127 : 1023;
    if (e <= -bias) return uint64_t(1) << std::max(0, e + bias - 1 + mantissa);
    return uint64_t(e + bias) << mantissa;
}
uint64_t negative(lane_type t, uint64_t magnitude) {
    if (is_floating(t)) return magnitude | uint64_t(1) << (8 * size_of(t) - 1);
    return size_of(t) == 4 ? uint32_t(-magnitude) : -magnitude;
}
bool is_signed(lane_type t) { return t != lane_type::u32 && t != lane_type::u64; }

class measurement {
public:
    measurement(const kernel_row& row, const library& in, const effort& e, const std::function<bool()>& stopped)
        : row(row), s(row, in), how(e), stopped(stopped), measure(measure_of(row, lane_path::vector)) {
        if (!s.reference) how.samples = std::max(4, how.samples / 8);
        if (row.arguments() == 3) how.samples *= 8;
    }

    json run(const std::vector<worst_case>& cases) {
        json j{{"measure", to_string(measure)}};
        if (row.arguments() == 1) by_exponent(j), by_value(j);
        else if (row.arguments() == 2) by_plane(j);
        else anywhere();
        if (stopped()) return nullptr;
        j["lanes"] = lanes;
        j["largest"] = json::object();
        for (auto& [path, candidates] : top)
            if (json d = decided(path, candidates); !d.is_null()) j["largest"][std::string(to_string(path))] = d;
        j["known"] = json::array();
        for (const auto& w : cases)
            if (w.row == &row) {
                subject::lane x{};
                std::copy(w.arguments.begin(), w.arguments.end(), x.begin());
                j["known"].push_back({{"path", to_string(w.path)},
                                      {"arguments", words_of(x)},
                                      {"error", w.error},
                                      {"measure", to_string(w.measure)},
                                      {"any_processor", w.estimates == 0},
                                      {"here", rounded(s.decided(x, w.measure))}});
            }
        j["digest"] = digest();
        j["estimates"] = s.one.is_fed_by_estimates();
        return j;
    }

private:
    using bin = std::map<lane_path, tally>;
    struct candidate {
        double error;
        subject::lane x;
    };

    const kernel_row& row;
    subject s;
    effort how;
    const std::function<bool()>& stopped;
    const error_measure measure;
    std::mt19937_64 random{1};
    uint64_t lanes = 0;
    std::map<lane_path, std::vector<candidate>> top;

    // `count` lanes that `draw` gives.
    template <class Draw> bin of(uint64_t count, bool all, Draw draw) {
        bin b;
        subject::lane x[subject::width];
        double error[subject::width];
        for (uint64_t first = 0; first < count; first += subject::width) {
            if (first % (1 << 16) == 0 && stopped()) return {};
            const int n = std::min<uint64_t>(subject::width, count - first);
            for (int i = 0; i < n; i++)
                x[i] = draw();
            std::fill(x + n, x + subject::width, x[0]);
            s.errors(x, measure, error);
            for (int i = 0; i < n; i++) {
                // Over all floats the path is asked for only where an error is the largest so far, and at samples.
                if (all && first % 4096 && !b.empty() && error[i] <= least_of(b)) continue;
                b[s.path_of(x[i])].add(error[i], x[i]);
            }
            lanes += n;
        }
        for (auto& [path, t] : b) {
            auto& c = top[path];
            c.push_back({t.largest, t.at});
            std::sort(c.begin(), c.end(), [](auto& a, auto& b) { return a.error > b.error; });
            if (c.size() > size_t(how.decided)) c.pop_back();
        }
        return b;
    }
    static double least_of(const bin& b) {
        double least = HUGE_VAL;
        for (auto& [path, t] : b)
            least = std::min(least, t.largest);
        return least;
    }

    uint64_t between(uint64_t lo, uint64_t hi) { return lo + (hi > lo ? random() % (hi - lo) : 0); }
    // A magnitude of a bin; in the two beside 1, where powers and logarithms are steep, half of them are close to it.
    uint64_t magnitude(lane_type t, uint64_t lo, uint64_t hi) {
        const uint64_t one = pattern_of(t, 0);
        if (!is_floating(t) || (lo != one && hi != one) || random() % 2) return between(lo, hi);
        const uint64_t far = random() % (hi - lo) >> random() % (t == lane_type::f32 ? 23 : 52);
        return lo == one ? lo + far : hi - 1 - far;
    }
    double uniform(double lo, double hi) { return lo + (hi - lo) * (double(random() >> 11) * 0x1p-53); }

    void by_exponent(json& j) {
        const lane_type t = row.in;
        const auto edges = edges_of(t, false);
        const bool all = how.every && t == lane_type::f32 && s.reference;
        j["exponents"] = json::array();
        for (int sign = is_signed(t) ? 1 : 0; sign >= 0; sign--)
            for (size_t k = 0; k + 1 < edges.size(); k++) {
                const uint64_t lo = pattern_of(t, edges[k]), hi = pattern_of(t, edges[k + 1]);
                uint64_t next = lo;
                const bin b = of(all ? hi - lo : how.samples, all, [&]() -> subject::lane {
                    const uint64_t x = all ? next++ : magnitude(t, lo, hi);
                    return {sign ? negative(t, x) : x};
                });
                for (const auto& [path, tallied] : b)
                    if (tallied.largest > 0)
                        j["exponents"].push_back({sign ? -1 - int(k) : int(k), int(path), rounded(tallied.largest),
                                                  rounded(tallied.median()), digits(t, tallied.at[0])});
            }
    }

    void by_value(json& j) {
        const double from = row.range[0], to = row.range[1];
        j["range"] = {from, to};
        j["linear"] = json::array();
        for (int k = 0; k < linear_bins; k++) {
            const double lo = from + (to - from) * k / linear_bins, hi = from + (to - from) * (k + 1) / linear_bins;
            const bin b =
                of(how.samples, false, [&]() -> subject::lane { return {word_of(row.in, uniform(lo, hi))}; });
            for (const auto& [path, tallied] : b)
                if (tallied.largest > 0)
                    j["linear"].push_back({k, int(path), rounded(tallied.largest), rounded(tallied.median()),
                                           digits(row.in, tallied.at[0])});
        }
    }

    void by_plane(json& j) {
        const lane_type t[2] = {row.argument(0), row.argument(1)};
        const std::vector<int> edges[2] = {edges_of(t[0], true), edges_of(t[1], true)};
        j["plane"] = json::array();
        for (size_t k = 0; k + 1 < edges[0].size(); k++)
            for (size_t l = 0; l + 1 < edges[1].size(); l++) {
                const size_t at[2] = {k, l};
                const bin b = of(std::max(8, how.samples / 4), false, [&] {
                    subject::lane x{};
                    for (int i = 0; i < 2; i++) {
                        x[i] =
                            magnitude(t[i], pattern_of(t[i], edges[i][at[i]]), pattern_of(t[i], edges[i][at[i] + 1]));
                        if (is_signed(t[i]) && random() % 2) x[i] = negative(t[i], x[i]);
                    }
                    return x;
                });
                const tally* worst = nullptr;
                for (const auto& [path, tallied] : b)
                    if (!worst || worst->largest < tallied.largest) worst = &tallied;
                if (worst && worst->largest > 0)
                    j["plane"].push_back({k, l, rounded(worst->largest), rounded(worst->median()),
                                          digits(t[0], worst->at[0]), digits(t[1], worst->at[1])});
            }
    }

    // Three arguments: of like size, so that sums cancel.
    void anywhere() {
        of(uint64_t(how.samples) * 32, false, [&] {
            subject::lane x{};
            for (int i = 0; i < row.arguments(); i++)
                x[i] = word_of(row.argument(i), std::ldexp(uniform(-2, 2), int(random() % 40) - 20));
            return x;
        });
    }

    std::vector<std::string> words_of(const subject::lane& x) const {
        std::vector<std::string> s;
        for (int j = 0; j < row.arguments(); j++)
            s.push_back(digits(row.argument(j), x[j]));
        return s;
    }

    json decided(lane_path path, const std::vector<candidate>& candidates) {
        const error_measure m = measure_of(row, path);
        candidate worst{-1, {}};
        for (const auto& c : candidates) {
            double e = s.decided(c.x, m);
            if (!std::isfinite(e) || e < 0) e = c.error; // an integer result, or none to tell
            if (e > worst.error) worst = {e, c.x};
        }
        if (worst.error < 0) return nullptr;
        return {{"error", rounded(worst.error)}, {"measure", to_string(m)}, {"arguments", words_of(worst.x)}};
    }

    // Over arguments of all magnitudes, the same for quick, full and exhaustive reports.
    std::string digest() {
        std::mt19937_64 r(2026);
        uint64_t d = 0;
        for (int i = 0; i < 256; i++) {
            subject::lane x[subject::width] = {};
            for (auto& lane : x)
                for (int j = 0; j < row.arguments(); j++) {
                    const lane_type t = row.argument(j);
                    if (i % 2) lane[j] = size_of(t) == 4 ? r() >> 32 : r();
                    else {
                        const double part = double(r() >> 11) * 0x1p-53;
                        lane[j] =
                            word_of(t, row.range[j ? 2 : 0] + (row.range[j ? 3 : 1] - row.range[j ? 2 : 0]) * part);
                    }
                }
            for (const auto& result : s(x))
                for (uint64_t w : result)
                    d = mixed(d, w);
        }
        return digits(lane_type::u64, d);
    }
};

} // namespace

json accuracy_of(const kernel_row& kernel, const library& in, const std::vector<worst_case>& cases, const effort& e,
                 const std::function<bool()>& stopped) {
    return measurement(kernel, in, e, stopped).run(cases);
}

} // namespace orvane::report
