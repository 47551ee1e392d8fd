// The places where PoCL's compiler is led to Orvane: calls that PoCL makes to other libraries, by their entries in
// its table of addresses, and the passes that LLVM's standard pipeline takes from outside.
//
//     parseIRFile    the kernel library as it is read: built-ins that call exports
//     takeModule     a program as clang made it: -cl-fast-relaxed-math
//     getenv         the folder of compiled kernels, one of our own
#include "hooks.h"
#include "kernel_library.h"
#include "passes.h"

#include <llvm/IRReader/IRReader.h>
#include <llvm/Support/Path.h>
#include <llvm/Support/SourceMgr.h>
#include <llvm/Support/raw_ostream.h>

#include <elf.h>
#include <filesystem>
#include <sys/mman.h>
#include <unistd.h>

using namespace llvm;

namespace {

using parse_fn = std::unique_ptr<Module>(StringRef, SMDiagnostic&, LLVMContext&, DataLayoutCallbackTy);
using take_fn = std::unique_ptr<Module>(void* action);
using getenv_fn = char*(const char*);

constexpr const char* parse_symbol =
    "_ZN4llvm11parseIRFileENS_9StringRefERNS_12SMDiagnosticERNS_11LLVMContextENS_12"
    "function_refIFNS_8OptionalINSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEEEE"
    "S0_EEE";
constexpr const char* take_symbol = "_ZN5clang13CodeGenAction10takeModuleEv";

void* take_module_before = nullptr; // clang's

std::unique_ptr<Module> parse_ir_file(StringRef name, SMDiagnostic& e, LLVMContext& c, DataLayoutCallbackTy layout) {
    auto m = parseIRFile(name, e, c, layout);
    if (!m || !sys::path::filename(name).startswith("kernel-x86_64")) return m;
    const auto replaced = orvane::pocl::replace_builtins(*m);
    if (orvane::pocl::log_wanted()) {
        for (const auto& line : replaced.left)
            errs() << "orvane: " << line << '\n';
        errs() << "orvane: " << replaced.built_ins << " built-ins in " << name << " are Orvane's\n";
    }
    return m;
}

std::unique_ptr<Module> take_module(void* action) {
    auto m = reinterpret_cast<take_fn*>(take_module_before)(action);
    if (m) orvane::pocl::use_relaxed(*m);
    return m;
}

// ---- The folder of compiled kernels

// Of this build: the version, and the linker's number of this file.
std::string build_name() {
    std::string name = "orvane-" ORVANE_VERSION;
    auto see = [](dl_phdr_info* info, size_t, void* to) {
        const auto here = reinterpret_cast<ElfW(Addr)>(&build_name);
        bool ours = false;
        for (int k = 0; k < info->dlpi_phnum; k++) {
            const auto& p = info->dlpi_phdr[k];
            ours |= p.p_type == PT_LOAD && here - info->dlpi_addr - p.p_vaddr < p.p_memsz;
        }
        if (!ours) return 0;
        for (int k = 0; k < info->dlpi_phnum; k++) {
            const auto& p = info->dlpi_phdr[k];
            if (p.p_type != PT_NOTE) continue;
            const char *at = reinterpret_cast<const char*>(info->dlpi_addr + p.p_vaddr), *end = at + p.p_memsz;
            while (at + sizeof(ElfW(Nhdr)) <= end) {
                const auto* n = reinterpret_cast<const ElfW(Nhdr)*>(at);
                const char* text = at + sizeof *n + (n->n_namesz + 3) / 4 * 4;
                if (n->n_type == NT_GNU_BUILD_ID)
                    for (unsigned b = 0; b < 4 && b < n->n_descsz; b++) {
                        constexpr char digits[] = "0123456789abcdef";
                        const unsigned char byte = text[b];
                        if (b == 0) *static_cast<std::string*>(to) += '-';
                        *static_cast<std::string*>(to) += digits[byte >> 4];
                        *static_cast<std::string*>(to) += digits[byte & 15];
                    }
                at = text + (n->n_descsz + 3) / 4 * 4;
            }
        }
        return 1;
    };
    dl_iterate_phdr(see, &name);
    if (const char* width = getenv("ORVANE_WIDTH")) name += std::string("-width") + width;
    return name;
}

std::string cache_folder() {
    auto value = [](const char* name) -> std::string {
        const char* v = getenv(name);
        return v ? v : "";
    };
    std::string above = value("POCL_CACHE_DIR");
    if (above.empty() && !value("XDG_CACHE_HOME").empty()) above = value("XDG_CACHE_HOME") + "/pocl";
    if (above.empty() && !value("HOME").empty()) above = value("HOME") + "/.cache/pocl";
    if (above.empty()) above = "/tmp/pocl-" + std::to_string(getuid());
    return above + "/" + build_name();
}

// Kernels out of a cache are compiled no more and have nothing to tell, so a run with a log has a folder of its own.
std::string folder_for_log() {
    static std::string folder = (std::filesystem::temp_directory_path() / "orvane-log-XXXXXX").string();
    if (!mkdtemp(folder.data())) return cache_folder();
    atexit([] {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    });
    return folder;
}

// What PoCL reads; the environment itself stays as it is, for programs that this one starts.
char* environment(const char* name) {
    static std::string cache = orvane::pocl::log_wanted() ? folder_for_log() : cache_folder();
    return strcmp(name, "POCL_CACHE_DIR") ? getenv(name) : cache.data();
}

// ---- PoCL's table of addresses

class address_table {
public:
    explicit address_table(const link_map& library) : base(library.l_addr) {
        const ElfW(Rela)* calls = nullptr, *data = nullptr;
        size_t calls_bytes = 0, data_bytes = 0;
        for (const ElfW(Dyn)* d = library.l_ld; d->d_tag != DT_NULL; d++) {
            const auto p = d->d_un.d_ptr;
            if (d->d_tag == DT_SYMTAB) symbols = reinterpret_cast<const ElfW(Sym)*>(p);
            else if (d->d_tag == DT_STRTAB) names = reinterpret_cast<const char*>(p);
            else if (d->d_tag == DT_JMPREL) calls = reinterpret_cast<const ElfW(Rela)*>(p);
            else if (d->d_tag == DT_RELA) data = reinterpret_cast<const ElfW(Rela)*>(p);
            else if (d->d_tag == DT_PLTRELSZ) calls_bytes = d->d_un.d_val;
            else if (d->d_tag == DT_RELASZ) data_bytes = d->d_un.d_val;
        }
        if (!symbols || !names) return;
        if (calls) relocations[0] = {calls, calls_bytes / sizeof *calls};
        if (data) relocations[1] = {data, data_bytes / sizeof *data};
    }

