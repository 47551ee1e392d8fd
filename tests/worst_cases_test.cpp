// The largest known errors of data/worst_cases.txt, measured again, and what is said of them elsewhere.
#include "tools/extended.h"
#include "tools/opencl_limits.h"
#include "tools/whole_file.h"
#include "tools/worst_cases.h"

#include "accuracy.h"

#include <set>

using namespace orvane;

namespace {

const std::string file = ORVANE_SOURCES "/data/worst_cases.txt";

void measure_again(const std::vector<worst_case>& rows) {
    truth t;
    for (const auto& w : rows) {
        SCOPED_TRACE(line_of(w));
        one_lane kernel(*w.row, library_under_test());
        kernel(w.arguments);
        EXPECT_EQ(to_string(kernel.path()), to_string(w.path));
        EXPECT_EQ(to_string(measure_of(*w.row, w.path)), to_string(w.measure));
        EXPECT_NEAR(kernel.error(t, w.measure), w.error, 1e-5 * w.error);
        EXPECT_EQ(w.estimates != 0, kernel.is_fed_by_estimates() && w.path != lane_path::slow);
    }
}
std::vector<worst_case> rows_of(uint64_t estimates) {
    auto rows = read_worst_cases(file);
    std::erase_if(rows, [&](const worst_case& w) { return w.estimates != estimates; });
    return rows;
}

TEST(WorstCases, OnAnyProcessor) { measure_again(rows_of(0)); }
TEST(WorstCases, OnProcessorsWithTheseEstimates) {
    const auto rows = rows_of(estimates_of_this_processor());
    if (rows.empty()) GTEST_SKIP() << "the file has no rows for a processor with these estimates";
    measure_again(rows);
}

// All that is not exact, or rounded once, has its rows, one for each path and kind of processor.
TEST(WorstCases, CoverEveryKernelThatRounds) {
    std::set<std::tuple<const kernel_row*, lane_path, uint64_t>> rows;
    std::set<std::pair<const kernel_row*, lane_path>> paths;
    for (const auto& w : read_worst_cases(file)) {
        EXPECT_TRUE(rows.insert({w.row, w.path, w.estimates}).second) << "twice: " << line_of(w);
        EXPECT_TRUE(w.row->twin_name.empty()) << "a twin: " << line_of(w);
        paths.insert({w.row, w.path});
    }
    const std::set<std::string> rounded_once{"div", "inv", "sqrt"}; // in double, and their default tiers
    for (const auto& row : library_rows()) {
        if (!row.twin_name.empty() || !extended_reference_of(row)) continue;
        if (rounded_once.contains(row.base()) && (row.tier == "default" || row.in == lane_type::f64)) continue;
        const bool scalar = row.path == kernel_path::all_lanes;
        EXPECT_TRUE(paths.contains({&row, scalar ? lane_path::slow : lane_path::vector})) << row.name << row.suffix();
        EXPECT_EQ(paths.contains({&row, lane_path::large}), std::isfinite(large_from(row)))
            << row.name << row.suffix();
    }
}

TEST(WorstCases, StandAboveTheExportsOfTheirKernels) {
    const auto rows = read_worst_cases(file);
    int placed = 0;
    for (const auto& source : sources_with_error_lines(ORVANE_SOURCES)) {
        const std::string text = contents_of(source);
        EXPECT_EQ(text, with_error_lines(text, rows, &placed))
            << source << ": build/orvane-search --lines writes them";
    }
    EXPECT_EQ(placed, (int)rows.size());
}

// Every width gives a worst case the bits that one lane gives it, and no error is beyond what OpenCL C allows.
TEST(WorstCases, AreWithinTheLimitsOfOpenClAtEveryWidth) {
    truth t;
    std::set<const kernel_row*> held;
    const auto cases = read_worst_cases(file);
    for (const auto& row : library_rows()) {
        const auto limit = limit_of(row);
        if (!limit || limit->condition != limit_condition::none) continue;
        const kernel_row* kernel =
            row.twin_name.empty() ? &row : find_row(library_rows(), row.twin_name, row.twin_tier);
        for (const auto& w : cases) {
            if (w.row != kernel) continue;
            SCOPED_TRACE(std::string(row.name) + row.suffix() + " at " + line_of(w));
            held.insert(&row);
            ASSERT_TRUE(t(row, w.arguments.data()));
            std::vector<words> one, results;
            for (int width : widths) {
                const auto plan = plan_of(row, width);
                lane_caller call(plan, library_under_test().address(plan.symbol));
                std::vector<words> arguments;
                for (uint64_t a : w.arguments)
                    arguments.emplace_back(stored_lanes(width), a);
                call(arguments, results);
                if (width == 1) one = results;
                for (size_t j = 0; j < results.size(); j++)
                    for (int i = 0; i < width; i++) {
                        EXPECT_EQ(results[j][i], one[j][0]) << "width " << width << " lane " << i;
                        if (is_floating(row.result(j)))
                            EXPECT_LE(t.error(j, row.result(j), results[j][i]), limit->ulp) << "width " << width;
                    }
            }
        }
        const bool is_rounded_once = std::set<std::string>{"div", "inv", "sqrt"}.contains(row.base());
        EXPECT_TRUE(held.contains(&row) || is_rounded_once) << row.name << row.suffix() << " has a limit and no case";
    }
    EXPECT_GT(held.size(), 80u);
}

// Limits that depend on the argument, of the relaxed tiers: worst cases and drawn arguments, at every width.
TEST(WorstCases, RelaxedTiersAreWithinTheirLimitsAtEveryWidth) {
    rng r(23);
    int held = 0;
    const auto cases = read_worst_cases(file);
    for (const auto& row : library_rows()) {
        const auto limit = limit_of(row);
        if (!limit || limit->condition == limit_condition::none) continue;
        const auto* reference = extended_reference_of(row);
        ASSERT_TRUE(reference) << row.name;
        held++;
        std::vector<words> x(row.arguments());
        for (const auto& w : cases)
            if (w.row->name == row.name)
                for (size_t j = 0; j < x.size(); j++)
                    x[j].push_back(w.arguments[j]);
        for (int j = 0; j < row.arguments(); j++) {
            std::uniform_real_distribution<double> ordinary(row.range[2 * j], row.range[2 * j + 1]), size(-120, 120),
                around_zero(-4, 4);
            for (int i = 0; i < 3000; i++) {
                const double sizes[] = {ordinary(r), around_zero(r), std::exp2(size(r))};
                x[j].push_back(word_of(row.argument(j), sizes[i % 3]));
            }
        }
        x[0].resize(x[0].size() / 48 * 48);
        for (int width : widths) {
            const auto plan = plan_of(row, width);
            lane_caller call(plan, library_under_test().address(plan.symbol));
            std::vector<words> arguments(x.size()), results;
            for (size_t from = 0; from + width <= x[0].size(); from += width) {
                for (size_t j = 0; j < x.size(); j++) {
                    arguments[j].assign(x[j].begin() + from, x[j].begin() + from + width);
                    arguments[j].resize(stored_lanes(width), arguments[j][0]);
                }
                call(arguments, results);
                for (int i = 0; i < width; i++) {
                    const double a = value_of(row.in, arguments[0][i]);
                    const double b = x.size() > 1 ? value_of(row.argument(1), arguments[1][i]) : 0;
                    for (size_t k = 0; k < results.size(); k++) {
                        const long double v = k ? reference->second(a, b) : reference->value(a, b);
                        const double ulps = approximate_ulps(row.result(k), results[k][i], v);
                        const double off = std::isfinite(ulps) && std::isfinite(v)
                                               ? std::fabs(value_of(row.result(k), results[k][i]) - v)
                                               : ulps;
                        if (!limit->allows(x.size() > 1 ? b : a, ulps, off))
                            ADD_FAILURE()
                                << row.name << row.suffix() << " at " << a << ", " << b << ", width " << width << ": "
                                << ulps << " ulp, " << off << ", the limit is " << limit->text();
                    }
                }
            }
        }
    }
    EXPECT_GE(held, 9);
}

// What callers are told of families without rows, which are exact or rounded once: arguments of all kinds.
TEST(WorstCases, FamiliesWithoutRowsKeepTheErrorOfTheirMeaning) {
    truth t;
    rng r(17);
    const auto cases = read_worst_cases(file);
    for (const auto& row : library_rows()) {
        if (!row.twin_name.empty() || row.sclass == signature_class::bits_to_nan) continue;
        if (std::any_of(cases.begin(), cases.end(), [&](const worst_case& w) { return w.row == &row; })) continue;
        const known_error told = largest_known_error(row, cases);
        ASSERT_EQ(told.measure, error_measure::ulp);
        one_lane kernel(row, library_under_test());
        for (int i = 0; i < 2000; i++) {
            std::vector<uint64_t> lane;
            for (const auto& a : random_patterns(row, 1, r))
                lane.push_back(a[0]);
            // The truth knows no sign of a NaN, which copysign looks at.
            if (row.base() == "copysign" && std::isnan(value_of(row.in, lane[1]))) continue;
            kernel(lane);
            EXPECT_LE(kernel.error(t, told.measure), told.error) << row.name << " of " << lane[0];
        }
    }
}

// The search itself: what it prints is a row of the file, and mistakes are told in one line.
std::string output_of(const std::string& arguments, int* status) {
    FILE* pipe = popen((ORVANE_TOOL_FOLDER "/orvane-search " + arguments + " 2>&1").c_str(), "r");
    std::string text(4096, 0);
    text.resize(fread(text.data(), 1, text.size(), pipe));
    *status = pclose(pipe);
    return text;
}
TEST(Search, FindsAnErrorNearTheLargestKnown) {
    const auto copy = std::filesystem::temp_directory_path() / ("orvane_worst_" + std::to_string(getpid()) + ".txt");
    write_whole(copy, "# kept\n");
    int status;
    const std::string said = output_of("expm1 -s 0.5 --append --file " + copy.string(), &status);
    EXPECT_EQ(status, 0) << said;
    const auto found = read_worst_cases(copy);
    EXPECT_TRUE(contents_of(copy).starts_with("# kept\n"));
    std::filesystem::remove(copy);
    ASSERT_FALSE(found.empty()) << said;
    for (const auto& known : rows_of(0))
        if (known.row == found[0].row && known.path == found[0].path) {
            EXPECT_GT(found[0].error, 0.9 * known.error);
        }
}
TEST(Search, TellsMistakesInOneLine) {
    const std::pair<const char*, const char*> cases[] = {{"", "name one kernel"},
                                                         {"exq", "no family 'exq'"},
                                                         {"floor", "exact"},
                                                         {"exp --every", "float kernels of one argument"},
                                                         {"exp --seconds -1", "seconds"},
                                                         {"pownf --at 0x3F82A0F1", "takes 2"},
                                                         {"pownf --at 1,2", "no bit pattern"},
                                                         {"exp --from 2 --to 1", "--from is larger"},
                                                         {"exp --library /nowhere.so", "cannot open"},
                                                         {"exp --append --file /nowhere", "cannot read"}};
    for (const auto& [arguments, why] : cases) {
        int status;
        const std::string said = output_of(arguments, &status);
        EXPECT_NE(status, 0) << arguments;
        EXPECT_NE(said.find(why), said.npos) << arguments << ": " << said;
        EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << arguments << ": " << said;
    }
}

} // namespace
