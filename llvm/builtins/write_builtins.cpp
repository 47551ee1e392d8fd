// Writes the OpenCL C built-ins that are exports of the library as LLVM bitcode: definitions by mangled name, each of
// which calls its export.
//
//     write-builtins prototypes [--relaxed] OUT.cl             OpenCL C: an empty definition of every built-in
//     write-builtins definitions [--relaxed] IN.bc MORE.bc OUT.bc
//
// Between the two runs clang compiles OUT.cl to IN.bc for some target, and with that settles each built-in's mangled
// name and how the target passes its vectors; the second run puts a body into each, which takes the arguments out of
// that form, calls the export, and puts the result back. MORE.bc holds what is no export and is linked in. With
// --relaxed the rm tier takes the place of the default one, where a pair has it.
#include "tools/whole_file.h"
#include "llvm/core/exports_ir.h"

#include <llvm/Bitcode/BitcodeWriter.h>
#include <llvm/IR/IRBuilder.h>
#include <llvm/IR/InstIterator.h>
#include <llvm/IR/Intrinsics.h>
#include <llvm/IR/LLVMContext.h>
#include <llvm/IR/Module.h>
#include <llvm/IR/Verifier.h>
#include <llvm/IRReader/IRReader.h>
#include <llvm/Linker/Linker.h>
#include <llvm/Support/SourceMgr.h>
#include <llvm/Support/raw_ostream.h>

#include <iostream>
#include <map>

using namespace llvm;
using orvane::kernel_row;
using orvane::lane_type;
using orvane::signature_class;

namespace {

[[noreturn]] void fail(const std::string& why) {
    std::cerr << "write-builtins: " << why << '\n';
    exit(1);
}

// ---- Which built-in is which export

struct builtin {
    const kernel_row* row;
    int width;
    std::string name;
    int out_space = -1; // place in address_spaces of the out-pointer
};
constexpr const char* address_spaces[] = {"__global", "__local", "__private", "__generic"};

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
    const std::string default_mode = orvane::is_floating(row.out) ? "_rte" : "_rtz";
    if (s.ends_with(default_mode)) return {s, s.substr(0, s.size() - 4)};
    return {s};
}

std::vector<builtin> all_builtins(bool relaxed) {
    std::vector<builtin> all;
    const auto& rows = orvane::library_rows();
    for (const auto& row : rows) {
        if (row.is_relaxed() && !relaxed) continue;
        if (row.tier == "default" && relaxed && orvane::find_row(rows, row.name, "rm")) continue;
        for (int w : orvane::widths)
            for (const auto& name : names_of(row, w))
                if (row.has_out())
                    for (int space = 0; space < 4; space++)
                        all.push_back({&row, w, name, space});
                else all.push_back({&row, w, name});
    }
    return all;
}

std::string opencl_type(lane_type t, int width) {
    return std::string(orvane::opencl_type(t)) + (width == 1 ? "" : std::to_string(width));
}

void write_prototypes(const std::vector<builtin>& all, raw_ostream& out) {
    out << "#pragma OPENCL EXTENSION cl_khr_fp64 : enable\n";
    out << "typedef unsigned uint;\ntypedef unsigned long ulong;\n";
    for (auto t : {lane_type::f32, lane_type::f64, lane_type::i32, lane_type::u32, lane_type::i64, lane_type::u64})
        for (int w : {2, 3, 4, 8, 16})
            out << "typedef " << opencl_type(t, 1) << ' ' << opencl_type(t, w) << " __attribute__((ext_vector_type("
                << w << ")));\n";
    for (const builtin& b : all) {
        const std::string result = opencl_type(b.row->result(0), b.width);
        out << result << " __attribute__((overloadable)) " << b.name << '(';
        for (int j = 0; j < b.row->arguments(); j++)
            out << (j ? ", " : "") << opencl_type(b.row->argument(j), b.width) << ' ' << "xyz"[j];
        if (b.out_space >= 0)
            out << ", " << address_spaces[b.out_space] << ' ' << opencl_type(b.row->extra, b.width) << "* out";
        out << ") { return (" << result << ")0; }\n";
    }
}

// ---- Bodies

class definitions {
public:
    explicit definitions(Module& m) : m(m), c(m.getContext()) {}

