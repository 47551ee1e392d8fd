// One kernel of an OpenCL C file over arrays and numbers that a command line names: everything is checked before
// anything runs or is written.
#pragma once

#include "kernel_types.h"
#include "npy.h"
#include "whole_file.h"

#include <memory>

namespace orvane {

struct kernel_request {
    std::string file, kernel, platform; // kernel, platform: as given, or empty
    std::string definitions;            // before the file's first line
    std::string options;                // for the driver's compiler
    std::vector<size_t> global, local;  // local: as given, or empty
    std::vector<std::string> arguments;
};

// What the driver's compiler said about the file.
struct compile_error {
    std::string messages;
};

// Platforms with at least one device.
struct platform {
    cl::Platform handle;
    cl::Device device; // its first
    std::string name, version;
    bool is_orvane() const;
};
std::vector<platform> platforms();
// By number, or by a part of the name or version; empty: Orvane's, else the first. Throws failure.
platform choose_platform(const std::string& wanted);

// What is told on a terminal while a step lasts.
class step_shown {
public:
    explicit step_shown(const std::string& what);
    ~step_shown();

private:
    struct state;
    std::unique_ptr<state> s;
};

class kernel_run {
public:
    // Builds the file and chooses the kernel. Throws failure, compile_error, cl::Error.
    explicit kernel_run(const kernel_request&);
    ~kernel_run();

    const platform& on() const { return where; }
    const std::string& name() const { return kernel_name; }
    size_t items() const;

    void check_arguments(bool outputs); // with `outputs`, opens them
    void fill();                        // buffers get their contents; those that kernels write, again
    void run();                         // to its end
    void write();                       // whole files, all of them

    // The kernels of a file with their parameters, a line each.
    static std::vector<std::string> list(const kernel_request&);

private:
    struct argument;
    platform where;
    kernel_request request;
    kernel_file source;
    cl::Context context;
    cl::CommandQueue queue;
    cl::Program program;
    cl::Kernel kernel;
    std::string kernel_name;
    std::vector<parameter> parameters;
    std::vector<argument> arguments;
    std::vector<size_t> local; // as it will run; empty: the driver chooses

    void choose_local();
    void check_sizes() const;
};

} // namespace orvane
