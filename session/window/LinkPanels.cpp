#include "session/window/LinkPanels.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#include "controls/richstatic/FlashTextModel.h"
#include "controls/richstatic/RichStatic.h"
#include "controls/window/CommonControls.h"
#include "controls/window/ControlWindow.h"
#include "controls/window/GdiObjects.h"
#include "controls/window/WindowSubclass.h"
#include "session/Colours.h"
#include "session/ScratchLog.h"
#include "session/window/Desktop.h"
#include "session/window/LinkWindow.h"
#include "session/window/ResourceIds.h"

namespace corvex {

namespace {

constexpr UINT kLookMs = 250;
constexpr unsigned kWindowTicks = 4;  // between two looks of the window: who reads it needs longer
constexpr int kLogPart = 2, kLinkPart = 3;
constexpr int kTipWidth = 360;  // pixels; a longer line is broken
constexpr int kMargin = 2;

// A click anywhere on a panel, and the pointer that tells of it.
class PanelClicks final : public WindowSubclass {
public:
    PanelClicks(HWND panel, Desktop& desktop) : WindowSubclass(panel), desktop_(desktop) {}

private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
            case WM_LBUTTONUP:
                OpenLinkWindow(desktop_);
                return 0;
            case WM_SETCURSOR:
                ::SetCursor(::LoadCursorA(nullptr, IDC_HAND));
                return TRUE;
            default:
                return Former(message, wParam, lParam);
        }
    }

    Desktop& desktop_;
};

bool IsSame(const LocalTime& a, const LocalTime& b) {
    return a.day == b.day && a.hour == b.hour && a.minute == b.minute && a.second == b.second &&
           a.milliseconds == b.milliseconds;
}

std::int64_t SizeOf(const std::string& path) {
    std::error_code unknown;
    const std::uintmax_t size = std::filesystem::file_size(path, unknown);
    return unknown ? -1 : static_cast<std::int64_t>(size);
}

int WidthOf(HDC dc, const std::string& text) {
    SIZE size{};
    ::GetTextExtentPoint32A(dc, text.c_str(), static_cast<int>(text.size()), &size);
    return size.cx;
}

std::wstring Widened(const std::string& text) {
    std::wstring wide(text.size(), L' ');
    const int length = ::MultiByteToWideChar(CP_ACP, 0, text.c_str(), static_cast<int>(text.size()), wide.data(),
                                             static_cast<int>(wide.size()));
    wide.resize(static_cast<std::size_t>(length));
    return wide;
}

}  // namespace

std::string FitText(HDC dc, const std::string& text, int width) {
    std::string fitting = text;
    for (std::size_t left = text.size(); left > 1 && WidthOf(dc, fitting) > width; --left)
        fitting = text.substr(0, left / 2) + "~" + text.substr(text.size() - (left - 1) / 2);
    return fitting;
}

LinkPanels::LinkPanels(Desktop& desktop) : desktop_(desktop) {
    log_.window = MakePanel(IDC_LOG_PANEL);
    link_.window = MakePanel(IDC_LINK_PANEL);
    MakeToolTip();
    // The timer's id is the object: the procedure has nothing else to go by.
    ::SetTimer(desktop_.MainWindow(), reinterpret_cast<UINT_PTR>(this), kLookMs, &LinkPanels::OnTimer);
}

LinkPanels::~LinkPanels() {
    ::KillTimer(desktop_.MainWindow(), reinterpret_cast<UINT_PTR>(this));
}

HWND LinkPanels::MakePanel(int id) const {
    const HWND bar = AsWindow(desktop_.session.statusBar);
    const HWND panel =
        ::CreateWindowExA(0, kRichStaticClass, "", WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, bar,
                          reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), desktop_.Instance(), nullptr);
    if (panel != nullptr) Attach(std::make_unique<PanelClicks>(panel, desktop_));
    return panel;
}

void LinkPanels::MakeToolTip() {
    toolTip_ = ::CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, "", WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX,
                                 CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, desktop_.MainWindow(),
                                 nullptr, desktop_.Instance(), nullptr);
    ::SendMessageA(toolTip_, TTM_SETMAXTIPWIDTH, 0, kTipWidth);
    for (const HWND panel : {log_.window, link_.window}) {
        TTTOOLINFOA tool{};
        tool.cbSize = sizeof tool;
        tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
        tool.hwnd = desktop_.MainWindow();
        tool.uId = reinterpret_cast<UINT_PTR>(panel);
        tool.lpszText = LPSTR_TEXTCALLBACKA;
        ::SendMessageA(toolTip_, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
    }
}

