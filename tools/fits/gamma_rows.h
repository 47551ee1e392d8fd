// The rows of the gamma functions' vector paths, as fitted.
#pragma once

#include "minimax.h"

namespace orvane::fits {

struct file {
    std::string path, text;
};
// The files of rows, each with the error that its fits reach. Of a sample one row in 16, each with a form feed after
// it.
std::vector<file> gamma_rows(bool sample);

} // namespace orvane::fits
