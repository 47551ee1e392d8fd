#include "kernel_types.h"

#include "command_line.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace orvane {

namespace {

constexpr scalar_type scalars[] = {
    {"char", "|i1", 1, scalar_type::with_sign},  {"uchar", "|u1", 1, scalar_type::without_sign},
    {"short", "<i2", 2, scalar_type::with_sign}, {"ushort", "<u2", 2, scalar_type::without_sign},
    {"int", "<i4", 4, scalar_type::with_sign},   {"uint", "<u4", 4, scalar_type::without_sign},
    {"long", "<i8", 8, scalar_type::with_sign},  {"ulong", "<u8", 8, scalar_type::without_sign},
    {"half", "<f2", 2, scalar_type::floating},   {"float", "<f4", 4, scalar_type::floating},
    {"double", "<f8", 8, scalar_type::floating}};
constexpr int widths[] = {1, 2, 3, 4, 8, 16};

// The type of a name that OpenCL C itself has; none for others.
value_type built_in_type(std::string_view name) {
    for (const auto& s : scalars)
        for (int w : widths)
            if (name == s.name || name == std::string(s.name) + std::to_string(w))
                return {&s, name == s.name ? 1 : w};
    constexpr std::string_view spelled[][2] = {{"unsigned char", "uchar"}, {"unsigned short", "ushort"},
                                               {"unsigned int", "uint"},   {"unsigned", "uint"},
                                               {"unsigned long", "ulong"}, {"signed char", "char"}};
    for (const auto& [c, opencl] : spelled)
        if (name == c) return built_in_type(opencl);
    return {};
}

// Functions that tell a type by its overloads: 16 times the place among the scalars, plus the width's place, plus 1.
std::string type_overloads(bool with_double) {
    std::string s =
        "#pragma OPENCL EXTENSION cl_khr_fp64 : enable\n"
        "int __attribute__((overloadable)) __orvane_type(const volatile __private void *p) { return 0; }\n";
    for (size_t k = 0; k < std::size(scalars); k++)
        for (size_t w = 0; w < std::size(widths); w++) {
            const auto& t = scalars[k];
            if ((t.name == "double" && !with_double) || (t.name == "half" && w)) continue;
            s += "int __attribute__((overloadable)) __orvane_type(const volatile __private " + std::string(t.name) +
                 (w ? std::to_string(widths[w]) : "") + " *p) { return " + std::to_string(16 * k + w + 1) + "; }\n";
        }
    return s;
}

} // namespace

std::string value_type::name() const { return std::string(scalar->name) + (width > 1 ? std::to_string(width) : ""); }

std::string parameter::text() const {
    if (!type.scalar) return declared + " " + name;
    const std::string what = type.name();
    if (role == value) return what + " " + name;
    const char* space = role == local ? "local " : role == constant_buffer ? "constant " : "global ";
    return space + std::string(role == buffer && !writable ? "const " : "") + what + "* " + name;
}

kernel_file::kernel_file(const std::string& path, const std::string& definitions, const std::string& options)
    : options(options) {
    std::error_code none;
    if (std::filesystem::is_directory(path, none))
        throw failure("cannot read " + quoted(path) + ": it is a folder; name a file of OpenCL C");
    std::ifstream in(path, std::ios::binary);
    std::stringstream text;
    if (in) text << in.rdbuf();
    if (!in || text.str().empty()) {
        if (in && !in.bad() && std::filesystem::exists(path, none)) throw failure(quoted(path) + " is empty");
        throw failure("cannot read " + quoted(path) + ": " + strerror(errno));
    }
    if (text.str().find('\0') != std::string::npos)
        throw failure(quoted(path) + " holds a NUL byte: it is no OpenCL C");
    std::string escaped;
    for (char c : path)
        escaped += c == '"' || c == '\\' ? std::string("\\") + c : std::string(1, c);
    source = definitions + "#line 1 \"" + escaped + "\"\n" + text.str() + "\n";
}

cl::Program kernel_file::build(const cl::Context& context, const std::string& after) const {
    cl::Program program(context, source + after);
    program.build((options + " -cl-kernel-arg-info").c_str());
    return program;
}

