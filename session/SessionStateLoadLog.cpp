#include <optional>
#include <string>

#include "session/FilePrompt.h"
#include "session/SessionState.h"

namespace corvex {

// The log itself is not looked at before it is played. A title that nothing was chosen for stays as it is.
void SessionState::LoadLogCommand() {
    if (IsRefused("Load log")) return;
    if (log.State() == kLogPlaying) EnterPause();
    const std::optional<std::string> name = calls_.askOpenPath(kOpenLogPrompt);
    if (name) settings.SetLastLog(*name);
    calls_.refreshButtons();
    if (name) calls_.refreshTitle();
}

}  // namespace corvex
