// orvane-report: measures this machine and this build, and writes one page to choose functions by.
//
//     orvane-report                                 report.html, and its data in report.json; some minutes
//     orvane-report --quick 'exp.*' sinf            families by regular expressions for their whole names
//     orvane-report --baseline old.json -o new.html colours what got faster, slower or changed a bit since then
//     orvane-report --from other.json -o other.html shows figures of another machine
//
// Accuracy is measured here, on all processors; speed by orvane-bench, and by the programs of examples that are built
// beside this one, one after the other. The data is written as measuring goes on, so that a run that was interrupted
// goes on where it stood; docs/report.md tells its format.
#include "accuracy.h"
#include "facts.h"
#include "page.h"

#include "tools/estimates.h"
#include "tools/report_data.h"
#include "tools/whole_file.h"

#include <CLI/CLI.hpp>
#include <atomic>
#include <chrono>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <iostream>
#include <mutex>
#include <regex>
#include <set>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace orvane;
using namespace orvane::report;
namespace fs = std::filesystem;

namespace {

volatile std::sig_atomic_t interrupted = 0;
void interrupt(int) { interrupted = 1; }
// Writing a whole file takes the handlers away.
void catch_interrupts() {
    for (int s : {SIGINT, SIGTERM, SIGHUP})
        if (signal(s, interrupt) == SIG_IGN) signal(s, SIG_IGN);
}

double now() {
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}

struct options {
    fs::path page = "report.html", library;
    std::string baseline, from;
    bool quick = false, every = false;
    std::vector<std::string> patterns;

