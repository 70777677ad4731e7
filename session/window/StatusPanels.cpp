#include "session/window/StatusPanels.h"

#include "controls/richstatic/RichStatic.h"
#include "controls/textprogress/TextProgress.h"
#include "controls/window/CommonControls.h"
#include "platform/WindowsApi.h"
#include "session/SessionState.h"
#include "session/StatusText.h"
#include "session/window/ResourceIds.h"

namespace corvex {

namespace {

constexpr std::uint32_t kPanelRange = 1024;
constexpr std::uint32_t kBlinkOdd = 0x00FF00, kBlinkEven = 0x0000FF;

HWND Window(void* word) {
    return static_cast<HWND>(word);
}

HWND MakePanel(const SessionState& session, const char* name, HWND bar) {
    return ::CreateWindowExA(0, name, "", WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, bar, nullptr,
                             static_cast<HINSTANCE>(session.instance), nullptr);
}

void FillPart(HWND bar, int part, HWND panel) {
    RECT area{};
    ::SendMessageA(bar, SB_GETRECT, static_cast<WPARAM>(part), reinterpret_cast<LPARAM>(&area));
    ::MoveWindow(panel, area.left, area.top, area.right - area.left, area.bottom - area.top, TRUE);
}

RightPanelState StateOf(SessionState& session) {
    RightPanelState state;
    state.log = session.log.State();
    state.connection = session.connectionState.load(std::memory_order_relaxed);
    state.rate = session.SampleRate();
    state.errorCount = session.errorCount.load(std::memory_order_relaxed);
    state.currentMs = session.log.CurrentTime();
    return state;
}

}  // namespace

void StatusPanels::Create(SessionState& session) {
    const HWND bar =
        ::CreateWindowExA(0, STATUSCLASSNAMEA, "", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | SBARS_SIZEGRIP, 0, 0, 0, 0,
                          Window(session.mainWindow), reinterpret_cast<HMENU>(static_cast<UINT_PTR>(IDC_STATUS_BAR)),
                          static_cast<HINSTANCE>(session.instance), nullptr);
    session.statusBar = bar;
    int ends[] = {130, 260, 390, -1};
    ::SendMessageA(bar, SB_SETPARTS, 4, reinterpret_cast<LPARAM>(ends));
    session.statusLeft = MakePanel(session, kRichStaticClass, bar);
    session.statusRight = MakePanel(session, kTextProgressClass, bar);
    ::SendMessageA(Window(session.statusRight), TPM_SETRANGE, 0, kPanelRange);
}

void StatusPanels::Layout(SessionState& session) {
    const HWND bar = Window(session.statusBar);
    ::SendMessageA(bar, WM_SIZE, 0, 0);
    FillPart(bar, 0, Window(session.statusLeft));
    FillPart(bar, 1, Window(session.statusRight));
}

StatusPicture StatusPanels::Look(SessionState& session) {
    const RightPanelState state = StateOf(session);
    return {LeftPanelText(state.log, state.connection), RightPanelText(state)};
}

void StatusPanels::Show(const SessionState& session, const StatusPicture& picture) {
    const PanelText& left = picture.left;
    RichStatic::setAll(Window(session.statusLeft), left.text, left.textColour, left.backColour);
    if (!picture.right) return;
    ::SendMessageA(Window(session.statusRight), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(picture.right->c_str()));
}

void StatusPanels::Blink(SessionState& session) {
    ++session.blinkCount;
    const std::uint32_t colour = session.blinkCount % 2 != 0 ? kBlinkOdd : kBlinkEven;
    ::SendMessageA(Window(session.statusLeft), RSM_SETBACKCOLOR, 0, static_cast<LPARAM>(colour));
}

PanelProgress::~PanelProgress() {
    ::SendMessageA(panel_, TPM_SETRANGE, 0, kPanelRange);
    SetPosition(0);
}

void PanelProgress::SetRange(std::uint32_t maximum) {
    ::SendMessageA(panel_, TPM_SETRANGE, 0, static_cast<LPARAM>(maximum));
}

void PanelProgress::Step() {
    ::SendMessageA(panel_, TPM_STEPIT, 0, 0);
}

void PanelProgress::SetPosition(std::uint32_t position) {
    ::SendMessageA(panel_, TPM_SETPOS, position, 0);
}

}  // namespace corvex
