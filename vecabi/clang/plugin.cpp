// A pass plugin for clang: libm calls and LLVM's math intrinsics get their vector forms in liborvane_vecabi.
//
//     clang -O2 -fno-math-errno -mavx2 -mfma -fpass-plugin=orvane-clang-16.so ... -lorvane_vecabi
//
// Just before the loop vectorizer every such call is told its variants; the vectorizers do the rest. What LLVM has an
// instruction for (sqrt, fabs, floor, fma ...) is left to it. After them sine and cosine of one vector become one
// call. -Rpass=orvane shows what was bound and what was joined, -Rpass-missed=orvane the calls that may write errno.
#include <llvm/Analysis/LoopInfo.h>
#include <llvm/Analysis/OptimizationRemarkEmitter.h>
#include <llvm/Analysis/TargetTransformInfo.h>
#include <llvm/IR/Dominators.h>
#include <llvm/IR/IRBuilder.h>
#include <llvm/IR/InstIterator.h>
#include <llvm/IR/Module.h>
#include <llvm/Passes/PassBuilder.h>
#include <llvm/Passes/PassPlugin.h>
#include <llvm/Transforms/Utils/ModuleUtils.h>

#define DEBUG_TYPE "orvane"

using namespace llvm;

namespace {

enum class lane { f32, f64, i32 };

struct function {
    StringRef name;       // the scalar function's
    lane type;            // of its lanes: what counts them
    StringRef parameters; // v, vv, vvv; vi: x and an int
    StringRef vector;     // name in the vector function ABI
    lane result;
};
constexpr function functions[] = {
#define FUNCTION(name, type, parameters, vector, result) {#name, lane::type, #parameters, #vector, lane::result},
#include "functions.inc"
#undef FUNCTION
};

// Intrinsics that the code generator turns into calls, some because there is no instruction (floor before SSE 4.1).
constexpr StringRef intrinsics[] = {"sin",  "cos",   "tan",   "exp",  "exp2",      "exp10", "log",  "log2", "log10",
                                    "pow",  "asin",  "acos",  "atan", "atan2",     "sinh",  "cosh", "tanh", "ldexp",
                                    "ceil", "floor", "trunc", "rint", "nearbyint", "round", "fma"};

const function* named(StringRef name) {
    static const StringMap<const function*> by_name = [] {
        StringMap<const function*> m;
        for (const function& f : functions)
            m[f.name] = &f;
        return m;
    }();
    return by_name.lookup(name);
}

const function* of_intrinsic(const Function& callee) {
    StringRef name = callee.getName();
    if (!name.consume_front("llvm.")) return nullptr;
    const StringRef base = name.split('.').first;
    if (!is_contained(intrinsics, base)) return nullptr;
    Type* type = callee.getReturnType();
    if (type->isDoubleTy()) return named(base);
    return type->isFloatTy() ? named((base + "f").str()) : nullptr;
}

Type* type_of(lane l, LLVMContext& c) {
    return l == lane::f64 ? Type::getDoubleTy(c) : l == lane::f32 ? Type::getFloatTy(c) : Type::getInt32Ty(c);
}

bool has_type_of(const CallInst& call, const function& f) {
    LLVMContext& c = call.getContext();
    if (call.arg_size() != f.parameters.size() || call.getType() != type_of(f.result, c)) return false;
    for (unsigned j = 0; j < call.arg_size(); j++)
        if (call.getArgOperand(j)->getType() != type_of(f.parameters[j] == 'i' ? lane::i32 : f.type, c)) return false;
    return true;
}

// A form that the target has registers for: what the ABI calls b, d and e. (LLVM passes eight integers in one
// register wherever it passes eight floats in one, so the d form is the right one for AVX too.)
struct form {
    char letter;
    unsigned bits;
};
constexpr form forms[] = {{'b', 128}, {'d', 256}, {'e', 512}};

// Whether vectors of an intrinsic become calls: then it costs as many of them as there are lanes.
bool is_calls_in_vectors(const CallInst& call, const function& f, const TargetTransformInfo& target) {
    LLVMContext& c = call.getContext();
    const unsigned lanes = f.type == lane::f64 ? 2 : 4;
    SmallVector<Type*, 3> parameters;
    for (char p : f.parameters)
        parameters.push_back(FixedVectorType::get(type_of(p == 'i' ? lane::i32 : f.type, c), lanes));
    IntrinsicCostAttributes wide(call.getCalledFunction()->getIntrinsicID(),
                                 FixedVectorType::get(type_of(f.result, c), lanes), parameters);
    constexpr int of_a_call = 10;
    const auto cost = target.getIntrinsicInstrCost(wide, TargetTransformInfo::TCK_RecipThroughput);
    return !cost.isValid() || cost >= of_a_call;
}

std::string name_of(const form& of, const function& f, unsigned lanes) {
    return (Twine("_ZGV") + Twine(of.letter) + "N" + Twine(lanes) + Twine(std::string(f.parameters.size(), 'v')) +
            "_" + f.vector)
        .str();
}

Function* declare(Module& m, const std::string& name, const function& f, unsigned lanes) {
    LLVMContext& c = m.getContext();
    SmallVector<Type*, 3> parameters;
    for (char p : f.parameters)
        parameters.push_back(FixedVectorType::get(type_of(p == 'i' ? lane::i32 : f.type, c), lanes));
    auto* type = FunctionType::get(FixedVectorType::get(type_of(f.result, c), lanes), parameters, false);
    auto* d = dyn_cast<Function>(m.getOrInsertFunction(name, type).getCallee());
    if (!d || d->getFunctionType() != type) return nullptr; // the program has the name for something else
    d->setDoesNotAccessMemory();
    d->setDoesNotThrow();
    d->setWillReturn();
    return d;
}

struct bind : PassInfoMixin<bind> {
    static bool isRequired() { return true; }

