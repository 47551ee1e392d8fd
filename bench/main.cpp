// Throughput of every export that is built, in one run with SLEEF and scalar libm: nanoseconds per lane over a buffer
// of lanes in the first-level cache, on ordinary lanes and with one special lane in 64.
//
//     orvane-bench [FAMILY_REGEX ...] [--json=FILE] [--latency] [--benchmark_...]
#include "bench/peers.h"
#include "bench/table.h"
#include "tools/whole_file.h"

#include <cerrno>
#include <cmath>
#include <cstring>
#include <dlfcn.h>
#include <fstream>
#include <iostream>
#include <memory>
#include <random>
#include <regex>
#include <set>

using namespace orvane;
using namespace orvane::bench;

namespace {

// Further ranges of arguments that a family is measured over, each beside the peers.
std::vector<lane_set> further_ranges_of(const kernel_row& row) {
    const auto base = row.base();
    const bool is_float = row.in == lane_type::f32;
    if (base == "sin" || base == "cos" || base == "tan" || base == "sincos" || base == "sincosreg") {
        const double top = std::exp2(is_float ? 127.99 : 1023.99);
        return {{"huge", 0x1p30, top, true}};
    }
    if (base == "tgamma")
        return {{"0 to 4", 0, 4},
                is_float ? lane_set{"0 to 35", 0, 35} : lane_set{"0 to 171", 0, 171.4},
                {"1e-10 up", 1e-10, is_float ? 30.0 : 160.0, true},
                is_float ? lane_set{"-30 to 0", -30, 0} : lane_set{"-20 to 0", -20, 0},
                is_float ? lane_set{"-30 to 30", -30, 30} : lane_set{"-160 to 0", -160, 0}};
    if (base == "lgamma" || base == "lgammar")
        return {{"0 to 4", 0, 4},
                {"0.5 to 100", 0.5, 100},
                {"0 to 1000", 0, 1000},
                {"1e-10 to 1e10", 1e-10, 1e10, true},
                is_float ? lane_set{"-8.9 to 0", -8.9, 0} : lane_set{"-20 to 0", -20, 0},
                is_float ? lane_set{"-30 to 30", -30, 30} : lane_set{"-500 to 0", -500, 0}};
    return {};
}
std::vector<lane_set> lane_sets_of(const kernel_row& row) {
    std::vector<lane_set> sets = {ordinary};
    if (!row.special.empty()) sets.push_back(special);
    for (const auto& range : further_ranges_of(row))
        sets.push_back(range);
    return sets;
}

// Argument lanes of a row: evenly spread over its ordinary range; in the special set one lane of every 64, at a
// random place, is the row's special one; a further range is spread evenly, or evenly in the exponent.
void fill(buffer& b, const kernel_row& row, int width, const lane_set& set, unsigned seed = 1) {
    std::mt19937_64 random(seed);
    for (int j = 0; j < row.arguments(); j++)
        with_type(row.argument(j), [&]<class T>(type<T>) {
            const bool own = set.lo != set.hi;
            const double lo = own ? set.lo : row.range[j ? 2 : 0], hi = own ? set.hi : row.range[j ? 3 : 1];
            T* lane = b.argument[j].as<T>();
            for (int i = 0; i < lanes_of_buffer; i++) {
                if constexpr (std::is_integral_v<T>) lane[i] = std::uniform_int_distribution<T>(T(lo), T(hi))(random);
                else if (set.by_exponent)
                    lane[i] =
                        (T)std::exp2(std::uniform_real_distribution<double>(std::log2(lo), std::log2(hi))(random));
                else lane[i] = (T)std::uniform_real_distribution<double>(lo, hi)(random);
            }
        });
    if (set != special) return;
    const int live = lanes_of_buffer / stored_lanes(width) * width;
    for (int block = 0; block < live; block += 64) {
        const int lane = block + int(random() % 64), at = lane / width * stored_lanes(width) + lane % width;
        for (int j = 0; j < row.arguments(); j++) {
            const int size = size_of(row.argument(j));
            memcpy(b.argument[j].bytes + at * size, &row.special[j], size);
        }
    }
}

// The largest errors of the first result of functions over many lanes of a set, the same for all, in units of the
// last place of the true value; -1 where there is no function or no truth.
std::vector<double> largest_errors(const kernel_row& row, const std::vector<const pass*>& runs,
                                   const family_peers& peers, const lane_set& set) {
    std::vector<double> worst(runs.size(), -1);
    if (!peers.truth) return worst;
    auto b = std::make_unique<buffer>();
    std::vector<long double> truth(lanes_of_buffer);
    for (unsigned seed = 1; seed <= 64; seed++) {
        fill(*b, row, 16, set, seed);
        peers.truth(*b, truth.data());
        for (size_t k = 0; k < runs.size(); k++) {
            if (!runs[k] || !*runs[k]) continue;
            (*runs[k])(*b);
            with_type(row.out, [&]<class T>(type<T>) {
                using limits = std::numeric_limits<T>;
                for (int i = 0; i < lanes_of_buffer; i++) {
                    if (!std::isfinite(truth[i])) continue;
                    const int exponent = std::max(truth[i] == 0 ? limits::min_exponent : std::ilogb(truth[i]),
                                                  limits::min_exponent - 1);
                    const long double ulp = std::ldexp(1.0L, exponent - limits::digits + 1);
                    const double error = (double)(std::fabs(b->result[0].as<T>()[i] - truth[i]) / ulp);
                    worst[k] = std::max(worst[k], std::isnan(error) ? HUGE_VAL : error);
                }
            });
        }
    }
    return worst;
}

// The time of a call in the wrong form would look like any other: all widths must give the same lanes.
void check_widths(const kernel_row& row, const std::vector<pass>& runs, const lane_set& set) {
    auto first = std::make_unique<buffer>(), b = std::make_unique<buffer>();
    const bool has_second = row.has_out() || row.results() > 1;
    for (size_t w = 0; w < runs.size(); w++) {
        fill(*b, row, 1, set);
        runs[w](*b);
        if (w == 0) *first = *b;
        for (int j = 0; j < 1 + has_second; j++)
            for (int i = 0; i < lanes_of_buffer; i++) {
                const int size = size_of(row.result(j));
                if (widths[w] == 3 && i % 4 == 3) continue;
                if (memcmp(b->result[j].bytes + i * size, first->result[j].bytes + i * size, size) == 0) continue;
                std::cerr << "orvane-bench: " << plan_of(row, widths[w]).symbol
                          << " and its 1-wide twin disagree in lane " << i % widths[w]
                          << ": this is a fault in one of them, and nothing is measured\n";
                exit(1);
            }
    }
}

buffer lanes; // of the benchmark that runs

// `count` of lanes, or of calls, share the time of a pass.
void register_benchmark(const std::string& name, const kernel_row& row, int width, const lane_set& set,
                        const pass& run, double count) {
    benchmark::RegisterBenchmark(name.c_str(), [=, &row](benchmark::State& state) {
        fill(lanes, row, width, set);
        run(lanes); // the results' pages and the caches
        for (auto _ : state) {
            run(lanes);
            benchmark::ClobberMemory();
        }
        using flags = benchmark::Counter;
        state.counters["lane"] =
            benchmark::Counter(count, flags::Flags(flags::kIsIterationInvariantRate | flags::kInvert));
    });
}

// The first tier of the family that runs the same kernel.
const kernel_row* kernel_of(const kernel_row* row) {
    while (row->twin_name == row->name)
        row = find_row(library_rows(), row->twin_name, row->twin_tier);
    return row;
}

class bench_plan {
public:
    bench_plan(void* library, bool with_latency) : library(library), with_latency(with_latency) {}
    std::vector<table_row> rows;
    size_t benchmarks = 0;

