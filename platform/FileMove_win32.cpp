#include "platform/FileMove.h"
#include "platform/WindowsApi.h"

namespace corvex {

namespace {

// The file's own number on its volume; false when it is not there.
bool Identify(const std::string& path, BY_HANDLE_FILE_INFORMATION* information) {
    constexpr DWORD kAnyone = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE handle = CreateFileA(path.c_str(), FILE_READ_ATTRIBUTES, kAnyone, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return false;
    const bool known = GetFileInformationByHandle(handle, information) != 0;
    CloseHandle(handle);
    return known;
}

}  // namespace

// MoveFileA, but for the flush of a copy to another volume.
std::uint32_t MoveToNewName(const std::string& from, const std::string& to) {
    constexpr DWORD kFlags = MOVEFILE_COPY_ALLOWED | MOVEFILE_WRITE_THROUGH;
    return MoveFileExA(from.c_str(), to.c_str(), kFlags) != 0 ? 0 : GetLastError();
}

std::uint32_t RemoveFile(const std::string& path) {
    return DeleteFileA(path.c_str()) != 0 ? 0 : GetLastError();
}

bool IsSameFile(const std::string& one, const std::string& other) {
    BY_HANDLE_FILE_INFORMATION first{}, second{};
    if (!Identify(one, &first) || !Identify(other, &second)) return false;
    return first.dwVolumeSerialNumber == second.dwVolumeSerialNumber && first.nFileIndexHigh == second.nFileIndexHigh &&
           first.nFileIndexLow == second.nFileIndexLow;
}

}  // namespace corvex
