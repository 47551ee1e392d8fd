// Speed of one kernel beside others' built-ins, each in a process of its own, in turns.
#pragma once

#include "kernel_run.h"

#include <string>
#include <vector>

namespace orvane {

// Starts this program once for each column with `words` and --bench-turns, and prints medians. Returns an exit code.
int bench_in_turns(const std::vector<std::string>& words);

// One of these processes: runs the kernel whenever its turn comes, and answers on the file descriptor with the
// nanoseconds per work-item.
int take_turns(const kernel_request&, const std::string& column, int descriptor);

// Of a folder that is gone with this object.
class temporary_folder {
public:
    temporary_folder();
    ~temporary_folder();
    const std::filesystem::path path;
};

} // namespace orvane
