// Writes what compilers get of the list of exports: the names of the vector function ABI.
//
//     write-vecabi FOLDER
//
// FOLDER is the sources' root; what is written is vecabi/names.inc, vecabi/aliases.ld, include/orvane/math.h,
// include/orvane/math.inc, include/orvane/simd_functions.inc and vecabi/clang/functions.inc.
#include "vecabi_names.h"
#include "whole_file.h"

#include <iostream>

using namespace orvane;

namespace {

constexpr const char* written = "Written by write-vecabi.";

// One line per name: a macro of names.S and its arguments.
std::string assembler_lines() {
    std::string text = "        // " + std::string(written) + "\n";
    std::string family;
    for (const auto& n : vecabi_names()) {
        if (n.family != family) text += "\n        family  " + (family = n.family) + "\n";
        text += "        " + n.shape + std::string(n.shape.size() < 8 ? 8 - n.shape.size() : 1, ' ') + n.symbol +
                ", " + n.target + "\n";
    }
    return text;
}

std::string linker_lines() {
    std::string text =
        "/* " + std::string(written) + " Names whose lanes lie as the export's, in the shared library. */\n";
    for (const auto& n : vecabi_names())
        if (n.shape == "alias") text += n.symbol + " = " + n.target + ";\n";
    return text;
}

// ---- what a C program includes ----

// C library versions that declare a function which this one does not.
int since_glibc(const std::string& family) {
    for (const char* f : {"sinpi", "cospi", "tanpi", "asinpi", "acospi", "atanpi", "atan2pi"})
        if (family == f) return 41;
    for (const char* f : {"rsqrt", "powr", "pown", "rootn"})
        if (family == f) return 42;
    return 0;
}

std::string declaration(const c_function& c) {
    const bool is_float = c.row->in == lane_type::f32;
    const std::string type = is_float ? "float" : "double";
    std::string parameters = type + " x";
    if (c.row->sclass == signature_class::with_integer) parameters += ", int n";
    else if (c.row->arguments() > 1) parameters += ", " + type + " y";
    if (c.row->arguments() > 2) parameters += ", " + type + " z";
    return (c.row->sclass == signature_class::to_integer ? "int " : type + " ") + c.name + "(" + parameters + ")";
}

std::string c_header() {
    std::string text = std::string("/* ") + written + R"(
 *
 * The functions of math.h, and those that OpenCL C has beside them, with their vector forms in liborvane_vecabi: GCC
 * then vectorizes a loop that calls them at -O3 (or -O2 -ftree-vectorize) for -mavx2 -mfma, with no flag that gives up
 * exact arithmetic. Results are those of the exports' default tiers, in every lane; what is left over at a loop's end
 * calls the C library for its own functions and liborvane_vecabi for the rest.
 *
 * The declarations say that a function has no effect but its result: errno and signgam are not to be counted on.
 * Other compilers see declarations alone. */
#ifndef ORVANE_MATH_H
#define ORVANE_MATH_H

#ifdef __cplusplus
#include <cmath>
#else
#include <math.h>
#endif

#if defined __GNUC__ && !defined __clang__ && defined __x86_64__
#define ORVANE_SIMD __attribute__((simd("notinbranch"), const, nothrow))
#define ORVANE_SIMD_STORES __attribute__((simd("notinbranch"), nothrow))
#else
#define ORVANE_SIMD __attribute__((const, nothrow))
#define ORVANE_SIMD_STORES __attribute__((nothrow))
#endif
#ifdef __cplusplus
#define ORVANE_NO_THROW noexcept(true)
#else
#define ORVANE_NO_THROW
#endif
#ifdef __GLIBC_PREREQ
#define ORVANE_GLIBC(minor) __GLIBC_PREREQ(2, minor)
#else
#define ORVANE_GLIBC(minor) 0
#endif

#ifdef __cplusplus
extern "C" {
#endif

)";
    for (const auto& c : c_functions()) {
        if (c.parameters == "pp") {
            const std::string t = c.row->in == lane_type::f32 ? "float" : "double";
            text += "void " + c.name + "(" + t + " x, " + t + "* sine, " + t +
                    "* cosine) ORVANE_NO_THROW ORVANE_SIMD_STORES;\n";
        }
        if (c.pure && c.in_c) text += declaration(c) + " ORVANE_NO_THROW ORVANE_SIMD;\n";
        if (c.pure && c.family == "ldexp") {
            c_function same = c;
            same.name = c.row->in == lane_type::f32 ? "scalbnf" : "scalbn";
            text += declaration(same) + " ORVANE_NO_THROW ORVANE_SIMD;\n";
        }
    }
    // A library's later functions of the same name have their own scalar members; its pown and rootn take another n.
    auto of_opencl = [&](int since, const char* title) {
        text += std::string("\n/* ") + title + " */\n";
        for (const auto& c : c_functions())
            if (c.pure && !c.in_c && since_glibc(c.family) == since) {
                const bool other_n = since && c.row->sclass == signature_class::with_integer;
                if (since) text += "#if ORVANE_GLIBC(" + std::to_string(since) + ")\n";
                if (since && !other_n) text += declaration(c) + " ORVANE_NO_THROW ORVANE_SIMD;\n";
                if (since) text += "#else\n";
                text += declaration(c) + " ORVANE_NO_THROW __asm__(\"orvane_" + c.name + "\") ORVANE_SIMD;\n";
                if (since) text += "#endif\n";
            }
    };
    of_opencl(41, "Times or over pi; newer C libraries have them as well.");
    of_opencl(42,
              "Reciprocal square root and powers; newer C libraries have them, with another n in pown and rootn.");
    of_opencl(0, "Reciprocal cube root, and the argument of smaller or larger magnitude.");
    return text + R"(
#ifdef __cplusplus
}
#endif

#undef ORVANE_SIMD
#undef ORVANE_SIMD_STORES
#undef ORVANE_NO_THROW
#undef ORVANE_GLIBC
#endif
)";
}

