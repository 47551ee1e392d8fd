// The driver as programs meet it: which platform there is, whatever the loader reads in what order, and programs that
// compute the same with it and without.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/wait.h>

namespace fs = std::filesystem;

namespace {

const fs::path folder = fs::path(ORVANE_TEST_FOLDER) / "driver";
const std::string ours = ORVANE_BUILD "/vendors", programs = ORVANE_BUILD "/opencl-programs ";
const std::string plain = "ORVANE_POCL=0 ", logged = "ORVANE_LOG=1 ";

struct outcome {
    int status;
    std::string text; // of both streams
};
outcome run(const std::string& command, bool errors_too = true) {
    FILE* p = popen(("timeout 300 env " + command + (errors_too ? " 2>&1" : " 2>/dev/null")).c_str(), "r");
    std::string text;
    char part[4096];
    while (const size_t n = fread(part, 1, sizeof part, p))
        text.append(part, n);
    const int status = pclose(p);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status), text};
}
int count(const std::string& text, const std::string& part) {
    int n = 0;
    for (size_t at = 0; (at = text.find(part, at)) != text.npos; at += part.size())
        n++;
    return n;
}
void write(const fs::path& file, const std::string& text) {
    fs::create_directories(file.parent_path());
    std::ofstream(file) << text;
}

struct Driver : testing::Test {
    Driver() {
        fs::remove_all(folder);
        fs::create_directories(folder);
        setenv("POCL_CACHE_DIR", (folder / "cache").c_str(), 1);
        setenv("OCL_ICD_VENDORS", ours.c_str(), 1);
    }
};
const std::string own = ORVANE_BUILD "/liborvane_pocl.so\n", pocl = "libpocl.so.2\n";

// One line of numbers each; those of both within `bound` times the larger, and of one.
void expect_close(const std::string& a, const std::string& b, double bound) {
    std::istringstream x(a), y(b);
    int compared = 0;
    for (std::string line, other; std::getline(x, line);) {
        ASSERT_TRUE(std::getline(y, other));
        std::istringstream u(line), v(other);
        std::string p, q;
        u >> p, v >> q;
        ASSERT_EQ(p, q);
        while (u >> p) {
            ASSERT_TRUE(v >> q);
            char *end, *other_end;
            const double s = strtod(p.c_str(), &end), t = strtod(q.c_str(), &other_end);
            if (*end || *other_end) EXPECT_EQ(p, q);
            else EXPECT_LE(std::fabs(s - t), bound * std::max(1.0, std::fabs(s))) << line.substr(0, 20);
            compared++;
        }
    }
    EXPECT_GT(compared, 0);
}

} // namespace

TEST_F(Driver, IsOnePlatformInAnyOrderWithPoclsOwnFile) {
    write(folder / "first/a.icd", own);
    write(folder / "first/b.icd", pocl);
    write(folder / "last/a.icd", pocl);
    write(folder / "last/b.icd", own);
    // The loader takes files in the order in which the file system lists them, which hangs on names or on ages: these
    // folders differ in neither, so that one has ours first and one has it last.
    const std::string lists[] = {"OCL_ICD_VENDORS=" + ours, "OCL_ICD_VENDORS=" + (folder / "first").string(),
                                 "OCL_ICD_VENDORS=" + (folder / "last").string()};
    const std::string wanted = run(programs + "sub-buffers", false).text;
    for (const auto& list : lists) {
        const auto version = run(list + " " + programs + "version");
        EXPECT_EQ(version.status, 0) << list << '\n' << version.text;
        EXPECT_EQ(count(version.text, "platform "), 1) << list << '\n' << version.text;
        EXPECT_EQ(count(version.text, "Orvane"), 1) << list << '\n' << version.text;
        const auto log = run(logged + list + " " + programs + "sub-buffers");
        EXPECT_NE(log.text.find("__orvane_l9_expf8"), std::string::npos) << list << '\n' << log.text.substr(0, 1000);
        EXPECT_EQ(run(list + " " + programs + "sub-buffers", false).text, wanted) << list;
        const auto off = run(plain + list + " " + programs + "version");
        EXPECT_EQ(count(off.text, "platform "), 1) << list << '\n' << off.text;
        EXPECT_EQ(count(off.text, "Orvane"), 0) << list << '\n' << off.text;
    }
}

