// The speeds that a log can be played at, as the menu has them.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace corvex {

struct SpeedItem {
    std::uint32_t command;  // id of the menu item
    const char* text;
    float factor;  // 1.0 for recorded time
};

inline constexpr std::array<SpeedItem, 5> kSpeedItems{{
    {32809, "400%", 4.0F},
    {32810, "200%", 2.0F},
    {32811, "100%", 1.0F},
    {32812, "50%", 0.5F},
    {32813, "25%", 0.25F},
}};
inline constexpr std::uint32_t kCustomSpeedCommand = 32815;  // checked for any other factor; choosing it does nothing

// The item that has exactly this factor, kCustomSpeedCommand when none has.
std::uint32_t CommandOfSpeed(float factor);
// No value for an id that sets no speed.
std::optional<float> SpeedOfCommand(std::uint32_t command);

}  // namespace corvex
