#include "kernel_bench.h"

#include "command_line.h"
#include "libm_builtins.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <optional>
#include <sys/socket.h>
#include <sys/wait.h>
#include <thread>

namespace orvane {

namespace fs = std::filesystem;

temporary_folder::temporary_folder()
    : path([] {
          std::string name = (fs::temp_directory_path() / "orvane-cl-XXXXXX").string();
          if (!mkdtemp(name.data())) throw failure("cannot make a temporary folder: " + std::string(strerror(errno)));
          return name;
      }()) {}

temporary_folder::~temporary_folder() {
    std::error_code none;
    fs::remove_all(path, none);
}

namespace {

struct column {
    const char *name, *title;
};
constexpr const char* plain_title = "plain PoCL";
constexpr column columns[] = {
    {"chosen", ""}, {"plain", plain_title}, {"libm", "scalar libm"}, {"two", "two threads"}};

double median(std::vector<double> v) {
    std::nth_element(v.begin(), v.begin() + v.size() / 2, v.end());
    return v[v.size() / 2];
}

// A process that takes turns. It is gone with this object.
class runner {
public:
    runner(std::vector<std::string> words, const std::string& column, const fs::path& cache) {
        int ends[2];
        if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends)) throw failure(strerror(errno));
        words.insert(words.begin(), "orvane-cl");
        words.insert(words.end(), {"--bench-turns", column + ":3"});
        std::vector<char*> list;
        for (auto& w : words)
            list.push_back(w.data());
        list.push_back(nullptr);
        process = fork();
        if (process < 0) throw failure(strerror(errno));
        if (!process) {
            dup2(ends[1], 3);
            setenv("POCL_MAX_PTHREAD_COUNT", column == "two" ? "2" : "1", column == "two");
            // Each thread on a processor of its own: a kernel ends before the system would move one.
            if (column == "two") setenv("POCL_AFFINITY", "1", 0);
            if (column == "plain" || column == "libm") {
                setenv("ORVANE_POCL", "0", 1);
                setenv("POCL_CACHE_DIR", (cache / column).c_str(), 1);
                fs::create_directory(cache / column);
            }
            execv("/proc/self/exe", list.data());
            _exit(127);
        }
        close(ends[1]);
        from = fdopen(ends[0], "r+");
        setvbuf(from, nullptr, _IONBF, 0);
    }
    ~runner() {
        if (from) fclose(from); // its end
        if (process > 0) waitpid(process, nullptr, 0);
    }
    runner(const runner&) = delete;

    // A line; none when the process has ended.
    std::optional<std::string> answer() {
        char line[512];
        if (!fgets(line, sizeof line, from)) return {};
        line[strcspn(line, "\n")] = 0;
        return line;
    }
    std::optional<double> turn() {
        fputs("go\n", from);
        const auto a = answer();
        if (!a) return {};
        return std::stod(*a);
    }
    int exit_code() {
        int status = 0;
        waitpid(std::exchange(process, -1), &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
    }

private:
    pid_t process;
    FILE* from = nullptr;
};

} // namespace

int bench_in_turns(const std::vector<std::string>& words) {
    const temporary_folder cache;
    std::vector<std::unique_ptr<runner>> runners;
    std::vector<std::string> titles;
    // How many threads run is PoCL's variable to say, or the user's.
    const bool threads_matter = std::thread::hardware_concurrency() > 1 && !getenv("POCL_MAX_PTHREAD_COUNT");
    for (const auto& c : columns) {
        if (c.title == plain_title && titles[0] == plain_title) continue; // measured already
        if (c.name == std::string_view("two") &&
            (!threads_matter || (titles[0] != "Orvane" && titles[0] != plain_title)))
            continue;
        auto r = std::make_unique<runner>(words, c.name, cache.path);
        const auto ready = r->answer();
        if (!ready && runners.empty()) return r->exit_code(); // it has said why
        if (!ready || *ready == "none") continue;
        titles.push_back(*c.title ? c.title : *ready);
        runners.push_back(std::move(r));
    }
    // A kernel that takes long gets fewer turns.
    std::vector<std::vector<double>> times(runners.size());
    const auto start = std::chrono::steady_clock::now();
    const auto passed = [&] {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    };
    for (int round = 0; round < 15 && (round < 3 || passed() < 10); round++)
        for (size_t k = 0; k < runners.size(); k++) {
            const auto t = runners[k]->turn();
            if (!t) throw failure(titles[k] + ": the process of this column has ended");
            times[k].push_back(*t);
        }
    size_t width = 0;
    for (const auto& t : titles)
        width = std::max(width, t.size());
    printf("ns per work-item, one thread if not said, medians of %zu rounds in turns\n", times[0].size());
    for (size_t k = 0; k < runners.size(); k++) {
        printf("  %-*s %9.3f", int(width), titles[k].c_str(), median(times[k]));
        if (k) printf("  %7.2f times", median(times[k]) / median(times[0]));
        puts("");
    }
    return 0;
}

int take_turns(const kernel_request& given, const std::string& column, int descriptor) {
    kernel_request r = given;
    FILE* to = fdopen(descriptor, "r+");
    if (!to) throw failure("--bench-turns is for orvane-cl's own processes");
    setvbuf(to, nullptr, _IONBF, 0);
    const auto is_plain = [](const platform& p) {
        return p.version.find("PoCL") != p.version.npos && !p.is_orvane();
    };
    if (column == "plain" || column == "libm") {
        const auto all = platforms();
        const auto plain = std::find_if(all.begin(), all.end(), is_plain);
        if (plain == all.end()) return fputs("none\n", to), 0;
        r.platform = std::to_string(plain - all.begin());
        if (column == "libm") r.definitions = libm_builtins(true) + r.definitions;
    }
    kernel_run k(r);
    k.check_arguments(false);
    k.fill();
    // The kernel's own printf would disturb the table.
    if (!freopen("/dev/null", "w", stdout)) throw failure("cannot open /dev/null");
    k.run();
    fprintf(to, "%s\n", k.on().is_orvane() ? "Orvane" : is_plain(k.on()) ? plain_title : k.on().name.c_str());
    const auto now = [] {
        return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
    };
    char line[16];
    while (fgets(line, sizeof line, to)) {
        k.fill();
        double spent = 0;
        int runs = 0;
        for (; spent < 0.01 && runs < 1000; runs++) {
            const double start = now();
            k.run();
            spent += now() - start;
        }
        fprintf(to, "%.9g\n", spent / runs / double(k.items()) * 1e9);
    }
    return 0;
}

} // namespace orvane
