// orvane-cl on the machine's OpenCL driver: what its arguments may be, what it refuses with one line, and that files
// are written whole or not at all.
#include "tests/shell.h"
#include "tools/npy.h"

using namespace orvane;
namespace fs = std::filesystem;

namespace {

constexpr const char* kernels = R"cl(
#include "shared.h"
#define SIZE_OF_VALUES int
typedef half halves;
typedef float real;
typedef real real4 __attribute__((ext_vector_type(4)));
typedef global double* doubles;
struct pair { int a, b; };
#ifndef FACTOR
#define FACTOR 1
#endif
kernel void scale(global const real* x, global real* y, SIZE_OF_VALUES n) { size_t i = get_global_id(0); y[i] = TWICE(x[i % n]) * FACTOR; }
kernel void mixed(global real4* v, double d, float3 f, local uchar2* l, global float3* t, doubles all, constant short* c) {
    size_t i = get_global_id(0);
    l[0] = (uchar2)(1, 2);
    v[i] += (real4)((float)d, f);
    t[i] = f * (float)(c[0] * (i + 1));
    all[i] = d;
}
kernel void values(global long* o, char c, uchar u, ulong l, int4 v, float f) { o[0] = c; o[1] = u; o[2] = l; o[3] = v.w; o[4] = as_int(f); }
kernel void sizes(global ulong* o) {
    size_t i = get_global_id(0) + get_global_size(0) * (get_global_id(1) + get_global_size(1) * get_global_id(2));
    o[i] = get_local_size(0) + 100 * get_local_size(1) + 10000 * get_local_size(2) + 1000000 * get_global_size(0);
}
kernel void eights(global int* o) { o[get_global_id(0)] = get_local_size(0); }
kernel __attribute__((reqd_work_group_size(8, 1, 1))) void required(global int* o) { o[get_global_id(0)] = get_local_size(0); }
kernel void says(int n) { printf("item %d of %d\n", n, (int)get_global_size(0)); }
kernel void beyond(global float* x) { x[get_global_id(0) + 100000000000ul] = 1; }
kernel void structs(global struct pair* p, read_only image2d_t image) { p[0].a = 1; }
kernel void halved(global const halves* h, global float* f) { f[get_global_id(0)] = vload_half(get_global_id(0), h); }
)cl";

class OrvaneCl : public Shell {
protected:
    void SetUp() override {
        Shell::SetUp();
        write("k.cl", kernels);
        write("shared.h", "#define TWICE(x) (2 * (x))\n");
        save<float>("x.npy", "<f4", {4}, {0, 1, 2, -3});
        save<float>("v.npy", "<f4", {2, 4}, {1, 2, 3, 4, 5, 6, 7, 8});
        save<short>("c.npy", "<i2", {1}, {10});
    }
    void write(const char* name, const std::string& s) { std::ofstream(folder / name, std::ios::binary) << s; }
    template <class T>
    void save(const char* name, const char* type, std::vector<size_t> shape, const std::vector<T>& values) {
        std::ofstream out(folder / name, std::ios::binary);
        write_npy_header(out, type, shape);
        out.write(reinterpret_cast<const char*>(values.data()), std::streamsize(values.size() * sizeof(T)));
    }
    template <class T> std::vector<T> load(const char* name, const char* type, std::vector<size_t> shape) {
        npy_reader in((folder / name).string());
        EXPECT_EQ(in.type, type) << name;
        EXPECT_EQ(in.shape, shape) << name;
        std::vector<T> values(in.elements);
        if (in.type == type) in.read(values.data(), values.size() * sizeof(T));
        return values;
    }
    void refuses(const std::string& words, const std::string& about) { fails_with("orvane-cl " + words, about); }
    void runs(const std::string& words) {
        EXPECT_EQ(shell("orvane-cl " + words + " 2>err"), 0) << words << text("err");
    }
};

