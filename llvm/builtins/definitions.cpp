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
    return h && w && h->getElementType() == w->getElementType();
}

class body_writer {
public:
    body_writer(Function& f, const builtin& b, bool always_call)
        : f(f), c(f.getContext()), row(*b.row), width(b.width), always_call(always_call) {
        bool known = true;
        unsigned next = f.hasStructRetAttr() ? 1 : 0;
        if (f.arg_size() != next + row.arguments() + row.has_out()) known = false;
        for (int j = 0; known && j < row.arguments(); j++)
            known = stands_for(f.getArg(next++)->getType(), vector_of(row.argument(j)));
        if (known && !f.hasStructRetAttr())
            known = !f.getReturnType()->isPointerTy() && stands_for(f.getReturnType(), vector_of(row.result(0)));
        if (!known) throw std::runtime_error(f.getName().str() + ": this way to pass a vector is not known here");
    }

    void write() {
        const auto linkage = f.getLinkage();
        f.deleteBody();
        f.setLinkage(linkage);
        f.setAttributes(f.getAttributes().removeFnAttributes(c));
        f.addFnAttr(Attribute::AlwaysInline);
        f.setDoesNotThrow();
        f.addFnAttr(Attribute::WillReturn);
        IRBuilder<> code(BasicBlock::Create(c, "", &f));

        unsigned next = f.hasStructRetAttr() ? 1 : 0;
        std::vector<Value*> x;
        for (int j = 0; j < row.arguments(); j++)
            x.push_back(natural(code, next++, vector_of(row.argument(j))));
        Value* second = nullptr;
        Value* result = body(code, x, second);
        if (second) code.CreateAlignedStore(second, f.getArg(next), Align(size_of(row.extra)));
        give_back(code, result);
        const bool in_memory = any_of(f.args(), [](Argument& a) { return a.getType()->isPointerTy(); });
        if (!in_memory) f.setDoesNotAccessMemory();
    }

private:
    Function& f;
    LLVMContext& c;
    const kernel_row& row;
    int width;
    const bool always_call;

    Type* vector_of(lane_type t) { return ir::vector_of(c, t, width); }

    Value* natural(IRBuilder<>& code, unsigned at, Type* wanted) {
        Value* v = f.getArg(at);
        if (!v->getType()->isPointerTy()) return reshaped(code, v, wanted);
        const MaybeAlign aligned = f.getParamAlign(at);
        return code.CreateAlignedLoad(wanted, v, aligned ? *aligned : Align(size_of(row.in)));
    }
    static Value* reshaped(IRBuilder<>& code, Value* v, Type* wanted) {
        Type* have = v->getType();
        if (have == wanted) return v;
        if (have->getPrimitiveSizeInBits() == wanted->getPrimitiveSizeInBits()) return code.CreateBitCast(v, wanted);
        const unsigned has = cast<FixedVectorType>(have)->getNumElements();
        SmallVector<int, 16> lanes;
        for (unsigned k = 0; k < cast<FixedVectorType>(wanted)->getNumElements(); k++)
            lanes.push_back(k < has ? int(k) : -1);
        return code.CreateShuffleVector(v, lanes);
    }
    void give_back(IRBuilder<>& code, Value* v) {
        if (f.hasStructRetAttr()) {
            const MaybeAlign aligned = f.getParamAlign(0);
            code.CreateAlignedStore(v, f.getArg(0), aligned ? *aligned : Align(8));
            code.CreateRetVoid();
        } else code.CreateRet(reshaped(code, v, f.getReturnType()));
    }

    Value* body(IRBuilder<>& code, ArrayRef<Value*> x, Value*& second) {
        if (!always_call)
            if (Value* v = as_instructions(code, x)) return v;
        const auto results = call_export(code, row, width, x);
        if (results.size() == 2) second = results[1];
        return results[0];
    }

    Value* as_instructions(IRBuilder<>& code, ArrayRef<Value*> x) {
        if (row.sclass == signature_class::conversion) {
            // Conversions that are exact or round to nearest are what the instruction does.
            const bool to_nearest = row.builtin.ends_with("_rte");
            const bool exact = size_of(row.in) == 4 && row.out == lane_type::f64;
            if (!is_floating(row.out) || !(to_nearest || exact)) return nullptr;
            Type* to = vector_of(row.out);
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
};

} // namespace

void define_builtin(Function& f, const builtin& b, bool always_call) { body_writer(f, b, always_call).write(); }

} // namespace orvane::ir
