// An OpenCL driver of one platform: PoCL's, with Orvane's functions in its kernels.
//
// This file is what the loader opens. It finds PoCL in the process or opens it, looks whether it is one that is known
// here, and has orvane-pocl-15.so, which needs the LLVM that PoCL has, set its hooks. All else is PoCL's: the
// platform is PoCL's own object, so that calls go straight there, and a PoCL that is unknown here works as it always
// did.
#include "hooks.h"

#include <CL/cl_icd.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <link.h>
#include <mutex>
#include <string>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr const char* pocl_library = "libpocl.so.2";

// Where PoCL came from, and the functions of it that a loader asks for.
using extension_fn = void*(CL_API_CALL*)(const char*);
struct driver {
    void* pocl = nullptr;
    bool listed_too = false; // PoCL was there before anyone asked for our platform: the loader read its own ICD file
    clIcdGetPlatformIDsKHR_fn platforms = nullptr;
    extension_fn extension = nullptr;
    cl_api_clGetPlatformInfo platform_info = nullptr;
    std::string orvane; // what the platform's version says at its end; empty: plain PoCL
};

void log(const std::string& line) {
    if (orvane::pocl::log_wanted()) dprintf(STDERR_FILENO, "orvane: %s\n", line.c_str());
}

std::string text_of(const driver& d, cl_platform_id p, cl_platform_info what) {
    char text[1024] = "";
    return d.platform_info(p, what, sizeof text - 1, text, nullptr) == CL_SUCCESS ? text : "";
}

driver& the_driver() {
    static driver d;
    return d;
}

// What PoCL says of the platform, but for the version, which tells that Orvane is in it.
cl_int CL_API_CALL platform_info(cl_platform_id p, cl_platform_info what, size_t size, void* value, size_t* needed) {
    const driver& d = the_driver();
    if (what != CL_PLATFORM_VERSION || d.orvane.empty()) return d.platform_info(p, what, size, value, needed);
    if (!p) return CL_INVALID_PLATFORM;
    const std::string version = text_of(d, p, what) + d.orvane;
    if (value && size <= version.size()) return CL_INVALID_VALUE;
    if (value) memcpy(value, version.c_str(), version.size() + 1);
    if (needed) *needed = version.size() + 1;
    return CL_SUCCESS;
}

// ---- Program binaries

// A binary holds code that calls Orvane's exports, which plain PoCL would find missing only when a kernel starts, and
// end the process. So binaries that leave here have a mark in the number by which PoCL knows the device (behind the
// eight characters "poclbin"): plain PoCL refuses them with CL_INVALID_BINARY. Its own run here as they are.
constexpr char binary_begins[8] = "poclbin";
constexpr uint64_t binary_mark = 0x4F7276616E65204C; // "Orvane L"
struct binary_head {
    char begins[sizeof binary_begins];
    uint64_t device;
};
bool is_binary(const void* bytes, size_t size) {
    return bytes && size >= sizeof(binary_head) && !memcmp(bytes, binary_begins, sizeof binary_begins);
}

cl_api_clGetProgramInfo pocl_program_info = nullptr;
cl_api_clCreateProgramWithBinary pocl_program_with_binary = nullptr;

cl_int CL_API_CALL program_info(cl_program p, cl_program_info what, size_t size, void* value, size_t* needed) {
    const cl_int code = pocl_program_info(p, what, size, value, needed);
    if (code != CL_SUCCESS || what != CL_PROGRAM_BINARIES || !value) return code;
    std::vector<size_t> sizes(size / sizeof(unsigned char*));
    size_t known = 0;
    if (pocl_program_info(p, CL_PROGRAM_BINARY_SIZES, sizes.size() * sizeof(size_t), sizes.data(), &known) !=
        CL_SUCCESS)
        return code;
    for (size_t k = 0; k < known / sizeof(size_t); k++)
        if (unsigned char* bytes = static_cast<unsigned char**>(value)[k]; is_binary(bytes, sizes[k])) {
            auto* head = reinterpret_cast<binary_head*>(bytes);
            head->device ^= binary_mark;
        }
    return code;
}

