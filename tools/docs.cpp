#include "docs.h"

#include <map>
#include <stdexcept>

namespace orvane {

namespace {
const std::map<std::string_view, std::string_view> docs = {
#include "docs.inc"
};
} // namespace

std::string meaning_of(const kernel_row& row) {
    if (const auto d = docs.find(row.base()); d != docs.end()) return std::string(d->second);
    if (row.sclass != signature_class::conversion)
        throw std::runtime_error("tools/docs.inc says nothing of '" + row.base() + "': write what it means");
    std::string s =
        "Conversion from " + std::string(opencl_type(row.in)) + " to " + std::string(opencl_type(row.out));
    const std::string_view modes[][2] = {{"rte", "rounded to nearest, ties to even"},
                                         {"rtn", "rounded down"},
                                         {"rtp", "rounded up"},
                                         {"rtz", "rounded toward zero"}};
    const std::string base = row.base();
    for (const auto& m : modes)
        if (base.find(m[0]) != base.npos) s += ", " + std::string(m[1]);
    if (base.find("nosat") != base.npos) s += "; values out of range give what the processor's steps give.";
    else if (base.find("sat") != base.npos) s += "; values out of range give the nearest end of it, NaN gives 0.";
    else s += ".";
    return s;
}

} // namespace orvane
