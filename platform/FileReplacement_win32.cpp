#include "platform/FileReplacement.h"
#include "platform/WindowsApi.h"

namespace corvex {

namespace {

constexpr DWORD kAnyone = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// Behind any links. Empty when there is no telling.
std::string FileBehind(const std::string& path) {
    const HANDLE handle = CreateFileA(path.c_str(), 0, kAnyone, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return {};
    char name[MAX_PATH];
    const DWORD length = GetFinalPathNameByHandleA(handle, name, MAX_PATH, 0);
    CloseHandle(handle);
    const std::string behind(name, length < MAX_PATH ? length : 0);
    // The form that has no limit of length, and that not every call takes.
    return behind.starts_with("\\\\?\\") && !behind.starts_with("\\\\?\\UNC") ? behind.substr(4) : behind;
}

bool IsLink(DWORD attributes) {
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

std::string Target(const std::string& path) {
    return IsLink(GetFileAttributesA(path.c_str())) ? FileBehind(path) : path;
}

bool Flush(const std::string& path) {
    const HANDLE handle =
        CreateFileA(path.c_str(), GENERIC_WRITE, kAnyone, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return false;
    const bool flushed = FlushFileBuffers(handle) != 0;
    return CloseHandle(handle) != 0 && flushed;
}

}  // namespace

std::string FreshNameFor(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    constexpr DWORD kNoFile = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE;
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & kNoFile) != 0) return {};
    const std::string target = Target(path);
    if (target.empty()) return {};
    const std::string suffix = std::to_string(GetCurrentProcessId()) + ".new";
    if (target.size() + 1 + suffix.size() < MAX_PATH) return target + "." + suffix;
    // A path may fill all the room there is for one; a file beside it then has a name of its own.
    const std::string beside = target.substr(0, target.find_last_of("\\/:") + 1) + suffix;
    return beside.size() < MAX_PATH ? beside : std::string();
}

bool IsDeviceOrPipe(const std::string& path) {
    const HANDLE handle = CreateFileA(path.c_str(), 0, kAnyone, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return false;
    const DWORD type = GetFileType(handle);
    CloseHandle(handle);
    return type == FILE_TYPE_CHAR || type == FILE_TYPE_PIPE;
}

// The write-through is the flush of the folder, which has no other.
bool MoveIntoPlace(const std::string& fresh, const std::string& path) {
    constexpr DWORD kFlags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    const std::string target = Target(path);
    if (!target.empty() && Flush(fresh) && MoveFileExA(fresh.c_str(), target.c_str(), kFlags) != 0) return true;
    DeleteFileA(fresh.c_str());
    return false;
}

}  // namespace corvex
