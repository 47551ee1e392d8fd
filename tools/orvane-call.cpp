// orvane-call: evaluates an export of the library from a shell.
//
//     orvane-call expf8_half 1 2 nan 0x42b17217 -inf 1e-40 88.7 0
//     orvane-call powf2 2,3 4,0.5                  the arguments of a lane joined by commas
//     orvane-call exp4 -i numbers.txt -o out.txt   lanes from a file (- is standard input), any number of them
//     orvane-call --raw remquo4                    for programs: hexadecimal words in and out, one lane per line
//     orvane-call --list
//
// A number is decimal, a hexadecimal float (0x with a p) or a bit pattern (0x without). Every call goes through the
// raw-register caller, so what is printed is what emitted code would find in its registers.
#include "call_plan.h"
#include "command_line.h"
#include "signature.h"
#include "truth.h"
#include "whole_file.h"

#include <charconv>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <nlohmann/json.hpp>
#include <optional>
#include <unistd.h>

using namespace orvane;
namespace fs = std::filesystem;
using json = nlohmann::json;

namespace {

size_t edit_distance(std::string_view a, std::string_view b) {
    std::vector<size_t> row(b.size() + 1);
    for (size_t j = 0; j <= b.size(); j++)
        row[j] = j;
    for (size_t i = 1; i <= a.size(); i++) {
        size_t diagonal = row[0];
        row[0] = i;
        for (size_t j = 1; j <= b.size(); j++) {
            const size_t here = std::min({row[j] + 1, row[j - 1] + 1, diagonal + (a[i - 1] != b[j - 1])});
            diagonal = std::exchange(row[j], here);
        }
    }
    return row.back();
}

std::string short_name(const call_plan& p) { return p.symbol.substr(std::string_view("__orvane_l9_").size()); }

// The whole sentence about a name that no export has, with the one that may be meant.
std::string no_such_export(const std::string& name) {
    const std::string no_export = "no export " + quoted(name);
    if (name.size() > 64) return no_export;
    const auto base = name.substr(0, name.find('_'));
    const auto suffix = name.substr(base.size());
    for (const auto& row : library_rows()) {
        if (row.name == base && row.suffix() == suffix)
            return no_export + ": its width is missing; there are " + base + "1" + suffix + ", " + base + "2" +
                   suffix + ", " + base + "3" + suffix + ", " + base + "4" + suffix + ", " + base + "8" + suffix +
                   " and " + base + "16" + suffix;
    }
    // Corrects a width in the wrong place, as in sin8f.
    for (size_t at = 0; at < base.size(); at++)
        for (size_t n = 1; n <= 2 && at + n < base.size(); n++) {
            const auto moved = base.substr(0, at) + base.substr(at + n) + base.substr(at, n) + suffix;
            if (isdigit(base[at]) && !plan_of(library_rows(), moved).symbol.empty())
                return no_export + ": the width stands at the end of the family's name, as in " + moved;
        }
    std::vector<std::pair<size_t, std::string>> near;
    for (const auto& row : library_rows())
        for (int w : widths) {
            const std::string s = short_name(plan_of(row, w));
            near.emplace_back(edit_distance(name, s), s);
        }
    std::partial_sort(near.begin(), near.begin() + 3, near.end());
    return no_export + "; the nearest are " + near[0].second + ", " + near[1].second + " and " + near[2].second;
}

call_plan find_plan(std::string name) {
    if (name.starts_with("__orvane_l9_")) name.erase(0, 12);
    call_plan p = plan_of(library_rows(), name);
    if (p.symbol.empty()) throw failure(no_such_export(name));
    return p;
}

// A number of a lane as its bit pattern.
uint64_t parse_number(const std::string& text, lane_type t) {
    const auto bad = [&](const std::string& why) {
        return failure(quoted(text) + " is no lane of type " + std::string(opencl_type(t)) + ": " + why);
    };
    const char* s = text.c_str();
    char* end;
    errno = 0;
    const bool hex = text.find("0x") != text.npos || text.find("0X") != text.npos;
    const bool power = text.find_first_of("pP") != text.npos;
    if (text.empty()) throw bad("write a decimal, 0x...p... or the bits as 0x...");
    if (text.find_first_of(" \t\n\v\f\r") != text.npos) throw bad("a number has no spaces");
    if (hex && !power) {
        const uint64_t w = strtoull(s, &end, 16);
        if (*end || text[0] == '-') throw bad("bits are 0x and hexadecimal digits, without a sign");
        if (errno || (size_of(t) == 4 && w >> 32))
            throw bad("a pattern of this type has at most " + std::to_string(2 * size_of(t)) + " digits");
        return w;
    }
    if (is_floating(t)) {
        const double v = t == lane_type::f32 ? strtof(s, &end) : strtod(s, &end);
        if (!*end && errno == ERANGE && std::isinf(v)) throw bad("it is out of range; write inf for infinity");
        if (!*end) return word_of(t, v);
    } else {
        const bool is_signed = t == lane_type::i32 || t == lane_type::i64;
        const int64_t i = is_signed ? strtoll(s, &end, 10) : 0;
        const uint64_t u = is_signed ? (uint64_t)i : strtoull(s, &end, 10);
        const bool fits = is_signed ? size_of(t) == 8 || (int32_t)i == i : size_of(t) == 8 || !(u >> 32);
        if (!*end && (errno || !fits || (!is_signed && text[0] == '-'))) throw bad("it is out of range");
        if (!*end) return size_of(t) == 8 ? u : u & 0xFFFFFFFF;
        throw bad("write an integer, or the bits as 0x...");
    }
    throw bad("write a decimal, 0x...p... or the bits as 0x...");
}

std::vector<uint64_t> parse_lane(const std::string& word, const kernel_row& row) {
    const auto parts = split(word, ',');
    if ((int)parts.size() != row.arguments())
        throw failure("lane " + quoted(word) + " has " + std::to_string(parts.size()) + " number(s); " +
                      std::string(row.name) + " takes " + std::to_string(row.arguments()) + ", joined by commas");
    std::vector<uint64_t> lane;
    for (int j = 0; j < row.arguments(); j++)
        lane.push_back(parse_number(parts[j], row.argument(j)));
    return lane;
}

std::string shown(lane_type t, uint64_t w) {
    char s[64];
    if (t == lane_type::f32) snprintf(s, sizeof s, "%.9g", value_of(t, w));
    else if (t == lane_type::f64) snprintf(s, sizeof s, "%.17g", value_of(t, w));
    else if (t == lane_type::i64) snprintf(s, sizeof s, "%lld", (long long)w);
    else if (t == lane_type::u64) snprintf(s, sizeof s, "%llu", (unsigned long long)w);
    else snprintf(s, sizeof s, "%.0f", value_of(t, w));
    return s;
}
std::string pattern(lane_type t, uint64_t w) {
    char s[32];
    snprintf(s, sizeof s, "0x%0*llX", 2 * size_of(t), (unsigned long long)w);
    return s;
}

using lane_words = std::vector<uint64_t>;

// Collects lanes into whole vectors, calls the export, and hands each result lane on.
class stream {
public:
    stream(const call_plan& plan, const void* f) : caller(plan, f), arguments(plan.arguments.size()) {}

