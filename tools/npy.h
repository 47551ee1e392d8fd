// Arrays in NumPy's .npy files, in the machine's byte order: read and checked, and nothing converted.
#pragma once

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <string>
#include <vector>

namespace orvane {

// "(1024, 4)", as NumPy writes it.
std::string npy_shape(const std::vector<size_t>& shape);

// An array whose header is read and whose size is checked against the file's.
class npy_reader {
public:
    // Throws std::runtime_error with one line, which begins with the quoted name of the file.
    explicit npy_reader(const std::string& path);

    std::string type;          // of an element, as in the file: "<f4", "|u1", ">i8"
    std::vector<size_t> shape; // empty: one element
    size_t elements = 1;       // the product of the shape
    size_t element_bytes = 0;  // of one element
    bool column_major = false; // and not also C order, as in one dimension

    // The next `bytes` of the data.
    void read(void* to, size_t bytes);

private:
    std::string name;
    std::ifstream in;
};

// Begins a file of an array in C order; the data follows.
void write_npy_header(std::ostream& to, const std::string& type, const std::vector<size_t>& shape);

} // namespace orvane
