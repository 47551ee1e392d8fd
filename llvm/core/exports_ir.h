// Exports of the library in LLVM IR: which symbol is which, their declarations, and calls of every form.
//
// LLVM's plain C convention is the register form: an argument of lanes is one vector, whatever registers it fills;
// two results are a structure of two vectors. The memory form passes every argument by value in memory and the result
// through a pointer.
#pragma once

#include "tools/signature.h"

#include <llvm/IR/IRBuilder.h>
#include <llvm/IR/Module.h>

namespace orvane::ir {

struct export_id {
    const kernel_row* row = nullptr;
    int width = 0;
    explicit operator bool() const { return row; }
};
// The export of a symbol; none if the library has none of that name.
export_id find_export(llvm::StringRef symbol);

llvm::Type* lane_type_of(llvm::LLVMContext&, lane_type);
llvm::Type* vector_of(llvm::LLVMContext&, lane_type, int width);

// Declares the export in the module. A scalar one names its wide variants for LLVM's vectorizers.
llvm::Function* declare_export(llvm::Module&, const kernel_row&, int width);
// Wide variants as the attribute "vector-function-abi-variant" lists them; empty where a row has none that is called
// with vectors alone.
std::string variants_of(const kernel_row&);

// Calls an export: its results, an out-lane last. Memory that the call needs is allocated in the function's entry
// block.
llvm::SmallVector<llvm::Value*, 2> call_export(llvm::IRBuilder<>&, const kernel_row&, int width,
                                               llvm::ArrayRef<llvm::Value*> arguments);

} // namespace orvane::ir
