// The table that a run ends with, and the reporter of Google Benchmark that gathers its figures.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace orvane::bench {

// Names of benchmarks: FAMILY/TIER/WIDTH/SET for an export, FAMILY/PEER/SET for a peer. Huge arguments are those that
// the circular functions reduce by many bits of 1 / pi.
enum lane_set { ordinary, special, huge };
inline const char* const lane_set_names[] = {"ordinary", "special", "huge"};

struct table_row {
    std::string family, tiers;
    int width;
    double error; // in ulp; negative: not measured
    std::string sleef_name;
    lane_set set; // ordinary, with special lanes beside them, or huge
    // Names of benchmarks without the set; empty where there is no such peer.
    std::string ours, sleef, scalar;
};

class gathering_reporter : public benchmark::BenchmarkReporter {
public:
    explicit gathering_reporter(size_t expected) : expected(expected) {}
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>&) override;
    // The median time a lane of a benchmark, in nanoseconds; negative if it did not run.
    double nanoseconds(const std::string& benchmark_name) const;

private:
    size_t expected;
    std::map<std::string, double> medians;
};

void print_table(const std::vector<table_row>&, const gathering_reporter&);

// The same figures for programs: an object with `processor` and `rows`, one row for each line of the table that was
// measured: `family`, `tiers` (an array), `set`, `width`, `ns` (nanoseconds a lane), and where there is such a peer
// `peer` (its name) with `peer_ns`, and `libm_ns`.
std::string as_json(const std::vector<table_row>&, const gathering_reporter&, const std::string& processor);

} // namespace orvane::bench
