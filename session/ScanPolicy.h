// What a scan and its replies lead to, as plain decisions on the session's words.
#pragma once

#include <cstdint>

#include "logging/DataLogEngine.h"
#include "session/ConnectionState.h"

namespace corvex {

// Of what a run operation or a callback returned. A line failure is not one: it is in the status' code alone.
constexpr bool IsFailure(std::int32_t result) {
    return result < 0;
}

// A round of the monitor command follows: wanted, and none before it was refused.
constexpr bool KeepsMonitoring(std::uint32_t scanning, std::int32_t lastResult) {
    return scanning == 1 && !IsFailure(lastResult);
}

// The disconnect command belongs to a loop that was stopped. A loop that was refused leaves the line as it is.
constexpr bool RunsDisconnect(bool monitored, std::uint32_t scanning) {
    return monitored && scanning == 0;
}

// A good reply means a connection only while one is being made: the disconnect command's replies make none.
constexpr bool BecomesConnected(std::uint32_t scanning, std::uint32_t connectionState) {
    return scanning != 0 && connectionState == kConnecting;
}

// The line runs at a rate so far from the one that was asked for that bytes are lost: more than 3 % away. 0 is a rate
// that nobody can tell.
constexpr bool IsOddRate(std::uint32_t wanted, std::uint32_t taken) {
    const std::uint64_t apart = taken > wanted ? taken - wanted : wanted - taken;
    return taken != 0 && apart * 100 > std::uint64_t{wanted} * 3;
}

// A recording takes good replies of a connected line only, and the one that is about to connect it.
constexpr bool TakesSamples(std::uint32_t logState, std::uint32_t scanning, std::uint32_t connectionState) {
    return logState == kLogRecording && (connectionState == kConnected || BecomesConnected(scanning, connectionState));
}

}  // namespace corvex
