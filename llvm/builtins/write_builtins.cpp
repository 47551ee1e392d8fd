// Writes the OpenCL C built-ins that are exports of the library as LLVM bitcode: definitions by mangled name, each of
// which calls its export.
//
//     write-builtins prototypes [--relaxed] OUT.cl             OpenCL C: an empty definition of every built-in
//     write-builtins definitions [--relaxed] [--calls] IN.bc MORE.bc OUT.bc
//
// Between the two runs clang compiles OUT.cl to IN.bc for some target, and with that settles each built-in's mangled
// name and how the target passes its vectors; the second run puts a body into each, which takes the arguments out of
// that form, calls the export, and puts the result back. MORE.bc holds what is no export and is linked in. With
// --relaxed the rm tier takes the place of the default one, where a pair has it. With --calls no built-in is left to
// the compiler: what is measured against instructions.
#include "tools/whole_file.h"
#include "llvm/builtins/definitions.h"

#include <llvm/Bitcode/BitcodeWriter.h>
#include <llvm/IR/InstIterator.h>
#include <llvm/IR/LLVMContext.h>
#include <llvm/IR/Module.h>
#include <llvm/IR/Verifier.h>
#include <llvm/IRReader/IRReader.h>
#include <llvm/Linker/Linker.h>
#include <llvm/Support/SourceMgr.h>
#include <llvm/Support/raw_ostream.h>

#include <iostream>

using namespace llvm;
using orvane::lane_type;
using orvane::ir::builtin;

namespace {

[[noreturn]] void fail(const std::string& why) {
    std::cerr << "write-builtins: " << why << '\n';
    exit(1);
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
            out << ", " << orvane::ir::address_spaces[b.out_space] << ' ' << opencl_type(b.row->extra, b.width)
                << "* out";
        out << ") { return (" << result << ")0; }\n";
    }
}

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
                       bool calls, raw_ostream& out) {
    LLVMContext c;
    c.setOpaquePointers(true);
    auto m = read(prototypes, c);
    std::vector<Function*> functions;
    for (Function& f : *m)
        if (!f.isDeclaration()) functions.push_back(&f);
    if (functions.size() != all.size())
        fail(prototypes + " defines " + std::to_string(functions.size()) + " functions, not the " +
             std::to_string(all.size()) + " of the list");

    for (size_t i = 0; i < all.size(); i++) {
        if (!functions[i]->getName().contains(all[i].name))
            fail(functions[i]->getName().str() + " stands where " + all[i].name + " belongs");
        try {
            orvane::ir::define_builtin(*functions[i], all[i], calls);
        } catch (const std::exception& e) {
            fail(e.what());
        }
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
    const bool relaxed = std::erase(words, "--relaxed"), calls = std::erase(words, "--calls");
    const bool prototypes = words.size() == 2 && words[0] == "prototypes";
    if (!prototypes && !(words.size() == 4 && words[0] == "definitions")) {
        std::cerr << "usage: write-builtins prototypes [--relaxed] OUT.cl\n"
                     "       write-builtins definitions [--relaxed] [--calls] PROTOTYPES.bc MORE.bc OUT.bc\n";
        return 2;
    }
    std::string text;
    raw_string_ostream stream(text);
    const auto all = orvane::ir::all_builtins(relaxed);
    if (prototypes) write_prototypes(all, stream);
    else write_definitions(all, words[1], words[2], calls, stream);
    try {
        orvane::write_whole(words.back(), stream.str());
    } catch (const std::exception& e) {
        fail(e.what());
    }
}
