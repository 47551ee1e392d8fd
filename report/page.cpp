#include "page.h"

#include "tools/report_data.h"

namespace orvane::report {

namespace {

// Files of the page folder and the plotting library, as they are (embedded.S).
#define EMBEDDED(name)                                                                                               \
    extern "C" const char orvane_page_##name[], orvane_page_##name##_end[];                                          \
    std::string_view name() { return {orvane_page_##name, orvane_page_##name##_end}; }
EMBEDDED(html)
EMBEDDED(css)
EMBEDDED(js)
EMBEDDED(chart)

// JSON may stand between tags as long as it holds no "</".
std::string inside_a_tag(std::string text) {
    for (size_t at = 0; (at = text.find("</", at)) != text.npos; at += 3)
        text.insert(at + 1, "\\");
    return text;
}

} // namespace

std::string page_of(const json& data) {
    std::string page;
    std::string_view rest = html();
    for (size_t at; (at = rest.find("{{")) != rest.npos;) {
        page += rest.substr(0, at);
        const size_t end = rest.find("}}", at);
        const std::string_view name = rest.substr(at + 2, end - at - 2);
        if (name == "css") page += css();
        else if (name == "js") page += js();
        else if (name == "chart") page += chart();
        else if (name == "data")
            page += std::string(report_data_begins) + inside_a_tag(data.dump()) + std::string(report_data_ends);
        else throw std::logic_error("the page's template asks for '" + std::string(name) + "'");
        rest = rest.substr(end + 2);
    }
    return page += rest;
}

json as_baseline(const json& data) {
    json b;
    for (auto key : {"processor", "measured", "estimates", "kind"})
        if (data.contains(key)) b[key] = data[key];
    b["kernels"] = json::object();
    for (const auto& [name, kernel] : data["kernels"].items())
        b["kernels"][name] = {{"digest", kernel.value("digest", "")},
                              {"largest", kernel.value("largest", json::object())}};
    b["speed"] = json::array();
    for (const json& row : data["speed"]) {
        json r;
        for (auto key : {"family", "tiers", "set", "width", "ns", "latency_ns"})
            if (row.contains(key)) r[key] = row[key];
        b["speed"].push_back(r);
    }
    return b;
}

} // namespace orvane::report