    fs::path data() const { return fs::path(page).replace_extension(".json"); }
    std::string kind() const { return quick ? "quick" : every ? "exhaustive" : "full"; }
    effort accuracy() const { return {quick ? 48 : 1024, quick ? 3 : 12, every}; }
};

// A bar on a terminal, with the time that is left: what is left of each phase at the pace of what is done of it, or
// at the pace that is expected as long as nothing is.
class progress {
public:
    struct phase {
        const char* name;
        double seconds_each; // expected
        size_t all, done = 0;
        double spent = 0;
    };
    explicit progress(std::vector<phase> phases) : phases(std::move(phases)) {}
    void begin(size_t p) { current = p, started = now(), first_done = phases[p].done; }
    void show(size_t done) {
        phase& p = phases[current];
        p.done = done, p.spent = now() - started;
        if (done > first_done) p.seconds_each = p.spent / double(done - first_done);
        if (!isatty(STDERR_FILENO)) return;
        double left = 0, all = 0;
        for (const phase& each : phases) {
            left += each.seconds_each * double(each.all - each.done);
            all += each.seconds_each * double(each.all);
        }
        const int wide = 28, full = all > 0 ? int(wide * (1 - left / all)) : 0;
        std::string bar;
        for (int i = 0; i < wide; i++)
            bar += i < full ? "█" : "░";
        fprintf(stderr, "\r%s %3.0f%%  %d:%02d left  %s %zu of %zu\033[K", bar.c_str(),
                all > 0 ? 100 * (1 - left / all) : 100, int(left) / 60, int(left) % 60, p.name, p.done, p.all);
    }
    void end() const {
        if (isatty(STDERR_FILENO)) fputs("\r\033[K", stderr);
    }

private:
    std::vector<phase> phases;
    size_t current = 0, first_done = 0;
    double started = 0;
};

// A program's standard output. Throws if it fails, with what it said last.
std::string output_of(const std::vector<std::string>& command) {
    int out[2];
    const fs::path said = fs::temp_directory_path() / ("orvane-report-" + std::to_string(getpid()));
    if (pipe2(out, O_CLOEXEC)) throw std::runtime_error(std::string("cannot make a pipe: ") + strerror(errno));
    const pid_t child = fork();
    if (child == 0) {
        std::vector<char*> arguments;
        for (const auto& a : command)
            arguments.push_back(const_cast<char*>(a.c_str()));
        arguments.push_back(nullptr);
        dup2(out[1], STDOUT_FILENO);
        const int error = open(said.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        if (error >= 0) dup2(error, STDERR_FILENO);
        execv(arguments[0], arguments.data());
        _exit(127);
    }
    close(out[1]);
    std::string text;
    char part[1 << 14];
    for (ssize_t n; (n = read(out[0], part, sizeof part)) > 0 || (n < 0 && errno == EINTR);)
        if (n > 0) text.append(part, n);
    close(out[0]);
    int status = -1;
    while (child > 0 && waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    std::string last = contents_of(said);
    std::error_code ignored;
    fs::remove(said, ignored);
    if (status == 0) return text;
    while (last.ends_with('\n'))
        last.pop_back();
    last = last.substr(last.rfind('\n') + 1);
    throw std::runtime_error(fs::path(command[0]).filename().string() + " failed" +
                             (last.empty() ? "" : ": " + last));
}

// A table of Markdown as an array of rows of cells, the first of them its head.
json table_in(const std::string& text) {
    json table = json::array();
    std::stringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with("|") || line.starts_with("|-")) continue;
        json row = json::array();
        std::stringstream cells(line.substr(1));
        for (std::string cell; std::getline(cells, cell, '|');) {
            std::erase(cell, '`');
            const size_t from = cell.find_first_not_of(' ');
            row.push_back(from == cell.npos ? "" : cell.substr(from, cell.find_last_not_of(' ') - from + 1));
        }
        table.push_back(row);
    }
    return table;
}

std::string digest_of_file(const fs::path& file) {
    uint64_t d = 0;
    for (unsigned char c : contents_of(file))
        d = mixed(d, c);
    char s[20];
    snprintf(s, sizeof s, "%016llX", (unsigned long long)d);
    return s;
}

std::vector<const kernel_row*> pairs_of(const options& o) {
    std::vector<const kernel_row*> rows;
    std::vector<bool> any(o.patterns.size());
    std::vector<std::regex> patterns;
    for (const auto& p : o.patterns)
        try {
            patterns.emplace_back(p);
        } catch (const std::regex_error&) {
            throw std::runtime_error("'" + p + "' is no regular expression; families are picked as in 'exp.*' sinf");
        }
    for (const auto& row : library_rows()) {
        bool picked = patterns.empty();
        for (size_t i = 0; i < patterns.size(); i++)
            if (std::regex_match(std::string(row.name), patterns[i])) picked = any[i] = true;
        if (picked) rows.push_back(&row);
    }
    for (size_t i = 0; i < any.size(); i++)
        if (!any[i])
            throw std::runtime_error("no family is named " + o.patterns[i] +
                                     ": names have the f of the float member, and neither width nor tier, as expf; "
                                     "orvane-call --list has them all");
    return rows;
}

class run {
public:
    run(const options& o, const fs::path& tools)
        : o(o), tools(tools), opened(o.library.string()), pairs(pairs_of(o)),
          cases(read_worst_cases(ORVANE_SOURCES "/data/worst_cases.txt")) {
        if (!opened.handle()) throw std::runtime_error("cannot open the library: " + opened.error());
        for (const kernel_row* row : pairs) {
            if (families.empty() || families.back() != row->name) families.emplace_back(row->name);
            if (seen.insert(&kernel_of(*row)).second) kernels.push_back(&kernel_of(*row));
        }
        const std::time_t t = std::time(nullptr);
        char day[16];
        std::strftime(day, sizeof day, "%F", std::gmtime(&t));
        data = {{"format", 1},
                {"kind", o.kind()},
                {"complete", false},
                {"measured", day},
                {"library", digest_of_file(o.library)},
                {"estimates", kind_of_processor()}};
        for (const auto& p : o.patterns)
            data["families_picked"].push_back(p);
        const json fresh = data;
        data["processor"] = "";
        data["kernels"] = json::object();
        data["speed"] = json::array();
        data["programs"] = json::array();
        if (!o.baseline.empty()) baseline = as_baseline(report_data(o.baseline));
        take_up(fresh);
        data.update(facts_of(pairs, opened, cases));
        json bins;
        for (lane_type t :
             {lane_type::f32, lane_type::f64, lane_type::i32, lane_type::u32, lane_type::i64, lane_type::u64})
            bins[std::string(to_string(t))] = {{"line", edges_of(t, false)}, {"plane", edges_of(t, true)}};
        data["edges"] = bins;
    }

