// Runs the kernels of this folder by orvane-cl over data of their own, and compares what they computed with the same
// formulas in double precision on the host.
//
//     orvane-cl-examples                  all of them: a line each, exit code 1 if one is wrong
//     orvane-cl-examples --speed gelu     and ns per work-item beside plain PoCL and scalar libm
//     orvane-cl-examples --json=FILE      the same table for programs (data/opencl.json)
//     orvane-cl-examples --pictures .     and the pictures among them as PNG
#include "tools/command_line.h"
#include "tools/npy.h"
#include "tools/whole_file.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstring>
#include <functional>
#include <map>
#include <png.h>
#include <random>
#include <sys/wait.h>

using namespace orvane;
namespace fs = std::filesystem;

namespace {

// ---- Data

template <class T> const char* npy_type();
template <> const char* npy_type<float>() { return "<f4"; }
template <> const char* npy_type<double>() { return "<f8"; }
template <> const char* npy_type<signed char>() { return "|i1"; }
template <> const char* npy_type<unsigned char>() { return "|u1"; }

template <class T> struct array {
    std::vector<T> values;
    std::vector<size_t> shape;

    array(
        std::vector<size_t> s, std::function<T(size_t)> rule = [](size_t) { return T(); })
        : shape(s) {
        size_t n = 1;
        for (size_t k : s)
            n *= k;
        for (size_t i = 0; i < n; i++)
            values.push_back(rule(i));
    }
    void save(const fs::path& to) const {
        whole_file f(to);
        write_npy_header(f.out, npy_type<T>(), shape);
        f.out.write(reinterpret_cast<const char*>(values.data()), std::streamsize(values.size() * sizeof(T)));
        f.complete();
    }
    static array load(const fs::path& from) {
        npy_reader f(from.string());
        if (f.type != npy_type<T>()) throw failure(from.string() + " holds " + f.type + ", not " + npy_type<T>());
        array a(f.shape);
        f.read(a.values.data(), a.values.size() * sizeof(T));
        return a;
    }
    T operator[](size_t i) const { return values[i]; }
};

// Uniform between two numbers, the same on every machine.
std::function<double(size_t)> uniform(unsigned seed, double from, double to) {
    return [bits = std::mt19937_64(seed), from, to](size_t) mutable {
        return from + (to - from) * double(bits() >> 11) * 0x1p-53;
    };
}

struct place {
    std::string name;
    double latitude, longitude;
};
std::vector<place> places() {
    std::vector<place> all;
    std::ifstream in(ORVANE_SOURCES "/data/places.txt");
    std::string line;
    while (std::getline(in, line)) {
        std::stringstream words(line);
        if (place p; line[0] != '#' && words >> p.name >> p.latitude >> p.longitude) all.push_back(p);
    }
    if (all.empty()) throw failure("cannot read data/places.txt");
    return all;
}

// ---- What is said about a result

struct comparison {
    double largest = 0; // of the differences
    size_t values = 0, beyond = 0;
    void add(double got, double want, double allowed) {
        const double d = std::fabs(got - want);
        if (!(d <= allowed)) beyond++;
        if (!(d <= largest)) largest = d;
        values++;
    }
};

struct outcome {
    comparison compared;
    double allowed_share = 0; // of values that may be further off, where the formula has a step
    std::string told;         // the figures that a person wants
};

std::string text(const char* format, auto... values) {
    char s[256];
    snprintf(s, sizeof s, format, values...);
    return s;
}

struct example {
    std::string name, file;
    std::string options;                           // for orvane-cl: -n and others
    std::string arguments;                         // of the kernel
    std::function<void(const fs::path&)> prepare;  // writes the inputs into a folder
    std::function<outcome(const fs::path&)> check; // reads inputs and outputs
    const char* picture = nullptr;                 // the output that is one
};

constexpr size_t columns = 640, rows = 480;
const std::string picture_size = "-n 640,480 ";

double normal_share(double d) { return 0.5 * std::erfc(-d * M_SQRT1_2); }

template <class T> example black_scholes(const char* name, const char* options, double allowed) {
    constexpr size_t n = 65536;
    return {name,
            "black_scholes.cl",
            options,
            "price.npy strike.npy years.npy out:call.npy out:put.npy 0.02 0.3",
            [](const fs::path& d) {
                array<T>({n}, uniform(1, 10, 100)).save(d / "price.npy");
                array<T>({n}, uniform(2, 10, 100)).save(d / "strike.npy");
                array<T>({n}, uniform(3, 0.2, 2)).save(d / "years.npy");
            },
            [allowed](const fs::path& d) {
                const auto load = [&](const char* file) { return array<T>::load(d / file); };
                const auto price = load("price.npy"), strike = load("strike.npy"), years = load("years.npy"),
                           call = load("call.npy"), put = load("put.npy");
                const double rate = T(0.02), volatility = T(0.3);
                outcome o;
                double mean = 0;
                for (size_t i = 0; i < n; i++) {
                    const double s = price[i], k = strike[i], t = years[i], spread = volatility * std::sqrt(t);
                    const double d1 = (std::log(s / k) + (rate + volatility * volatility / 2) * t) / spread,
                                 d2 = d1 - spread, discounted = k * std::exp(-rate * t);
                    o.compared.add(call[i], s * normal_share(d1) - discounted * normal_share(d2), allowed);
                    o.compared.add(put[i], discounted * normal_share(-d2) - s * normal_share(-d1), allowed);
                    mean += call[i] / double(n);
                }
                o.told = text("%zu options, mean price of a call %.6f", n, mean);
                return o;
            }};
}

unsigned char level(double v) { return (unsigned char)std::nearbyint(std::clamp(v, 0., 1.) * 255); }

// Pixels against colours from 0 to 1.
outcome compare_picture(const fs::path& file, std::function<std::array<double, 3>(size_t, size_t)> colour,
                        double share) {
    const auto pixels = array<unsigned char>::load(file);
    outcome o;
    o.allowed_share = share;
    for (size_t y = 0; y < rows; y++)
        for (size_t x = 0; x < columns; x++) {
            const auto c = colour(x, y);
            for (int k = 0; k < 3; k++)
                o.compared.add(pixels[(y * columns + x) * 4 + k], level(c[k]), 2);
        }
    o.told = text("%zu by %zu pixels", columns, rows);
    return o;
}

std::vector<example> all_examples() {
    std::vector<example> all;
    all.push_back(black_scholes<float>("black_scholes", "-n 65536", 1e-4));
    all.push_back(black_scholes<double>("black_scholes_double", "-n 65536 -D REAL=double", 1e-12));
    all.push_back({"box_muller", "box_muller.cl", "-n 262144", "out:normal.npy 2026", [](const fs::path&) {},
                   [](const fs::path& d) {
                       const auto got = array<float>::load(d / "normal.npy");
                       outcome o;
                       double sum = 0, squares = 0, fourth = 0;
                       for (uint32_t i = 0; i < 262144; i++) {
                           uint32_t a = i, b = 0, key = 2026;
                           for (int round = 0; round < 10; round++, key += 0x9E3779B9u) {
                               const uint64_t product = uint64_t(a) * 0xD256D193u;
                               a = uint32_t(product >> 32) ^ key ^ b;
                               b = uint32_t(product);
                           }
                           const double r = std::sqrt(-2 * std::log(((a >> 8) + 1) * 0x1p-24)),
                                        turn = double((b >> 8) * (0x1p-23f * float(M_PI)));
                           o.compared.add(got[2 * i], r * std::cos(turn), 5e-6);
                           o.compared.add(got[2 * i + 1], r * std::sin(turn), 5e-6);
                       }
                       for (float v : got.values)
                           sum += v, squares += double(v) * v, fourth += std::pow(double(v), 4);
                       const double n = double(got.values.size());
                       o.told = text("%.0f numbers: mean %+.5f, variance %.5f, fourth moment %.4f", n, sum / n,
                                     squares / n, fourth / n);
                       return o;
                   }});
    all.push_back({"pow", "compound_interest.cl", "-n 65536", "rate.npy years.npy out:grown.npy",
                   [](const fs::path& d) {
                       array<float>({65536}, uniform(12, -0.02, 0.12)).save(d / "rate.npy");
                       array<float>({65536}, uniform(13, 0, 40)).save(d / "years.npy");
                   },
                   [](const fs::path& d) {
                       const auto rate = array<float>::load(d / "rate.npy"),
                                  years = array<float>::load(d / "years.npy"),
                                  grown = array<float>::load(d / "grown.npy");
                       outcome o;
                       double mean = 0;
                       for (size_t i = 0; i < grown.values.size(); i++) {
                           const double want = std::pow(double(1 + rate[i]), double(years[i]));
                           o.compared.add(grown[i], want, 2e-7 * want);
                           mean += grown[i] / double(grown.values.size());
                       }
                       o.told = text("%zu deposits, mean growth %.6f", grown.values.size(), mean);
                       return o;
                   }});
    const auto world = places();
    const std::string count = std::to_string(world.size());
    all.push_back(
        {"haversine", "haversine.cl", "-n " + count + "," + count, "places.npy out:km.npy",
         [world](const fs::path& d) {
             array<float>({world.size(), 2}, [&](size_t i) {
                 return float(i % 2 ? world[i / 2].longitude : world[i / 2].latitude);
             }).save(d / "places.npy");
         },
         [world](const fs::path& d) {
             const auto at = array<float>::load(d / "places.npy"), km = array<float>::load(d / "km.npy");
             outcome o;
             const size_t n = world.size();
             std::map<std::string, size_t> by_name;
             for (size_t j = 0; j < n; j++) {
                 by_name[world[j].name] = j;
                 for (size_t i = 0; i < n; i++) {
                     const double r = M_PI / 180, up = std::sin(r * (at[2 * j] - double(at[2 * i])) / 2),
                                  across = std::sin(r * (at[2 * j + 1] - double(at[2 * i + 1])) / 2);
                     const double h = up * up + std::cos(r * at[2 * i]) * std::cos(r * at[2 * j]) * across * across;
                     const double want = 2 * 6371 * std::asin(std::min(std::sqrt(h), 1.));
                     // Towards the other end of the Earth the arc sine turns a last place into kilometres.
                     o.compared.add(km[j * n + i], want, 0.01 + 4e-3 / std::sqrt(1 - std::min(h, 1 - 1e-7)));
                 }
             }
             const auto between = [&](const char* a, const char* b) { return km[by_name.at(a) * n + by_name.at(b)]; };
             o.told = text("%zu pairs: Berlin to Tokyo %.1f km, New York to Auckland %.1f km", n * n,
                           double(between("Europe/Berlin", "Asia/Tokyo")),
                           double(between("America/New_York", "Pacific/Auckland")));
             return o;
         }});
    all.push_back({"gelu", "gelu.cl", "-n 1048576", "x.npy out:y.npy",
                   [](const fs::path& d) { array<float>({1048576}, uniform(4, -6, 6)).save(d / "x.npy"); },
                   [](const fs::path& d) {
                       const auto x = array<float>::load(d / "x.npy"), y = array<float>::load(d / "y.npy");
                       outcome o;
                       double mean = 0;
                       for (size_t i = 0; i < x.values.size(); i++) {
                           const double v = x[i];
                           o.compared.add(y[i], 0.5 * v * (1 + std::tanh(.79788456 * (v + .044715 * v * v * v))),
                                          2e-6);
                           mean += y[i] / double(x.values.size());
                       }
                       o.told = text("%zu activations, mean %.6f", x.values.size(), mean);
                       return o;
                   }});
    all.push_back({"softmax", "softmax.cl", "-n 65536 -l 64", "scores.npy out:shares.npy:1024000 local:64 1000",
                   [](const fs::path& d) {
                       array<float>({1024, 1000}, uniform(5, -8, 8)).save(d / "scores.npy");
                   },
                   [](const fs::path& d) {
                       const auto x = array<float>::load(d / "scores.npy"), y = array<float>::load(d / "shares.npy");
                       outcome o;
                       double best = 0;
                       for (size_t row = 0; row < 1024; row++) {
                           double sum = 0, most = -1e9;
                           for (size_t k = 0; k < 1000; k++)
                               most = std::max(most, double(x[row * 1000 + k]));
                           for (size_t k = 0; k < 1000; k++)
                               sum += std::exp(x[row * 1000 + k] - most);
                           for (size_t k = 0; k < 1000; k++) {
                               o.compared.add(y[row * 1000 + k], std::exp(x[row * 1000 + k] - most) / sum, 1e-8);
                               best = std::max(best, double(y[row * 1000 + k]));
                           }
                       }
                       o.told = text("1024 rows of 1000 scores, largest share %.6f", best);
                       return o;
                   }});
    all.push_back({"gamma_correction", "gamma_correction.cl", picture_size, "light.npy out:levels.npy",
                   [](const fs::path& d) { // two lamps
                       array<unsigned char>({rows, columns, 4}, [](size_t i) {
                           const double x = double(i / 4 % columns), y = double(i / 4 / columns);
                           const double near = 9e3 / (1e3 + (x - 200) * (x - 200) + (y - 300) * (y - 300)),
                                        far = 9e3 / (2e4 + (x - 500) * (x - 500) + (y - 100) * (y - 100));
                           const double colour[] = {near + 0.3 * far, 0.6 * near + 0.5 * far, 0.2 * near + far, 1};
                           return level(colour[i % 4]);
                       }).save(d / "light.npy");
                   },
                   [](const fs::path& d) {
                       const auto light = array<unsigned char>::load(d / "light.npy");
                       const auto levels = array<unsigned char>::load(d / "levels.npy");
                       outcome o;
                       double before = 0, after = 0;
                       for (size_t i = 0; i < light.values.size(); i++) {
                           const double v = light[i] / 255.;
                           const double want = i % 4 == 3       ? v
                                               : v <= 0.0031308 ? 12.92 * v
                                                                : 1.055 * std::pow(v, 1 / 2.4) - 0.055;
                           o.compared.add(levels[i], 255 * want, 0.5001);
                           before += light[i], after += levels[i];
                       }
                       const double n = double(light.values.size());
                       o.told =
                           text("%zu by %zu pixels, mean level %.2f from %.2f", columns, rows, after / n, before / n);
                       return o;
                   },
                   "levels.npy"});
    all.push_back({"n_body", "n_body.cl", "-n 1024", "bodies.npy out:acceleration.npy 1024",
                   [](const fs::path& d) {
                       array<float>({1024, 4}, uniform(6, 0, 1)).save(d / "bodies.npy");
                   },
                   [](const fs::path& d) {
                       const auto b = array<float>::load(d / "bodies.npy"),
                                  a = array<float>::load(d / "acceleration.npy");
                       outcome o;
                       double most = 0;
                       for (size_t i = 0; i < 1024; i++) {
                           double sum[3] = {}, sizes[3] = {};
                           for (size_t j = 0; j < 1024; j++) {
                               double to[3], q = 1e-3f;
                               for (int k = 0; k < 3; k++)
                                   to[k] = b[4 * j + k] - double(b[4 * i + k]), q += to[k] * to[k];
                               for (int k = 0; k < 3; k++)
                                   sum[k] += b[4 * j + 3] * to[k] / (q * std::sqrt(q)),
                                       sizes[k] += std::fabs(b[4 * j + 3] * to[k] / (q * std::sqrt(q)));
                           }
                           for (int k = 0; k < 3; k++)
                               o.compared.add(a[4 * i + k], sum[k], 3e-6 * sizes[k]);
                           most = std::max(most, std::hypot(sum[0], sum[1], sum[2]));
                       }
                       o.told = text("1024 bodies, largest acceleration %.3f", most);
                       return o;
                   }});
    all.push_back({"mandelbrot", "mandelbrot.cl", picture_size, "out:pixels.npy 256", [](const fs::path&) {},
                   [](const fs::path& d) {
                       const auto colour = [](size_t column, size_t row) -> std::array<double, 3> {
                           const double step = 2.6 / rows, cx = (double(column) - 0.5 * columns) * step - 0.7,
                                        cy = (0.5 * rows - double(row)) * step;
                           double x = 0, y = 0;
                           int n = 0;
                           for (; n < 256 && x * x + y * y < 256; n++) {
                               const double t = x * x - y * y + cx;
                               y = 2 * x * y + cy;
                               x = t;
                           }
                           if (n == 256) return {};
                           const double turn =
                               0.35 * std::log(std::max(n + 1 - std::log2(0.5 * std::log2(x * x + y * y)), 1.));
                           const auto wave = [&](double at) { return 0.5 - 0.5 * std::cos(M_PI * (2 * turn + at)); };
                           return {wave(0.1), wave(0.3), wave(0.6)};
                       };
                       return compare_picture(d / "pixels.npy", colour, 0.03); // chaos near the border
                   },
                   "pixels.npy"});
    all.push_back({"complex_gamma", "complex_gamma.cl", picture_size, "out:pixels.npy 5", [](const fs::path&) {},
                   [](const fs::path& d) {
                       using complex = std::complex<double>;
                       // By Stirling's series, far enough right: other steps than the kernel's.
                       const auto log_gamma = [](complex z) {
                           complex steps = 0;
                           for (; z.real() < 12; z += 1)
                               steps += std::log(z);
                           const complex r = 1. / z, r2 = r * r;
                           return (z - 0.5) * std::log(z) - z + 0.5 * std::log(2 * M_PI) +
                                  r * (1. / 12 - r2 * (1. / 360 - r2 * (1. / 1260 - r2 / 1680.))) - steps;
                       };
                       const auto colour = [&](size_t column, size_t row) -> std::array<double, 3> {
                           const double step = 10. / columns;
                           const complex value = log_gamma({step * (double(column) + 0.5 - 0.5 * columns),
                                                            step * (0.5 * rows - double(row) - 0.5)});
                           const double hue = value.imag() / M_PI, doublings = value.real() / M_LN2,
                                        light = 0.6 + 0.4 * (doublings - std::floor(doublings));
                           const auto wave = [&](double at) {
                               return light * (0.5 + 0.5 * std::cos(M_PI * (hue + at)));
                           };
                           return {wave(0), wave(-2. / 3), wave(2. / 3)};
                       };
                       return compare_picture(d / "pixels.npy", colour, 0.002); // where brightness starts again
                   },
                   "pixels.npy"});
    all.push_back({"quantize", "quantize.cl", "-n 65536", "weights.npy scales.npy out:bytes.npy 256",
                   [](const fs::path& d) {
                       array<float>({65536}, uniform(7, -1, 1)).save(d / "weights.npy");
                       array<float>({256}, uniform(8, 0.005, 0.01)).save(d / "scales.npy");
                   },
                   [](const fs::path& d) {
                       const auto w = array<float>::load(d / "weights.npy"), s = array<float>::load(d / "scales.npy");
                       const auto b = array<signed char>::load(d / "bytes.npy");
                       outcome o;
                       size_t ends = 0;
                       for (size_t i = 0; i < w.values.size(); i++) {
                           // The quotient may round to the other side of a tie.
                           o.compared.add(b[i], std::clamp(double(w[i]) / s[i / 256], -128., 127.), 0.50002);
                           ends += b[i] == -128 || b[i] == 127;
                       }
                       o.told = text("65536 weights, %zu of them at the ends", ends);
                       return o;
                   }});
    all.push_back({"reduction", "reduction.cl", "-n 65536 -l 256", "x.npy out:sums.npy:256 local:256",
                   [](const fs::path& d) { array<float>({65536}, uniform(9, -20, 20)).save(d / "x.npy"); },
                   [](const fs::path& d) {
                       const auto x = array<float>::load(d / "x.npy"), sums = array<float>::load(d / "sums.npy");
                       outcome o;
                       double total = 0;
                       for (size_t g = 0; g < 256; g++) {
                           double want = 0;
                           for (size_t i = 0; i < 256; i++)
                               want -= std::log1p(double(x[g * 256 + i]) * x[g * 256 + i]) + 1.1447299f;
                           o.compared.add(sums[g], want, 2e-3);
                           total += sums[g];
                       }
                       o.told = text("65536 numbers, log likelihood %.2f", total);
                       return o;
                   }});
    all.push_back({"matrix_product", "matrix_product.cl", "-n 256,256", "a.npy b.npy out:c.npy",
                   [](const fs::path& d) {
                       array<float>({256, 256}, uniform(10, -1, 1)).save(d / "a.npy");
                       array<float>({256, 256}, uniform(11, -1, 1)).save(d / "b.npy");
                   },
                   [](const fs::path& d) {
                       const auto a = array<float>::load(d / "a.npy"), b = array<float>::load(d / "b.npy"),
                                  c = array<float>::load(d / "c.npy");
                       outcome o;
                       double trace = 0;
                       for (size_t i = 0; i < 256; i++)
                           for (size_t j = 0; j < 256; j++) {
                               double sum = 0;
                               for (size_t k = 0; k < 256; k++)
                                   sum += double(a[i * 256 + k]) * b[k * 256 + j];
                               o.compared.add(c[i * 256 + j], sum, 2e-5);
                               if (i == j) trace += c[i * 256 + j];
                           }
                       o.told = text("256 by 256 numbers, trace %.4f", trace);
                       return o;
                   }});
    return all;
}

// ---- Running them

// orvane-cl beside this program, in a folder; what it printed, or failure with its exit code.
std::string run_tool(const fs::path& folder, const std::string& words) {
    const fs::path tool = fs::read_symlink("/proc/self/exe").parent_path() / "orvane-cl";
    const std::string command = "cd '" + folder.string() + "' && '" + tool.string() + "' " + words;
    FILE* p = popen(command.c_str(), "r");
    if (!p) throw failure(strerror(errno));
    std::string out;
    char part[4096];
    while (const size_t n = fread(part, 1, sizeof part, p))
        out.append(part, n);
    if (const int status = pclose(p))
        throw failure("orvane-cl " + words + " ended with " + std::to_string(WEXITSTATUS(status)));
    return out;
}

void save_png(const fs::path& npy, const fs::path& to) {
    const auto pixels = array<unsigned char>::load(npy);
    if (pixels.values.size() != 4 * columns * rows) throw failure(npy.string() + " is no picture");
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = columns;
    image.height = rows;
    image.format = PNG_FORMAT_RGBA;
    png_alloc_size_t size = 0;
    if (!png_image_write_get_memory_size(image, size, 0, pixels.values.data(), 0, nullptr))
        throw failure(image.message);
    std::string bytes(size, 0);
    if (!png_image_write_to_memory(&image, bytes.data(), &size, 0, pixels.values.data(), 0, nullptr))
        throw failure(image.message);
    bytes.resize(size);
    whole_file f(to);
    f.out << bytes;
    f.complete();
}

int run(const std::vector<std::string>& words) {
    CLI::App app{"Runs the example kernels by orvane-cl and compares them with double precision on the host."};
    std::vector<std::string> names, arguments;
    std::string pictures, json;
    bool speed = false, list = false;
    app.add_option("names", names, "examples (default: all)");
    app.add_flag(
        "--speed", speed,
        "a table of ns per work-item: here; and how many times as long it takes on plain PoCL, with scalar libm, and "
        "on two threads");
    app.add_option("--json", json, "write that table into this file, for programs");
    app.add_flag("--list", list, "their names");
    app.add_option("--pictures", pictures, "write the pictures among them into this folder, as PNG");
    if (parse_words(app, words, names, "orvane-cl-examples")) return 0;

    std::vector<example> all = all_examples();
    for (const auto& n : names)
        if (std::none_of(all.begin(), all.end(), [&](const example& e) { return e.name == n; }))
            throw failure("no example " + quoted(n) + "; --list names them");
    if (!names.empty())
        std::erase_if(all,
                      [&](const example& e) { return std::find(names.begin(), names.end(), e.name) == names.end(); });
    if (list) {
        for (const auto& e : all)
            std::cout << e.name << '\n';
        return 0;
    }
    std::string temporary = (fs::temp_directory_path() / "orvane-examples-XXXXXX").string();
    if (!mkdtemp(temporary.data())) throw failure(strerror(errno));
    const struct remover {
        fs::path path;
        ~remover() {
            std::error_code none;
            fs::remove_all(path, none);
        }
    } folder{temporary};

    bool right = true;
    speed |= !json.empty();
    std::string table, rows;
    for (const auto& e : all) {
        const fs::path own = folder.path / e.name;
        fs::create_directory(own);
        e.prepare(own);
        const std::string call =
            "'" ORVANE_SOURCES "/examples/opencl/" + e.file + "' " + e.options + " " + e.arguments;
        run_tool(own, call);
        const outcome o = e.check(own);
        const comparison& c = o.compared;
        const bool good = double(c.beyond) <= o.allowed_share * double(c.values);
        right &= good;
        std::cout << text("%-21s", e.name.c_str()) << o.told << "; largest error " << text("%.2g", c.largest);
        if (o.allowed_share > 0)
            std::cout << text(", beyond 2 levels %.2f %%", 100. * double(c.beyond) / double(c.values));
        std::cout << (good ? "" : text(": WRONG, %zu values of %zu beyond what is allowed", c.beyond, c.values))
                  << std::endl;
        if (!pictures.empty() && e.picture) {
            const fs::path to = fs::path(pictures) / (e.name + ".png");
            save_png(own / e.picture, to);
            std::cout << text("%-21s", "") << to.string() << std::endl;
        }
        if (!speed) continue;
        std::stringstream lines(run_tool(own, call + " --bench"));
        std::map<std::string, double> ns;
        std::string line;
        std::getline(lines, line); // what the figures are
        while (std::getline(lines, line)) {
            const size_t begin = line.find_first_not_of(' '), end = line.find("  ", begin);
            ns[line.substr(begin, end - begin)] = std::stod(line.substr(end));
        }
        const double ours = ns.at("Orvane");
        const auto times = [&](const char* column) {
            return ns.contains(column) ? text(" %.2f", ns[column] / ours) : "";
        };
        table += "| `" + e.name + "` |" + text(" %.2f", ours) + " |" + times("plain PoCL") + " |" +
                 times("scalar libm") + " |" +
                 (ns.contains("two threads") ? text(" %.2f", ours / ns["two threads"]) : "") + " |\n";
        rows += std::string(rows.empty() ? "" : ",\n") + "{\"name\":\"" + e.name + "\"";
        for (const auto& [column, key] : {std::pair{"Orvane", "ns"},
                                          {"plain PoCL", "plain_ns"},
                                          {"scalar libm", "libm_ns"},
                                          {"two threads", "two_threads_ns"}})
            if (ns.contains(column)) rows += text(",\"%s\":%.4g", key, ns[column]);
        rows += "}";
    }
    if (speed)
        std::cout
            << "\nns per work-item on one thread, medians in turns; how many times as long others take, and how "
               "many times "
               "as fast two threads are\n| example | ns | plain PoCL | scalar libm | two threads "
               "|\n|---|---|---|---|---|\n"
            << table;
    if (!json.empty()) {
        whole_file f(json);
        f.out << "[\n" << rows << "\n]\n";
        f.complete();
    }
    return right ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    return run_program("orvane-cl-examples", [&] { return run({argv + 1, argv + argc}); });
}
