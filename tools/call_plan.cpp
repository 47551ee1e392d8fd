#include "call_plan.h"

#include <bit>
#include <dlfcn.h>

namespace orvane {

library::library(const std::string& path) : h(dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL)) {
    if (!h) what = dlerror();
}
library::~library() {
    if (h) dlclose(h);
}
const void* library::address(const std::string& exported) const { return dlsym(h, exported.c_str()); }

uint64_t read_lane(const void* at, lane_type t) {
    uint64_t w = 0;
    memcpy(&w, at, size_of(t));
    return w;
}
void write_lane(void* at, lane_type t, uint64_t word) { memcpy(at, &word, size_of(t)); }

double value_of(lane_type t, uint64_t w) {
    switch (t) {
    case lane_type::f32:
        return std::bit_cast<float>((uint32_t)w);
    case lane_type::f64:
        return std::bit_cast<double>(w);
    case lane_type::i32:
        return (int32_t)w;
    case lane_type::u32:
        return (uint32_t)w;
    case lane_type::i64:
        return (double)(int64_t)w;
    case lane_type::u64:
        return (double)w;
    default:
        return 0;
    }
}
uint64_t word_of(lane_type t, double v) {
    switch (t) {
    case lane_type::f32:
        return std::bit_cast<uint32_t>((float)v);
    case lane_type::f64:
        return std::bit_cast<uint64_t>(v);
    case lane_type::i32:
        return (uint32_t)(int32_t)v;
    case lane_type::u32:
        return (uint32_t)v;
    case lane_type::i64:
        return (uint64_t)(int64_t)v;
    case lane_type::u64:
        return (uint64_t)v;
    default:
        return 0;
    }
}

lane_caller::lane_caller(const call_plan& plan, const void* function) : p(plan), f(function) {
    memset(&in, 0, sizeof in);
    memset(&out, 0, sizeof out);
    in.mxcsr = 0x1F80;
    in.x87_control = 0x37F;
    stack.resize(p.stack_bytes);
    result_object.resize(p.result_bytes);
    own_out_object.resize(p.out_register >= 0 ? size_of(p.row->extra) * stored_lanes(p.width) : 0);
    out_object = own_out_object.data();
}

constexpr int registers[] = {rdi, rsi, rdx};

unsigned char* lane_caller::argument_lanes(size_t j) {
    const place& a = p.arguments[j];
    return a.where == place::in::vector_registers   ? in.vector[a.first]
           : a.where == place::in::integer_register ? (unsigned char*)&in.integer[registers[a.first]]
                                                    : stack.data() + (a.offset - 8);
}
const unsigned char* lane_caller::result_lanes(size_t j) const {
    const place& r = p.results[j];
    return r.where == place::in::vector_registers   ? out.vector[r.first]
           : r.where == place::in::integer_register ? (unsigned char*)&out.integer[rax] + r.offset
           : r.where == place::in::result_object    ? result_object.data() + r.offset
                                                    : (unsigned char*)out_object;
}

void lane_caller::place_arguments(const std::vector<words>& arguments) {
    if (p.memory_form) in.integer[rdi] = (uint64_t)result_object.data();
    if (p.out_register >= 0) in.integer[registers[p.out_register]] = (uint64_t)out_object;
    for (size_t j = 0; j < p.arguments.size(); j++) {
        const lane_type type = p.arguments[j].type;
        unsigned char* at = argument_lanes(j);
        for (size_t i = 0; i < arguments[j].size(); i++)
            write_lane(at + i * size_of(type), type, arguments[j][i]);
    }
}

void lane_caller::call(size_t residue) { orvane_raw_call(f, &in, &out, stack.data(), stack.size(), residue); }

void lane_caller::take_results(std::vector<words>& results) const {
    results.resize(p.results.size());
    for (size_t j = 0; j < p.results.size(); j++) {
        const place& r = p.results[j];
        const unsigned char* at = result_lanes(j);
        results[j].resize(stored_lanes(p.width));
        for (size_t i = 0; i < results[j].size(); i++)
            results[j][i] = read_lane(at + i * size_of(r.type), r.type);
    }
}

void lane_caller::operator()(const std::vector<words>& arguments, std::vector<words>& results) {
    place_arguments(arguments);
    call();
    take_results(results);
}

} // namespace orvane