// Takes binaries with the mark and, as they are, those without: PoCL compares the number.
cl_program CL_API_CALL program_with_binary(cl_context c, cl_uint count, const cl_device_id* devices,
                                           const size_t* sizes, const unsigned char** binaries, cl_int* states,
                                           cl_int* error) {
    auto as_they_are = [&] { return pocl_program_with_binary(c, count, devices, sizes, binaries, states, error); };
    if (!sizes || !binaries) return as_they_are();
    std::vector<const unsigned char*> all(binaries, binaries + count);
    std::vector<std::vector<unsigned char>> copies;
    bool marked = false;
    for (auto& bytes : all) {
        const size_t size = sizes[&bytes - all.data()];
        if (!is_binary(bytes, size)) continue;
        auto& copy = copies.emplace_back(bytes, bytes + size);
        auto* head = reinterpret_cast<binary_head*>(copy.data());
        head->device ^= binary_mark;
        bytes = copy.data();
        marked = true;
    }
    if (marked) {
        cl_int code = CL_SUCCESS;
        const cl_program p = pocl_program_with_binary(c, count, devices, sizes, all.data(), states, &code);
        if (p) {
            if (error) *error = code;
            return p;
        }
    }
    return as_they_are();
}

// Why this PoCL stays as it is; empty if it gets our functions.
std::string refusal(const driver& d, cl_platform_id p) {
    if (!__builtin_cpu_supports("avx2") || !__builtin_cpu_supports("fma"))
        return "this processor has no AVX2 or no FMA";
    const std::string version = text_of(d, p, CL_PLATFORM_VERSION);
    if (version.find("PoCL 3.1") == version.npos) return "it says \"" + version + "\", and PoCL 3.1 is known here";
    if (version.find("LLVM 15.") == version.npos) return "it says \"" + version + "\", and LLVM 15 is known here";
    return "";
}

std::string own_folder() {
    Dl_info here;
    if (!dladdr(reinterpret_cast<void*>(&own_folder), &here) || !here.dli_fname) return "";
    const std::string file = here.dli_fname;
    const size_t slash = file.rfind('/');
    return slash == file.npos ? "" : file.substr(0, slash + 1);
}

void* open_first(std::initializer_list<std::string> names, int mode) {
    for (const auto& name : names)
        if (void* h = dlopen(name.c_str(), mode | RTLD_NODELETE)) return h;
    return nullptr;
}

// The hooks, set; why not, if that failed.
std::string set_hooks(const driver& d) {
    const std::string folder = own_folder();
    // Kernels find the exports among the symbols that all of the process sees.
    if (!open_first({folder + "liborvane_l9.so", folder + "../liborvane_l9.so", "liborvane_l9.so"},
                    RTLD_NOW | RTLD_GLOBAL))
        return std::string("the library is missing: ") + dlerror();
    void* hooks = open_first({folder + "orvane-pocl-15.so"}, RTLD_NOW);
    if (!hooks) return std::string("cannot open the hooks: ") + dlerror();
    link_map* pocl = nullptr;
    if (dlinfo(d.pocl, RTLD_DI_LINKMAP, &pocl)) return dlerror();
    const auto set = reinterpret_cast<orvane::pocl::set_hooks_fn>(dlsym(hooks, "orvane_pocl_set_hooks"));
    if (!set) return dlerror();
    const char* why = set(pocl);
    return why ? why : "";
}

