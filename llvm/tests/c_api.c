/* The passes as a JIT in C calls them. */
#include <orvane/llvm.h>

void optimize_from_c(LLVMModuleRef module, LLVMTargetMachineRef target, unsigned width);
void optimize_from_c(LLVMModuleRef module, LLVMTargetMachineRef target, unsigned width) {
    const OrvaneLLVMOptions options = {.width = width, .exact_clobbers = 0};
    OrvaneOptimize(module, target, width ? &options : 0);
}
