// orvane-cl: runs a kernel of an OpenCL C file over arrays, without a host program.
//
//     orvane-cl black_scholes.cl -n 65536 price.npy strike.npy years.npy out:call.npy out:put.npy 0.02 0.3
//     orvane-cl softmax.cl -n 4096 -l 64 logits.npy out:shares.npy local:64 256
//     orvane-cl --list black_scholes.cl
//
// docs/orvane-cl.md tells what an argument may be.
#include "command_line.h"
#include "kernel_bench.h"
#include "kernel_run.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <iostream>

using namespace orvane;

namespace {

const char* what_error(cl_int code) {
    switch (code) {
    case CL_DEVICE_NOT_AVAILABLE:
        return "CL_DEVICE_NOT_AVAILABLE";
    case CL_COMPILER_NOT_AVAILABLE:
        return "CL_COMPILER_NOT_AVAILABLE";
    case CL_MEM_OBJECT_ALLOCATION_FAILURE:
        return "CL_MEM_OBJECT_ALLOCATION_FAILURE, memory is short";
    case CL_OUT_OF_RESOURCES:
        return "CL_OUT_OF_RESOURCES";
    case CL_OUT_OF_HOST_MEMORY:
        return "CL_OUT_OF_HOST_MEMORY, memory is short";
    case CL_KERNEL_ARG_INFO_NOT_AVAILABLE:
        return "CL_KERNEL_ARG_INFO_NOT_AVAILABLE, it tells no parameters' types";
    case CL_INVALID_BUFFER_SIZE:
        return "CL_INVALID_BUFFER_SIZE";
    case CL_INVALID_BUILD_OPTIONS:
        return "CL_INVALID_BUILD_OPTIONS: it does not know one of the options -cl-...";
    case CL_INVALID_GLOBAL_WORK_SIZE:
        return "CL_INVALID_GLOBAL_WORK_SIZE";
    case CL_INVALID_WORK_GROUP_SIZE:
        return "CL_INVALID_WORK_GROUP_SIZE";
    case CL_INVALID_WORK_ITEM_SIZE:
        return "CL_INVALID_WORK_ITEM_SIZE";
    case CL_INVALID_ARG_SIZE:
        return "CL_INVALID_ARG_SIZE";
    }
    return nullptr;
}

// "1024" or "640,480": sizes from 1 on, whose product is a size too.
std::vector<size_t> sizes(std::string text, const char* option) {
    std::erase(text, '\x01');
    std::vector<size_t> all;
    size_t product = 1;
    const auto parts = split(text, ',');
    for (const auto& part : parts) {
        errno = 0;
        const bool digits = !part.empty() && std::all_of(part.begin(), part.end(), isdigit);
        const size_t n = digits ? strtoull(part.c_str(), nullptr, 10) : 0;
        if (!n || parts.size() > 3)
            throw failure(std::string(option) + " " + quoted(text) +
                          ": write one to three whole numbers from 1 on, joined by commas");
        if (errno || __builtin_mul_overflow(product, n, &product) || product >> 62)
            throw failure(std::string(option) + " " + quoted(text) + ": so many work-items cannot be counted");
        all.push_back(n);
    }
    return all;
}

std::string definition(const std::string& d) {
    const auto equal = d.find('=');
    const std::string name = d.substr(0, equal);
    const bool letters =
        !name.empty() && !isdigit((unsigned char)name[0]) &&
        std::all_of(name.begin(), name.end(), [](unsigned char c) { return isalnum(c) || c == '_'; });
    if (!letters || d.find('\n') != d.npos) throw failure("-D " + quoted(d) + ": write NAME or NAME=VALUE");
    return "#define " + name + " " + (equal == d.npos ? "1" : d.substr(equal + 1)) + "\n";
}

std::string include_folder(const std::string& dir) {
    std::error_code none;
    if (!std::filesystem::is_directory(dir, none)) throw failure("-I " + quoted(dir) + " is no folder");
    if (dir.find_first_of(" \t\"'") != dir.npos)
        throw failure("-I " + quoted(dir) + ": drivers take no folder with spaces or quotes in its name");
    return " -I " + dir;
}

// A kernel that reads or writes outside of its buffers ends the program, and leaves nothing behind.
void crashed(int) {
    whole_file::remove_temporaries();
    constexpr char line[] = "orvane-cl: the kernel crashed: it may have read or written outside of its buffers\n";
    if (write(STDERR_FILENO, line, sizeof line - 1) < 0) _exit(3);
    _exit(1);
}

void list(const std::string& file, const kernel_request& r) {
    const auto all = platforms();
    for (size_t i = 0; i < all.size(); i++)
        std::cout << i << ": " << all[i].name << ", " << all[i].version << ", "
                  << all[i].device.getInfo<CL_DEVICE_NAME>() << '\n';
    if (file.empty()) {
        if (all.empty()) choose_platform(""); // says so
        return;
    }
    for (const auto& line : kernel_run::list(r))
        std::cout << line << '\n';
}

int run(const std::vector<std::string>& all_words) {
    CLI::App app{"Runs a kernel of an OpenCL C file over arrays in .npy files, on any OpenCL driver."};
    kernel_request r;
    std::vector<std::string> definitions, folders, positional, words;
    std::string global, local, turns;
    bool list_wanted = false, bench = false, explain = false;
    app.add_option(
        "FILE and ARG", positional,
        "the file, then an argument for each parameter: a number (0.5, 3, 1,2,3,4 for a vector); in.npy, a "
        "buffer to read; rw:buf.npy, one that is read and written back; out:res.npy, one of N elements that "
        "is written (out:res.npy:COUNT for another size); local:COUNT, local memory");
    app.add_option("-k,--kernel", r.kernel, "the kernel (default: the only one)");
    app.add_option("-n,--global", global, "work-items: N, or N,N or N,N,N by dimension");
    app.add_option("-l,--local", local,
                   "work-items of a group, by dimension; missing ones are 1 (default: the driver's)");
    app.add_option("-d,--platform", r.platform,
                   "the platform, by number or a part of its name or version (default: Orvane's, else the first)");
    app.add_option("-D", definitions, "NAME or NAME=VALUE, defined for the file")->allow_extra_args(false);
    app.add_option("-I", folders, "a folder of files to include (the file's own is one)")->allow_extra_args(false);
    app.add_flag("--list", list_wanted, "the platforms, the kernels of the file and their parameters");
    app.add_flag("--explain", explain, "on stderr, what each built-in became (on Orvane's platform)");
    app.add_flag("--bench", bench,
                 "no output files, but ns per work-item beside plain PoCL and the same kernel with scalar libm");
    app.add_option("--bench-turns", turns)->group("");
    app.footer("Options that begin with -cl- go to the driver's compiler. Exit code 2: the file does not compile.");
    for (const auto& w : all_words)
        if (w.starts_with("-cl-")) {
            if (w.find_first_of(" \t") != w.npos) throw failure("an option has no spaces: " + quoted(w));
            r.options += (r.options.empty() ? "" : " ") + w;
        } else words.push_back(w);
    if (parse_words(app, words, positional, "orvane-cl")) return 0;

    if (!positional.empty()) {
        r.file = positional[0];
        r.arguments.assign(positional.begin() + 1, positional.end());
    }
    for (const auto& d : definitions)
        r.definitions += definition(d);
    for (const auto& dir : folders)
        r.options += include_folder(dir);
    std::error_code none;
    const std::string own = std::filesystem::absolute(r.file, none).parent_path().string();
    if (!r.file.empty() && own.find_first_of(" \t\"'") == own.npos) r.options += " -I " + own;
    if (explain) setenv("ORVANE_LOG", "1", 1);
    if (list_wanted) return list(r.file, r), 0;
    if (r.file.empty()) throw failure("name a file of OpenCL C; see orvane-cl --help");
    if (global.empty()) throw failure("-n is missing: the number of work-items, such as -n 1024 or -n 640,480");
    r.global = sizes(global, "-n");
    if (!local.empty()) r.local = sizes(local, "-l");

    if (bench) {
        if (!turns.empty())
            return take_turns(r, turns.substr(0, turns.find(':')), atoi(turns.substr(turns.find(':') + 1).c_str()));
        return bench_in_turns(all_words);
    }
    kernel_run k(r);
    if (explain && !k.on().is_orvane())
        std::cerr << "orvane-cl: " << k.on().name << " is not Orvane's: every built-in is the driver's own\n";
    k.check_arguments(true);
    k.fill();
    for (int s : {SIGSEGV, SIGBUS, SIGILL})
        signal(s, crashed);
    k.run();
    fflush(stdout); // the kernel's printf
    k.write();
    return 0;
}

int run_or_explain(const std::vector<std::string>& words) {
    try {
        const int code = run(words);
        errno = 0;
        if (fflush(stdout) || !std::cout.flush())
            throw failure(std::string("cannot write standard output: ") + strerror(errno ? errno : EIO));
        return code;
    } catch (const compile_error& e) {
        std::cerr << e.messages << '\n';
        return 2;
    } catch (const cl::Error& e) {
        const char* known = what_error(e.err());
        throw failure("the driver refuses " + std::string(e.what()) + ": " +
                      (known ? known : "OpenCL error " + std::to_string(e.err())));
    } catch (const std::bad_alloc&) {
        throw failure("memory is short");
    }
}

} // namespace

int main(int argc, char** argv) {
    return run_program("orvane-cl", [&] { return run_or_explain({argv + 1, argv + argc}); });
}