    void define(Function& f, const builtin& b) {
        row = b.row;
        width = b.width;
        f.deleteBody();
        f.setAttributes(f.getAttributes().removeFnAttributes(c));
        f.setLinkage(GlobalValue::LinkOnceODRLinkage);
        f.addFnAttr(Attribute::AlwaysInline);
        f.setDoesNotThrow();
        f.addFnAttr(Attribute::WillReturn);
        IRBuilder<> code(BasicBlock::Create(c, "", &f));

        unsigned next = f.hasStructRetAttr() ? 1 : 0;
        std::vector<Value*> x;
        for (int j = 0; j < row->arguments(); j++)
            x.push_back(natural(code, f, next++, vector_of(row->argument(j))));
        Value* second = nullptr;
        Value* result = body(code, x, second);
        if (second) code.CreateAlignedStore(second, f.getArg(next), Align(orvane::size_of(row->extra)));
        give_back(code, f, result);
        if (b.out_space < 0 && !f.hasStructRetAttr() && !any_indirect(f)) f.setDoesNotAccessMemory();
    }

private:
    Module& m;
    LLVMContext& c;
    const kernel_row* row = nullptr;
    int width = 0;

    Type* vector_of(lane_type t) { return orvane::ir::vector_of(c, t, width); }
    static bool any_indirect(Function& f) {
        for (auto& a : f.args())
            if (a.hasByValAttr() || a.getType()->isPointerTy()) return true;
        return false;
    }

    // An argument as the target passes it, made the vector that it stands for: by itself, as the bits of another type
    // (two floats in a double), as a vector with a spare lane, or in memory.
    Value* natural(IRBuilder<>& code, Function& f, unsigned at, Type* wanted) {
        Value* v = f.getArg(at);
        if (v->getType() == wanted) return v;
        if (v->getType()->isPointerTy()) {
            const MaybeAlign aligned = f.getParamAlign(at);
            return code.CreateAlignedLoad(wanted, v, aligned ? *aligned : Align(orvane::size_of(row->in)));
        }
        return reshaped(code, v, wanted, f);
    }
    Value* reshaped(IRBuilder<>& code, Value* v, Type* wanted, Function& f) {
        Type* have = v->getType();
        if (have == wanted) return v;
        if (have->getPrimitiveSizeInBits() == wanted->getPrimitiveSizeInBits()) return code.CreateBitCast(v, wanted);
        auto* hv = dyn_cast<FixedVectorType>(have);
        auto* wv = dyn_cast<FixedVectorType>(wanted);
        if (!hv || !wv || hv->getElementType() != wv->getElementType())
            fail(f.getName().str() + ": this target's way to pass a vector is not known here");
        SmallVector<int, 16> lanes;
        for (unsigned k = 0; k < wv->getNumElements(); k++)
            lanes.push_back(k < hv->getNumElements() ? int(k) : -1);
        return code.CreateShuffleVector(v, lanes);
    }
    void give_back(IRBuilder<>& code, Function& f, Value* v) {
        if (f.hasStructRetAttr()) {
            const MaybeAlign aligned = f.getParamAlign(0);
            code.CreateAlignedStore(v, f.getArg(0), aligned ? *aligned : Align(8));
            code.CreateRetVoid();
        } else code.CreateRet(reshaped(code, v, f.getReturnType(), f));
    }

    Value* body(IRBuilder<>& code, ArrayRef<Value*> x, Value*& second) {
        if (Value* v = as_instructions(code, x)) return v;
        const auto results = orvane::ir::call_export(code, *row, width, x);
        if (results.size() == 2) second = results[1];
        return results[0];
    }

    Value* as_instructions(IRBuilder<>& code, ArrayRef<Value*> x) {
        if (row->sclass == signature_class::conversion) {
            // Conversions that are exact or round to nearest are what the instruction does.
            const bool to_nearest = row->builtin.ends_with("_rte");
            const bool exact = orvane::size_of(row->in) == 4 && row->out == lane_type::f64;
            if (!orvane::is_floating(row->out) || !(to_nearest || exact)) return nullptr;
            Type* to = vector_of(row->out);
            if (row->in == lane_type::f64) return code.CreateFPTrunc(x[0], to);
            if (row->in == lane_type::i32) return code.CreateSIToFP(x[0], to);
            if (row->in == lane_type::u32) return code.CreateUIToFP(x[0], to);
            return nullptr;
        }
        const auto found = as_intrinsics.find(row->builtin);
        if (found != as_intrinsics.end()) return code.CreateIntrinsic(found->second, {x[0]->getType()}, x);
        if (row->builtin == "rsqrt") {
            Value* root = code.CreateIntrinsic(Intrinsic::sqrt, {x[0]->getType()}, x);
            return code.CreateFDiv(ConstantFP::get(x[0]->getType(), 1), root);
        }
        return nullptr;
    }
};

