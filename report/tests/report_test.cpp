// The report: what its data says, what becomes of bad input and of an interrupted run, and the page in a browser.
#include "browser.h"

#include "tools/whole_file.h"
#include "tools/worst_cases.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <set>

using namespace orvane;
using namespace orvane::report;
using json = nlohmann::json;
namespace fs = std::filesystem;

namespace {

const fs::path folder = fs::temp_directory_path() / ("orvane-report-test-" + std::to_string(getpid()));

int shell(const std::string& script) {
    const int status = std::system(
        ("cd '" + folder.string() + "' && export PATH='" ORVANE_TOOL_FOLDER "':$PATH && " + script).c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128;
}
std::string text(const char* name) { return contents_of(folder / name); }
json data_of(const char* name) { return json::parse(text(name)); }

// One report for all tests, and one that is compared with another.
class Report : public testing::Test {
protected:
    static void SetUpTestSuite() {
        fs::create_directories(folder);
        ASSERT_EQ(shell("orvane-report --quick expf exp powf sinf fma idiv ceilf -o r.html >said 2>err"), 0)
            << text("err");
    }
    static void TearDownTestSuite() { fs::remove_all(folder); }

    void fails_with(const std::string& arguments, const std::string& about) {
        EXPECT_NE(shell("orvane-report --quick ceilf " + arguments + " >out 2>err"), 0) << arguments;
        const std::string said = text("err");
        EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << arguments << ": " << said;
        EXPECT_NE(said.find(about), said.npos) << arguments << ": " << said;
    }
};

TEST_F(Report, DataHoldsWhatWasMeasured) {
    const json data = data_of("r.json");
    EXPECT_TRUE(data["complete"]);
    EXPECT_EQ(data["kind"], "quick");
    const auto cases = read_worst_cases(ORVANE_SOURCES "/data/worst_cases.txt");
    size_t known = 0;
    for (const auto& [name, kernel] : data["kernels"].items()) {
        const std::string family = name.substr(0, name.find('/')), tier = name.substr(name.find('/') + 1);
        const kernel_row& row = *find_row(library_rows(), family, tier);
        // MPFR says of the worst cases what the file says; no sample is worse.
        for (const json& k : kernel["known"]) {
            if (k["any_processor"]) EXPECT_NEAR(k["here"], k["error"], 1e-3 * k["error"].get<double>()) << name;
            known++;
            for (const auto& [path, largest] : kernel["largest"].items())
                if (path == k["path"] && largest["measure"] == k["measure"])
                    EXPECT_LE(largest["error"], 1.001 * k["error"].get<double>()) << name << path;
        }
        // Parts tell errors up to the largest, and reach it, but for what the quicker reference rounds.
        double most = 0, of_parts = 0;
        for (const auto& [path, largest] : kernel["largest"].items())
            if (largest["measure"] == kernel["measure"]) most = std::max<double>(most, largest["error"]);
        for (auto view : {"exponents", "linear", "plane"})
            if (kernel.contains(view))
                for (const json& part : kernel[view]) {
                    of_parts = std::max<double>(of_parts, part[2]);
                    EXPECT_LE(part[3], part[2]) << name << ' ' << part;
                }
        if (row.arguments() < 3) EXPECT_NEAR(most, of_parts, 2e-3 * most) << name;
        EXPECT_EQ(kernel["digest"].get<std::string>().size(), 16u);
    }
    EXPECT_GE(known, 12u);
    EXPECT_EQ(data["kernels"]["ceilf/default"]["largest"]["vector"]["error"], 0);
    EXPECT_GT(data["kernels"]["sinf/default"]["largest"]["large"]["error"], 0.4);
    // Every pair has a time at every width, of ordinary and of special lanes, and a latency.
    for (const json& p : data["pairs"])
        for (int w : widths)
            for (auto set : {"ordinary", "special"}) {
                if (set == std::string("special") &&
                    (p["family"] == "fma" || p["family"] == "idiv" || p["family"] == "ceilf"))
                    continue;
                const auto is_this = [&](const json& r) {
                    return r["family"] == p["family"] && r["set"] == set && r["width"] == w && r["ns"] > 0 &&
                           (r.value("latency_ns", 0.0) > 0 || set != std::string("ordinary")) &&
                           std::find(r["tiers"].begin(), r["tiers"].end(), p["tier"]) != r["tiers"].end();
                };
                EXPECT_TRUE(std::any_of(data["speed"].begin(), data["speed"].end(), is_this)) << p << w << set;
            }
}

TEST_F(Report, TheSameBitsHaveTheSameDigest) {
    ASSERT_EQ(shell("orvane-report --quick expf powf -o again.html >said 2>err"), 0) << text("err");
    const json one = data_of("r.json")["kernels"], two = data_of("again.json")["kernels"];
    for (const auto& [name, kernel] : two.items())
        EXPECT_EQ(kernel["digest"], one[name]["digest"]) << name;
    EXPECT_NE(two["expf/default"]["digest"], two["expf/native"]["digest"]);
}

TEST_F(Report, BadInputGivesOneLine) {
    std::ofstream(folder / "junk.json") << "{\"format\": 7}";
    fails_with("-o bad.html nosuch", "no family is named nosuch");
    fails_with("-o bad.html '('", "no regular expression");
    fails_with("-o bad.txt", "does not end in .html");
    fails_with("-o no/such/folder.html", "cannot write into the folder 'no/such'");
    fails_with("-o bad.html --baseline nothing.json", "there is no file 'nothing.json'");
    fails_with("-o bad.html --baseline junk.json", "neither the data of a report nor its page");
    fails_with("-o bad.html --exhaustive", "excludes");
    fails_with("-o bad.html --library junk.json", "cannot open the library");
    EXPECT_FALSE(fs::exists(folder / "bad.html"));
}

TEST_F(Report, AnInterruptedRunGoesOn) {
    EXPECT_EQ(shell("timeout -s INT 2 orvane-report -o cut.html 'lgamma.*' 'tgamma.*' 'pow.*' >said 2>err"), 124);
    EXPECT_NE(text("err").find("the same command goes on from there"), std::string::npos) << text("err");
    const json cut = data_of("cut.json");
    EXPECT_FALSE(cut["complete"]);
    EXPECT_TRUE(fs::exists(folder / "cut.html"));
    // What stands in the file is not measured again: a mark in it stays.
    json marked = data_of("r.json");
    marked["complete"] = false;
    marked["kernels"].erase("sinf/rm");
    marked["kernels"]["expf/default"]["lanes"] = 4711;
    std::ofstream(folder / "on.json") << marked;
    ASSERT_EQ(shell("orvane-report --quick expf exp powf sinf fma idiv ceilf -o on.html >said 2>err"), 0)
        << text("err");
    const json on = data_of("on.json");
    EXPECT_TRUE(on["complete"]);
    EXPECT_EQ(on["kernels"]["expf/default"]["lanes"], 4711);
    EXPECT_TRUE(on["kernels"].contains("sinf/rm"));
    // Of another kind nothing is taken up.
    ASSERT_EQ(shell("sed -i 's/\"complete\":true/\"complete\":false/' on.json; orvane-report --quick expf -o on.html "
                    ">said 2>err"),
              0);
    EXPECT_NE(data_of("on.json")["kernels"]["expf/default"]["lanes"], 4711);
}

class Page : public Report {
protected:
    static inline std::unique_ptr<browser> window;
    static void SetUpTestSuite() {
        Report::SetUpTestSuite();
        // The same report, beside one that was slower in expf, faster in sinf, and had other bits in exp.
        json old = data_of("r.json");
        for (json& row : old["speed"]) {
            if (row["family"] == "expf") row["ns"] = 2 * row["ns"].get<double>();
            if (row["family"] == "sinf") row["ns"] = 0.5 * row["ns"].get<double>();
        }
        old["kernels"]["exp/default"]["digest"] = "0123456789ABCDEF";
        std::ofstream(folder / "old.json") << old;
        ASSERT_EQ(shell("orvane-report --from r.json --baseline old.json -o since.html >said 2>err"), 0)
            << text("err");
        window = std::make_unique<browser>();
    }
    static void TearDownTestSuite() {
        window.reset();
        Report::TearDownTestSuite();
    }
    void SetUp() override { window->open_file(folder / "r.html"); }
    // No script fails, and nothing is asked of a network.
    void TearDown() override {
        EXPECT_EQ(window->console(), json::array());
        EXPECT_EQ(window->run("return performance.getEntriesByType('resource').filter(e => "
                              "!e.name.startsWith('data:')).map(e => e.name)"),
                  json::array());
    }
    json run(const std::string& body, const json& arguments = json::array()) { return window->run(body, arguments); }
    // The same, once it is what is wanted: a click is answered a moment later.
    void becomes(const std::string& body, const json& wanted) {
        for (int i = 0; i < 100 && run(body) != wanted; i++)
            usleep(50'000);
        EXPECT_EQ(run(body), wanted) << body;
    }
    // Texts of a column of the table, by the beginning of its head.
    std::vector<std::string> column(const std::string& head) {
        return run("const h = [...document.querySelectorAll('#pairs thead th')].findIndex(t => "
                   "t.innerText.startsWith(arguments[0]));"
                   "return [...document.querySelectorAll('#pairs tbody tr')].map(r => r.cells[h].textContent)",
                   {head});
    }
    // How much of a plot is painted, in pixels.
    int painted(const std::string& id) {
        return run("const c = document.getElementById(arguments[0]); const d = c.getContext('2d').getImageData(0, 0, "
                   "c.width, c.height).data;"
                   "let n = 0; for (let i = 3; i < d.length; i += 4) n += d[i] > 0; return n",
                   {id});
    }
};

TEST_F(Page, IsOneFileOfAFewMegabytes) {
    EXPECT_LT(fs::file_size(folder / "r.html"), 5'000'000u);
    EXPECT_EQ(column("Function").size(), data_of("r.json")["pairs"].size());
    EXPECT_GT(painted("scatter"), 2000);
}

TEST_F(Page, PlotsHaveTheirPoints) {
    const json points = run("return charts.scatter.data.datasets.map(d => [d.label, d.data.length])");
    std::map<std::string, int> of;
    for (const json& p : points)
        of[p[0]] = p[1];
    EXPECT_GE(of["default"], 5); // all but those without an error
    EXPECT_GE(of["SLEEF"], 5);
    EXPECT_GE(of["libm"], 4);
    EXPECT_GE(of["native, half"], 1);

    const json data = data_of("r.json");
    for (const std::string name : {"expf", "sinf", "sinf/rm"}) {
        window->open_file(folder / "r.html", "#" + name);
        const json& kernel = data["kernels"][name.find('/') == name.npos ? name + "/default" : name];
        for (auto view : {"exponents", "linear"}) {
            window->click(std::string("#function-body [data-value=") + view + "]");
            const int shown = run("return charts.bins.data.datasets.filter(d => "
                                  "d.label.endsWith('largest')).reduce((n, d) => n + d.data.length, 0)");
            EXPECT_EQ(shown, int(kernel[view].size())) << name << view;
            EXPECT_GT(painted("bins"), 1000);
            EXPECT_TRUE(run("const t = charts.bins.scales.x.ticks.map(t => String(t.label));"
                            "return t.length >= 5 && !t.some(s => /undefined|NaN/.test(s))"))
                << name << view;
        }
        EXPECT_EQ(run("return charts.bins.data.datasets.some(d => d.label.startsWith('OpenCL C'))"),
                  name != "sinf/rm" || kernel["measure"] == "absolute")
            << name;
    }
    window->open_file(folder / "r.html", "#powf");
    EXPECT_EQ(run("return charts.plane.data.datasets.reduce((n, d) => n + d.data.length, 0)"),
              data["kernels"]["powf/default"]["plane"].size());
    EXPECT_GT(painted("plane"), 10000);
    EXPECT_EQ(run("return charts.speed.data.datasets.map(d => [d.label, d.data.filter(v => v > 0).length])"),
              json::parse(R"([["Orvane", 6], ["SLEEF u10", 6], ["libm", 6]])"));
}

TEST_F(Page, FiltersAndSorts) {
    window->type("#f-name", "pow");
    for (const auto& name : column("Function"))
        EXPECT_NE(name.find("pow"), name.npos);
    EXPECT_EQ(column("Function").size(), 3u);
    EXPECT_EQ(run("return document.getElementById('count').textContent").get<std::string>().substr(0, 4), "3 of");
    window->click("#filters button[type=reset]");
    EXPECT_EQ(column("Function").size(), data_of("r.json")["pairs"].size());

    run("const s = document.getElementById('f-type'); s.value = 'float'; s.dispatchEvent(new Event('input', "
        "{bubbles: true}))");
    for (const auto& type : column("Type"))
        EXPECT_EQ(type, "float");
    run("const s = document.getElementById('f-error'); s.value = '1'; s.dispatchEvent(new Event('input', {bubbles: "
        "true}))");
    const auto names = column("Function");
    EXPECT_EQ(std::set<std::string>(names.begin(), names.end()), (std::set<std::string>{"expf", "expf_rm", "ceilf"}));
    window->click("#filters button[type=reset]");

    // By the button of a head, with the keyboard, up and then down.
    for (const std::string head : {"Largest error", "ns per lane"}) {
        run("[...document.querySelectorAll('#pairs thead button')].find(b => b.textContent === arguments[0]).focus()",
            {head});
        for (const bool down : {false, true}) {
            window->press("\uE007");
            EXPECT_EQ(run("return document.querySelector('#pairs th[aria-sort]').ariaSort"),
                      down ? "descending" : "ascending");
            std::vector<double> sizes;
            for (const auto& text : column(head))
                if (head != "Largest error" || text.ends_with("ulp")) sizes.push_back(std::stod(text));
            EXPECT_GE(sizes.size(), 8u);
            if (down) std::reverse(sizes.begin(), sizes.end());
            EXPECT_TRUE(std::is_sorted(sizes.begin(), sizes.end())) << head;
        }
    }
    // Figures follow the number of lanes.
    run("const s = document.getElementById('f-width'); s.value = '1'; s.dispatchEvent(new Event('input', {bubbles: "
        "true}))");
    const json data = data_of("r.json");
    for (const json& row : data["speed"])
        if (row["family"] == "fma" && row["width"] == 1 && row["set"] == "ordinary") {
            char s[16];
            snprintf(s, sizeof s, "%.3f", row["ns"].get<double>());
            const auto texts = column("ns per lane");
            EXPECT_NE(std::find(texts.begin(), texts.end(), s), texts.end());
        }
}

TEST_F(Page, AClickLeadsToTheFunction) {
    window->click("#pairs tr[data-address='expf/native'] td");
    becomes("return location.hash", "#expf/native");
    becomes("return document.activeElement.textContent", "expf_native");
    window->click("#function-body [data-value=default]");
    becomes("return document.getElementById('function-title').textContent", "expf");
    const std::string section = run("return document.getElementById('function').textContent");
    for (auto part : {"e to the power x", "2^k T[i] p(r)", "all numbers", "exp(float8)", "0.749 ulp",
                      "__orvane_l9_expf16", "ymm0 ymm1", "Same code as"})
        EXPECT_NE(section.find(part), section.npos) << part;
    // exp(1), and exp of the largest number, by calling the export.
    EXPECT_EQ(run("const r = [...document.querySelectorAll('#function-body tr')]; return ['1', "
                  "'3.4028235e+38'].map(x => r.find(t => t.cells[0].textContent === x).cells[1].textContent)"),
              json::parse(R"(["2.7182817", "inf"])"));

    // A point of the scatter.
    run("document.getElementById('plot').scrollIntoView({behavior: 'instant'})");
    const json at =
        run("const d = charts.scatter.data.datasets.findIndex(d => d.label === 'native, half');"
            "const p = charts.scatter.getDatasetMeta(d).data[0], r = charts.scatter.canvas.getBoundingClientRect();"
            "return [Math.round(r.left + p.x), Math.round(r.top + p.y), "
            "charts.scatter.data.datasets[d].data[0].address]");
    window->click_at(at[0], at[1]);
    becomes("return location.hash", "#" + at[2].get<std::string>());
}

TEST_F(Page, ColoursWhatChanged) {
    window->open_file(folder / "since.html");
    const auto names = column("Function"), since = column("Since");
    ASSERT_EQ(names.size(), since.size());
    for (size_t i = 0; i < names.size(); i++) {
        const std::string family = names[i].substr(0, names[i].find('_'));
        EXPECT_EQ(since[i].find("2.00× faster") != std::string::npos, family == "expf") << names[i] << since[i];
        EXPECT_EQ(since[i].find("2.00× slower") != std::string::npos, family == "sinf") << names[i] << since[i];
        EXPECT_EQ(since[i].find("bits changed") != std::string::npos, names[i] == "exp") << names[i] << since[i];
    }
    EXPECT_NE(run("return getComputedStyle(document.querySelector('#pairs .good')).color"),
              run("return getComputedStyle(document.querySelector('#pairs .bad')).color"));
}

TEST_F(Page, FitsAPhoneAndTheDark) {
    const auto background = [&] {
        return run("return getComputedStyle(document.body).backgroundColor").get<std::string>();
    };
    const auto inks = [&] {
        return run("return charts.scatter.data.datasets.map(d => d.borderColor).join()").get<std::string>();
    };
    window->cdp("Emulation.setEmulatedMedia",
                {{"features", {{{"name", "prefers-color-scheme"}, {"value", "light"}}}}});
    const std::string light = background(), light_inks = inks();
    window->cdp("Emulation.setEmulatedMedia",
                {{"features", {{{"name", "prefers-color-scheme"}, {"value", "dark"}}}}});
    EXPECT_NE(background(), light);
    becomes("return String(charts.scatter.data.datasets.map(d => d.borderColor).join() !== '" + light_inks + "')",
            "true");
    window->cdp("Emulation.setEmulatedMedia", {{"features", json::array()}});

    window->cdp("Emulation.setDeviceMetricsOverride",
                {{"width", 360}, {"height", 740}, {"deviceScaleFactor", 2}, {"mobile", true}});
    for (auto name : {"", "#powf", "#expf"}) {
        window->open_file(folder / "r.html", name);
        EXPECT_LE(run("return document.scrollingElement.scrollWidth"), 360) << name;
    }
    window->cdp("Emulation.clearDeviceMetricsOverride");
}

// As a screen reader has it: whatever can be used has a name, tables have captions and heads.
TEST_F(Page, HasNamesForAScreenReader) {
    window->open_file(folder / "r.html", "#powf");
    std::map<std::string, int> roles;
    const json tree = window->cdp("Accessibility.getFullAXTree");
    for (const json& node : tree["nodes"]) {
        if (node.value("ignored", false) || !node.contains("role")) continue;
        const std::string role = node["role"].value("value", "");
        roles[role]++;
        for (auto named :
             {"button", "combobox", "searchbox", "textbox", "link", "image", "region", "table", "navigation"})
            if (role == named) EXPECT_NE(node.value("/name/value"_json_pointer, ""), "") << node.dump();
    }
    EXPECT_GE(roles["table"], 4);
    EXPECT_GE(roles["image"] + roles["img"], 3); // the plots
    EXPECT_GE(roles["columnheader"], 9);
    EXPECT_GE(roles["rowheader"], int(data_of("r.json")["pairs"].size()));
    EXPECT_EQ(run("return [...document.querySelectorAll('table')].filter(t => !t.caption || "
                  "!t.querySelector('th[scope]')).length"),
              0);
}

} // namespace