    void add_family(std::string_view name) {
        std::vector<const kernel_row*> kernels;
        for (const kernel_row& row : library_rows())
            if (row.name == name) {
                tiers[kernel_of(&row)].push_back(&row);
                if (kernel_of(&row) == &row) kernels.push_back(&row);
            }
        for (const kernel_row* kernel : kernels)
            add_kernel(*kernel);
    }

    // Registers the benchmarks that the filter picks by the beginnings of their names, and their peers.
    void register_picked(std::string filter) {
        const bool inverted = filter.starts_with('-');
        if (inverted) filter.erase(0, 1);
        if (filter.empty() || filter == "all") filter = ".";
        const std::regex regex("(?:" + filter + ")");
        std::set<std::string> picked;
        for (const entry& e : all)
            for (lane_set set : sets_of(e)) {
                const std::string name = e.name + '/' + set.name;
                if (std::regex_search(name, regex, std::regex_constants::match_continuous) != inverted)
                    picked.insert(name);
            }
        for (const table_row& r : rows)
            for (const lane_set& set : {r.set, special, latency})
                if (picked.contains(r.ours + '/' + set.name))
                    for (const auto& peer : {r.sleef, r.scalar})
                        picked.insert(peer + '/' + set.name);
        for (const entry& e : all)
            for (lane_set set : sets_of(e)) {
                const std::string name = e.name + '/' + set.name;
                if (!picked.contains(name)) continue;
                const bool chained = set == latency;
                const double vectors = lanes_of_buffer / stored_lanes(e.width);
                register_benchmark(name, *e.row, e.width, set, chained ? e.chained : e.run,
                                   chained ? double(lanes_of_buffer / e.lanes) : vectors * e.width);
                benchmarks++;
            }
    }

private:
    void* library;
    bool with_latency;
    std::map<const kernel_row*, std::vector<const kernel_row*>> tiers;
    struct entry {
        std::string name;
        const kernel_row* row;
        int width;
        pass run;
        pass chained; // empty where that is not measured
        int lanes;    // that one call takes
    };
    std::vector<lane_set> sets_of(const entry& e) const {
        auto sets = lane_sets_of(*e.row);
        if (with_latency && e.chained) sets.push_back(latency);
        return sets;
    }
    std::vector<entry> all; // ours, and the peers that they stand beside
    std::set<std::string> seen;

