#include "session/window/Preferences.h"

#include <string>

#include "controls/proptree/PropTreeContainer.h"
#include "controls/window/DialogWindow.h"
#include "platform/PortList.h"
#include "session/PortDigit.h"
#include "session/window/DialogResources.h"

namespace corvex {

namespace {

constexpr int kTreeWidth = 150, kMinimumHeight = 100;  // pixels
constexpr char kGeneral[] = "General";
constexpr char kComSetup[] = "COM Setup";
constexpr char kKeyboard[] = "Keyboard Accelerators";
// By this property the window knows the edit box of its port page.
constexpr char kPortEdit[] = "Corvex.PortDigit";

// A page after the one before it.
HWND AddPage(HWND window, HINSTANCE instance, int templateId, const char* title, const char* after) {
    return PropTreeContainer::addPage(window, &PlainDialogProcedure, instance, templateId, title, after, nullptr);
}

// Ports with longer names can't be typed beside it.
std::string PortsText() {
    constexpr std::size_t kTypedName = 4;
    std::string text;
    bool longer = false;
    for (const SerialPortEntry& port : SystemPorts().Ports()) {
        text += (text.empty() ? "Ports there are now: " : ", ") + port.name;
        if (!port.adapter.empty()) text += " (" + port.adapter + ")";
        longer |= port.name.size() > kTypedName;
    }
    if (text.empty()) text = "There is no port now";
    return text + (longer ? ". For one above COM9, give it a lower number in the Device Manager." : ".");
}

void AddPages(SessionState& session, HWND window) {
    const auto instance = static_cast<HINSTANCE>(session.instance);
    AddPage(window, instance, IDD_GENERAL, kGeneral, nullptr);
    const HWND comSetup = AddPage(window, instance, IDD_COM_SETUP, kComSetup, kGeneral);
    AddPage(window, instance, IDD_KEYBOARD, kKeyboard, kComSetup);

    const HWND edit = ::GetDlgItem(comSetup, IDC_PORT_DIGIT);
    ::SendMessageA(edit, EM_LIMITTEXT, kPortDigitLimit, 0);
    ::SetWindowTextA(edit, PortDigitText(session.settings).c_str());
    ::SetPropA(window, kPortEdit, edit);
    ::SetDlgItemTextA(comSetup, IDC_PORT_LIST, PortsText().c_str());
    PropTreeContainer::selectByTitle(window, kComSetup);
}

void TakePort(SessionState& session, HWND window) {
    const auto edit = static_cast<HWND>(::GetPropA(window, kPortEdit));
    char text[16] = "";
    if (edit == nullptr) return;
    ::GetWindowTextA(edit, text, sizeof text);
    StorePortDigit(session.settings, text);
}

// Before the window goes: with no enabled window of ours left, the activation would pass to another program.
void EnableMain(const SessionState& session) {
    ::EnableWindow(static_cast<HWND>(session.mainWindow), TRUE);
}

}  // namespace

void OpenPreferences(SessionState& session) {
    if (session.preferencesWindow != nullptr) {
        ::SetForegroundWindow(static_cast<HWND>(session.preferencesWindow));
        return;
    }
    const auto main = static_cast<HWND>(session.mainWindow);
    const HWND window = PropTreeContainer::create(main, static_cast<HINSTANCE>(session.instance), "Preferences",
                                                  kTreeWidth, kMinimumHeight);
    if (window == nullptr) return;
    session.preferencesWindow = window;
    ::EnableWindow(main, FALSE);
    AddPages(session, window);
}

LRESULT OnPreferencesNotify(SessionState& session, const NMHDR& notification) {
    const HWND window = static_cast<HWND>(session.preferencesWindow);
    if (window == nullptr || notification.hwndFrom != window) return 0;
    switch (notification.code) {
        case PTN_OK:
            TakePort(session, window);
            EnableMain(session);
            return 1;
        case PTN_CANCEL:
            EnableMain(session);
            return 1;
        case PTN_CLOSING:
            EnableMain(session);
            return 0;
        case PTN_CLOSED:
            EnableMain(session);
            ::RemovePropA(window, kPortEdit);
            session.preferencesWindow = nullptr;
            return 0;
        default:
            return 0;
    }
}

}  // namespace corvex
