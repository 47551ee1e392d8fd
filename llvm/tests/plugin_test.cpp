// The passes as compilers load them: clang and opt of every version, on C code that calls exports.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace {

const std::string folder = ORVANE_TEST_FOLDER, source = ORVANE_LLVM_TESTS "/loops.c";

std::string run(const std::string& command) {
    const std::string log = folder + "/plugin.log";
    EXPECT_EQ(system((command + " > " + log + " 2>&1").c_str()), 0) << command;
    std::ifstream in(log);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}
std::string plugin(int version) { return ORVANE_BUILD "/orvane-llvm-" + std::to_string(version) + ".so"; }
std::string clang(int version) { return "clang-" + std::to_string(version) + " -mavx2 -mfma -o - " + source + " "; }

void expect_wide(const std::string& text) {
    for (auto name : {"__orvane_l9_expf8", "__orvane_l9_pow4", "__orvane_l9_idiv8"})
        EXPECT_NE(text.find(name), text.npos) << name << " in\n" << text;
}

class Plugin : public testing::TestWithParam<int> {
protected:
    void SetUp() override {
        std::ifstream there(plugin(GetParam()));
        if (!there || system(("clang-" + std::to_string(GetParam()) + " --version > /dev/null 2>&1").c_str()))
            GTEST_SKIP() << "no LLVM " << GetParam() << " here";
    }
};

} // namespace

TEST_P(Plugin, ClangMakesLoopsWideAndTells) {
    const std::string text =
        run(clang(GetParam()) + "-O3 -S -fpass-plugin=" + plugin(GetParam()) + " -Rpass=orvane -Rpass-missed=orvane");
    expect_wide(text);
    EXPECT_NE(text.find("remark: expf for 8 lanes: __orvane_l9_expf8 [-Rpass=orvane]"), text.npos) << text;
    EXPECT_NE(text.find("remark: expf stays scalar: it is in no loop [-Rpass-missed=orvane]"), text.npos) << text;
    // A division that stays scalar is the instruction, its divisor guarded.
    const auto at = text.find("one_division:");
    ASSERT_NE(at, text.npos);
    EXPECT_NE(text.find("idivl", at), text.npos);
}

TEST_P(Plugin, OptMakesLoopsWide) {
    const std::string version = std::to_string(GetParam()), ir = folder + "/loops-" + version + ".ll";
    run("clang-" + version + " -mavx2 -mfma -O1 -S -emit-llvm -o " + ir + " " + source);
    expect_wide(
        run("opt-" + version + " -load-pass-plugin=" + plugin(GetParam()) + " -passes='default<O3>' -S " + ir));
}

// With 512-bit registers at hand a call still takes 256-bit ones.
TEST_P(Plugin, WideRegistersStayOutOfCalls) {
    const std::string options =
        "-O3 -march=skylake-avx512 -mprefer-vector-width=512 -fpass-plugin=" + plugin(GetParam());
    const std::string ir = run(clang(GetParam()) + options + " -S -emit-llvm"),
                      code = run(clang(GetParam()) + options + " -S");
    EXPECT_NE(ir.find("call { <8 x float>, <8 x float> } @__orvane_l9_expf16(<8 x float>"), ir.npos) << ir;
    const auto call = code.find("__orvane_l9_expf16");
    ASSERT_NE(call, code.npos);
    const auto loads = code.rfind("%ymm1", call), after = code.find("%ymm1", call);
    EXPECT_NE(loads, code.npos) << code;
    EXPECT_NE(after, code.npos) << code;
    // By the instruction in front of the call and the one behind it no argument or result is in zmm0.
    const auto line = code.rfind('\n', call);
    EXPECT_EQ(code.substr(code.rfind('\n', line - 1), line - code.rfind('\n', line - 1)).find(", %zmm0"), code.npos)
        << code;
}

INSTANTIATE_TEST_SUITE_P(Versions, Plugin, testing::Values(16, 19));

TEST(LegacyPlugin, OptOfLlvm15MakesLoopsWide) {
    const std::string bitcode = folder + "/loops-15.bc";
    run("clang-15 -O1 -mavx2 -mfma -emit-llvm -c -o " + bitcode + " " + source);
    expect_wide(run("opt-15 -enable-new-pm=0 -load=" + plugin(15) + " -O3 -S " + bitcode));
}
