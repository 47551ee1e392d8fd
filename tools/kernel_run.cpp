#include "kernel_run.h"

#include "command_line.h"

#include <CL/cl_half.h>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <cstring>
#include <iostream>
#include <mutex>
#include <set>
#include <thread>

namespace orvane {

namespace fs = std::filesystem;

// ---- Platforms

bool platform::is_orvane() const { return (name + version).find("Orvane") != std::string::npos; }

std::vector<platform> platforms() {
    std::vector<cl::Platform> handles;
    std::vector<platform> all;
    try {
        cl::Platform::get(&handles);
    } catch (const cl::Error&) { // none is an error of the loader's
    }
    for (const auto& h : handles) {
        std::vector<cl::Device> devices;
        try {
            h.getDevices(CL_DEVICE_TYPE_ALL, &devices);
        } catch (const cl::Error&) {
        }
        if (!devices.empty())
            all.push_back({h, devices[0], h.getInfo<CL_PLATFORM_NAME>(), h.getInfo<CL_PLATFORM_VERSION>()});
    }
    return all;
}

platform choose_platform(const std::string& wanted) {
    const auto all = platforms();
    if (all.empty())
        throw failure("there is no OpenCL platform with a device; Debian's package pocl-opencl-icd brings one");
    if (wanted.empty()) {
        const auto ours = std::find_if(all.begin(), all.end(), [](const platform& p) { return p.is_orvane(); });
        return ours == all.end() ? all[0] : *ours;
    }
    if (std::all_of(wanted.begin(), wanted.end(), isdigit) && wanted.size() < 4) {
        const size_t i = std::stoul(wanted);
        if (i < all.size()) return all[i];
        throw failure("there is no platform " + wanted + "; the last is " + std::to_string(all.size() - 1) +
                      " (orvane-cl --list)");
    }
    const auto lower = [](std::string s) {
        std::transform(s.begin(), s.end(), s.begin(), tolower);
        return s;
    };
    for (const auto& p : all)
        if (lower(p.name + " " + p.version).find(lower(wanted)) != std::string::npos) return p;
    std::string names;
    for (const auto& p : all)
        names += (names.empty() ? "" : ", ") + p.name;
    throw failure("no platform has " + quoted(wanted) + " in its name or version; there is " + names);
}

// ---- On a terminal

struct step_shown::state {
    std::mutex guard;
    std::condition_variable ends;
    bool ended = false, shown = false;
    std::thread shower;
};

step_shown::step_shown(const std::string& what) {
    if (!isatty(STDERR_FILENO)) return;
    s = std::make_unique<state>();
    s->shower = std::thread([s = s.get(), what] {
        const auto start = std::chrono::steady_clock::now();
        std::unique_lock lock(s->guard);
        while (!s->ends.wait_for(lock, std::chrono::seconds(1), [s] { return s->ended; })) {
            const auto passed =
                std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - start);
            fprintf(stderr, "\r%s: %lld s ", what.c_str(), (long long)passed.count());
            s->shown = true;
        }
        if (s->shown) fprintf(stderr, "\r%*s\r", int(what.size()) + 20, "");
    });
}

step_shown::~step_shown() {
    if (!s) return;
    {
        std::lock_guard lock(s->guard);
        s->ended = true;
    }
    s->ends.notify_one();
    s->shower.join();
}

// ---- Arguments

struct kernel_run::argument {
    enum { value, local, in, read_write, out } how;
    std::vector<unsigned char> bytes; // of a value
    std::string path;
    size_t count = 0;          // elements of the parameter's type
    std::vector<size_t> shape; // of the file
    bool three = false;        // float3 in threes in the file, in fours in memory
    cl::Buffer buffer;
    std::unique_ptr<whole_file> file;
    bool filled = false;
};

