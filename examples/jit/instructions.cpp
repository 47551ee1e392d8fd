// What a call costs beside the instruction, for the built-ins that could be either: the same kernels with
// orvane-builtins.bc, which leaves some to the compiler, and with one that calls an export for each.
//
//     orvane-jit-instructions
//
// Prints a table of nanoseconds per element, medians, over buffers in the first-level cache.
#include "jit.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <random>

namespace {

constexpr size_t items = 1024;

struct candidate {
    const char *name, *expression, *from, *to;
};
// The built-ins that the compiler does by an instruction, and others for which that is conceivable.
const candidate candidates[] = {
#define BOTH(name, expression)                                                                                       \
    {name, expression, "float", "float"}, { name, expression, "double", "double" }
    BOTH("sqrt", "sqrt(a)"),
    BOTH("rsqrt", "rsqrt(a)"),
    BOTH("fabs", "fabs(a)"),
    BOTH("floor", "floor(a)"),
    BOTH("ceil", "ceil(a)"),
    BOTH("trunc", "trunc(a)"),
    BOTH("rint", "rint(a)"),
    BOTH("round", "round(a)"),
    BOTH("copysign", "copysign(a, b)"),
    BOTH("fmin", "fmin(a, b)"),
    BOTH("fmax", "fmax(a, b)"),
    BOTH("fma", "fma(a, b, a)"),
#undef BOTH
    {"convert_float", "convert_float(a)", "int", "float"},
    {"convert_float", "convert_float(a)", "uint", "float"},
    {"convert_float", "convert_float(a)", "double", "float"},
    {"convert_double", "convert_double(a)", "int", "double"},
};

double seconds() {
    timespec t;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return double(t.tv_sec) + 1e-9 * double(t.tv_nsec);
}

template <class T> void fill(std::vector<double>& buffer) {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> real(0.5, 100);
    for (size_t i = 0; i < items; i++)
        reinterpret_cast<T*>(buffer.data())[i] = T(real(random));
}

} // namespace

int main() try {
    const std::string file = ORVANE_SCRATCH "/instructions.cl";
    std::ofstream source(file);
    source << "#pragma OPENCL EXTENSION cl_khr_fp64 : enable\n";
    size_t n = 0;
    for (const candidate& c : candidates)
        source << "kernel void k" << n++ << "(global const " << c.from << "* x, global const " << c.from
               << "* y, global " << c.to << "* r) { size_t i = get_global_id(0); " << c.from
               << " a = x[i], b = y[i]; r[i] = " << c.expression << "; }\n";
    source.close();

    constexpr unsigned widths[] = {1, 8, 16};
    std::vector<std::unique_ptr<jit::program>> programs;
    for (unsigned width : widths)
        for (const char* builtins : {ORVANE_BUILTINS, ORVANE_CALLS})
            programs.push_back(
                std::make_unique<jit::program>(file, jit::options{.width = width, .builtins = builtins}));

    std::puts("| built-in | argument | width 1, compiler | call | 8, compiler | call | 16, compiler | call |\n"
              "|---|---|---|---|---|---|---|---|");
    for (size_t k = 0; k < n; k++) {
        std::vector<double> x(items), y(items), r(items);
        const std::string from = candidates[k].from;
        for (auto* buffer : {&x, &y}) {
            if (from == "float") fill<float>(*buffer);
            else if (from == "double") fill<double>(*buffer);
            else fill<int>(*buffer);
        }
        void *px = x.data(), *py = y.data(), *pr = r.data();
        void* arguments[] = {&px, &py, &pr};
        std::vector<std::vector<double>> times(programs.size());
        for (int round = 0; round < 25; round++)
            for (size_t p = 0; p < programs.size(); p++) {
                const auto f = programs[p]->kernel("k" + std::to_string(k));
                const double start = seconds();
                for (int again = 0; again < 20; again++)
                    f(arguments, 0, items);
                times[p].push_back((seconds() - start) * 1e9 / (20 * items));
            }
        std::printf("| `%s` | %s |", candidates[k].name, from.c_str());
        for (auto& t : times) {
            std::nth_element(t.begin(), t.begin() + t.size() / 2, t.end());
            std::printf(" %.2f |", t[t.size() / 2]);
        }
        std::puts("");
    }
    return 0;
} catch (const std::exception& e) {
    std::fprintf(stderr, "orvane-jit-instructions: %s\n", e.what());
    return 1;
}
