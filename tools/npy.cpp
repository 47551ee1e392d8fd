#include "npy.h"

#include "command_line.h"

#include <cstring>
#include <xtensor/xnpy.hpp>

namespace orvane {

namespace fs = std::filesystem;

std::string npy_shape(const std::vector<size_t>& shape) {
    std::string s = "(";
    for (size_t i = 0; i < shape.size(); i++)
        s += (i ? ", " : "") + std::to_string(shape[i]);
    return s + (shape.size() == 1 ? ",)" : ")");
}

npy_reader::npy_reader(const std::string& path) : name(quoted(path)) {
    std::error_code none;
    if (fs::is_directory(path, none)) throw failure("cannot read " + name + ": it is a folder; name a .npy file");
    errno = 0;
    in.open(path, std::ios::binary);
    if (!in) throw failure("cannot read " + name + ": " + strerror(errno ? errno : EIO));
    const auto ends = [&] { return failure(name + " ends within the header of an .npy file"); };
    try {
        unsigned char major, minor;
        xt::detail::read_magic(in, &major, &minor);
        if ((major != 1 && major != 2) || minor) throw failure(name + ": NumPy's format 1.0 and 2.0 are read");
        // A header that is cut off leaves the stream in its failed state; the parser must get a whole one.
        const std::string header = major == 1 ? xt::detail::read_header_1_0(in) : xt::detail::read_header_2_0(in);
        if (!in || header.empty()) throw ends();
        xt::detail::parse_header(header, type, &column_major, shape);
    } catch (const failure&) {
        throw;
    } catch (const std::exception& e) {
        throw failure(name + " is no .npy file of numbers (" + e.what() + ")");
    }
    element_bytes = size_t(std::atoi(type.c_str() + 2));
    size_t bytes = element_bytes;
    bool fits = element_bytes > 0 && element_bytes <= 16;
    for (size_t n : shape)
        fits = fits && !__builtin_mul_overflow(bytes, n, &bytes), elements *= n;
    if (!fits) throw failure(name + ": no file holds an array of " + type + " with the shape " + npy_shape(shape));
    if (shape.size() < 2) column_major = false;
    if (fs::is_regular_file(path, none)) {
        const size_t held = fs::file_size(path) - size_t(in.tellg());
        if (held != bytes)
            throw failure(name + " holds " + std::to_string(held) + " bytes of data; its header, " + type + " " +
                          npy_shape(shape) + ", promises " + std::to_string(bytes));
    }
}

void npy_reader::read(void* to, size_t bytes) {
    if (!in.read(static_cast<char*>(to), std::streamsize(bytes))) throw failure(name + " ends before its data does");
}

void write_npy_header(std::ostream& to, const std::string& type, const std::vector<size_t>& shape) {
    xt::detail::write_header(to, type, false, shape);
}

} // namespace orvane
