// What the third panel of the status bar says of recordings and logs, as a function of how things stand.
#pragma once

#include <cstdint>
#include <string>

namespace corvex {

struct LogPanelState {
    std::uint32_t log = 0;  // a LogState
    bool paused = false;
    double seconds = 0.0;       // since the recording began
    std::uint32_t records = 0;  // of the recording
    std::string recording;      // its file
    std::string playing;        // the log that plays or is paused
    std::string kept;           // where the last recording is, if there was one
    bool saved = false;         // under a name of its own
};

// "12:03  4512", duration and records of a recording; else the name of the log on show; else that of the last
// recording.
std::string LogPanelText(const LogPanelState& state);
// The file behind that text; empty for none.
std::string LogPanelFile(const LogPanelState& state);
// The rest, in a sentence. `bytes` is the size of that file, negative when it can't be known. Empty for an empty text.
std::string LogPanelTip(const LogPanelState& state, std::int64_t bytes);

}  // namespace corvex
