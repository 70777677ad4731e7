#include <fcntl.h>
#include <limits.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <memory>

#include "platform/FileMove_posix.h"
#include "platform/FileReplacement.h"

namespace corvex {

namespace {

struct FreeText {
    void operator()(char* text) const { std::free(text); }
};

// The file behind any links; the path itself when nothing stands there yet.
std::string FileBehind(const std::string& path) {
    const std::unique_ptr<char, FreeText> resolved(realpath(path.c_str(), nullptr));
    return resolved ? resolved.get() : path;
}

bool Flush(const std::string& path) {
    const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) return false;
    // Some file systems know of no such thing.
    const bool flushed = fsync(descriptor) == 0 || errno == EINVAL || errno == ENOSYS;
    return close(descriptor) == 0 && flushed;
}

}  // namespace

std::string FreshNameFor(const std::string& path) {
    struct stat info {};
    if (stat(path.c_str(), &info) == 0 && !S_ISREG(info.st_mode)) return {};
    const std::string behind = FileBehind(path);
    const std::string suffix = std::to_string(getpid()) + ".new";
    const std::size_t name = behind.rfind('/') + 1;
    if (behind.size() - name + 1 + suffix.size() <= NAME_MAX) return behind + "." + suffix;
    // A file beside one with the longest name there can be has a name of its own.
    return behind.substr(0, name) + suffix;
}

bool IsDeviceOrPipe(const std::string& path) {
    struct stat info {};
    return stat(path.c_str(), &info) == 0 && !S_ISREG(info.st_mode) && !S_ISDIR(info.st_mode);
}

bool MoveIntoPlace(const std::string& fresh, const std::string& path) {
    struct stat info {};
    const bool known = stat(path.c_str(), &info) != 0 || chmod(fresh.c_str(), info.st_mode & 07777U) == 0;
    const std::string behind = FileBehind(path);
    if (known && Flush(fresh) && std::rename(fresh.c_str(), behind.c_str()) == 0) {
        FlushFolderOf(behind);
        return true;
    }
    std::remove(fresh.c_str());
    return false;
}

}  // namespace corvex
