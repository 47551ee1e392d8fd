// The largest known error of each kernel and the argument where it occurs: the rows of data/worst_cases.txt, and what
// is needed to measure one again.
#pragma once

#include "call_plan.h"
#include "truth.h"

#include <filesystem>
#include <string>
#include <vector>

namespace orvane {

// How an error is told. ulp: in units in the last place of the true value. relative: to the true value, or to the
// smallest normal number where the true value is smaller; for fast double tiers, whose errors are millions of ulps.
// absolute: for fast sines and cosines, whose errors next to their zeros have no bound in ulps.
enum class error_measure { ulp, relative, absolute };

// Which part of a kernel gives a lane its result: the formula, the inline path of large arguments, or the slow path.
enum class lane_path { vector, large, slow };

std::string_view to_string(error_measure);
std::string_view to_string(lane_path);

struct worst_case {
    const kernel_row* row;
    lane_path path;
    std::vector<uint64_t> arguments; // bit patterns
    double error;
    error_measure measure;
    uint64_t estimates = 0; // of the processor on which the error occurs; 0: on all
};

// The measure in which a kernel's errors are told.
error_measure measure_of(const kernel_row& row, lane_path path);

// The text of a source file with one line for each row of its kernels above the line that exports them, in place of
// such lines that it has. The number of rows that found their place is added to `placed`.
std::string with_error_lines(const std::string& source, const std::vector<worst_case>& rows, int* placed);
// The sources that have such lines, by name: all kernels of the folders, less those of the gamma functions.
std::vector<std::filesystem::path> sources_with_error_lines(const std::filesystem::path& root);

// kind_of_processor() as a number; never 0.
uint64_t estimates_of_this_processor();

// The data file, read and written. Reading throws one line that names file, line and what is wrong there; writing
// puts rows in the order of the list of exports and keeps the comment lines that the file begins with.
std::vector<worst_case> read_worst_cases(const std::filesystem::path& file);
void write_worst_cases(const std::filesystem::path& file, std::vector<worst_case> rows);
std::string line_of(const worst_case& w); // as in the file, without the end of line

// The largest known error of a pair on any path: of data/worst_cases.txt where that has rows of its kernel, else what
// follows from the meaning of the family: 0 where results are exact, 0.5 ulp where they are rounded to nearest once,
// and 1 ulp where they are rounded once in another direction.
struct known_error {
    double error;
    error_measure measure;
};
known_error largest_known_error(const kernel_row& row, const std::vector<worst_case>& cases);

// A kernel's one-lane export, lane by lane: results, the path that the lane took, and its error.
class one_lane {
public:
    one_lane(const kernel_row& row, const library& in);
    const kernel_row& row() const { return *caller.plan().row; }
    // Results of a lane; valid until the next call.
    const std::vector<words>& operator()(const std::vector<uint64_t>& lane);
    // Of the last call. A call of the slow path leaves its return address, one in the kernel, below the stack
    // pointer.
    lane_path path() const { return last; }
    // The largest error of the last call's floating results against the truth; of none, if the truth tells none.
    double error(truth& t, error_measure m);
    // Whether the kernel's code holds one of the estimate instructions.
    bool is_fed_by_estimates() const { return fed; }

private:
    lane_caller caller;
    const unsigned char* code;
    size_t code_size;
    bool fed;
    lane_path last = lane_path::vector;
    std::vector<uint64_t> lane;
    std::vector<words> arguments, results;
};

// The magnitude from which a kernel takes its inline path of large arguments; infinite where it has none.
double large_from(const kernel_row& row);

// |result - true value| as a measure tells it; infinite where one of them alone is a number.
double error_in(error_measure m, truth& t, int j, lane_type type, uint64_t result);

} // namespace orvane