TEST_F(OrvaneCl, GivesArraysAndNumbersToKernels) {
    runs("k.cl -k scale -n 6 x.npy out:y.npy 4");
    EXPECT_EQ(load<float>("y.npy", "<f4", {6}), (std::vector<float>{0, 2, 4, -6, 0, 2}));
    // The bytes of a file, as NumPy writes them.
    const std::string bytes = text("y.npy");
    EXPECT_EQ(bytes.substr(0, 8), std::string("\x93NUMPY\x01\x00", 8));
    EXPECT_EQ(bytes.size() % 64, 24u);
    EXPECT_NE(bytes.find("{'descr': '<f4', 'fortran_order': False, 'shape': (6,), }"), bytes.npos);
    runs("k.cl -k scale -n 3 -D FACTOR=10 -cl-fast-relaxed-math x.npy out:y.npy:5 4");
    EXPECT_EQ(load<float>("y.npy", "<f4", {5}), (std::vector<float>{0, 20, 40, 0, 0}));
    // Vectors, threes, local memory, typedefs of pointers, smaller buffers, doubles to the last bit.
    runs("k.cl -k mixed -n 2 rw:v.npy 0.1 2,3,4 local:16 out:t.npy out:d.npy c.npy");
    EXPECT_EQ(load<float>("v.npy", "<f4", {2, 4}), (std::vector<float>{1.1f, 4, 6, 8, 5.1f, 8, 10, 12}));
    EXPECT_EQ(load<float>("t.npy", "<f4", {2, 3}), (std::vector<float>{20, 30, 40, 40, 60, 80}));
    EXPECT_EQ(load<double>("d.npy", "<f8", {2}), (std::vector<double>{0.1, 0.1}));
    save<float>("t.npy", "<f4", {2, 4}, std::vector<float>(8, 7)); // a three's fourth
    runs("k.cl -k mixed -n 1 rw:v.npy 0 1,1,1 local:1 rw:t.npy out:d.npy c.npy");
    EXPECT_EQ(load<float>("t.npy", "<f4", {2, 4})[4], 7);
    runs("k.cl -k values -n 1 out:o.npy:5 -128 255 18446744073709551615 1,2,3,-4 0x1.8p1");
    EXPECT_EQ(load<int64_t>("o.npy", "<i8", {5}), (std::vector<int64_t>{-128, 255, -1, -4, 0x40400000}));
    save<uint16_t>("h.npy", "<f2", {2}, {0x3C00, 0xC000});
    runs("k.cl -k halved -n 2 h.npy out:f.npy");
    EXPECT_EQ(load<float>("f.npy", "<f4", {2}), (std::vector<float>{1, -2}));
}

TEST_F(OrvaneCl, ChoosesWorkGroups) {
    runs("k.cl -k sizes -n 6,4,2 -l 3,2 out:o.npy");
    EXPECT_EQ(load<uint64_t>("o.npy", "<u8", {48}), std::vector<uint64_t>(48, 6010203));
    EXPECT_EQ(text("err"), "");
    runs("k.cl -k sizes -n 10 -l 4 out:o.npy"); // PoCL 3.1 has no groups that do not divide
    EXPECT_EQ(load<uint64_t>("o.npy", "<u8", {10}), std::vector<uint64_t>(10, 10010102));
    EXPECT_NE(text("err").find("they are 2 instead of 4"), std::string::npos) << text("err");
    runs("k.cl -k required -n 16 out:o.npy");
    EXPECT_EQ(load<int>("o.npy", "<i4", {16}), std::vector<int>(16, 8));
    refuses("k.cl -k required -n 12 out:o.npy", "requires work-groups of 8,1,1, which do not divide -n 12");
    refuses("k.cl -k required -n 16 -l 4 out:o.npy", "requires work-groups of 8,1,1, not 4");
    refuses("k.cl -k sizes -n 8 -l 2,2 out:o.npy", "more dimensions than -n 8");
    refuses("k.cl -k sizes -n 8388608 -l 8388608 out:o.npy", "the device takes at most");
    refuses("k.cl -k sizes -n 8 -l 0 out:o.npy", "whole numbers from 1 on");
}