namespace {

std::string amount(size_t bytes) {
    char s[32];
    const char* units[] = {"bytes", "KiB", "MiB", "GiB", "TiB", "PiB", "EiB"};
    double v = double(bytes);
    int u = 0;
    while (v >= 10240 && u < 6)
        v /= 1024, u++;
    snprintf(s, sizeof s, "%.0f %s", v, units[u]);
    return s;
}

std::optional<size_t> whole_number(const std::string& s) {
    if (s.empty() || !std::all_of(s.begin(), s.end(), isdigit)) return {};
    errno = 0;
    const unsigned long long v = strtoull(s.c_str(), nullptr, 10);
    if (errno) return {};
    return v;
}

// One number as the bytes of a scalar. Throws the reason why it is none.
void put_number(const std::string& text, const scalar_type& t, unsigned char* to) {
    const char* s = text.c_str();
    char* end;
    errno = 0;
    if (text.empty() || isspace((unsigned char)text[0])) throw std::string("write a number");
    if (t.kind == scalar_type::floating) {
        const double v = strtod(s, &end);
        if (*end) throw std::string("write a number");
        const float f = strtof(s, nullptr); // not by way of double, which would round twice
        const cl_half h = cl_half_from_double(v, CL_HALF_RTE);
        const bool beyond = t.bytes == 8 ? std::isinf(v) : t.bytes == 4 ? std::isinf(f) : (h & 0x7FFF) == 0x7C00;
        if (beyond && !strcasestr(s, "inf")) throw std::string("it is out of range; write inf for infinity");
        if (t.bytes == 8) memcpy(to, &v, 8);
        else if (t.bytes == 4) memcpy(to, &f, 4);
        else memcpy(to, &h, 2);
        return;
    }
    const bool is_signed = t.kind == scalar_type::with_sign, negative = text[0] == '-';
    const int base = text.find("0x") == size_t(negative) || text.find("0X") == size_t(negative) ? 16 : 10;
    const int64_t i = is_signed ? strtoll(s, &end, base) : 0;
    const uint64_t u = is_signed ? uint64_t(i) : strtoull(s, &end, base);
    if (*end) throw std::string("write an integer");
    const int spare = 64 - 8 * int(t.bytes);
    const bool fits = is_signed ? (int64_t)((uint64_t)i << spare) >> spare == i : !spare || !(u >> (64 - spare));
    if (errno || !fits || (!is_signed && negative)) throw std::string("it is out of range");
    memcpy(to, &u, t.bytes);
}

// Element type, order and shape that a buffer wants of a file, in words.
std::string wanted_array(const value_type& t) {
    std::string s = std::string(t.scalar->npy);
    if (t.width == 3) return s + " of shape (N, 4) or (N, 3)";
    return t.width > 1 ? s + " of shape (N, " + std::to_string(t.width) + ")" : s;
}

fs::path same_file(const std::string& path) {
    std::error_code none;
    return fs::weakly_canonical(path, none);
}

} // namespace

// ---- The run

static cl::Program built(const kernel_file& source, const cl::Context& context, const cl::Device& device) {
    const step_shown step("compiling");
    try {
        cl::Program p = source.build(context);
        std::string log = p.getBuildInfo<CL_PROGRAM_BUILD_LOG>(device);
        while (!log.empty() && (!log.back() || isspace((unsigned char)log.back())))
            log.pop_back();
        if (!log.empty()) std::cerr << log << '\n'; // warnings
        return p;
    } catch (const cl::BuildError& e) {
        std::string log;
        for (const auto& [_, text] : e.getBuildLog())
            log += text;
        while (!log.empty() && (!log.back() || isspace((unsigned char)log.back())))
            log.pop_back();
        if (e.err() == CL_INVALID_BUILD_OPTIONS) throw failure("the driver refuses an option: " + log);
        throw compile_error{log};
    }
}

kernel_run::kernel_run(const kernel_request& r)
    : where(choose_platform(r.platform)), request(r), source(r.file, r.definitions, r.options), context(where.device),
      queue(context, where.device), program(built(source, context, where.device)) {
    std::vector<cl::Kernel> kernels;
    program.createKernels(&kernels);
    std::string names;
    for (const auto& k : kernels) {
        const std::string name = k.getInfo<CL_KERNEL_FUNCTION_NAME>();
        names += (names.empty() ? "" : ", ") + name;
        if (name == r.kernel || (r.kernel.empty() && kernels.size() == 1)) kernel = k, kernel_name = name;
    }
    if (kernels.empty()) throw failure(quoted(r.file) + " has no kernel");
    if (!kernel() && r.kernel.empty()) throw failure(quoted(r.file) + " has several kernels; choose by -k: " + names);
    if (!kernel()) throw failure(quoted(r.file) + " has no kernel " + quoted(r.kernel) + "; it has " + names);
    parameters = source.parameters_of(context, where.device, kernel);
}

kernel_run::~kernel_run() = default;

size_t kernel_run::items() const {
    size_t n = 1;
    for (size_t g : request.global)
        n *= g;
    return n;
}

