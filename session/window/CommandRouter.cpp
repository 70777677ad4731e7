#include "session/window/CommandRouter.h"

#include <optional>

#include "session/PlaybackSpeed.h"
#include "session/window/AboutBox.h"
#include "session/window/Desktop.h"
#include "session/window/Preferences.h"
#include "session/window/ResourceIds.h"

namespace corvex {

bool CommandRouter::Run(unsigned command) {
    if (RunFileCommand(command) || RunLogCommand(command)) return true;
    switch (command) {
        case IDM_SCAN:
            desktop_.session.ToggleScan();
            return true;
        case IDM_ABOUT:
            ShowAboutBox(desktop_.session);
            return true;
        default:
            return false;
    }
}

bool CommandRouter::RunFileCommand(unsigned command) {
    switch (command) {
        case IDM_LOAD_DEFINITION:
            definitions_.LoadCommand();
            return true;
        case IDM_SAVE_DEFINITION:
            definitions_.SaveCommand();
            return true;
        case IDM_SAVE_DEFINITION_AS:
            definitions_.SaveAsCommand();
            return true;
        case IDM_IMPORT_DEFINITION:
            definitions_.ImportCommand();
            return true;
        case IDM_EDIT_DEFINITION:
            definitions_.EditCommand();
            return true;
        case IDM_NEW_DEFINITION:
            definitions_.NewCommand();
            return true;
        case IDM_PREFERENCES:
            OpenPreferences(desktop_.session);
            return true;
        case IDM_EXIT:
            ::SendMessageA(desktop_.MainWindow(), WM_CLOSE, 0, 0);
            return true;
        default:
            return false;
    }
}

bool CommandRouter::RunLogCommand(unsigned command) {
    SessionState& session = desktop_.session;
    const std::optional<float> speed = SpeedOfCommand(command);
    if (speed) {
        session.SetSpeed(*speed);
        return true;
    }
    switch (command) {
        case IDM_LOAD_LOG:
            session.LoadLogCommand();
            return true;
        case IDM_RECORD:
            session.RecordCommand();
            return true;
        case IDM_PLAY:
        case IDM_PAUSE:
            session.PlayPauseCommand();
            return true;
        case IDM_STOP:
            session.StopCommand();
            return true;
        case IDM_JUMP_FORWARD_TEXT:
            session.JumpBackward();
            return true;
        case IDM_JUMP_BACKWARD_TEXT:
            session.JumpForward();
            return true;
        default:
            return false;
    }
}

}  // namespace corvex
