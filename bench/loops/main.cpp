// Real loops, as GCC vectorizes them: time per element with liborvane_vecabi, with SLEEF's library of the same names,
// and as scalar code on the C library, in one run.
//
//     orvane-bench-loops [--json=FILE] [NAME_REGEX]
//
// Two buffers: one in the first-level cache, and one of 64 MB, where the loop waits for memory as well. Prints a
// table of medians in nanoseconds; a ratio is the peer's time over ours. With --json the figures go to a
// file as well, from which docs/speed.md has its table (data/loops.json).
#include "loops.h"
#include "tools/whole_file.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <dlfcn.h>
#include <nlohmann/json.hpp>
#include <random>
#include <regex>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

constexpr size_t in_cache = 4096, in_memory = size_t(64) << 20; // bytes of x

struct function {
    const char *name, *symbol; // symbol: the vector form that the loop calls
    bool wide;
    double lo, hi, ylo, yhi;
};
const std::vector<function> functions = {
#define V_IN_DOUBLE "_ZGVdN4v"
#define VV_IN_DOUBLE "_ZGVdN4vv"
#define VVV_IN_DOUBLE "_ZGVdN4vvv"
#define VI_IN_DOUBLE "_ZGVdN4vv"
#define IV_IN_DOUBLE "_ZGVdN8v" // as GCC counts lanes, by the result
#define V_IN_FLOAT "_ZGVdN8v"
#define VV_IN_FLOAT "_ZGVdN8vv"
#define VVV_IN_FLOAT "_ZGVdN8vvv"
#define VI_IN_FLOAT "_ZGVdN8vv"
#define IV_IN_FLOAT "_ZGVdN8v"
#define LOOP(kind, d, f, lo, hi, ylo, yhi)                                                                           \
    {#d, kind##_IN_DOUBLE "_" #d, true, lo, hi, ylo, yhi}, {#f, kind##_IN_FLOAT "_" #f, false, lo, hi, ylo, yhi},
#include "tests/vecabi/functions.def"
    LOOP(V, sinpi, sinpif, -30, 30, -3, 3) LOOP(V, cospi, cospif, -30, 30, -3, 3)
#undef LOOP
};

enum library { ours, sleef, scalar, libraries };
constexpr const char* loops_of[libraries] = {ORVANE_LOOPS, ORVANE_LOOPS_SLEEF, ORVANE_LOOPS_SCALAR};

using loop = void(void*, const void*, const void*, const int*, long);

struct data {
    std::vector<char> r = std::vector<char>(in_memory), x = r, y = r;
    std::vector<int> n = std::vector<int>(in_memory / 4);

    template <class T> void fill(const function& f) {
        std::mt19937 random(1);
        std::uniform_real_distribution<double> dx(f.lo, f.hi), dy(f.ylo, f.yhi);
        T *px = (T*)x.data(), *py = (T*)y.data();
        constexpr size_t period = 1 << 16;
        for (size_t i = 0; i < in_memory / sizeof(T); i++)
            if (i < period) px[i] = T(dx(random)), py[i] = T(dy(random)), n[i] = int(i % 17) - 8;
            else px[i] = px[i - period], py[i] = py[i - period], n[i] = n[i - period];
    }
};

double seconds() {
    timespec t;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return double(t.tv_sec) + 1e-9 * double(t.tv_nsec);
}

// Nanoseconds per element with each library: the libraries take turns, so that a change of the machine's pace meets
// all of them.
std::vector<double> medians(const std::vector<loop*>& loops, data& d, long count, double round, int rounds) {
    std::vector<std::vector<double>> times(loops.size());
    std::vector<long> calls(loops.size());
    auto time = [&](size_t l, long n) {
        const double start = seconds();
        for (long i = 0; i < n; i++)
            loops[l](d.r.data(), d.x.data(), d.y.data(), d.n.data(), count);
        return seconds() - start;
    };
    for (size_t l = 0; l < loops.size(); l++)
        if (loops[l]) {
            time(l, 1);
            calls[l] = std::max(1l, long(round / std::max(1e-9, time(l, 1))));
        }
    for (int k = 0; k < rounds; k++)
        for (size_t l = 0; l < loops.size(); l++)
            if (loops[l]) times[l].push_back(time(l, calls[l]) / double(calls[l]));
    std::vector<double> all;
    for (auto& t : times) {
        std::sort(t.begin(), t.end());
        all.push_back(t.empty() ? 0 : t[t.size() / 2] * 1e9 / double(count));
    }
    return all;
}

std::string ratio(double peer, double ours) {
    char s[16];
    std::snprintf(s, sizeof s, "%.2f", peer / ours);
    return peer ? s : "";
}

} // namespace

int main(int argc, char** argv) try {
    std::string file;
    std::vector<std::string> arguments(argv + 1, argv + argc);
    if (!arguments.empty() && arguments[0].starts_with("--json=")) {
        file = arguments[0].substr(7);
        arguments.erase(arguments.begin());
    }
    if (arguments.size() > 1)
        throw std::runtime_error("takes --json=FILE and one argument, a regular expression for names of functions");
    const std::regex wanted(arguments.empty() ? ".*" : arguments[0]);
    void* handles[libraries];
    for (int l = 0; l < libraries; l++)
        if (!(handles[l] = dlopen(loops_of[l], RTLD_LAZY | RTLD_LOCAL))) throw std::runtime_error(dlerror());

    std::puts("| loop | ns, in cache | SLEEF | scalar | ns, 64 MB | SLEEF | scalar |\n|---|---|---|---|---|---|---|");
    data d;
    std::string rows;
    for (const function& f : functions) {
        if (!std::regex_match(f.name, wanted)) continue;
        std::vector<loop*> loops;
        for (void* h : handles)
            loops.push_back((loop*)dlsym(h, (std::string("loop_") + f.name).c_str()));
        if (!dlsym(handles[sleef], f.symbol)) loops[sleef] = nullptr; // not one of SLEEF's functions
        f.wide ? d.fill<double>(f) : d.fill<float>(f);
        const long lane = f.wide ? 8 : 4;
        const auto near = medians(loops, d, in_cache / lane, 1e-3, 15);
        const auto far = medians(loops, d, in_memory / lane, 0, 3);
        std::printf("| `%s` | %.3f | %s | %s | %.3f | %s | %s |\n", f.name, near[ours],
                    ratio(near[sleef], near[ours]).c_str(), ratio(near[scalar], near[ours]).c_str(), far[ours],
                    ratio(far[sleef], far[ours]).c_str(), ratio(far[scalar], far[ours]).c_str());
        std::fflush(stdout);
        using json = nlohmann::ordered_json;
        json row{{"name", f.name}};
        for (const auto& [place, times] : {std::pair{"cache", near}, std::pair{"memory", far}}) {
            constexpr const char* names[libraries] = {"ns", "sleef_ns", "scalar_ns"};
            for (int l = 0; l < libraries; l++)
                if (times[l]) row[place][names[l]] = std::round(times[l] * 1000) / 1000;
        }
        rows += (rows.empty() ? "" : ",\n") + row.dump();
    }
    if (rows.empty()) throw std::runtime_error("no function has that name");
    if (!file.empty()) orvane::write_whole(file, "[\n" + rows + "\n]\n");
} catch (const std::exception& e) {
    std::fprintf(stderr, "orvane-bench-loops: %s\n", e.what());
    return 1;
}
