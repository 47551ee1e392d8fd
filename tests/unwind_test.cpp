// Unwinding at every instruction. Exports are run step by step by the processor's trap flag; at each new instruction
// of the library an unwinder must find the caller: its return address, its stack pointer and the registers that calls
// keep. Kernels that realign their frame, wrappers and slow paths are walked on the way. A child process walks, since
// a wrong rule may lead the unwinder astray for good.
#include "support.h"

#include <algorithm>
#include <csignal>
#include <iostream>
#include <set>
#include <sstream>
#include <sys/mman.h>
#include <sys/wait.h>
#include <ucontext.h>
#include <unwind.h>

using namespace orvane;

namespace {

// What the child leaves to its parent, in memory that they share.
struct findings {
    uint64_t walked; // different instructions
    uint64_t at;     // the offset of the instruction that is looked at
    size_t wrongs;
    struct {
        uint64_t at;
        const char* what;
    } wrong[64]; // instructions at which an unwinder is misled, and by what
};

struct walk {
    findings* found;
    uint64_t from, to; // the library's code
    const machine_state* in;
    bool on = false;
    uint64_t returns_to, stack_pointer; // of the call at hand, seen at its first instruction
    bool inside = false;
    std::vector<unsigned char> walked; // by the offset of the instruction: how often
    const char* what = nullptr;        // by what an unwinder is misled

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
        if (!walked[ip - from]++) found->walked++;
        found->at = ip - from;
        if (!finds_the_caller() && found->wrongs < std::size(found->wrong))
            found->wrong[found->wrongs++] = {ip - from, what};
    }
} now;

// Walks the exports for which `wanted` holds, at all widths.
template <class W> void walk_exports(W wanted, findings& found) {
    object& library = library_under_test();
    now = {};
    now.found = &found;
    now.from = library.loaded_at();
    uint64_t end = 0;
    for (const auto& s : library.symbols())
        if (s.is_function) end = std::max(end, s.value + s.size);
    now.to = now.from + end;
    now.walked.resize(end);

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
                if (!now.inside) _exit(1);
            }
        }
    }
    sigaction(SIGTRAP, &before, nullptr);
}

// The number of instructions walked, by a child; what it found wrong is a failure here.
template <class W> size_t instructions_unwound(W wanted) {
    const object& library = library_under_test();
    auto& found =
        *(findings*)mmap(nullptr, sizeof(findings), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    const pid_t child = fork();
    if (!child) {
        walk_exports(wanted, found);
        _exit(0);
    }
    int status;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    auto place_of = [&](uint64_t at) {
        std::ostringstream s;
        for (const auto& f : library.symbols())
            if (f.is_function && at >= f.value && at < f.value + f.size) {
                s << f.name << std::hex << " + 0x" << at - f.value;
                break; // twins have the same code
            }
        return s.str();
    };
    for (size_t i = 0; i < found.wrongs; i++)
        ADD_FAILURE() << place_of(found.wrong[i].at) << ": " << found.wrong[i].what;
    const bool astray = WIFSIGNALED(status);
    EXPECT_FALSE(astray) << place_of(found.at) << ": the unwinder itself ends with signal " << WTERMSIG(status);
    EXPECT_FALSE(WIFEXITED(status) && WEXITSTATUS(status)) << "a call was not stepped";
    std::cout << "unwound at " << found.walked << " instructions\n";
    return found.walked;
}

// Families whose kernels realign their frame for the special path or in the memory form.
TEST(Unwinding, FindsTheCallerFromEveryInstructionOfASample) {
    const std::set<std::string_view> sample = {"sincosf", "expf", "fmin"};
    EXPECT_GT(instructions_unwound(
                  [&](const kernel_row& row) { return sample.contains(row.name) && row.tier == "default"; }),
              1000u);
}

TEST(Unwinding, LongFindsTheCallerFromEveryInstructionOfEveryExport) {
    EXPECT_GT(instructions_unwound([](const kernel_row&) { return true; }), 200000u);
}

} // namespace
