// Writes exports.json and orvane.h, which tell callers about the exports, from the list and from
// data/worst_cases.txt.
//
//     write-exports FOLDER
#include "docs.h"
#include "opencl_limits.h"
#include "signature.h"
#include "special_values.h"
#include "whole_file.h"
#include "worst_cases.h"

#include <filesystem>
#include <iostream>
#include <map>
#include <nlohmann/json.hpp>

using namespace orvane;
using json = nlohmann::ordered_json;

namespace {

constexpr const char* integer_registers[] = {"rdi", "rsi", "rdx"};

std::string vector_register(const place& p, int k) {
    const bool whole = size_of(p.type) * stored_lanes(p.lanes) > 16;
    return (whole ? "ymm" : "xmm") + std::to_string(p.first + k);
}

json described(const place& p, const call_plan& plan, bool is_result) {
    json j{{"type", std::string(opencl_type(p.type))}, {"lanes", p.lanes}};
    switch (p.where) {
    case place::in::vector_registers:
        for (int k = 0; k < p.registers; k++)
            j["registers"].push_back(vector_register(p, k));
        break;
    case place::in::integer_register:
        j["registers"].push_back(is_result ? "rax" : integer_registers[p.first]);
        if (p.offset) j["bit"] = 8 * p.offset;
        break;
    case place::in::stack:
        j["stack_offset"] = p.offset;
        break;
    case place::in::result_object:
        j["object_offset"] = p.offset;
        j["pointer"] = "rdi";
        break;
    case place::in::out_object:
        j["pointer"] = integer_registers[plan.out_register];
        j["object_bytes"] = size_of(p.type) * stored_lanes(p.lanes);
        break;
    }
    return j;
}

std::string twin_of(const kernel_row& row, int width) {
    if (row.twin_name.empty()) return "";
    return plan_of(*find_row(library_rows(), row.twin_name, row.twin_tier), width).symbol;
}

// The scalar families whose slow paths compute in extended precision. Their text on the state that this wants is
// below.
bool uses_x87(const kernel_row& row) {
    const std::string base = row.base();
    return base == "lgamma" || base == "lgammar" || (base == "tgamma" && row.in == lane_type::f64);
}

// Errors and limits by their measure: {"ulp": 0.749}. A limit also says where it holds, or how it grows.
json described(const known_error& e) { return {{std::string(to_string(e.measure)), e.error}}; }
json described(const std::optional<error_limit>& l) {
    if (!l) return nullptr;
    json j = l->absolute ? json{{"absolute", l->absolute}} : json{{"ulp", l->ulp}};
    if (!l->where().empty()) j["where"] = std::string(l->where());
    return j;
}

json object_of(const kernel_row& row, int width, const std::vector<worst_case>& cases) {
    const call_plan p = plan_of(row, width);
    json j{{"symbol", p.symbol},
           {"family", std::string(row.name)},
           {"tier", std::string(row.tier)},
           {"width", width},
           {"class", std::string(to_string(row.sclass))},
           {"form", p.memory_form ? "memory" : "register"}};
    j["arguments"] = json::array();
    j["results"] = json::array();
    int integers = p.out_register >= 0;
    for (const auto& a : p.arguments) {
        j["arguments"].push_back(described(a, p, false));
        integers += a.where == place::in::integer_register;
    }
    for (const auto& r : p.results)
        j["results"].push_back(described(r, p, true));

    // What a call changes, and what it keeps beyond the rules of the System V convention.
    json clobbered = json::array(), preserved = json::array();
    for (int v = 0; v < (p.memory_form ? 16 : 8); v++)
        clobbered.push_back("ymm" + std::to_string(v));
    for (auto r : {"rax", "rcx", "rdx", "r8", "r9", "r10", "r11"})
        clobbered.push_back(r);
    for (int i = 0; i < 2; i++)
        (p.memory_form || i < integers ? clobbered : preserved).push_back(integer_registers[i]);
    for (auto r : {"rbx", "rbp", "rsp", "r12", "r13", "r14", "r15"})
        preserved.push_back(r);
    for (int v = 8; v < 16 && !p.memory_form; v++)
        preserved.push_back("ymm" + std::to_string(v));
    for (int i = 0; i < 8 && uses_x87(row); i++)
        clobbered.push_back("st" + std::to_string(i));
    j["clobbered"] = clobbered;
    j["preserved"] = preserved;
    if (const auto twin = twin_of(row, width); twin.empty()) j["twin_of"] = nullptr;
    else j["twin_of"] = twin;
    const json builtin = row.builtin.empty() ? json() : json(row.served_builtin(width));
    j["builtin"] = row.is_relaxed() ? json() : builtin;
    j["relaxed_builtin"] = row.is_relaxed() ? builtin : json();
    const auto special = special_values_of(row);
    j["special_values"] = special.empty() ? json() : json(special);
    j["error"] = described(largest_known_error(row, cases));
    j["opencl_limit"] = described(limit_of(row));
    return j;
}

std::string exports_json(const std::vector<worst_case>& cases) {
    std::string s = "[\n";
    for (const auto& row : library_rows())
        for (int w : widths)
            s += object_of(row, w, cases).dump() + ",\n";
    s.erase(s.size() - 2, 1);
    return s + "]\n";
}

// The vector type of a lane vector in C; a single lane travels as a vector register too, of which it is the low part.
std::string vector_type(lane_type t, int lanes) {
    return "orvane_" + std::string(opencl_type(t)) + std::to_string(stored_lanes(lanes));
}

std::string places_in_words(const call_plan& p) {
    std::string s;
    auto list = [&](const std::vector<place>& places, bool are_results, const char* what) {
        for (size_t i = 0; i < places.size(); i++) {
            const json j = described(places[i], p, are_results);
            s += std::string(i ? ", " : what);
            if (j.contains("registers"))
                for (size_t k = 0; k < j["registers"].size(); k++)
                    s += (k ? " " : "") + j["registers"][k].get<std::string>();
            else if (j.contains("stack_offset")) s += "rsp+" + std::to_string(j["stack_offset"].get<int>());
            else s += "at " + j["pointer"].get<std::string>();
        }
    };
    list(p.arguments, false, "in ");
    list(p.results, true, "; out ");
    return s;
}

// One declaration, or where C has none, the symbol with its registers.
std::string declaration(const call_plan& p) {
    const kernel_row& row = *p.row;
    std::string s;
    if (p.memory_form) {
        const std::string args = "struct orvane_args_" + p.symbol.substr(12);
        s += args + " { ";
        for (int j = 0; j < row.arguments(); j++)
            s += std::string(c_type(row.argument(j))) + " " + "xyz"[j] + "[" + std::to_string(stored_lanes(p.width)) +
                 "]; ";
        s += "};\nvoid* " + p.symbol + "(void* result, ";
        if (p.out_register >= 0) s += std::string(c_type(row.extra)) + "* out, ";
        return s + args + " arguments);\n";
    }
    // C can declare neither results nor arguments of more than one register; neither is a
    // vector in part of a register without a type of its own.
    const place& r = p.results[0];
    const bool one_result = row.results() == 1 && (r.where == place::in::integer_register || r.registers == 1);
    if (!one_result && !(r.where == place::in::integer_register))
        return "void " + p.symbol + "(void) ORVANE_NOT_C; /* " + places_in_words(p) + " */\n";
    auto typed = [&](const place& a) {
        if (a.where == place::in::integer_register) return std::string(c_type(a.type));
        const int bytes = size_of(a.type) * stored_lanes(a.lanes);
        return vector_type(a.type, bytes < 16 ? 16 / size_of(a.type) : bytes > 32 ? 32 / size_of(a.type) : a.lanes);
    };
    std::string parameters;
    if (p.out_register >= 0) parameters = std::string(c_type(row.extra)) + "* out";
    for (size_t j = 0; j < p.arguments.size(); j++)
        for (int k = 0; k < std::max(1, p.arguments[j].registers); k++)
            parameters += (parameters.empty() ? "" : ", ") + typed(p.arguments[j]) + " " + "xyz"[j] +
                          (p.arguments[j].registers > 1 ? std::to_string(k) : "");
    return (row.results() == 2 ? "uint64_t" : typed(r)) + " " + p.symbol + "(" + parameters + ");\n";
}

// "expf rm: largest known error 0.749 ulp; OpenCL C allows 3 ulp and floor(|2 x|) more".
std::string accuracy_line(const kernel_row& row, const std::vector<worst_case>& cases) {
    const known_error e = largest_known_error(row, cases);
    char error[48];
    snprintf(error, sizeof error, e.error < 1000 ? "%.3g %s" : "%.0f %s", e.error,
             std::string(to_string(e.measure)).c_str());
    const auto limit = limit_of(row);
    const auto special = special_values_of(row);
    return "/* " + std::string(row.name) + " " + std::string(row.tier) + ": " +
           (e.error ? "largest known error " + std::string(error) : "exact") +
           (limit ? "; OpenCL C allows " + limit->text() : "") +
           (special.empty() ? "" : "; unlike the default tier " + std::string(special)) + ". */\n";
}

std::string header(const std::vector<worst_case>& cases) {
    std::string s = R"(/* The exports of liborvane_l9.so. Written by write-exports.
 *
 * Register-form exports take lane vectors in vector registers 0 to 3 and give them back from 0 on; a vector type here is
 * the register: orvane_float4 for up to four lanes of float, lane 0 lowest, lanes beyond the width ignored; a 3-wide
 * vector has a spare fourth lane, and its out-object room for it. What C cannot call (results in several registers) is
 * declared for its address alone, with its registers; orvane/call.hpp calls it from C++ by that address.
 *
 * Every call keeps rbx, rbp, rsp, r12 to r15; a register-form call also vector registers 8 to 15, all 256 bits, and rdi
 * and rsi unless an argument travels there. A compiler that calls through this header need not know.
 *
 * A family's text tells what special arguments (zeros, infinities, NaN, subnormal and negative numbers) give, in every
 * tier: where a fast tier gives something else than the default one, the line of the tier says of what.
 *
 * lgamma, lgammaf, lgammar, lgammarf and tgamma compute on the x87 unit: its register stack must be empty at the call (emms
 * after MMX code) and is empty again at the return. The double ones set significands of 64 bits in its control word and put
 * the caller's word back; the float ones count on them, which is the default. All compute under its rounding mode. */
#ifndef ORVANE_H
#define ORVANE_H

/* Without AVX a compiler passes vectors of 32 bytes in memory, which no export expects. Code that calls from functions
 * with an AVX target of their own says so by ORVANE_CALLED_WITH_AVX. */
#if !defined __AVX__ && !defined ORVANE_CALLED_WITH_AVX
#error "orvane.h: compile with -mavx or more"
#endif

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define ORVANE_NOT_C __attribute__((error("results in several registers: orvane/call.hpp calls this from C++")))

)";
    for (auto t : {lane_type::f32, lane_type::f64, lane_type::i32, lane_type::u32, lane_type::i64, lane_type::u64})
        for (int bytes : {16, 32})
            s += "typedef " + std::string(c_type(t)) + " " + vector_type(t, bytes / size_of(t)) +
                 " __attribute__((vector_size(" + std::to_string(bytes) + "), aligned(" + std::to_string(size_of(t)) +
                 ")));\n";
    std::string_view family;
    for (const auto& row : library_rows()) {
        if (row.name != family) {
            s += "\n/* " + std::string(row.name) + ": " + meaning_of(row) + " */\n";
            family = row.name;
        }
        s += accuracy_line(row, cases);
        for (int w : widths)
            s += declaration(plan_of(row, w));
    }
    return s + R"(
#ifdef __cplusplus
}
#endif
#endif
)";
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 2 && argv[1][0] != '-' && !std::filesystem::is_directory(argv[1])) {
        std::cerr << "write-exports: '" << argv[1] << "' is no folder; name an existing one\n";
        return 2;
    }
    if (argc != 2 || argv[1][0] == '-') {
        std::cerr << "usage: write-exports FOLDER, an existing one, for exports.json and orvane.h\n";
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    try {
        const auto cases = read_worst_cases(ORVANE_SOURCES "/data/worst_cases.txt");
        write_whole(folder / "exports.json", exports_json(cases));
        write_whole(folder / "orvane.h", header(cases));
    } catch (const std::exception& e) {
        std::cerr << "write-exports: " << e.what() << '\n';
        return 1;
    }
}
