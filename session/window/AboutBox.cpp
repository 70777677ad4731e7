#include "session/window/AboutBox.h"

#include "platform/ProgramPlace.h"
#include "platform/WindowsApi.h"
#include "session/base/VersionText.h"
#include "session/window/DialogResources.h"

namespace corvex {

namespace {

void ShowVersion(HWND dialog) {
    char version[64] = "";
    GetVersionText(CurrentProgramPlace().FileName(nullptr).c_str(), version, sizeof version);
    ::SetDlgItemTextA(dialog, IDC_ABOUT_VERSION, version);
}

INT_PTR CALLBACK AboutProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM /*lParam*/) {
    switch (message) {
        case WM_INITDIALOG:
            ShowVersion(dialog);
            return TRUE;
        case WM_COMMAND:
            if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL) ::EndDialog(dialog, LOWORD(wParam));
            return TRUE;
        default:
            return FALSE;
    }
}

}  // namespace

void ShowAboutBox(const SessionState& session) {
    ::DialogBoxParamA(static_cast<HINSTANCE>(session.instance), MAKEINTRESOURCEA(IDD_ABOUT),
                      static_cast<HWND>(session.mainWindow), &AboutProcedure, 0);
}

}  // namespace corvex
