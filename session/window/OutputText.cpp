#include "session/window/OutputText.h"

#include "session/window/ResourceIds.h"

namespace corvex {

namespace {

constexpr UINT kMessageAppend = WM_APP + 1;  // lParam the text, of this process
constexpr char kProcedureProperty[] = "CorvexOutputProcedure";

OwnedFont MakeFont() {
    return OwnedFont(::CreateFontA(6, 0, 0, 0, 100, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                                   CLIP_DEFAULT_PRECIS, PROOF_QUALITY, FIXED_PITCH | FF_MODERN, "Courier"));
}

// At the end, wherever the user has put the caret.
void AppendHere(HWND edit, const char* text) {
    const auto end = static_cast<WPARAM>(::GetWindowTextLengthA(edit));
    ::SendMessageA(edit, EM_SETSEL, end, static_cast<LPARAM>(end));
    ::SendMessageA(edit, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text));
}

WNDPROC FormerProcedure(HWND edit) {
    return reinterpret_cast<WNDPROC>(::GetPropA(edit, kProcedureProperty));
}

}  // namespace

HWND OutputText::Create(HWND parent, HINSTANCE instance) {
    edit_ = ::CreateWindowExA(0, "EDIT", "", WS_CHILD | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE | ES_AUTOVSCROLL, 0, 0,
                              0, 0, parent, reinterpret_cast<HMENU>(IDC_OUTPUT), instance, nullptr);
    if (edit_ == nullptr) return nullptr;
    font_ = MakeFont();
    ::SendMessageA(edit_, WM_SETFONT, reinterpret_cast<WPARAM>(font_.Get()), FALSE);
    ::SendMessageA(edit_, EM_SETLIMITTEXT, 0, 0);
    const LONG_PTR former = ::GetWindowLongPtrA(edit_, GWLP_WNDPROC);
    ::SetPropA(edit_, kProcedureProperty, reinterpret_cast<HANDLE>(former));
    ::SetWindowLongPtrA(edit_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&OutputText::Procedure));
    return edit_;
}

LRESULT CALLBACK OutputText::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const WNDPROC former = FormerProcedure(window);
    if (message == kMessageAppend) {
        AppendHere(window, reinterpret_cast<const char*>(lParam));
        return 0;
    }
    if (message == WM_NCDESTROY) ::RemovePropA(window, kProcedureProperty);
    return ::CallWindowProcA(former, window, message, wParam, lParam);
}

std::size_t OutputText::TextLength() {
    return static_cast<std::size_t>(::SendMessageA(edit_, WM_GETTEXTLENGTH, 0, 0));
}

void OutputText::Append(const char* text) {
    ::SendMessageA(edit_, kMessageAppend, 0, reinterpret_cast<LPARAM>(text));
}

void OutputText::Clear() {
    ::SendMessageA(edit_, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(""));
}

}  // namespace corvex
