// Kernels through the example's JIT, on each LLVM: every width gives the bits of width 1, whatever the number of
// work-items.
#include "examples/jit/jit.h"

#include <gtest/gtest.h>
#if LLVM_VERSION_MAJOR == 15
#include <llvm/Analysis/TargetTransformInfo.h>
#include <llvm/IR/LegacyPassManager.h>
#include <llvm/Transforms/IPO/PassManagerBuilder.h>
#endif

#include <cmath>
#include <cstring>
#include <dlfcn.h>
#include <fstream>
#include <map>
#include <random>
#include <regex>

extern "C" void optimize_from_c(LLVMModuleRef, LLVMTargetMachineRef, unsigned width); // c_api.c

namespace {

constexpr size_t most = 64;
const std::string kernels = ORVANE_LLVM_TESTS "/kernels.cl";

struct arrays {
    std::vector<float> a = std::vector<float>(most + 16), b = a, x = a;
    std::vector<int> k = std::vector<int>(most + 16), m = k, n = k;
    std::vector<double> d = std::vector<double>(most + 16), y = d;
    int count = 9;

    explicit arrays(unsigned seed) {
        std::mt19937 bits(seed);
        std::uniform_real_distribution<double> real(-2, 3);
        for (size_t i = 0; i < a.size(); i++) {
            a[i] = real(bits), b[i] = real(bits), d[i] = real(bits);
            k[i] = bits(), m[i] = int(bits() % 200) - 100;
        }
        // Divisors that an instruction would trap on.
        m[3] = 0, k[5] = INT32_MIN, m[5] = -1, m[11] = 0, k[12] = INT32_MIN, m[12] = -1;
        a[7] = NAN, d[2] = INFINITY;
    }
    void run(jit::range_function f, size_t begin, size_t end) {
        void* pointers[] = {a.data(), b.data(), k.data(), m.data(), d.data(), x.data(), n.data(), y.data()};
        std::vector<void*> arguments;
        for (void*& p : pointers)
            arguments.push_back(&p);
        arguments.push_back(&count);
        f(arguments.data(), begin, end);
    }
};

template <class T> void expect_same(const std::vector<T>& got, const std::vector<T>& want, const std::string& what) {
    for (size_t i = 0; i < got.size(); i++)
        ASSERT_EQ(memcmp(&got[i], &want[i], sizeof(T)), 0)
            << what << " element " << i << ": " << got[i] << ", with width 1 " << want[i];
}

std::vector<std::string> names_in(const std::string& file) {
    std::ifstream in(file);
    std::vector<std::string> names;
    const std::regex head(R"(^KERNEL\((\w+)\).*)");
    std::smatch found;
    for (std::string line; std::getline(in, line);)
        if (std::regex_match(line, found, head)) names.push_back(found[1]);
    return names;
}

// The IR of one kernel's range.
std::string function_in(const std::string& ir, const std::string& name) {
    const auto at = ir.find("@" + name + ".range(");
    return at == ir.npos ? "" : ir.substr(at, ir.find("\n}\n", at) - at);
}

const jit::program& scalar() {
    static const jit::program p(kernels, {.width = 1});
    return p;
}

void expect_bits_of_width_one(const jit::options& o, const std::string& label) {
    const jit::program wide(kernels, o);
    const auto names = names_in(kernels);
    ASSERT_GT(names.size(), 40u);
    for (const std::string& name : names)
        for (size_t items : {1, 7, 8, 9, 17, 64}) {
            arrays got{unsigned(items)}, want = got;
            got.run(wide.kernel(name), 0, items);
            want.run(scalar().kernel(name), 0, items);
            const std::string what = name + ", " + label + ", " + std::to_string(items) + " items:";
            expect_same(got.x, want.x, what);
            expect_same(got.n, want.n, what);
            expect_same(got.y, want.y, what);
            if (testing::Test::HasFatalFailure()) break;
        }
}

} // namespace

