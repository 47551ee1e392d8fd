// Runs the example's kernels over arrays, checks them against double precision on the host, and prints nanoseconds a
// work-item: scalar libm, our scalar exports, and widths 8 and 16, each also with calls whose true clobbers LLVM
// knows.
//
//     orvane-jit-speed [--relaxed] [KERNEL...]
//
// --relaxed compiles ours with -cl-fast-relaxed-math, and checks nothing.
#include "jit.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <map>
#include <random>
#include <time.h>

namespace {

double seconds() {
    timespec t;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return t.tv_sec + t.tv_nsec * 1e-9;
}

// A buffer or a value, of any type.
struct argument {
    std::vector<unsigned char> bytes;
    bool buffer;
    template <class T> T* as() { return reinterpret_cast<T*>(bytes.data()); }
};

std::mt19937_64 bits(19);
template <class T> argument random_buffer(size_t n, double from, double to) {
    argument a{std::vector<unsigned char>(n * sizeof(T) + 64), true};
    std::uniform_real_distribution<double> real(from, to);
    for (size_t i = 0; i < n; i++)
        a.as<T>()[i] = T(real(bits));
    return a;
}
template <class T> argument value(T v) {
    argument a{std::vector<unsigned char>(sizeof(T)), false};
    *a.as<T>() = v;
    return a;
}

struct test_case {
    std::string name;
    size_t items;
    std::vector<argument> arguments;
    double per_item;                                // parts of an item that are counted: interactions, rounds
    std::function<double(test_case&, size_t)> want; // first output of an item, in double
    std::function<double(test_case&, size_t)> got;
    double tolerance;
};

constexpr size_t n = 1 << 16;

template <class T> test_case black_scholes(const char* name) {
    auto of = [](test_case& c, int k, size_t i) -> double { return c.arguments[k].as<T>()[i]; };
    return {name,
            n,
            {random_buffer<T>(n, 10, 100), random_buffer<T>(n, 10, 100), random_buffer<T>(n, 0.2, 2),
             random_buffer<T>(n, 0, 0), random_buffer<T>(n, 0, 0), value(T(0.02)), value(T(0.3))},
            1,
            [of](test_case& c, size_t i) {
                const double s = of(c, 0, i), k = of(c, 1, i), t = of(c, 2, i), r = of(c, 5, 0), v = of(c, 6, 0),
                             root = std::sqrt(t);
                const double d1 = (std::log(s / k) + (r + 0.5 * v * v) * t) / (v * root), d2 = d1 - v * root;
                return s * 0.5 * std::erfc(-d1 * M_SQRT1_2) - k * std::exp(-r * t) * 0.5 * std::erfc(-d2 * M_SQRT1_2);
            },
            [of](test_case& c, size_t i) { return of(c, 3, i); },
            sizeof(T) == 4 ? 2e-4 : 1e-11};
}

std::vector<test_case> all_cases() {
    auto f = [](test_case& c, int k, size_t i) -> double { return c.arguments[k].as<float>()[i]; };
    auto output = [f](int k) { return [f, k](test_case& c, size_t i) { return f(c, k, i); }; };
    auto in = [](double from, double to) { return random_buffer<float>(n, from, to); };
    std::vector<test_case> all;
    all.push_back(black_scholes<float>("black_scholes"));
    all.push_back(black_scholes<double>("black_scholes_double"));
    all.push_back({"box_muller",
                   n,
                   {in(0, 0), in(0, 0), value(12345u)},
                   1,
                   [](test_case&, size_t i) {
                       auto mixed = [](unsigned a) {
                           a = ((a >> ((a >> 28) + 4u)) ^ a) * 277803737u;
                           return (a >> 22) ^ a;
                       };
                       const unsigned a = mixed(unsigned(i) * 747796405u + 12345),
                                      b = mixed(a * 747796405u + 2891336453u);
                       return std::sqrt(-2 * std::log(((a >> 8) + 1u) * 0x1p-24)) *
                              std::cos(double(6.2831853f * ((b >> 8) * 0x1p-24f)));
                   },
                   output(0),
                   1e-5});
    all.push_back(
        {"haversine",
         n,
         {in(-1.2, 1.2), in(-1.5, 1.5), in(-1.2, 1.2), in(-1.5, 1.5), in(0, 0)},
         1,
         [f](test_case& c, size_t i) {
             const double a = std::sin((f(c, 2, i) - f(c, 0, i)) / 2), b = std::sin((f(c, 3, i) - f(c, 1, i)) / 2);
             return 2 * 6371. * std::asin(std::sqrt(a * a + std::cos(f(c, 0, i)) * std::cos(f(c, 2, i)) * b * b));
         },
         output(4),
         0.02});
    all.push_back({"gelu",
                   n,
                   {in(-3, 3), in(0, 0)},
                   1,
                   [f](test_case& c, size_t i) {
                       const double v = f(c, 0, i);
                       return 0.5 * v * (1 + std::tanh(.79788456 * (v + .044715 * v * v * v)));
                   },
                   output(1),
                   1e-6});
    all.push_back({"power",
                   n,
                   {in(0, 1), in(0, 0), value(1 / 2.4f)},
                   1,
                   [f](test_case& c, size_t i) {
                       const double v = f(c, 0, i);
                       return v <= 0.0031308 ? 12.92 * v : 1.055 * std::pow(v, 1 / 2.4) - 0.055;
                   },
                   output(1),
                   1e-6});
    all.push_back({"power_double",
                   n,
                   {random_buffer<double>(n, 0.1, 10), random_buffer<double>(n, 0, 0), value(1 / 2.4)},
                   1,
                   [](test_case& c, size_t i) { return std::pow(c.arguments[0].as<double>()[i], 1 / 2.4); },
                   [](test_case& c, size_t i) { return c.arguments[1].as<double>()[i]; },
                   1e-14});
    test_case divide{"divide",
                     n,
                     {random_buffer<int>(n, -2e9, 2e9), random_buffer<int>(n, 1, 5000), random_buffer<int>(n, 0, 0)},
                     1,
                     [](test_case& c, size_t i) {
                         const int a = c.arguments[0].as<int>()[i], b = c.arguments[1].as<int>()[i];
                         return double(a / b + a % b);
                     },
                     [](test_case& c, size_t i) { return double(c.arguments[2].as<int>()[i]); },
                     0};
    all.push_back(divide);
    const size_t bodies = 512;
    all.push_back(
        {"n_body",
         bodies,
         {random_buffer<float>(4 * bodies, 0.1, 1), random_buffer<float>(4 * bodies, 0, 0), value(int(bodies))},
         double(bodies),
         [f, bodies](test_case& c, size_t i) {
             double sum = 0;
             for (size_t j = 0; j < bodies; j++) {
                 double d[3], q = 1e-3;
                 for (int k = 0; k < 3; k++)
                     d[k] = f(c, 0, 4 * j + k) - f(c, 0, 4 * i + k), q += d[k] * d[k];
                 sum += f(c, 0, 4 * j + 3) * d[0] / (q * std::sqrt(q));
             }
             return sum;
         },
         [f](test_case& c, size_t i) { return f(c, 1, 4 * i); },
         0.05});
    all.push_back({"mandelbrot",
                   128 * 128,
                   {random_buffer<int>(128 * 128, 0, 0), value(128), value(256)},
                   1,
                   nullptr,
                   [](test_case& c, size_t i) { return double(c.arguments[0].as<int>()[i]); },
                   0});
    return all;
}

void run(test_case& c, jit::range_function f) {
    std::vector<void*> pointers, arguments;
    for (auto& a : c.arguments)
        pointers.push_back(a.bytes.data());
    for (size_t k = 0; k < pointers.size(); k++)
        arguments.push_back(c.arguments[k].buffer ? static_cast<void*>(&pointers[k]) : pointers[k]);
    f(arguments.data(), 0, c.items);
}

double median(std::vector<double> v) {
    std::nth_element(v.begin(), v.begin() + v.size() / 2, v.end());
    return v[v.size() / 2];
}

} // namespace

