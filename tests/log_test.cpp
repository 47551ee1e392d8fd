// log, log2, log10, log1p: exact figures, poles and domains, slow paths, and errors. The kernels are fed by the
// processor's reciprocal estimate in part: no bits are frozen.
#include "accuracy.h"

using namespace orvane;

namespace {

const std::initializer_list<std::string_view> logarithms = {"log", "log2", "log10", "log1p"};
bool is_log1p(const member& m) { return m.row->base() == "log1p"; }

TEST(Logarithms, PolesDomainsAndNan) {
    each_member(logarithms, [](const member& m) {
        const double pole = is_log1p(m) ? -1 : 0;
        EXPECT_EQ(m(pole), -HUGE_VAL);
        if (!is_log1p(m)) EXPECT_EQ(m(-0.0), -HUGE_VAL);
        EXPECT_EQ(m(HUGE_VAL), HUGE_VAL);
        for (double x : {-2.0, -1e30, -HUGE_VAL})
            EXPECT_EQ(m.of_words({m.word(x)}), m.quiet()) << x; // positive
        const uint64_t payload = m.type() == lane_type::f64 ? 0xFFF0000000000777 : 0xFF800777;
        EXPECT_EQ(m.of_words({payload}), payload | m.quiet());
    });
}

TEST(Logarithms, ExactZeros) {
    each_member(logarithms, [](const member& m) {
        if (is_log1p(m)) {
            for (double x : {0.0, -0.0})
                EXPECT_EQ(m.of_words({m.word(x)}), m.word(x));
            const double tiny = m.type() == lane_type::f64 ? 0x1p-1074 : 0x1p-149;
            EXPECT_EQ(m(tiny), tiny);
        } else EXPECT_EQ(m.of_words({m.word(1.0)}), 0u); // +0
    });
}

TEST(Logarithms, Figures) {
    EXPECT_EQ(word_for("log", "default", 2.0), 0x3FE62E42FEFA39EFu);
    for (int k = -1074; k < 1024; k++)
        EXPECT_EQ(value_for("log2", "default", std::ldexp(1.0, k)), k);
    for (int k = -149; k < 128; k++)
        EXPECT_EQ(value_for("log2f", "default", std::ldexp(1.0, k)), k);
    for (auto tier : {"default", "native", "half"}) {
        EXPECT_EQ(value_for("log", tier, 0x1p-1074), -744.4400719213812);
        EXPECT_EQ(value_for("logf", tier, 0x1p-149), (float)-103.27892990343184);
    }
}

TEST(Logarithms, StatusCodes) {
    each_member(logarithms, [](const member& m) {
        EXPECT_EQ(m.status(is_log1p(m) ? -1 : 0), 2);
        EXPECT_EQ(m.status(-3), 1);
        EXPECT_EQ(m.status(-HUGE_VAL), 1);
        EXPECT_EQ(m.status(HUGE_VAL), 0);
        EXPECT_EQ(m.status(is_log1p(m) ? 1e37 : 1e-40), 0);
    });
}

// On subnormals, and on what is too large for log1p's kernels.
TEST(Logarithms, SlowPaths) {
    truth t;
    struct lanes_of {
        const char* name;
        uint64_t first, last;
        double bound;
        extended_function reference;
    };
    for (const auto& [name, first, last, bound, reference] :
         {lanes_of{"log", 1, 0x000FFFFFFFFFFFFF, 0.5001, logl},
          {"log2", 1, 0x000FFFFFFFFFFFFF, 0.5001, log2l},
          {"log10", 1, 0x000FFFFFFFFFFFFF, 0.5001, log10l},
          {"logf", 1, 0x007FFFFF, 0.5001, logl},
          {"log2f", 1, 0x007FFFFF, 0.536, log2l},
          {"log10f", 1, 0x007FFFFF, 0.529, log10l},
          {"log1p", 0x7F40000000000000, 0x7FEFFFFFFFFFFFFF, 0.5001, log1pl},
          {"log1pf", 0x7A800001, 0x7F7FFFFF, 0.5001, log1pl}}) {
        sweep f(name);
        rng r(31);
        words x;
        for (int i = 0; i < 300'000; i++) {
            const uint64_t w = first + r() % (last - first + 1);
            x.push_back(i % 2 ? w : std::max(first, w >> r() % 50));
        }
        expect_error(std::string(name) + " slow path", bound, sampled_error(f, t, x, reference));
    }
}

TEST(Logarithms, LargestErrors) {
    for (const auto& a : {accuracy{"log", "default", fed(0.503, 0.504), 0x1p-1022, 1e308, logl, true},
                          {"log", "default", known(2.04), 0.5, 2, logl, true},
                          {"logf", "default", known(), 1.2e-38, 3e38, logl, true},
                          {"logf", "default", known(), 0.5, 2, logl, true},
                          {"logf", "half", known(), 0.5, 2, logl, true},
                          {"logf", "native", known(), 0.5, 2, logl, true},
                          {"log2", "default", known(0.5001), 0x1p-1022, 1e308, log2l, true},
                          {"log2", "default", known(0.502), 0.5, 2, log2l, true},
                          {"log2f", "default", known(), 0.5, 2, log2l, true},
                          {"log2f", "native", known(), 0.5, 2, log2l, true},
                          {"log10", "default", known(0.5001), 0x1p-1022, 1e308, log10l, true},
                          {"log10", "default", known(0.539), 0.5, 2, log10l, true},
                          {"log10f", "default", known(), 0.5, 2, log10l, true},
                          {"log10f", "native", known(), 0.5, 2, log10l, true},
                          {"log1p", "default", known(1.05), 1e-20, 1e300, log1pl, true},
                          {"log1p", "default", known(2.18), -0.9, 2, log1pl},
                          {"log1pf", "default", known(), -0.9, 2, log1pl},
                          {"log1pf", "default", known(), 1e-20, 1e35, log1pl, true},
                          {"log1pf", "native", known(), -0.9, 2, log1pl},
                          {"log", "native", fed(1720, 3266), 2, 1e308, logl, true},
                          {"log", "native", fed(2.08e6, 7.44e6), 0.5, 2, logl},
                          {"log2", "native", fed(2480, 4713), 2, 1e308, log2l, true},
                          {"log2", "native", known(1.07e7), 0.5, 2, log2l},
                          {"log10", "native", fed(1500, 3113), 2, 1e308, log10l, true},
                          {"log10", "native", known(8.58e6), 0.5, 2, log10l},
                          {"log1p", "native", fed(2160, 3410), 1, 1e300, log1pl, true},
                          {"log1p", "native", fed(2.1e6, 7.5e6), -0.9, 2, log1pl}})
        check_accuracy(a);
}

TEST(Logarithms, LongEveryFloat) {
    for (const auto& a : {float_accuracy{"logf", "default", known(), std::log},
                          {"logf", "native", known(), std::log},
                          {"logf", "half", known(), std::log},
                          {"log2f", "default", known(), std::log2},
                          {"log2f", "native", known(), std::log2},
                          {"log10f", "default", known(), std::log10},
                          {"log10f", "native", known(), std::log10},
                          {"log1pf", "default", known(), std::log1p}})
        check_all_floats(a);
}

} // namespace
