// OpenCL for the tests: the first platform's first device, errors as exceptions.
#pragma once

#define CL_HPP_ENABLE_EXCEPTIONS
#define CL_HPP_TARGET_OPENCL_VERSION 300
#define CL_HPP_MINIMUM_OPENCL_VERSION 200
#include <CL/opencl.hpp>

#include <stdexcept>
#include <string>
#include <vector>

namespace orvane {

class device {
public:
    device() {
        std::vector<cl::Platform> platforms;
        cl::Platform::get(&platforms);
        if (platforms.size() != 1) throw std::runtime_error(std::to_string(platforms.size()) + " platforms, not one");
        platform = platforms[0];
        std::vector<cl::Device> devices;
        platform.getDevices(CL_DEVICE_TYPE_ALL, &devices);
        of = devices.at(0);
        context = cl::Context(of);
        queue = cl::CommandQueue(context, of);
    }

    bool has_orvane() { return platform.getInfo<CL_PLATFORM_VERSION>().find("Orvane") != std::string::npos; }

    cl::Program build(const std::string& source, const std::string& options = "") {
        cl::Program p(context, source);
        try {
            p.build({of}, options.c_str());
        } catch (const cl::Error&) {
            throw std::runtime_error(p.getBuildInfo<CL_PROGRAM_BUILD_LOG>(of));
        }
        return p;
    }
    template <class T> cl::Buffer buffer(const std::vector<T>& v) {
        return {context, CL_MEM_READ_WRITE | CL_MEM_COPY_HOST_PTR, v.size() * sizeof(T), const_cast<T*>(v.data())};
    }
    template <class T> void read(const cl::Buffer& b, std::vector<T>& v) {
        queue.enqueueReadBuffer(b, CL_TRUE, 0, v.size() * sizeof(T), v.data());
    }

    cl::Platform platform;
    cl::Device of;
    cl::Context context;
    cl::CommandQueue queue;
};

} // namespace orvane
