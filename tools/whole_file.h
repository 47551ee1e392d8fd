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
// which is gone when the program fails or is interrupted. A link stands for what it points to; devices, FIFOs and
// sockets are written as they are. One at a time. Throws with one line that says what went wrong.
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
        for (int s : signals)
            if (signal(s, remove_and_end) == SIG_IGN) signal(s, SIG_IGN);
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

    // The last thing: everything is written, and the file is there.
    void complete() {
        errno = 0;
        out.close();
        if (!out) fail(errno ? errno : EIO);
        if (!*temporary) return;
        if (rename(temporary, target.c_str())) fail(errno);
        *temporary = 0;
        give_up();
    }
    [[noreturn]] void fail(int error) {
        give_up();
        throw std::runtime_error("cannot write '" + named.string() + "': " + strerror(error));
    }

private:
    std::filesystem::path named, target;
    inline static char temporary[4096] = "";
    static constexpr int signals[] = {SIGINT, SIGTERM, SIGHUP};

    void give_up() {
        if (*temporary) unlink(temporary);
        *temporary = 0;
        for (int s : signals)
            if (signal(s, SIG_DFL) == SIG_IGN) signal(s, SIG_IGN);
    }
    static void remove_and_end(int s) {
        if (*temporary) unlink(temporary);
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