int main(int argc, char** argv) try {
    const bool relaxed = argc > 1 && std::string(argv[1]) == "--relaxed";
    if (relaxed) argc--, argv++;
    struct column {
        const char* title;
        jit::options how;
    };
    std::vector<column> columns(6);
    const char* titles[] = {"libm", "width 1", "8", "16", "8 exact", "16 exact"};
    for (int k = 0; k < 6; k++) {
        columns[k].title = titles[k];
        columns[k].how.width = k < 2 ? 1 : k % 2 ? 16 : 8;
        columns[k].how.exact_clobbers = k >= 4;
        columns[k].how.relaxed = relaxed && k;
    }
    columns[0].how.builtins = ORVANE_LIBM_BUILTINS;
    columns[0].how.library = "";
    std::vector<std::unique_ptr<jit::program>> programs;
    for (auto& c : columns)
        programs.push_back(std::make_unique<jit::program>(ORVANE_EXAMPLE_KERNELS, c.how));

    printf("ns per work-item (n_body: per interaction), medians of 15 interleaved rounds\n\n| kernel |");
    for (auto& c : columns)
        printf(" %s |", c.title);
    printf(" libm / best |\n|---|");
    for (size_t k = 0; k <= columns.size(); k++)
        printf("---|");
    puts("");
    bool right = true;
    for (test_case& c : all_cases()) {
        if (argc > 1 && std::find(argv + 1, argv + argc, c.name) == argv + argc) continue;
        std::vector<std::vector<double>> times(columns.size());
        std::vector<double> reference;
        for (int round = 0; round < 16; round++)
            for (size_t k = 0; k < columns.size(); k++) {
                const auto f = programs[k]->kernel(c.name);
                const double start = seconds();
                run(c, f);
                if (round) times[k].push_back((seconds() - start) * 1e9 / (double(c.items) * c.per_item));
                if (round) continue;
                for (size_t i = 0; i < c.items; i++) {
                    const double got = c.got(c, i), want = c.want ? c.want(c, i) : k ? reference[i] : got;
                    if (!k) reference.push_back(got);
                    if (!relaxed && !(std::fabs(got - want) <= c.tolerance)) {
                        fprintf(stderr, "%s, %s, item %zu: %.9g, not %.9g\n", c.name.c_str(), columns[k].title, i,
                                got, want);
                        right = false;
                        break;
                    }
                }
            }
        printf("| %s |", c.name.c_str());
        double best = 1e9;
        for (size_t k = 0; k < columns.size(); k++) {
            printf(" %.2f |", median(times[k]));
            if (k > 1) best = std::min(best, median(times[k]));
        }
        printf(" %.1f |\n", median(times[0]) / best);
        fflush(stdout);
    }
    printf("\nCompiling all %zu kernels: ", all_cases().size());
    for (size_t k = 0; k < columns.size(); k++)
        printf("%s%s: clang %.0f ms, passes %.0f, code %.0f", k ? "; " : "", columns[k].title,
               programs[k]->front_end_ms, programs[k]->optimizer_ms, programs[k]->code_ms);
    puts("");
    return right ? 0 : 1;
} catch (const std::exception& e) {
    fprintf(stderr, "orvane-jit-speed: %s\n", e.what());
    return 1;
}
