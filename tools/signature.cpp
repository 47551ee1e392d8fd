#include "signature.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <stdexcept>

namespace orvane {

namespace {

const std::map<std::string_view, lane_type> lane_types = {
    {"none", lane_type::none}, {"f32", lane_type::f32}, {"f64", lane_type::f64}, {"i32", lane_type::i32},
    {"u32", lane_type::u32},   {"i64", lane_type::i64}, {"u64", lane_type::u64}};
const std::map<std::string_view, signature_class> classes = {{"one_argument", signature_class::one_argument},
                                                             {"two_arguments", signature_class::two_arguments},
                                                             {"three_arguments", signature_class::three_arguments},
                                                             {"with_integer", signature_class::with_integer},
                                                             {"to_integer", signature_class::to_integer},
                                                             {"pointer_out", signature_class::pointer_out},
                                                             {"two_pointer_out", signature_class::two_pointer_out},
                                                             {"pair", signature_class::pair},
                                                             {"integer", signature_class::integer},
                                                             {"integer_pair", signature_class::integer_pair},
                                                             {"bits_to_nan", signature_class::bits_to_nan},
                                                             {"conversion", signature_class::conversion}};
const std::map<std::string_view, kernel_path> paths = {{"settled", kernel_path::settled},
                                                       {"settled_large", kernel_path::settled_large},
                                                       {"callout", kernel_path::callout},
                                                       {"large", kernel_path::large},
                                                       {"all_lanes", kernel_path::all_lanes}};

std::string_view key_of(auto value, const auto& names) {
    for (const auto& [k, v] : names)
        if (v == value) return k;
    return "";
}

[[noreturn]] void refuse(std::string_view name, std::string_view tier, const std::string& why) {
    throw std::invalid_argument("list of exports: " + std::string(name) + " " + std::string(tier) + ": " + why);
}

} // namespace

kernel_row list::row(std::string_view name, std::string_view tier, std::string_view sclass, std::string_view in,
                     std::string_view out, std::string_view extra, double spare, std::string_view path,
                     std::array<double, 4> range, std::string_view special, std::string_view builtin) {
    auto of = [&](const auto& names, std::string_view word, const char* what) {
        if (const auto found = names.find(word); found != names.end()) return found->second;
        std::string why = std::string("no ") + what + " '" + std::string(word) + "'; one of";
        for (const auto& [k, v] : names)
            why += " " + std::string(k);
        refuse(name, tier, why);
    };
    static const std::map<std::string_view, int> tiers = {{"default", 0}, {"rm", 1}, {"native", 2}, {"half", 3}};
    of(tiers, tier, "tier");
    kernel_row r{name,
                 tier,
                 of(classes, sclass, "class"),
                 of(lane_types, in, "lane type"),
                 of(lane_types, out, "lane type"),
                 of(lane_types, extra, "lane type"),
                 spare,
                 of(paths, path, "path"),
                 range,
                 {},
                 {},
                 {},
                 builtin};
    const std::string patterns(special);
    for (const char* p = patterns.c_str(); special != "none" && *p;) {
        char* end;
        r.special.push_back(strtoull(p, &end, 0));
        if (end == p) refuse(name, tier, "special(" + patterns + ") holds something that is no bit pattern");
        p = *end ? end + 1 : end;
    }
    if (!r.special.empty() && (int)r.special.size() != r.arguments())
        refuse(name, tier, "special(" + patterns + ") is not one pattern an argument");
    for (size_t j = 0; j < r.special.size(); j++)
        if (size_of(r.argument(j)) == 4 && r.special[j] >> 32)
            refuse(name, tier, "special(" + patterns + ") holds a pattern of more than 32 bits");
    if (range[0] > range[1] || range[2] > range[3]) refuse(name, tier, "a range from a larger to a smaller number");
    return r;
}

kernel_row list::twin(std::string_view name, std::string_view tier, std::string_view of_name,
                      std::string_view of_tier, std::string_view builtin) {
    kernel_row r{};
    r.name = name, r.tier = tier;
    r.twin_name = of_name, r.twin_tier = of_tier;
    r.builtin = builtin;
    return r;
}

std::vector<kernel_row> list::checked(std::vector<kernel_row> rows) {
    std::map<std::string, const kernel_row*> serving;
    for (kernel_row& r : rows) {
        if (find_row(rows, r.name, r.tier) != &r) refuse(r.name, r.tier, "stands in the list twice");
        if (!r.twin_name.empty()) {
            const kernel_row* of = find_row(rows, r.twin_name, r.twin_tier);
            if (!of || of >= &r || !of->twin_name.empty())
                refuse(r.name, r.tier, "its twin must be an earlier row that is no twin itself");
            kernel_row filled = *of;
            filled.name = r.name, filled.tier = r.tier;
            filled.twin_name = r.twin_name, filled.twin_tier = r.twin_tier;
            filled.builtin = r.builtin;
            r = filled;
        }
        if (r.builtin.empty()) continue;
        const auto [other, first] = serving.try_emplace((r.is_relaxed() ? "relaxed " : "") + r.served_builtin(1), &r);
        if (!first)
            refuse(r.name, r.tier,
                   "serves " + r.served_builtin(1) + ", as " + std::string(other->second->name) + " " +
                       std::string(other->second->tier) + " does already");
    }
    return rows;
}

const std::vector<kernel_row>& library_rows() {
    static const std::vector<kernel_row> rows = list::checked({
#define ORVANE_LIST "frame/exports.def"
#include "list.inc"
    });
    return rows;
}

std::string_view to_string(lane_type t) { return key_of(t, lane_types); }
std::string_view to_string(signature_class c) { return key_of(c, classes); }
std::string_view c_type(lane_type t) {
    constexpr std::string_view names[] = {"void", "float", "double", "int32_t", "uint32_t", "int64_t", "uint64_t"};
    return names[(int)t];
}
std::string_view opencl_type(lane_type t) {
    constexpr std::string_view names[] = {"void", "float", "double", "int", "uint", "long", "ulong"};
    return names[(int)t];
}

int kernel_row::arguments() const {
    switch (sclass) {
    case signature_class::three_arguments:
        return 3;
    case signature_class::two_arguments:
    case signature_class::with_integer:
    case signature_class::two_pointer_out:
    case signature_class::integer:
    case signature_class::integer_pair:
        return 2;
    default:
        return 1;
    }
}
lane_type kernel_row::argument(int j) const { return sclass == signature_class::with_integer && j == 1 ? extra : in; }
bool kernel_row::has_out() const {
    return sclass == signature_class::pointer_out || sclass == signature_class::two_pointer_out;
}
int kernel_row::results() const {
    return sclass == signature_class::pair || sclass == signature_class::integer_pair ? 2 : 1;
}
lane_type kernel_row::result(int j) const { return j == 0 ? out : extra; }

std::string kernel_row::base() const {
    // A conversion from a floating type carries its f behind the saturation; the integer families have none.
    std::string s(name);
    const bool is_float_member = in == lane_type::f32 || (out == lane_type::f32 && in != lane_type::f64);
    if (is_float_member && s.ends_with('f')) s.pop_back();
    return s;
}
std::string kernel_row::family_symbol() const {
    static const std::map<std::string, std::string> spelled = {
        {"log", "ln"}, {"rsqrt", "invsqrt"}, {"rcbrt", "invcbrt"}};
    const std::string b = base();
    const auto other = spelled.find(b);
    return (in == lane_type::f32 || out == lane_type::f32 ? "s" : "d") + (other == spelled.end() ? b : other->second);
}
std::string kernel_row::served_builtin(int width) const {
    if (builtin.empty()) return "";
    const std::string w = width == 1 ? "" : std::to_string(width);
    std::string s(builtin);
    if (const auto at = s.find('#'); at != s.npos) s.replace(at, 1, w);
    s += '(';
    for (int j = 0; j < arguments(); j++) {
        if (j) s += ", ";
        s += std::string(opencl_type(argument(j))) + w;
    }
    if (has_out()) s += ", " + std::string(opencl_type(extra)) + w + "*";
    return s + ")";
}

const kernel_row* find_row(const std::vector<kernel_row>& rows, std::string_view name, std::string_view tier) {
    for (const auto& r : rows)
        if (r.name == name && r.tier == tier) return &r;
    return nullptr;
}

call_plan plan_of(const kernel_row& row, int width) {
    call_plan p;
    p.row = &row;
    p.width = width;
    p.symbol = "__orvane_l9_" + std::string(row.name) + std::to_string(width) + row.suffix();

    const int lanes = stored_lanes(width);
    auto registers = [&](lane_type t) { return (size_of(t) * lanes + 31) / 32; };
    int argument_registers = 0, result_registers = 0;
    for (int j = 0; j < row.arguments(); j++)
        argument_registers += registers(row.argument(j));
    for (int j = 0; j < row.results(); j++)
        result_registers += registers(row.result(j));
    p.memory_form = argument_registers > 4 || result_registers > 4;

    int next_vector = 0, next_integer = row.has_out() || p.memory_form ? 1 : 0, next_byte = 8;
    if (row.has_out()) p.out_register = p.memory_form ? 1 : 0;
    for (int j = 0; j < row.arguments(); j++) {
        const lane_type t = row.argument(j);
        place a{place::in::vector_registers, t, width};
        if (p.memory_form) {
            a.where = place::in::stack;
            a.offset = next_byte;
            next_byte += size_of(t) * lanes;
        } else if (width == 1 && !is_floating(t)) {
            a.where = place::in::integer_register;
            a.first = next_integer++;
        } else {
            a.first = next_vector;
            a.registers = registers(t);
            next_vector += a.registers;
        }
        p.arguments.push_back(a);
    }
    p.stack_bytes = next_byte - 8;

    next_vector = next_byte = 0;
    for (int j = 0; j < row.results(); j++) {
        const lane_type t = row.result(j);
        place r{place::in::vector_registers, t, width};
        if (p.memory_form) {
            r.where = place::in::result_object;
            r.offset = next_byte;
            next_byte += size_of(t) * lanes;
        } else if (width == 1 && !is_floating(t)) {
            r.where = place::in::integer_register;
            r.offset = next_byte; // a second result lies in the upper half
            next_byte += size_of(t);
        } else {
            r.first = next_vector;
            r.registers = registers(t);
            next_vector += r.registers;
        }
        p.results.push_back(r);
    }
    p.result_bytes = p.memory_form ? next_byte : 0;
    if (row.has_out()) p.results.push_back({place::in::out_object, row.extra, width});
    return p;
}

call_plan plan_of(const std::vector<kernel_row>& rows, std::string_view symbol) {
    constexpr std::string_view prefix = "__orvane_l9_";
    if (symbol.starts_with(prefix)) symbol.remove_prefix(prefix.size());
    // A name is read from its end: tier, then width, then the base.
    std::string_view tier = "default";
    for (std::string_view t : {"rm", "native", "half"})
        if (symbol.size() > t.size() + 1 && symbol.ends_with(t) && symbol[symbol.size() - t.size() - 1] == '_') {
            tier = t;
            symbol.remove_suffix(t.size() + 1);
            break;
        }
    for (int w : {16, 8, 4, 3, 2, 1}) {
        const std::string digits = std::to_string(w);
        if (!symbol.ends_with(digits)) continue;
        const kernel_row* row = find_row(rows, symbol.substr(0, symbol.size() - digits.size()), tier);
        if (row) return plan_of(*row, w);
        break;
    }
    return {};
}

} // namespace orvane
