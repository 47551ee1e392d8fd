#include "kernel_library.h"
#include "llvm/builtins/definitions.h"

#include <llvm/ADT/StringSet.h>
#include <llvm/IR/IRBuilder.h>
#include <llvm/IR/InstIterator.h>
#include <llvm/IR/Instructions.h>

using namespace llvm;

namespace orvane::pocl {

namespace {

constexpr const char* relaxed_suffix = ".relaxed";

// The name that clang gives a built-in on x86, by the rules of the C++ ABI: a vector type that came before is S_, the
// next S0_.
std::string mangled(const std::string& name, const ir::builtin& b) {
    std::string s = "_Z" + std::to_string(name.size()) + name;
    std::vector<lane_type> seen;
    auto add = [&](lane_type t) {
        constexpr std::string_view letters = "?fdijlm"; // in the order of lane_type
        const char letter = letters[int(t)];
        if (b.width == 1) {
            s += letter;
            return;
        }
        for (size_t k = 0; k < seen.size(); k++)
            if (seen[k] == t) {
                s += k ? "S" + std::to_string(k - 1) + "_" : "S_";
                return;
            }
        seen.push_back(t);
        s += "Dv" + std::to_string(b.width) + "_" + letter;
    };
    for (int j = 0; j < b.row->arguments(); j++)
        add(b.row->argument(j));
    if (b.out_space >= 0) {
        constexpr const char* spaces[] = {"PU8CLglobal", "PU7CLlocal", "PU9CLprivate", "PU9CLgeneric"};
        s += spaces[b.out_space];
        add(b.row->extra);
    }
    return s;
}

// PoCL's built-ins have names of its own, to which its headers lead; conversions also have the plain ones.
constexpr const char* prefixes[] = {"_cl_", ""};

// ---- Conversions from floating point to integers of 8 and 16 bits

// PoCL rounds in a dozen operations on bits, some of them branches and some on whole registers, which keep a loop
// over work-items scalar. These are an instruction each: round, compare with the ends of the type, which are exact in
// float, and convert by way of int. Saturated, a NaN gives 0.
struct narrow_conversion {
    const char *to, *mode; // "uchar", "_rte"
    unsigned bits;
    bool has_sign, saturates;
};

Value* converted(IRBuilder<>& code, Value* x, Type* to, const narrow_conversion& k) {
    Type* const from = x->getType();
    Value* y = x;
    const StringRef mode = k.mode;
    const auto rounds = mode == "_rte"   ? Intrinsic::roundeven
                        : mode == "_rtp" ? Intrinsic::ceil
                        : mode == "_rtn" ? Intrinsic::floor
                                         : Intrinsic::not_intrinsic; // the conversion itself truncates
    if (rounds != Intrinsic::not_intrinsic) y = code.CreateUnaryIntrinsic(rounds, y);
    if (k.saturates) {
        const int least = k.has_sign ? -(1 << (k.bits - 1)) : 0;
        Constant *low = ConstantFP::get(from, least), *high = ConstantFP::get(from, least + (1 << k.bits) - 1);
        y = code.CreateSelect(code.CreateFCmpOGT(y, low), y, low); // a NaN is the least
        y = code.CreateSelect(code.CreateFCmpOLT(y, high), y, high);
    }
    y = code.CreateFPToSI(y, from->getWithNewType(code.getInt32Ty()));
    if (k.saturates && k.has_sign)
        y = code.CreateSelect(code.CreateFCmpORD(x, x), y, Constant::getNullValue(y->getType()));
    return code.CreateTrunc(y, to);
}

unsigned define_narrow_conversions(Module& m, std::vector<std::string>& left) {
    LLVMContext& c = m.getContext();
    unsigned defined = 0;
    auto define = [&](const narrow_conversion& k, unsigned width, Type* from, char letter) {
        const std::string n = width == 1 ? "" : std::to_string(width);
        Type* const to = from->getWithNewType(Type::getIntNTy(c, k.bits));
        for (const char* prefix : prefixes) {
            const std::string name =
                std::string(prefix) + "convert_" + k.to + n + (k.saturates ? "_sat" : "") + k.mode;
            Function* f = m.getFunction("_Z" + std::to_string(name.size()) + name +
                                        (width == 1 ? "" : "Dv" + n + "_") + letter);
            if (!f || f->isDeclaration()) continue;
            try {
                ir::define_by(*f, {from}, to, false,
                              [&](IRBuilder<>& code, ArrayRef<Value*> x) { return converted(code, x[0], to, k); });
                defined++;
            } catch (const std::runtime_error& why) {
                left.push_back(why.what());
            }
        }
    };
    for (const char* mode : {"", "_rte", "_rtz", "_rtp", "_rtn"})
        for (const bool saturates : {false, true})
            for (const narrow_conversion k : {narrow_conversion{"char", mode, 8, true, saturates},
                                              {"uchar", mode, 8, false, saturates},
                                              {"short", mode, 16, true, saturates},
                                              {"ushort", mode, 16, false, saturates}})
                for (const int width : widths) {
                    define(k, width, ir::vector_of(c, lane_type::f32, width), 'f');
                    define(k, width, ir::vector_of(c, lane_type::f64, width), 'd');
                }
    return defined;
}

const StringSet<>& relaxed_names() {
    static const StringSet<> all = [] {
        StringSet<> s;
        for (const ir::builtin& b : ir::all_builtins(true))
            if (b.row->is_relaxed())
                for (const char* prefix : prefixes)
                    s.insert(mangled(prefix + b.name, b));
        return s;
    }();
    return all;
}

} // namespace

replaced replace_builtins(Module& m) {
    replaced result;
    auto define = [&](Function& f, const ir::builtin& b) {
        try {
            ir::define_builtin(f, b);
            result.built_ins++;
        } catch (const std::exception& why) {
            result.left.push_back(why.what());
        }
    };
    auto each = [&](bool relaxed, auto act) {
        for (const ir::builtin& b : ir::all_builtins(relaxed))
            for (const char* prefix : prefixes)
                if (Function* f = m.getFunction(mangled(prefix + b.name, b)); f && !f->isDeclaration()) act(*f, b);
    };
    each(true, [&](Function& f, const ir::builtin& b) {
        if (!b.row->is_relaxed()) return;
        Function* twin = Function::Create(f.getFunctionType(), f.getLinkage(), f.getName() + relaxed_suffix, m);
        twin->copyAttributesFrom(&f);
        define(*twin, b);
    });
    each(false, define);
    result.built_ins += define_narrow_conversions(m, result.left);
    return result;
}

void use_relaxed(Module& m) {
    auto compiled_so = [](const Function& f) {
        return f.getFnAttribute("unsafe-fp-math").getValueAsBool() &&
               f.getFnAttribute("no-nans-fp-math").getValueAsBool();
    };
    for (Function& f : m) {
        if (f.isDeclaration() || !compiled_so(f)) continue;
        for (Instruction& i : instructions(f)) {
            auto* call = dyn_cast<CallInst>(&i);
            Function* callee = call ? call->getCalledFunction() : nullptr;
            if (!callee || !callee->isDeclaration() || !relaxed_names().contains(callee->getName())) continue;
            const std::string name = (callee->getName() + relaxed_suffix).str();
            Function* twin = m.getFunction(name);
            if (!twin) {
                twin = Function::Create(callee->getFunctionType(), callee->getLinkage(), name, m);
                twin->copyAttributesFrom(callee);
            }
            call->setCalledFunction(twin);
        }
    }
}

} // namespace orvane::pocl
