// The programs under hostile use: outputs that are devices, FIFOs, links, closed, full or written by several at once;
// input that is no lanes; names that are nearly right. One line says what is wrong, and nothing is half written.
#include "shell.h"

using namespace orvane;
namespace fs = std::filesystem;

namespace {

using Tools = Shell;

TEST_F(Tools, WriteWholeFilesAndLeaveOthersAlone) {
    // A user's own .part, a link's target, a mode.
    EXPECT_EQ(shell("echo mine >out.part; echo old >target; chmod 640 target; ln -s target link\n"
                    "orvane-call expf1 0 -o out && orvane-call expf1 0 -o link"),
              0);
    EXPECT_EQ(text("out.part"), "mine\n");
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_EQ(text("target"), text("out"));
    EXPECT_NE(text("out").find("0x3F800000"), std::string::npos);
    EXPECT_EQ(int(fs::status(folder / "target").permissions()), 0640);
    // Devices and FIFOs are written as they are.
    EXPECT_EQ(
        shell("mkfifo pipe; cat pipe >read & orvane-call expf1 0 -o pipe; wait; test -p pipe\n"
              "ln -s /dev/null nothing; orvane-call expf1 0 -o nothing && test -c /dev/null && test -L nothing\n"
              "orvane-call expf1 0 -o /dev/stdout | cmp - out"),
        0);
    EXPECT_EQ(text("read"), text("out"));
    // Several writers to one name: one of them, whole.
    EXPECT_EQ(shell("seq 2000 >numbers\n"
                    "for i in 1 2 3 4; do orvane-call sinf8 -i numbers -o many & done; wait\n"
                    "orvane-call sinf8 -i numbers | cmp - many"),
              0);
    // Interrupted: nothing is left.
    const size_t before = files();
    shell("yes 1 | orvane-call expf8 -i - -o late & sleep 0.3; kill -INT $(pgrep -P $$ orvane-call); wait");
    shell(
        "trap - INT; (yes 1 | exec orvane-call expf8 -i - -o late) & sleep 0.3; pkill -TERM -P $! orvane-call; wait");
    EXPECT_EQ(files(), before);
    fails_with("orvane-call expf1 0 -o nosuch/out", "nosuch/out");
    fails_with("orvane-call expf1 0 -o .", "directory");
}

TEST_F(Tools, EndAtOnceWhereNothingCanBeWritten) {
    fails_with("yes 1 | orvane-call expf8 -i - >/dev/full", "No space");
    fails_with("yes 1 | orvane-call expf8 -i - -o /dev/full", "No space");
    fails_with("yes 3f800000 | orvane-call --raw expf8 >&-", "cannot write standard output");
    EXPECT_EQ(shell("yes 1 | orvane-call expf8 -i - 2>err | head -n 3 >out"), 0);
    EXPECT_EQ(text("err"), "orvane-call: cannot write standard output: Broken pipe\n");
    // No header without a row.
    fails_with("orvane-call expf1 -i - </dev/null >out", "no lanes");
    EXPECT_EQ(text("out"), "");
}

TEST_F(Tools, RefuseWhatIsNoLane) {
    fails_with("printf '1\\0 2\\n' | orvane-call expf2 -i -", "line 1 holds a NUL byte");
    fails_with("printf '3f800000\\n3f80\\0\\n' | orvane-call --raw expf1", "line 2 holds a NUL byte");
    fails_with("orvane-call udiv1 ' -1,2'", "no spaces");
    fails_with("orvane-call udiv1 '2, -1'", "no spaces");
    fails_with("orvane-call expf1 $(head -c 100000 /dev/zero | tr '\\0' x)", "100000 characters");
    fails_with("orvane-call $(head -c 100000 /dev/zero | tr '\\0' x) 1", "no export");
    fails_with("head -c 100000 /dev/zero | tr '\\0' x | orvane-call --raw expf1", "100000 characters");
}

TEST_F(Tools, SayWhatWouldBeRight) {
    fails_with("orvane-call sin8f 1", "sinf8");
    fails_with("orvane-call sin16f_half 1", "sinf16_half");
    fails_with("orvane-call expf 1", "width is missing; there are expf1");
    fails_with("orvane-call log10f_native 1", "log10f4_native");
    fails_with("echo 1 | orvane-call expf1 --raw --summary", "one of the two");
    fails_with("orvane-bench sinf8", "sinf --benchmark_filter=sinf/default/8");
    fails_with("write-exports nosuchdir", "'nosuchdir' is no folder");
    fails_with("write-tables nosuch", "write-tables: 'nosuch' is no folder");
    EXPECT_EQ(shell("echo 1 2 88 | orvane-call expf1 --summary >out"), 0);
    EXPECT_NE(text("out").find("ulp at "), std::string::npos) << text("out");
    EXPECT_EQ(shell("orvane-call --help | grep -q 'its bits (0x'"), 0);
    // A filter picks by the beginnings of names, and the peers with them.
    EXPECT_EQ(shell("orvane-bench --benchmark_list_tests --benchmark_filter=sinf/default/8 asinf sinf >out"), 0);
    EXPECT_EQ(text("out").find("asinf"), std::string::npos) << text("out");
    EXPECT_NE(text("out").find("sinf/default/8/ordinary"), std::string::npos);
    EXPECT_NE(text("out").find("sinf/libm/ordinary"), std::string::npos);
}

} // namespace
