// The text log's control on the Output tab.
#pragma once

#include <mutex>
#include <string>

#include "controls/window/GdiObjects.h"
#include "session/base/DebugOutput.h"

namespace corvex {

// An edit control as the log wants it. Attached on the main thread before anybody prints; the log's operations then
// come from any thread. A worker leaves its text here and goes on: were it to wait until the control has drawn a line,
// the serial line would stand idle several times in every poll. The main thread brings the text to the control as soon
// as it looks at its messages, and at once when it prints itself, or when anybody asks the control for its text. Once
// the window is gone all do nothing.
class OutputText final : public ITextAppender {
public:
    // Makes the control, a child of `parent`, and keeps it. Null on failure.
    HWND Create(HWND parent, HINSTANCE instance);
    HWND Window() const { return edit_; }

    // Of the text with what is still on its way to the control.
    std::size_t TextLength() override;
    void Append(const char* text) override;
    void Clear() override;

private:
    class Edit;

    void Ask();
    void Bring();
    void AppendHere(const std::string& text);
    void Measure();
    void Forget();

    HWND edit_ = nullptr;
    Edit* control_ = nullptr;  // main thread; null before and after the window
    OwnedFont font_;
    bool bringing_ = false;  // main thread

    std::mutex lock_;  // of all below
    bool attached_ = false;
    bool asked_ = false;       // the main thread has been told to bring what waits
    bool clearFirst_ = false;  // the control's text is to go before what waits comes
    std::string waiting_;
    std::size_t length_ = 0;
};

}  // namespace corvex