void start(driver& d) {
    if (!d.pocl) {
        log(std::string("there is no PoCL: ") + dlerror());
        return;
    }
    d.extension = reinterpret_cast<extension_fn>(dlsym(d.pocl, "clGetExtensionFunctionAddress"));
    if (d.extension) {
        d.platforms = reinterpret_cast<clIcdGetPlatformIDsKHR_fn>(d.extension("clIcdGetPlatformIDsKHR"));
        d.platform_info = reinterpret_cast<cl_api_clGetPlatformInfo>(d.extension("clGetPlatformInfo"));
    }
    cl_platform_id p = nullptr;
    if (!d.platforms || !d.platform_info || d.platforms(1, &p, nullptr) != CL_SUCCESS) {
        log("PoCL is left plain: its entry points are unknown here");
        return;
    }
    const char* off = getenv("ORVANE_POCL");
    std::string why = off && !strcmp(off, "0") ? "ORVANE_POCL=0 is set" : refusal(d, p);
    if (why.empty()) why = set_hooks(d);
    if (!why.empty()) {
        log("PoCL is left plain: " + why);
        return;
    }
    d.orvane = " + Orvane " ORVANE_VERSION;
    // Every platform object begins with a pointer to the table of its calls.
    auto*& table = *reinterpret_cast<cl_icd_dispatch**>(p);
    // All other objects share PoCL's own table.
    pocl_program_info = table->clGetProgramInfo;
    pocl_program_with_binary = table->clCreateProgramWithBinary;
    const size_t page = size_t(sysconf(_SC_PAGESIZE)), begin = reinterpret_cast<size_t>(table) & ~(page - 1),
                 end = reinterpret_cast<size_t>(table + 1);
    if (!mprotect(reinterpret_cast<void*>(begin), end - begin, PROT_READ | PROT_WRITE)) {
        table->clGetProgramInfo = program_info;
        table->clCreateProgramWithBinary = program_with_binary;
    }
    static cl_icd_dispatch ours = *table;
    ours.clGetPlatformInfo = platform_info;
    table = &ours;
    log("PoCL runs with the functions of Orvane " ORVANE_VERSION);
}

// Hooks must be set before PoCL sets up its devices. A loader opens us before or after PoCL; Debian's opens all
// drivers before it asks the first one.
driver& started(bool only_if_there) {
    driver& d = the_driver();
    static std::mutex m;
    const std::lock_guard<std::mutex> one(m);
    static bool done = false;
    if (done) return d;
    d.pocl = dlopen(pocl_library, RTLD_LAZY | RTLD_LOCAL | RTLD_NOLOAD);
    d.listed_too = d.pocl;
    if (!d.pocl) {
        if (only_if_there) return d;
        d.pocl = dlopen(pocl_library, RTLD_LAZY | RTLD_LOCAL);
    }
    done = true;
    start(d);
    return d;
}

__attribute__((constructor)) void loaded() { started(true); }

} // namespace

extern "C" {

__attribute__((visibility("default"))) cl_int CL_API_CALL clIcdGetPlatformIDsKHR(cl_uint n, cl_platform_id* platforms,
                                                                                 cl_uint* count) {
    const driver& d = started(false);
    // With PoCL's own ICD file read too, its entry stands for the one platform there is.
    if (d.listed_too || !d.platforms) {
        if (count) *count = 0;
        return CL_PLATFORM_NOT_FOUND_KHR;
    }
    return d.platforms(n, platforms, count);
}

__attribute__((visibility("default"))) cl_int CL_API_CALL clGetPlatformInfo(cl_platform_id p, cl_platform_info what,
                                                                            size_t size, void* value,
                                                                            size_t* needed) {
    if (!started(false).platform_info) return CL_INVALID_PLATFORM;
    return platform_info(p, what, size, value, needed);
}

__attribute__((visibility("default"))) void* CL_API_CALL clGetExtensionFunctionAddress(const char* name) {
    if (!strcmp(name, "clIcdGetPlatformIDsKHR")) return reinterpret_cast<void*>(&clIcdGetPlatformIDsKHR);
    if (!strcmp(name, "clGetPlatformInfo")) return reinterpret_cast<void*>(&clGetPlatformInfo);
    const driver& d = started(false);
    return d.extension ? d.extension(name) : nullptr;
}

} // extern "C"
