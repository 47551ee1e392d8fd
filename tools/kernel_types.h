// A kernel's parameters, as a driver tells them: what a caller may give for each.
#pragma once

#include <CL/opencl.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

struct scalar_type {
    std::string_view name; // "uint"
    std::string_view npy;  // "<u4"
    size_t bytes;
    enum { floating, with_sign, without_sign } kind;
};

// A number or a vector of numbers.
struct value_type {
    const scalar_type* scalar = nullptr; // none: something else, such as a struct or an image
    int width = 1;
    size_t bytes() const { return scalar->bytes * size_t(width == 3 ? 4 : width); } // as it lies in memory
    std::string name() const;
};

struct parameter {
    enum { value, buffer, constant_buffer, local } role;
    std::string name, declared; // `declared`: as the driver prints its type
    value_type type;            // of the value, or of an element
    bool writable;              // a buffer that the kernel may write
    std::string text() const;   // "global const float4* bodies"
};

// An OpenCL C file with what goes before it, on one device.
class kernel_file {
public:
    // `definitions` stand before the first line, which is line 1 for the compiler. Throws failure if the file cannot
    // be read.
    kernel_file(const std::string& path, const std::string& definitions, const std::string& options);

    // Throws cl::BuildError with the compiler's messages.
    cl::Program build(const cl::Context&, const std::string& after = "") const;

    // Types behind typedefs resolve by a kernel of our own behind the file: its overloads tell what a name stands
    // for.
    std::vector<parameter> parameters_of(const cl::Context&, const cl::Device&, const cl::Kernel&) const;

private:
    std::string source, options;
};

} // namespace orvane
