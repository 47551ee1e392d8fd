// The built-ins as bitcode: every name that OpenCL C code may call is there, every export can be called from IR, and
// what is no export computes what OpenCL C says.
#include "tools/call_plan.h"
#include "llvm/core/exports_ir.h"

#include <gtest/gtest.h>
#include <llvm/ExecutionEngine/Orc/LLJIT.h>
#include <llvm/IR/Verifier.h>
#include <llvm/IRReader/IRReader.h>
#include <llvm/Linker/Linker.h>
#include <llvm/Support/SourceMgr.h>
#include <llvm/Support/TargetSelect.h>

#include <cmath>
#include <cstring>
#include <fstream>
#include <random>
#include <regex>

using namespace llvm;
using namespace orvane;

namespace {

const std::string folder = ORVANE_TEST_FOLDER;

std::unique_ptr<Module> read(const std::string& file, LLVMContext& c) {
    SMDiagnostic why;
    auto m = parseIRFile(file, why, c);
    if (!m) ADD_FAILURE() << file << ": " << why.getMessage().str();
    return m;
}

std::unique_ptr<Module> compiled(const std::string& name, const std::string& source, const std::string& options,
                                 LLVMContext& c) {
    const std::string file = folder + "/" + name;
    std::ofstream(file + ".cl") << source;
    const std::string command = ORVANE_CLANG " " + options +
                                " -x cl -cl-std=CL2.0 -Xclang -finclude-default-header -O1 -fno-builtin -Wno-psabi "
                                "-emit-llvm -c -o " +
                                file + ".bc " + file + ".cl";
    EXPECT_EQ(system(command.c_str()), 0) << command;
    return read(file + ".bc", c);
}

const std::string device = "-target spir64-unknown-unknown", host = "-target x86_64-unknown-linux-gnu -march=haswell";

// A function of the test's own around every built-in that the compiler's header declares, but for what belongs to a
// runtime, to an extension, or takes half.
std::string calls_of_all_builtins(int& count) {
    std::ifstream header(ORVANE_CLANG_HEADER);
    EXPECT_TRUE(header) << ORVANE_CLANG_HEADER;
    static const std::regex declaration(R"(^([a-z]\w*) __ovld (?:__cnfn |__purefn )?(\w+)\(([^)]*)\);.*)");
    static const std::regex elsewhere(
        "get_.*|atomic_.*|atom_.*|async_.*|wait_.*|.*image.*|.*sub_group.*|work_group.*|.*fence.*|barrier|prefetch|"
        "ndrange.*|.*event.*|.*pipe.*|.*reserve.*|enqueue.*|to_.*|a[mr][dm]_.*|.*4x8packed.*|dot_acc_sat|"
        "bit_reverse|bitfield_.*|.*cmpxchg.*|cl_.*|retain.*|release.*|is_valid.*|create.*|set_.*|capture.*|dot_.*");
    static const std::regex half(R"(.*\bhalf\d*\b[^*]*(,.*|$))");
    std::string line, text = "#pragma OPENCL EXTENSION cl_khr_fp64 : enable\n";
    std::smatch m;
    count = 0;
    while (std::getline(header, line)) {
        if (!std::regex_match(line, m, declaration)) continue;
        std::string result = m[1], name = m[2], parameters = m[3];
        if (std::regex_match(name, elsewhere) || result.starts_with("half")) continue;
        // dot of packed integers is an extension's
        if (name == "dot" && parameters.find("char") != parameters.npos) continue;
        std::string named, passed;
        std::stringstream list(parameters);
        bool takes_half = false;
        for (std::string p; std::getline(list, p, ',');) {
            p = std::regex_replace(p, std::regex(R"(^\s+|\s+$)"), "");
            p = std::regex_replace(p, std::regex(R"(\s+\w+$)"), "$&"); // types only, as the header has them
            takes_half |= p.find("half") != p.npos && p.find('*') == p.npos;
            const std::string a =
                "a" + std::to_string(passed.empty() ? 0 : std::count(passed.begin(), passed.end(), 'a'));
            named += (named.empty() ? "" : ", ") + p + " " + a;
            passed += (passed.empty() ? "" : ", ") + a;
        }
        if (takes_half) continue;
        text += result + " f" + std::to_string(count++) + "(" + named + ") { " + (result == "void" ? "" : "return ") +
                name + "(" + passed + "); }\n";
    }
    return text;
}

void expect_no_open_name(const std::string& builtins, const std::string& options) {
    LLVMContext c;
    int count;
    auto m = compiled("all_builtins", calls_of_all_builtins(count), options, c);
    ASSERT_TRUE(m);
    EXPECT_GT(count, 9000);
    auto library = read(ORVANE_BUILD "/" + builtins, c);
    ASSERT_TRUE(library);
    library->setTargetTriple(m->getTargetTriple());
    library->setDataLayout(m->getDataLayout());
    ASSERT_FALSE(Linker::linkModules(*m, std::move(library), Linker::Flags::LinkOnlyNeeded));
    std::string open;
    int names = 0;
    for (Function& f : *m)
        if (f.isDeclaration() && !f.isIntrinsic() && !f.use_empty() && !ir::find_export(f.getName()) && names++ < 20)
            open += " " + f.getName().str();
    EXPECT_EQ(open, "") << names << " names";
}

// A call of a built-in or an export at some width: lanes of the arguments, results, second results, one after the
// other.
using thunk = void (*)(void*, void*, void*, void*, void*);

// Compares `wide` with `one` lane by lane, on lanes of every kind; the number of results compared.
int lanes_like(thunk one, thunk wide, const kernel_row& row, int w) {
    static std::mt19937_64 bits(19);
    int compared = 0;
    const int lanes = row.has_out() || row.results() == 2 ? 2 : 1;
    for (int round = 0; round < 20; round++) {
        alignas(8) unsigned char x[3][16][8], y[2][17 * 8], want[2][8];
        unsigned char packed[3][16 * 8 + 4];
        memset(y, 0xcc, sizeof y);
        for (int j = 0; j < row.arguments(); j++)
            for (int k = 0; k < w; k++) {
                const lane_type t = row.argument(j);
                const double at = row.range[j ? 2 : 0], to = row.range[j ? 3 : 1];
                const double v = at + (to - at) * double(bits() >> 11) * 0x1p-53;
                // Mostly ordinary lanes, and every pattern there is.
                uint64_t word = bits() % 8 ? word_of(t, v) : bits() >> bits() % 64;
                write_lane(x[j][k], t, word);
                memcpy(packed[j] + k * size_of(t), x[j][k], size_of(t));
            }
        wide(packed[0], packed[1], packed[2], y[0], y[1]);
        for (int k = 0; k < w; k++) {
            one(x[0][k], x[1][k], x[2][k], want[0], want[1]);
            for (int r = 0; r < lanes; r++) {
                const int bytes = size_of(row.result(r));
                EXPECT_EQ(memcmp(y[r] + k * bytes, want[r], bytes), 0)
                    << plan_of(row, w).symbol << " lane " << k << " result " << r;
                if (testing::Test::HasFailure()) return 0;
                compared++;
            }
        }
        for (int r = 0; r < lanes; r++)
            EXPECT_EQ(y[r][w * size_of(row.result(r))], 0xcc) << plan_of(row, w).symbol;
    }
    return compared;
}

std::unique_ptr<orc::LLJIT> machine_with_library() {
    InitializeNativeTarget();
    InitializeNativeTargetAsmPrinter();
    auto target = cantFail(orc::JITTargetMachineBuilder::detectHost());
    target.setCodeGenOptLevel(CodeGenOpt::Less);
    auto jit = cantFail(orc::LLJITBuilder().setJITTargetMachineBuilder(target).create());
    jit->getMainJITDylib().addGenerator(cantFail(orc::DynamicLibrarySearchGenerator::Load(ORVANE_LIBRARY, 0)));
    return jit;
}

} // namespace

