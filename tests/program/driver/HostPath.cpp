#include "tests/program/driver/HostPath.h"

#include <filesystem>
#include <stdexcept>

#include "platform/WindowsApi.h"

namespace corvex::test {

std::string HostPath(const std::string& file) {
    using NameOf = char*(CDECL*)(const wchar_t*);
    const auto nameOf = reinterpret_cast<NameOf>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleA("kernel32"), "wine_get_unix_file_name")));
    if (nameOf == nullptr) throw std::runtime_error("no host");
    char* const name = nameOf(std::filesystem::path(file).wstring().c_str());
    if (name == nullptr) throw std::runtime_error("the host has no " + file);
    std::string path = name;
    ::HeapFree(::GetProcessHeap(), 0, name);
    return path;
}

}  // namespace corvex::test
