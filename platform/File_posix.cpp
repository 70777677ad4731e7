#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstring>
#include <utility>

#include "platform/File.h"
#include "platform/FileMove_posix.h"

namespace corvex {

namespace {

bool StandsAtName(int descriptor, const std::string& path) {
    struct stat open {
    }, there{};
    if (fstat(descriptor, &open) != 0 || stat(path.c_str(), &there) != 0) return false;
    return open.st_dev == there.st_dev && open.st_ino == there.st_ino;
}

class PosixSync final : public IFileSync {
public:
    PosixSync(int descriptor, std::string path) : descriptor_(descriptor), path_(std::move(path)) {}
    ~PosixSync() override { close(descriptor_); }
    PosixSync(const PosixSync&) = delete;
    PosixSync& operator=(const PosixSync&) = delete;

    bool Sync() override {
        if (!knowsFolder_.exchange(true)) FlushFolderOf(path_);
        // Some file systems know of no such thing.
        return fdatasync(descriptor_) == 0 || errno == EINVAL || errno == ENOSYS;
    }

private:
    const int descriptor_;
    const std::string path_;
    std::atomic<bool> knowsFolder_{false};
};

class PosixFile final : public IFile {
public:
    PosixFile(int descriptor, std::string path) : descriptor_(descriptor), path_(std::move(path)) {}
    ~PosixFile() override {
        if (descriptor_ >= 0) close(descriptor_);
    }
    PosixFile(const PosixFile&) = delete;
    PosixFile& operator=(const PosixFile&) = delete;

    std::optional<std::uint32_t> Read(void* bytes, std::uint32_t count) override {
        std::uint32_t done = 0;
        while (done < count) {
            const ssize_t got = read(descriptor_, static_cast<char*>(bytes) + done, count - done);
            if (got < 0 && errno == EINTR) continue;
            if (got < 0) return done == 0 ? std::nullopt : std::optional(done);
            if (got == 0) break;
            done += static_cast<std::uint32_t>(got);
            position_ += static_cast<std::uint64_t>(got);
        }
        return done;
    }

    // Not repeated after a part: the rest would meet the same full disk.
    bool Write(const void* bytes, std::uint32_t count) override {
        ssize_t put = -1;
        do {
            put = write(descriptor_, bytes, count);
        } while (put < 0 && errno == EINTR);
        if (put > 0) position_ += static_cast<std::uint64_t>(put);
        return put >= 0 && static_cast<std::uint64_t>(put) == count;
    }

    std::uint64_t Position() const override { return position_; }

    bool Seek(std::uint64_t offset) override {
        if (lseek(descriptor_, static_cast<off_t>(offset), SEEK_SET) < 0) return false;
        position_ = offset;
        return true;
    }

    std::optional<std::uint64_t> Size() const override {
        struct stat info {};
        if (fstat(descriptor_, &info) != 0) return std::nullopt;
        return static_cast<std::uint64_t>(info.st_size);
    }

    bool EndHere() override { return ftruncate(descriptor_, static_cast<off_t>(position_)) == 0; }

    bool Close() override { return close(std::exchange(descriptor_, -1)) == 0; }

    bool StandsAt(const std::string& path) const override { return StandsAtName(descriptor_, path); }

    std::unique_ptr<IFileSync> OpenSync() override {
        const int second = fcntl(descriptor_, F_DUPFD_CLOEXEC, 0);
        return second < 0 ? nullptr : std::make_unique<PosixSync>(second, path_);
    }

private:
    int descriptor_;
    const std::string path_;
    std::uint64_t position_ = 0;  // followed here, so that asking costs no call
};

class PosixFiles final : public IFileSystem {
public:
    std::unique_ptr<IFile> Open(const std::string& path, FileAccess access, std::string* error) override {
        const int descriptor = open(path.c_str(), Flags(access), 0666);
        if (descriptor >= 0 && IsSeekable(descriptor) && MayHave(descriptor, path, access))
            return std::make_unique<PosixFile>(descriptor, path);
        if (error != nullptr)
            *error = errno == EWOULDBLOCK ? "it is being written by another program" : std::strerror(errno);
        if (descriptor >= 0) close(descriptor);
        return nullptr;
    }

private:
    // Without O_NONBLOCK, opening a pipe that nobody writes to would wait for ever. Emptied only when nobody writes.
    static int Flags(FileAccess access) {
        if (access == FileAccess::kCreate) return O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK;
        return (access == FileAccess::kReadWrite ? O_RDWR : O_RDONLY) | O_CLOEXEC | O_NONBLOCK;
    }

    static bool MayHave(int descriptor, const std::string& path, FileAccess access) {
        if (access == FileAccess::kRead) return true;
        // Some file systems know no locks.
        if (flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) return false;
        // Replaced between the opening and the lock: it is the other's.
        if (!StandsAtName(descriptor, path)) {
            errno = EWOULDBLOCK;
            return false;
        }
        // A device has no length.
        return access != FileAccess::kCreate || ftruncate(descriptor, 0) == 0 || errno == EINVAL;
    }

    static bool IsSeekable(int descriptor) {
        struct stat info {};
        if (fstat(descriptor, &info) == 0 && S_ISDIR(info.st_mode)) {
            errno = EISDIR;
            return false;
        }
        return lseek(descriptor, 0, SEEK_CUR) >= 0;
    }
};

}  // namespace

IFileSystem& SystemFiles() {
    static PosixFiles files;
    return files;
}

}  // namespace corvex
