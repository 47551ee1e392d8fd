#include "worst_cases.h"

#include "estimates.h"

#include "whole_file.h"

#include <Zydis/Zydis.h>
#include <algorithm>
#include <bit>
#include <cmath>
#include <dlfcn.h>
#include <immintrin.h>
#include <link.h>
#include <stdexcept>

namespace orvane {

std::string_view to_string(error_measure m) {
    return m == error_measure::ulp ? "ulp" : m == error_measure::relative ? "relative" : "absolute";
}
std::string_view to_string(lane_path p) {
    return p == lane_path::vector ? "vector" : p == lane_path::large ? "large" : "slow";
}

error_measure measure_of(const kernel_row& row, lane_path path) {
    if (row.tier == "default" || path != lane_path::vector) return error_measure::ulp;
    const std::string base = row.base();
    const bool by_angle = base == "sin" || base == "cos" || base.starts_with("sincos");
    if (by_angle && base.starts_with("sincos") && row.in == lane_type::f32) return error_measure::ulp;
    if (by_angle) return error_measure::absolute;
    return row.in == lane_type::f64 ? error_measure::relative : error_measure::ulp;
}

double large_from(const kernel_row& row) {
    if (row.path != kernel_path::large && row.path != kernel_path::settled_large) return HUGE_VAL;
    const std::string base = row.base();
    if (base.find("gamma") != base.npos)
        return HUGE_VAL; // there a second formula serves other intervals, not large x
    const bool single = row.in == lane_type::f32;
    if (base == "tan") return single ? 8256 : 128000;
    if (!single) return base == "sin" ? 0x1p24 : 0x1p23;
    return base.starts_with("sincos") || row.tier == "default" ? 0x1p19 : 10000;
}

uint64_t estimates_of_this_processor() { return std::stoull(kind_of_processor(), nullptr, 16); }

double error_in(error_measure m, truth& t, int j, lane_type type, uint64_t result) {
    if (m == error_measure::ulp) return t.error(j, type, result);
    const double y = value_of(type, result);
    mpfr_srcptr v = t.value(j);
    if (!mpfr_number_p(v) || !std::isfinite(y)) return t.error(j, type, result);
    mpfr_t e, size;
    mpfr_inits2(mpfr_get_prec(v), e, size, (mpfr_ptr) nullptr);
    mpfr_sub_d(e, v, y, MPFR_RNDN);
    if (m == error_measure::relative) {
        mpfr_set_ui_2exp(size, 1, type == lane_type::f32 ? -126 : -1022, MPFR_RNDN);
        if (mpfr_cmpabs(size, v) < 0) mpfr_set(size, v, MPFR_RNDN);
        mpfr_div(e, e, size, MPFR_RNDN);
    }
    const double error = std::fabs(mpfr_get_d(e, MPFR_RNDN));
    mpfr_clears(e, size, (mpfr_ptr) nullptr);
    return error;
}

namespace {

const void* address_of(const library& in, const kernel_row& row) {
    const std::string symbol = plan_of(row, 1).symbol;
    const void* f = in.address(symbol);
    if (!f) throw std::runtime_error("the library has no " + symbol + ", which the list of exports names");
    return f;
}

bool has_estimate(const unsigned char* code, size_t size) {
    ZydisDecoder decoder;
    ZydisDecoderInit(&decoder, ZYDIS_MACHINE_MODE_LONG_64, ZYDIS_STACK_WIDTH_64);
    ZydisDecodedInstruction i;
    for (size_t at = 0; at < size; at += i.length) {
        if (!ZYAN_SUCCESS(ZydisDecoderDecodeInstruction(&decoder, nullptr, code + at, size - at, &i)))
            throw std::runtime_error("an export's code cannot be decoded");
        switch (i.mnemonic) {
        case ZYDIS_MNEMONIC_VRCPPS:
        case ZYDIS_MNEMONIC_VRCPSS:
        case ZYDIS_MNEMONIC_VRSQRTPS:
        case ZYDIS_MNEMONIC_VRSQRTSS:
            return true;
        default:
            break;
        }
    }
    return false;
}

} // namespace

one_lane::one_lane(const kernel_row& row, const library& in)
    : caller(plan_of(row, 1), address_of(in, row)), code((const unsigned char*)address_of(in, row)) {
    Dl_info info;
    ElfW(Sym) * symbol;
    if (!dladdr1(code, &info, (void**)&symbol, RTLD_DL_SYMENT) || !symbol)
        throw std::runtime_error("no symbol of " + std::string(row.name));
    code_size = symbol->st_size;
    fed = has_estimate(code, code_size);
    arguments.resize(row.arguments());
}

const std::vector<words>& one_lane::operator()(const std::vector<uint64_t>& from) {
    lane = from;
    for (size_t j = 0; j < arguments.size(); j++)
        arguments[j] = {lane[j]};
    caller.place_arguments(arguments);
    caller.call();
    bool slow = row().path == kernel_path::all_lanes;
    if (row().has_slow_path()) {
        const auto* below = (const uint64_t*)(caller.out.called_at - 512);
        for (int i = 0; i < 64 && !slow; i++)
            slow = below[i] > (uint64_t)code && below[i] < (uint64_t)code + code_size;
    }
    caller.take_results(results);
    last = slow                                                                   ? lane_path::slow
           : std::fabs(value_of(row().argument(0), lane[0])) >= large_from(row()) ? lane_path::large
                                                                                  : lane_path::vector;
    return results;
}

double one_lane::error(truth& t, error_measure m) {
    double largest = -1;
    if (!t(row(), lane.data())) return largest;
    for (size_t j = 0; j < results.size(); j++) {
        const lane_type type = row().result(j);
        if (is_floating(type)) largest = std::max(largest, error_in(m, t, j, type, results[j][0]));
    }
    return largest;
}

std::vector<worst_case> read_worst_cases(const std::filesystem::path& file) {
    std::ifstream in(file);
    if (!in) throw std::runtime_error("cannot read '" + file.string() + "'");
    std::vector<worst_case> rows;
    int number = 0;
    for (std::string line; std::getline(in, line);) {
        number++;
        if (line.empty() || line[0] == '#') continue;
        const auto bad = [&](const std::string& why) {
            return std::runtime_error(file.string() + ":" + std::to_string(number) + ": " + why);
        };
        std::stringstream s(line);
        std::string name, tier, path, arguments, error, measure, estimates, more;
        if (!(s >> name >> tier >> path >> arguments >> error >> measure >> estimates) || s >> more)
            throw bad("a row has seven columns: family, tier, path, arguments, error, measure, estimates");
        worst_case w{};
        w.row = find_row(library_rows(), name, tier);
        if (!w.row) throw bad("no family '" + name + "' with a tier '" + tier + "'");
        const auto one_of = [&](const std::string& word, auto... values) {
            for (auto v : {values...})
                if (to_string(v) == word) return v;
            throw bad("'" + word + "' is none of what this column takes");
        };
        w.path = one_of(path, lane_path::vector, lane_path::large, lane_path::slow);
        w.measure = one_of(measure, error_measure::ulp, error_measure::relative, error_measure::absolute);
        const auto number_of = [&](const std::string& word, auto convert) {
            char* end;
            const auto v = convert(word.c_str(), &end);
            if (word.empty() || *end) throw bad("'" + word + "' is no number");
            return v;
        };
        const auto bits = [](const char* s, char** end) { return strtoull(s, end, 16); };
        std::stringstream words(arguments);
        for (std::string a; std::getline(words, a, ',');)
            w.arguments.push_back(number_of(a, bits));
        if ((int)w.arguments.size() != w.row->arguments())
            throw bad(name + " takes " + std::to_string(w.row->arguments()) + " argument(s), joined by commas");
        w.error = number_of(error, strtod);
        if (estimates != "any") w.estimates = number_of(estimates, bits);
        rows.push_back(w);
    }
    return rows;
}

namespace {

// The largest error, in ulps, of what data/worst_cases.txt does not list.
double error_by_meaning(const kernel_row& row) {
    const std::string base = row.base();
    if (base == "fract") return 1; // rounded to nearest, but never up to 1
    if (row.sclass != signature_class::conversion) {
        for (auto rounded : {"div", "inv", "sqrt", "fma", "fdim", "ldexp"})
            if (base == rounded) return 0.5;
        return 0;
    }
    const bool widens = row.out == lane_type::f64 && size_of(row.in) == 4;
    if (!is_floating(row.out) || widens) return 0;
    return base.find("rte") != base.npos ? 0.5 : 1;
}

} // namespace

known_error largest_known_error(const kernel_row& row, const std::vector<worst_case>& cases) {
    const kernel_row* kernel = &row;
    if (!row.twin_name.empty()) kernel = find_row(library_rows(), row.twin_name, row.twin_tier);
    // The errors of two paths may have different measures, ulps and a coarser one; the coarser one serves both.
    const worst_case* largest = nullptr;
    const double ulp = row.in == lane_type::f32 ? 0x1p-23 : 0x1p-52; // at most, of a value
    const auto size = [&](const worst_case& w) { return w.measure == error_measure::ulp ? w.error * ulp : w.error; };
    for (const auto& w : cases)
        if (w.row == kernel && (!largest || size(*largest) < size(w))) largest = &w;
    if (largest) return {largest->error, largest->measure};
    return {error_by_meaning(*kernel), error_measure::ulp};
}

namespace {
std::string arguments_of(const worst_case& w) {
    std::string arguments;
    char word[32];
    for (size_t j = 0; j < w.arguments.size(); j++) {
        snprintf(word, sizeof word, "%s0x%0*llX", j ? "," : "", 2 * size_of(w.row->argument(j)),
                 (unsigned long long)w.arguments[j]);
        arguments += word;
    }
    return arguments;
}
} // namespace

std::string line_of(const worst_case& w) {
    char part[160], processor[32] = "any";
    if (w.estimates) snprintf(processor, sizeof processor, "0x%016llX", (unsigned long long)w.estimates);
    snprintf(part, sizeof part, "%-11s %-7s %-6s %-37s %-11.6g %-8s %s", std::string(w.row->name).c_str(),
             std::string(w.row->tier).c_str(), std::string(to_string(w.path)).c_str(), arguments_of(w).c_str(),
             w.error, std::string(to_string(w.measure)).c_str(), processor);
    return part;
}

void write_worst_cases(const std::filesystem::path& file, std::vector<worst_case> rows) {
    std::stable_sort(rows.begin(), rows.end(), [](const worst_case& a, const worst_case& b) {
        return std::tuple(a.row, a.path, a.estimates) < std::tuple(b.row, b.path, b.estimates);
    });
    std::string text;
    std::stringstream before(contents_of(file));
    for (std::string line; std::getline(before, line) && line.starts_with('#');)
        text += line + "\n";
    for (const auto& w : rows)
        text += line_of(w) + "\n";
    write_whole(file, text);
}

namespace {

constexpr std::string_view error_line_begins = "// Largest known error of ";

std::string error_line(const worst_case& w) {
    char error[32];
    snprintf(error, sizeof error, "%.4g", w.error);
    return std::string(error_line_begins) + std::string(w.row->name) + w.row->suffix() +
           (w.path == lane_path::slow    ? ", slow path"
            : w.path == lane_path::large ? ", large arguments"
                                         : "") +
           ": " + error + " " + std::string(to_string(w.measure)) + " at " + arguments_of(w) +
           (w.estimates ? ", with one processor's estimates" : "") + "\n";
}

// Whether a line of source exports a pair: ORVANE_EXPORT(name, suffix, ...), or a macro of exports that takes the
// family.
bool exports(const std::string& line, const kernel_row& row) {
    const std::string name(row.name), base = row.base();
    for (const std::string macro : {"ORVANE_EXPORT(", "ORVANE_EXPORT_SETTLED("})
        if (line.starts_with(macro)) return line.starts_with(macro + name + ", " + row.suffix() + ",");
    return line.starts_with("ORVANE_ARCS(" + base + ",");
}

} // namespace

std::string with_error_lines(const std::string& source, const std::vector<worst_case>& rows, int* placed) {
    std::string text, line;
    std::stringstream in(source);
    while (std::getline(in, line)) {
        if (line.starts_with(error_line_begins)) continue;
        for (const auto& w : rows)
            if (exports(line, *w.row)) text += error_line(w), ++*placed;
        text += line + "\n";
    }
    return text;
}

std::vector<std::filesystem::path> sources_with_error_lines(const std::filesystem::path& root) {
    namespace fs = std::filesystem;
    std::vector<fs::path> found;
    for (auto folder : {"exp", "log", "pow", "divroot", "trig", "invtrig", "hyperbolic", "special"})
        for (const auto& f : fs::directory_iterator(root / folder)) {
            const std::string name = f.path().filename();
            if (name.ends_with(".cpp") && !name.ends_with("_rare.cpp")) found.push_back(f.path());
        }
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace orvane
