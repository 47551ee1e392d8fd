// Digests of what kernels and slow paths give over arguments by rule (arguments.h), and the recorded ones.
#pragma once

#include "arguments.h"

namespace orvane {

// A private copy of the library, whose code and constants can be written.
class private_copy {
public:
    private_copy();
    ~private_copy();
    object& in() { return *o; }
    unsigned char* at(uint64_t value) { return base + value; } // of a symbol's value
    // Replaces every slow path by one that leaves `mark` and nothing else in the result: shows which lanes are
    // special.
    void mark_special_lanes();
    static constexpr uint64_t mark = 0x7FDEADED7FDEADED;

private:
    int file;
    std::unique_ptr<object> o;
    unsigned char* base;
};

// At most 256 lanes of one rule.
struct group {
    const rule* of;
    size_t first, last; // lanes of the rule
    std::string name() const;
};

// A kernel, which stands for its twins and its widths, or a slow path, with its arguments.
struct digested {
    std::string name; // "exp default", or the symbol of the slow path
    const kernel_row* row;
    bool is_slow_path, takes_estimates;
    object::entry code;
    std::set<std::string> blocks; // that the code refers to
    std::vector<rule> rules;
    std::vector<group> groups;
};
// All of them, in the order of the list, without rules and groups.
std::vector<digested> everything_digested(object& in);
// Fills in rules and groups.
void give_arguments(digested& d);

// Takes digests with the code of `in`.
class digester {
public:
    digester(object& in, const digested& d);
    uint64_t results(const group& g);       // of all result words, and of a slow path's status
    uint32_t special_lanes(const group& g); // of which lanes are special: `in` marks them
    words lane(const group& g, size_t i);   // the results of one

private:
    template <class F> void each_lane(const group& g, F f);
    const digested& d;
    std::unique_ptr<lane_caller> kernel;
    const void* slow_path = nullptr;
    std::vector<words> part, got;
};

// Recorded digests: of every processor, and for kernels fed by estimates of this kind of processor.
struct recorded {
    std::map<std::string, std::vector<uint64_t>> results, special_lanes; // by name, a digest for each group
};
std::string digests_file(bool takes_estimates);
bool is_recorded_kind();
const recorded& recorded_digests(bool takes_estimates);
// Blocks, tables, and constants beside the code, as they are: of many an entry the low bits lie below the last place
// of every result, and are held by this alone.
std::string constants_file();
std::string lines_of_constants(object& in);
// Of one thing, as recorded: lines of results and special lanes.
std::string to_lines(const digested& d, object& in, private_copy& marking);

} // namespace orvane
