#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

#include "platform/File.h"

namespace corvex {

namespace {

class PosixFile final : public IFile {
public:
    explicit PosixFile(int descriptor) : descriptor_(descriptor) {}
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

private:
    int descriptor_;
    std::uint64_t position_ = 0;  // followed here, so that asking costs no call
};

class PosixFiles final : public IFileSystem {
public:
    std::unique_ptr<IFile> Open(const std::string& path, FileAccess access, std::string* error) override {
        const int descriptor = open(path.c_str(), Flags(access), 0666);
        if (descriptor >= 0 && IsSeekable(descriptor)) return std::make_unique<PosixFile>(descriptor);
        if (error != nullptr) *error = std::strerror(errno);
        if (descriptor >= 0) close(descriptor);
        return nullptr;
    }

private:
    // Without O_NONBLOCK, opening a pipe that nobody writes to would wait for ever.
    static int Flags(FileAccess access) {
        if (access == FileAccess::kCreate) return O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC | O_NONBLOCK;
        return (access == FileAccess::kReadWrite ? O_RDWR : O_RDONLY) | O_CLOEXEC | O_NONBLOCK;
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
