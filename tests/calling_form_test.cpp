// The calling form of every export, at the level of registers: every register filled with garbage before the
// call and looked at after it, on the ordinary and on the special path.
#include "support.h"

#include <cfenv>
#include <unwind.h>

using namespace orvane;

namespace {

constexpr int guard = 64; // bytes before and after every object that an export may write

class CallingForm : public testing::TestWithParam<subject> {};

// A lane caller whose registers hold garbage and whose objects are misaligned, between guards.
struct careful_call {
    careful_call(const subject& s, int width, rng& r) : c(s.caller(width)), random(r) {
        for (auto* o : {&out_bytes, &result_bytes})
            o->resize(2 * guard + 128 + 1);
        out_size = c.own_out_object.size();
        result_size = c.plan().result_bytes;
    }

    void fill() {
        for (auto& v : c.in.vector)
            for (auto& b : v)
                b = random();
        for (auto& g : c.in.integer)
            g = random();
        for (auto& b : out_bytes)
            b = random();
        for (auto& b : result_bytes)
            b = random();
        out_bytes.resize(2 * guard + out_size + 1), result_bytes.resize(2 * guard + result_size + 1);
        c.out_object = out_bytes.data() + guard + 1; // one byte off any alignment
        out_before = out_bytes;
        result_before = result_bytes;
    }

    // Calls, checks everything but the lanes, and returns these.
    std::vector<words> operator()(const std::vector<words>& arguments, uint32_t mxcsr, size_t residue) {
        const call_plan& p = c.plan();
        c.in.mxcsr = mxcsr;
        fill();
        c.place_arguments(arguments);
        if (p.memory_form) c.in.integer[rdi] = (uint64_t)(result_bytes.data() + guard + 1);
        c.call(residue);

        for (int v = 8; v < 16 && !p.memory_form; v++)
            EXPECT_EQ(memcmp(c.in.vector[v], c.out.vector[v], 32), 0) << "vector register " << v;
        for (int g : {rbx, rbp, r12, r13, r14, r15})
            EXPECT_EQ(c.in.integer[g], c.out.integer[g]) << "register " << g;
        if (!p.memory_form) {
            // rdi and rsi are kept, unless an argument travels there.
            int taken = p.out_register >= 0;
            for (const place& a : p.arguments)
                taken += a.where == place::in::integer_register;
            if (taken < 1) EXPECT_EQ(c.in.integer[rdi], c.out.integer[rdi]) << "rdi";
            if (taken < 2) EXPECT_EQ(c.in.integer[rsi], c.out.integer[rsi]) << "rsi";
        }
        EXPECT_EQ(c.out.integer[rsp], c.out.called_at) << "stack pointer";
        EXPECT_EQ(c.out.called_at % 64, residue);
        EXPECT_EQ(c.out.mxcsr & ~0x3Fu, mxcsr & ~0x3Fu) << "control bits of MXCSR";
        EXPECT_EQ(c.out.x87_control, c.in.x87_control);
        EXPECT_EQ(c.out.x87_tag, 0xFFFF) << "the x87 register stack is not empty";
        EXPECT_EQ(c.out.flags & 0x400, 0u) << "direction flag";

        const bool clears_low =
            p.row->sclass == signature_class::integer || p.row->sclass == signature_class::integer_pair;
        static const unsigned char zero[16] = {};
        for (int v = 0; v < 16; v++)
            if (p.memory_form || (clears_low && p.width == 1 && v < 8))
                EXPECT_EQ(memcmp(c.out.vector[v] + 16, zero, 16), 0) << "upper half of vector register " << v;
        if (p.memory_form) EXPECT_EQ(c.out.integer[rax], c.in.integer[rdi]) << "the result pointer comes back in rax";

        // Objects are written to their size and not a byte further.
        auto untouched = [&](auto& before, auto& after, size_t size, const char* what) {
            EXPECT_EQ(memcmp(before.data(), after.data(), guard + 1), 0) << "bytes before the " << what;
            EXPECT_EQ(memcmp(before.data() + guard + 1 + size, after.data() + guard + 1 + size,
                             before.size() - size - guard - 1),
                      0)
                << "bytes after the " << what;
        };
        untouched(out_before, out_bytes, p.out_register >= 0 ? out_size : 0, "out-object");
        untouched(result_before, result_bytes, result_size, "result object");

        if (p.memory_form) c.result_object.assign(result_bytes.begin() + guard + 1, result_bytes.end() - guard);
        std::vector<words> r;
        c.take_results(r);
        return r;
    }

