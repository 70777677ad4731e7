#include "tests/controls/window/ShownControl.h"

namespace corvex {

ShownControl::ShownControl(const char* className, int width, int height, int id, const char* text)
    : window_(::CreateWindowExA(0, className, text, WS_CHILD | WS_VISIBLE, 0, 0, width, height, parent_.Window(),
                                reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), ::GetModuleHandleA(nullptr),
                                nullptr)) {
    ::UpdateWindow(window_);
    spy_ = std::make_unique<WindowSpy>(window_);
}

ShownControl::~ShownControl() {
    if (::IsWindow(window_)) ::DestroyWindow(window_);
}

LRESULT ShownControl::Send(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::SendMessageA(window_, message, wParam, lParam);
}

void ShownControl::Resize(int width, int height) const {
    ::SetWindowPos(parent_.Window(), nullptr, 0, 0, width, height, SWP_NOZORDER | SWP_NOMOVE);
    ::SetWindowPos(window_, nullptr, 0, 0, width, height, SWP_NOZORDER | SWP_NOMOVE);
    ::UpdateWindow(window_);
}

void ShownControl::Mark() const {
    const RECT area = ClientOf(window_);
    const OwnedBrush brush(::CreateSolidBrush(kMark));
    ::FillRect(ClientDc(window_).Get(), &area, brush.Get());
}

}  // namespace corvex
