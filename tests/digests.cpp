#include "digests.h"

#include "machine_code.h"
#include "tools/estimates.h"
#include "tools/whole_file.h"

#include <sys/mman.h>
#include <unistd.h>

namespace orvane {

// ---- private copies

private_copy::private_copy() : file(memfd_create("orvane", 0)) {
    const std::string bytes = contents_of(ORVANE_LIBRARY);
    if (file < 0 || write(file, bytes.data(), bytes.size()) != ssize_t(bytes.size()))
        throw std::runtime_error("no room for a copy of the library");
    o = std::make_unique<object>("/proc/self/fd/" + std::to_string(file));
    if (!o->handle()) throw std::runtime_error(o->error());
    base = (unsigned char*)o->loaded_at();
    const binary b(*o);
    for (int i = 0; i < b.head->e_phnum; i++)
        if (const auto& s = b.segments[i]; s.p_type == PT_LOAD) {
            const uint64_t begin = s.p_vaddr & -4096, end = (s.p_vaddr + s.p_memsz + 4095) & -4096;
            if (mprotect(base + begin, end - begin, PROT_READ | PROT_WRITE | (s.p_flags & PF_X ? PROT_EXEC : 0)))
                throw std::runtime_error("cannot write to a copy of the library");
        }
}
private_copy::~private_copy() { close(file); }

void private_copy::mark_special_lanes() {
    for (const auto& row : library_rows()) {
        if (!row.has_slow_path()) continue;
        // mov dword ptr [result], low half; for a double the upper one too; xor eax, eax; ret
        constexpr unsigned char pointer_register[] = {7, 6, 2, 1}; // rdi, rsi, rdx, rcx
        const unsigned char result = pointer_register[row.arguments()];
        unsigned char code[16], *p = code;
        auto emit = [&](auto... bytes) { ((*p++ = (unsigned char)bytes), ...); };
        emit(0xC7, result, 0xED, 0xAD, 0xDE, 0x7F);
        if (size_of(row.result(0)) == 8) emit(0xC7, 0x40 | result, 4, 0xED, 0xAD, 0xDE, 0x7F);
        emit(0x31, 0xC0, 0xC3);
        memcpy((void*)o->symbol(row.slow_path_symbol()), code, p - code);
    }
}

// ---- what there is

std::vector<digested> everything_digested(object& in) {
    const binary b(in);
    std::map<uint64_t, const object::entry*> functions, data;
    std::map<std::string, const object::entry*> by_name;
    for (const auto& e : in.symbols()) {
        by_name[e.name] = &e;
        if (e.size) (e.is_function ? functions : data)[e.value] = &e;
    }
    std::vector<digested> all;
    std::set<uint64_t> seen;
    auto add = [&](std::string name, const std::string& symbol, const kernel_row& row, bool is_slow_path) {
        const object::entry& code = *by_name.at(symbol);
        if (!seen.insert(code.value).second) return;
        const references r = references_of(b, code);
        digested d{std::move(name), &row, is_slow_path, r.takes_estimates, code, {}, {}, {}};
        for (const auto& [to, bytes] : r.data)
            if (auto at = data.upper_bound(to); at != data.begin() && to < (--at)->first + at->second->size)
                d.blocks.insert(at->second->name);
        all.push_back(std::move(d));
    };
    for (const auto& row : library_rows())
        add(std::string(row.name) + " " + std::string(row.tier), plan_of(row, 8).symbol, row, false);
    // A slow path has the limits of the kernels that lead to it.
    const size_t kernels = all.size();
    for (const auto& row : library_rows())
        if (row.has_slow_path()) add(row.slow_path_symbol(), row.slow_path_symbol(), row, true);
    for (size_t i = kernels; i < all.size(); i++)
        for (size_t k = 0; k < kernels; k++)
            if (all[k].row->has_slow_path() && in.symbol(all[k].row->slow_path_symbol()) == in.symbol(all[i].name))
                all[i].blocks.insert(all[k].blocks.begin(), all[k].blocks.end());
    return all;
}

void give_arguments(digested& d) {
    object& in = library_under_test();
    block_constants c;
    for (const auto& e : in.symbols()) {
        if (!d.blocks.contains(e.name) || e.size % 64) continue;
        const auto* slot = (const unsigned char*)in.symbol(e.name);
        for (const auto* end = slot + e.size; slot < end; slot += 64)
            if (!memcmp(slot, slot + 4, 60)) c.narrow.insert(uint32_t(read_lane(slot, lane_type::u32)));
            else if (!memcmp(slot, slot + 8, 56)) c.wide.insert(read_lane(slot, lane_type::u64));
    }
    d.rules = arguments_by_rule(*d.row, c);
    d.groups.clear();
    for (const auto& r : d.rules)
        for (size_t n = r.arguments[0].size(), i = 0; i < n; i += 256)
            d.groups.push_back({&r, i, std::min(i + 256, n)});
}

std::string group::name() const {
    return of->name + ", arguments " + std::to_string(first) + " to " + std::to_string(last - 1);
}

// ---- digests

digester::digester(object& in, const digested& d) : d(d) {
    if (d.is_slow_path) slow_path = in.symbol(d.name);
    else kernel = std::make_unique<lane_caller>(subject{d.row, &in}.caller(8));
}

// f(results) for every lane: [result], and after them a slow path's status.
template <class F> void digester::each_lane(const group& g, F f) {
    const size_t n = d.row->arguments(), results = d.row->results() + d.row->has_out();
    uint64_t lane[4] = {};
    if (d.is_slow_path) {
        for (size_t i = g.first; i < g.last; i++) {
            alignas(16) uint64_t p[5] = {};
            for (size_t j = 0; j < n; j++)
                p[j] = g.of->arguments[j][i];
            const int status = ((int (*)(void*, void*, void*, void*))slow_path)(&p[0], &p[1], &p[2], &p[3]);
            for (size_t j = 0; j < results; j++)
                lane[j] = p[n + j];
            lane[results] = uint64_t(status);
            f(lane, results + 1);
        }
        return;
    }
    part.resize(n);
    for (size_t i = g.first; i < g.last; i += 8) {
        const size_t live = std::min<size_t>(8, g.last - i);
        for (size_t j = 0; j < n; j++) {
            const auto from = g.of->arguments[j].begin() + i;
            part[j].assign(from, from + live);
            part[j].resize(8, part[j][0]);
        }
        (*kernel)(part, got);
        for (size_t l = 0; l < live; l++) {
            for (size_t j = 0; j < results; j++)
                lane[j] = got[j][l];
            f(lane, results);
        }
    }
}
uint64_t digester::results(const group& g) {
    uint64_t digest = 0;
    each_lane(g, [&](const uint64_t* lane, size_t n) {
        for (size_t j = 0; j < n; j++)
            digest = mixed(digest, lane[j]);
    });
    return digest;
}
uint32_t digester::special_lanes(const group& g) {
    uint64_t digest = 0;
    const uint64_t mark = size_of(d.row->result(0)) == 8 ? private_copy::mark : uint32_t(private_copy::mark);
    each_lane(g, [&](const uint64_t* lane, size_t) { digest = mixed(digest, lane[0] == mark); });
    return uint32_t(digest >> 32);
}

// ---- as recorded

std::string digests_file(bool takes_estimates) {
    return std::string(ORVANE_SOURCES "/tests/data/digests/") +
           (takes_estimates ? "estimates_" + kind_of_processor() : "every_processor") + ".txt";
}
bool is_recorded_kind() { return std::filesystem::exists(digests_file(true)); }

const recorded& recorded_digests(bool takes_estimates) {
    static recorded both[2];
    recorded& r = both[takes_estimates];
    if (!r.results.empty()) return r;
    std::istringstream in(contents_of(digests_file(takes_estimates)));
    for (std::string line; std::getline(in, line);) {
        const size_t colon = line.find(':');
        if (line.empty() || line[0] == '#' || colon == line.npos) continue;
        const std::string name = line.substr(0, colon), special = ", special lanes";
        auto& digests =
            name.ends_with(special) ? r.special_lanes[name.substr(0, name.size() - special.size())] : r.results[name];
        std::istringstream words(line.substr(colon + 1));
        for (std::string w; words >> w;)
            digests.push_back(std::stoull(w, nullptr, 16));
    }
    return r;
}

std::string constants_file() { return ORVANE_SOURCES "/tests/data/digests/constants.txt"; }
std::string lines_of_constants(object& in) {
    std::map<uint64_t, const object::entry*> data, functions; // of several names the first
    for (const auto& e : in.symbols())
        if (e.size)
            if (auto& named = (e.is_function ? functions : data)[e.value]; !named || e.name < named->name) named = &e;
    auto word = [&](uint64_t value, uint64_t size) {
        uint64_t digest = size;
        for (uint64_t i = 0; i < size; i++)
            digest = mixed(digest, ((const unsigned char*)in.loaded_at())[value + i]);
        char text[20];
        snprintf(text, sizeof text, " %016llx", (unsigned long long)digest);
        return std::string(text);
    };
    std::string text;
    for (const auto& [value, e] : data)
        text += e->name + ":" + word(value, e->size) + "\n";
    const binary b(in);
    std::set<uint64_t> kernels;
    for (const auto& row : library_rows())
        for (int width : widths)
            if (width != 8)
                kernels.insert((const char*)in.symbol(plan_of(row, width).symbol) - (const char*)in.loaded_at());
    for (const auto& [value, e] : functions) {
        if (kernels.contains(value)) continue;
        std::set<std::string> unnamed;
        for (const auto& [to, size] : references_of(b, *e).data)
            if (auto at = data.upper_bound(to);
                size && (at == data.begin() || to >= (--at)->first + at->second->size))
                unnamed.insert(word(to, uint64_t(size)));
        if (unnamed.empty()) continue;
        text += "unnamed in " + e->name + ":";
        for (const auto& w : unnamed)
            text += w;
        text += "\n";
    }
    return text;
}

std::string to_lines(const digested& d, object& in, private_copy& marking) {
    auto line = [&](std::string text, int digits, auto digest) {
        for (const auto& g : d.groups) {
            char word[20];
            snprintf(word, sizeof word, " %0*llx", digits, (unsigned long long)digest(g));
            text += word;
        }
        return text + "\n";
    };
    digester here(in, d);
    std::string text = line(d.name + ":", 16, [&](const group& g) { return here.results(g); });
    if (d.is_slow_path || !d.row->has_slow_path() || d.row->path == kernel_path::all_lanes) return text;
    digester marked(marking.in(), d);
    return text + line(d.name + ", special lanes:", 8, [&](const group& g) { return marked.special_lanes(g); });
}

} // namespace orvane
