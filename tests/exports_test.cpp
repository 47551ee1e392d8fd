// What callers get from the list of exports (JSON, header, C++ caller, tool): calls by each must give the same lanes.
#include "include/orvane/call.hpp"
#include "support.h"
#include "tools/whole_file.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <set>

using namespace orvane;
using json = nlohmann::json;

namespace {

int run(const std::string& command) { return std::system((std::string(ORVANE_TOOL_FOLDER) + "/" + command).c_str()); }

TEST(List, CountsWhatThereIs) {
    const auto& rows = library_rows();
    EXPECT_EQ(rows.size(), 388u);
    std::set<std::string> symbols;
    int memory = 0, slow = 0;
    for (const auto& row : rows) {
        slow += row.has_slow_path();
        for (int w : widths) {
            const auto p = plan_of(row, w);
            symbols.insert(p.symbol);
            memory += p.memory_form;
            EXPECT_EQ(plan_of(rows, p.symbol).symbol, p.symbol) << "a symbol is read from its end";
        }
    }
    EXPECT_EQ(symbols.size(), 6 * rows.size());
    EXPECT_EQ(memory, 39);
    EXPECT_EQ(slow, 226);
}

// Each mistake in one column is refused by a line that names the row and the mistake.
TEST(List, RefusesWhatDoesNotFit) {
    struct columns {
        std::string_view tier = "default", sclass = "one_argument", special = "none", builtin = "";
        std::array<double, 4> range = {0, 1, 0, 1};
        kernel_row row() const {
            return list::row("f", tier, sclass, "f32", "f32", "none", 0, "callout", range, special, builtin);
        }
    };
    auto refusal = [](auto build) -> std::string {
        try {
            build();
        } catch (const std::invalid_argument& e) {
            return e.what();
        }
        return "";
    };
    const std::pair<columns, const char*> mistakes[] = {{{.tier = "fast"}, "no tier 'fast'"},
                                                        {{.sclass = "one"}, "no class 'one'"},
                                                        {{.special = "0x7FC000001"}, "more than 32 bits"},
                                                        {{.special = "1, 2"}, "not one pattern an argument"},
                                                        {{.range = {1, 0, 1, 0}}, "a range from a larger"}};
    for (const auto& [wrong, why] : mistakes)
        EXPECT_NE(refusal([&] { wrong.row(); }).find(why), std::string::npos) << why;
    const kernel_row plain = columns{}.row(), native = list::twin("f", "native", "f", "default", "");
    const kernel_row once = columns{.builtin = "f"}.row(), again = columns{.tier = "half", .builtin = "f"}.row();
    EXPECT_EQ(refusal([&] { list::checked({plain, native}); }), "");
    EXPECT_NE(refusal([&] { list::checked({plain, plain}); }).find("twice"), std::string::npos);
    EXPECT_NE(refusal([&] { list::checked({native, plain}); }).find("earlier row"), std::string::npos);
    EXPECT_NE(refusal([&] {
                  list::checked({once, again});
              }).find("serves f(float), as f default"),
              std::string::npos);
}

// A file with the same contents keeps its time, and one that cannot be written leaves nothing beside it.
TEST(Written, WholeOrNotAtAll) {
    namespace fs = std::filesystem;
    const fs::path folder = fs::path(testing::TempDir()) / "orvane_written", file = folder / "file";
    fs::remove_all(folder);
    write_whole(file, "one");
    const auto before = fs::file_time_type::clock::now() - std::chrono::hours(1);
    fs::last_write_time(file, before);
    const auto kept = fs::last_write_time(file);
    write_whole(file, "one");
    EXPECT_EQ(fs::last_write_time(file), kept);
    write_whole(file, "two");
    EXPECT_EQ(contents_of(file), "two");
    fs::create_directory(folder / "taken");
    EXPECT_THROW(write_whole(folder / "taken", "three"), std::runtime_error);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 2);
    fs::remove_all(folder);
}

TEST(Written, FollowsFromTheList) {
    const auto folder = std::filesystem::temp_directory_path() / ("orvane-written-" + std::to_string(getpid()));
    std::filesystem::create_directories(folder);
    ASSERT_EQ(run("write-exports " + folder.string()), 0);
    for (auto name : {"/exports.json", "/orvane.h"})
        EXPECT_EQ(contents_of(folder.string() + name),
                  contents_of(ORVANE_SOURCES "/include/orvane" + std::string(name)))
            << name << " is out of date: build the target `written`";
    std::filesystem::remove_all(folder);
}

TEST(Written, TablesFollowTheirRules) { EXPECT_EQ(run("write-tables --check " ORVANE_SOURCES), 0); }