TEST_F(OrvaneCl, SaysWhatIsWrongInOneLine) {
    const size_t before = files();
    write("err", "");
    const std::vector<std::array<std::string, 2>> refused = {
        {"", "name a file"},
        {"nosuch.cl -n 1", "cannot read 'nosuch.cl': No such file"},
        {". -n 1", "it is a folder"},
        {"k.cl -n 1", "several kernels; choose by -k: scale, mixed"},
        {"k.cl -k nosuch -n 1", "no kernel 'nosuch'; it has scale, mixed"},
        {"k.cl -k scale x.npy out:y.npy 4", "-n is missing"},
        {"k.cl -k scale -n 0 x.npy out:y.npy 4", "whole numbers from 1 on"},
        {"k.cl -k scale -n -5 x.npy out:y.npy 4", "whole numbers from 1 on"},
        {"k.cl -k scale -n 1,2,3,4 x.npy out:y.npy 4", "one to three"},
        {"k.cl -k scale -n 99999999999999999999 x.npy out:y.npy 4", "cannot be counted"},
        {"k.cl -k scale -n 1000000000000 x.npy out:y.npy 4", "more than the"},
        {"k.cl -k scale -n 4 x.npy out:y.npy:9000000000000000000 4", "more than the"},
        {"k.cl -k scale -n 4 x.npy out:y.npy", "takes 3 arguments, not 2: global const float* x"},
        {"k.cl -k scale -n 4 x.npy out:y.npy 4 5", "takes 3 arguments, not 4"},
        {"k.cl -k scale -n 4 nosuch.npy out:y.npy 4", "cannot read 'nosuch.npy'"},
        {"k.cl -k scale -n 4 k.cl out:y.npy 4", "is no .npy file"},
        {"k.cl -k scale -n 4 c.npy out:y.npy 4", "holds <i2 of shape (1,); wanted is <f4"},
        {"k.cl -k scale -n 4 1.5 out:y.npy 4", "name a .npy file"},
        {"k.cl -k scale -n 4 out:x.npy out:y.npy 4", "only reads this parameter"},
        {"k.cl -k scale -n 4 x.npy out: 4", "the name of the file is missing"},
        {"k.cl -k scale -n 4 x.npy out:y.npy:0 4", "out:FILE.npy:COUNT"},
        {"k.cl -k scale -n 4 x.npy out:. 4", "Is a directory"},
        {"k.cl -k scale -n 4 x.npy out:nosuch/y.npy 4", "cannot write 'nosuch/y.npy'"},
        {"k.cl -k scale -n 4 x.npy local:4 4", "the parameter is a buffer"},
        {"k.cl -k scale -n 4 x.npy out:y.npy 1.5", "write an integer"},
        {"k.cl -k scale -n 4 x.npy out:y.npy 4000000000", "out of range"},
        {"k.cl -k scale -n 4 x.npy out:y.npy 1,2", "2 number(s); int takes 1"},
        {"k.cl -k scale -n 4 x.npy out:y.npy x.npy", "write a number"},
        {"k.cl -k scale -n 4 -I nosuch x.npy out:y.npy 4", "'nosuch' is no folder"},
        {"k.cl -k scale -n 4 -D 1=2 x.npy out:y.npy 4", "write NAME or NAME=VALUE"},
        {"k.cl -k scale -n 4 -d nosuch x.npy out:y.npy 4", "no platform has 'nosuch'"},
        {"k.cl -k scale -n 4 -d 99 x.npy out:y.npy 4", "no platform 99"},
        {"k.cl -k scale -n 4 -cl-nosuch x.npy out:y.npy 4", "-cl-nosuch"},
        {"k.cl -k scale -n 4 --nosuch x.npy out:y.npy 4", "--nosuch"},
        {"k.cl -k mixed -n 2 rw:x.npy 1 1,1,1 local:1 out:t.npy out:d.npy c.npy", "wanted is <f4 of shape (N, 4)"},
        {"k.cl -k mixed -n 2 rw:v.npy 1 1,1 local:1 out:t.npy out:d.npy c.npy", "float3 takes 3, joined by commas"},
        {"k.cl -k mixed -n 2 rw:v.npy 1 1,1,1 local:0 out:t.npy out:d.npy c.npy", "local:COUNT"},
        {"k.cl -k mixed -n 2 rw:v.npy 1 1,1,1 local:99999999 out:t.npy out:d.npy c.npy", "more than the"},
        {"k.cl -k mixed -n 2 rw:v.npy 1e999 1,1,1 local:1 out:t.npy out:d.npy c.npy", "out of range"},
        {"k.cl -k mixed -n 2 rw:v.npy 1 1,1,1 local:1 out:t.npy out:t.npy c.npy",
         "another argument writes this file"},
        {"k.cl -k mixed -n 2 rw:v.npy 1 1,1,1 local:1 out:t.npy out:./v.npy c.npy",
         "another argument writes this file"},
        {"k.cl -k mixed -n 2 rw:v.npy 1 1,1,1 local:1 out:t.npy out:d.npy out:c.npy", "only reads"},
        {"k.cl -k structs -n 1 x.npy x.npy", "the type struct pair* is none"},
        {"k.cl -k beyond -n 1 out:y.npy", "crashed"}};
    const std::string kept = text("v.npy");
    for (const auto& [words, about] : refused)
        refuses(words, about);
    EXPECT_EQ(text("v.npy"), kept);
    EXPECT_EQ(files(), before + 2) << "something was left behind"; // err and script
}

