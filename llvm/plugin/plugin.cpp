// The passes as a plugin:
//
//     clang -fpass-plugin=orvane-llvm-16.so ...
//     opt -load-pass-plugin=orvane-llvm-16.so -passes='default<O3>' ...
//
// ORVANE_WIDTH and ORVANE_EXACT_CLOBBERS in the environment set what llvm_options does.
#include "orvane/llvm.h"

#include <llvm/Passes/PassBuilder.h>
#include <llvm/Passes/PassPlugin.h>

#include <cstdlib>
#include <cstring>

extern "C" __attribute__((visibility("default"), weak)) llvm::PassPluginLibraryInfo llvmGetPassPluginInfo() {
    return {LLVM_PLUGIN_API_VERSION, "orvane", "1", [](llvm::PassBuilder& builder) {
                orvane::llvm_options o;
                if (const char* width = getenv("ORVANE_WIDTH")) o.width = atoi(width);
                if (const char* exact = getenv("ORVANE_EXACT_CLOBBERS")) o.exact_clobbers = strcmp(exact, "0") != 0;
                orvane::register_passes(builder, o);
            }};
}
