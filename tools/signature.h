// The list of exports as data, and the calling form of each: what a caller must know to call an export.
//
// Everything here is computed from rows of frame/exports.def (or of another list of the same form) and from the rules
// of the two calling forms; it shares no code with the library.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

enum class lane_type { none, f32, f64, i32, u32, i64, u64 };
enum class signature_class {
    one_argument,
    two_arguments,
    three_arguments,
    with_integer,
    to_integer,
    pointer_out,
    two_pointer_out,
    pair,
    integer,
    integer_pair,
    bits_to_nan,
    conversion
};
enum class kernel_path { settled, settled_large, callout, large, all_lanes };

inline constexpr int widths[] = {1, 2, 3, 4, 8, 16};

constexpr int size_of(lane_type t) {
    return t == lane_type::f64 || t == lane_type::i64 || t == lane_type::u64 ? 8 : 4;
}
constexpr bool is_floating(lane_type t) { return t == lane_type::f32 || t == lane_type::f64; }
std::string_view to_string(lane_type);
std::string_view to_string(signature_class);
std::string_view c_type(lane_type);      // float, double, int32_t ...
std::string_view opencl_type(lane_type); // float, double, int, uint, long, ulong

// One row of the list: a pair of family and tier.
struct kernel_row {
    std::string_view name, tier;
    signature_class sclass;
    lane_type in, out, extra;
    double spare;
    kernel_path path;
    std::array<double, 4> range; // of x, and of every further argument
    std::vector<uint64_t> special;
    std::string_view twin_name, twin_tier; // empty: no twin
    std::string_view builtin;              // empty: none

    int arguments() const;           // floating and integer, without the out-pointer
    lane_type argument(int j) const; // type of argument j
    bool has_out() const;            // an out-lane through a pointer
    int results() const;             // without the out-lane
    lane_type result(int j) const;   // type of result j; the out-lane is result(results())
    bool has_slow_path() const { return path != kernel_path::settled && path != kernel_path::settled_large; }
    bool is_relaxed() const { return tier == "rm"; } // for -cl-fast-relaxed-math
    std::string suffix() const { return tier == "default" ? "" : "_" + std::string(tier); }
    std::string base() const;          // without the f
    std::string family_symbol() const; // sexp, dln: as blocks and slow paths are named
    std::string slow_path_symbol() const { return "__orvane_" + family_symbol() + "_cout_rare"; }
    // The one OpenCL C built-in that becomes a call at this width, with its types: "exp(float8)", "operator/(int,
    // int)"; of the rm tier under -cl-fast-relaxed-math alone. Empty: none.
    std::string served_builtin(int width) const;
};

// What list.inc turns the columns of a row into.
namespace list {
template <class... T> std::array<double, 4> range_of(T... x) {
    static_assert(sizeof...(T) == 2 || sizeof...(T) == 4, "range(lo, hi) or range(lo, hi, lo of y, hi of y)");
    std::array<double, 4> r{double(x)...};
    if (sizeof...(T) == 2) r[2] = r[0], r[3] = r[1];
    return r;
}
kernel_row row(std::string_view name, std::string_view tier, std::string_view sclass, std::string_view in,
               std::string_view out, std::string_view extra, double spare, std::string_view path,
               std::array<double, 4> range, std::string_view special, std::string_view builtin);
// A row whose other columns are those of the row that it names: `checked` fills them in.
kernel_row twin(std::string_view name, std::string_view tier, std::string_view of_name, std::string_view of_tier,
                std::string_view builtin);
// The rows, twins filled in. Throws with one line if they do not fit together: one twice, a twin that is no earlier
// row, or two that serve one built-in.
std::vector<kernel_row> checked(std::vector<kernel_row> rows);
} // namespace list

// All rows of the library's list, and the row of a name and tier.
const std::vector<kernel_row>& library_rows();
const kernel_row* find_row(const std::vector<kernel_row>& rows, std::string_view name, std::string_view tier);

// Where the lanes of an argument or of a result lie.
struct place {
    enum class in { vector_registers, integer_register, stack, result_object, out_object } where;
    lane_type type;
    int lanes;         // live lanes
    int first = 0;     // first vector register; integer register by its place among rdi, rsi, rdx; rax as result: 0
    int registers = 0; // vector registers taken
    int offset = 0;    // bytes: above the stack pointer at entry; in the result object; bit / 8 in a packed rax
};

// Lanes that lie in memory or in registers for a vector of W: a 3-wide one has its spare lane.
constexpr int stored_lanes(int width) { return width == 3 ? 4 : width; }

struct call_plan {
    const kernel_row* row;
    int width;
    std::string symbol;
    bool memory_form;
    std::vector<place> arguments, results; // results: the out-lane last
    int out_register = -1;                 // integer register of the out-pointer
    int stack_bytes = 0;                   // of the arguments in memory form
    int result_bytes = 0;                  // of the result object in memory form

    std::string wrapper_symbol() const { return symbol + "_cout_wrapper"; }
};

call_plan plan_of(const kernel_row& row, int width);
// The plan of an export by its symbol, with or without the prefix "__orvane_l9_"; row is null if there is none.
call_plan plan_of(const std::vector<kernel_row>& rows, std::string_view symbol);

} // namespace orvane
