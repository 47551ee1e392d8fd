// The data of a report (docs/report.md): a file of JSON, or the page, which holds it between two tags.
#pragma once

#include "whole_file.h"

#include <nlohmann/json.hpp>

namespace orvane {

inline constexpr std::string_view report_data_begins = "<script type=\"application/json\" id=\"data\">",
                                  report_data_ends = "</script>";

// Throws one line that says what is wrong.
inline nlohmann::ordered_json report_data(const std::filesystem::path& file) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error))
        throw std::runtime_error("there is no file '" + file.string() +
                                 "'; name the data of an earlier report, or its page");
    std::string text = contents_of(file);
    if (const size_t at = text.find(report_data_begins); at != text.npos) {
        text = text.substr(at + report_data_begins.size());
        text = text.substr(0, text.find(report_data_ends));
    }
    auto data = nlohmann::ordered_json::parse(text, nullptr, false);
    if (data.is_discarded() || !data.is_object() || data.value("format", 0) != 1 || !data.contains("kernels") ||
        !data.contains("speed"))
        throw std::runtime_error("'" + file.string() + "' is neither the data of a report nor its page");
    return data;
}

} // namespace orvane
