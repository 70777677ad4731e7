// A control on show in a parent that writes down what it is told.
#pragma once

#include <memory>

#include "tests/controls/window/ControlTestHelper.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {

class ShownControl {
public:
    ShownControl(const char* className, int width, int height, int id = 7, const char* text = "");
    ~ShownControl();
    ShownControl(const ShownControl&) = delete;
    ShownControl& operator=(const ShownControl&) = delete;

    HWND Window() const { return window_; }
    TestWindow& Parent() { return parent_; }
    WindowSpy& Spy() { return *spy_; }
    HeardMessages Commands() const { return Of(parent_.heard, WM_COMMAND); }

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    void Resize(int width, int height) const;
    void Repaint() const { ::RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }
    // Fills the client with a colour that no control has, and tells whether any of it is left.
    void Mark() const;
    bool HasMark() const { return Shows(kMark); }
    bool Shows(COLORREF colour) const { return ColoursOf(window_).contains(colour); }

    // How many paints that work has caused by the time it returns. On any thread, as all messages are sent.
    template <class Work>
    int PaintsIn(const Work& work) {
        const int before = spy_->Paints();
        work();
        return spy_->Paints() - before;
    }

private:
    static constexpr COLORREF kMark = 0x123456;

    TestWindow parent_{WS_POPUP | WS_VISIBLE};
    HWND window_ = nullptr;
    std::unique_ptr<WindowSpy> spy_;
};

}  // namespace corvex
