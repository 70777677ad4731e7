#include "tests/controls/gauge/ShownGauge.h"

#include "controls/window/GdiObjects.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {

namespace {

constexpr COLORREF kMark = 0x123456;

}  // namespace

ShownGauge::ShownGauge(const char* className, int width, int height, int id) {
    parent_.handler = [this](UINT message, WPARAM wParam, LPARAM lParam, LRESULT&) {
        if (message == WM_COMMAND) commands.push_back({wParam, lParam});
        return false;
    };
    window_ =
        ::CreateWindowExA(0, className, "", WS_CHILD | WS_VISIBLE, 0, 0, width, height, parent_.Window(),
                          reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), ::GetModuleHandleA(nullptr), nullptr);
    ::UpdateWindow(window_);
    ::SetWindowLongPtrA(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    former_ = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrA(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&ShownGauge::Procedure)));
}

ShownGauge::~ShownGauge() {
    if (::IsWindow(window_)) ::DestroyWindow(window_);
}

LRESULT CALLBACK ShownGauge::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto& self = *reinterpret_cast<ShownGauge*>(::GetWindowLongPtrA(window, GWLP_USERDATA));
    if (message == WM_PAINT) ++self.paints_;
    if (message >= WM_APP && message < 0xC000) self.threadsOfWork.push_back(::GetCurrentThreadId());
    return ::CallWindowProcA(self.former_, window, message, wParam, lParam);
}

LRESULT ShownGauge::Send(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::SendMessageA(window_, message, wParam, lParam);
}

void ShownGauge::Resize(int width, int height) const {
    ::SetWindowPos(parent_.Window(), nullptr, 0, 0, width, height, SWP_NOZORDER | SWP_NOMOVE);
    ::SetWindowPos(window_, nullptr, 0, 0, width, height, SWP_NOZORDER | SWP_NOMOVE);
    ::UpdateWindow(window_);
}

void ShownGauge::Mark() const {
    RECT area{};
    ::GetClientRect(window_, &area);
    const OwnedBrush brush(::CreateSolidBrush(kMark));
    ::FillRect(ClientDc(window_).Get(), &area, brush.Get());
}

bool ShownGauge::HasMark() const {
    return Colours().contains(kMark);
}

// By a copy: the pixels of a window are slow to read one by one.
std::set<COLORREF> ShownGauge::Colours() const {
    RECT area{};
    ::GetClientRect(window_, &area);
    const TestBitmap copy(area.right, area.bottom, 0);
    ::BitBlt(copy.Dc(), 0, 0, area.right, area.bottom, ClientDc(window_).Get(), 0, 0, SRCCOPY);
    return copy.ColoursIn(0, 0, area.right, area.bottom);
}

}  // namespace corvex
