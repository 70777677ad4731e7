#include "session/window/MainWindow.h"

#include "controls/RegisterControlClasses.h"
#include "controls/tabsheet/TabSheet.h"
#include "controls/window/CommonControls.h"
#include "session/window/Desktop.h"
#include "session/window/LinkWindow.h"
#include "session/window/LogBar.h"
#include "session/window/Preferences.h"
#include "session/window/ResourceIds.h"
#include "session/window/SavedPlace.h"
#include "session/window/Splash.h"
#include "session/window/StatusPanels.h"
#include "session/window/TitleBar.h"
#include "session/window/ToolTips.h"
#include "views/Pages.h"

namespace corvex {

namespace {

constexpr int kFirstWidth = 650, kFirstHeight = 500;

std::string ResourceText(HINSTANCE instance, UINT id) {
    char text[100] = {};
    ::LoadStringA(instance, id, text, sizeof text);
    return text;
}

ControlClass ClassOf(HINSTANCE instance, const char* name) {
    ControlClass windowClass;
    windowClass.name = name;
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    windowClass.icon = ::LoadIconA(instance, MAKEINTRESOURCEA(IDI_CORVEX));
    // LoadIconA would make it large, for the system to shrink.
    windowClass.smallIcon =
        static_cast<HICON>(::LoadImageA(instance, MAKEINTRESOURCEA(IDI_CORVEX_SMALL), IMAGE_ICON,
                                        ::GetSystemMetrics(SM_CXSMICON), ::GetSystemMetrics(SM_CYSMICON), LR_SHARED));
    windowClass.menu = MAKEINTRESOURCEA(IDR_MAIN);
    return windowClass;
}

}  // namespace

HWND MainWindow::Create(Desktop& desktop) {
    const HINSTANCE instance = desktop.Instance();
    const std::string title = ResourceText(instance, IDS_TITLE);
    const std::string name = ResourceText(instance, IDS_WINDOW_CLASS);
    if (!RegisterControl<MainWindow>(instance, ClassOf(instance, name.c_str()))) return nullptr;
    if (!RegisterControlClasses(instance)) return nullptr;
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES | ICC_COOL_CLASSES};
    ::InitCommonControlsEx(&controls);
    return ::CreateWindowExA(0, name.c_str(), title.c_str(), WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT,
                             CW_USEDEFAULT, kFirstWidth, kFirstHeight, nullptr, nullptr, instance, &desktop);
}

MainWindow::MainWindow(HWND window, void* desktop)
    : ControlWindow(window), desktop_(*static_cast<Desktop*>(desktop)), router_(desktop_) {
    desktop_.session.mainWindow = window;
}

LRESULT MainWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            OnCreate();
            return 0;
        case WM_SIZE:
            if (wParam != SIZE_MINIMIZED) Layout(LOWORD(lParam), HIWORD(lParam));
            return 0;
        case WM_WINDOWPOSCHANGED:
            desktop_.session.views.Announce();  // it may have been shown or hidden, and all pages with it
            return Default(message, wParam, lParam);
        case WM_ERASEBKGND:
            return 1;
        case WM_COMMAND:
            return router_.Run(LOWORD(wParam)) ? 0 : Default(message, wParam, lParam);
        case WM_NOTIFY:
            return OnNotify(reinterpret_cast<NMHDR*>(lParam));
        case WM_TIMER:
            StatusPanels::Blink(desktop_.session);
            return 0;
        case WM_HELP:
            OpenLinkWindow(desktop_);
            return TRUE;
        case WM_CLOSE:
            OnClose();
            return 0;
        case WM_DESTROY:
            OnDestroy();
            return 0;
        case WM_QUERYENDSESSION:
            return MayEndSession(lParam) ? TRUE : FALSE;
        case WM_ENDSESSION:
            // The system ends the process when this returns; a recording is whole in its file at any moment.
            if (wParam != FALSE) SaveSettings();
            return 0;
        case kMessageDestroyWindow:
        case kMessageScanStopped:
        case kMessageLogStopped:
        case kMessagePlaybackRests:
            return OnSessionMessage(message);
        default:
            return desktop_.ShowNews(message, wParam, lParam) ? 0 : Default(message, wParam, lParam);
    }
}

