#include "session/window/IdleWork.h"

#include <utility>

#include "controls/window/ControlWindow.h"
#include "session/window/Desktop.h"

namespace corvex {

namespace {

constexpr UINT kPollMs = 10;

}  // namespace

IdleWork::~IdleWork() {
    StopTimer();
}

void IdleWork::Run(std::function<void()> work) {
    waiting_.push_back(std::move(work));
    Poll();
}

// The timer's id is the object: the procedure has nothing else to go by.
void CALLBACK IdleWork::OnTimer(HWND, UINT, UINT_PTR id, DWORD) {
    reinterpret_cast<IdleWork*>(id)->Poll();
}

// A dialog goes on handling messages: the timer's among them, and those that end the window and with it this.
void IdleWork::Poll() {
    const WindowHold hold(ObjectOf(desktop_.MainWindow()));
    if (polling_) return;
    polling_ = true;
    DoWhatIsDue();
    polling_ = false;
}

// Nothing is handled between the looks at what runs and the work, so that nobody can begin anything there.
void IdleWork::DoWhatIsDue() {
    while (!waiting_.empty()) {
        EndRecording();
        if (::IsWindow(desktop_.MainWindow()) == FALSE) return;
        if (!desktop_.IsQuiet()) {
            StartTimer();
            AskWorkersToEnd();
            return;
        }
        const std::function<void()> work = std::move(waiting_.front());
        waiting_.pop_front();
        work();
    }
    StopTimer();
}

// Once more for a recording that was begun while the dialog of another was open. One that its disk keeps from ending is
// left as it is: it would be asked about for ever.
void IdleWork::EndRecording() {
    SessionState& session = desktop_.session;
    for (int i = 0; i < 2 && session.log.State() == kLogRecording; ++i)
        session.StopCommand();
}

// Asked again at every look: the user may have started something new meanwhile. What is ending already is left alone.
void IdleWork::AskWorkersToEnd() {
    SessionState& session = desktop_.session;
    std::uint32_t flags = 0;
    if (session.scanning.load(std::memory_order_relaxed) != 0) flags |= kStopScan;
    if (session.log.State() == kLogPlaying) flags |= kStopLog;
    if (flags != 0) session.StartStopThread(flags);
}

void IdleWork::StartTimer() {
    if (timerRuns_) return;
    DebugOutput::Print(&desktop_.session.debug, "Ending scan and playback first");
    timerRuns_ = ::SetTimer(desktop_.MainWindow(), reinterpret_cast<UINT_PTR>(this), kPollMs, &IdleWork::OnTimer) != 0;
}

void IdleWork::StopTimer() {
    if (timerRuns_) ::KillTimer(desktop_.MainWindow(), reinterpret_cast<UINT_PTR>(this));
    timerRuns_ = false;
}

}  // namespace corvex
