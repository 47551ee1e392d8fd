// Wide calls are brought into the registers of the convention, and remarks say what became of the calls.
#include "compat.h"
#include "steps.h"

#include <llvm/IR/InlineAsm.h>
#include <llvm/IR/InstIterator.h>

using namespace llvm;

namespace orvane::ir {

namespace {

// Whether the target has vector registers wider than those of the convention, which have 256 bits.
bool has_wider_registers(const Function& f) {
    return f.getFnAttribute("target-features").getValueAsString().contains("+avx512f");
}

unsigned bits_of(Type* t) { return t->getPrimitiveSizeInBits().getFixedValue(); }

// The part of a vector that one register holds, and the number of registers.
Type* register_type(Type* t, unsigned& count) {
    count = 1;
    auto* v = dyn_cast<FixedVectorType>(t);
    if (!v) return t;
    const unsigned lane = v->getScalarSizeInBits(), bits = std::max(128u, unsigned(PowerOf2Ceil(bits_of(v))));
    count = std::max(1u, bits / 256);
    return FixedVectorType::get(v->getElementType(), std::min(bits, 256u) / lane);
}

Value* reshaped(IRBuilder<>& code, Value* v, unsigned from, unsigned lanes) {
    const unsigned has = cast<FixedVectorType>(v->getType())->getNumElements();
    SmallVector<int, 16> order;
    for (unsigned k = 0; k < lanes; k++)
        order.push_back(from + k < has ? int(from + k) : -1);
    return code.CreateShuffleVector(v, order);
}

struct pieces {
    SmallVector<Type*, 8> types;
    SmallVector<Value*, 8> values;
    void add(IRBuilder<>& code, Value* v) {
        unsigned count;
        Type* const t = register_type(v->getType(), count);
        for (unsigned k = 0; k < count; k++) {
            types.push_back(t);
            auto* lanes = dyn_cast<FixedVectorType>(t);
            values.push_back(lanes && t != v->getType()
                                 ? reshaped(code, v, k * lanes->getNumElements(), lanes->getNumElements())
                                 : v);
        }
    }
};

// The vector of type `wanted` out of the pieces from `next` on.
Value* whole_of(IRBuilder<>& code, Type* wanted, ArrayRef<Value*> results, unsigned& next) {
    unsigned count;
    Type* const t = register_type(wanted, count);
    Value* v = results[next++];
    if (t == wanted) return v;
    SmallVector<Value*, 4> parts{v};
    for (unsigned k = 1; k < count; k++)
        parts.push_back(results[next++]);
    while (parts.size() > 1) {
        SmallVector<Value*, 4> joined;
        const unsigned n = cast<FixedVectorType>(parts[0]->getType())->getNumElements();
        SmallVector<int, 16> order;
        for (unsigned k = 0; k < 2 * n; k++)
            order.push_back(k);
        for (size_t k = 0; k < parts.size(); k += 2)
            joined.push_back(code.CreateShuffleVector(parts[k], parts[k + 1], order));
        parts = joined;
    }
    return reshaped(code, parts[0], 0, cast<FixedVectorType>(wanted)->getNumElements());
}

bool in_vector_registers(Type* t) { return t->isVectorTy() || t->isFloatTy() || t->isDoubleTy(); }

} // namespace

bool settle_registers(Function& f, const step_options& options) {
    const bool wider = has_wider_registers(f);
    if (!wider && !options.exact_clobbers) return false;
    // A function that holds values in 512-bit registers keeps to the plain convention, which saves those: upper
    // halves of registers 8 to 15 survive the ordinary path alone.
    const bool exact =
        options.exact_clobbers && (!wider || f.getFnAttribute("prefer-vector-width").getValueAsString() == "256");
    bool changed = false;
    LLVMContext& c = f.getContext();
    for (Instruction& i : make_early_inc_range(instructions(f))) {
        auto* call = dyn_cast<CallInst>(&i);
        const call_id id = call ? find_call(*call) : call_id{};
        if (!id.of || id.which != part::whole) continue;
        const kernel_row& row = *id.of.row;
        if (plan_of(row, id.of.width).memory_form) continue;
        Type* const result = call->getType();
        SmallVector<Type*, 2> wholes;
        if (auto* pair = dyn_cast<StructType>(result)) wholes.append(pair->element_begin(), pair->element_end());
        else wholes.push_back(result);
        if (!all_of(wholes, in_vector_registers)) continue;

        IRBuilder<> code(call);
        pieces in;
        bool vectors = true, large = false;
        Value* out = nullptr;
        for (Value* a : call->args()) {
            if (a->getType()->isPointerTy()) out = a;
            else if (!in_vector_registers(a->getType())) vectors = false;
            else large |= bits_of(a->getType()) > 256;
        }
        for (Type* t : wholes)
            large |= bits_of(t) > 256;
        if (!vectors || (!exact && !large)) continue;
        for (Value* a : call->args())
            if (a != out) in.add(code, a);
        SmallVector<Type*, 8> results;
        for (Type* t : wholes) {
            unsigned count;
            Type* const one = register_type(t, count);
            results.append(count, one);
        }

        Value* y;
        if (exact) {
            // Registers 8 to 15 and, without an out-pointer, rdi and rsi stay whole; so all that a call changes is
            // named. The call needs an aligned stack and overwrites what is below it.
            std::string constraints;
            auto next = [&](const std::string& s) { constraints += (constraints.empty() ? "" : ",") + s; };
            auto name = [&](Type* t, size_t k) {
                return (bits_of(t) > 128 ? "{ymm" : "{xmm") + std::to_string(k) + "}";
            };
            const size_t results_in_vectors = results.size();
            for (size_t k = 0; k < results_in_vectors; k++)
                next("=" + name(results[k], k));
            if (out) {
                next("={rdi}");
                results.push_back(pointer_type(c));
            }
            for (size_t k = 0; k < in.types.size(); k++)
                next(name(in.types[k], k));
            if (out) {
                next("{rdi}");
                in.types.push_back(out->getType());
                in.values.push_back(out);
            }
            for (size_t k = results_in_vectors; k < 8; k++)
                next("~{ymm" + std::to_string(k) + "}");
            for (auto r : {"rax", "rcx", "rdx", "r8", "r9", "r10", "r11", "dirflag", "fpsr", "flags"})
                next("~{" + std::string(r) + "}");
            if (out) next("~{memory}");
            Type* const type = results.size() == 1 ? results[0] : StructType::get(c, results);
            auto* code_of = InlineAsm::get(FunctionType::get(type, in.types, false),
                                           "call " + call->getCalledFunction()->getName().str() + "@PLT", constraints,
                                           /*hasSideEffects=*/out != nullptr, /*isAlignStack=*/true);
            CallInst* made = code.CreateCall(code_of, in.values);
            made->setDoesNotThrow();
            if (!out) made->setDoesNotAccessMemory();
            y = made;
            f.addFnAttr(Attribute::NoRedZone);
        } else {
            if (out) {
                in.types.push_back(out->getType());
                in.values.push_back(out);
            }
            Type* const type = results.size() == 1 ? results[0] : StructType::get(c, results);
            CallInst* made =
                code.CreateCall(FunctionType::get(type, in.types, false), call->getCalledFunction(), in.values);
            made->setDoesNotThrow();
            y = made;
        }

        SmallVector<Value*, 8> values;
        for (unsigned k = 0; k < results.size(); k++)
            values.push_back(results.size() == 1 ? y : code.CreateExtractValue(y, k));
        unsigned at = 0;
        if (wholes.size() == 1) y = whole_of(code, result, values, at);
        else {
            y = PoisonValue::get(result);
            for (unsigned r = 0; r < wholes.size(); r++)
                y = code.CreateInsertValue(y, whole_of(code, wholes[r], values, at), r);
        }
        call->replaceAllUsesWith(y);
        call->eraseFromParent();
        changed = true;
    }
    return changed;
}

void tell_calls(Function& f, OptimizationRemarkEmitter& remarks) {
    DominatorTree tree(f);
    LoopInfo loops(tree);
    for (Instruction& i : instructions(f)) {
        auto* call = dyn_cast<CallInst>(&i);
        const call_id id = call ? find_call(*call) : call_id{};
        if (!id.of || id.which != part::whole) continue;
        const std::string name = std::string(id.of.row->name) + id.of.row->suffix();
        if (id.of.width > 1) {
            remarks.emit([&] {
                return OptimizationRemark("orvane", "Widened", call)
                       << name << " for " << ore::NV("Width", id.of.width)
                       << " lanes: " << ore::NV("Export", call->getCalledFunction()->getName());
            });
            continue;
        }
        const Loop* loop = loops.getLoopFor(call->getParent());
        const char* why = "it is in no loop";
        if (loop) {
            bool remainder = false;
            for (const Loop* l = loop; l; l = l->getParentLoop())
                remainder |= findOptionMDForLoop(l, "llvm.loop.isvectorized") != nullptr;
            if (remainder) continue; // the last work-items of a loop that did become wide
            why = loop->isInnermost()
                      ? "the loop vectorizer left its loop alone (-Rpass-analysis=loop-vectorize says why)"
                      : "its loop holds other loops and runs over no work-items";
        }
        remarks.emit(
            [&] { return OptimizationRemarkMissed("orvane", "Scalar", call) << name << " stays scalar: " << why; });
    }
}

bool over_work_items(const Loop& loop) {
    return loop.getLoopID() && findOptionMDForLoop(&loop, "llvm.loop.parallel_accesses");
}

} // namespace orvane::ir
