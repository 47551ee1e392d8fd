// Programs as people write them, each by its name on the command line: what they compute goes to stdout as a name and
// numbers per line, to be compared between drivers.
#include "opencl.h"

#include <cmath>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <thread>

using orvane::device;

namespace {

void print(const std::string& name, const std::vector<float>& v) {
    printf("%s", name.c_str());
    for (float x : v)
        printf(" %.9g", x);
    printf("\n");
}
std::vector<float> ramp(size_t n, float from, float to) {
    std::vector<float> v(n);
    for (size_t i = 0; i < n; i++)
        v[i] = from + (to - from) * float(i) / float(n);
    return v;
}

constexpr const char* functions = R"(
kernel void curve(global const float* x, global float* y) {
    const size_t i = get_global_id(0);
    float c;
    const float s = sincos(x[i], &c);
    y[i] = exp(-x[i] * x[i]) * s + c * pow(fabs(x[i]) + 0.5f, 1.7f);
}
)";

// A gradient through an image with filtering, brightened, written to a second one.
void images() {
    device d;
    const cl::Program p = d.build(R"(
kernel void brighten(read_only image2d_t from, write_only image2d_t to, float gamma) {
    const sampler_t s = CLK_NORMALIZED_COORDS_FALSE | CLK_ADDRESS_CLAMP_TO_EDGE | CLK_FILTER_NEAREST;
    const int2 at = (int2)(get_global_id(0), get_global_id(1));
    write_imagef(to, at, pow(read_imagef(from, s, at), gamma));
})");
    const size_t w = 37, h = 21;
    const cl::ImageFormat format(CL_RGBA, CL_FLOAT);
    auto pixels = ramp(w * h * 4, 0, 1);
    cl::Image2D from(d.context, CL_MEM_READ_ONLY | CL_MEM_COPY_HOST_PTR, format, w, h, 0, pixels.data());
    cl::Image2D to(d.context, CL_MEM_WRITE_ONLY, format, w, h);
    cl::Kernel k(p, "brighten");
    k.setArg(0, from);
    k.setArg(1, to);
    k.setArg(2, 1 / 2.2f);
    d.queue.enqueueNDRangeKernel(k, cl::NullRange, cl::NDRange(w, h));
    d.queue.enqueueReadImage(to, CL_TRUE, {0, 0, 0}, {w, h, 1}, 0, 0, pixels.data());
    print("image", pixels);
}

// Three queues that hand one buffer on by events.
void queues() {
    device d;
    const cl::Program p = d.build("kernel void advance(global float* y, float a) { const size_t i = get_global_id(0);"
                                  " y[i] = log1p(exp(y[i] * a)) - 0.5f * erf(y[i]); }");
    std::vector<float> y = ramp(1000, -3, 3);
    cl::Buffer b = d.buffer(y);
    std::vector<cl::Event> before;
    std::vector<cl::CommandQueue> queues;
    for (float a : {0.5f, 1.5f, -0.7f}) {
        queues.emplace_back(d.context, d.of, cl::QueueProperties::OutOfOrder);
        cl::Kernel k(p, "advance");
        k.setArg(0, b);
        k.setArg(1, a);
        cl::Event done;
        queues.back().enqueueNDRangeKernel(k, cl::NullRange, cl::NDRange(y.size()), cl::NullRange,
                                           before.empty() ? nullptr : &before, &done);
        queues.back().flush();
        before = {done};
    }
    cl::Event::waitForEvents(before);
    d.read(b, y);
    print("queues", y);
}

void printing() {
    device d;
    const cl::Program p = d.build("kernel void say(float x) { printf(\"say %.3f %s %d\\n\", exp(x), \"and\", "
                                  "convert_int_sat_rte(x * 1e10f)); }");
    cl::Kernel k(p, "say");
    k.setArg(0, 0.7f);
    d.queue.enqueueNDRangeKernel(k, cl::NullRange, cl::NDRange(1));
    d.queue.finish();
}

// The halves of a buffer as buffers of their own.
void sub_buffers() {
    device d;
    const cl::Program p = d.build(functions);
    std::vector<float> x = ramp(2048, -4, 4), y(x.size());
    cl::Buffer in = d.buffer(x), out = d.buffer(y);
    for (size_t half : {0, 1}) {
        const cl_buffer_region region{half * 4096, 4096};
        cl::Kernel k(p, "curve");
        k.setArg(0, in.createSubBuffer(CL_MEM_READ_ONLY, CL_BUFFER_CREATE_TYPE_REGION, &region));
        k.setArg(1, out.createSubBuffer(CL_MEM_WRITE_ONLY, CL_BUFFER_CREATE_TYPE_REGION, &region));
        d.queue.enqueueNDRangeKernel(k, cl::NullRange, cl::NDRange(1024));
    }
    d.read(out, y);
    print("halves", y);
}