// Device code of any target, made code of the host: plain conventions, no attributes of a processor, all of it to be
// inlined or dropped.
void make_host_code(Module& m) {
    m.setTargetTriple("x86_64-unknown-linux-gnu");
    m.setDataLayout("e-m:e-p270:32:32-p271:32:32-p272:64:64-i64:64-f80:128-n8:16:32:64-S128");
    for (auto name : {"opencl.ocl.version", "opencl.spir.version", "opencl.enable.FP_CONTRACT", "llvm.ident",
                      "llvm.module.flags"})
        if (auto* n = m.getNamedMetadata(name)) n->eraseFromParent();
    for (Function& f : m) {
        f.setCallingConv(CallingConv::C);
        for (auto name :
             {"target-cpu", "target-features", "tune-cpu", "no-builtins", "frame-pointer",
              "stack-protector-buffer-size", "min-legal-vector-width", "no-trapping-math", "uniform-work-group-size"})
            f.removeFnAttr(name);
        f.removeFnAttr(Attribute::Convergent);
        if (f.isDeclaration()) continue;
        f.removeFnAttr(Attribute::OptimizeNone);
        f.removeFnAttr(Attribute::NoInline);
        f.addFnAttr(Attribute::AlwaysInline);
        f.setLinkage(GlobalValue::LinkOnceODRLinkage);
        f.setDSOLocal(false);
        for (Instruction& i : instructions(f))
            if (auto* call = dyn_cast<CallBase>(&i)) {
                call->setCallingConv(CallingConv::C);
                call->setAttributes(call->getAttributes().removeFnAttributes(m.getContext()));
            }
    }
}

std::unique_ptr<Module> read(const std::string& file, LLVMContext& c) {
    SMDiagnostic why;
    auto m = parseIRFile(file, why, c);
    if (!m) fail("cannot read " + file + ": " + why.getMessage().str());
    return m;
}

void write_definitions(const std::vector<builtin>& all, const std::string& prototypes, const std::string& more,
                       raw_ostream& out) {
    LLVMContext c;
    c.setOpaquePointers(true);
    auto m = read(prototypes, c);
    std::vector<Function*> functions;
    for (Function& f : *m)
        if (!f.isDeclaration()) functions.push_back(&f);
    if (functions.size() != all.size())
        fail(prototypes + " defines " + std::to_string(functions.size()) + " functions, not the " +
             std::to_string(all.size()) + " of the list");
    definitions d(*m);
    for (size_t i = 0; i < all.size(); i++) {
        if (!functions[i]->getName().contains(all[i].name))
            fail(functions[i]->getName().str() + " stands where " + all[i].name + " belongs");
        d.define(*functions[i], all[i]);
    }
    if (Linker::linkModules(*m, read(more, c))) fail("cannot link " + more);
    make_host_code(*m);
    // What the OpenCL C source leaves open must be an export or an intrinsic.
    for (Function& f : *m)
        if (f.isDeclaration() && !f.isIntrinsic() && !f.getName().startswith("__orvane_l9_"))
            fail(more + " needs " + f.getName().str() + ", which neither it nor the library has");
    std::string why;
    raw_string_ostream text(why);
    if (verifyModule(*m, &text)) fail(text.str());
    m->setModuleIdentifier("orvane-builtins");
    m->setSourceFileName("orvane-builtins");
    WriteBitcodeToFile(*m, out);
}

} // namespace

int main(int argc, char** argv) {
    std::vector<std::string> words(argv + 1, argv + argc);
    const bool relaxed = std::erase(words, "--relaxed");
    const bool prototypes = words.size() == 2 && words[0] == "prototypes";
    if (!prototypes && !(words.size() == 4 && words[0] == "definitions")) {
        std::cerr << "usage: write-builtins prototypes [--relaxed] OUT.cl\n"
                     "       write-builtins definitions [--relaxed] PROTOTYPES.bc MORE.bc OUT.bc\n";
        return 2;
    }
    std::string text;
    raw_string_ostream stream(text);
    const auto all = all_builtins(relaxed);
    if (prototypes) write_prototypes(all, stream);
    else write_definitions(all, words[1], words[2], stream);
    try {
        orvane::write_whole(words.back(), stream.str());
    } catch (const std::exception& e) {
        fail(e.what());
    }
}
