#include "session/window/StatusMailbox.h"

#include <utility>

#include "session/window/Desktop.h"

namespace corvex {

StatusMailbox::StatusMailbox(SessionState& session) : session_(session), news_(kMessageRefreshStatus) {}

// The look is taken under the lock: of two threads with news the later one's picture stays. A right text that was left
// is not lost by a picture without one.
void StatusMailbox::Refresh() {
    news_.Merge([this](std::optional<StatusPicture>& waiting) {
        StatusPicture now = StatusPanels::Look(session_);
        if (waiting && !now.right) now.right = std::move(waiting->right);
        waiting = std::move(now);
    });
    const HWND window = AsWindow(session_.mainWindow);
    if (IsOnThreadOf(window)) return Show();
    news_.Ask(window);
}

void StatusMailbox::Show() {
    if (const std::optional<StatusPicture> picture = news_.Take()) StatusPanels::Show(session_, *picture);
}

}  // namespace corvex
