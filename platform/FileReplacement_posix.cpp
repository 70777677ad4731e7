#include <limits.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <memory>

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

}  // namespace

std::string FreshNameFor(const std::string& path) {
    struct stat info {};
    if (stat(path.c_str(), &info) == 0 && !S_ISREG(info.st_mode)) return {};
    return FileBehind(path) + "." + std::to_string(getpid()) + ".new";
}

bool MoveIntoPlace(const std::string& fresh, const std::string& path) {
    struct stat info {};
    const bool known = stat(path.c_str(), &info) != 0 || chmod(fresh.c_str(), info.st_mode & 07777U) == 0;
    if (known && std::rename(fresh.c_str(), FileBehind(path).c_str()) == 0) return true;
    std::remove(fresh.c_str());
    return false;
}

}  // namespace corvex
