#include "facts.h"

#include "tools/docs.h"
#include "tools/opencl_limits.h"

#include <algorithm>
#include <limits>
#include <map>
#include <stdexcept>

namespace orvane::report {

const kernel_row& kernel_of(const kernel_row& row) {
    return row.twin_name.empty() ? row : *find_row(library_rows(), row.twin_name, row.twin_tier);
}
std::string name_of(const kernel_row& kernel) { return std::string(kernel.name) + '/' + std::string(kernel.tier); }

namespace {

struct lines_of_family {
    std::string_view base, formula, domain;
};
constexpr lines_of_family lines[] = {
#include "formulas.inc"
};

std::string in_words(const place& p, const call_plan& plan, bool is_result) {
    constexpr const char* integer_registers[] = {"rdi", "rsi", "rdx"};
    std::string s;
    switch (p.where) {
    case place::in::vector_registers:
        for (int k = 0; k < p.registers; k++) {
            const bool whole = size_of(p.type) * stored_lanes(p.lanes) > 16;
            s += (k ? " " : "") + std::string(whole ? "ymm" : "xmm") + std::to_string(p.first + k);
        }
        return s;
    case place::in::integer_register:
        if (!is_result) return integer_registers[p.first];
        return p.offset ? "rax from bit " + std::to_string(8 * p.offset) : "rax";
    case place::in::stack:
        return "[rsp+" + std::to_string(p.offset) + "]";
    case place::in::result_object:
        return std::string("[rdi") + (p.offset ? "+" + std::to_string(p.offset) : "") + "]";
    case place::in::out_object:
        return std::string("[") + integer_registers[plan.out_register] + "]";
    }
    return s;
}

json form_of(const kernel_row& row) {
    json form = json::array();
    for (int w : widths) {
        const call_plan p = plan_of(row, w);
        json in = json::array(), out = json::array();
        for (const auto& a : p.arguments)
            in.push_back(in_words(a, p, false));
        for (const auto& r : p.results)
            out.push_back(in_words(r, p, true));
        form.push_back({{"memory", p.memory_form}, {"in", in}, {"out", out}});
    }
    return form;
}

std::string digits(lane_type t, uint64_t bits) {
    char s[20];
    snprintf(s, sizeof s, "%0*llX", 2 * size_of(t), (unsigned long long)bits);
    return s;
}

std::vector<uint64_t> telling_arguments(lane_type t, int of_how_many) {
    std::vector<uint64_t> x;
    if (is_floating(t)) {
        const double inf = HUGE_VAL, smallest = t == lane_type::f32 ? 0x1p-149 : 0x1p-1074,
                     largest = t == lane_type::f32 ? 0x1.fffffep127 : 0x1.fffffffffffffp1023;
        std::vector<double> values = {-inf, -2, -1, -0.5, -0.0, 0, 0.5, 1, 3, inf};
        if (of_how_many == 1)
            values = {-inf, -largest, -2, -1, -0.5, -smallest, -0.0, 0, smallest, 0.5, 1, 2, 3, 100, largest, inf};
        for (double v : values)
            x.push_back(word_of(t, v));
        x.push_back(t == lane_type::f32 ? 0x7FC00000 : 0x7FF8000000000000);
        return x;
    }
    const int bits = 8 * size_of(t);
    const uint64_t all = bits == 32 ? 0xFFFFFFFF : ~uint64_t(0), top = uint64_t(1) << (bits - 1);
    if (t == lane_type::u32 || t == lane_type::u64) return {0, 1, 2, 7, 1000, top - 1, top, all};
    return {top,  top + 1, (uint64_t(0) - 1000) & all, (uint64_t(0) - 7) & all, all - 1, all, 0, 1, 2, 7,
            1000, top - 1};
}

json special_of(const std::vector<const kernel_row*>& tiers, const library& in) {
    const kernel_row& row = *tiers.front();
    json j, types = json::array();
    const int n = row.arguments();
    std::vector<uint64_t> values[3];
    for (int i = 0; i < n; i++) {
        types.push_back(to_string(row.argument(i)));
        values[i] = telling_arguments(row.argument(i), n);
    }
    std::vector<std::vector<uint64_t>> lanes;
    if (n == 3) { // triples whose intermediate steps matter: an infinite product, one that cancels, one rounding
        const double inf = HUGE_VAL, nan = NAN, e = row.in == lane_type::f32 ? 0x1p-12 : 0x1p-27;
        for (auto [a, b, c] : {std::array{inf, 0.0, 1.0},
                               {inf, 2, -inf},
                               {inf, 2, inf},
                               {1, 1, -inf},
                               {0, -1, 0},
                               {-0.0, 1, -0.0},
                               {1 + e, 1 - e, -1},
                               {nan, 1, 1},
                               {1, 1, nan}})
            lanes.push_back({word_of(row.in, a), word_of(row.in, b), word_of(row.in, c)});
        j["triples"] = json::array();
        for (const auto& lane : lanes)
            j["triples"].push_back({digits(row.in, lane[0]), digits(row.in, lane[1]), digits(row.in, lane[2])});
    } else {
        for (uint64_t x : values[0])
            if (n == 1) lanes.push_back({x});
            else
                for (uint64_t y : values[1])
                    lanes.push_back({x, y});
        for (int i = 0; i < n; i++)
            for (uint64_t x : values[i])
                j[i ? "y" : "x"].push_back(digits(row.argument(i), x));
    }
    j["types"] = types;
    json results = json::array();
    for (int i = 0; i < row.results() + row.has_out(); i++)
        results.push_back(to_string(row.result(i)));
    j["results"] = results;
    for (const kernel_row* tier : tiers) {
        const kernel_row& kernel = kernel_of(*tier);
        if (&kernel != tier && j.contains("tiers") && kernel.name == row.name) continue; // told under its first name
        one_lane call(kernel, in);
        json given = json::array();
        for (const auto& lane : lanes) {
            const auto& r = call(lane);
            std::string s;
            for (size_t i = 0; i < r.size(); i++)
                s += (i ? "," : "") + digits(row.result(i), r[i][0]);
            given.push_back(s);
        }
        j["tiers"][std::string(tier->tier)] = given;
    }
    return j;
}

} // namespace

json facts_of(const std::vector<const kernel_row*>& pairs, const library& in, const std::vector<worst_case>& cases) {
    json j{{"pairs", json::array()}, {"families", json::object()}, {"forms", json::array()}};
    std::map<std::string, size_t> numbers;
    std::vector<std::string_view> families;
    for (const kernel_row* row : pairs) {
        const kernel_row& kernel = kernel_of(*row);
        const known_error known = largest_known_error(*row, cases);
        json p{{"family", std::string(row->name)}, {"tier", std::string(row->tier)}, {"kernel", name_of(kernel)}};
        p["type"] = std::string(opencl_type(row->in));
        if (row->result(0) != row->in) p["result"] = std::string(opencl_type(row->result(0)));
        const std::string builtin = row->builtin.empty() ? "" : row->served_builtin(8);
        if (!builtin.empty()) p["builtin"] = builtin;
        if (row->is_relaxed()) p["relaxed"] = true;
        p["error"] = known.error;
        p["measure"] = std::string(to_string(known.measure));
        if (const auto limit = limit_of(*row)) {
            p["limit"] = limit->text();
            const bool absolute = limit->absolute != 0;
            if (absolute == (known.measure == error_measure::absolute) && known.measure != error_measure::relative)
                p["limit_value"] = absolute ? limit->absolute : limit->ulp;
        }
        const json form = form_of(*row);
        const auto [at, is_new] = numbers.try_emplace(form.dump(), j["forms"].size());
        if (is_new) j["forms"].push_back(form);
        p["form"] = at->second;
        j["pairs"].push_back(p);
        if (families.empty() || families.back() != row->name) families.push_back(row->name);
    }
    for (const auto family : families) {
        std::vector<const kernel_row*> tiers;
        for (const kernel_row* row : pairs)
            if (row->name == family) tiers.push_back(row);
        const kernel_row& row = *tiers.front();
        json f{{"meaning", meaning_of(row)}};
        const auto line =
            std::find_if(std::begin(lines), std::end(lines), [&](const auto& l) { return l.base == row.base(); });
        if (line != std::end(lines)) {
            f["formula"] = std::string(line->formula);
            f["domain"] = std::string(line->domain);
        } else if (row.sclass == signature_class::conversion) {
            f["formula"] = "The processor's conversions, with the rounding mode put into the steps.";
            f["domain"] = is_floating(row.in) && !is_floating(row.out)
                              ? "numbers within the range of " + std::string(opencl_type(row.out))
                              : "all values";
        } else throw std::runtime_error("report/formulas.inc says nothing of '" + row.base() + "'");
        f["special"] = special_of(tiers, in);
        j["families"][std::string(family)] = f;
    }
    return j;
}

} // namespace orvane::report
