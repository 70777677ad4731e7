#include "session/window/Desktop.h"

#include <utility>

#include "controls/richstatic/RichStatic.h"
#include "session/diagnosis/PolledCommands.h"
#include "session/window/FileDialogs.h"
#include "session/window/LogBar.h"
#include "session/window/SpeedMenu.h"
#include "session/window/TitleBar.h"
#include "views/MonitorPage.h"

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
    if (!IsOnThreadOf(MainWindow())) return buttons.Leave(MainWindow(), {});
    static_cast<void>(buttons.Take());
    LogBar::RefreshButtons(session);
}

// A place that a worker left before is not to come after this one.
void Desktop::MoveSlider(std::uint32_t index) {
    if (!IsOnThreadOf(MainWindow())) return slider.Leave(MainWindow(), index);
    static_cast<void>(slider.Take());
    LogBar::SetPosition(session, index);
}

void Desktop::SetSliderRange(std::uint32_t last) {
    static_cast<void>(slider.Take());  // it was one in the log before
    playedLog = session.settings.lastxdlpath;
    LogBar::SetRange(session, last);
}

void Desktop::SetMonitorTime(double seconds) {
    if (!IsOnThreadOf(MainWindow())) return monitorTime.Leave(MainWindow(), seconds);
    static_cast<void>(monitorTime.Take());
    SetMonitorsTime(session, seconds);
}

void Desktop::ClearMonitorCharts() {
    static_cast<void>(monitorTime.Take());  // it was one in the log before
    ClearMonitors(session);
}

void Desktop::Flash(FlashText news) {
    if (!IsOnThreadOf(MainWindow())) return flash.Leave(MainWindow(), std::move(news));
    static_cast<void>(flash.Take());
    ShowFlash(news);
}

void Desktop::ShowFlash(const FlashText& news) const {
    RichStatic::flash(AsWindow(session.statusLeft), news.text.c_str(), news.textColour, news.backColour,
                      news.milliseconds);
}

void Desktop::ShowSample(const PublishedSample& sample, WPARAM wParam) {
    samples_.Handle(
        wParam, [&] { session.views.Read(sample); }, [this] { session.views.Draw(); });
}

bool Desktop::ShowNews(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case kMessageSample:
            ShowSample(*reinterpret_cast<const PublishedSample*>(lParam), wParam);
            return true;
        case kMessageRefreshStatus:
            status.Show();
            return true;
        case kMessageRefreshButtons:
            static_cast<void>(buttons.Take());  // first: what changes from here on asks anew
            LogBar::RefreshButtons(session);
            return true;
        case kMessageMoveSlider:
            if (const auto index = slider.Take()) LogBar::SetPosition(session, *index);
            return true;
        case kMessageMonitorTime:
            if (const auto seconds = monitorTime.Take()) SetMonitorsTime(session, *seconds);
            return true;
        case kMessageFlash:
            if (const auto news = flash.Take()) ShowFlash(*news);
            return true;
        default:
            return false;
    }
}

// What waits for a message would wait for ever if it were lost, and a window that is busy may have a full queue.
void Desktop::PostForSure(UINT message) const {
    while (::PostMessageA(MainWindow(), message, 0, 0) == FALSE && ::IsWindow(MainWindow()) != FALSE)
        ::Sleep(1);
}

// Behind the clearing of the text log, so that it stands there.
void Desktop::BeginLink() {
    const bool asks = !PolledCommands(session.definition).empty();
    link.Begin(session.settings.comport, asks);
    if (asks) return;
    DebugOutput::Print(&session.debug, "%s",
                       session.definition.GetCount() == 0
                           ? "No definition is loaded, so there is nothing to ask for: load one with Ctrl+L"
                           : "The definition asks for nothing: it has no command that polls");
}

// The engine is the connect thread's, on which the line's replies are told of.
void Desktop::WatchLine(SessionCalls& calls) {
    calls.scanBegins = [this] { BeginLink(); };
    calls.portRefused = [this](const std::string& reason) { link.Refuse(reason); };
    calls.deviceVanished = [this](const std::string& reason) { link.Vanish(reason); };
    calls.deviceBack = [this] { link.Return(); };
    calls.replyEnded = [this](const DataAcqStatus& status, PacketView reply) {
        if (status.source != 0) return;
        const DataAcqEngine& engine = session.engine;
        link.Add(status, reply, {(engine.flags & DataAcqEngine::kEcho) != 0, engine.port.baud, engine.port.lineBaud});
    };
    calls.recordingKept = [this](const std::string& path, bool saved) {
        keptRecording = path;
        recordingIsSaved = saved;
    };
}

SessionCalls Desktop::Calls() {
    SessionCalls calls;
    calls.refreshStatus = [this] { status.Refresh(); };
    calls.refreshButtons = [this] { RefreshButtons(); };
    calls.carrySample = [this](const PublishedSample& sample) {
        SendForEarlyReply(MainWindow(), kMessageSample, reinterpret_cast<LPARAM>(&sample));
    };
    calls.flash = [this](const char* text, std::uint32_t textColour, std::uint32_t backColour, std::uint32_t ms) {
        Flash({text, textColour, backColour, ms});
    };
    calls.clearMonitors = [this] { ClearMonitorCharts(); };
    calls.setMonitorTime = [this](double seconds) { SetMonitorTime(seconds); };
    calls.setLogSlider = [this](std::uint32_t index) { MoveSlider(index); };
    calls.setLogRange = [this](std::uint32_t last) { SetSliderRange(last); };
    calls.refreshTitle = [this] { RefreshTitle(session); };
    calls.checkSpeed = [this](std::uint32_t command) { CheckSpeed(MainWindow(), command); };
    calls.askSavePath = [this](const FilePrompt& prompt) { return AskSavePath(MainWindow(), prompt, &session.debug); };
    calls.askOpenPath = [this](const FilePrompt& prompt) { return AskOpenPath(MainWindow(), prompt, &session.debug); };
    calls.showBox = [this](const char* caption, const char* text) {
        ::MessageBoxA(MainWindow(), text, caption, MB_OK | MB_ICONSTOP);
    };
    calls.postMain = [this](std::uint32_t message) { PostForSure(message); };
    WatchLine(calls);
    return calls;
}

}  // namespace corvex
