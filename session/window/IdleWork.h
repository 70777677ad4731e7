// Work that may only be done while no worker runs.
#pragma once

#include <deque>
#include <functional>

#include "platform/WindowsApi.h"

namespace corvex {

class Desktop;

// Workers read the definition without a lock, so it is changed only while none of them runs. The main thread never
// waits for them: it asks them to end and is called back by a timer of its own when they have. Scan and playback end
// then as by the user's own hand, and a recording, also one that was begun meanwhile, goes through its save first: its
// table would be of another definition. Main thread.
class IdleWork {
public:
    explicit IdleWork(Desktop& desktop) : desktop_(desktop) {}
    ~IdleWork();
    IdleWork(const IdleWork&) = delete;
    IdleWork& operator=(const IdleWork&) = delete;

    // At once when all is quiet, else as soon as it is, in the order of the calls; asked for by such work, after it.
    // What is still waiting when this goes is not done.
    void Run(std::function<void()> work);
    bool IsWaiting() const { return !waiting_.empty(); }

private:
    static void CALLBACK OnTimer(HWND window, UINT message, UINT_PTR id, DWORD time);
    void Poll();
    void DoWhatIsDue();
    void EndRecording();
    void AskWorkersToEnd();
    void StartTimer();
    void StopTimer();

    Desktop& desktop_;
    std::deque<std::function<void()>> waiting_;
    bool timerRuns_ = false;
    bool polling_ = false;  // further down on the stack
};

}  // namespace corvex
