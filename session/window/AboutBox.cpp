#include "session/window/AboutBox.h"

#include "controls/window/DialogWindow.h"
#include "platform/ProgramPlace.h"
#include "session/base/VersionText.h"
#include "session/window/DialogResources.h"

namespace corvex {

namespace {

class AboutDialog final : public DialogWindow {
public:
    AboutDialog() : DialogWindow(DialogFocus::kFirstControl) {}

private:
    DialogAnswer OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void ShowVersion() const;
};

DialogAnswer AboutDialog::OnMessage(UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
        case WM_INITDIALOG:
            ShowVersion();
            return 0;
        case WM_COMMAND:
            if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL) ::EndDialog(Window(), LOWORD(wParam));
            return 0;
        default:
            return {};
    }
}

void AboutDialog::ShowVersion() const {
    char version[64] = "";
    GetVersionText(CurrentProgramPlace().FileName(nullptr).c_str(), version, sizeof version);
    ::SetDlgItemTextA(Window(), IDC_ABOUT_VERSION, version);
}

}  // namespace

void ShowAboutBox(const SessionState& session) {
    RunDialog(std::make_unique<AboutDialog>(), static_cast<HINSTANCE>(session.instance), IDD_ABOUT,
              static_cast<HWND>(session.mainWindow));
}

}  // namespace corvex
