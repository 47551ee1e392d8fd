// What differs between LLVM 15, 16 and 19, in one place.
#pragma once

#include <llvm/ADT/StringRef.h>
#include <llvm/Config/llvm-config.h>
#if LLVM_VERSION_MAJOR >= 17
#include <llvm/TargetParser/Triple.h>
#else
#include <llvm/ADT/Triple.h>
#endif
#include <llvm/IR/Constants.h>
#include <llvm/IR/DerivedTypes.h>
#include <llvm/IR/Function.h>
#include <llvm/IR/Module.h>
#include <llvm/Transforms/Utils/ModuleUtils.h>

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

// Takes what `gone` says off the list of what the compiler must keep.
template <class F> void remove_from_used(llvm::Module& m, F gone) {
    auto* list = m.getGlobalVariable("llvm.compiler.used");
    if (!list) return;
    llvm::SmallVector<llvm::GlobalValue*, 32> stays;
    for (llvm::Value* v : llvm::cast<llvm::ConstantArray>(list->getInitializer())->operands())
        if (!gone(llvm::cast<llvm::Constant>(v)))
            stays.push_back(llvm::cast<llvm::GlobalValue>(v->stripPointerCasts()));
    list->eraseFromParent();
    if (!stays.empty()) llvm::appendToCompilerUsed(m, stays);
}

} // namespace orvane::ir
