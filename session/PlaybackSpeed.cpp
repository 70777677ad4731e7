#include "session/PlaybackSpeed.h"

#include "session/SessionState.h"

namespace corvex {

std::uint32_t CommandOfSpeed(float factor) {
    for (const SpeedItem& item : kSpeedItems) {
        if (item.factor == factor) return item.command;
    }
    return kCustomSpeedCommand;
}

std::optional<float> SpeedOfCommand(std::uint32_t command) {
    for (const SpeedItem& item : kSpeedItems) {
        if (item.command == command) return item.factor;
    }
    return std::nullopt;
}

void SessionState::SetSpeed(float factor) {
    log.speed.store(factor, std::memory_order_relaxed);
    calls_.refreshTitle();
    calls_.checkSpeed(CommandOfSpeed(factor));
}

}  // namespace corvex
