// orvane-bench: throughput of every built export beside its peers, in nanoseconds a lane.
//
//     orvane-bench                    all built families
//     orvane-bench expf 'sin.*'       families by name (regular expressions)
//
// Calls run over argument vectors that fit the first-level cache: ordinary lanes, and a second set with one special
// lane in 64. Peers run in the same process: SLEEF's AVX2 function of the same meaning (the 1.0-ulp one beside
// kernels whose measured error is at most 1.25 ulp, the 3.5-ulp one beside the rest) and the scalar C library.
// Figures are medians of repetitions; compare ratios within one run. Flags of Google Benchmark are taken too.
#include "peers.h"
#include "tools/call_plan.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <immintrin.h>
#include <iostream>
#include <map>
#include <random>
#include <set>

using namespace orvane;

namespace {

constexpr int lanes_in_set = 512;

// Default tiers whose measured error is above 1.25 ulp.
const std::set<std::string_view> above_accurate = {
    "asin",    "asinf", "asinpi", "asinpif", "acospi",   "acospif", "atan",  "atanf", "atanpi",
    "atanpif", "atan2", "atan2f", "atan2pi", "atan2pif", "sinh",    "sinhf", "cosh",  "coshf",
    "tanhf",   "asinh", "asinhf", "acosh",   "acoshf",   "atanh",   "atanhf"};
bool compared_with_fast(const kernel_row& row) {
    return row.tier == "native" || row.tier == "half" || (row.tier == "rm" && row.twin_name.empty()) ||
           above_accurate.contains(row.name);
}

// One call's registers or stack arguments, ready to load.
struct alignas(32) call_data {
    unsigned char vector[4][32];
    uint64_t integer[2];
};
struct workload {
    std::vector<call_data> calls;
    std::vector<std::vector<unsigned char>> stacks;
    alignas(32) unsigned char out_object[256], result_object[512];
};

std::vector<words> arguments_of(const kernel_row& row, bool with_special) {
    std::mt19937_64 r(1);
    std::vector<words> a(row.arguments());
    for (int j = 0; j < row.arguments(); j++) {
        std::uniform_real_distribution<double> d(row.range[j ? 2 : 0], row.range[j ? 3 : 1]);
        for (int i = 0; i < lanes_in_set; i++) {
            const bool special = with_special && i % 64 == 17;
            a[j].push_back(special ? row.special[j] : word_of(row.argument(j), d(r)));
        }
    }
    return a;
}

workload workload_of(const call_plan& plan, bool with_special) {
    workload w;
    const auto a = arguments_of(*plan.row, with_special);
    lane_caller placer(plan, nullptr);
    for (int i = 0; i + plan.width <= lanes_in_set; i += plan.width) {
        std::vector<words> part;
        for (const auto& arg : a)
            part.emplace_back(arg.begin() + i, arg.begin() + i + plan.width);
        placer.place_arguments(part);
        call_data c;
        memcpy(c.vector, placer.in.vector, sizeof c.vector);
        c.integer[0] = placer.in.integer[rdi], c.integer[1] = placer.in.integer[rsi];
        w.calls.push_back(c);
        w.stacks.push_back(placer.stack);
    }
    return w;
}

// Every register-form export may be called so: registers that its signature does not fill are not looked at.
using register_form = __m256 (*)(uint64_t, uint64_t, __m256, __m256, __m256, __m256);
template <int Bytes> struct by_value { unsigned char bytes[Bytes]; };
template <int Bytes> using memory_form = void* (*)(void*, void*, by_value<Bytes>);

template <int Registers> void run_registers(benchmark::State& state, const void* f, workload& w, bool out) {
    const auto call = (register_form)f;
    for (auto _ : state)
        for (auto& c : w.calls) {
            const auto v = [&](int i) {
                return i < Registers ? _mm256_load_ps((const float*)c.vector[i]) : _mm256_setzero_ps();
            };
            const __m256 y = call(out ? (uint64_t)w.out_object : c.integer[0], c.integer[1], v(0), v(1), v(2), v(3));
            _mm256_store_ps((float*)w.result_object, y);
            benchmark::ClobberMemory();
        }
}
template <int Bytes> void run_memory(benchmark::State& state, const void* f, workload& w) {
    const auto call = (memory_form<Bytes>)f;
    for (auto _ : state)
        for (auto& s : w.stacks) {
            by_value<Bytes> arguments;
            memcpy(&arguments, s.data(), Bytes);
            benchmark::DoNotOptimize(call(w.result_object, w.out_object, arguments));
        }
}
void run_export(benchmark::State& state, const call_plan& plan, const void* f, bool with_special) {
    auto w = workload_of(plan, with_special);
    if (plan.memory_form) switch (plan.stack_bytes) {
        case 192:
            run_memory<192>(state, f, w);
            break;
        case 256:
            run_memory<256>(state, f, w);
            break;
        case 384:
            run_memory<384>(state, f, w);
            break;
        case 128:
            run_memory<128>(state, f, w);
            break;
        default:
            state.SkipWithError("stack arguments of an unknown size");
        }
    else {
        int registers = 0;
        for (const auto& a : plan.arguments)
            registers += a.registers;
        const bool out = plan.out_register >= 0;
        if (registers <= 1) run_registers<1>(state, f, w, out);
        else if (registers == 2) run_registers<2>(state, f, w, out);
        else run_registers<4>(state, f, w, out);
    }
    state.SetItemsProcessed(state.iterations() * lanes_in_set);
}
void run_peer(benchmark::State& state, const kernel_row& row, const bench::peer& p) {
    const auto a = arguments_of(row, false);
    std::vector<std::vector<unsigned char>> columns(4, std::vector<unsigned char>(8 * lanes_in_set + 64));
    for (size_t j = 0; j < a.size(); j++)
        for (int i = 0; i < lanes_in_set; i++)
            write_lane(columns[j].data() + i * size_of(row.argument(j)), row.argument(j), a[j][i]);
    const bench::operands o{columns[0].data(), columns[1].data(), columns[2].data(), columns[3].data(), lanes_in_set};
    for (auto _ : state) {
        p(o);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * lanes_in_set);
}

// Medians by name, printed as a table when all have run.
class table : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const auto& run : runs)
            if (run.aggregate_name == "median" && !run.error_occurred)
                median[run.run_name.function_name] = 1e9 / run.counters.at("items_per_second");
    }
    void Finalize() override {
        printf("%-10s %-8s %5s  %9s %9s  %9s %9s  %8s %8s\n", "family", "tier", "width", "ns/lane", "1/64 spec",
               "SLEEF", "libm", "x SLEEF", "x libm");
        for (const auto& row : library_rows()) {
            if (!row.built || !row.twin_name.empty()) continue;
            const std::string name(row.name), tier(row.tier);
            for (int w : widths) {
                const double ours = at(name + "/" + tier + "/" + std::to_string(w));
                if (!ours) continue;
                const double sleef = at(name + (compared_with_fast(row) ? "/sleef_fast" : "/sleef")),
                             libm = at(name + "/libm");
                auto cell = [](double v, const char* format) {
                    char s[32] = "-";
                    if (v) snprintf(s, sizeof s, format, v);
                    return std::string(s);
                };
                printf("%-10s %-8s %5d  %9s %9s  %9s %9s  %8s %8s\n", name.c_str(), tier.c_str(), w,
                       cell(ours, "%.3f").c_str(),
                       cell(at(name + "/" + tier + "/" + std::to_string(w) + "/special"), "%.3f").c_str(),
                       cell(sleef, "%.3f").c_str(), cell(libm, "%.3f").c_str(), cell(sleef / ours, "%.2f").c_str(),
                       cell(libm / ours, "%.2f").c_str());
            }
        }
    }

