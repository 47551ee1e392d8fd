// Writes the tables of README.md, docs/accuracy.md and docs/speed.md from what was measured: data/worst_cases.txt,
// which orvane-search writes, data/speed.json, data/loops.json and data/opencl.json, which orvane-bench,
// orvane-bench-loops and orvane-cl-examples write with --json. A table stands between two comments,
// <!-- begin: NAME --> and <!-- end -->; the text around it is left alone.
//
//     write-docs [--check] FOLDER     FOLDER: the project's root; --check: only compares, and fails on a difference
//     write-docs FOLDER REPORT        takes data/speed.json from a report first, its page or its data
#include "opencl_limits.h"
#include "report_data.h"
#include "whole_file.h"
#include "worst_cases.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <map>
#include <nlohmann/json.hpp>
#include <set>

using namespace orvane;
using json = nlohmann::json;
namespace fs = std::filesystem;

namespace {

std::string formatted(const char* format, auto... x) {
    char s[200];
    snprintf(s, sizeof s, format, x...);
    return s;
}

std::string error_text(const worst_case& w) {
    switch (w.measure) {
    case error_measure::ulp:
        return formatted(w.error < 10 ? "%.3f" : "%.3g", w.error);
    case error_measure::relative:
        return formatted("2^%.1f relative", std::log2(w.error));
    case error_measure::absolute:
        return formatted("%.2e absolute", w.error);
    }
    return "";
}

// The kernel that a pair runs, and the tiers of its family that run it too: "default = rm".
const kernel_row& kernel_of(const kernel_row& row) {
    return row.twin_name.empty() ? row : *find_row(library_rows(), row.twin_name, row.twin_tier);
}
std::string tiers_of(const kernel_row& kernel, std::string_view family) {
    std::string s;
    for (const auto& r : library_rows())
        if (r.name == family && &kernel_of(r) == &kernel) s += (s.empty() ? "" : " = ") + std::string(r.tier);
    return s;
}
std::string limits_of(const kernel_row& kernel, std::string_view family) {
    std::string s;
    for (const auto& r : library_rows())
        if (r.name == family && &kernel_of(r) == &kernel)
            if (const auto l = limit_of(r); l && s.find(l->text()) == s.npos)
                s += (s.empty() ? "" : "; ") + l->text();
    return s;
}

using cases_of_kernel = std::map<std::pair<const kernel_row*, lane_path>, worst_case>;
cases_of_kernel worst_by_kernel(const std::vector<worst_case>& cases) {
    cases_of_kernel worst;
    for (const auto& w : cases) {
        const auto [at, first] = worst.try_emplace({w.row, w.path}, w);
        if (!first && at->second.error < w.error) at->second = w;
    }
    return worst;
}

// One row for each kernel and each family that it serves.
std::string accuracy_table(const std::vector<worst_case>& cases) {
    const auto worst = worst_by_kernel(cases);
    std::string s =
        "| family | tier | OpenCL C's limit | formula | large arguments | slow path | argument of the first |\n"
        "|---|---|---|---|---|---|---|\n";
    std::set<std::string> listed;
    for (const auto& row : library_rows()) {
        const kernel_row& kernel = kernel_of(row);
        if (!listed.insert(std::string(row.name) + " " + tiers_of(kernel, row.name)).second) continue;
        std::string cell[3], where;
        bool any = false;
        for (lane_path p : {lane_path::vector, lane_path::large, lane_path::slow}) {
            const auto at = worst.find({&kernel, p});
            if (at == worst.end()) continue;
            any = true;
            cell[int(p)] = error_text(at->second);
            if (!where.empty()) continue;
            for (size_t j = 0; j < at->second.arguments.size(); j++)
                where += formatted("%s0x%0*llX", j ? ", " : "", 2 * size_of(row.argument(j)),
                                   (unsigned long long)at->second.arguments[j]);
        }
        if (!any) continue;
        s += "| `" + std::string(row.name) + "` | " + tiers_of(kernel, row.name) + " | " +
             limits_of(kernel, row.name) + " | " + cell[0] + " | " + cell[1] + " | " + cell[2] + " | " + where +
             " |\n";
    }
    return s;
}

// Figures of one line of the benchmark's table at the widths that were measured.
struct speed_line {
    std::string family, set, peer;
    std::vector<std::string> tiers;
    std::map<int, json> at;
};
std::vector<speed_line> speed_lines(const json& speed) {
    std::vector<speed_line> lines;
    for (const json& r : speed["rows"]) {
        const auto same = [&](const speed_line& l) {
            return l.family == r["family"] && l.tiers == r["tiers"] && l.set == r["set"];
        };
        auto line = std::find_if(lines.begin(), lines.end(), same);
        if (line == lines.end())
            line = lines.insert(line, {r["family"], r["set"], r.value("peer", ""), r["tiers"], {}});
        line->at[r["width"]] = r;
    }
    return lines;
}
std::string nanoseconds(const json& r) { return formatted("%.3f", r["ns"].get<double>()); }
std::string ratio(const json& r, const char* peer) {
    return r.contains(peer) ? formatted("%.2f", r[peer].get<double>() / r["ns"].get<double>()) : "";
}
std::string at_all_widths(const speed_line& l, auto figure) {
    std::string s;
    for (const auto& [width, r] : l.at) {
        const std::string word = figure(r);
        if (!word.empty()) s += (s.empty() ? "" : ", ") + word;
    }
    return s;
}
std::string joined(const std::vector<std::string>& tiers) {
    std::string s;
    for (const auto& t : tiers)
        s += (s.empty() ? "" : " = ") + t;
    return s;
}

// The part of a report that data/speed.json is: vectors that fill registers, without special lanes.
std::string speed_of_report(const fs::path& report) {
    const json data = report_data(report);
    if (!data.value("complete", false))
        throw std::runtime_error("'" + report.string() + "' is of an interrupted run");
    std::string rows;
    for (const auto& r : data["speed"]) {
        if (r["set"] == "special" || r["width"] < 4) continue;
        nlohmann::ordered_json row;
        for (auto key : {"family", "tiers", "set", "width", "ns", "peer", "peer_ns", "libm_ns"})
            if (r.contains(key)) row[key] = r[key];
        rows += (rows.empty() ? "" : ",\n") + row.dump();
    }
    return "{\"processor\":" + data["processor"].dump() + ",\"rows\":[\n" + rows + "\n]}\n";
}

std::string speed_table(const json& speed) {
    const auto lines = speed_lines(speed);
    const std::string widths =
        at_all_widths(lines.at(0), [](const json& r) { return std::to_string(int(r["width"])); });
    std::string s = "| family | tier | ns per lane at " + widths +
                    " | times the vector peer | times libm |\n|---|---|---|---|---|\n";
    for (const auto& l : lines) {
        const std::string vector = at_all_widths(l, [](const json& r) { return ratio(r, "peer_ns"); });
        s += "| `" + l.family + "` | " + joined(l.tiers) + (l.set == "ordinary" ? "" : ", " + l.set) + " | " +
             at_all_widths(l, nanoseconds) + " | " + vector + (vector.empty() ? "" : " (" + l.peer + ")") + " | " +
             at_all_widths(l, [](const json& r) { return ratio(r, "libm_ns"); }) + " |\n";
    }
    return s;
}

// Loops that a compiler vectorized, from orvane-bench-loops --json.
std::string loops_table(const json& loops) {
    std::string s =
        "| loop | ns, in cache | SLEEF | scalar | ns, 64 MB | SLEEF | scalar |\n|---|---|---|---|---|---|---|\n";
    for (const json& r : loops) {
        s += "| `" + r["name"].get<std::string>() + "` |";
        for (const char* place : {"cache", "memory"})
            s += " " + nanoseconds(r[place]) + " | " + ratio(r[place], "sleef_ns") + " | " +
                 ratio(r[place], "scalar_ns") + " |";
        s += "\n";
    }
    return s;
}

// OpenCL kernels, from orvane-cl-examples --json.
std::string opencl_table(const json& examples) {
    std::string s = "| example | ns | plain PoCL | scalar libm | two threads |\n|---|---|---|---|---|\n";
    for (const json& r : examples)
        s += "| `" + r["name"].get<std::string>() + "` | " + formatted("%.2f", r["ns"].get<double>()) + " | " +
             ratio(r, "plain_ns") + " | " + ratio(r, "libm_ns") + " | " +
             (r.contains("two_threads_ns")
                  ? formatted("%.2f", r["ns"].get<double>() / r["two_threads_ns"].get<double>())
                  : "") +
             " |\n";
    return s;
}

// A few pairs at 8 lanes, with error and speed in one row.
std::string sample_table(const std::vector<worst_case>& cases, const json& speed) {
    const auto worst = worst_by_kernel(cases);
    const auto lines = speed_lines(speed);
    std::string s =
        "| the case | export | largest known error | OpenCL C's limit | ns per lane | times SLEEF | times libm |\n"
        "|---|---|---|---|---|---|---|\n";
    for (const auto& [name, tier] : std::vector<std::pair<std::string, std::string>>{{"expf", "default"},
                                                                                     {"expf", "native"},
                                                                                     {"sinf", "default"},
                                                                                     {"sinf", "rm"},
                                                                                     {"powf", "default"},
                                                                                     {"powf", "rm"},
                                                                                     {"exp", "default"},
                                                                                     {"log", "default"},
                                                                                     {"pow", "default"},
                                                                                     {"tanh", "default"}}) {
        const kernel_row& row = *find_row(library_rows(), name, tier);
        const auto line = std::find_if(lines.begin(), lines.end(), [&](const speed_line& l) {
            return l.family == name && l.set == "ordinary" &&
                   std::find(l.tiers.begin(), l.tiers.end(), tier) != l.tiers.end();
        });
        const auto error = worst.find({&kernel_of(row), lane_path::vector});
        if (line == lines.end() || error == worst.end() || !line->at.contains(8))
            throw std::runtime_error("no figures for " + name + " " + tier + ": measure them");
        const json& r = line->at.at(8);
        const auto limit = limit_of(row);
        const std::string unit = error->second.measure == error_measure::ulp ? " ulp" : "";
        s += "| `" + row.served_builtin(8) + "`" + (row.is_relaxed() ? ", relaxed math" : "") + " | `" +
             plan_of(row, 8).symbol.substr(12) + "` | " + error_text(error->second) + unit + " | " +
             (limit ? limit->text() : "none") + " | " + nanoseconds(r) + " | " + ratio(r, "peer_ns") + " | " +
             ratio(r, "libm_ns") + " |\n";
    }
    return s;
}

// `text` with what stands between the marks of `name` replaced.
std::string with_table(const std::string& text, const std::string& name, const std::string& table) {
    const std::string begin = "<!-- begin: " + name + " -->\n", end = "<!-- end -->";
    const size_t from = text.find(begin), to = from == text.npos ? from : text.find(end, from);
    if (to == text.npos) throw std::runtime_error("there is no place for the table '" + name + "'");
    return text.substr(0, from + begin.size()) + table + text.substr(to);
}

} // namespace

