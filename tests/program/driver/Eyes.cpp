#include "tests/program/driver/Eyes.h"

#include <stdexcept>

#include "tools/driver/ProgramFolder.h"
#include "tools/driver/WindowFinder.h"

namespace corvex::test {

namespace {

constexpr std::size_t kHead = offsetof(EyesRequest, pixels);

HHOOK Hook(HWND window) {
    // Stays loaded, as the hook of the next program needs it again.
    static const HMODULE library = ::LoadLibraryA(BuiltFile(kEyesLibrary).c_str());
    if (library == nullptr) throw std::runtime_error("no library of the eyes");
    const auto entry = reinterpret_cast<EyesEntry>(reinterpret_cast<void*>(::GetProcAddress(library, kEyesEntry)));
    return ::SetWindowsHookExA(WH_CALLWNDPROC, entry(), library, ::GetWindowThreadProcessId(window, nullptr));
}

}  // namespace

Eyes::Eyes(HWND window) : window_(window), hook_(Hook(window)), block_(window, sizeof(EyesRequest)) {
    if (hook_ == nullptr || !block_.IsThere()) throw std::runtime_error("the program lets nobody look into it");
}

Eyes::~Eyes() {
    ::UnhookWindowsHookEx(hook_);
}

Picture Eyes::Of(HWND window) const {
    const auto request = std::make_unique<EyesRequest>();
    request->window = window;
    block_.Put(0, request.get(), kHead);
    Ask(window_, ::RegisterWindowMessageA(kEyesMessage), 0, reinterpret_cast<LPARAM>(block_.Place(0)));
    block_.Get(0, request.get(), kHead);
    if (request->done == 0) throw std::runtime_error("the eyes do not see");
    Picture picture{request->width, request->height, {}};
    picture.pixels.resize(static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height));
    block_.Get(kHead, picture.pixels.data(), picture.pixels.size() * sizeof(std::uint32_t));
    return picture;
}

}  // namespace corvex::test