void kernel_run::check_arguments(bool outputs) {
    choose_local();
    if (request.arguments.size() != parameters.size()) {
        std::string wanted;
        for (const auto& p : parameters)
            wanted += (wanted.empty() ? ": " : ", ") + p.text();
        throw failure(kernel_name + " takes " + std::to_string(parameters.size()) + " arguments, not " +
                      std::to_string(request.arguments.size()) + wanted);
    }
    std::set<fs::path> written;
    for (size_t i = 0; i < parameters.size(); i++) {
        const parameter& p = parameters[i];
        const std::string& word = request.arguments[i];
        const auto bad = [&, number = i + 1](const std::string& why) {
            return failure("argument " + std::to_string(number) + ", " + quoted(word) + ", for " + p.text() + ": " +
                           why);
        };
        if (!p.type.scalar)
            throw bad("numbers, vectors and arrays of them can be given, and the type " + p.declared + " is none");
        const value_type t = p.type;
        argument a;
        const auto rest = [&](const char* prefix) {
            const bool is = word.starts_with(prefix);
            if (is) a.path = word.substr(strlen(prefix));
            return is;
        };
        if (p.role == parameter::value) {
            a.how = argument::value;
            if (word.ends_with(".npy") || word.find(':') != word.npos)
                throw bad(
                    "the parameter is a value: write " +
                    (t.width > 1 ? std::to_string(t.width) + " numbers joined by commas" : std::string("a number")));
            const auto numbers = split(word, ',');
            if (int(numbers.size()) != t.width)
                throw bad(std::to_string(numbers.size()) + " number(s); " + t.name() + " takes " +
                          std::to_string(t.width) + (t.width > 1 ? ", joined by commas" : ""));
            a.bytes.resize(t.bytes());
            for (size_t k = 0; k < numbers.size(); k++)
                try {
                    put_number(numbers[k], *t.scalar, a.bytes.data() + k * t.scalar->bytes);
                } catch (const std::string& why) {
                    throw bad(why);
                }
        } else if (p.role == parameter::local) {
            a.how = argument::local;
            if (!rest("local:")) throw bad("the parameter is local memory: write local:COUNT");
            const auto count = whole_number(a.path);
            if (!count || !*count) throw bad("write local:COUNT, with a number of elements from 1 on");
            a.count = *count;
        } else if (rest("local:")) throw bad("the parameter is a buffer: name a file");
        else if (rest("out:")) {
            a.how = argument::out;
            a.count = items();
            if (const auto colon = a.path.rfind(':'); colon != std::string::npos) {
                const auto count = whole_number(a.path.substr(colon + 1));
                if (!count || !*count) throw bad("write out:FILE.npy:COUNT, with a number of elements from 1 on");
                a.count = *count;
                a.path.resize(colon);
            }
            a.shape = {a.count};
            if (t.width > 1) a.shape.push_back(t.width);
            a.three = t.width == 3;
        } else {
            a.how = rest("rw:") ? argument::read_write : argument::in;
            if (a.how == argument::in) a.path = word;
            double number;
            char* end;
            if (number = strtod(word.c_str(), &end);
                (void)number, !word.empty() && (!*end || *end == ',') && !fs::exists(word))
                throw bad("the parameter is a buffer: name a .npy file, out:FILE.npy or rw:FILE.npy");
            const npy_reader file(a.path);
            const bool right_type = file.type == t.scalar->npy;
            const size_t last = file.shape.size() > 1 ? file.shape.back() : 0;
            a.three = t.width == 3 && last == 3;
            const bool right_shape = t.width == 1 || a.three || last == size_t(t.width == 3 ? 4 : t.width);
            if (!right_type || !right_shape || file.column_major)
                throw bad("the file holds " + file.type + " of shape " + npy_shape(file.shape) +
                          (file.column_major ? " in Fortran order" : "") + "; wanted is " + wanted_array(t) +
                          (file.column_major ? " in C order" : ""));
            if (!file.elements) throw bad("the file holds no elements, shape " + npy_shape(file.shape));
            a.count = t.width == 1 ? file.elements : file.elements / last;
            a.shape = file.shape;
        }
        if (a.how == argument::out || a.how == argument::read_write) {
            if (!p.writable) throw bad("the kernel only reads this parameter: name the file alone");
            if (a.path.empty()) throw bad("the name of the file is missing");
            if (!written.insert(same_file(a.path)).second) throw bad("another argument writes this file");
        }
        arguments.push_back(std::move(a));
    }
    check_sizes();
    if (outputs)
        for (auto& a : arguments)
            if (a.how == argument::out || a.how == argument::read_write)
                a.file = std::make_unique<whole_file>(a.path);
}

