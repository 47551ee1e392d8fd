// Files that are written whole or not at all.
#pragma once

#include <cerrno>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace orvane {

// The contents of a file; none if it cannot be read.
inline std::string contents_of(const std::filesystem::path& from) {
    std::ifstream in(from, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return in ? s.str() : "";
}

// A file that takes its name only when it is complete: until then it is a temporary of its own beside the target,
// which is gone when the program fails, is interrupted or crashes. A link stands for what it points to; devices,
// FIFOs and sockets are written as they are. Throws with one line that says what went wrong.
//
// Several that belong together: finish() all of them, then complete() each, which only renames.
class whole_file {
public:
    explicit whole_file(const std::filesystem::path& named) : named(named), target(named) {
        namespace fs = std::filesystem;
        std::error_code ignored;
        for (int links = 0; fs::is_symlink(fs::symlink_status(target, ignored)) && links < 40; links++) {
            const fs::path to = fs::read_symlink(target, ignored);
            // What has no name of its own is open already: /dev/stdout, /dev/fd/3.
            if (to.empty() || target.string().starts_with("/proc/")) break;
            target = to.is_absolute() ? to : target.parent_path() / to;
        }
        struct stat now;
        const bool exists = stat(target.c_str(), &now) == 0;
        if (target.string().starts_with("/proc/") || (exists && !S_ISREG(now.st_mode))) {
            if (exists && S_ISDIR(now.st_mode)) fail(EISDIR);
            out.open(target, std::ios::binary);
            if (!out) fail(errno);
            return;
        }
        if (exists && access(target.c_str(), W_OK)) fail(errno);
        std::string name = (target.parent_path() / ".orvane-XXXXXX").string();
        const int fd = name.size() < sizeof temporary ? mkstemp(name.data()) : (errno = ENAMETOOLONG, -1);
        if (fd < 0) fail(errno);
        strcpy(temporary, name.c_str());
        if (!first)
            for (int s : signals)
                if (signal(s, remove_and_end) == SIG_IGN) signal(s, SIG_IGN);
        next = first;
        first = this;
        const mode_t mask = umask(0);
        umask(mask);
        fchmod(fd, exists ? now.st_mode & 07777 : 0666 & ~mask);
        close(fd);
        out.open(temporary, std::ios::binary);
        if (!out) fail(errno);
    }
    ~whole_file() { give_up(); }
    whole_file(const whole_file&) = delete;

    std::ofstream out;

    // Writes what is still in buffers; throws if anything could not be written.
    void finish() {
        if (!out.is_open()) return;
        errno = 0;
        out.close();
        if (!out) fail(errno ? errno : EIO);
    }
    // The last thing: the file is there.
    void complete() {
        finish();
        if (!*temporary) return;
        if (rename(temporary, target.c_str())) fail(errno);
        *temporary = 0;
        give_up();
    }
    [[noreturn]] void fail(int error) {
        give_up();
        throw std::runtime_error("cannot write '" + named.string() + "': " + strerror(error));
    }
    // For a program that ends by itself in a signal's handler.
    static void remove_temporaries() {
        for (whole_file* f = first; f; f = f->next)
            if (*f->temporary) unlink(f->temporary);
    }

private:
    std::filesystem::path named, target;
    char temporary[4096] = "";
    whole_file* next = nullptr; // of those with a temporary
    inline static whole_file* first = nullptr;
    static constexpr int signals[] = {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGSEGV, SIGBUS, SIGABRT, SIGILL};

    void give_up() {
        if (*temporary) unlink(temporary);
        *temporary = 0;
        for (whole_file** at = &first; *at; at = &(*at)->next)
            if (*at == this) {
                *at = next;
                if (first) return;
                for (int s : signals)
                    if (signal(s, SIG_DFL) == SIG_IGN) signal(s, SIG_IGN);
                return;
            }
    }
    static void remove_and_end(int s) {
        remove_temporaries();
        signal(s, SIG_DFL);
        raise(s);
    }
};

// Puts `text` into `to`. A file that holds the text already is left alone with its time, so that nothing is built
// anew for it.
inline void write_whole(const std::filesystem::path& to, const std::string& text) {
    namespace fs = std::filesystem;
    std::error_code error;
    if (fs::is_regular_file(to, error) && contents_of(to) == text) return;
    fs::create_directories(to.parent_path(), error);
    whole_file file(to);
    file.out << text;
    file.complete();
}

} // namespace orvane
