// The passes in the new pass manager, and the functions that a JIT calls.
#include "passes.h"
#include "compat.h"
#include "steps.h"

#include <llvm-c/TargetMachine.h>
#include <llvm/Passes/PassBuilder.h>
#include <llvm/Target/TargetMachine.h>
#include <llvm/Transforms/AggressiveInstCombine/AggressiveInstCombine.h>
#include <llvm/Transforms/IPO/GlobalDCE.h>
#include <llvm/Transforms/InstCombine/InstCombine.h>
#include <llvm/Transforms/Scalar/ADCE.h>
#include <llvm/Transforms/Scalar/EarlyCSE.h>
#include <llvm/Transforms/Scalar/GVN.h>
#include <llvm/Transforms/Scalar/LICM.h>
#include <llvm/Transforms/Scalar/LoopPassManager.h>
#include <llvm/Transforms/Scalar/SROA.h>
#include <llvm/Transforms/Scalar/Scalarizer.h>
#include <llvm/Transforms/Scalar/SimplifyCFG.h>
#include <llvm/Transforms/Utils/LowerSwitch.h>

using namespace llvm;

namespace orvane {

namespace {

PreservedAnalyses changed_if(bool changed) { return changed ? PreservedAnalyses::none() : PreservedAnalyses::all(); }

SROAPass sroa() {
#if LLVM_VERSION_MAJOR >= 16
    return SROAPass(SROAOptions::ModifyCFG);
#else
    return SROAPass();
#endif
}

struct early : PassInfoMixin<early> {
    PreservedAnalyses run(Function& f, FunctionAnalysisManager&) {
        const bool divided = ir::divisions_to_calls(f), split = ir::results_to_parts(f);
        return changed_if(divided || split);
    }
};

// In front of the vectorizer: makes calls ready to be widened, and loops over work-items such that it takes them.
struct widen : PassInfoMixin<widen> {
    explicit widen(ir::step_options o) : options(o) {}
    ir::step_options options;
    PreservedAnalyses run(Function& f, FunctionAnalysisManager& analyses) {
        bool changed = false;
        if (ir::divisions_to_calls(f) | ir::results_to_parts(f)) {
            analyses.invalidate(f, PreservedAnalyses::none());
            FunctionPassManager tidy;
            tidy.addPass(sroa());
            tidy.addPass(InstCombinePass());
            tidy.addPass(SimplifyCFGPass());
            analyses.invalidate(f, tidy.run(f, analyses));
            changed = true;
        }
        if (options.width == 1) return changed_if(changed);
        if (ir::has_switches(f)) {
            FunctionPassManager tidy;
            tidy.addPass(LowerSwitchPass());
            analyses.invalidate(f, tidy.run(f, analyses));
            changed = true;
        }
        if (ir::vectors_to_scalars(f)) {
            analyses.invalidate(f, PreservedAnalyses::none());
            FunctionPassManager tidy;
            tidy.addPass(scalarizer());
            tidy.addPass(InstCombinePass());
            tidy.addPass(EarlyCSEPass(true));
            analyses.invalidate(f, tidy.run(f, analyses));
            ir::packed_lanes_to_scalars(f);
            changed = true;
        }
        OptimizationRemarkEmitter remarks(&f);
        changed |= ir::loops_to_lane_loops(f, options, remarks);
        changed |= ir::declare_wide_calls(f);
        return changed_if(changed);
    }
    static ScalarizerPass scalarizer() {
#if LLVM_VERSION_MAJOR >= 18
        ScalarizerPassOptions o;
        o.ScalarizeLoadStore = true;
        return ScalarizerPass(o);
#else
        ScalarizerPass p;
        p.setScalarizeLoadStore(true);
        return p;
#endif
    }
};

struct join : PassInfoMixin<join> {
    PreservedAnalyses run(Function& f, FunctionAnalysisManager&) {
        OptimizationRemarkEmitter remarks(&f);
        return changed_if(ir::parts_to_calls(f, remarks));
    }
    static bool isRequired() { return true; } // a part is no symbol of the library
};

struct settle : PassInfoMixin<settle> {
    explicit settle(ir::step_options o) : options(o) {}
    ir::step_options options;
    PreservedAnalyses run(Function& f, FunctionAnalysisManager&) {
        OptimizationRemarkEmitter remarks(&f);
        ir::tell_calls(f, remarks);
        return changed_if(ir::settle_registers(f, options));
    }
};

struct drop : PassInfoMixin<drop> {
    PreservedAnalyses run(Module& m, ModuleAnalysisManager&) { return changed_if(ir::drop_unused_declarations(m)); }
};

void add_late(ModulePassManager& all, const ir::step_options& options) {
    FunctionPassManager p;
    // The arrays between lane loops become registers, and equal work is done once.
    p.addPass(SimplifyCFGPass());
    p.addPass(sroa());
    p.addPass(InstCombinePass());
    p.addPass(EarlyCSEPass(true));
    p.addPass(join());
    p.addPass(sroa());
    p.addPass(EarlyCSEPass(true));
    p.addPass(GVNPass());
    p.addPass(InstCombinePass());
    p.addPass(createFunctionToLoopPassAdaptor(LICMPass(LICMOptions()), /*UseMemorySSA=*/true));
    p.addPass(ADCEPass());
    p.addPass(SimplifyCFGPass());
    p.addPass(settle(options));
    all.addPass(createModuleToFunctionPassAdaptor(std::move(p)));
    all.addPass(drop());
}

ir::step_options steps(const llvm_options& o) { return {o.width, o.exact_clobbers}; }

} // namespace

analysis_managers::analysis_managers(PassBuilder& builder) {
    builder.registerModuleAnalyses(modules);
    builder.registerCGSCCAnalyses(components);
    builder.registerFunctionAnalyses(functions);
    builder.registerLoopAnalyses(loops);
    builder.crossRegisterProxies(loops, functions, components, modules);
}

void add_widening_passes(ModulePassManager& all, const llvm_options& o) {
    all.addPass(createModuleToFunctionPassAdaptor(widen(steps(o))));
}
void add_late_passes(ModulePassManager& all, const llvm_options& o) { add_late(all, steps(o)); }

void register_passes(PassBuilder& builder, const llvm_options& options) {
    const ir::step_options o = steps(options);
    builder.registerPipelineStartEPCallback(
        [](ModulePassManager& all, auto) { all.addPass(createModuleToFunctionPassAdaptor(early())); });
    builder.registerVectorizerStartEPCallback([o](FunctionPassManager& all, auto) { all.addPass(widen(o)); });
    builder.registerOptimizerLastEPCallback([o](ModulePassManager& all, auto...) { add_late(all, o); });
    // The same by name, for `opt -passes=`.
    builder.registerPipelineParsingCallback(
        [o](StringRef name, FunctionPassManager& all, ArrayRef<PassBuilder::PipelineElement>) {
            if (name == "orvane-early") all.addPass(early());
            else if (name == "orvane-widen") all.addPass(widen(o));
            else return false;
            return true;
        });
    builder.registerPipelineParsingCallback(
        [o](StringRef name, ModulePassManager& all, ArrayRef<PassBuilder::PipelineElement>) {
            if (name != "orvane-late") return false;
            add_late(all, o);
            return true;
        });
}

void optimize(Module& m, TargetMachine* target, const llvm_options& options) {
    PipelineTuningOptions tuning;
    tuning.LoopVectorization = options.width != 1;
    tuning.SLPVectorization = options.width != 1;
    tuning.LoopInterleaving = false;
    PassBuilder builder(target, tuning);
    register_passes(builder, options);
    analysis_managers analyses(builder);
    builder.buildPerModuleDefaultPipeline(OptimizationLevel::O3).run(m, analyses.modules);
}

} // namespace orvane

extern "C" void OrvaneOptimize(LLVMModuleRef m, LLVMTargetMachineRef target, const OrvaneLLVMOptions* options) {
    orvane::llvm_options o;
    if (options) o = {options->width, options->exact_clobbers != 0};
    orvane::optimize(*unwrap(m), reinterpret_cast<TargetMachine*>(target), o);
}
