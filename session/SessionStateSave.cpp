// The Stop command, and what becomes of a recording.
#include <optional>
#include <string>
#include <utility>

#include "platform/Clock.h"
#include "platform/FileMove.h"
#include "session/FilePrompt.h"
#include "session/LogName.h"
#include "session/ScratchLog.h"
#include "session/SessionState.h"

namespace corvex {

namespace {

void WaitForTheMove() {
    IClock& clock = SystemClock();
    SleepUntil(clock.Counter() + clock.Frequency() * 75 / 1000);
}

}  // namespace

void SessionState::StopCommand() {
    wishes_.Clear();
    if (log.State() == kLogRecording) {
        SaveRecording();
        calls_.refreshButtons();
        calls_.refreshStatus();
    } else {
        StopPlayback();
    }
}

void SessionState::StopPlayback() {
    const bool paused = connectionState.load(std::memory_order_relaxed) == kLogPaused;
    if (log.State() == kLogPlaying || paused) StartStopThread(kStopLog);
    calls_.refreshButtons();
    calls_.refreshStatus();
}

// While the user looks for a name a stop thread waits until the disk has the recording: before that its file can't be
// moved on Windows. The user who gives no name has his recording in the scratch file, and under a name of its own after
// the next one.
void SessionState::SaveRecording() {
    static_cast<void>(log.StopRecording());  // a log that can't be ended well is saved all the same
    static_cast<void>(log.Close());
    DebugOutput::Print(&debug, "Recording stopped");
    const std::string name = SuggestedLogName(origin.HasFile() ? settings.lastadxpath : "", log.header.startTime);
    FilePrompt prompt = kSaveLogPrompt;
    prompt.suggested = name.c_str();
    saves_ = Saving::kAsks;
    StartStopThread(kStopLog);
    if (!IsStoppingLog()) log.WaitForSync();  // there was no thread to be had
    savedAs_ = calls_.askSavePath(prompt);
    saves_ = Saving::kWaits;
    if (!IsStoppingLog()) FinishSaving();
}

void SessionState::FinishSaving() {
    if (log.SyncFailed()) DebugOutput::Print(&debug, "The disk says that it does not have all of the recording!");
    const std::optional<std::string> name = std::exchange(savedAs_, std::nullopt);
    const bool saved = name && MoveRecordingTo(*name);
    if (name) calls_.setLogSlider(0);
    calls_.recordingKept(saved ? *name : ScratchLogPath(), saved);
    saves_ = Saving::kNot;
    RunWishes();
}

// Never over another log, although the user was asked whether to: the box says where his recording is.
bool SessionState::MoveRecordingTo(const std::string& name) {
    const std::uint32_t error = MoveToNewName(ScratchLogPath(), name);
    if (error != 0) {
        calls_.showBox("Cannot overwrite", "Log save failed. Log backup saved in install directory as \"temp.xdl\"");
        DebugOutput::Print(&debug, "Cannot overwrite existing log: %s, error 0x%X", name.c_str(), error);
        return false;
    }
    settings.SetLastLog(name);
    WaitForTheMove();
    // In whatever folder is the current one, where older logs of that name were left behind; but the user may have
    // saved this very log there.
    if (!IsSameFile(kScratchLogName, name)) static_cast<void>(RemoveFile(kScratchLogName));
    DebugOutput::Print(&debug, "Log saved to %s", name.c_str());
    return true;
}

}  // namespace corvex
