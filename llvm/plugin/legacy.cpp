// The passes in LLVM 15's legacy pass manager, which runtimes of that time still use. Loaded into the process (opt-15
// -enable-new-pm=0 -load=..., or a library that the runtime opens), it adds itself to the standard pipelines.
//
// The steps are those of the new pass manager: a legacy pass runs them on the whole module with managers of its own.
#include "llvm/core/passes.h"

#include <llvm/IR/LegacyPassManager.h>
#include <llvm/Pass.h>
#include <llvm/Passes/PassBuilder.h>
#include <llvm/Transforms/IPO/PassManagerBuilder.h>

#include <cstdlib>

using namespace llvm;

namespace {

struct orvane_pass : ModulePass {
    static char ID;
    explicit orvane_pass(bool late = false) : ModulePass(ID), late(late) {}
    bool late;
    StringRef getPassName() const override { return late ? "Orvane: calls settled" : "Orvane: calls widened"; }
    bool runOnModule(Module& m) override {
        orvane::llvm_options o;
        if (const char* width = getenv("ORVANE_WIDTH")) o.width = atoi(width);
        PassBuilder builder;
        orvane::analysis_managers analyses(builder);
        ModulePassManager passes;
        if (late) orvane::add_late_passes(passes, o);
        else orvane::add_widening_passes(passes, o);
        return !passes.run(m, analyses.modules).areAllPreserved();
    }
};
char orvane_pass::ID;

const RegisterStandardPasses before(PassManagerBuilder::EP_VectorizerStart,
                                    [](const PassManagerBuilder&, legacy::PassManagerBase& p) {
                                        p.add(new orvane_pass(false));
                                    });
const RegisterStandardPasses after(PassManagerBuilder::EP_OptimizerLast,
                                   [](const PassManagerBuilder&, legacy::PassManagerBase& p) {
                                       p.add(new orvane_pass(true));
                                   });

} // namespace
