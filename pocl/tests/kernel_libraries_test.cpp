// The built-ins put into every kernel library that PoCL ships, whatever processor it is for: their convention is that
// library's, and code for 512-bit registers still calls exports with 256-bit ones.
#include "pocl/kernel_library.h"
#include "llvm/core/passes.h"

#include <gtest/gtest.h>
#include <llvm/IR/InstIterator.h>
#include <llvm/IR/LegacyPassManager.h>
#include <llvm/IR/Verifier.h>
#include <llvm/IRReader/IRReader.h>
#include <llvm/MC/TargetRegistry.h>
#include <llvm/Passes/PassBuilder.h>
#include <llvm/Support/SourceMgr.h>
#include <llvm/Support/TargetSelect.h>
#include <llvm/Support/raw_ostream.h>
#include <llvm/Target/TargetMachine.h>
#include <llvm/Transforms/IPO/AlwaysInliner.h>

#include <filesystem>
#include <regex>

using namespace llvm;
namespace fs = std::filesystem;

namespace {

std::unique_ptr<Module> read(const std::string& file, LLVMContext& c) {
    SMDiagnostic why;
    auto m = parseIRFile(file, why, c);
    if (!m) ADD_FAILURE() << file << ": " << why.getMessage().str();
    return m;
}

} // namespace

TEST(KernelLibraries, AllTakeEveryBuiltIn) {
    std::set<unsigned> counts;
    int libraries = 0;
    for (const auto& e : fs::directory_iterator(ORVANE_POCL_DATA)) {
        if (!e.path().filename().string().starts_with("kernel-x86_64")) continue;
        LLVMContext c;
        auto m = read(e.path(), c);
        ASSERT_TRUE(m);
        const auto replaced = orvane::pocl::replace_builtins(*m);
        EXPECT_TRUE(replaced.left.empty()) << e.path() << ": " << replaced.left.front();
        EXPECT_GT(replaced.built_ins, 3000u) << e.path();
        counts.insert(replaced.built_ins);
        std::string why;
        raw_string_ostream text(why);
        EXPECT_FALSE(verifyModule(*m, &text)) << e.path() << '\n' << text.str();
        for (const char* name :
             {"_Z7_cl_expf", "_Z10_cl_sincosDv8_fPU9CLprivateS_", "_Z7_cl_powDv16_dS_", "_Z8_cl_pownDv3_fDv3_i",
              "_Z23_cl_convert_int_sat_rtef", "_Z14_cl_native_sinDv4_f", "_Z7_cl_expDv8_f.relaxed"}) {
            Function* f = m->getFunction(name);
            ASSERT_TRUE(f) << name;
            bool calls = false;
            for (Instruction& i : instructions(*f))
                if (auto* call = dyn_cast<CallInst>(&i); call && call->getCalledFunction())
                    calls |= call->getCalledFunction()->getName().startswith("__orvane_l9_");
            EXPECT_TRUE(calls) << e.path() << ": " << name;
        }
        libraries++;
    }
    EXPECT_GE(libraries, 5);
    EXPECT_EQ(counts.size(), 1u);
}

TEST(KernelLibraries, CodeFor512BitsCallsWith256) {
    InitializeNativeTarget();
    InitializeNativeTargetAsmPrinter();
    LLVMContext c;
    auto m = read(ORVANE_POCL_DATA "/kernel-x86_64-pc-linux-gnu-avx512.bc", c);
    ASSERT_TRUE(m);
    orvane::pocl::replace_builtins(*m);
    // A function with a call of exp(float16), on memory, is all that stays.
    Function* callee = m->getFunction("_Z7_cl_expDv16_f");
    ASSERT_TRUE(callee);
    auto* f = Function::Create(FunctionType::get(Type::getVoidTy(c), {PointerType::get(c, 0)}, false),
                               GlobalValue::ExternalLinkage, "f", *m);
    f->addFnAttr("target-cpu", "skylake-avx512");
    f->addFnAttr("target-features", "+avx512f,+avx512vl,+avx512dq,+avx512bw,+avx2,+fma,+avx");
    f->addFnAttr("min-legal-vector-width", "512");
    f->addFnAttr("prefer-vector-width", "512");
    IRBuilder<> code(BasicBlock::Create(c, "", f));
    Type* const lanes = FixedVectorType::get(code.getFloatTy(), 16);
    Value* x = code.CreateAlignedLoad(lanes, f->getArg(0), Align(64));
    if (callee->hasStructRetAttr()) GTEST_SKIP() << "this library passes float16 in memory";
    ASSERT_EQ(callee->arg_size(), 1u);
    Value* argument = x;
    if (callee->getArg(0)->getType()->isPointerTy()) argument = f->getArg(0);
    code.CreateAlignedStore(code.CreateCall(callee, {argument}), f->getArg(0), Align(64));
    code.CreateRetVoid();
    for (Function& other : make_early_inc_range(*m))
        if (&other != f && &other != callee && !other.isIntrinsic() && !other.getName().startswith("__orvane")) {
            other.deleteBody();
            if (other.use_empty()) other.eraseFromParent();
        }

    PassBuilder builder;
    orvane::analysis_managers analyses(builder);
    ModulePassManager passes;
    passes.addPass(AlwaysInlinerPass());
    orvane::add_late_passes(passes, {});
    passes.run(*m, analyses.modules);
    callee->deleteBody();

    std::string why;
    const Target* target = TargetRegistry::lookupTarget("x86_64-pc-linux-gnu", why);
    ASSERT_TRUE(target) << why;
    std::unique_ptr<TargetMachine> machine(target->createTargetMachine("x86_64-pc-linux-gnu", "skylake-avx512", "",
                                                                       {}, Reloc::PIC_, None, CodeGenOpt::Default));
    SmallString<0> assembly;
    raw_svector_ostream out(assembly);
    legacy::PassManager emit;
    ASSERT_FALSE(machine->addPassesToEmitFile(emit, out, nullptr, CGFT_AssemblyFile));
    emit.run(*m);
    const std::string text = assembly.str().str();
    ASSERT_NE(text.find("__orvane_l9_expf16"), text.npos) << text;
    // Both halves of the argument are in registers of 256 bits when the call is made, and so are those of the result.
    const std::string before = text.substr(0, text.find("__orvane_l9_expf16"));
    EXPECT_TRUE(std::regex_search(before, std::regex("%ymm0"))) << text;
    EXPECT_TRUE(std::regex_search(before, std::regex("%ymm1"))) << text;
    EXPECT_FALSE(std::regex_search(before, std::regex("vmov[a-z0-9]+[^\n]*%zmm0\n[^%]*call"))) << text;
}
