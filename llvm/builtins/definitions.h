// OpenCL C's built-ins as functions of LLVM IR that call exports of the library.
#pragma once

#include "llvm/core/exports_ir.h"

#include <stdexcept>
#include <vector>

namespace orvane::ir {

// A built-in at one width. One with an out-pointer is a function for every address space.
struct builtin {
    const kernel_row* row;
    int width;
    std::string name;
    int out_space = -1; // place in address_spaces of the out-pointer
};
inline constexpr const char* address_spaces[] = {"__global", "__local", "__private", "__generic"};

// What a program calls: with `relaxed`, one compiled with -cl-fast-relaxed-math, where the rm tier takes the place of
// the default one in the pairs that have it.
std::vector<builtin> all_builtins(bool relaxed);

// Puts a body into a function that a compiler of OpenCL C declared for the built-in: it takes the arguments out of
// the form in which the target passes them, calls the export, and puts the result back. What is an instruction or two
// becomes those instructions, but with `always_call`. Linkage stays. Throws std::runtime_error, with the function as
// it was, if the form is one that is not known here.
void define_builtin(llvm::Function&, const builtin&, bool always_call = false);

// The same for any function of vectors: `arguments` and `result` are their types by nature, and `body` gives the
// result from the arguments, the last of them an out-pointer with `has_out`.
void define_by(llvm::Function&, llvm::ArrayRef<llvm::Type*> arguments, llvm::Type* result, bool has_out,
               llvm::function_ref<llvm::Value*(llvm::IRBuilder<>&, llvm::ArrayRef<llvm::Value*>)> body);

} // namespace orvane::ir
