// Every kernel and every slow path against recorded digests of its results, over arguments by rule.
#include "digests.h"

#include "tools/estimates.h"
#include "tools/whole_file.h"

using namespace orvane;

namespace {

std::string described(const digested& d, const group& g) {
    std::string text = d.name + ": " + g.name() + ":";
    for (size_t i = g.first; i < g.last; i += (g.last - g.first + 7) / 8) {
        text += i == g.first ? " " : ", ";
        for (size_t j = 0; j < g.of->arguments.size(); j++) {
            char word[20];
            snprintf(word, sizeof word, "%s0x%llx", j ? " " : "", (unsigned long long)g.of->arguments[j][i]);
            text += word;
        }
    }
    return text + " and those between";
}

template <class F> void compare(const digested& d, const std::vector<uint64_t>* want, const char* what, F digest) {
    ASSERT_TRUE(want) << d.name << ": no digests of " << what << "; the target `recorded` writes them";
    ASSERT_EQ(want->size(), d.groups.size())
        << d.name << ": recorded over other arguments, since a constant of its blocks or a rule has changed";
    for (size_t i = 0; i < d.groups.size(); i++) {
        if (!d.takes_estimates && d.groups[i].of->name == two_nans && !first_nan_wins()) continue;
        EXPECT_EQ(digest(d.groups[i]), (*want)[i])
            << std::hex << "other " << what << ": " << described(d, d.groups[i]);
    }
}

const std::vector<uint64_t>* found(const std::map<std::string, std::vector<uint64_t>>& in, const std::string& name) {
    const auto at = in.find(name);
    return at == in.end() ? nullptr : &at->second;
}

TEST(Digests, AreThoseRecorded) {
    private_copy marking;
    marking.mark_special_lanes();
    std::string set_aside;
    for (auto& d : everything_digested(library_under_test())) {
        if (d.takes_estimates && !is_recorded_kind()) {
            set_aside += " " + d.name + ",";
            continue;
        }
        give_arguments(d);
        const recorded& r = recorded_digests(d.takes_estimates);
        digester here(library_under_test(), d), marked(marking.in(), d);
        compare(d, found(r.results, d.name), "results", [&](const group& g) { return here.results(g); });
        if (!d.is_slow_path && d.row->has_slow_path() && d.row->path != kernel_path::all_lanes)
            compare(d, found(r.special_lanes, d.name), "special lanes",
                    [&](const group& g) { return marked.special_lanes(g); });
    }
    if (!first_nan_wins())
        puts("set aside, since of two NaN this processor returns another than the first: the groups \"two NaN\"");
    if (!set_aside.empty())
        printf("set aside, since no digests are recorded for processors with these estimates (%s):%s by error bounds "
               "alone\n",
               kind_of_processor().c_str(), set_aside.c_str());
}

// Every byte of every block and table and of the constants beside the code, those that no result shows too.
TEST(Digests, OfConstantsAreThoseRecorded) {
    if (__GNUC__ != 12) GTEST_SKIP() << "recorded for GCC 12: the compiler decides which constants have a name";
    auto lines = [](const std::string& text) {
        std::set<std::string> all;
        std::istringstream in(text);
        for (std::string line; std::getline(in, line);)
            if (!line.starts_with("#")) all.insert(line);
        return all;
    };
    const auto want = lines(contents_of(constants_file())), have = lines(lines_of_constants(library_under_test()));
    EXPECT_GT(have.size(), 200u);
    for (const auto& line : want)
        EXPECT_TRUE(have.contains(line)) << "other constants, or none of that name: " << line;
    for (const auto& line : have)
        EXPECT_TRUE(want.contains(line)) << "not recorded: " << line;
}

} // namespace
