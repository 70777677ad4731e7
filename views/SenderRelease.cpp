#include "views/SenderRelease.h"

namespace corvex {

// A thread that sends to itself may do so in the handling of what another has sent, and that one is not to be released.
void SendReleasable(HWND page, UINT message, LPARAM lParam) {
    const bool isOtherThread = ::GetWindowThreadProcessId(page, nullptr) != ::GetCurrentThreadId();
    ::SendMessageA(page, message, isOtherThread ? TRUE : FALSE, lParam);
}

void SenderRelease::Release(HWND page, WPARAM wParam) {
    if (wParam == FALSE || isBehind_ || ::PostMessageA(page, kCaughtUpMessage, 0, 0) == FALSE) return;
    isBehind_ = true;
    ::ReplyMessage(0);
}

}  // namespace corvex
