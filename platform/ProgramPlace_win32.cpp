#include <vector>

#include "platform/ProgramPlace.h"
#include "platform/WindowsApi.h"

namespace corvex {

namespace {

constexpr DWORD kLongestName = 32768;

class WindowsPlace final : public IProgramPlace {
public:
    std::string FileName(void* module) override {
        std::vector<char> name(kLongestName);
        const DWORD length = GetModuleFileNameA(static_cast<HMODULE>(module), name.data(), kLongestName);
        return {name.data(), length};
    }
    char Separator() override { return '\\'; }
    ScreenSize Screen() override { return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}; }
};

}  // namespace

IProgramPlace& SystemProgramPlace() {
    static WindowsPlace place;
    return place;
}

}  // namespace corvex