    template <class Use> void add(const lane_words& lane, Use use) {
        for (size_t j = 0; j < lane.size(); j++)
            arguments[j].push_back(lane[j]);
        if ((int)arguments[0].size() == caller.plan().width) flush(use);
    }
    // A last short vector is filled with copies of its last lane, whose results nobody sees.
    template <class Use> void flush(Use use) {
        const size_t live = arguments[0].size(), width = caller.plan().width;
        if (!live) return;
        for (auto& a : arguments)
            a.resize(width, a.back());
        caller(arguments, results);
        lane_words in(arguments.size()), out(results.size());
        for (size_t i = 0; i < live; i++) {
            for (size_t j = 0; j < in.size(); j++)
                in[j] = arguments[j][i];
            for (size_t j = 0; j < out.size(); j++)
                out[j] = results[j][i];
            use(in, out);
        }
        for (auto& a : arguments)
            a.clear();
    }

private:
    lane_caller caller;
    std::vector<words> arguments, results;
};

class printer {
public:
    printer(const call_plan& p, bool as_json) : plan(p), as_json(as_json) {}

    std::string header() const {
        if (as_json) return "";
        std::string s = "input -> result (bits)";
        s += "  true value  error in ulps";
        return s + "\n";
    }
    std::string line(const lane_words& in, const lane_words& out) {
        const kernel_row& row = *plan.row;
        json lane;
        std::string s;
        for (size_t j = 0; j < in.size(); j++)
            s += (j ? "," : "") + shown(row.argument(j), in[j]);
        s += " ->";
        const bool known = value(row, in.data());
        for (size_t j = 0; j < out.size(); j++) {
            const lane_type t = row.result(j);
            s += " " + shown(t, out[j]) + " (" + pattern(t, out[j]) + ")";
            json r{{"value", shown(t, out[j])}, {"bits", pattern(t, out[j])}};
            if (known) {
                char digits[64], error[32];
                mpfr_snprintf(digits, sizeof digits, "%.20Rg", value.value(j));
                const double e = value.error(j, t, out[j]);
                snprintf(error, sizeof error, "%.3f", e);
                s += std::string("  ") + digits + "  " + error;
                r["true"] = digits;
                if (std::isfinite(e)) r["ulps"] = e;
                compared = true;
                if (!(e <= worst) || where.empty()) worst = e, where = in;
            }
            lane["results"].push_back(r);
        }
        if (!as_json) return s + "\n";
        for (size_t j = 0; j < in.size(); j++)
            lane["arguments"].push_back(
                {{"value", shown(row.argument(j), in[j])}, {"bits", pattern(row.argument(j), in[j])}});
        return lane.dump() + "\n";
    }
    bool has_compared() const { return compared; } // with a true value that is known
    double worst_error() const { return worst; }
    const lane_words& worst_arguments() const { return where; }

private:
    const call_plan& plan;
    bool as_json;
    bool compared = false;
    double worst = 0;
    lane_words where; // of the worst error
    truth value;
};

// A progress bar on a terminal, by the share of the input that is read.
class progress {
public:
    explicit progress(size_t total) : total(total), on(total && isatty(STDERR_FILENO)) {}
    void at(size_t done) {
        if (!on || (done * 50 / total == shown && done < total)) return;
        shown = done * 50 / total;
        fprintf(stderr, "\r[%-50s] %3zu%%", std::string(shown, '#').c_str(), done * 100 / total);
    }
    ~progress() {
        if (on) fprintf(stderr, "\r%60s\r", "");
    }

private:
    size_t total, shown = ~size_t(0);
    bool on;
};

// Standard output, or a file that appears only when it is complete.
class output {
public:
    explicit output(const std::string& path) {
        if (!path.empty()) file.emplace(path);
    }
    // What cannot be written ends the run at once.
    output& operator<<(const std::string& s) {
        std::ostream& to = file ? file->out : std::cout;
        errno = 0;
        if (!(to << s)) fail();
        return *this;
    }
    void complete() {
        if (file) return file->complete();
        errno = 0;
        if (!std::cout.flush()) fail();
    }

private:
    std::optional<whole_file> file;