    PreservedAnalyses run(Function& in, FunctionAnalysisManager& analyses) {
        auto& remarks = analyses.getResult<OptimizationRemarkEmitterAnalysis>(in);
        auto& loops = analyses.getResult<LoopAnalysis>(in);
        const auto& target = analyses.getResult<TargetIRAnalysis>(in);
        const unsigned bits = target.getRegisterBitWidth(TargetTransformInfo::RGK_FixedWidthVector).getFixedValue();
        Module& m = *in.getParent();
        SmallVector<GlobalValue*, 8> declared;
        bool changed = false;
        // LLVM has an instruction for fmod, which becomes a call of fmod in the end.
        for (Instruction& i : make_early_inc_range(llvm::instructions(in)))
            if (i.getOpcode() == Instruction::FRem && (i.getType()->isDoubleTy() || i.getType()->isFloatTy())) {
                Type* t = i.getType();
                FunctionCallee fmod = m.getOrInsertFunction(t->isDoubleTy() ? "fmod" : "fmodf", t, t, t);
                auto* call = IRBuilder<>(&i).CreateCall(fmod, {i.getOperand(0), i.getOperand(1)});
                call->copyFastMathFlags(&i);
                call->setDoesNotAccessMemory();
                call->setDebugLoc(i.getDebugLoc());
                i.replaceAllUsesWith(call);
                i.eraseFromParent();
                changed = true;
            }
        for (Instruction& i : llvm::instructions(in)) {
            auto* call = dyn_cast<CallInst>(&i);
            Function* callee = call ? call->getCalledFunction() : nullptr;
            if (!callee || call->hasFnAttr(variants) || call->isNoBuiltin()) continue;
            if (!callee->isIntrinsic() && !callee->isDeclaration()) continue; // a function of the program's own
            const function* f = callee->isIntrinsic() ? of_intrinsic(*callee) : named(callee->getName());
            if (!f || !has_type_of(*call, *f)) continue;
            if (callee->isIntrinsic() && !is_calls_in_vectors(*call, *f, target)) continue;
            // lgamma writes signgam, which a vector form cannot: it is taken for a function of its argument alone.
            if (f->vector == "lgamma" || f->vector == "lgammaf") call->setDoesNotAccessMemory();
            if (!call->doesNotAccessMemory()) {
                if (loops.getLoopFor(call->getParent()))
                    remarks.emit([&] {
                        return OptimizationRemarkMissed(DEBUG_TYPE, "Errno", call)
                               << "call of " << ore::NV("Function", callee->getName())
                               << " may write errno and stays scalar: compile with -fno-math-errno";
                    });
                continue;
            }
            std::string known, shown;
            for (const form& of : forms) {
                const unsigned lanes = of.bits / (f->type == lane::f64 ? 64 : 32);
                if (of.bits > bits) break;
                const std::string name = name_of(of, *f, lanes);
                Function* d = declare(m, name, *f, lanes);
                if (!d) continue;
                declared.push_back(d);
                known += (known.empty() ? "" : ",") + ("_ZGV_LLVM_N" + Twine(lanes)).str() +
                         std::string(f->parameters.size(), 'v') + "_" + callee->getName().str() + "(" + name + ")";
                shown += (shown.empty() ? "" : ", ") + name;
            }
            if (known.empty()) continue;
            call->addFnAttr(Attribute::get(in.getContext(), variants, known));
            // The vectorizer asks for a function that cannot be left in the middle.
            call->addFnAttr(Attribute::NoUnwind);
            call->addFnAttr(Attribute::WillReturn);
            changed = true;
            if (loops.getLoopFor(call->getParent()))
                remarks.emit([&] {
                    return OptimizationRemark(DEBUG_TYPE, "Bound", call)
                           << "call of " << ore::NV("Function", callee->getName()) << " has vector forms "
                           << ore::NV("Forms", shown);
                });
        }
        // Otherwise a declaration that nothing uses yet would be gone before the vectorizer looks for it.
        if (!declared.empty()) appendToCompilerUsed(m, declared);
        return changed ? PreservedAnalyses::none() : PreservedAnalyses::all();
    }

private:
    static constexpr const char* variants = "vector-function-abi-variant";
};

// Sine and cosine of one vector in one call, and what `bind` declared in vain taken out.
struct finish : PassInfoMixin<finish> {
    static bool isRequired() { return true; }