std::vector<float> curve_of(device& d, const cl::Program& p, const std::vector<float>& x) {
    std::vector<float> y(x.size());
    cl::Buffer in = d.buffer(x), out = d.buffer(y);
    cl::CommandQueue queue(d.context, d.of);
    cl::Kernel k(p, "curve");
    k.setArg(0, in);
    k.setArg(1, out);
    queue.enqueueNDRangeKernel(k, cl::NullRange, cl::NDRange(x.size()));
    queue.enqueueReadBuffer(out, CL_TRUE, 0, y.size() * sizeof(float), y.data());
    return y;
}

// A program's binary kept in a file, and a program made from it.
void save_binary(const std::string& file) {
    device d;
    const cl::Program p = d.build(functions);
    print("saved", curve_of(d, p, ramp(512, -2, 2)));
    const auto binary = p.getInfo<CL_PROGRAM_BINARIES>().at(0);
    std::ofstream(file, std::ios::binary).write(reinterpret_cast<const char*>(binary.data()), binary.size());
}
void load_binary(const std::string& file) {
    device d;
    std::ifstream in(file, std::ios::binary);
    const std::vector<unsigned char> binary{std::istreambuf_iterator<char>(in), {}};
    cl::Program p(d.context, {d.of}, {binary});
    p.build();
    print("saved", curve_of(d, p, ramp(512, -2, 2)));
}

void threads() {
    device d;
    std::vector<std::vector<float>> y(2);
    std::vector<std::thread> all;
    for (int t = 0; t < 2; t++)
        all.emplace_back([&, t] {
            const cl::Program p = d.build(functions, t ? "-DSECOND" : "");
            for (int round = 0; round < 20; round++)
                y[t] = curve_of(d, p, ramp(777, -3.f + t, 3));
        });
    for (auto& t : all)
        t.join();
    for (const auto& v : y)
        print("thread", v);
}

// Three dimensions, a local size that leaves remainders of a vector, local memory and a barrier.
void dimensions() {
    device d;
    const cl::Program p = d.build(R"(
kernel void volume(global float* y, local float* row) {
    const size_t x = get_global_id(0), l = get_local_id(0);
    const size_t at = (get_global_id(2) * get_global_size(1) + get_global_id(1)) * get_global_size(0) + x;
    const size_t line = get_local_size(0) * (get_local_id(1) + get_local_size(1) * get_local_id(2));
    row[line + l] = cos(at * 0.01f) + hypot((float)x, (float)get_global_id(2));
    barrier(CLK_LOCAL_MEM_FENCE);
    float sum = 0;
    for (size_t k = 0; k <= l; k++) sum += row[line + k] * exp(-(float)k);
    y[at] = sum + tgamma(1.5f + 0.01f * at / 7);
})");
    std::vector<float> y(20 * 6 * 4);
    cl::Buffer out = d.buffer(y);
    cl::Kernel k(p, "volume");
    k.setArg(0, out);
    k.setArg(1, cl::Local(10 * 3 * 2 * sizeof(float)));
    d.queue.enqueueNDRangeKernel(k, cl::NullRange, cl::NDRange(20, 6, 4), cl::NDRange(10, 3, 2));
    d.read(out, y);
    print("volume", y);
}

void version() {
    std::vector<cl::Platform> all;
    cl::Platform::get(&all);
    for (auto& p : all)
        printf("platform %s\n", p.getInfo<CL_PLATFORM_VERSION>().c_str());
}

const std::map<std::string, std::function<void()>> programs = {
    {"images", images},   {"queues", queues},         {"printf", printing}, {"sub-buffers", sub_buffers},
    {"threads", threads}, {"dimensions", dimensions}, {"version", version}};

} // namespace

int main(int argc, char** argv) {
    try {
        const std::string name = argc > 1 ? argv[1] : "";
        if (argc == 3 && name == "save") save_binary(argv[2]);
        else if (argc == 3 && name == "load") load_binary(argv[2]);
        else programs.at(name)();
    } catch (const std::exception& e) {
        fprintf(stderr, "opencl-programs: %s\n", e.what());
        return 1;
    }
}