lane_type type_named(const std::string& name) {
    for (auto t : {lane_type::f32, lane_type::f64, lane_type::i32, lane_type::u32, lane_type::i64, lane_type::u64})
        if (opencl_type(t) == name) return t;
    return lane_type::none;
}

// Calls by what the list says of registers and offsets, and by nothing else.
std::vector<words> call_by_json(const json& e, const std::vector<words>& arguments) {
    const int lanes = stored_lanes(e["width"]);
    auto gpr_named = [](const std::string& name) {
        return name == "rdi" ? rdi : name == "rsi" ? rsi : name == "rdx" ? rdx : rax;
    };
    machine_state in, out;
    memset(&in, 0x5A, sizeof in);
    in.mxcsr = 0x1F80, in.x87_control = 0x37F;
    std::vector<unsigned char> stack(512), object(512), out_object(256);
    if (e["form"] == "memory") in.integer[rdi] = (uint64_t)object.data();
    size_t stack_bytes = 0;
    for (size_t j = 0; j < arguments.size(); j++) {
        const json& a = e["arguments"][j];
        const lane_type t = type_named(a["type"]);
        for (int i = 0; i < lanes; i++) {
            unsigned char* at;
            const int byte = i * size_of(t);
            if (a.contains("stack_offset")) at = stack.data() + (a["stack_offset"].get<int>() - 8) + byte;
            else {
                const std::string r = a["registers"][byte / 32];
                if (r[0] == 'r') at = (unsigned char*)&in.integer[gpr_named(r)] + byte;
                else at = in.vector[std::stoi(r.substr(3))] + byte % 32;
            }
            write_lane(at, t, arguments[j][i]);
            if (a.contains("stack_offset")) stack_bytes = at + size_of(t) - stack.data();
        }
    }
    for (const json& r : e["results"])
        if (r.contains("object_bytes")) in.integer[gpr_named(r["pointer"])] = (uint64_t)out_object.data();
    orvane_raw_call(library_under_test().address(e["symbol"]), &in, &out, stack.data(), stack_bytes, 0);

    for (const json& name : e["preserved"]) {
        const std::string s = name;
        static const std::map<std::string, gpr> others = {{"rbx", rbx}, {"rbp", rbp}, {"r12", r12}, {"r13", r13},
                                                          {"r14", r14}, {"r15", r15}, {"rdi", rdi}, {"rsi", rsi}};
        if (s.starts_with("ymm"))
            EXPECT_EQ(memcmp(in.vector[std::stoi(s.substr(3))], out.vector[std::stoi(s.substr(3))], 32), 0) << s;
        else if (s != "rsp") EXPECT_EQ(in.integer[others.at(s)], out.integer[others.at(s)]) << s;
    }

    std::vector<words> results;
    for (const json& r : e["results"]) {
        const lane_type t = type_named(r["type"]);
        words w;
        for (int i = 0; i < lanes; i++) {
            const int byte = i * size_of(t);
            const unsigned char* at;
            if (r.contains("object_bytes")) at = out_object.data() + byte;
            else if (r.contains("object_offset")) at = object.data() + r["object_offset"].get<int>() + byte;
            else if (r["registers"][0] == "rax") at = (unsigned char*)&out.integer[rax] + r.value("bit", 0) / 8;
            else at = out.vector[std::stoi(r["registers"][byte / 32].get<std::string>().substr(3))] + byte % 32;
            w.push_back(read_lane(at, t));
        }
        results.push_back(w);
    }
    return results;
}

TEST(Json, IsEnoughToCallBy) {
    const json all = json::parse(contents_of(ORVANE_SOURCES "/include/orvane/exports.json"));
    ASSERT_EQ(all.size(), 6 * library_rows().size());
    rng r(8);
    for (const json& e : all) {
        const kernel_row* row =
            find_row(library_rows(), e["family"].get<std::string>(), e["tier"].get<std::string>());
        ASSERT_NE(row, nullptr);
        const subject s{row, &library_under_test()};
        const auto a = random_patterns(*row, stored_lanes(e["width"]), r);
        const auto got = call_by_json(e, a), want = by_single_lanes(s, a);
        for (size_t j = 0; j < want.size(); j++)
            for (int i = 0; i < e["width"]; i++)
                EXPECT_EQ(got[j][i], want[j][i]) << e["symbol"] << " lane " << i;
        if (!e["twin_of"].is_null())
            EXPECT_EQ(library_under_test().address(e["symbol"]), library_under_test().address(e["twin_of"]));
    }
}

