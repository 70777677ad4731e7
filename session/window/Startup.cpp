#include "session/window/Startup.h"

#include "session/window/Desktop.h"
#include "session/window/EditorLibrary.h"
#include "session/window/MainWindow.h"
#include "session/window/ResourceIds.h"

namespace corvex {

namespace {

// While Preferences are open the main window is switched off, and its keys are theirs. The window about the line has
// its own.
bool IsHandled(const Desktop& desktop, MSG* message) {
    const SessionState& session = desktop.session;
    const HWND main = AsWindow(session.mainWindow);
    const HWND preferences = AsWindow(session.preferencesWindow);
    if (preferences != nullptr && ::IsDialogMessageA(preferences, message) != 0) return true;
    if (desktop.linkWindow != nullptr && ::IsDialogMessageA(desktop.linkWindow, message) != 0) return true;
    return ::IsWindowEnabled(main) != 0 &&
           ::TranslateAcceleratorA(main, static_cast<HACCEL>(session.accelerators), message) != 0;
}

int RunMessages(const Desktop& desktop) {
    MSG message{};
    while (::GetMessageA(&message, nullptr, 0, 0) > 0) {
        if (IsHandled(desktop, &message)) continue;
        ::TranslateMessage(&message);
        ::DispatchMessageA(&message);
    }
    return static_cast<int>(message.wParam);
}

}  // namespace

int RunDesktop(Desktop& desktop, int show) {
    SessionState& session = desktop.session;
    if (!LoadEditor(session)) return 0;
    const HWND window = MainWindow::Create(desktop);
    if (window == nullptr) return 1;
    ::ShowWindow(window, show);
    ::UpdateWindow(window);
    session.accelerators = ::LoadAcceleratorsA(desktop.Instance(), MAKEINTRESOURCEA(IDR_MAIN));
    const int code = RunMessages(desktop);
    desktop.Drain();
    return code;
}

}  // namespace corvex