TEST(Jit, WidthOfLlvmsChoice) { expect_bits_of_width_one({}, "width 0"); }
TEST(Jit, Width4) { expect_bits_of_width_one({.width = 4}, "width 4"); }
TEST(Jit, Width8) { expect_bits_of_width_one({.width = 8}, "width 8"); }
TEST(Jit, Width16) { expect_bits_of_width_one({.width = 16}, "width 16"); }
TEST(Jit, ExactClobbers8) { expect_bits_of_width_one({.width = 8, .exact_clobbers = true}, "width 8, exact"); }
TEST(Jit, ExactClobbers16) { expect_bits_of_width_one({.width = 16, .exact_clobbers = true}, "width 16, exact"); }

// What each kernel must have become at width 8: the call, or the operation, that shows it.
void expect_wide_kernels(const jit::program& p) {
    const std::map<std::string, std::vector<std::string>> wide = {
        {"one_call", {"@__orvane_l9_expf8("}},
        {"early_return", {"@__orvane_l9_expf8("}},
        {"branches", {"@__orvane_l9_tanhf8(", "@__orvane_l9_logf8(", "@__orvane_l9_powf8(", "@__orvane_l9_idiv8("}},
        {"mixed_types", {"@__orvane_l9_exp8(", "@__orvane_l9_sinf8("}},
        {"wide_double", {"@__orvane_l9_pow8(", "@__orvane_l9_ldexp8("}},
        {"helpers", {"@__orvane_l9_coshf8("}},
        {"helper_with_loop", {"@__orvane_l9_coshf8("}},
        {"sincos_both", {"@__orvane_l9_sincosregf8(", "@__orvane_l9_sincosreg8("}},
        {"modf_both", {"@__orvane_l9_modff8("}},
        {"frexp_both", {"@__orvane_l9_frexpf8("}},
        {"fract_both", {"@__orvane_l9_fractf8("}},
        {"remquo_both", {"@__orvane_l9_remquof8(", "@__orvane_l9_remquo8("}},
        {"lgamma_both", {"@__orvane_l9_lgammarf8("}},
        {"divide_variables", {"@__orvane_l9_idiv"}},
        {"divide_unsigned", {"@__orvane_l9_udiv8("}},
        {"divide_short", {"@__orvane_l9_idiv8("}},
        {"horner", {"@llvm.fma.v8f32("}},
        {"n_body", {"@__orvane_l9_expf8(", "@llvm.sqrt.v8f32("}},
        {"matrix_product", {"@llvm.fmuladd.v8f32("}},
        {"along_an_axis", {"@__orvane_l9_expf8(", "@__orvane_l9_logf8("}},
        {"mandelbrot", {"@llvm.fmuladd.v8f32("}},
        {"newton", {"@__orvane_l9_expf8("}},
        {"trips_by_lane", {"@__orvane_l9_sinf8("}},
        {"loop_under_if", {"@__orvane_l9_cosf8("}},
        {"loop_after_return", {"@__orvane_l9_expf8("}},
        {"nested_loops", {"<8 x float>"}},
        {"two_exits", {"@llvm.sqrt.v8f32("}},
        {"private_array", {"@__orvane_l9_expf8("}},
        {"private_array_no_loop", {"@__orvane_l9_expf8("}},
        {"divide_in_loop", {"div8("}},
        {"float4_lanes", {"@__orvane_l9_expf8(", "@__orvane_l9_sincosregf8("}},
        {"float2_in_loop", {"@__orvane_l9_cosf8("}},
        {"float8_lanes", {"@__orvane_l9_expf8("}},
        {"switch_on_value", {"@__orvane_l9_expf8(", "@__orvane_l9_sinf8("}},
        {"conversions", {"@__orvane_l9_cvtfptoi32rtesatf8("}}};
    for (const auto& [name, calls] : wide) {
        const std::string ir = function_in(p.ir, name);
        for (const auto& call : calls)
            EXPECT_NE(ir.find(call), ir.npos) << name << " has no " << call;
        EXPECT_EQ(ir.find(".first("), ir.npos) << name;
        EXPECT_EQ(ir.find(".second("), ir.npos) << name;
    }
    // Two results are one call.
    const std::string both = function_in(p.ir, "modf_both");
    EXPECT_EQ(both.find("@__orvane_l9_modff8("), both.rfind("@__orvane_l9_modff8("));
}

TEST(Jit, KernelsBecomeWide) { expect_wide_kernels(jit::program(kernels, {.width = 8})); }