// One built-in, one export; and the page for authors of compilers explains every key.
TEST(Json, TellsWhatABuiltInBecomes) {
    const json all = json::parse(contents_of(ORVANE_SOURCES "/include/orvane/exports.json"));
    const std::string page = contents_of(ORVANE_SOURCES "/docs/calling.md");
    std::map<std::string, std::string> serving;
    for (const json& e : all) {
        for (auto key : {"builtin", "relaxed_builtin"})
            if (!e[key].is_null()) {
                const auto [at, first] = serving.try_emplace(key + e[key].get<std::string>(), e["symbol"]);
                EXPECT_TRUE(first) << e[key] << " becomes " << at->second << " and " << e["symbol"];
            }
        for (const json& object : {e, e["arguments"][0], e["results"].back(), e["error"], e["opencl_limit"]})
            for (const auto& [key, value] : object.items())
                EXPECT_NE(page.find("`" + key + "`"), page.npos) << "docs/calling.md does not explain " << key;
    }
    EXPECT_EQ(serving.at("builtinsin(float8)"), "__orvane_l9_sinf8");
    EXPECT_EQ(serving.at("relaxed_builtinsin(float8)"), "__orvane_l9_sinf8_rm");
    EXPECT_EQ(serving.at("builtinhalf_sin(float8)"), "__orvane_l9_sinf8_half");
    EXPECT_EQ(serving.count("builtinhalf_sin(double8)"), 0u);
}

// What calls may change is told to the compiler by call.hpp: everything that the list names.
TEST(Caller, ToldTheCompilerWhatCallsChange) {
    const std::string text = contents_of(ORVANE_SOURCES "/include/orvane/call.hpp");
    auto told = [&](const std::string& function) {
        const auto from = text.find("inline void " + function);
        std::string s = text.substr(from, text.find(");\n", text.find("asm volatile", from)) - from);
        for (const std::string macro : {"ORVANE_X87", "ORVANE_XMM_8_TO_15"}) {
            const auto at = text.find("#define " + macro) + 9 + macro.size();
            if (s.find(" " + macro) != s.npos) s += text.substr(at, text.find("\n", at) - at);
        }
        return s;
    };
    const std::map<std::string, std::string> in_operands = {
        {"rdi", "\"+D\""}, {"rsi", "\"+S\""}, {"rax", "\"=&a\""}, {"rcx", "\"+c\""}, {"rdx", "\"+d\""}};
    const std::string forms[] = {told("call_in_registers"), told("call_in_memory")};
    for (const json& e : json::parse(contents_of(ORVANE_SOURCES "/include/orvane/exports.json"))) {
        const std::string& form = forms[e["form"] == "memory"];
        for (const std::string r : e["clobbered"]) {
            auto is_told = [&](const std::string& s) { return form.find(s) != form.npos; };
            const auto named = "\"" +
                               (r[0] == 'y'   ? "x" + r.substr(1)
                                : r == "st0"  ? "st"
                                : r[0] == 's' ? "st(" + r.substr(2) + ")"
                                              : r) +
                               "\"";
            EXPECT_TRUE(is_told(named) || (in_operands.contains(r) && is_told(in_operands.at(r))))
                << e["symbol"] << ": " << r;
        }
    }
}

// The header-only caller, with the types of every class of the list.
template <class T, int W> vec<T, W> lanes_as(const words& w) {
    vec<T, W> v;
    for (int i = 0; i < v.stored; i++)
        memcpy(&v[i], &w[i], sizeof(T));
    return v;
}
template <class T, int W> words words_of(const vec<T, W>& v) {
    words w;
    for (const T& x : v.lane) {
        uint64_t u = 0;
        memcpy(&u, &x, sizeof x);
        w.push_back(u);
    }
    return w;
}
template <class F> auto with_type(lane_type t, F f) {
    switch (t) {
    case lane_type::f32:
        return f(float{});
    case lane_type::f64:
        return f(double{});
    case lane_type::i32:
        return f(int32_t{});
    case lane_type::u32:
        return f(uint32_t{});
    case lane_type::i64:
        return f(int64_t{});
    default:
        return f(uint64_t{});
    }
}
template <int W>
std::vector<words> call_by_header(const void* f, const kernel_row& row, const std::vector<words>& a) {
    return with_type(row.in, [&]<class T>(T) {
        return with_type(row.out, [&]<class R>(R) {
            const auto x = lanes_as<T, W>(a[0]);
            auto second = [&] { return lanes_as<T, W>(a[1]); };
            std::vector<words> r;
            vec<int32_t, W> n;
            vec<R, W> out;
            switch (row.sclass) {
            case signature_class::two_arguments:
            case signature_class::integer:
                r = {words_of(call<R>(f, x, second()))};
                break;
            case signature_class::three_arguments:
                r = {words_of(call<R>(f, x, second(), lanes_as<T, W>(a[2])))};
                break;
            case signature_class::with_integer:
                r = {words_of(call<R>(f, x, lanes_as<int32_t, W>(a[1])))};
                break;
            case signature_class::pointer_out:
                if (row.extra == lane_type::i32) r = {words_of(call_out<R>(f, n, x)), words_of(n)};
                else r = {words_of(call_out<R>(f, out, x)), words_of(out)};
                break;
            case signature_class::two_pointer_out:
                r = {words_of(call_out<R>(f, n, x, second())), words_of(n)};
                break;
            case signature_class::pair: {
                const auto [s, c] = call_pair<R>(f, x);
                r = {words_of(s), words_of(c)};
                break;
            }
            case signature_class::integer_pair: {
                const auto [q, m] = call_pair<R>(f, x, second());
                r = {words_of(q), words_of(m)};
                break;
            }
            default:
                r = {words_of(call<R>(f, x))};
            }
            return r;
        });
    });
}

