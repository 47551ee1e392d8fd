#include "kernel_library.h"
#include "llvm/builtins/definitions.h"

#include <llvm/ADT/StringSet.h>
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