TEST(Jit, ForCallersInC) {
    auto from_c = [](unsigned width) {
        return [width](llvm::Module& m, llvm::TargetMachine& target) {
            optimize_from_c(llvm::wrap(&m), reinterpret_cast<LLVMTargetMachineRef>(&target), width);
        };
    };
    expect_wide_kernels(jit::program(kernels, {.width = 8, .optimizer = from_c(8)}));
    // Without options of the pass's own the width is that of the loop's metadata.
    const std::string ir = jit::program(kernels, {.width = 16, .optimizer = from_c(0)}).ir;
    EXPECT_NE(function_in(ir, "one_call").find("@__orvane_l9_expf16("), ir.npos);
}

#if LLVM_VERSION_MAJOR == 15
// The pipelines of runtimes that still have the legacy pass manager; the plugin puts itself into them.
void optimize_by_legacy_passes(llvm::Module& m, llvm::TargetMachine& target) {
    llvm::PassManagerBuilder builder;
    builder.OptLevel = 3;
    builder.LoopVectorize = builder.SLPVectorize = true;
    llvm::legacy::PassManager passes;
    passes.add(llvm::createTargetTransformInfoWrapperPass(target.getTargetIRAnalysis()));
    builder.populateModulePassManager(passes);
    passes.run(m);
}
TEST(Jit, LegacyPassManager) {
    ASSERT_NE(dlopen(ORVANE_PLUGIN, RTLD_NOW), nullptr) << dlerror();
    for (const char* width : {"8", "16"}) {
        setenv("ORVANE_WIDTH", width, 1);
        const jit::options o{.width = unsigned(atoi(width)), .optimizer = optimize_by_legacy_passes};
        if (o.width == 8) expect_wide_kernels(jit::program(kernels, o));
        expect_bits_of_width_one(o, std::string("legacy, width ") + width);
    }
    unsetenv("ORVANE_WIDTH");
}
#endif

TEST(Jit, RelaxedMathTakesItsTier) {
    const std::string file = ORVANE_TEST_FOLDER "/relaxed.cl";
    std::ofstream(file)
        << "kernel void k(global float* x) { size_t i = get_global_id(0); x[i] = sin(x[i]) + native_exp(x[i]); }";
    const jit::program relaxed(file, {.width = 8, .relaxed = true}), plain(file, {.width = 8});
    EXPECT_NE(relaxed.ir.find("@__orvane_l9_sinf8_rm("), std::string::npos);
    EXPECT_NE(plain.ir.find("@__orvane_l9_sinf8("), std::string::npos);
    EXPECT_NE(plain.ir.find("@__orvane_l9_expf8_native("), std::string::npos);
}

TEST(Jit, UnknownBuiltinsAreNamed) {
    const std::string file = ORVANE_TEST_FOLDER "/unknown.cl";
    std::ofstream(file) << "kernel void k(global int* x) { barrier(CLK_GLOBAL_MEM_FENCE); atomic_add(x, 1); }";
    try {
        jit::program p(file, {});
        FAIL();
    } catch (const std::exception& e) {
        EXPECT_NE(std::string(e.what()).find("_Z7barrierj"), std::string::npos) << e.what();
    }
}

// An export of the test's own in place of the library's: it notes how the stack lies and overwrites what is below it.
extern "C" uint64_t stack_residue;
uint64_t stack_residue = ~0ull;
asm(R"(
.globl __orvane_l9_logf8
__orvane_l9_logf8:
    mov %rsp, %rax
    and $15, %rax
    mov stack_residue@GOTPCREL(%rip), %rcx
    mov %rax, (%rcx)
    movq $-1, -8(%rsp)
    movq $-1, -16(%rsp)
    movq $-1, -24(%rsp)
    movq $-1, -32(%rsp)
    movq $-1, -64(%rsp)
    movq $-1, -96(%rsp)
    movq $-1, -128(%rsp)
    vaddps %ymm0, %ymm0, %ymm0
    vpcmpeqd %ymm1, %ymm1, %ymm1
    vmovdqa %ymm1, %ymm2
    vmovdqa %ymm1, %ymm3
    vmovdqa %ymm1, %ymm4
    vmovdqa %ymm1, %ymm5
    vmovdqa %ymm1, %ymm6
    vmovdqa %ymm1, %ymm7
    mov $-1, %rdx
    mov $-1, %r8
    mov $-1, %r9
    mov $-1, %r10
    mov $-1, %r11
    ret
.globl __orvane_l9_logf1
__orvane_l9_logf1:
    vaddss %xmm0, %xmm0, %xmm0
    ret
)");

