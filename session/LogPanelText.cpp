#include "session/LogPanelText.h"

#include <cstdio>

#include "logging/DataLogEngine.h"

namespace corvex {

namespace {

enum class OnShow { kNothing, kRecording, kPlayback, kKept };

OnShow WhatIsShown(const LogPanelState& state) {
    if (state.log == kLogRecording) return OnShow::kRecording;
    if (state.log == kLogPlaying || state.paused) return OnShow::kPlayback;
    return state.kept.empty() ? OnShow::kNothing : OnShow::kKept;
}

std::string DurationText(double seconds) {
    const auto whole = static_cast<unsigned>(seconds);
    char text[32];
    if (whole < 3600)
        std::snprintf(text, sizeof text, "%u:%02u", whole / 60, whole % 60);
    else
        std::snprintf(text, sizeof text, "%u:%02u:%02u", whole / 3600, whole / 60 % 60, whole % 60);
    return text;
}

std::string NameIn(const std::string& path) {
    return path.substr(path.find_last_of("/\\") + 1);
}

}  // namespace

std::string LogPanelText(const LogPanelState& state) {
    switch (WhatIsShown(state)) {
        case OnShow::kRecording:
            return DurationText(state.seconds) + "  " + std::to_string(state.records);
        case OnShow::kNothing:
            return {};
        case OnShow::kKept:
            return (state.saved ? "" : "unsaved: ") + NameIn(state.kept);
        default:
            return NameIn(state.playing);
    }
}

std::string LogPanelFile(const LogPanelState& state) {
    switch (WhatIsShown(state)) {
        case OnShow::kRecording:
            return state.recording;
        case OnShow::kPlayback:
            return state.playing;
        default:
            return state.kept;
    }
}

std::string LogPanelTip(const LogPanelState& state, std::int64_t bytes) {
    const std::string size = bytes < 0 ? "" : ", " + std::to_string(bytes) + " bytes";
    switch (WhatIsShown(state)) {
        case OnShow::kRecording:
            return "Recording to " + state.recording + ": " + DurationText(state.seconds) + ", " +
                   std::to_string(state.records) + " records" + size + ". Stop asks for a name.";
        case OnShow::kPlayback:
            return (state.paused ? "Paused: " : "Playing ") + state.playing + size + ".";
        case OnShow::kKept:
            if (state.saved) return "Log saved to " + state.kept + size + ".";
            return "The last recording was not saved. It is in " + state.kept + size +
                   ", and gets a name with its date before another one begins.";
        default:
            return {};
    }
}

}  // namespace corvex