private:
    double at(const std::string& name) const {
        const auto m = median.find(name);
        return m == median.end() ? 0 : m->second;
    }
    std::map<std::string, double> median;
};

} // namespace

int main(int argc, char** argv) {
    std::vector<char*> flags{argv[0]};
    std::string families;
    for (int i = 1; i < argc; i++) {
        if (argv[i][0] == '-') flags.push_back(argv[i]);
        else families += (families.empty() ? "" : "|") + std::string(argv[i]);
    }
    std::string filter = "--benchmark_filter=^(" + families + ")/", repeat = "--benchmark_repetitions=5",
                time = "--benchmark_min_time=0.01";
    if (!families.empty()) flags.insert(flags.begin() + 1, filter.data());
    flags.insert(flags.begin() + 1, {repeat.data(), time.data()});
    int count = (int)flags.size();
    benchmark::Initialize(&count, flags.data());
    if (benchmark::ReportUnrecognizedArguments(count, flags.data())) return 2;

    const auto beside = std::filesystem::read_symlink("/proc/self/exe").parent_path() / "liborvane_l9.so";
    static library lib(beside.string());
    if (!lib.handle()) {
        std::cerr << "orvane-bench: cannot open the library: " << lib.error() << '\n';
        return 1;
    }
    std::set<std::string> peers;
    for (const auto& row : library_rows()) {
        if (!row.built || !row.twin_name.empty()) continue; // a twin is the same function
        const std::string name(row.name), tier(row.tier);
        const bool is_float = row.in == lane_type::f32, fast = compared_with_fast(row);
        auto add_peer = [&](const std::string& key, bench::peer p) {
            if (p && peers.insert(key).second)
                benchmark::RegisterBenchmark(key.c_str(), [&row, p](benchmark::State& s) { run_peer(s, row, p); });
        };
        add_peer(name + (fast ? "/sleef_fast" : "/sleef"), bench::sleef_peer(row.base(), is_float, fast));
        add_peer(name + "/libm", bench::libm_peer(row.base(), is_float));
        for (int w : widths) {
            const call_plan plan = plan_of(row, w);
            const void* f = lib.address(plan.symbol);
            const std::string key = name + "/" + tier + "/" + std::to_string(w);
            benchmark::RegisterBenchmark(key.c_str(), [=](benchmark::State& s) { run_export(s, plan, f, false); });
            if (!row.special.empty())
                benchmark::RegisterBenchmark((key + "/special").c_str(),
                                             [=](benchmark::State& s) { run_export(s, plan, f, true); });
        }
    }
    table reporter;
    if (!benchmark::RunSpecifiedBenchmarks(&reporter)) {
        std::cerr << "orvane-bench: no built family matches '" << families << "'\n";
        return 1;
    }
}
