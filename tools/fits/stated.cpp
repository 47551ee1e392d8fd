#include "stated.h"

#include "minimax.h"
#include "whole_file.h"

#include <bit>
#include <map>
#include <regex>
#include <set>
#include <stdexcept>

namespace orvane::fits {

namespace {

// The value of an expression at a point, which has the variables by their names.
using point = std::map<std::string, real>;
using expression = std::function<real(const point&)>;

real abs_of(const real& x) { return magnitude(x); }
real exp_of(const real& x) {
    real r;
    mpfr_exp(r.get(), x.get(), MPFR_RNDN);
    return r;
}
real cosh_of(const real& x) {
    real r;
    mpfr_cosh(r.get(), x.get(), MPFR_RNDN);
    return r;
}
real power(const real& x, const real& y) {
    real r;
    mpfr_pow(r.get(), x.get(), y.get(), MPFR_RNDN);
    return r;
}

const std::string begin_of_fit = "Fit on ";

const std::map<std::string, real (*)(const real&)> functions = {
    {"abs", abs_of},        {"exp", exp_of},          {"exp2", tables::exp2},       {"log", tables::log},
    {"log2", tables::log2}, {"sqrt", tables::sqrt},   {"cbrt", tables::cbrt},       {"sin", tables::sin},
    {"cos", tables::cos},   {"tan", tables::tan},     {"asin", tables::asin},       {"atan", tables::atan},
    {"sinh", tables::sinh}, {"cosh", cosh_of},        {"tanh", tables::tanh},       {"erf", tables::erf},
    {"erfc", tables::erfc}, {"gamma", tables::gamma}, {"lgamma", tables::log_gamma}};

// What the sources define: slots and constants with one value, arrays with several.
struct definition {
    size_t at;
    std::vector<real> values;
};
using definitions = std::multimap<std::string, definition>;

double value_of_bits(const std::string& type, const std::string& hexadecimal) {
    const uint64_t w = std::stoull(hexadecimal, nullptr, 16);
    return type == "double" ? std::bit_cast<double>(w) : std::bit_cast<float>((uint32_t)w);
}

// A number as C++ writes it: f64(0x3FE0000000000000), 0x1.8p52, 0xAAAAAAAAAAAAAAABp-67L, 0.5, -0.125f.
const std::string literal =
    R"(-?(?:f(?:64|32)\(0x[0-9A-Fa-f]+\)|0x[0-9A-Fa-f.]+p[-+]?\d+[fL]?|\d[\d.]*(?:e[-+]?\d+)?[fL]?))";
real value_of_literal(std::string text) {
    const bool negative = text[0] == '-';
    if (negative) text.erase(0, 1);
    real v;
    if (text[0] == 'f') v = value_of_bits(text[1] == '6' ? "double" : "float", text.substr(4));
    else if (text.back() == 'L') v = std::strtold(text.c_str(), nullptr);
    else if (text.back() == 'f' && text.find("0x") != 0) v = double(std::strtof(text.c_str(), nullptr));
    else v = std::strtod(text.c_str(), nullptr);
    return negative ? -v : v;
}

definitions definitions_of(const std::string& text) {
    static const std::regex slot(R"(\bSLOT\((double|float),[^,]+,\s*(\w+),\s*(0x[0-9A-Fa-f]+)\))");
    static const std::regex array(R"(\bcoefficients<(double|float), \d+>\s*(\w+)\s*=\s*\{\s*\{([^}]*)\}\s*\})");
    static const std::regex bits(R"(0x[0-9A-Fa-f]+)");
    static const std::regex constant(R"(\b(\w+)\s*=\s*()" + literal + R"()\s*[,;}])");
    static const std::regex list(R"(\b(\w+)(?:\[\w*\])?\s*=\s*\{((?:\s*(?:)" + literal + R"(|\w+)\s*,?)+)\})");
    static const std::regex entry(literal + R"(|[A-Za-z_]\w*)");
    definitions found;
    for (std::sregex_iterator i(text.begin(), text.end(), slot), end; i != end; ++i)
        found.emplace((*i)[2], definition{size_t(i->position()), {value_of_bits((*i)[1], (*i)[3])}});
    for (std::sregex_iterator i(text.begin(), text.end(), array), end; i != end; ++i) {
        definition d{size_t(i->position()), {}};
        const std::string list = (*i)[3];
        for (std::sregex_iterator w(list.begin(), list.end(), bits); w != end; ++w)
            d.values.push_back(value_of_bits((*i)[1], w->str()));
        found.emplace((*i)[2], d);
    }
    for (std::sregex_iterator i(text.begin(), text.end(), constant), end; i != end; ++i)
        found.emplace((*i)[1], definition{size_t(i->position()), {value_of_literal((*i)[2])}});
    for (std::sregex_iterator i(text.begin(), text.end(), list), end; i != end; ++i) {
        definition d{size_t(i->position()), {}};
        const std::string entries = (*i)[2];
        for (std::sregex_iterator e(entries.begin(), entries.end(), entry); e != end; ++e) {
            const std::string word = e->str();
            if (word[0] == '-' || isdigit((unsigned char)word[0]) || word.starts_with("f64(") ||
                word.starts_with("f32("))
                d.values.push_back(value_of_literal(word));
            else if (const auto named = found.find(word); named != found.end())
                d.values.push_back(named->second.values[0]);
        }
        if (!d.values.empty()) found.emplace((*i)[1], d);
    }
    return found;
}
const definition* definition_near(const definitions& all, const std::string& name, size_t at) {
    const definition *before = nullptr, *after = nullptr;
    for (auto [i, end] = all.equal_range(name); i != end; ++i) {
        const definition& d = i->second;
        if (d.at < at && (!before || before->at < d.at)) before = &d;
        if (d.at > at && (!after || d.at < after->at)) after = &d;
    }
    return after ? after : before;
}

// sum:     term { (+ | -) term }
// term:    factor { (* | /) factor }
// factor:  - factor | base [^ factor]
// base:    number | name | name[number] | name(sum) | (sum)
class parser {
public:
    parser(const std::string& text, const std::set<std::string>& variables,
           const std::map<std::string, expression>& abbreviations, const definitions& known, size_t comment)
        : text(text), variables(variables), abbreviations(abbreviations), known(known), comment(comment) {}
    expression whole() {
        expression e = sum();
        skip();
        if (at != text.size()) throw std::runtime_error("'" + text.substr(at) + "' is not understood");
        return e;
    }
    std::vector<std::string> coefficients;

private:
    void skip() {
        while (at < text.size() && text[at] == ' ')
            at++;
    }
    bool take(char c) {
        skip();
        if (at >= text.size() || text[at] != c) return false;
        at++;
        return true;
    }
    static expression constant(const real& r) {
        return [r](const point&) { return r; };
    }
    expression sum() {
        expression a = term();
        for (;;) {
            if (take('+')) a = [a, b = term()](const point& x) { return a(x) + b(x); };
            else if (take('-')) a = [a, b = term()](const point& x) { return a(x) - b(x); };
            else return a;
        }
    }
    expression term() {
        expression a = factor();
        for (;;) {
            if (take('*')) a = [a, b = factor()](const point& x) { return a(x) * b(x); };
            else if (take('/')) a = [a, b = factor()](const point& x) { return a(x) / b(x); };
            else return a;
        }
    }
    expression factor() {
        if (take('-')) return [a = factor()](const point& x) { return -a(x); };
        expression a = base();
        if (take('^')) return [a, b = factor()](const point& x) { return power(a(x), b(x)); };
        return a;
    }
    expression in_parentheses() {
        expression e = sum();
        if (!take(')')) throw std::runtime_error("a ) is missing");
        return e;
    }
    expression base() {
        skip();
        if (take('(')) return in_parentheses();
        const size_t begin = at;
        while (at < text.size() && (isalnum((unsigned char)text[at]) || text[at] == '_' || text[at] == '.'))
            at++;
        const std::string word = text.substr(begin, at - begin);
        if (word.empty()) throw std::runtime_error("a number or a name is missing before '" + text.substr(at) + "'");
        if (isdigit((unsigned char)word[0])) {
            real r;
            if (mpfr_set_str(r.get(), word.c_str(), 10, MPFR_RNDN))
                throw std::runtime_error("'" + word + "' is no number");
            return constant(r);
        }
        if (variables.contains(word)) return [word](const point& x) { return x.at(word); };
        if (const auto a = abbreviations.find(word); a != abbreviations.end()) return a->second;
        if (const auto f = functions.find(word); f != functions.end()) {
            if (!take('(')) throw std::runtime_error(word + " is a function: write " + word + "(...)");
            return [a = in_parentheses(), f = f->second](const point& x) { return f(a(x)); };
        }
        if (word == "horner" || word == "horner_up" || word == "quadratics") {
            if (!take('(')) throw std::runtime_error(word + " is a function: write " + word + "(v, array)");
            const expression a = sum();
            if (!take(',')) throw std::runtime_error(word + " takes a value and an array");
            skip();
            const size_t name = at;
            while (at < text.size() && (isalnum((unsigned char)text[at]) || text[at] == '_'))
                at++;
            const std::string array = text.substr(name, at - name);
            const definition* d = definition_near(known, array, comment);
            if (!d) throw std::runtime_error("no array is named '" + array + "'");
            if (!take(')')) throw std::runtime_error("a ) is missing");
            coefficients.push_back(array);
            polynomial p = d->values;
            if (word == "quadratics")
                return [a, p](const point& x) {
                    const real v = a(x);
                    real product = p.back();
                    for (size_t i = 0; i + 1 < p.size(); i += 2)
                        product = product * (v * v + p[i + 1] * v + p[i]);
                    return product;
                };
            if (word == "horner") std::reverse(p.begin(), p.end());
            return [a, p](const point& x) { return value(p, a(x)); };
        }
        if (word == "pi") return constant(tables::pi());
        if (word == "ln2") return constant(tables::ln2());
        const definition* d = definition_near(known, word, comment);
        if (!d) throw std::runtime_error("no slot, array, function or constant is named '" + word + "'");
        coefficients.push_back(word);
        if (take('[')) {
            const size_t digits = at;
            while (at < text.size() && isdigit((unsigned char)text[at]))
                at++;
            const size_t index = digits < at ? std::stoul(text.substr(digits, at - digits)) : d->values.size();
            if (index >= d->values.size() || !take(']'))
                throw std::runtime_error(word + " has elements " + word + "[0] to [" +
                                         std::to_string(d->values.size() - 1) + "]");
            return constant(d->values[index]);
        }
        if (!take('(')) {
            if (d->values.size() != 1) throw std::runtime_error(word + " is an array: write " + word + "(...)");
            return constant(d->values[0]);
        }
        polynomial p(d->values.rbegin(), d->values.rend());
        return [a = in_parentheses(), p](const point& x) { return value(p, a(x)); };
    }

