// PoCL's kernel library, the bitcode that holds its built-ins, with ours in their places.
#pragma once

#include <llvm/IR/Module.h>

namespace orvane::pocl {

struct replaced {
    unsigned built_ins = 0;
    std::vector<std::string> left; // names whose form is unknown here
};

// Every built-in that the library has gets a body that calls its export, in the calling convention that this kernel
// library has, whichever of PoCL's it is. For programs compiled with -cl-fast-relaxed-math, built-ins that have a
// tier for them are there a second time, as NAME.relaxed.
replaced replace_builtins(llvm::Module& kernel_library);

// In a program as the front end made it: functions compiled with -cl-fast-relaxed-math call the relaxed forms.
void use_relaxed(llvm::Module& program);

} // namespace orvane::pocl
