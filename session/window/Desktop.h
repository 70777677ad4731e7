// The session with windows around it.
#pragma once

#include <string>
#include <variant>

#include "controls/window/Mailbox.h"
#include "platform/WindowsApi.h"
#include "session/SessionState.h"
#include "session/diagnosis/LinkWatch.h"
#include "session/window/OutputText.h"
#include "session/window/StatusMailbox.h"
#include "views/EarlyReply.h"

namespace corvex {

struct FlashText {
    std::string text;
    std::uint32_t textColour, backColour, milliseconds;
};

// One for the process: the session state, its calls filled with window work, and the text control's adapter. Built
// before the first window and torn down after the last, on the main thread; before that, Drain must have returned.
class Desktop {
public:
    explicit Desktop(HINSTANCE instance, ISerialPlatform& serial = SystemSerial());

    HINSTANCE Instance() const { return static_cast<HINSTANCE>(session.instance); }
    HWND MainWindow() const { return static_cast<HWND>(session.mainWindow); }

    // True when no connect, playback or stop thread runs and the end of the last log has been handled. Main thread.
    bool IsQuiet() const;
    // Ends what still runs after the last window is gone, and goes on answering what workers send meanwhile.
    void Drain();

    // Shows what workers have left, or bring, with a message of PrivateMessages.h; false for any other. Main thread.
    bool ShowNews(UINT message, WPARAM wParam, LPARAM lParam);

    OutputText output;
    StatusMailbox status{session};
    Mailbox<std::monostate> buttons{kMessageRefreshButtons};
    Mailbox<std::uint32_t> slider{kMessageMoveSlider};
    Mailbox<double> monitorTime{kMessageMonitorTime};  // seconds
    Mailbox<FlashText> flash{kMessageFlash};
    LinkWatch link;
    // Of the scan. Main thread, like the four words below.
    LinkState LineState() const { return link.State(IsScanning()); }
    std::string LineReport() const { return link.Report(IsScanning()); }
    HWND linkWindow = nullptr;      // LinkWindow's; null while it is closed
    std::string playedLog;          // the last one that was opened to be played
    std::string keptRecording;      // where the last recording is; empty before the first
    bool recordingIsSaved = false;  // under a name of its own
    SessionState session;

private:
    SessionCalls Calls();
    void RefreshButtons();
    bool HasNoWorker() const;
    void PostForSure(UINT message) const;
    void MoveSlider(std::uint32_t index);
    void SetSliderRange(std::uint32_t last);
    void SetMonitorTime(double seconds);
    void ClearMonitorCharts();
    void Flash(FlashText news);
    void ShowFlash(const FlashText& news) const;
    void ShowSample(const PublishedSample& sample, WPARAM wParam);
    bool IsScanning() const { return session.scanning.load(std::memory_order_relaxed) != 0; }
    void BeginLink();
    void WatchLine(SessionCalls& calls);

    EarlyReply samples_;
};

// A window handle out of one of the session's opaque words.
inline HWND AsWindow(void* word) {
    return static_cast<HWND>(word);
}

}  // namespace corvex