// The order is relied upon: the pages stand on the tab sheet, and a definition is loaded into pages that exist.
void MainWindow::OnCreate() {
    SessionState& session = desktop_.session;
    ShowSplash();
    ReadSettings(&session.settings);
    TakeSavedPlace();
    StatusPanels::Create(session);
    panels_ = std::make_unique<LinkPanels>(desktop_);
    images_ = std::make_unique<ToolImages>(desktop_.Instance());
    ToolBand::Create(desktop_, *images_);
    CreateTabs();
    session.TellUnsavedRecording();
    if (session.settings.loadlastdef != 0) router_.Definitions().LoadDefinition(session.settings.lastadxpath);
    session.SetSpeed(1.0F);
    LogBar::RefreshButtons(session);
    desktop_.status.Refresh();
    panels_->Refresh();
    WarnWithoutCounter();
}

void MainWindow::ShowSplash() {
    desktop_.session.splash = MakeSplash(Window(), desktop_.Instance());
}

void MainWindow::TakeSavedPlace() {
    const RECT place = VisiblePlace(desktop_.session.settings);
    ::SetWindowPos(Window(), nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                   SWP_NOZORDER | SWP_NOACTIVATE);
}

void MainWindow::CreateTabs() {
    SessionState& session = desktop_.session;
    const HWND edit = desktop_.output.Create(Window(), desktop_.Instance());
    session.outputEdit = edit;
    const HWND sheet = ::CreateWindowExA(0, kTabSheetClass, "", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0, 0, 0,
                                         Window(), nullptr, desktop_.Instance(), nullptr);
    session.tabSheet = sheet;
    TabSheet::addWindowPage(sheet, edit, "Output", -1);
    session.debug.edit = &desktop_.output;
    CreatePages(session);
}

void MainWindow::WarnWithoutCounter() {
    LARGE_INTEGER frequency{};
    if (::QueryPerformanceFrequency(&frequency) != 0) return;
    ::MessageBoxA(Window(),
                  "Your CPU does not support high-resolution timer. This will prevent correct monitoring and logging.",
                  "Improper hardware", MB_OK | MB_ICONINFORMATION);
}

void MainWindow::Layout(int width, int height) {
    SessionState& session = desktop_.session;
    ToolBand::Layout(session, width);
    StatusPanels::Layout(session);
    if (panels_) panels_->Layout();
    RECT bar{};
    ::GetWindowRect(AsWindow(session.statusBar), &bar);
    const int top = ToolBand::Height(session);
    const int room = height - top - static_cast<int>(bar.bottom - bar.top);
    ::MoveWindow(AsWindow(session.tabSheet), 0, top, width, room > 0 ? room : 0, TRUE);
}

LRESULT MainWindow::OnNotify(NMHDR* header) {
    SessionState& session = desktop_.session;
    if (panels_ && panels_->AnswerToolTip(header)) return 0;
    if (AnswerToolTip(header)) return 0;
    if (session.preferencesWindow != nullptr && header->hwndFrom == AsWindow(session.preferencesWindow))
        return OnPreferencesNotify(session, *header);
    if (header->hwndFrom == AsWindow(session.rebar) && header->code == static_cast<UINT>(RBN_HEIGHTCHANGE)) {
        RECT client{};
        ::GetClientRect(Window(), &client);
        ::PostMessageA(Window(), WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.right, client.bottom));
    }
    return 0;
}

LRESULT MainWindow::OnSessionMessage(UINT message) {
    switch (message) {
        case kMessageScanStopped:
            desktop_.status.Refresh();
            break;
        case kMessageLogStopped:
            desktop_.session.OnLogStopped();
            break;
        case kMessagePlaybackRests:
            desktop_.session.OnPlaybackRests();
            break;
        default:
            ::DestroyWindow(Window());
    }
    return 0;
}

// Asked once: who closes again while workers end has made up his mind.
void MainWindow::OnClose() {
    closes_ = closes_ || router_.Definitions().MayDrop();
    if (closes_) desktop_.session.StartStopThread(kStopScan | kStopLog | kStopWindow);
}

// The system shows whoever makes it wait. In an emergency it does not wait.
bool MainWindow::MayEndSession(LPARAM reason) {
    const bool critical = (static_cast<DWORD>(reason) & ENDSESSION_CRITICAL) != 0;
    return critical || closes_ || router_.Definitions().MayDrop();
}

void MainWindow::OnDestroy() {
    panels_.reset();
    SaveSettings();
    ::PostQuitMessage(0);
}

void MainWindow::SaveSettings() {
    KeepPlace(Window(), &desktop_.session.settings);
    WriteSettings(&desktop_.session.settings);
}

}  // namespace corvex
