// Unwinding at every instruction. Exports are run step by step by the processor's trap flag; at each new instruction
// of the library an unwinder must find the caller: its return address, its stack pointer and the registers that calls
// keep. Kernels that realign their frame, wrappers and slow paths are walked on the way.
#include "support.h"

#include <algorithm>
#include <csignal>
#include <set>
#include <ucontext.h>
#include <unwind.h>

using namespace orvane;

namespace {

struct walk {
    uint64_t from, to; // the library's code
    const machine_state* in;
    bool on = false;
    uint64_t returns_to, stack_pointer; // of the call at hand, seen at its first instruction
    bool inside = false;
    std::vector<unsigned char> walked; // by the offset of the instruction: how often
    std::vector<uint64_t> wrong;       // the offsets at which an unwinder is misled
    const char* what = nullptr;        // ... by what, the last time

    static constexpr int times = 3; // an instruction is looked at in so many calls

    bool finds_the_caller() {
        what = "the caller's frame is not found";
        _Unwind_Backtrace(
            [](_Unwind_Context* c, void* p) {
                auto& w = *(walk*)p;
                if (_Unwind_GetIP(c) != w.returns_to) return _URC_NO_REASON;
                w.what = nullptr;
                if (_Unwind_GetCFA(c) != w.stack_pointer) w.what = "stack pointer";
                const struct {
                    int number; // in unwind tables
                    gpr is;
                    const char* name;
                } kept[] = {{3, rbx, "rbx"},  {6, rbp, "rbp"},  {12, r12, "r12"},
                            {13, r13, "r13"}, {14, r14, "r14"}, {15, r15, "r15"}};
                for (const auto& k : kept)
                    if (_Unwind_GetGR(c, k.number) != w.in->integer[k.is]) w.what = k.name;
                return _URC_END_OF_STACK;
            },
            this);
        return !what;
    }

    void step(ucontext_t& at) {
        auto& r = at.uc_mcontext.gregs;
        r[REG_EFL] = on ? r[REG_EFL] | 0x100 : r[REG_EFL] & ~0x100;
        const uint64_t ip = r[REG_RIP];
        if (!on || ip < from || ip >= to) return;
        if (!inside) {
            inside = true;
            returns_to = *(const uint64_t*)r[REG_RSP];
            stack_pointer = r[REG_RSP] + 8;
        }
        if (walked[ip - from] == times) return;
        walked[ip - from]++;
        if (!finds_the_caller() && wrong.size() < wrong.capacity()) wrong.push_back(ip - from);
    }
} now;

// Walks the exports for which `wanted` holds, at all widths; gives the number of instructions walked.
template <class W> size_t walk_exports(W wanted) {
    object& library = library_under_test();
    now = {};
    now.from = library.loaded_at();
    uint64_t end = 0;
    for (const auto& s : library.symbols())
        if (s.is_function) end = std::max(end, s.value + s.size);
    now.to = now.from + end;
    now.walked.resize(end);
    now.wrong.reserve(64);

    struct sigaction act = {}, before;
    act.sa_sigaction = [](int, siginfo_t*, void* at) { now.step(*(ucontext_t*)at); };
    act.sa_flags = SA_SIGINFO;
    sigaction(SIGTRAP, &act, &before);
    rng r(16);
    for (const auto& s : built_subjects()) {
        if (s.in != &library || !wanted(*s.row)) continue;
        for (int w : widths) {
            auto call = s.caller(w);
            for (int pass = 0; pass < 5; pass++) {
                auto a = pass == 0                              ? ordinary_arguments(*s.row, stored_lanes(w), r)
                         : pass == 1 && !s.row->special.empty() ? special_arguments(*s.row, stored_lanes(w))
                                                                : random_patterns(*s.row, stored_lanes(w), r);
                for (auto& g : call.in.integer)
                    g = r();
                call.place_arguments(a);
                now.in = &call.in;
                now.inside = false;
                now.on = true;
                raise(SIGTRAP); // the handler sets the trap flag, and clears it at the next step when `on` is false
                call.call(16 * (pass % 4));
                now.on = false;
                EXPECT_TRUE(now.inside) << s.row->name << " width " << w;
            }
        }
    }
    sigaction(SIGTRAP, &before, nullptr);

    for (uint64_t at : now.wrong) {
        const auto& all = library.symbols();
        const auto in = std::find_if(
            all.begin(), all.end(), [&](auto& f) { return f.is_function && at >= f.value && at < f.value + f.size; });
        ADD_FAILURE() << std::hex << "at " << at << ", " << (in == all.end() ? "?" : in->name) << " + "
                      << (in == all.end() ? 0 : at - in->value) << (now.what ? std::string(": ") + now.what : "");
    }
    return now.walked.size() - std::count(now.walked.begin(), now.walked.end(), 0);
}

// Families whose kernels realign their frame for the special path or in the memory form.
TEST(Unwinding, FindsTheCallerFromEveryInstructionOfASample) {
    const std::set<std::string_view> sample = {"sincosf", "expf", "fmin"};
    EXPECT_GT(walk_exports([&](const kernel_row& row) { return sample.contains(row.name) && row.tier == "default"; }),
              1000u);
}

TEST(Unwinding, LongFindsTheCallerFromEveryInstructionOfEveryExport) {
    EXPECT_GT(walk_exports([](const kernel_row&) { return true; }), 200000u);
}

} // namespace
