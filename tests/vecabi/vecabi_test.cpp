// liborvane_vecabi from inside: its file, its names, the state that it leaves to SSE code, and the forms that no loop
// of the compilers' checks calls.
#include "tests/support.h"
#include "tools/vecabi_names.h"
#include "tools/whole_file.h"

#include <cpuid.h>
#include <immintrin.h>
#include <set>
#include <unistd.h>

using namespace orvane;

namespace {

object& vecabi() {
    static object o(ORVANE_VECABI);
    return o;
}

std::string output_of(const std::string& command) {
    std::string all;
    FILE* p = popen(command.c_str(), "r");
    char buffer[4096];
    while (const size_t n = fread(buffer, 1, sizeof buffer, p))
        all.append(buffer, n);
    EXPECT_EQ(pclose(p), 0) << command;
    return all;
}

// Symbols that a shared object defines, with their versions cut off.
std::set<std::string> defined_by(const std::string& path) {
    std::istringstream lines(output_of("nm -D --defined-only " + path));
    std::set<std::string> names;
    for (std::string at, type, name; lines >> at >> type >> name;)
        names.insert(name.substr(0, name.find('@')));
    return names;
}

TEST(Written, FollowsFromTheList) {
    const auto folder = std::filesystem::temp_directory_path() / ("orvane-vecabi-" + std::to_string(getpid()));
    ASSERT_EQ(system((ORVANE_TOOL_FOLDER "/write-vecabi " + folder.string()).c_str()), 0);
    int files = 0;
    for (const auto& file : std::filesystem::recursive_directory_iterator(folder)) {
        if (!file.is_regular_file()) continue;
        files++;
        const auto name = file.path().lexically_relative(folder);
        EXPECT_EQ(contents_of(file.path()), contents_of(ORVANE_SOURCES / name))
            << name << " is out of date: build the target `written`";
    }
    EXPECT_GE(files, 4);
    std::filesystem::remove_all(folder);
    EXPECT_NE(system(ORVANE_TOOL_FOLDER "/write-vecabi 2>/dev/null"), 0);
}

TEST(File, ImportsNothingAndHasNoState) {
    const std::string dynamic = output_of("readelf -dW " ORVANE_VECABI),
                      sections = output_of("readelf -SW " ORVANE_VECABI);
    EXPECT_NE(dynamic.find("[liborvane_vecabi.so.1]"), std::string::npos) << dynamic;
    for (auto bad : {"NEEDED", "INIT", "FINI", "TEXTREL", "(RELA)", "JMPREL", "RUNPATH"})
        EXPECT_EQ(dynamic.find(bad), std::string::npos) << bad;
    for (auto bad : {" .data", " .bss", " .tdata", " .tbss", " .got ", " .init", " .ctors", " .plt"})
        EXPECT_EQ(sections.find(bad), std::string::npos) << bad;
    EXPECT_EQ(output_of("nm -D --undefined-only " ORVANE_VECABI), "");
}

TEST(File, ExportsItsNamesAndNoOther) {
    std::set<std::string> expected;
    for (const auto& n : vecabi_names())
        EXPECT_TRUE(expected.insert(n.symbol).second) << n.symbol << " twice";
    EXPECT_EQ(defined_by(ORVANE_VECABI), expected);
    std::istringstream lines(output_of("nm --defined-only -A " ORVANE_VECABI_STATIC " 2>/dev/null"));
    for (std::string at, type, name; lines >> at >> type >> name;)
        if (type == "T") expected.erase(name);
    EXPECT_EQ(expected, std::set<std::string>{}) << "not in the archive";
}

// Whatever a compiler or a program knows from the C library or from SLEEF.
TEST(Names, HoldTheOtherLibraries) {
    const auto ours = defined_by(ORVANE_VECABI);
    for (auto library : {"libmvec.so.1", "libsleefgnuabi.so"}) {
        std::string path = output_of(std::string("cc -print-file-name=") + library);
        path.pop_back();
        int names = 0;
        for (const auto& n : defined_by(path))
            if (n.starts_with("_ZGV")) {
                names++;
                EXPECT_TRUE(ours.contains(n)) << library << " has " << n;
            }
        EXPECT_GT(names, 200) << path;
    }
}

TEST(Names, AreAliasesWhereLanesLieAsTheExports) {
    int aliases = 0;
    for (const auto& n : vecabi_names())
        if (n.shape == "alias") {
            aliases++;
            EXPECT_EQ(vecabi().symbol(n.symbol), vecabi().symbol(n.target)) << n.symbol;
        }
    EXPECT_GT(aliases, 600);
}

// ---- calls from SSE code ----

struct called_from_sse {
    uint64_t components; // of the processor's state in use afterwards: bit 2 for upper halves
    alignas(32) __m256 vector[16];
};

// As SSE code calls: upper halves unused; x in register 0, what may be y, n or pointers behind it.
void call_from_sse(const void* f, __m128i x, __m128i other, void* p, void* q, called_from_sse& after) {
    register void* rdi asm("rdi") = p;
    register void* rsi asm("rsi") = q;
    __m128i all[2] = {x, other};
    uint32_t low = 0;
    register const void* called asm("rbx") = f;
    register const void* from asm("r14") = all;
    register void* to asm("r15") = after.vector;
    register uint64_t tells asm("r13") = after.components;
    asm volatile("vzeroupper\n\tmovups 0(%[all]), %%xmm0\n\tmovups 16(%[all]), %%xmm1\n\t"
                 "movaps %%xmm1, %%xmm2\n\tmovaps %%xmm1, %%xmm3\n\tmovaps %%xmm1, %%xmm4\n\t"
                 "mov %%rsp, %%r12\n\tsub $128, %%rsp\n\tand $-16, %%rsp\n\tcall *%[f]\n\tmov %%r12, %%rsp\n\t"
                 "xor %%eax, %%eax\n\ttest %[tells], %[tells]\n\tjz 1f\n\tmov $1, %%ecx\n\txgetbv\n"
                 "1:\n\tmov %%eax, %[low]\n\t"
                 "vmovaps %%ymm0, 0(%[v])\n\tvmovaps %%ymm1, 32(%[v])\n\tvmovaps %%ymm2, 64(%[v])\n\t"
                 "vmovaps %%ymm3, 96(%[v])\n\tvmovaps %%ymm4, 128(%[v])\n\tvmovaps %%ymm5, 160(%[v])\n\t"
                 "vmovaps %%ymm6, 192(%[v])\n\tvmovaps %%ymm7, 224(%[v])\n\tvmovaps %%ymm8, 256(%[v])\n\t"
                 "vmovaps %%ymm9, 288(%[v])\n\tvmovaps %%ymm10, 320(%[v])\n\tvmovaps %%ymm11, 352(%[v])\n\t"
                 "vmovaps %%ymm12, 384(%[v])\n\tvmovaps %%ymm13, 416(%[v])\n\tvmovaps %%ymm14, 448(%[v])\n\t"
                 "vmovaps %%ymm15, 480(%[v])\n\tvzeroupper"
                 : "+r"(rdi), "+r"(rsi), [low] "=m"(low)
                 : [f] "r"(called), [all] "r"(from), [v] "r"(to), [tells] "r"(tells)
                 : "rax", "rcx", "rdx", "r8", "r9", "r10", "r11", "r12", "memory", "cc", "xmm0", "xmm1", "xmm2",
                   "xmm3", "xmm4", "xmm5", "xmm6", "xmm7", "xmm8", "xmm9", "xmm10", "xmm11", "xmm12", "xmm13",
                   "xmm14", "xmm15");
    after.components = low;
}

// Whether the processor tells which of its state is in use (and counts upper halves as unused after vzeroupper).
bool tells_components_in_use() {
    unsigned a, b, c, d;
    if (!__get_cpuid_count(0xD, 1, &a, &b, &c, &d) || !(a & 4)) return false;
    uint32_t low, high;
    asm volatile("vzeroupper\n\txgetbv" : "=a"(low), "=d"(high) : "c"(1));
    return !(low & 4);
}

// Upper halves in use, by the processor's word or by their contents.
bool leaves_dirty_state(const std::string& symbol, __m128i x, __m128i other) {
    static const bool tells = tells_components_in_use();
    alignas(64) static unsigned char p[64], q[64];
    if (symbol.find("vvv_sincos") != symbol.npos) other = _mm_set1_epi64x((long long)p);
    called_from_sse after{tells, {}};
    call_from_sse(vecabi().address(symbol), x, other, p, q, after);
    bool dirty = after.components & 4;
    for (const auto& v : after.vector) {
        const __m128i high = _mm_castps_si128(_mm256_extractf128_ps(v, 1));
        dirty |= !_mm_testz_si128(high, high);
    }
    return dirty;
}

TEST(FromSseCode, NoUpperHalfStaysInUse) {
    int forms = 0;
    for (const auto& n : vecabi_names()) {
        if (!n.symbol.starts_with("_ZGVb") && !n.symbol.starts_with("orvane_")) continue;
        forms++;
        const __m128i ordinary =
            n.symbol.ends_with('f') ? _mm_castps_si128(_mm_set1_ps(0.7f)) : _mm_castpd_si128(_mm_set1_pd(0.7));
        const __m128i nan = _mm_set1_epi64x(0x7FF8000000001234), large = _mm_castpd_si128(_mm_set1_pd(1e300));
        for (auto x : {ordinary, nan, large, _mm_set1_epi32(0x7F000001), _mm_set1_epi32(0x7FC01234)})
            EXPECT_FALSE(leaves_dirty_state(n.symbol, x, ordinary))
                << n.symbol << " " << std::hex << _mm_extract_epi64(x, 0);
    }
    EXPECT_GT(forms, 300);
}

// ---- forms that SLEEF's callers know, and that GCC does not call ----

template <class F> F* function(const char* symbol) {
    F* f = (F*)vecabi().address(symbol);
    EXPECT_NE(f, nullptr) << symbol;
    return f;
}

constexpr double values[] = {0.75, -1e-310, 1234.5, 0, 3e-320, -8, 1e300, 0.1, 12, -0.3, 1e10, 5, 7e-9, 33, 2, 1e-30};

template <class T> constexpr const char* name_of(const char* d, const char* f) { return sizeof(T) == 8 ? d : f; }

template <class T, class V, class I, int N> void frexp_halves(const std::string& form) {
    V x;
    for (int i = 0; i < N; i++)
        x[i] = T(values[i]);
    const std::string f = sizeof(T) == 8 ? "" : "f";
    const V y = function<V(V)>((form + "v_frfrexp" + f).c_str())(x);
    const I n = function<I(V)>((form + "v_expfrexp" + f).c_str())(x);
    for (int i = 0; i < N; i++) {
        int e = 0;
        EXPECT_EQ(y[i], T(frexp(x[i], &e))) << form << f << " " << i;
        EXPECT_EQ(n[i], e) << form << f << " " << i;
    }
}
using int4 [[gnu::vector_size(16)]] = int;
using int8 [[gnu::vector_size(32)]] = int;
using float4 [[gnu::vector_size(16)]] = float;
using float8 [[gnu::vector_size(32)]] = float;
using double2 [[gnu::vector_size(16)]] = double;
using double4 [[gnu::vector_size(32)]] = double;
struct two_int4 {
    int4 part[2];
    int operator[](int i) const { return part[i / 4][i % 4]; }
};

TEST(SleefForms, ResultsOfFrexpEachByItself) {
    frexp_halves<double, double2, int4, 2>("_ZGVbN2");
    frexp_halves<float, float4, int4, 4>("_ZGVbN4");
    frexp_halves<double, double4, int4, 4>("_ZGVcN4");
    frexp_halves<float, float8, two_int4, 8>("_ZGVcN8");
    frexp_halves<double, double4, int4, 4>("_ZGVdN4");
    frexp_halves<float, float8, int8, 8>("_ZGVdN8");
}

template <class T, class V, class I, int N> void exponents(const std::string& form) {
    V x;
    for (int i = 0; i < N; i++)
        x[i] = T(values[i]);
    const std::string name = form + "v_ilogb" + (sizeof(T) == 8 ? "" : "f");
    const I n = function<I(V)>(name.c_str())(x);
    for (int i = 0; i < N; i++)
        EXPECT_EQ(n[i], ilogb(x[i])) << name << " " << i;
}
TEST(SleefForms, ExponentsByLanesOfTheArgument) {
    exponents<double, double2, int4, 2>("_ZGVbN2");
    exponents<double, double4, int4, 4>("_ZGVcN4");
    exponents<float, float8, two_int4, 8>("_ZGVcN8");
    exponents<double, double4, int4, 4>("_ZGVdN4");
}

// Eight pointers in four 128-bit registers each: the last of them is on the stack.
TEST(VectorsOfPointers, AlsoWhereTheyFillMoreThanTheRegisters) {
    using pointers [[gnu::vector_size(16)]] = long long;
    float s[8] = {}, c[8] = {};
    pointers p[4], q[4];
    for (int i = 0; i < 8; i++)
        p[i / 2][i % 2] = (long long)&s[i], q[i / 2][i % 2] = (long long)&c[7 - i];
    const float8 x = {0, 1, 2, 3, 1e30f, 5, 6, 7};
    function<void(float8, pointers, pointers, pointers, pointers, pointers, pointers, pointers, pointers)>(
        "_ZGVcN8vvv_sincosf")(x, p[0], p[1], p[2], p[3], q[0], q[1], q[2], q[3]);
    for (int i = 0; i < 8; i++) {
        EXPECT_NEAR(s[i], sin(x[i]), 1e-6) << i;
        EXPECT_NEAR(c[7 - i], cos(x[i]), 1e-6) << i;
    }
}

} // namespace
