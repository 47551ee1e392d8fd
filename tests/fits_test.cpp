// The polynomials of the kernels' blocks against what their comments say that they are: function, interval and error.
#include "special/lgamma_pieces.h"
#include "special/lgamma_roots.h"
#include "special/lgammaf_pieces.h"
#include "special/tgamma_pieces.h"
#include "tools/fits/minimax.h"
#include "tools/fits/stated.h"
#include "tools/whole_file.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <regex>
#include <set>

using namespace orvane;
namespace fs = std::filesystem;

namespace {

std::vector<fits::stated_fit> all_fits() {
    std::vector<fits::stated_fit> all;
    for (const auto& file : fits::sources_with_fits(ORVANE_SOURCES))
        for (auto& f : fits::stated_fits(file))
            all.push_back(f);
    return all;
}

// Stated to a tenth of a bit.
TEST(Fits, ReachTheErrorsThatTheirCommentsState) {
    const auto all = all_fits();
    ASSERT_GT(all.size(), 100u);
    for (const auto& f : all)
        EXPECT_NEAR(fits::error_exponent(f), f.exponent, 0.051)
            << f.file.string() << ":" << f.line << ": build/fit-errors --write puts the computed error there";
}

// Rows of polynomials, whose comments state the largest error of any row.
class row_table {
public:
    row_table(const std::string& file, int columns) : columns(columns) {
        static const std::regex word(R"(f(32|64)\((0x[0-9A-F]+)\))");
        const std::string text = contents_of(fs::path(ORVANE_SOURCES) / file);
        for (std::sregex_iterator i(text.begin(), text.end(), word), end; i != end; ++i) {
            const uint64_t bits = std::stoull((*i)[2], nullptr, 16);
            words.push_back((*i)[1] == "64" ? std::bit_cast<double>(bits) : std::bit_cast<float>((uint32_t)bits));
        }
    }
    int rows() const { return int(words.size()) / columns; }
    const double* operator[](int i) const { return &words[i * columns]; }

private:
    int columns;
    std::vector<double> words;
};
using tables::real;
real polynomial_of(const double* from, int n, const real& x) { return fits::value({from, from + n}, x); }
double tan_rows_error(const std::string& file, int coefficients) {
    const row_table rows(file, 7 + coefficients);
    real largest = 0;
    for (int j = 0; j < rows.rows(); j++) {
        const double* c = rows[j];
        const real a = tables::pi() * j / rows.rows(), end = tables::pi() / (2 * rows.rows()), b = real(c[0]) + c[1];
        for (const auto& R : fits::chebyshev_points(-end, end, 40)) {
            const real v =
                c[2] / (b - R) + c[3] + c[4] + R * (real(c[5]) + c[6] + R * polynomial_of(c + 7, coefficients, R));
            largest = std::max(largest, fits::magnitude(v / tables::tan(a + R) - 1));
        }
    }
    return fits::log2_of(largest);
}
double tanh_rows_error() {
    const row_table rows("hyperbolic/tables/tanh_60.inc", 16);
    const auto bound = [](int i) {
        return real(i ? std::bit_cast<double>(uint64_t(0x3FBE0000 + (i << 17)) << 32) : 0);
    };
    real largest = 0;
    for (int i = 0; i < rows.rows() - 1; i++) { // the last one serves what is beyond
        const double* c = rows[i];
        for (const auto& x : fits::chebyshev_points(bound(i), bound(i + 1), 40)) {
            const real y = x + c[12], v = real(c[0]) + c[1] + y * polynomial_of(c + 2, 10, y);
            const real error = fits::magnitude(v / tables::tanh(x) - 1);
            if (mpfr_number_p(error.get())) largest = std::max(largest, error);
        }
    }
    return fits::log2_of(largest);
}
double relative_error(const real& lo, const real& hi, const auto& truth, const auto& approximation) {
    real largest = 0;
    for (const auto& x : fits::chebyshev_points(lo, hi, 100))
        largest = std::max(largest, fits::magnitude(approximation(x) / truth(x) - 1));
    return fits::log2_of(largest);
}
TEST(Fits, OfRowsReachTheErrorsThatTheirCommentsState) {
    const auto expect_stated = [](double error, const std::string& source, const std::string& table) {
        const std::string text = contents_of(fs::path(ORVANE_SOURCES) / source);
        std::smatch m;
        ASSERT_TRUE(std::regex_search(text, m, std::regex(table + R"(\.inc to\s+(?://\s+)?2\^-([0-9.]+) relative)")))
            << source << " states no error of " << table;
        EXPECT_NEAR(error, -std::stod(m[1]), 0.051) << source << ": " << table;
    };
    expect_stated(tan_rows_error("trig/tables/tanf_rows.inc", 3), "trig/tan.cpp", "tanf_rows");
    expect_stated(tan_rows_error("trig/tables/tan_rows.inc", 6), "trig/tan.cpp", "tan_rows");
    expect_stated(tanh_rows_error(), "hyperbolic/hyperbolic_tables.h", "tanh_60");

    // Of the gamma functions' slow paths: their own text in numbers of 400 bits.
    const auto expect_binades = [&](auto binade, int first, int last, const char* source, const char* table) {
        double error = -HUGE_VAL;
        for (int j = first; j <= last; j++)
            error = std::max(error, relative_error(real(4 << j), real(8 << j), tables::log_gamma,
                                                   [&](const real& x) { return binade(j, x); }));
        expect_stated(error, source, table);
    };
    const char* const in_float = "special/lgammaf_pieces.h";
    const char* const in_double = "special/lgamma_pieces.h";
    expect_binades(lgammaf_pieces::binade<real>, 0, 10, in_float, "lgammaf_C5");
    expect_binades(lgamma_pieces::binade<real>, 0, 0, in_double, "lgamma_C5_row_0");
    expect_binades(lgamma_pieces::binade<real>, 1, 6, in_double, "lgamma_C5_rows_1_6");

    const auto expect_roots = [&](auto root, const root_window* windows, const std::string& table) {
        for (auto [first, last, rows] : {std::tuple(0, 0, "_row_0"), std::tuple(1, 12, "_rows_1_12")}) {
            double error = -HUGE_VAL;
            for (int k = first; k <= last; k++)
                error = std::max(error, relative_error(windows[k].lower, windows[k].upper, tables::log_gamma,
                                                       [&](const real& x) { return root(k, x); }));
            expect_stated(error, "special/lgamma_roots.h", table + rows);
        }
    };
    expect_roots(lgamma_roots::left_root<real>, lgamma_roots::_LRIB, "lgamma_LRP");
    expect_roots(lgamma_roots::right_root<real>, lgamma_roots::_RRIB, "lgamma_RRP");

    const auto expect_gamma = [&]<class T>(T, int first, int last, bool tiny, const char* table) {
        double error = -HUGE_VAL;
        for (int i = first; i <= last; i++) {
            const int n = std::max(2, i << tgamma_constants<T>::shift);
            const real scale = tiny && i == last ? real(tgamma_constants<T>::tiny) : real(1);
            error = std::max(error, relative_error(
                                        0, 1, [&](const real& t) { return tables::gamma(t + n) * scale; },
                                        [&](const real& t) { return gamma_row_product<T>(n, t); }));
        }
        expect_stated(error, "special/tgamma_pieces.h", table);
    };
    expect_gamma(0.0f, 0, 5, true, "tgammaf_rows");
    expect_gamma(0.0, 0, 1, false, "tgamma_rows_00_01");
    expect_gamma(0.0, 2, 10, false, "tgamma_rows_02_10");
    expect_gamma(0.0, 11, 11, true, "tgamma_rows_11");
}

// Polynomials of slow paths: each array that one evaluates has its fit stated in a file of the folder.
TEST(Fits, AreStatedForTheArraysOfSlowPaths) {
    static const std::regex call(
        R"(\bhorner(?:_up|_from)?\([^,;\n]+, (?:horner\([^()]*\), )?(?:\w+(?:\.|::))*(\w+)\))");
    std::map<std::string, std::set<std::string>> stated;
    for (const auto& f : all_fits())
        stated[f.file.parent_path().filename()].insert(f.coefficients.begin(), f.coefficients.end());
    int polynomials = 0;
    for (auto folder : {"exp", "log", "pow", "divroot", "trig", "invtrig", "hyperbolic", "special"})
        for (const auto& source : fs::directory_iterator(fs::path(ORVANE_SOURCES) / folder)) {
            const std::string name = source.path().filename();
            if (name.find("_rare") == name.npos && name.find("_pieces") == name.npos) continue;
            const std::string text = contents_of(source.path());
            for (std::sregex_iterator i(text.begin(), text.end(), call), end; i != end; ++i, polynomials++)
                EXPECT_TRUE(
                    stated[folder].contains((*i)[1] == "p" && name.starts_with("atan2") ? "at_p" : (*i)[1].str()))
                    << folder << "/" << name << ": " << i->str() << ": no fit names it";
        }
    EXPECT_GE(polynomials, 8);
}

// What kernels evaluate by horner(...), which is most polynomials: each slot that stands in one has its fit stated in
// a file of the folder.
TEST(Fits, AreStatedForEveryPolynomial) {
    static const std::regex slot(R"(\bc\.(\w+))");
    std::map<std::string, std::set<std::string>> stated; // by folder
    for (const auto& f : all_fits())
        stated[f.file.parent_path().filename()].insert(f.coefficients.begin(), f.coefficients.end());
    int polynomials = 0;
    for (const auto& [folder, coefficients] : stated)
        for (const auto& source : fs::directory_iterator(fs::path(ORVANE_SOURCES) / folder)) {
            const std::string name = source.path().filename(), text = contents_of(source.path());
            if (!source.is_regular_file() || name.find("_rare") != name.npos || name.find("gamma") != name.npos)
                continue;
            for (size_t at = text.find("horner("); at != text.npos; at = text.find("horner(", at + 1)) {
                size_t end = at + 7;
                for (int open = 1; open; end++)
                    open += text[end] == '(' ? 1 : text[end] == ')' ? -1 : 0;
                const std::string call = text.substr(at, end - at);
                polynomials++;
                for (std::sregex_iterator i(call.begin(), call.end(), slot), last; i != last; ++i)
                    if ((*i)[1] != "poly" && (*i)[1] != "one" && (*i)[1] != "h0")
                        EXPECT_TRUE(coefficients.contains((*i)[1]))
                            << folder << "/" << name << ": " << call << ": no fit names " << (*i)[1];
            }
        }
    EXPECT_GT(polynomials, 50);
}

// The reader of these comments itself: what it computes and what it refuses.
class StatedFits : public testing::Test {
protected:
    fs::path file = fs::temp_directory_path() / ("orvane_fits_" + std::to_string(getpid()) + ".h");
    ~StatedFits() { fs::remove(file); }
    std::vector<fits::stated_fit> of(const std::string& text) {
        write_whole(file, text);
        return fits::stated_fits(file);
    }
};
TEST_F(StatedFits, AreComputedFromTheSlotsThatFollow) {
    const auto f =
        of("SLOT(double, 0, c1, 0x4008000000000000)\n"
           "    // A comment. Fit on |r| <= 1/2^3: 1 + c1*r + c2*r^2\n"
           "    // = (1 + r)^2 to 2^-5.0 absolute; more words.\n"
           "SLOT(double, 1, c1, 0x4000000000000000) // 2\n"
           "SLOT(float, (at) + 2, c2, 0x3F000000)\n"
           "// Fit on 0 <= x <= 1, |y| <= 1/2, s = x + y: array(s) - y = 2*s^2 + 3*s + 1 - y to 2^-3.0 relative\n"
           "constexpr coefficients<float, 3> array = {\n    {0x40000000, 0x40400000, 0x3FC00000}};\n");
    ASSERT_EQ(f.size(), 2u);
    EXPECT_EQ(f[0].line, 2);
    EXPECT_EQ(f[0].coefficients, (std::vector<std::string>{"c1", "c2"}));
    EXPECT_NEAR(fits::error_exponent(f[0]), -7, 1e-9); // r^2 / 2 at 1/8
    EXPECT_FALSE(f[0].relative);
    // 1/2 over the smallest 2 s^2 + 3 s + 1 - y, which is 2 s^2 + 2 s + 1 + x with its least at x = 0, s = -1/2.
    EXPECT_NEAR(fits::error_exponent(f[1]), 0, 1e-9);
}
TEST_F(StatedFits, AreComputedFromConstantsAndArrays) {
    const auto f =
        of("// Fit on |v| <= 1/4: a + v*horner(v, k) + horner_up(v, l) = 1 + 2*v^2 + 3*v - 1/2 to 2^-1.0 absolute\n"
           "constexpr double third = 3, a = 0x1.0p0;\n"
           "constexpr float k[] = {2.0f, third};\n"
           ".l = {-f64(0x3FE0000000000000), 0x8000000000000000p-65L},\n");
    ASSERT_EQ(f.size(), 1u);
    EXPECT_NEAR(fits::error_exponent(f[0]), -4, 1e-9); // v / 4 is too much
    const auto g =
        of("// Fit on 1 <= v <= 2: quadratics(v, k) + k[2]*(gamma(4) - 6) = 3*(v^2 + 2*v + 1) to 2^-1.0 absolute\n"
           "constexpr double k[] = {1.25, 2.0, 3.0};\n");
    EXPECT_NEAR(fits::error_exponent(g.at(0)), std::log2(0.75), 1e-9);
}
TEST_F(StatedFits, RefuseWhatTheyDoNotUnderstand) {
    const std::pair<const char*, const char*> cases[] = {
        {"// Fit on |r| <= 1: c1*r = exp(r)\nint x;\n", "ends with"},
        {"// Fit on |r| <= 1: c1*r to 2^-3 relative\n", "is written"},
        {"// Fit on r < 1: 1 + r = exp(r) to 2^-3 relative\n", "no interval"},
        {"// Fit on |r| <= 1: 1 + c9*r = exp(r) to 2^-3 relative\n", "'c9'"},
        {"// Fit on |r| <= 1: 1 + (r = exp(r) to 2^-3 relative\n", ") is missing"},
        {"// Fit on |r| <= 1: horner(r, k) = exp(r) to 2^-3 relative\n", "'k'"},
        {"// Fit on |r| <= 1: k[2]*r = exp(r) to 2^-3 relative\ndouble k[] = {1.0, 2.0};\n", "k[0] to [1]"}};
    for (const auto& [text, why] : cases) {
        SCOPED_TRACE(text);
        try {
            of(text);
            ADD_FAILURE();
        } catch (const std::exception& e) {
            EXPECT_NE(std::string(e.what()).find(why), std::string::npos) << e.what();
            EXPECT_NE(std::string(e.what()).find(":1: "), std::string::npos) << e.what();
        }
    }
}

} // namespace
