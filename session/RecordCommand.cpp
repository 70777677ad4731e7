#include "session/RecordingItems.h"
#include "session/ScratchLog.h"
#include "session/SessionState.h"

namespace corvex {

// The keys stay alive while a recording runs: to open its file anew would empty it.
void SessionState::RecordCommand() {
    if (log.State() != kLogRecording) {
        // A log that could not be opened fails to start, and its state says so.
        static_cast<void>(log.Open(ScratchLogPath().c_str(), kLogForWriting));
        AddRecordingItems(log, definition);
        static_cast<void>(log.StartRecording());
    }
    calls_.refreshButtons();
}

}  // namespace corvex
