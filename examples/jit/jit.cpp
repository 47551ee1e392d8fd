#include "jit.h"

#include <llvm/Analysis/ValueTracking.h>
#include <llvm/IR/InstIterator.h>
#include <llvm/IR/LegacyPassManager.h>
#include <llvm/IR/Verifier.h>
#include <llvm/IRReader/IRReader.h>
#include <llvm/Linker/Linker.h>
#include <llvm/Passes/PassBuilder.h>
#include <llvm/Support/FileSystem.h>
#include <llvm/Support/SourceMgr.h>
#include <llvm/Support/TargetSelect.h>
#include <llvm/Target/TargetMachine.h>
#include <llvm/Transforms/IPO/AlwaysInliner.h>
#include <llvm/Transforms/IPO/GlobalDCE.h>
#include <llvm/Transforms/Utils/Cloning.h>

#include <chrono>

using namespace llvm;

namespace jit {

namespace {

#if LLVM_VERSION_MAJOR >= 18
constexpr auto aggressive = CodeGenOptLevel::Aggressive;
constexpr auto assembly_file = CodeGenFileType::AssemblyFile;
#else
constexpr auto aggressive = CodeGenOpt::Aggressive;
constexpr auto assembly_file = CGFT_AssemblyFile;
#endif

double now() {
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

template <class T> T checked(Expected<T> value) {
    if (!value) throw std::runtime_error(toString(value.takeError()));
    return std::move(*value);
}

// Step 1: OpenCL C to IR. The device target passes vectors whole and leaves pointers their address spaces; the ABI of
// x86 would put a float16 into memory and a float2 into a double.
std::unique_ptr<Module> front_end(const std::string& file, const options& o, LLVMContext& c) {
    SmallString<128> out;
    if (sys::fs::createTemporaryFile("kernel", "bc", out)) throw std::runtime_error("no room for a temporary file");
    std::string more = o.relaxed ? "-cl-fast-relaxed-math " : "";
#if LLVM_VERSION_MAJOR == 15
    c.setOpaquePointers(true);
    more += "-Xclang -opaque-pointers ";
#endif
    const std::string command = ORVANE_CLANG " -target spir64-unknown-unknown -x cl -cl-std=CL2.0 -O1 -fno-builtin "
                                             "-Xclang -finclude-default-header -emit-llvm -c " +
                                more + "-o " + out.str().str() + " '" + file + "'";
    const int failed = system(command.c_str());
    SMDiagnostic why;
    auto m = failed ? nullptr : parseIRFile(out, why, c);
    sys::fs::remove(out);
    if (!m) throw std::runtime_error("clang could not compile " + file);
    return m;
}

// Step 2: the module becomes one of the host, and the built-ins that it calls come in from a file that is read as far
// as needed.
void link_builtins(Module& m, TargetMachine& target, const options& o) {
    m.setTargetTriple(target.getTargetTriple().str());
    m.setDataLayout(target.createDataLayout());
    SMDiagnostic why;
    auto builtins = getLazyIRFileModule(o.relaxed ? o.relaxed_builtins : o.builtins, why, m.getContext());
    if (!builtins) throw std::runtime_error("cannot read the built-ins: " + why.getMessage().str());
    builtins->setDataLayout(m.getDataLayout());
    builtins->setTargetTriple(m.getTargetTriple());
    if (Linker::linkModules(m, std::move(builtins), Linker::Flags::LinkOnlyNeeded))
        throw std::runtime_error("cannot link the built-ins");
    for (Function& f : m) {
        f.setCallingConv(CallingConv::C);
        for (auto attribute : {"no-builtins", "frame-pointer", "target-cpu", "target-features"})
            f.removeFnAttr(attribute);
        f.removeFnAttr(Attribute::Convergent);
        if (!f.isDeclaration()) {
            f.removeFnAttr(Attribute::NoInline);
            f.addFnAttr(Attribute::AlwaysInline);
            f.addFnAttr("target-cpu", target.getTargetCPU());
            f.addFnAttr("target-features", target.getTargetFeatureString());
            f.addFnAttr("prefer-vector-width", "256");
            f.addFnAttr("min-legal-vector-width", "0");
        }
        for (Instruction& i : instructions(f))
            if (auto* call = dyn_cast<CallBase>(&i)) {
                call->setCallingConv(CallingConv::C);
                call->removeFnAttr(Attribute::Convergent);
                call->removeFnAttr(Attribute::NoBuiltin);
                call->setAttributes(call->getAttributes().removeFnAttribute(m.getContext(), "no-builtins"));
            }
    }
    // Kernels and their helpers become one function each.
    LoopAnalysisManager loops;
    FunctionAnalysisManager functions;
    CGSCCAnalysisManager components;
    ModuleAnalysisManager analyses;
    PassBuilder builder(&target);
    builder.registerModuleAnalyses(analyses);
    builder.registerFunctionAnalyses(functions);
    builder.registerLoopAnalyses(loops);
    builder.registerCGSCCAnalyses(components);
    builder.crossRegisterProxies(loops, functions, components, analyses);
    AlwaysInlinerPass().run(m, analyses);
}

// Step 3: a function over a range of work-items around the kernel's body. Its iterations are independent, and the
// loop's metadata says so: every access to memory but those to a work-item's own arrays is in one group.
void add_range(Function& kernel, const options& o) {
    Module& m = *kernel.getParent();
    LLVMContext& c = m.getContext();
    Type *word = Type::getInt64Ty(c), *pointer = PointerType::get(c, 0);
    auto* range = Function::Create(FunctionType::get(Type::getVoidTy(c), {pointer, word, word}, false),
                                   GlobalValue::ExternalLinkage, kernel.getName() + ".range", m);
    for (const Attribute& a : kernel.getAttributes().getFnAttrs())
        if (a.isStringAttribute()) range->addFnAttr(a);
    range->removeFnAttr(Attribute::AlwaysInline);
    auto *entry = BasicBlock::Create(c, "entry", range), *loop = BasicBlock::Create(c, "work_item", range),
         *done = BasicBlock::Create(c, "done", range);
    IRBuilder<> code(entry);
    SmallVector<Value*, 8> arguments;
    for (Argument& a : kernel.args()) {
        Value* at = code.CreateLoad(pointer, code.CreateConstGEP1_64(pointer, range->getArg(0), a.getArgNo()));
        arguments.push_back(code.CreateLoad(a.getType(), at));
    }
    Value *begin = range->getArg(1), *end = range->getArg(2);
    code.CreateCondBr(code.CreateICmpULT(begin, end), loop, done);
    code.SetInsertPoint(loop);
    PHINode* id = code.CreatePHI(word, 2, "id");
    id->addIncoming(begin, entry);
    CallInst* body = code.CreateCall(&kernel, arguments);
    Value* next = code.CreateAdd(id, ConstantInt::get(word, 1), "", true, true);
    BranchInst* back = code.CreateCondBr(code.CreateICmpULT(next, end), loop, done);
    IRBuilder<>(done).CreateRetVoid();

    InlineFunctionInfo info;
    if (!InlineFunction(*body, info).isSuccess()) throw std::runtime_error("cannot inline " + kernel.getName().str());
    id->addIncoming(next, back->getParent());

    MDNode* group = MDNode::getDistinct(c, {});
    for (Instruction& i : make_early_inc_range(instructions(*range))) {
        auto* call = dyn_cast<CallInst>(&i);
        if (call && call->getCalledFunction() && call->getCalledFunction()->getName() == "_Z13get_global_idj") {
            auto* dimension = dyn_cast<ConstantInt>(call->getArgOperand(0));
            call->replaceAllUsesWith(dimension && !dimension->isZero() ? ConstantInt::get(word, 0)
                                                                       : static_cast<Value*>(id));
            call->eraseFromParent();
        } else if (const Value* p = getLoadStorePointerOperand(&i))
            if (!isa<AllocaInst>(getUnderlyingObject(p)) && i.getParent() != entry)
                i.setMetadata(LLVMContext::MD_access_group, group);
    }
    auto option = [&](StringRef name, Metadata* value) { return MDNode::get(c, {MDString::get(c, name), value}); };
    auto number = [&](unsigned n) { return ConstantAsMetadata::get(ConstantInt::get(Type::getInt32Ty(c), n)); };
    SmallVector<Metadata*, 5> properties{nullptr, option("llvm.loop.parallel_accesses", group)};
    if (o.width == 1)
        properties.push_back(option("llvm.loop.vectorize.enable", ConstantAsMetadata::get(ConstantInt::getFalse(c))));
    if (o.width > 1) {
        properties.push_back(option("llvm.loop.vectorize.width", number(o.width)));
        properties.push_back(option("llvm.loop.interleave.count", number(1)));
    }
    MDNode* self = MDNode::getDistinct(c, properties);
    self->replaceOperandWith(0, self);
    back->setMetadata(LLVMContext::MD_loop, self);
}

} // namespace

program::program(const std::string& file, const options& o) {
    static const bool once = [] {
        return !InitializeNativeTarget() && !InitializeNativeTargetAsmPrinter() && !InitializeNativeTargetAsmParser();
    }();
    if (!once) throw std::runtime_error("LLVM has no code generator for this machine");
    auto context = std::make_unique<LLVMContext>();
    const double start = now();
    auto m = front_end(file, o, *context);
    front_end_ms = now() - start;

    auto host = checked(orc::JITTargetMachineBuilder::detectHost());
    if (!o.processor.empty()) {
        host.setCPU(o.processor);
        host.getFeatures() = SubtargetFeatures(o.features);
    }
    host.setCodeGenOptLevel(aggressive);
    auto target = checked(host.createTargetMachine());
    std::vector<Function*> kernels;
    std::vector<std::string> kernel_names;
    for (Function& f : *m)
        if (f.getCallingConv() == CallingConv::SPIR_KERNEL && !f.isDeclaration()) {
            kernels.push_back(&f);
            kernel_names.push_back(f.getName().str());
        }
    link_builtins(*m, *target, o);
    for (Function* k : kernels)
        add_range(*k, o);

    // Step 4: only the ranges are left to be called, so that LLVM drops the rest; then -O3 with Orvane's passes.
    std::string open;
    for (Function& f : *m) {
        if (!f.isDeclaration() && !f.getName().str().ends_with(".range")) f.setLinkage(GlobalValue::InternalLinkage);
        if (f.isDeclaration() && !f.use_empty() && f.getName().str().starts_with("_Z") &&
            f.getName() != "_Z13get_global_idj")
            open += " " + f.getName().str();
    }
    if (!open.empty()) throw std::runtime_error("not defined for kernels here:" + open);
    if (o.optimizer) o.optimizer(*m, *target);
    else orvane::optimize(*m, target.get(), {o.width, o.exact_clobbers});
    raw_string_ostream text(ir);
    if (verifyModule(*m, &text)) throw std::runtime_error("invalid IR: " + text.str());
    m->print(text, nullptr);
    optimizer_ms = now() - start - front_end_ms;

    if (o.print_assembly) {
        SmallString<0> bytes;
        raw_svector_ostream stream(bytes);
        legacy::PassManager emit;
        target->addPassesToEmitFile(emit, stream, nullptr, assembly_file);
        emit.run(*m);
        assembly = bytes.str().str();
        return;
    }

    // Step 5: machine code. The symbols of the exports come from the library.
    machine = checked(orc::LLJITBuilder().setJITTargetMachineBuilder(host).create());
    auto& names = machine->getMainJITDylib();
    const char prefix = machine->getDataLayout().getGlobalPrefix();
    if (!o.library.empty())
        names.addGenerator(checked(orc::DynamicLibrarySearchGenerator::Load(o.library.c_str(), prefix)));
    names.addGenerator(checked(orc::DynamicLibrarySearchGenerator::GetForCurrentProcess(prefix)));
    if (auto e = machine->addIRModule(orc::ThreadSafeModule(std::move(m), std::move(context))))
        throw std::runtime_error(toString(std::move(e)));
    for (const std::string& name : kernel_names)
        kernel(name);
    code_ms = now() - start - front_end_ms - optimizer_ms;
}

range_function program::kernel(const std::string& name) const {
    return checked(machine->lookup(name + ".range")).toPtr<range_function>();
}

} // namespace jit
