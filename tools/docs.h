// What families mean, for people: docstrings of the header, sections of the report.
#pragma once

#include "signature.h"

namespace orvane {

// What a pair's family computes, and what special inputs give: sentences without an end of line.
std::string meaning_of(const kernel_row& row);

} // namespace orvane
