// What differs between LLVM 15, 16 and 19, in one place.
#pragma once

#include <llvm/ADT/StringRef.h>
#include <llvm/Config/llvm-config.h>
#include <llvm/IR/DerivedTypes.h>
#include <llvm/IR/Function.h>

namespace orvane::ir {

inline bool starts_with(llvm::StringRef s, llvm::StringRef prefix) {
#if LLVM_VERSION_MAJOR >= 17
    return s.starts_with(prefix);
#else
    return s.startswith(prefix);
#endif
}
inline bool ends_with(llvm::StringRef s, llvm::StringRef suffix) {
#if LLVM_VERSION_MAJOR >= 17
    return s.ends_with(suffix);
#else
    return s.endswith(suffix);
#endif
}

inline llvm::PointerType* pointer_type(llvm::LLVMContext& c) { return llvm::PointerType::get(c, 0); }

} // namespace orvane::ir
