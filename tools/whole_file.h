// Files that are written whole or not at all.
#pragma once

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace orvane {

// The contents of a file; none if it cannot be read.
inline std::string contents_of(const std::filesystem::path& from) {
    std::ifstream in(from, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return in ? s.str() : "";
}

// Puts `text` into `to`, by way of a part beside it that is gone when this fails. A file that holds the text already is
// left alone with its time, so that nothing is built anew for it. Throws with one line that says what went wrong.
inline void write_whole(const std::filesystem::path& to, const std::string& text) {
    namespace fs = std::filesystem;
    const fs::path part = to.string() + ".part";
    std::error_code error;
    if (fs::is_regular_file(to, error) && contents_of(to) == text) return;
    fs::create_directories(to.parent_path(), error);
    errno = 0;
    std::ofstream out(part, std::ios::binary);
    out << text;
    out.close();
    if (!out) error = std::error_code(errno, std::generic_category());
    else fs::rename(part, to, error);
    if (!error) return;
    std::error_code ignored;
    fs::remove(part, ignored);
    throw std::runtime_error("cannot write '" + to.string() + "': " + error.message());
}

} // namespace orvane