// With exact clobbers the kernel has no call that LLVM knows of: it is a leaf, whose stack must be aligned at the
// call all the same, and whose values below the stack pointer no one protects.
TEST(Jit, ExactCallsInALeafKeepTheStack) {
    const std::string file = ORVANE_TEST_FOLDER "/leaf.cl";
    std::ofstream(file)
        << "kernel void k(global const float* a, global float* x, float p, float q) { size_t i = get_global_id(0);"
           " float u = a[i]; float v = log(u) * p + q; float w = log(v) - u; float t = log(w * p + v);"
           " x[i] = t + u * 3 + v * 5 + w * 7 + (float)(int)(i * 3) + p * t; }";
    // Frames of several sizes: one of them would lie wrong by chance.
    for (int frame = 0; frame < 4; frame++) {
        const std::string more[] = {"", "if (p > 9) q = a[i * 7];", "p += a[i + 8] * a[i + 16];",
                                    "if (p > 9) { x[i + 1] = a[i * 3]; x[i * 5] = p; }"};
        const std::string small = ORVANE_TEST_FOLDER "/frame" + std::to_string(frame) + ".cl";
        std::ofstream(small) << "kernel void k(global const float* a, global float* x, float p, float q) { size_t i "
                                "= get_global_id(0);"
                                " float u = a[i]; " +
                                    more[frame] + " x[i] = log(u) + p * q; }";
        std::vector<float> in(512, 1), out(512);
        float *pin = in.data(), *pout = out.data(), p = 1, q = 1;
        void* arguments[] = {&pin, &pout, &p, &q};
        const jit::program exact(small, {.width = 8, .exact_clobbers = true, .library = ""});
        stack_residue = ~0ull;
        exact.kernel("k")(arguments, 0, 64);
        EXPECT_EQ(stack_residue, 8u) << "frame " << frame;
    }

    std::vector<float> a(64), x(64);
    for (size_t i = 0; i < a.size(); i++)
        a[i] = float(i) * 0.25f + 1;
    float p = 1.5f, q = 0.25f;
    float *pa = a.data(), *px = x.data();
    void* arguments[] = {&pa, &px, &p, &q};
    const jit::program exact(file, {.width = 8, .exact_clobbers = true, .library = ""});
    EXPECT_EQ(exact.ir.find("call <8 x float> @__orvane_l9_logf8"), std::string::npos);
    EXPECT_NE(exact.ir.find("call __orvane_l9_logf8@PLT"), std::string::npos);
    exact.kernel("k")(arguments, 0, a.size());
    EXPECT_EQ(stack_residue, 8u);
    for (size_t i = 0; i < a.size(); i++) {
        const float u = a[i], v = std::fma(2 * u, p, q), w = 2 * v - u, t = 2 * std::fma(w, p, v);
        EXPECT_NEAR(x[i], t + u * 3 + v * 5 + w * 7 + float(i * 3) + p * t, 1e-3) << i;
    }
}

// On a processor with 512-bit registers as well, calls take the 256-bit ones.
TEST(Jit, CallsOnWiderProcessorsKeepTheConvention) {
    const std::string file = ORVANE_TEST_FOLDER "/wider.cl";
    std::ofstream(file) << "kernel void k(global float* x) { size_t i = get_global_id(0); x[i] = exp(x[i]); }";
    const jit::program p(file, {.width = 16, .processor = "skylake-avx512", .print_assembly = true});
    const auto call = p.assembly.find("__orvane_l9_expf16");
    ASSERT_NE(call, std::string::npos);
    EXPECT_NE(p.assembly.rfind("%ymm1", call), std::string::npos) << p.assembly;
    EXPECT_EQ(p.assembly.find("%zmm"), std::string::npos) << p.assembly;
}
