/* A JIT in C that makes a loop over the library's expf wide. */
#include <llvm-c/Core.h>
#include <llvm-c/IRReader.h>
#include <orvane/llvm.h>
#include <stdio.h>
#include <string.h>

static const char loop[] = "declare float @__orvane_l9_expf1(float) nounwind readnone\n"
                           "define void @f(ptr noalias %y, ptr noalias %x) \"target-cpu\"=\"haswell\" {\n"
                           "entry:\n"
                           "  br label %each\n"
                           "each:\n"
                           "  %i = phi i64 [0, %entry], [%next, %each]\n"
                           "  %from = getelementptr float, ptr %x, i64 %i\n"
                           "  %v = load float, ptr %from\n"
                           "  %e = call float @__orvane_l9_expf1(float %v)\n"
                           "  %to = getelementptr float, ptr %y, i64 %i\n"
                           "  store float %e, ptr %to\n"
                           "  %next = add nuw nsw i64 %i, 1\n"
                           "  %more = icmp ult i64 %next, 1024\n"
                           "  br i1 %more, label %each, label %done\n"
                           "done:\n"
                           "  ret void\n"
                           "}\n";

int main(void) {
    LLVMModuleRef module;
    LLVMTargetRef target;
    char* why = "";
    const char* triple = "x86_64-unknown-linux-gnu";
    LLVMInitializeX86TargetInfo();
    LLVMInitializeX86Target();
    LLVMInitializeX86TargetMC();
    if (LLVMParseIRInContext(LLVMGetGlobalContext(),
                             LLVMCreateMemoryBufferWithMemoryRangeCopy(loop, sizeof loop - 1, "loop"), &module,
                             &why) ||
        LLVMGetTargetFromTriple(triple, &target, &why)) {
        fprintf(stderr, "%s\n", why);
        return 1;
    }
    LLVMTargetMachineRef machine = LLVMCreateTargetMachine(target, triple, "haswell", "", LLVMCodeGenLevelDefault,
                                                           LLVMRelocPIC, LLVMCodeModelJITDefault);
    LLVMSetTarget(module, triple);
    const OrvaneLLVMOptions options = {.width = 8};
    OrvaneOptimize(module, machine, &options);
    const char* text = LLVMPrintModuleToString(module);
    if (strstr(text, "call <8 x float> @__orvane_l9_expf8(")) return 0;
    fprintf(stderr, "the loop stayed scalar:\n%s", text);
    return 1;
}
