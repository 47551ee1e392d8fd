// Vectors of up to four lanes in loops over work-items, taken apart: a lane of a work-item becomes a lane of a group
// of them, so that a kernel on float4 fills registers of any width.
#include "compat.h"
#include "steps.h"

#include <llvm/ADT/SmallPtrSet.h>
#include <llvm/Analysis/VectorUtils.h>
#include <llvm/IR/InstIterator.h>
#include <llvm/Transforms/Utils/Local.h>

using namespace llvm;

namespace orvane::ir {

namespace {

int lanes_of(Type* t) {
    auto* v = dyn_cast<FixedVectorType>(t);
    return v ? v->getNumElements() : 1;
}

// Replaces a call on vectors by calls on their lanes.
bool take_apart(CallInst& call, const call_id& id) {
    const kernel_row& row = *id.of.row;
    if (id.of.width == 1 || (id.which == part::whole && (row.has_out() || row.results() == 2))) return false;
    if (id.which == part::whole && plan_of(row, id.of.width).memory_form) return false;
    IRBuilder<> code(&call);
    Function* one = declare_part(*call.getModule(), row, 1, id.which == part::lanes ? part::whole : id.which);
    Value* y = PoisonValue::get(call.getType());
    for (int k = 0; k < id.of.width; k++) {
        SmallVector<Value*, 3> x;
        for (Value* a : call.args())
            x.push_back(code.CreateExtractElement(a, k));
        y = code.CreateInsertElement(y, code.CreateCall(one, x), k);
    }
    call.replaceAllUsesWith(y);
    call.eraseFromParent();
    return true;
}

} // namespace

bool vectors_to_scalars(Function& f) {
    DominatorTree tree(f);
    LoopInfo loops(tree);
    bool small = false;
    SmallVector<CallInst*, 16> calls;
    SmallPtrSet<CallInst*, 16> met; // nested loops over work-items have their calls in common
    for (Loop* top : loops)
        for (Loop* loop : top->getLoopsInPreorder()) {
            if (!over_work_items(*loop)) continue;
            int most = 1;
            for (BasicBlock* b : loop->blocks())
                for (Instruction& i : *b) {
                    most = std::max(most, lanes_of(i.getType()));
                    for (Value* v : i.operand_values())
                        most = std::max(most, lanes_of(v->getType()));
                }
            if (most == 1 || most > 4) continue;
            small = true;
            for (BasicBlock* b : loop->blocks())
                for (Instruction& i : *b)
                    if (auto* call = dyn_cast<CallInst>(&i))
                        if (met.insert(call).second) calls.push_back(call);
        }
    for (CallInst* call : calls)
        if (const call_id id = find_call(*call); id.of) take_apart(*call, id);
    return small;
}

// A vector of small integers that is read or written as one number: its lanes by shifts, which widen.
bool packed_lanes_to_scalars(Function& f) {
    SmallVector<Instruction*, 16> done;
    for (Instruction& i : instructions(f)) {
        IRBuilder<> code(&i);
        if (auto* lane = dyn_cast<ExtractElementInst>(&i)) {
            auto* cast = dyn_cast<BitCastInst>(lane->getVectorOperand());
            auto* index = dyn_cast<ConstantInt>(lane->getIndexOperand());
            if (!cast || !index || !cast->getSrcTy()->isIntegerTy() || !lane->getType()->isIntegerTy()) continue;
            Value* shifted =
                code.CreateLShr(cast->getOperand(0), index->getZExtValue() * lane->getType()->getIntegerBitWidth());
            lane->replaceAllUsesWith(code.CreateTrunc(shifted, lane->getType()));
            done.push_back(lane);
        } else if (auto* cast = dyn_cast<BitCastInst>(&i)) {
            auto* from = dyn_cast<FixedVectorType>(cast->getSrcTy());
            if (!from || !from->getElementType()->isIntegerTy() || !cast->getType()->isIntegerTy()) continue;
            SmallVector<Value*, 4> lanes;
            for (unsigned k = 0; k < from->getNumElements(); k++)
                lanes.push_back(findScalarElement(cast->getOperand(0), k));
            if (is_contained(lanes, nullptr)) continue;
            Value* packed = Constant::getNullValue(cast->getType());
            for (unsigned k = 0; k < lanes.size(); k++)
                packed = code.CreateOr(packed, code.CreateShl(code.CreateZExt(lanes[k], cast->getType()),
                                                              k * from->getScalarSizeInBits()));
            cast->replaceAllUsesWith(packed);
            done.push_back(cast);
        }
    }
    for (Instruction* i : reverse(done))
        RecursivelyDeleteTriviallyDeadInstructions(i);
    return !done.empty();
}

bool has_switches(Function& f) {
    DominatorTree tree(f);
    LoopInfo loops(tree);
    for (BasicBlock& b : f)
        if (isa<SwitchInst>(b.getTerminator()))
            for (const Loop* l = loops.getLoopFor(&b); l; l = l->getParentLoop())
                if (over_work_items(*l)) return true;
    return false;
}

} // namespace orvane::ir
