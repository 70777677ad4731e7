// Whoever brings a sample to a page has an engine controller to poll: it need not wait for the drawing.
#pragma once

#include "platform/WindowsApi.h"

namespace corvex {

// To the page, from Release: pass it on to OnCaughtUp.
inline constexpr UINT kCaughtUpMessage = WM_APP + 0x113;

// Sends a message whose handling may release its sender. Any thread.
void SendReleasable(HWND page, UINT message, LPARAM lParam);

// One for each page, which it belongs to. The page's thread.
class SenderRelease {
public:
    // In the handling of such a message, with its wParam, when nothing of the sender's is needed any more: lets it go
    // on while the handling does. Not so before the thread has come to its posted messages since the last time: with a
    // sample always waiting, it would never come to them, nor to its user.
    void Release(HWND page, WPARAM wParam);

    void OnCaughtUp() { isBehind_ = false; }

private:
    bool isBehind_ = false;
};

}  // namespace corvex
