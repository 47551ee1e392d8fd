// What the tools for people share: words of the command line, refusals of one line, and how a program ends.
#pragma once

#include <CLI/CLI.hpp>
#include <cctype>
#include <csignal>
#include <fcntl.h>
#include <iostream>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <vector>

namespace orvane {

// One clear line, and a non-zero exit.
struct failure : std::runtime_error {
    using runtime_error::runtime_error;
};

// A word of the input as a message quotes it: without control characters, and cut where it is long.
inline std::string quoted(std::string s) {
    const size_t length = s.size();
    if (length > 60) s.resize(40);
    for (char& c : s)
        if (iscntrl((unsigned char)c)) c = '?';
    return "'" + s + (length > 60 ? "...' (" + std::to_string(length) + " characters)" : "'");
}

inline std::vector<std::string> split(const std::string& s, char by) {
    std::vector<std::string> parts(1);
    for (char c : s)
        if (c == by) parts.emplace_back();
        else parts.back() += c;
    if (s.empty()) parts.clear();
    return parts;
}

// Parses words of a command line, in which negative numbers are no options: they come back in `positional`, which is
// what the application reads its positional arguments into. Refusals point at --help of `program`. True: the help was
// printed.
inline bool parse_words(CLI::App& app, std::vector<std::string> words, std::vector<std::string>& positional,
                        const std::string& program) {
    constexpr char mark = '\x01'; // stands before negative numbers while the words are parsed
    for (auto& w : words)
        if (w.size() > 1 && w[0] == '-' &&
            (isdigit(w[1]) || w[1] == '.' || w.starts_with("-inf") || w.starts_with("-nan")))
            w.insert(w.begin(), mark);
    std::reverse(words.begin(), words.end()); // the parser takes them last one first
    try {
        app.parse(words);
    } catch (const CLI::CallForHelp& e) {
        return app.exit(e), true;
    } catch (const CLI::ParseError& e) {
        throw failure(std::string(e.what()) + "; see " + program + " --help");
    }
    for (auto& w : positional)
        if (w.starts_with(mark)) w.erase(0, 1);
    return false;
}

// The main function around `run`: what it throws is the one line on stderr.
template <class Run> int run_program(const char* name, Run run) {
    signal(SIGPIPE, SIG_IGN);                // a closed output is an error like others
    if (fcntl(STDOUT_FILENO, F_GETFD) < 0) { // no file that is opened may take its place
        while (open("/dev/null", O_RDONLY) < STDOUT_FILENO)
            continue;
    }
    try {
        return run();
    } catch (const std::exception& e) {
        std::cout.flush();
        std::cerr << name << ": " << e.what() << '\n';
        return 1;
    }
}

} // namespace orvane
