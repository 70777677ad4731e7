#include "views/EarlyReply.h"

#include "platform/Clock.h"

namespace corvex {

// A thread that sends to itself may do so in the handling of what another has sent, and that one is not to be released.
void SendForEarlyReply(HWND page, UINT message, LPARAM lParam) {
    const bool isOtherThread = ::GetWindowThreadProcessId(page, nullptr) != ::GetCurrentThreadId();
    ::SendMessageA(page, message, isOtherThread ? TRUE : FALSE, lParam);
}

void EarlyReply::Handle(WPARAM wParam, const std::function<void()>& read, const std::function<void()>& draw) {
    const std::int64_t begin = CurrentClock().Counter();
    read();
    if (wParam != FALSE && begin - end_ >= length_) ::ReplyMessage(0);
    draw();
    end_ = CurrentClock().Counter();
    length_ = end_ - begin;
}

}  // namespace corvex