    // The places that hold the address of an imported function.
    SmallVector<void**, 2> places(const char* symbol) const {
        SmallVector<void**, 2> all;
        for (const auto& part : relocations)
            for (const auto& r : part) {
                const auto type = ELF64_R_TYPE(r.r_info);
                if ((type == R_X86_64_JUMP_SLOT || type == R_X86_64_GLOB_DAT) &&
                    !strcmp(names + symbols[ELF64_R_SYM(r.r_info)].st_name, symbol))
                    all.push_back(reinterpret_cast<void**>(base + r.r_offset));
            }
        return all;
    }

    // The table is read-only once the library is loaded.
    static void put(void** place, void* address) {
        const auto page = size_t(sysconf(_SC_PAGESIZE));
        void* begin = reinterpret_cast<void*>(reinterpret_cast<size_t>(place) & ~(page - 1));
        mprotect(begin, page, PROT_READ | PROT_WRITE);
        *place = address;
        mprotect(begin, page, PROT_READ);
    }

private:
    ElfW(Addr) base;
    const ElfW(Sym) * symbols = nullptr;
    const char* names = nullptr;
    ArrayRef<ElfW(Rela)> relocations[2];
};

} // namespace

extern "C" __attribute__((visibility("default"))) const char* orvane_pocl_set_hooks(link_map* pocl) {
    const address_table table(*pocl);
    const auto parse = table.places(parse_symbol), take = table.places(take_symbol), env = table.places("getenv");
    if (parse.empty() || take.empty() || env.empty())
        return "its library does not read its built-ins as PoCL 3.1 does";
    take_module_before = *take[0];
    parse_fn* const our_parse = parse_ir_file;
    take_fn* const our_take = take_module;
    getenv_fn* const our_env = environment;
    for (void** p : parse)
        table.put(p, reinterpret_cast<void*>(our_parse));
    for (void** p : take)
        table.put(p, reinterpret_cast<void*>(our_take));
    for (void** p : env)
        table.put(p, reinterpret_cast<void*>(our_env));
    orvane::pocl::add_passes();
    return nullptr;
}