    void add_kernel(const kernel_row& row) {
        const family_peers peers = peers_of(row);
        std::vector<pass> runs, chained;
        for (int width : widths) {
            const call_plan plan = plan_of(row, width);
            const void* f = dlsym(library, plan.symbol.c_str());
            if (!f) {
                std::cerr << "orvane-bench: " << plan.symbol << " is listed as built and is not in the library\n";
                exit(1);
            }
            runs.push_back(export_pass(plan, f));
            chained.push_back(export_pass(plan, f, calls::chained));
        }
        for (lane_set set : lane_sets_of(row))
            check_widths(row, runs, set);
        const peer *const accurate = peers.accurate ? &*peers.accurate : nullptr, *const fast = peers.fast
                                                                                                    ? &*peers.fast
                                                                                                    : nullptr;
        const auto errors_over = [&](const lane_set& set) {
            return largest_errors(row,
                                  {&runs.back(), accurate ? &accurate->wide.run : nullptr,
                                   fast ? &fast->wide.run : nullptr, &peers.scalar},
                                  peers, set);
        };
        const std::vector<double> errors = errors_over(ordinary);
        const double error = errors[0];

        const std::string family(row.name), ours = family + '/' + std::string(row.tier) + '/';
        for (size_t w = 0; w < runs.size(); w++)
            add({ours + std::to_string(widths[w]), &row, widths[w], runs[w], chained[w], stored_lanes(widths[w])});
        const std::string scalar = peers.scalar ? family + "/libm" : "";
        if (peers.scalar) add({scalar, &row, 16, peers.scalar, peers.chained_scalar, 1});

        // The tiers that are this kernel, by the function of SLEEF that they are held against: the most accurate one
        // where the error is at most 1.25 ulp, except for native.
        std::map<const peer*, std::string> tiers_beside;
        for (const kernel_row* t : tiers[&row]) {
            const peer* sleef = fast && (t->tier == "native" || error > 1.25) ? fast : accurate;
            std::string& names = tiers_beside[sleef];
            names += (names.empty() ? "" : " = ") + std::string(t->tier);
        }
        for (const auto& [sleef, names] : tiers_beside)
            for (int width : widths)
                rows.push_back({family, names, width, error, sleef ? errors[sleef == fast ? 2 : 1] : -1, errors[3],
                                sleef ? sleef->name : "", ordinary, ours + std::to_string(width),
                                add_vector_peer(row, sleef, width), scalar});
        // Over further ranges all tiers are held against the most accurate function.
        std::string names;
        for (const auto& [unused, some] : tiers_beside)
            names += (names.empty() ? "" : " = ") + some;
        for (const auto& range : further_ranges_of(row)) {
            const auto there = errors_over(range);
            for (int width : widths)
                rows.push_back({family, names + ", " + range.name, width, there[0], there[1], there[3],
                                accurate ? accurate->name : "", range, ours + std::to_string(width),
                                add_vector_peer(row, accurate, width), scalar});
        }
    }

