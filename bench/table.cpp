#include "bench/table.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <sstream>
#include <unistd.h>

namespace orvane::bench {

void gathering_reporter::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& r : runs) {
        const bool is_median = r.run_type == Run::RT_Aggregate && r.aggregate_name == "median";
        const bool is_only_run = r.run_type == Run::RT_Iteration && r.repetitions <= 1;
        if (is_median || is_only_run) medians[r.run_name.function_name] = 1e9 * r.counters.at("lane").value;
    }
    if (isatty(STDERR_FILENO)) fprintf(stderr, "\r%zu of %zu measured ", medians.size(), expected);
}

double gathering_reporter::nanoseconds(const std::string& name) const {
    const auto at = medians.find(name);
    return at == medians.end() ? -1 : at->second;
}

namespace {
std::string formatted(const char* format, double x) {
    char s[32];
    snprintf(s, sizeof s, format, x);
    return s;
}
} // namespace

void print_table(const std::vector<table_row>& rows, const gathering_reporter& measured) {
    auto text = [](const char* format, double x, const std::string& suffix = "") {
        return x < 0 ? "-" : formatted(format, x) + suffix;
    };

    std::vector<std::vector<std::string>> cells = {{"family", "tier", "width", "ulp", "ns/lane", "vector peer",
                                                    "ratio", "libm", "ratio", "1 special in 64", "vector peer",
                                                    "ratio", "libm", "ratio"},
                                                   {}};
    for (const table_row& r : rows) {
        std::vector<std::string> line = {r.family, r.tiers, std::to_string(r.width),
                                         text(r.error < 100 ? "%.2f" : "%.3g", r.error)};
        bool any = false;
        for (const lane_set& set : {r.set, special}) {
            auto of = [&](const std::string& name) {
                const bool has_set = r.set == ordinary || set == r.set;
                return has_set ? measured.nanoseconds(name + '/' + set.name) : -1;
            };
            const double ours = of(r.ours), sleef = of(r.sleef), scalar = of(r.scalar);
            any |= ours >= 0; // not picked by a filter otherwise
            auto ratio = [&](double peer) { return text("%.2f", ours > 0 && peer > 0 ? peer / ours : -1); };
            line.insert(line.end(),
                        {text("%.3f", ours), text("%.3f", sleef, r.sleef_name.empty() ? "" : ' ' + r.sleef_name),
                         ratio(sleef), text("%.3f", scalar), ratio(scalar)});
        }
        if (any) cells.push_back(std::move(line));
    }
    if (cells.size() == 2) return;

    std::vector<size_t> widths;
    for (const auto& line : cells)
        for (size_t j = 0; j < line.size(); j++) {
            widths.resize(std::max(widths.size(), j + 1));
            widths[j] = std::max(widths[j], line[j].size());
        }
    for (const auto& line : cells) {
        for (size_t j = 0; j < widths.size(); j++) {
            if (line.empty()) printf("|%s%c", std::string(widths[j] + 1, '-').c_str(), j < 2 ? '-' : ':');
            else printf(j < 2 ? "| %-*s " : "| %*s ", (int)widths[j], line[j].c_str());
        }
        puts("|");
    }
}

namespace {
// "default = rm, huge" has two tiers.
std::vector<std::string> tiers_of(const table_row& r) {
    std::istringstream words(r.tiers.substr(0, r.tiers.find(',')));
    std::vector<std::string> tiers;
    for (std::string word; words >> word;)
        if (word != "=") tiers.push_back(word);
    return tiers;
}
} // namespace

std::string as_json(const std::vector<table_row>& rows, const gathering_reporter& measured,
                    const std::string& processor) {
    using json = nlohmann::ordered_json;
    json all = json::array();
    for (const table_row& r : rows)
        for (const lane_set& set : {r.set, special}) {
            if (r.set != ordinary && set != r.set) continue;
            auto of = [&](const std::string& name) { return measured.nanoseconds(name + '/' + set.name); };
            auto rounded = [](double ns) { return std::round(ns * 1000) / 1000; };
            if (of(r.ours) < 0) continue;
            json row{{"family", r.family},
                     {"tiers", tiers_of(r)},
                     {"set", set.name},
                     {"width", r.width},
                     {"ns", rounded(of(r.ours))}};
            if (!r.sleef.empty()) {
                row["peer"] = r.sleef_name.empty() ? "SLEEF" : r.sleef_name;
                row["peer_ns"] = rounded(of(r.sleef));
            }
            if (!r.scalar.empty()) row["libm_ns"] = rounded(of(r.scalar));
            if (set == r.set) {
                const std::tuple<const char*, const std::string&, double> functions[] = {
                    {"", r.ours, r.error}, {"peer_", r.sleef, r.peer_error}, {"libm_", r.scalar, r.libm_error}};
                for (const auto& [who, name, error] : functions) {
                    if (error >= 0 && !name.empty() && std::isfinite(error))
                        row[std::string(who) + "error"] = std::stod(formatted("%.4g", error));
                    const double wait = set == ordinary ? measured.nanoseconds(name + '/' + latency.name) : -1;
                    if (wait >= 0) row[std::string(who) + "latency_ns"] = rounded(wait);
                }
            }
            all.push_back(row);
        }
    std::string text = "{\"processor\":" + json(processor).dump() + ",\"rows\":[\n";
    for (const json& row : all)
        text += row.dump() + (&row == &all.back() ? "\n" : ",\n");
    return text + "]}\n";
}

} // namespace orvane::bench
