// Calls of exports by their plan: lanes in and out as words, through the raw-register caller.
#pragma once

#include "raw_call.h"
#include "signature.h"

#include <span>
#include <vector>

namespace orvane {

// The library, or any shared object of the same kind, opened for calls.
class library {
public:
    // Null handle if the file cannot be opened; error() then says why.
    explicit library(const std::string& path);
    ~library();
    library(const library&) = delete;
    const std::string& error() const { return what; }
    const void* address(const std::string& exported) const;
    void* handle() const { return h; }

private:
    void* h;
    std::string what;
};

// Lanes of one argument or result as bit patterns; a 32-bit lane uses the low half of a word.
using words = std::vector<uint64_t>;

// Puts arguments where the calling form wants them and reads results from where it leaves them. Results come in the
// order of plan.results, the out-lane last, with stored_lanes(width) lanes each: the spare lane is among them.
class lane_caller {
public:
    lane_caller(const call_plan& plan, const void* function);

    const call_plan& plan() const { return p; }
    // `arguments[j]` has `width` lanes, or one more for the spare lane at width 3; `results[j]` is resized.
    void operator()(const std::vector<words>& arguments, std::vector<words>& results);

    // The parts, for tests that look at everything: in.vector, in.integer and stack hold the arguments after place();
    // whatever else is in them stays.
    void place_arguments(const std::vector<words>& arguments);
    void call(size_t residue = 0);
    void take_results(std::vector<words>& results) const;
    machine_state in, out;
    std::vector<unsigned char> stack, result_object;
    unsigned char* argument_lanes(size_t j); // where the lanes of an argument go, and those of a result come from
    const unsigned char* result_lanes(size_t j) const;
    void* out_object; // where the out-pointer points: own memory unless set
    std::vector<unsigned char> own_out_object;

private:
    call_plan p;
    const void* f;
};

// Bit patterns and values.
uint64_t read_lane(const void* at, lane_type t);
void write_lane(void* at, lane_type t, uint64_t word);
double value_of(lane_type t, uint64_t word); // the number a pattern stands for, as a double (64-bit integers rounded)
uint64_t word_of(lane_type t, double value); // the nearest lane of that type (integers: truncated)

} // namespace orvane
