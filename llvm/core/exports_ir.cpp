#include "exports_ir.h"

#include "compat.h"

#include <llvm/ADT/StringMap.h>

using namespace llvm;

namespace orvane::ir {

export_id find_export(StringRef symbol) {
    static const StringMap<export_id> all = [] {
        StringMap<export_id> m;
        for (const auto& row : library_rows())
            for (int w : widths)
                m[plan_of(row, w).symbol] = {&row, w};
        return m;
    }();
    const auto found = all.find(symbol);
    return found == all.end() ? export_id{} : found->second;
}

Type* lane_type_of(LLVMContext& c, lane_type t) {
    switch (t) {
    case lane_type::f32:
        return Type::getFloatTy(c);
    case lane_type::f64:
        return Type::getDoubleTy(c);
    case lane_type::i32:
    case lane_type::u32:
        return Type::getInt32Ty(c);
    default:
        return Type::getInt64Ty(c);
    }
}

Type* vector_of(LLVMContext& c, lane_type t, int width) {
    Type* lane = lane_type_of(c, t);
    return width == 1 ? lane : FixedVectorType::get(lane, width);
}

std::string variants_of(const kernel_row& row) {
    std::string all;
    if (row.has_out() || row.results() == 2) return all;
    const std::string scalar = plan_of(row, 1).symbol;
    for (int w : {2, 4, 8, 16}) {
        const call_plan wide = plan_of(row, w);
        if (wide.memory_form) continue;
        all += (all.empty() ? "_ZGV_LLVM_N" : ",_ZGV_LLVM_N") + std::to_string(w) +
               std::string(row.arguments(), 'v') + "_" + scalar + "(" + wide.symbol + ")";
    }
    return all;
}

namespace {

void mark_ordinary(Function& f) {
    f.setDoesNotThrow();
    for (auto kind : {Attribute::WillReturn, Attribute::NoFree, Attribute::NoSync})
        f.addFnAttr(kind);
}

// A pair of integers comes back packed at width 1.
bool packed(const kernel_row& row, int width) { return row.sclass == signature_class::integer_pair && width == 1; }

Type* result_type(LLVMContext& c, const kernel_row& row, int width) {
    if (packed(row, width)) return Type::getInt64Ty(c);
    Type* first = vector_of(c, row.result(0), width);
    return row.results() == 1 ? first : StructType::get(c, {first, vector_of(c, row.result(1), width)});
}

Value* in_memory(IRBuilder<>& code, Type* type) {
    BasicBlock& entry = code.GetInsertBlock()->getParent()->getEntryBlock();
    return IRBuilder<>(&entry, entry.begin()).CreateAlloca(type);
}

} // namespace

Function* declare_export(Module& m, const kernel_row& row, int width) {
    const call_plan plan = plan_of(row, width);
    if (Function* f = m.getFunction(plan.symbol)) return f;
    LLVMContext& c = m.getContext();
    Type* const pointer = pointer_type(c);
    Type* const result = result_type(c, row, width);
    SmallVector<Type*, 5> parameters;
    if (plan.memory_form) parameters.push_back(pointer);
    for (int j = 0; j < row.arguments(); j++)
        parameters.push_back(plan.memory_form ? pointer : vector_of(c, row.argument(j), width));
    if (row.has_out()) parameters.push_back(pointer);
    Function* f =
        Function::Create(FunctionType::get(plan.memory_form ? Type::getVoidTy(c) : result, parameters, false),
                         GlobalValue::ExternalLinkage, plan.symbol, m);
    mark_ordinary(*f);
    if (plan.memory_form || row.has_out()) f->setOnlyAccessesArgMemory();
    else f->setDoesNotAccessMemory();
    if (plan.memory_form) {
        f->addParamAttr(0, Attribute::getWithStructRetType(c, result));
        f->addParamAttr(0, Attribute::getWithAlignment(c, Align(8)));
        for (int j = 0; j < row.arguments(); j++) {
            f->addParamAttr(j + 1, Attribute::getWithByValType(c, vector_of(c, row.argument(j), width)));
            f->addParamAttr(j + 1, Attribute::getWithAlignment(c, Align(8)));
        }
    }
    if (row.has_out())
        for (auto kind : {Attribute::NoCapture, Attribute::WriteOnly})
            f->addParamAttr(parameters.size() - 1, kind);
    if (width == 1)
        if (const std::string v = variants_of(row); !v.empty()) f->addFnAttr("vector-function-abi-variant", v);
    return f;
}

SmallVector<Value*, 2> call_export(IRBuilder<>& code, const kernel_row& row, int width, ArrayRef<Value*> arguments) {
    LLVMContext& c = code.getContext();
    Function* f = declare_export(*code.GetInsertBlock()->getModule(), row, width);
    const call_plan plan = plan_of(row, width);
    Type* const result = result_type(c, row, width);
    SmallVector<Value*, 5> a;
    if (plan.memory_form) {
        a.push_back(in_memory(code, result));
        for (Value* v : arguments) {
            a.push_back(in_memory(code, v->getType()));
            code.CreateStore(v, a.back());
        }
    } else a.append(arguments.begin(), arguments.end());
    Value* out = nullptr;
    if (row.has_out()) // with room for the spare lane
        a.push_back(out = in_memory(code, ArrayType::get(lane_type_of(c, row.extra), stored_lanes(width))));
    CallInst* call = code.CreateCall(f, a);
    call->setAttributes(f->getAttributes().removeFnAttributes(c));
    Value* y = plan.memory_form ? static_cast<Value*>(code.CreateLoad(result, a[0])) : call;

    if (packed(row, width)) {
        Type* const lane = code.getInt32Ty();
        return {code.CreateTrunc(y, lane), code.CreateTrunc(code.CreateLShr(y, 32), lane)};
    }
    if (row.results() == 2) return {code.CreateExtractValue(y, 0), code.CreateExtractValue(y, 1)};
    if (!out) return {y};
    return {y, code.CreateAlignedLoad(vector_of(c, row.extra, width), out, Align(size_of(row.extra)))};
}

} // namespace orvane::ir
