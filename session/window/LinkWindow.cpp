#include "session/window/LinkWindow.h"

#include <algorithm>
#include <memory>
#include <string>

#include "controls/window/Clipboard.h"
#include "controls/window/DialogWindow.h"
#include "controls/window/GdiObjects.h"
#include "session/window/Desktop.h"
#include "session/window/DialogResources.h"

namespace corvex {

namespace {

constexpr int kTextHeight = -12;  // pixels

// Of an edit control, which breaks lines in the system's way.
std::string EditText(const std::string& text) {
    std::string lines;
    for (const char c : text) {
        if (c == '\n') lines += '\r';
        lines += c;
    }
    return lines;
}

class LinkDialog final : public DialogWindow {
public:
    explicit LinkDialog(Desktop& desktop)
        : DialogWindow(DialogFocus::kUntouched),
          desktop_(desktop),
          font_(::CreateFontA(kTextHeight, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, ANSI_CHARSET, OUT_DEFAULT_PRECIS,
                              CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, FIXED_PITCH | FF_MODERN, "Courier New")) {}

    void Refresh() {
        const std::string text = EditText(desktop_.LineReport());
        if (text == shown_ || IsMarked()) return;
        shown_ = text;
        const LRESULT line = ::SendMessageA(Edit(), EM_GETFIRSTVISIBLELINE, 0, 0);
        ::SendMessageA(Edit(), WM_SETREDRAW, FALSE, 0);
        ::SetWindowTextA(Edit(), text.c_str());
        ::SendMessageA(Edit(), EM_LINESCROLL, 0, line);
        ::SendMessageA(Edit(), WM_SETREDRAW, TRUE, 0);
        ::InvalidateRect(Edit(), nullptr, FALSE);
    }

private:
    DialogAnswer OnMessage(UINT message, WPARAM wParam, LPARAM) override {
        switch (message) {
            case WM_INITDIALOG:
                Begin();
                return 0;
            case WM_COMMAND:
                if (LOWORD(wParam) == IDC_LINK_COPY) PutOnClipboard(Window(), shown_);
                if (LOWORD(wParam) == IDCANCEL) ::DestroyWindow(Window());
                return 0;
            case WM_CLOSE:
                ::DestroyWindow(Window());
                return 0;
            case WM_DESTROY:
                desktop_.linkWindow = nullptr;
                return 0;
            default:
                return {};
        }
    }

    // Above the panel that it was opened by, and wholly on the screen.
    void Begin() {
        RECT main{}, own{};
        ::GetWindowRect(desktop_.MainWindow(), &main);
        ::GetWindowRect(Window(), &own);
        MONITORINFO monitor{};
        monitor.cbSize = sizeof monitor;
        ::GetMonitorInfoA(::MonitorFromWindow(desktop_.MainWindow(), MONITOR_DEFAULTTONEAREST), &monitor);
        RECT bar{};
        ::GetWindowRect(AsWindow(desktop_.session.statusBar), &bar);
        const LONG left =
            std::max(std::min(main.right, monitor.rcWork.right) - (own.right - own.left), monitor.rcWork.left);
        const LONG top =
            std::max(std::min(bar.top, monitor.rcWork.bottom) - (own.bottom - own.top), monitor.rcWork.top);
        ::SetWindowPos(Window(), nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        ::SendMessageA(Edit(), WM_SETFONT, reinterpret_cast<WPARAM>(font_.Get()), FALSE);
        Refresh();
        // Not to the text: it would be marked as a whole.
        ::SetFocus(Item(IDC_LINK_COPY));
    }

    HWND Edit() const { return Item(IDC_LINK_TEXT); }
    bool IsMarked() const {
        DWORD begin = 0, end = 0;
        ::SendMessageA(Edit(), EM_GETSEL, reinterpret_cast<WPARAM>(&begin), reinterpret_cast<LPARAM>(&end));
        return begin != end && ::GetFocus() == Edit();
    }

    Desktop& desktop_;
    const OwnedFont font_;
    std::string shown_;
};

}  // namespace

void OpenLinkWindow(Desktop& desktop) {
    if (desktop.linkWindow == nullptr) {
        desktop.linkWindow =
            MakeDialog(std::make_unique<LinkDialog>(desktop), desktop.Instance(), IDD_LINK, desktop.MainWindow());
        ::ShowWindow(desktop.linkWindow, SW_SHOW);
    }
    ::SetForegroundWindow(desktop.linkWindow);
}

void RefreshLinkWindow(Desktop& desktop) {
    if (LinkDialog* const dialog = DialogOf<LinkDialog>(desktop.linkWindow)) dialog->Refresh();
}

}  // namespace corvex