    // The peer's benchmark beside vectors of that width; empty if there is none.
    std::string add_vector_peer(const kernel_row& row, const peer* sleef, int width) {
        if (!sleef) return "";
        const bool is_narrow = &sleef->at(width, row.in) == &sleef->narrow;
        const std::string function = sleef->library[0] == 'C' ? "" : sleef->name;
        const std::string name =
            std::string(row.name) + '/' + sleef->library + function + (is_narrow ? "x128" : "x256");
        const vector_function& function_of_vector = sleef->at(width, row.in);
        const bool alike = function_of_vector.in_registers && row.results() == 1 && !row.has_out();
        const int count = function_of_vector.lanes;
        const auto called = [&](calls how) {
            return export_pass(plan_of(row, count), function_of_vector.in_registers, how);
        };
        if (alike) add({name, &row, 16, called(calls::independent), called(calls::chained), count});
        else add({name, &row, 16, function_of_vector.run, {}, count});
        return name;
    }

    void add(const entry& e) {
        if (seen.insert(e.name).second) all.push_back(e);
    }
};

// By family and model number, as documents tell it: nothing of the machine's name.
std::string processor() {
    std::ifstream info("/proc/cpuinfo");
    std::string maker, family, model;
    for (std::string line; std::getline(info, line);) {
        const std::string value = line.substr(std::min(line.size(), line.find(':') + 2));
        if (line.starts_with("vendor_id")) maker = value;
        else if (line.starts_with("cpu family")) family = value;
        else if (line.starts_with("model\t")) model = value;
        if (!maker.empty() && !family.empty() && !model.empty())
            return maker + " family " + family + " model " + model;
    }
    return "an unknown processor";
}

void print_usage() {
    puts("orvane-bench [FAMILY_REGEX ...] [--benchmark_...]\n\n"
         "Throughput of the exports that are built, beside SLEEF and scalar libm. A family is picked by its whole "
         "name,\n"
         "with the f of the float member: orvane-bench 'exp.*' fmodf. Single benchmarks are named "
         "FAMILY/TIER/WIDTH/SET;\n"
         "--json=FILE writes the figures for programs as well, --latency adds to these the time of a call that waits "
         "for "
         "the\none before. --benchmark_filter picks among them by the beginnings "
         "of names, and the peers that they stand beside with them.\n");
    benchmark::PrintDefaultHelp();
}

} // namespace

