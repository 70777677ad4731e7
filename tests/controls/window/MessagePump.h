// The messages of a test's own thread, worked off while it waits for something.
#pragma once

#include <atomic>
#include <chrono>
#include <thread>

#include "platform/WindowsApi.h"

namespace corvex {

// Handles what is posted by now.
inline void Pump() {
    MSG message;
    while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
        ::TranslateMessage(&message);
        ::DispatchMessageA(&message);
    }
}

// Handles messages until it is so, for 30 seconds at most. The last answer.
template <class Predicate>
bool Pumps(Predicate isSo) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!isSo()) {
        if (std::chrono::steady_clock::now() > deadline) return isSo();
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 1, QS_ALLINPUT);
        Pump();
    }
    return true;
}

// Runs the work on a thread of its own while this one handles messages. False when it took longer than 30 seconds.
template <class Work>
bool WhilePumping(Work work) {
    std::atomic<bool> done{false};
    std::thread worker([&] {
        work();
        done = true;
    });
    const bool inTime = Pumps([&] { return done.load(); });
    worker.join();
    return inTime;
}

}  // namespace corvex
