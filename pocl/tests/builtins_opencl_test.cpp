// Every built-in that is an export, called from OpenCL C at every width through the driver, against the export's bits
// at width 1. The calls of one lane are in loops over work-items, where they become wide.
#include "opencl.h"
#include "tests/support.h"

#include <algorithm>
#include <cmath>
#include <cstring>

using namespace orvane;

namespace {

constexpr int rows_of_a_kernel = 16, most_results = 2;
constexpr size_t lanes = 1008; // a multiple of every width

std::string name_of_call(const kernel_row& row, int width) {
    const std::string call = row.served_builtin(width); // "exp(float8)"
    return call.substr(0, call.find('('));
}
std::string type_of(lane_type t, int width) {
    return std::string(opencl_type(t)) + (width == 1 ? "" : std::to_string(width));
}

// Where a kernel's rows have their lanes: arguments and results of eight bytes per lane at most.
size_t argument_offset(size_t place, int j) { return (place * 3 + j) * lanes * 8; }
size_t result_offset(size_t place, int width_index, int r) {
    return ((place * std::size(widths) + width_index) * most_results + r) * lanes * 8;
}

// One row at one width, as statements. Address spaces of an out-pointer take turns.
std::string statements(const kernel_row& row, size_t place, int width_index) {
    const int w = widths[width_index];
    const std::string lane(1, 'v'), width = std::to_string(w);
    auto typed = [&](lane_type t, const char* buffer, size_t offset) {
        return "((global " + std::string(buffer == std::string("in") ? "const " : "") + std::string(opencl_type(t)) +
               "*)(" + buffer + " + " + std::to_string(offset) + "))";
    };
    auto load = [&](int j) {
        const std::string from = typed(row.argument(j), "in", argument_offset(place, j));
        return w == 1 ? from + "[i]" : "vload" + width + "(i, " + from + ")";
    };
    auto store = [&](lane_type t, const std::string& value, int r) {
        const std::string to = typed(t, "out", result_offset(place, width_index, r));
        return w == 1 ? to + "[i] = " + value + "; " : "vstore" + width + "(" + value + ", i, " + to + "); ";
    };
    std::string text = "    if (i < " + std::to_string(lanes / w) + ") { ", call = name_of_call(row, w) + "(";
    for (int j = 0; j < row.arguments(); j++)
        call += (j ? ", " : "") + load(j);
    if (row.has_out()) {
        const std::string type = type_of(row.extra, w);
        const bool through_local = w == 3 || w == 16;
        if (through_local) call += ", (local " + type + "*)shared + get_local_id(0)";
        else {
            text += type + " e; ";
            call += ", &e";
        }
        text += type_of(row.result(0), w) + " y = " + call + "); ";
        if (through_local) text += type + " e = ((local " + type + "*)shared)[get_local_id(0)]; ";
        text += store(row.extra, "e", 1) + store(row.result(0), "y", 0);
    } else text += store(row.result(0), call + ")", 0);
    return text + "}\n";
}

// Rows that the compiler may turn into an instruction or two: any NaN will do, and a zero of either sign where the
// arguments are zeros of different sign.
bool same(const kernel_row& row, lane_type t, uint64_t a, uint64_t b) {
    if (a == b) return true;
    if (!is_floating(t)) return false;
    const double x = value_of(t, a), y = value_of(t, b);
    if (x != x && y != y) return true;
    return (row.builtin == "fmin" || row.builtin == "fmax") && x == 0 && y == 0;
}

// What may differ: rsqrt is computed as 1 / sqrt, within a unit in the last place of the export.
bool near(const kernel_row& row, lane_type t, uint64_t a, uint64_t b) {
    return same(row, t, a, b) || (row.builtin == "rsqrt" && a - b + 1 <= 2);
}

void compare(bool relaxed) {
    device d;
    ASSERT_TRUE(d.has_orvane());
    std::vector<const kernel_row*> rows;
    for (const auto& row : library_rows())
        if (row.is_relaxed() == relaxed && !row.builtin.empty() && !row.builtin.starts_with("operator") &&
            row.builtin != "nearbyint") // C has it, OpenCL C has not
            rows.push_back(&row);
    size_t compared = 0;
    std::string source = "#pragma OPENCL EXTENSION cl_khr_fp64 : enable\n";
    const size_t kernels = (rows.size() + rows_of_a_kernel - 1) / rows_of_a_kernel;
    for (size_t k = 0; k < kernels; k++)
        for (bool scalar : {true, false}) {
            source += "kernel void " + std::string(scalar ? "scalar" : "wide") + std::to_string(k) +
                      "(global const char* in, global char* out, local char* shared) {\n"
                      "    const size_t i = get_global_id(0);\n";
            for (size_t r = k * rows_of_a_kernel; r < std::min(rows.size(), (k + 1) * rows_of_a_kernel); r++)
                for (size_t w = 0; w < std::size(widths); w++)
                    if ((widths[w] == 1) == scalar) source += statements(*rows[r], r % rows_of_a_kernel, w);
            source += "}\n";
        }
    const cl::Program program = d.build(source, relaxed ? "-cl-std=CL1.2 -cl-fast-relaxed-math" : "-cl-std=CL1.2");
    rng bits(20);
    for (size_t k = 0; k < kernels; k++) {
        std::vector<unsigned char> in(argument_offset(rows_of_a_kernel, 0)),
            out(result_offset(rows_of_a_kernel, 0, 0), 0xcc);
        const size_t from = k * rows_of_a_kernel, to = std::min(rows.size(), from + rows_of_a_kernel);
        std::vector<std::vector<words>> wanted;
        for (size_t r = from; r < to; r++) {
            const kernel_row& row = *rows[r];
            auto x = random_patterns(row, lanes / 2, bits);
            const auto ordinary = ordinary_arguments(row, lanes / 2, bits);
            for (int j = 0; j < row.arguments(); j++) {
                x[j].insert(x[j].end(), ordinary[j].begin(), ordinary[j].end());
                for (size_t n = 0; n < lanes; n++)
                    write_lane(&in[argument_offset(r - from, j) + n * size_of(row.argument(j))], row.argument(j),
                               x[j][n]);
            }
            wanted.push_back(by_single_lanes({&row, &library_under_test()}, x));
        }
        cl::Buffer from_host = d.buffer(in), results = d.buffer(out);
        for (const char* name : {"scalar", "wide"}) {
            cl::Kernel kernel(program, (name + std::to_string(k)).c_str());
            kernel.setArg(0, from_host);
            kernel.setArg(1, results);
            kernel.setArg(2, cl::Local(lanes / 16 * 128));
            d.queue.enqueueNDRangeKernel(kernel, cl::NullRange, cl::NDRange(lanes), cl::NDRange(lanes / 16));
        }
        d.read(results, out);
        for (size_t r = from; r < to; r++) {
            const kernel_row& row = *rows[r];
            for (size_t w = 0; w < std::size(widths); w++)
                for (int y = 0; y < row.results() + row.has_out(); y++) {
                    const lane_type t = row.result(y);
                    int wrong = 0;
                    for (size_t n = 0; n < lanes; n++) {
                        const uint64_t got = read_lane(&out[result_offset(r - from, w, y) + n * size_of(t)], t),
                                       want = wanted[r - from][y][n];
                        compared++;
                        if (!near(row, t, got, want) && wrong++ == 0)
                            ADD_FAILURE() << row.served_builtin(widths[w]) << " result " << y << " lane " << n
                                          << std::hex << ": " << got << ", the export " << want;
                    }
                }
        }
    }
    EXPECT_GT(compared, rows.size() * lanes * 6 - 1);
}

} // namespace

