#include "support.h"

#include "tools/estimates.h"

#include <cstring>
#include <elf.h>
#include <fstream>
#include <immintrin.h>
#include <link.h>

namespace orvane {

object::object(const std::string& path) : library(path), path(path) {
    if (!handle()) return;
    link_map* map;
    dlinfo(handle(), RTLD_DI_LINKMAP, &map);
    base = map->l_addr;
    std::ifstream file(path, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(file)), {});
    const auto* head = (const Elf64_Ehdr*)bytes.data();
    const auto* sections = (const Elf64_Shdr*)(bytes.data() + head->e_shoff);
    for (int i = 0; i < head->e_shnum; i++) {
        if (sections[i].sh_type != SHT_SYMTAB) continue;
        const char* names = bytes.data() + sections[sections[i].sh_link].sh_offset;
        const auto* s = (const Elf64_Sym*)(bytes.data() + sections[i].sh_offset);
        for (size_t n = sections[i].sh_size / sizeof *s; n--; s++) {
            if (!s->st_value) continue;
            table.push_back({names + s->st_name, s->st_value, s->st_size, ELF64_ST_TYPE(s->st_info) == STT_FUNC});
            values[table.back().name] = s->st_value;
        }
    }
}
const void* object::symbol(const std::string& name) const {
    const auto at = values.find(name);
    return at == values.end() ? nullptr : (const void*)(base + at->second);
}

object& library_under_test() {
    static object o(ORVANE_LIBRARY);
    return o;
}
object& probe_library() {
    static object o(ORVANE_PROBES);
    return o;
}
object& bent_library() {
    static object o(ORVANE_BENT);
    return o;
}
void set_bend(bend b) { *(bend*)bent_library().symbol("orvane_bend") = b; }
bool estimates_are_known() { return kind_of_processor() == "0c0acf10aee97425"; }
const std::vector<kernel_row>& probe_rows() {
    static const std::vector<kernel_row> rows = list::checked({
#define ORVANE_LIST "tests/probes/probes.def"
#include "tools/list.inc"
    });
    return rows;
}

lane_caller subject::caller(int width) const {
    const call_plan p = plan_of(*row, width);
    const void* f = in->address(p.symbol);
    if (!f) throw std::runtime_error(in->path + " has no " + p.symbol + ", which the list of exports names");
    return lane_caller(p, f);
}
void PrintTo(const subject& s, std::ostream* to) { *to << s.row->name << s.row->suffix(); }
std::vector<subject> built_subjects() {
    std::vector<subject> all;
    for (const auto& r : library_rows())
        all.push_back({&r, &library_under_test()});
    for (const auto& r : probe_rows())
        all.push_back({&r, &probe_library()});
    return all;
}
std::string name_of(const testing::TestParamInfo<subject>& info) {
    return std::string(info.param.row->name) + info.param.row->suffix();
}

std::vector<words> ordinary_arguments(const kernel_row& row, int lanes, rng& r) {
    std::vector<words> a(row.arguments());
    for (int j = 0; j < row.arguments(); j++) {
        std::uniform_real_distribution<double> d(row.range[j ? 2 : 0], row.range[j ? 3 : 1]);
        for (int i = 0; i < lanes; i++)
            a[j].push_back(word_of(row.argument(j), d(r)));
    }
    return a;
}
std::vector<words> special_arguments(const kernel_row& row, int lanes) {
    std::vector<words> a(row.arguments());
    for (int j = 0; j < row.arguments(); j++)
        a[j].assign(lanes, row.special.at(j));
    return a;
}
std::vector<words> random_patterns(const kernel_row& row, int lanes, rng& r) {
    std::vector<words> a(row.arguments());
    for (int j = 0; j < row.arguments(); j++) {
        const lane_type t = row.argument(j);
        const int bits = 8 * size_of(t), fraction = bits == 64 ? 52 : 23;
        const uint64_t all = ~uint64_t(0) >> (64 - bits);
        for (int i = 0; i < lanes; i++) {
            uint64_t w = r() & all;
            switch (r() % 8) {
            case 0:
                w = uint64_t(r() % 3 + (1ull << (bits - 1 - fraction)) / 2 - 2) << fraction;
                break; // around 1
            case 1:
                w &= all << fraction;
                break; // powers of two, Inf, 0
            case 2:
                w = r() % 7 - 3 + ((r() & 1) << (bits - 1));
                break; // next to zeros
            case 3:
                w |= all >> 1 & all << fraction;
                break; // Inf and NaN
            default:
                break;
            }
            a[j].push_back(w & all);
        }
    }
    return a;
}

