#include "signature.h"

#include <cstdlib>
#include <map>

namespace orvane {

namespace {

template <class E> E by_name(const std::map<std::string_view, E>& names, std::string_view name) {
    return names.at(name);
}
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
                                                       {"callout", kernel_path::callout},
                                                       {"large", kernel_path::large},
                                                       {"all_lanes", kernel_path::all_lanes}};

// Columns of a row that are lists.
struct text {
    std::string_view s;
};
template <class... T> std::array<double, 4> row_range(T... x) {
    std::array<double, 4> r{double(x)...};
    if (sizeof...(T) == 2) r[2] = r[0], r[3] = r[1];
    return r;
}
std::vector<uint64_t> row_special(std::string_view s) {
    std::vector<uint64_t> words;
    if (s == "none") return words;
    std::string copy(s);
    for (char* p = copy.data(); *p;) {
        char* end;
        words.push_back(strtoull(p, &end, 0));
        p = *end ? end + 1 : end;
    }
    return words;
}
kernel_row make_row(std::string_view state, std::string_view name, std::string_view tier, std::string_view sclass,
                    std::string_view in, std::string_view out, std::string_view extra, double spare,
                    std::string_view path, std::array<double, 4> range, std::vector<uint64_t> special, text twin,
                    std::string_view builtin) {
    kernel_row r{state == "built",
                 name,
                 tier,
                 by_name(classes, sclass),
                 by_name(lane_types, in),
                 by_name(lane_types, out),
                 by_name(lane_types, extra),
                 spare,
                 by_name(paths, path),
                 range,
                 std::move(special),
                 {},
                 {},
                 builtin};
    if (const auto comma = twin.s.find(", "); comma != twin.s.npos) {
        r.twin_name = twin.s.substr(0, comma);
        r.twin_tier = twin.s.substr(comma + 2);
    }
    return r;
}

std::string_view key_of(auto value, const auto& names) {
    for (const auto& [k, v] : names)
        if (v == value) return k;
    return "";
}

} // namespace

#define range(...) row_range(__VA_ARGS__)
#define special(...) row_special(#__VA_ARGS__)
#define twin(...)                                                                                                    \
    text { #__VA_ARGS__ }
#define PAIR(state, name, tier, sclass, in, out, extra, spare, path, ordinary, special, twin, builtin)               \
    make_row(#state, #name, #tier, #sclass, #in, #out, #extra, spare, #path, ordinary, special, twin, builtin),

const std::vector<kernel_row>& library_rows() {
    static const std::vector<kernel_row> rows = {
#include "frame/exports.def"
    };
    return rows;
}

#ifdef ORVANE_SECOND_LIST
#define PAIR(state, name, tier, sclass, in, out, extra, spare, path, ordinary, special, twin, builtin)               \
    make_row(#state, #name, #tier, #sclass, #in, #out, #extra, spare, #path, ordinary, special, twin, builtin),
const std::vector<kernel_row>& second_rows() {
    static const std::vector<kernel_row> rows = {
#include ORVANE_SECOND_LIST
    };
    return rows;
}
#endif
#undef range
#undef special
#undef twin

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
    const std::string w = width == 1 ? "" : std::to_string(width);
    std::string s(builtin);
    if (const auto at = s.find('#'); at != s.npos) s.replace(at, 1, w);
    if (s.starts_with("operator") || s.find(' ') != s.npos) return s;
    s += '(';
    for (int j = 0; j < arguments(); j++) {
        if (j) s += ", ";
        s += std::string(opencl_type(argument(j))) + w;
    }
    if (sclass == signature_class::pointer_out || sclass == signature_class::two_pointer_out)
        s += ", " + std::string(opencl_type(extra)) + w + "*";
    else if (sclass == signature_class::pair) s += ", " + std::string(opencl_type(extra)) + w + "*";
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
