// The text log's control on the Output tab.
#pragma once

#include "controls/window/GdiObjects.h"
#include "session/base/DebugOutput.h"

namespace corvex {

// An edit control as the log wants it. Attached on the main thread before anybody prints; the log's operations then
// come from any thread and are carried to the control's own by one message each, so that a worker holds no lock while
// it waits and no line is torn. Once the window is gone they do nothing.
class OutputText final : public ITextAppender {
public:
    // Makes the control, a child of `parent`, and keeps it. Null on failure.
    HWND Create(HWND parent, HINSTANCE instance);
    HWND Window() const { return edit_; }

    std::size_t TextLength() override;
    void Append(const char* text) override;
    void Clear() override;

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND edit_ = nullptr;
    OwnedFont font_;
};

}  // namespace corvex
