#include "tests/controls/window/ControlTestHelper.h"

#include <algorithm>

namespace corvex {

namespace {

constexpr char kClass[] = "CorvexTestWindow";

}  // namespace

LRESULT CALLBACK TestWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        ::SetWindowLongPtrA(window, GWLP_USERDATA,
                            reinterpret_cast<LONG_PTR>(reinterpret_cast<const CREATESTRUCTA*>(lParam)->lpCreateParams));
    }
    auto* const self = reinterpret_cast<TestWindow*>(::GetWindowLongPtrA(window, GWLP_USERDATA));
    if (self == nullptr) return ::DefWindowProcA(window, message, wParam, lParam);
    if (message == WM_NCDESTROY) ::SetWindowLongPtrA(window, GWLP_USERDATA, 0);
    self->seen.push_back(message);
    LRESULT result = 0;
    if (self->handler && self->handler(message, wParam, lParam, result)) return result;
    return ::DefWindowProcA(window, message, wParam, lParam);
}

TestWindow::TestWindow(DWORD style, HWND parent) {
    WNDCLASSEXA windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = &TestWindow::Procedure;
    windowClass.hInstance = ::GetModuleHandleA(nullptr);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_WINDOW + 1));
    windowClass.lpszClassName = kClass;
    ::RegisterClassExA(&windowClass);
    window_ = ::CreateWindowExA(0, kClass, "page", style, 0, 0, 500, 400, parent, nullptr, windowClass.hInstance, this);
}

TestWindow::~TestWindow() {
    handler = nullptr;
    if (!Alive()) return;
    ::SetWindowLongPtrA(window_, GWLP_USERDATA, 0);
    ::DestroyWindow(window_);
}

int TestWindow::Count(UINT message) const {
    return static_cast<int>(std::count(seen.begin(), seen.end(), message));
}

TestParent::TestParent() {
    window_.handler = [this](UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
        if (std::find(listenFor.begin(), listenFor.end(), message) != listenFor.end()) {
            heard.push_back({message, wParam, lParam});
        }
        if (message != WM_NOTIFY) return false;
        const auto& head = *reinterpret_cast<const NMHDR*>(lParam);
        const Notice notice{head.hwndFrom, head.idFrom, head.code};
        notices.push_back(notice);
        result = answer ? answer(notice) : 0;
        return true;
    };
}

std::vector<UINT> TestParent::Codes() const {
    std::vector<UINT> codes;
    for (const Notice& notice : notices)
        codes.push_back(notice.code);
    return codes;
}

int TestParent::CountOf(UINT code) const {
    const auto codes = Codes();
    return static_cast<int>(std::count(codes.begin(), codes.end(), code));
}

void Pump() {
    MSG message;
    while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        ::TranslateMessage(&message);
        ::DispatchMessageA(&message);
    }
}

DWORD StyleOfWindow(HWND window) {
    return static_cast<DWORD>(::GetWindowLongPtrA(window, GWL_STYLE));
}

bool HasShownStyle(HWND window) {
    return (StyleOfWindow(window) & WS_VISIBLE) != 0;
}

std::string TextOfWindow(HWND window) {
    char text[512];
    ::GetWindowTextA(window, text, sizeof text);
    return text;
}

RECT PlaceOf(HWND window) {
    RECT area{};
    ::GetWindowRect(window, &area);
    ::MapWindowPoints(nullptr, ::GetAncestor(window, GA_PARENT), reinterpret_cast<POINT*>(&area), 2);
    return area;
}

}  // namespace corvex
