#include "definitions.h"

#include <llvm/IR/Intrinsics.h>

#include <map>

using namespace llvm;

namespace orvane::ir {

// ---- Which built-in is which export

namespace {

// What stays with the compiler: an instruction or a few, at every width, for which a call would cost more than the
// work (docs/jit.md has the figures). Only rows whose result is the same correctly rounded or exact value.
const std::map<std::string_view, Intrinsic::ID> as_intrinsics = {
    {"sqrt", Intrinsic::sqrt},           {"fabs", Intrinsic::fabs},   {"ceil", Intrinsic::ceil},
    {"floor", Intrinsic::floor},         {"trunc", Intrinsic::trunc}, {"rint", Intrinsic::rint},
    {"nearbyint", Intrinsic::nearbyint}, {"fma", Intrinsic::fma},     {"copysign", Intrinsic::copysign},
    {"round", Intrinsic::round},         {"fmin", Intrinsic::minnum}, {"fmax", Intrinsic::maxnum}};

// Names that a row serves in OpenCL C.
std::vector<std::string> names_of(const kernel_row& row, int width) {
    std::string s(row.builtin);
    if (s.empty() || s.starts_with("operator")) return {};
    if (const auto at = s.find('#'); at != s.npos) s.replace(at, 1, width == 1 ? "" : std::to_string(width));
    if (row.sclass != signature_class::conversion) return {s};
    // Without a mode a conversion to an integer truncates, and one to a floating type rounds to nearest.
    const std::string default_mode = is_floating(row.out) ? "_rte" : "_rtz";
    if (s.ends_with(default_mode)) return {s, s.substr(0, s.size() - 4)};
    return {s};
}

} // namespace

std::vector<builtin> all_builtins(bool relaxed) {
    std::vector<builtin> all;
    const auto& rows = library_rows();
    for (const auto& row : rows) {
        if (row.is_relaxed() && !relaxed) continue;
        if (row.tier == "default" && relaxed && find_row(rows, row.name, "rm")) continue;
        for (int w : widths)
            for (const auto& name : names_of(row, w))
                if (row.has_out())
                    for (int space = 0; space < 4; space++)
                        all.push_back({&row, w, name, space});
                else all.push_back({&row, w, name});
    }
    return all;
}

// ---- Bodies

namespace {

// Whether a value of one type is passed as one of the other: by itself, as the bits of another type (two floats in a
// double), as a vector with a spare lane, or in memory.
bool stands_for(Type* have, Type* wanted) {
    if (have == wanted || have->isPointerTy()) return true;
    if (have->getPrimitiveSizeInBits() == wanted->getPrimitiveSizeInBits()) return true;
    auto *h = dyn_cast<FixedVectorType>(have), *w = dyn_cast<FixedVectorType>(wanted);
    if (h && w) return h->getElementType() == w->getElementType();
    // Three bytes or halves of a word in the bits of four.
    return w && w->getNumElements() == 3 &&
           have->getPrimitiveSizeInBits() == 4 * w->getElementType()->getPrimitiveSizeInBits();
}

Value* reshaped(IRBuilder<>& code, Value* v, Type* wanted) {
    Type* have = v->getType();
    if (have == wanted) return v;
    if (have->getPrimitiveSizeInBits() == wanted->getPrimitiveSizeInBits()) return code.CreateBitCast(v, wanted);
    auto* from = cast<FixedVectorType>(have);
    if (!isa<FixedVectorType>(wanted)) { // four lanes as one number
        Value* four = reshaped(code, v, FixedVectorType::get(from->getElementType(), 4));
        return code.CreateBitCast(four, wanted);
    }
    SmallVector<int, 16> lanes;
    for (unsigned k = 0; k < cast<FixedVectorType>(wanted)->getNumElements(); k++)
        lanes.push_back(k < from->getNumElements() ? int(k) : -1);
    return code.CreateShuffleVector(v, lanes);
}

Value* natural(IRBuilder<>& code, Function& f, unsigned at, Type* wanted) {
    Value* v = f.getArg(at);
    if (!v->getType()->isPointerTy()) return reshaped(code, v, wanted);
    const MaybeAlign aligned = f.getParamAlign(at);
    return code.CreateAlignedLoad(wanted, v, aligned ? *aligned : Align(wanted->getScalarSizeInBits() / 8));
}

void give_back(IRBuilder<>& code, Function& f, Value* v) {
    if (f.hasStructRetAttr()) {
        const MaybeAlign aligned = f.getParamAlign(0);
        code.CreateAlignedStore(v, f.getArg(0), aligned ? *aligned : Align(8));
        code.CreateRetVoid();
    } else code.CreateRet(reshaped(code, v, f.getReturnType()));
}

} // namespace

void define_by(Function& f, ArrayRef<Type*> arguments, Type* result, bool has_out,
               function_ref<Value*(IRBuilder<>&, ArrayRef<Value*>)> body) {
    const unsigned first = f.hasStructRetAttr() ? 1 : 0, count = arguments.size();
    bool known = f.arg_size() == first + count + has_out;
    for (unsigned j = 0; known && j < count; j++)
        known = stands_for(f.getArg(first + j)->getType(), arguments[j]);
    if (known && !f.hasStructRetAttr())
        known = !f.getReturnType()->isPointerTy() && stands_for(f.getReturnType(), result);
    if (!known) throw std::runtime_error(f.getName().str() + ": this way to pass a vector is not known here");

    LLVMContext& c = f.getContext();
    const auto linkage = f.getLinkage();
    f.deleteBody();
    f.setLinkage(linkage);
    f.setAttributes(f.getAttributes().removeFnAttributes(c));
    f.addFnAttr(Attribute::AlwaysInline);
    f.setDoesNotThrow();
    f.addFnAttr(Attribute::WillReturn);
    IRBuilder<> code(BasicBlock::Create(c, "", &f));
    SmallVector<Value*, 4> x;
    for (unsigned j = 0; j < count; j++)
        x.push_back(natural(code, f, first + j, arguments[j]));
    if (has_out) x.push_back(f.getArg(first + count));
    give_back(code, f, body(code, x));
    if (none_of(f.args(), [](Argument& a) { return a.getType()->isPointerTy(); })) f.setDoesNotAccessMemory();
}

namespace {

Value* as_instructions(IRBuilder<>& code, const kernel_row& row, int width, ArrayRef<Value*> x) {
    if (row.sclass == signature_class::conversion) {
        // Conversions that are exact or round to nearest are what the instruction does.
        const bool to_nearest = row.builtin.ends_with("_rte");
        const bool exact = size_of(row.in) == 4 && row.out == lane_type::f64;
        if (!is_floating(row.out) || !(to_nearest || exact)) return nullptr;
        Type* to = vector_of(code.getContext(), row.out, width);
        if (row.in == lane_type::f64) return code.CreateFPTrunc(x[0], to);
        if (row.in == lane_type::i32) return code.CreateSIToFP(x[0], to);
        if (row.in == lane_type::u32) return code.CreateUIToFP(x[0], to);
        return nullptr;
    }
    const auto found = as_intrinsics.find(row.builtin);
    if (found != as_intrinsics.end()) return code.CreateIntrinsic(found->second, {x[0]->getType()}, x);
    if (row.builtin == "rsqrt") {
        Value* root = code.CreateIntrinsic(Intrinsic::sqrt, {x[0]->getType()}, x);
        return code.CreateFDiv(ConstantFP::get(x[0]->getType(), 1), root);
    }
    return nullptr;
}

} // namespace

void define_builtin(Function& f, const builtin& b, bool always_call) {
    const kernel_row& row = *b.row;
    const unsigned count = row.arguments();
    SmallVector<Type*, 3> arguments;
    for (unsigned j = 0; j < count; j++)
        arguments.push_back(vector_of(f.getContext(), row.argument(j), b.width));
    define_by(f, arguments, vector_of(f.getContext(), row.result(0), b.width), row.has_out(),
              [&](IRBuilder<>& code, ArrayRef<Value*> x) -> Value* {
                  const ArrayRef<Value*> values = x.take_front(count);
                  if (!always_call)
                      if (Value* v = as_instructions(code, row, b.width, values)) return v;
                  const auto results = call_export(code, row, b.width, values);
                  if (results.size() == 2) code.CreateAlignedStore(results[1], x[count], Align(size_of(row.extra)));
                  return results[0];
              });
}

} // namespace orvane::ir
