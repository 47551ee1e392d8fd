// From OpenCL C to code that runs over arrays, in the steps that a JIT takes: clang, the built-ins, a loop over
// work-items, Orvane's passes, ORC. docs/jit.md walks through it.
#pragma once

#include "orvane/llvm.h"

#include <llvm/ExecutionEngine/Orc/LLJIT.h>
#include <llvm/IR/IRBuilder.h>
#include <llvm/IR/Module.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace jit {

struct options {
    unsigned width = 0;                     // lanes: 1, 2, 4, 8 or 16; 0: LLVM chooses
    bool exact_clobbers = false;            // values stay in registers across calls
    bool relaxed = false;                   // -cl-fast-relaxed-math
    std::string builtins = ORVANE_BUILTINS; // orvane-builtins.bc
    std::string relaxed_builtins = ORVANE_BUILTINS_RELAXED;
    std::string library = ORVANE_LIBRARY; // liborvane_l9.so; empty: what the built-ins call is in the process
    std::string processor, features;      // empty: this machine's
    bool print_assembly = false;          // into `assembly` instead of running
    // Instead of orvane::optimize.
    std::function<void(llvm::Module&, llvm::TargetMachine&)> optimizer = nullptr;
};

// What a kernel becomes: its work-items from begin to end - 1, with a pointer to each argument in `arguments` (for a
// buffer, a pointer to the pointer).
using range_function = void (*)(void** arguments, size_t begin, size_t end);

class program {
public:
    // Compiles every kernel of an OpenCL C file. Throws std::runtime_error: with clang's messages on stderr already,
    // or with the names that no one defines.
    program(const std::string& file, const options&);

    range_function kernel(const std::string& name) const;
    std::string assembly, ir; // ir: after the passes
    double front_end_ms = 0, optimizer_ms = 0, code_ms = 0;

private:
    std::unique_ptr<llvm::orc::LLJIT> machine;
};

} // namespace jit