TEST(Builtins, EveryNameOfOpenClCIsThere) {
    expect_no_open_name("orvane-builtins.bc", device);
    expect_no_open_name("orvane-builtins-relaxed.bc", device);
}
TEST(Builtins, EveryNameIsThereForTheConventionOfC) {
    expect_no_open_name("orvane-builtins-x86.bc", host);
    expect_no_open_name("orvane-builtins-x86-relaxed.bc", host);
}

// A thunk t(x, y, z, result, second) around a call of every export in IR, run on lanes of every kind, against the
// same thunk of width 1; lanes lie one after the other.
TEST(Builtins, EveryCallFromIrAgreesWithWidthOne) {
    auto context = std::make_unique<LLVMContext>();
    LLVMContext& c = *context;
    auto m = std::make_unique<Module>("thunks", c);
    Type* const pointer = PointerType::get(c, 0);
    for (const kernel_row& row : library_rows())
        for (int w : widths) {
            auto* f = Function::Create(
                FunctionType::get(Type::getVoidTy(c), {pointer, pointer, pointer, pointer, pointer}, false),
                GlobalValue::ExternalLinkage, "t." + plan_of(row, w).symbol, *m);
            f->addFnAttr("target-cpu", "x86-64-v3");
            f->setDoesNotThrow();
            IRBuilder<> code(BasicBlock::Create(c, "", f));
            SmallVector<Value*, 3> x;
            for (int j = 0; j < row.arguments(); j++)
                x.push_back(code.CreateAlignedLoad(ir::vector_of(c, row.argument(j), w), f->getArg(j), Align(4)));
            const auto y = ir::call_export(code, row, w, x);
            for (size_t j = 0; j < y.size(); j++)
                code.CreateAlignedStore(y[j], f->getArg(3 + j), Align(4));
            code.CreateRetVoid();
        }
    std::string why;
    raw_string_ostream text(why);
    ASSERT_FALSE(verifyModule(*m, &text)) << text.str();
    auto jit = machine_with_library();
    cantFail(jit->addIRModule(orc::ThreadSafeModule(std::move(m), std::move(context))));

    auto thunk_of = [&](const kernel_row& row, int w) {
        return cantFail(jit->lookup("t." + plan_of(row, w).symbol)).toPtr<thunk>();
    };
    int compared = 0, in_memory = 0;
    for (const kernel_row& row : library_rows())
        for (int w : widths) {
            in_memory += plan_of(row, w).memory_form;
            compared += lanes_like(thunk_of(row, 1), thunk_of(row, w), row, w);
        }
    EXPECT_EQ(in_memory, 39);
    EXPECT_GT(compared, 100000);
}