    const std::string text;
    const std::set<std::string>& variables;
    const std::map<std::string, expression>& abbreviations;
    const definitions& known;
    size_t comment, at = 0;
};

// Reads the expressions of a fit.
class reader {
public:
    reader(const stated_fit& f, const definitions& known) : f(f), known(known) {
        for (const auto& v : f.variables)
            variables.insert(v.variable);
        for (const auto& [name, meaning] : f.abbreviations)
            abbreviations[name] = parse(meaning).whole();
    }
    expression operator()(const std::string& text) const { return parse(text).whole(); }
    std::vector<std::string> coefficients_of(const std::string& text) const {
        parser p = parse(text);
        p.whole();
        return p.coefficients;
    }

private:
    parser parse(const std::string& text) const { return {text, variables, abbreviations, known, f.exponent_at}; }
    const stated_fit& f;
    const definitions& known;
    std::set<std::string> variables;
    std::map<std::string, expression> abbreviations;
};

std::runtime_error at_line(const std::filesystem::path& file, int line, const std::string& why) {
    return std::runtime_error(file.string() + ":" + std::to_string(line) + ": " + why);
}

} // namespace

std::vector<std::filesystem::path> sources_with_fits(const std::filesystem::path& root) {
    namespace fs = std::filesystem;
    std::vector<fs::path> found;
    for (const auto& folder : fs::directory_iterator(root)) {
        const std::string name = folder.path().filename().string();
        if (!folder.is_directory() || name == "tools" || name == "tests" || name[0] == '.' ||
            name.starts_with("build"))
            continue;
        for (const auto& f : fs::directory_iterator(folder))
            if ((f.path().extension() == ".cpp" || f.path().extension() == ".h") &&
                contents_of(f.path()).find(begin_of_fit) != std::string::npos)
                found.push_back(f.path());
    }
    std::sort(found.begin(), found.end());
    return found;
}

std::vector<stated_fit> stated_fits(const std::filesystem::path& file) {
    static const std::regex whole(R"(([^:]+):\s*([^=]+?)\s*=\s*(.*?)\s+to\s+2\^-([0-9.]+)\s+(relative|absolute))");
    static const std::regex around_zero(R"(\s*\|(\w+)\|\s*<=\s*(.+?)\s*)");
    static const std::regex between(R"(\s*([^<]+?)\s*<=\s*(\w+)\s*<=\s*(.+?)\s*)");
    static const std::regex short_for(R"(\s*(\w+)\s*=\s*(.+?)\s*)");
    const std::string text = contents_of(file);
    const definitions known = definitions_of(text);
    std::vector<stated_fit> fits;
    for (size_t at = text.find(begin_of_fit); at != text.npos; at = text.find(begin_of_fit, at + 1)) {
        stated_fit f{};
        f.file = file;
        f.line = 1 + std::count(text.begin(), text.begin() + at, '\n');
        // The comment's lines as one, up to the word that ends a fit.
        std::string joined;
        for (size_t from = at + begin_of_fit.size();;) {
            const size_t end = text.find('\n', from);
            const std::string line = text.substr(from, end - from);
            const size_t stop = std::min(line.find(" relative"), line.find(" absolute"));
            if (stop != line.npos) {
                const size_t exponent = line.rfind("2^-", stop);
                if (exponent != line.npos) f.exponent_at = from + exponent + 3, f.exponent_size = stop - exponent - 3;
                joined += line.substr(0, stop + 9);
                break;
            }
            joined += line + " ";
            const size_t next = text.find_first_not_of(' ', end + 1);
            if (next == text.npos || text.compare(next, 3, "// ") != 0)
                throw at_line(file, f.line, "a fit ends with 'to 2^-N relative' or 'to 2^-N absolute'");
            from = next + 3;
        }
        std::smatch m;
        if (!std::regex_match(joined, m, whole) || !f.exponent_at)
            throw at_line(file, f.line, "a fit is written 'Fit on |v| <= hi: left = right to 2^-N relative'");
        std::stringstream parts(m[1]);
        for (std::string part; std::getline(parts, part, ',');) {
            std::smatch p;
            if (std::regex_match(part, p, around_zero)) f.variables.push_back({p[1], "-(" + p[2].str() + ")", p[2]});
            else if (std::regex_match(part, p, between)) f.variables.push_back({p[2], p[1], p[3]});
            else if (std::regex_match(part, p, short_for)) f.abbreviations.emplace_back(p[1], p[2]);
            else throw at_line(file, f.line, "'" + part + "' is no interval, and no abbreviation");
        }
        if (f.variables.empty() || f.variables.size() > 2)
            throw at_line(file, f.line, "a fit has one variable or two");
        f.left = m[2];
        f.right = m[3];
        f.exponent = -std::stod(m[4]);
        f.relative = m[5] == "relative";
        try {
            f.coefficients = reader(f, known).coefficients_of(f.left);
        } catch (const std::exception& e) {
            throw at_line(file, f.line, e.what());
        }
        fits.push_back(f);
    }
    return fits;
}

double error_exponent(const stated_fit& f) {
    const std::string text = contents_of(f.file);
    const definitions known = definitions_of(text);
    try {
        const reader parsed(f, known);
        const expression left = parsed(f.left), right = parsed(f.right);
        real largest = 0;
        // An even number of points: none in the middle. What is 0/0 at an end is no error.
        const auto points = [&](const stated_fit::interval& v, int n) {
            return chebyshev_points(parsed(v.lo)({}), parsed(v.hi)({}), n);
        };
        const auto look_at = [&](const point& x) {
            const real l = left(x), r = right(x);
            real error = magnitude(l - r);
            if (f.relative) error = error / magnitude(r);
            if (mpfr_number_p(error.get())) largest = std::max(largest, error);
        };
        const auto& v = f.variables;
        for (const auto& x : points(v[0], v.size() == 1 ? 1000 : 40)) {
            if (v.size() == 1) look_at({{v[0].variable, x}});
            else
                for (const auto& y : points(v[1], 24))
                    look_at({{v[0].variable, x}, {v[1].variable, y}});
        }
        return log2_of(largest);
    } catch (const std::exception& e) {
        throw at_line(f.file, f.line, e.what());
    }
}

} // namespace orvane::fits
