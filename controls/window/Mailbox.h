// Carries what workers have to show to the main thread, which shows no more than the newest of it.
#pragma once

#include <mutex>
#include <optional>
#include <utility>

#include "platform/WindowsApi.h"

namespace corvex {

// A worker leaves its news and goes on: a call that waited until they are shown would hold up a serial line or a
// playback for as long as the main thread is busy. However many are left, one posted message tells of them, and what it
// finds is the newest. Any thread, except for Take; must outlive the workers.
template <class News>
class Mailbox {
public:
    // The message that is posted.
    explicit Mailbox(UINT message) : message_(message) {}
    Mailbox(const Mailbox&) = delete;
    Mailbox& operator=(const Mailbox&) = delete;

    // In place of what still waits.
    void Leave(HWND window, News news) {
        Merge([&news](std::optional<News>& waiting) { waiting = std::move(news); });
        Ask(window);
    }
    // The parts of Leave, for news that are more than their newest part. `change` gets what waits, under the lock.
    template <class Change>
    void Merge(Change change) {
        const std::lock_guard<std::mutex> guard(lock_);
        change(waiting_);
    }
    // Fails without a window, and when its queue is full: then the next one asks again.
    void Ask(HWND window) {
        const std::lock_guard<std::mutex> guard(lock_);
        if (!asked_ && window != nullptr) asked_ = ::PostMessageA(window, message_, 0, 0) != FALSE;
    }

    // What waits, which does so no more: to be shown when the message comes, or dropped for something newer that is
    // shown at once. What is left from here on asks anew. The window's thread.
    std::optional<News> Take() {
        const std::lock_guard<std::mutex> guard(lock_);
        asked_ = false;
        return std::exchange(waiting_, std::nullopt);
    }

private:
    const UINT message_;
    std::mutex lock_;  // of all below
    std::optional<News> waiting_;
    bool asked_ = false;  // the message is on its way
};

// Whether this is the thread of the window. False without a window.
inline bool IsOnThreadOf(HWND window) {
    return ::GetWindowThreadProcessId(window, nullptr) == ::GetCurrentThreadId();
}

}  // namespace corvex