TEST_F(Driver, LeavesAnotherPoclAsItIs) {
    const std::string other = "LD_LIBRARY_PATH=" ORVANE_TEST_FOLDER "/other ";
    const auto quiet = run(other + programs + "version");
    EXPECT_EQ(quiet.status, 0);
    EXPECT_EQ(quiet.text, "platform OpenCL 3.0 PoCL 4.0  Linux, LLVM 16.0.6\n");
    const auto told = run(logged + other + programs + "version");
    EXPECT_EQ(count(told.text, "orvane: PoCL is left plain: it says \"OpenCL 3.0 PoCL 4.0"), 1) << told.text;
    EXPECT_EQ(count(told.text, "\n"), 2) << told.text;
}

// Under QEMU, where it is installed.
TEST_F(Driver, LeavesProcessorsWithoutAvx2AsTheyAre) {
    if (run("qemu-x86_64 --version").status) GTEST_SKIP() << "there is no qemu-x86_64";
    const auto told = run(logged + "qemu-x86_64 -cpu Nehalem " + programs + "version");
    EXPECT_EQ(told.status, 0) << told.text;
    EXPECT_EQ(count(told.text, "orvane: PoCL is left plain: this processor has no AVX2 or no FMA\n"), 1) << told.text;
    EXPECT_EQ(count(told.text, "platform "), 1) << told.text;
    EXPECT_EQ(count(told.text, "+ Orvane"), 0) << told.text;
}

TEST_F(Driver, ComputesWhatPlainPoclComputes) {
    for (const std::string name : {"images", "queues", "printf", "sub-buffers", "threads", "dimensions"}) {
        const auto with = run(programs + name, false), without = run(plain + programs + name, false);
        EXPECT_EQ(with.status, 0) << name;
        EXPECT_EQ(without.status, 0) << name;
        // A few units in the last place of float for each of the functions that make a value.
        expect_close(with.text, without.text, 64 * 0x1p-24);
        EXPECT_EQ(run(programs + name, false).text, with.text) << "from the cache: " << name;
    }
}

TEST_F(Driver, BinariesAreSavedAndLoaded) {
    const std::string file = (folder / "curve.bin").string(), plain_file = (folder / "plain.bin").string();
    const auto saved = run(programs + "save " + file, false);
    ASSERT_EQ(saved.status, 0);
    fs::remove_all(folder / "cache");
    const auto loaded = run(programs + "load " + file);
    EXPECT_EQ(loaded.status, 0) << loaded.text;
    EXPECT_EQ(loaded.text, saved.text);
    // Plain PoCL, which has no exports, refuses it, and does not end the process when a kernel starts.
    const auto refused = run(plain + programs + "load " + file);
    EXPECT_EQ(refused.status, 1) << refused.text;
    EXPECT_EQ(refused.text, "opencl-programs: clCreateProgramWithBinary\n");
    // What plain PoCL saved runs here, compiled anew where it holds no code for the size of the work-groups.
    const auto other = run(plain + programs + "save " + plain_file, false);
    expect_close(run(programs + "load " + plain_file, false).text, other.text, 64 * 0x1p-24);
}

// The folder that a user chose serves both, each with kernels of its own.
TEST_F(Driver, KeepsItsKernelsApart) {
    const auto with = run(programs + "sub-buffers", false).text;
    const auto without = run(plain + programs + "sub-buffers", false).text;
    EXPECT_NE(with, without);
    for (int round = 0; round < 2; round++) {
        EXPECT_EQ(run(programs + "sub-buffers", false).text, with);
        EXPECT_EQ(run(plain + programs + "sub-buffers", false).text, without);
    }
    int folders = 0;
    for (const auto& e : fs::directory_iterator(folder / "cache"))
        folders += e.path().filename().string().starts_with("orvane-" ORVANE_VERSION);
    EXPECT_EQ(folders, 1);
}

// Loops of their own, branches, small integers: all of these once stayed scalar.
TEST_F(Driver, WidensTheExamples) {
    const auto o = run(logged + ORVANE_BUILD "/orvane-cl-examples mandelbrot complex_gamma gamma_correction n_body");
    EXPECT_EQ(o.status, 0) << o.text;
    for (const char* line : {"mandelbrot: loop over work-items runs by lanes, 8", "mandelbrot: cospif for 8",
                             "complex_gamma: atan2f for 8", "gamma_correction: powf for 8",
                             "n_body: loop over work-items runs by lanes, 8"})
        EXPECT_NE(o.text.find(line), std::string::npos) << line << "\n" << o.text;
}

TEST_F(Driver, ServesClinfoAndClpeak) {
    for (const char* command : {"clinfo", "clpeak --global-bandwidth --kernel-latency"}) {
        const auto o = run(command);
        EXPECT_EQ(o.status, 0) << command << '\n' << o.text.substr(0, 2000);
    }
}
TEST_F(Driver, LongClpeak) { EXPECT_EQ(run("clpeak").status, 0); }
