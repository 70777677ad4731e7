#include <vector>

#include "platform/VersionBlock.h"
#include "platform/WindowsApi.h"

namespace corvex {

bool ReadVersionBlock(const char* path, VersionBlock& block) {
    if (path == nullptr) return false;
    DWORD ignored = 0;
    const DWORD size = GetFileVersionInfoSizeA(path, &ignored);
    if (size == 0) return false;
    std::vector<std::uint8_t> bytes(size);
    if (GetFileVersionInfoA(path, 0, size, bytes.data()) == 0) return false;
    void* found = nullptr;
    UINT length = 0;
    if (VerQueryValueA(bytes.data(), "\\", &found, &length) == 0) return false;
    if (found == nullptr || length < sizeof(VS_FIXEDFILEINFO)) return false;
    const auto& info = *static_cast<const VS_FIXEDFILEINFO*>(found);
    block = {info.dwFileVersionMS, info.dwFileVersionLS, info.dwFileDateLS};
    return true;
}

}  // namespace corvex