int main(int argc, char** argv) {
    // Medians of short repetitions, interleaved at random over the whole run, so that a peer is measured at the same
    // time as what is held against it.
    std::vector<char*> arguments = {argv[0]};
    for (const char* option :
         {"--benchmark_repetitions=9", "--benchmark_min_time=0.005", "--benchmark_enable_random_interleaving=true"})
        arguments.push_back(strdup(option));
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    // The filter is ours, since it picks the peers too.
    std::string filter;
    std::erase_if(arguments, [&](const char* a) {
        const std::string_view option = "--benchmark_filter=";
        if (!std::string_view(a).starts_with(option)) return false;
        filter = a + option.size();
        return true;
    });
    std::string json;
    std::erase_if(arguments, [&](const char* a) {
        const std::string_view option = "--json=";
        if (!std::string_view(a).starts_with(option)) return false;
        json = a + option.size();
        return true;
    });
    const bool with_latency = std::erase_if(arguments, [](const char* a) { return !strcmp(a, "--latency"); });
    int count = (int)arguments.size();
    benchmark::Initialize(&count, arguments.data(), print_usage);

    void* library = dlopen(ORVANE_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    if (!library) {
        std::cerr << "orvane-bench: " << dlerror() << '\n';
        return 1;
    }
    std::vector<std::string> families;
    for (const kernel_row& row : library_rows())
        if ((families.empty() || families.back() != row.name)) families.emplace_back(row.name);

    std::set<std::string> picked;
    for (int i = 1; i < count; i++) {
        const std::string pattern = arguments[i];
        if (pattern.starts_with('-')) {
            std::cerr << "orvane-bench: unknown option " << pattern << "; --help lists them\n";
            return 1;
        }
        try {
            const std::regex regex(pattern);
            const size_t before = picked.size();
            bool any = false;
            for (const auto& f : families)
                if (std::regex_match(f, regex)) picked.insert(f), any = true;
            if (!any && before == picked.size()) {
                std::smatch parts;
                if (std::regex_match(pattern, parts, std::regex("(.*?)(1|2|3|4|8|16)(_(?:rm|native|half))?")) &&
                    std::find(families.begin(), families.end(), parts[1]) != families.end()) {
                    const std::string tier = parts[3].matched ? parts[3].str().substr(1) : "default";
                    std::cerr << "orvane-bench: no family is named " << pattern
                              << ": families carry neither width nor tier; say " << parts[1]
                              << " --benchmark_filter=" << parts[1] << '/' << tier << '/' << parts[2] << '\n';
                    return 1;
                }
                std::cerr << "orvane-bench: no family that is built is named " << pattern << "; built are";
                for (const auto& f : families)
                    std::cerr << ' ' << f;
                std::cerr << '\n';
                return 1;
            }
        } catch (const std::regex_error& e) {
            std::cerr << "orvane-bench: " << pattern << " is not a regular expression: " << e.what() << '\n';
            return 1;
        }
    }

    bench_plan plan(library, with_latency);
    for (const auto& f : families)
        if (picked.empty() || picked.contains(f)) plan.add_family(f);

    try {
        plan.register_picked(filter);
    } catch (const std::regex_error& e) {
        std::cerr << "orvane-bench: " << filter << " is not a regular expression: " << e.what() << '\n';
        return 1;
    }
    gathering_reporter reporter(plan.benchmarks);
    if (!benchmark::RunSpecifiedBenchmarks(&reporter)) {
        std::cerr << "orvane-bench: the filter picks no benchmark; --benchmark_list_tests names them\n";
        return 1;
    }
    benchmark::Shutdown();
    printf("On %s: nanoseconds per lane, medians; a ratio is the peer's time over ours. The vector peer is SLEEF's "
           "function\n"
           "(u10: within 1.0 ulp) or, marked C, what the compiler makes of scalar code; it runs 128 bits per call "
           "beside "
           "vectors that\nfit them and else 256. libm (for conversions an inlined loop) runs one lane; ulp is our "
           "largest "
           "error over 65536 lanes.\n\n",
           processor().c_str());
    print_table(plan.rows, reporter);
    if (!json.empty()) try {
            write_whole(json, as_json(plan.rows, reporter, processor()));
        } catch (const std::exception& e) {
            std::cerr << "orvane-bench: " << e.what() << '\n';
            return 1;
        }
    if (fflush(stdout)) {
        std::cerr << "orvane-bench: cannot write standard output: " << strerror(errno) << '\n';
        return 1;
    }
}
