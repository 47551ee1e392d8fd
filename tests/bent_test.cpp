// Kernels fed by the processor's 12-bit estimates, with any estimates that the instruction set allows. How far off
// results may be then is told beside the other errors (fed() in the tests of the families); here: that all these
// kernels are looked at, and that no argument, of any exponent or none, gives a result of another kind.
//
// Estimates pick entries of tables in the logarithms, the powers and cbrtf. What lies beside an entry's table in a
// block is no entry, so that an index outside would make a result wrong by far more than estimates do.
#include "support.h"

#include <Zydis/Zydis.h>
#include <bit>
#include <cmath>

using namespace orvane;

namespace {

bool has_estimate(object& in, const object::entry& f) {
    ZydisDecoder decoder;
    ZydisDecoderInit(&decoder, ZYDIS_MACHINE_MODE_LONG_64, ZYDIS_STACK_WIDTH_64);
    const auto* code = (const unsigned char*)in.symbol(f.name);
    for (uint64_t at = 0; at < f.size;) {
        ZydisDecodedInstruction i;
        if (!ZYAN_SUCCESS(ZydisDecoderDecodeInstruction(&decoder, nullptr, code + at, f.size - at, &i))) {
            ADD_FAILURE() << f.name << ": no instruction at " << at;
            return false;
        }
        if (i.mnemonic == ZYDIS_MNEMONIC_VRCPPS || i.mnemonic == ZYDIS_MNEMONIC_VRSQRTPS ||
            i.mnemonic == ZYDIS_MNEMONIC_VRCPSS || i.mnemonic == ZYDIS_MNEMONIC_VRSQRTSS)
            return true;
        at += i.length;
    }
    return false;
}

TEST(Bent, IsEveryKernelFedByEstimates) {
    for (const auto& f : bent_library().symbols())
        if (f.is_function) EXPECT_FALSE(has_estimate(bent_library(), f)) << f.name;
    int fed = 0;
    for (const auto& row : library_rows()) {
        const std::string name = plan_of(row, 8).symbol;
        for (const auto& f : library_under_test().symbols())
            if (f.name == name && has_estimate(library_under_test(), f)) {
                fed++;
                EXPECT_NE(bent_library().address(name), nullptr) << name << ": its source belongs in CMakeLists.txt";
            }
    }
    EXPECT_GT(fed, 50);
}

// Patterns of all kinds, and the neighbours of all powers of two, where estimates cross from one row of a table into
// the next and fall out of the first or the last.
std::vector<words> telling_arguments(const kernel_row& row) {
    rng r(91);
    auto x = random_patterns(row, 4000, r);
    const lane_type t = row.in;
    if (!is_floating(t)) return x;
    const int fraction = t == lane_type::f64 ? 52 : 23;
    const uint64_t exponents = t == lane_type::f64 ? 2047 : 255, sign = uint64_t(1) << (8 * size_of(t) - 1);
    auto add = [&](uint64_t w) {
        x[0].push_back(w);
        for (size_t j = 1; j < x.size(); j++)
            x[j].push_back(row.argument(j) == t ? word_of(t, std::ldexp(1.0 + r() % 64 / 64.0, int(r() % 8) - 4))
                                                : r() % 16 + 1);
    };
    for (uint64_t e = 0; e <= exponents; e += e + 8 < exponents / 2 || e > exponents / 2 + 8 ? 5 : 1)
        for (int i = -24; i < 24; i++) { // next to it, and further off by powers of two
            const int64_t off = i < -3 || i > 3 ? (int64_t(1) << (fraction - std::abs(i))) * (i < 0 ? -1 : 1) : i;
            add(((e << fraction) + off) & ~sign);
            add(((e << fraction) + off) | sign);
        }
    return x;
}

TEST(Bent, NoArgumentGivesAResultOfAnotherKind) {
    for (const auto& row : library_rows()) {
        if (!row.twin_name.empty() || !bent_library().address(plan_of(row, 8).symbol)) continue;
        const std::string name = std::string(row.name) + row.suffix();
        const bool fast = row.tier != "default", single = row.out == lane_type::f32;
        // How far estimates may take a result, with room to spare: the tests of the families hold the errors
        // themselves.
        const double apart = fast ? 0x1p-10 : single ? 0x1p-20 : 0x1p-48;
        auto x = telling_arguments(row);
        sweep f(row.name, row.tier), g(row.name, row.tier, 8, bent_library());
        const auto want = f(x);
        for (bend b : bends) {
            set_bend(b);
            const auto& got = g(x);
            int wrong = 0;
            for (size_t k = 0; k < want.size(); k++)
                for (size_t i = 0; i < want[k].size() && wrong < 5; i++) {
                    const uint64_t u = want[k][i], v = got[k][i];
                    if (u == v) continue;
                    // Reciprocals near the smallest normal number may be flushed.
                    if (row.name == "divf" && (x[1][i] & 0x7FFFFFFF) > 0x7E7FE800) continue;
                    const double a = value_of(row.result(k), u), c = value_of(row.result(k), v);
                    if (is_floating(row.out) && std::isfinite(a) &&
                        std::fabs(c - a) <=
                            apart * std::max(std::fabs(a), row.out == lane_type::f64 ? 0x1p-1022 : 0x1p-126))
                        continue;
                    wrong++;
                    ADD_FAILURE() << name << ", bend " << (int)b << std::hex << ": " << x[0][i] << ", " << x.back()[i]
                                  << " gave " << v << " for " << u;
                }
        }
    }
}

} // namespace
