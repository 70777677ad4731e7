#include <cstdio>
#include <optional>
#include <string>

#include "session/Colours.h"
#include "session/RecordingItems.h"
#include "session/ScratchLog.h"
#include "session/SessionState.h"
#include "session/UnsavedRecording.h"

namespace corvex {

void SessionState::RecordCommand() {
    if (!IsRefused("Record")) {
        const bool playing = log.IsPlaying();
        if (playing && !IsLogEnding()) StartStopThread(kStopLog);
        if (IsLogEnding()) {
            wishes_.Add(LogWish::kRecord);
        } else {
            BeginRecording();
        }
    }
    calls_.refreshButtons();
}

// A paused log is closed first: until then the line's state is hidden, and nothing would be recorded.
void SessionState::BeginRecording() {
    if (log.State() != kLogClosed) CloseLog();
    if (!MakeScratchFree()) return;
    const std::string path = ScratchLogPath();
    if (log.Open(path.c_str(), kLogForWriting) == kLogSuccess) AddRecordingItems(log, definition);
    if (log.StartRecording() == kLogSuccess) {
        Say("Recording to " + path, "Recording started", kGreen);
        calls_.refreshStatus();
    } else {
        Say("Unable to record to " + path + ": " + log.OpenError(), "Recording failed!", kRed);
    }
}

// False when what is there can neither be named nor lost.
bool SessionState::MakeScratchFree() {
    const std::optional<KeptRecording> kept = KeepUnsavedRecording(ScratchLogPath());
    if (!kept) return true;
    if (kept->error == 0) {
        DebugOutput::Print(&debug, "The recording before was not saved. It is now %s", kept->path.c_str());
        return true;
    }
    char number[32];
    std::snprintf(number, sizeof number, "error 0x%X", static_cast<unsigned>(kept->error));
    Say("Unable to record: " + kept->path + " holds a recording that was not saved and cannot be renamed, " + number,
        "Recording failed!", kRed);
    return false;
}

void SessionState::TellUnsavedRecording() {
    const std::string path = ScratchLogPath();
    const std::optional<LocalTime> begun = FindUnsavedRecording(path);
    if (!begun) return;
    DebugOutput::Print(&debug, "A recording of %04u-%02u-%02u %02u:%02u:%02u was not saved. It is in %s",
                       unsigned{begun->year}, unsigned{begun->month}, unsigned{begun->day}, unsigned{begun->hour},
                       unsigned{begun->minute}, unsigned{begun->second}, path.c_str());
}

}  // namespace corvex
