// What the finished library may not contain, read off its file and its machine code.
#include "machine_code.h"
#include "tools/whole_file.h"

#include <nlohmann/json.hpp>

using namespace orvane;

namespace {

bool is_wrapper(const std::string& name) { return name.ends_with("_cout_wrapper"); }

std::set<std::string> expected_exports(const std::vector<kernel_row>& rows) {
    std::set<std::string> names;
    for (const auto& row : rows)
        for (int w : widths)
            names.insert(plan_of(row, w).symbol);
    return names;
}

TEST(File, ImportsNothingAndHasNoState) {
    const binary b(library_under_test());
    const Elf64_Shdr* dynamic = b.section(".dynamic");
    ASSERT_NE(dynamic, nullptr);
    const Elf64_Shdr* strings = b.section(".dynstr");
    const char* names = b.bytes.data() + strings->sh_offset;
    std::string soname;
    for (auto* d = (const Elf64_Dyn*)(b.bytes.data() + dynamic->sh_offset); d->d_tag != DT_NULL; d++) {
        for (auto bad :
             {DT_NEEDED, DT_INIT, DT_FINI, DT_INIT_ARRAY, DT_FINI_ARRAY, DT_TEXTREL, DT_RELA, DT_REL, DT_JMPREL})
            EXPECT_NE(d->d_tag, bad);
        if (d->d_tag == DT_SONAME) soname = names + d->d_un.d_val;
    }
    EXPECT_EQ(soname, "liborvane_l9.so");
    for (auto section : {".data", ".bss", ".tdata", ".tbss", ".data.rel.ro", ".got", ".init_array", ".ctors", ".plt"})
        EXPECT_EQ(b.section(section), nullptr) << section;
    bool stack = false;
    for (int i = 0; i < b.head->e_phnum; i++)
        if (b.segments[i].p_type == PT_GNU_STACK) {
            stack = true;
            EXPECT_EQ(b.segments[i].p_flags & PF_X, 0u);
        }
    EXPECT_TRUE(stack);
}

TEST(File, ExportsExactlyTheListEachAtACacheLine) {
    const binary b(library_under_test());
    std::set<std::string> exported;
    const Elf64_Shdr *symbols = b.section(".dynsym"), *strings = b.section(".dynstr");
    const auto* s = (const Elf64_Sym*)(b.bytes.data() + symbols->sh_offset);
    for (size_t i = 1; i < symbols->sh_size / sizeof *s; i++) {
        const std::string name = b.bytes.data() + strings->sh_offset + s[i].st_name;
        EXPECT_NE(s[i].st_shndx, SHN_UNDEF) << name;
        EXPECT_EQ(s[i].st_value % 64, 0u) << name << " does not begin a cache line";
        exported.insert(name);
    }
    EXPECT_EQ(exported, expected_exports(library_rows()));
}

TEST(File, WrappersAndSlowPathsKeepTheirNames) {
    for (const auto& row : library_rows()) {
        for (int w : widths)
            EXPECT_EQ(library_under_test().symbol(plan_of(row, w).wrapper_symbol()) != nullptr, row.has_slow_path())
                << plan_of(row, w).wrapper_symbol();
        if (row.has_slow_path())
            EXPECT_NE(library_under_test().symbol(row.slow_path_symbol()), nullptr) << row.slow_path_symbol();
    }
}

class Code : public testing::TestWithParam<object*> {};

TEST_P(Code, NoGatherAndNoControlState) {
    const binary b(*GetParam());
    for (const auto& f : b.in.symbols()) {
        if (!f.is_function) continue;
        for (const auto& [at, i] : b.code(f)) {
            const std::string_view name = ZydisMnemonicGetString(i.what.mnemonic);
            EXPECT_FALSE(name.find("gather") != name.npos || name.ends_with("ldmxcsr") || name.ends_with("stmxcsr"))
                << f.name << ": " << name;
        }
    }
}

// Conversions round by the rounding instruction, or by arithmetic, alone: no truncating conversion, nothing of the
// x87.
TEST(Conversions, NeitherTruncateNorTouchTheX87) {
    const binary b(library_under_test());
    int seen = 0;
    for (const auto& f : b.in.symbols()) {
        if (!f.name.starts_with("__orvane_l9_cvt")) continue;
        seen++;
        for (const auto& [at, i] : b.code(f)) {
            const std::string_view name = ZydisMnemonicGetString(i.what.mnemonic);
            EXPECT_FALSE(name.starts_with("vcvtt") || name.starts_with("cvtt") || name.starts_with("f"))
                << f.name << ": " << name;
        }
    }
    EXPECT_EQ(seen, 600);
}

// Slow paths, and whatever they share, are baseline code: everything that is neither a kernel nor a wrapper.
TEST_P(Code, SlowPathsAreBaseline) {
    const binary b(*GetParam());
    int seen = 0;
    for (const auto& f : b.in.symbols()) {
        if (!f.is_function || f.name.starts_with("__orvane_l9_")) continue;
        seen++;
        for (const auto& [at, i] : b.code(f))
            EXPECT_TRUE(i.what.encoding != ZYDIS_INSTRUCTION_ENCODING_VEX &&
                        i.what.encoding != ZYDIS_INSTRUCTION_ENCODING_EVEX)
                << f.name << ": " << ZydisMnemonicGetString(i.what.mnemonic);
    }
    EXPECT_GT(seen, 0);
}

// Kernels leave vector registers 8 to 15 alone; wrappers save and restore them and do nothing else with them.
TEST_P(Code, UpperRegistersAreKept) {
    const binary b(*GetParam());
    for (const auto& f : b.in.symbols()) {
        if (!f.name.starts_with("__orvane_l9_")) continue;
        int saved = 0, restored = 0;
        for (const auto& [at, i] : b.code(f)) {
            if (!i.touches_upper_registers()) continue;
            EXPECT_TRUE(is_wrapper(f.name) && i.what.mnemonic == ZYDIS_MNEMONIC_VMOVUPS)
                << f.name << ": " << ZydisMnemonicGetString(i.what.mnemonic);
            (i.operands[0].type == ZYDIS_OPERAND_TYPE_MEMORY ? saved : restored)++;
        }
        EXPECT_EQ(saved, restored) << f.name;
        EXPECT_TRUE(saved == 0 || saved == 8) << f.name;
    }
}

// exports.json lists the x87 registers as changed where a slow path, with all that it calls, uses that unit.
TEST(Clobbered, ListsTheX87WhereASlowPathUsesIt) {
    const binary b(library_under_test());
    std::map<uint64_t, const object::entry*> functions;
    for (const auto& f : b.in.symbols())
        if (f.is_function) functions[f.value] = &f;
    auto uses_x87 = [&](uint64_t from) {
        std::set<uint64_t> seen, next{from};
        while (!next.empty()) {
            const uint64_t at = *next.begin();
            next.erase(at);
            if (!functions.contains(at) || !seen.insert(at).second) continue;
            for (const auto& [where, i] : b.code(*functions[at]))
                if (i.what.meta.isa_set == ZYDIS_ISA_SET_X87) return true;
            next.merge(references_of(b, *functions[at]).code);
        }
        return false;
    };
    std::map<std::string, bool> by_slow_path;
    for (const auto& f : b.in.symbols())
        if (f.name.ends_with("_cout_rare")) by_slow_path[f.name] = uses_x87(f.value);
    for (const auto& e : nlohmann::json::parse(contents_of(ORVANE_SOURCES "/include/orvane/exports.json"))) {
        const auto* row = find_row(library_rows(), std::string(e["family"]), std::string(e["tier"]));
        ASSERT_NE(row, nullptr);
        const auto listed = std::count_if(e["clobbered"].begin(), e["clobbered"].end(),
                                          [](const std::string& r) { return r.starts_with("st"); });
        EXPECT_EQ(listed, row->has_slow_path() && by_slow_path.at(row->slow_path_symbol()) ? 8 : 0) << e["symbol"];
    }
}

// The fewest conditional branches on a path from entry to a return without a call; -1 if there is no such path.
int branches_on_ordinary_path(const std::map<uint64_t, binary::instruction>& code) {
    std::map<uint64_t, int> best{{code.begin()->first, 0}};
    std::set<std::pair<int, uint64_t>> open{{0, code.begin()->first}};
    while (!open.empty()) {
        const auto [branches, at] = *open.begin();
        open.erase(open.begin());
        const auto here = code.find(at);
        if (here == code.end()) continue;
        const auto& i = here->second;
        if (i.is_return()) return branches;
        if (i.is_call()) continue;
        auto go = [&](uint64_t to, int n) {
            const auto [known, added] = best.emplace(to, n);
            if (!added && known->second <= n) return;
            known->second = n;
            open.emplace(n, to);
        };
        const uint64_t next = at + i.what.length;
        if (i.is_jump()) go(i.target(), branches);
        else if (i.is_branch()) go(i.target(), branches + 1), go(next, branches + 1);
        else go(next, branches);
    }
    return -1;
}

void check_paths(object& o, const std::vector<kernel_row>& rows) {
    const binary b(o);
    std::map<std::string, object::entry> functions;
    for (const auto& f : b.in.symbols())
        functions[f.name] = f;
    for (const auto& row : rows) {
        for (int w : widths) {
            const call_plan p = plan_of(row, w);
            if (!functions.contains(p.symbol)) throw std::runtime_error("no " + p.symbol + ", which the list names");
            const auto code = b.code(functions.at(p.symbol));
            const int branches = branches_on_ordinary_path(code);
            if (row.path == kernel_path::all_lanes) EXPECT_EQ(branches, -1) << p.symbol;
            else {
                EXPECT_GE(branches, 0) << p.symbol << ": every path calls";
                const int allowed = row.path == kernel_path::settled ? 0 : row.path == kernel_path::large ? 2 : 1;
                EXPECT_LE(branches, allowed) << p.symbol;
            }
            if (!row.has_slow_path())
                for (const auto& [at, i] : code)
                    EXPECT_FALSE(i.is_call() || (i.is_branch() && row.path == kernel_path::settled)) << p.symbol;
            if (!p.memory_form) continue;
            // The upper state is cleared as the last thing that happens to a vector register before each return.
            bool cleared = false;
            for (const auto& [at, i] : code) {
                if (i.what.mnemonic == ZYDIS_MNEMONIC_VZEROUPPER) cleared = true;
                else if (i.is_return()) {
                    EXPECT_TRUE(cleared) << p.symbol;
                    cleared = false;
                } else if (i.touches_vector_registers()) cleared = false;
            }
        }
    }
}
TEST(Paths, OneBranchAndNoCallInTheLibrary) { check_paths(library_under_test(), library_rows()); }
TEST(Paths, OneBranchAndNoCallInTheProbes) { check_paths(probe_library(), probe_rows()); }

INSTANTIATE_TEST_SUITE_P(Both, Code, testing::Values(&library_under_test(), &probe_library()),
                         [](const auto& info) { return info.index ? "probes" : "library"; });

} // namespace