// Code for x86, whose C convention has a float2 in half a register, a float8 in a whole one or in memory, a float16
// in two or in memory.
TEST(Builtins, EveryBuiltinInTheConventionOfCAgreesWithWidthOne) {
    std::string source = "#pragma OPENCL EXTENSION cl_khr_fp64 : enable\n";
    auto type = [](lane_type t, int w) { return std::string(opencl_type(t)) + (w == 1 ? "" : std::to_string(w)); };
    auto name_of = [](const kernel_row& row, int w) {
        std::string s(row.builtin);
        if (const auto at = s.find('#'); at != s.npos) s.replace(at, 1, w == 1 ? "" : std::to_string(w));
        return s;
    };
    // nearbyint is one of the C library that the bitcode has beyond OpenCL C, and that clang's header does not
    // declare.
    auto is_builtin = [](const kernel_row& row) {
        return !row.builtin.empty() && !row.builtin.starts_with("operator") && !row.is_relaxed() &&
               row.builtin != "nearbyint" && row.results() == 1;
    };
    for (const kernel_row& row : library_rows())
        for (int w : widths) {
            if (!is_builtin(row)) continue;
            const std::string n = w == 1 ? "" : std::to_string(w);
            auto loaded = [&](int j) {
                return w == 1 ? "*" + std::string(1, "abc"[j]) : "vload" + n + "(0, " + "abc"[j] + ")";
            };
            auto stored = [&](const std::string& value, const std::string& to) {
                return w == 1 ? "*" + to + " = " + value + "; " : "vstore" + n + "(" + value + ", 0, " + to + "); ";
            };
            source += "void t_" + plan_of(row, w).symbol + "(";
            std::string call = name_of(row, w) + "(";
            for (int j = 0; j < 3; j++) {
                const lane_type t = row.argument(std::min(j, row.arguments() - 1));
                source += "global const " + type(t, 1) + "* " + "abc"[j] + ", ";
                if (j < row.arguments()) call += (j ? ", " : "") + loaded(j);
            }
            source += "global " + type(row.result(0), 1) + "* y, global " +
                      type(row.has_out() ? row.extra : row.result(0), 1) + "* z) { ";
            if (row.has_out()) source += type(row.extra, w) + " second; ";
            source += stored(call + (row.has_out() ? ", &second)" : ")"), "y");
            if (row.has_out()) source += stored("second", "z");
            source += "}\n";
        }
    auto context = std::make_unique<LLVMContext>();
    auto m = compiled("convention", source, host, *context);
    ASSERT_TRUE(m);
    auto library = read(ORVANE_BUILD "/orvane-builtins-x86.bc", *context);
    ASSERT_TRUE(library);
    library->setTargetTriple(m->getTargetTriple());
    library->setDataLayout(m->getDataLayout());
    ASSERT_FALSE(Linker::linkModules(*m, std::move(library), Linker::Flags::LinkOnlyNeeded));
    auto jit = machine_with_library();
    cantFail(jit->addIRModule(orc::ThreadSafeModule(std::move(m), std::move(context))));
    auto thunk_of = [&](const kernel_row& row, int w) {
        return cantFail(jit->lookup("t_" + plan_of(row, w).symbol)).toPtr<thunk>();
    };
    int compared = 0;
    for (const kernel_row& row : library_rows())
        if (is_builtin(row))
            for (int w : widths)
                compared += lanes_like(thunk_of(row, 1), thunk_of(row, w), row, w);
    EXPECT_GT(compared, 100000);
}
