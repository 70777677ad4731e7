#include "session/window/OutputText.h"

#include <utility>

#include "controls/window/WindowSubclass.h"
#include "platform/PrivateMessages.h"
#include "session/window/ResourceIds.h"

namespace corvex {

namespace {

OwnedFont MakeFont() {
    return OwnedFont(::CreateFontA(6, 0, 0, 0, 100, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                                   CLIP_DEFAULT_PRECIS, PROOF_QUALITY, FIXED_PITCH | FF_MODERN, "Courier"));
}

// By the user too, who may write in the control.
bool MayChangeTheText(UINT message) {
    switch (message) {
        case WM_CHAR:
        case WM_KEYDOWN:
        case WM_PASTE:
        case WM_CUT:
        case WM_CLEAR:
        case WM_UNDO:
        case EM_UNDO:
        case EM_REPLACESEL:
        case WM_SETTEXT:
            return true;
        default:
            return false;
    }
}

}  // namespace

// What stands in front of the edit control.
class OutputText::Edit final : public WindowSubclass {
public:
    Edit(HWND window, OutputText& owner) : WindowSubclass(window), owner_(owner) {}

    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    // By the control itself, past what is done here.
    LRESULT Own(UINT message, WPARAM wParam, LPARAM lParam) const { return Former(message, wParam, lParam); }

private:
    OutputText& owner_;
};

LRESULT OutputText::Edit::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == kMessageBringText || message == WM_GETTEXT || message == WM_GETTEXTLENGTH) owner_.Bring();
    if (message == kMessageBringText) return 0;
    if (message == WM_NCDESTROY) owner_.Forget();
    const LRESULT result = Former(message, wParam, lParam);
    if (MayChangeTheText(message)) owner_.Measure();
    return result;
}

HWND OutputText::Create(HWND parent, HINSTANCE instance) {
    edit_ = ::CreateWindowExA(0, "EDIT", "", WS_CHILD | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE | ES_AUTOVSCROLL, 0, 0,
                              0, 0, parent, reinterpret_cast<HMENU>(IDC_OUTPUT), instance, nullptr);
    if (edit_ == nullptr) return nullptr;
    font_ = MakeFont();
    ::SendMessageA(edit_, WM_SETFONT, reinterpret_cast<WPARAM>(font_.Get()), FALSE);
    ::SendMessageA(edit_, EM_SETLIMITTEXT, 0, 0);
    if (!Attach(std::make_unique<Edit>(edit_, *this))) return edit_;
    control_ = SubclassOf<Edit>(edit_);
    const std::lock_guard<std::mutex> guard(lock_);
    attached_ = true;
    return edit_;
}

void OutputText::Bring() {
    if (bringing_ || control_ == nullptr) return;  // the control asks for its own text while it changes
    std::string text;
    bool clear = false;
    {
        const std::lock_guard<std::mutex> guard(lock_);
        text.swap(waiting_);
        clear = std::exchange(clearFirst_, false);
        asked_ = false;
    }
    if (text.empty() && !clear) return;
    bringing_ = true;
    if (clear) control_->Own(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(""));
    if (!text.empty()) AppendHere(text);
    bringing_ = false;
    Measure();
}

// At the end, wherever the user has put the caret.
void OutputText::AppendHere(const std::string& text) {
    const auto end = static_cast<WPARAM>(control_->Own(WM_GETTEXTLENGTH, 0, 0));
    control_->Own(EM_SETSEL, end, static_cast<LPARAM>(end));
    control_->Own(EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text.c_str()));
}

void OutputText::Measure() {
    if (control_ == nullptr) return;
    const auto shown = static_cast<std::size_t>(control_->Own(WM_GETTEXTLENGTH, 0, 0));
    const std::lock_guard<std::mutex> guard(lock_);
    length_ = (clearFirst_ ? 0 : shown) + waiting_.size();
}

void OutputText::Forget() {
    control_ = nullptr;
    const std::lock_guard<std::mutex> guard(lock_);
    attached_ = clearFirst_ = false;
    waiting_.clear();
    length_ = 0;
}

// The main thread sees what it prints at once.
void OutputText::Ask() {
    if (::GetWindowThreadProcessId(edit_, nullptr) == ::GetCurrentThreadId()) {
        Bring();
        return;
    }
    {
        const std::lock_guard<std::mutex> guard(lock_);
        if (!attached_ || std::exchange(asked_, true)) return;
    }
    if (::PostMessageA(edit_, kMessageBringText, 0, 0) != FALSE) return;
    const std::lock_guard<std::mutex> guard(lock_);
    asked_ = false;  // the queue was full; the next line tries again
}

std::size_t OutputText::TextLength() {
    const std::lock_guard<std::mutex> guard(lock_);
    return length_;
}

void OutputText::Append(const char* text) {
    {
        const std::lock_guard<std::mutex> guard(lock_);
        if (!attached_) return;
        const std::size_t before = waiting_.size();
        waiting_ += text;
        length_ += waiting_.size() - before;
    }
    Ask();
}

void OutputText::Clear() {
    {
        const std::lock_guard<std::mutex> guard(lock_);
        if (!attached_) return;
        waiting_.clear();
        clearFirst_ = true;
        length_ = 0;
    }
    Ask();
}

}  // namespace corvex
