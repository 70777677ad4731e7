#include "tests/program/driver/OwnDesktop.h"

#include <stdexcept>

#include "platform/WindowsApi.h"

namespace corvex::test {

namespace {

std::string MakeDesktop() {
    std::string name = "corvex";
    name.append(std::to_string(::GetCurrentProcessId()));
    // Lives as long as the process.
    const HDESK desktop = ::CreateDesktopA(name.c_str(), nullptr, nullptr, 0, GENERIC_ALL, nullptr);
    if (desktop == nullptr || !::SetThreadDesktop(desktop)) throw std::runtime_error("no desktop");
    return name;
}

}  // namespace

const std::string& OwnDesktop() {
    static const std::string name = MakeDesktop();
    return name;
}

}  // namespace corvex::test