    PreservedAnalyses run(Module& m, ModuleAnalysisManager& analyses) {
        auto& by_function = analyses.getResult<FunctionAnalysisManagerModuleProxy>(m).getManager();
        const auto before = m.getFunctionList().size();
        removeFromUsedLists(m, [](Constant* c) { return is_ours(c->stripPointerCasts()); });
        bool changed = false;
        for (const form& of : forms)
            for (bool wide : {false, true}) {
                const unsigned lanes = of.bits / (wide ? 64 : 32);
                const std::string f = wide ? "" : "f",
                                  start = ("_ZGV" + Twine(of.letter) + "N" + Twine(lanes) + "v_").str();
                Function *sine = m.getFunction(start + "sin" + f), *cosine = m.getFunction(start + "cos" + f);
                if (!sine || !cosine) continue;
                const std::string l = wide ? "l8" : "l4";
                const std::string both =
                    ("_ZGV" + Twine(of.letter) + "N" + Twine(lanes) + "v" + l + l + "_sincos" + f).str();
                changed |= join(*sine, *cosine, both, by_function);
            }
        for (Function& f : make_early_inc_range(m))
            if (f.isDeclaration() && f.use_empty() && is_ours(&f)) f.eraseFromParent();
        return changed || before != m.getFunctionList().size() ? PreservedAnalyses::none() : PreservedAnalyses::all();
    }

private:
    static bool is_ours(const Value* v) {
        auto* f = dyn_cast<Function>(v);
        return f && f->isDeclaration() && f->getName().starts_with("_ZGV");
    }

    static bool join(Function& sine, Function& cosine, const std::string& both, FunctionAnalysisManager& analyses) {
        SmallVector<CallInst*, 8> sines, cosines;
        for (User* u : sine.users())
            if (auto* c = dyn_cast<CallInst>(u)) sines.push_back(c);
        for (User* u : cosine.users())
            if (auto* c = dyn_cast<CallInst>(u)) cosines.push_back(c);
        bool changed = false;
        for (CallInst* s : sines)
            for (CallInst*& c : cosines) {
                if (!c || c->getFunction() != s->getFunction() || c->getArgOperand(0) != s->getArgOperand(0))
                    continue;
                auto& dominators = analyses.getResult<DominatorTreeAnalysis>(*s->getFunction());
                CallInst* first = dominators.dominates(s, c) ? s : dominators.dominates(c, s) ? c : nullptr;
                if (!first) continue;
                replace(*s, *c, *first, both, analyses);
                c = nullptr;
                changed = true;
                break;
            }
        return changed;
    }

    static void replace(CallInst& s, CallInst& c, CallInst& first, const std::string& both,
                        FunctionAnalysisManager& analyses) {
        Function& in = *s.getFunction();
        Type* vector = s.getType();
        auto& remarks = analyses.getResult<OptimizationRemarkEmitterAnalysis>(in);
        IRBuilder<> entry(&*in.getEntryBlock().getFirstInsertionPt());
        AllocaInst *sine = entry.CreateAlloca(vector), *cosine = entry.CreateAlloca(vector);
        IRBuilder<> here(&first);
        Value* arguments[] = {s.getArgOperand(0), sine, cosine};
        Type* types[] = {vector, sine->getType(), cosine->getType()};
        FunctionCallee f = in.getParent()->getOrInsertFunction(
            both, FunctionType::get(Type::getVoidTy(in.getContext()), types, false));
        if (auto* d = dyn_cast<Function>(f.getCallee()))
            d->setDoesNotThrow(), d->setWillReturn(), d->setOnlyAccessesArgMemory();
        here.CreateCall(f, arguments);
        Value *sines = here.CreateLoad(vector, sine), *cosines = here.CreateLoad(vector, cosine);
        remarks.emit([&] {
            return OptimizationRemark(DEBUG_TYPE, "Joined", &first)
                   << "sine and cosine joined into one call of " << ore::NV("Function", both);
        });
        s.replaceAllUsesWith(sines);
        c.replaceAllUsesWith(cosines);
        s.eraseFromParent();
        c.eraseFromParent();
    }
};

} // namespace

extern "C" [[gnu::visibility("default")]] PassPluginLibraryInfo llvmGetPassPluginInfo() {
    return {LLVM_PLUGIN_API_VERSION, "orvane", ORVANE_VERSION, [](PassBuilder& builder) {
                builder.registerVectorizerStartEPCallback(
                    [](FunctionPassManager& passes, OptimizationLevel) { passes.addPass(bind()); });
                builder.registerOptimizerLastEPCallback(
                    [](ModulePassManager& passes, OptimizationLevel) { passes.addPass(finish()); });
            }};
}