TEST_F(OrvaneCl, ConvertsNoFile) {
    const std::string good = text("x.npy");
    const auto with = [&](const std::string& from, const std::string& to) {
        std::string s = good;
        s.replace(s.find(from), from.size(), to);
        write("bad.npy", s);
        return "k.cl -k scale -n 4 bad.npy out:y.npy 4";
    };
    refuses(with("<f4", ">f4"), "holds >f4");
    refuses(with("<f4", "<f8"), "holds 16 bytes of data; its header, <f8 (4,), promises 32");
    refuses(with("(4,)", "(5,)"), "promises 20");
    refuses(with("(4,)", "(0,)"), "promises 0");
    refuses(with("(4,)", "(99999999999999999999,)"), "bad.npy");
    refuses(with("'shape'", "'shapf'"), "missing 'shape' key");
    refuses(with("NUMPY", "NUMPX"), "is no .npy file");
    write("bad.npy", good.substr(0, 40));
    refuses("k.cl -k scale -n 4 bad.npy out:y.npy 4", "ends within the header");
    save<float>("bad.npy", "<f4", {0}, {});
    refuses("k.cl -k scale -n 4 bad.npy out:y.npy 4", "no elements");
    std::string order = text("v.npy");
    order.replace(order.find("False"), 5, "True ");
    write("v.npy", order);
    refuses("k.cl -k mixed -n 2 rw:v.npy 1 1,1,1 local:1 out:t.npy out:d.npy c.npy", "in Fortran order");
}

TEST_F(OrvaneCl, TellsWhatTheCompilerAndTheKernelSay) {
    write("bad name.cl", "kernel void a(global int* x) {\n  x[0] = y;\n}\n");
    EXPECT_EQ(shell("orvane-cl 'bad name.cl' -n 1 -D A=1 out:x.npy 2>err"), 2);
    EXPECT_NE(text("err").find("bad name.cl:2:10: use of undeclared identifier 'y'"), std::string::npos)
        << text("err");
    EXPECT_FALSE(fs::exists(folder / "x.npy.npy"));
    write("none.cl", "int f(int x) { return x; }\n");
    refuses("none.cl -n 1", "has no kernel");
    write("empty.cl", "");
    refuses("empty.cl -n 1", "is empty");
    EXPECT_EQ(shell("orvane-cl k.cl -k says -n 2 -7 >out"), 0);
    EXPECT_EQ(text("out"), "item -7 of 2\nitem -7 of 2\n");
    EXPECT_EQ(shell("orvane-cl --list k.cl >out"), 0);
    EXPECT_NE(text("out").find("0: "), std::string::npos);
    EXPECT_NE(
        text("out").find("mixed(global float4* v, double d, float3 f, local uchar2* l, global float3* t, global "
                         "double* all, constant short* c)"),
        std::string::npos)
        << text("out");
    EXPECT_NE(text("out").find("required(global int* o) in work-groups of 8,1,1"), std::string::npos);
    EXPECT_EQ(shell("orvane-cl --list >out"), 0);
}

TEST_F(OrvaneCl, MeasuresBesideScalarLibm) {
    runs("k.cl -k scale -n 1000 x.npy out:y.npy 4 --bench >out");
    EXPECT_NE(text("out").find("plain PoCL"), std::string::npos) << text("out");
    EXPECT_NE(text("out").find("scalar libm"), std::string::npos) << text("out");
    EXPECT_FALSE(fs::exists(folder / "y.npy"));
    refuses("k.cl -k scale -n 1000 x.npy out:y.npy --bench", "takes 3 arguments");
}

TEST_F(OrvaneCl, ExplainsWhatBuiltInsBecame) {
    write("e.cl", "kernel void e(global float* x) { x[get_global_id(0)] = exp((float)get_global_id(0)); }\n");
    runs("e.cl -n 64 out:y.npy --explain");
    const bool ours = getenv("OCL_ICD_VENDORS") && !getenv("ORVANE_POCL");
    EXPECT_NE(text("err").find(ours ? "orvane: kernel e: expf" : "is not Orvane's"), std::string::npos)
        << text("err");
}

} // namespace
