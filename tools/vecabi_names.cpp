#include "vecabi_names.h"

#include <map>
#include <set>

namespace orvane {

namespace {

using enum signature_class;

// A form: its letter, and the bytes of its registers for floating and for integer lanes.
struct form {
    char letter;
    int floating, integer;
};
constexpr form forms[] = {{'b', 16, 16}, {'c', 32, 16}, {'d', 32, 32}, {'e', 64, 64}};

// Families that C knows under the same name with another meaning: div is another function there, nan takes a string.
const std::set<std::string> no_c_name = {"div", "inv", "nan"};
// Functions that OpenCL C has and the C library of Debian 12 has not.
const std::set<std::string> not_in_c = {"sinpi", "cospi", "tanpi", "asinpi", "acospi", "atanpi", "atan2pi", "rsqrt",
                                        "rcbrt", "powr",  "pown",  "rootn",  "minmag", "maxmag", "fract"};
// Further names of a function.
const std::map<std::string, std::string> synonym = {{"ldexp", "scalbn"}};

// What SLEEF's library has beside the name itself: the functions with a form of up to 3.5 units in the last place,
// and the name that compilers used for finite arguments.
const std::set<std::string> with_u35 = {"acos", "asin",  "atan",  "cbrt",   "cos",     "cosh", "exp10",
                                        "exp2", "log",   "log2",  "sin",    "sinh",    "sqrt", "tan",
                                        "tanh", "atan2", "hypot", "sincos", "sincospi"};
const std::set<std::string> with_u3500 = {"sin", "cos", "pow"};
const std::set<std::string> with_finite = {
    "acos",  "acosh", "asin",      "asinh", "atan",      "atanh",  "cbrt",     "ceil", "cos",   "cosh",
    "cospi", "erf",   "erfc",      "exp10", "exp2",      "exp",    "expm1",    "fabs", "floor", "lgamma",
    "log10", "log1p", "log2",      "log",   "rint",      "round",  "sin",      "sinh", "sinpi", "sqrt",
    "tan",   "tanh",  "tgamma",    "trunc", "modf",      "atan2",  "copysign", "fdim", "fmax",  "fmin",
    "fmod",  "hypot", "nextafter", "pow",   "remainder", "frfrexp"};
// SLEEF has masked e forms of all its functions.
const std::set<std::string> masked_besides = {"fma", "ilogb", "ldexp", "expfrexp"};

// The kernels of 128-bit lanes that finish every lane touch no 256-bit register, but for those that work in double.
bool leaves_sse_state(const kernel_row& row) { return row.path == kernel_path::settled && row.name != "tanhf"; }

std::string export_of(const kernel_row& row, int lanes) {
    return "__orvane_l9_" + std::string(row.name) + std::to_string(lanes);
}

struct writer {
    std::vector<vecabi_name> names;
    std::string family;

