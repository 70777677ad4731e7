#include <utility>

#include "platform/File.h"
#include "platform/WindowsApi.h"

namespace corvex {

namespace {

class WindowsFile final : public IFile {
public:
    explicit WindowsFile(HANDLE handle) : handle_(handle) {}
    ~WindowsFile() override {
        if (handle_ != INVALID_HANDLE_VALUE) CloseHandle(handle_);
    }
    WindowsFile(const WindowsFile&) = delete;
    WindowsFile& operator=(const WindowsFile&) = delete;

    std::optional<std::uint32_t> Read(void* bytes, std::uint32_t count) override {
        DWORD got = 0;
        if (ReadFile(handle_, bytes, count, &got, nullptr) == 0) return std::nullopt;
        position_ += got;
        return got;
    }

    bool Write(const void* bytes, std::uint32_t count) override {
        DWORD put = 0;
        const bool written = WriteFile(handle_, bytes, count, &put, nullptr) != 0;
        position_ += put;
        return written && put == count;
    }

    std::uint64_t Position() const override { return position_; }

    bool Seek(std::uint64_t offset) override {
        LARGE_INTEGER to;
        to.QuadPart = static_cast<LONGLONG>(offset);
        if (SetFilePointerEx(handle_, to, nullptr, FILE_BEGIN) == 0) return false;
        position_ = offset;
        return true;
    }

    std::optional<std::uint64_t> Size() const override {
        LARGE_INTEGER size;
        if (GetFileSizeEx(handle_, &size) == 0) return std::nullopt;
        return static_cast<std::uint64_t>(size.QuadPart);
    }

    bool EndHere() override { return SetEndOfFile(handle_) != 0; }

    bool Close() override {
        const HANDLE closed = std::exchange(handle_, INVALID_HANDLE_VALUE);
        return closed != INVALID_HANDLE_VALUE && CloseHandle(closed) != 0;
    }

private:
    HANDLE handle_;
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
        const DWORD sharing = access == FileAccess::kRead ? FILE_SHARE_READ : 0;
        const DWORD disposition = access == FileAccess::kCreate ? CREATE_ALWAYS : OPEN_EXISTING;
        const HANDLE handle =
            CreateFileA(path.c_str(), rights, sharing, nullptr, disposition, FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
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
