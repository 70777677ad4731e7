#include <atomic>
#include <mutex>
#include <utility>

#include "platform/ConsoleStop.h"
#include "platform/WindowsApi.h"

namespace corvex {

struct ConsoleStop::State {
    std::function<void()> callback;
    std::atomic<bool> requested{false};

    // The system runs this on a thread of its own for each event.
    static BOOL WINAPI OnControl(DWORD event);
};

namespace {

std::mutex currentMutex;  // held while a callback runs, so that its owner can't go away under it
std::atomic<bool>* currentFlag = nullptr;
std::function<void()>* currentCallback = nullptr;

}  // namespace

BOOL WINAPI ConsoleStop::State::OnControl(DWORD) {
    const std::lock_guard lock(currentMutex);
    if (currentFlag == nullptr || currentFlag->exchange(true)) return FALSE;  // the second time: the system's own way
    if (*currentCallback) (*currentCallback)();
    return TRUE;
}

ConsoleStop::ConsoleStop(std::function<void()> callback) : state_(std::make_unique<State>()) {
    state_->callback = std::move(callback);
    {
        const std::lock_guard lock(currentMutex);
        currentFlag = &state_->requested;
        currentCallback = &state_->callback;
    }
    SetConsoleCtrlHandler(&State::OnControl, TRUE);
}

ConsoleStop::~ConsoleStop() {
    SetConsoleCtrlHandler(&State::OnControl, FALSE);
    const std::lock_guard lock(currentMutex);
    currentFlag = nullptr;
    currentCallback = nullptr;
}

bool ConsoleStop::Requested() const {
    return state_->requested.load();
}

}  // namespace corvex
