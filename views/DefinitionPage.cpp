#include "views/DefinitionPage.h"

#include <utility>

#include "controls/tabsheet/TabSheet.h"

namespace corvex {

DialogAnswer DefinitionPage::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG:
            Begin();
            return 0;
        case WM_SIZE:
            LayOut(LOWORD(lParam), HIWORD(lParam));
            return 0;
        case WM_COMMAND:
            OnCommand(LOWORD(wParam), HIWORD(wParam), lParam);
            return 0;
        case WM_HSCROLL:
            OnScroll(LOWORD(wParam));
            return 0;
        case WM_NOTIFY:
            return OnNotify(*reinterpret_cast<NMHDR*>(lParam));
        case WM_WINDOWPOSCHANGED:
            session_.views.Announce();  // it may have been shown or hidden
            return {};
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT:
            PaintGround();
            return 0;
        case WM_DESTROY:
            End();
            return 0;
        default:
            return {};
    }
}

void DefinitionPage::Begin() {
    session_.*handle_ = Window();
    session_.views.Register(kind_, this);
    OnInit();
}

void DefinitionPage::End() {
    OnEnd();
    session_.views.Register(kind_, nullptr);
    session_.*handle_ = nullptr;
}

// Fills what the controls leave free, once, so that nothing flickers under them.
void DefinitionPage::PaintGround() const {
    PAINTSTRUCT paint{};
    const HDC dc = ::BeginPaint(Window(), &paint);
    ::FillRect(dc, &paint.rcPaint, ::GetSysColorBrush(COLOR_BTNFACE));
    ::EndPaint(Window(), &paint);
}

HWND AddPage(SessionState& session, std::unique_ptr<DialogWindow> page, DLGPROC procedure, int templateId,
             const char* title) {
    return TabSheet::addDialogPage(static_cast<HWND>(session.tabSheet), procedure,
                                   static_cast<HINSTANCE>(session.instance), templateId, title, -1, ParameterOf(page),
                                   false);
}

RECT RectInParent(HWND child) {
    RECT area{};
    ::GetWindowRect(child, &area);
    ::MapWindowPoints(nullptr, ::GetParent(child), reinterpret_cast<POINT*>(&area), 2);
    return area;
}

}  // namespace corvex
