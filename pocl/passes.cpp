#include "passes.h"
#include "hooks.h"
#include "llvm/core/passes.h"
#include "llvm/core/steps.h"

#include <llvm/ADT/STLExtras.h>
#include <llvm/IR/DiagnosticInfo.h>
#include <llvm/IR/DiagnosticPrinter.h>
#include <llvm/IR/LegacyPassManager.h>
#include <llvm/Pass.h>
#include <llvm/Passes/PassBuilder.h>
#include <llvm/Support/raw_ostream.h>
#include <llvm/Transforms/IPO/PassManagerBuilder.h>
#include <llvm/Transforms/Utils/LoopUtils.h>

#include <set>

using namespace llvm;

namespace orvane::pocl {

namespace {

llvm_options options_of_environment() {
    llvm_options o;
    if (const char* width = getenv("ORVANE_WIDTH")) o.width = atoi(width);
    return o;
}

// ---- What became of a kernel's built-ins, on stderr

std::string kernel_of(StringRef function) {
    function.consume_front("_pocl_kernel_");
    if (!function.consume_back("_workgroup_fast")) function.consume_back("_workgroup");
    return function.str();
}

class teller : public DiagnosticHandler {
public:
    explicit teller(std::unique_ptr<DiagnosticHandler> before) : before(std::move(before)) {}
    std::unique_ptr<DiagnosticHandler> before;

    bool isAnyRemarkEnabled() const override { return true; }
    bool isAnalysisRemarkEnabled(StringRef pass) const override { return pass == "loop-vectorize"; }
    bool isMissedOptRemarkEnabled(StringRef) const override { return true; }
    bool isPassedOptRemarkEnabled(StringRef) const override { return true; }

    bool handleDiagnostics(const DiagnosticInfo& d) override {
        const auto* remark = dyn_cast<DiagnosticInfoOptimizationBase>(&d);
        if (!remark) return before->handleDiagnostics(d);
        const StringRef pass = remark->getPassName();
        // The remarks on calls show what the vectorizer did; its own remarks count where it did nothing.
        const std::string message = remark->getMsg();
        if (pass == "orvane" || StringRef(message).startswith("loop not vectorized:")) {
            const std::string line = "kernel " + kernel_of(remark->getFunction().getName()) + ": " + message;
            if (told.insert(line).second) errs() << "orvane: " << line << '\n';
        }
        return true;
    }

private:
    std::set<std::string> told;
};

void tell(LLVMContext& c) {
    if (log_wanted()) c.setDiagnosticHandler(std::make_unique<teller>(c.getDiagnosticHandler()));
}
void tell_no_more(LLVMContext& c) {
    if (!log_wanted()) return;
    auto* t = const_cast<DiagnosticHandler*>(c.getDiagHandlerPtr());
    c.setDiagnosticHandler(std::move(static_cast<teller*>(t)->before));
}

// PoCL runs the pipeline on a kernel as it was written, and again when it has put loops over work-items around it.
bool has_work_groups(const Module& m) {
    return any_of(m, [](const Function& f) { return !f.isDeclaration() && f.getName().contains("_workgroup"); });
}

// ---- The passes of the new pass manager, run by one of the old

// Loops over work-items with work for the library stay loops: those of small groups would be unrolled before the
// vectorizer sees them.
bool keep_loops(Function& f) {
    DominatorTree tree(f);
    LoopInfo loops(tree);
    bool changed = false;
    for (Loop* loop : loops.getLoopsInPreorder()) {
        const bool has_work = any_of(loop->blocks(), [](BasicBlock* b) {
            return any_of(*b, [](Instruction& i) {
                auto* call = dyn_cast<CallInst>(&i);
                return i.isIntDivRem() || (call && ir::find_call(*call).of);
            });
        });
        const bool becomes_lanes =
            !loop->isInnermost() && none_of(*loop, [](const Loop* inner) { return ir::over_work_items(*inner); });
        if (!ir::over_work_items(*loop) || !(has_work || becomes_lanes)) continue;
        addStringMetadataToLoop(loop, "llvm.loop.unroll.disable", 1);
        changed = true;
    }
    return changed;
}

enum class stage { early, widen, late };

struct orvane_stage : ModulePass {
    static char ID;
    explicit orvane_stage(stage s = stage::widen) : ModulePass(ID), at(s) {}
    stage at;
    StringRef getPassName() const override {
        return at == stage::early   ? "Orvane: loops kept"
               : at == stage::widen ? "Orvane: calls widened"
                                    : "Orvane: calls settled";
    }
    bool runOnModule(Module& m) override {
        if (!has_work_groups(m)) return false;
        if (at == stage::early) {
            bool changed = false;
            for (Function& f : m)
                if (!f.isDeclaration()) changed |= keep_loops(f);
            return changed;
        }
        if (at == stage::widen) tell(m.getContext());
        PassBuilder builder;
        analysis_managers analyses(builder);
        ModulePassManager passes;
        if (at == stage::late) add_late_passes(passes, options_of_environment());
        else add_widening_passes(passes, options_of_environment());
        const bool changed = !passes.run(m, analyses.modules).areAllPreserved();
        if (at == stage::late) tell_no_more(m.getContext());
        return changed;
    }
};
char orvane_stage::ID;

} // namespace

void add_passes() {
    PassManagerBuilder::addGlobalExtension(
        PassManagerBuilder::EP_ModuleOptimizerEarly,
        [](const PassManagerBuilder&, legacy::PassManagerBase& p) { p.add(new orvane_stage(stage::early)); });
    PassManagerBuilder::addGlobalExtension(PassManagerBuilder::EP_VectorizerStart,
                                           [](const PassManagerBuilder& b, legacy::PassManagerBase& p) {
                                               // PoCL asks for vectorized loops with one of its ways to run
                                               // work-groups only.
                                               const_cast<PassManagerBuilder&>(b).LoopVectorize = true;
                                               p.add(new orvane_stage(stage::widen));
                                           });
    PassManagerBuilder::addGlobalExtension(
        PassManagerBuilder::EP_OptimizerLast,
        [](const PassManagerBuilder&, legacy::PassManagerBase& p) { p.add(new orvane_stage(stage::late)); });
}

} // namespace orvane::pocl
