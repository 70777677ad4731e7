#include "session/window/LogBar.h"

#include <algorithm>

#include "controls/window/CommonControls.h"
#include "controls/window/DialogWindow.h"
#include "session/LogButtons.h"
#include "session/window/Desktop.h"
#include "session/window/ResourceIds.h"
#include "session/window/ToolTips.h"
#include "session/window/Toolbar.h"

namespace corvex {

namespace {

constexpr ToolButton kLogButtons[] = {
    {19, IDC_LOG_RECORD}, {20, IDC_LOG_PLAY}, {21, IDC_LOG_PAUSE}, {22, IDC_LOG_STOP}, {23, IDC_LOG_LOAD},
};
constexpr int kToolbarWidth = 118, kToolbarHeight = 30, kSliderLimit = 400;
constexpr std::uint32_t kLargestPosition = 0x7FFFFFFF;  // of a trackbar
constexpr char kDraggedProperty[] = "CorvexDragged";

HWND Slider(const SessionState& session) {
    return ::GetDlgItem(static_cast<HWND>(session.logBarDialog), IDC_LOG_SLIDER);
}

LPARAM AsPosition(std::uint32_t index) {
    return static_cast<LPARAM>(std::min(index, kLargestPosition));
}

class LogBarDialog final : public DialogWindow {
public:
    explicit LogBarDialog(SessionState& session) : DialogWindow(DialogFocus::kUntouched), session_(session) {}

private:
    DialogAnswer OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void LayOut() const;
    void OnCommand(int id);
    void OnSlider(HWND slider, int action);

    SessionState& session_;
};

DialogAnswer LogBarDialog::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SIZE:
            LayOut();
            return 0;
        case WM_COMMAND:
            OnCommand(LOWORD(wParam));
            return 0;
        case WM_HSCROLL:
            if (reinterpret_cast<HWND>(lParam) == Item(IDC_LOG_SLIDER))
                OnSlider(reinterpret_cast<HWND>(lParam), LOWORD(wParam));
            return 0;
        case WM_NOTIFY:
            return AnswerToolTip(reinterpret_cast<NMHDR*>(lParam)) ? DialogAnswer(0) : DialogAnswer();
        default:
            return {};
    }
}

void LogBarDialog::LayOut() const {
    RECT client{};
    ::GetClientRect(Window(), &client);
    const int width = std::clamp(static_cast<int>(client.right) - kToolbarWidth - 1 - 2, 0, kSliderLimit);
    ::MoveWindow(Item(IDC_LOG_SLIDER), kToolbarWidth + 1, 0, width, client.bottom, TRUE);
}

void LogBarDialog::OnCommand(int id) {
    switch (id) {
        case IDC_LOG_RECORD:
            return session_.RecordCommand();
        case IDC_LOG_PLAY:
            return session_.PlayCommand();
        case IDC_LOG_PAUSE:
            return session_.PauseCommand();
        case IDC_LOG_STOP:
            return session_.StopCommand();
        case IDC_LOG_LOAD:
            return session_.LoadLogCommand();
        default:
            return;
    }
}

// A log that plays on moves the slider; not out of the user's hand.
void LogBarDialog::OnSlider(HWND slider, int action) {
    if (action == TB_THUMBTRACK) {
        ::SetPropA(slider, kDraggedProperty, reinterpret_cast<HANDLE>(1));
    } else {
        ::RemovePropA(slider, kDraggedProperty);
    }
    session_.MoveLogSlider(static_cast<std::uint32_t>(::SendMessageA(slider, TBM_GETPOS, 0, 0)));
}

void EnableButton(const SessionState& session, int id, bool on) {
    ::SendMessageA(static_cast<HWND>(session.logBar), TB_ENABLEBUTTON, static_cast<WPARAM>(id),
                   MAKELPARAM(on ? 1 : 0, 0));
}

// A window that is switched off under the focus would swallow every key from then on.
void EnableSlider(const SessionState& session, bool on) {
    const HWND slider = Slider(session);
    if (!on && ::GetFocus() == slider) ::SetFocus(static_cast<HWND>(session.mainWindow));
    ::EnableWindow(slider, on ? TRUE : FALSE);
    if (!on) ::RemovePropA(slider, kDraggedProperty);
}

}  // namespace

void LogBar::Create(Desktop& desktop, HWND rebar, void* images) {
    SessionState& session = desktop.session;
    const HWND dialog = MakeDialog(std::make_unique<LogBarDialog>(session), desktop.Instance(), IDD_LOG_BAR, rebar);
    session.logBarDialog = dialog;
    const HWND bar = MakeToolbar(dialog, desktop.Instance(), IDC_LOG_TOOLBAR, images, kLogButtons, 5);
    ::MoveWindow(bar, 0, 0, kToolbarWidth, kToolbarHeight, TRUE);
    session.logBar = bar;
}

void LogBar::RefreshButtons(SessionState& session) {
    const std::uint32_t connection = session.connectionState.load(std::memory_order_relaxed);
    const LogButtons on = ButtonsFor(session.log.State(), connection);
    EnableButton(session, IDC_LOG_PLAY, on.play);
    EnableButton(session, IDC_LOG_RECORD, on.record);
    EnableButton(session, IDC_LOG_STOP, on.stop);
    EnableButton(session, IDC_LOG_PAUSE, on.pause);
    EnableButton(session, IDC_LOG_LOAD, on.load);
    EnableSlider(session, on.slider);
}

void LogBar::SetPosition(SessionState& session, std::uint32_t index) {
    const HWND slider = Slider(session);
    if (::GetPropA(slider, kDraggedProperty) != nullptr) return;
    ::SendMessageA(slider, TBM_SETPOS, TRUE, AsPosition(index));
}

void LogBar::SetRange(SessionState& session, std::uint32_t last) {
    ::SendMessageA(Slider(session), TBM_SETRANGEMIN, FALSE, 0);
    ::SendMessageA(Slider(session), TBM_SETRANGEMAX, TRUE, AsPosition(last));
}

}  // namespace corvex
