#include "session/window/StatusBoard.h"

#include "session/window/Desktop.h"

namespace corvex {

// The look is taken under the lock: of two threads with news the later one's picture stays.
void StatusBoard::Refresh() {
    const HWND window = AsWindow(session_.mainWindow);
    {
        const std::lock_guard<std::mutex> guard(lock_);
        StatusPicture now = StatusPanels::Look(session_);
        newest_.left = now.left;
        if (now.right) newest_.right = std::move(now.right);
    }
    if (::GetWindowThreadProcessId(window, nullptr) == ::GetCurrentThreadId()) return Show();

    const std::lock_guard<std::mutex> guard(lock_);
    // Fails without a window, and when its queue is full: then the next refresh asks again.
    if (!asked_) asked_ = ::PostMessageA(window, kMessageRefreshStatus, 0, 0) != FALSE;
}

void StatusBoard::Show() {
    StatusPicture picture;
    {
        const std::lock_guard<std::mutex> guard(lock_);
        picture = newest_;
        newest_.right.reset();
        asked_ = false;
    }
    StatusPanels::Show(session_, picture);
}

}  // namespace corvex
