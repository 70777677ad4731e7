#include "tests/program/driver/Eyes.h"

#include <cstring>
#include <sstream>
#include <stdexcept>

#include "tests/program/driver/ProgramFolder.h"
#include "tests/program/driver/WindowFinder.h"

namespace corvex::test {

namespace {

constexpr std::size_t kHead = offsetof(EyesRequest, text);

HHOOK Hook(HWND window) {
    // Stays loaded, as the hook of the next program needs it again.
    static const HMODULE library = ::LoadLibraryA(BuiltFile(kEyesLibrary).c_str());
    if (library == nullptr) throw std::runtime_error("no library of the eyes");
    const auto entry = reinterpret_cast<EyesEntry>(reinterpret_cast<void*>(::GetProcAddress(library, kEyesEntry)));
    return ::SetWindowsHookExA(WH_CALLWNDPROC, entry(), library, ::GetWindowThreadProcessId(window, nullptr));
}

}  // namespace

Eyes::Eyes(HWND window)
    : window_(window),
      hook_(Hook(window)),
      block_(window, sizeof(EyesRequest)),
      request_(std::make_unique<EyesRequest>()) {
    if (hook_ == nullptr || !block_.IsThere()) throw std::runtime_error("the program lets nobody look into it");
}

Eyes::~Eyes() {
    ::UnhookWindowsHookEx(hook_);
}

void Eyes::Do(EyesTask task, EyesRequest& request) const {
    request.done = 0;
    block_.Put(0, &request, kHead);
    Ask(window_, ::RegisterWindowMessageA(kEyesMessage), task, reinterpret_cast<LPARAM>(block_.Place(0)));
    block_.Get(0, &request, kHead);
    if (request.done == 0) throw std::runtime_error("the eyes do not see");
}

Picture Eyes::Of(HWND window) const {
    request_->window = window;
    Do(kTakePicture, *request_);
    Picture picture{request_->width, request_->height, {}};
    picture.pixels.resize(static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height));
    block_.Get(offsetof(EyesRequest, pixels), picture.pixels.data(), picture.pixels.size() * sizeof(std::uint32_t));
    return picture;
}

std::vector<std::string> Eyes::RowsOf(HWND popup) const {
    request_->window = popup;
    Do(kReadMenu, *request_);
    block_.Get(kHead, request_->text, EyesRequest::kTextSize);
    std::vector<std::string> rows;
    std::istringstream text(request_->text);
    for (std::string row; std::getline(text, row);)
        rows.push_back(row);
    return rows;
}

void Eyes::Smear(HWND window, const RECT& part, COLORREF colour) const {
    request_->window = window;
    request_->part = part;
    request_->colour = colour;
    Do(kSmear, *request_);
}

}  // namespace corvex::test