    void put(std::string symbol, std::string shape, std::string target) {
        names.push_back({family, std::move(symbol), std::move(shape), std::move(target)});
    }
    // One form under all names of a function: an alias each, or an adapter and further names of it.
    void put_all(const std::vector<std::string>& symbols, const std::string& shape, const std::string& target) {
        const std::string further = shape.starts_with("e_") ? "same_512" : "same";
        for (const auto& s : symbols)
            if (&s == &symbols.front() || shape == "alias") put(s, shape, target);
            else put(s, further, symbols.front());
    }
};

std::string mangled(char letter, char mask, int lanes, const std::string& parameters, const std::string& name) {
    return std::string("_ZGV") + letter + mask + std::to_string(lanes) + parameters + "_" + name;
}

// All names under which a function is known, its own first.
std::vector<std::string> names_of(const std::string& base, bool is_float, bool other_language) {
    const std::string f = is_float ? "f" : "";
    std::vector<std::string> all = {base + f};
    if (with_u35.contains(base)) all.push_back(base + f + "_u35");
    if (with_finite.contains(base)) {
        all.push_back("__" + base + f + "_finite");
        if (with_u35.contains(base)) all.push_back("__" + base + f + "_finite_u35");
    }
    if (is_float && with_u3500.contains(base)) {
        all.push_back("fast" + base + "f_u3500");
        all.push_back("__fast" + base + "f_finite_u3500");
    }
    if (const auto s = synonym.find(base); s != synonym.end()) all.push_back(s->second + f);
    if (other_language) all.push_back("orvane_" + base + f);
    return all;
}

bool in_sleef(const std::string& base) { return with_finite.contains(base) || masked_besides.contains(base); }

std::vector<std::string> symbols_of(char letter, char mask, int lanes, const std::string& parameters,
                                    const std::vector<std::string>& names) {
    std::vector<std::string> all;
    for (const auto& n : names)
        all.push_back(mangled(letter, mask, lanes, parameters, n));
    return all;
}

// Functions of vectors alone, and those with linear pointers behind them, whose out-lanes the export stores the same
// way.
void plain_forms(writer& w, const kernel_row& row, const std::string& parameters,
                 const std::vector<std::string>& names, bool masked) {
    const bool is_double = row.in == lane_type::f64;
    for (const form& f : forms) {
        const int lanes = f.floating / size_of(row.in);
        const auto symbols = symbols_of(f.letter, 'N', lanes, parameters, names);
        const std::string target = export_of(row, lanes);
        if (f.letter == 'e') {
            std::string shape = row.sclass == three_arguments             ? "e_three"
                                : row.sclass == with_integer && is_double ? "e_integer"
                                : row.arguments() == 2                    ? "e_two"
                                                                          : "e_one";
            w.put_all(symbols, shape, shape == "e_three" ? export_of(row, lanes / 2) : target);
            if (!masked) continue;
            const auto masked_symbols = symbols_of('e', 'M', lanes, parameters, names);
            if (row.has_out())
                w.put_all(masked_symbols, "e_masked_one_out", symbols[0] + (is_double ? ", pd" : ", ps"));
            else
                for (const auto& s : masked_symbols)
                    w.put(s, "same_512", symbols[0]);
        } else if (f.letter == 'b') w.put_all(symbols, leaves_sse_state(row) ? "alias" : "for_sse", target);
        else if (f.letter == 'c' && row.sclass == with_integer && !is_double)
            w.put_all(symbols, "joined_integers", target);
        else w.put_all(symbols, "alias", target);
    }
}

// Functions with an int result for each floating lane. GCC counts lanes by the result, four or more to a register of
// it; SLEEF by the argument.
void to_integer_forms(writer& w, const kernel_row& row, const std::vector<std::string>& names) {
    auto put = [&](char letter, int lanes, const char* shape) {
        w.put_all(symbols_of(letter, 'N', lanes, "v", names), shape, export_of(row, lanes));
    };
    if (row.in == lane_type::f64) {
        put('b', 2, "for_sse");
        put('b', 4, "joined_argument_for_sse");
        put('c', 4, "alias");
        put('d', 4, "alias");
        put('d', 8, "alias");
        put('e', 8, "e_narrow");
        put('e', 16, "e_narrow_two");
    } else {
        put('b', 4, "for_sse");
        put('c', 4, "alias");
        put('c', 8, "integers_in_memory");
        put('d', 8, "alias");
        put('e', 16, "e_one");
    }
    const int lanes = 64 / size_of(row.in);
    for (const auto& n : names)
        w.put(mangled('e', 'M', lanes, "v", n), "same_512", mangled('e', 'N', lanes, "v", n));
}

// The two results of frexp as two functions, as SLEEF has them.
void frexp_forms(writer& w, const kernel_row& row) {
    const bool is_float = row.in == lane_type::f32;
    const auto fraction = names_of("frfrexp", is_float, false), exponent = names_of("expfrexp", is_float, false);
    for (const form& f : forms) {
        const int lanes = f.floating / size_of(row.in);
        const std::string target = export_of(row, lanes);
        const auto fractions = symbols_of(f.letter, 'N', lanes, "v", fraction);
        const auto exponents = symbols_of(f.letter, 'N', lanes, "v", exponent);
        if (f.letter == 'e') {
            w.put_all(fractions, "e_fraction_of_frexp", target);
            w.put_all(exponents, "e_exponent_of_frexp", target + ", " + std::to_string(4 * lanes));
            for (const auto& n : symbols_of('e', 'M', lanes, "v", fraction))
                w.put(n, "same_512", fractions[0]);
            for (const auto& n : symbols_of('e', 'M', lanes, "v", exponent))
                w.put(n, "same_512", exponents[0]);
            continue;
        }
        const std::string clear = f.letter == 'b' ? ", vzeroupper" : "";
        w.put_all(fractions, "fraction_of_frexp", target + clear);
        if (f.letter == 'c' && is_float) w.put_all(exponents, "exponents_in_memory", target);
        else
            w.put_all(exponents, "exponent_of_frexp",
                      target + ", " + std::to_string(4 * lanes > 16 ? 32 : 16) + clear);
    }
}

// sincos and sincospi with linear pointers; sincos also with vectors of pointers.
void two_out_forms(writer& w, const std::string& base, const kernel_row& first, const kernel_row* second) {
    const int size = size_of(first.in);
    const std::string l = "l" + std::to_string(size);
    const auto names = names_of(base, size == 4, false);
    for (const form& f : forms) {
        const int lanes = f.floating / size;
        const auto linear = symbols_of(f.letter, 'N', lanes, "v" + l + l, names);
        const std::string target = export_of(first, lanes) + (second ? ", " + export_of(*second, lanes) : "");
        const std::string reg = f.letter == 'b' ? ", xmm" : ", ymm", clear = f.letter == 'b' ? ", vzeroupper" : "";
        if (f.letter == 'e') {
            w.put_all(linear, second ? "e_two_calls_out" : "e_two_vectors_out", target);
            w.put_all(symbols_of('e', 'M', lanes, "v" + l + l, names), "e_masked_two_out",
                      linear[0] + (size == 8 ? ", pd" : ", ps"));
        } else w.put_all(linear, second ? "two_calls_out" : "two_vectors_out", target + reg + clear);
        if (second) continue;
        const std::string counts = ", " + std::to_string(lanes) + ", " + std::to_string(size);
        const std::string scattered = mangled(f.letter, 'N', lanes, "vvv", names[0]);
        if (f.letter == 'e') w.put(scattered, "e_scatter", target + counts);
        else w.put(scattered, "scatter", target + counts + ", " + std::to_string(f.integer) + clear);
    }
}

std::string parameters_of(const kernel_row& row) {
    std::string p(row.arguments(), 'v');
    if (row.has_out()) p += "l" + std::to_string(size_of(row.extra));
    return p;
}

std::vector<c_function> all_functions() {
    std::vector<c_function> all;
    for (const auto& row : library_rows()) {
        const std::string base = row.base();
        if (row.tier != "default" || no_c_name.contains(base)) continue;
        if (row.sclass == signature_class::integer || row.sclass == integer_pair || row.sclass == conversion)
            continue;
        const std::string f = row.in == lane_type::f32 ? "f" : "";
        const bool in_c = !not_in_c.contains(base);
        if (base == "sincos") continue; // its vector forms have pointers for both results
        if (row.sclass == pair) all.push_back({"sincos" + f, "sincos", "pp", &row, true, false});
        else if (base == "lgammar")
            all.push_back({"lgamma" + f + "_r", "lgamma_r", parameters_of(row), &row, true, false});
        else all.push_back({base + f, base, parameters_of(row), &row, in_c, !row.has_out()});
    }
    return all;
}

std::vector<vecabi_name> all_names() {
    writer w;
    for (const auto& c : c_functions()) {
        w.family = c.family;
        const bool is_float = c.row->in == lane_type::f32;
        const auto names =
            c.family == "lgamma_r" ? std::vector{c.name} : names_of(c.family, is_float, !c.in_c && c.pure);
        if (c.row->sclass == pair) two_out_forms(w, "sincos", *c.row, nullptr);
        else if (c.row->sclass == to_integer) to_integer_forms(w, *c.row, names);
        else plain_forms(w, *c.row, c.parameters, names, in_sleef(c.family));
        if (c.family == "frexp") frexp_forms(w, *c.row);
        if (c.family == "sinpi")
            two_out_forms(w, "sincospi", *c.row, find_row(library_rows(), is_float ? "cospif" : "cospi", "default"));
        // Vectorized loops call these for the elements that are left over at their end.
        if (!c.in_c && c.pure)
            w.put("orvane_" + c.name, leaves_sse_state(*c.row) ? "alias" : "for_sse", export_of(*c.row, 1));
    }
    return w.names;
}

} // namespace

const std::vector<c_function>& c_functions() {
    static const std::vector<c_function> all = all_functions();
    return all;
}
const std::vector<vecabi_name>& vecabi_names() {
    static const std::vector<vecabi_name> all = all_names();
    return all;
}

} // namespace orvane
