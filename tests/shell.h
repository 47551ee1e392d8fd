// A shell with the programs of the build in its path, in a folder of its own.
#pragma once

#include "support.h"
#include "tools/whole_file.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sys/wait.h>

namespace orvane {

class Shell : public testing::Test {
protected:
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("orvane-tools-" + std::to_string(getpid()));
    void SetUp() override { std::filesystem::create_directories(folder); }
    void TearDown() override { std::filesystem::remove_all(folder); }

    int shell(const std::string& script) {
        std::ofstream(folder / "script") << "PATH=" ORVANE_TOOL_FOLDER ":$PATH\ncd '" << folder.string() << "'\n"
                                         << script << '\n';
        const int status = std::system(("timeout 60 bash '" + (folder / "script").string() + "'").c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : 128;
    }
    std::string text(const char* name) const { return contents_of(folder / name); }
    // It ends with an error and one line about it.
    void fails_with(const std::string& script, const std::string& about) {
        EXPECT_NE(shell("{ " + script + "\n} 2>err"), 0) << script;
        const std::string said = text("err");
        EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << script << ": " << said.substr(0, 400);
        EXPECT_LT(said.size(), 400u) << script;
        EXPECT_NE(said.find(about), said.npos) << script << ": " << said.substr(0, 400);
    }
    size_t files() const { return std::distance(std::filesystem::directory_iterator(folder), {}); }
};

} // namespace orvane
