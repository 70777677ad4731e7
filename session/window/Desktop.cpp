#include "session/window/Desktop.h"

#include "controls/richstatic/RichStatic.h"
#include "session/window/FileDialogs.h"
#include "session/window/LogBar.h"
#include "session/window/SpeedMenu.h"
#include "session/window/TitleBar.h"
#include "views/DashPage.h"
#include "views/ItemListPage.h"

namespace corvex {

Desktop::Desktop(HINSTANCE instance, ISerialPlatform& serial) : session(Calls(), serial) {
    session.instance = instance;
}

// In this order: a playback that has ended has begun its stop by then, a stop that has ended has posted its message.
bool Desktop::IsQuiet() const {
    return HasNoWorker() && !session.IsStoppingLog();
}

bool Desktop::HasNoWorker() const {
    return !session.log.IsPlaying() && session.WaitForThreads(std::chrono::milliseconds(0));
}

// A worker may be in the middle of a message to a window that is gone: it comes back only when this thread looks at its
// messages. Nobody handles what is posted by now.
void Desktop::Drain() {
    session.StartStopThread(kStopScan | kStopLog);
    while (!HasNoWorker()) {
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 1, QS_ALLINPUT);
        MSG message;
        while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != 0)
            ::DispatchMessageA(&message);
    }
}

// As with the status texts, but what may be pressed goes by the state at the time when it is shown.
void Desktop::RefreshButtons() {
    if (::GetWindowThreadProcessId(MainWindow(), nullptr) == ::GetCurrentThreadId()) {
        ::SendMessageA(MainWindow(), kMessageRefreshButtons, 0, 0);
    } else if (!buttonsAsked.exchange(true) && ::PostMessageA(MainWindow(), kMessageRefreshButtons, 0, 0) == FALSE) {
        buttonsAsked = false;  // no window yet or no more, or its queue is full
    }
}

// What waits for a message would wait for ever if it were lost, and a window that is busy may have a full queue.
void Desktop::PostForSure(UINT message) const {
    while (::PostMessageA(MainWindow(), message, 0, 0) == FALSE && ::IsWindow(MainWindow()) != FALSE)
        ::Sleep(1);
}

// The views take up the rest of their calls here: updateHistograms, addMonitorSample, clearMonitors and
// setMonitorTime.
SessionCalls Desktop::Calls() {
    SessionCalls calls;
    calls.refreshStatus = [this] { status.Refresh(); };
    calls.refreshButtons = [this] { RefreshButtons(); };
    calls.dashVisible = [this] { return IsDashVisible(session); };
    calls.updateDash = [this](PacketView packet, std::uint32_t commandId) {
        UpdateDashPage(session, packet, commandId);
    };
    calls.listVisible = [this] { return IsItemListVisible(session); };
    calls.repaintList = [this] { RepaintItemList(session); };
    calls.flash = [this](const char* text, std::uint32_t textColour, std::uint32_t backColour, std::uint32_t ms) {
        RichStatic::flash(AsWindow(session.statusLeft), text, textColour, backColour, ms);
    };
    calls.setLogSlider = [this](std::uint32_t index) { LogBar::SetPosition(session, index); };
    calls.setLogRange = [this](std::uint32_t last) { LogBar::SetRange(session, last); };
    calls.refreshTitle = [this] { RefreshTitle(session); };
    calls.checkSpeed = [this](std::uint32_t command) { CheckSpeed(MainWindow(), command); };
    calls.askSavePath = [this](const FilePrompt& prompt) { return AskSavePath(MainWindow(), prompt, &session.debug); };
    calls.askOpenPath = [this](const FilePrompt& prompt) { return AskOpenPath(MainWindow(), prompt, &session.debug); };
    calls.showBox = [this](const char* caption, const char* text) {
        ::MessageBoxA(MainWindow(), text, caption, MB_OK | MB_ICONSTOP);
    };
    calls.postMain = [this](std::uint32_t message) { PostForSure(message); };
    return calls;
}

}  // namespace corvex