TEST(BuiltinsThroughOpenCl, HaveTheBitsOfTheExports) { compare(false); }
TEST(BuiltinsThroughOpenCl, RelaxedOnesToo) { compare(true); }

// Conversions to integers of 8 and 16 bits, which are no exports: to the nearest value within the type, of a NaN 0.
TEST(BuiltinsThroughOpenCl, NarrowConversionsSaturate) {
    const std::vector<float> ends{0,        -0.f,     0.5f, -0.5f,  1.5f,     2.5f,      -2.5f,  126.5f,
                                  127.5f,   -128.5f,  -129, 254.5f, 255.5f,   0.499999f, 1e-40f, 32766.5f,
                                  32767.5f, 65535.5f, 1e9f, -1e9f,  INFINITY, -INFINITY, NAN,    -NAN};
    std::vector<float> x(960);
    for (size_t i = 0; i < x.size(); i++)
        x[i] = i < ends.size() ? ends[i] : float(rng(i)() % 1400000) / 10 - 70000;
    struct {
        const char* name;
        double least, greatest;
    } const types[] = {{"char", -128, 127}, {"uchar", 0, 255}, {"short", -32768, 32767}, {"ushort", 0, 65535}};
    const std::pair<const char*, double (*)(double)> modes[] = {{"", [](double v) { return trunc(v); }},
                                                                {"_rtz", [](double v) { return trunc(v); }},
                                                                {"_rte", [](double v) { return nearbyint(v); }},
                                                                {"_rtp", [](double v) { return ceil(v); }},
                                                                {"_rtn", [](double v) { return floor(v); }}};
    std::string source;
    for (const auto& t : types)
        for (const auto& [mode, _] : modes)
            for (int w : widths) {
                const std::string n = w == 1 ? "" : std::to_string(w), to = t.name + n;
                source += "kernel void to_" + to + mode +
                          "(global const float* x, global int* y) { const size_t i = "
                          "get_global_id(0); const float" +
                          n + " v = " + (w == 1 ? "x[i]" : "vload" + n + "(i, x)") + "; const int" + n +
                          " f = convert_int" + n + "(convert_" + to + "_sat" + mode + "(v)), d = convert_int" + n +
                          "(convert_" + to + "_sat" + mode + "(convert_double" + n + "(v))); const int" + n +
                          " r = f == d ? f : 1 << 20; " + (w == 1 ? "y[i] = r" : "vstore" + n + "(r, i, y)") +
                          "; }\n";
            }
    device d;
    const cl::Program program = d.build(source, "-cl-std=CL1.2");
    cl::Buffer in = d.buffer(x);
    for (const auto& t : types)
        for (const auto& [mode, rounded] : modes)
            for (int w : widths) {
                const std::string name = std::string("to_") + t.name + (w == 1 ? "" : std::to_string(w)) + mode;
                std::vector<int> y(x.size());
                cl::Buffer out = d.buffer(y);
                cl::Kernel kernel(program, name.c_str());
                kernel.setArg(0, in);
                kernel.setArg(1, out);
                d.queue.enqueueNDRangeKernel(kernel, cl::NullRange, cl::NDRange(x.size() / w), cl::NDRange(20));
                d.read(out, y);
                for (size_t i = 0; i < x.size(); i++)
                    ASSERT_EQ(y[i], x[i] != x[i] ? 0 : std::clamp(rounded(x[i]), t.least, t.greatest))
                        << name << ' ' << x[i];
            }
}
