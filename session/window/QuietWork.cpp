#include "session/window/QuietWork.h"

#include <utility>

#include "session/window/Desktop.h"

namespace corvex {

namespace {

constexpr UINT kPollMs = 10;

}  // namespace

QuietWork::~QuietWork() {
    StopTimer();
}

void QuietWork::Run(std::function<void()> work) {
    SessionState& session = desktop_.session;
    if (session.log.State() == kLogRecording) session.StopCommand();
    if (!IsWaiting() && !working_ && desktop_.IsQuiet()) {
        working_ = true;
        work();
        working_ = false;
        return;
    }
    waiting_.push_back(std::move(work));
    if (timerRuns_ || waiting_.size() > 1) return;
    DebugOutput::Print(&session.debug, "Ending scan and playback first");
    AskWorkersToEnd();
    timerRuns_ = ::SetTimer(desktop_.MainWindow(), reinterpret_cast<UINT_PTR>(this), kPollMs, &QuietWork::OnTimer) != 0;
}

// The timer's id is the object: the procedure has nothing else to go by.
void CALLBACK QuietWork::OnTimer(HWND, UINT, UINT_PTR id, DWORD) {
    reinterpret_cast<QuietWork*>(id)->Poll();
}

void QuietWork::Poll() {
    if (working_) return;
    if (!desktop_.IsQuiet()) {
        AskWorkersToEnd();
        return;
    }
    working_ = true;
    const std::vector<std::function<void()>> due = std::exchange(waiting_, {});
    for (const std::function<void()>& work : due)
        work();
    working_ = false;
    if (waiting_.empty()) StopTimer();
}

// Asked again at every look: the user may have started something new meanwhile. What is ending already is left alone.
void QuietWork::AskWorkersToEnd() {
    SessionState& session = desktop_.session;
    std::uint32_t flags = 0;
    if (session.scanning.load(std::memory_order_relaxed) != 0) flags |= kStopScan;
    if (session.log.State() == kLogPlaying) flags |= kStopLog;
    if (flags != 0) session.StartStopThread(flags);
}

void QuietWork::StopTimer() {
    if (timerRuns_) ::KillTimer(desktop_.MainWindow(), reinterpret_cast<UINT_PTR>(this));
    timerRuns_ = false;
}

}  // namespace corvex