// The last one leaves the corner to the window's grip. What a text has lost at one width goes by the next.
void LinkPanels::Layout() {
    const HWND bar = AsWindow(desktop_.session.statusBar);
    for (const auto& [part, panel] : {std::pair{kLogPart, &log_}, {kLinkPart, &link_}}) {
        RECT area{};
        ::SendMessageA(bar, SB_GETRECT, static_cast<WPARAM>(part), reinterpret_cast<LPARAM>(&area));
        if (part == kLinkPart) area.right -= ::GetSystemMetrics(SM_CXVSCROLL);
        ::MoveWindow(panel->window, area.left, area.top, std::max(0L, area.right - area.left), area.bottom - area.top,
                     TRUE);
        if (const std::optional<Look> shown = std::exchange(panel->shown, std::nullopt)) Show(*panel, *shown);
    }
}

void CALLBACK LinkPanels::OnTimer(HWND, UINT, UINT_PTR id, DWORD) {
    reinterpret_cast<LinkPanels*>(id)->Refresh();
}

void LinkPanels::Refresh() {
    Show(log_, {LogPanelText(LogState()), kBlack, kNoColour});
    Show(link_, LinkLook());
    if (ticks_++ % kWindowTicks == 0) RefreshLinkWindow(desktop_);
}

LogPanelState LinkPanels::LogState() {
    SessionState& session = desktop_.session;
    LogPanelState state;
    state.log = session.log.State();
    state.paused = session.connectionState.load(std::memory_order_relaxed) == kLogPaused;
    state.recording = ScratchLogPath();
    state.playing = desktop_.playedLog;
    state.kept = desktop_.keptRecording;
    state.saved = desktop_.recordingIsSaved;
    if (state.log != kLogRecording) return state;
    const LocalTime& begun = session.log.header.startTime;
    if (!IsSame(std::exchange(recordingBegun_, begun), begun)) recordingSince_ = watch_.Elapsed();
    state.seconds = watch_.Elapsed() - recordingSince_;
    state.records = session.log.recorded.load(std::memory_order_relaxed);
    return state;
}

LinkPanels::Look LinkPanels::LinkLook() const {
    const LinkState state = desktop_.LineState();
    switch (state.level) {
        case LinkLevel::kAlarm:
            return {state.text, kBlack, kRed};
        case LinkLevel::kDoubtful:
            return {state.text, kBlack, kAmber};
        default:
            return {state.text, kBlack, kNoColour};
    }
}

void LinkPanels::Show(Panel& panel, const Look& look) {
    if (panel.shown == look) return;
    panel.shown = look;
    RECT area{};
    ::GetClientRect(panel.window, &area);
    const ClientDc dc(panel.window);
    const SelectGuard font(dc.Get(), reinterpret_cast<HFONT>(::SendMessageA(panel.window, WM_GETFONT, 0, 0)));
    const std::string text = FitText(dc.Get(), look.text, area.right - 2 * kMargin);
    RichStatic::setAll(panel.window, text.c_str(), look.textColour, look.backColour);
}

std::string LinkPanels::TipOf(HWND panel) {
    if (panel == log_.window) {
        const LogPanelState state = LogState();
        const std::string tip = LogPanelTip(state, SizeOf(LogPanelFile(state)));
        return tip.empty() ? "No recording yet." : tip;
    }
    const LinkState state = desktop_.LineState();
    std::string tip = state.sentence + ".";
    if (!state.next.empty()) tip += "\r\n" + state.next + ".";
    return tip + "\r\nClick, or press F1, for more.";
}

// In the one or the other character set, as the tooltip pleases.
bool LinkPanels::AnswerToolTip(NMHDR* header) {
    if (header->hwndFrom != toolTip_) return false;
    const auto panel = reinterpret_cast<HWND>(header->idFrom);
    if (header->code == TTN_GETDISPINFOA) {
        tip_ = TipOf(panel);
        reinterpret_cast<NMTTDISPINFOA*>(header)->lpszText = tip_.data();
    } else if (header->code == TTN_GETDISPINFOW) {
        wideTip_ = Widened(TipOf(panel));
        reinterpret_cast<NMTTDISPINFOW*>(header)->lpszText = wideTip_.data();
    }
    return true;
}

}  // namespace corvex