std::vector<parameter> kernel_file::parameters_of(const cl::Context& context, const cl::Device& device,
                                                  const cl::Kernel& kernel) const {
    std::vector<parameter> all;
    std::vector<std::string> unknown;
    const auto text_of = [](std::string s) { // some drivers count the terminating zero as a character
        while (!s.empty() && !s.back())
            s.pop_back();
        return s;
    };
    for (cl_uint i = 0; i < kernel.getInfo<CL_KERNEL_NUM_ARGS>(); i++) {
        parameter p;
        p.name = text_of(kernel.getArgInfo<CL_KERNEL_ARG_NAME>(i));
        if (p.name.starts_with("_cl_")) p.name.erase(0, 4); // PoCL's built-ins have macros for names: all, length
        p.declared = text_of(kernel.getArgInfo<CL_KERNEL_ARG_TYPE_NAME>(i));
        const auto space = kernel.getArgInfo<CL_KERNEL_ARG_ADDRESS_QUALIFIER>(i);
        p.role = space == CL_KERNEL_ARG_ADDRESS_GLOBAL     ? parameter::buffer
                 : space == CL_KERNEL_ARG_ADDRESS_CONSTANT ? parameter::constant_buffer
                 : space == CL_KERNEL_ARG_ADDRESS_LOCAL    ? parameter::local
                                                           : parameter::value;
        p.writable = p.role == parameter::buffer &&
                     !(kernel.getArgInfo<CL_KERNEL_ARG_TYPE_QUALIFIER>(i) & CL_KERNEL_ARG_TYPE_CONST);
        // The words of the type, without qualifiers; a pointer's star goes too.
        std::string words, word;
        std::stringstream in(p.declared);
        while (in >> word)
            if (word != "const" && word != "volatile" && word != "restrict" && !word.starts_with("__"))
                words += (words.empty() ? "" : " ") + word;
        const bool star = words.ends_with('*');
        while (words.ends_with('*') || words.ends_with(' '))
            words.pop_back();
        // Images and their like are no numbers, nor are arrays; a name without a star may be a typedef of a pointer.
        const bool opaque = words.starts_with("image") || words == "sampler_t" || words == "event_t" ||
                            words == "queue_t" || std::count(p.declared.begin(), p.declared.end(), '*') > 1 ||
                            words.find_first_of("[(") != words.npos;
        if (star || p.role == parameter::value) p.type = built_in_type(words);
        else words = "__typeof__(*(" + words + ")0)";
        unknown.push_back(p.type.scalar || opaque ? "" : words);
        all.push_back(p);
    }

    const bool with_double = device.getInfo<CL_DEVICE_DOUBLE_FP_CONFIG>() != 0;
    const auto ask = [&](const std::vector<std::string>& names) {
        std::string probe = type_overloads(with_double) + "kernel void __orvane_types(global int *out) {\n";
        for (size_t i = 0; i < names.size(); i++)
            if (!names[i].empty())
                probe += "out[" + std::to_string(i) + "] = __orvane_type((__private " + names[i] + " *)0);\n";
        cl::Kernel k(build(context, probe + "}\n"), "__orvane_types");
        std::vector<cl_int> codes(names.size());
        cl::CommandQueue queue(context, device);
        cl::Buffer out(context, CL_MEM_READ_WRITE | CL_MEM_COPY_HOST_PTR, codes.size() * sizeof codes[0],
                       codes.data());
        k.setArg(0, out);
        queue.enqueueNDRangeKernel(k, cl::NullRange, cl::NDRange(1));
        queue.enqueueReadBuffer(out, CL_TRUE, 0, codes.size() * sizeof codes[0], codes.data());
        return codes;
    };
    const auto asked = [](const std::string& s) { return !s.empty(); };
    if (std::none_of(unknown.begin(), unknown.end(), asked)) return all;
    std::vector<cl_int> codes(all.size());
    try {
        codes = ask(unknown);
    } catch (const cl::Error&) { // one of them is nothing that a pointer may point to: each by itself
        for (size_t i = 0; i < all.size(); i++)
            if (asked(unknown[i])) try {
                    codes[i] = ask({unknown[i]})[0];
                } catch (const cl::Error&) {
                }
    }
    for (size_t i = 0; i < all.size(); i++)
        if (codes[i] > 0) all[i].type = {&scalars[(codes[i] - 1) / 16], widths[(codes[i] - 1) % 16]};
    return all;
}

} // namespace orvane