int main(int argc, char** argv) {
    std::vector<std::string> args(argv + 1, argv + argc);
    const bool check = !args.empty() && args[0] == "--check";
    if (check) args.erase(args.begin());
    if (args.empty() || args.size() > (check ? 1 : 2) || !fs::exists(fs::path(args[0]) / "data/worst_cases.txt")) {
        std::cerr << "write-docs: usage: write-docs [--check] FOLDER [REPORT], the project's root with "
                     "data/worst_cases.txt\n";
        return 2;
    }
    try {
        const fs::path root = args[0];
        const auto cases = read_worst_cases(root / "data/worst_cases.txt");
        if (args.size() == 2) write_whole(root / "data/speed.json", speed_of_report(args[1]));
        const json speed = json::parse(contents_of(root / "data/speed.json"));
        const std::tuple<const char*, const char*, std::string> tables[] = {
            {"README.md", "sample of accuracy and speed", sample_table(cases, speed)},
            {"docs/accuracy.md", "largest known errors", accuracy_table(cases)},
            {"docs/speed.md", "time per lane", speed_table(speed)},
            {"docs/speed.md", "loops", loops_table(json::parse(contents_of(root / "data/loops.json")))},
            {"docs/speed.md", "OpenCL kernels", opencl_table(json::parse(contents_of(root / "data/opencl.json")))}};
        int wrong = 0;
        for (const auto& [file, name, table] : tables) {
            const std::string now = contents_of(root / file), written = with_table(now, name, table);
            if (!check) write_whole(root / file, written);
            else if (now != written) wrong++, std::cout << file << " is out of date: build the target `written`\n";
        }
        return wrong ? 1 : 0;
    } catch (const std::exception& e) {
        std::cerr << "write-docs: " << e.what() << '\n';
        return 1;
    }
}
