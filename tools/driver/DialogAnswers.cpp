#include "tools/driver/DialogAnswers.h"

#include <stdexcept>

#include "tests/support/Eventually.h"
#include "tools/driver/WindowFinder.h"

namespace corvex::test {

namespace {

constexpr int kNameCombo = 0x47C, kNameEdit = 0x480;
constexpr int kBoxText = 0xFFFF;

void Click(HWND dialog, int id) {
    ::PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(::GetDlgItem(dialog, id)));
}

HWND NameField(HWND dialog) {
    HWND combo = ::GetDlgItem(dialog, kNameCombo);
    return combo != nullptr && ::IsWindowVisible(combo) ? combo : ::GetDlgItem(dialog, kNameEdit);
}

// A dialog fills its own fields while it opens, so a name is typed until it stays.
bool TypeName(HWND dialog, const std::string& path) {
    HWND field = NameField(dialog);
    if (field == nullptr) return false;
    Ask(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(path.c_str()));
    return TextOf(field, 1024) == path;
}

void SayYesTo(DWORD process, HWND asker) {
    for (HWND window : TopWindowsOf(process)) {
        if (::GetWindow(window, GW_OWNER) == asker && ::GetDlgItem(window, IDYES) != nullptr) Click(window, IDYES);
    }
}

}  // namespace

HWND WaitForDialog(DWORD process, const std::string& title) {
    HWND dialog = nullptr;
    const auto isThere = [&] {
        dialog = FindTopWindow(process, kDialogClass, title);
        return dialog != nullptr;
    };
    if (!Eventually(isThere)) throw std::runtime_error("no dialog \"" + title + "\"");
    return dialog;
}

void PressButton(HWND dialog, int id) {
    Click(dialog, id);
    if (!Eventually([&] { return !::IsWindow(dialog); })) throw std::runtime_error("the dialog stays");
}

void ChooseFile(DWORD process, const std::string& title, const std::string& path) {
    HWND dialog = WaitForDialog(process, title);
    if (!Eventually([&] { return TypeName(dialog, path); })) throw std::runtime_error("the dialog takes no name");
    Click(dialog, IDOK);
    const auto isGone = [&] {
        SayYesTo(process, dialog);
        return !::IsWindow(dialog);
    };
    if (!Eventually(isGone)) throw std::runtime_error("the dialog \"" + title + "\" stays");
}

void CancelDialog(DWORD process, const std::string& title) {
    PressButton(WaitForDialog(process, title), IDCANCEL);
}

std::string CloseBox(DWORD process, const std::string& title) {
    HWND box = WaitForDialog(process, title);
    std::string text = TextOf(::GetDlgItem(box, kBoxText));
    PressButton(box, IDOK);
    return text;
}

}  // namespace corvex::test