void kernel_run::choose_local() {
    const auto& global = request.global;
    local = request.local;
    const auto joined = [](const auto& sizes) {
        std::string s;
        for (size_t n : sizes)
            s += (s.empty() ? "" : ",") + std::to_string(n);
        return s;
    };
    const auto& d = where.device;
    if (global.size() > d.getInfo<CL_DEVICE_MAX_WORK_ITEM_DIMENSIONS>())
        throw failure("the device has fewer dimensions than -n");
    if (local.size() > global.size())
        throw failure("-l " + joined(local) + " has more dimensions than -n " + joined(global));
    if (!local.empty()) local.resize(global.size(), 1);
    const auto required = kernel.getWorkGroupInfo<CL_KERNEL_COMPILE_WORK_GROUP_SIZE>(d);
    const auto& o = request.options;
    const bool non_uniform = d.getInfo<CL_DEVICE_NON_UNIFORM_WORK_GROUP_SUPPORT>() &&
                             (o.find("-cl-std=CL2") != o.npos || o.find("-cl-std=CL3") != o.npos) &&
                             o.find("-cl-uniform-work-group-size") == o.npos;
    if (required[0]) {
        const std::string needs = kernel_name + " requires work-groups of " + joined(required);
        std::vector<size_t> mine(required.begin(), required.end());
        for (size_t i = global.size(); i < 3; i++)
            if (mine[i] != 1)
                throw failure(needs + ", and -n " + joined(global) + " has no dimension " + std::to_string(i));
        mine.resize(global.size());
        if (!local.empty() && local != mine) throw failure(needs + ", not " + joined(local));
        for (size_t i = 0; i < mine.size(); i++)
            if (global[i] % mine[i] && !non_uniform)
                throw failure(needs + ", which do not divide -n " + joined(global) + " on this driver");
        local = mine;
    } else if (!local.empty() && !non_uniform) {
        const auto asked = local;
        for (size_t i = 0; i < local.size(); i++) {
            local[i] = std::min(local[i], global[i]);
            while (global[i] % local[i])
                local[i]--;
        }
        if (local != asked)
            std::cerr << "orvane-cl: this driver wants work-groups that divide -n " << joined(global) << ": they are "
                      << joined(local) << " instead of " << joined(asked) << '\n';
    }
    if (local.empty()) return;
    size_t product = 1;
    const auto most = d.getInfo<CL_DEVICE_MAX_WORK_ITEM_SIZES>();
    for (size_t i = 0; i < local.size(); i++)
        if (local[i] > most[i] || __builtin_mul_overflow(product, local[i], &product))
            throw failure("work-groups of " + joined(local) + ": the device takes at most " + joined(most) +
                          " work-items by dimension");
    const size_t limit = kernel.getWorkGroupInfo<CL_KERNEL_WORK_GROUP_SIZE>(d);
    if (product > limit)
        throw failure("work-groups of " + joined(local) + " are " + std::to_string(product) +
                      " work-items: the device takes at most " + std::to_string(limit));
}

void kernel_run::check_sizes() const {
    const auto& d = where.device;
    const size_t one = d.getInfo<CL_DEVICE_MAX_MEM_ALLOC_SIZE>(), all = d.getInfo<CL_DEVICE_GLOBAL_MEM_SIZE>();
    const size_t local_memory = d.getInfo<CL_DEVICE_LOCAL_MEM_SIZE>();
    size_t total = 0, local_total = kernel.getWorkGroupInfo<CL_KERNEL_LOCAL_MEM_SIZE>(d);
    for (size_t i = 0; i < arguments.size(); i++) {
        const argument& a = arguments[i];
        if (a.how == argument::value) continue;
        const bool is_local = a.how == argument::local;
        size_t bytes;
        const bool beyond = __builtin_mul_overflow(a.count, parameters[i].type.bytes(), &bytes);
        size_t& sum = is_local ? local_total : total;
        const size_t most = is_local ? local_memory : std::min(one, all);
        const std::string what = "argument " + std::to_string(i + 1) + ", " + quoted(request.arguments[i]);
        if (beyond || bytes > most)
            throw failure(what + ": " + std::to_string(a.count) + " elements of " + parameters[i].type.name() +
                          " are more than the " + amount(most) + " that the device gives to one");
        sum += bytes;
        if (sum > (is_local ? local_memory : all))
            throw failure(what + ": with it the arguments need " + amount(sum) + " of " + (is_local ? "local " : "") +
                          "memory, and the device has " + amount(is_local ? local_memory : all));
    }
}

