#include "session/StatusText.h"

#include <cstdio>

#include "logging/DataLogEngine.h"
#include "session/Colours.h"
#include "session/ConnectionState.h"

namespace corvex {

namespace {

constexpr std::uint32_t kBlue = 0xFF0000, kGrey = 0x787878, kYellow = 0x00FFFF, kOrange = 0x2873FF;

std::string LineText(const RightPanelState& state) {
    char text[64];
    std::snprintf(text, sizeof text, "%.2f Hz   Errors: %i", static_cast<double>(state.rate),
                  static_cast<int>(state.errorCount));
    return text;
}

std::string LogText(const RightPanelState& state) {
    const std::uint32_t seconds = state.currentMs / 1000, minutes = seconds / 60, hours = minutes / 60;
    char text[64];
    std::snprintf(text, sizeof text, "%.2f Hz  %i:%i:%.2i:%.3i", static_cast<double>(state.rate),
                  static_cast<int>(hours % 60), static_cast<int>(minutes % 60), static_cast<int>(seconds % 60),
                  static_cast<int>(state.currentMs % 1000));
    return text;
}

}  // namespace

PanelText LeftPanelText(std::uint32_t log, std::uint32_t connection) {
    if (log == kLogPlaying) return {"Log Playing", kWhite, kBlue};
    if (log == kLogRecording) return {"Log Recording", kWhite, kGrey};
    switch (connection) {
        case kConnected:
            return {"ALDL: Connected", kWhite, kBlue};
        case kConnecting:
            return {"ALDL: Connecting...", kBlack, kAmber};
        case kLogPaused:
            return {"Log Paused", kBlack, kOrange};
        default:
            return {"ALDL: Not Connected", kBlack, kYellow};
    }
}

std::optional<std::string> RightPanelText(const RightPanelState& state) {
    if (state.connection == kConnected) return LineText(state);
    if (state.log == kLogPlaying || state.log == kLogRecording) return LogText(state);
    if (state.connection == kNotConnected) return std::string();
    return std::nullopt;
}

}  // namespace corvex
