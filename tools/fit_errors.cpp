// fit-errors: computes how close the polynomials of the kernels' blocks come to what their comments say they are.
//
//     fit-errors                     every fit of the library: file, line, and log2 of the error stated and computed
//     fit-errors exp/exp.cpp         of some files
//     fit-errors --write             puts the computed errors into the comments
//
// tools/fits/stated.h says how such a comment is written. Exits with 1 where a stated error is not the computed one.
#include "fits/stated.h"
#include "whole_file.h"

#include <CLI/CLI.hpp>
#include <cmath>
#include <iostream>

using namespace orvane;
namespace fs = std::filesystem;

namespace {

std::string shown(double exponent) {
    char s[32];
    snprintf(s, sizeof s, "%.1f", -exponent);
    return s;
}

int run(int argc, char** argv) {
    CLI::App app(
        "Computes how close the polynomials of the kernels' blocks come to what their comments say they are.");
    std::vector<std::string> files;
    bool write = false;
    app.add_option("files", files, "sources with fits (all of the library)");
    app.add_flag("--write", write, "put the computed errors into the comments");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& e) {
        if (e.get_exit_code() == 0) return app.exit(e);
        throw std::runtime_error(std::string(e.what()) + " (--help tells more)");
    }
    if (files.empty())
        for (const auto& f : fits::sources_with_fits(ORVANE_SOURCES))
            files.push_back(f.string());
    int wrong = 0;
    for (const auto& file : files) {
        if (!fs::is_regular_file(file)) throw std::runtime_error("no file '" + file + "'");
        auto stated = fits::stated_fits(file);
        std::string text = contents_of(file);
        for (auto f = stated.rbegin(); f != stated.rend(); ++f) { // from the end, so that places stay
            const double computed = fits::error_exponent(*f);
            const bool agrees = shown(computed) == shown(f->exponent);
            std::cout << fs::absolute(file).lexically_relative(ORVANE_SOURCES).string() << ":" << f->line
                      << ": stated 2^-" << shown(f->exponent) << ", computed 2^-" << shown(computed)
                      << (agrees ? "\n" : "  <--\n");
            wrong += !agrees;
            text.replace(f->exponent_at, f->exponent_size, shown(computed));
        }
        if (write) write_whole(file, text);
    }
    return wrong && !write;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const std::exception& e) {
        std::cerr << "fit-errors: " << e.what() << "\n";
        return 1;
    }
}
