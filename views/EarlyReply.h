// Whoever brings a sample to a page has an engine controller to poll: it need not wait for the drawing.
#pragma once

#include <cstdint>
#include <functional>

#include "platform/WindowsApi.h"

namespace corvex {

// Sends a message whose handling may release its sender. Any thread.
void SendForEarlyReply(HWND page, UINT message, LPARAM lParam);

// One for each page, which it belongs to. The page's thread.
class EarlyReply {
public:
    // Handles such a message, whose wParam it takes: reads, while the sender waits and what it has sent is there, and
    // then draws, while the sender goes on. When the thread has had less time for anything else than the last handling
    // took, the sender waits for the drawing too: with a sample always waiting, no user would be heard.
    void Handle(WPARAM wParam, const std::function<void()>& read, const std::function<void()>& draw);

private:
    std::int64_t end_ = 0, length_ = 0;  // of the last handling, in counts of the present clock
};

}  // namespace corvex