    void fail() {
        const int error = errno ? errno : EIO;
        if (file) file->fail(error);
        throw std::runtime_error(std::string("cannot write standard output: ") + strerror(error)); // of no input line
    }
};

void list_exports(bool as_json, output& to) {
    json all = json::array();
    for (const auto& row : library_rows())
        for (int w : widths) {
            const auto name = short_name(plan_of(row, w));
            if (as_json) all.push_back(name);
            else to << name + "\n";
        }
    if (as_json) to << all.dump() + "\n";
}

// Lanes of words: digits of the type's width, without a prefix.
void run_raw(const call_plan& plan, const void* f, bool as_json, output& to) {
    const kernel_row& row = *plan.row;
    stream lanes(plan, f);
    auto print = [&](const lane_words&, const lane_words& out) {
        char s[64];
        int n = 0;
        if (as_json) s[n++] = '[', s[n++] = '"';
        for (size_t j = 0; j < out.size(); j++) {
            if (j) n += sprintf(s + n, "%s", as_json ? "\",\"" : " ");
            n += sprintf(s + n, "%0*llx", 2 * size_of(row.result(j)), (unsigned long long)out[j]);
        }
        if (as_json) s[n++] = '"', s[n++] = ']';
        s[n++] = '\n';
        to << std::string(s, n);
    };
    std::string line;
    bool any = false;
    for (size_t number = 1; std::getline(std::cin, line); number++) {
        if (line.find('\0') != line.npos) throw failure("line " + std::to_string(number) + " holds a NUL byte");
        lane_words lane;
        const char* p = line.c_str();
        while (*(p += strspn(p, " \t\r"))) {
            const lane_type t = (int)lane.size() < row.arguments() ? row.argument(lane.size()) : lane_type::none;
            const int digits = strspn(p, "0123456789abcdefABCDEF"), most = 2 * size_of(t);
            char* end = const_cast<char*>(p) + digits;
            uint64_t w = 0;
            std::from_chars(p, end, w, 16);
            if (!digits || digits > most || !strchr(" \t\r", *end))
                throw failure("line " + std::to_string(number) + ": " + quoted(line) + " is not " +
                              std::to_string(row.arguments()) + " hexadecimal word(s) of the type's width");
            lane.push_back(w);
            p = end;
        }
        if ((int)lane.size() != row.arguments())
            throw failure("line " + std::to_string(number) + ": " + std::to_string(lane.size()) + " word(s); " +
                          std::string(row.name) + " takes " + std::to_string(row.arguments()));
        lanes.add(lane, print);
        any = true;
    }
    if (!any) throw failure("standard input holds no lanes");
    lanes.flush(print);
}

// Hands on every lane of a file, or of standard input (-).
template <class Use> void for_all_lanes(const std::string& from, const kernel_row& row, bool bar_shown, Use use) {
    std::ifstream file;
    size_t size = 0;
    if (from != "-") {
        if (fs::is_directory(from)) throw failure("'" + from + "' is a folder; name a file of lanes, or -");
        file.open(from);
        if (!file) throw failure("cannot read '" + from + "': " + strerror(errno));
        if (fs::is_regular_file(from)) size = fs::file_size(from);
    }
    std::istream& in = from == "-" ? std::cin : file;
    progress bar(bar_shown ? size : 0);
    std::string line;
    size_t read = 0, count = 0;
    for (size_t number = 1; std::getline(in, line); number++) {
        read += line.size() + 1;
        bar.at(std::min(read, size));
        if (line.find('\0') != line.npos) throw failure("line " + std::to_string(number) + " holds a NUL byte");
        if (const auto comment = line.find('#'); comment != line.npos) line.resize(comment);
        std::stringstream words(line);
        for (std::string word; words >> word; count++)
            try {
                use(parse_lane(word, row));
            } catch (const failure& e) {
                throw failure("line " + std::to_string(number) + ": " + e.what());
            }
    }
    if (!count) throw failure((from == "-" ? "standard input" : "'" + from + "'") + " holds no lanes");
}

void run_stream(const call_plan& plan, const void* f, const std::string& from, printer& print, output& to,
                bool bar_shown) {
    stream lanes(plan, f);
    bool first = true;
    auto use = [&](const lane_words& a, const lane_words& r) {
        const std::string line = print.line(a, r);
        to << (std::exchange(first, false) ? print.header() + line : line);
    };
    for_all_lanes(from, *plan.row, bar_shown, [&](const lane_words& lane) { lanes.add(lane, use); });
    lanes.flush(use);
}

// The number of lanes and the largest error, in place of the lanes.
void run_summary(const call_plan& plan, const void* f, const std::string& from, printer& print, bool as_json,
                 output& to, bool bar_shown) {
    stream lanes(plan, f);
    size_t count = 0;
    auto use = [&](const lane_words& a, const lane_words& r) { print.line(a, r), count++; };
    for_all_lanes(from, *plan.row, bar_shown, [&](const lane_words& lane) { lanes.add(lane, use); });
    lanes.flush(use);
    if (as_json) {
        json j{{"export", plan.symbol}, {"lanes", count}, {"largest error in ulps", nullptr}};
        if (print.has_compared()) {
            j["largest error in ulps"] = print.worst_error();
            for (size_t i = 0; i < print.worst_arguments().size(); i++)
                j["at"].push_back(pattern(plan.row->argument(i), print.worst_arguments()[i]));
        }
        to << j.dump() + "\n";
        return;
    }
    char s[160];
    snprintf(s, sizeof s, "%-16s %8zu lanes, ", short_name(plan).c_str(), count);
    std::string line = s;
    if (print.has_compared()) {
        snprintf(s, sizeof s, "largest error %.3f ulp at ", print.worst_error());
        line += s;
        for (size_t j = 0; j < print.worst_arguments().size(); j++)
            line += (j ? "," : "") + shown(plan.row->argument(j), print.worst_arguments()[j]);
    } else line += "no true value known";
    to << line + "\n";
}

int run(const std::vector<std::string>& words) {
    CLI::App app{"Evaluates an export of liborvane_l9.so and prints each lane's input, result and bits."};
    std::string name, from, to, library_path;
    std::vector<std::string> lanes;
    bool raw = false, list = false, as_json = false, summary = false;
    app.add_option("export", name, "expf8_half, __orvane_l9_powf2, ...");
    app.add_option("lanes", lanes,
                   "one word per lane, as many as the width; the arguments of one lane joined by commas. A number is "
                   "decimal (1.5, "
                   "-inf, nan), a hexadecimal float (0x1.8p3) or, 0x without a p, its bits (0x3fc00000)")
        ->allow_extra_args();
    app.add_option("-i,--input", from, "read lanes from a file, or - for standard input; # begins a comment");
    app.add_option("-o,--output", to,
                   "write to a file, which appears only when it is complete (devices and FIFOs as they are)");
    app.add_option("--library", library_path, "the shared library (default: the one beside this program)");
    app.add_flag("--raw", raw, "hexadecimal words from standard input, one lane per line; words to standard output");
    app.add_flag("--list", list, "names of all exports");
    app.add_flag("--json", as_json, "output as JSON, an object a line");
    app.add_flag("--summary", summary,
                 "only the number of lanes of a stream and the largest error with its argument");
    if (parse_words(app, words, lanes, "orvane-call")) return 0;

    if (list && !name.empty()) throw failure("--list takes no export; it names them all");
    if (raw && summary) throw failure("--raw gives words and --summary a line for all of them: take one of the two");
    if (list) {
        output out(to);
        return list_exports(as_json, out), out.complete(), 0;
    }
    if (name.empty()) throw failure("name an export, such as expf8_half; orvane-call --list prints all of them");
    const call_plan plan = find_plan(name);

    if (library_path.empty()) {
        std::error_code none;
        library_path = fs::read_symlink("/proc/self/exe", none).parent_path() / "liborvane_l9.so";
        if (!fs::exists(library_path)) library_path = "liborvane_l9.so"; // installed: where the loader looks
    }
    if (!__builtin_cpu_supports("avx2") || !__builtin_cpu_supports("fma"))
        throw failure("this processor lacks AVX2 or FMA, which every export needs");
    const library lib(library_path);
    if (!lib.handle()) throw failure("cannot open the library: " + lib.error());
    const void* f = lib.address(plan.symbol);
    if (!f) throw failure("'" + library_path + "' has no " + plan.symbol);

    if (raw) {
        if (!lanes.empty() || !from.empty()) throw failure("--raw reads lanes from standard input alone");
        output out(to);
        return run_raw(plan, f, as_json, out), out.complete(), 0;
    }

    printer print(plan, as_json);
    if (!from.empty() || lanes.empty()) {
        if (!lanes.empty()) throw failure("lanes come from the command line or from -i, not from both");
        if (from.empty()) from = "-";
        const bool bar_shown = !to.empty() || summary || !isatty(STDOUT_FILENO); // not among lanes on the terminal
        output out(to);
        if (summary) return run_summary(plan, f, from, print, as_json, out, bar_shown), out.complete(), 0;
        run_stream(plan, f, from, print, out, bar_shown);
        return out.complete(), 0;
    }
    if (summary) throw failure("--summary is for the lanes of a file or of standard input");
    if ((int)lanes.size() != plan.width)
        throw failure(short_name(plan) + " takes " + std::to_string(plan.width) + " lane(s), not " +
                      std::to_string(lanes.size()) + "; for any number of lanes use -i");
    std::vector<lane_words> parsed;
    for (const auto& lane : lanes)
        parsed.push_back(parse_lane(lane, *plan.row));
    stream vector(plan, f);
    output out(to);
    out << print.header();
    for (const auto& lane : parsed)
        vector.add(lane, [&](const lane_words& a, const lane_words& r) { out << print.line(a, r); });
    return out.complete(), 0;
}

} // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr);
    return run_program("orvane-call", [&] { return run({argv + 1, argv + argc}); });
}
