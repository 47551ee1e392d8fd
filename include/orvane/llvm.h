/* Orvane's passes for LLVM, for a JIT that calls them: C, and C++ where LLVM's headers of the same version are there.
 *
 * They find calls of the library's exports, as the built-ins in orvane-builtins.bc make them, and see that LLVM's
 * loop vectorizer makes them wide; docs/jit.md walks through it. What they do shows in LLVM's remarks of the pass
 * "orvane". */
#ifndef ORVANE_LLVM_H
#define ORVANE_LLVM_H

#include <llvm-c/TargetMachine.h>
#include <llvm-c/Types.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct {
    /* Lanes of a loop over work-items: 2, 4, 8 or 16; 1 keeps everything scalar; 0 leaves it to LLVM's cost model (8
     * in kernels with loops of their own). A loop's own metadata (llvm.loop.vectorize.width) goes first. */
    unsigned width;
    /* Not 0: wide calls are inline assembly that names what a call changes, so that values stay in vector registers 8
     * to 15, rdi and rsi across it. The code generator must then have an assembly parser. */
    int exact_clobbers;
} OrvaneLLVMOptions;

/* Runs LLVM's pipeline of -O3 with the passes in it; `options` may be null. The module must have the target's triple
 * and data layout; `target` must not be null for code to be vectorized. */
void OrvaneOptimize(LLVMModuleRef module, LLVMTargetMachineRef target, const OrvaneLLVMOptions* options);

#ifdef __cplusplus
}

namespace llvm {
class Module;
class PassBuilder;
class TargetMachine;
} // namespace llvm

namespace orvane {

struct llvm_options {
    unsigned width = 0;
    bool exact_clobbers = false;
};

// Puts the passes into the pipelines that the builder makes afterwards, at their start, in front of the vectorizers
// and at their end; and gives them names for textual pipelines: orvane-early, orvane-widen (of functions),
// orvane-late (of modules).
void register_passes(llvm::PassBuilder&, const llvm_options& = {});
// OrvaneOptimize.
void optimize(llvm::Module&, llvm::TargetMachine*, const llvm_options& = {});

} // namespace orvane
#endif
#endif
