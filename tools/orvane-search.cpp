// orvane-search: looks for the arguments at which a kernel's error is largest.
//
//     orvane-search pow                            a minute of climbing for each path of the default tier
//     orvane-search exp_native --seconds 300       tiers by their suffix, as in the names of exports
//     orvane-search expf --every                   every float; --from and --to keep to magnitudes between them
//     orvane-search pownf --seed 7 --append        puts what is larger than the file's row into data/worst_cases.txt
//     orvane-search pownf --at 0x3F82A0F1,0xFFFFEF47   measures one argument, without a search
//     orvane-search pow --near 0x3FEFF8AD00000000,0xC1282B2B00000000 --within 50   climbs around one argument
//     orvane-search --lines                        puts the file's rows into the lines above the kernels' exports
//
// Arguments are drawn from all patterns, from the ordinary range of the list of exports and from where two arguments
// meet, and sorted into bins by sign, exponent and leading bits. The bins with the largest errors are then climbed:
// an argument is moved by steps of all sizes, and what is worse takes its place. The C library in extended precision
// tells errors while this goes on; those that are left at the end are decided by MPFR. Slow paths and inline paths of
// large arguments are told apart by what a call does and are searched beside the formula.
#include "extended.h"
#include "subject.h"
#include "whole_file.h"
#include "worst_cases.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <bit>
#include <cmath>
#include <ctime>
#include <iostream>
#include <map>
#include <random>
#include <unistd.h>
#include <unordered_map>

using namespace orvane;

namespace {

constexpr lane_path paths[] = {lane_path::vector, lane_path::large, lane_path::slow};

// One clear line, and a non-zero exit.
struct failure : std::runtime_error {
    using runtime_error::runtime_error;
};

struct options {
    double seconds = 60, from = 0, to = HUGE_VAL;
    uint64_t seed = 1;
    bool every = false;
    subject::lane near{}; // where `within` is not 0, fresh arguments are drawn around these
    int within = 0;       // so many low bits of their patterns are drawn
};

double processor_seconds() {
    timespec t;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return t.tv_sec + 1e-9 * t.tv_nsec;
}

// Draws arguments.
class source {
public:
    source(const kernel_row& row, const options& o) : row(row), o(o), r(o.seed) {
        const std::string base = row.base();
        by_angle = base == "sin" || base.starts_with("sincos") || base == "cos" || base == "tan";
    }
    uint64_t random() { return r(); }
    double uniform(double lo, double hi) { return lo + (hi - lo) * ((r() >> 11) * 0x1p-53); }

