// Every built-in that is an export, called from OpenCL C at every width through the driver, against the export's bits
// at width 1. The calls of one lane are in loops over work-items, where they become wide.
#include "opencl.h"
#include "tests/support.h"

#include <algorithm>
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