    // False if it was interrupted.
    bool measure() {
        constexpr size_t families_at_once = 4;
        progress bar({{"accuracy",
                       o.quick   ? 0.03
                       : o.every ? 30
                                 : 0.3,
                       kernels.size()},
                      {"speed", o.quick ? 0.15 : 1.2, families.size()},
                      {"programs", 40, o.quick || !o.patterns.empty() ? 0 : size_t(2)}});
        catch_interrupts();
        bar.begin(0);
        accuracy(bar);
        bar.begin(1);
        size_t done = 0;
        for (size_t first = 0; first < families.size() && !interrupted; first += families_at_once) {
            std::vector<std::string> some;
            for (size_t i = first; i < std::min(first + families_at_once, families.size()); i++)
                if (!has_speed(families[i])) some.push_back(families[i]);
            if (!some.empty()) speed(some);
            done = std::min(first + families_at_once, families.size());
            bar.show(done);
        }
        bar.begin(2);
        if (!o.quick && o.patterns.empty()) programs(bar);
        bar.end();
        data["complete"] = !interrupted;
        keep();
        return !interrupted;
    }

    void write_page() {
        json shown = data;
        if (!baseline.is_null()) shown["baseline"] = baseline;
        write_whole(o.page, page_of(shown));
    }
    size_t pairs_measured() const { return pairs.size(); }

private:
    const options& o;
    const fs::path tools;
    const library opened;
    const std::vector<const kernel_row*> pairs;
    const std::vector<worst_case> cases;
    std::set<const kernel_row*> seen;
    std::vector<const kernel_row*> kernels;
    std::vector<std::string> families;
    json data, baseline;
    double kept = 0;

    // What an interrupted run of the same kind, over the same library, has measured already.
    void take_up(const json& fresh) {
        std::error_code error;
        if (!fs::is_regular_file(o.data(), error)) return;
        const json old = json::parse(contents_of(o.data()), nullptr, false);
        if (old.is_discarded() || !old.is_object()) return;
        for (const auto& [key, value] : fresh.items())
            if (key != "measured" && (!old.contains(key) || old[key] != value)) return;
        if (old.contains("families_picked") != fresh.contains("families_picked")) return;
        for (auto key : {"kernels", "speed", "programs", "processor"})
            if (old.contains(key)) data[key] = old[key];
        std::cerr << "orvane-report: goes on with " << o.data().string() << ", which was interrupted\n";
    }
    void keep() {
        write_whole(o.data(), data.dump() + "\n");
        catch_interrupts();
        kept = now();
    }

    void accuracy(progress& bar) {
        std::vector<const kernel_row*> left;
        for (const kernel_row* k : kernels)
            if (!data["kernels"].contains(name_of(*k))) left.push_back(k);
        std::atomic<size_t> next = 0;
        std::mutex mutex;
        std::string failed;
        std::map<std::string, json> done;
        const auto work = [&] {
            for (size_t i; (i = next++) < left.size() && !interrupted;) {
                json measured;
                try {
                    measured = accuracy_of(*left[i], opened, cases, o.accuracy(), [] { return interrupted != 0; });
                } catch (const std::exception& e) {
                    const std::lock_guard lock(mutex);
                    failed = e.what();
                    next = left.size();
                    return;
                }
                if (measured.is_null()) return;
                const std::lock_guard lock(mutex);
                done[name_of(*left[i])] = std::move(measured);
            }
        };
        std::vector<std::thread> workers;
        for (unsigned i = 0; i < std::max(1u, std::thread::hardware_concurrency()); i++)
            workers.emplace_back(work);
        // This thread alone writes files and tells how far things are.
        for (bool all = left.empty(); !all && !interrupted;) {
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
            const std::lock_guard lock(mutex);
            for (auto& [name, measured] : done)
                data["kernels"][name] = std::move(measured);
            done.clear();
            all = data["kernels"].size() == kernels.size() || !failed.empty();
            bar.show(data["kernels"].size());
            if (now() - kept > 5) keep();
        }
        for (auto& w : workers)
            w.join();
        for (auto& [name, measured] : done)
            data["kernels"][name] = std::move(measured);
        if (!failed.empty()) throw std::runtime_error(failed);
        keep();
    }

    bool has_speed(const std::string& family) const {
        for (const json& row : data["speed"])
            if (row["family"] == family) return true;
        return false;
    }

    void speed(const std::vector<std::string>& some) {
        const fs::path figures = o.data().string() + ".part";
        std::vector<std::string> command = {(tools / "orvane-bench").string(), "--latency",
                                            "--json=" + figures.string()};
        if (o.quick)
            for (auto option : {"--benchmark_repetitions=3", "--benchmark_min_time=0.0003"})
                command.push_back(option);
        else
            for (auto option : {"--benchmark_repetitions=9", "--benchmark_min_time=0.003"})
                command.push_back(option);
        command.insert(command.end(), some.begin(), some.end());
        try {
            output_of(command);
        } catch (const std::exception&) {
            if (!interrupted) throw;
            return;
        }
        const json measured = json::parse(contents_of(figures), nullptr, false);
        fs::remove(figures);
        if (measured.is_discarded() || !measured.contains("rows"))
            throw std::runtime_error("orvane-bench has written no figures");
        data["processor"] = measured["processor"];
        for (const json& row : measured["rows"])
            data["speed"].push_back(row);
        if (now() - kept > 2) keep();
    }

