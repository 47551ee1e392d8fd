// The passes as the new pass manager's, for adapters.
#pragma once

#include "orvane/llvm.h"

#include <llvm/IR/PassManager.h>

namespace orvane {

void add_widening_passes(llvm::ModulePassManager&, const llvm_options&); // in front of the vectorizers
void add_late_passes(llvm::ModulePassManager&, const llvm_options&);

} // namespace orvane