    lane_caller c;
    rng& random;
    std::vector<unsigned char> out_bytes, result_bytes, out_before, result_before;
    size_t out_size, result_size;
};

// Lanes 0 to W - 1 must be `want`; the spare lane is looked at by itself.
void expect_lanes(const std::vector<words>& got, const std::vector<words>& want, int width, const char* what) {
    ASSERT_EQ(got.size(), want.size());
    for (size_t j = 0; j < got.size(); j++)
        for (int i = 0; i < width; i++)
            EXPECT_EQ(got[j][i], want[j][i])
                << std::hex << what << ", width " << width << ", result " << j << ", lane " << i;
}

constexpr uint32_t default_mode = 0x1F80;
constexpr uint32_t modes[] = {default_mode, default_mode | 0x2000, default_mode | 0x4000, default_mode | 0x6000,
                              default_mode |
                                  0x8040}; // the four rounding modes; flush-to-zero with denormals-are-zero

TEST_P(CallingForm, OrdinaryPath) {
    const subject s = GetParam();
    rng r(1);
    for (int w : widths) {
        SCOPED_TRACE("width " + std::to_string(w));
        careful_call call(s, w, r);
        for (uint32_t mode : modes)
            for (size_t residue : {0, 16, 32, 48}) {
                auto a = ordinary_arguments(*s.row, stored_lanes(w), r);
                expect_lanes(call(a, mode, residue), by_single_lanes(s, a, mode), w, "ordinary lanes");
            }
    }
}

TEST_P(CallingForm, SpecialPath) {
    const subject s = GetParam();
    if (s.row->special.empty()) {
        EXPECT_FALSE(s.row->has_slow_path()) << "a row with a slow path names one special argument";
        return;
    }
    rng r(2);
    for (int w : widths) {
        careful_call call(s, w, r);
        const auto special = special_arguments(*s.row, stored_lanes(w));
        // All lanes special, then one at each position, under each mode and alignment.
        for (int position = -1; position < w; position++) {
            auto a = position < 0 ? special : ordinary_arguments(*s.row, stored_lanes(w), r);
            for (size_t j = 0; j < a.size() && position >= 0; j++)
                a[j][position] = special[j][0];
            const uint32_t mode = modes[(position + 1) % 5];
            const size_t residue = 16 * ((position + 1) % 4);
            expect_lanes(call(a, mode, residue), by_single_lanes(s, a, mode), w, "special lanes");
        }
    }
}

// The slow path gets the lane, and its answer comes back. (The probes share slow paths under other names.)
TEST_P(CallingForm, SlowPathAnswers) {
    const subject s = GetParam();
    if (s.row->special.empty() || s.in == &probe_library()) return;
    const auto special = special_arguments(*s.row, 1);
    std::vector<uint64_t> lane;
    for (const auto& a : special)
        lane.push_back(a[0]);
    // A slow path may keep what the vector path has put into the result lane: then the one-lane export gives the
    // value.
    const auto one = by_single_lanes(s, special);
    const auto direct = call_slow_path(*s.in, *s.row, lane, one[0][0]);
    const uint64_t mask = size_of(s.row->result(0)) == 4 ? 0xFFFFFFFF : ~uint64_t(0);
    EXPECT_EQ(one[0][0], direct.result & mask) << std::hex;
}

// The spare lane of a 3-wide vector: whatever the caller has there, the kernel computes its own value.
TEST_P(CallingForm, SpareLane) {
    const subject s = GetParam();
    rng r(4);
    careful_call call(s, 3, r);
    std::vector<words> spare;
    for (int j = 0; j < s.row->arguments(); j++)
        spare.push_back({word_of(s.row->argument(j), s.row->spare)});
    auto want = by_single_lanes(s, spare);
    if (s.row->sclass == signature_class::bits_to_nan && s.row->name.starts_with("nanf")) want[0][0] = 0;
    for (int pass = 0; pass < 6; pass++) {
        auto a = ordinary_arguments(*s.row, 4, r);
        for (size_t j = 0; j < a.size(); j++) {
            const uint64_t foul[] = {0,   ~uint64_t(0), word_of(s.row->argument(j), -1e30),
                                     r(), r(),          s.row->special.empty() ? 0 : s.row->special[j]};
            a[j][3] = foul[pass];
        }
        const auto got = call(a, default_mode, 0);
        for (size_t j = 0; j < got.size(); j++)
            EXPECT_EQ(got[j][3], want[j][0]) << std::hex << "result " << j;
    }
}

FOR_ALL_BUILT(CallingForm);

// An unwinder finds its way out of a slow path, through wrapper, aligned frame and caller.
std::vector<uintptr_t> trace;
bool at_end;
void take_trace() {
    trace.clear();
    const auto code = _Unwind_Backtrace(
        [](_Unwind_Context* c, void*) {
            trace.push_back(_Unwind_GetIP(c));
            return _URC_NO_REASON;
        },
        nullptr);
    at_end = code == _URC_END_OF_STACK;
}

class Unwinding : public testing::TestWithParam<subject> {};

TEST_P(Unwinding, OutOfTheSlowPath) {
    const subject s = GetParam();
    auto** hook = (void (**)())s.in->symbol("orvane_probe_hook");
    ASSERT_NE(hook, nullptr);
    take_trace();
    const size_t depth_here = trace.size();
    rng r(5);
    for (int w : widths) {
        auto caller = s.caller(w);
        const auto a = special_arguments(*s.row, stored_lanes(w));
        std::vector<words> results;
        for (size_t residue : {0, 16, 32, 48}) {
            *hook = take_trace;
            trace.clear();
            caller.place_arguments(a);
            caller.call(residue);
            *hook = nullptr;
            const auto kernel = (uintptr_t)s.in->address(caller.plan().symbol);
            const auto wrapper = (uintptr_t)s.in->symbol(caller.plan().wrapper_symbol());
            auto passes = [&](uintptr_t f, size_t size) {
                return std::any_of(trace.begin(), trace.end(), [&](uintptr_t ip) { return ip > f && ip - f < size; });
            };
            auto size_of_symbol = [&](const std::string& name) {
                for (const auto& e : s.in->symbols())
                    if (e.name == name) return (size_t)e.size;
                return size_t(0);
            };
            EXPECT_TRUE(passes(kernel, size_of_symbol(caller.plan().symbol))) << "width " << w;
            EXPECT_TRUE(passes(wrapper, size_of_symbol(caller.plan().wrapper_symbol()))) << "width " << w;
            EXPECT_TRUE(at_end) << "width " << w << ", residue " << residue;
            EXPECT_GT(trace.size(), depth_here) << "width " << w;
        }
    }
}

std::vector<subject> with_slow_path() {
    std::vector<subject> some;
    for (const auto& row : probe_rows())
        if (row.has_slow_path()) some.push_back({&row, &probe_library()});
    return some;
}
INSTANTIATE_TEST_SUITE_P(Probes, Unwinding, testing::ValuesIn(with_slow_path()), name_of);

} // namespace