    // The tables of the example kernels and loops whose programs are built.
    void programs(progress& bar) {
        const std::pair<const char*, const char*> all[] = {
            {"orvane-jit-speed",
             "OpenCL C kernels, compiled by the worked example of a JIT: nanoseconds per work-item"},
            {"orvane-bench-loops",
             "Loops in C, vectorized by GCC: nanoseconds per element; under SLEEF and scalar how many "
             "times as long these take"}};
        size_t done = 0;
        for (const auto& [program, title] : all) {
            const auto is_this = [&](const json& p) { return p["program"] == program; };
            const bool had = std::any_of(data["programs"].begin(), data["programs"].end(), is_this);
            if (!had && !interrupted && fs::exists(tools / program)) {
                try {
                    const json table = table_in(output_of({(tools / program).string()}));
                    data["programs"].push_back({{"program", program}, {"title", title}, {"table", table}});
                } catch (const std::exception&) {
                    if (!interrupted) throw;
                }
            }
            bar.show(++done);
        }
    }
};

int report_of(int argc, char** argv) {
    CLI::App app(
        "Measures this machine and this build of Orvane, and writes one page of accuracy and speed that opens "
        "from disk. Beside it lie its data, which --baseline reads.");
    options o;
    std::error_code error;
    const fs::path tools = fs::read_symlink("/proc/self/exe", error).parent_path();
    o.library = tools / "liborvane_l9.so";
    app.add_option("-o,--output", o.page, "the page (report.html); its data goes beside it, with .json for .html");
    auto* quick = app.add_flag("--quick", o.quick, "fewer arguments and shorter timings: below a minute");
    app.add_flag("--exhaustive", o.every, "every float for float families of one argument: hours")->excludes(quick);
    app.add_option("--baseline", o.baseline, "the data or the page of an earlier report, to compare with");
    app.add_option("--from", o.from,
                   "the data or the page of an earlier report: its page is written anew, measuring nothing")
        ->excludes(quick);
    app.add_option("--library", o.library, "whose accuracy is measured (the library beside this program)");
    app.add_option("families", o.patterns, "regular expressions for whole names of families: 'exp.*' sinf (all)");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& e) {
        if (e.get_exit_code() == 0) return app.exit(e);
        throw std::runtime_error(std::string(e.what()) + " (--help tells more)");
    }
    if (o.page.extension() != ".html" && o.page.extension() != ".htm")
        throw std::runtime_error("'" + o.page.string() +
                                 "' does not end in .html: its data takes the name with .json");
    const fs::path folder = o.page.has_parent_path() ? o.page.parent_path() : ".";
    if (!fs::is_directory(folder, error) || access(folder.c_str(), W_OK))
        throw std::runtime_error("cannot write into the folder '" + folder.string() + "'");
    if (!fs::exists(tools / "orvane-bench"))
        throw std::runtime_error("there is no orvane-bench beside this program: build it with -DORVANE_BENCH=ON");

    if (!o.from.empty()) {
        if (!o.patterns.empty())
            throw std::runtime_error("--from shows a whole report: leave the names of families out");
        json data = report_data(o.from);
        data.erase("baseline");
        if (!o.baseline.empty()) data["baseline"] = as_baseline(report_data(o.baseline));
        write_whole(o.page, page_of(data));
        std::cout << o.page.string() << ": " << data["pairs"].size() << " pairs of " << o.from << "\n";
        return 0;
    }
    const double start = now();
    run r(o, tools);
    const bool complete = r.measure();
    r.write_page();
    if (!complete) {
        std::cerr << "orvane-report: interrupted; " << o.page.string()
                  << " shows what is measured, and the same command goes on from there\n";
        return 130;
    }
    std::cout << o.page.string() << ": " << r.pairs_measured() << " pairs, " << fs::file_size(o.page) / 1000
              << " kB, " << int(now() - start + 0.5) << " s; its data in " << o.data().string() << "\n";
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return report_of(argc, argv);
    } catch (const std::exception& e) {
        std::cerr << "orvane-report: " << e.what() << "\n";
        return 1;
    }
}
