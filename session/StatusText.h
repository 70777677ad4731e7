// What the two panels of the status bar say, as a function of how things stand.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace corvex {

// Colours are 0x00BBGGRR.
struct PanelText {
    const char* text;
    std::uint32_t textColour, backColour;
};

// The left panel. `log` is a LogState, `connection` a ConnectionState. The log comes first: a drive that is being
// recorded says so whatever the line does.
PanelText LeftPanelText(std::uint32_t log, std::uint32_t connection);

struct RightPanelState {
    std::uint32_t log = 0, connection = 0;
    float rate = 0.0F;  // hertz
    std::uint32_t errorCount = 0;
    std::uint32_t currentMs = 0;  // of the log
};

// The right panel; no value: what it shows stays. The rate and the errors of a line come before the time of a log.
// Hours come round after 60.
std::optional<std::string> RightPanelText(const RightPanelState& state);

}  // namespace corvex
