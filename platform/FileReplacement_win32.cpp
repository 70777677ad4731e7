#include "platform/FileReplacement.h"
#include "platform/WindowsApi.h"

namespace corvex {

std::string FreshNameFor(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    constexpr DWORD kNoFile = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE | FILE_ATTRIBUTE_REPARSE_POINT;
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & kNoFile) != 0) return {};
    return path + "." + std::to_string(GetCurrentProcessId()) + ".new";
}

bool MoveIntoPlace(const std::string& fresh, const std::string& path) {
    if (MoveFileExA(fresh.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0) return true;
    DeleteFileA(fresh.c_str());
    return false;
}

}  // namespace corvex
