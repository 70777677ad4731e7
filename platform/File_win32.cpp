#include <utility>

#include "platform/File.h"
#include "platform/WindowsApi.h"

namespace corvex {

namespace {

constexpr DWORD kSharedByAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

bool Identify(HANDLE handle, BY_HANDLE_FILE_INFORMATION* information) {
    return GetFileInformationByHandle(handle, information) != 0;
}

bool StandsAtName(HANDLE handle, const std::string& path) {
    const HANDLE other =
        CreateFileA(path.c_str(), FILE_READ_ATTRIBUTES, kSharedByAll, nullptr, OPEN_EXISTING, 0, nullptr);
    if (other == INVALID_HANDLE_VALUE) return false;
    BY_HANDLE_FILE_INFORMATION open{}, there{};
    const bool known = Identify(handle, &open) && Identify(other, &there);
    CloseHandle(other);
    return known && open.dwVolumeSerialNumber == there.dwVolumeSerialNumber &&
           open.nFileIndexHigh == there.nFileIndexHigh && open.nFileIndexLow == there.nFileIndexLow;
}

class WindowsSync final : public IFileSync {
public:
    explicit WindowsSync(HANDLE handle) : handle_(handle) {}
    ~WindowsSync() override { CloseHandle(handle_); }
    WindowsSync(const WindowsSync&) = delete;
    WindowsSync& operator=(const WindowsSync&) = delete;

    // Some file systems know of no such thing.
    bool Sync() override {
        return FlushFileBuffers(handle_) != 0 || GetLastError() == ERROR_INVALID_FUNCTION ||
               GetLastError() == ERROR_NOT_SUPPORTED;
    }

private:
    const HANDLE handle_;
};

// Opened for overlapped use: on a handle that is not, a flush and a write wait for each other, and a second one that
// may write, which alone may flush, could not be had without letting others write, too.
class WindowsFile final : public IFile {
public:
    explicit WindowsFile(HANDLE handle) : handle_(handle), done_(CreateEventA(nullptr, TRUE, FALSE, nullptr)) {}
    ~WindowsFile() override {
        if (handle_ != INVALID_HANDLE_VALUE) CloseHandle(handle_);
        if (done_ != nullptr) CloseHandle(done_);
    }
    WindowsFile(const WindowsFile&) = delete;
    WindowsFile& operator=(const WindowsFile&) = delete;

    std::optional<std::uint32_t> Read(void* bytes, std::uint32_t count) override {
        OVERLAPPED here = Here();
        const bool begun = ReadFile(handle_, bytes, count, nullptr, &here) != 0;
        DWORD got = 0;
        if (!Await(begun, here, &got)) return GetLastError() == ERROR_HANDLE_EOF ? std::optional(0U) : std::nullopt;
        position_ += got;
        return got;
    }

    bool Write(const void* bytes, std::uint32_t count) override {
        OVERLAPPED here = Here();
        const bool begun = WriteFile(handle_, bytes, count, nullptr, &here) != 0;
        DWORD put = 0;
        const bool written = Await(begun, here, &put);
        position_ += put;
        return written && put == count;
    }

    std::uint64_t Position() const override { return position_; }

    bool Seek(std::uint64_t offset) override {
        if (offset > kFarthest) return false;
        position_ = offset;
        return true;
    }

    std::optional<std::uint64_t> Size() const override {
        LARGE_INTEGER size;
        if (GetFileSizeEx(handle_, &size) == 0) return std::nullopt;
        return static_cast<std::uint64_t>(size.QuadPart);
    }

    bool EndHere() override {
        FILE_END_OF_FILE_INFO end;
        end.EndOfFile.QuadPart = static_cast<LONGLONG>(position_);
        return SetFileInformationByHandle(handle_, FileEndOfFileInfo, &end, sizeof end) != 0;
    }

    bool Close() override {
        const HANDLE closed = std::exchange(handle_, INVALID_HANDLE_VALUE);
        return closed != INVALID_HANDLE_VALUE && CloseHandle(closed) != 0;
    }

    bool StandsAt(const std::string& path) const override { return StandsAtName(handle_, path); }

    std::unique_ptr<IFileSync> OpenSync() override {
        HANDLE second = nullptr;
        const HANDLE self = GetCurrentProcess();
        if (DuplicateHandle(self, handle_, self, &second, 0, FALSE, DUPLICATE_SAME_ACCESS) == 0) return nullptr;
        return std::make_unique<WindowsSync>(second);
    }

private:
    static constexpr std::uint64_t kFarthest = 0x7FFFFFFFFFFFFFFF;

    // The system keeps no position for a file that is open like this.
    OVERLAPPED Here() const {
        OVERLAPPED here{};
        here.Offset = static_cast<DWORD>(position_);
        here.OffsetHigh = static_cast<DWORD>(position_ >> 32U);
        here.hEvent = done_;
        return here;
    }
    bool Await(bool begun, OVERLAPPED& here, DWORD* count) const {
        return (begun || GetLastError() == ERROR_IO_PENDING) && GetOverlappedResult(handle_, &here, count, TRUE) != 0;
    }

    HANDLE handle_;
    const HANDLE done_;
    std::uint64_t position_ = 0;
};

std::string Reason(DWORD code) {
    char text[256];
    const DWORD length = FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code, 0,
                                        text, sizeof text, nullptr);
    std::string reason(text, length);
    while (!reason.empty() && (reason.back() == '\n' || reason.back() == '\r' || reason.back() == '.'))
        reason.pop_back();
    return reason.empty() ? "error " + std::to_string(code) : reason;
}

class WindowsFiles final : public IFileSystem {
public:
    std::unique_ptr<IFile> Open(const std::string& path, FileAccess access, std::string* error) override {
        const DWORD rights = access == FileAccess::kRead ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE;
        // Who reads lets a recording get its name meanwhile, too.
        const DWORD sharing = access == FileAccess::kRead ? kSharedByAll : FILE_SHARE_READ;
        const DWORD disposition = access == FileAccess::kCreate ? CREATE_ALWAYS : OPEN_EXISTING;
        constexpr DWORD kFlags = FILE_FLAG_SEQUENTIAL_SCAN | FILE_FLAG_OVERLAPPED;
        const HANDLE handle = CreateFileA(path.c_str(), rights, sharing, nullptr, disposition, kFlags, nullptr);
        if (handle != INVALID_HANDLE_VALUE && GetFileType(handle) == FILE_TYPE_DISK)
            return std::make_unique<WindowsFile>(handle);
        if (error != nullptr)
            *error = handle == INVALID_HANDLE_VALUE ? Reason(GetLastError()) : "it is no file on a disk";
        if (handle != INVALID_HANDLE_VALUE) CloseHandle(handle);
        return nullptr;
    }
};

}  // namespace

IFileSystem& SystemFiles() {
    static WindowsFiles files;
    return files;
}

}  // namespace corvex
