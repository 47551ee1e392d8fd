// Checks a finished library as part of its build: what no flag, compiler or linker may have changed. It wants nothing
// but binutils' objdump, which is there with every GCC; the tests look closer.
//
//     check-library LIBRARY OBJDUMP
//
// No import and no needed library, no code at start or end, no relocation, no writable data; exactly the listed
// exports; kernels that use vector registers 0 to 7 alone, wrappers that do no more to 8 to 15 than save and restore
// them; slow paths without AVX; no 512-bit register, no gather, and nothing that reads or writes MXCSR. A line for
// the first fault of each kind, and exit code 1, where one does not hold.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <elf.h>
#include <set>
#include <string>

namespace {

int faults = 0;
std::set<std::string> said;
void fault(const std::string& kind, const std::string& where) {
    faults++;
    if (said.insert(kind).second) fprintf(stderr, "check-library: %s: %s\n", where.c_str(), kind.c_str());
}

std::string contents(const char* path) {
    std::string bytes;
    if (FILE* f = fopen(path, "rb")) {
        char part[1 << 16];
        for (size_t n; (n = fread(part, 1, sizeof part, f)) > 0;)
            bytes.append(part, n);
        fclose(f);
    }
    return bytes;
}

std::set<std::string> listed_exports() {
    std::set<std::string> names;
    auto add = [&](const char* family, const std::string& tier) {
        for (int width : {1, 2, 3, 4, 8, 16})
            names.insert(std::string("__orvane_l9_") + family + std::to_string(width) +
                         (tier == "default" ? "" : "_" + tier));
    };
#define PAIR(name, tier, ...) add(#name, #tier);
#define TWIN(name, tier, ...) add(#name, #tier);
#include "frame/exports.def"
    return names;
}

void check_file(const std::string& bytes) {
    const auto* head = (const Elf64_Ehdr*)bytes.data();
    const auto* sections = (const Elf64_Shdr*)(bytes.data() + head->e_shoff);
    const char* names = bytes.data() + sections[head->e_shstrndx].sh_offset;
    std::set<std::string> exported;
    for (int i = 0; i < head->e_shnum; i++) {
        const Elf64_Shdr& s = sections[i];
        const std::string name = names + s.sh_name;
        if (s.sh_flags & SHF_WRITE && s.sh_flags & SHF_ALLOC && name != ".dynamic") {
            // Linkers leave the three reserved words of an empty .got.plt.
            if (name != ".got.plt" || s.sh_size > 24) fault("holds writable data", name);
        }
        if (s.sh_type == SHT_DYNAMIC)
            for (auto* d = (const Elf64_Dyn*)(bytes.data() + s.sh_offset); d->d_tag != DT_NULL; d++)
                switch (d->d_tag) {
                case DT_NEEDED:
                    fault("needs another library", "the dynamic section");
                    break;
                case DT_INIT:
                case DT_FINI:
                case DT_INIT_ARRAY:
                case DT_FINI_ARRAY:
                    fault("runs code when it is loaded or unloaded", "the dynamic section");
                    break;
                case DT_RELA:
                case DT_REL:
                case DT_JMPREL:
                case DT_TEXTREL:
                    fault("needs relocation", "the dynamic section");
                }
        if (s.sh_type != SHT_DYNSYM) continue;
        const char* strings = bytes.data() + sections[s.sh_link].sh_offset;
        const auto* symbol = (const Elf64_Sym*)(bytes.data() + s.sh_offset);
        for (size_t n = s.sh_size / sizeof *symbol; --n;) {
            const std::string symbol_name = strings + (++symbol)->st_name;
            if (symbol->st_shndx == SHN_UNDEF) fault("is imported", symbol_name);
            else exported.insert(symbol_name);
        }
    }
    const auto listed = listed_exports();
    for (const auto& name : listed)
        if (!exported.contains(name)) fault("is listed in frame/exports.def and not exported", name);
    for (const auto& name : exported)
        if (!listed.contains(name)) fault("is exported and not listed in frame/exports.def", name);
}

// Whether operands name a vector register from `from` on: %xmm8 to 31 and %ymm8 to 31.
bool names_vector_register(const char* operands, int from) {
    for (const char* p = operands; (p = strstr(p, "mm")); p += 2)
        if (p - operands >= 2 && p[-2] == '%' && (p[-1] == 'x' || p[-1] == 'y') && atoi(p + 2) >= from) return true;
    return false;
}

void check_instruction(const std::string& function, const char* mnemonic, const char* operands) {
    const bool is_kernel = function.starts_with("__orvane_l9_");
    const bool is_wrapper = is_kernel && function.ends_with("_cout_wrapper");
    const bool is_vex = mnemonic[0] == 'v' && strncmp(mnemonic, "ver", 3) != 0;
    if (strstr(operands, "%zmm") || strstr(operands, "%k") || names_vector_register(operands, 16))
        fault("uses registers of 512-bit code", function);
    else if (is_kernel && names_vector_register(operands, 8) && !(is_wrapper && !strcmp(mnemonic, "vmovups")))
        fault("uses vector registers 8 to 15, which its callers keep", function);
    if (!is_kernel && is_vex) fault("is a slow path and not baseline code", function);
    if (strstr(mnemonic, "gather")) fault("gathers", function);
    if (strstr(mnemonic, "mxcsr")) fault("reads or writes MXCSR", function);
    if (!strncmp(mnemonic, "fxrstor", 7) || !strncmp(mnemonic, "xrstor", 6)) fault("sets the vector state", function);
}

bool check_code(const std::string& objdump, const std::string& library) {
    auto quoted = [](const std::string& s) {
        std::string q = "'";
        for (char c : s)
            q += c == '\'' ? std::string("'\\''") : std::string(1, c);
        return q + "'";
    };
    FILE* listing = popen((quoted(objdump) + " -d --no-show-raw-insn -M att " + quoted(library)).c_str(), "r");
    if (!listing) return false;
    static char line[4096];
    std::string function;
    size_t instructions = 0;
    while (fgets(line, sizeof line, listing)) {
        line[strcspn(line, "\n")] = 0;
        char* tab = strchr(line, '\t');
        if (!tab) { // 0000000000001000 <name>:
            char *begin = strchr(line, '<'), *end = strrchr(line, '>');
            if (line[0] != ' ' && begin && end && end[1] == ':') function.assign(begin + 1, end);
            continue;
        }
        char* mnemonic = tab + 1;
        char* operands = mnemonic + strcspn(mnemonic, " ");
        if (*operands) *operands++ = 0;
        operands[strcspn(operands, "#<")] = 0; // a comment, or the name of a target
        check_instruction(function, mnemonic, operands);
        instructions++;
    }
    return pclose(listing) == 0 && instructions > 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        fprintf(stderr, "usage: check-library LIBRARY OBJDUMP\n");
        return 2;
    }
    const std::string bytes = contents(argv[1]);
    if (bytes.size() < sizeof(Elf64_Ehdr) || memcmp(bytes.data(), ELFMAG, SELFMAG)) {
        fprintf(stderr, "check-library: '%s' is no shared library\n", argv[1]);
        return 1;
    }
    check_file(bytes);
    if (!check_code(argv[2], argv[1])) {
        fprintf(stderr, "check-library: '%s' does not disassemble '%s'\n", argv[2], argv[1]);
        return 1;
    }
    if (faults) fprintf(stderr, "check-library: %d faults in '%s'\n", faults, argv[1]);
    return faults != 0;
}