void kernel_run::fill() {
    for (size_t i = 0; i < arguments.size(); i++) {
        argument& a = arguments[i];
        const value_type t = parameters[i].type;
        if (a.how == argument::value) {
            kernel.setArg(cl_uint(i), a.bytes.size(), a.bytes.data());
            continue;
        }
        if (a.how == argument::local) {
            kernel.setArg(cl_uint(i), cl::Local(a.count * t.bytes()));
            continue;
        }
        if (a.filled && !parameters[i].writable) continue;
        const size_t bytes = a.count * t.bytes();
        if (!a.buffer()) a.buffer = cl::Buffer(context, CL_MEM_READ_WRITE | CL_MEM_ALLOC_HOST_PTR, bytes);
        auto* memory = static_cast<char*>(queue.enqueueMapBuffer(a.buffer, CL_TRUE, CL_MAP_WRITE, 0, bytes));
        if (a.how == argument::out) memset(memory, 0, bytes);
        else {
            const step_shown step("reading " + a.path);
            npy_reader file(a.path);
            if (!a.three) file.read(memory, bytes);
            else {
                memset(memory, 0, bytes);
                for (size_t k = 0; k < a.count; k++)
                    file.read(memory + k * t.bytes(), 3 * t.scalar->bytes);
            }
        }
        queue.enqueueUnmapMemObject(a.buffer, memory);
        queue.finish();
        a.filled = true;
        kernel.setArg(cl_uint(i), a.buffer);
    }
}

void kernel_run::run() {
    const auto range = [](const std::vector<size_t>& n) {
        return n.empty()       ? cl::NullRange
               : n.size() == 1 ? cl::NDRange(n[0])
               : n.size() == 2 ? cl::NDRange(n[0], n[1])
                               : cl::NDRange(n[0], n[1], n[2]);
    };
    const step_shown step("running " + kernel_name);
    cl::Event done;
    queue.enqueueNDRangeKernel(kernel, cl::NullRange, range(request.global), range(local), nullptr, &done);
    queue.finish();
    if (const int status = done.getInfo<CL_EVENT_COMMAND_EXECUTION_STATUS>(); status < 0)
        throw cl::Error(status, "the run");
}

void kernel_run::write() {
    for (size_t i = 0; i < arguments.size(); i++) {
        argument& a = arguments[i];
        if (!a.file) continue;
        const value_type t = parameters[i].type;
        const size_t bytes = a.count * t.bytes();
        const step_shown step("writing " + a.path);
        auto* memory = static_cast<const char*>(queue.enqueueMapBuffer(a.buffer, CL_TRUE, CL_MAP_READ, 0, bytes));
        errno = 0;
        write_npy_header(a.file->out, std::string(t.scalar->npy), a.shape);
        if (!a.three) a.file->out.write(memory, std::streamsize(bytes));
        else
            for (size_t k = 0; k < a.count; k++)
                a.file->out.write(memory + k * t.bytes(), std::streamsize(3 * t.scalar->bytes));
        if (!a.file->out) a.file->fail(errno ? errno : EIO);
        queue.enqueueUnmapMemObject(a.buffer, const_cast<char*>(memory));
        a.file->finish();
    }
    queue.finish();
    for (auto& a : arguments)
        if (a.file) a.file->complete();
}

std::vector<std::string> kernel_run::list(const kernel_request& r) {
    const platform p = choose_platform(r.platform);
    const kernel_file source(r.file, r.definitions, r.options);
    const cl::Context context(p.device);
    cl::Program program = built(source, context, p.device);
    std::vector<cl::Kernel> kernels;
    program.createKernels(&kernels);
    std::vector<std::string> lines;
    for (const auto& k : kernels) {
        std::string line = k.getInfo<CL_KERNEL_FUNCTION_NAME>() + "(", comma;
        for (const auto& a : source.parameters_of(context, p.device, k))
            line += std::exchange(comma, ", ") + a.text();
        line += ")";
        const auto required = k.getWorkGroupInfo<CL_KERNEL_COMPILE_WORK_GROUP_SIZE>(p.device);
        if (required[0])
            line += " in work-groups of " + std::to_string(required[0]) + "," + std::to_string(required[1]) + "," +
                    std::to_string(required[2]);
        lines.push_back(line);
    }
    return lines;
}

} // namespace orvane
