// Writes every table that follows a rule: write-tables ROOT [FILE...], or checks them: write-tables --check ROOT.
#include "tables/table.h"
#include "whole_file.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

using namespace orvane::tables;
namespace fs = std::filesystem;

int main(int argc, char** argv) {
    std::vector<std::string> args(argv + 1, argv + argc);
    const bool check = !args.empty() && args[0] == "--check";
    if (check) args.erase(args.begin());
    if (!args.empty() && !args[0].starts_with("-") && !fs::is_directory(args[0])) {
        std::cerr << "write-tables: '" << args[0] << "' is no folder; name the root of the sources\n";
        return 2;
    }
    if (args.empty() || args[0].starts_with("-")) {
        std::cerr << "usage: write-tables [--check] ROOT [TABLE...], with ROOT the root of the sources\n";
        return 2;
    }
    const fs::path root = args[0];
    const auto tables = all_tables();
    for (size_t i = 1; i < args.size(); i++)
        if (std::none_of(tables.begin(), tables.end(), [&](auto& t) { return t.path == args[i]; })) {
            std::cerr << "write-tables: no table '" << args[i] << "': one of";
            for (auto& t : tables)
                std::cerr << ' ' << t.path;
            std::cerr << '\n';
            return 2;
        }
    int wrong = 0;
    for (const auto& t : tables) {
        if (args.size() > 1 && std::find(args.begin() + 1, args.end(), t.path) == args.end()) continue;
        writer w;
        t.rule(w);
        if (check) {
            if (orvane::contents_of(root / t.path) != w.text)
                wrong++, std::cout << t.path << ": differs from its rule\n";
        } else {
            try {
                orvane::write_whole(root / t.path, w.text);
            } catch (const std::exception& e) {
                std::cerr << "write-tables: " << e.what() << '\n';
                return 1;
            }
            std::cout << t.path << '\n';
        }
    }
    if (check) std::cout << tables.size() - wrong << " tables follow their rules, " << wrong << " do not\n";
    return wrong ? 1 : 0;
}
