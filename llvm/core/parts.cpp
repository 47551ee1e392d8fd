// Calls of exports as parts: split before the vectorizer, widened by it, joined after it.
#include "compat.h"
#include "steps.h"

#include <llvm/ADT/PostOrderIterator.h>
#include <llvm/Analysis/ValueTracking.h>
#include <llvm/IR/InstIterator.h>
#include <llvm/Support/KnownBits.h>
#include <llvm/Transforms/Utils/ModuleUtils.h>

#include <map>

using namespace llvm;

namespace orvane::ir {

namespace {

StringRef suffix_of(part p) {
    constexpr const char* names[] = {"", ".first", ".second", ".lanes"};
    return names[int(p)];
}

Type* result_of(LLVMContext& c, const kernel_row& row, int width, part p) {
    return vector_of(c, row.result(p == part::second), width);
}

template <class F> bool for_each_call(Function& f, F act) {
    bool changed = false;
    for (Instruction& i : make_early_inc_range(instructions(f)))
        if (auto* call = dyn_cast<CallInst>(&i))
            if (const call_id id = find_call(*call); id.of) changed |= act(*call, id);
    return changed;
}

} // namespace

call_id find_call(const CallInst& call) {
    const Function* f = call.getCalledFunction();
    if (!f || !starts_with(f->getName(), "__orvane_l9_")) return {};
    StringRef name = f->getName();
    for (part p : {part::first, part::second, part::lanes})
        if (ends_with(name, suffix_of(p))) return {find_export(name.drop_back(suffix_of(p).size())), p};
    return {find_export(name), part::whole};
}

Function* declare_part(Module& m, const kernel_row& row, int width, part p) {
    if (p == part::whole) return declare_export(m, row, width);
    const std::string name = plan_of(row, width).symbol + suffix_of(p).str();
    if (Function* f = m.getFunction(name)) return f;
    LLVMContext& c = m.getContext();
    SmallVector<Type*, 3> parameters;
    for (int j = 0; j < row.arguments(); j++)
        parameters.push_back(vector_of(c, row.argument(j), width));
    Function* f = Function::Create(FunctionType::get(result_of(c, row, width, p), parameters, false),
                                   GlobalValue::ExternalLinkage, name, m);
    f->setDoesNotThrow();
    f->setDoesNotAccessMemory();
    for (auto kind : {Attribute::WillReturn, Attribute::NoFree, Attribute::NoSync})
        f->addFnAttr(kind);
    return f;
}

// ---- Two results

bool results_to_parts(Function& f) {
    return for_each_call(f, [&](CallInst& call, const call_id& id) {
        const kernel_row& row = *id.of.row;
        const call_plan plan = plan_of(row, id.of.width);
        if (id.which != part::whole || !row.has_out() || plan.memory_form) return false;
        IRBuilder<> code(&call);
        SmallVector<Value*, 3> x(call.arg_begin(), call.arg_begin() + row.arguments());
        auto of = [&](part p) { return code.CreateCall(declare_part(*f.getParent(), row, id.of.width, p), x); };
        Value* first = of(part::first);
        code.CreateAlignedStore(of(part::second), call.getArgOperand(row.arguments()), Align(size_of(row.extra)));
        call.replaceAllUsesWith(first);
        call.eraseFromParent();
        return true;
    });
}

// ---- Integer division

namespace {

const kernel_row& row_of(StringRef name) { return *find_row(library_rows(), {name.data(), name.size()}, "default"); }

struct division_of {
    bool with_sign, remainder;
};
bool is_division(unsigned opcode, division_of& d) {
    switch (opcode) {
    case Instruction::SDiv:
        d = {true, false};
        return true;
    case Instruction::SRem:
        d = {true, true};
        return true;
    case Instruction::UDiv:
        d = {false, false};
        return true;
    case Instruction::URem:
        d = {false, true};
        return true;
    default:
        return false;
    }
}

// The division as an instruction that cannot trap, with the results of the library where it would: a zero divisor
// gives the least integer (unsigned: 0) and the dividend, -1 the wrapped negative and 0.
Value* guarded(IRBuilder<>& code, division_of d, Value* a, Value* b, const Instruction* at) {
    const DataLayout& layout = at->getModule()->getDataLayout();
    Type* const t = a->getType();
    const unsigned bits = t->getScalarSizeInBits();
    const bool may_be_zero = !isKnownNonZero(b, layout);
    const bool may_be_minus = d.with_sign && !computeKnownBits(b, layout).isNonNegative();
    Value *zero = nullptr, *minus = nullptr, *divisor = b;
    if (may_be_zero) {
        zero = code.CreateICmpEQ(b, Constant::getNullValue(t));
        divisor = code.CreateSelect(zero, ConstantInt::get(t, 1), divisor);
    }
    if (may_be_minus) {
        minus = code.CreateICmpEQ(b, Constant::getAllOnesValue(t));
        divisor = code.CreateSelect(minus, ConstantInt::get(t, 1), divisor);
    }
    const auto opcode = d.with_sign   ? d.remainder ? Instruction::SRem : Instruction::SDiv
                        : d.remainder ? Instruction::URem
                                      : Instruction::UDiv;
    Value* y = code.CreateBinOp(opcode, a, divisor);
    if (minus && !d.remainder) y = code.CreateSelect(minus, code.CreateNeg(a), y);
    if (zero) {
        Value* const least = ConstantInt::get(t, d.with_sign ? APInt::getSignedMinValue(bits) : APInt(bits, 0));
        y = code.CreateSelect(zero, d.remainder ? a : least, y);
    }
    return y;
}

// Whether a divisor is constant in every lane and safe for an instruction.
bool harmless_constant(Value* b, bool with_sign) {
    auto* c = dyn_cast<Constant>(b);
    if (!c) return false;
    auto harmless = [&](Constant* lane) {
        auto* k = dyn_cast_or_null<ConstantInt>(lane);
        return k && !k->isZero() && !(with_sign && k->isMinusOne());
    };
    auto* v = dyn_cast<FixedVectorType>(b->getType());
    if (!v) return harmless(c);
    for (unsigned k = 0; k < v->getNumElements(); k++)
        if (!harmless(c->getAggregateElement(k))) return false;
    return true;
}

} // namespace

bool divisions_to_calls(Function& f) {
    bool changed = false;
    for (Instruction& i : make_early_inc_range(instructions(f))) {
        division_of d;
        if (!is_division(i.getOpcode(), d)) continue;
        Value *a = i.getOperand(0), *b = i.getOperand(1);
        if (harmless_constant(b, d.with_sign)) continue;
        Type* const t = i.getType();
        auto* vector = dyn_cast<FixedVectorType>(t);
        const int width = vector ? vector->getNumElements() : 1;
        const unsigned bits = t->getScalarSizeInBits();
        const bool a_width = is_contained(widths, width);
        IRBuilder<> code(&i);
        Value* y;
        if (bits > 32 || !a_width) y = guarded(code, d, a, b, &i);
        else {
            Type* const lanes = vector_of(f.getContext(), lane_type::i32, width);
            auto widened = [&](Value* v) {
                return d.with_sign ? code.CreateSExt(v, lanes) : code.CreateZExt(v, lanes);
            };
            y = code.CreateCall(declare_part(*f.getParent(), row_of(d.with_sign ? "idivrem" : "udivrem"), width,
                                             d.remainder ? part::second : part::first),
                                {widened(a), widened(b)});
            y = code.CreateTrunc(y, t);
        }
        i.replaceAllUsesWith(y);
        y->takeName(&i);
        i.eraseFromParent();
        changed = true;
    }
    return changed;
}

// ---- Wide forms

bool declare_wide_calls(Function& f) {
    SmallVector<GlobalValue*, 32> wide;
    Module& m = *f.getParent();
    for_each_call(f, [&](CallInst& call, const call_id& id) {
        if (id.of.width != 1 || (id.which == part::whole && id.of.row->has_out())) return false;
        Function& scalar = *call.getCalledFunction();
        const kernel_row& row = *id.of.row;
        std::string variants;
        for (int w : {2, 4, 8, 16}) {
            part p = id.which;
            if (p == part::whole && plan_of(row, w).memory_form) p = part::lanes;
            Function* v = declare_part(m, row, w, p);
            wide.push_back(v);
            variants += (variants.empty() ? "_ZGV_LLVM_N" : ",_ZGV_LLVM_N") + std::to_string(w) +
                        std::string(row.arguments(), 'v') + "_" + scalar.getName().str() + "(" + v->getName().str() +
                        ")";
        }
        scalar.addFnAttr("vector-function-abi-variant", variants);
        call.addFnAttr(Attribute::get(f.getContext(), "vector-function-abi-variant", variants));
        return true;
    });
    if (wide.empty()) return false;
    appendToCompilerUsed(m, wide);
    return true;
}

bool drop_unused_declarations(Module& m) {
    remove_from_used(m, [](Constant* c) {
        auto* f = dyn_cast<Function>(c->stripPointerCasts());
        return f && f->isDeclaration() && starts_with(f->getName(), "__orvane_l9_");
    });
    bool changed = false;
    for (Function& f : make_early_inc_range(m))
        if (f.isDeclaration() && f.use_empty() && starts_with(f.getName(), "__orvane_l9_")) {
            f.eraseFromParent();
            changed = true;
        }
    return changed;
}

// ---- Back to calls

namespace {

// Lanes from..from + count of a vector.
Value* some_lanes(IRBuilder<>& code, Value* v, int from, int count) {
    SmallVector<int, 16> lanes;
    for (int k = 0; k < count; k++)
        lanes.push_back(from + k);
    return code.CreateShuffleVector(v, lanes);
}
Value* concatenated(IRBuilder<>& code, Value* low, Value* high) {
    SmallVector<int, 16> lanes;
    const int n = 2 * cast<FixedVectorType>(low->getType())->getNumElements();
    for (int k = 0; k < n; k++)
        lanes.push_back(k);
    return code.CreateShuffleVector(low, high, lanes);
}

// The results of an export at a width, by two calls of half of it where it takes its vectors in memory.
SmallVector<Value*, 2> results_of(IRBuilder<>& code, const kernel_row& row, int width, ArrayRef<Value*> x) {
    if (!plan_of(row, width).memory_form) return call_export(code, row, width, x);
    SmallVector<Value*, 3> low, high;
    for (Value* v : x) {
        low.push_back(some_lanes(code, v, 0, width / 2));
        high.push_back(some_lanes(code, v, width / 2, width / 2));
    }
    auto y = results_of(code, row, width / 2, low), y_high = results_of(code, row, width / 2, high);
    for (size_t r = 0; r < y.size(); r++)
        y[r] = concatenated(code, y[r], y_high[r]);
    return y;
}

// Whether the other result of the same call is used too.
bool other_part_too(const CallInst& call, const call_id& id) {
    for (const User* u : call.getArgOperand(0)->users()) {
        auto* other = dyn_cast<CallInst>(u);
        if (!other || other == &call || other->getFunction() != call.getFunction()) continue;
        const call_id its = find_call(*other);
        if (its.of.row == id.of.row && its.which != id.which &&
            std::equal(call.arg_begin(), call.arg_end(), other->arg_begin()))
            return true;
    }
    return false;
}

// The row that gives both results, in registers where there is one: sincos has a member of that form, of the same
// bits.
const kernel_row& best_row(const kernel_row& row) {
    if (row.builtin == "sincos" && row.has_out() && row.tier == "default")
        if (const auto* r = find_row(library_rows(), row.in == lane_type::f32 ? "sincosregf" : "sincosreg", row.tier))
            return *r;
    return row;
}

} // namespace

bool parts_to_calls(Function& f, OptimizationRemarkEmitter&) {
    // A call that serves both parts stands where the first of them does.
    DominatorTree tree(f);
    using key = std::pair<const kernel_row*, std::vector<Value*>>;
    std::map<key, std::vector<std::pair<Instruction*, SmallVector<Value*, 2>>>> made;
    SmallVector<CallInst*, 16> done;
    ReversePostOrderTraversal<Function*> order(&f);
    for (BasicBlock* block : order)
        for (Instruction& i : make_early_inc_range(*block)) {
            auto* call = dyn_cast<CallInst>(&i);
            const call_id id = call ? find_call(*call) : call_id{};
            if (!id.of || id.which == part::whole) continue;
            IRBuilder<> code(call);
            const kernel_row& row = *id.of.row;
            const key k{&row, {call->arg_begin(), call->arg_end()}};
            Value* y = nullptr;
            if (row.sclass == signature_class::integer_pair) {
                const bool with_sign = row.out == lane_type::i32, remainder = id.which == part::second;
                Value *a = call->getArgOperand(0), *b = call->getArgOperand(1);
                if (id.of.width == 1 || harmless_constant(b, with_sign))
                    y = guarded(code, {with_sign, remainder}, a, b, call);
                else if (!other_part_too(*call, id))
                    y = results_of(code,
                                   row_of(with_sign   ? remainder ? "irem" : "idiv"
                                          : remainder ? "urem"
                                                      : "udiv"),
                                   id.of.width, k.second)[0];
            }
            if (!y && id.which == part::lanes) y = results_of(code, row, id.of.width, k.second)[0];
            if (!y) {
                for (auto& [at, results] : made[k])
                    if (tree.dominates(at, call)) y = results[id.which == part::second];
                if (!y) {
                    const auto results = results_of(code, best_row(row), id.of.width, k.second);
                    made[k].push_back({cast<Instruction>(results[0]), results});
                    y = results[id.which == part::second];
                }
            }
            call->replaceAllUsesWith(y);
            done.push_back(call);
        }
    for (CallInst* call : done)
        call->eraseFromParent();
    return !done.empty();
}

} // namespace orvane::ir