std::vector<words> by_single_lanes(const subject& s, const std::vector<words>& arguments, uint32_t mxcsr) {
    lane_caller one = s.caller(1);
    one.in.mxcsr = mxcsr;
    std::vector<words> all, lane(arguments.size()), r;
    for (size_t i = 0; i < arguments[0].size(); i++) {
        for (size_t j = 0; j < arguments.size(); j++)
            lane[j] = {arguments[j][i]};
        one(lane, r);
        all.resize(r.size());
        for (size_t j = 0; j < r.size(); j++)
            all[j].push_back(r[j][0]);
    }
    return all;
}

slow_result call_slow_path(object& in, const kernel_row& row, const std::vector<uint64_t>& lane, uint64_t before) {
    const void* f = in.symbol(row.slow_path_symbol());
    if (!f) {
        ADD_FAILURE() << "no " << row.slow_path_symbol();
        return {};
    }
    alignas(16) uint64_t p[5] = {};
    size_t n = 0;
    for (uint64_t w : lane)
        p[n++] = w;
    uint64_t* result = &p[n];
    *result = before;
    const int status = ((int (*)(void*, void*, void*, void*))f)(&p[0], &p[1], &p[2], &p[3]);
    return {status, p[n], n + 1 < 5 ? p[n + 1] : 0};
}

namespace {
subject subject_of(std::string_view name, std::string_view tier, object& in = library_under_test()) {
    const kernel_row* row = find_row(library_rows(), name, tier);
    if (!row) throw std::runtime_error("no such export: " + std::string(name));
    return {row, &in};
}
std::vector<uint64_t> lane_of(const kernel_row& row, double x, double y) {
    std::vector<uint64_t> lane{word_of(row.argument(0), x)};
    if (row.arguments() > 1) lane.push_back(word_of(row.argument(1), y));
    return lane;
}
} // namespace

uint64_t member::of_words(const std::vector<uint64_t>& x) const {
    std::vector<words> arguments;
    for (auto w : x)
        arguments.push_back({w});
    return sweep(row->name, row->tier, 1)(arguments)[0][0];
}
uint64_t word_for(std::string_view name, std::string_view tier, double x, double y) {
    const subject s = subject_of(name, tier);
    std::vector<words> arguments;
    for (uint64_t w : lane_of(*s.row, x, y))
        arguments.push_back({w});
    return by_single_lanes(s, arguments)[0][0];
}
double value_for(std::string_view name, std::string_view tier, double x, double y) {
    return value_of(subject_of(name, tier).row->result(0), word_for(name, tier, x, y));
}
int status_for(std::string_view name, std::string_view tier, double x, double y) {
    const kernel_row& row = *subject_of(name, tier).row;
    return call_slow_path(library_under_test(), row, lane_of(row, x, y)).status;
}

sweep::sweep(std::string_view name, std::string_view tier, int width, object& in)
    : s(subject_of(name, tier, in)), call(s.caller(width)) {}
const std::vector<words>& sweep::operator()(const std::vector<words>& arguments) {
    const size_t n = arguments[0].size(), width = call.plan().width;
    std::vector<words> part(arguments.size()), r;
    results.clear();
    for (size_t i = 0; i < n; i += width) {
        for (size_t j = 0; j < arguments.size(); j++) {
            part[j].assign(arguments[j].begin() + i, arguments[j].begin() + std::min(i + width, n));
            part[j].resize(width, part[j].back());
        }
        call(part, r);
        results.resize(r.size());
        for (size_t j = 0; j < r.size(); j++)
            results[j].insert(results[j].end(), r[j].begin(), r[j].begin() + std::min(width, n - i));
    }
    return results;
}

worst worst_error(sweep& f, truth& t, const std::vector<words>& arguments, int result) {
    const auto& r = f(arguments);
    worst w;
    std::vector<uint64_t> lane(arguments.size());
    for (size_t i = 0; i < arguments[0].size(); i++) {
        for (size_t j = 0; j < lane.size(); j++)
            lane[j] = arguments[j][i];
        if (!t(f.row(), lane.data())) continue;
        const double e = t.error(result, f.row().result(result), r[result][i]);
        if (!(e <= w.ulps)) w = {e, lane[0], lane.size() > 1 ? lane[1] : 0};
    }
    return w;
}

} // namespace orvane
