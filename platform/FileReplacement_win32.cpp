#include "platform/FileReplacement.h"
#include "platform/WindowsApi.h"

namespace corvex {

std::string FreshNameFor(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    constexpr DWORD kNoFile = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE | FILE_ATTRIBUTE_REPARSE_POINT;
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & kNoFile) != 0) return {};
    const std::string suffix = std::to_string(GetCurrentProcessId()) + ".new";
    if (path.size() + 1 + suffix.size() < MAX_PATH) return path + "." + suffix;
    // A path may fill all the room there is for one; a file beside it then has a name of its own.
    const std::string beside = path.substr(0, path.find_last_of("\\/:") + 1) + suffix;
    return beside.size() < MAX_PATH ? beside : std::string();
}

bool MoveIntoPlace(const std::string& fresh, const std::string& path) {
    if (MoveFileExA(fresh.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0) return true;
    DeleteFileA(fresh.c_str());
    return false;
}

}  // namespace corvex
