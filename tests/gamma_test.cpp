// tgamma, lgamma and lgammar: exits and their status codes, signs, zeros of log|gamma|, joints between forms, the
// caller's x87 state, and errors. No result hangs on the processor: bounds are what was measured.
#include "accuracy.h"

#include <cstdlib>
#include <cstring>
#include <sys/mman.h>
#include <unistd.h>

using namespace orvane;

namespace {

const kernel_row& row_of(std::string_view name) { return *find_row(library_rows(), name, "default"); }

struct lane {
    const char* name;
    double x, result;
    int status;
};
constexpr double infinity = HUGE_VAL, tiny = 0x1p-1074, tinyf = 0x1p-149;

TEST(Gamma, ExitsWithTheirStatus) {
    for (const auto& [name, x, result, status] :
         std::initializer_list<lane>{{"tgamma", infinity, infinity, 0},
                                     {"tgamma", 0.0, infinity, 2},
                                     {"tgamma", -0.0, -infinity, 2},
                                     {"tgamma", tiny, infinity, 3},
                                     {"tgamma", -0x1p-1024, -infinity, 3},
                                     {"tgamma", -0x1.0000000000001p-1022, -0x1.ffffffffffffep+1021, 0},
                                     {"tgamma", 0x1.00000000004p-1024, 0x1.ffffffffff8p+1023, 0}, // subnormal: 1 / x
                                     {"tgamma", 171.62437695630270, 0x1.ffffffffffe51p+1023, 0},
                                     {"tgamma", 171.62437695630274, infinity, 3},
                                     {"tgamma", -180.5, -0.0, 0}, // through the scaled row
                                     {"tgamma", -185.5, 0.0, 0},  // the early test
                                     {"tgamma", -186.5, -0.0, 0},
                                     {"tgamma", -0x1.fffffffffffffp51, 0.0, 0}, // F is odd
                                     {"tgammaf", infinity, infinity, 0},
                                     {"tgammaf", -0.0, -infinity, 2},
                                     {"tgammaf", tinyf, infinity, 3},
                                     {"tgammaf", -0x1p-128, -infinity, 3},
                                     {"tgammaf", 0x1.0001p-128, 0x1.fffep127, 0},
                                     {"tgammaf", 35.04010009765625, infinity, 3},
                                     {"tgammaf", -41.5, 0.0, 0},
                                     {"tgammaf", -43.5, 0.0, 4},
                                     {"tgammaf", -44.5, -0.0, 4},
                                     {"lgamma", -infinity, infinity, 0},
                                     {"lgamma", -0.0, infinity, 2},
                                     {"lgamma", -1.0, infinity, 2},
                                     {"lgamma", -0x1p60, infinity, 2},
                                     {"lgamma", 1.0, 0.0, 0},
                                     {"lgamma", 2.0, 0.0, 0},
                                     {"lgamma", 0x1.754d9278b51a8p+1014, infinity, 3},
                                     {"lgammaf", -infinity, infinity, 0},
                                     {"lgammaf", 0.0, infinity, 2},
                                     {"lgammaf", -8388608.0, infinity, 2},
                                     {"lgammaf", 1.0, 0.0, 0},
                                     {"lgammaf", 2.0, 0.0, 0},
                                     {"lgammaf", 0x1.895f1ap+121, 0x1.fffffcp127, 0}, // the bound itself
                                     {"lgammaf", 0x1.895f1cp+121, infinity, 3},
                                     {"lgammaf", tinyf, 103.27892990343184, 0}}) {
        const auto& row = row_of(name);
        const auto got = call_slow_path(library_under_test(), row, {word_of(row.in, x)});
        EXPECT_EQ(got.result, word_of(row.out, result)) << name << " of " << x;
        EXPECT_EQ(got.status, status) << name << " of " << x;
    }
}

TEST(Gamma, DomainErrorsAndNan) {
    for (auto name : {"tgamma", "tgammaf", "lgamma", "lgammaf"}) {
        const auto& row = row_of(name);
        const bool wide = row.in == lane_type::f64;
        auto of = [&](uint64_t word) { return call_slow_path(library_under_test(), row, {word}); };
        // A NaN keeps its sign and payload and becomes quiet.
        const uint64_t quiet = wide ? 0x7FF8000000000000 : 0x7FC00000;
        const uint64_t signaling = wide ? 0xFFF0000000000777 : 0xFF800777;
        EXPECT_EQ(of(signaling).result, signaling | quiet) << name;
        EXPECT_EQ(of(signaling).status, 0) << name;
        if (row.base() != "tgamma") continue;
        for (double x : {-infinity, -1.0, -2.0, -184.0, -1e6, -0x1p52, -1e30}) {
            EXPECT_EQ(of(word_of(row.in, x)).result, quiet) << name << " of " << x; // positive
            EXPECT_EQ(of(word_of(row.in, x)).status, 1) << name << " of " << x;
        }
    }
}

TEST(Gamma, FactorialsAreExact) {
    double n_factorial = 1;
    for (int n = 0; n <= 22; n++, n_factorial *= n) // exact in double
        for (auto name : {"tgamma", "tgammaf"}) {
            sweep f(name);
            EXPECT_EQ(f({{word_of(f.row().in, n + 1)}})[0][0], word_of(f.row().out, n_factorial)) << n;
        }
}

// Integers, half-integers, powers of two and the bounds of all forms with their neighbours, random patterns, and
// arguments that are tiny.
words directed_arguments(lane_type t) {
    words x;
    auto with_neighbours = [&](double v) {
        for (int k = -3; k <= 3; k++)
            x.push_back(word_of(t, v) + k);
    };
    for (int n = -1100; n <= 1100; n++)
        with_neighbours(n / 2.0);
    for (double edge : {1.25, 1.75, 2.25, 0.875, 1.4616321449683622, 8192.0, 8192.5, 171.62437695630274, 35.0401})
        with_neighbours(edge), with_neighbours(-edge);
    for (int e = t == lane_type::f64 ? -1073 : -148; e < (t == lane_type::f64 ? 1013 : 121); e++)
        with_neighbours(std::ldexp(1.0, e)), with_neighbours(-std::ldexp(1.0, e));
    rng r(91);
    for (int i = 0; i < 10000; i++)
        x.push_back(r() >> (t == lane_type::f64 ? 0 : 32));
    return x;
}
// What each path reaches, in ulps.
double bound_of(const std::string& name) {
    return name == "tgamma" ? 0.511 : name == "tgammaf" ? 0.503 : name == "lgamma" ? 0.508 : 0.51;
}

// A slow path in this process that counts its calls instead of computing, for as long as this object lives: a jump to
// the counter is written over its first bytes.
class counted_slow_path {
public:
    explicit counted_slow_path(const kernel_row& row)
        : code((unsigned char*)library_under_test().symbol(row.slow_path_symbol())) {
        const uintptr_t page = sysconf(_SC_PAGESIZE), first = (uintptr_t)code & -page;
        if (mprotect((void*)first, (uintptr_t)code + sizeof kept - first, PROT_READ | PROT_WRITE | PROT_EXEC))
            throw std::runtime_error("the library's code cannot be made writable");
        memcpy(kept, code, sizeof kept);
        unsigned char jump[sizeof kept] = {0x48, 0xB8, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xE0}; // mov rax, ...; jmp rax
        const auto to = (uint64_t)&counter;
        memcpy(jump + 2, &to, sizeof to);
        memcpy(code, jump, sizeof jump);
        calls = 0;
    }
    ~counted_slow_path() { memcpy(code, kept, sizeof kept); }
    static inline size_t calls;

private:
    static int counter() { return ++calls, 0; }
    unsigned char* code;
    unsigned char kept[12];
};
// How many of these lanes go to the slow path.
size_t slow_lanes(sweep& f, const words& x) {
    const counted_slow_path counted(f.row());
    f({x});
    return counted.calls;
}

const char* const families[] = {"tgammaf", "lgammaf", "lgammarf", "tgamma", "lgamma", "lgammar"};

// The vector path accepts no lane whose result is not the slow path's.
size_t expect_bits_of_slow_path(sweep& f, const words& x) {
    const auto& row = f.row();
    const auto symbol = library_under_test().symbol(row.slow_path_symbol());
    const auto& y = f({x});
    size_t different = 0;
    for (size_t i = 0; i < x.size(); i++) {
        uint64_t slow = 0;
        int sign = 0; // the slow paths without an out-lane do not look at it
        ((int (*)(const void*, void*, int*))symbol)(&x[i], &slow, &sign);
        if (y[0][i] == slow && (!row.has_out() || (int32_t)y[1][i] == sign)) continue;
        if (!different++)
            ADD_FAILURE() << row.name << " of " << std::hex << x[i] << ": " << y[0][i] << ", the slow path " << slow;
    }
    return different;
}

TEST(Gamma, BitsAreThoseOfTheSlowPath) {
    for (std::string name : families)
        for (int width : {8, 16}) {
            sweep f(name, "default", width);
            const lane_type t = f.row().in;
            size_t different = expect_bits_of_slow_path(f, directed_arguments(t));
            for (auto [lo, hi, by_exponent] :
                 std::initializer_list<std::tuple<double, double, bool>>{{0.5, 20, false},
                                                                         {0, 4, false},
                                                                         {0, 172, false},
                                                                         {1e-10, 1e10, true},
                                                                         {-9, 0, false},
                                                                         {-45, 0, false},
                                                                         {-600, 600, false}})
                different += expect_bits_of_slow_path(f, spread(t, lo, hi, 60'000, by_exponent, 31 + width));
            EXPECT_EQ(different, 0u) << name;
        }
}

// How far the slow path's value before its rounding is from the vector path's, h + l, as a share of the margin that
// the rounding test allows: below a half on every range, though margins are proven and not measured.
object& unrounded_library() {
    static object o(ORVANE_UNROUNDED);
    return o;
}
auto unrounded_slow_path(const std::string& name) {
    return (void (*)(double, long double*))unrounded_library().address("orvane_slow_" + name);
}
double largest_share(const char* name, double lo, double hi, bool by_exponent, size_t lanes) {
    auto& unrounded = unrounded_library();
    const auto* kept = (const double(*)[4])unrounded.address("orvane_unrounded");
    const auto slow = unrounded_slow_path(name);
    lane_caller call = subject{&row_of(name), &unrounded}.caller(4);
    double largest = 0, at = 0;
    const words x = spread(lane_type::f64, lo, hi, lanes, by_exponent, 61);
    std::vector<words> y;
    for (size_t i = 0; i + 4 <= x.size(); i += 4) {
        call({words(x.begin() + i, x.begin() + i + 4)}, y);
        for (int k = 0; k < 4; k++) {
            const double v = value_of(lane_type::f64, x[i + k]);
            if (v <= 0 && std::floor(v) == v) continue; // no formula
            long double exact;
            slow(v, &exact);
            const double off = std::fabs((double)(exact - kept[0][k] - kept[1][k])), E = std::fabs(kept[2][k]);
            if (off > E * largest) largest = off / E, at = v;
        }
    }
    printf("%s from %g to %g: %.3f of the margin at %a\n", name, lo, hi, largest, at);
    return largest;
}
struct deviation_range {
    const char* name;
    double lo, hi;
    bool by_exponent = false;
};
const deviation_range deviation_ranges[] = {{"lgamma", 0x1p-1000, 0.125, true},
                                            {"lgamma", 0.125, 0.25},
                                            {"lgamma", 0.25, 0.5},
                                            {"lgamma", 0.5, 1},
                                            {"lgamma", 1, 2},
                                            {"lgamma", 2, 4},
                                            {"lgamma", 4, 8},
                                            {"lgamma", 8, 16},
                                            {"lgamma", 16, 32},
                                            {"lgamma", 32, 64},
                                            {"lgamma", 64, 512},
                                            {"lgamma", 512, 1e4},
                                            {"lgamma", 1e4, 0x1p999, true},
                                            {"lgamma", -1, 0},
                                            {"lgamma", -2, -1},
                                            {"lgamma", -4, -2},
                                            {"lgamma", -15, -4},
                                            {"lgamma", -17, -15},
                                            {"lgamma", -40, -17},
                                            {"lgamma", -511, -40},
                                            {"tgamma", 0x1p-1000, 1, true},
                                            {"tgamma", 0.0625, 1},
                                            {"tgamma", 1, 1.25},
                                            {"tgamma", 1.25, 1.5},
                                            {"tgamma", 1.5, 2},
                                            {"tgamma", 2, 3},
                                            {"tgamma", 3, 8},
                                            {"tgamma", 8, 16},
                                            {"tgamma", 16, 32},
                                            {"tgamma", 32, 171.6},
                                            {"tgamma", -1, 0},
                                            {"tgamma", -2, -1},
                                            {"tgamma", -3, -2},
                                            {"tgamma", -16, -3},
                                            {"tgamma", -32, -16},
                                            {"tgamma", -167, -32}};

TEST(Gamma, DeviationFromTheSlowPathIsBelowHalfOfTheMargin) {
    for (const auto& [name, lo, hi, by_exponent] : deviation_ranges) {
        const double share = largest_share(name, lo, hi, by_exponent, 20000);
        EXPECT_LT(share, 0.5) << name << " from " << lo << " to " << hi;
        EXPECT_GT(share, 0.01) << name << " from " << lo << " to " << hi << ": are these the values?";
    }
}
// What the proof of lgamma's margins takes for granted of its slow path: a logarithm good to its last rounding, from
// 512 on to that of the sum before it, and 2^-70.
TEST(Gamma, LogarithmOfTheSlowPathIsGoodToItsLastRounding) {
    const auto slow = unrounded_slow_path("log");
    mpfr_t ln, off;
    mpfr_inits2(200, ln, off, (mpfr_ptr)0);
    for (auto [lo, hi, by_exponent] : {std::tuple{0x1p-1000, 0x1p1000, true}, {0.98, 1.02, false}, {0.5, 2.0, false}})
        for (uint64_t word : spread(lane_type::f64, lo, hi, 30'000, by_exponent, 71)) {
            const double x = value_of(lane_type::f64, word);
            long double got;
            slow(x, &got);
            mpfr_set_d(ln, x, MPFR_RNDN);
            mpfr_log(ln, ln, MPFR_RNDN);
            const long double half_unit = got == 0 ? 0 : std::ldexp(1.0L, std::ilogb(got) - 64);
            mpfr_set_ld(off, got, MPFR_RNDN);
            mpfr_sub(off, off, ln, MPFR_RNDN);
            const long double distance = std::fabs(mpfr_get_ld(off, MPFR_RNDN));
            ASSERT_LE(distance, half_unit * (std::fabs(got) > 512 ? 2 : 1) + 0x1p-70L) << x;
        }
    mpfr_clears(ln, off, (mpfr_ptr)0);
}

TEST(Gamma, LongDeviationFromTheSlowPathIsBelowHalfOfTheMargin) {
    for (const auto& [name, lo, hi, by_exponent] : deviation_ranges)
        EXPECT_LT(largest_share(name, lo, hi, by_exponent, 6'500'000), 0.5) << name << " from " << lo << " to " << hi;
}

// The vector paths finish nearly all ordinary lanes by themselves, and those that need no formula.
TEST(Gamma, SlowPathsDecideFewLanes) {
    struct share {
        const char* name;
        double lo, hi, most;
    };
    for (const auto& [name, lo, hi, most] : std::initializer_list<share>{{"lgammaf", 0.5, 20, 1e-4},
                                                                         {"lgammaf", 0, 4, 1e-4},
                                                                         {"lgammaf", -8.9, 0, 1e-3},
                                                                         {"tgammaf", 0.5, 20, 1e-3},
                                                                         {"tgammaf", 0, 4, 1e-3},
                                                                         {"tgammaf", -30, 0, 1e-3},
                                                                         {"lgamma", 0.5, 20, 0.03},
                                                                         {"lgamma", 0, 4, 0.03},
                                                                         {"lgamma", -20, 0, 0.08},
                                                                         {"tgamma", 0.5, 20, 0.03},
                                                                         {"tgamma", 0, 171, 0.04},
                                                                         {"tgamma", -20, 0, 0.05}}) {
        sweep f(name);
        const auto x = spread(f.row().in, lo, hi, 200'000, false, 41);
        EXPECT_LE((double)slow_lanes(f, x) / x.size(), most) << name << " from " << lo << " to " << hi;
    }
    for (auto name : families) {
        sweep f(name);
        words x;
        for (double v : std::initializer_list<double>{NAN, infinity, -infinity, 0.0, -0.0, -1.0, -2.0, -17.0, -0x1p60,
                                                      0x1p1023, 1e38, 0x1.fffffep127})
            x.push_back(word_of(f.row().in, v));
        EXPECT_EQ(slow_lanes(f, x), 0u) << name;
        EXPECT_GT(slow_lanes(f, {f.row().special[0]}), 0u) << name << ": nothing is counted";
    }
}

// Under other rounding modes the vector path follows MXCSR and the slow paths the x87 unit, where they use it: bits
// are not those of the default mode, but within a unit in the last place of the truth.
TEST(Gamma, OtherRoundingModesCostAUnitInTheLastPlace) {
    for (std::string name : families) {
        const auto& row = row_of(name);
        lane_caller call = subject{&row, &library_under_test()}.caller(8);
        const bool is_wide = row.in == lane_type::f64;
        bool differs = false;
        // Set in MXCSR alone and, as the C library does, in the x87 unit too.
        for (uint32_t rounding : {0x2000, 0x4000, 0x6000, 0x2001, 0x4001, 0x6001})
            for (auto [lo, hi] : {std::pair{0.5, 20.0}, {0.01, 4.0}, {-1.99, -0.01}, {-20.0, -5.0}}) {
                const auto x = spread(row.in, lo, hi, 8000, false, 51);
                for (size_t i = 0; i < x.size(); i += 8) {
                    const words lanes(x.begin() + i, x.begin() + i + 8);
                    std::vector<words> y, nearest;
                    call.in.mxcsr = 0x1F80, call.in.x87_control = 0x37F;
                    call({lanes}, nearest);
                    call.in.mxcsr = 0x1F80 | (rounding & ~1u);
                    if (rounding & 1) call.in.x87_control = uint16_t(0x37F | (rounding & 0x6000) >> 3);
                    call({lanes}, y);
                    differs |= y != nearest;
                    for (int k = 0; k < 8; k++) {
                        const long double v = value_of(row.in, lanes[k]);
                        const auto truth = name[0] == 't' ? tgammal(v) : lgammal(v);
                        ASSERT_LE(approximate_ulps(row.out, y[0][k], truth), is_wide ? 1.1 : 1.01)
                            << name << std::hex << " of " << lanes[k] << " under " << rounding;
                    }
                }
            }
        EXPECT_TRUE(differs) << name;
    }
}

TEST(Gamma, FormsJoin) {
    truth t;
    for (std::string name : {"tgamma", "tgammaf", "lgamma", "lgammaf"}) {
        sweep f(name);
        const auto w = sampled_error(f, t, directed_arguments(f.row().in), name.starts_with("t") ? tgammal : lgammal);
        expect_error(name + " where forms join", bound_of(name), w);
    }
}

TEST(Gamma, SignLanes) {
    for (auto name : {"lgammar", "lgammarf"}) {
        sweep f(name), without_sign(row_of(name).in == lane_type::f64 ? "lgamma" : "lgammaf");
        const auto x = directed_arguments(f.row().in);
        const auto y = f({x});
        EXPECT_EQ(y[0], without_sign({x})[0]) << name;
        for (size_t i = 0; i < x.size(); i++) {
            const double v = value_of(f.row().in, x[i]);
            int sign = 1;
            lgammal_r(v, &sign);
            const bool none = !std::isfinite(v) || (v < 0 && std::floor(v) == v); // no sign: +1
            ASSERT_EQ((int32_t)y[1][i], none ? 1 : sign) << name << " of " << v;
        }
    }
}

// The zero of log|gamma| between a point where it is positive and one where it is negative.
double zero_between(double positive, double negative) {
    static const kernel_row& row = row_of("lgamma");
    truth t;
    auto value = [&](double x) {
        const uint64_t w = word_of(lane_type::f64, x);
        t(row, &w);
        return mpfr_get_d(t.value(0), MPFR_RNDN);
    };
    for (;;) {
        const double middle = (positive + negative) / 2;
        if (middle == positive || middle == negative) break;
        (value(middle) > 0 ? positive : negative) = middle;
    }
    return std::fabs(value(positive)) < std::fabs(value(negative)) ? positive : negative;
}

// Each of the 26 zeros in (-15, -2), its neighbours, and arguments at all distances, so that the window's bounds are
// crossed on both sides.
TEST(Gamma, ZerosOfLogGamma) {
    truth t;
    sweep f("lgamma"), g("lgammaf");
    rng r(17);
    std::uniform_real_distribution<double> exponent(-52, -3);
    worst w, wf;
    for (int k = 0; k < 13; k++)
        for (double pole : {-3.0 - k, -2.0 - k}) {
            const double inward = std::nextafter(pole, -2.5 - k), zero = zero_between(inward, -2.5 - k);
            ASSERT_TRUE(inward != zero && std::fabs(zero - pole) < 0.5);
            words x, xf;
            auto add = [&](double v) {
                x.push_back(word_of(lane_type::f64, v)), xf.push_back(word_of(lane_type::f32, v));
            };
            for (int n = -20; n <= 20; n++) {
                x.push_back(word_of(lane_type::f64, zero) + n);
                xf.push_back(word_of(lane_type::f32, zero) + n);
            }
            for (int i = 0; i < 2000; i++) {
                const double step = std::exp2(exponent(r)), span = std::fabs(zero - pole);
                add(zero + step), add(zero - step); // and within the distance of the pole, where windows are narrow
                add(zero + span * step), add(zero - span * step);
                add(zero + span * 4 * (i / 1000.0 - 1));
            }
            for (const auto& [sweep, arguments, all] : {std::tuple{&f, &x, &w}, std::tuple{&g, &xf, &wf}}) {
                const auto here = sampled_error(*sweep, t, *arguments, lgammal);
                if (here.ulps > all->ulps) *all = here;
            }
        }
    expect_error("lgamma around its zeros", bound_of("lgamma"), w);
    expect_error("lgammaf around its zeros", bound_of("lgammaf"), wf);
}

// Where the caller computes with short significands, the double paths do not; its control word comes back from every
// exit, its rounding holds within, and the register stack is empty.
TEST(Gamma, X87StateOfTheCaller) {
    constexpr uint16_t long_significands = 0x37F, round_down = 0x400;
    for (auto name : {"tgamma", "lgamma", "lgammar"}) {
        const auto& row = row_of(name);
        const subject s{&row, &library_under_test()};
        lane_caller call = s.caller(4);
        int rounded_down = 0;
        for (double x : std::initializer_list<double>{
                 NAN,  infinity, 0.0,  tiny, 0.3,   1.3,   1.6,    3.5,    40.2,   171.9,  600.5,   1e306, -tiny,
                 -0.5, -1.5,     -2.7, -3.2, -14.5, -15.5, -30.25, -168.3, -181.5, -200.5, -1000.5, -3.0,  -1e300}) {
            const words lanes(4, word_of(lane_type::f64, x));
            auto under = [&](uint16_t control) {
                std::vector<words> results;
                call.in.x87_control = control;
                call({lanes}, results);
                EXPECT_EQ(call.out.x87_control, control) << name << " of " << x;
                EXPECT_EQ(call.out.x87_tag, 0xFFFF) << name << " of " << x;
                return results;
            };
            for (uint16_t rounding : {uint16_t(0), round_down})
                for (uint16_t short_significands : {0x07F, 0x27F})
                    EXPECT_EQ(under(short_significands | rounding), under(long_significands | rounding))
                        << name << " of " << x;
            rounded_down += under(long_significands | round_down) != under(long_significands);
        }
        EXPECT_GT(rounded_down, 0) << name;
    }
}

TEST(Gamma, LargestErrors) {
    struct range {
        const char* name;
        double lo, hi;
        bool by_exponent;
        extended_function reference;
    };
    std::map<std::string, worst> largest;
    truth t;
    for (const auto& [name, lo, hi, by_exponent, reference] :
         std::initializer_list<range>{{"tgamma", 0, 2, false, tgammal},
                                      {"tgamma", 2, 171.6, false, tgammal},
                                      {"tgamma", -186, 0, false, tgammal},
                                      {"tgamma", 1e-308, 1, true, tgammal},
                                      {"tgammaf", 0, 35, false, tgammal},
                                      {"tgammaf", -42, 0, false, tgammal},
                                      {"tgammaf", -6, 6, false, tgammal},
                                      {"tgammaf", 1e-38, 1, true, tgammal},
                                      {"lgamma", 0, 4, false, lgammal},
                                      {"lgamma", 4, 1e305, true, lgammal},
                                      {"lgamma", 1e-308, 1, true, lgammal},
                                      {"lgamma", 4, 520, false, lgammal},
                                      {"lgamma", -20, 0, false, lgammal},
                                      {"lgamma", -1000, -20, false, lgammal},
                                      {"lgammaf", 0, 4, false, lgammal},
                                      {"lgammaf", 4, 1e36, true, lgammal},
                                      {"lgammaf", -10, 0, false, lgammal},
                                      {"lgammaf", -8400, -10, false, lgammal}}) {
        sweep f(name);
        const auto w = sampled_error(f, t, spread(f.row().in, lo, hi, 250'000, by_exponent, 21), reference);
        if (w.ulps > largest[name].ulps) largest[name] = w;
    }
    for (const auto& [name, w] : largest)
        expect_error(name, bound_of(name), w);
}

TEST(Gamma, LongEveryFloatHasTheBitsOfTheSlowPath) {
    for (auto name : {"lgammaf", "tgammaf"}) {
        sweep f(name, "default", 16);
        words x(1 << 16);
        size_t different = 0, slow = 0;
        for (uint64_t from = 0; from < (uint64_t(1) << 32); from += x.size()) {
            for (size_t i = 0; i < x.size(); i++)
                x[i] = from + i;
            different += expect_bits_of_slow_path(f, x);
            slow += slow_lanes(f, x);
        }
        EXPECT_EQ(different, 0u) << name;
        printf("%s over all floats: %zu differences from the slow path, which decides %.3f%% of them\n", name,
               different, slow / 42949672.96);
    }
}

// One row in 16, and all margins that are no row's.
TEST(Gamma, RowsOfVectorPathsAreFitted) {
    EXPECT_EQ(std::system(ORVANE_TOOL_FOLDER "/fit-gamma --check --vector --sample " ORVANE_SOURCES), 0);
}

TEST(Gamma, LongEveryFloat) {
    check_all_floats({"tgammaf", "default", bound_of("tgammaf"), std::tgamma});
    check_all_floats({"lgammaf", "default", bound_of("lgammaf"), std::lgamma});
}

TEST(Gamma, LongFittedRowsAreWhatTheirProgramWrites) {
    EXPECT_EQ(std::system(ORVANE_TOOL_FOLDER "/fit-gamma --check " ORVANE_SOURCES), 0);
}

} // namespace
