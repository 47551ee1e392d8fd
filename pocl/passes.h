// Orvane's passes in the pipeline by which PoCL compiles kernels.
#pragma once

namespace orvane::pocl {

void add_passes();

} // namespace orvane::pocl