    subject::lane fresh() {
        if (o.within) return around();
        subject::lane x{one(0), 0};
        if (row.arguments() < 2) return x;
        const double a = value_of(row.argument(0), x[0]);
        const int kind = r() % 4;
        if (row.argument(1) == lane_type::i32) {
            double n = std::exp2(uniform(0, 31)) * (r() & 1 ? 1 : -1);
            if (kind == 0) n = double(int(r() % 65) - 32);
            if (kind == 1 && a != 0) n = uniform(-1100, 1100) / std::log2(std::fabs(a)); // a power within the range
            x[1] = word_of(lane_type::i32, std::clamp(std::isnan(n) ? 1 : n, -0x1p31, 0x1p31 - 1));
        } else if (kind == 0) x[1] = one(1);
        else if (kind == 1) x[1] = word_of(row.argument(1), uniform(row.range[2], row.range[3]));
        else if (kind == 2 || !row.base().starts_with("pow")) // of like size
            x[1] = word_of(row.argument(1),
                           a * uniform(1, 2) * std::exp2(std::floor(uniform(-12, 13))) * (r() & 1 ? 1 : -1));
        else x[1] = word_of(row.argument(1), uniform(-1100, 1100) / std::log2(std::fabs(a)));
        return x;
    }
    // A lane moved by a step of any size.
    subject::lane moved(subject::lane x) {
        const int which = row.arguments() < 2 ? 1 : 1 + r() % 3;
        for (int j = 0; j < row.arguments(); j++) {
            if (!(which >> j & 1)) continue;
            const lane_type t = row.argument(j);
            const int bits = t == lane_type::f64 ? 54 : t == lane_type::f32 ? 25 : 31;
            const uint64_t step = r() & ((uint64_t(2) << (r() % bits)) - 1);
            x[j] += r() & 1 ? step : -step;
            if (size_of(t) == 4) x[j] &= 0xFFFFFFFF;
        }
        return x;
    }

private:
    subject::lane around() {
        subject::lane x = o.near;
        for (int j = 0; j < row.arguments(); j++) {
            x[j] += (r() >> (64 - o.within)) - (uint64_t(1) << (o.within - 1));
            if (size_of(row.argument(j)) == 4) x[j] &= 0xFFFFFFFF;
        }
        return x;
    }
    uint64_t one(int j) {
        const lane_type t = row.argument(j);
        const int sign_bit = 8 * size_of(t) - 1;
        const uint64_t sign = (r() & 1) << sign_bit;
        switch (r() % (by_angle ? 5 : 4)) {
        case 0:
            return r() >> (63 - sign_bit);
        case 1:
            return word_of(t, uniform(row.range[2 * j], row.range[2 * j + 1]));
        case 2:
            return word_of(t, std::exp2(uniform(-40, 14))) | sign;
        case 4: // next to multiples of pi/2
            return word_of(t, double(1.57079632679489661923L * std::floor(std::exp2(uniform(0, 24))))) + r() % 3 - 1;
        default: // near 1
            return word_of(t, 1 + uniform(-1, 1) * std::exp2(uniform(-30, 0))) | sign;
        }
    }
    const kernel_row& row;
    const options o;
    std::mt19937_64 r;
    bool by_angle;
};

struct candidate {
    subject::lane x;
    double error = 0;
};
using findings = std::map<lane_path, candidate>;

// MPFR decides among the candidates of a path.
void decide(subject& s, lane_path path, std::vector<candidate> candidates, findings& found) {
    constexpr size_t most = 200;
    std::sort(candidates.begin(), candidates.end(), [](auto& a, auto& b) { return a.error > b.error; });
    if (candidates.size() > most) candidates.resize(most);
    const error_measure m = measure_of(s.row, path);
    for (auto& c : candidates) {
        c.error = s.decided(c.x, m);
        if (std::isfinite(c.error) && c.error > found[path].error) found[path] = c;
    }
}

void show_progress(double done, double of, const std::string& so_far) {
    if (isatty(2)) fprintf(stderr, "\r%3.0f%%  %s\033[K", 100 * done / of, so_far.c_str());
}
void end_progress() {
    if (isatty(2)) fputs("\r\033[K", stderr);
}

// Arguments as in the data file.
subject::lane lane_of(const kernel_row& row, const std::string& text) {
    subject::lane x{};
    std::stringstream words(text);
    int count = 0;
    for (std::string word; std::getline(words, word, ','); count++) {
        char* end;
        const uint64_t w = strtoull(word.c_str(), &end, 16);
        if (!word.starts_with("0x") || *end)
            throw failure("'" + word + "' is no bit pattern; write 0x and hexadecimal digits");
        if (count < 2) x[count] = w;
    }
    if (count != row.arguments())
        throw failure("'" + text + "' has " + std::to_string(count) + " pattern(s); " + std::string(row.name) +
                      " takes " + std::to_string(row.arguments()) + ", joined by a comma");
    return x;
}

// Given arguments: no search, MPFR alone.
findings measured(subject& s, const std::vector<std::string>& lanes) {
    findings found;
    for (const auto& text : lanes) {
        const subject::lane x = lane_of(s.row, text);
        const lane_path path = s.path_of(x);
        const double error = s.decided(x, measure_of(s.row, path));
        if (std::isfinite(error) && error > found[path].error) found[path] = {x, error};
    }
    return found;
}

findings climbed(subject& s, const options& o) {
    source draw(s.row, o);
    struct bins {
        std::unordered_map<uint64_t, candidate> of;
        std::vector<uint64_t> best; // those with the largest errors
    };
    std::map<lane_path, bins> all;
    const auto bin_of = [&](const subject::lane& x) {
        uint64_t b = 0;
        for (int j = 0; j < s.row.arguments(); j++) {
            const lane_type t = s.row.argument(j);
            const int shift = o.within              ? std::max(o.within - 5, 0)
                              : t == lane_type::f64 ? 50
                              : t == lane_type::f32 ? 21
                                                    : 26;
            b = b * 0x10001 + (x[j] >> (s.row.arguments() == 1 ? shift - 1 : shift + 1));
        }
        return b;
    };
    constexpr size_t kept = 48;
    const auto choose_best = [&](bins& b) {
        std::vector<std::pair<double, uint64_t>> order;
        for (const auto& [bin, c] : b.of)
            order.emplace_back(-c.error, bin);
        const size_t n = std::min(kept, order.size());
        std::partial_sort(order.begin(), order.begin() + n, order.end());
        b.best.clear();
        for (size_t i = 0; i < n; i++)
            b.best.push_back(order[i].second);
    };

    const double begin = processor_seconds();
    subject::lane x[subject::width];
    double error[subject::width], error_here[subject::width];
    for (uint64_t round = 0;; round++) {
        const double spent = processor_seconds() - begin;
        if (spent >= o.seconds) break;
        if (round % 1024 == 0) {
            std::string so_far;
            for (auto& [path, b] : all) {
                choose_best(b);
                if (b.best.empty()) continue;
                char text[80];
                snprintf(text, sizeof text, "%s %.6g  ", to_string(path).data(), b.of[b.best[0]].error);
                so_far += text;
            }
            show_progress(spent, o.seconds, so_far);
        }
        // Two thirds of the lanes climb once the first third of the time has filled the bins.
        const bool climbs = spent > o.seconds / 3;
        for (auto& lane : x) {
            const bins* from = nullptr;
            if (climbs ? draw.random() % 6 : draw.random() % 4 == 0)
                for (auto& [path, b] : all)
                    if (!b.best.empty() && (!from || draw.random() % all.size() == 0)) from = &b;
            // Toward the end the worst few alone.
            const uint64_t n =
                from ? (spent > 0.8 * o.seconds ? std::min<size_t>(8, from->best.size()) : from->best.size()) : 0;
            lane = from ? draw.moved(from->of.at(from->best[draw.random() % n]).x) : draw.fresh();
            const double size = std::fabs(value_of(s.row.argument(0), lane[0]));
            if (!(size >= o.from && size <= o.to)) lane = x[0];
        }
        // Paths may have different measures; where they have, the vector path's and the others'.
        const error_measure of_vector = measure_of(s.row, lane_path::vector),
                            of_others = measure_of(s.row, lane_path::slow);
        s.errors(x, of_vector, error);
        if (of_vector != of_others) s.errors(x, of_others, error_here);
        for (int i = 0; i < subject::width; i++) {
            const uint64_t bin = bin_of(x[i]);
            // The path is asked for only where some path's largest of the bin would be beaten.
            bool beaten = false;
            for (lane_path p : paths) {
                if (p == lane_path::large && large_from(s.row) == HUGE_VAL) continue;
                if (p == lane_path::slow && !s.row.has_slow_path()) continue;
                auto& of = all[p].of;
                const auto at = of.find(bin);
                const double e = p == lane_path::vector || of_vector == of_others ? error[i] : error_here[i];
                beaten |= e > (at == of.end() ? 0 : at->second.error);
            }
            if (!beaten) continue;
            const lane_path p = s.path_of(x[i]);
            const double e = p == lane_path::vector || of_vector == of_others ? error[i] : error_here[i];
            auto& best = all[p].of[bin];
            if (e > best.error) best = {x[i], e};
        }
        for (auto& [path, b] : all)
            if (b.best.empty() && round % 64 == 63) choose_best(b);
    }
    end_progress();
    findings found;
    for (auto& [path, b] : all) {
        std::vector<candidate> candidates;
        for (auto& [bin, c] : b.of)
            if (c.error > 0) candidates.push_back(c);
        decide(s, path, candidates, found);
    }
    return found;
}

findings every_float(subject& s, const options& o) {
    const uint32_t low = std::bit_cast<uint32_t>((float)o.from);
    const uint32_t high = std::bit_cast<uint32_t>(std::isinf(o.to) ? 0x1.fffffep127f : (float)o.to);
    std::map<lane_path, std::vector<candidate>> top;
    std::map<lane_path, double> least;
    constexpr size_t kept = 1000;
    const double inline_from = large_from(s.row);
    for (int negative = 0; negative < 2; negative++)
        for (uint64_t first = low; first <= high; first += 1 << 20) {
            show_progress(negative * double(high - low) + first - low, 2.0 * (high - low), "");
            const uint64_t last = std::min<uint64_t>(first + (1 << 20) - 1, high);
            const uint32_t sign = uint32_t(negative) << 31;
            s.each_float(first | sign, last | sign, [&](uint32_t x, float y, double v) {
                // It is not known yet whether the lane takes the formula or the slow path; the smaller of their
                // bounds serves.
                const bool large = std::fabs(std::bit_cast<float>(x)) >= inline_from;
                const lane_path guess = large ? lane_path::large : lane_path::vector;
                const error_measure m = measure_of(s.row, guess);
                double e;
                if (m == error_measure::ulp) {
                    const int exponent = std::max(int(std::bit_cast<uint64_t>(v) >> 52 & 0x7FF) - 1022, -125);
                    e = std::fabs(y - v) * std::bit_cast<double>(uint64_t(1023 + 24 - exponent) << 52);
                } else e = subject::error_of(m, lane_type::f32, std::bit_cast<uint32_t>(y), v);
                if (e <= std::min(least[guess], s.row.has_slow_path() ? least[lane_path::slow] : HUGE_VAL)) return;
                const lane_path p = s.path_of({x, 0});
                if (e <= least[p]) return;
                auto& t = top[p];
                t.push_back({{x, 0}, e});
                if (t.size() >= 4 * kept) {
                    std::nth_element(t.begin(), t.begin() + kept, t.end(),
                                     [](auto& a, auto& b) { return a.error > b.error; });
                    t.resize(kept);
                    least[p] = std::min_element(t.begin(), t.end(), [](auto& a, auto& b) {
                                   return a.error < b.error;
                               })->error;
                }
            });
        }
    end_progress();
    findings found;
    for (auto& [path, candidates] : top)
        decide(s, path, candidates, found);
    return found;
}

const kernel_row& row_named(std::string name) {
    if (name.starts_with("__orvane_l9_")) name.erase(0, 12);
    std::string tier = "default";
    for (auto t : {"rm", "native", "half"})
        if (name.ends_with("_" + std::string(t))) {
            tier = t;
            name.erase(name.size() - tier.size() - 1);
        }
    const kernel_row* row = find_row(library_rows(), name, tier);
    if (!row) {
        const call_plan plan = plan_of(library_rows(), name + (tier == "default" ? "" : "_" + tier)); // with a width
        row = plan.symbol.empty() ? nullptr : plan.row;
    }
    if (!row) throw failure("no family '" + name + "' with a tier '" + tier + "'; orvane-call --list has them all");
    while (!row->twin_name.empty())
        row = find_row(library_rows(), row->twin_name, row->twin_tier);
    return *row;
}

std::string library_path() {
    std::error_code error;
    const auto self = std::filesystem::read_symlink("/proc/self/exe", error);
    return (self.parent_path() / "liborvane_l9.so").string();
}

int run(int argc, char** argv) {
    CLI::App app("Looks for the arguments at which a kernel's error is largest, against the C library in extended "
                 "precision and then MPFR.");
    std::vector<std::string> names;
    options o;
    std::string file = ORVANE_SOURCES "/data/worst_cases.txt", lib = library_path();
    std::vector<std::string> at;
    std::string near;
    bool append = false, lines = false;
    app.add_option("kernels", names,
                   "families with their tier, as exports are named without the width: exp, powf_native; "
                   "a twin stands for the kernel that it is");
    app.add_option("-s,--seconds", o.seconds, "processor time for each kernel (60)")->check(CLI::PositiveNumber);
    app.add_option("--seed", o.seed, "of the random arguments (1)");
    app.add_flag("--every", o.every, "every float instead, for float kernels of one argument: about two minutes");
    app.add_option("--at", at, "measure these arguments instead: bit patterns, two joined by a comma");
    app.add_option("--near", near, "draw arguments around these alone: bit patterns, two joined by a comma");
    app.add_option("--within", o.within, "of --near: low bits of the patterns that are drawn (44, for float 16)")
        ->check(CLI::Range(1, 63));
    app.add_option("--from", o.from, "only arguments of this magnitude or larger")->check(CLI::NonNegativeNumber);
    app.add_option("--to", o.to, "only arguments of this magnitude or smaller")->check(CLI::NonNegativeNumber);
    app.add_flag("--append", append, "put what is larger than the data file's row into it");
    app.add_flag("--lines", lines, "no search: put the data file's rows into the lines above the kernels' exports");
    app.add_option("--file", file, "the data file (data/worst_cases.txt of the sources)");
    app.add_option("--library", lib, "the library (beside this program)");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& e) {
        if (e.get_exit_code() == 0) return app.exit(e);
        throw failure(std::string(e.what()) + " (--help tells more)");
    }
    if (names.empty() != lines)
        throw failure("name one kernel or more, as in 'orvane-search exp powf_native', or --lines alone");
    if (lines) {
        const auto rows = read_worst_cases(file);
        int placed = 0;
        for (const auto& source : sources_with_error_lines(ORVANE_SOURCES))
            write_whole(source, with_error_lines(contents_of(source), rows, &placed));
        std::cout << placed << " lines\n";
        return 0;
    }
    if (o.within && near.empty())
        throw failure("--within tells how far from the arguments of --near; name them, too");
    if (o.from > o.to) throw failure("--from is larger than --to: no argument lies between them");
    const library opened(lib);
    if (!opened.handle()) throw failure("cannot open the library: " + opened.error());
    // All mistakes are told before the first search.
    std::vector<const kernel_row*> rows;
    for (const auto& n : names) {
        rows.push_back(&row_named(n));
        if (!extended_reference_of(*rows.back()) || rows.back()->arguments() > 2)
            throw failure("'" + n + "' is exact by its meaning, or rounded once: there is no error to look for");
        if (o.every && (rows.back()->arguments() != 1 || rows.back()->in != lane_type::f32))
            throw failure("--every is for float kernels of one argument; '" + n + "' is none: leave it out to climb");
    }
    if (append) read_worst_cases(file);
    for (const kernel_row* row : rows) {
        subject s(*row, opened);
        options here = o;
        if (!near.empty()) {
            here.near = lane_of(*row, near);
            if (!here.within) here.within = row->in == lane_type::f64 ? 44 : 16;
        }
        const findings found = !at.empty() ? measured(s, at) : o.every ? every_float(s, o) : climbed(s, here);
        auto known = append ? read_worst_cases(file) : std::vector<worst_case>();
        for (const auto& [path, c] : found) {
            if (c.error <= 0) continue;
            worst_case w{row, path, {c.x.begin(), c.x.begin() + row->arguments()}, c.error, measure_of(*row, path)};
            if (path != lane_path::slow && s.one.is_fed_by_estimates()) w.estimates = estimates_of_this_processor();
            const auto at = std::find_if(known.begin(), known.end(), [&](const worst_case& k) {
                return k.row == row && k.path == path && k.estimates == w.estimates;
            });
            const bool larger = at == known.end() || at->error < w.error;
            std::cout << line_of(w) << (append ? larger ? "  (new)\n" : "  (the file has a larger one)\n" : "\n")
                      << std::flush;
            if (!larger) continue;
            if (at == known.end()) known.push_back(w);
            else *at = w;
        }
        if (append) write_worst_cases(file, known);
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const std::exception& e) {
        std::cerr << "orvane-search: " << e.what() << "\n";
        return 1;
    }
}
