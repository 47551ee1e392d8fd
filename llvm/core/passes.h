// The passes for the new pass manager, for code that runs them by itself.
#pragma once

#include "orvane/llvm.h"

#include <llvm/Analysis/CGSCCPassManager.h>
#include <llvm/Analysis/LoopAnalysisManager.h>
#include <llvm/IR/PassManager.h>

namespace orvane {

// The managers that passes of a builder's pipelines run with, made known to each other.
struct analysis_managers {
    llvm::LoopAnalysisManager loops;
    llvm::FunctionAnalysisManager functions;
    llvm::CGSCCAnalysisManager components;
    llvm::ModuleAnalysisManager modules;
    explicit analysis_managers(llvm::PassBuilder&);
};

void add_widening_passes(llvm::ModulePassManager&, const llvm_options&); // in front of the vectorizers
void add_late_passes(llvm::ModulePassManager&, const llvm_options&);

} // namespace orvane