// ---- what a Fortran program includes ----

// Names by which gfortran knows the functions that its intrinsics become.
std::string fortran_include() {
    std::string text = std::string("! ") + written + R"(
!
! The intrinsics of Fortran with their vector forms in liborvane_vecabi, for gfortran: a program unit that has
!     include 'orvane/math.inc'
! at its top is vectorized at -O3 for -mavx2 -mfma.
)";
    for (const auto& c : c_functions())
        if (c.in_c && c.pure) text += "!GCC$ builtin (" + c.name + ") attributes simd (notinbranch) if('x86_64')\n";
    return text;
}

// ---- what the clang plugin knows ----

std::string plugin_rows() {
    std::string text = "// " + std::string(written) + " FUNCTION(name, lane type, parameters, vector name, result)\n";
    for (const auto& c : c_functions()) {
        if (!c.pure) continue;
        const bool is_float = c.row->in == lane_type::f32;
        const std::string type = is_float ? "f32" : "f64";
        const bool integer = c.row->sclass == signature_class::with_integer;
        const std::string parameters = integer ? "vi" : c.parameters;
        const std::string result = c.row->sclass == signature_class::to_integer ? "i32" : type;
        auto row = [&](const std::string& name, const std::string& of) {
            text += "FUNCTION(" + name + ", " + type + ", " + parameters + ", " + of + ", " + result + ")\n";
        };
        row(c.in_c ? c.name : "orvane_" + c.name, c.name);
        if (c.family == "ldexp") row(is_float ? "scalbnf" : "scalbn", is_float ? "scalbnf" : "scalbn");
    }
    return text;
}

// ---- the functions of orvane/simd.hpp ----

const kernel_row& in_tier(const std::string& name, std::initializer_list<const char*> tiers) {
    for (const char* tier : tiers)
        if (const kernel_row* row = find_row(library_rows(), name, tier)) return *row;
    throw std::logic_error("no default tier of " + name);
}

std::string simd_functions() {
    std::string text = std::string("// ") + written + " Families in double and in float by tier, for simd.hpp.\n";
    auto lines = [&](std::initializer_list<const char*> tiers) {
        for (const auto& c : c_functions()) {
            if (c.row->in == lane_type::f32) continue;
            const std::string family = c.family == "lgamma_r" ? "lgammar" : c.family;
            const kernel_row &d = in_tier(family, tiers), &f = in_tier(family + "f", tiers);
            const bool integer_out = c.row->sclass == signature_class::pointer_out && c.row->extra == lane_type::i32;
            const std::string shape = c.parameters == "pp" ? "both"
                                      : integer_out        ? "integer_out"
                                                           : std::string(to_string(c.row->sclass));
            text += "ORVANE_SIMD_" + shape + "(" + c.family + ", " + std::string(d.name) + ", " + d.suffix() + ", " +
                    std::string(f.name) + ", " + f.suffix() + ")\n";
        }
    };
    lines({"default"});
    auto tier = [&](const std::string& name, std::initializer_list<const char*> tiers) {
        text += "\nnamespace " + name + " {\n";
        lines(tiers);
        text += "}\n";
    };
    tier("rm", {"rm", "default"});
    tier("half", {"half", "rm", "default"});
    tier("fast", {"native", "half", "rm", "default"});
    return text;
}

} // namespace

int main(int argc, char** argv) try {
    if (argc != 2) throw std::runtime_error("takes one argument, the folder of the sources");
    const std::filesystem::path root = argv[1];
    write_whole(root / "vecabi/names.inc", assembler_lines());
    write_whole(root / "vecabi/aliases.ld", linker_lines());
    write_whole(root / "include/orvane/math.h", c_header());
    write_whole(root / "include/orvane/math.inc", fortran_include());
    write_whole(root / "include/orvane/simd_functions.inc", simd_functions());
    write_whole(root / "vecabi/clang/functions.inc", plugin_rows());
} catch (const std::exception& e) {
    std::cerr << "write-vecabi: " << e.what() << "\n";
    return 1;
}
