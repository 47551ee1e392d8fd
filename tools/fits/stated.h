// Fits as the sources state them: each polynomial of a block has a comment that says what it stands for, where, and
// how close it comes,
//
//     // Fit on |r| <= ln2/128: r + c2*r^2 + c3*r^3 = exp(r) - 1 to 2^-40.5 relative
//
// over one line of comment or more, before the slots (or the array) that it names. On the left stands the kernel's
// formula with the slots' names, on the right what it approximates. Before the colon stand the interval of the
// variable, lo <= v <= hi or |v| <= hi, and after commas that of a second one and abbreviations as in u = x*d. The
// error is the largest of |left - right| (absolute) or of that over |right| (relative), in exact arithmetic:
// roundings of the coefficients count, those of the kernel's steps do not.
//
// An expression has + - * / ^, parentheses, the constants pi, ln2 and e, the usual functions (exp, log2, asin, erf,
// gamma, lgamma ...), names of slots and constants, and name(v) for the polynomial in v whose coefficients an array
// of slots holds, highest power first; of plain arrays horner(v, name), or horner_up(v, name) where the lowest power
// is first, name[i] for an element, and quadratics(v, name) for the product of v^2 + name[1]*v + name[0], v^2 +
// name[3]*v + name[2] ... and the last element. A name means its first definition after the comment, or the last
// before it.
#pragma once

#include "tables/table.h"

#include <filesystem>
#include <string>
#include <vector>

namespace orvane::fits {

struct stated_fit {
    std::filesystem::path file;
    int line;           // of the comment's first line
    size_t exponent_at; // where in the file's text the stated exponent stands, and how long it is
    size_t exponent_size;
    double exponent; // of two: 2^-40.5 has -40.5
    struct interval {
        std::string variable, lo, hi;
    };
    std::vector<interval> variables;
    std::vector<std::pair<std::string, std::string>> abbreviations; // name and meaning
    std::string left, right;
    bool relative;
    std::vector<std::string> coefficients; // slots and arrays that the formula names
};

// The sources below the root of the repo that state fits, by name.
std::vector<std::filesystem::path> sources_with_fits(const std::filesystem::path& root);

// The fits of a source file in order. Throws with one line that names file and line where a comment cannot be read.
std::vector<stated_fit> stated_fits(const std::filesystem::path& file);

// log2 of the largest error. Throws with one line if the formula cannot be computed.
double error_exponent(const stated_fit& f);

} // namespace orvane::fits