class Header : public testing::TestWithParam<subject> {};
TEST_P(Header, CallsEveryExport) {
    const subject s = GetParam();
    rng r(9);
    for (int w : widths)
        for (int pass = 0; pass < 4; pass++) {
            const auto a = random_patterns(*s.row, stored_lanes(w), r);
            const void* f = s.in->address(plan_of(*s.row, w).symbol);
            std::vector<words> got;
            switch (w) {
            case 1:
                got = call_by_header<1>(f, *s.row, a);
                break;
            case 2:
                got = call_by_header<2>(f, *s.row, a);
                break;
            case 3:
                got = call_by_header<3>(f, *s.row, a);
                break;
            case 4:
                got = call_by_header<4>(f, *s.row, a);
                break;
            case 8:
                got = call_by_header<8>(f, *s.row, a);
                break;
            default:
                got = call_by_header<16>(f, *s.row, a);
            }
            const auto want = by_single_lanes(s, a);
            for (size_t j = 0; j < want.size(); j++)
                for (int i = 0; i < w; i++)
                    ASSERT_EQ(got[j][i], want[j][i]) << "width " << w << " lane " << i;
        }
}
FOR_ALL_BUILT(Header);

// The tool: what a person may type wrongly gives one line, a non-zero exit, and nothing half written.
TEST(Tool, SaysWhatIsWrong) {
    const auto folder = std::filesystem::temp_directory_path() / ("orvane-tool-" + std::to_string(getpid()));
    std::filesystem::create_directories(folder);
    const std::string err = (folder / "err").string(), out = (folder / "out").string(), in = (folder / "in").string();
    auto complains = [&](const std::string& arguments, const std::string& about) {
        EXPECT_NE(run("orvane-call " + arguments + " </dev/null >/dev/null 2>" + err), 0) << arguments;
        const std::string said = contents_of(err);
        EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << arguments << ": " << said;
        EXPECT_NE(said.find(about), said.npos) << arguments << ": " << said;
    };
    complains("expff8 1", "expf8");
    complains("expf8 1 2", "8 lane(s), not 2");
    complains("expf1 1x", "'1x'");
    complains("expf1 0x142b17217", "at most 8 digits");
    complains("fmin1 1", "takes 2");
    complains("idiv1 1.5,2", "'1.5'");
    complains("idiv1 2147483648,2", "out of range");
    complains("expf1 1e60", "out of range");
    complains("--raw expf1 1", "standard input");
    complains("expf1 -i /nonexistent", "/nonexistent");
    complains("--library /nonexistent expf1 1", "/nonexistent");
    complains("--nonsense", "nonsense");
    for (auto raw : {"-1", "0x1", "123456789", "3f800000 3f800000", ""}) {
        std::ofstream(in) << "3f800000\n" << raw << '\n';
        EXPECT_NE(run("orvane-call --raw expf1 <" + in + " >" + out + " 2>" + err), 0) << raw;
        EXPECT_NE(contents_of(err).find("line 2"), std::string::npos) << raw;
    }
    std::filesystem::remove(out);
    complains("expf1 -i /dev/null", "no lanes"); // what is no regular file has no size
    std::ofstream(in) << "1 2 3\n4 five\n";
    complains("expf4 -i " + in + " -o " + out, "line 2");
    EXPECT_FALSE(std::filesystem::exists(out)) << "a file appears only when it is complete";
    EXPECT_FALSE(std::filesystem::exists(out + ".part"));
    // A short last vector gives its own lanes and no others.
    std::ofstream(in) << "1 2 # 3 4\n5\n";
    EXPECT_EQ(run("orvane-call expf16 -i " + in + " -o " + out + " --json"), 0);
    const std::string written = contents_of(out);
    EXPECT_EQ(std::count(written.begin(), written.end(), '\n'), 3);
    std::filesystem::remove_all(folder);
}

} // namespace
