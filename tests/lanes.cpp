#include "lanes.h"

#include "tools/estimates.h"

#include <filesystem>
#include <fstream>
#include <sstream>

namespace orvane {

namespace {

// The kind of processor whose estimates the models use.
constexpr auto kind_of_models = "0c0acf10aee97425";

model_lane parsed(const std::string& line, const kernel_row& row) {
    model_lane lane;
    std::istringstream words(line);
    bool after_equals = false;
    for (std::string w; words >> w;)
        if (w == "=") after_equals = true;
        else if (w == "~") lane.fed_by_estimates = true;
        else if (w.starts_with("+-")) lane.steps = std::stoi(w.substr(2));
        else (after_equals ? lane.results : lane.arguments).push_back(std::stoull(w, nullptr, 16));
    if (int(lane.arguments.size()) != row.arguments() || int(lane.results.size()) != row.results() + row.has_out())
        throw std::invalid_argument("a lane with too few words or too many");
    return lane;
}

// Steps between two numbers of one format, through zero.
int64_t place_among(lane_type t, uint64_t word) {
    const int64_t top = int64_t(1) << (8 * size_of(t) - 2);
    const uint64_t magnitude = word & (2 * uint64_t(top) - 1);
    return word == magnitude ? int64_t(magnitude) : -int64_t(magnitude);
}
bool within(lane_type t, uint64_t a, uint64_t b, int steps) {
    return a == b || (steps && std::isfinite(value_of(t, a)) && std::isfinite(value_of(t, b)) &&
                      std::abs(place_among(t, a) - place_among(t, b)) <= steps);
}

} // namespace

bool models_have_these_estimates() { return kind_of_processor() == kind_of_models; }

const std::vector<model_lanes>& lanes_of_models() {
    static const std::vector<model_lanes> all = [] {
        std::vector<model_lanes> all;
        for (const auto& file : std::filesystem::directory_iterator(ORVANE_SOURCES "/tests/data/lanes")) {
            std::ifstream in(file.path());
            const kernel_row* row = nullptr;
            int number = 0;
            for (std::string line; std::getline(in, line);) {
                number++;
                if (line.empty() || line[0] == '#') continue;
                try {
                    if (line[0] == '[') {
                        std::istringstream words(line.substr(1, line.find(']') - 1));
                        model_lanes& next = all.emplace_back();
                        words >> next.name;
                        for (std::string tier; words >> tier;) {
                            next.tiers.push_back(tier);
                            if (row = find_row(library_rows(), next.name, tier); !row)
                                throw std::invalid_argument("no such export");
                        }
                    } else if (row) all.back().lanes.push_back(parsed(line, *row));
                    else throw std::invalid_argument("a lane of no export");
                } catch (const std::exception& e) {
                    throw std::runtime_error(file.path().string() + ":" + std::to_string(number) + ": " + e.what());
                }
            }
        }
        return all;
    }();
    return all;
}

std::string to_text(const std::vector<uint64_t>& words, const std::vector<lane_type>& types) {
    std::string text;
    for (size_t j = 0; j < words.size(); j++) {
        char word[20];
        snprintf(word, sizeof word, "%s%0*llx", j ? " " : "", 2 * size_of(types[j]), (unsigned long long)words[j]);
        text += word;
    }
    return text;
}

std::vector<std::string> disagreements(const model_lanes& with, std::string_view tier, int width) {
    sweep run(with.name, tier, width);
    const kernel_row& row = run.row();
    std::vector<lane_type> in, out;
    for (int j = 0; j < row.arguments(); j++)
        in.push_back(row.argument(j));
    for (int j = 0; j < row.results() + row.has_out(); j++)
        out.push_back(row.result(j));

    std::vector<words> arguments(in.size());
    for (const auto& lane : with.lanes)
        for (size_t j = 0; j < in.size(); j++)
            arguments[j].push_back(lane.arguments[j]);
    const auto& results = run(arguments);

    std::vector<std::string> wrong;
    for (size_t i = 0; i < with.lanes.size(); i++) {
        const model_lane& lane = with.lanes[i];
        if (lane.fed_by_estimates && !models_have_these_estimates()) continue;
        std::vector<uint64_t> got;
        bool agree = true;
        for (size_t j = 0; j < out.size(); j++) {
            got.push_back(results[j][i]);
            agree = agree && within(out[j], got[j], lane.results[j], lane.steps);
        }
        if (!agree)
            wrong.push_back(plan_of(row, width).symbol.substr(strlen("__orvane_l9_")) + " of " +
                            to_text(lane.arguments, in) + " gives " + to_text(got, out) + ", not " +
                            to_text(lane.results, out));
    }
    return wrong;
}

} // namespace orvane
