// Records the digests anew: those that hold on every processor and, for kernels fed by estimates, those of this kind
// of processor. Refuses as long as a lane of the independent models disagrees.
#include "digests.h"
#include "lanes.h"
#include "tools/estimates.h"
#include "tools/whole_file.h"

#include <iostream>

using namespace orvane;

int main(int argc, char** argv) try {
    const bool estimates_alone = argc == 2 && !strcmp(argv[1], "--estimates");
    if (argc > 1 && !estimates_alone)
        throw std::invalid_argument(
            "the one option is --estimates: of kernels fed by the processor's estimates alone");
    for (const auto& m : lanes_of_models())
        for (const auto& tier : m.tiers)
            for (int width : widths)
                if (const auto wrong = disagreements(m, tier, width); !wrong.empty())
                    throw std::runtime_error("nothing is recorded, since an independent lane disagrees: " + wrong[0]);
    private_copy marking;
    marking.mark_special_lanes();
    const std::string what =
        "# Digests of results over the arguments of tests/arguments.cpp, one for each group of 256, "
        "and of which lanes are\n# special. Written by the target `recorded`.\n";
    std::string text[2] = {
        what, what + "#\n# Kernels fed by the 12-bit estimates, on processors whose estimates digest to " +
                  kind_of_processor() + ".\n"};
    for (auto& d : everything_digested(library_under_test())) {
        if (estimates_alone && !d.takes_estimates) continue;
        give_arguments(d);
        text[d.takes_estimates] += to_lines(d, library_under_test(), marking);
    }
    if (!estimates_alone) {
        write_whole(digests_file(false), text[0]);
        write_whole(constants_file(), "# Digests of blocks and tables, and of the constants beside the code of a "
                                      "function. Written by the target `recorded`.\n" +
                                          lines_of_constants(library_under_test()));
    }
    write_whole(digests_file(true), text[1]);
} catch (const std::exception& e) {
    std::cerr << "record-digests: " << e.what() << '\n';
    return 1;
}
