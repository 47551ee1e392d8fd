// The table that a run ends with, and the reporter of Google Benchmark that gathers its figures.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace orvane::bench {

// Names of benchmarks: FAMILY/TIER/WIDTH/SET for an export, FAMILY/PEER/SET for a peer. Ordinary lanes are those of
// the list of exports, special ones have one lane in 64 that goes to a slow path; further sets are ranges of their
// own, such as the huge arguments that circular functions reduce by many bits of 1 / pi.
struct lane_set {
    std::string name;
    double lo = 0, hi = 0; // both 0: the range in the list
    bool by_exponent = false;
    bool operator==(const lane_set& o) const { return name == o.name; }
};
inline const lane_set ordinary{"ordinary"}, special{"special"};
// Ordinary lanes, in calls of which each waits for the one before: nanoseconds per call.
inline const lane_set latency{"latency"};

struct table_row {
    std::string family, tiers;
    int width;
    double error, peer_error, libm_error; // in ulp, over the same arguments; negative: not measured
    std::string sleef_name;
    lane_set set; // ordinary, with special lanes beside them, or a further range
    // Names of benchmarks without the set; empty where there is no such peer.
    std::string ours, sleef, scalar;
};

class gathering_reporter : public benchmark::BenchmarkReporter {
public:
    explicit gathering_reporter(size_t expected) : expected(expected) {}
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>&) override;
    // The median time per lane of a benchmark, in nanoseconds; negative if it did not run.
    double nanoseconds(const std::string& benchmark_name) const;

private:
    size_t expected;
    std::map<std::string, double> medians;
};

void print_table(const std::vector<table_row>&, const gathering_reporter&);

// The same figures for programs: an object with `processor` and `rows`, one row for each line of the table that was
// measured: `family`, `tiers` (an array), `set`, `width`, `ns` (nanoseconds per lane), and where there is such a peer
// `peer` (its name) with `peer_ns`, and `libm_ns`. Where they were measured also `error`, `peer_error` and
// `libm_error`, in ulp, over 32768 arguments of the set, the same for all, and `latency_ns`, `peer_latency_ns` and
// `libm_latency_ns`, nanoseconds per call that waits for the one before.
std::string as_json(const std::vector<table_row>&, const gathering_reporter&, const std::string& processor);

} // namespace orvane::bench
