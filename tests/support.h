// What tests share: the library under test, its symbol table, and arguments to call its exports with.
#pragma once

#include "tests/bent/bend.h"
#include "tools/call_plan.h"
#include "tools/truth.h"

#include <gtest/gtest.h>
#include <map>
#include <random>

namespace orvane {

// A shared object with its symbol table, hidden symbols too.
class object : public library {
public:
    explicit object(const std::string& path);
    // Where a symbol of any visibility lies in this process; null if there is none.
    const void* symbol(const std::string& name) const;
    uint64_t loaded_at() const { return base; } // what symbols' values count from
    struct entry {
        std::string name;
        uint64_t value, size;
        bool is_function;
    };
    const std::vector<entry>& symbols() const { return table; }
    const std::string path;

private:
    std::vector<entry> table;
    std::map<std::string, uint64_t> values;
    uint64_t base = 0;
};

object& library_under_test();
object& probe_library();
// The bent library: kernels fed by the processor's 12-bit estimates, with other estimates in their place; width 8
// alone.
object& bent_library();
void set_bend(bend b);
// Whether this processor has the estimates with which the figures in the tests were measured.
bool estimates_are_known();
const std::vector<kernel_row>& probe_rows();

// A row with the object that holds it: what the list-driven tests run over.
struct subject {
    const kernel_row* row;
    object* in;
    lane_caller caller(int width) const;
};
void PrintTo(const subject& s, std::ostream* to);
std::vector<subject> built_subjects(); // of the library, then of the probes
std::string name_of(const testing::TestParamInfo<subject>& info);
#define FOR_ALL_BUILT(suite) INSTANTIATE_TEST_SUITE_P(Built, suite, testing::ValuesIn(built_subjects()), name_of)

// Lanes of arguments: [argument][lane].
using rng = std::mt19937_64;
std::vector<words> ordinary_arguments(const kernel_row& row, int lanes, rng& r);
std::vector<words> special_arguments(const kernel_row& row, int lanes);
std::vector<words> random_patterns(const kernel_row& row, int lanes, rng& r); // any bits, and edge values among them

// Lane by lane through the one-lane export: what every other width must give, under the given control state.
std::vector<words> by_single_lanes(const subject& s, const std::vector<words>& arguments, uint32_t mxcsr = 0x1F80);

// The result of the slow path of a row for one lane, called at the address that the symbol table gives.
struct slow_result {
    int status;
    uint64_t result, out;
};
slow_result call_slow_path(object& in, const kernel_row& row, const std::vector<uint64_t>& lane,
                           uint64_t result_before = 0);

// One lane by its values, which are rounded to the types of the arguments: the first result's word or value, and the
// status that the slow path tells. A kernel of one argument does not look at y.
uint64_t word_for(std::string_view name, std::string_view tier, double x, double y = 0);
double value_for(std::string_view name, std::string_view tier, double x, double y = 0);
int status_for(std::string_view name, std::string_view tier, double x, double y = 0);
inline uint64_t quiet_nan(lane_type t, bool negative = false) {
    return t == lane_type::f64 ? 0x7FF8000000000000 | uint64_t(negative) << 63
                               : 0x7FC00000 | uint64_t(negative) << 31;
}

// A pair by single lanes: how words go in and out of it.
struct member {
    const kernel_row* row;
    lane_type type() const { return row->in; }
    bool is_float() const { return row->in == lane_type::f32; }
    bool is_fast() const { return row->tier != "default"; }
    uint64_t sign() const { return is_float() ? 0x80000000 : 0x8000000000000000; }
    uint64_t quiet() const { return quiet_nan(row->in); }
    uint64_t word(double x) const { return word_of(row->in, x); }
    double rounded(double x) const { return value_of(row->in, word(x)); } // to the type
    // The first result for words or values of the arguments; the status that the slow path tells.
    uint64_t of_words(const std::vector<uint64_t>& x) const;
    double operator()(double x) const { return value_for(row->name, row->tier, x); }
    double operator()(double x, double y) const { return value_for(row->name, row->tier, x, y); }
    int status(double x, double y = 0) const { return status_for(row->name, row->tier, x, y); }
};
// f(member) for every tier of the functions, in both types.
template <class F> void each_member(std::initializer_list<std::string_view> functions, F f) {
    for (const auto function : functions) {
        bool any = false;
        for (const auto& row : library_rows())
            if (row.base() == function) {
                SCOPED_TRACE(std::string(row.name) + " " + std::string(row.tier));
                f(member{&row});
                any = true;
            }
        if (!any) ADD_FAILURE() << "no family " << function;
    }
}

// f(tier) for the tiers that a function has.
template <class F> void each_tier(std::string_view name, F f) {
    if (!find_row(library_rows(), name, "default")) ADD_FAILURE() << "no family " << name;
    for (auto tier : {"default", "rm", "native", "half"})
        if (find_row(library_rows(), name, tier)) {
            SCOPED_TRACE(std::string(name) + " " + tier);
            f(tier);
        }
}

// All lanes of an export at width 8 or 16, for sweeps: arguments and results lane by lane.
class sweep {
public:
    sweep(std::string_view name, std::string_view tier = "default", int width = 8, object& in = library_under_test());
    const std::vector<words>& operator()(const std::vector<words>& arguments); // any number of lanes
    const kernel_row& row() const { return *s.row; }

private:
    subject s;
    lane_caller call;
    std::vector<words> results;
};

// The largest error against the truth over lanes, with the arguments where it occurs.
struct worst {
    double ulps = 0;
    uint64_t argument = 0, second = 0;
};
worst worst_error(sweep& f, truth& t, const std::vector<words>& arguments, int result = 0);

} // namespace orvane
