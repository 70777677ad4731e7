#include "platform/FileMove_posix.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "platform/FileMove.h"

namespace corvex {

namespace {

class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0) close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int Get() const { return number_; }
    // The last word of some file systems on what was written. 0 or errno.
    int Close() {
        const int number = number_;
        number_ = -1;
        return close(number) == 0 ? 0 : errno;
    }

private:
    int number_;
};

// 0 or errno, both of them.
int WriteAll(int to, const char* bytes, std::size_t count) {
    while (count != 0) {
        const ssize_t put = write(to, bytes, count);
        if (put < 0 && errno == EINTR) continue;
        if (put <= 0) return put < 0 ? errno : ENOSPC;
        bytes += put;
        count -= static_cast<std::size_t>(put);
    }
    return 0;
}

int CopyAll(int from, int to) {
    char block[65536];
    for (;;) {
        const ssize_t got = read(from, block, sizeof block);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) return errno;
        if (got == 0) return 0;
        const int error = WriteAll(to, block, static_cast<std::size_t>(got));
        if (error != 0) return error;
    }
}

int CopyWhole(const Descriptor& source, const struct stat& info, const std::string& to) {
    Descriptor copy(open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, info.st_mode & 0777U));
    if (copy.Get() < 0) return errno;
    int error = CopyAll(source.Get(), copy.Get());
    const timespec times[] = {info.st_atim, info.st_mtim};
    if (error == 0) static_cast<void>(futimens(copy.Get(), times));  // nice to have
    if (error == 0 && fsync(copy.Get()) != 0) error = errno;
    const int closed = copy.Close();
    if (error == 0) error = closed;
    if (error != 0) unlink(to.c_str());  // made here, by O_EXCL
    return error;
}

bool IsOneEntry(const std::string& from, const std::string& to) {
    struct stat one {
    }, other{};
    if (lstat(from.c_str(), &one) != 0 || lstat(to.c_str(), &other) != 0) return false;
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino && one.st_nlink == 1;
}

}  // namespace

void FlushFolderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    const std::string folder = slash == std::string::npos ? "." : path.substr(0, slash + 1);
    const Descriptor opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.Get() >= 0) static_cast<void>(fsync(opened.Get()));
}

int MoveByLink(const std::string& from, const std::string& to) {
    if (link(from.c_str(), to.c_str()) != 0) return errno;
    if (unlink(from.c_str()) == 0) return 0;
    const int error = errno;
    unlink(to.c_str());
    return error;
}

int MoveByCopy(const std::string& from, const std::string& to) {
    const Descriptor source(open(from.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat info {};
    if (source.Get() < 0 || fstat(source.Get(), &info) != 0) return errno;
    if (!S_ISREG(info.st_mode)) return EINVAL;
    const int error = CopyWhole(source, info, to);
    if (error != 0) return error;
    FlushFolderOf(to);
    if (unlink(from.c_str()) == 0) return 0;
    const int kept = errno;
    unlink(to.c_str());
    return kept;
}

std::uint32_t MoveToNewName(const std::string& from, const std::string& to) {
    int error = renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0 ? 0 : errno;
    if (error == EEXIST && IsOneEntry(from, to)) return 0;
    // Old kernels, and file systems that cannot promise not to replace.
    if (error == EINVAL || error == ENOSYS) error = MoveByLink(from, to);
    if (error == EXDEV || error == EPERM || error == EOPNOTSUPP || error == EMLINK) error = MoveByCopy(from, to);
    return static_cast<std::uint32_t>(error);
}

std::uint32_t RemoveFile(const std::string& path) {
    return unlink(path.c_str()) == 0 ? 0U : static_cast<std::uint32_t>(errno);
}

bool IsSameFile(const std::string& one, const std::string& other) {
    struct stat first {
    }, second{};
    if (stat(one.c_str(), &first) != 0 || stat(other.c_str(), &second) != 0) return false;
    return first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

}  // namespace corvex
