// A pass: one function run over a buffer of lanes that stays in the first-level cache.
#pragma once

#include "tools/signature.h"

#include <functional>
#include <stdexcept>

namespace orvane::bench {

inline constexpr int lanes_of_buffer = 512;

// Arguments and results, in the types of the function that is run; 3-wide vectors lie four lanes apart. The arrays
// start at different offsets in a page, so that a store never looks like the next load's.
struct buffer {
    struct alignas(64) array {
        unsigned char bytes[lanes_of_buffer * 8 + 64 * 5];
        template <class T> T* as() { return reinterpret_cast<T*>(bytes); }
    };
    array argument[3], result[2];
};
using pass = std::function<void(buffer&)>;

// Calls `f` with the C type of a lane type.
template <class T> struct type {};
template <class F> auto with_type(lane_type t, F f) {
    switch (t) {
    case lane_type::f32:
        return f(type<float>());
    case lane_type::f64:
        return f(type<double>());
    case lane_type::i32:
        return f(type<int32_t>());
    case lane_type::u32:
        return f(type<uint32_t>());
    case lane_type::i64:
        return f(type<int64_t>());
    case lane_type::u64:
        return f(type<uint64_t>());
    default:
        throw std::logic_error("a lane without a type");
    }
}

// An export, called vector by vector from compiled code by its plan. Calls are independent of each other, or chained:
// all arguments of one wait for all results of the one before (but for an out-lane), by two instructions that change
// nothing, an AND with zeros and an exclusive OR.
enum class calls { independent, chained };
pass export_pass(const call_plan&, const void* function, calls = calls::independent);

} // namespace orvane::bench
